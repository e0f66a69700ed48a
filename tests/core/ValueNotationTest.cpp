// The notations of device numbers, device names and fixed-point values.
#include <gtest/gtest.h>

#include <climits>

#include "core/Values.h"
#include "tests/core/ValueModels.h"

using namespace values;

namespace
{

constexpr short kBitCodes[] = {0, 1, 2, 3, 17, 20001};
constexpr short kDecimalCodes[] = {4, 5, 6, 7, 8, 9, 10, 11, 15, 18, 64, 65, 66, 67, 20009, 20065, 30000, -1};
constexpr short kHex = 12;
constexpr short kReal = 20;
constexpr int kNumbers[] = {0, 1, 9, 10, 16, 170, 14419, 15999, 16000, 32767, 99999, -1, -16, INT_MAX, INT_MIN};

} // namespace

TEST(FormatDeviceNumber, OfBitDevicesIsCompact)
{
    for (const short code : kBitCodes)
    {
        EXPECT_STREQ(FormatDeviceNumber(code, 170), "10A");
        EXPECT_STREQ(FormatDeviceNumber(code, 5), "5");
        EXPECT_STREQ(FormatDeviceNumber(code, 15999), "999F");
        EXPECT_STREQ(FormatDeviceNumber(code, 16000), "16000") << "no notation: decimal";
        EXPECT_STREQ(FormatDeviceNumber(code, -1), "-1");
        EXPECT_STREQ(FormatDeviceNumber(code, INT_MAX), "2147483647");
    }
}

TEST(FormatDeviceNumber, OfEverythingElseIsDecimal)
{
    for (const short code : kDecimalCodes)
        for (const int number : kNumbers)
            EXPECT_STREQ(FormatDeviceNumber(code, number), std::to_string(number).c_str()) << code;
}

TEST(FormatDeviceNumber, OfHexadecimalConstants)
{
    EXPECT_STREQ(FormatDeviceNumber(kHex, 0), "0");
    EXPECT_STREQ(FormatDeviceNumber(kHex, 0x1AF), "1AF");
    EXPECT_STREQ(FormatDeviceNumber(kHex, -1), "FFFFFFFF");
    EXPECT_STREQ(FormatDeviceNumber(kHex, INT_MIN), "80000000");
}

TEST(FormatDeviceNumber, OfRealConstants)
{
    EXPECT_STREQ(FormatDeviceNumber(kReal, static_cast<int>(Packed(25, 68))), "0.25");
    EXPECT_STREQ(FormatDeviceNumber(kReal, static_cast<int>(Packed(25, 69, 1))), "-2.5");
    EXPECT_STREQ(FormatDeviceNumber(kReal, static_cast<int>(Packed(25, 71))), "250");
    EXPECT_STREQ(FormatDeviceNumber(kReal, 0), "0");
}

TEST(ParseDeviceNumber, ReadsBackEveryBitNumber)
{
    for (const short code : kBitCodes)
        for (int written = 0; written < 16000; ++written)
        {
            int number = -1;
            ASSERT_TRUE(ParseDeviceNumber(code, FormatDeviceNumber(code, written), number));
            ASSERT_EQ(number, written);
        }
}

TEST(ParseDeviceNumber, ReadsBackEveryOtherNotation)
{
    for (const int written : kNumbers)
    {
        int number = 4711;
        for (const short code : kDecimalCodes)
        {
            ASSERT_TRUE(ParseDeviceNumber(code, FormatDeviceNumber(code, written), number));
            EXPECT_EQ(number, written) << code;
        }
        ASSERT_TRUE(ParseDeviceNumber(kHex, FormatDeviceNumber(kHex, written), number));
        EXPECT_EQ(number, written);
    }
    for (const DWORD packed : {Packed(25, 68), Packed(25, 69, 1), Packed(9999999, 80), Packed(1, 33), DWORD(0)})
    {
        int number = 4711;
        ASSERT_TRUE(ParseDeviceNumber(kReal, FormatDeviceNumber(kReal, static_cast<int>(packed)), number));
        EXPECT_EQ(static_cast<DWORD>(number), packed);
    }
}

TEST(ParseDeviceNumber, TrimsBlanks)
{
    int number = 0;
    EXPECT_TRUE(ParseDeviceNumber(3, " 10A ", number));
    EXPECT_EQ(number, 170);
    EXPECT_TRUE(ParseDeviceNumber(3, " 12 ", number));
    EXPECT_EQ(number, 18);
    EXPECT_TRUE(ParseDeviceNumber(9, " 12 ", number));
    EXPECT_EQ(number, 12);
    EXPECT_TRUE(ParseDeviceNumber(kHex, " 12 ", number));
    EXPECT_EQ(number, 18);
}

TEST(ParseDeviceNumber, RefusesForeignTexts)
{
    const std::pair<short, const char*> cases[] = {
        {3, ""},    {3, "  "},   {3, "G"},    {3, "1A2"}, {3, "-5"},     {3, "1.5"},  {9, ""},     {9, " "},
        {9, "10A"}, {9, "1-2"},  {9, "1.5"},  {9, "x"},   {4, "A"},      {18, "1F"},  {67, "10F"}, {20009, "0x1"},
        {12, "G"},  {12, "12G"}, {12, "1.5"}, {20, ""},   {20, "1.2.3"}, {20, "abc"}, {20, "1E"},  {11, "+5"},
    };
    for (const auto& [code, text] : cases)
    {
        int number = 4711;
        EXPECT_FALSE(ParseDeviceNumber(code, text, number)) << code << " " << text;
        EXPECT_EQ(number, 4711) << code << " " << text;
    }
}

TEST(FormatDeviceName, IsTheTextOfTheDeviceTable)
{
    const std::pair<short, const char*> names[] = {
        {3, "X"},  {2, "Y"},   {1, "R"},   {20001, "Sp.R"}, {4, "T"},         {5, "C"},   {0, "L"},  {18, "E"},
        {17, "P"}, {67, "WX"}, {66, "WY"}, {65, "WR"},      {20065, "Sp.WR"}, {64, "WL"}, {9, "DT"}, {20009, "Sp.DT"},
        {6, "SV"}, {7, "EV"},  {10, "FL"}, {8, "LD"},       {15, "INDEX"},    {11, "K"},  {12, "H"}, {20, "f"},
    };
    for (const auto& [code, name] : names)
        EXPECT_STREQ(FormatDeviceName(code), name) << code;
}

TEST(FormatFixed, PutsTheSignBeforeTheMagnitude)
{
    EXPECT_STREQ(FormatFixed(1250, 2), "12.50");
    EXPECT_STREQ(FormatFixed(-1250, 2), "-12.50");
    EXPECT_STREQ(FormatFixed(-5, 1), "-0.5");
    EXPECT_STREQ(FormatFixed(5, 1), "0.5");
    EXPECT_STREQ(FormatFixed(0, 1), "0.0");
    EXPECT_STREQ(FormatFixed(0, 2), "0.00");
    EXPECT_STREQ(FormatFixed(7, 2), "0.07");
    EXPECT_STREQ(FormatFixed(-7, 2), "-0.07");
    EXPECT_STREQ(FormatFixed(100, 2), "1.00");
    EXPECT_STREQ(FormatFixed(-100, 2), "-1.00");
    EXPECT_STREQ(FormatFixed(LLONG_MAX, 2), "92233720368547758.07");
    EXPECT_STREQ(FormatFixed(LLONG_MIN, 2), "-92233720368547758.08");
}

TEST(FormatFixed, AgreesWithTheModel)
{
    CTextRandom random(5);
    for (int round = 0; round < 20000; ++round)
    {
        const auto bits = static_cast<ULONGLONG>(random.Bits()) << 32 | random.Bits();
        const auto value = static_cast<LONGLONG>(bits) >> random.Below(64);
        const int decimals = 1 + static_cast<int>(random.Below(4));
        ASSERT_STREQ(FormatFixed(value, decimals), FixedText(value, decimals).c_str());
    }
}

TEST(FormatDecimal64, WritesAll64Bits)
{
    EXPECT_STREQ(FormatDecimal64(0), "0");
    EXPECT_STREQ(FormatDecimal64(-1), "-1");
    EXPECT_STREQ(FormatDecimal64(4294967296), "4294967296");
    EXPECT_STREQ(FormatDecimal64(LLONG_MAX), "9223372036854775807");
    EXPECT_STREQ(FormatDecimal64(LLONG_MIN), "-9223372036854775808");
}

TEST(FormatHex32, WritesEightDigits)
{
    EXPECT_STREQ(FormatHex32(0), "00000000");
    EXPECT_STREQ(FormatHex32(0x1AF), "000001AF");
    EXPECT_STREQ(FormatHex32(0xFFFFFFFF), "FFFFFFFF");
    EXPECT_STREQ(FormatHex32(0x80000000), "80000000");
}
