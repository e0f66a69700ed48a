#include "core/Values.h"

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
