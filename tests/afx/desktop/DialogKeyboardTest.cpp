// Tab order, groups, mnemonics, the default button.

#include "tests/afx/desktop/TestDialog.h"

using namespace desktop;

namespace
{
constexpr DWORD kDialog = WS_POPUP | WS_CAPTION | WS_VISIBLE;

class DialogKeyboard : public ::testing::Test
{
protected:
    DialogKeyboard()
        : dialog(TemplateBuilder(kDialog)
                     .Control(kStatic, 100, "&First", SS_LEFT)
                     .Control(kEdit, 1, "abc", WS_TABSTOP | ES_AUTOHSCROLL)
                     .Control(kStatic, 101, "&Gone", SS_LEFT)
                     .Control(kEdit, 5, "", WS_TABSTOP | WS_DISABLED)
                     .Control(kEdit, 3, "", WS_TABSTOP)
                     .Control(kButton, 4, "&Check", BS_AUTOCHECKBOX | WS_TABSTOP)
                     .Control(kButton, 20, "&r", BS_AUTORADIOBUTTON | WS_GROUP | WS_TABSTOP)
                     .Control(kButton, 21, "&s", BS_AUTORADIOBUTTON)
                     .Control(kButton, 22, "&t", BS_AUTORADIOBUTTON)
                     .Control(kButton, 10, "&OK", BS_DEFPUSHBUTTON | WS_GROUP | WS_TABSTOP)
                     .Control(kButton, IDCANCEL, "&Back", BS_PUSHBUTTON | WS_TABSTOP)
                     .Control(kStatic, 102, "a && b", SS_LEFT))
    {
        dialog.Log();
    }

    HWND Item(int id) const { return dialog.Item(id); }
    int Next(int id, BOOL previous = FALSE)
    {
        const HWND next = GetNextDlgTabItem(dialog.Window(), id ? Item(id) : nullptr, previous);
        return next ? GetDlgCtrlID(next) : 0;
    }
    int NextInGroup(int id, BOOL previous = FALSE)
    {
        const HWND next = GetNextDlgGroupItem(dialog.Window(), id ? Item(id) : nullptr, previous);
        return next ? GetDlgCtrlID(next) : 0;
    }
    UINT Style(int id) const { return static_cast<UINT>(GetWindowLongA(Item(id), GWL_STYLE)) & 0xF; }

    TestDialog dialog;
};
} // namespace

TEST_F(DialogKeyboard, TheFirstTabStopHasTheFocus)
{
    EXPECT_EQ(dialog.FocusId(), 1);
    EXPECT_EQ(dialog.Send(1, EM_GETSEL), MAKELONG(0, 3));
}

TEST_F(DialogKeyboard, TabItems)
{
    EXPECT_EQ(Next(0), 1);
    EXPECT_EQ(Next(1), 3);
    EXPECT_EQ(Next(100), 1);
    EXPECT_EQ(Next(5), 3);
    EXPECT_EQ(Next(IDCANCEL), 1);
    EXPECT_EQ(Next(1, TRUE), IDCANCEL);
    EXPECT_EQ(Next(3, TRUE), 1);
    ShowWindow(Item(3), SW_HIDE);
    EXPECT_EQ(Next(1), 4);
}

TEST_F(DialogKeyboard, GroupItems)
{
    EXPECT_EQ(NextInGroup(20), 21);
    EXPECT_EQ(NextInGroup(22), 20);
    EXPECT_EQ(NextInGroup(20, TRUE), 22);
    EnableWindow(Item(21), FALSE);
    EXPECT_EQ(NextInGroup(20), 22);
}

TEST_F(DialogKeyboard, TabMovesTheFocus)
{
    dialog.Key(VK_TAB);
    EXPECT_EQ(dialog.FocusId(), 3);
    dialog.Key(VK_TAB);
    EXPECT_EQ(dialog.FocusId(), 4);
    dialog.Key(VK_TAB, true);
    EXPECT_EQ(dialog.FocusId(), 3);
    EXPECT_EQ(dialog.Log(), "1:512 3:256 3:512 3:256");
}

TEST_F(DialogKeyboard, ArrowsMoveInAGroupAndCheck)
{
    SetFocus(Item(20));
    dialog.Send(20, BM_CLICK);
    dialog.Log();
    dialog.Key(VK_DOWN);
    EXPECT_EQ(dialog.FocusId(), 21);
    EXPECT_EQ(IsDlgButtonChecked(dialog.Window(), 21), 1u);
    EXPECT_EQ(IsDlgButtonChecked(dialog.Window(), 20), 0u);
    EXPECT_NE(dialog.Log().find("21:0"), std::string::npos);
    dialog.Key(VK_LEFT);
    EXPECT_EQ(dialog.FocusId(), 20);
    dialog.Key(VK_UP);
    EXPECT_EQ(dialog.FocusId(), 22);
}

TEST_F(DialogKeyboard, ArrowsBelongToAnEdit)
{
    dialog.Key(VK_RIGHT);
    EXPECT_EQ(dialog.FocusId(), 1);
}

TEST_F(DialogKeyboard, EnterPressesTheDefaultButton)
{
    dialog.Key(VK_RETURN);
    EXPECT_EQ(dialog.Log(), "10:0");
    SendMessageA(dialog.Window(), DM_SETDEFID, IDCANCEL, 0);
    EXPECT_EQ(SendMessageA(dialog.Window(), DM_GETDEFID, 0, 0), MAKELONG(IDCANCEL, DC_HASDEFID));
    EXPECT_EQ(Style(10), static_cast<UINT>(BS_PUSHBUTTON));
    EXPECT_EQ(Style(IDCANCEL), static_cast<UINT>(BS_DEFPUSHBUTTON));
    dialog.Key(VK_RETURN);
    EXPECT_EQ(dialog.Log(), "2:0");
}

TEST_F(DialogKeyboard, EnterPressesTheButtonWithTheFocus)
{
    SendMessageA(dialog.Window(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Item(IDCANCEL)), TRUE);
    EXPECT_EQ(Style(IDCANCEL), static_cast<UINT>(BS_DEFPUSHBUTTON));
    EXPECT_EQ(Style(10), static_cast<UINT>(BS_PUSHBUTTON));
    dialog.Log();
    dialog.Key(VK_RETURN);
    EXPECT_EQ(dialog.Log(), "2:0");
}

TEST_F(DialogKeyboard, ADisabledDefaultButtonIsNotPressed)
{
    EnableWindow(Item(10), FALSE);
    dialog.Key(VK_RETURN);
    EXPECT_EQ(dialog.Log(), "");
}

TEST_F(DialogKeyboard, EscCancels)
{
    dialog.Key(VK_ESCAPE);
    EXPECT_EQ(dialog.Log(), "2:0");
}

TEST_F(DialogKeyboard, TheCloseMessageCancels)
{
    SendMessageA(dialog.Window(), WM_CLOSE, 0, 0);
    dialog.Pump();
    EXPECT_EQ(dialog.Log(), "2:0");
}

TEST_F(DialogKeyboard, AltAndALetterClick)
{
    dialog.Char('b', true);
    EXPECT_EQ(dialog.Log(), "1:512 2:0");
    dialog.Char('c', true);
    EXPECT_EQ(IsDlgButtonChecked(dialog.Window(), 4), 1u);
}

TEST_F(DialogKeyboard, TheMnemonicOfALabelGoesToTheNextControl)
{
    dialog.Key(VK_TAB);
    dialog.Char('f', true);
    EXPECT_EQ(dialog.FocusId(), 1);
    dialog.Char('g', true); // The edit behind the label is disabled, so the one after it.
    EXPECT_EQ(dialog.FocusId(), 3);
}

TEST_F(DialogKeyboard, ALetterIsEnoughOnAButton)
{
    SetFocus(Item(4));
    dialog.Log();
    dialog.Char('o');
    EXPECT_EQ(dialog.Log(), "10:0");
    SetFocus(Item(1));
    dialog.Log();
    dialog.Char('o');
    EXPECT_NE(dialog.Text(1).find('o'), std::string::npos); // In an edit it is text.
}

TEST_F(DialogKeyboard, FocusByMessage)
{
    SendMessageA(dialog.Window(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Item(3)), TRUE);
    EXPECT_EQ(dialog.FocusId(), 3);
    SendMessageA(dialog.Window(), WM_NEXTDLGCTL, 0, FALSE);
    EXPECT_EQ(dialog.FocusId(), 4);
    SendMessageA(dialog.Window(), WM_NEXTDLGCTL, 1, FALSE);
    EXPECT_EQ(dialog.FocusId(), 3);
}

TEST_F(DialogKeyboard, HidingOrDisablingTheFocus)
{
    SetFocus(Item(3));
    ShowWindow(Item(3), SW_HIDE);
    EXPECT_NE(GetFocus(), Item(3));
    SetFocus(Item(4));
    EnableWindow(Item(4), FALSE);
    EXPECT_NE(GetFocus(), Item(4));
}
