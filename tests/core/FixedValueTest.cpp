// Unsigned fixed-point entries: "2.5" with two decimals is 250.
#include <gtest/gtest.h>

#include "core/Values.h"

#include <climits>
#include <string>

namespace
{

struct SFixed
{
    const char* text;
    int whole;
    int decimals;
    LONGLONG value; ///< kMalformed: not accepted
};

constexpr LONGLONG kMalformed = -1;

constexpr SFixed kFixed[] = {
    // Missing decimals count as zeros.
    {"2", 2, 2, 200},
    {"2.", 2, 2, 200},
    {"2.5", 2, 2, 250},
    {"2.05", 2, 2, 205},
    {"0", 5, 0, 0},
    {"100", 5, 0, 100},
    // The whole part.
    {"99999", 5, 0, 99999},
    {"100000", 5, 0, kMalformed},
    {"00001", 5, 0, 1},
    {"000001", 5, 0, kMalformed},
    {"99.99", 2, 2, 9999},
    {"100", 2, 2, kMalformed},
    {".5", 2, 2, 50},
    // The fraction; zeros at its end do not count.
    {"12.345", 2, 2, kMalformed},
    {"12.340", 2, 2, 1234},
    {"12.3400000", 2, 2, 1234},
    {"999.90", 3, 1, 9999},
    {"0.05", 3, 1, kMalformed},
    {"0.50", 3, 1, 5},
    {"100.", 5, 0, 100},
    {"100.0", 5, 0, 100},
    {"100.1", 5, 0, kMalformed},
    {"0.0", 4, 1, 0},
    {".0", 4, 1, 0},
    {"0.", 4, 1, 0},
    // Zeros of a whole number stay.
    {"10", 3, 1, 100},
    {"1000", 4, 0, 1000},
    // Blanks around it.
    {"  2.5 \t", 2, 2, 250},
    {"2 .5", 2, 2, kMalformed},
    {"2. 5", 2, 2, kMalformed},
    // No number.
    {"", 5, 0, kMalformed},
    {"   ", 5, 0, kMalformed},
    {".", 5, 2, kMalformed},
    {"..", 5, 2, kMalformed},
    {"1.2.3", 5, 2, kMalformed},
    {"1..2", 5, 2, kMalformed},
    {"-1", 5, 0, kMalformed},
    {"+1", 5, 0, kMalformed},
    {"1e2", 5, 0, kMalformed},
    {"12a", 5, 0, kMalformed},
    {"1,5", 5, 2, kMalformed},
    {"\xB1", 5, 2, kMalformed},
    {"1\x81", 5, 2, kMalformed},
};

} // namespace

TEST(ParseFixed, ReadsWhatFitsIntoItsDigits)
{
    for (const SFixed& row : kFixed)
    {
        SCOPED_TRACE(testing::Message() << '"' << row.text << "\" with " << row.whole << '.' << row.decimals);
        LONGLONG value = 4711;
        const BOOL accepted = ParseFixed(row.text, row.whole, row.decimals, value);
        EXPECT_EQ(accepted, row.value == kMalformed ? FALSE : TRUE);
        EXPECT_EQ(value, row.value == kMalformed ? 4711 : row.value);
    }
}

TEST(ParseFixed, ReadsBackEveryValueAsItIsWritten)
{
    constexpr LONGLONG kHighest = 12000;
    for (int decimals = 0; decimals <= 2; ++decimals)
        for (LONGLONG value = 0; value <= kHighest; ++value)
        {
            LONGLONG back = -1;
            ASSERT_TRUE(ParseFixed(FormatFixed(value, decimals), 5, decimals, back)) << value;
            ASSERT_EQ(back, value) << decimals;
        }
}

TEST(ParseFixed, RefusesHugeTexts)
{
    LONGLONG value = 4711;
    EXPECT_FALSE(ParseFixed(std::string(100000, '9').c_str(), 5, 2, value));
    EXPECT_FALSE(ParseFixed((std::string(100000, '0') + "1").c_str(), 5, 2, value));
    EXPECT_FALSE(ParseFixed(("0." + std::string(100000, '1')).c_str(), 5, 2, value));
    EXPECT_EQ(value, 4711);
    EXPECT_TRUE(ParseFixed(("1." + std::string(100000, '0')).c_str(), 5, 2, value));
    EXPECT_EQ(value, 100);
}
