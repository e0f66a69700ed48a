// What the dialogs of families B and C have in common: a duty and, in family B, speeds that are reached in one time and
// left in another.
#pragma once

#include "dialogs/pulse/PulseRows.h"

/// A duty in percent: "50", "50.0" or ".5", at most two digits before the point and one behind it. Unlike
/// kDutyInTenths, zeros that end the fraction never count. It is written with its fraction.
constexpr SWzdFormat kChannelDuty = {WzdReadFixed, WzdWriteFixed, 2, 1};

/// A speed in Hz, two registers. The range is the same on every channel.
void WDX_ChannelSpeed(CWzdExchange* wx, UINT edit, LONGLONG offset, UINT message);

/// The acceleration time and, behind it, the deceleration time in ms, two registers each.
void WDX_ChannelTimes(CWzdExchange* wx, UINT acceleration, UINT deceleration, LONGLONG offset);

/// How long the deviation counter clear signal lasts, in ms, two registers; 0 for none.
void WDX_CounterClear(CWzdExchange* wx, UINT edit, LONGLONG offset, UINT message);
