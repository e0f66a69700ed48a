#include "dialogs/pulse/SpdhDlg.h"

namespace
{

constexpr int kInstruction = 171;

constexpr SWzdChoice kSteps[] = {{IDS_STEPS, 0, 30}, {IDS_STEPS, 1, 60}};
constexpr SWzdChoice kDuties[] = {{IDS_DUTY_HALF, 0}, {IDS_DUTY_QUARTER, 1}};

constexpr SWzdChoice kFrequencies[] = {
    {IDS_FREQUENCY_FROM_1_5_HZ, 0}, {IDS_FREQUENCY_FROM_48_HZ, 1}, {IDS_FREQUENCY_FROM_191_HZ, 2}};

// The speeds that each of them allows, and the highest one beyond the two fast channels.
constexpr SWzdRange kSpeeds[] = {{1, 9800}, {48, 100000}, {191, 100000}};
constexpr int kFastChannels = 2;
constexpr LONGLONG kSlowChannelSpeed = 20000;

constexpr SWzdChoice kTrapezoidalModes[] = {
    {IDS_INCREMENTAL_CW_CCW, 0x00},           //
    {IDS_INCREMENTAL_SIGN_FORWARD_OFF, 0x02}, //
    {IDS_INCREMENTAL_SIGN_FORWARD_ON, 0x03},  //
    {IDS_ABSOLUTE_CW_CCW, 0x10},              //
    {IDS_ABSOLUTE_SIGN_FORWARD_OFF, 0x12},    //
    {IDS_ABSOLUTE_SIGN_FORWARD_ON, 0x13},
};

constexpr SWzdChoice kHomeModes[] = {
    {IDS_HOMING1_CW, 0x20},
    {IDS_HOMING1_CCW, 0x21},
    {IDS_HOMING1_DIRECTION_OFF, 0x22},
    {IDS_HOMING1_DIRECTION_ON, 0x23},
    {IDS_HOMING1_CW_RESET, 0x24},
    {IDS_HOMING1_CCW_RESET, 0x25},
    {IDS_HOMING1_DIRECTION_OFF_RESET, 0x26},
    {IDS_HOMING1_DIRECTION_ON_RESET, 0x27},
    {IDS_HOMING2_CW, 0x30},
    {IDS_HOMING2_CCW, 0x31},
    {IDS_HOMING2_DIRECTION_OFF, 0x32},
    {IDS_HOMING2_DIRECTION_ON, 0x33},
    {IDS_HOMING2_CW_RESET, 0x34},
    {IDS_HOMING2_CCW_RESET, 0x35},
    {IDS_HOMING2_DIRECTION_OFF_RESET, 0x36},
    {IDS_HOMING2_DIRECTION_ON_RESET, 0x37},
};

} // namespace

CSpdhDlg::CSpdhDlg(CFunWizard* wizard, bool homeReturn, CWnd* parent)
    : CWzdDlgBase(wizard, homeReturn ? IDD_SPDH_HOME : IDD_SPDH_TRAPEZOIDAL, parent), m_homeReturn(homeReturn)
{
}

// clang-format off
void CSpdhDlg::DoFieldExchange(CWzdExchange* wx)
{
    WDX_Contact    (wx);
    WDX_TableStart (wx, IDC_SPDH_START, IDC_SPDH_START_RANGE);
    WDX_Channel    (wx, IDC_SPDH_CHANNEL, kInstruction);

    //              control                bits     items
    WDX_ControlCode(wx, kTwoRegisters);
    WDX_Code       (wx, IDC_SPDH_STEPS,     {16, 4}, kSteps);
    WDX_Code       (wx, IDC_SPDH_DUTY,      {12, 4}, kDuties);
    WDX_Code       (wx, IDC_SPDH_FREQUENCY, {8, 4},  kFrequencies);
    WDX_Code       (wx, IDC_SPDH_MODE,      {0, 8},  m_homeReturn, kTrapezoidalModes, kHomeModes);

    //              control             entry               limit  accepted                 message when outside
    WDX_Number     (wx, IDC_SPDH_INITIAL, {2, kTwoRegisters}, 6,   SpeedRange(),            IDS_ERR_INITIAL_SPEED,
                    IDC_SPDH_INITIAL_RANGE);
    WDX_Number     (wx, IDC_SPDH_MAXIMUM, {4, kTwoRegisters}, 6,   SpeedRange(),            IDS_ERR_MAXIMUM_SPEED,
                    IDC_SPDH_MAXIMUM_RANGE);
    WDX_Number     (wx, IDC_SPDH_TIME,    {6, kTwoRegisters}, 5,   AccelerationTimeRange(), IDS_ERR_ACCELERATION_TIME,
                    IDC_SPDH_TIME_RANGE);
    if (m_homeReturn)
    {
        WDX_Number (wx, IDC_SPDH_CLEAR,   {8, kTwoRegisters}, 3,   {0, 100},                IDS_ERR_COUNTER_CLEAR_SIGNAL);
        return;
    }
    WDX_Number     (wx, IDC_SPDH_TARGET,  {8, kTwoRegisters}, 11,  kAnyDoubleWord,          IDS_ERR_TARGET_VALUE);
    WDX_Constant   (wx, {10, kTwoRegisters}, 0); // ends the table
}
// clang-format on

// The position of the channel in the list counts, not its number.
SWzdRange CSpdhDlg::SpeedRange() const
{
    const int frequency = Selection(IDC_SPDH_FREQUENCY);
    if (frequency < 0)
        return {0, 0};
    SWzdRange range = kSpeeds[frequency];
    const int channel = Selection(IDC_SPDH_CHANNEL);
    if (channel < 0 || channel >= kFastChannels)
        range.high = std::min(range.high, kSlowChannelSpeed);
    return range;
}

SWzdRange CSpdhDlg::AccelerationTimeRange() const { return {Selection(IDC_SPDH_STEPS) == 1 ? 60 : 30, 32767}; }
