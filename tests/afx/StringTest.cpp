#include <gtest/gtest.h>

#include "afx/afx.h"
#include "tests/core/FailingMemory.h"
#include "tests/support/PrintTo.h"

#include <chrono>
#include <string>

namespace
{

TEST(StringTest, IsEmptyAtFirst)
{
    const CString text;
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(text.GetLength(), 0);
    EXPECT_STREQ(text, "");
}

TEST(StringTest, IsConstructedFromTexts)
{
    EXPECT_EQ(CString("abc"), "abc");
    EXPECT_EQ(CString("abcdef", 3), "abc");
    EXPECT_EQ(CString('x', 4), "xxxx");
    EXPECT_EQ(CString('x', 0), "");
    EXPECT_EQ(CString(static_cast<LPCSTR>(nullptr)), "");
    const CString original("abc");
    const CString copy(original);
    EXPECT_EQ(copy, "abc");
    EXPECT_NE(static_cast<LPCSTR>(copy), static_cast<LPCSTR>(original));
}

TEST(StringTest, MovesItsStorage)
{
    CString source("abc");
    const LPCSTR storage = source;
    const CString target(std::move(source));
    EXPECT_EQ(static_cast<LPCSTR>(target), storage);
    EXPECT_EQ(target, "abc");
}

TEST(StringTest, IsAssigned)
{
    CString text("a longer text");
    text = "b";
    EXPECT_EQ(text, "b");
    text = 'c';
    EXPECT_EQ(text, "c");
    text = CString("moved");
    EXPECT_EQ(text, "moved");
    text = static_cast<LPCSTR>(nullptr);
    EXPECT_EQ(text, "");
}

TEST(StringTest, IsAssignedAPartOfItself)
{
    CString text("0123456789");
    text = static_cast<LPCSTR>(text) + 7;
    EXPECT_EQ(text, "789");
    const CString& same = text;
    text = same;
    EXPECT_EQ(text, "789");
}

TEST(StringTest, Appends)
{
    CString text;
    text += "ab";
    text += 'c';
    text += CString("de");
    text += static_cast<LPCSTR>(nullptr);
    text += text;
    EXPECT_EQ(text, "abcdeabcde");
    EXPECT_EQ("<" + text.Left(1) + '|' + CString("x") + "y" + '>', "<a|xy>");
    EXPECT_EQ('<' + CString("x"), "<x");
}

TEST(StringTest, KeepsZerosThatAreAppendedWithALength)
{
    const CString text = CString("a\0b", 3) + CString("\0c", 2);
    EXPECT_EQ(text.GetLength(), 5);
    EXPECT_EQ(std::memcmp(text, "a\0b\0c", 6), 0);
}

TEST(StringTest, Compares)
{
    const CString text("b");
    EXPECT_TRUE(text == "b" && "b" == text && text == CString("b"));
    EXPECT_TRUE(text != "a" && "a" != text && text != CString("a"));
    EXPECT_TRUE(text < "c" && "a" < text && CString("a") < text);
    EXPECT_TRUE(text > "a" && "c" > text && text > CString("a"));
    EXPECT_TRUE(text <= "b" && "b" <= text && text >= "b" && "b" >= text);
    EXPECT_GT(CString("\xE4").Compare("z"), 0); // bytes are unsigned
    EXPECT_EQ(text.Compare(nullptr), CString("b").Compare(""));
}

TEST(StringTest, ComparesWithoutCase)
{
    EXPECT_EQ(CString("AbC").CompareNoCase("aBc"), 0);
    EXPECT_LT(CString("abc").CompareNoCase("ABD"), 0);
    EXPECT_GT(CString("abcd").CompareNoCase("ABC"), 0);
    EXPECT_LT(CString("ab").CompareNoCase("ABC"), 0);
    EXPECT_NE(CString("\xC4").CompareNoCase("\xE4"), 0);
}

TEST(StringTest, TakesParts)
{
    const CString text("abcdef");
    EXPECT_EQ(text.Left(2), "ab");
    EXPECT_EQ(text.Right(2), "ef");
    EXPECT_EQ(text.Mid(2), "cdef");
    EXPECT_EQ(text.Mid(2, 3), "cde");
}

TEST(StringTest, PartsStopAtTheEnds)
{
    const CString text("abc");
    EXPECT_EQ(text.Left(-1), "");
    EXPECT_EQ(text.Left(99), "abc");
    EXPECT_EQ(text.Right(-1), "");
    EXPECT_EQ(text.Right(99), "abc");
    EXPECT_EQ(text.Mid(-1, 2), "ab");
    EXPECT_EQ(text.Mid(2, INT_MAX), "c");
    EXPECT_EQ(text.Mid(99), "");
    EXPECT_EQ(CString().Mid(0, 5), "");
}

TEST(StringTest, Finds)
{
    const CString text("abcabc");
    EXPECT_EQ(text.Find('b'), 1);
    EXPECT_EQ(text.Find('b', 2), 4);
    EXPECT_EQ(text.Find('x'), -1);
    EXPECT_EQ(text.Find('\0'), -1);
    EXPECT_EQ(text.Find('a', 6), -1);
    EXPECT_EQ(text.Find('a', -1), -1);
    EXPECT_EQ(text.Find("ca"), 2);
    EXPECT_EQ(text.Find("bc", 2), 4);
    EXPECT_EQ(text.Find("", 6), 6);
    EXPECT_EQ(text.Find("a", 7), -1);
    EXPECT_EQ(text.ReverseFind('c'), 5);
    EXPECT_EQ(text.ReverseFind('x'), -1);
    EXPECT_EQ(text.FindOneOf("xcb"), 1);
    EXPECT_EQ(text.FindOneOf("xyz"), -1);
    EXPECT_EQ(CString().Find('a'), -1);
    EXPECT_EQ(CString().ReverseFind('a'), -1);
    EXPECT_EQ(CString().FindOneOf("a"), -1);
}

TEST(StringTest, Trims)
{
    CString text(" \t\r\n x y \v\f ");
    text.TrimLeft();
    EXPECT_EQ(text, "x y \v\f ");
    text.TrimRight();
    EXPECT_EQ(text, "x y");
    CString blank("  ");
    blank.TrimRight();
    EXPECT_EQ(blank, "");
    CString empty;
    empty.TrimLeft();
    empty.TrimRight();
    EXPECT_EQ(empty, "");
}

TEST(StringTest, TrimsACharacterFromTheRight)
{
    CString text = "0.500";
    text.TrimRight('0');
    EXPECT_EQ(text, "0.5");
    text.TrimRight('0');
    EXPECT_EQ(text, "0.5");

    CString zeros = "000";
    zeros.TrimRight('0');
    EXPECT_TRUE(zeros.IsEmpty());

    CString empty;
    empty.TrimRight('0');
    EXPECT_TRUE(empty.IsEmpty());
}

TEST(StringTest, ChangesCase)
{
    CString text("aZ09[{");
    text.MakeUpper();
    EXPECT_EQ(text, "AZ09[{");
    text.MakeLower();
    EXPECT_EQ(text, "az09[{");
}

TEST(StringTest, Replaces)
{
    CString text("a-b-c");
    EXPECT_EQ(text.Replace('-', '+'), 2);
    EXPECT_EQ(text, "a+b+c");
    EXPECT_EQ(text.Replace("+", "<=>"), 2);
    EXPECT_EQ(text, "a<=>b<=>c");
    EXPECT_EQ(text.Replace("<=>", nullptr), 2);
    EXPECT_EQ(text, "abc");
    EXPECT_EQ(text.Replace("x", "y"), 0);
    EXPECT_EQ(text.Replace("", "y"), 0);
    EXPECT_EQ(text.Replace('a', 'a'), 0);
    EXPECT_EQ(text, "abc");
}

TEST(StringTest, ANullTextIsAnEmptyOne)
{
    const LPCSTR null = nullptr;
    EXPECT_EQ(CString(null, 3), "");
    EXPECT_EQ(CString(null, 0), "");

    CString text("abc");
    EXPECT_EQ(text.Find(null), text.Find(""));
    EXPECT_EQ(text.Find(null, 2), text.Find("", 2));
    EXPECT_EQ(text.FindOneOf(null), -1);
    EXPECT_EQ(text.Replace(null, "x"), 0);
    EXPECT_GT(text.CompareNoCase(null), 0);
    EXPECT_EQ(CString().CompareNoCase(null), 0);
    EXPECT_FALSE(text == null);
    EXPECT_TRUE(null == CString());
    EXPECT_TRUE(null < text);
    EXPECT_TRUE(text > null);
    EXPECT_EQ(text + null, "abc");
    EXPECT_EQ(null + text, "abc");
    text.Format(null);
    EXPECT_EQ(text, "");
}

TEST(StringTest, GivesAccessToItsCharacters)
{
    CString text("abc");
    EXPECT_EQ(text[1], 'b');
    EXPECT_EQ(text.GetAt(2), 'c');
    EXPECT_EQ(text[3], '\0');
    text.SetAt(0, 'x');
    EXPECT_EQ(text, "xbc");
}

TEST(StringTest, LendsABuffer)
{
    CString text("abc");
    LPSTR buffer = text.GetBuffer(100);
    EXPECT_STREQ(buffer, "abc");
    std::strcpy(buffer + 3, "defgh");
    text.ReleaseBuffer();
    EXPECT_EQ(text.GetLength(), 8);
    text.GetBuffer(0);
    text.ReleaseBuffer(2);
    EXPECT_EQ(text, "ab");
    std::memcpy(text.GetBufferSetLength(3), "xyz", 3);
    EXPECT_EQ(text, "xyz");
}

TEST(StringTest, LendsABufferOfAnEmptyText)
{
    CString text;
    text.GetBuffer(0)[0] = '\0';
    text.ReleaseBuffer();
    EXPECT_EQ(text, "");
    text.GetBuffer(-1)[0] = '\0';
    text.ReleaseBuffer();
    EXPECT_EQ(text.GetLength(), 0);
}

TEST(StringTest, FreesSpareStorage)
{
    CString text("abc");
    text.GetBuffer(1000);
    text.FreeExtra();
    EXPECT_EQ(text, "abc");
    text.Empty();
    text.FreeExtra();
    EXPECT_EQ(text, "");
}

CString Formatted(LPCSTR format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    CString text;
    text.FormatV(format, arguments);
    va_end(arguments);
    return text;
}

TEST(StringTest, Formats)
{
    EXPECT_EQ(Formatted("(%d - %d)", -1, 32767), "(-1 - 32767)");
    EXPECT_EQ(Formatted("%s|%5s|%-3s|%c|%%", "a", "b", "c", 'd'), "a|    b|c  |d|%");
    EXPECT_EQ(Formatted("%04X %x %u %o", 0x1Fu, 0xABCu, 4000000000u, 8u), "001F abc 4000000000 10");
    EXPECT_EQ(Formatted("%2.1f %.*e", 1.25, 2, 12345.0), "1.2 1.23e+04");
    EXPECT_EQ(Formatted("%*d", 4, 7), "   7");
    EXPECT_EQ(Formatted("100%%d"), "100%d");
    EXPECT_EQ(Formatted(""), "");
}

TEST(StringTest, FormatsWithTheSizesOfWindows)
{
    EXPECT_EQ(Formatted("%I64d %I64u %020I64d", -9000000000000000000LL, 18000000000000000000ULL, 5LL),
              "-9000000000000000000 18000000000000000000 00000000000000000005");
    EXPECT_EQ(Formatted("%lld %llX", -9000000000LL, 0xFEDCBA9876543210ULL), "-9000000000 FEDCBA9876543210");
    EXPECT_EQ(Formatted("%ld %lu %lX %I32d", LONG(-2), DWORD(4000000000u), DWORD(0xFFFFFFFF), -3),
              "-2 4000000000 FFFFFFFF -3");
    EXPECT_EQ(Formatted("%lf", 0.5), "0.500000");
}

TEST(StringTest, FormatsBrokenFormatsWithoutHarm)
{
    EXPECT_NO_THROW(Formatted("%"));
    EXPECT_NO_THROW(Formatted("abc%"));
    EXPECT_NO_THROW(Formatted("%I64"));
    EXPECT_NO_THROW(Formatted("%-08."));
}

TEST(StringTest, FormatsPartsOfItself)
{
    CString text("abc");
    text.Format("%s-%s", static_cast<LPCSTR>(text), static_cast<LPCSTR>(text) + 1);
    EXPECT_EQ(text, "abc-bc");
    text = CString('x', 300);
    text.Format("<%s>", static_cast<LPCSTR>(text));
    EXPECT_EQ(text, '<' + CString('x', 300) + '>');
}

TEST(StringTest, FormatsTextsAroundTheSizeOfItsBuffer)
{
    for (int length : {254, 255, 256, 257})
    {
        const std::string expected(static_cast<size_t>(length), 'q');
        EXPECT_EQ(Formatted("%s", expected.c_str()), expected.c_str());
    }
}

TEST(StringTest, AFailedOperationLeavesTheText)
{
    const CString original("0123456789");
    const int failures = WithEveryAllocationFailing(
        [&] {
            CString text;
            try
            {
                text = original;
                text += CString('x', 100);
                text.Format("%s%s", static_cast<LPCSTR>(text), static_cast<LPCSTR>(original));
                text.Replace("x", "yy");
                text.GetBuffer(1000);
                return 0;
            }
            catch (CMemoryException*)
            {
                // Every state on the way, and no other.
                const CString longer = original + CString('x', 100);
                return text == "" || text == original || text == longer || text == longer + original ||
                               text.GetLength() == 220
                           ? 1
                           : 2;
            }
        },
        [](int result) { EXPECT_EQ(result, 1); });
    EXPECT_GE(failures, 8);
}

TEST(StringTest, HandlesAMebibyteQuickly)
{
    const auto start = std::chrono::steady_clock::now();
    CString text;
    for (int i = 0; i < 1 << 20; ++i)
        text += 'a';
    EXPECT_EQ(text.Replace("a", "bc"), 1 << 20);
    EXPECT_EQ(text.GetLength(), 2 << 20);
    text.Format("%s!", static_cast<LPCSTR>(text));
    EXPECT_EQ(text.ReverseFind('!'), 2 << 20);
    const auto taken = std::chrono::steady_clock::now() - start;
    EXPECT_LT(taken, std::chrono::seconds(2));
}

TEST(StringTest, LoadingAStringThatDoesNotExistEmptiesTheText)
{
    CString text("before");
    EXPECT_FALSE(text.LoadString(64999));
    EXPECT_EQ(text, "");
}

} // namespace
