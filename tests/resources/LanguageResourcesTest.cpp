// Every language library against the English one: what a program relies on is the same in all of them.
#include "tests/resources/LanguageTest.h"

#include <filesystem>

namespace
{

using CLanguageResourcesTest = CLanguageTest;

std::u16string Codes(const std::u16string& text)
{
    std::u16string codes;
    for (size_t i = 0; i < text.size(); ++i)
    {
        if (text[i] == u'\t' || text[i] == u'\n')
            codes += text[i];
        const size_t end = text[i] == u'%' ? text.find_first_not_of(u"0123456789.", i + 1) : std::u16string::npos;
        if (end == std::u16string::npos || std::u16string_view(u"dfs%").find(text[end]) == std::u16string::npos)
            continue;
        codes += text.substr(i, end - i + 1);
        i = end;
    }
    return codes;
}

/// The access key that a text marks; 0 when it marks none.
char16_t AccessKey(const std::u16string& text)
{
    const size_t mark = text.find(u'&');
    return mark == std::u16string::npos || mark + 1 == text.size() ? u'\0' : text[mark + 1];
}

/// In the languages without letters of their own on the keys: "text(&K)", before the name of a menu entry's keys.
bool StandsInBrackets(const std::u16string& text)
{
    const size_t mark = text.find(u'&');
    const std::u16string rest = text.substr(mark + 2);
    return mark > 1 && text[mark - 1] == u'(' && (rest == u")" || rest.starts_with(u")\t"));
}

std::u16string Face(const SExpectedLanguage& language)
{
    const std::string face = language.face;
    return std::u16string(face.begin(), face.end());
}

TEST_P(CLanguageResourcesTest, AreInTheirLanguageAlone)
{
    const CLanguage scope(GetParam().index);
    ASSERT_TRUE(scope.IsLoaded());
    const std::vector<WORD> expected = {GetParam().language};
    for (const auto& [id, text] : WideTexts())
        EXPECT_EQ(LanguagesOfString(id), expected) << "text " << id;
    for (const unsigned id : TemplateIds())
        EXPECT_EQ(LanguagesOfTemplate(id), expected) << "dialog " << id;
}

TEST_P(CLanguageResourcesTest, HaveTheDialogsAndControlsOfTheEnglishOnes)
{
    const auto templates = [](int language) {
        const CLanguage scope(language);
        std::map<unsigned, SWideTemplate> all;
        for (const unsigned id : TemplateIds())
            all.emplace(id, *WideTemplate(id));
        return all;
    };
    const auto english = templates(kEnglish);
    const auto translated = templates(GetParam().index);
    ASSERT_EQ(translated.size(), english.size());
    for (const auto& [id, expected] : english)
    {
        SCOPED_TRACE("dialog " + std::to_string(id));
        ASSERT_TRUE(translated.contains(id));
        const SWideTemplate& dialog = translated.at(id);
        EXPECT_EQ(dialog.style, expected.style);
        EXPECT_EQ(dialog.extendedStyle, expected.extendedStyle);
        EXPECT_EQ(dialog.face, Face(GetParam()));
        ASSERT_EQ(dialog.controls.size(), expected.controls.size());
        for (size_t i = 0; i < dialog.controls.size(); ++i)
        {
            SCOPED_TRACE("control " + std::to_string(i));
            EXPECT_EQ(dialog.controls[i].id, expected.controls[i].id);
            EXPECT_EQ(dialog.controls[i].className, expected.controls[i].className);
            EXPECT_EQ(dialog.controls[i].style, expected.controls[i].style);
            EXPECT_EQ(dialog.controls[i].extendedStyle, expected.controls[i].extendedStyle);
        }
    }
}

TEST_P(CLanguageResourcesTest, HaveATextWhereTheEnglishOnesHaveOne)
{
    ForEachText(
        [](const std::u16string& english, const std::u16string& text) { EXPECT_EQ(text.empty(), english.empty()); });
}

// A per cent sign that no directive follows is just a character.
TEST_P(CLanguageResourcesTest, KeepDirectivesTabsAndLineBreaks)
{
    ForEachText([](const std::u16string& english, const std::u16string& text) {
        EXPECT_EQ(Utf8(Codes(text)), Utf8(Codes(english)));
    });
}

TEST_P(CLanguageResourcesTest, AreInTheCodePageOfTheirLanguage)
{
    CFunWizard wizard;
    const HINSTANCE library = wizard.SetLanguageInfo(GetParam().index);
    ASSERT_NE(library, nullptr);
    EXPECT_EQ(TextPageOf(library), GetParam().page);
    EXPECT_EQ(wizard.GetTextCodePage(), GetParam().page != 0 ? GetParam().page : ::GetACP());
}

// English is in the characters that every page has.
TEST_P(CLanguageResourcesTest, CanBeWrittenInTheirCodePage)
{
    const UINT page = GetParam().page;
    ForEachText([=](const std::u16string&, const std::u16string& text) {
        if (page != 0)
            EXPECT_EQ(FromPage(InPage(text, page), page), text);
        else
            EXPECT_TRUE(std::all_of(text.begin(), text.end(), [](char16_t c) { return c < 0x80; }));
    });
}

TEST_P(CLanguageResourcesTest, NameTheFaceOfTheirSystem)
{
    constexpr unsigned kFontFace = 21001;
    const CLanguage scope(GetParam().index);
    EXPECT_EQ(LoadText(kFontFace), GetParam().face);
}

TEST_P(CLanguageResourcesTest, MarkAnAccessKeyWhereTheEnglishOnesDo)
{
    ForEachText([](const std::u16string& english, const std::u16string& text) {
        EXPECT_EQ(std::count(text.begin(), text.end(), u'&'), std::count(english.begin(), english.end(), u'&'));
        const char16_t key = AccessKey(text);
        if (key == 0)
            return;
        EXPECT_TRUE(key < 0x80 && std::isalnum(key)) << "on every keyboard";
        if (GetParam().script == kLatin)
            return;
        EXPECT_TRUE(StandsInBrackets(text));
        EXPECT_EQ(key, std::toupper(AccessKey(english))) << "keys are those of English";
    });
}

// In a menu the tables show these five.
TEST_P(CLanguageResourcesTest, GiveEveryAccessKeyOfAMenuOnce)
{
    const CLanguage scope(GetParam().index);
    std::map<int, unsigned> keys;
    for (const auto& [id, text] : WideTexts())
    {
        if (text.find(u'&') == std::u16string::npos || text.find(u'\t') == std::u16string::npos)
            continue;
        const auto [known, isNew] = keys.emplace(std::toupper(AccessKey(text)), id);
        EXPECT_TRUE(isNew) << "texts " << known->second << " and " << id;
    }
    EXPECT_EQ(keys.size(), 5u);
}

// The list aligns mnemonic, number and description by its tab stops; only the last one is translated.
TEST_P(CLanguageResourcesTest, TranslateTheLastColumnOfTheSelectionListAlone)
{
    ForEachText([](const std::u16string& english, const std::u16string& text) {
        if (std::count(english.begin(), english.end(), u'\t') == 2)
        {
            EXPECT_EQ(Utf8(text.substr(0, text.rfind(u'\t'))), Utf8(english.substr(0, english.rfind(u'\t'))));
        }
    });
}

TEST_P(CLanguageResourcesTest, TakeLessThan400KiB)
{
    CFunWizard wizard;
    const HINSTANCE library = wizard.SetLanguageInfo(GetParam().index);
    ASSERT_NE(library, nullptr);
    char path[MAX_PATH] = "";
    ASSERT_NE(::GetModuleFileNameA(library, path, sizeof path), 0u);
    EXPECT_LT(std::filesystem::file_size(path), 400u * 1024);
}

INSTANTIATE_TEST_SUITE_P(Languages, CLanguageResourcesTest, testing::ValuesIn(kExpectedLanguages), NameOf);

// Each library that a build makes is in the table above.
TEST(LanguageResources, AreAllTested)
{
    std::vector<int> expected = {kModule};
    for (const SExpectedLanguage& language : kExpectedLanguages)
        expected.push_back(language.index);
    EXPECT_EQ(BuiltLanguages(), expected);
}

} // namespace
