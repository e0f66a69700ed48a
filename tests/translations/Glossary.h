// The glossary of docs/translations.md.
#pragma once

#include <istream>
#include <set>
#include <string>
#include <vector>

/// A term in English, which may have several names, and the forms that it has in a language: as a whole, shortened,
/// inflected.
struct STerm
{
    std::vector<std::u16string> english;
    std::vector<std::u16string> forms;
};

struct SGlossary
{
    std::vector<STerm> terms;
    std::set<std::u16string> ambiguous; ///< English texts that mean one thing in one place and another in another
};

/// Reads the tables of the page: the glossary, of which the language's column counts, and the ambiguous texts. Throws
/// std::runtime_error when there is no such column.
SGlossary ReadGlossary(std::istream& page, const std::string& language);
