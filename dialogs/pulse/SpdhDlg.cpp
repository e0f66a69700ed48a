#include "dialogs/pulse/SpdhDlg.h"

#include "dialogs/pulse/PulseRows.h"

namespace
{

constexpr SWzdChoice kSteps[] = {{IDS_STEPS, 0, 30}, {IDS_STEPS, 1, 60}};

} // namespace

CSpdhDlg::CSpdhDlg(CFunWizard* wizard, bool homeReturn, UINT templateId, CWnd* parent)
    : CWzdDlgBase(wizard, templateId, parent), m_homeReturn(homeReturn)
{
}

// clang-format off
void CSpdhDlg::DoFieldExchange(CWzdExchange* wx)
{
    const SWzdRange speeds = SpeedRange(Selection(IDC_SPDH_FREQUENCY), Selection(IDC_SPDH_CHANNEL));

    WDX_Contact    (wx);
    WDX_TableStart (wx, {.edit = IDC_SPDH_START, .rangeLabel = IDC_SPDH_START_RANGE});
    WDX_Channel    (wx, IDC_SPDH_CHANNEL, kInstructionSpdh);

    WDX_ControlCode(wx, kTwoRegisters);
    WDX_Code       (wx, {.combo = IDC_SPDH_STEPS,     .choices = kSteps,       .bits = {16, 4}});
    WDX_Code       (wx, {.combo = IDC_SPDH_DUTY,      .choices = kDuties,      .bits = {12, 4}});
    WDX_Code       (wx, {.combo = IDC_SPDH_FREQUENCY, .choices = kFrequencies, .bits = {8, 4}});
    WDX_Code       (wx, IDC_SPDH_MODE, {0, 8}, m_homeReturn, kMoveModes, kChannelHomeModes);

    WDX_Number(wx, {.edit = IDC_SPDH_INITIAL, .entry = {2, kTwoRegisters}, .limit = 6, .range = speeds,
                    .message = IDS_ERR_INITIAL_SPEED, .rangeLabel = IDC_SPDH_INITIAL_RANGE});
    WDX_Number(wx, {.edit = IDC_SPDH_MAXIMUM, .entry = {4, kTwoRegisters}, .limit = 6, .range = speeds,
                    .message = IDS_ERR_MAXIMUM_SPEED, .rangeLabel = IDC_SPDH_MAXIMUM_RANGE});
    WDX_Number(wx, {.edit = IDC_SPDH_TIME, .entry = {6, kTwoRegisters}, .limit = 5, .range = AccelerationTimeRange(),
                    .message = IDS_ERR_ACCELERATION_TIME, .rangeLabel = IDC_SPDH_TIME_RANGE});
    if (m_homeReturn)
    {
        WDX_Number(wx, {.edit = IDC_SPDH_CLEAR, .entry = {8, kTwoRegisters}, .limit = 3, .range = {0, 100},
                        .message = IDS_ERR_COUNTER_CLEAR_SIGNAL});
        return;
    }
    WDX_Number(wx, {.edit = IDC_SPDH_TARGET, .entry = {8, kTwoRegisters}, .limit = 11, .range = kAnyDoubleWord,
                    .message = IDS_ERR_TARGET_VALUE});
    WDX_Constant(wx, {10, kTwoRegisters}, 0); // ends the table
}
// clang-format on

SWzdRange CSpdhDlg::AccelerationTimeRange() const { return {Selection(IDC_SPDH_STEPS) == 1 ? 60 : 30, 32767}; }
