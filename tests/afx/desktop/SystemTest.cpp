// What is no window: fonts, colours, clipboard, menus, scroll bars, resources.

#include "tests/afx/desktop/TestDialog.h"

#include <cstring>

using namespace desktop;

namespace
{
constexpr DWORD kDialog = WS_POPUP | WS_CAPTION | WS_VISIBLE;

HFONT MakeFont(int height, int weight)
{
    LOGFONTA font{};
    font.lfHeight = height;
    font.lfWeight = weight;
    font.lfCharSet = DEFAULT_CHARSET;
    std::strcpy(font.lfFaceName, "MS Sans Serif");
    return CreateFontIndirectA(&font);
}

int Width(HDC dc, const char* text)
{
    SIZE size{};
    EXPECT_TRUE(GetTextExtentPoint32A(dc, text, static_cast<int>(std::strlen(text)), &size));
    return size.cx;
}

class Dc
{
public:
    Dc() : m_dc(GetDC(nullptr)) {}
    ~Dc() { ReleaseDC(nullptr, m_dc); }
    operator HDC() const { return m_dc; }

private:
    HDC m_dc;
};
} // namespace

TEST(Gdi, TheDialogFontHasTheWidthsOfItsFace)
{
    Dc dc;
    for (int height : {-12, -11})
    {
        const HFONT font = MakeFont(height, FW_NORMAL);
        const HGDIOBJ before = SelectObject(dc, font);
        EXPECT_EQ(Width(dc, "SPD1"), 28);
        EXPECT_EQ(Width(dc, "(168)"), 24);
        EXPECT_EQ(Width(dc, "Positioning control (Trapezoidal control)"), 185);
        EXPECT_EQ(Width(dc, ""), 0);
        TEXTMETRICA metrics{};
        EXPECT_TRUE(GetTextMetricsA(dc, &metrics));
        EXPECT_EQ(metrics.tmHeight, 13);
        EXPECT_EQ(metrics.tmAscent, 11);
        EXPECT_EQ(metrics.tmAveCharWidth, 5);
        EXPECT_EQ(metrics.tmMaxCharWidth, 11);
        EXPECT_EQ(SelectObject(dc, before), font);
        EXPECT_TRUE(DeleteObject(font));
        EXPECT_FALSE(DeleteObject(font));
    }
}

TEST(Gdi, LargerAndBoldFonts)
{
    Dc dc;
    struct Case
    {
        int height;
        int weight;
        int expectedHeight;
        int expectedWidth;
    };
    for (const Case& c :
         {Case{-13, FW_NORMAL, 16, 27}, {-15, FW_NORMAL, 16, 27}, {-16, FW_NORMAL, 20, 33}, {-12, FW_BOLD, 13, 24}})
    {
        const HFONT font = MakeFont(c.height, c.weight);
        const HGDIOBJ before = SelectObject(dc, font);
        SIZE size{};
        GetTextExtentPoint32A(dc, "ABC", 3, &size);
        EXPECT_EQ(size.cy, c.expectedHeight);
        EXPECT_EQ(size.cx, c.expectedWidth);
        SelectObject(dc, before);
        DeleteObject(font);
    }
}

TEST(Gdi, ADcStartsWithTheSystemFont)
{
    Dc dc;
    EXPECT_EQ(Width(dc, "ABC"), 27);
    EXPECT_EQ(SelectObject(dc, GetStockObject(DEFAULT_GUI_FONT)), GetStockObject(SYSTEM_FONT));
    EXPECT_EQ(GetDeviceCaps(dc, LOGPIXELSX), 96);
    EXPECT_EQ(GetDeviceCaps(dc, LOGPIXELSY), 96);
}

TEST(Gdi, FontsAndBrushesCanBeAskedBack)
{
    const HFONT handle = MakeFont(-12, FW_NORMAL);
    LOGFONTA back{};
    EXPECT_EQ(GetObjectA(handle, sizeof back, &back), static_cast<int>(sizeof back));
    EXPECT_EQ(back.lfHeight, -12);
    EXPECT_STREQ(back.lfFaceName, "MS Sans Serif");
    DeleteObject(handle);
    const HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
    LOGBRUSH logBrush{};
    EXPECT_EQ(GetObjectA(brush, sizeof logBrush, &logBrush), static_cast<int>(sizeof logBrush));
    EXPECT_EQ(logBrush.lbColor, RGB(1, 2, 3));
    EXPECT_EQ(GetObjectType(brush), static_cast<DWORD>(OBJ_BRUSH));
    DeleteObject(brush);
}

TEST(Gdi, ColoursAreRemembered)
{
    Dc dc;
    EXPECT_EQ(SetTextColor(dc, RGB(0, 0, 255)), RGB(0, 0, 0));
    EXPECT_EQ(GetTextColor(dc), RGB(0, 0, 255));
    EXPECT_EQ(SetBkColor(dc, RGB(1, 1, 1)), RGB(255, 255, 255));
    EXPECT_EQ(SetBkMode(dc, TRANSPARENT), OPAQUE);
    const int saved = SaveDC(dc);
    SetTextColor(dc, RGB(9, 9, 9));
    RestoreDC(dc, saved);
    EXPECT_EQ(GetTextColor(dc), RGB(0, 0, 255));
}

TEST(Gdi, DrawTextMeasures)
{
    Dc dc;
    RECT rect{0, 0, 1000, 1000};
    EXPECT_EQ(DrawTextA(dc, "ABC\nAB", -1, &rect, DT_CALCRECT), 32);
    EXPECT_EQ(rect.right, 27);
    EXPECT_EQ(rect.bottom, 32);
    rect = {0, 0, 1000, 1000};
    EXPECT_EQ(DrawTextA(dc, "&ABC", -1, &rect, DT_CALCRECT | DT_SINGLELINE), 16);
    EXPECT_EQ(rect.right, 27);
}

TEST(Clipboard, HoldsText)
{
    ASSERT_TRUE(OpenClipboard(nullptr));
    EXPECT_TRUE(EmptyClipboard());
    EXPECT_FALSE(IsClipboardFormatAvailable(CF_TEXT));
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, 6);
    std::strcpy(static_cast<char*>(GlobalLock(memory)), "1\t2\r\n");
    GlobalUnlock(memory);
    EXPECT_EQ(SetClipboardData(CF_TEXT, memory), memory);
    EXPECT_TRUE(CloseClipboard());
    EXPECT_TRUE(IsClipboardFormatAvailable(CF_TEXT));
    ASSERT_TRUE(OpenClipboard(nullptr));
    const HANDLE data = GetClipboardData(CF_TEXT);
    ASSERT_NE(data, nullptr);
    EXPECT_STREQ(static_cast<const char*>(GlobalLock(data)), "1\t2\r\n");
    GlobalUnlock(data);
    EmptyClipboard();
    CloseClipboard();
    EXPECT_FALSE(IsClipboardFormatAvailable(CF_TEXT));
    EXPECT_FALSE(CloseClipboard());
}

TEST(Menus, HoldItems)
{
    const HMENU menu = CreatePopupMenu();
    EXPECT_TRUE(AppendMenuA(menu, MF_STRING, 57637, "&Paste\tCtrl+V"));
    EXPECT_TRUE(AppendMenuA(menu, MF_SEPARATOR, 0, nullptr));
    EXPECT_TRUE(AppendMenuA(menu, MF_STRING | MF_GRAYED, 2025, "&Insert"));
    EXPECT_EQ(GetMenuItemCount(menu), 3);
    EXPECT_EQ(GetMenuItemID(menu, 2), 2025u);
    char text[30];
    EXPECT_EQ(GetMenuStringA(menu, 57637, text, sizeof text, MF_BYCOMMAND), 13);
    EXPECT_STREQ(text, "&Paste\tCtrl+V");
    EXPECT_EQ(GetMenuState(menu, 2025, MF_BYCOMMAND) & MF_GRAYED, MF_GRAYED);
    EXPECT_EQ(EnableMenuItem(menu, 2025, MF_ENABLED), static_cast<BOOL>(MF_GRAYED));
    EXPECT_EQ(EnableMenuItem(menu, 99, MF_ENABLED), -1);
    EXPECT_EQ(GetMenuStringA(menu, 2, text, sizeof text, MF_BYPOSITION), 7);
    EXPECT_STREQ(text, "&Insert");
    EXPECT_TRUE(DestroyMenu(menu));
    EXPECT_FALSE(IsMenu(menu));
}

TEST(Menus, APopupMenuReturnsWhatIsChosen)
{
    TestDialog dialog((TemplateBuilder(kDialog)));
    const HMENU menu = CreatePopupMenu();
    AppendMenuA(menu, MF_STRING, 100, "&First");
    AppendMenuA(menu, MF_STRING | MF_GRAYED, 101, "&Second");
    AppendMenuA(menu, MF_STRING, 102, "&Third");
    PostMessageA(dialog.Window(), WM_KEYDOWN, VK_DOWN, 1);
    PostMessageA(dialog.Window(), WM_KEYDOWN, VK_DOWN, 1);
    PostMessageA(dialog.Window(), WM_KEYDOWN, VK_DOWN, 1);
    PostMessageA(dialog.Window(), WM_KEYDOWN, VK_RETURN, 1);
    EXPECT_EQ(TrackPopupMenu(menu, TPM_RETURNCMD, 10, 10, 0, dialog.Window(), nullptr), 102);
    PostMessageA(dialog.Window(), WM_CHAR, 'f', 1);
    EXPECT_TRUE(TrackPopupMenu(menu, 0, 10, 10, 0, dialog.Window(), nullptr));
    dialog.Pump();
    EXPECT_EQ(dialog.Log(), "100:0");
    PostMessageA(dialog.Window(), WM_KEYDOWN, VK_ESCAPE, 1);
    EXPECT_EQ(TrackPopupMenu(menu, TPM_RETURNCMD, 10, 10, 0, dialog.Window(), nullptr), 0);
    DestroyMenu(menu);
}

TEST(ScrollBars, KeepTheirRange)
{
    TestDialog dialog(TemplateBuilder(kDialog).Control(kScrollBar, 1, "", SBS_VERT));
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    info.nMin = 0;
    info.nMax = 9;
    info.nPage = 5;
    info.nPos = 3;
    EXPECT_EQ(SetScrollInfo(dialog.Item(1), SB_CTL, &info, FALSE), 3);
    info.fMask = SIF_POS;
    info.nPos = 8;
    EXPECT_EQ(SetScrollInfo(dialog.Item(1), SB_CTL, &info, FALSE), 5); // The last page is full.
    info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_ALL;
    EXPECT_TRUE(GetScrollInfo(dialog.Item(1), SB_CTL, &info));
    EXPECT_EQ(info.nMax, 9);
    EXPECT_EQ(info.nPage, 5u);
    EXPECT_EQ(info.nPos, 5);
    EXPECT_EQ(GetScrollPos(dialog.Item(1), SB_CTL), 5);
    EXPECT_EQ(SetScrollPos(dialog.Item(1), SB_CTL, 1, FALSE), 5);
}

TEST(ScrollBars, KeysScrollTheParent)
{
    TestDialog dialog(TemplateBuilder(kDialog).Control(kScrollBar, 1, "", SBS_VERT | WS_TABSTOP));
    SetScrollRange(dialog.Item(1), SB_CTL, 0, 10, FALSE);
    dialog.Note(WM_VSCROLL);
    SendMessageA(dialog.Item(1), WM_KEYDOWN, VK_DOWN, 1);
    EXPECT_EQ(dialog.Log().substr(0, 4), "#277");
    EXPECT_EQ(GetScrollPos(dialog.Item(1), SB_CTL), 0); // The parent would move it.
}

TEST(Painting, ControlsAskForTheirColours)
{
    TestDialog dialog(TemplateBuilder(kDialog)
                          .Control(kEdit, 1, "", 0, 0, 0)
                          .Control(kEdit, 2, "", ES_READONLY, 0, 20)
                          .Control(kStatic, 3, "x", 0, 0, 40)
                          .Control(kListBox, 4, "", 0, 60, 40));
    dialog.Pump();
    dialog.Note(WM_CTLCOLOREDIT);
    dialog.Note(WM_CTLCOLORSTATIC);
    dialog.Note(WM_CTLCOLORLISTBOX);
    for (const auto& [id, log] : {std::pair<int, const char*>{1, "#307"}, {2, "#312"}, {3, "#312"}, {4, "#308"}})
    {
        dialog.Log();
        InvalidateRect(dialog.Item(id), nullptr, FALSE);
        UpdateWindow(dialog.Item(id));
        EXPECT_NE(dialog.Log().find(log), std::string::npos) << id;
    }
}

TEST(Numbers, AreScaledAndRounded)
{
    EXPECT_EQ(MulDiv(7, 3, 2), 11);
    EXPECT_EQ(MulDiv(-7, 3, 2), -11);
    EXPECT_EQ(MulDiv(1, 1, 0), -1);
}

TEST(Modules, TheProgramItself)
{
    const HMODULE self = GetModuleHandleA(nullptr);
    ASSERT_NE(self, nullptr);
    char path[MAX_PATH];
    const DWORD length = GetModuleFileNameA(self, path, sizeof path);
    EXPECT_EQ(length, std::strlen(path));
    EXPECT_GT(length, 4u);
    char small[4];
    EXPECT_EQ(GetModuleFileNameA(self, small, sizeof small), 4u);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INSUFFICIENT_BUFFER));
}

TEST(Modules, MissingLibraries)
{
    EXPECT_EQ(LoadLibraryA("no such library.dll"), nullptr);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_MOD_NOT_FOUND));
    EXPECT_EQ(FindResourceA(nullptr, MAKEINTRESOURCEA(64999), RT_DIALOG), nullptr);
    char text[10] = "x";
    EXPECT_EQ(LoadStringA(nullptr, 64999, text, sizeof text), 0);
}
