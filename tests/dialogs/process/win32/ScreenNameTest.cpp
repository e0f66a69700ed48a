// The name of the screen, where texts are really drawn.
#include "dialogs/process/ScreenDrawing.h"
#include "tests/dialogs/process/ScreenSpots.h"
#include "tests/support/DesktopTest.h"

#include <algorithm>

namespace
{

using CScreenNameTest = CDesktopTest;

constexpr int kWidth = 320, kHeight = 140;

/// How many pixels of a rectangle are not the background.
int DrawnIn(const CCanvas& canvas, const CRect& rect)
{
    int drawn = 0;
    for (int y = static_cast<int>(rect.top); y < rect.bottom; ++y)
        for (int x = static_cast<int>(rect.left); x < rect.right; ++x)
            drawn += canvas.ColorAt({x, y}) != kScreenBackground ? 1 : 0;
    return drawn;
}

TEST_F(CScreenNameTest, StandsInItsPlaceAndNowhereElse)
{
    const CRect place(0, 0, kWidth, kHeight);
    for (const char* name : {"", "S", "S mode The 2nd screen", "&&& & %s",
                             "a name that is far too long for the picture: it "
                             "is cut at both of its ends, and leaves the rest alone"})
    {
        CCanvas canvas(kWidth, kHeight);
        DrawScreen(canvas.DC(), place, SScreenSettings(), name);
        const CScreenLayout layout(place, NameHeight(canvas.DC()));
        const CRect rect = layout.Name();
        EXPECT_EQ(DrawnIn(canvas, rect) > 0, *name != '\0') << name;
        EXPECT_EQ(DrawnIn(canvas, {0, 0, kWidth, static_cast<int>(rect.top)}), 0) << name;
        EXPECT_EQ(DrawnIn(canvas, {0, 0, static_cast<int>(rect.left), static_cast<int>(rect.bottom)}), 0) << name;
        EXPECT_EQ(DrawnIn(canvas, {static_cast<int>(rect.right), 0, kWidth, static_cast<int>(rect.bottom)}), 0) << name;
        EXPECT_EQ(DrawnIn(canvas, {0, static_cast<int>(rect.bottom), kWidth, static_cast<int>(layout.Mark(0).top)}), 0)
            << name;
    }
}

TEST_F(CScreenNameTest, TellsTheScreensApart)
{
    const CRect place(0, 0, kWidth, kHeight);
    std::vector<std::vector<COLORREF>> pictures;
    for (const char* name : {"N mode The 1st screen", "N mode The 2nd screen", "S mode The 1st screen"})
    {
        CCanvas canvas(kWidth, kHeight);
        DrawScreen(canvas.DC(), place, SScreenSettings(), name);
        std::vector<CPoint> points;
        for (int y = 0; y < 30; ++y)
            for (int x = 0; x < kWidth; ++x)
                points.emplace_back(x, y);
        pictures.push_back(canvas.ColorsAt(points));
        EXPECT_EQ(std::count(pictures.begin(), pictures.end(), pictures.back()), 1) << name;
    }
}

} // namespace
