// Templates in their variants, and the functions that reach controls by id.

#include "tests/afx/desktop/TestDialog.h"

using namespace desktop;

namespace
{
constexpr DWORD kDialog = WS_POPUP | WS_CAPTION | WS_VISIBLE;
} // namespace

TEST(DialogItems, ControlsAreFoundByTheirId)
{
    TestDialog dialog(TemplateBuilder(kDialog)
                          .Control(kStatic, 0xFFFF, "label", 0)
                          .Control(kEdit, 2052, "12", ES_AUTOHSCROLL)
                          .Control("button", 3001, "x", BS_AUTOCHECKBOX));
    EXPECT_EQ(GetDlgItem(dialog.Window(), 9), nullptr);
    EXPECT_EQ(GetDlgCtrlID(dialog.Item(2052)), 2052);
    EXPECT_EQ(GetDlgCtrlID(GetWindow(dialog.Window(), GW_CHILD)), 0xFFFF);
    EXPECT_EQ(GetWindow(dialog.Item(2052), GW_HWNDNEXT), dialog.Item(3001));
    EXPECT_EQ(GetWindow(dialog.Item(2052), GW_HWNDPREV), GetWindow(dialog.Window(), GW_CHILD));
    char name[20];
    GetClassNameA(dialog.Item(3001), name, sizeof name);
    EXPECT_STREQ(name, "Button");
    GetClassNameA(dialog.Window(), name, sizeof name);
    EXPECT_STREQ(name, "#32770");
    EXPECT_EQ(GetParent(dialog.Item(2052)), dialog.Window());
}

TEST(DialogItems, AnExtendedTemplateKeepsLongIds)
{
    TestDialog dialog(TemplateBuilder(kDialog, true)
                          .Title("Extended")
                          .Control(kStatic, static_cast<DWORD>(-1), "label", 0)
                          .Control(kEdit, 70000, "12", ES_AUTOHSCROLL));
    EXPECT_EQ(WindowText(dialog.Window()), "Extended");
    EXPECT_EQ(dialog.Text(70000), "12");
    EXPECT_EQ(GetDlgCtrlID(GetWindow(dialog.Window(), GW_CHILD)), -1);
}

TEST(DialogItems, WithoutTheControl)
{
    TestDialog dialog((TemplateBuilder(kDialog)));
    EXPECT_FALSE(SetDlgItemTextA(dialog.Window(), 2, "x"));
    EXPECT_EQ(SendDlgItemMessageA(dialog.Window(), 2, WM_GETTEXTLENGTH, 0, 0), 0);
}

TEST(DialogItems, EnablingAndShowing)
{
    TestDialog dialog(TemplateBuilder(kDialog).Control(kEdit, 1, "", 0).Control(kStatic, 2, "x", 0));
    EXPECT_TRUE(IsWindowEnabled(dialog.Item(2)));
    EXPECT_FALSE(EnableWindow(dialog.Item(2), FALSE)); // It was not disabled.
    EXPECT_TRUE(EnableWindow(dialog.Item(2), FALSE));
    EXPECT_FALSE(IsWindowEnabled(dialog.Item(2)));
    EXPECT_TRUE(ShowWindow(dialog.Item(2), SW_HIDE)); // It was visible.
    EXPECT_FALSE(IsWindowVisible(dialog.Item(2)));
    EXPECT_FALSE(ShowWindow(dialog.Item(2), SW_SHOW));
    ShowWindow(dialog.Window(), SW_HIDE);
    EXPECT_FALSE(IsWindowVisible(dialog.Item(1)));
    EXPECT_NE(GetWindowLongA(dialog.Item(1), GWL_STYLE) & static_cast<LONG>(WS_VISIBLE), 0);
    // A disabled dialog does not say that its controls are.
    EnableWindow(dialog.Window(), FALSE);
    EXPECT_TRUE(IsWindowEnabled(dialog.Item(1)));
}

namespace
{
WNDPROC g_before = nullptr;
int g_characters = 0;

LRESULT CALLBACK CountingProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    g_characters += message == WM_CHAR;
    return CallWindowProcA(g_before, window, message, wParam, lParam);
}
} // namespace

TEST(DialogItems, ControlsCanBeSubclassed)
{
    TestDialog dialog(TemplateBuilder(kDialog).Control(kEdit, 1, "", ES_AUTOHSCROLL));
    g_characters = 0;
    g_before = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(dialog.Item(1), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(CountingProc)));
    ASSERT_NE(g_before, nullptr);
    TypeInto(dialog.Item(1), "abc");
    EXPECT_EQ(g_characters, 3);
    EXPECT_EQ(dialog.Text(1), "abc");
    SetWindowLongPtrA(dialog.Item(1), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(g_before));
}

TEST(DialogItems, UserData)
{
    TestDialog dialog((TemplateBuilder(kDialog)));
    SetWindowLongPtrA(dialog.Window(), GWLP_USERDATA, 77);
    EXPECT_EQ(GetWindowLongPtrA(dialog.Window(), GWLP_USERDATA), 77);
}
