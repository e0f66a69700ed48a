#include "tests/languages/SeenSession.h"

#include "tests/support/Results.h"
#include "tests/support/Sampled.h"

#include "afx/DialogRobot.h"
#include "host/HostName.h"
#include "host/Ladder.h"
#include "host/Utf8.h"
#include "host/WizardLists.h"

#include <sstream>

namespace
{

class CSeeing : public CSessionWatcher
{
public:
    explicit CSeeing(SSeenSession& seen) : m_seen(seen) {}
    ~CSeeing() override { m_seen.log = m_log.str(); }

    void SeeDialog(CDialogRobot& robot) override
    {
        ++m_moment;
        const bool isRefused = SeeMessages(robot);
        m_log << "moment " << m_moment << ": " << (robot.IsOpen() ? "open\n" : "closed\n");
        if (!robot.IsOpen() || robot.IsMessageBox())
            return;
        const UINT focus = robot.FocusId();
        m_log << "  focus " << focus << '\n';
        if (isRefused || IsThorough())
            SeeControls(robot);
    }

    void SeeRun(const CFunWizard& wizard, int result, ULONG controlCode) override
    {
        SResults results = ReadResults(wizard);
        for (std::string& comment : results.comments)
        {
            m_seen.comments.push_back(ToUtf8(comment.c_str(), wizard.GetTextCodePage()));
            comment.clear(); // what counts is how many there are
        }
        m_log << "result " << result << ", control code " << controlCode << '\n'
              << results << CLadder::Of(ReadLists(wizard).instructions).Text();
        m_boxes = 0; // the robot of the next run counts its own
    }

private:
    bool SeeMessages(const CDialogRobot& robot)
    {
        const std::vector<SRobotMessageBox>& boxes = robot.MessageBoxes();
        const bool isNew = m_boxes < boxes.size();
        for (; m_boxes < boxes.size(); ++m_boxes)
        {
            const SRobotMessageBox& box = boxes[m_boxes];
            m_log << "message under " << box.caption << ", icon " << box.icon << ", answer " << box.answer << '\n';
            m_seen.messages.push_back({ToUtf8(box.text, AfxGetTextPage()), "moment " + std::to_string(m_moment)});
        }
        return isNew;
    }

    void SeeControls(CDialogRobot& robot)
    {
        for (const SRobotControl& control : robot.Controls())
        {
            const std::string className = static_cast<LPCSTR>(control.className);
            m_log << "  " << control.id << ' ' << className << (control.enabled ? "" : " disabled")
                  << (control.visible ? "" : " hidden") << (control.text.IsEmpty() ? " empty" : "");
            if (control.id != 0xFFFF)
                SeeControl(robot, control.id, className, control.style);
            m_log << '\n';
        }
    }

    void SeeControl(CDialogRobot& robot, UINT id, const std::string& className, DWORD style)
    {
        if (className == "ComboBox" || className == "ListBox")
            m_log << " item " << robot.Selection(id) << " of " << robot.Items(id).size();
        else if (className == "Button")
            m_log << (robot.Checked(id) ? " checked" : "");
        else if (className == "Edit" && (style & ES_MULTILINE) == 0)
        {
            const auto [first, last] = robot.SelectedRange(id);
            m_log << " \"" << robot.Text(id) << "\" limit " << robot.Limit(id);
            if (robot.FocusId() == id)
                m_log << " selected " << first << " to " << last;
        }
    }

    SSeenSession& m_seen;
    std::ostringstream m_log;
    int m_moment = 0;
    size_t m_boxes = 0;
};

} // namespace

SSeenSession SeeSession(const SSession& session)
{
    PexloDll_SetAppName(kHostName);
    SSeenSession seen;
    std::ostringstream report;
    {
        CSeeing seeing(seen);
        seen.success = CSessionPlayer(report, "", &seeing).Play(session);
    }
    seen.report = report.str();
    return seen;
}
