// The languages that English is translated to, and what is in their libraries.
#pragma once

#include "core/FunWizard.h"

#include <ostream>
#include <set>
#include <string>
#include <vector>

struct STranslation
{
    const char* name;
    int index;     ///< as SetLanguageInfo takes it
    unsigned page; ///< of its narrow texts, and of the system of its country
};

inline constexpr STranslation kTranslations[] = {
    {"Japanese", 1, 932}, {"SimplifiedChinese", 2, 936}, {"TraditionalChinese", 3, 950},
    {"Korean", 4, 949},   {"Spanish", 5, 1252},          {"Italian", 6, 1252},
    {"Thai", 9, 874},
};

inline std::ostream& operator<<(std::ostream& out, const STranslation& translation) { return out << translation.name; }

inline constexpr unsigned kWesternPage = 1252;

/// The systems that a language can be tried on: natively the western one and that of its country, elsewhere the one
/// that there is.
std::vector<unsigned> SystemPages(const STranslation& translation);

/// A language on a system.
struct SLanguageOnSystem
{
    STranslation translation;
    unsigned page; ///< of the system
};

inline std::ostream& operator<<(std::ostream& out, const SLanguageOnSystem& row)
{
    return out << row.translation << " on code page " << row.page;
}

/// Every language on every system that it can be tried on.
std::vector<SLanguageOnSystem> LanguagesOnSystems();

/// The name of a test's parameter.
inline std::string NameOf(const SLanguageOnSystem& row)
{
    return std::string(row.translation.name) + '_' + std::to_string(row.page);
}

/// A wide text, exactly, as UTF-8.
std::string Utf8(LPCWSTR text, int length);

/// The texts of a language library as they stand in it, whatever code page is in use.
class CLibraryTexts
{
public:
    explicit CLibraryTexts(int language);

    HINSTANCE Library() const { return m_wizard.GetLoadInstance(); }
    /// As UTF-8; empty when there is none.
    std::string Text(unsigned id) const;
    /// The ids of all messages that read so.
    std::set<unsigned> MessagesThatRead(const std::string& text) const;

private:
    CFunWizard m_wizard;
};
