#include "core/Values.h"

#include "afx/System.h"
#include "core/Devices.h"
#include "resources/resource.h"

#include <algorithm>
#include <cctype>
#include <climits>
#include <cstdio>
#include <cstring>

namespace
{

constexpr int kHighestBitNumber = 15999;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

void Report(BOOL* ok, BOOL success)
{
    if (ok != nullptr)
        *ok = success;
}

int ClampToInt(LONGLONG value) { return static_cast<int>(std::clamp<LONGLONG>(value, INT_MIN, INT_MAX)); }

ULONGLONG AppendWrapping(ULONGLONG magnitude, unsigned digit) { return magnitude * 10 + digit; }

// Magnitudes stop at 2^63, the largest that a sign can make a 64-bit value of.
ULONGLONG AppendSaturating(ULONGLONG magnitude, unsigned digit)
{
    constexpr ULONGLONG kLimit = 1ULL << 63;
    return magnitude > (kLimit - digit) / 10 ? kLimit : magnitude * 10 + digit;
}

// The magnitude and the sign of a decimal text; false when the text is malformed.
template <typename TAppend>
bool ScanDecimal(LPCSTR text, TAppend append, ULONGLONG& magnitude, bool& negative)
{
    const CString trimmed = Trimmed(text);
    LPCSTR next = trimmed;
    negative = *next == '-';
    magnitude = 0;
    if (trimmed.IsEmpty())
        return false;
    if (negative)
        next++;
    for (; IsDigit(*next); next++)
        magnitude = append(magnitude, static_cast<unsigned>(*next - '0'));
    return *next == '\0';
}

int HexDigit(char c)
{
    if (IsDigit(c))
        return c - '0';
    const char upper = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return upper >= 'A' && upper <= 'F' ? upper - 'A' + 10 : -1;
}

char HexCharacter(int digit) { return static_cast<char>(digit < 10 ? '0' + digit : 'A' + digit - 10); }

} // namespace

CString Trimmed(LPCSTR text)
{
    CString trimmed(text);
    trimmed.TrimLeft();
    trimmed.TrimRight();
    return trimmed;
}

// ---- Whole numbers --------------------------------------------------------------------------------------------------

LONGLONG ParseDecimal64(LPCSTR text, BOOL* ok)
{
    ULONGLONG magnitude;
    bool negative;
    const bool wellFormed = ScanDecimal(text, AppendWrapping, magnitude, negative);
    Report(ok, wellFormed);
    if (!wellFormed)
        return 0;
    return static_cast<LONGLONG>(negative ? 0 - magnitude : magnitude);
}

LONGLONG ParseEntry64(LPCSTR text, BOOL* ok)
{
    ULONGLONG magnitude;
    bool negative;
    const bool wellFormed = ScanDecimal(text, AppendSaturating, magnitude, negative);
    Report(ok, wellFormed);
    if (!wellFormed)
        return 0;
    if (negative)
        return static_cast<LONGLONG>(0 - magnitude);
    return static_cast<LONGLONG>(std::min<ULONGLONG>(magnitude, LLONG_MAX));
}

DWORD ParseHex32(LPCSTR text, BOOL* ok)
{
    const CString trimmed = Trimmed(text);
    LPCSTR next = trimmed;
    DWORD value = 0;
    for (int digit; (digit = HexDigit(*next)) >= 0; next++)
        value = value << 4 | static_cast<DWORD>(digit);
    Report(ok, *next == '\0');
    return value;
}

CString FormatDecimal64(LONGLONG value)
{
    CString text;
    text.Format("%I64d", value);
    return text;
}

CString FormatHex32(DWORD value)
{
    CString text;
    text.Format("%08X", static_cast<unsigned>(value));
    return text;
}

BOOL ParseFixed(LPCSTR text, int whole, int decimals, LONGLONG& value)
{
    CString trimmed = Trimmed(text);
    if (trimmed.FindOneOf("0123456789") < 0)
        return FALSE;
    if (trimmed.Find('.') >= 0)
        trimmed.TrimRight('0');
    LONGLONG magnitude = 0;
    int missing = decimals;
    bool behindPoint = false;
    for (LPCSTR next = trimmed; *next != '\0'; next++)
    {
        if (*next == '.' && !behindPoint)
        {
            behindPoint = true;
            continue;
        }
        if (!IsDigit(*next) || (behindPoint ? --missing : --whole) < 0)
            return FALSE;
        magnitude = magnitude * 10 + (*next - '0');
    }
    while (missing-- > 0)
        magnitude *= 10;
    value = magnitude;
    return TRUE;
}

CString FormatFixed(LONGLONG value, int decimals)
{
    const bool negative = value < 0;
    CString digits = FormatDecimal64(value);
    if (negative)
        digits = digits.Mid(1);
    while (digits.GetLength() <= decimals)
        digits = "0" + digits;
    const int whole = digits.GetLength() - decimals;
    const CString fraction = decimals > 0 ? "." + digits.Mid(whole) : CString();
    return (negative ? "-" : "") + digits.Left(whole) + fraction;
}

// ---- Device numbers -------------------------------------------------------------------------------------------------

int FormatBitDeviceNumber(int number, char* buffer, BOOL compact)
{
    if (number < 0 || number > kHighestBitNumber)
        return 0;
    const int word = number >> 4;
    const char bit = HexCharacter(number & 15);
    if (word != 0)
        std::sprintf(buffer, compact ? "%d%c" : "%3d%c", word, bit);
    else
        std::sprintf(buffer, compact ? "%c" : "   %c", bit);
    return 1;
}

int ParseBitDeviceNumber(LPCSTR text, int& number)
{
    const size_t length = std::strlen(text);
    if (length == 0)
        return 0;
    const char last = text[length - 1];
    const int bit = last == ' ' ? 0 : HexDigit(last);
    if (bit < 0)
        return 0;
    LONGLONG word = 0;
    for (LPCSTR next = text; next != text + length - 1; next++)
    {
        if (IsDigit(*next))
            word = std::min<LONGLONG>(word * 10 + (*next - '0'), INT_MAX);
        else if (*next != ' ')
            return 0;
    }
    number = ClampToInt(word * 16 + bit);
    return 1;
}

CString FormatDeviceName(short code)
{
    CString name;
    const int index = DeviceIndex(code);
    if (index >= 0)
        name.LoadString(IDS_DEVICE_X + index);
    return name;
}

namespace
{

EBitKind BitKind(short code)
{
    const SDeviceKind* device = DeviceAt(DeviceIndex(code));
    return device != nullptr ? static_cast<EBitKind>(device->bitKind) : kWordDevice;
}

} // namespace

CString FormatDeviceNumber(short code, int number)
{
    char buffer[kPackedRealBuffer];
    if (BitKind(code) == kBitDevice && FormatBitDeviceNumber(number, buffer, TRUE))
        return buffer;
    if (code == kDeviceReal)
        return FormatPackedReal(static_cast<DWORD>(number), buffer, FALSE);
    CString text;
    text.Format(code == kDeviceH ? "%X" : "%d", number);
    return text;
}

BOOL ParseDeviceNumber(short code, LPCSTR text, int& number)
{
    if (BitKind(code) == kBitDevice)
        return ParseBitDeviceNumber(Trimmed(text), number);
    BOOL ok = FALSE;
    LONGLONG value = 0;
    if (code == kDeviceH)
        value = static_cast<int>(ParseHex32(text, &ok));
    else if (code == kDeviceReal)
    {
        DWORD packed = 0;
        ok = ParsePackedReal(Trimmed(text), packed, 0, -1);
        value = static_cast<int>(packed);
    }
    else
        value = ParseEntry64(text, &ok);
    if (ok)
        number = ClampToInt(value);
    return ok;
}

// ---- Packed real numbers --------------------------------------------------------------------------------------------

namespace
{

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

bool IsSinglePrecision(const SDecimal& real)
{
    return real.digits.GetLength() <= 7 && CompareMagnitude(real, "3402823", 38) < 0 &&
           (real.exponent >= 0 || CompareMagnitude(real, "1175494", -38) >= 0);
}

} // namespace

char* FormatPackedReal(DWORD packed, char* buffer, BOOL exponentNotation)
{
    const DWORD mantissa = packed & kMantissaMask;
    const int exponent = static_cast<int>((packed & ~kSignBit) >> kExponentShift) - kExponentBias;
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
        if ((packed & kSignBit) != 0)
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

// ---- Line breaking --------------------------------------------------------------------------------------------------

namespace
{

// The length of the longest beginning of the text that fits, cut after a blank where there is one.
int FittingLength(CDC* dc, int width, LPCSTR text)
{
    int afterBlank = 0;
    int end = 0;
    while (text[end] != '\0')
    {
        const int length = AfxCharLength(text + end);
        if (dc->GetTextExtent(text, end + length).cx > width)
        {
            const bool breakAtBlank = afterBlank > 0 && length == 1;
            return std::max(breakAtBlank ? afterBlank : end, end == 0 ? length : 1);
        }
        if (text[end] == ' ')
            afterBlank = end + 1;
        end += length;
    }
    return end;
}

} // namespace

CString TakeFittingLine(CDC* dc, int width, CString& text)
{
    const int lineBreak = text.Find("\r\n");
    const bool isSetAside = lineBreak >= 0;
    const CString setAside = isSetAside ? text.Mid(lineBreak + 2) : CString();
    CString rest = isSetAside ? text.Left(lineBreak) : text;
    const int length = FittingLength(dc, width, rest);
    CString line = rest.Left(length);
    rest = rest.Mid(length);
    if (isSetAside)
        text = rest.IsEmpty() ? setAside : rest + "\r\n" + setAside;
    else
        text = rest;
    return line;
}
