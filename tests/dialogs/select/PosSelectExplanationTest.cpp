// The explanation of the selected item: its text, its lines and its colours.
#include "tests/dialogs/select/PosSelectTest.h"

#include <algorithm>
#include <map>

namespace
{

using Explanations = std::map<DWORD, UINT>;

const Explanations kExplanationsA = {
    {Item(168, 0), 10001}, {Item(168, 1), 10003}, {Item(169, 0), 10005}, {Item(170, 0), 10007},
    {Item(171, 0), 10009}, {Item(171, 1), 10011}, {Item(172, 0), 10013}, {Item(173, 0), 10015},
    {Item(174, 0), 10017}, {Item(175, 0), 10019}, {Item(176, 0), 10021},
};
const Explanations kExplanationsB = {
    {Item(171, 0), 10025}, {Item(171, 1), 10027}, {Item(172, 0), 10029}, {Item(173, 0), 10031},
    {Item(174, 0), 10033}, {Item(175, 0), 10035}, {Item(177, 0), 10037},
};
// The list is that of family A, the explanations are not: some items have none.
const Explanations kExplanationsC = {
    {Item(171, 0), 10039}, {Item(171, 1), 22005}, {Item(172, 0), 22006},
    {Item(173, 0), 22007}, {Item(174, 0), 22008}, {Item(175, 0), 22009},
};
const Explanations kExplanationsOfOperations = {
    {Item(151, 10010), 10501}, {Item(151, 10020), 10503}, {Item(151, 10030), 10505}, {Item(151, 10040), 10507},
    {Item(151, 10050), 10509}, {Item(151, 10060), 10515}, {Item(151, 10070), 10511}, {Item(151, 10080), 10513},
};

/// The width of texts in a control.
class CControlRuler
{
public:
    explicit CControlRuler(HWND control) : m_control(control), m_dc(::GetDC(control))
    {
        const auto font = reinterpret_cast<HGDIOBJ>(::SendMessageA(control, WM_GETFONT, 0, 0));
        m_previous = ::SelectObject(m_dc, font);
    }
    ~CControlRuler()
    {
        ::SelectObject(m_dc, m_previous);
        ::ReleaseDC(m_control, m_dc);
    }
    CControlRuler(const CControlRuler&) = delete;
    CControlRuler& operator=(const CControlRuler&) = delete;

    int WidthOf(const std::string& text) const
    {
        SIZE size = {};
        ::GetTextExtentPoint32A(m_dc, text.c_str(), static_cast<int>(text.size()), &size);
        return size.cx;
    }
    /// What a line of text may take.
    int Available() const
    {
        RECT client;
        ::GetClientRect(m_control, &client);
        return client.right - client.left - 3;
    }

private:
    HWND m_control;
    HDC m_dc;
    HGDIOBJ m_previous;
};

/// One paragraph of single-byte characters, broken after the last blank that fits, or where it must be.
std::vector<std::string> Wrap(std::string text, const CControlRuler& ruler)
{
    std::vector<std::string> lines;
    while (ruler.WidthOf(text) > ruler.Available())
    {
        size_t fitting = text.size();
        while (fitting > 1 && ruler.WidthOf(text.substr(0, fitting)) > ruler.Available())
            --fitting;
        const size_t blank = text.substr(0, fitting).rfind(' ');
        const size_t length = blank != std::string::npos ? blank + 1 : fitting;
        lines.push_back(text.substr(0, length));
        text.erase(0, length);
    }
    lines.push_back(text);
    return lines;
}

std::vector<std::string> SplitLines(const std::string& text)
{
    std::vector<std::string> lines;
    size_t start = 0;
    for (size_t end; (end = text.find("\r\n", start)) != std::string::npos; start = end + 2)
        lines.push_back(text.substr(start, end - start));
    lines.push_back(text.substr(start));
    return lines;
}

std::vector<std::string> WrappedParagraphs(const std::string& text, const CControlRuler& ruler)
{
    std::vector<std::string> lines;
    for (const std::string& paragraph : SplitLines(text))
        for (const std::string& line : Wrap(paragraph, ruler))
            lines.push_back(line);
    return lines;
}

std::string Joined(const std::vector<std::string>& lines)
{
    std::string text;
    for (const std::string& line : lines)
        text += line;
    return text;
}

class CPosSelectExplanationTest : public CPosSelectTest
{
protected:
    /// Selects every item and compares its explanation.
    void ExpectExplanations(int mode, const Explanations& expected)
    {
        Look(mode, [&](CDialogRobot& robot) {
            const CControlRuler ruler(robot.Dialog()->GetDlgItem(kExplanation)->m_hWnd);
            const std::vector<DWORD> items = ItemData(robot);
            EXPECT_GE(items.size(), expected.size());
            ExpectExplanation(robot, ruler, items[0], expected); // of the item selected at first
            for (int i = static_cast<int>(items.size()) - 1; i >= 0; --i)
            {
                robot.Select(kList, i);
                ExpectExplanation(robot, ruler, items[i], expected);
            }
        });
    }

private:
    static void ExpectExplanation(CDialogRobot& robot, const CControlRuler& ruler, DWORD item,
                                  const Explanations& expected)
    {
        SCOPED_TRACE(testing::Message() << "item " << HIWORD(item) << "/" << LOWORD(item));
        const std::string shown = static_cast<LPCSTR>(robot.Text(kExplanation));
        const auto found = expected.find(item);
        if (found == expected.end())
        {
            EXPECT_EQ(shown, "");
            return;
        }
        const auto text = LoadText(found->second);
        ASSERT_TRUE(text) << found->second;
        ASSERT_FALSE(text->empty());
        const std::vector<std::string> lines = SplitLines(shown);
        EXPECT_EQ(lines, WrappedParagraphs(*text, ruler));
        EXPECT_EQ(Joined(lines), Joined(SplitLines(*text)));
        for (const std::string& line : lines)
            EXPECT_LE(ruler.WidthOf(line), ruler.Available()) << line;
    }
};

} // namespace

TEST_F(CPosSelectExplanationTest, ExplainsFamilyA)
{
    for (const int plcType : {0, 1, 69, 75, 113, 255})
    {
        m_wizard.SetPlcType(static_cast<BYTE>(plcType));
        ExpectExplanations(0, kExplanationsA);
    }
    m_wizard.SetLanguageInfo(kEnglish);
    ExpectExplanations(0, kExplanationsA);
}

TEST_F(CPosSelectExplanationTest, ExplainsFamilyB)
{
    m_wizard.SetLanguageInfo(kEnglish);
    Explanations all = kExplanationsB;
    for (const int plcType : {70, 71, 72, 73, 74})
    {
        m_wizard.SetPlcType(static_cast<BYTE>(plcType));
        ExpectExplanations(0, all);
    }
    all.erase(Item(171, 1));
    m_wizard.SetPlcType(117);
    ExpectExplanations(0, all);
    all.erase(Item(175, 0));
    m_wizard.SetPlcType(114);
    ExpectExplanations(0, all);
}

TEST_F(CPosSelectExplanationTest, ExplainsFamilyC)
{
    m_wizard.SetLanguageInfo(kEnglish);
    for (const int plcType : {160, 161, 164, 165, 168})
    {
        m_wizard.SetPlcType(static_cast<BYTE>(plcType));
        ExpectExplanations(0, kExplanationsC);
    }
}

TEST_F(CPosSelectExplanationTest, ExplainsOperations)
{
    for (const int plcType : {1, 70, 160})
    {
        m_wizard.SetPlcType(static_cast<BYTE>(plcType));
        ExpectExplanations(1, kExplanationsOfOperations);
    }
    m_wizard.SetLanguageInfo(kEnglish);
    ExpectExplanations(1, kExplanationsOfOperations);
}

TEST_F(CPosSelectExplanationTest, IsBrokenWhereALineIsFull)
{
    // At least one of the texts must be longer than a line, else the tests above say nothing about wrapping.
    m_wizard.SetLanguageInfo(kEnglish);
    size_t most = 0;
    Look(0, [&](CDialogRobot& robot) {
        for (int i = 0; i < static_cast<int>(robot.Items(kList).size()); ++i)
        {
            robot.Select(kList, i);
            most = std::max(most, SplitLines(static_cast<LPCSTR>(robot.Text(kExplanation))).size());
        }
    });
    EXPECT_GT(most, 1u);
}

// Every width, one pixel after the other, puts some word just inside or just outside a line.
TEST_F(CPosSelectExplanationTest, IsBrokenToThePixel)
{
    const CLanguage own(kModule);
    const std::string text = LoadText(10001).value_or("");
    Look(0, [&](CDialogRobot& robot) {
        const HWND window = robot.Dialog()->GetDlgItem(kExplanation)->m_hWnd;
        const CControlRuler ruler(window);
        RECT rect;
        ::GetWindowRect(window, &rect);
        for (int narrower = 1; narrower <= 100; ++narrower)
        {
            ::SetWindowPos(window, nullptr, 0, 0, rect.right - rect.left - narrower, rect.bottom - rect.top,
                           SWP_NOMOVE | SWP_NOZORDER);
            robot.Select(kList, 0);
            EXPECT_EQ(SplitLines(static_cast<LPCSTR>(robot.Text(kExplanation))), WrappedParagraphs(text, ruler))
                << ruler.Available() << " pixels";
        }
    });
}

TEST_F(CPosSelectExplanationTest, KeepsTheLineBreaksOfTheText)
{
    UseSelectionOnly();
    Look(0, [](CDialogRobot& robot) { EXPECT_EQ(robot.Text(kExplanation), "Erste Zeile\r\nzweite Zeile"); });
    Look(1, [](CDialogRobot& robot) {
        EXPECT_EQ(robot.Text(kExplanation), "Ein Ziel wird angefahren.");
        robot.Select(kList, 1);
        EXPECT_EQ(robot.Text(kExplanation), "") << "a text that does not exist";
    });
}

TEST_F(CPosSelectExplanationTest, IsEmptyWithoutItems)
{
    Support({});
    Look(0, [](CDialogRobot& robot) { EXPECT_EQ(robot.Text(kExplanation), ""); });
}

TEST_F(CPosSelectExplanationTest, IsBlueOnWhite)
{
    Look(0, [](CDialogRobot& robot) {
        const HWND dialog = robot.Dialog()->m_hWnd;
        const auto ask = [&](UINT id, HDC dc) {
            ::SetTextColor(dc, RGB(1, 2, 3));
            return reinterpret_cast<HGDIOBJ>(::SendMessageA(dialog, WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc),
                                                            reinterpret_cast<LPARAM>(::GetDlgItem(dialog, id))));
        };
        const HDC dc = ::GetDC(dialog);

        const HGDIOBJ brush = ask(kExplanation, dc);
        EXPECT_EQ(::GetTextColor(dc), static_cast<COLORREF>(RGB(0, 0, 255)));
        EXPECT_EQ(::GetBkColor(dc), static_cast<COLORREF>(RGB(255, 255, 255)));
        LOGBRUSH description = {};
        ASSERT_NE(::GetObjectA(brush, sizeof description, &description), 0);
        EXPECT_EQ(description.lbStyle, static_cast<UINT>(BS_SOLID));
        EXPECT_EQ(description.lbColor, static_cast<COLORREF>(RGB(255, 255, 255)));
        EXPECT_EQ(ask(kExplanation, dc), brush) << "one brush serves every time";

        // The other controls are drawn as ever.
        for (const UINT id : {kListLabel, kComments})
        {
            EXPECT_NE(ask(id, dc), brush);
            EXPECT_NE(::GetTextColor(dc), static_cast<COLORREF>(RGB(0, 0, 255)));
        }
        ::ReleaseDC(dialog, dc);
    });
}
