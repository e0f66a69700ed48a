#include "dialogs/channel/PwmhChDlg.h"

#include "dialogs/channel/ChannelRows.h"

namespace
{

constexpr SWzdChoice kPwmFrequencies[] = {
    {IDS_B_PWMH_6_1_HZ, 3},    {IDS_B_PWMH_8_1_HZ, 4},    {IDS_B_PWMH_9_8_HZ, 5},   {IDS_B_PWMH_19_5_HZ, 6},
    {IDS_B_PWMH_48_8_HZ, 7},   {IDS_B_PWMH_97_7_HZ, 8},   {IDS_B_PWMH_201_6_HZ, 9}, {IDS_B_PWMH_403_2_HZ, 10},
    {IDS_B_PWMH_500_0_HZ, 11}, {IDS_B_PWMH_694_4_HZ, 12}, {IDS_B_PWMH_1_0_KHZ, 13}, {IDS_B_PWMH_1_3_KHZ, 14},
    {IDS_B_PWMH_1_6_KHZ, 15},  {IDS_B_PWMH_2_1_KHZ, 16},  {IDS_B_PWMH_3_1_KHZ, 17}, {IDS_B_PWMH_6_3_KHZ, 18},
};

} // namespace

CPwmhChDlg::CPwmhChDlg(CFunWizard* wizard, CWnd* parent) : CWzdDlgBase(wizard, IDD_B_PWMH, parent) {}

// clang-format off
void CPwmhChDlg::DoFieldExchange(CWzdExchange* wx)
{
    WDX_Contact    (wx);
    WDX_TableStart (wx, {.edit = IDC_PWMH_START, .format = kUnsigned, .rangeLabel = IDC_PWMH_START_RANGE});
    WDX_Channel    (wx, IDC_PWMH_CHANNEL, kInstructionPwmh);
    WDX_ControlCode(wx, kOneRegister, kDecimalConstant);
    WDX_Code       (wx, {.combo = IDC_PWMH_FREQUENCY, .choices = kPwmFrequencies, .bits = kWholeWord});
    WDX_Number     (wx, {.edit = IDC_PWMH_DUTY, .entry = {1}, .format = kChannelDuty, .limit = 4, .range = {0, 999},
                         .message = IDS_ERR_DUTY});
    WDX_Label      (wx, IDC_PWMH_DUTY_RANGE, IDS_RANGE_TENTHS, {0.0, 99.9});
}
// clang-format on
