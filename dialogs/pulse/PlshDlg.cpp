#include "dialogs/pulse/PlshDlg.h"

#include "dialogs/pulse/PulseRows.h"

namespace
{

constexpr SWzdChoice kStopModes[] = {{IDS_PLSH_NO_TARGET, 0}, {IDS_PLSH_TARGET_MATCH_STOP, 1}};
constexpr int kTargetMatchStop = 1;

constexpr SWzdChoice kOutputMethods[] = {
    {IDS_PLSH_NO_COUNTING_CW, 0x00},            //
    {IDS_PLSH_NO_COUNTING_CCW, 0x01},           //
    {IDS_PLSH_ADDITION_CW, 0x10},               //
    {IDS_PLSH_ADDITION_DIRECTION_OFF, 0x12},    //
    {IDS_PLSH_ADDITION_DIRECTION_ON, 0x13},     //
    {IDS_PLSH_SUBTRACTION_CCW, 0x21},           //
    {IDS_PLSH_SUBTRACTION_DIRECTION_OFF, 0x22}, //
    {IDS_PLSH_SUBTRACTION_DIRECTION_ON, 0x23},
};

} // namespace

CPlshDlg::CPlshDlg(CFunWizard* wizard, CWnd* parent) : CWzdDlgBase(wizard, IDD_PLSH, parent) {}

// clang-format off
void CPlshDlg::DoFieldExchange(CWzdExchange* wx)
{
    WDX_Contact    (wx);
    WDX_TableStart (wx, {.edit = IDC_PLSH_START, .rangeLabel = IDC_PLSH_START_RANGE});
    WDX_Channel    (wx, IDC_PLSH_CHANNEL, kInstructionPlsh);

    WDX_ControlCode(wx, kTwoRegisters);
    WDX_Code       (wx, {.combo = IDC_PLSH_STOP_MODE,       .choices = kStopModes,     .bits = {16, 4}, .unselected = kCountsAsZero});
    WDX_Code       (wx, {.combo = IDC_PLSH_DUTY,            .choices = kDuties,        .bits = {12, 4}});
    WDX_Code       (wx, {.combo = IDC_PLSH_FREQUENCY_RANGE, .choices = kFrequencies,   .bits = {8, 4}});
    WDX_Code       (wx, {.combo = IDC_PLSH_OUTPUT_METHOD,   .choices = kOutputMethods, .bits = {0, 8}});

    const SWzdRange frequencies = SpeedRange(Selection(IDC_PLSH_FREQUENCY_RANGE), Selection(IDC_PLSH_CHANNEL));
    WDX_Number(wx, {.edit = IDC_PLSH_FREQUENCY, .entry = {2, kTwoRegisters}, .limit = 6, .range = frequencies,
                    .message = IDS_ERR_FREQUENCY, .rangeLabel = IDC_PLSH_FREQUENCY_BOUNDS});

    const CWzdSection target(wx, Selection(IDC_PLSH_STOP_MODE) == kTargetMatchStop,
                             ControlAfter(IDC_PLSH_FREQUENCY_BOUNDS), IDC_PLSH_TARGET_BOUNDS);
    WDX_Number(wx, {.edit = IDC_PLSH_TARGET, .entry = {4, kTwoRegisters}, .limit = 11, .range = kAnyDoubleWord,
                    .message = IDS_ERR_TARGET_VALUE});
}
// clang-format on
