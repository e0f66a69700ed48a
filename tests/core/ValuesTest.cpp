// Whole numbers and bit-device numbers: every rule on both sides of its edge, and round trips.
#include <gtest/gtest.h>

#include <climits>
#include <cstring>

#include "core/Values.h"
#include "tests/core/ValueModels.h"

using namespace values;

namespace
{

struct SDecimalCase
{
    const char* text;
    BOOL ok;
    LONGLONG value;
};

struct SHexCase
{
    const char* text;
    BOOL ok;
    DWORD value;
};

struct SBitCase
{
    const char* text;
    int result;
    int number;
};

constexpr BOOL kUnwritten = 7;

std::string BitText(int number, BOOL compact)
{
    char buffer[16];
    std::memset(buffer, 'x', sizeof buffer);
    EXPECT_EQ(FormatBitDeviceNumber(number, buffer, compact), 1);
    EXPECT_EQ(std::string(buffer + 5, 11), std::string(11, 'x')) << "five bytes are all it needs";
    return buffer;
}

} // namespace

TEST(ParseDecimal64, ReadsEveryForm)
{
    const SDecimalCase cases[] = {
        {"0", 1, 0},
        {"12", 1, 12},
        {"-12", 1, -12},
        {" -12 ", 1, -12},
        {"\t\r\n\v\f 7 \t\r\n\v\f", 1, 7},
        {"007", 1, 7},
        {"-0", 1, 0},
        {"-", 1, 0},
        {" - ", 1, 0},
        {"9223372036854775807", 1, LLONG_MAX},
        {"-9223372036854775808", 1, LLONG_MIN},
        {"9223372036854775808", 1, LLONG_MIN},
        {"18446744073709551615", 1, -1},
        {"18446744073709551616", 1, 0},
        {"-18446744073709551617", 1, -1},
        {"", 0, 0},
        {"   ", 0, 0},
        {"1-2", 0, 0},
        {"12-", 0, 0},
        {"--12", 0, 0},
        {"+12", 0, 0},
        {"- 12", 0, 0},
        {"1 2", 0, 0},
        {"12a", 0, 0},
        {"a12", 0, 0},
        {"1.5", 0, 0},
        {"0x10", 0, 0},
        {"\xB2", 0, 0},
        {"1\x82\x50", 0, 0},
    };
    for (const SDecimalCase& c : cases)
    {
        BOOL ok = kUnwritten;
        EXPECT_EQ(ParseDecimal64(c.text, &ok), c.value) << c.text;
        EXPECT_EQ(ok, c.ok) << c.text;
        EXPECT_EQ(ParseDecimal64(c.text), c.value) << c.text;
        EXPECT_EQ(ParseDecimal64(c.text, nullptr), c.value) << c.text;
    }
}

TEST(ParseDecimal64, ReadsBackWhatIsWritten)
{
    CTextRandom random(1);
    for (int round = 0; round < 20000; ++round)
    {
        const auto bits = static_cast<ULONGLONG>(random.Bits()) << 32 | random.Bits();
        const auto value = static_cast<LONGLONG>(bits) >> random.Below(64);
        ASSERT_EQ(ParseDecimal64(FormatDecimal64(value)), value);
    }
}

TEST(ParseEntry64, StopsAtTheBoundsInsteadOfWrapping)
{
    const SDecimalCase cases[] = {
        {" -12 ", 1, -12},
        {"-", 1, 0},
        {"9223372036854775807", 1, LLONG_MAX},
        {"9223372036854775808", 1, LLONG_MAX},
        {"18446744073709551616", 1, LLONG_MAX},
        {"99999999999999999999999999", 1, LLONG_MAX},
        {"-9223372036854775808", 1, LLONG_MIN},
        {"-9223372036854775809", 1, LLONG_MIN},
        {"-18446744073709551617", 1, LLONG_MIN},
        {"", 0, 0},
        {"1-2", 0, 0},
        {"99999999999999999999x", 0, 0},
    };
    for (const SDecimalCase& c : cases)
    {
        BOOL ok = kUnwritten;
        EXPECT_EQ(ParseEntry64(c.text, &ok), c.value) << c.text;
        EXPECT_EQ(ok, c.ok) << c.text;
    }
}

TEST(ParseHex32, ReadsEveryForm)
{
    const SHexCase cases[] = {
        {"", 1, 0},
        {"   ", 1, 0},
        {"0", 1, 0},
        {"1A", 1, 0x1A},
        {"1a", 1, 0x1A},
        {" fF ", 1, 0xFF},
        {"\t1\n", 1, 1},
        {"FFFFFFFF", 1, 0xFFFFFFFF},
        {"0123456789", 1, 0x23456789},
        {"abcdefABCDEF", 1, 0xEFABCDEF},
        {"100000000", 1, 0},
        {"12G4", 0, 0x12},
        {"G", 0, 0},
        {"-1", 0, 0},
        {"+1", 0, 0},
        {"1 2", 0, 1},
        {"0x10", 0, 0},
        {"12345678z", 0, 0x12345678},
        {"1\xC1", 0, 1},
    };
    for (const SHexCase& c : cases)
    {
        BOOL ok = kUnwritten;
        EXPECT_EQ(ParseHex32(c.text, &ok), c.value) << c.text;
        EXPECT_EQ(ok, c.ok) << c.text;
        EXPECT_EQ(ParseHex32(c.text), c.value) << c.text;
    }
}

TEST(ParseHex32, ReadsBackWhatIsWritten)
{
    CTextRandom random(2);
    for (int round = 0; round < 20000; ++round)
    {
        const DWORD value = random.Bits() >> random.Below(32);
        ASSERT_EQ(ParseHex32(FormatHex32(value)), value);
    }
}

TEST(FormatBitDeviceNumber, WritesWordAndBit)
{
    EXPECT_EQ(BitText(170, TRUE), "10A");
    EXPECT_EQ(BitText(170, FALSE), " 10A");
    EXPECT_EQ(BitText(5, TRUE), "5");
    EXPECT_EQ(BitText(5, FALSE), "   5");
    EXPECT_EQ(BitText(0, TRUE), "0");
    EXPECT_EQ(BitText(0, FALSE), "   0");
    EXPECT_EQ(BitText(15, TRUE), "F");
    EXPECT_EQ(BitText(16, TRUE), "10");
    EXPECT_EQ(BitText(16, FALSE), "  10");
    EXPECT_EQ(BitText(15999, TRUE), "999F");
    EXPECT_EQ(BitText(15999, FALSE), "999F");
    EXPECT_EQ(BitText(14419, 2), "9013") << "any flag but 0 is compact";
}

TEST(FormatBitDeviceNumber, RefusesWhatHasNoNotation)
{
    for (const int number : {16000, 16001, 0x10000, INT_MAX, -1, -16, INT_MIN})
        for (const BOOL compact : {FALSE, TRUE})
        {
            char buffer[8] = "before";
            EXPECT_EQ(FormatBitDeviceNumber(number, buffer, compact), 0) << number;
            EXPECT_STREQ(buffer, "before");
        }
}

TEST(ParseBitDeviceNumber, ReadsEveryForm)
{
    const SBitCase cases[] = {
        {"A", 1, 10},
        {"a", 1, 10},
        {"0", 1, 0},
        {"9", 1, 9},
        {"10A", 1, 170},
        {"10a", 1, 170},
        {" 10F", 1, 175},
        {"   5", 1, 5},
        {"999F", 1, 15999},
        {"10000", 1, 16000},
        {"00012", 1, 18},
        {" ", 1, 0},
        {"12 ", 1, 192},
        {"    ", 1, 0},
        {"1 2", 1, 18},
        {"1 23", 1, 195},
        {"", 0, 0},
        {"G", 0, 0},
        {"1G", 0, 0},
        {"A1", 0, 0},
        {"1A2", 0, 0},
        {"-5", 0, 0},
        {"+5", 0, 0},
        {"1.", 0, 0},
        {"\t5", 0, 0},
        {"5\t", 0, 0},
        {"\xB2"
         "5",
         0, 0},
        {"5\xC1", 0, 0},
    };
    for (const SBitCase& c : cases)
    {
        int number = -77;
        EXPECT_EQ(ParseBitDeviceNumber(c.text, number), c.result) << c.text;
        if (c.result != 0)
        {
            EXPECT_EQ(number, c.number) << c.text;
        }
    }
}

TEST(ParseBitDeviceNumber, StopsAtTheHighestNumber)
{
    for (const char* text : {"134217727F", "1342177280", "99999999999999999999F", "99999999999999999999"})
    {
        int number = 0;
        EXPECT_EQ(ParseBitDeviceNumber(text, number), 1);
        EXPECT_EQ(number, INT_MAX) << text;
    }
}

TEST(BitDeviceNumbers, AllReadBackInBothForms)
{
    for (int number = 0; number < 16000; ++number)
        for (const BOOL compact : {FALSE, TRUE})
        {
            const std::string text = BitText(number, compact);
            ASSERT_EQ(text, BitNumberText(number, compact != FALSE));
            int read = -1;
            ASSERT_EQ(ParseBitDeviceNumber(text.c_str(), read), 1) << text;
            ASSERT_EQ(read, number) << text;
        }
}
