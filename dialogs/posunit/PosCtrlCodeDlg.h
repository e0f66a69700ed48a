// The control code of a positioning unit's axis, field by field.
#pragma once

#include "dialogs/base/WzdDialog.h"

class CPosCtrlCodeDlg : public CWzdDialog
{
public:
    CPosCtrlCodeDlg(CFunWizard* wizard, CWnd* parent);

    /// The code that the dialog opens with, and after OK the one that the user composed: bits that belong to no field
    /// are 0 then.
    void SetCode(DWORD code) { m_code = code; }
    DWORD GetCode() const { return m_code; }

protected:
    int HelpTopic() const override;
    bool Open() override;
    bool Confirm() override;

    void OnSelectionChanged(UINT id);
    void OnDirectInput();

    DECLARE_MESSAGE_MAP()

private:
    [[nodiscard]] bool FillCombos();
    DWORD ComposedCode() const;
    DWORD ShownCode() const;
    void ShowCode();

    DWORD m_code = 0;
};
