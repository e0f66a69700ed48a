// How the duty of a PWM output is written, in percent; the data table counts it in tenths of a percent.
#pragma once

#include "dialogs/base/WzdFormat.h"

bool WzdReadDutyInTenths(const SWzdFormat& format, LPCSTR text, LONGLONG& value);
bool WzdReadWholeDuty(const SWzdFormat& format, LPCSTR text, LONGLONG& value);

/// "50", "50.0" or "0.5": at most two digits before the point and one behind it. Of zeros that end the fraction all but
/// the first are ignored: "50.000" is 50.0, but "12.500" has a digit too many.
constexpr SWzdFormat kDutyInTenths = {WzdReadDutyInTenths, WzdWriteFixed, 2, 1};

/// Whole percents, "50"; also with a fraction of zeros, because they are written with one.
constexpr SWzdFormat kWholeDuty = {WzdReadWholeDuty, WzdWriteFixed, 2, 1};
