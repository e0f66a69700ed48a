// What is to be looked at in the texts of a language.
#pragma once

#include "tests/resources/ExpectedLanguages.h"
#include "tests/resources/WideResources.h"
#include "tests/translations/Glossary.h"

#include <string>
#include <vector>

enum class EFinding
{
    Missing,     ///< there in English only
    Superfluous, ///< there in this language only
    English,     ///< has English words that the language does not keep
    TwoWays,     ///< the same English text is translated in another way elsewhere
    Term,        ///< does not have the term of the glossary
    TooLong      ///< does not fit its control
};

struct SFinding
{
    EFinding what;
    std::string place;
    std::string text; ///< what is to be read about it, in UTF-8
};

/// Compares the texts of a language with the English ones, in the order of the latter.
std::vector<SFinding> CheckTexts(const SExpectedLanguage& language, const std::vector<SPlacedText>& english,
                                 const std::vector<SPlacedText>& texts, const SGlossary& glossary);

/// The texts that do not fit their controls, in the dialogs of a language, whose resources must be in use.
std::vector<SFinding> CheckWidths(int language);
