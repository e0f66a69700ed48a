#include "dialogs/base/WzdFormat.h"

#include "core/Values.h"

#include <climits>
#include <cstring>

bool WzdReadSigned(const SWzdFormat&, LPCSTR text, LONGLONG& value)
{
    BOOL ok = FALSE;
    const LONGLONG entry = ParseEntry64(text, &ok);
    if (ok)
        value = entry;
    return ok;
}

bool WzdReadUnsigned(const SWzdFormat& format, LPCSTR text, LONGLONG& value)
{
    return std::strchr(text, '-') == nullptr && WzdReadSigned(format, text, value);
}

bool WzdReadHexadecimal(const SWzdFormat&, LPCSTR text, LONGLONG& value)
{
    constexpr size_t kDigits = 8;
    const CString digits = Trimmed(text);
    BOOL ok = FALSE;
    const DWORD low = ParseHex32(digits, &ok);
    if (!ok || digits.IsEmpty())
        return false;
    const LPCSTR first = static_cast<LPCSTR>(digits) + std::strspn(digits, "0");
    value = std::strlen(first) <= kDigits ? low : LLONG_MAX;
    return true;
}

bool WzdReadFixed(const SWzdFormat& format, LPCSTR text, LONGLONG& value)
{
    return ParseFixed(text, format.whole, format.decimals, value);
}

CString WzdWriteDecimal(const SWzdFormat&, LONGLONG value) { return FormatDecimal64(value); }

CString WzdWriteHexadecimal(const SWzdFormat&, LONGLONG value)
{
    CString text;
    text.Format("%X", static_cast<unsigned>(value));
    return text;
}

CString WzdWriteFixed(const SWzdFormat& format, LONGLONG value) { return FormatFixed(value, format.decimals); }

CString WzdWriteFixedShort(const SWzdFormat& format, LONGLONG value)
{
    CString text = WzdWriteFixed(format, value);
    if (format.decimals > 0)
    {
        text.TrimRight('0');
        text.TrimRight('.');
    }
    return text;
}
