#include "tests/afx/desktop/TestDialog.h"

using namespace desktop;

namespace
{
class ComboBoxControl : public ::testing::Test
{
protected:
    ComboBoxControl()
        : dialog(TemplateBuilder(WS_POPUP | WS_CAPTION | WS_VISIBLE)
                     .Control(kComboBox, 1, "", CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP, 0, 0, 60, 80)
                     .Control(kButton, 2, "b", WS_TABSTOP, 0, 50))
    {
    }

    HWND combo() const { return dialog.Item(1); }
    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) { return dialog.Send(1, message, wParam, lParam); }
    LRESULT Send(UINT message, WPARAM wParam, const char* text)
    {
        return dialog.Send(1, message, wParam, reinterpret_cast<LPARAM>(text));
    }
    std::string Item(WPARAM index)
    {
        std::string text(static_cast<std::size_t>(std::max<LRESULT>(Send(CB_GETLBTEXTLEN, index), 0)) + 1, '\0');
        text.resize(static_cast<std::size_t>(std::max<LRESULT>(Send(CB_GETLBTEXT, index, text.data()), 0)));
        return text;
    }
    void Fill(std::initializer_list<const char*> texts)
    {
        for (const char* text : texts)
            Send(CB_ADDSTRING, 0, text);
        dialog.Log();
    }
    LRESULT Send(UINT message, WPARAM wParam, char* text)
    {
        return dialog.Send(1, message, wParam, reinterpret_cast<LPARAM>(text));
    }

    TestDialog dialog;
};
} // namespace

TEST_F(ComboBoxControl, HoldsItemsAndData)
{
    EXPECT_EQ(Send(CB_ADDSTRING, 0, "one"), 0);
    EXPECT_EQ(Send(CB_ADDSTRING, 0, "middle"), 1);
    EXPECT_EQ(Send(CB_ADDSTRING, 0, "two"), 2);
    EXPECT_EQ(Send(CB_ADDSTRING, 0, "last"), 3);
    EXPECT_EQ(Send(CB_GETCOUNT), 4);
    EXPECT_EQ(Item(1), "middle");
    EXPECT_EQ(Send(CB_GETLBTEXTLEN, 3), 4);
    EXPECT_EQ(Send(CB_GETLBTEXTLEN, 4), CB_ERR);
    char text[20];
    EXPECT_EQ(Send(CB_GETLBTEXT, 4, text), CB_ERR);
    EXPECT_EQ(Send(CB_GETITEMDATA, 0), 0);
    Send(CB_SETITEMDATA, 2, 0x12345);
    EXPECT_EQ(Send(CB_GETITEMDATA, 2), 0x12345);
    EXPECT_EQ(Send(CB_GETITEMDATA, 4), CB_ERR);
    EXPECT_EQ(Send(CB_SETITEMDATA, 4, LPARAM{1}), CB_ERR);
    Send(CB_RESETCONTENT);
    EXPECT_EQ(Send(CB_GETCOUNT), 0);
    EXPECT_EQ(dialog.Log(), "1:3"); // CBN_SETFOCUS of the opening is all that was said
}

TEST_F(ComboBoxControl, SelectingByTheProgramIsSilent)
{
    Fill({"one", "two", "three"});
    EXPECT_EQ(Send(CB_GETCURSEL), CB_ERR);
    EXPECT_EQ(dialog.Text(1), "");
    EXPECT_EQ(Send(CB_SETCURSEL, 1), 1);
    EXPECT_EQ(Send(CB_GETCURSEL), 1);
    EXPECT_EQ(dialog.Text(1), "two");
    EXPECT_EQ(GetWindowTextLengthA(combo()), 3);
    EXPECT_EQ(Send(CB_SETCURSEL, static_cast<WPARAM>(-1)), CB_ERR);
    EXPECT_EQ(Send(CB_GETCURSEL), CB_ERR);
    EXPECT_EQ(dialog.Log(), "");
}

TEST_F(ComboBoxControl, ItsTextCannotBeSet)
{
    Fill({"one"});
    Send(CB_SETCURSEL, 0);
    SetWindowTextA(combo(), "two");
    EXPECT_EQ(dialog.Text(1), "one");
}

TEST_F(ComboBoxControl, KeysSelectAndTell)
{
    Fill({"one", "two", "three"});
    SetFocus(combo());
    dialog.Log();
    SendMessageA(combo(), WM_KEYDOWN, VK_DOWN, 1);
    EXPECT_EQ(Send(CB_GETCURSEL), 0);
    EXPECT_EQ(dialog.Log(), "1:9 1:1"); // CBN_SELENDOK, CBN_SELCHANGE
    SendMessageA(combo(), WM_KEYDOWN, VK_DOWN, 1);
    EXPECT_EQ(Send(CB_GETCURSEL), 1);
    dialog.Log();
    SendMessageA(combo(), WM_KEYDOWN, VK_END, 1);
    EXPECT_EQ(Send(CB_GETCURSEL), 2);
    SendMessageA(combo(), WM_KEYDOWN, VK_HOME, 1);
    EXPECT_EQ(Send(CB_GETCURSEL), 0);
    SendMessageA(combo(), WM_KEYDOWN, VK_UP, 1);
    EXPECT_EQ(Send(CB_GETCURSEL), 0);
}

TEST_F(ComboBoxControl, LettersSelect)
{
    Fill({"one", "two", "three", "four"});
    SetFocus(combo());
    Send(CB_SETCURSEL, 0);
    dialog.Log();
    SendMessageA(combo(), WM_CHAR, 't', 1);
    EXPECT_EQ(Send(CB_GETCURSEL), 1);
    EXPECT_EQ(dialog.Log(), "1:9 1:1");
    SendMessageA(combo(), WM_CHAR, 'T', 1);
    EXPECT_EQ(Send(CB_GETCURSEL), 2);
    dialog.Log();
    SendMessageA(combo(), WM_CHAR, 'x', 1);
    EXPECT_EQ(Send(CB_GETCURSEL), 2);
    EXPECT_EQ(dialog.Log(), "");
}

TEST_F(ComboBoxControl, DropsDownAndRollsUp)
{
    Fill({"one", "two"});
    SetFocus(combo());
    dialog.Log();
    Send(CB_SHOWDROPDOWN, TRUE);
    EXPECT_TRUE(Send(CB_GETDROPPEDSTATE));
    EXPECT_EQ(dialog.Log(), "1:7"); // CBN_DROPDOWN
    Send(CB_SHOWDROPDOWN, FALSE);
    EXPECT_FALSE(Send(CB_GETDROPPEDSTATE));
    EXPECT_EQ(dialog.Log(), "1:10 1:8"); // CBN_SELENDCANCEL, CBN_CLOSEUP
}

TEST_F(ComboBoxControl, EnterAcceptsInTheList)
{
    Fill({"one", "two"});
    SetFocus(combo());
    Send(CB_SHOWDROPDOWN, TRUE);
    dialog.Log();
    dialog.Key(VK_DOWN);
    EXPECT_EQ(dialog.Log(), "1:1");
    dialog.Key(VK_RETURN);
    EXPECT_EQ(dialog.Log(), "1:9 1:8");
    EXPECT_EQ(Send(CB_GETCURSEL), 0);
    EXPECT_FALSE(Send(CB_GETDROPPEDSTATE));
}

TEST_F(ComboBoxControl, LosingTheFocusRollsUp)
{
    Fill({"one", "two"});
    SetFocus(combo());
    Send(CB_SHOWDROPDOWN, TRUE);
    dialog.Log();
    SetFocus(dialog.Item(2));
    EXPECT_EQ(dialog.Log(), "1:10 1:8 1:4");
    EXPECT_FALSE(Send(CB_GETDROPPEDSTATE));
}

TEST_F(ComboBoxControl, AsksForKeysOfADialog) { EXPECT_EQ(Send(WM_GETDLGCODE), DLGC_WANTARROWS | DLGC_WANTCHARS); }
