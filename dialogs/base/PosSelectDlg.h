// The selection dialog: the user picks the instruction or positioning-unit operation to fill in.
#pragma once

#include "dialogs/base/Catalogue.h"

class CFunWizard;

class CPosSelectDlg : public CDialog
{
public:
    /// `wizard` is not owned and outlives the dialog.
    CPosSelectDlg(CFunWizard* wizard, EWizardMode mode, CWnd* parent);

    /// 1 on OK, 2 on Cancel or when the list could not be filled.
    INT_PTR DoModal() override;

    /// The choice that is selected when the dialog opens, and after OK the one the user made.
    void SetChoice(const SWizardChoice& choice) { m_choice = choice; }
    const SWizardChoice& GetChoice() const { return m_choice; }

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;
    void OnSelectionChanged();
    void OnHelpTopic();
    BOOL OnHelpInfo(HELPINFO* info);
    HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT type);

    DECLARE_MESSAGE_MAP()

private:
    [[nodiscard]] bool Open();
    [[nodiscard]] bool FillList();
    void SetTabStops();
    void ShowExplanation();
    bool GetSelected(SWizardChoice& choice) const;

    CFunWizard* m_wizard;
    EWizardMode m_mode;
    CBrush m_white;
    SWizardChoice m_choice;
};
