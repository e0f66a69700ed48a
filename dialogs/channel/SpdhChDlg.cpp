#include "dialogs/channel/SpdhChDlg.h"

#include "dialogs/channel/ChannelRows.h"

CSpdhChDlg::CSpdhChDlg(CFunWizard* wizard, bool homeReturn, CWnd* parent)
    : CWzdDlgBase(wizard, homeReturn ? IDD_B_SPDH_HOME : IDD_B_SPDH_TRAPEZOIDAL, parent), m_homeReturn(homeReturn)
{
}

// clang-format off
void CSpdhChDlg::DoFieldExchange(CWzdExchange* wx)
{
    WDX_Contact     (wx);
    WDX_TableStart  (wx, {.edit = IDC_SPDH_START, .rangeLabel = IDC_SPDH_START_RANGE});
    WDX_Channel     (wx, IDC_SPDH_CHANNEL, kInstructionSpdh);

    WDX_ControlCode (wx, kTwoRegisters);
    WDX_Code        (wx, {.combo = IDC_SPDH_DUTY, .choices = kDuties, .bits = {12, 4}});
    WDX_Code        (wx, IDC_SPDH_MODE, {0, 8}, m_homeReturn, kMoveModes, kChannelHomeModes);

    WDX_ChannelSpeed(wx, IDC_SPDH_INITIAL, 2, IDS_ERR_INITIAL_SPEED);
    WDX_ChannelSpeed(wx, IDC_SPDH_MAXIMUM, 4, IDS_ERR_TARGET_SPEED);
    WDX_ChannelTimes(wx, IDC_SPDH_TIME, IDC_SPDH_DECELERATION, 6);
    if (m_homeReturn)
    {
        WDX_ChannelSpeed(wx, IDC_SPDH_CREEP, 10, IDS_ERR_B_CREEP_SPEED);
        WDX_CounterClear(wx, IDC_SPDH_CLEAR, 12, IDS_ERR_B_COUNTER_CLEAR_SIGNAL);
    }
    else
        WDX_Number  (wx, {.edit = IDC_SPDH_TARGET, .entry = {10, kTwoRegisters}, .limit = 11, .range = kAnyDoubleWord,
                          .message = IDS_ERR_TARGET_VALUE});
}
// clang-format on
