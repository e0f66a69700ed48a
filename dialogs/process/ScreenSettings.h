// What the screen display instruction is told, in the words of the PLC: the marks, and how each of the two lines is
// shown. No windows.
#pragma once

#include "dialogs/base/WzdRow.h"

#include <array>

constexpr int kScreenDigits = 5; ///< of a line; the first one is at the right
constexpr int kScreenMarks = 8;

enum EScreenLine
{
    kUpsideLine,
    kDownsideLine,
    kScreenLines
};

enum EScreenMode : DWORD
{
    kScreenDecimal,
    kScreenHexadecimal,
    kScreenBits,
    kScreenText,
    kScreenSegments,
    kScreenModes
};

enum EScreenColor : DWORD
{
    kScreenGreen = 1,
    kScreenRed,
    kScreenOrange
};

// The fields of a line's control word.
constexpr SWzdBits kScreenPoints = {0, 5}; ///< those of the 2nd to the 5th digit, and the upper one of the 3rd
constexpr SWzdBits kScreenMode = {5, 3};
constexpr SWzdBits kScreenHidden = {8, 5}; ///< the 1st to the 5th digit
constexpr SWzdBits kScreenColor = {13, 2};
constexpr SWzdBits kScreenAllDigits = {15, 1}; ///< else leading zeros are suppressed

struct SScreenLine
{
    bool hidden = false;
    WORD control = static_cast<WORD>(kScreenColor.Place(kScreenGreen));
    CString text; ///< at most kScreenDigits bytes

    DWORD Get(SWzdBits field) const { return field.Extract(control); }
    void Set(SWzdBits field, DWORD code) { control = static_cast<WORD>((control & ~field.Mask()) | field.Place(code)); }
    bool IsText() const { return Get(kScreenMode) == kScreenText; }

    // Digits count from 1.
    bool IsDigitHidden(int digit) const { return (Get(kScreenHidden) >> (digit - 1) & 1) != 0; }
    bool IsPointShown(int digit) const { return HasPoint(digit) && (Get(kScreenPoints) >> (digit - 2) & 1) != 0; }
    bool IsUpperPointShown(int digit) const { return HasUpperPoint(digit) && (Get(kScreenPoints) >> 4) != 0; }
    static bool HasPoint(int digit) { return digit > 1; }
    static bool HasUpperPoint(int digit) { return digit == 3; }

    /// How many registers the text takes, and what they hold: two characters each, the first in the low byte.
    int TextWords() const { return (text.GetLength() + 1) / 2; }
    WORD TextWord(int index) const;
};

struct SScreenSettings
{
    static constexpr int kBlockWords = 10;
    /// The settings as the wizard keeps them from one opening to the next: the control data, the text of each line in
    /// three words, and a 0.
    using Block = std::array<WORD, kBlockWords>;

    BYTE marks = 0; ///< bit 7 is the first mark, bit 0 the last one
    std::array<SScreenLine, kScreenLines> lines;

    bool IsMarkShown(int mark) const { return (marks & MarkBit(mark)) != 0; }
    void ToggleMark(int mark) { marks = static_cast<BYTE>(marks ^ MarkBit(mark)); }

    /// The first word of the control data: the marks, and the lines that are not shown.
    WORD FirstWord() const;
    Block ToBlock() const;
    /// A mode or a color that there is not becomes the first one.
    static SScreenSettings FromBlock(const WORD* words);

private:
    static int MarkBit(int mark) { return 1 << (kScreenMarks - 1 - mark); }
};
