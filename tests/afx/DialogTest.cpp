#include "tests/afx/TestWindow.h"
#include "tests/support/AllocationFaults.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/DialogTemplate.h"
#include "tests/support/PrintTo.h"

#include <deque>
#include <stdexcept>

namespace
{

constexpr int kEdit = 101;
constexpr int kOther = 102;
constexpr int kAct = 103;

using CLog = std::vector<std::string>;

// What is done, step by step, whenever a modal loop has no message left and tells its owner so.
std::deque<std::function<void()>> steps;

LRESULT DoNextStep(HWND dialog)
{
    if (steps.empty())
    {
        ADD_FAILURE() << "a dialog is still open after all steps";
        static_cast<CDialog*>(CWnd::FromHandlePermanent(dialog))->EndDialog(-2);
        return 0;
    }
    const std::function<void()> step = steps.front();
    steps.pop_front();
    PostMessageA(dialog, WM_NULL, 0, 0); // so that the loop falls idle once more
    step();
    return 0;
}

class COwner : public CTestWindow
{
protected:
    DECLARE_MESSAGE_MAP()

    LRESULT OnEnterIdle(WPARAM, LPARAM dialog) { return DoNextStep(reinterpret_cast<HWND>(dialog)); }
};

BEGIN_MESSAGE_MAP(COwner, CTestWindow)
ON_MESSAGE(WM_ENTERIDLE, &COwner::OnEnterIdle)
END_MESSAGE_MAP()

class CTestDialog : public CDialog
{
public:
    using CDialog::CDialog;

    std::function<BOOL()> m_init = [] { return TRUE; };
    std::function<void()> m_act = [] {};
    CLog m_log;

protected:
    DECLARE_MESSAGE_MAP()

    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        return m_init();
    }
    void OnOK() override
    {
        m_log.push_back("ok");
        CDialog::OnOK();
    }
    void OnCancel() override
    {
        m_log.push_back("cancel");
        CDialog::OnCancel();
    }
    void PostNcDestroy() override { m_log.push_back("gone"); }
    void OnAct() { m_act(); }
    LRESULT OnEnterIdle(WPARAM, LPARAM dialog) { return DoNextStep(reinterpret_cast<HWND>(dialog)); }
};

BEGIN_MESSAGE_MAP(CTestDialog, CDialog)
ON_BN_CLICKED(kAct, &CTestDialog::OnAct)
ON_MESSAGE(WM_ENTERIDLE, &CTestDialog::OnEnterIdle)
END_MESSAGE_MAP()

class DialogTest : public CDesktopTest
{
protected:
    void SetUp() override
    {
        m_template.Add("EDIT", kEdit, WS_TABSTOP | WS_BORDER)
            .Add("STATIC", -1, 0, "&Second")
            .Add("EDIT", kOther, WS_TABSTOP | WS_BORDER)
            .Add("BUTTON", kAct, WS_TABSTOP | BS_PUSHBUTTON, "&Act")
            .Add("BUTTON", IDOK, WS_TABSTOP | BS_DEFPUSHBUTTON, "OK")
            .Add("BUTTON", IDCANCEL, WS_TABSTOP | BS_PUSHBUTTON, "Cancel");
        ASSERT_TRUE(m_owner.Open());
        m_owner.ShowWindow(SW_SHOWNORMAL);
        ASSERT_TRUE(m_dialog.InitModalIndirect(m_template.Get(), &m_owner));
    }
    void TearDown() override
    {
        EXPECT_TRUE(steps.empty()) << "steps that were not taken: " << steps.size();
        steps.clear();
        m_owner.DestroyWindow();
        CDesktopTest::TearDown();
    }

    // Opens the dialog and takes the steps in it.
    INT_PTR Run(std::initializer_list<std::function<void()>> todo)
    {
        steps = todo;
        return m_dialog.DoModal();
    }

    std::function<void()> End(int result)
    {
        return [this, result] { m_dialog.EndDialog(result); };
    }

    // Presses a key where the focus is, through the queue.
    std::function<void()> Press(UINT key)
    {
        return [key] {
            PostMessageA(GetFocus(), WM_KEYDOWN, key, 1);
            PostMessageA(GetFocus(), WM_KEYUP, key, LPARAM(0xC0000001));
        };
    }

    static int FocusId() { return GetDlgCtrlID(GetFocus()); }

    CDialogTemplate m_template{"Test", 200, 150};
    COwner m_owner;
    CTestDialog m_dialog;
};

// ---- Opening and closing --------------------------------------------------------------------------------------------

TEST_F(DialogTest, ReturnsWhatEndDialogIsGiven)
{
    EXPECT_EQ(Run({End(4711)}), 4711);
    EXPECT_EQ(m_dialog.m_hWnd, nullptr);
    EXPECT_EQ(m_dialog.m_log, CLog{"gone"});
}

TEST_F(DialogTest, CanBeOpenedAgain)
{
    for (int result = 1; result <= 3; ++result)
        EXPECT_EQ(Run({End(result)}), result);
}

TEST_F(DialogTest, IsShownWhenNoMessageWaits)
{
    m_dialog.m_init = [&] {
        EXPECT_FALSE(m_dialog.IsWindowVisible());
        return TRUE;
    };
    EXPECT_EQ(Run({[&] {
                       EXPECT_TRUE(m_dialog.IsWindowVisible());
                       EXPECT_EQ(CWnd::GetActiveWindow(), &m_dialog);
                   },
                   End(1)}),
              1);
}

TEST_F(DialogTest, StaysHiddenWhenItHidesItself)
{
    Run({[&] { m_dialog.ShowWindow(SW_HIDE); }, [&] { EXPECT_FALSE(m_dialog.IsWindowVisible()); }, End(1)});
}

TEST_F(DialogTest, WithoutATemplateReturnsMinusOne)
{
    EXPECT_EQ(CTestDialog(64999u, &m_owner).DoModal(), -1);
    EXPECT_EQ(CTestDialog("NO_SUCH_DIALOG", &m_owner).DoModal(), -1);
    EXPECT_FALSE(CTestDialog().Create(64999u, &m_owner));
    EXPECT_TRUE(m_owner.IsWindowEnabled());
}

TEST_F(DialogTest, EndedInItsInitializationIsNeverShown)
{
    m_dialog.m_init = [&] {
        m_dialog.EndDialog(2);
        return TRUE;
    };
    EXPECT_EQ(Run({}), 2);
    EXPECT_EQ(m_dialog.m_log, CLog{"gone"});
    EXPECT_TRUE(m_owner.IsWindowEnabled());
}

TEST_F(DialogTest, AFailingInitializationReturnsMinusOne)
{
    m_dialog.m_init = []() -> BOOL { throw std::runtime_error("no"); };
    EXPECT_EQ(Run({}), -1);
    m_dialog.m_init = []() -> BOOL { AfxThrowMemoryException(); };
    EXPECT_EQ(Run({}), -1);
    EXPECT_TRUE(m_owner.IsWindowEnabled());
}

TEST_F(DialogTest, AFailingHandlerLeavesItOpen)
{
    m_dialog.m_act = [] { AfxThrowMemoryException(); };
    EXPECT_EQ(Run({[&] { m_dialog.SendDlgItemMessage(kAct, BM_CLICK); },
                   [&] { EXPECT_TRUE(m_dialog.IsWindowVisible()); }, End(5)}),
              5);
}

TEST_F(DialogTest, DestroyedFromOutsideReturnsMinusOne)
{
    EXPECT_EQ(Run({[&] { DestroyWindow(m_dialog); }}), -1);
    EXPECT_EQ(m_dialog.m_log, CLog{"gone"});
}

TEST_F(DialogTest, GoesDownWithItsOwner)
{
    EXPECT_EQ(Run({[&] { m_owner.DestroyWindow(); }}), -1);
    EXPECT_EQ(m_dialog.m_hWnd, nullptr);
}

TEST_F(DialogTest, PassesTheOrderToQuitOn)
{
    EXPECT_EQ(Run({[] { PostQuitMessage(3); }}), -1);
    MSG message = {};
    ASSERT_TRUE(PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE));
    EXPECT_EQ(message.message, static_cast<UINT>(WM_QUIT));
    EXPECT_EQ(message.wParam, 3u);
}

TEST_F(DialogTest, ClosesByItsButtonsAndItsCloseBox)
{
    EXPECT_EQ(Run({[&] { m_dialog.SendDlgItemMessage(IDOK, BM_CLICK); }}), IDOK);
    EXPECT_EQ(Run({[&] { m_dialog.SendDlgItemMessage(IDCANCEL, BM_CLICK); }}), IDCANCEL);
    EXPECT_EQ(Run({[&] { m_dialog.PostMessage(WM_CLOSE); }}), IDCANCEL);
    EXPECT_EQ(m_dialog.m_log, (CLog{"ok", "gone", "cancel", "gone", "cancel", "gone"}));
}

TEST_F(DialogTest, LeavesItsControlsTheSystems)
{
    Run({[&] {
             EXPECT_EQ(CWnd::FromHandlePermanent(GetDlgItem(m_dialog, kEdit)), nullptr);
             EXPECT_EQ(CWnd::FromHandlePermanent(m_dialog), &m_dialog);
             EXPECT_EQ(m_dialog.GetDlgItem(kEdit)->GetParent(), &m_dialog);
         },
         End(1)});
}

TEST_F(DialogTest, IsCenteredOverItsOwner)
{
    Run({[&] {
             CRect owner, dialog;
             m_owner.GetWindowRect(owner);
             m_dialog.GetWindowRect(dialog);
             CRect screen;
             SystemParametersInfoA(SPI_GETWORKAREA, 0, &screen, 0);
             EXPECT_EQ(dialog.left, std::max(screen.left, owner.CenterPoint().x - dialog.Width() / 2));
             EXPECT_EQ(dialog.top, std::max(screen.top, owner.CenterPoint().y - dialog.Height() / 2));
         },
         End(1)});
}

TEST_F(DialogTest, StaysWhereItsInitializationMovesIt)
{
    m_dialog.m_init = [&] {
        m_dialog.SetWindowPos(nullptr, 7, 9, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        return TRUE;
    };
    Run({[&] {
             CRect rect;
             m_dialog.GetWindowRect(rect);
             EXPECT_EQ(rect.TopLeft(), CPoint(7, 9));
         },
         End(1)});
}

// ---- Owners ---------------------------------------------------------------------------------------------------------

TEST_F(DialogTest, DisablesItsOwnerAndGivesTheActivationBack)
{
    m_owner.SetActiveWindow();
    Run({[&] {
             EXPECT_FALSE(m_owner.IsWindowEnabled());
             EXPECT_EQ(m_dialog.GetParent(), &m_owner);
         },
         End(1)});
    EXPECT_TRUE(m_owner.IsWindowEnabled());
    EXPECT_EQ(CWnd::GetActiveWindow(), &m_owner);
}

TEST_F(DialogTest, WithoutAParentIsOwnedByTheActiveWindow)
{
    CTestDialog dialog;
    dialog.InitModalIndirect(m_template.Get());
    m_owner.SetActiveWindow();
    steps = {[&] {
        EXPECT_EQ(dialog.GetParent(), &m_owner);
        EXPECT_FALSE(m_owner.IsWindowEnabled());
        dialog.EndDialog(6);
    }};
    EXPECT_EQ(dialog.DoModal(), 6);
    EXPECT_TRUE(m_owner.IsWindowEnabled());
}

TEST_F(DialogTest, DisablesTheWindowAboveItsOwnerToo)
{
    CTestWindow top;
    ASSERT_TRUE(top.Open());
    SetWindowLongPtrA(m_owner, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(top.m_hWnd));
    Run({[&] {
             EXPECT_FALSE(m_owner.IsWindowEnabled());
             EXPECT_FALSE(top.IsWindowEnabled());
         },
         End(1)});
    EXPECT_TRUE(m_owner.IsWindowEnabled());
    EXPECT_TRUE(top.IsWindowEnabled());
    SetWindowLongPtrA(m_owner, GWLP_HWNDPARENT, 0);
}

TEST_F(DialogTest, OpensDialogsOfItsOwn)
{
    CTestDialog inner;
    inner.InitModalIndirect(m_template.Get(), &m_dialog);
    INT_PTR innerResult = 0;
    m_dialog.m_act = [&] { innerResult = inner.DoModal(); };
    EXPECT_EQ(Run({[&] { m_dialog.PostMessage(WM_COMMAND, kAct); },
                   [&] {
                       EXPECT_EQ(inner.GetParent(), &m_dialog);
                       EXPECT_FALSE(m_dialog.IsWindowEnabled());
                       inner.EndDialog(8);
                   },
                   [&] {
                       EXPECT_TRUE(m_dialog.IsWindowEnabled());
                       EXPECT_FALSE(m_owner.IsWindowEnabled());
                       EXPECT_EQ(CWnd::GetActiveWindow(), &m_dialog);
                       m_dialog.EndDialog(9);
                   }}),
              9);
    EXPECT_EQ(innerResult, 8);
}

TEST_F(DialogTest, EndedWhileADialogIsOpenAboveItClosesAfterThatOne)
{
    CTestDialog inner;
    inner.InitModalIndirect(m_template.Get(), &m_dialog);
    m_dialog.m_act = [&] { EXPECT_EQ(inner.DoModal(), 8); };
    EXPECT_EQ(Run({[&] { m_dialog.PostMessage(WM_COMMAND, kAct); },
                   [&] {
                       m_dialog.EndDialog(9);
                       inner.EndDialog(8);
                   }}),
              9);
}

// ---- Keys and focus -------------------------------------------------------------------------------------------------

TEST_F(DialogTest, GivesTheFocusToItsFirstControl)
{
    Run({[&] { EXPECT_EQ(FocusId(), kEdit); }, End(1)});
}

TEST_F(DialogTest, LeavesTheFocusThatItsInitializationSets)
{
    m_dialog.m_init = [&] {
        m_dialog.GetDlgItem(kOther)->SetFocus();
        return FALSE;
    };
    Run({[&] { EXPECT_EQ(FocusId(), kOther); }, End(1)});
}

TEST_F(DialogTest, EnterAndEscapePressItsButtons)
{
    EXPECT_EQ(Run({Press(VK_RETURN)}), IDOK);
    EXPECT_EQ(Run({Press(VK_ESCAPE)}), IDCANCEL);
    EXPECT_EQ(m_dialog.m_log, (CLog{"ok", "gone", "cancel", "gone"}));
}

TEST_F(DialogTest, EnterPressesTheDefaultButtonThatIsSet)
{
    m_dialog.m_act = [&] { m_dialog.EndDialog(77); };
    EXPECT_EQ(Run({[&] {
                       EXPECT_EQ(m_dialog.SendMessage(DM_GETDEFID), MAKELONG(IDOK, DC_HASDEFID));
                       m_dialog.SendMessage(DM_SETDEFID, kAct);
                       EXPECT_EQ(m_dialog.SendMessage(DM_GETDEFID), MAKELONG(kAct, DC_HASDEFID));
                   },
                   Press(VK_RETURN)}),
              77);
}

TEST_F(DialogTest, TabAndMnemonicsMoveTheFocus)
{
    Run({Press(VK_TAB), [&] { EXPECT_EQ(FocusId(), kOther); },
         [&] { m_dialog.GotoDlgCtrl(m_dialog.GetDlgItem(kEdit)); }, [&] { EXPECT_EQ(FocusId(), kEdit); },
         [&] { PostMessageA(GetFocus(), WM_SYSCHAR, 's', 0x20000001); }, [&] { EXPECT_EQ(FocusId(), kOther); },
         End(1)});
}

TEST_F(DialogTest, TypedCharactersReachItsEdits)
{
    Run({[&] { PostMessageA(GetFocus(), WM_CHAR, 'x', 1); },
         [&] {
             CString text;
             m_dialog.GetDlgItemText(kEdit, text);
             EXPECT_EQ(text, "x");
         },
         End(1)});
}

class CKeyEater : public CTestDialog
{
public:
    using CTestDialog::CTestDialog;
    BOOL PreTranslateMessage(MSG* message) override
    {
        if (message->message == WM_KEYDOWN && message->wParam == VK_F5)
            throw std::runtime_error("no");
        if (message->message == WM_KEYDOWN && message->wParam == VK_ESCAPE)
        {
            m_log.push_back("eaten");
            return TRUE;
        }
        return CTestDialog::PreTranslateMessage(message);
    }
};

TEST_F(DialogTest, SeesTheMessagesOfItsControlsFirst)
{
    CKeyEater dialog;
    dialog.InitModalIndirect(m_template.Get(), &m_owner);
    steps = {Press(VK_ESCAPE), Press(VK_F5), [&] { dialog.EndDialog(3); }};
    EXPECT_EQ(dialog.DoModal(), 3);
    EXPECT_EQ(dialog.m_log, (CLog{"eaten", "gone"}));
}

// ---- Not modal ------------------------------------------------------------------------------------------------------

TEST_F(DialogTest, ADialogThatIsNotModalLivesUntilItIsDestroyed)
{
    ASSERT_TRUE(m_dialog.CreateIndirect(m_template.Get(), &m_owner));
    EXPECT_FALSE(m_dialog.IsWindowVisible());
    EXPECT_TRUE(m_owner.IsWindowEnabled());
    m_dialog.ShowWindow(SW_SHOWNORMAL);
    m_dialog.SetDlgItemText(kEdit, "text");
    m_dialog.EndDialog(1);
    EXPECT_FALSE(m_dialog.IsWindowVisible());
    EXPECT_TRUE(m_dialog.DestroyWindow());
    EXPECT_EQ(m_dialog.m_log, CLog{"gone"});
}

TEST_F(DialogTest, ADialogThatIsNotModalCanRefuseToOpen)
{
    m_dialog.m_init = [&] {
        m_dialog.EndDialog(1);
        return TRUE;
    };
    EXPECT_FALSE(m_dialog.CreateIndirect(m_template.Get(), &m_owner));
    EXPECT_EQ(m_dialog.m_hWnd, nullptr);
}

// ---- Resources ------------------------------------------------------------------------------------------------------

TEST_F(DialogTest, ManyOpeningsTakeNoMoreMemoryThanOne)
{
    const auto openOnce = [&] {
        m_dialog.m_log.clear();
        m_dialog.m_init = [&] {
            for (int id : {kEdit, kOther, kAct, IDOK, IDCANCEL})
                m_dialog.GetDlgItem(id)->GetFont();
            m_dialog.EndDialog(1);
            return TRUE;
        };
        return m_dialog.DoModal();
    };
    openOnce();
    const auto take = [&](int count) {
        CAllocationFaults counting(CAllocationFaults::kNever);
        for (int i = 0; i < count; ++i)
            openOnce();
        return counting.Requests();
    };
    const int once = take(1);
    EXPECT_EQ(take(100), 100 * once);
    EXPECT_LE(once, 10); // those of this test
}

} // namespace
