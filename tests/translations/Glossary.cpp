#include "tests/translations/Glossary.h"

#include "tests/resources/WideResources.h"

#include <algorithm>
#include <stdexcept>

namespace
{

std::string Trim(const std::string& text)
{
    const size_t first = text.find_first_not_of(' ');
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

/// The cells of a row of a table, "\|" being a character of a cell; none when the line is no row.
std::vector<std::string> Cells(const std::string& line)
{
    std::vector<std::string> cells;
    if (line.empty() || line.front() != '|')
        return cells;
    std::string cell;
    for (size_t i = 1; i < line.size(); ++i)
    {
        if (line[i] == '\\' && i + 1 < line.size() && line[i + 1] == '|')
            cell += line[++i];
        else if (line[i] == '|')
            cells.push_back(Trim(std::exchange(cell, {})));
        else
            cell += line[i];
    }
    return cells;
}

std::vector<std::u16string> Parts(const std::string& cell)
{
    constexpr std::string_view kSeparator = " / ";
    std::vector<std::u16string> parts;
    size_t start = 0;
    for (size_t end; (end = cell.find(kSeparator, start)) != std::string::npos; start = end + kSeparator.size())
        parts.push_back(FromPage(cell.substr(start, end - start), CP_UTF8));
    parts.push_back(FromPage(cell.substr(start), CP_UTF8));
    return parts;
}

bool IsRule(const std::vector<std::string>& cells) { return cells.front().starts_with("---"); }

} // namespace

SGlossary ReadGlossary(std::istream& page, const std::string& language)
{
    SGlossary glossary;
    bool isFound = false;
    size_t column = 0;
    enum
    {
        kOther,
        kTerms,
        kAmbiguous
    } table = kOther;
    for (std::string line; std::getline(page, line);)
    {
        const std::vector<std::string> cells = Cells(line);
        if (cells.empty())
            table = kOther;
        else if (table == kTerms && !IsRule(cells))
            glossary.terms.push_back({Parts(cells[0]), Parts(cells.at(column))});
        else if (table == kAmbiguous && !IsRule(cells))
            glossary.ambiguous.insert(FromPage(cells[0], CP_UTF8));
        else if (cells[0] == "English")
        {
            const auto found = std::find(cells.begin(), cells.end(), language);
            if (found == cells.end())
                continue;
            isFound = true;
            column = static_cast<size_t>(found - cells.begin());
            table = kTerms;
        }
        else if (cells[0] == "Ambiguous")
            table = kAmbiguous;
    }
    if (!isFound)
        throw std::runtime_error("The glossary has no column \"" + language + "\".");
    return glossary;
}
