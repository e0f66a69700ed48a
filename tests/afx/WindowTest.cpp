#include "tests/afx/TestWindow.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/PrintTo.h"

#include <memory>
#include <stdexcept>

namespace
{

using CLog = std::vector<std::string>;

class WindowTest : public CDesktopTest
{
protected:
    void SetUp() override { ASSERT_TRUE(m_window.Open()); }
    void TearDown() override
    {
        m_window.DestroyWindow();
        CDesktopTest::TearDown();
    }

    // A control of the window.
    HWND NewControl(LPCSTR windowClass, int id, DWORD style = 0)
    {
        return CreateWindowExA(0, windowClass, "", WS_CHILD | WS_VISIBLE | style, 10, 10, 100, 20, m_window,
                               reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
    }

    CLog LogOf(const std::function<void()>& action)
    {
        m_window.m_log.clear();
        action();
        return m_window.m_log;
    }

    CTestWindow m_window;
};

// ---- Objects and handles --------------------------------------------------------------------------------------------

TEST_F(WindowTest, CreatedWindowsAreAttached)
{
    EXPECT_TRUE(IsWindow(m_window));
    EXPECT_EQ(CWnd::FromHandlePermanent(m_window), &m_window);
    EXPECT_EQ(CWnd::FromHandle(m_window), &m_window);
    EXPECT_EQ(CWnd::FromHandlePermanent(nullptr), nullptr);
    EXPECT_EQ(CWnd::FromHandle(nullptr), nullptr);
}

TEST_F(WindowTest, DestroyedWindowsAreDetached)
{
    const HWND window = m_window;
    EXPECT_EQ(LogOf([&] { EXPECT_TRUE(m_window.DestroyWindow()); }), CLog{"gone, attached: 0"});
    EXPECT_FALSE(IsWindow(window));
    EXPECT_EQ(m_window.m_hWnd, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(window), nullptr);
    EXPECT_FALSE(m_window.DestroyWindow());
}

TEST_F(WindowTest, WindowsDestroyedBySomebodyElseAreDetachedToo)
{
    DestroyWindow(m_window);
    EXPECT_EQ(m_window.m_hWnd, nullptr);
}

class CSelfDeleting : public CTestWindow
{
public:
    explicit CSelfDeleting(bool* deleted) : m_deleted(deleted) {}
    ~CSelfDeleting() override { *m_deleted = true; }

protected:
    void PostNcDestroy() override { delete this; }

private:
    bool* m_deleted;
};

TEST_F(WindowTest, AnObjectMayDeleteItselfAfterItsWindow)
{
    bool deleted = false;
    auto* window = new CSelfDeleting(&deleted);
    ASSERT_TRUE(window->Open());
    EXPECT_TRUE(window->DestroyWindow());
    EXPECT_TRUE(deleted);
}

TEST_F(WindowTest, DeletingAnObjectDestroysItsWindow)
{
    auto window = std::make_unique<CTestWindow>();
    ASSERT_TRUE(window->Open());
    const HWND handle = *window;
    window.reset();
    EXPECT_FALSE(IsWindow(handle));
}

TEST_F(WindowTest, AnAttachedObjectStandsForAWindowItDoesNotReceive)
{
    const HWND edit = NewControl("EDIT", 5);
    CEdit object;
    EXPECT_FALSE(object.Attach(nullptr));
    EXPECT_TRUE(object.Attach(edit));
    EXPECT_EQ(m_window.GetDlgItem(5), &object);
    EXPECT_NE(GetWindowLongPtrA(edit, GWLP_WNDPROC), reinterpret_cast<LONG_PTR>(AfxWndProc));
    EXPECT_EQ(object.Detach(), edit);
    EXPECT_NE(m_window.GetDlgItem(5), &object);
    EXPECT_TRUE(IsWindow(edit));
}

TEST_F(WindowTest, DestroyingThroughAnAttachedObjectDetachesIt)
{
    CEdit object;
    object.Attach(NewControl("EDIT", 5));
    EXPECT_TRUE(object.DestroyWindow());
    EXPECT_EQ(object.m_hWnd, nullptr);
    EXPECT_EQ(m_window.GetDlgItem(5), nullptr);
}

class CDigitsEdit : public CEdit
{
protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_CHAR && (wParam < '0' || wParam > '9'))
            return 0;
        return CEdit::WindowProc(message, wParam, lParam);
    }
};

TEST_F(WindowTest, ASubclassedControlIsFiltered)
{
    NewControl("EDIT", 5);
    CDigitsEdit digits;
    ASSERT_TRUE(digits.SubclassDlgItem(5, &m_window));
    EXPECT_FALSE(CDigitsEdit().SubclassDlgItem(6, &m_window));
    for (char c : {'1', 'x', '2'})
        digits.SendMessage(WM_CHAR, static_cast<WPARAM>(c));
    CString text;
    digits.GetWindowText(text);
    EXPECT_EQ(text, "12");

    const HWND edit = digits.UnsubclassWindow();
    SendMessageA(edit, WM_CHAR, 'x', 0);
    m_window.GetDlgItemText(5, text);
    EXPECT_EQ(text, "12x");
}

TEST_F(WindowTest, ControlsOfOnesOwnAreCreated)
{
    CEdit edit;
    ASSERT_TRUE(edit.Create(ES_NUMBER, CRect(10, 20, 110, 40), &m_window, 77));
    EXPECT_EQ(m_window.GetDlgItem(77), &edit);
    EXPECT_TRUE(edit.GetStyle() & WS_CHILD);
    CRect rect;
    edit.GetWindowRect(rect);
    m_window.ScreenToClient(rect);
    EXPECT_EQ(rect, CRect(10, 20, 110, 40));
}

TEST_F(WindowTest, AWindowOfAnUnknownClassIsNotCreated)
{
    CWnd window;
    EXPECT_FALSE(window.CreateEx(0, "no such class", "", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr));
    EXPECT_EQ(window.m_hWnd, nullptr);
}

// ---- Temporary objects ----------------------------------------------------------------------------------------------

TEST_F(WindowTest, AHandleHasOneTemporaryObjectWithinAHandler)
{
    NewControl("EDIT", 5);
    NewControl("EDIT", 6);
    m_window.RunInHandler([&] {
        CWnd* five = m_window.GetDlgItem(5);
        CWnd* six = m_window.GetDlgItem(6);
        EXPECT_NE(five, six);
        EXPECT_EQ(m_window.GetDlgItem(5), five);
        EXPECT_EQ(five->GetWindow(GW_HWNDNEXT), six);
    });
}

TEST_F(WindowTest, TemporaryObjectsOutliveInnerHandlersAndNoMore)
{
    NewControl("EDIT", 5);
    NewControl("EDIT", 6);
    CTestWindow other;
    ASSERT_TRUE(other.Open());
    m_window.RunInHandler([&] {
        CWnd* const five = m_window.GetDlgItem(5);
        CWnd* six = nullptr;
        other.RunInHandler([&] {
            EXPECT_EQ(m_window.GetDlgItem(5), five);
            six = m_window.GetDlgItem(6);
            EXPECT_EQ(six->GetDlgCtrlID(), 6);
        });
        EXPECT_EQ(five->GetDlgCtrlID(), 5);
        EXPECT_EQ(six->m_hWnd, nullptr); // back in store
    });
}

TEST_F(WindowTest, TemporaryObjectsCanBeFreedByHand)
{
    NewControl("EDIT", 5);
    m_window.RunInHandler([&] {
        CWnd* five = m_window.GetDlgItem(5);
        CWnd::DeleteTempMap();
        EXPECT_EQ(five->m_hWnd, nullptr);
    });
}

TEST_F(WindowTest, TemporaryObjectsOfDeadWindowsDoNotPileUp)
{
    std::vector<CWnd*> objects;
    for (int i = 0; i < 400; ++i)
    {
        objects.push_back(CWnd::FromHandle(NewControl("STATIC", 5)));
        ::DestroyWindow(*objects.back());
    }
    std::sort(objects.begin(), objects.end());
    EXPECT_LT(std::unique(objects.begin(), objects.end()) - objects.begin(), 100);
}

TEST_F(WindowTest, ManyTemporaryObjectsLiveSideBySide)
{
    m_window.RunInHandler([&] {
        std::vector<CWnd*> controls;
        for (int id = 100; id < 400; ++id)
            controls.push_back(CWnd::FromHandle(NewControl("STATIC", id)));
        for (int id = 100; id < 400; ++id)
            ASSERT_EQ(controls[static_cast<size_t>(id - 100)]->GetDlgCtrlID(), id);
    });
}

// ---- Messages -------------------------------------------------------------------------------------------------------

TEST_F(WindowTest, CommandsFindTheirHandlers)
{
    EXPECT_EQ(LogOf([&] {
                  for (int id : {1, 2, 0})
                      m_window.SendMessage(WM_COMMAND, static_cast<WPARAM>(id));
              }),
              CLog{"command 1"});
}

TEST_F(WindowTest, NotificationsFindTheirHandlersByCodeAndId)
{
    EXPECT_EQ(LogOf([&] {
                  m_window.SendMessage(WM_COMMAND, MAKEWPARAM(20, BN_CLICKED));
                  m_window.SendMessage(WM_COMMAND, MAKEWPARAM(20, BN_SETFOCUS));
                  m_window.SendMessage(WM_COMMAND, MAKEWPARAM(31, EN_CHANGE));
                  m_window.SendMessage(WM_COMMAND, MAKEWPARAM(33, EN_CHANGE));
                  m_window.SendMessage(WM_COMMAND, MAKEWPARAM(40, CBN_SELCHANGE));
                  m_window.SendMessage(WM_COMMAND, MAKEWPARAM(41, EN_KILLFOCUS));
              }),
              (CLog{"clicked", "edit 31", "selchange", "killfocus"}));
}

TEST_F(WindowTest, MessagesReturnWhatTheirHandlersReturn)
{
    EXPECT_EQ(m_window.SendMessage(WM_APP + 1, 40, 2), 42);
    EXPECT_EQ(m_window.SendMessage(WM_APP + 2, 40, 2), 0);
}

TEST_F(WindowTest, MessagesAreTakenApart)
{
    const HWND bar = NewControl("SCROLLBAR", 6);
    HELPINFO help = {};
    help.iCtrlId = 8;
    EXPECT_EQ(LogOf([&] {
                  m_window.SendMessage(WM_TIMER, 3);
                  m_window.SendMessage(WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 9), reinterpret_cast<LPARAM>(bar));
                  m_window.SendMessage(WM_VSCROLL, MAKEWPARAM(SB_LINEUP, 0));
                  m_window.SendMessage(WM_HELP, 0, reinterpret_cast<LPARAM>(&help));
                  m_window.SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(m_window.m_hWnd), MAKELPARAM(-1, -1));
                  m_window.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(-5, 7));
              }),
              (CLog{"timer 3", "vscroll 4 9 6", "vscroll 0 0 -1", "help 8", "menu 1 -1 -1", "down 1 -5 7"}));
}

TEST_F(WindowTest, EveryKindOfControlColorGoesToOneHandler)
{
    const HWND edit = NewControl("EDIT", 5);
    CClientDC dc(&m_window);
    EXPECT_EQ(LogOf([&] {
                  for (UINT message : {WM_CTLCOLOREDIT, WM_CTLCOLORDLG, WM_CTLCOLORSTATIC})
                  {
                      EXPECT_EQ(m_window.SendMessage(message, reinterpret_cast<WPARAM>(dc.m_hDC),
                                                     reinterpret_cast<LPARAM>(edit)),
                                1234);
                  }
              }),
              (CLog{"ctlcolor 1 5", "ctlcolor 4 5", "ctlcolor 6 5"}));
    EXPECT_EQ(GetTextColor(dc), RGB(0, 0, 255));
}

class CDerivedWindow : public CTestWindow
{
protected:
    DECLARE_MESSAGE_MAP()

    void OnDerivedCommand() { Log("derived command"); }
    void OnDerivedEdit(UINT id) { Log("derived edit %u", id); }
    LRESULT OnAsk(WPARAM, LPARAM) { return Default() + 1; }
};

BEGIN_MESSAGE_MAP(CDerivedWindow, CTestWindow)
ON_COMMAND(1, &CDerivedWindow::OnDerivedCommand)
ON_CONTROL_RANGE(EN_CHANGE, 31, 31, &CDerivedWindow::OnDerivedEdit)
ON_MESSAGE(WM_GETTEXTLENGTH, &CDerivedWindow::OnAsk)
END_MESSAGE_MAP()

TEST_F(WindowTest, DerivedMapsComeFirst)
{
    CDerivedWindow window;
    ASSERT_TRUE(window.Open());
    window.m_log.clear();
    window.SendMessage(WM_COMMAND, 1);
    for (int id : {30, 31})
        window.SendMessage(WM_COMMAND, MAKEWPARAM(id, EN_CHANGE));
    EXPECT_EQ(window.m_log, (CLog{"derived command", "edit 30", "derived edit 31"}));
}

TEST_F(WindowTest, DefaultGivesTheMessageOn)
{
    CDerivedWindow window;
    ASSERT_TRUE(window.Open()); // with the text "test"
    // Wide, as the window is: a length in bytes is asked for by way of the text itself.
    EXPECT_EQ(::SendMessageW(window.m_hWnd, WM_GETTEXTLENGTH, 0, 0), 5);
}

TEST_F(WindowTest, NoExceptionLeavesAHandler)
{
    for (const std::function<void()>& action :
         std::vector<std::function<void()>>{[] { AfxThrowMemoryException(); }, [] { throw new CResourceException; },
                                            [] { throw std::runtime_error("no"); }, [] { throw 1; }})
    {
        EXPECT_NO_THROW(m_window.RunInHandler(action));
    }
    EXPECT_EQ(m_window.SendMessage(WM_APP + 1, 1, 1), 2); // still alive
}

class CThrowing : public CWnd
{
protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_CREATE)
            AfxThrowMemoryException();
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

TEST_F(WindowTest, AnExceptionDuringCreationFailsIt)
{
    CThrowing window;
    EXPECT_FALSE(window.CreateEx(0, nullptr, "", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr));
    EXPECT_EQ(window.m_hWnd, nullptr);
}

// ---- State ----------------------------------------------------------------------------------------------------------

TEST_F(WindowTest, ReadsTextsOfAnyLength)
{
    NewControl("EDIT", 5);
    const CString expected('x', 3000);
    m_window.SetDlgItemText(5, expected);
    CString text;
    EXPECT_EQ(m_window.GetDlgItemText(5, text), 3000);
    EXPECT_EQ(text, expected);
    m_window.SetDlgItemText(5, "");
    EXPECT_EQ(m_window.GetDlgItemText(5, text), 0);
    EXPECT_EQ(text, "");
}

TEST_F(WindowTest, ReadsNothingFromAControlThatIsNotThere)
{
    CString text("before");
    EXPECT_EQ(m_window.GetDlgItemText(99, text), 0);
    EXPECT_EQ(text, "");
    EXPECT_EQ(m_window.GetDlgItem(99), nullptr);
}

TEST_F(WindowTest, ChecksButtons)
{
    NewControl("BUTTON", 5, BS_AUTORADIOBUTTON | WS_GROUP);
    NewControl("BUTTON", 6, BS_AUTORADIOBUTTON);
    NewControl("BUTTON", 7, BS_AUTOCHECKBOX | WS_GROUP);
    EXPECT_EQ(m_window.GetCheckedRadioButton(5, 6), 0);
    m_window.CheckRadioButton(5, 6, 6);
    EXPECT_EQ(m_window.GetCheckedRadioButton(5, 6), 6);
    m_window.CheckDlgButton(7, BST_CHECKED);
    EXPECT_EQ(m_window.IsDlgButtonChecked(7), static_cast<UINT>(BST_CHECKED));
    static_cast<CButton*>(m_window.GetDlgItem(7))->SetCheck(BST_UNCHECKED);
    EXPECT_EQ(static_cast<CButton*>(m_window.GetDlgItem(7))->GetCheck(), BST_UNCHECKED);
}

TEST_F(WindowTest, ChangesItsStyle)
{
    EXPECT_TRUE(m_window.ModifyStyle(WS_CAPTION, WS_BORDER, SWP_FRAMECHANGED));
    EXPECT_EQ(m_window.GetStyle() & WS_CAPTION, static_cast<DWORD>(WS_BORDER));
    EXPECT_FALSE(m_window.ModifyStyle(WS_DLGFRAME, WS_BORDER));
}

TEST_F(WindowTest, TellsItsRelatives)
{
    const HWND child = NewControl("STATIC", 5);
    CTestWindow popup;
    ASSERT_TRUE(popup.Open(&m_window));
    EXPECT_EQ(CWnd::FromHandle(child)->GetParent(), &m_window);
    EXPECT_EQ(popup.GetParent(), &m_window);
    EXPECT_EQ(m_window.GetWindow(GW_CHILD)->m_hWnd, child);
    EXPECT_TRUE(m_window.IsChild(CWnd::FromHandle(child)));
}

TEST_F(WindowTest, ConvertsCoordinates)
{
    CRect client;
    m_window.GetClientRect(client);
    CRect screen = client;
    m_window.ClientToScreen(screen);
    EXPECT_EQ(screen.Size(), client.Size());
    CPoint corner = client.TopLeft();
    m_window.ClientToScreen(&corner);
    EXPECT_EQ(corner, screen.TopLeft());
    m_window.ScreenToClient(&corner);
    EXPECT_EQ(corner, CPoint(0, 0));
    m_window.ScreenToClient(screen);
    EXPECT_EQ(screen, client);
}

TEST_F(WindowTest, CentersOverAnotherWindowWithinTheScreen)
{
    CTestWindow other;
    ASSERT_TRUE(other.Open());
    const auto centerOver = [&](int left, int top) {
        other.SetWindowPos(nullptr, left, top, 200, 200, SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW);
        m_window.MoveWindow(0, 0, 100, 50);
        m_window.CenterWindow(&other);
        CRect rect;
        m_window.GetWindowRect(rect);
        EXPECT_EQ(rect.Size(), CSize(100, 50));
        return rect.TopLeft();
    };
    EXPECT_EQ(centerOver(300, 300), CPoint(350, 375));
    CRect screen;
    SystemParametersInfoA(SPI_GETWORKAREA, 0, &screen, 0);
    EXPECT_EQ(centerOver(screen.left - 80, 300), CPoint(screen.left, 375));
    EXPECT_EQ(centerOver(300, screen.bottom - 110), CPoint(350, screen.bottom - 50));
}

TEST_F(WindowTest, TheSafeOwnerIsNeverAChild)
{
    const HWND child = NewControl("STATIC", 5);
    EXPECT_EQ(CWnd::GetSafeOwner(CWnd::FromHandle(child)), &m_window);
    EXPECT_EQ(CWnd::GetSafeOwner(&m_window), &m_window);
}

TEST_F(WindowTest, TheSafeOwnerWithoutAParentIsTheActiveWindow)
{
    CTestWindow popup;
    ASSERT_TRUE(popup.Open(&m_window));
    m_window.ShowWindow(SW_SHOWNORMAL);
    popup.ShowWindow(SW_SHOWNORMAL);
    popup.SetActiveWindow();
    EXPECT_EQ(CWnd::GetSafeOwner(), &popup);
    m_window.SetActiveWindow();
    EXPECT_EQ(CWnd::GetSafeOwner(), &m_window);
}

TEST_F(WindowTest, TheSafeOwnerReportsTheWindowAboveThatItDisabled)
{
    CTestWindow popup;
    ASSERT_TRUE(popup.Open(&m_window));
    HWND top = nullptr;
    EXPECT_EQ(CWnd::GetSafeOwner(&popup, &top), &popup);
    EXPECT_EQ(top, m_window.m_hWnd);
    EXPECT_FALSE(m_window.IsWindowEnabled());
    EXPECT_EQ(CWnd::GetSafeOwner(&popup, &top), &popup);
    EXPECT_EQ(top, nullptr); // was disabled already
    m_window.EnableWindow();
    EXPECT_EQ(CWnd::GetSafeOwner(&m_window, &top), &m_window);
    EXPECT_EQ(top, nullptr); // nothing above
}

} // namespace
