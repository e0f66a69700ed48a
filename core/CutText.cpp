// Cutting texts where characters end.
#include "afx/System.h"
#include "core/Values.h"

#include <algorithm>
#include <iterator>

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

// Characters that no line begins with: closing punctuation, and the Thai vowels and marks that stand above or below a
// consonant or go with the one before.
bool BeginsNoLine(WCHAR c)
{
    constexpr WCHAR kClosing[] = {'!',    '%',    ')',    ',',    '.',    ':',    ';',    '?',
                                  ']',    0x2019, 0x201D, 0x2026, 0x3001, 0x3002, 0x3005, 0x3009,
                                  0x300B, 0x300D, 0x300F, 0x3011, 0x3015, 0x30FC, 0xFF01, 0xFF09,
                                  0xFF0C, 0xFF0E, 0xFF1A, 0xFF1B, 0xFF1F, 0xFF3D, 0xFF5D};
    const bool isThaiMark = (c >= 0x0E30 && c <= 0x0E3A) || (c >= 0x0E45 && c <= 0x0E4E);
    return isThaiMark || std::find(std::begin(kClosing), std::end(kClosing), c) != std::end(kClosing);
}

// Characters that no line ends with: opening brackets, and the Thai vowels that are written before their consonant.
bool EndsNoLine(WCHAR c)
{
    constexpr WCHAR kOpening[] = {'(',    '[',    0x2018, 0x201C, 0x3008, 0x300A, 0x300C,
                                  0x300E, 0x3010, 0x3014, 0xFF08, 0xFF3B, 0xFF5B};
    const bool isThaiVowel = c >= 0x0E40 && c <= 0x0E44;
    return isThaiVowel || std::find(std::begin(kOpening), std::end(kOpening), c) != std::end(kOpening);
}

// Of a script that separates its words by blanks, or punctuation that goes with any.
bool IsWestern(WCHAR c) { return c < 0x0E00 || (c >= 0x2000 && c < 0x2C00); }

WCHAR WideCharacter(LPCSTR text, int length)
{
    const CWideText wide(text, length);
    return wide.GetLength() > 0 ? static_cast<LPCWSTR>(wide)[0] : WCHAR{};
}

bool MayBreakBetween(WCHAR before, WCHAR after)
{
    const bool isInWord = before != ' ' && IsWestern(before) && IsWestern(after);
    return !isInWord && !EndsNoLine(before) && !BeginsNoLine(after);
}

int StartOfCharacterBefore(LPCSTR text, int end)
{
    int start = 0;
    for (int next = 0; next < end; next += AfxCharLength(text + next))
        start = next;
    return start;
}

// The last place up to `end` where the line may be broken; `end` itself where a few characters before it have none, as
// inside a long word.
int BreakUpTo(LPCSTR text, int end)
{
    constexpr int kFarthest = 8;
    int place = end;
    for (int steps = 0; steps <= kFarthest && place > 0; ++steps)
    {
        const int before = StartOfCharacterBefore(text, place);
        if (MayBreakBetween(WideCharacter(text + before, place - before),
                            WideCharacter(text + place, AfxCharLength(text + place))))
            return place;
        place = before;
    }
    return end;
}

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
            if (end == 0)
                return length;
            return afterBlank > 0 && length == 1 ? afterBlank : BreakUpTo(text, end);
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
