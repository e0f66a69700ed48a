// Seven-segment digits as text: three rows of three characters each.
//
//     " _ "
//     "| |"
//     "|_|"
#pragma once

#include "dialogs/process/ScreenImage.h"

#include <string>

/// "0" as " _ | ||_|".
inline std::string SegmentText(BYTE segments)
{
    struct SPlace
    {
        size_t place;
        BYTE segment;
        char sign;
    };
    constexpr SPlace kPlaces[] = {{1, 0x01, '_'}, {3, 0x20, '|'}, {4, 0x40, '_'}, {5, 0x02, '|'},
                                  {6, 0x10, '|'}, {7, 0x08, '_'}, {8, 0x04, '|'}};
    std::string text(9, ' ');
    for (const SPlace& place : kPlaces)
        if ((segments & place.segment) != 0)
            text[place.place] = place.sign;
    return (segments & 0x80) != 0 ? text + "?" : text;
}
