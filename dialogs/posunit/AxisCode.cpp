#include "dialogs/posunit/AxisCode.h"

namespace
{

constexpr SWzdChoice kPositionCommand[] = {{IDS_CODE_INCREMENTAL, 0}, {IDS_CODE_ABSOLUTE, 1}};
constexpr SWzdChoice kAcceleration[] = {{IDS_CODE_LINEAR, 0}, {IDS_CODE_S, 1}};
constexpr SWzdChoice kHomeReturnDirection[] = {{IDS_CODE_HOME_MINUS, 0}, {IDS_CODE_HOME_PLUS, 1}};
constexpr SWzdChoice kStartupSpeed[] = {{IDS_CODE_STARTUP_0_02_MS, 0}, {IDS_CODE_STARTUP_0_005_MS, 1}};
constexpr SWzdChoice kOffFirst[] = {{IDS_CODE_ON_WHEN_OPEN, 0}, {IDS_CODE_ON_WHEN_CONDUCTING, 1}};
// The near home input has its logic the other way round.
constexpr SWzdChoice kOnFirst[] = {{IDS_CODE_ON_WHEN_CONDUCTING, 0}, {IDS_CODE_ON_WHEN_OPEN, 1}};
constexpr SWzdChoice kHomeSearch[] = {{IDS_CODE_DISABLE, 0}, {IDS_CODE_ENABLE, 1}};
constexpr SWzdChoice kPulsarMultiple[] = {
    {IDS_CODE_MULTIPLE, 0, 1},  {IDS_CODE_MULTIPLE, 1, 2},   {IDS_CODE_MULTIPLE, 2, 5},   {IDS_CODE_MULTIPLE, 3, 10},
    {IDS_CODE_MULTIPLE, 4, 50}, {IDS_CODE_MULTIPLE, 5, 100}, {IDS_CODE_MULTIPLE, 6, 500}, {IDS_CODE_MULTIPLE, 7, 1000},
};
constexpr SWzdChoice kCurve[] = {
    {IDS_CODE_SIN_CURVE, 0}, {IDS_CODE_SECONDARY_CURVE, 1}, {IDS_CODE_CYCLOID_CURVE, 2}, {IDS_CODE_THIRD_CURVE, 3}};
constexpr SWzdChoice kRotation[] = {{IDS_CODE_FORWARD_ROTATION, 0}, {IDS_CODE_REVERSE_ROTATION, 1}};
constexpr SWzdChoice kInputCount[] = {{IDS_CODE_COUNT_AVAILABLE, 0}, {IDS_CODE_COUNT_MASKED, 1}};
constexpr SWzdChoice kInputMode[] = {
    {IDS_CODE_INPUT_2_PHASE, 0}, {IDS_CODE_INPUT_DIRECTION, 1}, {IDS_CODE_INPUT_INDIVIDUAL, 2}};
constexpr SWzdChoice kInputMultiple[] = {
    {IDS_CODE_MULTIPLE, 0, 1}, {IDS_CODE_MULTIPLE, 1, 2}, {IDS_CODE_MULTIPLE, 2, 4}};
constexpr SWzdChoice kOutputMode[] = {{IDS_CODE_PULSE_SIGN, 0}, {IDS_CODE_CW_CCW, 1}};
constexpr SWzdChoice kDividedMode[] = {
    {IDS_CODE_DIVIDED, 0, 1},  {IDS_CODE_DIVIDED, 1, 2},  {IDS_CODE_DIVIDED, 2, 4},  {IDS_CODE_DIVIDED, 3, 8},
    {IDS_CODE_DIVIDED, 4, 16}, {IDS_CODE_DIVIDED, 5, 32}, {IDS_CODE_DIVIDED, 6, 64}, {IDS_CODE_DIVIDED, 7, 128},
};
constexpr SWzdChoice kClearTime[] = {{IDS_CODE_MILLISECONDS, 0, 1}, {IDS_CODE_MILLISECONDS, 1, 10}};

// In the order of EAxisCode.
constexpr SAxisCodeField kFields[] = {
    {{0, 1}, kPositionCommand}, {{1, 1}, kAcceleration},   {{2, 1}, kHomeReturnDirection}, {{3, 1}, kStartupSpeed},
    {{4, 1}, kOffFirst},        {{5, 1}, kOnFirst},        {{6, 1}, kHomeSearch},          {{7, 1}, kOffFirst},
    {{8, 3}, kPulsarMultiple},  {{12, 2}, kCurve},         {{16, 1}, kRotation},           {{17, 1}, kInputCount},
    {{18, 2}, kInputMode},      {{20, 2}, kInputMultiple}, {{24, 1}, kRotation},           {{25, 1}, kOutputMode},
    {{28, 3}, kDividedMode},    {{31, 1}, kClearTime},
};

} // namespace

const SAxisCodeField& AxisCodeField(EAxisCode field) { return kFields[static_cast<int>(field)]; }

void WDX_AxisCode(CWzdExchange* wx, UINT combo, EAxisCode field, EUnselected unselected)
{
    WDX_Code(wx, {.combo = combo,
                  .choices = AxisCodeField(field).items,
                  .bits = AxisCodeField(field).bits,
                  .unselected = unselected});
}

void WDX_HomeInputLogic(CWzdExchange* wx)
{
    WDX_AxisCode(wx, IDC_CODE_HOME_LOGIC, EAxisCode::HomeLogic, kCountsAsZero);
    WDX_AxisCode(wx, IDC_CODE_NEAR_HOME_LOGIC, EAxisCode::NearHomeLogic, kCountsAsZero);
}

void WDX_PulseOutput(CWzdExchange* wx)
{
    WDX_AxisCode(wx, IDC_CODE_OUTPUT_ROTATION, EAxisCode::OutputRotation, kCountsAsZero);
    WDX_AxisCode(wx, IDC_CODE_OUTPUT_MODE, EAxisCode::OutputMode, kCountsAsZero);
    WDX_AxisCode(wx, IDC_CODE_DIVIDED_MODE, EAxisCode::DividedMode, kCountsAsZero);
}
