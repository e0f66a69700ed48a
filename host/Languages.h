// The languages of the wizards.
#pragma once

#include <iterator>
#include <optional>
#include <string>
#include <vector>

struct SHostLanguage
{
    const char* name;
    int index; ///< as SetLanguageInfo takes it
};

inline constexpr SHostLanguage kHostLanguages[] = {
    {"English", 0},
    {"Japanese", 1},
    {"Simplified Chinese", 2},
    {"Traditional Chinese", 3},
    {"Korean", 4},
    {"Spanish", 5},
    {"Italian", 6},
    {"Thai", 9},
};

inline std::vector<std::string> LanguageNames()
{
    std::vector<std::string> names;
    for (const SHostLanguage& language : kHostLanguages)
        names.emplace_back(language.name);
    return names;
}

/// By name; none when there is no such language.
inline std::optional<int> LanguageIndex(const std::string& name)
{
    for (const SHostLanguage& language : kHostLanguages)
        if (language.name == name)
            return language.index;
    return std::nullopt;
}
