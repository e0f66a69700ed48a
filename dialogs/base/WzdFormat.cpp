#include "dialogs/base/WzdFormat.h"

#include "core/Values.h"

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

bool WzdReadFixed(const SWzdFormat& format, LPCSTR text, LONGLONG& value)
{
    return ParseFixed(text, format.whole, format.decimals, value);
}

CString WzdWriteDecimal(const SWzdFormat&, LONGLONG value) { return FormatDecimal64(value); }

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
