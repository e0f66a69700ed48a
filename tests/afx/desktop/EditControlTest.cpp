#include "tests/afx/desktop/TestDialog.h"

using namespace desktop;

namespace
{
constexpr DWORD kDialog = WS_POPUP | WS_CAPTION | WS_VISIBLE;
constexpr DWORD kSingle = ES_AUTOHSCROLL | WS_TABSTOP;
constexpr DWORD kMulti = ES_MULTILINE | ES_AUTOVSCROLL | WS_TABSTOP;

class EditControl : public ::testing::Test
{
protected:
    explicit EditControl(DWORD style = kSingle)
        : dialog(TemplateBuilder(kDialog)
                     .Font(9, "MS Sans Serif")
                     .Control(kEdit, 1, "", style, 0, 0, 100, 40)
                     .Control(kButton, 2, "b", WS_TABSTOP, 0, 50))
    {
        SetFocus(edit());
        dialog.Log();
    }

    HWND edit() const { return dialog.Item(1); }
    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) { return dialog.Send(1, message, wParam, lParam); }
    std::string Text() const { return dialog.Text(1); }
    void SetText(const char* text)
    {
        SetWindowTextA(edit(), text);
        dialog.Log();
    }
    std::string Selection()
    {
        DWORD start = 0;
        DWORD end = 0;
        Send(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
        return std::to_string(start) + "-" + std::to_string(end);
    }
    void Press(WPARAM key, bool shift = false, bool control = false)
    {
        if (shift)
            SetKey(VK_SHIFT, true);
        if (control)
            SetKey(VK_CONTROL, true);
        Send(WM_KEYDOWN, key, 1);
        Send(WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
        SetKey(VK_SHIFT, false);
        SetKey(VK_CONTROL, false);
    }

    TestDialog dialog;
};

class MultiLineEdit : public EditControl
{
protected:
    MultiLineEdit() : EditControl(kMulti) {}
};

class NumberEdit : public EditControl
{
protected:
    NumberEdit() : EditControl(kSingle | ES_NUMBER) {}
};

class UpperCaseEdit : public EditControl
{
protected:
    UpperCaseEdit() : EditControl(kSingle | ES_UPPERCASE) {}
};

class ReadOnlyEdit : public EditControl
{
protected:
    ReadOnlyEdit() : EditControl(kSingle | ES_READONLY) {}
};

class NarrowEdit : public EditControl
{
protected:
    NarrowEdit() : EditControl(WS_TABSTOP) {} // Does not scroll
};
} // namespace

TEST_F(EditControl, SettingATextTellsTheParent)
{
    SetWindowTextA(edit(), "abc");
    EXPECT_EQ(Text(), "abc");
    EXPECT_EQ(GetWindowTextLengthA(edit()), 3);
    EXPECT_EQ(dialog.Log(), "1:1024 1:768"); // EN_UPDATE, EN_CHANGE
    EXPECT_EQ(Selection(), "0-0");
}

TEST_F(EditControl, ReadingATextCutsItToTheBuffer)
{
    SetText("abcdef");
    char text[4];
    EXPECT_EQ(GetWindowTextA(edit(), text, 4), 3);
    EXPECT_STREQ(text, "abc");
    EXPECT_EQ(GetDlgItemTextA(dialog.Window(), 1, text, 2), 1u);
    EXPECT_STREQ(text, "a");
}

TEST_F(EditControl, TypingInsertsAndTells)
{
    TypeInto(edit(), "12");
    EXPECT_EQ(Text(), "12");
    EXPECT_EQ(dialog.Log(), "1:1024 1:768 1:1024 1:768");
    EXPECT_EQ(Selection(), "2-2");
    Press(VK_LEFT);
    TypeInto(edit(), "x");
    EXPECT_EQ(Text(), "1x2");
}

TEST_F(EditControl, TypingStopsAtTheLimit)
{
    Send(EM_LIMITTEXT, 3);
    EXPECT_EQ(Send(EM_GETLIMITTEXT), 3);
    TypeInto(edit(), "abc");
    dialog.Log();
    TypeInto(edit(), "d");
    EXPECT_EQ(Text(), "abc");
    EXPECT_EQ(dialog.Log().substr(0, 6), "1:1281"); // EN_MAXTEXT
    // A selection makes room.
    Send(EM_SETSEL, 1, 2);
    TypeInto(edit(), "X");
    EXPECT_EQ(Text(), "aXc");
}

TEST_F(EditControl, TheLimitDoesNotBindTheProgramsOwnText)
{
    Send(EM_LIMITTEXT, 2);
    SetText("abcdef");
    EXPECT_EQ(Text(), "abcdef");
    TypeInto(edit(), "x");
    EXPECT_EQ(Text(), "abcdef");
    Press(VK_END);
    TypeInto(edit(), "\b\b\b\b\b");
    EXPECT_EQ(Text(), "a");
    TypeInto(edit(), "xy");
    EXPECT_EQ(Text(), "ax");
}

TEST_F(EditControl, LimitsWithoutANumber)
{
    EXPECT_EQ(Send(EM_GETLIMITTEXT), 30000);
    Send(EM_LIMITTEXT, 0);
    EXPECT_EQ(Send(EM_GETLIMITTEXT), 0x7FFFFFFE);
}

TEST_F(EditControl, SelectionIsSetAndRead)
{
    SetText("abcdef");
    Send(EM_SETSEL, 1, 3);
    EXPECT_EQ(Selection(), "1-3");
    EXPECT_EQ(Send(EM_GETSEL), MAKELONG(1, 3));
    Send(EM_SETSEL, 0, -1);
    EXPECT_EQ(Selection(), "0-6");
    Send(EM_SETSEL, 4, 2);
    EXPECT_EQ(Selection(), "2-4");
    Send(EM_SETSEL, static_cast<WPARAM>(-1), 0);
    EXPECT_EQ(Selection(), "2-2"); // Where the caret was
    Send(EM_SETSEL, 2, 100);
    EXPECT_EQ(Selection(), "2-6");
}

TEST_F(EditControl, KeysMoveAndSelect)
{
    SetText("one two");
    Press(VK_END);
    EXPECT_EQ(Selection(), "7-7");
    Press(VK_LEFT, true);
    Press(VK_LEFT, true);
    EXPECT_EQ(Selection(), "5-7");
    Press(VK_HOME, true);
    EXPECT_EQ(Selection(), "0-7");
    Press(VK_HOME);
    EXPECT_EQ(Selection(), "0-0");
    Press(VK_RIGHT, false, true);
    EXPECT_EQ(Selection(), "4-4");
    Press(VK_LEFT, false, true);
    EXPECT_EQ(Selection(), "0-0");
}

TEST_F(EditControl, DeletingKeys)
{
    SetText("abcdef");
    Send(EM_SETSEL, 2, 4);
    Press(VK_DELETE);
    EXPECT_EQ(Text(), "abef");
    Press(VK_DELETE);
    EXPECT_EQ(Text(), "abf");
    TypeInto(edit(), "\b");
    EXPECT_EQ(Text(), "af");
    EXPECT_EQ(dialog.Log(), "1:1024 1:768 1:1024 1:768 1:1024 1:768");
    Press(VK_HOME);
    TypeInto(edit(), "\b");
    EXPECT_EQ(dialog.Log(), "");
}

TEST_F(EditControl, ControlCharactersAreNoText)
{
    TypeInto(edit(), "a\x1b\r\n\tb");
    EXPECT_EQ(Text(), "ab");
}

TEST_F(EditControl, UndoTakesBackAndGivesBack)
{
    EXPECT_TRUE(Send(WM_UNDO)); // which an edit of one line says without a change, too
    EXPECT_EQ(Text(), "");
    SetText("abc");
    Press(VK_END);
    TypeInto(edit(), "de");
    EXPECT_TRUE(Send(WM_UNDO));
    EXPECT_EQ(Text(), "abc");
    EXPECT_TRUE(Send(WM_UNDO));
    EXPECT_EQ(Text(), "abcde");
}

TEST_F(EditControl, CutCopyPaste)
{
    SetText("abcdef");
    Send(EM_SETSEL, 1, 3);
    Send(WM_COPY);
    EXPECT_TRUE(IsClipboardFormatAvailable(CF_TEXT));
    Send(EM_SETSEL, 6, 6);
    Send(WM_PASTE);
    EXPECT_EQ(Text(), "abcdefbc");
    Send(EM_SETSEL, 0, 2);
    TypeInto(edit(), "\x18"); // Ctrl+X
    EXPECT_EQ(Text(), "cdefbc");
    TypeInto(edit(), "\x16"); // Ctrl+V
    EXPECT_EQ(Text(), "abcdefbc");
    Send(EM_SETSEL, 0, -1);
    Send(WM_CLEAR);
    EXPECT_EQ(Text(), "");
}

TEST_F(EditControl, PastingObeysTheLimit)
{
    SetText("123456");
    Send(EM_SETSEL, 0, -1);
    Send(WM_COPY);
    Send(EM_LIMITTEXT, 4);
    dialog.Log();
    Send(WM_PASTE);
    EXPECT_EQ(Text(), "1234");
    EXPECT_EQ(dialog.Log(), "1:1281 1:1024 1:768");
}

TEST_F(EditControl, FocusTellsTheParent)
{
    SetFocus(dialog.Item(2));
    EXPECT_EQ(dialog.Log(), "1:512");
    SetFocus(edit());
    EXPECT_EQ(dialog.Log(), "1:256");
}

TEST_F(EditControl, TabbingSelectsTheWholeText)
{
    SetText("abc");
    dialog.Key(VK_TAB);
    EXPECT_EQ(dialog.FocusId(), 2);
    dialog.Key(VK_TAB);
    EXPECT_EQ(dialog.FocusId(), 1);
    EXPECT_EQ(Selection(), "0-3");
}

TEST_F(EditControl, ScrollsToTheCaret)
{
    SetText(std::string(60, 'W').c_str());
    EXPECT_EQ(Send(EM_GETFIRSTVISIBLELINE), 0);
    Send(EM_SETSEL, 60, 60);
    Send(EM_SCROLLCARET);
    EXPECT_GT(Send(EM_GETFIRSTVISIBLELINE), 20);
    Send(EM_SETSEL, 0, 0);
    Send(EM_SCROLLCARET);
    EXPECT_EQ(Send(EM_GETFIRSTVISIBLELINE), 0);
}

TEST_F(EditControl, AsksForKeysOfADialog)
{
    EXPECT_EQ(Send(WM_GETDLGCODE), DLGC_HASSETSEL | DLGC_WANTCHARS | DLGC_WANTARROWS);
}

TEST_F(EditControl, OneLine)
{
    SetText("abc");
    EXPECT_EQ(Send(EM_GETLINECOUNT), 1);
    EXPECT_EQ(Send(EM_LINEINDEX, 0), 0);
}

TEST_F(NumberEdit, TakesDigitsOnly)
{
    TypeInto(edit(), "1a-2.3");
    EXPECT_EQ(Text(), "123");
    SetText("abc"); // Set by the program, anything goes.
    EXPECT_EQ(Text(), "abc");
}

TEST_F(UpperCaseEdit, TurnsWhatComesIn)
{
    TypeInto(edit(), "aB1");
    EXPECT_EQ(Text(), "AB1");
    SetText("abc");
    EXPECT_EQ(Text(), "ABC");
}

TEST_F(ReadOnlyEdit, TakesTextFromTheProgramOnly)
{
    TypeInto(edit(), "abc");
    EXPECT_EQ(Text(), "");
    SetText("abc");
    EXPECT_EQ(Text(), "abc");
    Press(VK_DELETE);
    Send(WM_CLEAR);
    Send(WM_PASTE);
    EXPECT_EQ(Text(), "abc");
}

TEST_F(NarrowEdit, TakesWhatFitsItsWidth)
{
    TypeInto(edit(), std::string(100, 'W'));
    EXPECT_EQ(Text().size(), 13u); // 148 pixels, 11 each
    EXPECT_NE(dialog.Log().find("1:1281"), std::string::npos);
}

TEST_F(MultiLineEdit, LinesBreakAtLineBreaks)
{
    SetWindowTextA(edit(), "one\r\ntwo\r\n\r\nfour");
    EXPECT_EQ(dialog.Log(), ""); // No notification in a multi-line edit
    EXPECT_EQ(Send(EM_GETLINECOUNT), 4);
    EXPECT_EQ(Send(EM_LINEINDEX, 1), 5);
    EXPECT_EQ(Send(EM_LINEINDEX, 3), 12);
    EXPECT_EQ(Send(EM_LINEINDEX, 4), -1);
}

TEST_F(MultiLineEdit, LinesBreakBetweenWords)
{
    SetWindowTextA(edit(), "The quick brown fox jumps over the lazy dog");
    EXPECT_EQ(Send(EM_GETLINECOUNT), 2);
    EXPECT_EQ(Send(EM_LINEINDEX, 1), 26);
}

TEST_F(MultiLineEdit, LimitsWithoutANumber)
{
    Send(EM_LIMITTEXT, 0);
    EXPECT_EQ(static_cast<UINT>(Send(EM_GETLIMITTEXT)), 0xFFFFFFFFu);
}

TEST_F(MultiLineEdit, EnterMakesALine)
{
    TypeInto(edit(), "a\rb");
    EXPECT_EQ(Text(), "a\r\nb");
    Press(VK_HOME);
    TypeInto(edit(), "\b");
    EXPECT_EQ(Text(), "ab");
}

TEST_F(MultiLineEdit, TabLeavesItInADialog)
{
    dialog.Key(VK_TAB);
    EXPECT_EQ(dialog.FocusId(), 2);
    EXPECT_EQ(Text(), "");
}

TEST_F(MultiLineEdit, KeysMoveBetweenLines)
{
    SetWindowTextA(edit(), "one\r\ntwo");
    Press(VK_DOWN);
    EXPECT_EQ(Selection(), "5-5");
    Press(VK_END);
    EXPECT_EQ(Selection(), "8-8");
    Press(VK_UP);
    EXPECT_EQ(Selection(), "3-3");
    Press(VK_RIGHT);
    EXPECT_EQ(Selection(), "5-5");
    Press(VK_END, false, true);
    EXPECT_EQ(Selection(), "8-8");
}
