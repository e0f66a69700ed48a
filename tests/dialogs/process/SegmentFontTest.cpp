// What seven segments show of characters.
#include "dialogs/process/SegmentFont.h"
#include "tests/dialogs/process/ScreenText.h"

#include <gtest/gtest.h>

#include <set>

namespace
{

struct SShape
{
    char character;
    const char* rows[3];
};

std::string TextOf(const SShape& shape) { return std::string(shape.rows[0]) + shape.rows[1] + shape.rows[2]; }

// clang-format off
constexpr SShape kShapes[] = {
    {'0', {" _ ", "| |", "|_|"}}, {'1', {"   ", "  |", "  |"}}, {'2', {" _ ", " _|", "|_ "}}, {'3', {" _ ", " _|", " _|"}},
    {'4', {"   ", "|_|", "  |"}}, {'5', {" _ ", "|_ ", " _|"}}, {'6', {" _ ", "|_ ", "|_|"}}, {'7', {" _ ", "  |", "  |"}},
    {'8', {" _ ", "|_|", "|_|"}}, {'9', {" _ ", "|_|", " _|"}},
    {'A', {" _ ", "|_|", "| |"}}, {'b', {"   ", "|_ ", "|_|"}}, {'C', {" _ ", "|  ", "|_ "}}, {'d', {"   ", " _|", "|_|"}},
    {'E', {" _ ", "|_ ", "|_ "}}, {'F', {" _ ", "|_ ", "|  "}}, {'G', {" _ ", "|  ", "|_|"}}, {'H', {"   ", "|_|", "| |"}},
    {'I', {"   ", "|  ", "|  "}}, {'J', {"   ", "  |", "|_|"}}, {'L', {"   ", "|  ", "|_ "}}, {'n', {"   ", " _ ", "| |"}},
    {'o', {"   ", " _ ", "|_|"}}, {'P', {" _ ", "|_|", "|  "}}, {'q', {" _ ", "|_|", "  |"}}, {'r', {"   ", " _ ", "|  "}},
    {'t', {"   ", "|_ ", "|_ "}}, {'U', {"   ", "| |", "|_|"}}, {'v', {"   ", "   ", "|_|"}}, {'y', {"   ", "|_|", " _|"}},
    {' ', {"   ", "   ", "   "}}, {'-', {"   ", " _ ", "   "}}, {'_', {"   ", "   ", " _ "}}, {'=', {"   ", " _ ", " _ "}},
    {'(', {" _ ", "|  ", "|_ "}}, {')', {" _ ", "  |", " _|"}}, {'\'',{"   ", "  |", "   "}}, {'"', {"   ", "| |", "   "}},
    {'S', {" _ ", "|_ ", " _|"}}, {'X', {"   ", "|_|", "| |"}}, {'Z', {" _ ", " _|", "|_ "}},
};
// clang-format on

TEST(SegmentFont, ShowsWhatSegmentsCan)
{
    for (const SShape& shape : kShapes)
        EXPECT_EQ(SegmentText(SegmentsOf(shape.character)), TextOf(shape)) << shape.character;
}

TEST(SegmentFont, ShowsLettersOfEitherCaseAlike)
{
    for (char letter = 'a'; letter <= 'z'; ++letter)
        EXPECT_EQ(SegmentsOf(letter), SegmentsOf(static_cast<char>(letter - 'a' + 'A'))) << letter;
}

// Hexadecimal numbers can be read: each digit has a shape of its own. Of the letters X alone looks like another one, H.
TEST(SegmentFont, KeepsDigitsAndLettersApart)
{
    std::set<BYTE> hexadecimal, letters;
    for (const char digit : std::string("0123456789ABCDEF"))
        EXPECT_TRUE(hexadecimal.insert(SegmentsOf(digit)).second) << digit;
    for (char letter = 'A'; letter <= 'Z'; ++letter)
        EXPECT_EQ(letters.insert(SegmentsOf(letter)).second, letter != 'X') << letter;
}

TEST(SegmentFont, ShowsEveryCharacterSomehow)
{
    constexpr BYTE kUnknown = 0x49; // the three bars
    for (const char character : std::string("#$%&@~|\\{}<>;:+`\x80\xE4\xFF\x01\n"))
        EXPECT_EQ(SegmentsOf(character), kUnknown) << "character " << static_cast<int>(character);
    for (int code = -128; code < 128; ++code)
    {
        const auto character = static_cast<char>(code);
        EXPECT_EQ(SegmentsOf(character) == 0, character == ' ') << "character " << code;
        EXPECT_LT(SegmentsOf(character), 0x80) << "character " << code;
    }
}

} // namespace
