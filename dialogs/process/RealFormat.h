// Real numbers as entries: the value is the bits of the single-precision form.
#pragma once

#include "core/Reals.h"
#include "core/Values.h"
#include "dialogs/base/WzdRow.h"

#include <bit>

inline float RealOfBits(LONGLONG bits) { return std::bit_cast<float>(static_cast<LONG>(bits)); }

inline bool WzdReadReal(const SWzdFormat&, LPCSTR text, LONGLONG& value)
{
    float real;
    if (ParseReal(text, real))
        value = std::bit_cast<LONG>(real);
    else if (IsRealOutOfRange(Trimmed(text)))
        value = LLONG_MAX; // in no range
    else
        return false;
    return true;
}

inline CString WzdWriteReal(const SWzdFormat&, LONGLONG value) { return FormatReal(RealOfBits(value)); }

constexpr SWzdFormat kReal = {WzdReadReal, WzdWriteReal};
