// Texts that nobody should type, and some that come close to what should be typed.
#pragma once

#include <string>

/// The text of an index, always the same one. Texts contain no NUL. A few are a mebibyte long.
std::string GeneratedText(unsigned index);

/// The length of the longest texts, in bytes.
inline constexpr size_t kLongText = size_t{1} << 20;
