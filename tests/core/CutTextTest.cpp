// Texts cut to a number of bytes, behind whole characters of one or two bytes.
#include <gtest/gtest.h>

#include "core/Values.h"
#include "tests/core/ValueModels.h"
#include "tests/robust/CodePage.h"
#include "tests/support/PrintTo.h"

#include <string>

namespace
{

class CLeftWholeTest : public testing::Test
{
protected:
    ~CLeftWholeTest() override { UseCodePage(kCodePages[0]); }
};

/// As many whole characters as fit.
std::string Expected(const std::string& text, int bytes)
{
    std::string left;
    for (size_t at = 0; at < text.size();)
    {
        const bool isDouble = ::IsDBCSLeadByte(static_cast<BYTE>(text[at])) && at + 1 < text.size();
        const std::string character = text.substr(at, isDouble ? 2 : 1);
        if (static_cast<int>(left.size() + character.size()) > bytes)
            break;
        left += character;
        at += character.size();
    }
    return left;
}

TEST_F(CLeftWholeTest, CutsSingleByteCharactersAnywhere)
{
    for (const unsigned codePage : {1252u, 874u})
    {
        UseCodePage(codePage);
        if (::GetACP() != codePage)
            continue; // the desktop stays with its own
        for (const std::string text : {"", "a", "abcde", "abcdef", "\xE4\xF6\xFC\x83\x5C\x80"})
            for (int bytes = 0; bytes <= 7; ++bytes)
                EXPECT_EQ(LeftWhole(text.c_str(), bytes), text.substr(0, static_cast<size_t>(bytes)).c_str())
                    << '"' << text << "\" to " << bytes << ", code page " << codePage;
    }
}

struct SCut
{
    const char* text;
    const char* left[7]; // by bytes, from 0
};

// A double-byte character, \x8E\xA0, in each of these code pages.
constexpr SCut kCuts[] = {
    {"\x8E\xA0\x8E\xA0\x8E\xA0",
     {"", "", "\x8E\xA0", "\x8E\xA0", "\x8E\xA0\x8E\xA0", "\x8E\xA0\x8E\xA0", "\x8E\xA0\x8E\xA0\x8E\xA0"}},
    {"a\x8E\xA0\x8E\xA0z", {"", "a", "a", "a\x8E\xA0", "a\x8E\xA0", "a\x8E\xA0\x8E\xA0", "a\x8E\xA0\x8E\xA0z"}},
    {"ab\x8E\xA0yz", {"", "a", "ab", "ab", "ab\x8E\xA0", "ab\x8E\xA0y", "ab\x8E\xA0yz"}},
    {"abcd\x8E\xA0", {"", "a", "ab", "abc", "abcd", "abcd", "abcd\x8E\xA0"}},
    // Half a character at the end counts as one.
    {"abc\x8E", {"", "a", "ab", "abc", "abc\x8E", "abc\x8E", "abc\x8E"}},
};

TEST_F(CLeftWholeTest, NeverCutsADoubleByteCharacter)
{
    int codePages = 0;
    for (const unsigned codePage : {932u, 936u, 949u, 950u})
    {
        UseCodePage(codePage);
        if (::GetACP() != codePage)
            continue; // the desktop stays with its own
        ++codePages;
        for (const SCut& cut : kCuts)
            for (int bytes = 0; bytes < static_cast<int>(std::size(cut.left)); ++bytes)
                EXPECT_EQ(LeftWhole(cut.text, bytes), cut.left[bytes]) << cut.text << " to " << bytes;
    }
    if (codePages == 0)
        GTEST_SKIP() << "this desktop has one code page";
}

TEST_F(CLeftWholeTest, LeavesATextThatFits)
{
    for (const int bytes : {5, 6, 255, 100000})
        EXPECT_EQ(LeftWhole("abcde", bytes), CString("abcde"));
    const CString longText('x', 70000);
    EXPECT_EQ(LeftWhole(longText, 70000), longText);
    EXPECT_EQ(LeftWhole(longText, 69999).GetLength(), 69999);
}

TEST_F(CLeftWholeTest, AgreesWithTheModel)
{
    values::CTextRandom random(31);
    for (const unsigned codePage : kCodePages)
    {
        UseCodePage(codePage);
        for (int round = 0; round < 2000; ++round)
        {
            const std::string text = random.From("ab 1\x5C\x40\x81\x8E\xA0\xB0\xE0\xFC\xFF", random.Below(12));
            const int bytes = static_cast<int>(random.Below(13));
            ASSERT_EQ(LeftWhole(text.c_str(), bytes), Expected(text, bytes).c_str())
                << testing::PrintToString(text) << " to " << bytes << ", code page " << codePage;
        }
    }
}

TEST(FitEntered, CutsWhatGoesOnAndPushesNothingOut)
{
    const struct
    {
        const char* entered;
        const char* before;
        const char* fits;
    } kTexts[] = {
        {"abcde", "abcd", "abcde"},   {"ab", "abcde", "ab"},       {"", "abcde", ""},
        {"abcdefgh", "", "abcde"},    {"abcdefgh", "ab", "abcde"}, {"abcdef", "abcde", "abcde"},
        {"Xabcde", "abcde", "abcde"}, {"abXYcd", "abcd", "abcd"},  {"abcXYd", "abcd", "abcd"},
        {"uvwxyz", "abcd", "uvwxy"},  {"aXbcd", "abcd", "aXbcd"},  {"XYZabcde", "de", "de"},
    };
    for (const auto& text : kTexts)
        EXPECT_EQ(FitEntered(text.entered, text.before, 5), CString(text.fits))
            << text.entered << " for " << text.before;
}

} // namespace
