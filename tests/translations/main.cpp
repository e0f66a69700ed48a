// Lists what is to be looked at in the texts of a language; scripts/check-texts builds and runs it.

#include "host/Languages.h"
#include "tests/resources/LanguageLibrary.h"
#include "tests/translations/TextCheck.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <stdexcept>

namespace
{

/// All findings of a language.
std::vector<SFinding> Check(int language, const SGlossary& glossary)
{
    const auto expected = std::find_if(std::begin(kExpectedLanguages), std::end(kExpectedLanguages),
                                       [=](const SExpectedLanguage& one) { return one.index == language; });
    std::vector<SPlacedText> english;
    {
        const CLanguage scope(kEnglish);
        english = PlacedTexts();
    }
    const CLanguage scope(language);
    if (!scope.IsLoaded() || expected == std::end(kExpectedLanguages))
        throw std::runtime_error("This language has no library.");
    std::vector<SFinding> findings = CheckTexts(*expected, english, PlacedTexts(), glossary);
    const std::vector<SFinding> widths = CheckWidths(language);
    findings.insert(findings.end(), widths.begin(), widths.end());
    return findings;
}

const char* Name(EFinding what)
{
    switch (what)
    {
    case EFinding::Missing:
        return "missing";
    case EFinding::Superfluous:
        return "superfluous";
    case EFinding::English:
        return "English";
    case EFinding::TwoWays:
        return "two ways";
    case EFinding::Term:
        return "term";
    case EFinding::TooLong:
        return "too long";
    }
    return "?";
}

int Run(int argc, char** argv)
{
    CLI::App app("Lists missing, superfluous, untranslated, inconsistent and too long texts of a language.",
                 "check_texts");
    std::string language;
    std::string page;
    app.add_option("language", language, "Such as Japanese")->required()->check(CLI::IsMember(LanguageNames()));
    app.add_option("--glossary", page, "The page with the glossary")->required()->check(CLI::ExistingFile);
    CLI11_PARSE(app, argc, argv);

    std::ifstream glossary(page);
    std::map<EFinding, int> counts;
    for (const SFinding& finding : Check(*LanguageIndex(language), ReadGlossary(glossary, language)))
    {
        ++counts[finding.what];
        std::cout << Name(finding.what) << ": " << finding.place << ": " << finding.text << '\n';
    }
    for (const auto& [what, count] : counts)
        std::cout << count << " x " << Name(what) << '\n';
    return counts.empty() ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

int main(int argc, char** argv)
{
    try
    {
        return Run(argc, argv);
    }
    catch (const std::exception& error)
    {
        std::cerr << "check_texts: " << error.what() << '\n';
        return 2;
    }
}
