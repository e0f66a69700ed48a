// The texts of the lines in a dialog whose language has another code page than the system may have: they are in that of
// the language, five bytes of it.
#include "tests/dialogs/process/ScrDispTest.h"
#include "tests/robust/CodePage.h"

#include "afx/CodePage.h"

namespace
{

constexpr int kJapanese = 1;
constexpr unsigned kJapanesePage = 932;

struct SEntered
{
    std::u16string entered;
    std::u16string shown;
    std::string stored;
};

class CScrDispTextPageTest : public CScrDispTest, public testing::WithParamInterface<unsigned>
{
protected:
    CScrDispTextPageTest()
    {
        UseCodePage(GetParam());
        EXPECT_NE(m_wizard.SetLanguageInfo(kJapanese), nullptr);
        EXPECT_EQ(m_wizard.GetTextCodePage(), kJapanesePage);
    }
    ~CScrDispTextPageTest() override { UseCodePage(kCodePages[0]); }

    static std::u16string Shown(CDialogRobot& dialog)
    {
        WCHAR text[100];
        const int length = ::GetWindowTextW(Edit(dialog), text, 100);
        return std::u16string(text, text + length);
    }

    static HWND Edit(CDialogRobot& dialog) { return dialog.Dialog()->GetDlgItem(2872)->GetSafeHwnd(); }

    /// As a keyboard of that language does.
    static void Type(CDialogRobot& dialog, const std::u16string& text)
    {
        dialog.Type(2872, "");
        for (const char16_t c : text)
            ::SendMessageW(Edit(dialog), WM_CHAR, c, 1);
    }

    static void SetText(CDialogRobot& dialog, const std::u16string& text)
    {
        const std::basic_string<WCHAR> wide(text.begin(), text.end());
        ::SetWindowTextW(Edit(dialog), wide.c_str());
    }

    /// Enters a text into the upside line: what is shown, stored, and shown again.
    void ExpectEntered(const SEntered& row, void (*enter)(CDialogRobot& dialog, const std::u16string& text))
    {
        Forget();
        SScrDispEntries entries;
        entries.lines[kUpside].mode = 3;
        Confirm([&](CDialogRobot& dialog) {
            FillIn(dialog, entries);
            enter(dialog, row.entered);
            EXPECT_EQ(Shown(dialog), row.shown);
            EXPECT_EQ(dialog.Text(2872), CString(row.stored.c_str()));
        });
        entries.lines[kUpside].text = row.stored;
        EXPECT_EQ(ReadResults(m_wizard).data, ScrDispResults(entries).data);
        EXPECT_EQ(Block(), BlockOf(entries));
        Leave([&](CDialogRobot& dialog) { EXPECT_EQ(Shown(dialog), row.shown) << "reopened"; });
    }
};

// Characters of two bytes, and a second byte that is a backslash.
const SEntered kEntered[] = {
    {u"あ", u"あ", "\x82\xA0"},
    {u"あい", u"あい", "\x82\xA0\x82\xA2"},
    {u"あいう", u"あい", "\x82\xA0\x82\xA2"},
    {u"あいA", u"あいA", "\x82\xA0\x82\xA2\x41"},
    {u"Aあい", u"Aあい", "\x41\x82\xA0\x82\xA2"},
    {u"ABCDあ", u"ABCD", "ABCD"},
    {u"ABCあ", u"ABCあ", "ABC\x82\xA0"},
    {u"ソ表", u"ソ表", "\x83\x5C\x95\x5C"},
    {u"ｱｲｳｴｵｶ", u"ｱｲｳｴｵ", "\xB1\xB2\xB3\xB4\xB5"},
};

// A character that the code page lacks is shown as what is stored in its place.
const SEntered kLacking[] = {
    {u"é", u"?", "?"},
    {u"Aéあ", u"A?あ", "A?\x82\xA0"},
    {u"あéいA", u"あ?い", "\x82\xA0?\x82\xA2"},
};

TEST_P(CScrDispTextPageTest, CountTheBytesOfTheLanguage)
{
    for (const SEntered& row : kEntered)
    {
        SCOPED_TRACE(testing::PrintToString(row.stored));
        ExpectEntered(row, Type);
        ExpectEntered(row, SetText);
    }
}

TEST_P(CScrDispTextPageTest, ShowWhatIsStored)
{
    for (const SEntered& row : kLacking)
    {
        SCOPED_TRACE(testing::PrintToString(row.stored));
        ExpectEntered(row, Type);
        ExpectEntered(row, SetText);
    }
}

// What such a dialog has stored is the same to one of a language without a page of its own, on the system of Japan; on
// another one it is shown as the bytes are there, and not changed.
TEST_P(CScrDispTextPageTest, AreInTheSystemsPageInEnglish)
{
    EXPECT_NE(m_wizard.SetLanguageInfo(0), nullptr);
    EXPECT_EQ(m_wizard.GetTextCodePage(), ::GetACP());
    const std::string stored = "\x82\xA2\x82\xA4"; // no page changes these
    SScrDispEntries entries;
    entries.lines[kUpside] = {.mode = 3, .text = stored};
    SetBlock(BlockOf(entries));
    const CWideText shown(stored.c_str(), -1, CP_ACP);
    Leave([&](CDialogRobot& dialog) {
        EXPECT_EQ(Shown(dialog),
                  std::u16string(static_cast<LPCWSTR>(shown), static_cast<LPCWSTR>(shown) + shown.GetLength()));
        EXPECT_EQ(dialog.Text(2872), CString(stored.c_str()));
    });
    EXPECT_EQ(Block(), BlockOf(entries));
}

std::vector<unsigned> Systems()
{
    const UINT system = ::GetACP();
    std::vector<unsigned> pages;
    for (const unsigned page : {system, kJapanesePage})
    {
        UseCodePage(page);
        if (::GetACP() == page && (pages.empty() || pages.back() != page))
            pages.push_back(page);
    }
    UseCodePage(system);
    return pages;
}

INSTANTIATE_TEST_SUITE_P(Systems, CScrDispTextPageTest, testing::ValuesIn(Systems()),
                         [](const auto& test) { return std::to_string(test.param); });

} // namespace
