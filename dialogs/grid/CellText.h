// Texts of cells.
#pragma once

#include "afx/afx.h"

#include <string_view>

/// Blanks around a text are no part of it.
inline std::string_view TrimmedCell(std::string_view text)
{
    constexpr char kBlank = ' ';
    const size_t first = text.find_first_not_of(kBlank);
    return first == text.npos ? std::string_view() : text.substr(first, text.find_last_not_of(kBlank) + 1 - first);
}

inline CString MakeText(std::string_view text) { return {text.data(), static_cast<int>(text.size())}; }
