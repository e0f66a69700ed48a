#include "tests/afx/TestWindow.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/PrintTo.h"

#include <cmath>

namespace
{

class GdiTest : public CDesktopTest
{
protected:
    void SetUp() override { ASSERT_TRUE(m_window.Open()); }
    void TearDown() override
    {
        m_window.DestroyWindow();
        CDesktopTest::TearDown();
    }

    CTestWindow m_window;
};

TEST_F(GdiTest, APointFontIsAsHighAsItsPointsOnTheDevice)
{
    CClientDC dc(&m_window);
    for (int tenths : {80, 90, 105, 120})
    {
        CFont font;
        ASSERT_TRUE(font.CreatePointFont(tenths, "MS Sans Serif", &dc));
        LOGFONTA logical = {};
        ASSERT_NE(font.GetLogFont(&logical), 0);
        EXPECT_EQ(logical.lfHeight, -(dc.GetDeviceCaps(LOGPIXELSY) * tenths / 720)) << tenths;
        EXPECT_STREQ(logical.lfFaceName, "MS Sans Serif");
    }
}

TEST_F(GdiTest, APointFontWithoutADeviceIsMadeForTheScreen)
{
    CClientDC dc(nullptr);
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(90, "Arial"));
    LOGFONTA logical = {};
    font.GetLogFont(&logical);
    EXPECT_EQ(logical.lfHeight, -(dc.GetDeviceCaps(LOGPIXELSY) * 90 / 720));
}

TEST_F(GdiTest, ALongFaceNameIsCut)
{
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(90, CString('x', 100)));
    LOGFONTA logical = {};
    font.GetLogFont(&logical);
    EXPECT_EQ(std::strlen(logical.lfFaceName), static_cast<size_t>(LF_FACESIZE - 1));
}

TEST_F(GdiTest, ObjectsDeleteTheirHandles)
{
    HGDIOBJ handle = nullptr;
    {
        CBrush brush(RGB(255, 255, 255));
        handle = brush.m_hObject;
        EXPECT_EQ(GetObjectType(handle), static_cast<DWORD>(OBJ_BRUSH));
    }
    EXPECT_EQ(GetObjectType(handle), 0u);

    CPen pen(PS_SOLID, 1, RGB(1, 2, 3));
    handle = pen.Detach();
    EXPECT_FALSE(pen.DeleteObject());
    EXPECT_EQ(GetObjectType(handle), static_cast<DWORD>(OBJ_PEN));
    EXPECT_TRUE(pen.Attach(handle));
    EXPECT_TRUE(pen.DeleteObject());
    EXPECT_FALSE(pen.Attach(nullptr));
}

TEST_F(GdiTest, WindowsTellTheirFont)
{
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(90, "Arial"));
    CEdit edit;
    ASSERT_TRUE(edit.Create(0, CRect(0, 0, 50, 20), &m_window, 5));
    m_window.RunInHandler([&] {
        EXPECT_EQ(edit.GetFont(), nullptr);
        edit.SetFont(&font);
        ASSERT_NE(edit.GetFont(), nullptr);
        EXPECT_EQ(edit.GetFont()->m_hObject, font.m_hObject);
        edit.SetFont(nullptr);
        EXPECT_EQ(edit.GetFont(), nullptr);
    });
    EXPECT_EQ(GetObjectType(font), static_cast<DWORD>(OBJ_FONT)); // the temporary object has not deleted it
}

TEST_F(GdiTest, SelectingReturnsWhatWasSelected)
{
    CFont first, second;
    ASSERT_TRUE(first.CreatePointFont(90, "Arial"));
    ASSERT_TRUE(second.CreatePointFont(120, "Arial"));
    m_window.RunInHandler([&] {
        CClientDC dc(&m_window);
        CFont* original = dc.SelectObject(&first);
        ASSERT_NE(original, nullptr);
        EXPECT_EQ(dc.SelectObject(&second)->m_hObject, first.m_hObject);
        dc.SelectObject(original);
        EXPECT_EQ(dc.SelectObject(static_cast<CFont*>(nullptr)), nullptr);
    });
}

TEST_F(GdiTest, ALongerTextIsWiderAndALargerFontHigher)
{
    CFont small, large;
    ASSERT_TRUE(small.CreatePointFont(90, "Arial"));
    ASSERT_TRUE(large.CreatePointFont(240, "Arial"));
    CClientDC dc(&m_window);
    const int saved = dc.SaveDC();
    dc.SelectObject(&small);
    const CSize brief = dc.GetTextExtent("abc");
    const CSize longer = dc.GetTextExtent("abcdef", 6);
    EXPECT_GT(brief.cx, 0);
    EXPECT_GT(longer.cx, brief.cx);
    EXPECT_EQ(longer.cy, brief.cy);
    EXPECT_EQ(dc.GetTextExtent("abcdef", 3), brief);
    EXPECT_EQ(dc.GetTextExtent("", 0).cx, 0);
    dc.SelectObject(&large);
    EXPECT_GT(dc.GetTextExtent("abc").cy, brief.cy);
    EXPECT_TRUE(dc.RestoreDC(saved));
}

TEST_F(GdiTest, DeviceContextsOfWindowsAreGivenBack)
{
    m_window.RunInHandler([&] {
        CDC* dc = m_window.GetDC();
        ASSERT_NE(dc, nullptr);
        EXPECT_EQ(CDC::FromHandle(dc->m_hDC), dc);
        EXPECT_TRUE(m_window.ReleaseDC(dc));
    });
}

TEST_F(GdiTest, ADeadWindowHasNoDeviceContext)
{
    CWnd gone;
    gone.m_hWnd = m_window.m_hWnd;
    m_window.DestroyWindow();
    EXPECT_THROW(CClientDC dc(&gone), CResourceException*);
    gone.m_hWnd = nullptr;
}

TEST(GeometryTest, Rectangles)
{
    const CRect rect(10, 20, 40, 60);
    EXPECT_EQ(rect.Width(), 30);
    EXPECT_EQ(rect.Height(), 40);
    EXPECT_EQ(rect.Size(), CSize(30, 40));
    EXPECT_EQ(rect.TopLeft(), CPoint(10, 20));
    EXPECT_EQ(rect.BottomRight(), CPoint(40, 60));
    EXPECT_EQ(rect.CenterPoint(), CPoint(25, 40));
    EXPECT_TRUE(rect.PtInRect(CPoint(10, 20)));
    EXPECT_FALSE(rect.PtInRect(CPoint(40, 30)));
    EXPECT_EQ(CRect(CPoint(10, 20), CSize(30, 40)), rect);
    EXPECT_EQ(CRect(CPoint(10, 20), CPoint(40, 60)), rect);
    EXPECT_NE(CRect(10, 20, 40, 61), rect);
    EXPECT_TRUE(CRect().IsRectEmpty());

    CRect changed = rect;
    changed.OffsetRect(1, 2);
    EXPECT_EQ(changed, CRect(11, 22, 41, 62));
    changed.InflateRect(1, 2);
    EXPECT_EQ(changed, CRect(10, 20, 42, 64));
    changed.DeflateRect(2, 1);
    EXPECT_EQ(changed, CRect(12, 21, 40, 63));
    changed.SetRectEmpty();
    EXPECT_EQ(changed, CRect(0, 0, 0, 0));
}

TEST(GeometryTest, Points)
{
    EXPECT_EQ(CPoint(3, 4) + CSize(1, 2), CPoint(4, 6));
    EXPECT_EQ(CPoint(3, 4) - CSize(1, 2), CPoint(2, 2));
    EXPECT_EQ(CPoint(static_cast<LPARAM>(MAKELONG(-3, 4))), CPoint(-3, 4));
    CPoint point(1, 1);
    point.Offset(2, -3);
    EXPECT_EQ(point, CPoint(3, -2));
}

} // namespace
