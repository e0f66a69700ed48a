// What the dialogs of the controllers of family B have in common: a speed that is reached in one time and left in
// another.
#pragma once

#include "dialogs/pulse/PulseRows.h"

/// A speed in Hz, two registers. Every channel of these controllers is a fast one.
void WDX_ChannelSpeed(CWzdExchange* wx, UINT edit, LONGLONG offset, UINT message);

/// The acceleration time and, behind it, the deceleration time in ms, two registers each.
void WDX_ChannelTimes(CWzdExchange* wx, UINT acceleration, UINT deceleration, LONGLONG offset);

/// A duty in percent: "50", "50.0" or ".5", at most two digits before the point and one behind it; zeros that end the
/// fraction do not count. It is written with its fraction.
constexpr SWzdFormat kTenths = {WzdReadFixed, WzdWriteFixed, 2, 1};

/// How long the deviation counter clear signal lasts, in ms, two registers; 0 for none.
void WDX_CounterClear(CWzdExchange* wx, UINT edit, LONGLONG offset, UINT message);
