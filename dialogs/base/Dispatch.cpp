// The operations of the wizard object that open dialogs, and the way from a choice to its dialog.
#include "core/FunWizard.h"
#include "core/Memory.h"
#include "dialogs/base/PosSelectDlg.h"
#include "dialogs/posunit/EPointDlg.h"
#include "dialogs/posunit/PosCtrlCodeDlg.h"
#include "dialogs/process/PidDlg.h"
#include "dialogs/pulse/Spd1Dlg.h"
#include "dialogs/pulse/SpdhDlg.h"
#include "resources/resource.h"

namespace
{

constexpr int kPid = 355;
constexpr int kScreenDisplay = 180;
constexpr int kScaling[] = {282, 283, 354};

/// The forms of E point control among the operations of the unit.
EEPointForm EPointForm(int variant)
{
    return variant == kUnitPPointStart      ? kPPointStartForm
           : variant == kUnitJogPositioning ? kJogPositioningForm
                                            : kEPointForm;
}

/// Runs the dialog of a choice, which has the template: its result, or -1 when there is no such dialog.
INT_PTR RunInstructionDialog(UINT templateId, int variant, CFunWizard* wizard, CWnd* parent)
{
    switch (templateId)
    {
    case IDD_SPD1_TRAPEZOIDAL:
    case IDD_SPD1_HOME:
        return CSpd1Dlg(wizard, templateId == IDD_SPD1_HOME, parent).DoModal();
    case IDD_SPDH_TRAPEZOIDAL:
    case IDD_SPDH_HOME:
        return CSpdhDlg(wizard, templateId == IDD_SPDH_HOME, parent).DoModal();
    case IDD_EPOINT:
        return CEPointDlg(wizard, EPointForm(variant), parent).DoModal();
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
    return RunOperation(IDCANCEL, [=, this] {
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
            const UINT templateId = DialogTemplate(wizardMode, m_plcType, choice);
            if (RunInstructionDialog(templateId, choice.variant, this, parent) != IDOK)
                continue;
            RecordWizard(mode, choice.instruction, choice.variant);
            DeleteDlgFont();
            return IDOK;
        }
        return IDCANCEL; // The font stays until the next wizard.
    });
}

// The frame of the wizards that open without a selection. They become the last wizard even when they are cancelled.
int CFunWizard::OpenDirectly(int instruction, CDialog* dialog, CWnd* parent)
{
    CreateDlgFont(parent);
    EnterWizard(instruction, 0);
    const INT_PTR result = dialog != nullptr ? dialog->DoModal() : -1;
    DeleteDlgFont();
    RecordWizard(0, instruction, 0);
    return result == IDOK ? IDOK : IDCANCEL;
}

int CFunWizard::DoOpenPIDDlg(int workArea, CWnd* parent)
{
    return RunOperation(IDCANCEL, [=, this] {
        CPidDlg dialog(this, workArea, parent);
        return OpenDirectly(kPid, &dialog, parent);
    });
}

int CFunWizard::DoOpenSCRDlg(ULONGLONG*, CWnd* parent)
{
    return RunOperation(IDCANCEL, [=, this] { return OpenDirectly(kScreenDisplay, nullptr, parent); });
}

int CFunWizard::DoOpenSCALDlg(ULONGLONG*, int kind, CWnd* parent)
{
    const int instruction = kScaling[kind == 0 || kind == 1 ? kind : 2];
    return RunOperation(IDCANCEL, [=, this] { return OpenDirectly(instruction, nullptr, parent); });
}

int CFunWizard::DoInputPosCtrlDlg(ULONG& code, CWnd* parent)
{
    return RunOperation(IDCANCEL, [&, this] {
        CreateDlgFont(parent);
        CPosCtrlCodeDlg dialog(this, parent);
        dialog.SetCode(code);
        const INT_PTR result = dialog.DoModal();
        if (result == IDOK)
            code = dialog.GetCode();
        DeleteDlgFont();
        return static_cast<int>(result);
    });
}
