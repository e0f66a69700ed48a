// Contacts that ladders of pulse outputs begin with: those that take an edge, and special ones that do not.
#pragma once

#include "tests/support/Results.h"

struct SStart
{
    const char* device;
    const char* number;
    SInstructionRow contact; // as it stands in the ladder
    bool takesEdge;
};

inline constexpr SStart kStarts[] = {
    {"R", "10A", {2, 1, 170, 0, 0}, true},
    {"Sp.R", "9010", {2, 1, 14416, 0, 0}, false}, // always on
    {"Sp.R", "9013", {2, 1, 14419, 0, 0}, false}, // first scan
    {"Sp.R", "9011", {2, 1, 14417, 0, 0}, true},
};
