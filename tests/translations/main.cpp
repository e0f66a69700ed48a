// Lists what is to be looked at in the texts of a language; scripts/check-texts builds and runs it.

#include "host/Languages.h"
#include "tests/resources/LanguageLibrary.h"
#include "tests/translations/TextCheck.h"

#include <CLI/CLI.hpp>

#include <cstdlib>
#include <exception>
#include <fstream>
#include <iostream>
#include <map>
#include <stdexcept>

namespace
{

std::vector<SPlacedText> TextsOf(const std::string& language)
{
    const CLanguage scope(*LanguageIndex(language));
    if (!scope.IsLoaded())
        throw std::runtime_error("There is no library for " + language + ".");
    return PlacedTexts();
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
    for (const SFinding& finding : CheckTexts(TextsOf("English"), TextsOf(language), ReadGlossary(glossary, language)))
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
