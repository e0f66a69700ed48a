#include "dialogs/pulse/Spd1Dlg.h"

#include "dialogs/pulse/PulseRows.h"

namespace
{

constexpr DWORD kDuty50 = 0;
constexpr SWzdChoice kPulseWidths[] = {{IDS_DUTY_50_PERCENT, kDuty50}, {IDS_FIXED_PULSE_WIDTH, 1}};

constexpr SWzdChoice kTrapezoidalModes[] = {
    {IDS_SPD1_INCREMENTAL_NO_DIRECTION, 0x00}, //
    {IDS_SPD1_INCREMENTAL_FORWARD_OFF, 0x02},  //
    {IDS_SPD1_INCREMENTAL_FORWARD_ON, 0x03},   //
    {IDS_SPD1_ABSOLUTE_NO_DIRECTION, 0x10},    //
    {IDS_SPD1_ABSOLUTE_FORWARD_OFF, 0x12},     //
    {IDS_SPD1_ABSOLUTE_FORWARD_ON, 0x13},
};

constexpr SWzdChoice kHomeModes[] = {
    {IDS_SPD1_HOMING1_NO_DIRECTION, 0x20},  //
    {IDS_SPD1_HOMING1_DIRECTION_OFF, 0x22}, //
    {IDS_SPD1_HOMING1_DIRECTION_ON, 0x23},  //
    {IDS_SPD1_HOMING2_NO_DIRECTION, 0x24},  //
    {IDS_SPD1_HOMING2_DIRECTION_OFF, 0x26}, //
    {IDS_SPD1_HOMING2_DIRECTION_ON, 0x27},
};

} // namespace

CSpd1Dlg::CSpd1Dlg(CFunWizard* wizard, bool homeReturn, CWnd* parent)
    : CWzdDlgBase(wizard, homeReturn ? IDD_SPD1_HOME : IDD_SPD1_TRAPEZOIDAL, parent), m_homeReturn(homeReturn)
{
}

// clang-format off
void CSpd1Dlg::DoFieldExchange(CWzdExchange* wx)
{
    WDX_Contact    (wx);
    WDX_TableStart (wx, {.edit = IDC_SPD1_START, .rangeLabel = IDC_SPD1_START_RANGE});
    WDX_Output     (wx, IDC_SPD1_OUTPUT, kBuiltInOutputs);

    WDX_ControlCode(wx, kOneRegister);
    WDX_Code       (wx, {.combo = IDC_SPD1_WIDTH, .choices = kPulseWidths, .bits = {8, 4}});
    WDX_Code       (wx, IDC_SPD1_MODE, {0, 8}, m_homeReturn, kTrapezoidalModes, kHomeModes);

    WDX_Number(wx, {.edit = IDC_SPD1_INITIAL, .entry = {1}, .limit = 4, .range = {40, 5000}, .message = IDS_ERR_INITIAL_SPEED});
    WDX_Number(wx, {.edit = IDC_SPD1_MAXIMUM, .entry = {2}, .limit = 4, .range = MaximumSpeedRange(),
                    .message = IDS_ERR_MAXIMUM_SPEED, .rangeLabel = IDC_SPD1_MAXIMUM_RANGE});
    WDX_Number(wx, {.edit = IDC_SPD1_TIME, .entry = {3}, .limit = 5, .range = {30, 32767}, .message = IDS_ERR_ACCELERATION_TIME});
    if (m_homeReturn)
        return;
    WDX_Number(wx, {.edit = IDC_SPD1_TARGET, .entry = {4, kTwoRegisters}, .limit = 8, .range = {-8388608, 8388607},
                    .message = IDS_ERR_TARGET_VALUE});
    WDX_Constant(wx, {6}, 0); // ends the table
}
// clang-format on

// A pulse of fixed width leaves room for more of them.
SWzdRange CSpd1Dlg::MaximumSpeedRange() const
{
    return {40, Selection(IDC_SPD1_WIDTH) == static_cast<int>(kDuty50) ? 6000 : 9500};
}
