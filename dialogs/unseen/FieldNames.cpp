#include "dialogs/unseen/FieldNames.h"

#include "resources/resource.h"

#include <algorithm>
#include <iterator>

namespace
{

struct SFieldName
{
    UINT control;
    std::string_view name;
};

/// An id means the same in every dialog that has it, but for these.
constexpr struct
{
    UINT templateId;
    SFieldName field;
} kOwnNames[] = {{IDD_B_PLSH, {IDC_B_PLSH_INITIAL, "initial-speed"}},
                 {IDD_B_PLSH, {IDC_B_PLSH_TARGET_SPEED, "target-speed"}},
                 {IDD_B_SPDH_TRAPEZOIDAL, {IDC_SPDH_MAXIMUM, "target-speed"}},
                 {IDD_B_SPDH_HOME, {IDC_SPDH_MAXIMUM, "target-speed"}},
                 {IDD_B_SPSH, {IDC_SPSH_MAXIMUM, "target-speed"}}};

constexpr SFieldName kNames[] = {
    {IDC_CONTACT_DEVICE, "contact-device"},
    {IDC_CONTACT_NUMBER, "contact-number"},
    {IDC_START_OUTPUT_ENABLE, "start-output"},
    {IDC_SAME_CONDITION, "same-condition"},
    {IDC_SECOND_DEVICE, "second-device"},
    {IDC_SECOND_NUMBER, "second-number"},
    {IDC_START_OUTPUT_WORD, "start-output-word"},
    {IDC_ONLY_DATA_TABLE, "only-data-table"},
    {IDC_JOG_DIRECTION, "direction"},
    {IDC_GRID_CELLS, "table"},
    {IDC_REGISTER_COMMENTS, "comments"},

    {IDC_SPD1_START, "start"},
    {IDC_SPD1_OUTPUT, "output"},
    {IDC_SPD1_WIDTH, "width"},
    {IDC_SPD1_MODE, "mode"},
    {IDC_SPD1_INITIAL, "initial-speed"},
    {IDC_SPD1_MAXIMUM, "maximum-speed"},
    {IDC_SPD1_TIME, "acceleration-time"},
    {IDC_SPD1_TARGET, "target"},

    {IDC_PLS_START, "start"},
    {IDC_PLS_OUTPUT, "output"},
    {IDC_PLS_WIDTH, "width"},
    {IDC_PLS_MODE, "mode"},
    {IDC_PLS_FREQUENCY, "frequency"},

    {IDC_PWM_START, "start"},
    {IDC_PWM_OUTPUT, "output"},
    {IDC_PWM_FREQUENCY, "frequency"},
    {IDC_PWM_DUTY, "duty"},

    {IDC_SPDH_START, "start"},
    {IDC_SPDH_CHANNEL, "channel"},
    {IDC_SPDH_STEPS, "steps"},
    {IDC_SPDH_DUTY, "duty"},
    {IDC_SPDH_FREQUENCY, "frequency-range"},
    {IDC_SPDH_MODE, "mode"},
    {IDC_SPDH_TIME, "acceleration-time"},
    {IDC_SPDH_TARGET, "target"},
    {IDC_SPDH_INITIAL, "initial-speed"},
    {IDC_SPDH_MAXIMUM, "maximum-speed"},
    {IDC_SPDH_CLEAR, "clear-time"},
    {IDC_SPDH_DECELERATION, "deceleration-time"},
    {IDC_SPDH_CREEP, "creep-speed"},

    {IDC_PLSH_START, "start"},
    {IDC_PLSH_CHANNEL, "channel"},
    {IDC_PLSH_STOP_MODE, "stop-mode"},
    {IDC_PLSH_DUTY, "duty"},
    {IDC_PLSH_FREQUENCY_RANGE, "frequency-range"},
    {IDC_PLSH_OUTPUT_METHOD, "output-method"},
    {IDC_PLSH_FREQUENCY, "frequency"},
    {IDC_PLSH_TARGET, "target"},
    {IDC_B_PLSH_ACCELERATION, "acceleration-time"},
    {IDC_B_PLSH_DECELERATION, "deceleration-time"},

    {IDC_PWMH_START, "start"},
    {IDC_PWMH_CHANNEL, "channel"},
    {IDC_PWMH_FREQUENCY, "frequency"},
    {IDC_PWMH_RESOLUTION_1000, "resolution-1000"},
    {IDC_PWMH_RESOLUTION_100, "resolution-100"},
    {IDC_PWMH_DUTY, "duty"},

    {IDC_SP0H_START, "start"},
    {IDC_SP0H_CHANNEL, "channel"},
    {IDC_SP0H_OUTPUT, "output"},
    {IDC_SP0H_DUTY, "duty"},
    {IDC_SP0H_FREQUENCY, "frequency-range"},
    {IDC_SP0H_MODE, "mode"},

    {IDC_SPSH_START, "start"},
    {IDC_SPSH_INITIAL, "initial-speed"},
    {IDC_SPSH_TIME, "acceleration-time"},
    {IDC_SPSH_MAXIMUM, "maximum-speed"},
    {IDC_SPSH_DECELERATION, "deceleration-time"},
    {IDC_SPSH_TARGET_X, "target-x"},
    {IDC_SPSH_TARGET_Y, "target-y"},
    {IDC_SPSH_DUTY, "duty"},
    {IDC_SPSH_MODE, "mode"},
    {IDC_SPSH_CHANNEL, "channel"},

    {IDC_SPCH_START, "start"},
    {IDC_SPCH_CONNECTION, "connection"},
    {IDC_SPCH_SPEED, "speed"},
    {IDC_SPCH_ROTATION, "rotation"},
    {IDC_SPCH_METHOD, "method"},
    {IDC_SPCH_MODE, "mode"},
    {IDC_SPCH_TARGET_X, "target-x"},
    {IDC_SPCH_TARGET_Y, "target-y"},
    {IDC_SPCH_THIRD_POINT_X, "third-point-x"},
    {IDC_SPCH_THIRD_POINT_Y, "third-point-y"},

    {IDC_F177_START, "start"},
    {IDC_F177_CHANNEL, "channel"},
    {IDC_F177_MODE, "mode"},
    {IDC_F177_TARGET_SPEED, "target-speed"},
    {IDC_F177_ACCELERATION, "acceleration-time"},
    {IDC_F177_DECELERATION, "deceleration-time"},
    {IDC_F177_CREEP, "creep-speed"},
    {IDC_F177_CLEAR, "clear-time"},

    {IDC_PID_START, "start"},
    {IDC_PID_DERIVATIVE, "derivative-type"},
    {IDC_PID_OPERATION, "operation"},
    {IDC_PID_AUTO_TUNING, "auto-tuning"},
    {IDC_PID_SP, "set-value"},
    {IDC_PID_LOWER, "lower-limit"},
    {IDC_PID_UPPER, "upper-limit"},
    {IDC_PID_KP, "proportional-gain"},
    {IDC_PID_TI, "integral-time"},
    {IDC_PID_TD, "derivative-time"},
    {IDC_PID_TS, "control-cycle"},
    {IDC_PID_SP_USED, "set-value-used"},
    {IDC_PID_LOWER_USED, "lower-limit-used"},
    {IDC_PID_UPPER_USED, "upper-limit-used"},
    {IDC_PID_KP_USED, "proportional-gain-used"},
    {IDC_PID_TI_USED, "integral-time-used"},
    {IDC_PID_TD_USED, "derivative-time-used"},
    {IDC_PID_TS_USED, "control-cycle-used"},

    {IDC_SCREEN, "screen"},
    {IDC_SCREEN_CONTROL_DEVICE, "control-device"},
    {IDC_SCREEN_CONTROL, "control-number"},
    {IDC_SCREEN_UPSIDE_DEVICE, "upside-device"},
    {IDC_SCREEN_UPSIDE, "upside-number"},
    {IDC_SCREEN_DOWNSIDE_DEVICE, "downside-device"},
    {IDC_SCREEN_DOWNSIDE, "downside-number"},
    {IDC_SCREEN_MARK_1, "mark-1"},
    {IDC_SCREEN_MARK_2, "mark-2"},
    {IDC_SCREEN_MARK_3, "mark-3"},
    {IDC_SCREEN_MARK_4, "mark-4"},
    {IDC_SCREEN_MARK_5, "mark-5"},
    {IDC_SCREEN_MARK_6, "mark-6"},
    {IDC_SCREEN_MARK_7, "mark-7"},
    {IDC_SCREEN_MARK_8, "mark-8"},
    {IDC_SCREEN_MODE, "mode"},
    {IDC_SCREEN_NONDISPLAY, "nondisplay"},
    {IDC_SCREEN_TEXT, "text"},
    {IDC_SCREEN_POINT_2, "point-2"},
    {IDC_SCREEN_POINT_3, "point-3"},
    {IDC_SCREEN_POINT_4, "point-4"},
    {IDC_SCREEN_POINT_5, "point-5"},
    {IDC_SCREEN_POINT_3_UPPER, "point-3-upper"},
    {IDC_SCREEN_HIDE_1, "hide-1"},
    {IDC_SCREEN_HIDE_2, "hide-2"},
    {IDC_SCREEN_HIDE_3, "hide-3"},
    {IDC_SCREEN_HIDE_4, "hide-4"},
    {IDC_SCREEN_HIDE_5, "hide-5"},
    {IDC_SCREEN_COLOR, "color"},
    {IDC_SCREEN_ZERO_SUPPRESSION, "zero-suppression"},
    {IDC_SCREEN_UPSIDE_LINE, "upside-line"},
    {IDC_SCREEN_DOWNSIDE_LINE, "downside-line"},

    {IDC_SCAL_DIFFERENTIAL, "differential"},
    {IDC_SCAL_INPUT_DEVICE, "input-device"},
    {IDC_SCAL_INPUT, "input-number"},
    {IDC_SCAL_OUTPUT_DEVICE, "output-device"},
    {IDC_SCAL_OUTPUT, "output-number"},
    {IDC_SCAL_START_DEVICE, "start-device"},
    {IDC_SCAL_START, "start"},
    {IDC_SCAL_POINTS, "points"},

    {IDC_EPOINT_START, "start"},
    {IDC_EPOINT_AXIS, "axis"},
    {IDC_EPOINT_SLOT, "slot"},
    {IDC_EPOINT_POSITION_COMMAND, "position-command"},
    {IDC_EPOINT_ACCELERATION, "acceleration"},
    {IDC_EPOINT_STARTUP, "startup-time"},
    {IDC_EPOINT_STARTUP_SPEED, "startup-speed"},
    {IDC_EPOINT_TARGET_SPEED, "target-speed"},
    {IDC_EPOINT_TIME, "acceleration-time"},
    {IDC_EPOINT_POSITION, "position"},

    {IDC_PPOINT_SLOT, "slot"},
    {IDC_PPOINT_AXIS, "axis"},
    {IDC_PPOINT_START, "start"},
    {IDC_PPOINT_TARGET_SPEED, "target-speed"},
    {IDC_PPOINT_TIME, "acceleration-time"},
    {IDC_PPOINT_POSITION, "position"},

    {IDC_JOG_SLOT, "slot"},
    {IDC_JOG_AXIS, "axis"},
    {IDC_JOG_START, "start"},
    {IDC_JOG_ACCELERATION, "acceleration"},
    {IDC_JOG_STARTUP, "startup-time"},
    {IDC_JOG_STARTUP_SPEED, "startup-speed"},
    {IDC_JOG_TARGET_SPEED, "target-speed"},
    {IDC_JOG_HIGH_SPEED, "high-speed"},
    {IDC_JOG_CHANGE_DEVICE, "change-device"},
    {IDC_JOG_CHANGE_NUMBER, "change-number"},
    {IDC_JOG_TIME, "acceleration-time"},

    {IDC_HOME_SLOT, "slot"},
    {IDC_HOME_AXIS, "axis"},
    {IDC_HOME_START, "start"},
    {IDC_HOME_ACCELERATION, "acceleration"},
    {IDC_HOME_STARTUP, "startup-time"},
    {IDC_HOME_DIRECTION, "home-direction"},
    {IDC_HOME_CLEAR_TIME, "clear-time"},
    {IDC_HOME_STARTUP_SPEED, "startup-speed"},
    {IDC_HOME_TARGET_SPEED, "target-speed"},
    {IDC_HOME_TIME, "acceleration-time"},

    {IDC_PULSAR_SLOT, "slot"},
    {IDC_PULSAR_AXIS, "axis"},
    {IDC_PULSAR_START, "start"},
    {IDC_PULSAR_MULTIPLE, "multiple"},
    {IDC_PULSAR_TARGET_SPEED, "target-speed"},

    {IDC_CTRL_POSITION_COMMAND, "position-command"},
    {IDC_CTRL_ACCELERATION, "acceleration"},
    {IDC_CTRL_HOME_DIRECTION, "home-direction"},
    {IDC_CTRL_STARTUP, "startup-time"},
    {IDC_CTRL_PULSAR_MULTIPLE, "multiple"},

    {IDC_CODE_HOME_LOGIC, "home-logic"},
    {IDC_CODE_NEAR_HOME_LOGIC, "near-home-logic"},
    {IDC_CODE_HOME_SEARCH, "home-search"},
    {IDC_CODE_LIMIT_LOGIC, "limit-logic"},
    {IDC_CODE_S_CURVE, "acceleration-curve"},
    {IDC_CODE_OUTPUT_ROTATION, "output-rotation"},
    {IDC_CODE_OUTPUT_MODE, "output-mode"},
    {IDC_CODE_INPUT_ROTATION, "input-rotation"},
    {IDC_CODE_INPUT_COUNT, "input-count"},
    {IDC_CODE_INPUT_MODE, "input-mode"},
    {IDC_CODE_INPUT_MULTIPLE, "input-multiple"},
    {IDC_CODE_DIVIDED_MODE, "divided-mode"},
    {IDC_CODE_CLEAR_TIME, "clear-time"},
};

} // namespace

std::string_view FieldName(UINT templateId, UINT control)
{
    for (const auto& own : kOwnNames)
        if (own.templateId == templateId && own.field.control == control)
            return own.field.name;
    const auto found = std::find_if(std::begin(kNames), std::end(kNames),
                                    [control](const SFieldName& field) { return field.control == control; });
    return found != std::end(kNames) ? found->name : std::string_view();
}
