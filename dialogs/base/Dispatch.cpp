// The operations of the wizard object that open dialogs.
#include "core/FunWizard.h"
#include "core/Memory.h"
#include "core/OpenWizard.h"
#include "dialogs/base/DialogTable.h"
#include "dialogs/base/PosSelectDlg.h"
#include "dialogs/posunit/PosCtrlCodeDlg.h"
#include "dialogs/process/PidDlg.h"
#include "dialogs/process/ScalDlg.h"
#include "dialogs/process/ScrDispDlg.h"

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
            if (RunDialog(templateId, choice.variant, wizard, parent) != IDOK)
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
    return OpenDirectly(kInstructionPid, parent,
                        [=](CFunWizard* wizard) { return CPidDlg(wizard, workArea, parent).DoModal(); });
}

int CFunWizard::DoOpenSCRDlg(ULONGLONG* permitted, CWnd* parent)
{
    return OpenDirectly(kInstructionScreen, parent,
                        [=](CFunWizard* wizard) { return CScrDispDlg(wizard, permitted, parent).DoModal(); });
}

int CFunWizard::DoOpenSCALDlg(ULONGLONG* permitted, int kind, CWnd* parent)
{
    return OpenDirectly(CScalDlg::InstructionOf(kind), parent,
                        [=](CFunWizard* wizard) { return CScalDlg(wizard, permitted, kind, parent).DoModal(); });
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
