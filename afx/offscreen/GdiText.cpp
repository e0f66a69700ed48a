// Measuring text, and drawing it as far as tests can see.

#include "afx/offscreen/GdiState.h"

using namespace offscreen;

BOOL GetTextMetricsA(HDC dc, LPTEXTMETRICA metrics)
{
    Inside inside;
    const Dc* found = DcOf(dc);
    if (!found)
        return FALSE;
    const auto font = static_cast<HFONT>(found->font);
    const FontMetrics& source = MetricsOf(font);
    const LOGFONTA& logFont = LogFontOf(font);
    *metrics = {};
    metrics->tmHeight = source.height;
    metrics->tmAscent = source.ascent;
    metrics->tmDescent = source.height - source.ascent;
    metrics->tmInternalLeading = source.internalLeading;
    metrics->tmExternalLeading = source.externalLeading;
    metrics->tmAveCharWidth = source.averageWidth;
    metrics->tmMaxCharWidth = source.maximumWidth;
    metrics->tmWeight = logFont.lfWeight ? logFont.lfWeight : FW_NORMAL;
    metrics->tmDigitizedAspectX = 96;
    metrics->tmDigitizedAspectY = 96;
    metrics->tmFirstChar = 0x20;
    metrics->tmLastChar = 0xFF;
    metrics->tmDefaultChar = 0x1F;
    metrics->tmBreakChar = 0x20;
    metrics->tmItalic = logFont.lfItalic;
    metrics->tmUnderlined = logFont.lfUnderline;
    metrics->tmStruckOut = logFont.lfStrikeOut;
    metrics->tmPitchAndFamily = FF_SWISS | TMPF_FIXED_PITCH; // The bit is set for a variable pitch.
    metrics->tmCharSet = logFont.lfCharSet == DEFAULT_CHARSET ? ANSI_CHARSET : logFont.lfCharSet;
    return TRUE;
}

BOOL GetTextExtentPoint32A(HDC dc, LPCSTR text, int length, LPSIZE size)
{
    Inside inside;
    const Dc* found = DcOf(dc);
    if (!found || length < 0)
        return FALSE;
    const FontMetrics& metrics = MetricsOf(static_cast<HFONT>(found->font));
    *size = {TextWidth(metrics, View(text, length)), metrics.height};
    if (length == 0)
        size->cy = metrics.height;
    return TRUE;
}

BOOL TextOutA(HDC dc, int x, int y, LPCSTR text, int length)
{
    return ExtTextOutA(dc, x, y, 0, nullptr, text, static_cast<UINT>(length), nullptr);
}

BOOL ExtTextOutA(HDC dc, int x, int y, UINT options, const RECT* rect, LPCSTR text, UINT length, const INT*)
{
    Inside inside;
    Dc* found = DcOf(dc);
    if (found && rect && (options & ETO_OPAQUE))
        NoteRect(*found, *rect, found->backgroundColor);
    if (found && text && length)
        NoteText(*found, x, y, std::string_view(text, length));
    return found != nullptr;
}

namespace
{
// The lines that DrawText breaks a text into.
std::vector<std::string_view> BreakLines(const FontMetrics& metrics, std::string_view text, int width, UINT format)
{
    if (format & DT_SINGLELINE)
        return {text};
    std::vector<std::string_view> lines;
    while (!text.empty())
    {
        const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
        std::string_view paragraph = text.substr(0, end);
        const bool crlf = text.substr(end, 2) == "\r\n";
        text.remove_prefix(std::min(end + (crlf ? 2 : 1), text.size()));
        do
        {
            std::size_t fitting = paragraph.size();
            if ((format & DT_WORDBREAK) && TextWidth(metrics, paragraph) > width)
            {
                std::size_t space = paragraph.find(' ');
                fitting = std::min(space, paragraph.size());
                while (space != std::string_view::npos && TextWidth(metrics, paragraph.substr(0, space)) <= width)
                {
                    fitting = space;
                    space = paragraph.find(' ', space + 1);
                }
            }
            lines.push_back(paragraph.substr(0, fitting));
            paragraph.remove_prefix(std::min(paragraph.find_first_not_of(' ', fitting), paragraph.size()));
        } while (!paragraph.empty());
    }
    return lines;
}
} // namespace

int DrawTextA(HDC dc, LPCSTR text, int length, LPRECT rect, UINT format)
{
    Inside inside;
    const Dc* found = DcOf(dc);
    if (!found || !text)
        return 0;
    const FontMetrics& metrics = MetricsOf(static_cast<HFONT>(found->font));
    std::string shown(View(text, length));
    if (!(format & DT_NOPREFIX))
        shown = WithoutMnemonic(shown);
    const auto lines = BreakLines(metrics, shown, rect->right - rect->left, format);
    const int lineHeight = metrics.height + (format & DT_EXTERNALLEADING ? metrics.externalLeading : 0);
    int height = static_cast<int>(lines.size()) * lineHeight;
    int widest = 0;
    for (std::string_view line : lines)
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
    for (std::string_view line : lines)
    {
        const int room = rect->right - rect->left - TextWidth(metrics, line);
        NoteText(*found, rect->left + (format & DT_CENTER ? room / 2 : format & DT_RIGHT ? room : 0), y, line);
        y += lineHeight;
    }
    return y - rect->top;
}
