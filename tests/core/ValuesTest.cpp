// Reading and writing of values: every rule on both sides of its edge, and round trips.
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

struct SRealCase
{
    const char* text;
    int result;
    DWORD packed;
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
    for (const BYTE realMode : {0, 1})
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
