// English words in the texts of other languages.
#pragma once

#include "tests/resources/ExpectedLanguages.h"

#include <set>
#include <string>

/// What is left of English in a text. Where letters are Latin, a word of the English text; else any Latin word.
std::set<std::string> EnglishWords(const SExpectedLanguage& language, const std::u16string& english,
                                   const std::u16string& text);

/// Whether a language keeps a word: a name, a unit, a mnemonic or a loan.
bool IsKeptIn(const SExpectedLanguage& language, const std::string& word);
