// The check of texts for translators: that it finds what it promises, and nothing in texts that are right.
#include <gtest/gtest.h>

#include <sstream>
#include <stdexcept>

#include "tests/translations/TextCheck.h"

namespace
{

constexpr SExpectedLanguage kSpanish = {5, "Spanish", 0xC0A, 1252, "MS Sans Serif", kLatin, u"."};

const SGlossary& Glossary()
{
    static const SGlossary glossary = {{{{u"speed"}, {u"velocidad", u"vel."}},
                                        {{u"maximum speed", u"top speed"}, {u"velocidad m\u00E1xima"}},
                                        {{u"area"}, {u"\u00E1rea"}}},
                                       {u"Startup speed"}};
    return glossary;
}

/// The findings about one English text and its translation.
std::vector<SFinding> Check(const std::u16string& english, const std::u16string& text)
{
    return CheckTexts(kSpanish, {{"text 1", english}}, {{"text 1", text}}, Glossary());
}

std::vector<EFinding> Kinds(const std::vector<SFinding>& findings)
{
    std::vector<EFinding> kinds;
    for (const SFinding& finding : findings)
        kinds.push_back(finding.what);
    return kinds;
}

using Expected = std::vector<EFinding>;

TEST(TextCheck, FindsNothingInTextsThatAreRight)
{
    EXPECT_EQ(Kinds(Check(u"Maximum speed", u"Velocidad m\u00E1xima")), Expected());
    EXPECT_EQ(Kinds(Check(u"ms", u"ms")), Expected());
    EXPECT_EQ(Kinds(Check(u"", u"")), Expected());
}

TEST(TextCheck, FindsTextsThatOneLanguageLacks)
{
    const std::vector<SFinding> findings =
        CheckTexts(kSpanish, {{"text 1", u"one"}, {"text 2", u"two"}}, {{"text 2", u"dos"}, {"text 3", u"tres"}}, {});
    ASSERT_EQ(Kinds(findings), (Expected{EFinding::Missing, EFinding::Superfluous}));
    EXPECT_EQ(findings[0].place, "text 1");
    EXPECT_EQ(findings[0].text, "one");
    EXPECT_EQ(findings[1].place, "text 3");
    EXPECT_EQ(findings[1].text, "tres");
}

TEST(TextCheck, FindsWhatIsLeftInEnglish)
{
    EXPECT_EQ(Kinds(Check(u"Travel amount", u"Travel amount")), Expected{EFinding::English});
    EXPECT_EQ(Kinds(Check(u"Travel amount", u"Travel recorrido")), Expected{EFinding::English});
    EXPECT_EQ(Kinds(Check(u"Travel in ms", u"Recorrido en ms")), Expected());
}

TEST(TextCheck, FindsTermsThatTheGlossaryHasInOtherWords)
{
    EXPECT_EQ(Kinds(Check(u"The speeds rise", u"Las rapideces suben")), Expected{EFinding::Term});
    EXPECT_EQ(Kinds(Check(u"The speeds rise", u"Las velocidades suben")), Expected());
    EXPECT_EQ(Kinds(Check(u"Speed", u"Vel.")), Expected());
    EXPECT_EQ(Kinds(Check(u"Top &speed", u"Velocidad tope")), Expected{EFinding::Term});
    EXPECT_EQ(Kinds(Check(u"&Area", u"\u00C1&rea")), Expected());
}

// "Maximum speed" is one term, and no "speed" beside it; "speedy" is another word.
TEST(TextCheck, LooksForTheLongestTermInWholeWords)
{
    EXPECT_EQ(Kinds(Check(u"Maximum speed", u"M\u00E1xima")), Expected{EFinding::Term});
    EXPECT_EQ(Kinds(Check(u"Maximum speed and speed", u"velocidad m\u00E1xima")), Expected());
    EXPECT_EQ(Kinds(Check(u"A speedy train", u"Un tren veloz")), Expected());
}

TEST(TextCheck, FindsTwoTranslationsOfOneText)
{
    const auto check = [](const std::u16string& english, const std::u16string& first, const std::u16string& second) {
        return Kinds(CheckTexts(kSpanish, {{"text 1", english}, {"text 2", english}},
                                {{"text 1", first}, {"text 2", second}}, Glossary()));
    };
    EXPECT_EQ(check(u"Back", u"Volver", u"Atr\u00E1s"), Expected{EFinding::TwoWays});
    EXPECT_EQ(check(u"Back", u"&Volver", u"Volver"), Expected());
    EXPECT_EQ(check(u"Startup speed", u"Velocidad de arranque", u"Tiempo de arranque, vel."), Expected());
}

constexpr char kPage[] = "# Texts\n\n"
                         "| Ambiguous | Why |\n|---|---|\n| Startup speed | a time, or a speed |\n\n"
                         "| Library | Face |\n|---|---|\n| PlxRcEsp | MS Sans Serif |\n\n"
                         "| English | Spanish | Thai |\n|---|---|---|\n"
                         "| speed | velocidad / vel. | \xE0\xB8\x84 |\n"
                         "| a / b | a \\| b | c |\n\nThe end\n";

TEST(GlossaryPage, HasTheColumnOfALanguage)
{
    std::istringstream page(kPage);
    const SGlossary glossary = ReadGlossary(page, "Spanish");
    EXPECT_EQ(glossary.ambiguous, std::set<std::u16string>{u"Startup speed"});
    ASSERT_EQ(glossary.terms.size(), 2u);
    EXPECT_EQ(glossary.terms[0].english, std::vector<std::u16string>{u"speed"});
    EXPECT_EQ(glossary.terms[0].forms, (std::vector<std::u16string>{u"velocidad", u"vel."}));
    EXPECT_EQ(glossary.terms[1].english, (std::vector<std::u16string>{u"a", u"b"}));
    EXPECT_EQ(glossary.terms[1].forms, std::vector<std::u16string>{u"a | b"});

    std::istringstream again(kPage);
    EXPECT_EQ(ReadGlossary(again, "Thai").terms[0].forms, std::vector<std::u16string>{u"\u0E04"});
}

TEST(GlossaryPage, IsRefusedWithoutTheLanguage)
{
    std::istringstream page(kPage);
    EXPECT_THROW(ReadGlossary(page, "Korean"), std::runtime_error);
}

} // namespace
