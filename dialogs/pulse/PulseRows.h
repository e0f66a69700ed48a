// What the pulse-output dialogs have in common: rows for the output, and the lists and ranges that several of them use.
#pragma once

#include "dialogs/fields/Rows.h"

/// The pulse output, a constant operand; without an instruction ("Only a data table is created.") there is no choice.
void WDX_Output(CWzdExchange* wx, UINT combo, CWzdChoices choices, int operand = 1);

/// The same for the channels that the wizard offers to an instruction. A single channel leaves nothing to choose: then
/// the dialog does not open.
void WDX_Channel(CWzdExchange* wx, UINT combo, int instruction, int operand = 1);

/// The target value of F172, behind everything else in the table. Its label, edit, unit and range are there only in the
/// mode that stops at it.
void WDX_StopTarget(CWzdExchange* wx, LONGLONG offset);

// ---- Lists ----------------------------------------------------------------------------------------------------------

/// The built-in outputs.
constexpr SWzdChoice kBuiltInOutputs[] = {{IDS_OUTPUT_Y, 0, 0}, {IDS_OUTPUT_Y, 1, 1}};

constexpr SWzdChoice kDuties[] = {{IDS_DUTY_HALF, 0}, {IDS_DUTY_QUARTER, 1}};

constexpr SWzdChoice kFrequencies[] = {
    {IDS_FREQUENCY_FROM_1_5_HZ, 0}, {IDS_FREQUENCY_FROM_48_HZ, 1}, {IDS_FREQUENCY_FROM_191_HZ, 2}};

/// Operation modes and output methods of a move on a channel.
constexpr SWzdChoice kMoveModes[] = {
    {IDS_INCREMENTAL_CW_CCW, 0x00},           //
    {IDS_INCREMENTAL_SIGN_FORWARD_OFF, 0x02}, //
    {IDS_INCREMENTAL_SIGN_FORWARD_ON, 0x03},  //
    {IDS_ABSOLUTE_CW_CCW, 0x10},              //
    {IDS_ABSOLUTE_SIGN_FORWARD_OFF, 0x12},    //
    {IDS_ABSOLUTE_SIGN_FORWARD_ON, 0x13},
};

/// Whether F172 stops at a target value, and its output methods.
constexpr SWzdChoice kStopModes[] = {{IDS_PLSH_NO_TARGET, 0}, {IDS_PLSH_TARGET_MATCH_STOP, 1}};

constexpr SWzdChoice kJogMethods[] = {
    {IDS_PLSH_NO_COUNTING_CW, 0x00},            //
    {IDS_PLSH_NO_COUNTING_CCW, 0x01},           //
    {IDS_PLSH_ADDITION_CW, 0x10},               //
    {IDS_PLSH_ADDITION_DIRECTION_OFF, 0x12},    //
    {IDS_PLSH_ADDITION_DIRECTION_ON, 0x13},     //
    {IDS_PLSH_SUBTRACTION_CCW, 0x21},           //
    {IDS_PLSH_SUBTRACTION_DIRECTION_OFF, 0x22}, //
    {IDS_PLSH_SUBTRACTION_DIRECTION_ON, 0x23},
};

/// Modes and output methods of a home return on a channel.
constexpr SWzdChoice kChannelHomeModes[] = {
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

// ---- Ranges ---------------------------------------------------------------------------------------------------------

/// The speeds, in Hz, that an item of kFrequencies allows on a channel; both by their positions in the lists, -1 for no
/// selection. The first two channels of a list are the fast ones.
SWzdRange SpeedRange(int frequency, int channel);
