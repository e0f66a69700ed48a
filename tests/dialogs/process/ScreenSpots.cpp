#include "tests/dialogs/process/ScreenSpots.h"

#include <gtest/gtest.h>

namespace
{

CPoint MiddleOf(const std::array<POINT, 6>& corners)
{
    CPoint sum;
    for (const POINT& corner : corners)
        sum.Offset(static_cast<int>(corner.x), static_cast<int>(corner.y));
    return {static_cast<int>(sum.x) / 6, static_cast<int>(sum.y) / 6};
}

constexpr COLORREF kLit[] = {RGB(56, 240, 88), RGB(56, 240, 88), RGB(255, 56, 40), RGB(255, 160, 24)};
constexpr COLORREF kDark = RGB(44, 47, 54);
constexpr COLORREF kMarkLit = RGB(255, 255, 255);

/// The marks from left to right: bits 7, 6, 5, 0, 4, 3, 2, 1 of the first word.
constexpr int kMarkBits[] = {7, 6, 5, 0, 4, 3, 2, 1};

} // namespace

int NameHeight(CDC& dc)
{
    TEXTMETRICA metrics = {};
    dc.GetTextMetrics(&metrics);
    return static_cast<int>(metrics.tmHeight);
}

std::vector<SScreenSpot> ScreenSpots(const CRect& place, int nameHeight, const SScreenSettings& settings)
{
    const CScreenLayout layout(place, nameHeight);
    std::vector<SScreenSpot> spots;
    for (int mark = 0; mark < kScreenMarks; ++mark)
    {
        const bool shown = (settings.FirstWord() >> kMarkBits[mark] & 1) != 0;
        spots.push_back({"mark " + std::to_string(mark), layout.Mark(mark).CenterPoint(), shown ? kMarkLit : kDark});
    }
    for (int line = 0; line < kScreenLines; ++line)
    {
        const SScreenLine& shown = settings.lines[static_cast<size_t>(line)];
        const SScreenImage image = ScreenImage(shown);
        const COLORREF lit = kLit[shown.control >> 13 & 3];
        for (int position = 0; position < kScreenDigits; ++position)
        {
            const SScreenDigit& digit = image[static_cast<size_t>(position)];
            const std::string name = "line " + std::to_string(line) + ", digit " + std::to_string(5 - position);
            for (int segment = 0; segment < kSegments; ++segment)
                spots.push_back({name + ", segment " + std::to_string(segment),
                                 MiddleOf(layout.Segment(line, position, segment)),
                                 (digit.segments & 1 << segment) != 0 ? lit : kDark});
            if (position < 4)
                spots.push_back(
                    {name + ", point", layout.Point(line, position).CenterPoint(), digit.point ? lit : kDark});
            if (position == 2)
                spots.push_back({name + ", upper point", layout.UpperPoint(line, position).CenterPoint(),
                                 digit.upperPoint ? lit : kDark});
        }
    }
    return spots;
}

void ExpectScreen(CCanvas& canvas, const CRect& place, const SScreenSettings& settings)
{
    for (const SScreenSpot& spot : ScreenSpots(place, NameHeight(canvas.DC()), settings))
        EXPECT_EQ(canvas.ColorAt(spot.at), spot.color) << spot.what << " at " << spot.at.x << ", " << spot.at.y;
}
