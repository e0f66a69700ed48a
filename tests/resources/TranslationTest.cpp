// That the texts of a language read as written in it: nothing left in English, and its own punctuation.
#include "tests/resources/DialogPicture.h"
#include "tests/resources/EnglishWords.h"
#include "tests/resources/KeptWords.h"
#include "tests/resources/LanguageTest.h"

#include <set>
#include <span>
#include <string_view>

namespace
{

using CTranslationTest = CLanguageTest;

bool IsIdeographOrKana(char16_t c) { return c >= 0x3040 && c < 0xA000; }

std::vector<std::u16string> Parts(const std::u16string& text, char16_t separator)
{
    std::vector<std::u16string> parts(1);
    for (const char16_t c : text)
    {
        if (c == separator)
            parts.emplace_back();
        else
            parts.back() += c;
    }
    return parts;
}

std::vector<std::u16string> Lines(const std::u16string& text) { return Parts(text, u'\n'); }

constexpr const char* kFontFace = "text 21001";

TEST_P(CTranslationTest, LeavesNothingInEnglish)
{
    const std::vector<SPlacedText>& english = TextsIn(kEnglish);
    const std::vector<SPlacedText>& texts = TextsIn(GetParam().index);
    for (size_t i = 0; i < texts.size(); ++i)
    {
        if (texts[i].place == kFontFace)
            continue;
        for (const std::string& word : EnglishWords(GetParam(), english[i].text, texts[i].text))
            EXPECT_TRUE(IsKeptIn(GetParam(), word)) << word << " in " << texts[i].place << ": " << Utf8(texts[i].text);
    }
}

TEST_P(CTranslationTest, HasNoBlankTooMany)
{
    ForEachText([](const std::u16string& english, const std::u16string& text) {
        for (const std::u16string_view wrong : {u"  ", u" :", u" ;", u" ,", u" .", u" )", u"( ", u" \t", u"\t ", u" \n",
                                                u"\n ", u"\u3000\u3000", u"\u00A0"})
            EXPECT_EQ(text.find(wrong), std::u16string::npos) << "\"" << Utf8(std::u16string(wrong)) << "\"";
        if (text.empty() || text == english) // what is the same everywhere may stand behind something
            return;
        EXPECT_NE(text.front(), u' ');
        EXPECT_NE(text.back(), u' ');
    });
}

TEST_P(CTranslationTest, OpensWhatItCloses)
{
    constexpr std::u16string_view kPairs[] = {u"()",           u"[]",           u"\uFF08\uFF09", u"\u300C\u300D",
                                              u"\u300E\u300F", u"\u3010\u3011", u"\u00BF?",      u"\u00A1!",
                                              u"\u00AB\u00BB", u"\u201C\u201D"};
    const bool marksOpen = GetParam().language == 0xC0A;
    ForEachText([=](const std::u16string&, const std::u16string& text) {
        for (const std::u16string_view pair : kPairs)
            if (marksOpen || (pair[1] != u'?' && pair[1] != u'!'))
            {
                EXPECT_EQ(std::count(text.begin(), text.end(), pair[0]), std::count(text.begin(), text.end(), pair[1]))
                    << Utf8(std::u16string(pair));
            }
    });
}

bool IsMessage(const std::string& place) { return place.starts_with("text 20"); }

// The lines of a message are sentences, but those that give a number.
TEST_P(CTranslationTest, EndsTheSentencesOfItsMessages)
{
    const std::u16string stop = GetParam().fullStop;
    for (const SPlacedText& message : TextsIn(GetParam().index))
    {
        if (!IsMessage(message.place))
            continue;
        SCOPED_TRACE(message.place + ": " + Utf8(message.text));
        for (const std::u16string& line : Lines(message.text))
            if (!line.ends_with(u"%d"))
            {
                EXPECT_TRUE(stop.empty() ? !line.ends_with(u'.') : line.ends_with(stop)) << Utf8(line);
            }
    }
}

// A message box breaks lines at blanks alone in some systems; what has none must fit one on a screen of 800 pixels, of
// which it takes five eighths, beside its icon.
TEST_P(CTranslationTest, NeedsNoBreakInAMessageWhereThereIsNoBlank)
{
    constexpr int kRoom = 800 * 5 / 8 - 80;
    CLanguage scope(GetParam().index);
    const CTextRuler ruler(scope.Wizard().CreateDlgFont(nullptr));
    for (const SPlacedText& message : TextsIn(GetParam().index))
        if (IsMessage(message.place))
        {
            for (const std::u16string& line : Lines(message.text))
                for (const std::u16string& piece : Parts(line, u' '))
                    EXPECT_LE(ruler.Width(InPage(piece, AfxGetTextPage())), kRoom)
                        << message.place << ": " << Utf8(piece);
        }
}

// Punctuation between ideographs has their width; half the width is for numbers and Latin words.
TEST_P(CTranslationTest, PutsWidePunctuationBehindIdeographs)
{
    ForEachText([](const std::u16string&, const std::u16string& text) {
        for (size_t i = 1; i < text.size(); ++i)
        {
            if (std::u16string_view(u",.;:!?").find(text[i]) != std::u16string_view::npos)
            {
                EXPECT_FALSE(IsIdeographOrKana(text[i - 1]));
            }
        }
    });
}

TEST_P(CTranslationTest, HasNoOddCharacters)
{
    ForEachText([](const std::u16string&, const std::u16string& text) {
        for (const char16_t c : text)
        {
            EXPECT_TRUE(c >= u' ' || c == u'\t' || c == u'\n') << "control character " << static_cast<int>(c);
            EXPECT_FALSE(c >= 0xFF61 && c <= 0xFF9F) << "katakana of half the width";
            EXPECT_FALSE(c >= 0xFF10 && c <= 0xFF19) << "digit of double width";
            EXPECT_FALSE((c >= 0xFF21 && c <= 0xFF3A) || (c >= 0xFF41 && c <= 0xFF5A)) << "letter of double width";
        }
    });
}

constexpr std::span kTranslations = std::span(kExpectedLanguages).subspan(1); // English is the original

INSTANTIATE_TEST_SUITE_P(Languages, CTranslationTest, testing::ValuesIn(kTranslations), NameOf);

/// All that a translation keeps.
std::set<std::string> WordsKeptIn(const SExpectedLanguage& language)
{
    const std::vector<SPlacedText>& english = TextsIn(kEnglish);
    const std::vector<SPlacedText>& texts = TextsIn(language.index);
    std::set<std::string> kept;
    for (size_t i = 0; i < texts.size(); ++i)
        kept.merge(EnglishWords(language, english[i].text, texts[i].text));
    return kept;
}

// A word that no translation keeps any more leaves the list.
TEST(KeptWords, AreAllNeeded)
{
    std::map<std::string, std::set<std::string>> keptIn;
    for (const SExpectedLanguage& language : kTranslations)
        keptIn.emplace(language.name, WordsKeptIn(language));
    for (const SKeptWord& word : kKeptWords)
    {
        const auto keepsIt = [&](const SExpectedLanguage& language) {
            return keptIn[language.name].contains(word.word);
        };
        EXPECT_TRUE(std::any_of(kTranslations.begin(), kTranslations.end(), keepsIt)) << word.word;
        for (const SExpectedLanguage& language : kTranslations)
            if (*word.onlyIn != '\0' && word.IsKeptIn(language))
            {
                EXPECT_TRUE(keepsIt(language)) << word.word << " in " << language;
            }
    }
}

} // namespace
