// Conversions between code pages and UTF-16, and what the system says about code pages.
#include "tests/afx/offscreen/UseCodePage.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace
{

std::u16string Widen(UINT codePage, std::string_view text, DWORD flags = 0)
{
    WCHAR buffer[200];
    const int size =
        MultiByteToWideChar(codePage, flags, text.data(), static_cast<int>(text.size()), buffer, std::size(buffer));
    return {buffer, static_cast<std::size_t>(size)};
}

std::string Narrow(UINT codePage, std::u16string_view text, DWORD flags = 0)
{
    char buffer[200];
    const int size = WideCharToMultiByte(codePage, flags, text.data(), static_cast<int>(text.size()), buffer,
                                         std::size(buffer), nullptr, nullptr);
    return {buffer, static_cast<std::size_t>(size)};
}

struct Sample
{
    UINT codePage;
    std::string bytes;
    std::u16string text;
};

class CCodePagesTest : public testing::TestWithParam<Sample>
{
};

TEST_P(CCodePagesTest, ConvertsBothWays)
{
    const auto& [codePage, bytes, text] = GetParam();
    EXPECT_EQ(Widen(codePage, bytes), text);
    EXPECT_EQ(Widen(codePage, bytes, MB_ERR_INVALID_CHARS), text);
    EXPECT_EQ(Narrow(codePage, text), bytes);
    EXPECT_EQ(Narrow(codePage, text, codePage == CP_UTF8 ? 0 : WC_NO_BEST_FIT_CHARS), bytes);
}

INSTANTIATE_TEST_SUITE_P(
    AllCodePages, CCodePagesTest,
    testing::Values(Sample{1252, "a\xE9\x80\x99", u"a\u00E9\u20AC\u2122"},
                    Sample{874, "\xA1\xD2\xC3 1", u"\u0E01\u0E32\u0E23 1"},
                    Sample{932, "\x82\xA0\xB1\x95\x5C\x81\x60\x81\x7C", u"\u3042\uFF71\u8868\uFF5E\uFF0D"},
                    Sample{936, "\xD6\xD0\xCE\xC4\x80\xA1\xAA", u"\u4E2D\u6587\u20AC\u2014"},
                    Sample{949, "\xC7\xD1\xB1\xDB\x81\x41", u"\uD55C\uAE00\uAC02"},
                    Sample{950, "\xA4\xA4\xA4\xE5\xA5\x5C", u"\u4E2D\u6587\u529F"},
                    Sample{CP_UTF8, "a\xC3\xA9\xE3\x81\x82\xF0\x9F\x98\x80", u"a\u00E9\u3042\U0001F600"}),
    [](const auto& sample) { return "Page" + std::to_string(sample.param.codePage); });

TEST(CodePagesTest, EverySingleByteSurvivesTheWayThereAndBack)
{
    for (const UINT codePage : {1252u, 874u, 932u, 936u, 949u, 950u})
        for (unsigned byte = 1; byte < 256; ++byte)
        {
            if (IsDBCSLeadByteEx(codePage, static_cast<BYTE>(byte)))
                continue;
            const std::string text(1, static_cast<char>(byte));
            EXPECT_EQ(Narrow(codePage, Widen(codePage, text)), text) << codePage << ' ' << byte;
        }
}

TEST(CodePagesTest, WhatACodePageLacksIsReplaced)
{
    EXPECT_EQ(Narrow(1252, u"a\u3042b"), "a?b");
    BOOL used = FALSE;
    char buffer[10] = {};
    EXPECT_EQ(WideCharToMultiByte(1252, 0, u"a\u3042", -1, buffer, 10, "*", &used), 3);
    EXPECT_STREQ(buffer, "a*");
    EXPECT_TRUE(used);
    EXPECT_EQ(WideCharToMultiByte(932, 0, u"a\u3042", -1, buffer, 10, nullptr, &used), 4);
    EXPECT_STREQ(buffer, "a\x82\xA0");
    EXPECT_FALSE(used);
}

TEST(CodePagesTest, BytesThatAreNoCharacterAreReplacedOrRefused)
{
    EXPECT_EQ(Widen(932, "\x81\xAD\x82"), u"\u30FB\u30FB"); // A pair without a character, and half a one
    EXPECT_EQ(Widen(936, "\x82"), u"?");
    EXPECT_EQ(Widen(1252, "\x81", MB_ERR_INVALID_CHARS), u"\u0081");
    for (const auto& [codePage, text] : {std::pair<UINT, const char*>{932, "\x81\xAD"},
                                         {874, "\xDB"},
                                         {CP_UTF8, "\xC3"},
                                         {CP_UTF8, "\xC0\x80"},
                                         {CP_UTF8, "\xED\xA0\x80"}})
    {
        SetLastError(NO_ERROR);
        EXPECT_EQ(Widen(codePage, text, MB_ERR_INVALID_CHARS), u"") << codePage;
        EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_NO_UNICODE_TRANSLATION));
    }
    EXPECT_EQ(Widen(CP_UTF8, "\xC3(\xFF"), u"\uFFFD(\uFFFD");
    EXPECT_EQ(Narrow(CP_UTF8, std::u16string(1, 0xD800)), "\xEF\xBF\xBD");
    EXPECT_EQ(Narrow(CP_UTF8, std::u16string(1, 0xD800), WC_ERR_INVALID_CHARS), "");
}

TEST(CodePagesTest, ALineBreakEndsNoCharacter) { EXPECT_EQ(Widen(932, "\x83\r\n"), u"\u30FB\r\n"); }

TEST(CodePagesTest, TheAnsiCodePageIsMeantByItsNumber0)
{
    const CUseCodePage japanese(932);
    EXPECT_EQ(GetACP(), 932u);
    EXPECT_EQ(Widen(CP_ACP, "\x82\xA0"), u"\u3042");
    EXPECT_EQ(Narrow(CP_ACP, u"\u3042"), "\x82\xA0");
    EXPECT_TRUE(IsDBCSLeadByteEx(CP_ACP, 0x82));
    EXPECT_TRUE(IsDBCSLeadByteEx(936, 0xFE));
    EXPECT_FALSE(IsDBCSLeadByteEx(932, 0xB1));
    EXPECT_FALSE(IsDBCSLeadByteEx(1252, 0x82));
    EXPECT_FALSE(IsDBCSLeadByteEx(12345, 0x82));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_PARAMETER));
}

TEST(CodePagesTest, KnowsTheCodePagesThatItConverts)
{
    for (const UINT codePage : {874u, 932u, 936u, 949u, 950u, 1252u, 65001u})
        EXPECT_TRUE(IsValidCodePage(codePage)) << codePage;
    EXPECT_FALSE(IsValidCodePage(CP_ACP));
    EXPECT_FALSE(IsValidCodePage(12345));
}

TEST(CodePagesTest, LengthsAndSizes)
{
    WCHAR wide[4] = {};
    EXPECT_EQ(MultiByteToWideChar(1252, 0, "abc", -1, nullptr, 0), 4);
    EXPECT_EQ(MultiByteToWideChar(1252, 0, "abc", 2, nullptr, 0), 2);
    EXPECT_EQ(MultiByteToWideChar(1252, 0, "abc", -1, wide, 2), 0);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INSUFFICIENT_BUFFER));
    EXPECT_EQ(wide[1], u'b');
    EXPECT_EQ(MultiByteToWideChar(1252, 0, "abc", 0, wide, 4), 0);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_PARAMETER));
    EXPECT_EQ(MultiByteToWideChar(1252, 0x100, "abc", -1, wide, 4), 0);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_FLAGS));
    EXPECT_EQ(MultiByteToWideChar(4711, 0, "abc", -1, wide, 4), 0);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_PARAMETER));
    char narrow[4] = {};
    EXPECT_EQ(WideCharToMultiByte(932, 0, u"\u3042", -1, nullptr, 0, nullptr, nullptr), 3);
    EXPECT_EQ(WideCharToMultiByte(932, 0, u"\u3042", -1, narrow, 2, nullptr, nullptr), 0);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INSUFFICIENT_BUFFER));
    BOOL used = FALSE;
    EXPECT_EQ(WideCharToMultiByte(CP_UTF8, 0, u"a", -1, narrow, 4, nullptr, &used), 0);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_PARAMETER));
}

TEST(CodePagesTest, LocalesKnowTheirCodePage)
{
    struct Row
    {
        LANGID language;
        const char* codePage;
        DWORD number;
    };
    for (const Row& row : {Row{0x409, "1252", 1252},
                           {0x411, "932", 932},
                           {0x804, "936", 936},
                           {0x404, "950", 950},
                           {0x412, "949", 949},
                           {0x40A, "1252", 1252},
                           {0xC0A, "1252", 1252},
                           {0x410, "1252", 1252},
                           {0x41E, "874", 874}})
    {
        const LCID locale = MAKELCID(MAKELANGID(PRIMARYLANGID(row.language), SUBLANGID(row.language)), SORT_DEFAULT);
        char text[10] = {};
        const int size = static_cast<int>(std::string_view(row.codePage).size()) + 1;
        EXPECT_EQ(GetLocaleInfoA(locale, LOCALE_IDEFAULTANSICODEPAGE, nullptr, 0), size);
        EXPECT_EQ(GetLocaleInfoA(locale, LOCALE_IDEFAULTANSICODEPAGE, text, 10), size);
        EXPECT_STREQ(text, row.codePage);
        WCHAR wide[10] = {};
        EXPECT_EQ(GetLocaleInfoW(locale, LOCALE_IDEFAULTANSICODEPAGE, wide, 10), size);
        EXPECT_EQ(std::u16string(wide), Widen(1252, row.codePage));
        DWORD number = 0;
        EXPECT_EQ(GetLocaleInfoW(locale, LOCALE_IDEFAULTANSICODEPAGE | LOCALE_RETURN_NUMBER,
                                 reinterpret_cast<LPWSTR>(&number), sizeof number / sizeof(WCHAR)),
                  2);
        EXPECT_EQ(number, row.number);
        number = 0;
        EXPECT_EQ(GetLocaleInfoA(locale, LOCALE_IDEFAULTANSICODEPAGE | LOCALE_RETURN_NUMBER,
                                 reinterpret_cast<LPSTR>(&number), sizeof number),
                  4);
        EXPECT_EQ(number, row.number);
    }
    char text[10] = {};
    EXPECT_EQ(GetLocaleInfoA(0x411, LOCALE_IDEFAULTANSICODEPAGE, text, 2), 0);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INSUFFICIENT_BUFFER));
    EXPECT_EQ(GetLocaleInfoA(0x4711, LOCALE_IDEFAULTANSICODEPAGE, text, 10), 0);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_PARAMETER));
}

} // namespace
