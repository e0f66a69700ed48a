// The operations of the wizard object that open dialogs, and the way from a choice to its dialog.
#include "core/FunWizard.h"
#include "core/Memory.h"
#include "dialogs/base/PosSelectDlg.h"
#include "dialogs/pulse/Spd1Dlg.h"
#include "resources/resource.h"

namespace
{

constexpr int kPid = 355;
constexpr int kScreenDisplay = 180;
constexpr int kScaling[] = {282, 283, 354};

/// Runs the dialog of a template: its result, or -1 when there is no such dialog.
INT_PTR RunInstructionDialog(UINT templateId, CFunWizard* wizard, CWnd* parent)
{
    switch (templateId)
    {
    case IDD_SPD1_TRAPEZOIDAL:
    case IDD_SPD1_HOME:
        return CSpd1Dlg(wizard, templateId == IDD_SPD1_HOME, parent).DoModal();
    default:
        return -1;
    }
}

} // namespace

void CFunWizard::EnterWizard(int instruction, int variant)
{
    if (instruction != m_lastInstruction || variant != m_lastVariant)
        ForgetResults();
}

int CFunWizard::DoOpenPosDlg(unsigned char mode, unsigned char axisFlag, CWnd* parent)
{
    const EWizardMode wizardMode = mode == 0 ? kPulseInstructions : kUnitOperations;
    CreateDlgFont(parent);
    CPosSelectDlg selection(this, wizardMode, parent);
    if (wizardMode == kUnitOperations)
        selection.SetChoice({m_lastInstruction, m_lastVariant});
    while (selection.DoModal() == IDOK)
    {
        const SWizardChoice choice = selection.GetChoice();
        EnterWizard(choice.instruction, choice.variant);
        m_axisType = axisFlag;
        if (RunInstructionDialog(DialogTemplate(wizardMode, m_plcType, choice), this, parent) != IDOK)
            continue;
        RecordWizard(mode, choice.instruction, choice.variant);
        DeleteDlgFont();
        return IDOK;
    }
    return IDCANCEL; // The font stays until the next wizard.
}

// The frame of the wizards that open without a selection. They become the last wizard even when they are cancelled.
int CFunWizard::OpenDirectly(int instruction, unsigned int templateId, CWnd* parent)
{
    CreateDlgFont(parent);
    EnterWizard(instruction, 0);
    const INT_PTR result = RunInstructionDialog(templateId, this, parent);
    DeleteDlgFont();
    RecordWizard(0, instruction, 0);
    return result == IDOK ? IDOK : IDCANCEL;
}

int CFunWizard::DoOpenPIDDlg(int, CWnd* parent) { return OpenDirectly(kPid, IDD_PID, parent); }

int CFunWizard::DoOpenSCRDlg(ULONGLONG*, CWnd* parent) { return OpenDirectly(kScreenDisplay, IDD_SCREEN, parent); }

int CFunWizard::DoOpenSCALDlg(ULONGLONG*, int kind, CWnd* parent)
{
    return OpenDirectly(kScaling[kind == 0 || kind == 1 ? kind : 2], IDD_SCALING, parent);
}

int CFunWizard::DoInputPosCtrlDlg(ULONG&, CWnd* parent)
{
    CreateDlgFont(parent);
    const INT_PTR result = RunInstructionDialog(IDD_CONTROL_CODE, this, parent);
    DeleteDlgFont();
    return static_cast<int>(result);
}
