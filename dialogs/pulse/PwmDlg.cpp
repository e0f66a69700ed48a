#include "dialogs/pulse/PwmDlg.h"

#include "dialogs/pulse/DutyFormat.h"
#include "dialogs/pulse/PulseRows.h"

namespace
{

constexpr SWzdChoice kPwmFrequencies[] = {
    {IDS_PWM_1_KHZ, 0x11},  {IDS_PWM_714_HZ, 0x12}, {IDS_PWM_500_HZ, 0x13},  {IDS_PWM_400_HZ, 0x14},
    {IDS_PWM_200_HZ, 0x15}, {IDS_PWM_100_HZ, 0x16}, {IDS_PWM_38_HZ, 0x00},   {IDS_PWM_19_HZ, 0x01},
    {IDS_PWM_9_5_HZ, 0x02}, {IDS_PWM_4_8_HZ, 0x03}, {IDS_PWM_2_4_HZ, 0x04},  {IDS_PWM_1_2_HZ, 0x05},
    {IDS_PWM_0_6_HZ, 0x06}, {IDS_PWM_0_3_HZ, 0x07}, {IDS_PWM_0_15_HZ, 0x08},
};

} // namespace

CPwmDlg::CPwmDlg(CFunWizard* wizard, CWnd* parent) : CWzdDlgBase(wizard, IDD_PWM, parent) {}

// clang-format off
void CPwmDlg::DoFieldExchange(CWzdExchange* wx)
{
    WDX_Contact    (wx);
    WDX_TableStart (wx, {.edit = IDC_PWM_START, .rangeLabel = IDC_PWM_START_RANGE});
    WDX_Output     (wx, IDC_PWM_OUTPUT, kBuiltInOutputs);

    WDX_ControlCode(wx, kOneRegister);
    WDX_Code       (wx, {.combo = IDC_PWM_FREQUENCY, .choices = kPwmFrequencies, .bits = kWholeWord});

    WDX_Number(wx, {.edit = IDC_PWM_DUTY, .entry = {1}, .format = kDutyInTenths, .limit = 4, .range = {1, 999},
                    .message = IDS_ERR_DUTY});
}
// clang-format on
