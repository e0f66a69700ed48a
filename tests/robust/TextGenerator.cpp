#include "tests/robust/TextGenerator.h"

#include <random>

namespace
{

class CTextGenerator
{
public:
    explicit CTextGenerator(unsigned index) : m_random(index * 2654435761u + 1) {}

    std::string Text();
    std::string LongText();

private:
    unsigned Below(unsigned bound) { return static_cast<unsigned>(m_random() % bound); }
    char Among(const std::string& characters) { return characters[Below(static_cast<unsigned>(characters.size()))]; }
    char AnyByte() { return static_cast<char>(1 + Below(255)); }

    std::string Some(const std::string& characters, unsigned most)
    {
        std::string text;
        for (unsigned length = Below(most + 1); length > 0; --length)
            text += Among(characters);
        return text;
    }

    std::string Bytes(unsigned most)
    {
        std::string text;
        for (unsigned length = Below(most + 1); length > 0; --length)
            text += AnyByte();
        return text;
    }

    std::string DoubleBytes(unsigned most)
    {
        std::string text;
        for (unsigned length = Below(most + 1); length > 0; --length)
        {
            text += static_cast<char>(0x81 + Below(0x7E)); // a lead byte of one code page or another,
            if (Below(4) != 0)
                text += static_cast<char>(0x30 + Below(0xCF)); // perhaps with what may follow it
        }
        return text;
    }

    // A number near a bound that some edit or integer type has.
    std::string NearBound()
    {
        static constexpr long long kBounds[] = {
            0,     4,     10,    15,      29,      30,       39,         40,         100,        255,
            999,   5000,  6000,  9500,    9999,    14416,    15999,      32758,      32761,      32767,
            65535, 65536, 99999, 8388607, 8388608, 16777216, 2147483647, 4294967295, 4294967396, 9223372036854775807};
        const long long number = kBounds[Below(static_cast<unsigned>(std::size(kBounds)))];
        const std::string digits = std::to_string(static_cast<unsigned long long>(number) + Below(5) - 2);
        return (Below(3) == 0 ? "-" : "") + digits;
    }

    std::string Decorated(std::string text)
    {
        switch (Below(4))
        {
        case 0:
            return Some(kBlanks, 3) + text + Some(kBlanks, 3);
        case 1:
            return std::string(Below(40), '0') + text;
        case 2:
            return text.insert(Below(static_cast<unsigned>(text.size()) + 1), 1, AnyByte());
        default:
            return text;
        }
    }

    static inline const std::string kBlanks = " \t\r\n\v\f";
    static inline const std::string kSigns = "+-.,eExX#%_";
    static inline const std::string kDigits = "0123456789";
    static inline const std::string kHexDigits = "0123456789ABCDEFabcdef";
    static inline const std::string kLetters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
    static inline const std::string kControls = "\x01\x02\x03\x07\x08\x09\x0A\x0B\x0C\x0D\x16\x18\x1A\x1B\x1F\x7F";

    std::mt19937 m_random;
};

std::string CTextGenerator::Text()
{
    switch (Below(13))
    {
    case 0:
        return "";
    case 1:
        return Some(kBlanks, 12);
    case 2:
        return Some(kSigns, 3) + Some(kDigits, 6) + Some(kSigns, 2);
    case 3:
        return Some(kLetters, 30);
    case 4:
    case 5:
        return Decorated(NearBound());
    case 6:
        return Some(kSigns, 1) + Some(kDigits, 400);
    case 7:
        return Some(kControls, 10) + Some(kDigits, 5) + Some(kControls, 2);
    case 8:
        return Bytes(60);
    case 9:
        return DoubleBytes(20) + Some(kDigits, 3);
    case 10:
        return Decorated(Some(kHexDigits, 5));
    case 11:
        return Decorated(Some(kDigits, 5));
    default:
        return Some(kDigits, 4) + Some(" -", 2) + Some(kHexDigits, 3);
    }
}

std::string CTextGenerator::LongText()
{
    switch (Below(6))
    {
    case 0:
        return std::string(kLongText, Among(kDigits));
    case 1:
        return std::string(kLongText - 3, ' ') + "100";
    case 2:
        return std::string(kLongText - 2, '0') + "50";
    case 3:
        return "-" + std::string(kLongText - 1, Among(kDigits));
    case 4:
        return std::string(kLongText, static_cast<char>(0x81 + Below(0x7E)));
    default:
        return std::string(kLongText, AnyByte());
    }
}

} // namespace

std::string GeneratedText(unsigned index)
{
    constexpr unsigned kLongOnesApart = 211;
    CTextGenerator generator(index);
    return index % kLongOnesApart == 1 ? generator.LongText() : generator.Text();
}
