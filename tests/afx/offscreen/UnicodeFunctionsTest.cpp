// Menus, message boxes, fonts, drawing, resources and the clipboard in Unicode.
#include "tests/afx/desktop/TestDialog.h"
#include "tests/afx/offscreen/UseCodePage.h"

#include <cstring>
#include <string>
#include <string_view>
#include <vector>

using namespace desktop;

namespace
{

constexpr char16_t kWide[] = u"\u3042a";
constexpr char kNarrow[] = "\x82\xA0"
                           "a";

class CUnicodeFunctionsTest : public testing::Test
{
protected:
    // The device context of no window, with the font of the dialogs.
    class Canvas
    {
    public:
        Canvas() : dc(CreateCompatibleDC(nullptr))
        {
            LOGFONTW font{};
            font.lfHeight = -12;
            std::u16string_view(u"MS Sans Serif").copy(font.lfFaceName, LF_FACESIZE);
            m_font = CreateFontIndirectW(&font);
            SelectObject(dc, m_font);
        }
        ~Canvas()
        {
            DeleteDC(dc);
            DeleteObject(m_font);
        }
        int WidthOf(std::u16string_view text) const
        {
            SIZE size{};
            EXPECT_TRUE(GetTextExtentPoint32W(dc, text.data(), static_cast<int>(text.size()), &size));
            EXPECT_EQ(size.cy, 13);
            return size.cx;
        }

        HDC dc;

    private:
        HFONT m_font;
    };

    CUseCodePage m_japanese{932};
};

TEST_F(CUnicodeFunctionsTest, MenusKeepTheirTexts)
{
    const HMENU menu = CreatePopupMenu();
    EXPECT_TRUE(AppendMenuW(menu, MF_STRING, 1, kWide));
    EXPECT_TRUE(AppendMenuA(menu, MF_STRING, 2, kNarrow));
    EXPECT_TRUE(AppendMenuW(menu, MF_SEPARATOR, 0, nullptr));
    for (const UINT item : {1u, 2u})
    {
        WCHAR wide[10];
        char narrow[10];
        EXPECT_EQ(GetMenuStringW(menu, item, wide, 10, MF_BYCOMMAND), 2);
        EXPECT_EQ(std::u16string(wide), kWide);
        EXPECT_EQ(GetMenuStringA(menu, item, narrow, 10, MF_BYCOMMAND), 3);
        EXPECT_STREQ(narrow, kNarrow);
        EXPECT_EQ(GetMenuStringW(menu, item, nullptr, 0, MF_BYCOMMAND), 2);
        EXPECT_EQ(GetMenuStringA(menu, item, nullptr, 0, MF_BYCOMMAND), 3);
    }
    DestroyMenu(menu);
}

TEST_F(CUnicodeFunctionsTest, MessageBoxesShowEveryCharacter)
{
    static std::u16string caption, text;
    SetTimer(nullptr, 0, 10, [](HWND, UINT, UINT_PTR id, DWORD) {
        KillTimer(nullptr, id);
        const HWND box = GetActiveWindow();
        WCHAR buffer[50];
        caption.assign(buffer, static_cast<std::size_t>(GetWindowTextW(box, buffer, 50)));
        text.assign(buffer, GetDlgItemTextW(box, 0xFFFF, buffer, 50));
        PostMessageW(box, WM_COMMAND, IDOK, 0);
    });
    EXPECT_EQ(MessageBoxW(nullptr, u"\u0E02\n\u3042", u"\u0E01", MB_OK), IDOK);
    EXPECT_EQ(caption, u"\u0E01");
    EXPECT_EQ(text, u"\u0E02\n\u3042");
}

TEST_F(CUnicodeFunctionsTest, FontsHaveANameInBothForms)
{
    LOGFONTW wide{};
    wide.lfHeight = -16;
    wide.lfWeight = FW_BOLD;
    std::u16string_view(kWide).copy(wide.lfFaceName, LF_FACESIZE);
    const HFONT font = CreateFontIndirectW(&wide);
    LOGFONTA narrow{};
    EXPECT_EQ(GetObjectA(font, sizeof narrow, &narrow), static_cast<int>(sizeof narrow));
    EXPECT_STREQ(narrow.lfFaceName, kNarrow);
    EXPECT_EQ(narrow.lfWeight, FW_BOLD);
    DeleteObject(font);

    const HFONT same = CreateFontIndirectA(&narrow);
    LOGFONTW read{};
    EXPECT_EQ(GetObjectW(same, 0, nullptr), static_cast<int>(sizeof read));
    EXPECT_EQ(GetObjectW(same, sizeof read, &read), static_cast<int>(sizeof read));
    EXPECT_EQ(std::u16string(read.lfFaceName), kWide);
    EXPECT_EQ(read.lfHeight, -16);
    DeleteObject(same);

    const HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
    LOGBRUSH logBrush{};
    EXPECT_EQ(GetObjectW(brush, sizeof logBrush, &logBrush), static_cast<int>(sizeof logBrush));
    EXPECT_EQ(logBrush.lbColor, RGB(1, 2, 3));
    DeleteObject(brush);
}

TEST_F(CUnicodeFunctionsTest, MetricsInBothForms)
{
    const Canvas canvas;
    TEXTMETRICW wide{};
    TEXTMETRICA narrow{};
    EXPECT_TRUE(GetTextMetricsW(canvas.dc, &wide));
    EXPECT_TRUE(GetTextMetricsA(canvas.dc, &narrow));
    EXPECT_EQ(wide.tmHeight, 13);
    EXPECT_EQ(wide.tmHeight, narrow.tmHeight);
    EXPECT_EQ(wide.tmAveCharWidth, narrow.tmAveCharWidth);
    EXPECT_FALSE(GetTextMetricsW(nullptr, &wide));
}

TEST_F(CUnicodeFunctionsTest, CharactersHaveTheWidthOfTheirScript)
{
    const Canvas canvas;
    EXPECT_EQ(canvas.WidthOf(u"Ai"), 7 + 2);
    EXPECT_EQ(canvas.WidthOf(u"\u00E9\u20AC"), 6 + 6);
    EXPECT_EQ(canvas.WidthOf(u"\u3042\u6F22\uD55C\uFF21\u3002"), 5 * 12);
    EXPECT_EQ(canvas.WidthOf(u"\u2192"), 12); // An arrow comes from an East Asian font
    EXPECT_EQ(canvas.WidthOf(u"\uFF71"), 6);
    EXPECT_EQ(canvas.WidthOf(u"\u0E01\u0E32"), 2 * 7);
    EXPECT_EQ(canvas.WidthOf(u"\u0E01\u0E31\u0E34\u0E3A\u0E47\u0E4E"), 7);
    EXPECT_EQ(canvas.WidthOf(u"\u05D0"), 3);
    SIZE size{};
    EXPECT_TRUE(GetTextExtentPoint32A(canvas.dc, kNarrow, 3, &size));
    EXPECT_EQ(size.cx, 12 + 6);
    EXPECT_FALSE(GetTextExtentPoint32W(canvas.dc, kWide, -1, &size));
}

TEST_F(CUnicodeFunctionsTest, DrawnTextsAreNotedInBothForms)
{
    TestDialog dialog((TemplateBuilder(WS_POPUP | WS_VISIBLE)));
    offscreen::RecordDrawing(true);
    const HDC dc = GetDC(dialog.Window());
    EXPECT_TRUE(TextOutW(dc, 1, 2, u"\u0E01", 1));
    EXPECT_TRUE(ExtTextOutW(dc, 3, 4, 0, nullptr, kWide, 2, nullptr));
    EXPECT_TRUE(TextOutA(dc, 5, 6, kNarrow, 3));
    RECT rect{0, 0, 100, 100};
    DrawTextW(dc, u"&\u3042", -1, &rect, DT_SINGLELINE);
    ReleaseDC(dialog.Window(), dc);
    const auto drawn = offscreen::TextDrawnIn(dialog.Window());
    ASSERT_EQ(drawn.size(), 4u);
    EXPECT_EQ(drawn[0].wideText, u"\u0E01");
    EXPECT_EQ(drawn[0].text, "?");
    EXPECT_EQ(drawn[1].wideText, kWide);
    EXPECT_EQ(drawn[1].text, kNarrow);
    EXPECT_EQ(drawn[1].y, 4);
    EXPECT_EQ(drawn[2].wideText, kWide);
    EXPECT_EQ(drawn[3].wideText, u"\u3042");
    offscreen::RecordDrawing(false);
}

TEST_F(CUnicodeFunctionsTest, LinesBreakAtBlanksAndBetweenEastAsianCharacters)
{
    struct Row
    {
        const char16_t* text;
        int width;
        int lines;
    };
    const Canvas canvas;
    for (const Row& row : {Row{u"aaaa aaaa", 30, 2},
                           {u"aaaaaaaaa", 30, 1},
                           {u"\u6F22\u6F22\u6F22\u6F22", 24, 2},
                           {u"\u6F22\u6F22\u6F22\u6F22", 23, 4},
                           {u"\u6F22\u6F22\u6F22\u3002", 36, 2}, // The full stop takes its character along.
                           {u"\u6F22\u300C\u6F22\u6F22", 24, 3}, // So does the bracket the one behind it.
                           {u"aaa\u6F22aaa", 30, 2},
                           {u"\u0E01\u0E01\u0E01\u0E01 \u0E01", 30, 2},
                           {u"\u0E01\u0E01\u0E01\u0E01\u0E01", 30, 1}})
    {
        RECT rect{0, 0, row.width, 0};
        EXPECT_EQ(DrawTextW(canvas.dc, row.text, -1, &rect, DT_WORDBREAK | DT_CALCRECT), row.lines * 13)
            << ::testing::PrintToString(std::u16string(row.text));
    }
}

TEST_F(CUnicodeFunctionsTest, AnEditBreaksItsLinesBetweenEastAsianCharacters)
{
    const HWND edit = CreateWindowExW(0, u"Edit", u"\u6F22\u6F22\u6F22 aa \u6F22\u6F22\u3002", WS_POPUP | ES_MULTILINE,
                                      0, 0, 40, 100, nullptr, nullptr, nullptr, nullptr);
    std::vector<LRESULT> starts;
    for (WPARAM line = 0; line < 10; ++line)
        if (const LRESULT start = SendMessageW(edit, EM_LINEINDEX, line, 0); start >= 0)
            starts.push_back(start);
    // In the system's font an ideograph is 14 pixels wide, a blank 4 and an a 8.
    EXPECT_EQ(starts, (std::vector<LRESULT>{0, 2, 7, 8}));
    DestroyWindow(edit);
}

TEST_F(CUnicodeFunctionsTest, StringsOfTheResources)
{
    WCHAR wide[100];
    char narrow[100];
    const int length = LoadStringW(nullptr, 20001, wide, 100);
    ASSERT_GT(length, 0);
    EXPECT_EQ(LoadStringA(nullptr, 20001, narrow, 100), length);
    EXPECT_EQ(std::u16string(wide), std::u16string(narrow, narrow + length));
    EXPECT_EQ(LoadStringW(nullptr, 20001, wide, 7), 6);
    EXPECT_EQ(wide[6], 0);
    LPCWSTR where = nullptr;
    ASSERT_EQ(LoadStringW(nullptr, 20001, reinterpret_cast<LPWSTR>(&where), 0), length);
    EXPECT_EQ(std::u16string(where, 6), std::u16string(wide));
    EXPECT_EQ(LoadStringW(nullptr, 1, wide, 100), 0);
}

TEST_F(CUnicodeFunctionsTest, LanguagesOfResources)
{
    std::vector<WORD> languages;
    const auto note = [](HMODULE, LPCWSTR, LPCWSTR, WORD language, LONG_PTR param) -> BOOL {
        reinterpret_cast<std::vector<WORD>*>(param)->push_back(language);
        return TRUE;
    };
    const auto param = reinterpret_cast<LONG_PTR>(&languages);
    EXPECT_TRUE(EnumResourceLanguagesW(nullptr, reinterpret_cast<LPCWSTR>(RT_STRING),
                                       MAKEINTRESOURCEW((20001 >> 4) + 1), note, param));
    EXPECT_EQ(languages, (std::vector<WORD>{0x0409}));
    EXPECT_TRUE(
        EnumResourceLanguagesW(nullptr, reinterpret_cast<LPCWSTR>(RT_DIALOG), MAKEINTRESOURCEW(1001), note, param));
    EXPECT_EQ(languages.size(), 2u);
    EXPECT_FALSE(
        EnumResourceLanguagesW(nullptr, reinterpret_cast<LPCWSTR>(RT_DIALOG), MAKEINTRESOURCEW(1), note, param));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_RESOURCE_NAME_NOT_FOUND));
    EXPECT_EQ(languages.size(), 2u);
}

// ----------------------------------------------------------------------------------------------------------- clipboard

template <class Character>
void PutOnClipboard(UINT format, const std::basic_string<Character>& text)
{
    const std::size_t bytes = (text.size() + 1) * sizeof(Character);
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
    std::memcpy(GlobalLock(memory), text.c_str(), bytes);
    GlobalUnlock(memory);
    OpenClipboard(nullptr);
    EmptyClipboard();
    SetClipboardData(format, memory);
    CloseClipboard();
}

template <class Character>
std::basic_string<Character> ClipboardText(UINT format)
{
    EXPECT_TRUE(IsClipboardFormatAvailable(format));
    OpenClipboard(nullptr);
    const HANDLE memory = GetClipboardData(format);
    std::basic_string<Character> text = static_cast<const Character*>(GlobalLock(memory));
    GlobalUnlock(memory);
    EXPECT_EQ(GetClipboardData(format), memory);
    CloseClipboard();
    return text;
}

TEST_F(CUnicodeFunctionsTest, TheClipboardOffersTextsInBothForms)
{
    const offscreen::Counts before = offscreen::Live();
    PutOnClipboard<char16_t>(CF_UNICODETEXT, kWide);
    EXPECT_EQ(ClipboardText<char>(CF_TEXT), kNarrow);
    EXPECT_EQ(ClipboardText<char16_t>(CF_UNICODETEXT), kWide);
    PutOnClipboard<char>(CF_TEXT, kNarrow);
    EXPECT_EQ(ClipboardText<char16_t>(CF_UNICODETEXT), kWide);

    OpenClipboard(nullptr);
    EmptyClipboard();
    EXPECT_FALSE(IsClipboardFormatAvailable(CF_TEXT));
    EXPECT_EQ(GetClipboardData(CF_UNICODETEXT), nullptr);
    CloseClipboard();
    EXPECT_EQ(offscreen::Live(), before);
}

TEST_F(CUnicodeFunctionsTest, ANewTextReplacesWhatWasMadeOfTheOldOne)
{
    PutOnClipboard<char16_t>(CF_UNICODETEXT, kWide);
    EXPECT_EQ(ClipboardText<char>(CF_TEXT), kNarrow);
    OpenClipboard(nullptr);
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, 4);
    std::memcpy(GlobalLock(memory), u"b", 4);
    GlobalUnlock(memory);
    SetClipboardData(CF_UNICODETEXT, memory);
    EXPECT_FALSE(IsClipboardFormatAvailable(CF_TEXT)); // Until it is closed
    CloseClipboard();
    EXPECT_EQ(ClipboardText<char>(CF_TEXT), "b");
    OpenClipboard(nullptr);
    EmptyClipboard();
    CloseClipboard();
}

TEST_F(CUnicodeFunctionsTest, AnEditCopiesAndPastesEveryCharacter)
{
    const HWND edit = CreateWindowExW(0, u"Edit", u"\u0E01\u3042", WS_POPUP | ES_AUTOHSCROLL, 0, 0, 100, 20, nullptr,
                                      nullptr, nullptr, nullptr);
    SendMessageW(edit, EM_SETSEL, 0, -1);
    SendMessageW(edit, WM_COPY, 0, 0);
    EXPECT_EQ(ClipboardText<char16_t>(CF_UNICODETEXT), u"\u0E01\u3042");
    EXPECT_EQ(ClipboardText<char>(CF_TEXT), "?\x82\xA0");
    SendMessageW(edit, EM_SETSEL, 2, 2);
    SendMessageW(edit, WM_PASTE, 0, 0);
    WCHAR text[10];
    EXPECT_EQ(GetWindowTextW(edit, text, 10), 4);
    EXPECT_EQ(std::u16string(text), u"\u0E01\u3042\u0E01\u3042");
    DestroyWindow(edit);
    OpenClipboard(nullptr);
    EmptyClipboard();
    CloseClipboard();
}

TEST_F(CUnicodeFunctionsTest, WhatHasNoTextIsTheSameForBoth)
{
    EXPECT_EQ(LoadCursorW(nullptr, MAKEINTRESOURCEW(32512)), LoadCursorA(nullptr, IDC_ARROW));
    RECT wide{}, narrow{};
    EXPECT_TRUE(SystemParametersInfoW(SPI_GETWORKAREA, 0, &wide, 0));
    EXPECT_TRUE(SystemParametersInfoA(SPI_GETWORKAREA, 0, &narrow, 0));
    EXPECT_TRUE(EqualRect(&wide, &narrow));
}

} // namespace
