// The control code of a positioning unit's axis as one hexadecimal number.
#pragma once

#include "dialogs/base/WzdDialog.h"

class CCtrlCodeHexDlg : public CWzdDialog
{
public:
    CCtrlCodeHexDlg(CFunWizard* wizard, CWnd* parent);

    /// The code that the dialog opens with, and after OK the one that the user entered.
    void SetCode(DWORD code) { m_code = code; }
    DWORD GetCode() const { return m_code; }

protected:
    bool Open() override;
    bool Confirm() override;

private:
    DWORD m_code = 0;
};
