// Measuring text, and drawing it as far as tests can see.

#include "afx/offscreen/GdiState.h"

using namespace offscreen;

namespace
{
template <class Metrics>
BOOL FillMetrics(HDC dc, Metrics& metrics)
{
    const Dc* found = DcOf(dc);
    if (!found)
        return FALSE;
    const auto font = static_cast<HFONT>(found->font);
    const FontMetrics& source = MetricsOf(font);
    const LOGFONTW& logFont = LogFontOf(font);
    metrics = {};
    metrics.tmHeight = source.height;
    metrics.tmAscent = source.ascent;
    metrics.tmDescent = source.height - source.ascent;
    metrics.tmInternalLeading = source.internalLeading;
    metrics.tmExternalLeading = source.externalLeading;
    metrics.tmAveCharWidth = source.averageWidth;
    metrics.tmMaxCharWidth = source.maximumWidth;
    metrics.tmWeight = logFont.lfWeight ? logFont.lfWeight : FW_NORMAL;
    metrics.tmDigitizedAspectX = 96;
    metrics.tmDigitizedAspectY = 96;
    metrics.tmFirstChar = 0x20;
    metrics.tmLastChar = 0xFF;
    metrics.tmDefaultChar = 0x1F;
    metrics.tmBreakChar = 0x20;
    metrics.tmItalic = logFont.lfItalic;
    metrics.tmUnderlined = logFont.lfUnderline;
    metrics.tmStruckOut = logFont.lfStrikeOut;
    metrics.tmPitchAndFamily = FF_SWISS | TMPF_FIXED_PITCH; // The bit is set for a variable pitch.
    metrics.tmCharSet = logFont.lfCharSet == DEFAULT_CHARSET ? ANSI_CHARSET : logFont.lfCharSet;
    return TRUE;
}

BOOL Measure(HDC dc, std::u16string_view text, SIZE& size)
{
    const Dc* found = DcOf(dc);
    if (!found)
        return FALSE;
    const FontMetrics& metrics = MetricsOf(static_cast<HFONT>(found->font));
    size = {TextWidth(metrics, text), metrics.height};
    return TRUE;
}

BOOL Output(HDC dc, int x, int y, UINT options, const RECT* rect, std::u16string_view text)
{
    Dc* found = DcOf(dc);
    if (found && rect && (options & ETO_OPAQUE))
        NoteRect(*found, *rect, found->backgroundColor);
    if (found && !text.empty())
        NoteText(*found, x, y, text);
    return found != nullptr;
}
} // namespace

BOOL GetTextMetricsA(HDC dc, LPTEXTMETRICA metrics)
{
    Inside inside;
    return FillMetrics(dc, *metrics);
}

BOOL GetTextMetricsW(HDC dc, LPTEXTMETRICW metrics)
{
    Inside inside;
    return FillMetrics(dc, *metrics);
}

BOOL GetTextExtentPoint32A(HDC dc, LPCSTR text, int length, LPSIZE size)
{
    Inside inside;
    return length >= 0 && Measure(dc, ToWide(View(text, length)), *size);
}

BOOL GetTextExtentPoint32W(HDC dc, LPCWSTR text, int length, LPSIZE size)
{
    Inside inside;
    return length >= 0 && Measure(dc, View(text, length), *size);
}

BOOL TextOutA(HDC dc, int x, int y, LPCSTR text, int length)
{
    return ExtTextOutA(dc, x, y, 0, nullptr, text, static_cast<UINT>(length), nullptr);
}

BOOL TextOutW(HDC dc, int x, int y, LPCWSTR text, int length)
{
    return ExtTextOutW(dc, x, y, 0, nullptr, text, static_cast<UINT>(length), nullptr);
}

BOOL ExtTextOutA(HDC dc, int x, int y, UINT options, const RECT* rect, LPCSTR text, UINT length, const INT*)
{
    Inside inside;
    return Output(dc, x, y, options, rect, text ? ToWide({text, length}) : std::u16string());
}

BOOL ExtTextOutW(HDC dc, int x, int y, UINT options, const RECT* rect, LPCWSTR text, UINT length, const INT*)
{
    Inside inside;
    return Output(dc, x, y, options, rect, text ? std::u16string_view(text, length) : std::u16string_view());
}

namespace
{
// The first place behind `from` at which a line may end.
std::size_t NextLineEnd(std::u16string_view text, std::size_t from)
{
    for (std::size_t end = from + 1; end < text.size(); ++end)
        if (text[end] == u' ' || MayBreakBetween(text[end - 1], text[end]))
            return end;
    return text.size();
}

// How much of a paragraph fits in a line; at least its first word does.
std::size_t FittingLength(const FontMetrics& metrics, std::u16string_view paragraph, int width)
{
    std::size_t fitting = 0;
    int used = 0;
    while (fitting < paragraph.size())
    {
        const std::size_t end = NextLineEnd(paragraph, fitting);
        used += TextWidth(metrics, paragraph.substr(fitting, end - fitting));
        if (used > width && fitting > 0)
            break;
        fitting = end;
    }
    return fitting;
}

// The lines that DrawText breaks a text into.
std::vector<std::u16string_view> BreakLines(const FontMetrics& metrics, std::u16string_view text, int width,
                                            UINT format)
{
    if (format & DT_SINGLELINE)
        return {text};
    std::vector<std::u16string_view> lines;
    while (!text.empty())
    {
        const std::size_t end = std::min(text.find_first_of(u"\r\n"), text.size());
        std::u16string_view paragraph = text.substr(0, end);
        const bool crlf = text.substr(end, 2) == u"\r\n";
        text.remove_prefix(std::min(end + (crlf ? 2 : 1), text.size()));
        do
        {
            const std::size_t fitting =
                format & DT_WORDBREAK ? FittingLength(metrics, paragraph, width) : paragraph.size();
            lines.push_back(paragraph.substr(0, fitting));
            paragraph.remove_prefix(std::min(paragraph.find_first_not_of(' ', fitting), paragraph.size()));
        } while (!paragraph.empty());
    }
    return lines;
}

int Draw(HDC dc, std::u16string_view text, LPRECT rect, UINT format)
{
    const Dc* found = DcOf(dc);
    if (!found)
        return 0;
    const FontMetrics& metrics = MetricsOf(static_cast<HFONT>(found->font));
    std::u16string shown(text);
    if (!(format & DT_NOPREFIX))
        shown = WithoutMnemonic(shown);
    const auto lines = BreakLines(metrics, shown, rect->right - rect->left, format);
    const int lineHeight = metrics.height + (format & DT_EXTERNALLEADING ? metrics.externalLeading : 0);
    int height = static_cast<int>(lines.size()) * lineHeight;
    int widest = 0;
    for (std::u16string_view line : lines)
        widest = std::max(widest, TextWidth(metrics, line));
    if (format & DT_CALCRECT)
    {
        rect->right = rect->left + widest;
        rect->bottom = rect->top + height;
        return height;
    }
    int y = rect->top;
    if (format & DT_SINGLELINE)
    {
        const int room = rect->bottom - rect->top - height;
        y += format & DT_VCENTER ? room / 2 : format & DT_BOTTOM ? room : 0;
    }
    for (std::u16string_view line : lines)
    {
        const int room = rect->right - rect->left - TextWidth(metrics, line);
        NoteText(*found, rect->left + (format & DT_CENTER ? room / 2 : format & DT_RIGHT ? room : 0), y, line);
        y += lineHeight;
    }
    return y - rect->top;
}
} // namespace

int DrawTextA(HDC dc, LPCSTR text, int length, LPRECT rect, UINT format)
{
    Inside inside;
    return text ? Draw(dc, ToWide(View(text, length)), rect, format) : 0;
}

int DrawTextW(HDC dc, LPCWSTR text, int length, LPRECT rect, UINT format)
{
    Inside inside;
    return text ? Draw(dc, View(text, length), rect, format) : 0;
}
