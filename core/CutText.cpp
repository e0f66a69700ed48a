// Cutting texts where characters end.
#include "afx/System.h"
#include "core/Values.h"

#include <algorithm>

CString LeftWhole(const CString& text, int bytes)
{
    if (text.GetLength() <= bytes)
        return text;
    int length = 0;
    for (int next = 0; next <= bytes; next += AfxCharLength(static_cast<LPCSTR>(text) + next))
        length = next;
    return text.Left(length);
}

CString FitEntered(const CString& entered, const CString& before, int bytes)
{
    int same = 0;
    while (same < before.GetLength() && entered[same] == before[same])
        ++same;
    const int rest = before.GetLength() - same;
    const bool isPutBefore = rest > 0 && entered.Right(rest) == before.Right(rest);
    return entered.GetLength() > bytes && isPutBefore ? before : LeftWhole(entered, bytes);
}

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
