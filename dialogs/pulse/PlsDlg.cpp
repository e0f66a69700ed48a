#include "dialogs/pulse/PlsDlg.h"

#include "dialogs/pulse/PulseRows.h"

namespace
{

constexpr SWzdChoice kPulseWidths[] = {
    {IDS_FIXED_PULSE_WIDTH, 0},  {IDS_PLS_DUTY_RATIO, 1, 10}, {IDS_PLS_DUTY_RATIO, 2, 20}, {IDS_PLS_DUTY_RATIO, 3, 30},
    {IDS_PLS_DUTY_RATIO, 4, 40}, {IDS_PLS_DUTY_RATIO, 5, 50}, {IDS_PLS_DUTY_RATIO, 6, 60}, {IDS_PLS_DUTY_RATIO, 7, 70},
    {IDS_PLS_DUTY_RATIO, 8, 80}, {IDS_PLS_DUTY_RATIO, 9, 90},
};

// Counting down the directional output is on where it is off counting up.
constexpr SWzdChoice kModes[] = {
    {IDS_PLS_NO_COUNTING, 0x00},             //
    {IDS_PLS_INCREMENT_NO_DIRECTION, 0x10},  //
    {IDS_PLS_INCREMENT_DIRECTION_OFF, 0x12}, //
    {IDS_PLS_INCREMENT_DIRECTION_ON, 0x13},  //
    {IDS_PLS_DECREMENT_NO_DIRECTION, 0x20},  //
    {IDS_PLS_DECREMENT_DIRECTION_ON, 0x22},  //
    {IDS_PLS_DECREMENT_DIRECTION_OFF, 0x23},
};

} // namespace

CPlsDlg::CPlsDlg(CFunWizard* wizard, CWnd* parent) : CWzdDlgBase(wizard, IDD_PLS, parent) {}

// clang-format off
void CPlsDlg::DoFieldExchange(CWzdExchange* wx)
{
    WDX_Contact    (wx);
    WDX_TableStart (wx, {.edit = IDC_PLS_START, .rangeLabel = IDC_PLS_START_RANGE});
    WDX_Output     (wx, IDC_PLS_OUTPUT, kBuiltInOutputs);

    WDX_ControlCode(wx, kOneRegister);
    WDX_Code       (wx, {.combo = IDC_PLS_WIDTH, .choices = kPulseWidths, .bits = {8, 4}});
    WDX_Code       (wx, {.combo = IDC_PLS_MODE,  .choices = kModes,       .bits = {0, 8}});

    WDX_Number(wx, {.edit = IDC_PLS_FREQUENCY, .entry = {1}, .limit = 5, .range = {40, 10000}, .message = IDS_ERR_FREQUENCY});
}
// clang-format on
