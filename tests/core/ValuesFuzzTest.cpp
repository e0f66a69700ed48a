// Every reader over texts of every kind, compared with the models. None may crash or hang.
#include <gtest/gtest.h>

#include <climits>

#include "core/Values.h"
#include "tests/core/ValueModels.h"

using namespace values;

namespace
{

constexpr int kTexts = 30000;

/// Beyond this the models do not say what a reader returns.
constexpr long long kHighestSettledNumber = INT_MAX;

std::string Shown(const std::string& text)
{
    std::string shown;
    for (const char c : text.substr(0, 80))
    {
        if (c >= ' ' && c <= '~')
        {
            shown += c;
            continue;
        }
        const char digits[] = "0123456789abcdef";
        const auto byte = static_cast<unsigned char>(c);
        shown += std::string("\\x") + digits[byte / 16] + digits[byte % 16];
    }
    return "\"" + shown + "\" (" + std::to_string(text.size()) + " bytes)";
}

class ValuesFuzz : public ::testing::Test
{
protected:
    /// Calls check() with many texts; stops at the first that fails.
    template <typename TCheck>
    static void ForEveryText(unsigned seed, TCheck check)
    {
        CTextRandom random(seed);
        for (int i = 0; i < kTexts && !HasFailure(); ++i)
            CheckText(random.Text(), check);
        for (const std::string& text : HugeTexts())
            CheckText(text, check);
    }

private:
    template <typename TCheck>
    static void CheckText(const std::string& text, TCheck check)
    {
        check(text);
        if (HasFailure())
            ADD_FAILURE() << "first failing text: " << Shown(text);
    }
};

} // namespace

TEST_F(ValuesFuzz, Decimal)
{
    int accepted = 0;
    ForEveryText(11, [&accepted](const std::string& text) {
        const auto expected = Decimal(text);
        BOOL ok = 7;
        ASSERT_EQ(ParseDecimal64(text.c_str(), &ok), expected.value);
        ASSERT_EQ(ok, expected.ok ? 1 : 0);
        accepted += ok;
    });
    EXPECT_GT(accepted, kTexts / 20);
    EXPECT_LT(accepted, kTexts - kTexts / 20);
}

TEST_F(ValuesFuzz, Hex)
{
    int accepted = 0;
    ForEveryText(12, [&accepted](const std::string& text) {
        const auto expected = Hex(text);
        BOOL ok = 7;
        ASSERT_EQ(ParseHex32(text.c_str(), &ok), expected.value);
        ASSERT_EQ(ok, expected.ok ? 1 : 0);
        accepted += ok;
    });
    EXPECT_GT(accepted, kTexts / 20);
    EXPECT_LT(accepted, kTexts - kTexts / 20);
}

TEST_F(ValuesFuzz, BitNumber)
{
    int accepted = 0;
    ForEveryText(13, [&accepted](const std::string& text) {
        const auto expected = BitNumber(text);
        int number = 0;
        ASSERT_EQ(ParseBitDeviceNumber(text.c_str(), number), expected.ok ? 1 : 0);
        if (!expected.ok)
            return;
        ++accepted;
        if (expected.value >= 0 && expected.value <= kHighestSettledNumber)
        {
            ASSERT_EQ(number, expected.value);
        }
    });
    EXPECT_GT(accepted, kTexts / 20);
    EXPECT_LT(accepted, kTexts - kTexts / 20);
}

TEST_F(ValuesFuzz, PackedReal)
{
    int accepted = 0;
    ForEveryText(14, [&accepted](const std::string& text) {
        for (const BYTE realMode : std::initializer_list<BYTE>{0, 1})
            for (const signed char sign : std::initializer_list<signed char>{-1, 0, 1})
            {
                const auto expected = PackedReal(text, realMode == 1, sign);
                DWORD packed = 0;
                ASSERT_EQ(ParsePackedReal(text.c_str(), packed, realMode, sign), expected.ok ? 1 : 0);
                if (!expected.ok)
                    continue;
                ++accepted;
                ASSERT_EQ(packed, expected.value);
            }
    });
    EXPECT_GT(accepted, 6 * kTexts / 20);
    EXPECT_LT(accepted, 6 * (kTexts - kTexts / 20));
}

TEST_F(ValuesFuzz, DeviceNumbersReadBackWhatTheyAccept)
{
    int accepted = 0;
    ForEveryText(15, [&accepted](const std::string& text) {
        for (const short code : std::initializer_list<short>{3, 9, 11, 12, 20, 20001, -1})
        {
            int number = 4711;
            if (!ParseDeviceNumber(code, text.c_str(), number))
            {
                ASSERT_EQ(number, 4711);
                continue;
            }
            ++accepted;
            const CString written = FormatDeviceNumber(code, number);
            const bool isBit = code == 3 || code == 20001;
            if (code == 20 || (isBit && (number < 0 || number > 15999)))
                continue; // cut, or without a notation
            int again = 4712;
            ASSERT_TRUE(ParseDeviceNumber(code, written, again)) << code << " " << static_cast<LPCSTR>(written);
            ASSERT_EQ(again, number) << code;
        }
    });
    EXPECT_GT(accepted, kTexts / 5);
}
