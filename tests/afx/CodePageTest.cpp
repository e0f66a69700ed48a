// Narrow texts in the page of a language library, whatever the system's page is.
#include "afx/CodePage.h"
#include "afx/Clipboard.h"
#include "afx/System.h"
#include "tests/afx/TestWindow.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/PrintTo.h"

#include <array>
#include <cstring>
#include <string>

namespace
{

constexpr UINT kFontFace = 21001; // a string that every library has

/// Some characters of a page, narrow and wide.
struct SPage
{
    UINT page;
    int bytesOfFirst;
    const char* narrow;
    const char16_t* wide;
};

constexpr SPage kPages[] = {
    {932, 2, "\x8E\x9A\x83\x5C\x83\x7C%\xB1", u"\u5B57\u30BD\u30DD%\uFF71"}, // trail bytes '\\' and '|', half width
    {936, 2, "\xD7\xD6\x80\x81\x5C", u"\u5B57\u20AC\u4E57"},                 // a single byte, a trail byte '\\'
    {949, 2, "\xB1\xDB\xC0\xDA(a)", u"\uAE00\uC790(a)"},
    {950, 2, "\xA6\x72\xA5\x5C\xB3\x5C%d", u"\u5B57\u529F\u8A31%d"}, // trail bytes 'r' and '\\'
    {874, 1, "\xA1\xD8\xE9", u"\u0E01\u0E38\u0E49"},                 // a consonant and two marks
    {1252, 1, "\xE9\xBF\x80", u"\u00E9\u00BF\u20AC"},
};

LPCWSTR Wide(const char16_t* text) { return reinterpret_cast<LPCWSTR>(text); }
std::u16string Text(LPCWSTR text) { return reinterpret_cast<const char16_t*>(text); }
int Length(const char16_t* text) { return static_cast<int>(std::u16string(text).size()); }

/// What a window holds.
std::u16string Held(HWND window)
{
    std::array<WCHAR, 1000> text = {};
    ::GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
    return Text(text.data());
}

class CPageTest : public CDesktopTest, public testing::WithParamInterface<SPage>
{
protected:
    void SetUp() override { ASSERT_TRUE(m_window.Open()); }
    void TearDown() override
    {
        m_window.DestroyWindow();
        CDesktopTest::TearDown();
        EXPECT_EQ(AfxGetTextPage(), static_cast<UINT>(CP_ACP));
    }

    const CRect m_rect{0, 0, 100, 80};
    CTestWindow m_window;
};

// ---- Wide texts -----------------------------------------------------------------------------------------------------

TEST(CWideTextTest, OfNullIsNull)
{
    const CWideText text(nullptr);
    EXPECT_EQ(static_cast<LPCWSTR>(text), nullptr);
    EXPECT_EQ(text.GetLength(), 0);
}

TEST(CWideTextTest, OfNothingIsEmpty)
{
    const CWideText text("");
    ASSERT_NE(static_cast<LPCWSTR>(text), nullptr);
    EXPECT_EQ(Text(text), u"");
    EXPECT_EQ(text.GetLength(), 0);
    const CWideText none("abc", 0);
    EXPECT_EQ(Text(none), u"");
}

TEST(CWideTextTest, IsTerminatedWhenItsLengthIsGiven)
{
    const CWideText text("abcdef", 3);
    EXPECT_EQ(Text(text), u"abc");
    EXPECT_EQ(text.GetLength(), 3);
}

TEST(CWideTextTest, KeepsAZeroWithinItsLength)
{
    const CWideText text("a\0b", 3);
    EXPECT_EQ(text.GetLength(), 3);
    EXPECT_EQ(static_cast<LPCWSTR>(text)[2], static_cast<WCHAR>('b'));
}

TEST(CWideTextTest, MayBeLongerThanItsOwnRoom)
{
    for (const int length : {510, 511, 512, 513, 5000})
    {
        const std::string narrow(static_cast<size_t>(length), 'x');
        const CWideText wide(narrow.c_str());
        EXPECT_EQ(wide.GetLength(), length);
        EXPECT_EQ(Text(wide), std::u16string(static_cast<size_t>(length), u'x'));
    }
}

TEST(CWideTextTest, HasNoMoreCharactersThanTheNarrowOneHasBytes)
{
    std::string narrow;
    std::u16string expected;
    for (int i = 0; i < 400; ++i)
    {
        narrow += "\x8E\x9A";
        expected += u'\u5B57';
    }
    const CWideText wide(narrow.c_str(), -1, 932);
    EXPECT_EQ(wide.GetLength(), 400);
    EXPECT_EQ(Text(wide), expected);
}

TEST(CWideBufferTest, IsEmptyAtFirstWhateverItsSize)
{
    for (const int size : {1, 511, 512, 513, 4000})
    {
        const CWideBuffer buffer(size);
        ASSERT_NE(buffer.Get(), nullptr);
        EXPECT_EQ(buffer.Get()[0], 0);
        buffer.Get()[size - 1] = 'x'; // there is that much room
        EXPECT_EQ(buffer.Get()[size - 1], static_cast<WCHAR>('x'));
    }
}

TEST_P(CPageTest, MakesNarrowTextsWide)
{
    const CTextPage page(GetParam().page);
    const CWideText wide(GetParam().narrow);
    EXPECT_EQ(Text(wide), GetParam().wide);
    EXPECT_EQ(wide.GetLength(), Length(GetParam().wide));
    EXPECT_EQ(Text(CWideText(GetParam().narrow, GetParam().bytesOfFirst)), std::u16string(GetParam().wide, 1));
}

TEST_P(CPageTest, MakesNarrowTextsOfAPageThatIsNamedWide)
{
    EXPECT_EQ(Text(CWideText(GetParam().narrow, -1, GetParam().page)), GetParam().wide);
}

// What stands for such bytes is the system's affair; the text behind them is not lost.
TEST_P(CPageTest, EndsTextsThatAreNotOfThePage)
{
    const CTextPage page(GetParam().page);
    for (const char* invalid : {"a\xFF", "\x81", "ab\x81\x20", "\xFE\xFE\xFE"})
    {
        const CWideText wide(invalid);
        EXPECT_GT(wide.GetLength(), 0);
        EXPECT_LE(wide.GetLength(), static_cast<int>(std::strlen(invalid)));
        EXPECT_EQ(static_cast<LPCWSTR>(wide)[wide.GetLength()], 0);
        if (invalid[0] == 'a')
        {
            EXPECT_EQ(static_cast<LPCWSTR>(wide)[0], static_cast<WCHAR>('a'));
        }
    }
}

// ---- Narrow texts ---------------------------------------------------------------------------------------------------

TEST_P(CPageTest, MakesWideTextsNarrow)
{
    const LPCWSTR wide = Wide(GetParam().wide);
    const int length = Length(GetParam().wide);
    EXPECT_EQ(AfxNarrow(wide, length, GetParam().page), GetParam().narrow);
    const CTextPage page(GetParam().page);
    EXPECT_EQ(AfxNarrow(wide, length), GetParam().narrow);
    EXPECT_EQ(AfxNarrow(wide, 0), "");
    EXPECT_EQ(AfxNarrow(wide, 1), CString(GetParam().narrow, GetParam().bytesOfFirst));
}

TEST_P(CPageTest, MarksWhatThePageLacks)
{
    const bool isThai = GetParam().page == 874;
    const char16_t* lacking = isThai ? u"a\u5B57b" : u"a\u0E01b";
    const CTextPage page(GetParam().page);
    EXPECT_EQ(AfxNarrow(Wide(lacking), 3), "a?b");
    char buffer[8];
    EXPECT_EQ(AfxNarrow(Wide(lacking), 3, buffer, sizeof buffer), 3);
    EXPECT_STREQ(buffer, "a?b");
}

TEST_P(CPageTest, CutsAfterAWholeCharacter)
{
    const CTextPage page(GetParam().page);
    const std::string whole = GetParam().narrow;
    const int length = Length(GetParam().wide);
    size_t before = 0;
    for (size_t size = 1; size <= whole.size() + 2; ++size)
    {
        std::string buffer(size + 1, '#');
        const auto used =
            static_cast<size_t>(AfxNarrow(Wide(GetParam().wide), length, buffer.data(), static_cast<int>(size)));
        ASSERT_LT(used, size);
        EXPECT_EQ(buffer.substr(0, used), whole.substr(0, used));
        EXPECT_EQ(buffer[used], '\0');
        EXPECT_EQ(buffer[size], '#') << "behind the buffer";
        EXPECT_GE(used + 2, std::min(size, whole.size() + 2)) << "no more than a byte is left";
        // As far as it goes it is the text again.
        const CWideText again(buffer.c_str());
        EXPECT_EQ(Text(again), std::u16string(GetParam().wide, static_cast<size_t>(again.GetLength())));
        EXPECT_GE(used, before);
        before = used;
    }
    EXPECT_EQ(before, whole.size());
}

TEST_P(CPageTest, LeavesABufferOfNoSizeAlone)
{
    const CTextPage page(GetParam().page);
    char untouched = '#';
    EXPECT_EQ(AfxNarrow(Wide(GetParam().wide), 1, &untouched, 0), 0);
    EXPECT_EQ(untouched, '#');
    EXPECT_EQ(AfxNarrow(Wide(GetParam().wide), 1, &untouched, 1), 0);
    EXPECT_EQ(untouched, '\0');
}

TEST_P(CPageTest, KnowsHowLongACharacterIs)
{
    EXPECT_EQ(AfxCharLength(GetParam().narrow, GetParam().page), GetParam().bytesOfFirst);
    const CTextPage page(GetParam().page);
    EXPECT_EQ(AfxCharLength(GetParam().narrow), GetParam().bytesOfFirst);
    const char half[] = {GetParam().narrow[0], '\0'};
    EXPECT_EQ(AfxCharLength(half), 1) << "there is no second byte";
}

// ---- Windows and their kin ------------------------------------------------------------------------------------------

TEST_P(CPageTest, ReachesAWindowAndComesBack)
{
    const CTextPage page(GetParam().page);
    m_window.SetWindowText(GetParam().narrow);
    EXPECT_EQ(Held(m_window.m_hWnd), GetParam().wide);
    EXPECT_TRUE(AfxShows(&m_window, GetParam().narrow));
    CString text;
    m_window.GetWindowText(text);
    EXPECT_EQ(text, GetParam().narrow);
    char buffer[100];
    EXPECT_EQ(m_window.GetWindowText(buffer, sizeof buffer), static_cast<int>(std::strlen(GetParam().narrow)));
    EXPECT_STREQ(buffer, GetParam().narrow);
}

TEST_P(CPageTest, IsWhatANewControlShows)
{
    const CTextPage page(GetParam().page);
    CStatic label;
    ASSERT_TRUE(label.Create(GetParam().narrow, WS_CHILD, m_rect, &m_window, 7));
    EXPECT_EQ(Held(label.m_hWnd), GetParam().wide);
    m_window.SetDlgItemText(7, "");
    EXPECT_EQ(Held(label.m_hWnd), u"");
    m_window.SetDlgItemText(7, GetParam().narrow);
    EXPECT_EQ(Held(label.m_hWnd), GetParam().wide);
    CString text;
    m_window.GetDlgItemText(7, text);
    EXPECT_EQ(text, GetParam().narrow);
}

TEST_P(CPageTest, IsTheItemOfAList)
{
    const CTextPage page(GetParam().page);
    CComboBox combo;
    CListBox list;
    ASSERT_TRUE(combo.Create(CBS_DROPDOWNLIST, m_rect, &m_window, 5));
    ASSERT_TRUE(list.Create(LBS_NOTIFY, m_rect, &m_window, 6));
    ASSERT_EQ(combo.AddString(GetParam().narrow), 0);
    ASSERT_EQ(list.AddString(GetParam().narrow), 0);
    std::array<WCHAR, 100> held = {};
    ::SendMessageW(combo.m_hWnd, CB_GETLBTEXT, 0, reinterpret_cast<LPARAM>(held.data()));
    EXPECT_EQ(Text(held.data()), GetParam().wide);
    ::SendMessageW(list.m_hWnd, LB_GETTEXT, 0, reinterpret_cast<LPARAM>(held.data()));
    EXPECT_EQ(Text(held.data()), GetParam().wide);
    CString text;
    combo.GetLBText(0, text);
    EXPECT_EQ(text, GetParam().narrow);
    list.GetText(0, text);
    EXPECT_EQ(text, GetParam().narrow);
    combo.SetCurSel(0);
    combo.GetWindowText(text);
    EXPECT_EQ(text, GetParam().narrow);
}

TEST_P(CPageTest, IsTheEntryOfAMenu)
{
    const CTextPage page(GetParam().page);
    CMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    ASSERT_TRUE(menu.AppendMenu(MF_STRING, 100, GetParam().narrow));
    std::array<WCHAR, 100> held = {};
    ::GetMenuStringW(menu.m_hMenu, 100, held.data(), static_cast<int>(held.size()), MF_BYCOMMAND);
    EXPECT_EQ(Text(held.data()), GetParam().wide);
}

TEST_P(CPageTest, PassesTheClipboard)
{
    CString text;
    {
        const CTextPage page(GetParam().page);
        ASSERT_TRUE(AfxSetClipboardText(&m_window, GetParam().narrow));
        ASSERT_TRUE(AfxGetClipboardText(&m_window, text));
        EXPECT_EQ(text, GetParam().narrow);
    }
    // Other programs see the characters, not the bytes.
    ASSERT_TRUE(::OpenClipboard(m_window.m_hWnd));
    const HANDLE data = ::GetClipboardData(CF_UNICODETEXT);
    ASSERT_NE(data, nullptr);
    EXPECT_EQ(Text(static_cast<LPCWSTR>(::GlobalLock(data))), GetParam().wide);
    ::GlobalUnlock(data);
    ::CloseClipboard();
}

// The text is the library's, the caption the host's.
TEST_P(CPageTest, IsTheTextOfAMessageBox)
{
    const CTextPage page(GetParam().page);
    const CString caption = AfxNarrow(Wide(u"Caf\u00E9"), 4, CP_ACP);
    std::u16string heldCaption;
    std::u16string heldText;
    Play([&] { return m_window.MessageBox(GetParam().narrow, caption, MB_OK); }, {[&](CDialogRobot& box) {
             heldCaption = Held(box.Dialog()->m_hWnd);
             EXPECT_EQ(box.Text(0), GetParam().narrow);
             box.Click(IDOK);
         }});
    EXPECT_EQ(heldCaption, Text(CWideText(caption, -1, CP_ACP)));
    ASSERT_EQ(m_robot.MessageBoxes().size(), 1u);
    EXPECT_EQ(m_robot.MessageBoxes().front().text, GetParam().narrow);
}

TEST_P(CPageTest, IsMeasuredAsItsCharacters)
{
    const CTextPage page(GetParam().page);
    CClientDC dc(&m_window);
    CSize expected;
    ::GetTextExtentPoint32W(dc.m_hDC, Wide(GetParam().wide), Length(GetParam().wide), &expected);
    EXPECT_EQ(dc.GetTextExtent(GetParam().narrow).cx, expected.cx);
    EXPECT_EQ(dc.GetTextExtent(GetParam().narrow, static_cast<int>(std::strlen(GetParam().narrow))).cx, expected.cx);
}

// A character may not be a byte: it is handed on as it came.
TEST_P(CPageTest, IsTypedInCharacters)
{
    CEdit edit;
    ASSERT_TRUE(edit.Create(ES_AUTOHSCROLL, m_rect, &m_window, 8));
    for (const char16_t character : std::u16string(GetParam().wide))
        AfxForward(&edit, WM_CHAR, character, 1);
    EXPECT_EQ(Held(edit.m_hWnd), GetParam().wide);
}

// Two characters that a page lacks look alike in it, but not in the window.
TEST_P(CPageTest, DoesNotTakeAQuestionMarkForWhatIsShown)
{
    const CTextPage page(GetParam().page);
    const char16_t* lacking = GetParam().page == 874 ? u"\u5B57" : u"\u0E01";
    ::SetWindowTextW(m_window.m_hWnd, Wide(lacking));
    CString text;
    m_window.GetWindowText(text);
    EXPECT_EQ(text, "?");
    EXPECT_FALSE(AfxShows(&m_window, "?"));
    m_window.SetWindowText("?");
    EXPECT_TRUE(AfxShows(&m_window, "?"));
    EXPECT_FALSE(AfxShows(&m_window, "??"));
    EXPECT_FALSE(AfxShows(&m_window, ""));
}

INSTANTIATE_TEST_SUITE_P(Pages, CPageTest, testing::ValuesIn(kPages),
                         [](const auto& test) { return std::to_string(test.param.page); });

// ---- Which page -----------------------------------------------------------------------------------------------------

TEST(CTextPageTest, EndsWithItsScopeAndNests)
{
    EXPECT_EQ(AfxGetTextPage(), static_cast<UINT>(CP_ACP));
    {
        const CTextPage outer(932);
        EXPECT_EQ(AfxGetTextPage(), 932u);
        {
            const CTextPage inner(874);
            EXPECT_EQ(AfxGetTextPage(), 874u);
        }
        EXPECT_EQ(AfxGetTextPage(), 932u);
        {
            const CTextPage system(CP_ACP);
            EXPECT_EQ(AfxGetTextPage(), static_cast<UINT>(CP_ACP));
        }
        EXPECT_EQ(AfxGetTextPage(), 932u);
    }
    EXPECT_EQ(AfxGetTextPage(), static_cast<UINT>(CP_ACP));
}

TEST(CTextPageTest, IsSetAndGivesTheOneBefore)
{
    EXPECT_EQ(AfxSetTextPage(950), static_cast<UINT>(CP_ACP));
    EXPECT_EQ(AfxSetTextPage(CP_ACP), 950u);
}

UINT PageOf(const char* file, UINT id)
{
    const HINSTANCE library = AfxLoadLibrary(AfxGetModuleFolder(nullptr) + file);
    EXPECT_NE(library, nullptr) << file;
    const UINT page = AfxPageOfString(library, id);
    AfxFreeLibrary(library);
    return page;
}

TEST(AfxPageOfStringTest, IsThatOfTheLanguage)
{
    EXPECT_EQ(PageOf("PlxRcJpn.DLL", kFontFace), 932u);
    EXPECT_EQ(PageOf("PlxRcChs.DLL", kFontFace), 936u);
    EXPECT_EQ(PageOf("PlxRcCht.DLL", kFontFace), 950u);
    EXPECT_EQ(PageOf("PlxRcKor.DLL", kFontFace), 949u);
    EXPECT_EQ(PageOf("PlxRcEsp.DLL", kFontFace), 1252u);
    EXPECT_EQ(PageOf("PlxRcIta.DLL", kFontFace), 1252u);
    EXPECT_EQ(PageOf("PlxRcThi.DLL", kFontFace), 874u);
}

TEST(AfxPageOfStringTest, IsTheSystemsForEnglishAndForWhatIsNotThere)
{
    EXPECT_EQ(PageOf("PlxRcEnu.DLL", kFontFace), static_cast<UINT>(CP_ACP));
    EXPECT_EQ(AfxPageOfString(AfxGetInstanceHandle(), kFontFace), static_cast<UINT>(CP_ACP));
    EXPECT_EQ(PageOf("PlxRcJpn.DLL", 64999), static_cast<UINT>(CP_ACP)) << "no such string";
    EXPECT_EQ(PageOf("OtherPages.DLL", 10), static_cast<UINT>(CP_ACP)) << "no language";
    EXPECT_EQ(PageOf("OtherPages.DLL", 100), static_cast<UINT>(CP_ACP)) << "a language without a page";
}

TEST(AfxPageOfStringTest, TellsTheStringsOfALibraryApart)
{
    EXPECT_EQ(PageOf("OtherPages.DLL", 1000), 932u);
    EXPECT_EQ(PageOf("OtherPages.DLL", 2000), 1252u);
}

} // namespace
