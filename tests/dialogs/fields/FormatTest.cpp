// How the entries of a field are written and read.
#include <gtest/gtest.h>

#include "dialogs/base/WzdFormat.h"

#include <climits>

namespace
{

CString Written(SWzdFormat format, LONGLONG value) { return format.Format(value); }

} // namespace

TEST(FieldFormat, WritesFractionsWithoutZerosAtTheEnd)
{
    EXPECT_EQ(Written(Fixed(2, 2), 1250), "12.5");
    EXPECT_EQ(Written(Fixed(2, 2), 1205), "12.05");
    EXPECT_EQ(Written(Fixed(2, 2), 1200), "12");
    EXPECT_EQ(Written(Fixed(2, 2), 5), "0.05");
    EXPECT_EQ(Written(Fixed(2, 2), 50), "0.5");
    EXPECT_EQ(Written(Fixed(3, 2), 10000), "100");
    EXPECT_EQ(Written(Fixed(2, 2), 0), "0");
    EXPECT_EQ(Written(Fixed(3, 1), 1), "0.1");
    EXPECT_EQ(Written(Fixed(3, 1), 10), "1");
    EXPECT_EQ(Written(Fixed(3, 1), 9999), "999.9");
}

TEST(FieldFormat, WritesWholeNumbersAsTheyAre)
{
    EXPECT_EQ(Written(Fixed(5, 0), 10000), "10000");
    EXPECT_EQ(Written(kSigned, 0), "0");
    EXPECT_EQ(Written(kSigned, -2147483648LL), "-2147483648");
}

TEST(FieldFormat, WritesTheSignOfAStoredValueBeforeItsMagnitude)
{
    EXPECT_EQ(Written(Fixed(2, 2), -150), "-1.5");
    EXPECT_EQ(Written(Fixed(3, 1), -5), "-0.5");
}

TEST(FieldFormat, ReadsSignedNumbersUnlessItHasDigits)
{
    LONGLONG value = 7;
    EXPECT_TRUE(kSigned.Parse(" -12 ", value));
    EXPECT_EQ(value, -12);
    EXPECT_FALSE(kSigned.Parse("1.5", value));
    EXPECT_EQ(value, -12) << "a malformed text leaves it alone";

    constexpr SWzdFormat kTenths = Fixed(3, 1);
    EXPECT_TRUE(kTenths.Parse("1.5", value));
    EXPECT_EQ(value, 15);
    EXPECT_FALSE(kTenths.Parse("-1", value));
    EXPECT_EQ(value, 15);
}

TEST(FieldFormat, ReadsHexadecimalNumbersOf32Bits)
{
    const struct
    {
        const char* text;
        LONGLONG value;
    } kTexts[] = {
        {"0", 0},
        {"00000000000000000000", 0},
        {"a", 10},
        {"A", 10},
        {"fFfF", 0xFFFF},
        {" 12 ", 0x12},
        {"7FFFFFFF", 0x7FFFFFFF},
        {"80000000", 0x80000000LL},
        {"FFFFFFFF", 0xFFFFFFFFLL},
        {"00000000FFFFFFFF", 0xFFFFFFFFLL},
        {"100000000", LLONG_MAX}, // in no range
        {"100000001", LLONG_MAX},
        {"0000100000001", LLONG_MAX},
        {"FFFFFFFFFFFFFFFF", LLONG_MAX},
        {"10000000000000000000000001", LLONG_MAX},
    };
    for (const auto& [text, expected] : kTexts)
    {
        LONGLONG value = 7;
        EXPECT_TRUE(kHexadecimal.Parse(text, value)) << text;
        EXPECT_EQ(value, expected) << text;
    }
    for (const char* text : {"", " ", "-1", "+1", "G", "1G", "0x1", "1.0", "1 2", "FFFFFFFFG", "100000000x", "\xB2"})
    {
        LONGLONG value = 7;
        EXPECT_FALSE(kHexadecimal.Parse(text, value)) << text;
        EXPECT_EQ(value, 7) << "a malformed text leaves it alone: " << text;
    }
}

TEST(FieldFormat, WritesHexadecimalNumbersInCapitals)
{
    EXPECT_EQ(Written(kHexadecimal, 0), "0");
    EXPECT_EQ(Written(kHexadecimal, 0xABCDEF), "ABCDEF");
    EXPECT_EQ(Written(kHexadecimal, 0xFFFFFFFFLL), "FFFFFFFF");
    EXPECT_EQ(Written(kHexadecimal, -1), "FFFFFFFF");
    EXPECT_EQ(Written(kHexadecimal, INT_MIN), "80000000");
}
