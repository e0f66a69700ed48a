// Sizes and places of dialogs and their controls.

#include "tests/afx/desktop/TestDialog.h"

using namespace desktop;

namespace
{
constexpr DWORD kDialog = WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME;

std::string Show(const RECT& rect)
{
    return std::to_string(rect.left) + "," + std::to_string(rect.top) + " " + std::to_string(rect.right - rect.left) +
           "x" + std::to_string(rect.bottom - rect.top);
}

std::string WindowRect(HWND window)
{
    RECT rect{};
    GetWindowRect(window, &rect);
    return Show(rect);
}

std::string ClientRect(HWND window)
{
    RECT rect{};
    GetClientRect(window, &rect);
    return Show(rect);
}
} // namespace

TEST(DialogGeometry, BaseUnitsAreThoseOfTheSystemFont)
{
    EXPECT_EQ(LOWORD(GetDialogBaseUnits()), 8);
    EXPECT_EQ(HIWORD(GetDialogBaseUnits()), 16);
}

TEST(DialogGeometry, UnitsOfADialogComeFromItsFont)
{
    TestDialog plain(TemplateBuilder(kDialog).Place(0, 0, 100, 80));
    EXPECT_EQ(ClientRect(plain.Window()), "0,0 200x160");
    TestDialog sans(TemplateBuilder(kDialog).Place(0, 0, 100, 80).Font(9, "MS Sans Serif"));
    EXPECT_EQ(ClientRect(sans.Window()), "0,0 150x130");
    TestDialog extended(TemplateBuilder(kDialog, true).Place(0, 0, 100, 80).Font(8, "MS Sans Serif"));
    EXPECT_EQ(ClientRect(extended.Window()), "0,0 150x130");
    RECT rect{4, 8, 40, 80};
    EXPECT_TRUE(MapDialogRect(sans.Window(), &rect));
    EXPECT_EQ(Show(rect), "6,13 54x117");
}

TEST(DialogGeometry, FramesAroundTheClientArea)
{
    TestDialog dialog(TemplateBuilder(kDialog).Place(20, 30, 100, 80));
    EXPECT_EQ(WindowRect(dialog.Window()), "37,38 206x185");
    TestDialog bare(TemplateBuilder(WS_POPUP).Place(20, 30, 100, 80));
    EXPECT_EQ(WindowRect(bare.Window()), "40,60 200x160");
}

TEST(DialogGeometry, APopupIsPlacedRelativeToItsOwnersClientArea)
{
    const HWND owner = MakeOwner();
    {
        TestDialog dialog(TemplateBuilder(kDialog).Place(10, 10, 100, 80), owner);
        EXPECT_EQ(WindowRect(dialog.Window()), "71,81 206x185");
        TestDialog absolute(TemplateBuilder(kDialog | DS_ABSALIGN).Place(10, 10, 100, 80), owner);
        EXPECT_EQ(WindowRect(absolute.Window()), "17,0 206x185");
    }
    DestroyWindow(owner);
}

TEST(DialogGeometry, ADialogStaysOnTheScreen)
{
    TestDialog left(TemplateBuilder(kDialog).Place(-300, -300, 100, 80));
    EXPECT_EQ(WindowRect(left.Window()), "0,0 206x185");
}

TEST(DialogGeometry, ControlsLieWhereTheTemplateSays)
{
    TestDialog dialog(TemplateBuilder(kDialog)
                          .Font(9, "MS Sans Serif")
                          .Control(kEdit, 1, "", WS_BORDER | ES_AUTOHSCROLL, 10, 20, 41, 12)
                          .Control(kButton, 2, "x", BS_PUSHBUTTON, 3, 5, 50, 14)
                          .Control(kStatic, 3, "x", SS_LEFT, 7, 9, 33, 8)
                          .Control(kScrollBar, 4, "", SBS_VERT, 100, 9, 10, 50)
                          .Control(kEdit, 5, "", ES_MULTILINE | ES_READONLY | WS_VSCROLL | WS_BORDER, 10, 40, 80, 40));
    EXPECT_EQ(Show(RectIn(dialog.Window(), 1)), "15,33 62x20");
    EXPECT_EQ(Show(RectIn(dialog.Window(), 2)), "5,8 75x23");
    EXPECT_EQ(Show(RectIn(dialog.Window(), 3)), "11,15 50x13");
    EXPECT_EQ(Show(RectIn(dialog.Window(), 4)), "150,15 15x81");
    EXPECT_EQ(ClientRect(dialog.Item(1)), "0,0 58x16");
    EXPECT_EQ(ClientRect(dialog.Item(5)), "0,0 99x61");
    EXPECT_NE(GetWindowLongA(dialog.Item(1), GWL_EXSTYLE) & static_cast<LONG>(WS_EX_CLIENTEDGE), 0);
}

TEST(DialogGeometry, AComboBoxIsAsHighAsItsTextField)
{
    TestDialog dialog(TemplateBuilder(kDialog)
                          .Font(9, "MS Sans Serif")
                          .Control(kComboBox, 1, "", CBS_DROPDOWNLIST | WS_VSCROLL, 10, 20, 40, 100)
                          .Control(kComboBox, 2, "", CBS_DROPDOWNLIST, 10, 20, 40, 12));
    EXPECT_EQ(Show(RectIn(dialog.Window(), 1)), "15,33 60x21");
    EXPECT_EQ(Show(RectIn(dialog.Window(), 2)), "15,33 60x21");
    EXPECT_EQ(dialog.Send(1, CB_GETITEMHEIGHT, static_cast<WPARAM>(-1)), 17);
    EXPECT_EQ(dialog.Send(1, CB_GETITEMHEIGHT, 0), 13);
    SetWindowPos(dialog.Item(1), nullptr, 0, 0, 80, 200, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(Show(RectIn(dialog.Window(), 1)), "15,33 80x21");
}

TEST(DialogGeometry, AListBoxShowsWholeItems)
{
    TestDialog dialog(TemplateBuilder(kDialog)
                          .Font(9, "MS Sans Serif")
                          .Control(kListBox, 1, "", LBS_NOTIFY | WS_BORDER, 10, 10, 40, 45)
                          .Control(kListBox, 2, "", LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_BORDER, 10, 10, 40, 45));
    EXPECT_EQ(Show(RectIn(dialog.Window(), 1)), "15,16 60x68");
    EXPECT_EQ(Show(RectIn(dialog.Window(), 2)), "15,16 60x73");
    EXPECT_EQ(dialog.Send(1, LB_GETITEMHEIGHT), 13);
    // The height was rounded when the list was made, still with the system font: 4 items of 16.
    MoveWindow(dialog.Item(1), 0, 0, 60, 75, FALSE);
    EXPECT_EQ(Show(RectIn(dialog.Window(), 1)), "0,0 60x69");
}

TEST(DialogGeometry, WindowsMoveAndGrow)
{
    TestDialog dialog(
        TemplateBuilder(kDialog | WS_VISIBLE).Place(20, 30, 100, 80).Control(kButton, 1, "x", 0, 10, 10, 20, 10));
    dialog.Note(WM_SIZE);
    dialog.Note(WM_MOVE);
    SetWindowPos(dialog.Window(), nullptr, 0, 0, 300, 200, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(ClientRect(dialog.Window()), "0,0 294x175");
    EXPECT_EQ(dialog.Log(), "#5");
    MoveWindow(dialog.Window(), 100, 110, 300, 200, TRUE);
    EXPECT_EQ(WindowRect(dialog.Window()), "100,110 300x200");
    EXPECT_EQ(dialog.Log(), "#3");
    MoveWindow(dialog.Item(1), 5, 6, 70, 80, TRUE);
    EXPECT_EQ(WindowRect(dialog.Item(1)), "108,138 70x80");
    POINT point{0, 0};
    ClientToScreen(dialog.Item(1), &point);
    EXPECT_EQ(point.x, 108);
    ScreenToClient(dialog.Window(), &point);
    EXPECT_EQ(point.y, 6);
}

TEST(DialogGeometry, ADialogCanBeCentred)
{
    TestDialog dialog(TemplateBuilder(kDialog | DS_CENTER).Place(5, 5, 100, 80));
    RECT work{};
    SystemParametersInfoA(SPI_GETWORKAREA, 0, &work, 0);
    EXPECT_EQ(WindowRect(dialog.Window()), std::to_string((work.left + work.right - 206) / 2) + "," +
                                               std::to_string((work.top + work.bottom - 185) / 2) + " 206x185");
}

TEST(DialogGeometry, AnEditLeavesAMarginAroundItsText)
{
    TestDialog dialog(TemplateBuilder(kDialog)
                          .Font(9, "MS Sans Serif")
                          .Control(kEdit, 1, "", WS_BORDER, 0, 0, 40, 12)
                          .Control(kEdit, 2, "", WS_BORDER | ES_MULTILINE, 0, 20, 40, 40)
                          .Control(kEdit, 3, "", 0, 0, 80, 40, 12));
    for (const auto& [id, expected] : {std::pair<int, const char*>{1, "1,1 54x13"}, {2, "1,1 54x52"}, {3, "0,0 60x13"}})
    {
        RECT rect{};
        dialog.Send(id, EM_GETRECT, 0, reinterpret_cast<LPARAM>(&rect));
        EXPECT_EQ(Show(rect), expected) << id;
    }
}

TEST(DialogGeometry, TheControlsHaveTheFontOfTheTemplate)
{
    TestDialog dialog(TemplateBuilder(kDialog)
                          .Font(9, "MS Sans Serif")
                          .Control(kEdit, 1, "", 0)
                          .Control(kComboBox, 2, "", CBS_DROPDOWNLIST)
                          .Control(kStatic, 3, "x", 0)
                          .Control(kListBox, 4, "", 0)
                          .Control(kButton, 5, "", 0));
    const LRESULT font = SendMessageA(dialog.Window(), WM_GETFONT, 0, 0);
    EXPECT_NE(font, 0);
    for (int id = 1; id <= 5; ++id)
        EXPECT_EQ(dialog.Send(id, WM_GETFONT), font) << id;
    LOGFONTA logFont{};
    GetObjectA(reinterpret_cast<HFONT>(font), sizeof logFont, &logFont);
    EXPECT_EQ(logFont.lfHeight, -12);
    EXPECT_STREQ(logFont.lfFaceName, "MS Sans Serif");
    TestDialog plain(TemplateBuilder(kDialog).Control(kEdit, 1, "", 0));
    EXPECT_EQ(plain.Send(1, WM_GETFONT), 0);
}
