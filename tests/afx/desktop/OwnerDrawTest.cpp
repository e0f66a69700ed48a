// Owner-drawn controls.

#include "tests/afx/desktop/TestDialog.h"

#include <sstream>

using namespace desktop;

namespace
{
std::ostringstream g_asked;
UINT g_height = 0;

INT_PTR CALLBACK DrawingProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_MEASUREITEM)
    {
        auto* measure = reinterpret_cast<MEASUREITEMSTRUCT*>(lParam);
        g_asked << "m" << measure->CtlID << "," << measure->CtlType << "," << static_cast<int>(measure->itemID) << " ";
        if (g_height)
            measure->itemHeight = g_height;
        return TRUE;
    }
    if (message == WM_DRAWITEM)
    {
        const auto* item = reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
        EXPECT_EQ(item->hwndItem, GetDlgItem(dialog, static_cast<int>(item->CtlID)));
        EXPECT_EQ(wParam, item->CtlID);
        EXPECT_NE(item->hDC, nullptr);
        g_asked << "d" << item->CtlID << "," << item->CtlType << "," << static_cast<int>(item->itemID) << ","
                << item->itemData << (item->itemState & ODS_DISABLED ? ",disabled " : " ");
        return TRUE;
    }
    if (message == WM_DELETEITEM)
    {
        const auto* deleted = reinterpret_cast<const DELETEITEMSTRUCT*>(lParam);
        g_asked << "x" << deleted->CtlID << "," << deleted->itemData << " ";
        return TRUE;
    }
    return message == WM_INITDIALOG;
}

std::string Asked()
{
    const std::string asked = g_asked.str();
    g_asked.str("");
    return asked;
}

class OwnerDraw : public ::testing::Test
{
protected:
    void Open(TemplateBuilder builder)
    {
        Asked();
        dialog = CreateDialogIndirectParamA(GetModuleHandleA(nullptr), builder.Build(), nullptr, DrawingProc, 0);
        ASSERT_NE(dialog, nullptr);
    }
    void TearDown() override
    {
        DestroyWindow(dialog);
        g_height = 0;
        Asked();
    }
    LRESULT Send(int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
    {
        return SendDlgItemMessageA(dialog, id, message, wParam, lParam);
    }
    void Redraw(int id)
    {
        Asked();
        InvalidateRect(GetDlgItem(dialog, id), nullptr, FALSE);
        UpdateWindow(GetDlgItem(dialog, id));
    }

    HWND dialog = nullptr;
};

constexpr DWORD kDialog = WS_POPUP | WS_CAPTION | WS_VISIBLE;
} // namespace

TEST_F(OwnerDraw, ComboBoxesMeasureBeforeTheDialogIsInitialized)
{
    g_height = 18;
    Open(TemplateBuilder(kDialog).Control(kComboBox, 7, "", CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS, 0,
                                          0, 60, 80));
    EXPECT_EQ(Asked(), "m7,3,-1 m7,3,0 ");
    EXPECT_EQ(Send(7, CB_GETITEMHEIGHT, 0), 18);
    EXPECT_EQ(RectIn(dialog, 7).bottom - RectIn(dialog, 7).top, 28);
    Send(7, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>("Green"));
    Send(7, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>("Red"));
    Send(7, CB_SETITEMDATA, 1, 99);
    Send(7, CB_SETCURSEL, 1);
    Redraw(7);
    EXPECT_NE(Asked().find("d7,3,1,99 "), std::string::npos);
    char text[10];
    EXPECT_EQ(GetWindowTextA(GetDlgItem(dialog, 7), text, sizeof text), 3);
}

TEST_F(OwnerDraw, ComboBoxesCanBeGivenTheHeightOfTheirParts)
{
    Open(TemplateBuilder(kDialog).Control(kComboBox, 7, "", CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS, 0,
                                          0, 60, 80));
    // Wine makes the closed field two pixels higher than it is told to.
    const auto height = [this] { return RectIn(dialog, 7).bottom - RectIn(dialog, 7).top; };
    EXPECT_NE(Send(7, CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), 20), CB_ERR);
    const LRESULT field = Send(7, CB_GETITEMHEIGHT, static_cast<WPARAM>(-1));
    const LONG whole = height();
    EXPECT_TRUE(field == 20 || field == 22) << field;
    EXPECT_NE(Send(7, CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), 25), CB_ERR);
    EXPECT_EQ(Send(7, CB_GETITEMHEIGHT, static_cast<WPARAM>(-1)), field + 5);
    EXPECT_EQ(height(), whole + 5);
    EXPECT_NE(Send(7, CB_SETITEMHEIGHT, 0, 23), CB_ERR);
    EXPECT_EQ(Send(7, CB_GETITEMHEIGHT, 0), 23);
    EXPECT_EQ(Send(7, CB_GETITEMHEIGHT, static_cast<WPARAM>(-1)), field + 5);
    EXPECT_EQ(height(), whole + 5);
}

TEST_F(OwnerDraw, ComboBoxesTellOfDeletedItems)
{
    Open(TemplateBuilder(kDialog).Control(kComboBox, 7, "", CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS, 0,
                                          0, 60, 80));
    Send(7, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>("Green"));
    Send(7, CB_SETITEMDATA, 0, 30);
    Asked();
    Send(7, CB_RESETCONTENT);
    EXPECT_EQ(Asked(), "x7,30 ");
}

TEST_F(OwnerDraw, ButtonsAndStatics)
{
    Open(TemplateBuilder(kDialog)
             .Control(kButton, 1, "b", BS_OWNERDRAW | WS_TABSTOP)
             .Control(kStatic, 2, "s", SS_OWNERDRAW, 0, 40));
    Redraw(1);
    EXPECT_NE(Asked().find("d1,4,0,0 "), std::string::npos);
    Redraw(2);
    EXPECT_EQ(Asked(), "d2,5,0,0 ");
    EnableWindow(GetDlgItem(dialog, 2), FALSE);
    Redraw(2);
    EXPECT_EQ(Asked(), "d2,5,0,0,disabled ");
    EXPECT_EQ(Send(1, WM_GETDLGCODE), DLGC_BUTTON);
    Send(1, BM_SETCHECK, 1);
    EXPECT_EQ(Send(1, BM_GETCHECK), 0);
}
