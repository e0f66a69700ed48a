#include "tests/afx/desktop/TestDialog.h"

using namespace desktop;

namespace
{
class ListBoxControl : public ::testing::Test
{
protected:
    explicit ListBoxControl(DWORD style = LBS_NOTIFY)
        : dialog(TemplateBuilder(WS_POPUP | WS_CAPTION | WS_VISIBLE)
                     .Font(9, "MS Sans Serif")
                     .Control(kListBox, 1, "", WS_VSCROLL | WS_TABSTOP | style, 0, 0, 60, 40)
                     .Control(kButton, 2, "b", WS_TABSTOP, 0, 50))
    {
    }

    HWND list() const { return dialog.Item(1); }
    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) { return dialog.Send(1, message, wParam, lParam); }
    LRESULT Send(UINT message, WPARAM wParam, const char* text)
    {
        return dialog.Send(1, message, wParam, reinterpret_cast<LPARAM>(text));
    }
    std::string Item(WPARAM index)
    {
        char text[100] = "";
        dialog.Send(1, LB_GETTEXT, index, reinterpret_cast<LPARAM>(text));
        return text;
    }
    void Fill(int count)
    {
        for (int i = 0; i < count; ++i)
            Send(LB_ADDSTRING, 0, ("item " + std::to_string(i)).c_str());
        dialog.Log();
    }
    void Press(WPARAM key) { SendMessageA(list(), WM_KEYDOWN, key, 1); }

    TestDialog dialog;
};

class QuietListBox : public ListBoxControl
{
protected:
    QuietListBox() : ListBoxControl(0) {}
};

class TabbedListBox : public ListBoxControl
{
protected:
    TabbedListBox() : ListBoxControl(LBS_NOTIFY | LBS_USETABSTOPS) {}
};
} // namespace

TEST_F(ListBoxControl, HoldsItemsAndData)
{
    EXPECT_EQ(Send(LB_ADDSTRING, 0, "zero"), 0);
    EXPECT_EQ(Send(LB_ADDSTRING, 0, "one"), 1);
    EXPECT_EQ(Send(LB_GETCOUNT), 2);
    EXPECT_EQ(Item(1), "one");
    EXPECT_EQ(Send(LB_GETTEXTLEN, 0), 4);
    EXPECT_EQ(Send(LB_GETTEXTLEN, 2), LB_ERR);
    EXPECT_NE(Send(LB_SETITEMDATA, 1, 168 << 16 | 1), LB_ERR);
    EXPECT_EQ(Send(LB_GETITEMDATA, 1), 168 << 16 | 1);
    EXPECT_EQ(Send(LB_GETITEMDATA, 2), LB_ERR);
    Send(LB_RESETCONTENT);
    EXPECT_EQ(Send(LB_GETCOUNT), 0);
}

TEST_F(ListBoxControl, SelectingByTheProgramIsSilent)
{
    Fill(3);
    EXPECT_EQ(Send(LB_GETCURSEL), LB_ERR);
    EXPECT_EQ(Send(LB_SETCURSEL, 1), 1);
    EXPECT_EQ(Send(LB_GETCURSEL), 1);
    EXPECT_EQ(Send(LB_SETCURSEL, 3), LB_ERR);
    EXPECT_EQ(Send(LB_GETCURSEL), 1);
    EXPECT_EQ(Send(LB_SETCURSEL, static_cast<WPARAM>(-1)), LB_ERR);
    EXPECT_EQ(Send(LB_GETCURSEL), LB_ERR);
    EXPECT_EQ(dialog.Log(), "");
}

TEST_F(ListBoxControl, KeysSelectAndTell)
{
    Fill(4);
    SetFocus(list());
    Send(LB_SETCURSEL, 0);
    dialog.Log();
    Press(VK_DOWN);
    EXPECT_EQ(Send(LB_GETCURSEL), 1);
    EXPECT_EQ(dialog.Log(), "1:1"); // LBN_SELCHANGE
    Press(VK_END);
    EXPECT_EQ(Send(LB_GETCURSEL), 3);
    Press(VK_HOME);
    EXPECT_EQ(Send(LB_GETCURSEL), 0);
    dialog.Log();
    SendMessageA(list(), WM_CHAR, 'i', 1);
    EXPECT_EQ(Send(LB_GETCURSEL), 1);
    EXPECT_EQ(dialog.Log(), "1:1");
}

TEST_F(ListBoxControl, TheMouseSelectsAndTells)
{
    Fill(3);
    SetFocus(list());
    dialog.Log();
    SendMessageA(list(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 13 + 5));
    EXPECT_EQ(Send(LB_GETCURSEL), 1);
    SendMessageA(list(), WM_LBUTTONUP, 0, MAKELPARAM(5, 13 + 5));
    EXPECT_EQ(dialog.Log(), "1:1");
    SendMessageA(list(), WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 13 + 5));
    SendMessageA(list(), WM_LBUTTONUP, 0, MAKELPARAM(5, 13 + 5));
    EXPECT_EQ(dialog.Log(), "1:2"); // LBN_DBLCLK
}

TEST_F(ListBoxControl, FocusTellsTheParent)
{
    SetFocus(list());
    dialog.Log();
    SetFocus(dialog.Item(2));
    EXPECT_EQ(dialog.Log(), "1:5");
    SetFocus(list());
    EXPECT_EQ(dialog.Log(), "1:4");
}

TEST_F(ListBoxControl, ScrollsToTheSelection)
{
    Fill(30);
    EXPECT_EQ(Send(LB_GETTOPINDEX), 0);
    Send(LB_SETCURSEL, 20);
    EXPECT_GT(Send(LB_GETTOPINDEX), 10);
    EXPECT_LE(Send(LB_GETTOPINDEX), 20);
    Send(LB_SETCURSEL, 3);
    EXPECT_EQ(Send(LB_GETTOPINDEX), 3);
    SendMessageA(list(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 14));
    SendMessageA(list(), WM_LBUTTONUP, 0, MAKELPARAM(3, 14));
    EXPECT_EQ(Send(LB_GETCURSEL), 4);
}

TEST_F(ListBoxControl, NeedsTheStyleForTabStops)
{
    const int stops[] = {40, 80};
    EXPECT_FALSE(Send(LB_SETTABSTOPS, 2, reinterpret_cast<LPARAM>(stops)));
}

TEST_F(TabbedListBox, TakesTabStops)
{
    const int stops[] = {40, 80};
    EXPECT_TRUE(Send(LB_SETTABSTOPS, 2, reinterpret_cast<LPARAM>(stops)));
    Send(LB_ADDSTRING, 0, "a\tb\tc");
    EXPECT_EQ(Item(0), "a\tb\tc");
}

TEST_F(ListBoxControl, AsksForKeysOfADialog) { EXPECT_EQ(Send(WM_GETDLGCODE), DLGC_WANTARROWS | DLGC_WANTCHARS); }

TEST_F(QuietListBox, TellsOfTheFocusOnly)
{
    Fill(3);
    SetFocus(list());
    dialog.Log();
    Press(VK_DOWN);
    Press(VK_DOWN);
    SetFocus(dialog.Item(2));
    EXPECT_EQ(dialog.Log(), "1:5");
    EXPECT_EQ(Send(LB_GETCURSEL), 1);
}

TEST_F(ListBoxControl, HasAScrollBarOnlyWhenItNeedsOne)
{
    const auto bar = [this] { return (GetWindowLongA(list(), GWL_STYLE) & static_cast<LONG>(WS_VSCROLL)) != 0; };
    const auto width = [this] {
        RECT client{};
        GetClientRect(list(), &client);
        return client.right;
    };
    EXPECT_FALSE(bar());
    EXPECT_EQ(width(), 90);
    Fill(4);
    EXPECT_FALSE(bar());
    Fill(1);
    EXPECT_TRUE(bar());
    EXPECT_EQ(width(), 90 - 17);
    Send(LB_RESETCONTENT);
    EXPECT_FALSE(bar());
    EXPECT_EQ(width(), 90);
}
