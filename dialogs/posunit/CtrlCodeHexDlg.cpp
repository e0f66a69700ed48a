#include "dialogs/posunit/CtrlCodeHexDlg.h"

#include "core/Values.h"
#include "resources/resource.h"

namespace
{

constexpr int kDigits = 8;

} // namespace

CCtrlCodeHexDlg::CCtrlCodeHexDlg(CFunWizard* wizard, CWnd* parent) : CWzdDialog(wizard, IDD_CONTROL_CODE_HEX, parent) {}

bool CCtrlCodeHexDlg::Open()
{
    SetItemText(IDC_CTRL_HEX, FormatHex32(m_code));
    LimitText(IDC_CTRL_HEX, kDigits);
    return true;
}

bool CCtrlCodeHexDlg::Confirm()
{
    BOOL ok = FALSE;
    const DWORD code = ParseHex32(ItemText(IDC_CTRL_HEX), &ok);
    if (!ok)
        return Refuse(IDC_CTRL_HEX, IDS_ERR_HEXADECIMAL);
    m_code = code;
    return true;
}
