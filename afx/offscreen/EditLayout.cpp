// The layout of an edit: lines, scrolling, and where a character is.

#include "afx/offscreen/EditState.h"

namespace offscreen::edit
{
void UpdateFormat(Window& edit)
{
    EditState& state = Of(edit);
    const int lineHeight = MetricsOf(edit.font).height;
    RECT format = ClientRectOf(edit);
    if (edit.exStyle & WS_EX_CLIENTEDGE)
        InflateRect(&format, -1, format.bottom - format.top >= lineHeight + 2 ? -1 : 0);
    else if (edit.style & WS_BORDER)
        InflateRect(&format, -2, format.bottom - format.top >= lineHeight + 4 ? -2 : 0);
    format.right = std::max(format.right, format.left);
    if (IsMultiLine(edit))
        format.bottom = format.top + std::max((format.bottom - format.top) / lineHeight, 1) * lineHeight;
    else
        format.bottom = format.top + lineHeight;
    state.format = format;
    state.linesValid = false;
}

int FormatWidth(const Window& edit)
{
    const RECT& format = Of(const_cast<Window&>(edit)).format;
    return format.right - format.left;
}

const EditLines& LinesOf(Window& edit)
{
    EditState& state = Of(edit);
    if (!state.linesValid)
    {
        const bool wraps = !(edit.style & (ES_AUTOHSCROLL | WS_HSCROLL));
        if (IsMultiLine(edit))
            state.lines.Break(edit.text, MetricsOf(edit.font), wraps ? FormatWidth(edit) : EditLines::kNoWrapping);
        state.linesValid = true;
    }
    return state.lines;
}

int LineCount(Window& edit) { return IsMultiLine(edit) ? LinesOf(edit).Count() : 1; }

int LineOf(Window& edit, int position) { return IsMultiLine(edit) ? LinesOf(edit).LineOf(position) : 0; }

int VisibleLines(Window& edit)
{
    const RECT& format = Of(edit).format;
    return std::max((format.bottom - format.top) / MetricsOf(edit.font).height, 1);
}

namespace
{
int WidthBetween(const Window& edit, int from, int to)
{
    const std::u16string_view text = edit.text;
    return TextWidth(MetricsOf(edit.font),
                     text.substr(static_cast<std::size_t>(from), static_cast<std::size_t>(to - from)));
}
} // namespace

void ScrollToCaret(Window& edit)
{
    EditState& state = Of(edit);
    if (IsMultiLine(edit))
    {
        const int line = LineOf(edit, state.caret);
        if (line < state.scrolled)
            state.scrolled = line;
        else if (line >= state.scrolled + VisibleLines(edit))
            state.scrolled = line - VisibleLines(edit) + 1;
        return;
    }
    if (state.caret < state.scrolled)
        state.scrolled = state.caret;
    // Measured once as a whole: texts can be a mebibyte long.
    int width = WidthBetween(edit, state.scrolled, state.caret);
    while (state.scrolled < state.caret && width > FormatWidth(edit))
    {
        width -= WidthBetween(edit, state.scrolled, state.scrolled + 1);
        ++state.scrolled;
    }
}

int IndexAt(Window& edit, POINT point)
{
    const EditState& state = Of(edit);
    int start = state.scrolled;
    int end = LengthOf(edit);
    if (IsMultiLine(edit))
    {
        const EditLines& lines = LinesOf(edit);
        const int line = std::clamp(state.scrolled + (point.y - state.format.top) / MetricsOf(edit.font).height, 0,
                                    lines.Count() - 1);
        start = lines.StartOf(line);
        end = start + lines.LengthOf(line);
    }
    int index = start;
    int x = state.format.left;
    while (index < end)
    {
        const int width = WidthBetween(edit, index, index + 1);
        if (point.x < x + (width + 1) / 2)
            break;
        x += width;
        ++index;
    }
    return index;
}
} // namespace offscreen::edit
