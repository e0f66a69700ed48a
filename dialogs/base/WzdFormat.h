// How the entry of an edit box is read and written.
#pragma once

#include "afx/afx.h"

/// A notation of numbers: a way to read them and a way to write them, and the digits that both may need to know. What
/// is written can be read back.
struct SWzdFormat
{
    /// False, and `value` as it was, when the text is no number of this notation.
    typedef bool (*Reader)(const SWzdFormat& format, LPCSTR text, LONGLONG& value);
    typedef CString (*Writer)(const SWzdFormat& format, LONGLONG value);

    Reader read;
    Writer write;
    int whole = 0;    ///< digits before the point, at most
    int decimals = 0; ///< digits behind it; the value counts units of the last one

    [[nodiscard]] bool Parse(LPCSTR text, LONGLONG& value) const { return read(*this, text, value); }
    CString Format(LONGLONG value) const { return write(*this, value); }
};

bool WzdReadSigned(const SWzdFormat& format, LPCSTR text, LONGLONG& value);
bool WzdReadUnsigned(const SWzdFormat& format, LPCSTR text, LONGLONG& value);
/// Digits of either case; a number of more than 32 bits becomes one that no range holds.
bool WzdReadHexadecimal(const SWzdFormat& format, LPCSTR text, LONGLONG& value);
/// At most so many digits before and behind the point; zeros at the end of the fraction do not count.
bool WzdReadFixed(const SWzdFormat& format, LPCSTR text, LONGLONG& value);
CString WzdWriteDecimal(const SWzdFormat& format, LONGLONG value);
/// The low 32 bits.
CString WzdWriteHexadecimal(const SWzdFormat& format, LONGLONG value);
/// All decimals: "50.0".
CString WzdWriteFixed(const SWzdFormat& format, LONGLONG value);
/// Without zeros at the end of the fraction: "50".
CString WzdWriteFixedShort(const SWzdFormat& format, LONGLONG value);

/// Decimal numbers of any length: those outside of 64 bits become the nearest that is inside.
constexpr SWzdFormat kSigned = {WzdReadSigned, WzdWriteDecimal};
constexpr SWzdFormat kUnsigned = {WzdReadUnsigned, WzdWriteDecimal};
constexpr SWzdFormat kHexadecimal = {WzdReadHexadecimal, WzdWriteHexadecimal};

/// Unsigned numbers with a point, "12.5" with two decimals being 1250.
constexpr SWzdFormat Fixed(int whole, int decimals) { return {WzdReadFixed, WzdWriteFixedShort, whole, decimals}; }
