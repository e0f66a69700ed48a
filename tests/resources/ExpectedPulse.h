// The templates of the built-in pulse outputs, by number and in English, apart from the resource scripts.
#pragma once

#include "tests/resources/ExpectedControl.h"

inline std::vector<SExpectedControl> ExpectedSpd1Fields()
{
    return {
        {kNoId, EControl::Static, "Candidate for a pulse output"},
        {2103, EControl::DropList, ""},
        {kNoId, EControl::Static, "Pulse width specification"},
        {2104, EControl::DropList, ""},
        {kNoId, EControl::Static, "Operation mode and directional output theory"},
        {2105, EControl::DropList, ""},
        {kNoId, EControl::Static, "Initial speed"},
        {2106, EControl::Edit, ""},
        {kNoId, EControl::Static, "Hz"},
        {kNoId, EControl::Static, "(40 - 5000)"},
        {kNoId, EControl::Static, "Maximum speed"},
        {2107, EControl::Edit, ""},
        {kNoId, EControl::Static, "Hz"},
        {2109, EControl::Static, ""},
        {kNoId, EControl::Static, "Acceleration/deceleration time"},
        {2108, EControl::Edit, ""},
        {kNoId, EControl::Static, "ms"},
        {kNoId, EControl::Static, "(30 - 32767)"},
    };
}

inline SExpectedTemplate ExpectedSpd1Trapezoidal()
{
    const std::vector<SExpectedControl> target = {
        {kNoId, EControl::Static, "Target value"},
        {2110, EControl::Edit, ""},
        {kNoId, EControl::Static, "Pulse No."},
        {kNoId, EControl::Static, "(-8388608 - 8388607)"},
    };
    const char* heading = "SPD1 (168)\tPositioning control (Trapezoidal control)";
    return {1011,
            "F168 (SPD1)",
            Joined({ExpectedTop(heading, 2101, 2102), ExpectedSpd1Fields(), target, ExpectedButtons()}),
            {{2103, {11000}}, {2104, {11001, 11002}}, {2105, {11010, 11011, 11012, 11013, 11014, 11015}}}};
}

inline SExpectedTemplate ExpectedSpd1Home()
{
    const char* heading = "SPD1 (168)\tPositioning control (Home position return)";
    return {1012,
            "F168 (SPD1)",
            Joined({ExpectedTop(heading, 2101, 2102), ExpectedSpd1Fields(), ExpectedButtons()}),
            {{2103, {11000}}, {2104, {11001, 11002}}, {2105, {11003, 11004, 11005, 11006, 11007, 11008}}}};
}

inline std::vector<SExpectedControl> ExpectedSpdhFields(const char* steps)
{
    return {
        {kNoId, EControl::Static, "The channel for a pulse output"},
        {2253, EControl::DropList, ""},
        {kNoId, EControl::Static, steps},
        {2254, EControl::DropList, ""},
        {kNoId, EControl::Static, "Duty (on width)"},
        {2255, EControl::DropList, ""},
        {kNoId, EControl::Static, "Frequency range"},
        {2256, EControl::DropList, ""},
        {kNoId, EControl::Static, "Operation mode and output method"},
        {2257, EControl::DropList, ""},
        {kNoId, EControl::Static, "Initial speed"},
        {2261, EControl::Edit, ""},
        {kNoId, EControl::Static, "Hz"},
        {2258, EControl::Static, "(40 - 5000)"},
        {kNoId, EControl::Static, "Maximum speed"},
        {2262, EControl::Edit, ""},
        {kNoId, EControl::Static, "Hz"},
        {2263, EControl::Static, "(191 - 100000)"},
        {kNoId, EControl::Static, "Acceleration/deceleration time"},
        {2259, EControl::Edit, ""},
        {kNoId, EControl::Static, "ms"},
        {2264, EControl::Static, "(30 - 32767)"},
    };
}

inline SExpectedTemplate ExpectedSpdhTrapezoidal()
{
    const char* heading = "SPDH (171)\tPulse output (with channel specification) (Trapezoidal control)";
    const std::vector<SExpectedControl> target = {
        {kNoId, EControl::Static, "Target value"},
        {2260, EControl::Edit, ""},
        {kNoId, EControl::Static, "Pulse No."},
        {kNoId, EControl::Static, "(-2147483648 - 2147483647)"},
    };
    return {1015,
            "F171 (SPDH)",
            Joined({ExpectedTop(heading, 2251, 2252), ExpectedSpdhFields("Number of acceleration/deceleration steps"),
                    target, ExpectedButtons()}),
            {{2253, {11039}},
             {2254, {11040}},
             {2255, {11041, 11042}},
             {2256, {11043, 11044, 11045}},
             {2257, {11046, 11047, 11048, 11049, 11050, 11051}}}};
}

inline SExpectedTemplate ExpectedSpdhHome()
{
    const char* heading = "SPDH (171)\tPulse output (with channel specification) (Home position return)";
    const std::vector<SExpectedControl> counterClear = {
        {kNoId, EControl::Static, "Deviation counter clear signal"},
        {2265, EControl::Edit, ""},
        {kNoId, EControl::Static, "ms"},
        {kNoId, EControl::Static, "(0, 1 - 100)  0: Not using"},
    };
    return {1016,
            "F171 (SPDH)",
            Joined({ExpectedTop(heading, 2251, 2252), ExpectedSpdhFields("Acceleration/Deceleration steps"),
                    counterClear, ExpectedButtons()}),
            {{2253, {11039}},
             {2254, {11040}},
             {2255, {11041, 11042}},
             {2256, {11043, 11044, 11045}},
             {2257,
              {11052, 11053, 11054, 11055, 11056, 11057, 11058, 11059, 11060, 11061, 11062, 11063, 11064, 11065, 11066,
               11067}}}};
}
