// ANSI and Unicode window procedures, and the translation of texts between them.
#include "tests/afx/desktop/TestDialog.h"
#include "tests/afx/offscreen/UseCodePage.h"

#include <cstring>
#include <string>
#include <vector>

using namespace desktop;

namespace
{

constexpr char16_t kWide[] = u"\u3042a"; // Two characters, three bytes in code page 932
constexpr char kNarrow[] = "\x82\xA0"
                           "a";
constexpr WCHAR kAnsiClass[] = u"AnsiRecorder";
constexpr WCHAR kUnicodeClass[] = u"UnicodeRecorder";

template <class Text>
LPARAM AsParam(Text* text)
{
    return reinterpret_cast<LPARAM>(text);
}

// What a recording procedure of either kind has got.
template <class Character>
struct Record
{
    std::vector<std::basic_string<Character>> texts;
    std::vector<WPARAM> characters;

    LRESULT Note(UINT message, WPARAM wParam, LPARAM lParam)
    {
        switch (message)
        {
        case WM_SETTEXT:
        case CB_ADDSTRING:
        case CB_INSERTSTRING:
        case CB_FINDSTRING:
        case CB_FINDSTRINGEXACT:
        case CB_SELECTSTRING:
        case LB_ADDSTRING:
        case LB_INSERTSTRING:
        case LB_FINDSTRING:
        case LB_FINDSTRINGEXACT:
        case LB_SELECTSTRING:
        case EM_REPLACESEL:
            texts.push_back(reinterpret_cast<const Character*>(lParam));
            return 1;
        case WM_CHAR:
            characters.push_back(wParam);
            return 1;
        default:
            return 0;
        }
    }
};

Record<char> g_ansi;
Record<char16_t> g_unicode;

template <class Character, class Create>
void NoteCreation(Record<Character>& record, const Create& create)
{
    record.texts.push_back(create.lpszClass);
    record.texts.push_back(create.lpszName);
}

// Answers WM_GETTEXT and the like as if it held kNarrow.
LRESULT AnswerAnsi(UINT message, WPARAM wParam, LPARAM lParam)
{
    auto* target = reinterpret_cast<LPSTR>(lParam);
    switch (message)
    {
    case WM_GETTEXT:
        lstrcpynA(target, kNarrow, static_cast<int>(wParam));
        return static_cast<LRESULT>(std::strlen(target));
    case CB_GETLBTEXT:
    case LB_GETTEXT:
        std::strcpy(target, kNarrow);
        return 3;
    case EM_GETLINE:
        std::memcpy(target, kNarrow, 3);
        return 3;
    default: // The lengths
        return 3;
    }
}

LRESULT CALLBACK AnsiProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
    case WM_NCCREATE:
        NoteCreation(g_ansi, *reinterpret_cast<const CREATESTRUCTA*>(lParam));
        break;
    case WM_GETTEXT:
    case WM_GETTEXTLENGTH:
    case CB_GETLBTEXT:
    case CB_GETLBTEXTLEN:
    case LB_GETTEXT:
    case LB_GETTEXTLEN:
    case EM_GETLINE:
        return AnswerAnsi(message, wParam, lParam);
    default:
        if (g_ansi.Note(message, wParam, lParam))
            return 7;
        break;
    }
    return DefWindowProcA(window, message, wParam, lParam);
}

LRESULT CALLBACK UnicodeProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_NCCREATE)
        NoteCreation(g_unicode, *reinterpret_cast<const CREATESTRUCTW*>(lParam));
    else if (g_unicode.Note(message, wParam, lParam) && message != WM_SETTEXT)
        return 7;
    return DefWindowProcW(window, message, wParam, lParam);
}

class CUnicodeWindowsTest : public testing::Test
{
protected:
    CUnicodeWindowsTest()
    {
        WNDCLASSA ansi{};
        ansi.lpszClassName = "AnsiRecorder";
        ansi.lpfnWndProc = AnsiProc;
        RegisterClassA(&ansi);
        WNDCLASSW unicode{};
        unicode.lpszClassName = kUnicodeClass;
        unicode.lpfnWndProc = UnicodeProc;
        RegisterClassW(&unicode);
        m_ansi = Create(kAnsiClass);
        m_unicode = Create(kUnicodeClass);
        g_ansi = {};
        g_unicode = {};
    }
    ~CUnicodeWindowsTest() override
    {
        for (const HWND window : m_windows)
            DestroyWindow(window);
        EXPECT_TRUE(UnregisterClassW(kUnicodeClass, nullptr));
        EXPECT_TRUE(UnregisterClassA("AnsiRecorder", nullptr));
    }

    HWND Create(LPCWSTR className, LPCWSTR text = u"", DWORD style = 0)
    {
        m_windows.push_back(
            CreateWindowExW(0, className, text, WS_POPUP | style, 0, 0, 200, 40, nullptr, nullptr, nullptr, nullptr));
        return m_windows.back();
    }

    static std::u16string TextOf(HWND window)
    {
        WCHAR text[100];
        const int length = GetWindowTextW(window, text, 100);
        EXPECT_EQ(GetWindowTextLengthW(window), length);
        return {text, static_cast<std::size_t>(length)};
    }

    static std::string AnsiTextOf(HWND window)
    {
        char text[100];
        const int length = GetWindowTextA(window, text, 100);
        EXPECT_EQ(GetWindowTextLengthA(window), length);
        return {text, static_cast<std::size_t>(length)};
    }

    CUseCodePage m_japanese{932};
    HWND m_ansi = nullptr;
    HWND m_unicode = nullptr;

private:
    std::vector<HWND> m_windows;
};

TEST_F(CUnicodeWindowsTest, TheFunctionThatRegistersAClassDecidesItsKind)
{
    EXPECT_FALSE(IsWindowUnicode(m_ansi));
    EXPECT_TRUE(IsWindowUnicode(m_unicode));
    EXPECT_TRUE(IsWindowUnicode(Create(u"Edit")));
    EXPECT_FALSE(IsWindowUnicode(nullptr));
    WCHAR wide[20];
    EXPECT_EQ(GetClassNameW(m_ansi, wide, 20), 12);
    EXPECT_EQ(std::u16string(wide), kAnsiClass);
    char narrow[20];
    EXPECT_EQ(GetClassNameA(m_unicode, narrow, 20), 15);
    EXPECT_STREQ(narrow, "UnicodeRecorder");
}

TEST_F(CUnicodeWindowsTest, CreationTellsTextsInTheFormOfTheProcedure)
{
    Create(kAnsiClass, kWide);
    EXPECT_EQ(g_ansi.texts, (std::vector<std::string>{"AnsiRecorder", kNarrow}));
    const HWND window =
        CreateWindowExA(0, "UnicodeRecorder", kNarrow, WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ(g_unicode.texts, (std::vector<std::u16string>{kUnicodeClass, kWide}));
    EXPECT_EQ(TextOf(window), kWide);
    DestroyWindow(window);
}

TEST_F(CUnicodeWindowsTest, TextsAreTranslatedForTheProcedure)
{
    for (const UINT message :
         {WM_SETTEXT, CB_ADDSTRING, CB_INSERTSTRING, CB_FINDSTRING, CB_FINDSTRINGEXACT, CB_SELECTSTRING, LB_ADDSTRING,
          LB_INSERTSTRING, LB_FINDSTRING, LB_FINDSTRINGEXACT, LB_SELECTSTRING, EM_REPLACESEL})
    {
        g_ansi = {};
        g_unicode = {};
        EXPECT_EQ(SendMessageW(m_ansi, message, 0, AsParam(kWide)), 7);
        EXPECT_EQ(SendMessageA(m_ansi, message, 0, AsParam(kNarrow)), 7);
        EXPECT_EQ(g_ansi.texts, (std::vector<std::string>{kNarrow, kNarrow})) << message;
        SendMessageA(m_unicode, message, 0, AsParam(kNarrow));
        SendMessageW(m_unicode, message, 0, AsParam(kWide));
        EXPECT_EQ(g_unicode.texts, (std::vector<std::u16string>{kWide, kWide})) << message;
    }
}

TEST_F(CUnicodeWindowsTest, AnswersAreTranslatedForTheSender)
{
    EXPECT_EQ(TextOf(m_ansi), kWide);
    EXPECT_EQ(AnsiTextOf(m_ansi), kNarrow);
    WCHAR text[10];
    EXPECT_EQ(GetWindowTextW(m_ansi, text, 2), 1);
    EXPECT_EQ(std::u16string(text), u"\u3042");
    for (const UINT message : {CB_GETLBTEXT, LB_GETTEXT})
    {
        std::fill(std::begin(text), std::end(text), u'#');
        EXPECT_EQ(SendMessageW(m_ansi, message, 0, AsParam(text)), 2);
        EXPECT_EQ(std::u16string(text), kWide);
    }
    EXPECT_EQ(SendMessageW(m_ansi, CB_GETLBTEXTLEN, 0, 0), 2);
    EXPECT_EQ(SendMessageA(m_ansi, CB_GETLBTEXTLEN, 0, 0), 3);
    EXPECT_EQ(SendMessageW(m_ansi, LB_GETTEXTLEN, 0, 0), 2);
    text[0] = 10;
    EXPECT_EQ(SendMessageW(m_ansi, EM_GETLINE, 0, AsParam(text)), 2);
    EXPECT_EQ(std::u16string(text), kWide);
}

TEST_F(CUnicodeWindowsTest, StandardControlsAnswerBothSenders)
{
    const HWND edit = Create(u"Edit", kWide);
    EXPECT_EQ(TextOf(edit), kWide);
    EXPECT_EQ(AnsiTextOf(edit), kNarrow);
    EXPECT_TRUE(SetWindowTextA(edit, kNarrow));
    EXPECT_EQ(TextOf(edit), kWide);
    EXPECT_TRUE(SetWindowTextW(edit, u"\u0E01"));
    EXPECT_EQ(TextOf(edit), u"\u0E01");
    EXPECT_EQ(AnsiTextOf(edit), "?");
    for (const WCHAR* className : {u"ListBox", u"ComboBox"})
    {
        const bool isList = className[0] == u'L';
        const HWND list = Create(className, u"", isList ? 0 : CBS_DROPDOWNLIST);
        const UINT add = isList ? LB_ADDSTRING : CB_ADDSTRING, get = isList ? LB_GETTEXT : CB_GETLBTEXT;
        const UINT length = isList ? LB_GETTEXTLEN : CB_GETLBTEXTLEN;
        EXPECT_EQ(SendMessageA(list, add, 0, AsParam(kNarrow)), 0);
        EXPECT_EQ(SendMessageW(list, add, 0, AsParam(kWide)), 1);
        for (const WPARAM item : {0, 1})
        {
            WCHAR wide[10];
            char narrow[10];
            EXPECT_EQ(SendMessageW(list, length, item, 0), 2);
            EXPECT_EQ(SendMessageA(list, length, item, 0), 3);
            EXPECT_EQ(SendMessageW(list, get, item, AsParam(wide)), 2);
            EXPECT_EQ(std::u16string(wide), kWide);
            EXPECT_EQ(SendMessageA(list, get, item, AsParam(narrow)), 3);
            EXPECT_STREQ(narrow, kNarrow);
        }
        EXPECT_EQ(SendMessageA(list, length, 2, 0), LB_ERR);
        EXPECT_EQ(SendMessageA(list, get, 2, AsParam(className)), LB_ERR);
    }
}

TEST_F(CUnicodeWindowsTest, ACutTextEndsWithAWholeCharacter)
{
    const HWND edit = Create(u"Edit", u"\u3042\u3044a");
    char text[10];
    EXPECT_EQ(GetWindowTextA(edit, text, 4), 2);
    EXPECT_STREQ(text, "\x82\xA0");
    EXPECT_EQ(GetWindowTextA(edit, text, 5), 4);
    EXPECT_EQ(GetWindowTextA(edit, text, 1), 0);
}

TEST_F(CUnicodeWindowsTest, LinesOfAnEditInBothForms)
{
    const HWND edit = Create(u"Edit", u"\u3042a\r\nbc", ES_MULTILINE);
    char narrow[10] = {9};
    EXPECT_EQ(SendMessageA(edit, EM_GETLINE, 0, AsParam(narrow)), 3);
    EXPECT_STREQ(narrow, kNarrow);
    WCHAR wide[10] = {9};
    EXPECT_EQ(SendMessageW(edit, EM_GETLINE, 1, AsParam(wide)), 2);
    EXPECT_EQ(std::u16string(wide), u"bc");
    wide[0] = 9;
    EXPECT_EQ(SendMessageW(edit, EM_GETLINE, 2, AsParam(wide)), 0);
    SendMessageA(edit, EM_SETSEL, 1, 2);
    SendMessageA(edit, EM_REPLACESEL, 0, AsParam("\x82\xA2"));
    EXPECT_EQ(TextOf(edit), u"\u3042\u3044\r\nbc");
}

TEST_F(CUnicodeWindowsTest, BytesOfACharacterComeTogether)
{
    SendMessageA(m_unicode, WM_CHAR, 0x82, 1);
    EXPECT_TRUE(g_unicode.characters.empty());
    SendMessageA(m_unicode, WM_CHAR, 0xA0, 1);
    SendMessageA(m_unicode, WM_CHAR, 'a', 1);
    EXPECT_EQ(g_unicode.characters, (std::vector<WPARAM>{0x3042, 'a'}));
    SendMessageW(m_ansi, WM_CHAR, 0x3042, 1);
    SendMessageW(m_ansi, WM_CHAR, 0xFF71, 1);
    SendMessageW(m_ansi, WM_CHAR, 0x0E01, 1);
    EXPECT_EQ(g_ansi.characters, (std::vector<WPARAM>{0x82, 0xA0, 0xB1, '?'}));
}

TEST_F(CUnicodeWindowsTest, AByteThatWaitsBelongsToItsWindow)
{
    SendMessageA(m_unicode, WM_CHAR, 0x82, 1);
    const HWND edit = Create(u"Edit");
    SendMessageA(edit, WM_CHAR, 'a', 1);
    SendMessageA(m_unicode, WM_CHAR, 'b', 1);
    EXPECT_EQ(TextOf(edit), u"a");
    EXPECT_EQ(g_unicode.characters, (std::vector<WPARAM>{'b'}));
}

TEST_F(CUnicodeWindowsTest, PostedCharactersAreTranslatedForWhoFetchesThem)
{
    MSG msg{};
    PostMessageW(m_unicode, WM_CHAR, 0x3042, 1);
    ASSERT_TRUE(PeekMessageA(&msg, m_unicode, WM_CHAR, WM_CHAR, PM_NOREMOVE));
    EXPECT_EQ(msg.wParam, 0x82u);
    ASSERT_TRUE(PeekMessageA(&msg, m_unicode, WM_CHAR, WM_CHAR, PM_REMOVE));
    EXPECT_EQ(msg.wParam, 0x82u);
    DispatchMessageA(&msg);
    ASSERT_TRUE(GetMessageA(&msg, m_unicode, WM_CHAR, WM_CHAR));
    EXPECT_EQ(msg.wParam, 0xA0u);
    DispatchMessageA(&msg);
    EXPECT_FALSE(PeekMessageA(&msg, m_unicode, WM_CHAR, WM_CHAR, PM_REMOVE));

    PostMessageA(m_unicode, WM_CHAR, 0x82, 1);
    EXPECT_FALSE(PeekMessageW(&msg, m_unicode, WM_CHAR, WM_CHAR, PM_REMOVE));
    PostMessageA(m_unicode, WM_CHAR, 0xA0, 1);
    ASSERT_TRUE(PeekMessageW(&msg, m_unicode, WM_CHAR, WM_CHAR, PM_NOREMOVE));
    ASSERT_TRUE(GetMessageW(&msg, m_unicode, WM_CHAR, WM_CHAR));
    EXPECT_EQ(msg.wParam, 0x3042u);
    DispatchMessageW(&msg);
    EXPECT_EQ(g_unicode.characters, (std::vector<WPARAM>{0x3042, 0x3042}));
}

// --------------------------------------------------------------------------------------------------------- subclassing

WNDPROC g_before = nullptr;
std::vector<std::string> g_seen;

LRESULT CALLBACK AnsiSubclass(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_SETTEXT)
        g_seen.push_back(reinterpret_cast<LPCSTR>(lParam));
    return CallWindowProcA(g_before, window, message, wParam, lParam);
}

LRESULT CALLBACK UnicodeSubclass(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    return CallWindowProcW(g_before, window, message, wParam, lParam);
}

TEST_F(CUnicodeWindowsTest, AnAnsiSubclassSeesBytesAndLosesTheRest)
{
    const HWND edit = Create(u"Edit");
    const LONG_PTR unicode = GetWindowLongPtrW(edit, GWLP_WNDPROC);
    g_seen.clear();
    g_before =
        reinterpret_cast<WNDPROC>(SetWindowLongPtrA(edit, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(AnsiSubclass)));
    EXPECT_FALSE(IsWindowUnicode(edit));
    EXPECT_NE(reinterpret_cast<LONG_PTR>(g_before), unicode); // A handle
    EXPECT_EQ(GetWindowLongPtrA(edit, GWLP_WNDPROC), reinterpret_cast<LONG_PTR>(AnsiSubclass));
    SetWindowTextW(edit, u"\u3042\u0E01");
    EXPECT_EQ(g_seen, (std::vector<std::string>{"\x82\xA0?"}));
    EXPECT_EQ(TextOf(edit), u"\u3042?");
    SendMessageW(edit, EM_SETSEL, 0, -1);
    SendMessageW(edit, WM_CHAR, 0x3044, 1);
    EXPECT_EQ(TextOf(edit), u"\u3044");

    SetWindowLongPtrA(edit, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(g_before));
    EXPECT_TRUE(IsWindowUnicode(edit));
    EXPECT_EQ(GetWindowLongPtrW(edit, GWLP_WNDPROC), unicode);
}

TEST_F(CUnicodeWindowsTest, AUnicodeSubclassLosesNothing)
{
    const HWND edit = Create(u"Edit");
    g_before =
        reinterpret_cast<WNDPROC>(SetWindowLongPtrW(edit, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(UnicodeSubclass)));
    SetWindowTextW(edit, u"\u3042\u0E01");
    EXPECT_EQ(TextOf(edit), u"\u3042\u0E01");
    EXPECT_TRUE(IsWindowUnicode(edit));
}

TEST_F(CUnicodeWindowsTest, AUnicodeSubclassOfAnAnsiWindowPassesBytesOn)
{
    g_before =
        reinterpret_cast<WNDPROC>(SetWindowLongPtrW(m_ansi, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(UnicodeSubclass)));
    EXPECT_TRUE(IsWindowUnicode(m_ansi));
    SetWindowTextW(m_ansi, kWide);
    SetWindowTextA(m_ansi, kNarrow);
    EXPECT_EQ(g_ansi.texts, (std::vector<std::string>{kNarrow, kNarrow}));
    EXPECT_EQ(TextOf(m_ansi), kWide);
    SetWindowLongPtrW(m_ansi, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(g_before));
    EXPECT_FALSE(IsWindowUnicode(m_ansi));
}

TEST_F(CUnicodeWindowsTest, NumbersOfAWindowAreTheSameForBoth)
{
    SetWindowLongPtrW(m_ansi, GWLP_USERDATA, 77);
    EXPECT_EQ(GetWindowLongPtrA(m_ansi, GWLP_USERDATA), 77);
    SetWindowLongW(m_ansi, GWLP_ID, 5);
    EXPECT_EQ(GetWindowLongW(m_ansi, GWLP_ID), 5);
    EXPECT_EQ(GetWindowLongA(m_ansi, GWLP_ID), 5);
    SetWindowLongPtrW(m_ansi, GWLP_ID, 0);
}

// ------------------------------------------------------------------------------------------------------------- dialogs

// A dialog and a label whose texts code page 932 does not have.
std::vector<WORD> ThaiTemplate()
{
    constexpr DWORD kDialog = WS_POPUP, kLabel = WS_CHILD;
    std::vector<WORD> words = {LOWORD(kDialog), HIWORD(kDialog), 0, 0, 1, 0, 0, 100, 100, 0, 0, 0x0E01, 0, 0};
    words.insert(words.end(), {LOWORD(kLabel), HIWORD(kLabel), 0, 0, 0, 0, 50, 10, 7, 0xFFFF, kStatic, 0x0E02, 0, 0});
    return words;
}

INT_PTR CALLBACK QuietProc(HWND, UINT, WPARAM, LPARAM) { return FALSE; }

TEST_F(CUnicodeWindowsTest, ADialogOfAUnicodeFunctionShowsItsWholeTemplate)
{
    const std::vector<WORD> words = ThaiTemplate();
    const auto* dialogTemplate = reinterpret_cast<LPCDLGTEMPLATE>(words.data());
    const HWND dialog = CreateDialogIndirectParamW(nullptr, dialogTemplate, nullptr, QuietProc, 0);
    EXPECT_EQ(TextOf(dialog), u"\u0E01");
    WCHAR text[10];
    EXPECT_EQ(GetDlgItemTextW(dialog, 7, text, 10), 1u);
    EXPECT_EQ(std::u16string(text), u"\u0E02");
    EXPECT_TRUE(SetDlgItemTextW(dialog, 7, kWide));
    EXPECT_EQ(SendDlgItemMessageW(dialog, 7, WM_GETTEXTLENGTH, 0, 0), 2);
    EXPECT_EQ(SendDlgItemMessageA(dialog, 7, WM_GETTEXTLENGTH, 0, 0), 3);
    EXPECT_FALSE(SetDlgItemTextW(dialog, 8, kWide));
    EXPECT_EQ(GetDlgItemTextW(dialog, 8, text, 10), 0u);
    DestroyWindow(dialog);
}

TEST_F(CUnicodeWindowsTest, ADialogOfAnAnsiFunctionHasTheTextsOfTheCodePage)
{
    const std::vector<WORD> words = ThaiTemplate();
    const auto* dialogTemplate = reinterpret_cast<LPCDLGTEMPLATE>(words.data());
    const HWND dialog = CreateDialogIndirectParamA(nullptr, dialogTemplate, nullptr, QuietProc, 0);
    EXPECT_EQ(TextOf(dialog), u"?");
    EXPECT_EQ(TextOf(GetDlgItem(dialog, 7)), u"?");
    EXPECT_TRUE(IsWindowUnicode(GetDlgItem(dialog, 7)));
    DestroyWindow(dialog);
}

// Handles the text of its dialog itself.
INT_PTR CALLBACK AnsiTextProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_SETTEXT)
        g_seen.push_back(reinterpret_cast<LPCSTR>(lParam));
    if (message != WM_GETTEXT && message != WM_GETTEXTLENGTH)
        return FALSE;
    SetWindowLongPtrA(dialog, DWLP_MSGRESULT, AnswerAnsi(message, wParam, lParam));
    return TRUE;
}

TEST_F(CUnicodeWindowsTest, AnAnsiDialogProcedureGetsAndGivesBytes)
{
    const std::vector<WORD> words = ThaiTemplate();
    const auto* dialogTemplate = reinterpret_cast<LPCDLGTEMPLATE>(words.data());
    const HWND dialog = CreateDialogIndirectParamA(nullptr, dialogTemplate, nullptr, AnsiTextProc, 0);
    g_seen.clear();
    SetWindowTextW(dialog, kWide);
    EXPECT_EQ(g_seen, (std::vector<std::string>{kNarrow}));
    EXPECT_EQ(TextOf(dialog), kWide);
    EXPECT_EQ(AnsiTextOf(dialog), kNarrow);
    SetWindowLongPtrW(dialog, static_cast<int>(DWLP_DLGPROC), reinterpret_cast<LONG_PTR>(QuietProc));
    EXPECT_EQ(TextOf(dialog), kWide); // What the default procedure kept
    EXPECT_EQ(DefDlgProcW(dialog, WM_GETTEXTLENGTH, 0, 0), 2);
    EXPECT_EQ(DefDlgProcA(dialog, WM_GETTEXTLENGTH, 0, 0), 3);
    EXPECT_EQ(DefWindowProcW(dialog, WM_GETTEXTLENGTH, 0, 0), 2);
    EXPECT_EQ(DefWindowProcA(dialog, WM_GETTEXTLENGTH, 0, 0), 3);
    DestroyWindow(dialog);
}

TEST_F(CUnicodeWindowsTest, AModalDialogOfAUnicodeFunction)
{
    const std::vector<WORD> words = ThaiTemplate();
    const INT_PTR result = DialogBoxIndirectParamW(
        nullptr, reinterpret_cast<LPCDLGTEMPLATE>(words.data()), nullptr,
        [](HWND dialog, UINT message, WPARAM, LPARAM) -> INT_PTR {
            if (message == WM_INITDIALOG)
                EndDialog(dialog, TextOf(dialog) == u"\u0E01" ? 5 : 6);
            return FALSE;
        },
        0);
    EXPECT_EQ(result, 5);
}

TEST_F(CUnicodeWindowsTest, AnAccessKeyMayBeAnyCharacter)
{
    TestDialog dialog(
        TemplateBuilder(WS_POPUP | WS_VISIBLE).Control(kButton, 1, "", WS_TABSTOP).Control(kButton, 2, "", 0));
    SetDlgItemTextW(dialog.Window(), 2, u"&\u3042");
    dialog.Log();
    MSG msg{};
    msg.hwnd = dialog.Item(1);
    msg.message = WM_SYSCHAR;
    msg.wParam = 0x3042;
    EXPECT_TRUE(IsDialogMessageW(dialog.Window(), &msg));
    EXPECT_EQ(dialog.Log(), "2:0");
    msg.wParam = 0x82;
    EXPECT_TRUE(IsDialogMessageA(dialog.Window(), &msg));
    EXPECT_EQ(dialog.Log(), "");
    msg.wParam = 0xA0;
    EXPECT_TRUE(IsDialogMessageA(dialog.Window(), &msg));
    EXPECT_EQ(dialog.Log(), "2:0");
}

} // namespace
