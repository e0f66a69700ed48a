// All texts of a language library, and those that are made from them.
#pragma once

#include "tests/languages/Translations.h"

#include <set>
#include <string>
#include <vector>

class CKnownTexts
{
public:
    explicit CKnownTexts(const CLibraryTexts& library);

    /// Whether a text is one of the library, in its templates or its strings, or one whose gaps are filled with
    /// numbers, plain names or texts of the library; or several of these, a line each. A text may have been broken into
    /// lines.
    bool Contains(const std::string& text) const;

private:
    bool IsOneText(const std::string& line) const;
    bool IsFilled(const std::string& text, const std::vector<std::string>& parts) const;
    bool IsGapText(const std::string& text) const;

    std::set<std::string> m_texts;
    std::vector<std::vector<std::string>> m_formats; ///< what stands around the gaps
};

/// Whether a text looks the same in every code page, and has no question mark in place of what a page lacks.
bool IsPlain(const std::string& text);
