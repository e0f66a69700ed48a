// The resources of a language for the length of a scope.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/FunWizard.h"
#include "core/ResourceScope.h"

/// The language libraries that a build makes, by their index; the one of English is always among them.
inline constexpr int kLanguages[] = {0, 1, 2, 3, 4, 5, 6, 9};
inline constexpr int kEnglish = 0;
/// In place of an index: the module's own resources.
inline constexpr int kModule = -1;

/// Makes the resources of a language, or the module's own, the ones in use.
class CLanguage
{
public:
    explicit CLanguage(int language)
    {
        m_library = language == kModule ? nullptr : m_wizard.SetLanguageInfo(language);
        m_loaded = language == kModule || m_library;
        m_scope.emplace(m_library);
    }

    /// False when the language has no library: the resources in use are then the module's.
    bool IsLoaded() const { return m_loaded; }
    /// A wizard object of that language.
    CFunWizard& Wizard() { return m_wizard; }

private:
    CFunWizard m_wizard;
    HINSTANCE m_library = nullptr;
    bool m_loaded = false;
    std::optional<CResourceScope> m_scope;
};

/// The sources of resources that can be tested: the module, English, and each further language that was built.
inline std::vector<int> BuiltLanguages()
{
    std::vector<int> built = {kModule, kEnglish};
    for (int language : kLanguages)
        if (language != kEnglish && CLanguage(language).IsLoaded())
            built.push_back(language);
    return built;
}

/// A string of the resources in use; none when it does not exist.
inline std::optional<std::string> LoadText(unsigned id)
{
    CString text;
    if (!text.LoadString(id))
        return std::nullopt;
    return std::string(static_cast<LPCSTR>(text), static_cast<size_t>(text.GetLength()));
}
