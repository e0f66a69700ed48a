// The string tables: what the module holds itself, and what only the language libraries hold.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <map>
#include <set>
#include <string>

#include "tests/resources/EnglishTexts.h"
#include "tests/resources/LanguageLibrary.h"

namespace
{

using Texts = std::map<unsigned, std::string>;

Texts AllTexts(int language)
{
    CLanguage scope(language);
    EXPECT_TRUE(scope.IsLoaded()) << "language " << language;
    Texts texts;
    for (unsigned id = 1; id <= 0xFFFF; ++id)
        if (const auto text = LoadText(id))
            texts.emplace(id, *text);
    return texts;
}

const Texts& ModuleTexts()
{
    static const Texts texts = AllTexts(kModule);
    return texts;
}

const Texts& LibraryTexts()
{
    static const Texts texts = AllTexts(kEnglish);
    return texts;
}

std::string TextOf(const Texts& texts, unsigned id)
{
    const auto found = texts.find(id);
    return found == texts.end() ? "(none)" : found->second;
}

std::set<unsigned> IdsBetween(unsigned first, unsigned last, unsigned step = 1)
{
    std::set<unsigned> ids;
    for (unsigned id = first; id <= last; id += step)
        ids.insert(id);
    return ids;
}

std::set<unsigned> Union(std::initializer_list<std::set<unsigned>> sets)
{
    std::set<unsigned> all;
    for (const std::set<unsigned>& ids : sets)
        all.insert(ids.begin(), ids.end());
    return all;
}

std::set<unsigned> IdsOf(const Texts& texts)
{
    std::set<unsigned> ids;
    for (const auto& [id, text] : texts)
        ids.insert(id);
    return ids;
}

/// Explanations of the selection list that the module holds too.
std::set<unsigned> ModuleExplanations() { return Union({IdsBetween(10001, 10023, 2), IdsBetween(10503, 10515, 2)}); }

std::set<unsigned> LibraryOnlyIds()
{
    return Union({IdsBetween(10024, 10039), IdsBetween(11194, 11209), IdsBetween(15030, 15031),
                  IdsBetween(20046, 20054), IdsBetween(22005, 22009)});
}

std::set<unsigned> LibraryOnlyExplanations() { return Union({IdsBetween(10025, 10039, 2), IdsBetween(22005, 22009)}); }

TEST(ModuleTexts, AreTheEnglishTexts)
{
    for (const SEnglishText& expected : kEnglishTexts)
        EXPECT_EQ(TextOf(ModuleTexts(), expected.id), expected.text) << expected.id;
}

TEST(ModuleTexts, AreNoMoreThanItsOwn)
{
    std::set<unsigned> expected = ModuleExplanations();
    for (const SEnglishText& text : kEnglishTexts)
        EXPECT_TRUE(expected.insert(text.id).second) << text.id << " is expected twice";
    EXPECT_EQ(IdsOf(ModuleTexts()), expected);
}

TEST(LibraryTexts, AddTheirOwnToThoseOfTheModule)
{
    Texts shared = LibraryTexts();
    for (unsigned id : LibraryOnlyIds())
        EXPECT_EQ(shared.erase(id), 1u) << id;
    EXPECT_EQ(shared, ModuleTexts());
}

TEST(LibraryTexts, RepeatTheFrequenciesForFamilyB)
{
    for (unsigned i = 0; i < 16; ++i)
        EXPECT_EQ(TextOf(LibraryTexts(), 11194 + i), TextOf(LibraryTexts(), 11081 + i)) << i;
}

TEST(LibraryTexts, HaveTheMessagesOfFamilyB)
{
    for (const SEnglishText& expected : kLibraryMessages)
        EXPECT_EQ(TextOf(LibraryTexts(), expected.id), expected.text) << expected.id;
}

TEST(LibraryTexts, NameTheJogDirections)
{
    EXPECT_EQ(TextOf(LibraryTexts(), 15030), "Forward rotation");
    EXPECT_EQ(TextOf(LibraryTexts(), 15031), "Reverse rotation");
}

// Mnemonic, "(number)" and description, which the list aligns by its tab stops.
TEST(LibraryTexts, GiveTheSelectionListThreeColumns)
{
    std::set<unsigned> items = Union({IdsBetween(10000, 10022, 2), IdsBetween(10024, 10038, 2)});
    for (unsigned id : items)
    {
        const std::string text = TextOf(LibraryTexts(), id);
        EXPECT_EQ(std::count(text.begin(), text.end(), '\t'), 2) << text;
        EXPECT_EQ(text.find("\t("), text.find('\t')) << text;
        EXPECT_NE(text.find(")\t"), std::string::npos) << text;
    }
}

TEST(LibraryTexts, NumberTheInstructionsOfFamiliesBAndC)
{
    constexpr std::pair<unsigned, const char*> kNumbers[] = {
        {10024, "\t(171)\t"}, {10026, "\t(171)\t"}, {10028, "\t(172)\t"}, {10030, "\t(173)\t"},
        {10032, "\t(174)\t"}, {10034, "\t(175)\t"}, {10036, "\t(177)\t"}, {10038, "\t(171)\t"},
    };
    for (const auto& [id, number] : kNumbers)
        EXPECT_NE(TextOf(LibraryTexts(), id).find(number), std::string::npos) << id;
}

// One to three sentences in printable characters, and no explanation for two instructions of a list.
TEST(LibraryTexts, ExplainEveryInstruction)
{
    std::set<std::string> known;
    std::set<unsigned> ids = Union({{10501}, ModuleExplanations(), LibraryOnlyExplanations()});
    for (unsigned id : ids)
    {
        const std::string text = TextOf(LibraryTexts(), id);
        EXPECT_GT(text.size(), 30u) << id;
        EXPECT_EQ(text.back(), '.') << text;
        EXPECT_LE(std::count(text.begin(), text.end(), '.'), 4) << text;
        EXPECT_EQ(text.find("  "), std::string::npos) << text;
        EXPECT_TRUE(std::all_of(text.begin(), text.end(), [](unsigned char c) { return std::isprint(c); })) << text;
        EXPECT_TRUE(known.insert(text).second) << "given twice: " << text;
    }
}

TEST(LibraryTexts, SayWhatIsOutsideItsRange)
{
    for (unsigned id = 20046; id <= 20054; ++id)
    {
        const std::string text = TextOf(LibraryTexts(), id);
        EXPECT_EQ(text.rfind("The inputted ", 0), 0u) << text;
        EXPECT_NE(text.find(" has become the outside of the range.\nPlease input the right value."), std::string::npos)
            << text;
    }
}

} // namespace
