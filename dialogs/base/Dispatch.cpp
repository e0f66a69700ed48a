// The operations of the wizard object that open dialogs, and the way from a choice to its dialog.
#include "core/FunWizard.h"
#include "core/Memory.h"
#include "core/OpenWizard.h"
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

// Runs dialogs of the object, with the font created. The object may be destroyed meanwhile: `run` works with the
// pointer that it is given, which is redirected then.
template <typename TRun>
int CFunWizard::OpenDialogs(CWnd* parent, TRun run)
{
    if (COpenWizard::IsOpen(this))
        return IDCANCEL;
    return RunOperation(IDCANCEL, [=, wizard = this]() mutable {
        wizard->CreateDlgFont(parent);
        const COpenWizard open(wizard);
        const int result = run(wizard, open);
        return open.IsOrphaned() ? IDCANCEL : result;
    });
}

int CFunWizard::DoOpenPosDlg(unsigned char mode, unsigned char axisFlag, CWnd* parent)
{
    return OpenDialogs(parent, [=](CFunWizard*& wizard, const COpenWizard& open) -> int {
        const EWizardMode wizardMode = mode == 0 ? kPulseInstructions : kUnitOperations;
        CPosSelectDlg selection(wizard, wizardMode, parent);
        if (wizardMode == kUnitOperations)
            selection.SetChoice({wizard->m_lastInstruction, wizard->m_lastVariant});
        while (!open.IsOrphaned() && selection.DoModal() == IDOK)
        {
            const SWizardChoice choice = selection.GetChoice();
            wizard->EnterWizard(choice.instruction, choice.variant);
            wizard->m_axisType = axisFlag;
            const UINT templateId = DialogTemplate(wizardMode, wizard->m_plcType, choice);
            if (RunInstructionDialog(templateId, choice.variant, wizard, parent) != IDOK)
                continue;
            wizard->RecordWizard(mode, choice.instruction, choice.variant);
            wizard->FreeFont();
            return IDOK;
        }
        return IDCANCEL; // The font stays until the next wizard.
    });
}

// The frame of the wizards that open without a selection. They become the last wizard even when they are cancelled.
template <typename TRun>
int CFunWizard::OpenDirectly(int instruction, CWnd* parent, TRun run)
{
    return OpenDialogs(parent, [=](CFunWizard*& wizard, const COpenWizard&) -> int {
        wizard->EnterWizard(instruction, 0);
        const INT_PTR result = run(wizard);
        wizard->FreeFont();
        wizard->RecordWizard(0, instruction, 0);
        return result == IDOK ? IDOK : IDCANCEL;
    });
}

int CFunWizard::DoOpenPIDDlg(int workArea, CWnd* parent)
{
    return OpenDirectly(kPid, parent, [=](CFunWizard* wizard) { return CPidDlg(wizard, workArea, parent).DoModal(); });
}

int CFunWizard::DoOpenSCRDlg(ULONGLONG*, CWnd* parent)
{
    return OpenDirectly(kScreenDisplay, parent, [](CFunWizard*) { return IDCANCEL; });
}

int CFunWizard::DoOpenSCALDlg(ULONGLONG*, int kind, CWnd* parent)
{
    return OpenDirectly(kScaling[kind == 0 || kind == 1 ? kind : 2], parent, [](CFunWizard*) { return IDCANCEL; });
}

int CFunWizard::DoInputPosCtrlDlg(ULONG& code, CWnd* parent)
{
    return OpenDialogs(parent, [&code, parent](CFunWizard*& wizard, const COpenWizard&) {
        CPosCtrlCodeDlg dialog(wizard, parent);
        dialog.SetCode(code);
        const INT_PTR result = dialog.DoModal();
        if (result == IDOK)
            code = dialog.GetCode();
        wizard->FreeFont();
        return static_cast<int>(result);
    });
}
