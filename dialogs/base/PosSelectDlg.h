// The selection dialog: the user picks the instruction or positioning-unit operation to fill in.
#pragma once

#include "dialogs/base/Catalogue.h"
#include "dialogs/base/WzdDialog.h"

class CPosSelectDlg : public CWzdDialog
{
public:
    /// `wizard` is not owned and outlives the dialog.
    CPosSelectDlg(CFunWizard* wizard, EWizardMode mode, CWnd* parent);

    /// The choice that is selected when the dialog opens, and after OK the one the user made.
    void SetChoice(const SWizardChoice& choice) { m_choice = choice; }
    const SWizardChoice& GetChoice() const { return m_choice; }

    INT_PTR DoModal() override;
    EWizardMode Mode() const { return m_mode; }
    /// Whether the list has an item: one of this PLC's, and supported by the host.
    bool Offers(const SCatalogueItem& item) const;

protected:
    int HelpTopic() const override;
    bool Open() override;
    bool Confirm() override;

    void OnSelectionChanged();
    void OnDoubleClick();
    HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT type);

    DECLARE_MESSAGE_MAP()

private:
    [[nodiscard]] bool FillList();
    void SetTabStops();
    void ShowExplanation();
    bool GetSelected(SWizardChoice& choice) const;

    EWizardMode m_mode;
    CBrush m_white;
    SWizardChoice m_choice;
};
