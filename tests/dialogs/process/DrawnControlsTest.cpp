// The buttons with marks, and the list of colors with its swatches.
#include "dialogs/process/DrawnControls.h"
#include "dialogs/process/MarkShape.h"
#include "dialogs/process/ScreenDrawing.h"
#include "tests/support/Canvas.h"
#include "tests/support/DesktopTest.h"

#include <set>

namespace
{

using CDrawnControlsTest = CDesktopTest;

DRAWITEMSTRUCT Item(CCanvas& canvas, const CRect& place, UINT state)
{
    DRAWITEMSTRUCT item = {};
    item.hDC = canvas.DC();
    item.rcItem = place;
    item.itemState = state;
    return item;
}

std::vector<CPoint> AllPoints(const CRect& rect)
{
    std::vector<CPoint> points;
    for (int y = static_cast<int>(rect.top); y < rect.bottom; ++y)
        for (int x = static_cast<int>(rect.left); x < rect.right; ++x)
            points.emplace_back(x, y);
    return points;
}

// ---- Marks ----------------------------------------------------------------------------------------------------------

constexpr COLORREF kLit = RGB(255, 255, 255);
constexpr COLORREF kDark = RGB(44, 47, 54);

TEST_F(CDrawnControlsTest, MarksHaveShapesOfTheirOwn)
{
    for (const int side : {12, 15, 24, 40})
    {
        const CRect place(5, 5, 5 + side, 5 + side);
        std::set<std::vector<COLORREF>> pictures;
        for (int mark = 0; mark < kScreenMarks; ++mark)
        {
            CCanvas canvas(side + 10, side + 10);
            canvas.DC().FillSolidRect(CRect(0, 0, side + 10, side + 10), kDark);
            CBrush brush(kLit);
            CBrush* const previousBrush = canvas.DC().SelectObject(&brush);
            CGdiObject* const previousPen = canvas.DC().SelectStockObject(NULL_PEN);
            DrawMark(canvas.DC(), mark, place);
            canvas.DC().SelectObject(previousPen);
            canvas.DC().SelectObject(previousBrush);

            const std::vector<COLORREF> picture = canvas.ColorsAt(AllPoints({0, 0, side + 10, side + 10}));
            EXPECT_TRUE(pictures.insert(picture).second) << "mark " << mark << " looks like another one";
            EXPECT_EQ(canvas.ColorAt(place.CenterPoint()), kLit) << "mark " << mark;
            const auto lit = std::count(picture.begin(), picture.end(), kLit);
            EXPECT_GT(lit, side * side / 4) << "mark " << mark;
            std::vector<COLORREF> inside = canvas.ColorsAt(AllPoints(place));
            EXPECT_EQ(std::count(inside.begin(), inside.end(), kLit), lit) << "mark " << mark << " reaches outside";
        }
    }
}

TEST_F(CDrawnControlsTest, MarksStandInTheMiddleOfTheirPlace)
{
    for (const CRect& place : {CRect(0, 0, 60, 20), CRect(10, 0, 30, 50)})
    {
        CCanvas canvas(60, 50);
        canvas.DC().FillSolidRect(CRect(0, 0, 60, 50), kDark);
        CBrush brush(kLit);
        CBrush* const previous = canvas.DC().SelectObject(&brush);
        DrawMark(canvas.DC(), 5, place);
        canvas.DC().SelectObject(previous);
        const CPoint middle = place.CenterPoint();
        EXPECT_EQ(canvas.ColorAt(middle), kLit);
        for (const CPoint& corner : {CPoint(middle.x - 6, middle.y - 6), CPoint(middle.x + 6, middle.y + 6)})
            EXPECT_EQ(canvas.ColorAt(corner), kLit);
        for (const CPoint& outside : {CPoint(middle.x - 11, middle.y), CPoint(middle.x, middle.y + 11)})
            EXPECT_EQ(canvas.ColorAt(outside), kDark);
    }
}

TEST_F(CDrawnControlsTest, AMarkIsLitWhileItIsShown)
{
    const CRect button(4, 3, 43, 37);
    for (int mark = 0; mark < kScreenMarks; ++mark)
        for (const bool shown : {false, true})
            for (const UINT state : {0u, UINT{ODS_SELECTED}, UINT{ODS_FOCUS}, UINT{ODS_SELECTED | ODS_FOCUS}})
            {
                SCOPED_TRACE(testing::Message() << "mark " << mark << ", shown " << shown << ", state " << state);
                CCanvas canvas(50, 40);
                DrawMarkButton(Item(canvas, button, state), mark, shown);
                EXPECT_EQ(canvas.ColorAt(button.CenterPoint()), shown ? kLit : kDark);

                // It stays down while the mark is shown, and is down while it is pressed.
                const bool down = shown || (state & ODS_SELECTED) != 0;
                const COLORREF light = ::GetSysColor(COLOR_BTNHIGHLIGHT), shadow = ::GetSysColor(COLOR_BTNSHADOW);
                EXPECT_EQ(canvas.ColorAt(button.TopLeft()), down ? shadow : light);
                EXPECT_EQ(canvas.ColorAt(CPoint(button.left, button.bottom - 2)), down ? shadow : light);
                EXPECT_EQ(canvas.ColorAt(CPoint(button.right - 1, button.bottom - 1)), down ? light : shadow);
                EXPECT_EQ(canvas.ColorAt(CPoint(button.right - 1, button.top)), down ? light : shadow);
            }
}

TEST_F(CDrawnControlsTest, AMarkShowsWhetherItHasTheFocus)
{
    const CRect button(0, 0, 40, 30);
    CCanvas without(40, 30), with(40, 30);
    DrawMarkButton(Item(without, button, 0), 0, true);
    DrawMarkButton(Item(with, button, ODS_FOCUS), 0, true);
    EXPECT_NE(with.ColorsAt(AllPoints(button)), without.ColorsAt(AllPoints(button)));
    const std::vector<CPoint> glass = AllPoints({3, 3, 37, 27});
    EXPECT_EQ(with.ColorsAt(glass), without.ColorsAt(glass)) << "the mark can be seen as before";
}

// ---- Swatches -------------------------------------------------------------------------------------------------------

TEST_F(CDrawnControlsTest, ASwatchShowsItsColor)
{
    const CRect place(3, 2, 123, 18);
    for (DWORD color = 1; color <= 3; ++color)
        for (const UINT state : {0u, UINT{ODS_SELECTED}, UINT{ODS_SELECTED | ODS_FOCUS}, UINT{ODS_DISABLED}})
        {
            SCOPED_TRACE(testing::Message() << "color " << color << ", state " << state);
            CCanvas canvas(130, 20);
            DrawSwatch(Item(canvas, place, state), ScreenColor(color), "");
            const bool disabled = (state & ODS_DISABLED) != 0, selected = (state & ODS_SELECTED) != 0;
            const COLORREF expected = disabled ? ::GetSysColor(COLOR_BTNFACE) : ScreenColor(color);
            for (const CPoint& point : {CPoint(8, 10), CPoint(17, 10), CPoint(26, 10), CPoint(17, 6), CPoint(17, 14)})
                EXPECT_EQ(canvas.ColorAt(point), expected) << point.x << ", " << point.y;
            const COLORREF background = ::GetSysColor(disabled   ? COLOR_BTNFACE
                                                      : selected ? COLOR_HIGHLIGHT
                                                                 : COLOR_WINDOW);
            for (const CPoint& point : {CPoint(40, 10), CPoint(110, 10), CPoint(60, 5)})
                EXPECT_EQ(canvas.ColorAt(point), background) << point.x << ", " << point.y;
        }
}

TEST_F(CDrawnControlsTest, ASwatchShowsWhetherItHasTheFocus)
{
    const CRect place(0, 0, 120, 16);
    CCanvas without(120, 16), with(120, 16);
    DrawSwatch(Item(without, place, ODS_SELECTED), ScreenColor(1), "");
    DrawSwatch(Item(with, place, ODS_SELECTED | ODS_FOCUS), ScreenColor(1), "");
    EXPECT_NE(with.ColorsAt(AllPoints(place)), without.ColorsAt(AllPoints(place)));
}

} // namespace
