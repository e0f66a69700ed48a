// Temporary objects: whose handles they stand for, and for how long.
#include <gtest/gtest.h>

#include <memory>

#include "afx/Temporary.h"
#include "core/FunWizard.h"
#include "tests/afx/TestWindow.h"

namespace
{

/// Where the next temporary object of each kind will stand, asked for outside of all handlers.
struct SNextPlaces
{
    explicit SNextPlaces(const CTestWindow& host)
    {
        STemporaries& temporaries = AfxTemporaries();
        const HDC dc = ::GetDC(host);
        window = temporaries.windows.FromHandle(host.m_hWnd);
        context = temporaries.contexts.FromHandle(dc);
        gdiObject = temporaries.gdiObjects.FromHandle(::GetStockObject(BLACK_PEN));
        ::ReleaseDC(host, dc);
        ReleaseAll();
    }

    static void ReleaseAll()
    {
        AfxTemporaries().windows.ReleaseAll();
        AfxTemporaries().contexts.ReleaseAll();
        AfxTemporaries().gdiObjects.ReleaseAll();
    }

    bool operator==(const SNextPlaces& other) const
    {
        return window == other.window && context == other.context && gdiObject == other.gdiObject;
    }

    const CWnd* window;
    const CDC* context;
    const CGdiObject* gdiObject;
};

/// A host's window with a child, and a temporary object that the host has asked for and that nobody releases.
class TemporaryObjectsTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_host.Open());
        ASSERT_NE(::CreateWindowExA(0, "STATIC", "", WS_CHILD, 0, 0, 10, 10, m_host, nullptr, nullptr, nullptr),
                  nullptr);
    }

    CTestWindow m_host;
};

} // namespace

TEST_F(TemporaryObjectsTest, LetGoOfAWindowWhenTheyEnd)
{
    auto objects = std::make_unique<decltype(STemporaries::windows)>();
    EXPECT_EQ(objects->FromHandle(m_host.m_hWnd)->m_hWnd, m_host.m_hWnd);
    objects.reset();
    EXPECT_TRUE(::IsWindow(m_host));
}

TEST_F(TemporaryObjectsTest, LetGoOfAWindowInsideAScope)
{
    auto objects = std::make_unique<decltype(STemporaries::windows)>();
    objects->FromHandle(m_host.m_hWnd);
    {
        const decltype(STemporaries::windows)::CScope scope(*objects);
        objects->FromHandle(::GetWindow(m_host, GW_CHILD));
    }
    objects.reset();
    EXPECT_TRUE(::IsWindow(m_host));
    EXPECT_TRUE(::IsWindow(::GetWindow(m_host, GW_CHILD)));
}

TEST(TemporaryObjects, LetGoOfADeviceContextWhenTheyEnd)
{
    const HDC dc = ::CreateCompatibleDC(nullptr);
    auto objects = std::make_unique<decltype(STemporaries::contexts)>();
    objects->FromHandle(dc);
    objects.reset();
    EXPECT_TRUE(::DeleteDC(dc)) << "is still there";
}

TEST(TemporaryObjects, LetGoOfADrawingObjectWhenTheyEnd)
{
    const HGDIOBJ pen = ::CreatePen(PS_SOLID, 1, RGB(1, 2, 3));
    auto objects = std::make_unique<decltype(STemporaries::gdiObjects)>();
    objects->FromHandle(pen);
    objects.reset();
    EXPECT_TRUE(::DeleteObject(pen)) << "is still there";
}

TEST_F(TemporaryObjectsTest, OfAnOperationAreGoneAtItsEnd)
{
    SNextPlaces::ReleaseAll(); // what other tests have left
    const SNextPlaces before(m_host);
    CFunWizard wizard;
    ASSERT_NE(wizard.CreateDlgFont(&m_host), nullptr);
    EXPECT_EQ(SNextPlaces(m_host), before) << "CreateDlgFont";
    wizard.SetDlgFont(&m_host, 0, nullptr);
    EXPECT_EQ(SNextPlaces(m_host), before) << "SetDlgFont";
}

TEST_F(TemporaryObjectsTest, OfTheHostOutliveAnOperation)
{
    CFunWizard wizard;
    CWnd* const child = CWnd::FromHandle(::GetWindow(m_host, GW_CHILD));
    const HWND window = child->m_hWnd;
    ASSERT_NE(wizard.CreateDlgFont(child), nullptr);
    wizard.SetDlgFont(child, 0, nullptr);
    EXPECT_EQ(child->m_hWnd, window);
    CWnd::DeleteTempMap();
}
