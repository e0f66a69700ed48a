// Nothing is cut, filled or read inside a character of two bytes, whatever the code page of the system is.
#include "tests/languages/Translations.h"

#include "tests/core/FunWizardTest.h"
#include "tests/dialogs/pulse/Spd1Test.h"
#include "tests/robust/CodePage.h"

#include "afx/System.h"
#include "core/FillText.h"

namespace
{

constexpr size_t kLongestComment = 255;
constexpr size_t kMessageBuffer = 512;

using CWideString = std::basic_string<WCHAR>;

CWideString Wide(const std::u16string& text) { return CWideString(text.begin(), text.end()); }

std::string Utf8(const std::u16string& text)
{
    const CWideString wide = Wide(text);
    return ::Utf8(wide.c_str(), static_cast<int>(wide.size()));
}

std::string Utf8OfPage(const std::string& text, unsigned page)
{
    const CWideText wide(text.c_str(), static_cast<int>(text.size()), page);
    return ::Utf8(wide, wide.GetLength());
}

/// A character of a language, one whose second byte is a backslash where there is one.
char16_t CharacterOf(const STranslation& translation)
{
    switch (translation.page)
    {
    case 932:
        return u'ソ';
    case 936:
        return u'乗';
    case 950:
        return u'功';
    case 949:
        return u'각';
    case 874:
        return u'ก';
    default:
        return u'é';
    }
}

class CWholeCharactersTest : public CSpd1Test, public testing::WithParamInterface<SLanguageOnSystem>
{
protected:
    CWholeCharactersTest()
    {
        UseCodePage(GetParam().page);
        EXPECT_NE(m_wizard.SetLanguageInfo(GetParam().translation.index), nullptr);
    }
    ~CWholeCharactersTest() override { UseCodePage(kWesternPage); }

    const STranslation& Language() const { return GetParam().translation; }

    bool HasDoubleBytes() const { return Language().page >= 932 && Language().page <= 950; }
};

TEST_P(CWholeCharactersTest, EndComments)
{
    for (const std::u16string& beginning : {std::u16string(), std::u16string(u"x")})
    {
        const std::u16string label = beginning + std::u16string(300, CharacterOf(Language()));
        const size_t bytes = HasDoubleBytes() ? 2 : 1;
        const size_t whole = beginning.size() + (kLongestComment - beginning.size()) / bytes;
        Confirm(kTrapezoidal, [&](CDialogRobot& dialog) {
            ::SetWindowTextW(ControlBefore(dialog, IDC_SPD1_INITIAL)->GetSafeHwnd(), Wide(label).c_str());
            FillIn(dialog, {});
        });
        const SResults results = ReadResults(m_wizard);
        ASSERT_EQ(results.comments.size(), 5u);
        EXPECT_EQ(Utf8OfPage(results.comments[1], Language().page), Utf8(label.substr(0, whole)));
        EXPECT_LE(results.comments[1].size(), kLongestComment);
    }
}

// A message that did not fit would be cut.
TEST_P(CWholeCharactersTest, LetEveryMessageFit)
{
    const CLibraryTexts texts(Language().index);
    int messages = 0;
    for (unsigned id = 20001; id <= 20999; ++id)
    {
        const std::string message = texts.Text(id);
        const CWideText wide(message.c_str(), -1, CP_UTF8);
        messages += message.empty() ? 0 : 1;
        EXPECT_LT(AfxNarrow(wide, wide.GetLength(), Language().page).GetLength(), static_cast<int>(kMessageBuffer))
            << id;
    }
    EXPECT_GT(messages, 50);
}

// Digits of full width are no digits.
TEST_P(CWholeCharactersTest, AreNoNumbers)
{
    const CLibraryTexts texts(Language().index);
    Leave(kTrapezoidal, [&](CDialogRobot& dialog) {
        FillIn(dialog, {});
        for (const UINT edit : {IDC_SPD1_START, IDC_SPD1_INITIAL, IDC_SPD1_TARGET})
        {
            const CString before = dialog.Text(edit);
            for (const std::u16string& entered :
                 {std::u16string(u"５００"), std::u16string(u"5０0"), std::u16string(u"－5")})
            {
                ::SetWindowTextW(dialog.Dialog()->GetDlgItem(edit)->GetSafeHwnd(), Wide(entered).c_str());
                const CString message = dialog.ClickAndAnswer(IDOK);
                EXPECT_EQ(Utf8OfPage(static_cast<LPCSTR>(message), Language().page), texts.Text(20001))
                    << edit << ": " << Utf8(entered);
                EXPECT_EQ(dialog.FocusId(), edit);
            }
            dialog.Type(edit, before);
        }
    });
}

INSTANTIATE_TEST_SUITE_P(Systems, CWholeCharactersTest, testing::ValuesIn(LanguagesOnSystems()),
                         [](const auto& test) { return NameOf(test.param); });

class CLongMessagesTest : public CSpd1Test
{
protected:
    CLongMessagesTest()
    {
        const HINSTANCE library = AfxLoadLibrary(AfxGetModuleFolder(nullptr) + "LongMessages.DLL");
        EXPECT_NE(library, nullptr) << "LongMessages.DLL belongs beside the test program";
        SFunWizardTest::SetLibrary(m_wizard, library); // frees it
    }
};

TEST_F(CLongMessagesTest, EndBehindAWholeCharacter)
{
    Leave(kTrapezoidal, [](CDialogRobot& dialog) {
        const std::u16string whole((kMessageBuffer - 1) / 2, u'ソ');
        FillIn(dialog, {});
        dialog.Type(IDC_SPD1_START, "");
        EXPECT_EQ(Utf8OfPage(static_cast<LPCSTR>(dialog.ClickAndAnswer(IDOK)), 932), Utf8(whole));
        dialog.Type(IDC_CONTACT_NUMBER, "9999");
        EXPECT_EQ(Utf8OfPage(static_cast<LPCSTR>(dialog.ClickAndAnswer(IDOK)), 932), Utf8(u"x" + whole));
    });
}

struct SFilled
{
    unsigned page;
    const char16_t* text;
    const char16_t* value;
    const char16_t* filled;
};

// Second bytes such as those of a backslash and a bar, beside percent signs.
const SFilled kFilled[] = {
    {932, u"ソ%sソ", u"表", u"ソ表ソ"},       {932, u"ポ%dポ", nullptr, u"ポ7ポ"},
    {932, u"%%ソ%d能", nullptr, u"%ソ7能"},   {936, u"乗%s亅", u"乗", u"乗乗亅"},
    {936, u"%d乗", nullptr, u"7乗"},          {950, u"功%s許", u"功", u"功功許"},
    {950, u"許%1d功%d", nullptr, u"許7功%d"}, {950, u"100%%功%s", u"許", u"100%功許"},
    {949, u"각%s값", u"값", u"각값값"},       {874, u"ก%sข", u"ค", u"กคข"},
};

TEST(WholeCharacters, StandBesideGaps)
{
    for (const SFilled& row : kFilled)
    {
        const CTextPage page(row.page);
        const auto narrow = [](const std::u16string& text) {
            const CWideString wide = Wide(text);
            return AfxNarrow(wide.c_str(), static_cast<int>(wide.size()));
        };
        const CString filled =
            row.value != nullptr ? FillText(narrow(row.text), {narrow(row.value)}) : FillText(narrow(row.text), {7});
        EXPECT_EQ(Utf8OfPage(static_cast<LPCSTR>(filled), row.page), Utf8(row.filled)) << "code page " << row.page;
    }
}

} // namespace
