#include "tests/capi/FilledSession.h"

#include "afx/DialogRobot.h"
#include "dialogs/grid/GridView.h"
#include "host/Utf8.h"
#include "resources/resource.h"
#include "tests/core/FunWizardTest.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>

namespace
{

std::string Utf8(const CString& text) { return ToUtf8(text, AfxGetTextPage()); }

/// Takes down what fields the steps touch, and what they hold afterwards.
class CWatcher : public CSessionWatcher
{
public:
    explicit CWatcher(const SSession& session) : m_session(session) {}

    std::vector<SSeenRun> m_runs;

    void SeeDialog(CDialogRobot& robot) override;
    void SeeRun(const CFunWizard& wizard, int result, ULONG controlCode) override;

private:
    struct SDialog
    {
        size_t index; ///< in the run
        size_t steps = 0;
        size_t boxes = 0;
        CTextEntries turned; ///< entries of pages that were left
        std::vector<unsigned> touched;
        CTextEntries shown; ///< what the touched fields hold
    };

    void SeeStep(CDialogRobot& robot, SDialog& dialog, const SStep& step);
    void Touch(SDialog& dialog, unsigned control);
    static std::optional<STextEntry> Shown(CDialogRobot& robot, unsigned control);
    static SPressedOk Press(const SDialog& dialog);

    const SSession& m_session;
    std::map<HWND, SDialog> m_dialogs; ///< of the run
    size_t m_dialogCount = 0;
    SSeenRun m_run;
};

void CWatcher::SeeDialog(CDialogRobot& robot)
{
    if (robot.IsMessageBox() || robot.Dialog() == nullptr)
        return;
    const HWND window = robot.Dialog()->m_hWnd;
    if (robot.IsOpen() && !m_dialogs.contains(window))
    {
        m_dialogs[window] = {m_dialogCount++, 0, robot.MessageBoxes().size(), {}, {}, {}};
        return;
    }
    SDialog& dialog = m_dialogs.at(window);
    const auto& steps = m_session.runs[m_runs.size()].dialogs[dialog.index];
    SeeStep(robot, dialog, steps[dialog.steps++]);
    if (!robot.IsOpen())
        m_dialogs.erase(window); // its place may be taken by another one
}

void CWatcher::SeeStep(CDialogRobot& robot, SDialog& dialog, const SStep& step)
{
    // The dialog above that of the control code is not filled: its code is passed.
    const bool isForm = m_session.runs[m_runs.size()].wizard != EWizard::ControlCode || dialog.index == 0;
    const bool isOk = isForm && ((step.verb == EVerb::Click && step.control == IDOK) ||
                                 (step.verb == EVerb::Press && step.text == "Enter" && !robot.IsOpen()));
    if (isOk)
        m_run.presses.push_back(Press(dialog));
    if (!robot.IsOpen())
        return;
    if (isOk && robot.MessageBoxes().size() > dialog.boxes)
    {
        SPressedOk& press = m_run.presses.back();
        press.message = Utf8(robot.MessageBoxes().back().text);
        press.control = robot.FocusId();
        auto* const shown = dynamic_cast<CWzdDialog*>(robot.Dialog());
        CGridView* const table = shown != nullptr ? shown->Table() : nullptr;
        if (table != nullptr && press.control == table->Controls().editor)
        {
            press.control = IDC_GRID_CELLS;
            press.row = table->Model().Current().row + 1;
            press.column = table->Model().Current().column + 1;
        }
    }
    dialog.boxes = robot.MessageBoxes().size();

    const auto* const shown = dynamic_cast<CWzdDialog*>(robot.Dialog());
    if (step.verb == EVerb::Click && shown != nullptr && shown->TurnsPage(step.control))
    {
        dialog.turned.insert(dialog.turned.end(), dialog.shown.begin(), dialog.shown.end());
        dialog.turned.emplace_back(static_cast<int>(step.control), "1");
        dialog.touched.clear();
        dialog.shown.clear();
        return;
    }
    const bool inTable = step.verb == EVerb::Paste || step.verb == EVerb::Press || step.verb == EVerb::DoubleClick;
    Touch(dialog, inTable ? static_cast<unsigned>(IDC_GRID_CELLS) : step.control);
    dialog.shown.clear();
    for (const unsigned control : dialog.touched)
        if (const auto entry = Shown(robot, control))
            dialog.shown.push_back(*entry);
}

void CWatcher::Touch(SDialog& dialog, unsigned control)
{
    std::erase(dialog.touched, control);
    dialog.touched.push_back(control);
}

// The dialog keeps rows behind the number of points, but they do not count; as entries they would be refused.
CString CountingRows(const CGridModel& table)
{
    CString rows;
    for (int row = 0; row < table.UsedRows() && table.IsWanted(row); ++row)
        for (int column = 0; column < table.Columns(); ++column)
            rows += table.Text({row, column}) + CString(column + 1 < table.Columns() ? "\t" : "\r\n");
    return rows;
}

// Nothing for what is no field: push buttons, the editor of a table.
std::optional<STextEntry> CWatcher::Shown(CDialogRobot& robot, unsigned control)
{
    auto* const dialog = dynamic_cast<CWzdDialog*>(robot.Dialog());
    if (dialog == nullptr || control == 0 || !robot.Exists(control) || !robot.Enabled(control) ||
        !robot.Visible(control))
        return std::nullopt;
    const int id = static_cast<int>(control);
    CGridView* const table = dialog->Table();
    if (table != nullptr && control == table->Controls().editor)
        return Shown(robot, IDC_GRID_CELLS);
    if (control == IDC_GRID_CELLS)
        return STextEntry(id, Utf8(CountingRows(table->Model())));
    for (const SRobotControl& one : robot.Controls())
    {
        if (one.id != control)
            continue;
        if (one.className == "Edit")
            return (one.style & ES_READONLY) == 0 ? std::optional(STextEntry(id, Utf8(robot.Text(control))))
                                                  : std::nullopt;
        if (one.className == "ComboBox")
            return STextEntry(id, Utf8(robot.Text(control)));
        if (const auto pressed = dialog->IsPressed(control))
            return STextEntry(id, *pressed ? "1" : "0");
        const DWORD type = one.style & BS_TYPEMASK;
        const bool isRadio = type == BS_RADIOBUTTON || type == BS_AUTORADIOBUTTON;
        if (type == BS_CHECKBOX || type == BS_AUTOCHECKBOX || (isRadio && robot.Checked(control)))
            return STextEntry(id, robot.Checked(control) ? "1" : "0");
    }
    return std::nullopt;
}

SPressedOk CWatcher::Press(const SDialog& dialog)
{
    SPressedOk press;
    press.entries = dialog.turned;
    press.entries.insert(press.entries.end(), dialog.shown.begin(), dialog.shown.end());
    // The table is entered once, as it is now.
    return press;
}

void CWatcher::SeeRun(const CFunWizard& wizard, int result, ULONG controlCode)
{
    m_run.result = result;
    m_run.results = ReadResults(wizard);
    m_run.instruction = SFunWizardTest::LastInstruction(wizard);
    m_run.variant = SFunWizardTest::LastVariant(wizard);
    m_run.axisFlag = wizard.IsAxisType() ? 0 : 1;
    m_run.commentsOn = wizard.IsCmtRec();
    m_run.onlyDataTable = wizard.IsOnlyDataTable();
    m_run.controlCode = static_cast<unsigned>(controlCode);
    m_runs.push_back(m_run);
    m_run = {};
    m_dialogs.clear();
    m_dialogCount = 0;
}

} // namespace

std::vector<SSeenRun> SeeRuns(const SSession& session)
{
    std::ostringstream report;
    CWatcher watcher(session);
    if (!CSessionPlayer(report, "", &watcher).Play(session))
        throw std::runtime_error(report.str());
    return watcher.m_runs;
}

PexloForm FormOf(const SRun& run, const SSeenRun& seen)
{
    auto form = FormOf(0);
    form.axisFlag = seen.axisFlag;
    form.workArea = run.workArea;
    if (run.permitted)
    {
        form.restricted = 1;
        for (size_t i = 0; i < run.permitted->size(); ++i)
            form.permitted[i] = static_cast<unsigned>((*run.permitted)[i]);
    }
    switch (run.wizard)
    {
    case EWizard::ControlCode:
        form.instruction = PEXLO_FORM_CONTROL_CODE;
        form.controlCode = run.controlCode;
        break;
    case EWizard::Scaling:
        form.instruction = run.instruction;
        break;
    case EWizard::Pulse:
    case EWizard::Unit:
        form.instruction = seen.instruction;
        form.variant = seen.variant;
        break;
    case EWizard::Pid:
        form.instruction = 355;
        break;
    case EWizard::Screen:
        form.instruction = 180;
        break;
    }
    return form;
}
