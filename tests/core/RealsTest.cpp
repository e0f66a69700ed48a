// Real numbers and their texts: every edge of the reader, rounding once against exact arithmetic, and the shortest text
// there and back.
#include "core/Reals.h"

#include "core/Values.h"
#include "tests/core/RealModel.h"
#include "tests/support/PrintTo.h"
#include "tests/support/Sampled.h"

#include <gtest/gtest.h>

#include <bit>
#include <clocale>
#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace
{

DWORD BitsOf(float value) { return std::bit_cast<DWORD>(value); }
float OfBits(DWORD bits) { return std::bit_cast<float>(bits); }

/// What the reader makes of a text.
struct SRead
{
    bool ok;
    DWORD bits; // when it is ok

    bool operator==(const SRead&) const = default;
};

std::ostream& operator<<(std::ostream& out, const SRead& read)
{
    return read.ok ? out << std::hex << read.bits << std::dec : out << "refused";
}

SRead Read(const std::string& text)
{
    constexpr float kBefore = 12345.5F;
    float value = kBefore;
    if (ParseReal(text.c_str(), value))
        return {true, BitsOf(value)};
    EXPECT_EQ(BitsOf(value), BitsOf(kBefore)) << "a refused text leaves it alone";
    return {false, 0};
}

std::string Written(float value) { return static_cast<LPCSTR>(FormatReal(value)); }
std::string WrittenBits(DWORD bits) { return Written(OfBits(bits)); }

constexpr DWORD kNegative = 0x80000000;

int SignificantDigits(const std::string& text)
{
    std::string digits;
    for (const char c : text.substr(0, text.find_first_of("eE")))
        if (c >= '0' && c <= '9')
            digits += c;
    const size_t first = digits.find_first_not_of('0');
    return first == std::string::npos ? 0 : static_cast<int>(digits.find_last_not_of('0') - first) + 1;
}

} // namespace

// ---- Reading --------------------------------------------------------------------------------------------------------

TEST(ParseReal, ReadsEveryForm)
{
    const struct
    {
        const char* text;
        DWORD bits;
    } kTexts[] = {
        {"0", 0},
        {"-0", 0},
        {"000", 0},
        {"0.0000000000", 0},
        {"0e99", 0},
        {"0E-99", 0},
        {"1", 0x3F800000},
        {"-1", 0xBF800000},
        {"- 1", 0xBF800000},
        {" 1 ", 0x3F800000},
        {"   -1   ", 0xBF800000},
        {"001", 0x3F800000},
        {"1.", 0x3F800000},
        {"1.0000000000", 0x3F800000},
        {".5", 0x3F000000},
        {"-.5", 0xBF000000},
        {"0.1", 0x3DCCCCCD},
        {"1e-1", 0x3DCCCCCD},
        {"10E-2", 0x3DCCCCCD},
        {"0.0000001e6", 0x3DCCCCCD},
        {"1e+2", 0x42C80000},
        {"1E2", 0x42C80000},
        {"1 0 0", 0x42C80000},
        {"1e 2", 0x42C80000},
        {"10000000000e-8", 0x42C80000},
        {"1677721e1", 0x4B7FFFFA},
        {"9999999", 0x4B18967F},
        {"99999990", 0x4CBEBC1F},
        {"3.402822e38", 0x7F7FFFF8},
        {"-3.402822e38", 0xFF7FFFF8},
        {"340282200000000000000000000000000000000", 0x7F7FFFF8},
        {"1.175494e-38", 0x007FFFFD},
        {"-1.175494e-38", 0x807FFFFD},
        {"0.00000000000000000000000000000000000001175494", 0x007FFFFD},
    };
    for (const auto& [text, bits] : kTexts)
    {
        EXPECT_EQ(Read(text), (SRead{true, bits})) << text;
        EXPECT_FALSE(IsRealOutOfRange(static_cast<LPCSTR>(Trimmed(text)))) << text;
    }
}

TEST(ParseReal, RefusesWhatIsNoNumberAndDoesNotCallItOutOfRange)
{
    for (const char* text :
         {"", " ", "-", "- ", ".", "-.", "+1", "--1", "1-", "1-2", "1..2", "1.2.3", "e5", "-e5", "E", "1e", "1e+",
          "1e-", "1e--5", "1e+-5", "1e5e5", "1e5.", "1e.5", "1,5", "1x", "0x10", "nan", "inf", "1f", "1e5-", "1e 5x",
          "1\t2", "\xB2", "1.5.e3", "1e39e1", "4e38x", "#1", "1/2", "1e5 e5", "9e99.", "- -1",
          // eight digits that count
          "12345678", "1.2345678", "0.12345678", "1.0000001", "10000001", "-12345678e10", "0000012345678",
          "12345678000", "3.4028219e38", "1.1754941e-38"})
    {
        EXPECT_EQ(Read(text), (SRead{false, 0})) << text;
        EXPECT_FALSE(IsRealOutOfRange(text)) << text;
    }
}

TEST(ParseReal, RefusesWhatIsOutOfRangeAndSaysSo)
{
    const std::string zeros(100, '0');
    const std::string texts[] = {"3.402823e38",
                                 "-3.402823e38",
                                 "3.402824e38",
                                 "4e38",
                                 "1e39",
                                 "-1e39",
                                 "9999999e32",
                                 "1.175493e-38",
                                 "-1.175493e-38",
                                 "1.17549e-38",
                                 "1e-38",
                                 "1e-39",
                                 "1e-45",
                                 "1e99999999999999999999",
                                 "1e-99999999999999999999",
                                 "-1e2147483648",
                                 "1" + zeros,
                                 "0." + zeros + "1",
                                 "34028230" + std::string(31, '0'),
                                 "12345678e50", // of eight digits too
                                 "12345678e-50"};
    for (const std::string& text : texts)
    {
        EXPECT_EQ(Read(text), (SRead{false, 0})) << text;
        EXPECT_TRUE(IsRealOutOfRange(text.c_str())) << text;
    }
    for (const char* inside : {"3.402822e38", "1.175494e-38", "-3.402822e38", "-1.175494e-38", "0", "-0", "1"})
        EXPECT_FALSE(IsRealOutOfRange(inside)) << inside;
}

TEST(ParseReal, ReadsTextsOfAnyLength)
{
    constexpr int kLong = 100000;
    const std::string zeros(kLong, '0'), blanks(kLong, ' ');
    EXPECT_EQ(Read(zeros + "1"), (SRead{true, 0x3F800000}));
    EXPECT_EQ(Read("1." + zeros), (SRead{true, 0x3F800000}));
    EXPECT_EQ(Read(zeros), (SRead{true, 0}));
    EXPECT_EQ(Read("0." + zeros), (SRead{true, 0}));
    EXPECT_EQ(Read(blanks + "1" + blanks), (SRead{true, 0x3F800000}));
    EXPECT_EQ(Read("0." + zeros + "1e" + std::to_string(kLong + 1)), (SRead{true, 0x3F800000}));
    EXPECT_EQ(Read("1" + zeros + "e-" + std::to_string(kLong)), (SRead{true, 0x3F800000}));
    EXPECT_EQ(Read("1e" + zeros + "2"), (SRead{true, 0x42C80000}));
    EXPECT_FALSE(Read(std::string(kLong, '9')).ok);
    EXPECT_FALSE(Read(blanks).ok);
    EXPECT_TRUE(IsRealOutOfRange(("1" + zeros).c_str()));
}

// ---- Rounding -------------------------------------------------------------------------------------------------------

// All exponents, and what lies around the powers of two, below which numbers are twice as dense.
TEST(ParseReal, RoundsOnce)
{
    std::vector<SDecimalModel> decimals;
    for (int exponent = -44; exponent <= 31; ++exponent)
        for (const unsigned digits : {1000000u, 1000001u, 1234567u, 5000000u, 8388609u, 9999999u})
            decimals.push_back({digits, exponent});
    std::mt19937 random(1);
    for (int binary = -126; binary <= 127; ++binary)
    {
        char text[32];
        std::snprintf(text, sizeof text, "%.6e", std::ldexp(1.0, binary));
        const unsigned digits = static_cast<unsigned>(std::lround(std::stod(std::string(text).substr(0, 8)) * 1e6));
        const int exponent = std::stoi(std::string(text).substr(9)) - 6;
        for (int step = -2; step <= 2; ++step)
            decimals.push_back({digits + static_cast<unsigned>(step), exponent});
    }
    for (int i = 0; i < 20000; ++i)
        decimals.push_back({static_cast<unsigned>(random() % 9000000) + 1000000, static_cast<int>(random() % 75) - 44});
    int read = 0;
    for (const SDecimalModel& decimal : decimals)
    {
        const SRead one = Read(decimal.Text());
        if (!one.ok)
        {
            EXPECT_TRUE(IsRealOutOfRange(decimal.Text().c_str())) << decimal.Text();
            continue;
        }
        ++read;
        ASSERT_TRUE(IsNearestSingle(decimal, OfBits(one.bits))) << decimal.Text() << " as " << one;
        ASSERT_EQ(Read("-" + decimal.Text()), (SRead{true, one.bits | kNegative}));
    }
    EXPECT_GT(read, 20000);
}

// It lies so near to the middle between two numbers that double precision rounds it to the middle.
TEST(ParseReal, IsNotLedAstrayByDoublePrecision)
{
    EXPECT_EQ(Read("7038531e-32"), (SRead{true, 0x15AE43FD}));
    EXPECT_TRUE(IsNearestSingle({7038531, -32}, OfBits(0x15AE43FD)));
    EXPECT_FALSE(IsNearestSingle({7038531, -32}, OfBits(0x15AE43FE)));
    EXPECT_EQ(WrittenBits(0x15AE43FD), "7.038531e-26");
}

// ---- Writing --------------------------------------------------------------------------------------------------------

TEST(FormatReal, WritesNumbersAsTheyAreMeant)
{
    const struct
    {
        const char* typed;
        const char* written;
    } kTexts[] = {
        {"0", "0"},
        {"-0", "0"},
        {"0.1", "0.1"},
        {"-0.1", "-0.1"},
        {".5", "0.5"},
        {"1.50", "1.5"},
        {"100", "100"},
        {"1e2", "100"},
        {"1E6", "1000000"},
        {"1234567", "1234567"},
        {"123456.7", "123456.7"},
        {"1.234567", "1.234567"},
        {"0.1234567", "0.1234567"},
        {"1e7", "1e+7"},
        {"12345670", "12345670"},
        {"9999999", "9999999"},
        {"9999999e1", "99999990"},
        {"1.234567e12", "1.234567e+12"},
        {"0.0001", "0.0001"},
        {"0.0001234567", "0.0001234567"},
        {"0.00001", "1e-5"},
        {"0.0000123", "1.23e-5"},
        {"-1.5E-20", "-1.5e-20"},
        {"3.402822e38", "3.402822e+38"},
        {"1.175494e-38", "1.175494e-38"},
        {"16777.21", "16777.21"},
        {"8.5e9", "8.5e+9"},
        {"3.3e-5", "3.3e-5"},
    };
    for (const auto& [typed, written] : kTexts)
        EXPECT_EQ(WrittenBits(Read(typed).bits), written) << typed;
}

// Where the numbers of single precision are thinner than seven digits several texts mean the same; that of the fewest
// digits is written.
TEST(FormatReal, WritesTheShortestText)
{
    std::mt19937 random(3);
    for (int i = 0; i < 20000; ++i)
    {
        const float value = OfBits(static_cast<DWORD>(random()) & ~kNegative);
        const std::string text = Written(value);
        if (!std::isfinite(value) || value < 1.2e-38F || !(Read(text) == SRead{true, BitsOf(value)}))
            continue;
        const int digits = SignificantDigits(text);
        if (digits < 2)
            continue;
        char shorter[32];
        std::snprintf(shorter, sizeof shorter, "%.*e", digits - 2, static_cast<double>(value));
        ASSERT_FALSE(Read(shorter) == (SRead{true, BitsOf(value)})) << text << " and " << shorter;
    }
}

// ---- There and back -------------------------------------------------------------------------------------------------

namespace
{

/// Plain or with an exponent, of one to seven digits, in all the ways that a user may type it.
std::string RandomText(std::mt19937& random)
{
    const auto below = [&random](unsigned limit) { return static_cast<int>(random() % limit); };
    const int count = 1 + below(7);
    std::string digits = std::to_string(1 + below(9));
    while (static_cast<int>(digits.size()) < count)
        digits += static_cast<char>('0' + below(10));
    std::string text = below(2) == 0 ? "-" : "";
    if (below(2) == 0) // plain
    {
        const int point = below(60) - 30; // behind so many digits
        if (point <= 0)
            return text + (below(2) == 0 ? "0." : ".") + std::string(static_cast<size_t>(-point), '0') + digits;
        if (point >= count)
            return text + digits + std::string(static_cast<size_t>(point - count), '0') + (below(2) == 0 ? "" : ".0");
        return text + digits.substr(0, static_cast<size_t>(point)) + "." + digits.substr(static_cast<size_t>(point));
    }
    const int point = below(8);
    std::string mantissa = point == 0 ? "." + digits : digits.substr(0, static_cast<size_t>(std::min(point, count)));
    if (point > 0 && point < count)
        mantissa += "." + digits.substr(static_cast<size_t>(point));
    const int exponent = below(76) - 37;
    const char* sign = exponent < 0 ? "-" : below(2) == 0 ? "+" : "";
    return text + mantissa + (below(2) == 0 ? "e" : "E") + sign + std::to_string(std::abs(exponent));
}

} // namespace

TEST(FormatReal, BringsEveryTypedTextBackToTheSameBitsWithNoMoreDigits)
{
    std::mt19937 random(4);
    int read = 0;
    for (int i = 0; i < 100000; ++i)
    {
        const std::string typed = RandomText(random);
        const SRead bits = Read(typed);
        if (!bits.ok)
        {
            ASSERT_TRUE(IsRealOutOfRange(typed.c_str())) << typed;
            continue;
        }
        ++read;
        const std::string written = WrittenBits(bits.bits);
        ASSERT_EQ(Read(written), bits) << typed << " is written " << written;
        ASSERT_LE(SignificantDigits(written), SignificantDigits(typed)) << typed << " is written " << written;
        ASSERT_LE(written.size(), 13u) << typed; // what its entry takes
    }
    EXPECT_GT(read, 90000);
}

// ---- Bits that no text gives ----------------------------------------------------------------------------------------

TEST(FormatReal, HasNoTextForWhatIsNoNumber)
{
    for (const DWORD bits : {0x7FC00000u, 0xFFC00000u, 0x7F800001u, 0xFF800001u, 0x7FFFFFFFu, 0xFFFFFFFFu})
        EXPECT_EQ(WrittenBits(bits), "") << std::hex << bits;
}

TEST(FormatReal, StopsAtTheEndsOfWhatCanBeRead)
{
    const struct
    {
        DWORD bits;
        const char* text;
    } kBits[] = {
        {0x7F7FFFFF, "3.402822e+38"}, // the largest number
        {0xFF7FFFFF, "-3.402822e+38"},
        {0x7F7FFFFD, "3.402822e+38"},
        {0x7F7FFFF8, "3.402822e+38"},
        {0x7F800000, "3.402822e+38"}, // infinity
        {0xFF800000, "-3.402822e+38"},
        {0x00800000, "1.175494e-38"}, // the smallest normal number
        {0x007FFFFF, "1.175494e-38"},
        {0x007FFFFD, "1.175494e-38"},
        {0x007FFFFC, "1.175494e-38"},
        {0x807FFFFC, "-1.175494e-38"},
        {0x00600000, "1.175494e-38"},
        {0x00400000, "1.175494e-38"}, // just above the middle
        {0x003FFFFF, "1.175494e-38"}, // 5.8774704e-39, and the middle is 5.87747e-39
        {0x003FFFFE, "0"},
        {0x803FFFFE, "0"},
        {0x00000001, "0"},
        {0x80000001, "0"},
        {0x00000000, "0"},
        {0x80000000, "0"},
    };
    for (const auto& [bits, text] : kBits)
        EXPECT_EQ(WrittenBits(bits), text) << std::hex << bits;
}

TEST(FormatReal, ShowsAnyBitsAsNearAsTheReaderCanTake)
{
    std::mt19937 random(5);
    int exact = 0, others = 0;
    for (int i = 0; i < 30000; ++i)
    {
        const auto bits = static_cast<DWORD>(random());
        const float magnitude = std::fabs(OfBits(bits));
        const std::string written = WrittenBits(bits);
        if (std::isnan(magnitude))
        {
            ASSERT_EQ(written, "");
            continue;
        }
        const SRead read = Read(written);
        ASSERT_TRUE(read.ok) << written;
        if (magnitude < 1.175494e-38F || magnitude > 3.402822e38F)
            continue; // tested one by one
        const SRead wanted = {true, bits};
        if (read == wanted)
        {
            ++exact;
            continue;
        }
        ++others;
        char text[32];
        std::snprintf(text, sizeof text, "%.6e", static_cast<double>(magnitude));
        const auto digits = static_cast<std::uint64_t>(std::lround(std::stod(std::string(text).substr(0, 8)) * 1e6));
        const SDecimalModel around[] = {{digits - 1, std::stoi(std::string(text).substr(9)) - 6},
                                        {digits, std::stoi(std::string(text).substr(9)) - 6},
                                        {digits + 1, std::stoi(std::string(text).substr(9)) - 6}};
        for (const SDecimalModel& decimal : around) // no text at all gives these bits
            ASSERT_FALSE(Read(decimal.Text()) == (SRead{true, BitsOf(magnitude)})) << decimal.Text();
        ASSERT_FALSE(IsNearerToLower(around[0], around[1], magnitude)) << written;
        ASSERT_FALSE(IsNearerToUpper(around[1], around[2], magnitude)) << written;
        const std::string nearest = (bits & kNegative ? "-" : "") + around[1].Text();
        ASSERT_EQ(read, Read(nearest)) << written << " for " << nearest;
    }
    EXPECT_GT(exact, 1000);
    EXPECT_GT(others, 10000);
}

// ---- Locales --------------------------------------------------------------------------------------------------------

namespace
{

/// The locale of the program, put back afterwards.
class CLocaleKept
{
public:
    CLocaleKept() : m_before(std::setlocale(LC_ALL, nullptr)) {}
    ~CLocaleKept() { std::setlocale(LC_ALL, m_before.c_str()); }
    CLocaleKept(const CLocaleKept&) = delete;
    CLocaleKept& operator=(const CLocaleKept&) = delete;

private:
    std::string m_before;
};

std::string ResultsOfManyNumbers()
{
    std::mt19937 random(6);
    std::string results;
    for (const char* text : {"1.5", "-0.25", "1.5e10", "1,5", "3.402822e38", "1.175494e-38", "0.1", "1000000", "1e-5"})
    {
        const SRead read = Read(text);
        results += read.ok ? std::to_string(read.bits) + "=" + WrittenBits(read.bits) + " " : "refused ";
    }
    for (int i = 0; i < 1000; ++i)
        results += WrittenBits(static_cast<DWORD>(random())) + " ";
    return results;
}

} // namespace

// Windows always has this locale; elsewhere it may not be installed, and then there is nothing to try.
TEST(Reals, AreTheSameInEveryLocale)
{
    const CLocaleKept kept;
    std::setlocale(LC_ALL, "C");
    const std::string expected = ResultsOfManyNumbers();
    bool tried = false;
    for (const char* name :
         {"German", "de_DE.UTF-8", "de_DE.utf8", "de_DE", "fr_FR.UTF-8", "cs_CZ.UTF-8", "pl_PL.UTF-8"})
    {
        if (std::setlocale(LC_ALL, name) == nullptr)
            continue;
        EXPECT_STREQ(std::localeconv()->decimal_point, ",") << name;
        EXPECT_EQ(ResultsOfManyNumbers(), expected) << name;
        tried = true;
    }
#if defined(_WIN32)
    EXPECT_TRUE(tried);
#else
    static_cast<void>(tried);
#endif
}
