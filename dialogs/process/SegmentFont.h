// What seven segments can show of a character.
#pragma once

#include "afx/afx.h"

/// The segments of a digit: the three bars, and the four sides clockwise from the upper right.
enum ESegment : BYTE
{
    kTopSegment = 0x01,
    kUpperRightSegment = 0x02,
    kLowerRightSegment = 0x04,
    kBottomSegment = 0x08,
    kLowerLeftSegment = 0x10,
    kUpperLeftSegment = 0x20,
    kMiddleSegment = 0x40
};

constexpr int kSegments = 7;

/// The segments of a character, letters of either case; the three bars for one that they cannot show.
BYTE SegmentsOf(char character);
