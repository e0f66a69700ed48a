#pragma once

#include "afx/offscreen/Win32.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace offscreen
{
// A code page whose characters have one or two bytes, as tables.
class CodePage
{
public:
    // Nothing for a code page that is not known: those of SetCodePage are.
    static const CodePage* Find(UINT number);

    UINT Number() const { return m_number; }
    bool HasDoubleBytes() const { return !m_pairs.empty(); }
    bool IsLead(unsigned char c) const;
    // Bytes of the character that starts at `position`.
    std::size_t LengthAt(std::string_view text, std::size_t position) const;
    // The one or two bytes of a character, those of two with the first one high; 0 when it has none (or is NUL).
    WORD BytesOf(char16_t c) const { return m_bytes[c]; }

    // What is no character becomes U+30FB in code page 932, else a question mark, and sets `invalid`. A single byte
    // without a character keeps its number among the control characters, or becomes U+F800 plus itself; so it survives
    // the way there and back.
    std::u16string ToWide(std::string_view text, bool* invalid = nullptr) const;
    // Every unit that the code page does not have becomes `replacement` and sets `replaced`. There is no best fit.
    std::string ToBytes(std::u16string_view text, std::string_view replacement = "?", bool* replaced = nullptr) const;

private:
    explicit CodePage(UINT number) : m_number(number) {}
    static std::unique_ptr<CodePage> Make(UINT number);
    bool ReadCharacters(const char* name);
    bool ReadBytes(const char* name);
    // 0 for none
    char16_t PairAt(WORD bytes) const { return m_pairs[bytes - kFirstPair]; }

    static constexpr unsigned kFirstPair = 0x8000;

    UINT m_number;
    char16_t m_single[256] = {};
    std::vector<char16_t> m_pairs; // From kFirstPair on, when there are any
    std::vector<WORD> m_bytes;     // By character
};

std::u16string WideOfUtf8(std::string_view text, bool* invalid = nullptr);
std::string Utf8Of(std::u16string_view text, bool* invalid = nullptr);

inline bool IsAscii(std::string_view text)
{
    for (const char c : text)
        if (c & 0x80)
            return false;
    return true;
}
inline bool IsAscii(std::u16string_view text)
{
    char16_t all = 0;
    for (const char16_t c : text)
        all |= c;
    return all < 0x80;
}
} // namespace offscreen
