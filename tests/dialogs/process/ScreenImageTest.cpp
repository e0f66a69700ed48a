// What a line of the screen lights, in each mode, segment by segment.
#include "tests/dialogs/process/ScreenText.h"

#include <gtest/gtest.h>

#include <vector>

namespace
{

constexpr WORD kGreen = 0x2000;

enum EMode
{
    kDecimal,
    kHexadecimal,
    kBits,
    kText,
    kRaw
};

SScreenImage ImageOf(EMode mode, unsigned other = 0, const char* text = "")
{
    SScreenLine line;
    line.control = static_cast<WORD>(kGreen | static_cast<unsigned>(mode) << 5 | other);
    line.text = text;
    return ScreenImage(line);
}

/// The image as the characters that it shows; points stand behind them, the upper one before.
std::string Shown(const SScreenImage& image)
{
    constexpr const char* kCharacters = " 0123456789AbCdEFoPSnH-";
    std::string shown;
    for (const SScreenDigit& digit : image)
    {
        char found = '?';
        for (const char* character = kCharacters; *character != '\0' && found == '?'; ++character)
            if (SegmentsOf(*character) == digit.segments)
                found = *character;
        shown += found;
        if (digit.upperPoint)
            shown += '\'';
        if (digit.point)
            shown += '.';
    }
    return shown;
}

constexpr unsigned kPoint2 = 0x0001, kPoint3 = 0x0002, kPoint4 = 0x0004, kPoint5 = 0x0008, kUpper3 = 0x0010;
constexpr unsigned kAllDigits = 0x8000;

struct SShownImage
{
    EMode mode;
    unsigned other;
    const char* shown;
};

constexpr SShownImage kImages[] = {
    // Leading zeros are suppressed, up to the decimal point that is farthest left.
    {kDecimal, 0, "  123"},
    {kDecimal, kPoint2, "  12.3"},
    {kDecimal, kPoint3, "  1.23"},
    {kDecimal, kPoint4, " 0.123"},
    {kDecimal, kPoint5, "0.0123"},
    {kDecimal, kPoint2 | kPoint4, " 0.12.3"},
    {kDecimal, kPoint2 | kPoint3 | kPoint4 | kPoint5, "0.0.1.2.3"},
    // The upper one is no decimal point.
    {kDecimal, kUpper3, "  1'23"},
    {kDecimal, kUpper3 | kPoint3, "  1'.23"},
    {kDecimal, kAllDigits, "00123"},
    {kDecimal, kAllDigits | kPoint2, "0012.3"},
    {kDecimal, kAllDigits | kPoint5 | kUpper3, "0.01'23"},
    // Four digits.
    {kHexadecimal, 0, "  2AF"},
    {kHexadecimal, kPoint2, "  2A.F"},
    {kHexadecimal, kPoint4, " 0.2AF"},
    {kHexadecimal, kPoint5, " .02AF"},
    {kHexadecimal, kAllDigits, " 02AF"},
    {kHexadecimal, kAllDigits | kPoint3, " 02.AF"},
    {kBits, 0, "  101"},
    {kBits, kPoint4, " 0.101"},
    {kBits, kAllDigits, "00101"},
};

TEST(ScreenImage, ShowsASampleOfEachMode)
{
    for (const SShownImage& row : kImages)
        EXPECT_EQ(Shown(ImageOf(row.mode, row.other)), row.shown) << "mode " << row.mode << ", " << row.other;
}

// A control word of any kind: a point is lit exactly when its bit is set, whatever else is.
TEST(ScreenImage, LightsThePointsThatAreSet)
{
    for (int mode = kDecimal; mode <= kRaw; ++mode)
        for (const unsigned other : {0u, kAllDigits, 0x1F00u})
            for (unsigned points = 0; points < 32; ++points)
            {
                const SScreenImage image = ImageOf(static_cast<EMode>(mode), points | other, "12345");
                const bool expected[] = {(points & kPoint5) != 0, (points & kPoint4) != 0, (points & kPoint3) != 0,
                                         (points & kPoint2) != 0, false};
                for (size_t position = 0; position < image.size(); ++position)
                {
                    EXPECT_EQ(image[position].point, expected[position]) << mode << ", points " << points;
                    EXPECT_EQ(image[position].upperPoint, position == 2 && (points & kUpper3) != 0)
                        << mode << ", points " << points;
                }
            }
}

TEST(ScreenImage, LeavesHiddenDigitsDark)
{
    for (int mode = kDecimal; mode <= kRaw; ++mode)
    {
        const SScreenImage whole = ImageOf(static_cast<EMode>(mode), kAllDigits, "HELP5");
        for (unsigned hidden = 0; hidden < 32; ++hidden)
        {
            const SScreenImage image = ImageOf(static_cast<EMode>(mode), kAllDigits | hidden << 8, "HELP5");
            for (size_t position = 0; position < image.size(); ++position)
            {
                const bool isHidden = (hidden >> (4 - position) & 1) != 0; // the 1st is at the right
                EXPECT_EQ(image[position].segments, isHidden ? 0 : whole[position].segments)
                    << "mode " << mode << ", hidden " << hidden;
            }
        }
    }
    EXPECT_EQ(Shown(ImageOf(kDecimal, kAllDigits | 0x0100)), "0012 ");
    EXPECT_EQ(Shown(ImageOf(kDecimal, kAllDigits | 0x1000)), " 0123");
}

TEST(ScreenImage, ShowsItsOwnText)
{
    const struct
    {
        const char* text;
        const char* shown;
    } kTexts[] = {{"", "     "},      {"A", "A    "},  {"12", "12   "},    {"HEF", "HEF  "},   {"0000", "0000 "},
                  {"00123", "00123"}, {" 1", " 1   "}, {"1 2 3", "1 2 3"}, {"     ", "     "}, {"E-05n", "E-05n"}};
    for (const auto& row : kTexts)
        for (const unsigned other : {0u, kAllDigits}) // zeros of a text are its own
            EXPECT_EQ(Shown(ImageOf(kText, other, row.text)), row.shown) << row.text;
    EXPECT_EQ(Shown(ImageOf(kText, kPoint2 | kUpper3, "A")), "A  ' . ");
}

TEST(ScreenImage, ShowsATextInItsModeAlone)
{
    for (const EMode mode : {kDecimal, kHexadecimal, kBits, kRaw})
        EXPECT_EQ(ImageOf(mode, 0, "88888"), ImageOf(mode)) << mode;
}

// Segments that stand for no number, whatever becomes of zeros.
TEST(ScreenImage, ShowsLooseSegments)
{
    const SScreenImage image = ImageOf(kRaw);
    EXPECT_EQ(image, ImageOf(kRaw, kAllDigits));
    std::vector<BYTE> segments;
    int foreign = 0;
    for (const SScreenDigit& digit : image)
    {
        EXPECT_NE(digit.segments, 0);
        segments.push_back(digit.segments);
        bool isDigit = false;
        for (const char number : std::string("0123456789"))
            isDigit = isDigit || SegmentsOf(number) == digit.segments;
        foreign += isDigit ? 0 : 1;
    }
    EXPECT_EQ(segments, (std::vector<BYTE>{0x11, 0x24, 0x42, 0x14, 0x21}));
    EXPECT_GE(foreign, 3) << "it could be taken for a number";
}

TEST(ScreenImage, TellsTheModesApart)
{
    for (const unsigned other : {0u, kAllDigits})
        for (int mode = kDecimal; mode <= kRaw; ++mode)
            for (int second = mode + 1; second <= kRaw; ++second)
                EXPECT_NE(ImageOf(static_cast<EMode>(mode), other), ImageOf(static_cast<EMode>(second), other));
}

TEST(ScreenImage, IsDarkWhereTheLineIsHidden)
{
    for (int mode = kDecimal; mode <= kRaw; ++mode)
        for (const unsigned other : {0u, 0x801Fu})
        {
            SScreenLine line;
            line.control = static_cast<WORD>(kGreen | static_cast<unsigned>(mode) << 5 | other);
            line.text = "88888";
            line.hidden = true;
            EXPECT_EQ(ScreenImage(line), SScreenImage()) << mode;
        }
}

TEST(ScreenImage, IsTheSameInEveryColor)
{
    for (const WORD color : std::initializer_list<WORD>{0x2000, 0x4000, 0x6000})
    {
        SScreenLine line;
        line.control = static_cast<WORD>(color | kPoint2);
        EXPECT_EQ(Shown(ScreenImage(line)), "  12.3");
    }
}

} // namespace
