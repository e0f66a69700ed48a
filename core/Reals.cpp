#include "core/Reals.h"

#include "core/Values.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace
{

constexpr int kMostDigits = 7;
constexpr char kLargest[] = "3.402822e+38";
constexpr char kSmallest[] = "1.175494e-38";
constexpr double kNearerToSmallest = 1.175494e-38 / 2;

/// d.ddd x 10^exponent, without the point and without zeros at the end.
struct SDigits
{
    char digits[kMostDigits + 1];
    int length;
    int exponent;
};

// The C library rounds as it should; what it takes for a decimal point depends on the locale.
SDigits Rounded(float magnitude, int digits)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.*e", digits - 1, static_cast<double>(magnitude));
    SDigits parts = {};
    const char* next = text;
    for (; *next != 'e'; ++next)
        if (*next >= '0' && *next <= '9')
            parts.digits[parts.length++] = *next;
    parts.exponent = std::atoi(next + 1);
    while (parts.length > 1 && parts.digits[parts.length - 1] == '0')
        parts.digits[--parts.length] = '\0';
    return parts;
}

float ValueOf(const SDigits& parts)
{
    char text[32];
    std::snprintf(text, sizeof text, "%se%d", parts.digits, parts.exponent - parts.length + 1);
    return std::strtof(text, nullptr);
}

// A text of fewer digits is what the number is rounded to with one digit less; two roundings find the shortest.
SDigits ShortestDigits(float magnitude)
{
    const SDigits nearest = Rounded(magnitude, kMostDigits);
    const SDigits shorter = Rounded(magnitude, kMostDigits - 1);
    return nearest.length == kMostDigits && ValueOf(shorter) == magnitude ? shorter : nearest;
}

CString PlainText(const SDigits& parts)
{
    const CString digits = parts.digits;
    const int whole = parts.exponent + 1;
    if (whole <= 0)
        return "0." + CString('0', -whole) + digits;
    return whole >= parts.length ? digits + CString('0', whole - parts.length)
                                 : digits.Left(whole) + "." + digits.Mid(whole);
}

CString ExponentText(const SDigits& parts)
{
    CString text;
    text.Format("%c%s%se%s%d", parts.digits[0], parts.length > 1 ? "." : "", parts.digits + 1,
                parts.exponent < 0 ? "-" : "+", std::abs(parts.exponent));
    return text;
}

// With an exponent where there would be many zeros and it saves some.
CString TextOf(const SDigits& parts)
{
    constexpr int kMostZerosAhead = 4;
    const CString plain = PlainText(parts);
    const int whole = parts.exponent + 1;
    if (whole <= kMostDigits && whole > -kMostZerosAhead)
        return plain;
    const CString withExponent = ExponentText(parts);
    return withExponent.GetLength() < plain.GetLength() ? withExponent : plain;
}

// Of a number above 0.
CString NearestText(float magnitude)
{
    const CString text = std::isfinite(magnitude) ? TextOf(ShortestDigits(magnitude)) : CString();
    float read;
    if (ParseReal(text, read))
        return text;
    if (magnitude > 1)
        return kLargest;
    return magnitude < kNearerToSmallest ? "0" : kSmallest;
}

} // namespace

bool ParseReal(LPCSTR text, float& value)
{
    DWORD packed;
    if (!ParsePackedReal(Trimmed(text), packed, 1, -1))
        return false;
    const SPackedReal real = UnpackReal(packed);
    char plain[32]; // without a point, which the locale has a say in
    std::snprintf(plain, sizeof plain, "%s%ue%d", real.negative ? "-" : "", static_cast<unsigned>(real.mantissa),
                  real.exponent);
    value = std::strtof(plain, nullptr);
    return true;
}

CString FormatReal(float value)
{
    if (std::isnan(value))
        return {};
    if (value == 0)
        return "0";
    const CString text = NearestText(std::fabs(value));
    return value < 0 && text != "0" ? "-" + text : text;
}
