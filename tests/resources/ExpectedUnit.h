// The templates of the positioning unit, by number and in English, apart from the resource scripts.
#pragma once

#include "tests/resources/ExpectedControl.h"

/// In the language libraries: the start output, and the condition that switches it on.
inline std::vector<SExpectedControl> ExpectedStartOutput()
{
    return {
        {kNoId, EControl::GroupBox, ""},
        {2054, EControl::CheckBox, "A &start output is generated."},
        {2055, EControl::CheckBox, "The condition is the sa&me as the starting condition."},
        {kNoId, EControl::Static, "Start output condition"},
        {2056, EControl::DropList, ""},
        {2057, EControl::Edit, ""},
        {2058, EControl::Static, "Impossible settings"},
        {kNoId, EControl::Static, "Start output relay"},
        {kNoId, EControl::Static, "Word No."},
        {kNoId, EControl::Static, "Y"},
        {2059, EControl::Edit, ""},
        {2060, EControl::Static, "Impossible settings"},
    };
}

inline SExpectedTemplate ExpectedEPoint()
{
    const std::vector<SExpectedControl> controls = {
        {kNoId, EControl::Static, "Starting condition contact"},
        {2051, EControl::DropList, ""},
        {2052, EControl::Edit, ""},
        {2053, EControl::Static, "Impossible settings"},
        {kNoId, EControl::Static, "Slot number"},
        {3104, EControl::Edit, ""},
        {kNoId, EControl::Static, "(0 - 31)"},
        {kNoId, EControl::Static, "Output axis"},
        {3103, EControl::Edit, ""},
        {kNoId, EControl::Static, "(1 - 4)"},
        {kNoId, EControl::Static, "Data table starting address"},
        {kNoId, EControl::Static, "DT"},
        {3101, EControl::Edit, ""},
        {3102, EControl::Static, "Impossible settings"},
        {kNoId, EControl::Static, "Position command"},
        {3105, EControl::DropList, ""},
        {kNoId, EControl::Static, "Accel./decel."},
        {3106, EControl::DropList, ""},
        {kNoId, EControl::Static, "Startup speed"},
        {3107, EControl::DropList, ""},
        {kNoId, EControl::Static, "Home input valid logic"},
        {3051, EControl::DropList, ""},
        {kNoId, EControl::Static, "Near home input valid logic"},
        {3052, EControl::DropList, ""},
        {kNoId, EControl::Static, "Limit input valid logic"},
        {3054, EControl::DropList, ""},
        {kNoId, EControl::Static, "\"S\" accel./decel."},
        {3061, EControl::DropList, ""},
        {kNoId, EControl::GroupBox, "Pulse output"},
        {kNoId, EControl::Static, "Rotation direction"},
        {3065, EControl::DropList, ""},
        {kNoId, EControl::Static, "Output mode"},
        {3066, EControl::DropList, ""},
        {kNoId, EControl::Static, "Pulse output divided mode"},
        {3071, EControl::DropList, ""},
        {kNoId, EControl::Static, "Startup speed"},
        {3108, EControl::Edit, ""},
        {kNoId, EControl::Static, "pps"},
        {kNoId, EControl::Static, "(0 - 4000000)"},
        {kNoId, EControl::Static, "Target speed"},
        {3109, EControl::Edit, ""},
        {kNoId, EControl::Static, "pps"},
        {kNoId, EControl::Static, "(1 - 4000000)"},
        {kNoId, EControl::Static, "Accel./decel. time"},
        {3110, EControl::Edit, ""},
        {kNoId, EControl::Static, "ms"},
        {kNoId, EControl::Static, "(0 - 32767)"},
        {kNoId, EControl::Static, "Position command value"},
        {3111, EControl::Edit, ""},
        {kNoId, EControl::Static, "Pulse"},
        {kNoId, EControl::Static, "(-2147483648 - 2147483647)"},
        {1, EControl::DefaultButton, "&OK"},
        {2, EControl::PushButton, "&Back"},
        {3099, EControl::PushButton, "&Clear settings"},
    };
    return {1051,
            "E point control",
            controls,
            {{3105, {15003, 15004}},
             {3106, {15005, 15006}},
             {3107, {15021, 15022}},
             {3051, {15007, 15008}},
             {3052, {15007, 15008}},
             {3054, {15007, 15008}},
             {3061, {15009, 15010, 15011, 15012}},
             {3065, {15013, 15014}},
             {3066, {15015, 15016}},
             {3071, {15017}}},
            ExpectedStartOutput(),
            controls.size() - 3};
}

// ---- What the other operations share --------------------------------------------------------------------------------

inline std::vector<SExpectedControl> ExpectedUnitTop(unsigned slot, unsigned axis, unsigned start, unsigned startRange)
{
    return {
        {kNoId, EControl::Static, "Starting condition contact"},
        {2051, EControl::DropList, ""},
        {2052, EControl::Edit, ""},
        {2053, EControl::Static, "Impossible settings"},
        {kNoId, EControl::Static, "Slot number"},
        {slot, EControl::Edit, ""},
        {kNoId, EControl::Static, "(0 - 31)"},
        {kNoId, EControl::Static, "Output axis"},
        {axis, EControl::Edit, ""},
        {kNoId, EControl::Static, "(1 - 4)"},
        {kNoId, EControl::Static, "Data table starting address"},
        {kNoId, EControl::Static, "DT"},
        {start, EControl::Edit, ""},
        {startRange, EControl::Static, "Impossible settings"},
    };
}

inline std::vector<SExpectedControl> ExpectedUnitList(const char* label, unsigned id)
{
    return {{kNoId, EControl::Static, label}, {id, EControl::DropList, ""}};
}

inline std::vector<SExpectedControl> ExpectedUnitNumber(const char* label, unsigned id, const char* unit,
                                                        const char* range)
{
    return {{kNoId, EControl::Static, label},
            {id, EControl::Edit, ""},
            {kNoId, EControl::Static, unit},
            {kNoId, EControl::Static, range}};
}

inline std::vector<SExpectedControl> ExpectedUnitButtons()
{
    return {
        {1, EControl::DefaultButton, "&OK"},
        {2, EControl::PushButton, "&Back"},
        {3099, EControl::PushButton, "&Clear settings"},
    };
}

/// The start output of a JOG operation runs in one of two directions.
inline std::vector<SExpectedControl> ExpectedJogStartOutput()
{
    std::vector<SExpectedControl> controls = ExpectedStartOutput();
    controls.insert(controls.begin() + 7, {{kNoId, EControl::Static, "JOG direction"}, {2062, EControl::DropList, ""}});
    return controls;
}

/// An operation whose start output stands before its buttons.
inline SExpectedTemplate ExpectedOperation(unsigned id, const char* caption, std::vector<SExpectedControl> controls,
                                           std::vector<SExpectedItems> items, std::vector<SExpectedControl> startOutput)
{
    const size_t before = controls.size();
    for (const SExpectedControl& button : ExpectedUnitButtons())
        controls.push_back(button);
    return {id, caption, std::move(controls), std::move(items), std::move(startOutput), before};
}

// ---- The other operations -------------------------------------------------------------------------------------------

inline SExpectedTemplate ExpectedPPoint()
{
    return {1052,
            "P point control  Passing point",
            Joined({ExpectedUnitTop(3151, 3152, 3153, 3154),
                    ExpectedUnitNumber("Target speed", 3155, "pps", "(1 - 4000000)"),
                    ExpectedUnitNumber("Accel./Decel. time", 3156, "ms", "(0 - 32767)"),
                    ExpectedUnitNumber("Position command value", 3157, "Pulse", "(-2147483648 - 2147483647)"),
                    ExpectedUnitButtons()}),
            {}};
}

inline std::vector<SExpectedControl> ExpectedJogTop(const char* curve)
{
    return Joined({ExpectedUnitTop(3201, 3202, 3203, 3204),
                   ExpectedUnitList("Accel./decel.", 3205),
                   ExpectedUnitList("Startup speed", 3206),
                   ExpectedUnitList("Home input valid logic", 3051),
                   ExpectedUnitList("Near home input valid logic", 3052),
                   ExpectedUnitList("Limit input valid logic", 3054),
                   ExpectedUnitList(curve, 3061),
                   {{kNoId, EControl::GroupBox, "Pulse output"}},
                   ExpectedUnitList("Rotation direction", 3065),
                   ExpectedUnitList("Output mode", 3066),
                   ExpectedUnitList("Pulse output divided mode", 3071),
                   ExpectedUnitNumber("Startup speed", 3207, "pps", "(0 - 4000000)")});
}

inline std::vector<SExpectedItems> ExpectedJogItems()
{
    return {{3205, {15005, 15006}}, {3206, {15021, 15022}}, {3051, {15007, 15008}},
            {3052, {15007, 15008}}, {3054, {15007, 15008}}, {3061, {15009, 15010, 15011, 15012}},
            {3065, {15013, 15014}}, {3066, {15015, 15016}}, {3071, {15017}}};
}

inline SExpectedTemplate ExpectedJogForm(unsigned id, const char* caption, std::vector<SExpectedControl> controls)
{
    SExpectedTemplate form =
        ExpectedOperation(id, caption, std::move(controls), ExpectedJogItems(), ExpectedJogStartOutput());
    form.itemsOfLibraries = {{2062, {15030, 15031}}};
    return form;
}

inline SExpectedTemplate ExpectedJog()
{
    return ExpectedJogForm(
        1053, "JOG operation With no speed change",
        Joined({ExpectedJogTop("\"S\" Accel./decel."), ExpectedUnitNumber("Target speed", 3208, "pps", "(1 - 4000000)"),
                ExpectedUnitNumber("Accel./decel. time", 3213, "ms", "(0 - 32767)")}));
}

inline SExpectedTemplate ExpectedJogSpeedChange()
{
    return ExpectedJogForm(1054, "JOG operation Those with a speed change",
                           Joined({ExpectedJogTop("\"S\" accel./decel."),
                                   ExpectedUnitNumber("Target speed <Low speed>", 3208, "pps", "(1 - 4000000)"),
                                   ExpectedUnitNumber("Target speed <High speed>", 3209, "pps", "(1 - 4000000)"),
                                   ExpectedUnitList("Speed change condition contact", 3210),
                                   {{3211, EControl::Edit, ""}, {3212, EControl::Static, "Impossible settings"}},
                                   ExpectedUnitNumber("Accel./decel. time", 3213, "ms", "(0 - 32767)")}));
}

inline SExpectedTemplate ExpectedHomeReturn()
{
    return ExpectedOperation(1055, "Home position return",
                             Joined({ExpectedUnitTop(3251, 3252, 3253, 3254),
                                     ExpectedUnitList("Accel./decel.", 3255),
                                     ExpectedUnitList("Direction of home return", 3257),
                                     ExpectedUnitList("Startup speed", 3256),
                                     ExpectedUnitList("Home input valid logic", 3051),
                                     ExpectedUnitList("Near home input valid logic", 3052),
                                     ExpectedUnitList("Home search", 3053),
                                     ExpectedUnitList("Limit input valid logic", 3054),
                                     ExpectedUnitList("\"S\" accel./decel.", 3061),
                                     {{kNoId, EControl::GroupBox, "Pulse output"}},
                                     ExpectedUnitList("Rotation direction", 3065),
                                     ExpectedUnitList("Output mode", 3066),
                                     ExpectedUnitList("Pulse output divided mode", 3071),
                                     ExpectedUnitList("Deviation counter clear time", 3258),
                                     ExpectedUnitNumber("Startup speed", 3259, "pps", "(0 - 4000000)"),
                                     ExpectedUnitNumber("Target speed", 3260, "pps", "(1 - 4000000)"),
                                     ExpectedUnitNumber("Accel./decel. time", 3261, "ms", "(0 - 32767)")}),
                             {{3255, {15005, 15006}},
                              {3257, {15019, 15020}},
                              {3256, {15021, 15022}},
                              {3051, {15007, 15008}},
                              {3052, {15007, 15008}},
                              {3053, {15032, 15033}},
                              {3054, {15007, 15008}},
                              {3061, {15009, 15010, 15011, 15012}},
                              {3065, {15013, 15014}},
                              {3066, {15015, 15016}},
                              {3071, {15017}},
                              {3258, {15023}}},
                             ExpectedStartOutput());
}

inline SExpectedTemplate ExpectedPulsar()
{
    return ExpectedOperation(1056, "Pulsar input operation",
                             Joined({ExpectedUnitTop(3301, 3302, 3303, 3304),
                                     {{kNoId, EControl::GroupBox, "Pulse input"}},
                                     ExpectedUnitList("Rotation direction", 3067),
                                     ExpectedUnitList("Count", 3068),
                                     ExpectedUnitList("Mode", 3069),
                                     ExpectedUnitList("Transfer multiple", 3070),
                                     {{kNoId, EControl::GroupBox, "Pulse output"}},
                                     ExpectedUnitList("Rotation direction", 3065),
                                     ExpectedUnitList("Output mode", 3066),
                                     ExpectedUnitList("Divided mode", 3071),
                                     ExpectedUnitList("Home input valid logic", 3051),
                                     ExpectedUnitList("Near home input valid logic", 3052),
                                     ExpectedUnitList("Limit input valid logic", 3054),
                                     ExpectedUnitList("Pulsar input transfer multiple", 3305),
                                     ExpectedUnitNumber("Target speed", 3306, "pps", "(1 - 4000000)")}),
                             {{3067, {15013, 15014}},
                              {3068, {15025, 15026}},
                              {3069, {15027, 15028, 15029}},
                              {3070, {15024}},
                              {3065, {15013, 15014}},
                              {3066, {15015, 15016}},
                              {3071, {15017}},
                              {3051, {15007, 15008}},
                              {3052, {15007, 15008}},
                              {3054, {15007, 15008}},
                              {3305, {15024}}},
                             ExpectedStartOutput());
}

inline SExpectedTemplate ExpectedControlCode()
{
    return {1057,
            "Positioning control code check/input",
            {
                {kNoId, EControl::Static, "Position command"},
                {3351, EControl::DropList, ""},
                {kNoId, EControl::Static, "Accel./decel."},
                {3352, EControl::DropList, ""},
                {kNoId, EControl::Static, "Direction of home return"},
                {3353, EControl::DropList, ""},
                {kNoId, EControl::Static, "Startup speed"},
                {3354, EControl::DropList, ""},
                {kNoId, EControl::Static, "Home input valid logic"},
                {3051, EControl::DropList, ""},
                {kNoId, EControl::Static, "Near home input valid logic"},
                {3052, EControl::DropList, ""},
                {kNoId, EControl::Static, "Home search"},
                {3053, EControl::DropList, ""},
                {kNoId, EControl::Static, "Limit input valid logic"},
                {3054, EControl::DropList, ""},
                {kNoId, EControl::Static, "Pulsar input transfer multiple"},
                {3355, EControl::DropList, ""},
                {kNoId, EControl::Static, "\"S\" accel./decel."},
                {3061, EControl::DropList, ""},
                {kNoId, EControl::GroupBox, "Pulse input"},
                {kNoId, EControl::Static, "Rotation direction"},
                {3067, EControl::DropList, ""},
                {kNoId, EControl::Static, "Count"},
                {3068, EControl::DropList, ""},
                {kNoId, EControl::Static, "Mode"},
                {3069, EControl::DropList, ""},
                {kNoId, EControl::Static, "Transfer multiple"},
                {3070, EControl::DropList, ""},
                {kNoId, EControl::GroupBox, "Pulse output"},
                {kNoId, EControl::Static, "Rotation direction"},
                {3065, EControl::DropList, ""},
                {kNoId, EControl::Static, "Output mode"},
                {3066, EControl::DropList, ""},
                {kNoId, EControl::Static, "Divided mode"},
                {3071, EControl::DropList, ""},
                {kNoId, EControl::Static, "Deviation counter clear time"},
                {3072, EControl::DropList, ""},
                {kNoId, EControl::GroupBox, "Control code (Hex)"},
                {3356, EControl::Static, "12345678"},
                {3357, EControl::PushButton, "&Direct input"},
                {1, EControl::DefaultButton, "&OK"},
                {2, EControl::PushButton, "Cancel"},
                {2003, EControl::PushButton, "&Help"},
            },
            {{3351, {15003, 15004}},
             {3352, {15005, 15006}},
             {3353, {15019, 15020}},
             {3354, {15021, 15022}},
             {3053, {15032, 15033}},
             {3355, {15024}},
             {3067, {15013, 15014}},
             {3068, {15025, 15026}},
             {3069, {15027, 15028, 15029}},
             {3070, {15024}},
             {3072, {15023}},
             {3051, {15007, 15008}},
             {3052, {15007, 15008}},
             {3054, {15007, 15008}},
             {3061, {15009, 15010, 15011, 15012}},
             {3065, {15013, 15014}},
             {3066, {15015, 15016}},
             {3071, {15017}}}};
}

inline SExpectedTemplate ExpectedControlCodeHex()
{
    return {1058,
            "Control code direct input",
            {
                {kNoId, EControl::Static, "Control code (Hex)"},
                {3358, EControl::Edit, ""},
                {1, EControl::DefaultButton, "&OK"},
                {2, EControl::PushButton, "Cancel"},
            },
            {}};
}
