// Texts that nobody should type, and some that come close to what should be typed.
#pragma once

#include <string>

/// The text of an index, always the same one. Texts contain no NUL. A few are as long as kLongText.
std::string GeneratedText(unsigned index);

/// In bytes. The time that an edit of the real desktop may take for a text grows with the square of its length: a
/// mebibyte would keep it busy for minutes before the dialog is asked anything.
#if defined(_WIN32)
inline constexpr size_t kLongText = size_t{1} << 13;
#else
inline constexpr size_t kLongText = size_t{1} << 20;
#endif
