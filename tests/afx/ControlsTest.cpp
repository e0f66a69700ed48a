#include "afx/Clipboard.h"
#include "afx/System.h"
#include "tests/afx/TestWindow.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/PrintTo.h"

namespace
{

class ControlsTest : public CDesktopTest
{
protected:
    void SetUp() override { ASSERT_TRUE(m_window.Open()); }
    void TearDown() override
    {
        m_window.DestroyWindow();
        CDesktopTest::TearDown();
    }

    CTestWindow m_window;
    const CRect m_rect{0, 0, 100, 80};
};

TEST_F(ControlsTest, ComboBoxesKeepItemsWithTheirData)
{
    CComboBox combo;
    ASSERT_TRUE(combo.Create(CBS_DROPDOWNLIST, m_rect, &m_window, 5));
    EXPECT_EQ(combo.GetCurSel(), CB_ERR);
    EXPECT_EQ(combo.AddString("one"), 0);
    EXPECT_EQ(combo.AddString("two"), 1);
    EXPECT_EQ(combo.AddString("three"), 2);
    EXPECT_NE(combo.SetItemData(2, 0xFFFF0003), CB_ERR);
    EXPECT_EQ(static_cast<DWORD>(combo.GetItemData(2)), 0xFFFF0003);
    EXPECT_EQ(combo.SetCurSel(2), 2);
    EXPECT_EQ(combo.GetCurSel(), 2);
    EXPECT_EQ(combo.GetCount(), 3);
    CString text;
    combo.GetLBText(2, text);
    EXPECT_EQ(text, "three");
    combo.GetLBText(3, text);
    EXPECT_EQ(text, "");
    combo.ResetContent();
    EXPECT_EQ(combo.GetCount(), 0);
}

TEST_F(ControlsTest, ListBoxesKeepItemsWithTheirData)
{
    CListBox list;
    ASSERT_TRUE(list.Create(LBS_NOTIFY | LBS_USETABSTOPS, m_rect, &m_window, 5));
    EXPECT_EQ(list.AddString("a\tb"), 0);
    EXPECT_EQ(list.AddString("c"), 1);
    EXPECT_NE(list.SetItemData(0, 151 << 16 | 10010), LB_ERR);
    EXPECT_EQ(list.GetItemData(0), static_cast<DWORD_PTR>(151 << 16 | 10010));
    EXPECT_EQ(list.GetCurSel(), LB_ERR);
    EXPECT_EQ(list.SetCurSel(1), 1);
    EXPECT_EQ(list.GetCurSel(), 1);
    CString text;
    list.GetText(0, text);
    EXPECT_EQ(text, "a\tb");
    list.GetText(7, text);
    EXPECT_EQ(text, "");
    int stops[] = {40, 80};
    EXPECT_TRUE(list.SetTabStops(2, stops));
}

TEST_F(ControlsTest, EditsLimitAndSelectTheirText)
{
    CEdit edit;
    ASSERT_TRUE(edit.Create(ES_AUTOHSCROLL, m_rect, &m_window, 5));
    edit.LimitText(3);
    for (char c : {'1', '2', '3', '4'})
        edit.SendMessage(WM_CHAR, static_cast<WPARAM>(c));
    CString text;
    edit.GetWindowText(text);
    EXPECT_EQ(text, "123");
    edit.SetSel(0, -1);
    int first = 9, last = 9;
    edit.GetSel(first, last);
    EXPECT_EQ(first, 0);
    EXPECT_EQ(last, 3);
    edit.SetSel(1, 2);
    edit.SendMessage(WM_CHAR, 'x');
    edit.GetWindowText(text);
    EXPECT_EQ(text, "1x3");
}

TEST_F(ControlsTest, ScrollBarsKeepTheirPosition)
{
    CScrollBar bar;
    ASSERT_TRUE(bar.Create(SBS_VERT, m_rect, &m_window, 5));
    bar.SetScrollRange(0, 50);
    bar.SetScrollPos(20);
    EXPECT_EQ(bar.GetScrollPos(), 20);
    bar.SetScrollPos(99);
    EXPECT_EQ(bar.GetScrollPos(), 50);

    SCROLLINFO info = {};
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    info.nMax = 99;
    info.nPage = 10;
    info.nPos = 95;
    EXPECT_TRUE(bar.SetScrollInfo(&info));
    SCROLLINFO read = {};
    EXPECT_TRUE(bar.GetScrollInfo(&read));
    EXPECT_EQ(read.nMax, 99);
    EXPECT_EQ(read.nPage, 10u);
    EXPECT_EQ(read.nPos, 90);
}

TEST_F(ControlsTest, MenusKeepTheirItems)
{
    CMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    EXPECT_TRUE(menu.AppendMenu(MF_STRING, 57637, "&Paste"));
    EXPECT_TRUE(menu.AppendMenu(MF_SEPARATOR));
    menu.EnableMenuItem(57637, MF_BYCOMMAND | MF_GRAYED);
    EXPECT_EQ(GetMenuItemCount(menu.m_hMenu), 2);
    EXPECT_TRUE(GetMenuState(menu.m_hMenu, 57637, MF_BYCOMMAND) & MF_GRAYED);
    const HMENU handle = menu.m_hMenu;
    EXPECT_TRUE(menu.DestroyMenu());
    EXPECT_FALSE(IsMenu(handle));
    EXPECT_FALSE(menu.DestroyMenu());
}

TEST_F(ControlsTest, TextGoesOverTheClipboard)
{
    ASSERT_TRUE(AfxSetClipboardText(&m_window, "1\t2\r\n3"));
    EXPECT_TRUE(AfxIsClipboardText());
    CString text;
    EXPECT_TRUE(AfxGetClipboardText(&m_window, text));
    EXPECT_EQ(text, "1\t2\r\n3");
    ASSERT_TRUE(AfxSetClipboardText(&m_window, ""));
    EXPECT_TRUE(AfxGetClipboardText(&m_window, text));
    EXPECT_EQ(text, "");
}

TEST_F(ControlsTest, AnEmptyClipboardHoldsNoText)
{
    ASSERT_TRUE(OpenClipboard(m_window));
    EmptyClipboard();
    CloseClipboard();
    EXPECT_FALSE(AfxIsClipboardText());
    CString text("before");
    EXPECT_FALSE(AfxGetClipboardText(&m_window, text));
    EXPECT_EQ(text, "before");
}

TEST_F(ControlsTest, PastingTakesTheClipboardsText)
{
    CEdit edit;
    ASSERT_TRUE(edit.Create(ES_AUTOHSCROLL, m_rect, &m_window, 5));
    ASSERT_TRUE(AfxSetClipboardText(&m_window, "42"));
    edit.Paste();
    CString text;
    edit.GetWindowText(text);
    EXPECT_EQ(text, "42");
}

} // namespace
