// Shapes filled with a brush: the pixels in their middle, beside them, and at the edges of rectangles.
#include "tests/support/Canvas.h"
#include "tests/support/DesktopTest.h"

namespace
{

constexpr COLORREF kGround = RGB(10, 20, 30);
constexpr COLORREF kInk = RGB(200, 100, 50);
constexpr COLORREF kSecond = RGB(0, 250, 0);

class FillingTest : public CDesktopTest
{
protected:
    FillingTest()
    {
        Dc().FillSolidRect(CRect(0, 0, 60, 40), kGround);
        m_brush.CreateSolidBrush(kInk);
        m_previousBrush = Dc().SelectObject(&m_brush);
        m_previousPen = Dc().SelectStockObject(NULL_PEN);
    }
    ~FillingTest() override
    {
        Dc().SelectObject(m_previousPen);
        Dc().SelectObject(m_previousBrush);
    }

    CDC& Dc() { return m_canvas.DC(); }
    void ExpectInk(std::initializer_list<CPoint> points, COLORREF color = kInk)
    {
        for (const CPoint& point : points)
            EXPECT_EQ(m_canvas.ColorAt(point), color) << point.x << ", " << point.y;
    }

    CCanvas m_canvas{60, 40};
    CBrush m_brush;
    CBrush* m_previousBrush;
    CGdiObject* m_previousPen;
};

TEST_F(FillingTest, ARectangleEndsBeforeItsRightAndBottomEdges)
{
    ExpectInk({{0, 0}, {59, 39}, {30, 20}}, kGround);
    Dc().FillSolidRect(CRect(10, 10, 20, 15), kInk);
    Dc().FillRect(CRect(30, 10, 40, 15), &m_brush);
    for (const int left : {10, 30})
    {
        ExpectInk({{left, 10}, {left + 9, 14}, {left + 5, 12}});
        ExpectInk({{left - 1, 10}, {left + 10, 10}, {left, 9}, {left, 15}}, kGround);
    }
    Dc().Rectangle(CRect(10, 20, 20, 30));
    ExpectInk({{11, 21}, {15, 25}, {18, 28}});
    ExpectInk({{9, 25}, {20, 25}, {15, 19}, {15, 30}}, kGround);
}

TEST_F(FillingTest, APolygonFillsWhatItsCornersEnclose)
{
    constexpr POINT kTriangle[] = {{30, 2}, {58, 38}, {2, 38}};
    Dc().Polygon(kTriangle, 3);
    ExpectInk({{30, 20}, {30, 6}, {8, 36}, {52, 36}});
    ExpectInk({{10, 10}, {50, 10}, {25, 3}, {35, 3}}, kGround);
}

TEST_F(FillingTest, AnEllipseFillsItsRectangleButForTheCorners)
{
    Dc().Ellipse(CRect(10, 10, 50, 30));
    ExpectInk({{30, 20}, {13, 20}, {46, 20}, {30, 12}, {30, 27}});
    ExpectInk({{10, 10}, {49, 10}, {10, 29}, {49, 29}, {8, 20}, {51, 20}}, kGround);
}

TEST_F(FillingTest, WhatIsDrawnLastIsSeen)
{
    Dc().FillSolidRect(CRect(10, 10, 30, 30), kSecond);
    Dc().Ellipse(CRect(15, 15, 25, 25));
    ExpectInk({{20, 20}});
    ExpectInk({{11, 11}, {15, 15}}, kSecond);
    Dc().FillSolidRect(CRect(10, 10, 30, 30), kGround);
    ExpectInk({{20, 20}}, kGround);
}

TEST_F(FillingTest, AFocusRectangleIsAFrame)
{
    Dc().DrawFocusRect(CRect(10, 10, 30, 30));
    int changed = 0;
    for (int x = 10; x < 30; ++x)
        changed += m_canvas.ColorAt({x, 10}) != kGround ? 1 : 0;
    EXPECT_GT(changed, 5);
    ExpectInk({{11, 11}, {20, 20}, {28, 28}, {9, 9}, {30, 30}}, kGround);
}

} // namespace
