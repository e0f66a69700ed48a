#include "dialogs/posunit/PPointDlg.h"

#include "dialogs/posunit/UnitRows.h"

CPPointDlg::CPPointDlg(CFunWizard* wizard, CWnd* parent) : CWzdDlgBase(wizard, IDD_PPOINT, parent) {}

// clang-format off
void CPPointDlg::DoFieldExchange(CWzdExchange* wx)
{
    constexpr int kBehindStartupSpeed = 4; // The unit keeps the control code and the startup speed of the start point.

    WDX_Contact         (wx, IDS_ERR_UNIT_CONTACT);
    WDX_UnitAxis        (wx, IDC_PPOINT_SLOT, IDC_PPOINT_AXIS, 6, kBehindStartupSpeed);
    WDX_TableStart      (wx, {.edit = IDC_PPOINT_START, .position = kTableOperand, .rangeLabel = IDC_PPOINT_START_RANGE});

    WDX_TargetSpeed     (wx, IDC_PPOINT_TARGET_SPEED, 0);
    WDX_AccelerationTime(wx, IDC_PPOINT_TIME,         2);
    WDX_Position        (wx, IDC_PPOINT_POSITION,     4);
}
// clang-format on
