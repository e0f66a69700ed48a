#include "tests/languages/Translations.h"

#include "afx/CodePage.h"
#include "tests/robust/CodePage.h"

#include <gtest/gtest.h>

namespace
{
constexpr unsigned kFirstMessage = 20001;
constexpr unsigned kLastMessage = 20999;
} // namespace

std::vector<unsigned> SystemPages(const STranslation& translation)
{
    const UINT system = ::GetACP();
    std::vector<unsigned> pages;
    for (const unsigned page : {kWesternPage, translation.page})
    {
        UseCodePage(page);
        if (::GetACP() == page && (pages.empty() || pages.back() != page))
            pages.push_back(page);
    }
    UseCodePage(system);
    return pages.empty() ? std::vector<unsigned>{system} : pages;
}

std::vector<SLanguageOnSystem> LanguagesOnSystems()
{
    std::vector<SLanguageOnSystem> rows;
    for (const STranslation& translation : kTranslations)
        for (const unsigned page : SystemPages(translation))
            rows.push_back({translation, page});
    return rows;
}

std::string Utf8(LPCWSTR text, int length) { return static_cast<LPCSTR>(AfxNarrow(text, length, CP_UTF8)); }

CLibraryTexts::CLibraryTexts(int language)
{
    EXPECT_NE(m_wizard.SetLanguageInfo(language), nullptr) << "no library of language " << language;
}

std::string CLibraryTexts::Text(unsigned id) const
{
    LPCWSTR text = nullptr;
    const int length = ::LoadStringW(Library(), id, reinterpret_cast<LPWSTR>(&text), 0); // 0: the text is not copied
    return length > 0 ? Utf8(text, length) : std::string();
}

std::set<unsigned> CLibraryTexts::MessagesThatRead(const std::string& text) const
{
    std::set<unsigned> ids;
    for (unsigned id = kFirstMessage; id <= kLastMessage; ++id)
        if (!text.empty() && Text(id) == text)
            ids.insert(id);
    return ids;
}
