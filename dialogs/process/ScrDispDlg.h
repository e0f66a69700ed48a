// The screen display instruction: its operands, and the control data of the seven-segment screen.
#pragma once

#include "dialogs/base/WzdDlgBase.h"
#include "dialogs/process/ScreenField.h"

class CScrDispDlg : public CWzdDlgBase
{
public:
    /// `permitted` holds the devices that are permitted for each operand, in their order, the first of which is a
    /// constant; it lives as long as the dialog. Null permits all.
    CScrDispDlg(CFunWizard* wizard, const ULONGLONG* permitted, CWnd* parent);

    void DoFieldExchange(CWzdExchange* wx) override;

    /// The marks stay pressed; the lines share their controls.
    std::optional<bool> IsPressed(UINT id) const override;
    bool TurnsPage(UINT id) const override { return id == IDC_SCREEN_UPSIDE_LINE || id == IDC_SCREEN_DOWNSIDE_LINE; }

protected:
    int HelpTopic() const override;
    [[nodiscard]] bool Open() override;
    [[nodiscard]] bool Confirm() override;

    void OnTextChanged() { OnChanged(IDC_SCREEN_TEXT); }
    afx_msg void OnDrawItem(int id, LPDRAWITEMSTRUCT item);

    DECLARE_MESSAGE_MAP()

private:
    const ULONGLONG* m_permitted;
    SScreenInput m_input;
};
