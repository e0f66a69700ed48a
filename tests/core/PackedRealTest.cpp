// Packed real numbers: every rule on both sides of its edge, and round trips.
#include <gtest/gtest.h>

#include <cstring>

#include "core/Values.h"
#include "tests/core/ValueModels.h"

using namespace values;

namespace
{

struct SRealCase
{
    const char* text;
    int result;
    DWORD packed;
};

std::string RealText(DWORD packed, BOOL exponentNotation)
{
    char buffer[60];
    std::memset(buffer, 'x', sizeof buffer);
    EXPECT_EQ(FormatPackedReal(packed, buffer, exponentNotation), buffer);
    EXPECT_EQ(std::string(buffer + 50, 10), std::string(10, 'x'));
    buffer[50] = '\0';
    return buffer;
}

} // namespace

TEST(FormatPackedReal, WritesEveryForm)
{
    EXPECT_EQ(RealText(Packed(0, 0), FALSE), "0");
    EXPECT_EQ(RealText(Packed(0, 70), TRUE), "0");
    EXPECT_EQ(RealText(Packed(0, 127), FALSE), "0");
    EXPECT_EQ(RealText(Packed(25, 68), FALSE), "0.25");
    EXPECT_EQ(RealText(Packed(25, 71), FALSE), "250");
    EXPECT_EQ(RealText(Packed(25, 71), TRUE), "25E+1");
    EXPECT_EQ(RealText(Packed(25, 69, 1), FALSE), "-2.5");
    EXPECT_EQ(RealText(Packed(25, 69, 1), TRUE), "-25E-1");
    EXPECT_EQ(RealText(Packed(25, 70), FALSE), "25");
    EXPECT_EQ(RealText(Packed(25, 70), TRUE), "25E+0");
    EXPECT_EQ(RealText(Packed(5, 67), FALSE), "0.005");
    EXPECT_EQ(RealText(Packed(5, 69), FALSE), "0.5");
    EXPECT_EQ(RealText(Packed(123, 67), FALSE), "0.123");
    EXPECT_EQ(RealText(Packed(1234, 67), FALSE), "1.234");
    EXPECT_EQ(RealText(Packed(0xFFFFFF, 70, 1), FALSE), "-16777215");
    EXPECT_EQ(RealText(Packed(1, 0), TRUE), "1E-70");
    EXPECT_EQ(RealText(Packed(1, 127), TRUE), "1E+57");
}

TEST(FormatPackedReal, CutsAt49Characters)
{
    EXPECT_EQ(RealText(Packed(1, 118), FALSE), "1" + std::string(48, '0'));
    EXPECT_EQ(RealText(Packed(1, 119), FALSE), "1" + std::string(48, '0'));
    EXPECT_EQ(RealText(Packed(1, 118, 1), FALSE), "-1" + std::string(47, '0'));
    EXPECT_EQ(RealText(Packed(7, 23), FALSE), "0." + std::string(46, '0') + "7");
    EXPECT_EQ(RealText(Packed(7, 22), FALSE), "0." + std::string(47, '0'));
    EXPECT_EQ(RealText(Packed(7, 23, 1), FALSE), "-0." + std::string(46, '0'));
}

TEST(FormatPackedReal, AgreesWithTheModel)
{
    CTextRandom random(3);
    for (int round = 0; round < 50000; ++round)
    {
        const DWORD packed = random.Bits() & ~(random.Below(2) != 0 ? 0x00FFF000u : 0u);
        ASSERT_EQ(RealText(packed, FALSE), PackedRealText(packed, false)) << std::hex << packed;
        ASSERT_EQ(RealText(packed, TRUE), PackedRealText(packed, true)) << std::hex << packed;
    }
}

TEST(ParsePackedReal, ReadsEveryForm)
{
    const SRealCase cases[] = {
        {"0", 1, 0},
        {"-0", 1, 0},
        {"0.000", 1, 0},
        {"000", 1, 0},
        {"0E-9", 1, 0},
        {"5", 1, Packed(5, 70)},
        {"-5", 1, Packed(5, 70, 1)},
        {"-  5", 1, Packed(5, 70, 1)},
        {" 1 2 ", 1, Packed(12, 70)},
        {"250", 1, Packed(25, 71)},
        {"0.25", 1, Packed(25, 68)},
        {".25", 1, Packed(25, 68)},
        {"25.", 1, Packed(25, 70)},
        {"2.50", 1, Packed(25, 69)},
        {"0012.3400", 1, Packed(1234, 68)},
        {"25E1", 1, Packed(25, 71)},
        {"25e1", 1, Packed(25, 71)},
        {"25E+1", 1, Packed(25, 71)},
        {"25E-1", 1, Packed(25, 69)},
        {"2.5E-3", 1, Packed(25, 66)},
        {"100E-2", 1, Packed(1, 70)},
        {"5E 3", 1, Packed(5, 73)},
        {"5 E3", 1, Packed(5, 73)},
        {"5E+ 3", 1, Packed(5, 73)},
        {"5E003", 1, Packed(5, 73)},
        {"1.0000000000000000000000", 1, Packed(1, 70)},
        {"10000000000000000000000", 1, Packed(1, 92)},
        {"", 0, 0},
        {"-", 0, 0},
        {"-  ", 0, 0},
        {".", 0, 0},
        {"+5", 0, 0},
        {"--5", 0, 0},
        {"5-", 0, 0},
        {"5-3", 0, 0},
        {"1.2.3", 0, 0},
        {"1..2", 0, 0},
        {"E5", 0, 0},
        {"-E5", 0, 0},
        {"5E", 0, 0},
        {"5E+", 0, 0},
        {"5E-", 0, 0},
        {"5E 3E2", 0, 0},
        {"5EE3", 0, 0},
        {"5E3E2", 0, 0},
        {"5E3.", 0, 0},
        {"5E.3", 0, 0},
        {"5E3-", 0, 0},
        {"5E +3", 0, 0},
        {"5E+-3", 0, 0},
        {"5,3", 0, 0},
        {"5x", 0, 0},
        {"5\t", 0, 0},
        {"\xB2", 0, 0},
    };
    for (const BYTE realMode : std::initializer_list<BYTE>{0, 1})
        for (const SRealCase& c : cases)
        {
            DWORD packed = 0xABCDEF01;
            EXPECT_EQ(ParsePackedReal(c.text, packed, realMode, -1), c.result) << c.text << ", mode " << +realMode;
            if (c.result != 0)
            {
                EXPECT_EQ(packed, c.packed) << c.text << ", mode " << +realMode;
            }
        }
}

TEST(ParsePackedReal, StoresTheGivenSign)
{
    const struct
    {
        const char* text;
        signed char sign;
        DWORD packed;
    } cases[] = {
        {"5", 0, Packed(5, 70)},
        {"5", 1, Packed(5, 70, 1)},
        {"5", -1, Packed(5, 70)},
        {"-5", 0, Packed(5, 70)},
        {"-5", 1, Packed(5, 70, 1)},
        {"-5", -1, Packed(5, 70, 1)},
        {"0", 1, 0},
        {"-0", -1, 0},
        {"-5", -128, Packed(5, 70, 1)},
        {"5", -2, Packed(5, 70)},
    };
    for (const auto& c : cases)
    {
        DWORD packed = 0;
        EXPECT_EQ(ParsePackedReal(c.text, packed, 0, c.sign), 1);
        EXPECT_EQ(packed, c.packed) << c.text << ", sign " << +c.sign;
    }
}

TEST(ParsePackedReal, RealModeHoldsToSinglePrecision)
{
    const SRealCase cases[] = {
        {"1234567", 1, Packed(1234567, 70)},
        {"12345678", 0, 0},
        {"12345670", 1, Packed(1234567, 71)},
        {"0.00012345670", 1, Packed(1234567, 60)},
        {"1.2345678", 0, 0},
        {"3.402822E38", 1, Packed(3402822, 102)},
        {"3.402823E38", 0, 0},
        {"3.402824E38", 0, 0},
        {"-3.402822E38", 1, Packed(3402822, 102, 1)},
        {"-3.402823E38", 0, 0},
        {"3E38", 1, Packed(3, 108)},
        {"4E38", 0, 0},
        {"1E39", 0, 0},
        {"1E57", 0, 0},
        {"1.175494E-38", 1, Packed(1175494, 26)},
        {"1.175493E-38", 0, 0},
        {"1.2E-38", 1, Packed(12, 31)},
        {"1E-38", 0, 0},
        {"1E-37", 1, Packed(1, 33)},
        {"1E99999999999999999999", 0, 0},
        {"1E-99999999999999999999", 0, 0},
        {"0E99999999999999999999", 1, 0},
    };
    for (const SRealCase& c : cases)
    {
        DWORD packed = 0;
        EXPECT_EQ(ParsePackedReal(c.text, packed, 1, -1), c.result) << c.text;
        if (c.result != 0)
        {
            EXPECT_EQ(packed, c.packed) << c.text;
        }
    }
}

TEST(ParsePackedReal, OtherwiseThePackedFormIsTheLimit)
{
    const SRealCase cases[] = {
        {"16777215", 1, Packed(16777215, 70)},
        {"16777216", 0, 0},
        {"167772150", 1, Packed(16777215, 71)},
        {"99999999", 0, 0},
        {"1E57", 1, Packed(1, 127)},
        {"1E58", 0, 0},
        {"1E-70", 1, Packed(1, 0)},
        {"1E-71", 0, 0},
        {"10E57", 0, 0},
        {"0.1E58", 1, Packed(1, 127)},
        {"1.5E-70", 0, 0},
        {"4E38", 1, Packed(4, 108)},
        {"1E4294967296", 0, 0},
        {"1E-4294967296", 0, 0},
        {"1E18446744073709551616", 0, 0},
        {"0E99999999999999999999", 1, 0},
    };
    for (const SRealCase& c : cases)
    {
        DWORD packed = 0;
        EXPECT_EQ(ParsePackedReal(c.text, packed, 0, -1), c.result) << c.text;
        if (c.result != 0)
        {
            EXPECT_EQ(packed, c.packed) << c.text;
        }
    }
}

TEST(PackedReals, ReadBackInBothForms)
{
    CTextRandom random(4);
    for (int round = 0; round < 50000; ++round)
    {
        DWORD mantissa = (random.Bits() & 0xFFFFFF) >> random.Below(24);
        mantissa += mantissa % 10 == 0 ? 1 : 0; // trailing zeros belong to the exponent
        const DWORD packed = Packed(mantissa, random.Below(128), random.Below(2));
        DWORD read = 0;
        ASSERT_EQ(ParsePackedReal(RealText(packed, TRUE).c_str(), read, 0, -1), 1);
        ASSERT_EQ(read, packed);
        const std::string plain = RealText(packed, FALSE);
        if (plain.size() == 49)
            continue; // possibly cut
        ASSERT_EQ(ParsePackedReal(plain.c_str(), read, 0, -1), 1) << plain;
        ASSERT_EQ(read, packed) << plain;
    }
}
