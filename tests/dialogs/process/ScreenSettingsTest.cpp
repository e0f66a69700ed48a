// The control data of the screen: every bit of it, each way, and the block that keeps it.
#include <gtest/gtest.h>

#include "dialogs/process/ScreenSettings.h"
#include "tests/robust/CodePage.h"
#include "tests/support/PrintTo.h"

#include <string>

namespace
{

using Block = SScreenSettings::Block;

// ---- The control word of a line -------------------------------------------------------------------------------------

struct SLineBit
{
    SWzdBits field;
    DWORD code;
    WORD word;
};

constexpr SLineBit kBits[] = {
    {kScreenPoints, 1, 0x0001},  {kScreenPoints, 2, 0x0002}, {kScreenPoints, 4, 0x0004}, {kScreenPoints, 8, 0x0008},
    {kScreenPoints, 16, 0x0010}, {kScreenMode, 1, 0x0020},   {kScreenMode, 2, 0x0040},   {kScreenMode, 4, 0x0080},
    {kScreenHidden, 1, 0x0100},  {kScreenHidden, 2, 0x0200}, {kScreenHidden, 4, 0x0400}, {kScreenHidden, 8, 0x0800},
    {kScreenHidden, 16, 0x1000}, {kScreenColor, 1, 0x2000},  {kScreenColor, 2, 0x4000},  {kScreenAllDigits, 1, 0x8000},
};

TEST(ScreenLine, HasAPlaceForEachOfSixteenBits)
{
    for (const SLineBit& bit : kBits)
    {
        SScreenLine line;
        line.control = 0;
        line.Set(bit.field, bit.code);
        EXPECT_EQ(line.control, bit.word);
        EXPECT_EQ(line.Get(bit.field), bit.code) << "of " << bit.word;

        line.control = 0xFFFF;
        line.Set(bit.field, 0);
        for (const SLineBit& other : kBits)
            EXPECT_EQ(line.Get(other.field) != 0, other.field.shift != bit.field.shift) << bit.word;
    }
}

TEST(ScreenLine, SetsAFieldAndLeavesTheOthers)
{
    for (const SWzdBits& field : {kScreenPoints, kScreenMode, kScreenHidden, kScreenColor, kScreenAllDigits})
        for (const WORD before : std::initializer_list<WORD>{0x0000, 0xFFFF, 0x5A5A, 0xA5A5})
            for (DWORD code = 0; code < 1u << field.width; ++code)
            {
                SScreenLine line;
                line.control = before;
                line.Set(field, code);
                EXPECT_EQ(line.Get(field), code);
                EXPECT_EQ(line.control & ~field.Mask(), before & ~field.Mask());
            }
}

TEST(ScreenLine, IsGreenAndDecimalAtFirst)
{
    const SScreenSettings settings;
    EXPECT_EQ(settings.FirstWord(), 0);
    EXPECT_EQ(settings.ToBlock(), (Block{0, 0x2000, 0x2000}));
    for (const SScreenLine& line : settings.lines)
    {
        EXPECT_FALSE(line.hidden);
        EXPECT_FALSE(line.IsText());
        EXPECT_EQ(line.text, CString());
        EXPECT_EQ(line.TextWords(), 0);
    }
}

TEST(ScreenLine, IsTextInOneModeAlone)
{
    for (DWORD mode = 0; mode < kScreenModes; ++mode)
    {
        SScreenLine line;
        line.Set(kScreenMode, mode);
        EXPECT_EQ(line.IsText(), mode == 3) << "mode " << mode;
    }
}

// ---- The first word -------------------------------------------------------------------------------------------------

TEST(ScreenSettings, HaveABitForEachMarkAndLine)
{
    for (int mark = 0; mark < kScreenMarks; ++mark)
    {
        SScreenSettings settings;
        EXPECT_FALSE(settings.IsMarkShown(mark));
        settings.ToggleMark(mark);
        EXPECT_EQ(settings.FirstWord(), 0x80 >> mark) << "mark " << mark;
        for (int other = 0; other < kScreenMarks; ++other)
            EXPECT_EQ(settings.IsMarkShown(other), other == mark);
        settings.ToggleMark(mark);
        EXPECT_EQ(settings.FirstWord(), 0);
    }
    for (unsigned marks = 0; marks <= 0xFF; ++marks)
        for (unsigned hidden = 0; hidden <= 3; ++hidden)
        {
            SScreenSettings settings;
            for (int mark = 0; mark < kScreenMarks; ++mark)
                if ((marks & 0x80u >> mark) != 0)
                    settings.ToggleMark(mark);
            settings.lines[kUpsideLine].hidden = (hidden & 1) != 0;
            settings.lines[kDownsideLine].hidden = (hidden & 2) != 0;
            EXPECT_EQ(settings.FirstWord(), hidden << 8 | marks);
            EXPECT_EQ(settings.ToBlock()[0], settings.FirstWord());
        }
}

// ---- Texts ----------------------------------------------------------------------------------------------------------

struct SPackedText
{
    const char* text;
    int words;
    WORD packed[3];
};

constexpr SPackedText kTexts[] = {
    {"", 0, {0, 0, 0}},
    {"A", 1, {0x0041, 0, 0}},
    {"AB", 1, {0x4241, 0, 0}},
    {"ABC", 2, {0x4241, 0x0043, 0}},
    {"ABCD", 2, {0x4241, 0x4443, 0}},
    {"ABCDE", 3, {0x4241, 0x4443, 0x0045}},
    {" ", 1, {0x0020, 0, 0}},
    {"\xFF\x80\xFE\x81\xE4", 3, {0x80FF, 0x81FE, 0x00E4}},
};

TEST(ScreenSettings, PackTwoCharactersInAWord)
{
    for (const SPackedText& row : kTexts)
    {
        SScreenSettings settings;
        for (SScreenLine& line : settings.lines)
        {
            line.text = row.text;
            EXPECT_EQ(line.TextWords(), row.words) << row.text;
            for (int word = 0; word < 3; ++word)
                EXPECT_EQ(line.TextWord(word), row.packed[word]) << row.text;
            const Block block = settings.ToBlock();
            const size_t first = &line == &settings.lines[kUpsideLine] ? 3 : 6;
            for (size_t word = 0; word < 3; ++word)
            {
                EXPECT_EQ(block[first + word], row.packed[word]) << row.text;
                EXPECT_EQ(block[9 - first + word], first == 6 ? row.packed[word] : 0) << "the other line";
            }
            EXPECT_EQ(block[9], 0);
        }
        EXPECT_EQ(SScreenSettings::FromBlock(settings.ToBlock().data()).lines[kUpsideLine].text, CString(row.text));
        EXPECT_EQ(SScreenSettings::FromBlock(settings.ToBlock().data()).lines[kDownsideLine].text, CString(row.text));
    }
}

TEST(ScreenSettings, ReadATextUpToItsEnd)
{
    const struct
    {
        WORD words[3];
        const char* text;
    } kRows[] = {{{0x4241, 0x0000, 0x4645}, "AB"},
                 {{0x0041, 0x4443, 0x0045}, "A"},
                 {{0x4200, 0x4443, 0x0045}, ""},
                 {{0x4241, 0x4443, 0x4645}, "ABCDE"}, // a sixth is not shown
                 {{0x4241, 0x4443, 0xFF45}, "ABCDE"}};
    for (const auto& row : kRows)
    {
        const Block block = {0, 0x2000, 0x2000, row.words[0], row.words[1], row.words[2], 0x0058};
        const SScreenSettings settings = SScreenSettings::FromBlock(block.data());
        EXPECT_EQ(settings.lines[kUpsideLine].text, CString(row.text));
        EXPECT_EQ(settings.lines[kDownsideLine].text, CString("X"));
    }
}

TEST(ScreenSettings, ReadNoHalfCharacter)
{
    UseCodePage(932);
    if (::IsDBCSLeadByte(0x83))
    {
        const Block block = {0, 0x2000, 0x2000, 0x7083, 0x7083, 0x7083, 0x6261, 0x6463, 0x7083};
        const SScreenSettings settings = SScreenSettings::FromBlock(block.data());
        EXPECT_EQ(settings.lines[kUpsideLine].text, CString("\x83\x70\x83\x70"));
        EXPECT_EQ(settings.lines[kDownsideLine].text, CString("abcd"));
        EXPECT_EQ(settings.lines[kUpsideLine].TextWord(0), 0x7083);
        EXPECT_EQ(settings.lines[kUpsideLine].TextWords(), 2);
    }
    UseCodePage(1252);
}

// ---- The block ------------------------------------------------------------------------------------------------------

/// What of a stored control word comes back: no mode above the last one, and a color.
WORD Accepted(WORD control)
{
    int word = control;
    if ((word >> 5 & 7) > 4)
        word &= ~(7 << 5);
    if ((word >> 13 & 3) == 0)
        word |= 1 << 13;
    return static_cast<WORD>(word);
}

TEST(ScreenSettings, ComeBackFromTheirBlock)
{
    for (int control = 0; control <= 0xFFFF; ++control)
    {
        const auto upside = static_cast<WORD>(control);
        const auto downside = static_cast<WORD>(control * 40503 + 12345);
        const auto first = static_cast<WORD>(control & 0x3FF);
        const Block block = {first, upside, downside, 0x6F68, 0x0074, 0, 0x6F63, 0x646C, 0x0021, 0};
        const SScreenSettings settings = SScreenSettings::FromBlock(block.data());
        ASSERT_EQ(settings.lines[kUpsideLine].control, Accepted(upside));
        ASSERT_EQ(settings.lines[kDownsideLine].control, Accepted(downside));
        ASSERT_EQ(settings.ToBlock(),
                  (Block{first, Accepted(upside), Accepted(downside), 0x6F68, 0x0074, 0, 0x6F63, 0x646C, 0x0021, 0}));
    }
}

TEST(ScreenSettings, LeaveOutWhatMeansNothing)
{
    const Block foreign = {0xFC01, 0x2000, 0x2000, 0, 0, 0, 0, 0, 0, 0xFFFF};
    EXPECT_EQ(SScreenSettings::FromBlock(foreign.data()).ToBlock(), (Block{0x0001, 0x2000, 0x2000}));
}

} // namespace
