// Straightforward second implementations of the value readers and writers, on standard strings, and texts to feed both.
#pragma once

#include <random>
#include <string>
#include <vector>

#include "afx/afx.h"

namespace values
{

template <typename T>
struct SRead
{
    bool ok;
    T value;
};

SRead<LONGLONG> Decimal(const std::string& text);
SRead<DWORD> Hex(const std::string& text);
/// The value is the word and the bit; a word of more than nine digits reads as -1.
SRead<long long> BitNumber(const std::string& text);
SRead<DWORD> PackedReal(const std::string& text, bool realMode, int sign);

std::string BitNumberText(int number, bool compact);
std::string PackedRealText(DWORD packed, bool exponentNotation);
std::string FixedText(LONGLONG value, int decimals);

constexpr DWORD Packed(DWORD mantissa, DWORD exponentField, DWORD sign = 0)
{
    return mantissa | exponentField << 24 | sign << 31;
}

/// Draws numbers and texts, the same ones on every platform.
class CTextRandom
{
public:
    explicit CTextRandom(unsigned seed) : m_engine(seed) {}

    unsigned Below(unsigned count) { return static_cast<unsigned>(m_engine()) % count; }
    DWORD Bits() { return static_cast<DWORD>(m_engine()); }
    std::string From(const std::string& alphabet, size_t length);
    /// Anything that could be pasted into an edit box: numbers and near-numbers of every notation, and garbage.
    std::string Text();

private:
    std::mt19937 m_engine;
};

/// Texts of a mebibyte, most of them well-formed for some reader.
std::vector<std::string> HugeTexts();

} // namespace values
