#include "dialogs/process/ScreenDrawing.h"

#include "dialogs/process/Fill.h"
#include "dialogs/process/MarkShape.h"

#include <algorithm>

// ---- Where everything stands ----------------------------------------------------------------------------------------

CScreenLayout::CScreenLayout(const CRect& place, int nameHeight)
{
    const int gap = std::max<int>(place.Height() / 24, 2);
    CRect inner = place;
    inner.DeflateRect(gap, gap);
    m_name = inner;
    m_name.bottom = m_name.top + (nameHeight * 4 <= inner.Height() ? nameHeight : 0);
    m_marks = inner;
    m_marks.top = m_name.bottom + gap;
    m_marks.bottom = m_marks.top + inner.Height() / 8;
    m_lines = inner;
    m_lines.top = m_marks.bottom + gap;
}

CRect CScreenLayout::Mark(int position) const
{
    const int pitch = m_marks.Width() / kScreenMarks;
    const int side = std::min(pitch, m_marks.Height());
    const int left = m_marks.left + position * pitch + (pitch - side) / 2;
    return {left, m_marks.top, left + side, m_marks.top + side};
}

// A digit takes two thirds of its place: beside it are its points.
CRect CScreenLayout::Digit(int line, int position) const
{
    const int height = m_lines.Height() * 9 / 20;
    const int pitch = std::min(m_lines.Width() / kScreenDigits, height);
    const int width = pitch * 13 / 20;
    const int top = line == kUpsideLine ? m_lines.top : m_lines.bottom - height;
    const int left =
        m_lines.left + (m_lines.Width() - kScreenDigits * pitch) / 2 + position * pitch + (pitch - width) / 2;
    return {left, top, left + width, top + height};
}

int CScreenLayout::Thickness() const { return std::max<int>(Digit(kUpsideLine, 0).Width() / 5, 2); }

std::array<POINT, 6> CScreenLayout::Segment(int line, int position, int segment) const
{
    /// The ends of a segment, in columns and half heights of the digit.
    struct SEnds
    {
        int fromX, fromY, toX, toY;
    };
    static constexpr SEnds kEnds[kSegments] = {{0, 0, 1, 0}, {1, 0, 1, 1}, {1, 1, 1, 2}, {0, 2, 1, 2},
                                               {0, 1, 0, 2}, {0, 0, 0, 1}, {0, 1, 1, 1}};
    const CRect digit = Digit(line, position);
    const LONG half = std::max(Thickness() / 2, 1);
    const auto x = [&](int column) { return column == 0 ? digit.left + half : digit.right - half; };
    const auto y = [&](int row) {
        return row == 0 ? digit.top + half : row == 1 ? digit.CenterPoint().y : digit.bottom - half;
    };
    constexpr LONG kGap = 1; // between neighbours
    const SEnds& ends = kEnds[segment];
    const POINT from = {x(ends.fromX), y(ends.fromY)}, to = {x(ends.toX), y(ends.toY)};
    if (ends.fromY == ends.toY)
        return {{{from.x + kGap, from.y},
                 {from.x + kGap + half, from.y - half},
                 {to.x - kGap - half, from.y - half},
                 {to.x - kGap, from.y},
                 {to.x - kGap - half, from.y + half},
                 {from.x + kGap + half, from.y + half}}};
    return {{{from.x, from.y + kGap},
             {from.x + half, from.y + kGap + half},
             {from.x + half, to.y - kGap - half},
             {from.x, to.y - kGap},
             {from.x - half, to.y - kGap - half},
             {from.x - half, from.y + kGap + half}}};
}

CRect CScreenLayout::Point(int line, int position) const
{
    const CRect digit = Digit(line, position);
    const int size = std::max(Thickness(), 3);
    const int left = digit.right + std::max(size / 4, 1);
    return {left, digit.bottom - size, left + size, digit.bottom};
}

CRect CScreenLayout::UpperPoint(int line, int position) const
{
    const CRect point = Point(line, position);
    const int top = Digit(line, position).top;
    return {point.left, top, point.right, top + point.Height()};
}

// ---- Drawing --------------------------------------------------------------------------------------------------------

COLORREF ScreenColor(DWORD color)
{
    switch (color)
    {
    case kScreenRed:
        return RGB(255, 56, 40);
    case kScreenOrange:
        return RGB(255, 160, 24);
    default:
        return RGB(56, 240, 88);
    }
}

namespace
{

/// What is lit of a screen, or what is not.
class CScreenPainter
{
public:
    CScreenPainter(CDC& dc, const CScreenLayout& layout, bool lit) : m_dc(dc), m_layout(layout), m_lit(lit) {}

    void DrawMarks(const SScreenSettings& settings)
    {
        const CFill fill(m_dc, m_lit ? kScreenMark : kScreenDark);
        for (int position = 0; position < kScreenMarks; ++position)
            if (const int mark = kMarkOrder[static_cast<size_t>(position)]; settings.IsMarkShown(mark) == m_lit)
                DrawMark(m_dc, mark, m_layout.Mark(position));
    }

    void DrawLine(int index, const SScreenLine& line)
    {
        const CFill fill(m_dc, m_lit ? ScreenColor(line.Get(kScreenColor)) : kScreenDark);
        const SScreenImage image = ScreenImage(line);
        for (int position = 0; position < kScreenDigits; ++position)
            DrawDigit(index, position, image[static_cast<size_t>(position)]);
    }

private:
    void DrawDigit(int line, int position, const SScreenDigit& digit)
    {
        const int number = DigitAt(position);
        for (int segment = 0; segment < kSegments; ++segment)
            if (((digit.segments & 1 << segment) != 0) == m_lit)
            {
                const auto corners = m_layout.Segment(line, position, segment);
                m_dc.Polygon(corners.data(), static_cast<int>(corners.size()));
            }
        if (SScreenLine::HasPoint(number) && digit.point == m_lit)
            m_dc.Ellipse(m_layout.Point(line, position));
        if (SScreenLine::HasUpperPoint(number) && digit.upperPoint == m_lit)
            m_dc.Ellipse(m_layout.UpperPoint(line, position));
    }

    CDC& m_dc;
    const CScreenLayout& m_layout;
    bool m_lit;
};

} // namespace

void DrawScreen(CDC& dc, const CRect& place, const SScreenSettings& settings, const CString& name)
{
    TEXTMETRICA font = {};
    dc.GetTextMetrics(&font);
    const CScreenLayout layout(place, static_cast<int>(font.tmHeight));
    dc.FillSolidRect(place, kScreenBackground);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(RGB(200, 204, 212));
    CRect nameRect = layout.Name();
    dc.DrawText(name, nameRect, DT_SINGLELINE | DT_CENTER | DT_NOPREFIX);
    for (const bool lit : {false, true})
    {
        CScreenPainter painter(dc, layout, lit);
        painter.DrawMarks(settings);
        for (int line = 0; line < kScreenLines; ++line)
            painter.DrawLine(line, settings.lines[static_cast<size_t>(line)]);
    }
}
