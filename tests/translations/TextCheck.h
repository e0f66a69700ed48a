// What is to be looked at in the texts of a language.
#pragma once

#include "tests/resources/WideResources.h"
#include "tests/translations/Glossary.h"

#include <string>
#include <vector>

enum class EFinding
{
    Missing,     ///< there in English only
    Superfluous, ///< there in this language only
    English,     ///< the same as in English, though it has words
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
std::vector<SFinding> CheckTexts(const std::vector<SPlacedText>& english, const std::vector<SPlacedText>& texts,
                                 const SGlossary& glossary);
