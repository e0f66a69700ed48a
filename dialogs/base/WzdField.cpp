#include "dialogs/base/WzdField.h"

#include "core/Values.h"

BOOL SWzdFormat::Parse(LPCSTR text, LONGLONG& value) const
{
    if (whole > 0)
        return ParseFixed(text, whole, decimals, value);
    BOOL ok = FALSE;
    const LONGLONG entry = ParseEntry64(text, &ok);
    if (ok)
        value = entry;
    return ok;
}

CString SWzdFormat::Format(LONGLONG value) const
{
    CString text = FormatFixed(value, decimals);
    if (decimals > 0)
    {
        text.TrimRight('0');
        text.TrimRight('.');
    }
    return text;
}
