#include "cli/NearName.h"

#include <algorithm>
#include <cctype>
#include <numeric>

namespace
{
// Letters inserted, left out or replaced, case not counted.
size_t Changes(const std::string& from, const std::string& to)
{
    std::vector<size_t> row(to.size() + 1);
    std::iota(row.begin(), row.end(), size_t{0});
    for (size_t i = 0; i < from.size(); ++i)
    {
        size_t diagonal = row[0];
        row[0] = i + 1;
        for (size_t j = 0; j < to.size(); ++j)
        {
            const bool same =
                std::tolower(static_cast<unsigned char>(from[i])) == std::tolower(static_cast<unsigned char>(to[j]));
            const size_t replaced = diagonal + (same ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, row[j] + 1, diagonal + 1});
        }
    }
    return row.back();
}
} // namespace

std::string NearestName(const std::string& mistyped, const std::vector<std::string>& names)
{
    std::string nearest;
    size_t fewest = std::max<size_t>(2, mistyped.size() / 3) + 1;
    for (const std::string& name : names)
    {
        const size_t changes = Changes(mistyped, name);
        if (changes >= fewest)
            continue;
        fewest = changes;
        nearest = name;
    }
    return nearest;
}

std::string Suggestion(const std::string& mistyped, const std::vector<std::string>& names)
{
    const std::string nearest = NearestName(mistyped, names);
    if (!nearest.empty())
        return "; did you mean \"" + nearest + "\"?";
    std::string all;
    for (const std::string& name : names)
        all += (all.empty() ? "; there are " : ", ") + name;
    return all;
}
