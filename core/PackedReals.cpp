// Packed real numbers.
#include "core/Values.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace
{

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

constexpr DWORD kMantissaMask = 0xFFFFFF;
constexpr DWORD kSignBit = 0x80000000;
constexpr int kExponentShift = 24;
constexpr int kExponentBias = 70;
constexpr int kHighestExponentField = 127;
constexpr LONGLONG kExponentLimit = 1'000'000'000; // Far outside every notation, and safe to add up.

/// A decimal number digit by digit: the text may be longer than any integer type.
struct SDecimal
{
    CString digits;        // without the point, leading and trailing zeros removed; empty for zero
    LONGLONG exponent = 0; // the power of ten that the digits are multiplied by
    bool negative = false;
};

// A run of digits and blanks, the digits collected.
LPCSTR ScanDigits(LPCSTR next, char*& out)
{
    for (; IsDigit(*next) || *next == ' '; next++)
        if (*next != ' ')
            *out++ = *next;
    return next;
}

LPCSTR ScanExponent(LPCSTR next, LONGLONG& exponent, bool& wellFormed)
{
    const bool negative = *next == '-';
    if (*next == '+' || *next == '-')
        next++;
    wellFormed = false;
    for (; IsDigit(*next) || *next == ' '; next++)
    {
        if (*next == ' ')
            continue;
        wellFormed = true;
        exponent = std::min(exponent * 10 + (*next - '0'), kExponentLimit);
    }
    if (negative)
        exponent = -exponent;
    return next;
}

bool ScanReal(LPCSTR text, SDecimal& real)
{
    LPCSTR next = text;
    real.negative = *next == '-';
    if (real.negative)
        next++;
    char* const first = real.digits.GetBuffer(static_cast<int>(std::strlen(next)));
    char* last = first;
    next = ScanDigits(next, last);
    int decimals = 0;
    if (*next == '.')
    {
        const char* const whole = last;
        next = ScanDigits(next + 1, last);
        decimals = static_cast<int>(last - whole);
    }
    const int length = static_cast<int>(last - first);
    real.digits.ReleaseBuffer(length);
    bool wellFormed = length > 0;
    if (wellFormed && (*next == 'E' || *next == 'e'))
        next = ScanExponent(next + 1, real.exponent, wellFormed);
    real.exponent -= decimals;
    return wellFormed && *next == '\0';
}

void Normalize(SDecimal& real)
{
    int end = real.digits.GetLength();
    while (end > 0 && real.digits[end - 1] == '0')
        end--;
    int start = 0;
    while (start < end && real.digits[start] == '0')
        start++;
    real.exponent += real.digits.GetLength() - end;
    real.digits = real.digits.Mid(start, end - start);
}

// Compares the magnitude with d.dddddd x 10^exponent: below zero, zero, above zero.
int CompareMagnitude(const SDecimal& real, LPCSTR digits, LONGLONG exponent)
{
    const LONGLONG ownExponent = real.exponent + real.digits.GetLength() - 1;
    if (ownExponent != exponent)
        return ownExponent < exponent ? -1 : 1;
    return std::strcmp(real.digits, digits);
}

bool HasSingleMagnitude(const SDecimal& real)
{
    return CompareMagnitude(real, "3402823", 38) < 0 &&
           (real.exponent >= 0 || CompareMagnitude(real, "1175494", -38) >= 0);
}

bool IsSinglePrecision(const SDecimal& real) { return real.digits.GetLength() <= 7 && HasSingleMagnitude(real); }

} // namespace

SPackedReal UnpackReal(DWORD packed)
{
    return {(packed & kSignBit) != 0, packed & kMantissaMask,
            static_cast<int>((packed & ~kSignBit) >> kExponentShift) - kExponentBias};
}

char* FormatPackedReal(DWORD packed, char* buffer, BOOL exponentNotation)
{
    const auto [negative, mantissa, exponent] = UnpackReal(packed);
    const int shift = std::abs(exponent);
    CString text;
    text.Format("%u", static_cast<unsigned>(mantissa));
    const int length = text.GetLength();
    if (mantissa != 0)
    {
        if (exponentNotation)
            text.Format("%u%s%d", static_cast<unsigned>(mantissa), exponent < 0 ? "E-" : "E+", shift);
        else if (exponent >= 0)
            text += CString('0', shift);
        else if (length > shift)
            text = text.Left(length - shift) + "." + text.Mid(length - shift);
        else
            text = "0." + CString('0', shift - length) + text;
        if (negative)
            text = "-" + text;
    }
    std::snprintf(buffer, kPackedRealBuffer, "%s", static_cast<LPCSTR>(text));
    return buffer;
}

int ParsePackedReal(LPCSTR text, DWORD& packed, BYTE realMode, signed char sign)
{
    SDecimal real;
    if (!ScanReal(text, real))
        return 0;
    Normalize(real);
    if (real.digits.IsEmpty())
    {
        packed = 0;
        return 1;
    }
    if (realMode == 1 && !IsSinglePrecision(real))
        return 0;
    const LONGLONG mantissa = ParseEntry64(real.digits);
    const LONGLONG field = real.exponent + kExponentBias;
    if (mantissa > static_cast<LONGLONG>(kMantissaMask) || field < 0 || field > kHighestExponentField)
        return 0;
    const bool negative = sign < 0 ? real.negative : sign == 1;
    packed = static_cast<DWORD>(mantissa) | static_cast<DWORD>(field) << kExponentShift | (negative ? kSignBit : 0);
    return 1;
}

bool IsRealOutOfRange(LPCSTR text)
{
    SDecimal real;
    if (!ScanReal(text, real))
        return false;
    Normalize(real);
    return !real.digits.IsEmpty() && !HasSingleMagnitude(real);
}
