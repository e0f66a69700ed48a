#include "dialogs/channel/PwmhFrequencyDlg.h"

#include "dialogs/channel/ChannelRows.h"

CPwmhFrequencyDlg::CPwmhFrequencyDlg(CFunWizard* wizard, CWnd* parent) : CWzdDlgBase(wizard, IDD_C_PWMH, parent) {}

// In place of the control code, the code of a frequency, stands the frequency itself in two registers.
// clang-format off
void CPwmhFrequencyDlg::DoFieldExchange(CWzdExchange* wx)
{
    WDX_Contact   (wx);
    WDX_TableStart(wx, {.edit = IDC_PWMH_START, .format = kUnsigned, .rangeLabel = IDC_PWMH_START_RANGE});
    WDX_Channel   (wx, IDC_PWMH_CHANNEL, kInstructionPwmh);
    WDX_Number    (wx, {.edit = IDC_C_PWMH_FREQUENCY, .entry = {0, kTwoRegisters}, .limit = 6, .range = {1, 100000},
                        .message = IDS_ERR_FREQUENCY, .rangeLabel = IDC_C_PWMH_FREQUENCY_RANGE});
    WDX_Number    (wx, {.edit = IDC_PWMH_DUTY, .entry = {2}, .format = kChannelDuty, .limit = 4, .range = {0, 999},
                        .message = IDS_ERR_DUTY});
    WDX_Label     (wx, IDC_C_PWMH_DUTY_RANGE, IDS_RANGE_TENTHS, {0.0, 99.9});
}
// clang-format on
