#include "tests/core/ValueModels.h"

#include <algorithm>
#include <cstring>

namespace values
{

namespace
{

const std::string kWhite = " \t\n\v\f\r";
const std::string kDigits = "0123456789";
const std::string kHexDigits = "0123456789ABCDEF";

bool AllOf(const std::string& text, const std::string& alphabet)
{
    return text.find_first_not_of(alphabet) == std::string::npos;
}

std::string Trimmed(const std::string& text)
{
    const size_t first = text.find_first_not_of(kWhite);
    if (first == std::string::npos)
        return "";
    return text.substr(first, text.find_last_not_of(kWhite) - first + 1);
}

std::string Without(std::string text, char unwanted)
{
    text.erase(std::remove(text.begin(), text.end(), unwanted), text.end());
    return text;
}

std::string Upper(std::string text)
{
    for (char& c : text)
    {
        if (c >= 'a' && c <= 'z')
            c = static_cast<char>(c - 'a' + 'A');
    }
    return text;
}

/// The number that the digits of a base make, from the last digit to the first, modulo 2^64.
unsigned long long Number(const std::string& digits, unsigned base)
{
    unsigned long long value = 0;
    unsigned long long weight = 1;
    for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit, weight *= base)
        value += weight * kHexDigits.find(*digit);
    return value;
}

/// A decimal number, held at a bound that is far above any exponent that matters.
long long BoundedNumber(std::string digits)
{
    digits.erase(0, digits.find_first_not_of('0'));
    return digits.size() > 12 ? 1'000'000'000'000 : static_cast<long long>(Number(digits, 10));
}

/// The digits of a positive number read as 0.digits, and the power of ten that belongs to them.
struct SMagnitude
{
    long long scale;
    std::string digits;

    bool operator<(const SMagnitude& other) const
    {
        return scale != other.scale ? scale < other.scale : digits < other.digits;
    }
};

const SMagnitude kSingleLimit = {39, "3402823"};
const SMagnitude kSingleSmallest = {-37, "1175494"};

bool IsSinglePrecision(const std::string& digits, long long exponent)
{
    const SMagnitude magnitude = {static_cast<long long>(digits.size()) + exponent, digits};
    return digits.size() <= 7 && magnitude < kSingleLimit && !(magnitude < kSingleSmallest);
}

bool FitsPackedForm(const std::string& digits, long long exponent)
{
    return digits.size() <= 8 && Number(digits, 10) < 1u << 24 && exponent >= -70 && exponent <= 57;
}

/// The power of ten behind an exponent letter: a sign directly after it, then digits and blanks.
SRead<long long> Exponent(std::string text)
{
    const bool isNegative = !text.empty() && text[0] == '-';
    if (!text.empty() && (text[0] == '-' || text[0] == '+'))
        text.erase(0, 1);
    text = Without(text, ' ');
    if (text.empty() || !AllOf(text, kDigits))
        return {false, 0};
    return {true, isNegative ? -BoundedNumber(text) : BoundedNumber(text)};
}

} // namespace

SRead<LONGLONG> Decimal(const std::string& text)
{
    std::string digits = Trimmed(text);
    if (digits.empty())
        return {false, 0};
    const bool isNegative = digits[0] == '-';
    digits.erase(0, isNegative ? 1 : 0);
    if (!AllOf(digits, kDigits))
        return {false, 0};
    const unsigned long long magnitude = Number(digits, 10);
    return {true, static_cast<LONGLONG>(isNegative ? 0 - magnitude : magnitude)};
}

SRead<DWORD> Hex(const std::string& text)
{
    const std::string all = Upper(Trimmed(text));
    const std::string read = all.substr(0, all.find_first_not_of(kHexDigits));
    const std::string last = read.size() > 8 ? read.substr(read.size() - 8) : read;
    return {read.size() == all.size(), static_cast<DWORD>(Number(last, 16))};
}

SRead<long long> BitNumber(const std::string& text)
{
    if (text.empty() || !AllOf(text.substr(0, text.size() - 1), kDigits + " "))
        return {false, 0};
    const std::string last = Upper(text.substr(text.size() - 1));
    if (!AllOf(last, kHexDigits + " "))
        return {false, 0};
    const auto bit = static_cast<long long>(last == " " ? 0 : Number(last, 16));
    const long long word = BoundedNumber(Without(text.substr(0, text.size() - 1), ' '));
    return {true, word > 999'999'999 ? -1 : word * 16 + bit};
}

SRead<DWORD> PackedReal(const std::string& text, bool realMode, int sign)
{
    const bool isNegative = !text.empty() && text[0] == '-';
    const std::string magnitude = text.substr(isNegative ? 1 : 0);
    const size_t letter = magnitude.find_first_of("Ee");
    std::string digits = Without(magnitude.substr(0, letter), ' ');
    if (!AllOf(digits, kDigits + ".") || std::count(digits.begin(), digits.end(), '.') > 1 ||
        digits.find_first_of(kDigits) == std::string::npos)
        return {false, 0};
    SRead<long long> exponent = {true, 0};
    if (letter != std::string::npos)
        exponent = Exponent(magnitude.substr(letter + 1));
    if (!exponent.ok)
        return {false, 0};

    const size_t point = digits.find('.');
    if (point != std::string::npos)
        exponent.value -= static_cast<long long>(digits.size() - point - 1);
    digits = Without(digits, '.');
    digits.erase(0, digits.find_first_not_of('0'));
    if (digits.empty())
        return {true, 0};
    const size_t significant = digits.find_last_not_of('0') + 1;
    exponent.value += static_cast<long long>(digits.size() - significant);
    digits.resize(significant);

    if (!(realMode ? IsSinglePrecision(digits, exponent.value) : FitsPackedForm(digits, exponent.value)))
        return {false, 0};
    const bool signBit = sign < 0 ? isNegative : sign == 1;
    return {true, Packed(static_cast<DWORD>(Number(digits, 10)), static_cast<DWORD>(exponent.value + 70), signBit)};
}

std::string BitNumberText(int number, bool compact)
{
    std::string word = number < 16 ? "" : std::to_string(number / 16);
    if (!compact)
        word.insert(0, 3 - word.size(), ' ');
    return word + kHexDigits[static_cast<size_t>(number % 16)];
}

std::string PackedRealText(DWORD packed, bool exponentNotation)
{
    const DWORD mantissa = packed & 0xFFFFFF;
    if (mantissa == 0)
        return "0";
    const int exponent = static_cast<int>(packed >> 24 & 0x7F) - 70;
    std::string text = std::to_string(mantissa);
    if (exponentNotation)
        text += (exponent < 0 ? "E-" : "E+") + std::to_string(exponent < 0 ? -exponent : exponent);
    else if (exponent >= 0)
        text.append(static_cast<size_t>(exponent), '0');
    else
    {
        const auto decimals = static_cast<size_t>(-exponent);
        if (text.size() <= decimals)
            text.insert(0, decimals + 1 - text.size(), '0');
        text.insert(text.size() - decimals, ".");
    }
    return ((packed >> 31 != 0 ? "-" : "") + text).substr(0, 49);
}

std::string FixedText(LONGLONG value, int decimals)
{
    std::string digits = std::to_string(value);
    const std::string sign = value < 0 ? "-" : "";
    digits.erase(0, sign.size());
    if (digits.size() <= static_cast<size_t>(decimals))
        digits.insert(0, static_cast<size_t>(decimals) + 1 - digits.size(), '0');
    return sign + digits.insert(digits.size() - static_cast<size_t>(decimals), ".");
}

std::string CTextRandom::From(const std::string& alphabet, size_t length)
{
    std::string text(length, ' ');
    for (char& c : text)
        c = alphabet[Below(static_cast<unsigned>(alphabet.size()))];
    return text;
}

std::string CTextRandom::Text()
{
    static const std::string bytes = [] {
        std::string all;
        for (int byte = 1; byte < 256; ++byte)
            all += static_cast<char>(byte);
        return all;
    }();
    static const std::string high(bytes, 127);
    static const std::string signs[] = {"", "", "-", "+", " -", "- ", "--", " "};
    static const std::string ends[] = {"", "", "", " ", "\t", "-", "E5", "e-12", "E+3 ", "E", "G", ".", ".5", "\xA0"};
    const std::string sign = signs[Below(8)];
    const std::string end = ends[Below(14)];
    switch (Below(10))
    {
    case 0:
        return From(kWhite, Below(6));
    case 1:
        return From(bytes, Below(12));
    case 2:
        return From(high, Below(6)) + From(kDigits, Below(3));
    case 3:
        return From(kDigits + " -+.Ee", Below(14));
    case 4:
        return From(kHexDigits + "abcdefgG ", Below(12));
    case 5:
        return sign + From(kDigits, Below(400)) + end;
    case 6:
        return sign + From(kDigits, Below(8)) + "." + From("0123456789000000", Below(12)) + end;
    case 7:
        return sign + From(kDigits, 1 + Below(8)) + "E" + From("+-", Below(2)) + From(kDigits, Below(3)) + end;
    case 8:
        return From("0", Below(60)) + From(kDigits, Below(9)) + From("0", Below(60)) + end;
    default:
        return From(kWhite, Below(3)) + sign + From(kDigits, Below(21)) + end + From(kWhite, Below(3));
    }
}

std::vector<std::string> HugeTexts()
{
    constexpr size_t kMebibyte = 1 << 20;
    const auto of = [](char c) { return std::string(kMebibyte, c); };
    return {of(' '),
            of('-'),
            of('9'),
            of('0'),
            of('F'),
            of('E'),
            of('.'),
            of('\x81'),
            of('\x01'),
            of('0') + "7",
            "7" + of('0'),
            "-" + of('1') + "x",
            "1." + of('0'),
            "0." + of('0') + "1",
            "1E" + of('0') + "5",
            "1E-" + of('9'),
            "1" + of('0') + "E-1048576",
            "0." + of('0') + "25E1048577",
            of(' ') + "12" + of(' '),
            of(' ') + "12" + of('\t') + "G"};
}

} // namespace values
