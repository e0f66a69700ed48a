// Breaking a text into lines of a width, measured with a real device context.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "afx/CodePage.h"
#include "core/Values.h"
#include "tests/core/ValueModels.h"
#include "tests/robust/CodePage.h"

namespace
{

const std::string kBreak = "\r\n";

struct SBroken
{
    std::string line;
    std::string rest;

    bool operator==(const SBroken& other) const { return line == other.line && rest == other.rest; }
};

void PrintTo(const SBroken& broken, std::ostream* out)
{
    *out << "line \"" << broken.line << "\", rest \"" << broken.rest << "\"";
}

class TakeFittingLineTest : public ::testing::Test
{
protected:
    SBroken Take(int width, const std::string& text)
    {
        CString rest = text.c_str();
        const CString line = TakeFittingLine(&m_dc, width, rest);
        return {static_cast<LPCSTR>(line), static_cast<LPCSTR>(rest)};
    }

    int Width(const std::string& text) { return m_dc.GetTextExtent(text.c_str(), static_cast<int>(text.size())).cx; }

    /// The text in characters of one or two bytes.
    static std::vector<std::string> Characters(const std::string& text)
    {
        std::vector<std::string> characters;
        for (size_t i = 0; i < text.size();)
        {
            const bool isDouble =
                ::IsDBCSLeadByteEx(AfxGetTextPage(), static_cast<BYTE>(text[i])) && i + 1 < text.size();
            characters.push_back(text.substr(i, isDouble ? 2 : 1));
            i += characters.back().size();
        }
        return characters;
    }

    /// How the text is to be broken.
    SBroken Expected(int width, const std::string& text)
    {
        const size_t cut = text.find(kBreak);
        const std::string head = text.substr(0, cut);
        const std::string aside = cut != std::string::npos ? text.substr(cut + 2) : "";
        if (Width(head) <= width)
            return {head, aside};
        const size_t taken = FittingBytes(width, head);
        if (taken == head.size())
            return {head, aside};
        return {head.substr(0, taken), head.substr(taken) + (cut != std::string::npos ? kBreak + aside : "")};
    }

    static WCHAR Wide(const std::string& character)
    {
        return static_cast<LPCWSTR>(CWideText(character.c_str(), static_cast<int>(character.size())))[0];
    }

    /// Where a line ends that `next` does not fit into.
    static size_t BreakBefore(const std::string& prefix, std::string next)
    {
        const std::u16string neverFirst = u"!%),.:;?]’”…、。々〉》」』】〕ー！），．：；？］｝ะัาำิีึืฺุูๅๆ็่้๊๋์ํ๎";
        const std::u16string neverLast = u"([‘“〈《「『【〔（［｛เแโใไ";
        const auto isIn = [](const std::u16string& set, WCHAR c) { return set.find(c) != std::u16string::npos; };
        const auto isWestern = [](WCHAR c) { return c < 0x0E00 || (c >= 0x2000 && c < 0x2C00); };
        std::vector<std::string> taken = Characters(prefix);
        size_t length = prefix.size();
        for (int back = 0; back < 9 && !taken.empty(); ++back)
        {
            const WCHAR before = Wide(taken.back());
            const WCHAR after = Wide(next);
            const bool isMixed = before == ' ' || !isWestern(before) || !isWestern(after);
            if (isMixed && !isIn(neverLast, before) && !isIn(neverFirst, after))
                return length;
            next = taken.back();
            taken.pop_back();
            length -= next.size();
        }
        return prefix.size();
    }

    size_t FittingBytes(int width, const std::string& head)
    {
        std::string prefix;
        size_t behindBlank = 0;
        for (const std::string& character : Characters(head))
        {
            if (Width(prefix + character) > width)
            {
                if (behindBlank != 0 && character.size() == 1)
                    return behindBlank;
                return prefix.empty() ? character.size() : BreakBefore(prefix, character);
            }
            prefix += character;
            if (character == " ")
                behindBlank = prefix.size();
        }
        return prefix.size();
    }

    CClientDC m_dc{CWnd::FromHandle(::GetDesktopWindow())};
};

} // namespace

TEST_F(TakeFittingLineTest, MeasuresSomething)
{
    ASSERT_GT(Width("W"), 0);
    ASSERT_GT(Width("WW"), Width("W"));
}

TEST_F(TakeFittingLineTest, TakesATextThatFits)
{
    EXPECT_EQ(Take(Width("pulse output"), "pulse output"), (SBroken{"pulse output", ""}));
    EXPECT_EQ(Take(100000, "pulse output"), (SBroken{"pulse output", ""}));
    EXPECT_EQ(Take(100, ""), (SBroken{"", ""}));
    EXPECT_EQ(Take(0, ""), (SBroken{"", ""}));
    EXPECT_EQ(Take(-5, ""), (SBroken{"", ""}));
}

TEST_F(TakeFittingLineTest, BreaksBehindTheLastBlank)
{
    EXPECT_EQ(Take(Width("pulse output ") - 1, "pulse output"), (SBroken{"pulse output", ""}));
    EXPECT_EQ(Take(Width("pulse output") - 1, "pulse output"), (SBroken{"pulse ", "output"}));
    EXPECT_EQ(Take(Width("pulse o"), "pulse output"), (SBroken{"pulse ", "output"}));
    EXPECT_EQ(Take(Width("one two th"), "one two three"), (SBroken{"one two ", "three"}));
    EXPECT_EQ(Take(Width("a  b"), "a  bc"), (SBroken{"a  ", "bc"}));
}

TEST_F(TakeFittingLineTest, ABlankThatDoesNotFitIsNotPassed)
{
    EXPECT_EQ(Take(Width("pulse"), "pulse output"), (SBroken{"pulse", " output"}));
    EXPECT_EQ(Take(Width("one two"), "one two three"), (SBroken{"one ", "two three"}));
}

TEST_F(TakeFittingLineTest, BreaksALongWordAtTheLastCharacterThatFits)
{
    EXPECT_EQ(Take(Width("trape"), "trapezoidal"), (SBroken{"trape", "zoidal"}));
    EXPECT_EQ(Take(Width("trapez") - 1, "trapezoidal"), (SBroken{"trape", "zoidal"}));
}

TEST_F(TakeFittingLineTest, TakesAtLeastOneCharacter)
{
    for (const int width : {0, 1, -1, -1000})
    {
        EXPECT_EQ(Take(width, "WM"), (SBroken{"W", "M"}));
        EXPECT_EQ(Take(width, "W" + kBreak + "M"), (SBroken{"W", "M"}));
    }
}

TEST_F(TakeFittingLineTest, ALineBreakAlwaysEndsTheLine)
{
    EXPECT_EQ(Take(100000, "first" + kBreak + "second"), (SBroken{"first", "second"}));
    EXPECT_EQ(Take(100000, "first" + kBreak + kBreak + "third"), (SBroken{"first", kBreak + "third"}));
    EXPECT_EQ(Take(100000, kBreak + "second"), (SBroken{"", "second"}));
    EXPECT_EQ(Take(0, kBreak + "second"), (SBroken{"", "second"}));
    EXPECT_EQ(Take(100000, "first" + kBreak), (SBroken{"first", ""}));
}

TEST_F(TakeFittingLineTest, TheSetAsidePartFollowsTheRest)
{
    EXPECT_EQ(Take(Width("pulse o"), "pulse output" + kBreak + "second" + kBreak + "third"),
              (SBroken{"pulse ", "output" + kBreak + "second" + kBreak + "third"}));
}

TEST_F(TakeFittingLineTest, LoneLineEndsAreCharacters)
{
    for (const std::string text : {"a\rb", "a\nb", "a\n\rb", "a\r"})
        EXPECT_EQ(Take(100000, text), (SBroken{text, ""}));
}

TEST_F(TakeFittingLineTest, WorksWithAnyFont)
{
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(240, "MS Sans Serif", &m_dc));
    const int small = Width("pulse");
    CFont* before = m_dc.SelectObject(&font);
    EXPECT_GT(Width("pulse"), small);
    EXPECT_EQ(Take(Width("pulse o"), "pulse output"), (SBroken{"pulse ", "output"}));
    m_dc.SelectObject(before);
    EXPECT_EQ(Width("pulse"), small);
}

TEST_F(TakeFittingLineTest, AgreesWithTheModelAndLosesNothing)
{
    values::CTextRandom random(21);
    const std::string alphabet = "abcdefgWil.,-()  \t\x81\x83\xA0\xE0\xFC";
    for (const unsigned codePage : kCodePages)
    {
        const CTextPage page(codePage);
        for (int round = 0; round < 1000; ++round)
        {
            std::string text = random.From(alphabet, random.Below(60));
            if (random.Below(4) == 0)
                text += kBreak + random.From(alphabet, 1 + random.Below(20));
            const int width = static_cast<int>(random.Below(200)) - 5;
            const SBroken broken = Take(width, text);
            ASSERT_EQ(broken, Expected(width, text)) << "width " << width << ", code page " << codePage;
            const std::string joined = broken.line + broken.rest;
            ASSERT_TRUE(joined == text || broken.line + kBreak + broken.rest == text);
        }
    }
}

TEST_F(TakeFittingLineTest, ComesToAnEnd)
{
    values::CTextRandom random(22);
    for (int round = 0; round < 200; ++round)
    {
        std::string text;
        for (int i = 0; i < 5; ++i)
            text += random.From("abc def\x81\x40 \r\n", random.Below(30)) + kBreak;
        CString rest = text.c_str();
        int lines = 0;
        while (!rest.IsEmpty())
        {
            TakeFittingLine(&m_dc, static_cast<int>(random.Below(60)), rest);
            ASSERT_LE(++lines, static_cast<int>(text.size()));
        }
    }
}

TEST_F(TakeFittingLineTest, NeverSplitsADoubleByteCharacter)
{
    const CTextPage page(932);
    const std::string wide = "\x83\x70\x83\x8B\x83\x58"; // three characters
    const std::string one = wide.substr(0, 2);
    EXPECT_EQ(Take(Width(wide) - 1, wide), (SBroken{wide.substr(0, 4), wide.substr(4)}));
    EXPECT_EQ(Take(Width(one), wide), (SBroken{one, wide.substr(2)}));
    EXPECT_EQ(Take(0, wide), (SBroken{one, wide.substr(2)}));
    EXPECT_EQ(Take(Width("ab " + one), "ab " + wide), (SBroken{"ab " + one, wide.substr(2)}))
        << "a double-byte character that does not fit breaks before itself";
    EXPECT_EQ(Take(Width("ab " + wide), "ab " + wide + "cd"), (SBroken{"ab ", wide + "cd"}))
        << "a single-byte one behind the last blank";
}

namespace
{

/// Where a text of East Asia or Thailand is broken: in its own code page, whatever the system's is. The line is
/// measured to hold `fits`, but no character more.
struct SBreak
{
    unsigned codePage;
    const char16_t* fits;
    const char16_t* behind;
    const char16_t* line;
};

std::string Narrow(const std::u16string& text)
{
    const std::vector<WCHAR> wide(text.begin(), text.end());
    return static_cast<LPCSTR>(AfxNarrow(wide.data(), static_cast<int>(wide.size())));
}

const SBreak kBreaks[] = {
    // Between any two characters, but not before closing punctuation nor behind an opening bracket.
    {932, u"出力しま", u"す。", u"出力しま"},
    {932, u"出力します", u"。次に", u"出力しま"},
    {932, u"出力（する）", u"、次に", u"出力（す"},
    {932, u"出力（", u"する）", u"出力"},
    {932, u"「出力」と「", u"（入力）」", u"「出力」と"},
    {932, u"サーボモ", u"ータ", u"サーボ"},
    {932, u"サーボモー", u"タ", u"サーボモー"},
    {936, u"选择“到达", u"”时", u"选择“到"},
    {936, u"选择“", u"到达”", u"选择"},
    {936, u"设定；", u"功能", u"设定；"},
    {950, u"功能許", u"，功", u"功能"},
    {950, u"功能（", u"許", u"功能"},
    {949, u"설정", u"합니다", u"설정"},
    // Nor inside a word of another script, nor before its punctuation.
    {932, u"出力Y", u"0から", u"出力"},
    {932, u"出力Y0", u"から", u"出力Y0"},
    {932, u"出力Y0", u"。次", u"出力"},
    {932, u"出力JO", u"G", u"出力"},
    {932, u"幅(ON", u"幅)", u"幅(ON"},
    {932, u"幅(ON幅", u")", u"幅(ON"},
    {932, u"出力(", u"幅)", u"出力"},
    {932, u"モード F", u"168", u"モード "},
    {932, u"モード F1", u"。", u"モード "},
    // Unless there is nothing else to do.
    {932, u"ABCDEFGHIJKL", u"M", u"ABCDEFGHIJKL"},
    {932, u"出力ABCDEFGHIJKL", u"M", u"出力ABCDEFGHIJKL"},
    {932, u"。。。", u"。", u"。。。"},
    {932, u"（", u"（", u"（"},
    // Thai: behind a blank where there is one, else between characters, which keep their marks and vowels.
    {874, u"เอาต์พุต พัล", u"ส์", u"เอาต์พุต "},
    {874, u"พัลส์", u"ชัด", u"พัลส์"},
    {874, u"พัล", u"ส์", u"พัล"},
    {874, u"คว", u"าม", u"ค"},
    {874, u"คว", u"ำม", u"ค"},
    {874, u"ตำแหน่", u"ง", u"ตำแหน่"},
    {874, u"ตำแ", u"หน่ง", u"ตำ"},
    {874, u"ตำ", u"แหน่ง", u"ตำ"},
    {874, u"พัลส์Y", u"0", u"พัลส์"},
};

} // namespace

TEST_F(TakeFittingLineTest, BreaksWhereTheLanguageAllows)
{
    for (const SBreak& row : kBreaks)
    {
        const CTextPage page(row.codePage);
        const std::string fits = Narrow(row.fits);
        const std::string behind = Narrow(row.behind);
        const std::string line = Narrow(row.line);
        SCOPED_TRACE(testing::Message() << "code page " << row.codePage << ", row " << &row - kBreaks);
        const std::string text = fits + behind;
        EXPECT_EQ(Take(Width(fits), text), (SBroken{line, text.substr(line.size())}));
    }
}

// Whether a mark that takes no room fits is the font's affair: the line that follows begins with none in any width.
TEST_F(TakeFittingLineTest, KeepsThaiMarksWithTheirConsonants)
{
    const CTextPage page(874);
    const std::string text = Narrow(u"ตำแหน่งเป้าหมายที่ตั้งไว้ด้วยพัลส์กำลังส่งเอาต์พุตอยู่");
    const std::string marks = Narrow(u"ะัาำิีึืฺุูๅๆ็่้๊๋์ํ๎");
    const std::string vowels = Narrow(u"เแโใไ");
    const int widest = Width(text);
    for (int width = widest / 8; width < widest; ++width)
    {
        const SBroken broken = Take(width, text);
        ASSERT_EQ(broken.line + broken.rest, text);
        ASSERT_FALSE(broken.rest.empty());
        EXPECT_EQ(marks.find(broken.rest.front()), std::string::npos) << "width " << width;
        EXPECT_EQ(vowels.find(broken.line.back()), std::string::npos) << "width " << width;
    }
}
