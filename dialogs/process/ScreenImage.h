// What a line of the screen lights up, digit by digit. No windows.
#pragma once

#include "dialogs/process/ScreenSettings.h"
#include "dialogs/process/SegmentFont.h"

struct SScreenDigit
{
    BYTE segments = 0;
    bool point = false;
    bool upperPoint = false;

    bool operator==(const SScreenDigit&) const = default;
};

/// From the left: the 5th digit comes first.
using SScreenImage = std::array<SScreenDigit, kScreenDigits>;

/// The number of the digit at a position from the left.
constexpr int DigitAt(int position) { return kScreenDigits - position; }

/// How a line looks: its own text or, in the other modes, a value that shows what becomes of leading zeros.
SScreenImage ScreenImage(const SScreenLine& line);
