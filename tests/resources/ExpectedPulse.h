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

inline SExpectedTemplate ExpectedPls()
{
    const std::vector<SExpectedControl> fields = {
        {kNoId, EControl::Static, "Candidate for a pulse output"},
        {2153, EControl::DropList, ""},
        {kNoId, EControl::Static, "Pulse width specification"},
        {2154, EControl::DropList, ""},
        {kNoId, EControl::Static, "Operation mode and directional output"},
        {2155, EControl::DropList, ""},
        {kNoId, EControl::Static, "Frequency"},
        {2156, EControl::Edit, ""},
        {kNoId, EControl::Static, "Hz"},
        {kNoId, EControl::Static, "(40 - 10000)"},
    };
    return {1013,
            "F169 (PLS)",
            Joined({ExpectedTop("PLS (169)\tPulse output (with channel specification) (JOG operation)", 2151, 2152),
                    fields, ExpectedButtons()}),
            {{2153, {11000}}, {2154, {11002, 11016}}, {2155, {11017, 11018, 11019, 11020, 11021, 11022, 11023}}}};
}

inline SExpectedTemplate ExpectedPwm()
{
    const std::vector<SExpectedControl> fields = {
        {kNoId, EControl::Static, "Candidate for a PWM output"},
        {2203, EControl::DropList, ""},
        {kNoId, EControl::Static, "Frequency settings"},
        {2204, EControl::DropList, ""},
        {kNoId, EControl::Static, "Duty"},
        {2205, EControl::Edit, ""},
        {kNoId, EControl::Static, "%"},
        {kNoId, EControl::Static, "(0.1 - 99.9)"},
    };
    return {
        1014,
        "F170 (PWM)",
        Joined(
            {ExpectedTop("PWM (170)\tPWM output (with channel specification)", 2201, 2202), fields, ExpectedButtons()}),
        {{2203, {11000}},
         {2204,
          {11024, 11025, 11026, 11027, 11028, 11029, 11030, 11031, 11032, 11033, 11034, 11035, 11036, 11037, 11038}}}};
}

inline SExpectedTemplate ExpectedPlsh()
{
    const std::vector<SExpectedControl> fields = {
        {kNoId, EControl::Static, "The channel for a pulse output"},
        {2303, EControl::DropList, ""},
        {kNoId, EControl::Static, "Target value setting"},
        {2304, EControl::DropList, ""},
        {kNoId, EControl::Static, "Duty (on width)"},
        {2305, EControl::DropList, ""},
        {kNoId, EControl::Static, "Frequency range"},
        {2306, EControl::DropList, ""},
        {kNoId, EControl::Static, "Output method"},
        {2307, EControl::DropList, ""},
        {kNoId, EControl::Static, "Frequency"},
        {2308, EControl::Edit, ""},
        {kNoId, EControl::Static, "Hz"},
        {2309, EControl::Static, ""},
        {kNoId, EControl::Static, "Target value"},
        {2310, EControl::Edit, ""},
        {kNoId, EControl::Static, "Pulse No."},
        {2311, EControl::Static, "(-2147483648 - 2147483647)"},
    };
    return {1017,
            "F172 (PLSH)",
            Joined({ExpectedTop("PLSH (172)\tPulse output (with channel specification) (JOG operation)", 2301, 2302),
                    fields, ExpectedButtons()}),
            {{2303, {11039}},
             {2304, {11068, 11069}},
             {2305, {11041, 11042}},
             {2306, {11043, 11044, 11045}},
             {2307, {11070, 11071, 11072, 11073, 11074, 11075, 11076, 11077}}}};
}

inline SExpectedTemplate ExpectedPwmh()
{
    const std::vector<SExpectedControl> fields = {
        {kNoId, EControl::Static, "The channel for a PWM output"},
        {2353, EControl::DropList, ""},
        {kNoId, EControl::Static, "Frequency setting"},
        {2355, EControl::RadioButton, "Resolution of 1000"},
        {2356, EControl::RadioButton, "Resolution of 100"},
        {2354, EControl::DropList, ""},
        {kNoId, EControl::Static, "Duty"},
        {2357, EControl::Edit, ""},
        {kNoId, EControl::Static, "%"},
        {2358, EControl::Static, ""},
    };
    return {1018,
            "F173 (PWMH)",
            Joined({ExpectedTop("PWMH (173)\tPWM output (with channel specification)", 2351, 2352), fields,
                    ExpectedButtons()}),
            {{2353, {11039}},
             {2354, {11078, 11079, 11080, 11081, 11082, 11083, 11084, 11085, 11086, 11087, 11088, 11089, 11090,
                     11091, 11092, 11093, 11094, 11095, 11096, 11097, 11098, 11099, 11100, 11101, 11102}}}};
}

/// A frame, directly behind the heading, is around the first rows.
inline std::vector<SExpectedControl> ExpectedSpshTop()
{
    std::vector<SExpectedControl> top = ExpectedTop("SPSH (175)\tPulse output (Linear interporation)", 2451, 2452);
    top.insert(top.begin() + 1, {kNoId, EControl::GroupBox, ""});
    return top;
}

inline SExpectedTemplate ExpectedSpsh()
{
    const std::vector<SExpectedControl> fields = {
        {kNoId, EControl::Static, "The channel for a pulse output"},
        {2477, EControl::DropList, ""},
        {kNoId, EControl::Static, "Duty (on width)"},
        {2460, EControl::DropList, ""},
        {kNoId, EControl::Static, "Operation mode and output method"},
        {2461, EControl::DropList, ""},
        {2470, EControl::Static, "Composite speed"},
        {2471, EControl::Static, "Initial speed"},
        {2453, EControl::Edit, ""},
        {kNoId, EControl::Static, "Hz"},
        {2454, EControl::Static, "(1 - 20000)"},
        {2472, EControl::Static, "Maximum speed"},
        {2456, EControl::Edit, ""},
        {kNoId, EControl::Static, "Hz"},
        {2473, EControl::Static, "Acceleration/Deceleration time"},
        {2455, EControl::Edit, ""},
        {kNoId, EControl::Static, "ms"},
        {kNoId, EControl::Static, "(0 - 32767)"},
        {2474, EControl::Static, "Target value"},
        {2475, EControl::Static, "X-axis"},
        {2458, EControl::Edit, ""},
        {kNoId, EControl::Static, "Travel amount"},
        {kNoId, EControl::Static, "(-8388608 - 8388607)"},
        {2476, EControl::Static, "Y-axis"},
        {2459, EControl::Edit, ""},
        {kNoId, EControl::Static, "Travel amount"},
        {kNoId, EControl::Static, "(-8388608 - 8388607)"},
        {kNoId, EControl::GroupBox, "Operation result storage area"},
        {kNoId, EControl::Static, "Component speed"},
        {2478, EControl::Static, "X-axis"},
        {kNoId, EControl::Static, "Initial speed"},
        {2462, EControl::Static, " DT10000"},
        {kNoId, EControl::Static, "Maximum speed"},
        {2463, EControl::Static, " DT10000"},
        {2479, EControl::Static, "Y-axis"},
        {kNoId, EControl::Static, "Initial speed"},
        {2464, EControl::Static, " DT10000"},
        {kNoId, EControl::Static, "Maximum speed"},
        {2465, EControl::Static, " DT10000"},
        {kNoId, EControl::Static, "Frequency range"},
        {2480, EControl::Static, "X-axis"},
        {2466, EControl::Static, " DT10000"},
        {2481, EControl::Static, "Y-axis"},
        {2467, EControl::Static, " DT10000"},
        {kNoId, EControl::Static, "Number of acceleration/deceleration steps"},
        {2482, EControl::Static, "X-axis"},
        {2468, EControl::Static, " DT10000"},
        {2483, EControl::Static, "Y-axis"},
        {2469, EControl::Static, " DT10000"},
    };
    return {1020,
            "F175 (SPSH)",
            Joined({ExpectedSpshTop(), fields, ExpectedButtons()}),
            {{2477, {11039}}, {2460, {11041, 11042}}, {2461, {11046, 11047, 11048, 11049, 11050, 11051}}}};
}

inline SExpectedTemplate ExpectedSpch()
{
    const std::vector<SExpectedControl> fields = {
        {kNoId, EControl::Static, "Operation connection mode"},
        {2503, EControl::DropList, ""},
        {kNoId, EControl::Static, "Rotation direction"},
        {2505, EControl::DropList, ""},
        {kNoId, EControl::Static, "Arc (Circular shape) method"},
        {2506, EControl::DropList, ""},
        {kNoId, EControl::Static, "Operation mode and output method"},
        {2507, EControl::DropList, ""},
        {2517, EControl::Static, "Composite speed"},
        {2504, EControl::Edit, ""},
        {kNoId, EControl::Static, "Hz"},
        {kNoId, EControl::Static, "(100 - 20000)"},
        {2518, EControl::Static, "Target position"},
        {2519, EControl::Static, "X-axis (CH0)"},
        {2508, EControl::Edit, ""},
        {kNoId, EControl::Static, ""},
        {kNoId, EControl::Static, "(-8388608 - 8388607)"},
        {2520, EControl::Static, "Y-axis (CH2)"},
        {2509, EControl::Edit, ""},
        {kNoId, EControl::Static, ""},
        {kNoId, EControl::Static, "(-8388608 - 8388607)"},
        {2510, EControl::Static, ""},
        {2521, EControl::Static, "X-axis (CH0)"},
        {2511, EControl::Edit, ""},
        {kNoId, EControl::Static, ""},
        {kNoId, EControl::Static, "(-8388608 - 8388607)"},
        {2522, EControl::Static, "Y-axis (CH2)"},
        {2512, EControl::Edit, ""},
        {kNoId, EControl::Static, ""},
        {kNoId, EControl::Static, "(-8388608 - 8388607)"},
        {kNoId, EControl::GroupBox, "Operation result storage area"},
        {kNoId, EControl::Static, "Radius"},
        {2513, EControl::Static, " DT10000"},
        {2514, EControl::Static, "Center position"},
        {kNoId, EControl::Static, "X-axis"},
        {2515, EControl::Static, " DT10000"},
        {kNoId, EControl::Static, "Y-axis"},
        {2516, EControl::Static, " DT10000"},
    };
    return {
        1021,
        "F176 (SPCH)",
        Joined({ExpectedTop("SPCH (176)\tPulse output (Arc interporation)", 2501, 2502), fields, ExpectedButtons()}),
        {{2503, {11111, 11112}},
         {2505, {11113, 11114}},
         {2506, {11115, 11116}},
         {2507, {11046, 11047, 11048, 11049, 11050, 11051}}}};
}

inline SExpectedTemplate ExpectedSp0h()
{
    const char* heading =
        "SP0H (174)\tPulse output (with channel specification)(Selectable data table control operation)";
    const std::vector<SExpectedControl> fields = {
        {kNoId, EControl::Static, "The channel for a pulse output"},
        {2403, EControl::DropList, ""},
        {kNoId, EControl::Static, "Duty (on width)"},
        {2405, EControl::DropList, ""},
        {kNoId, EControl::Static, "Frequency range"},
        {2406, EControl::DropList, ""},
        {kNoId, EControl::Static, "Operation mode"},
        {2407, EControl::DropList, ""},
        {kNoId, EControl::Static, "Output method"},
        {2404, EControl::DropList, ""},
        {2412, EControl::Static, ""},
        {2411, EControl::Static, "Frequency (Hz)\n"},
        {2417, EControl::Static, "Target value (Number of pulses.)\n(-2147483648 - 2147483647)"},
        {2410, EControl::Static, ""},
        {2413, EControl::Static, ""},
        {2414, EControl::Static, ""},
        {2415, EControl::Static, ""},
        {2416, EControl::Static, ""},
        {2408, EControl::Edit, ""},
        {2409, EControl::ScrollBar, ""},
    };
    return {1019,
            "F174 (SP0H)",
            Joined({ExpectedTop(heading, 2401, 2402), fields, ExpectedButtons()}),
            {{2403, {11039}},
             {2405, {11041, 11042}},
             {2406, {11043, 11044, 11045}},
             {2407, {11104, 11105}},
             {2404, {11106, 11107, 11108}}}};
}
