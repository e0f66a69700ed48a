// Windows and dialogs when there is no memory to remember one more object: they are not there, and no exception passes
// the system that creates them.
#include <deque>

#include "resources/resource.h"
#include "tests/afx/TestWindow.h"
#include "tests/support/AllocationFaults.h"
#include "tests/support/DesktopTest.h"

namespace
{

// The library has room for 64 objects from the start, and then for twice as many as before.
constexpr int kMostAttached = 300;

class AttachWithoutMemoryTest : public CDesktopTest
{
protected:
    void SetUp() override { ASSERT_TRUE(m_window.Open()); }
    void TearDown() override
    {
        for (CWnd& one : m_attached)
            one.Detach();
        m_window.DestroyWindow();
        CDesktopTest::TearDown();
    }

    /// Calls attempt() without memory, with ever more objects attached, until it has failed once.
    template <class F>
    bool FailsOnce(const F& attempt)
    {
        while (m_attached.size() < kMostAttached)
        {
            m_attached.emplace_back().Attach(m_window);
            CAllocationFaults memory(0, CAllocationFaults::kNever);
            const bool succeeded = attempt();
            memory.Pause();
            if (!succeeded)
                return true;
        }
        return false;
    }

    CTestWindow m_window;
    std::deque<CWnd> m_attached;
};

class CPlainDialog : public CDialog
{
public:
    CPlainDialog() : CDialog(IDD_SELECT) {}

protected:
    BOOL OnInitDialog() override
    {
        EndDialog(IDOK);
        return TRUE;
    }
};

} // namespace

TEST_F(AttachWithoutMemoryTest, AWindowIsNotCreated)
{
    EXPECT_TRUE(FailsOnce([] {
        CWnd window;
        const BOOL created = window.CreateEx(0, nullptr, "w", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr);
        EXPECT_EQ(created, window.m_hWnd != nullptr);
        return created;
    }));
}

TEST_F(AttachWithoutMemoryTest, AControlIsNotCreated)
{
    EXPECT_TRUE(FailsOnce([this] {
        CEdit edit;
        const BOOL created = edit.Create(WS_CHILD, CRect(0, 0, 10, 10), &m_window, 1);
        EXPECT_EQ(created, edit.m_hWnd != nullptr);
        EXPECT_EQ(created, ::GetWindow(m_window, GW_CHILD) != nullptr);
        return created;
    }));
}

TEST_F(AttachWithoutMemoryTest, ADialogDoesNotOpen)
{
    EXPECT_TRUE(FailsOnce([] {
        const INT_PTR result = CPlainDialog().DoModal();
        EXPECT_TRUE(result == IDOK || result == -1) << result;
        return result == IDOK;
    }));
}
