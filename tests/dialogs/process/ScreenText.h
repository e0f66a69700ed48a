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
        BYTE segment;
        size_t place;
        char sign;
    };
    constexpr SPlace kPlaces[] = {{0x01, 1, '_'}, {0x20, 3, '|'}, {0x40, 4, '_'}, {0x02, 5, '|'},
                                  {0x10, 6, '|'}, {0x08, 7, '_'}, {0x04, 8, '|'}};
    std::string text(9, ' ');
    for (const SPlace& place : kPlaces)
        if ((segments & place.segment) != 0)
            text[place.place] = place.sign;
    return (segments & 0x80) != 0 ? text + "?" : text;
}
