// The templates of families B and C, by number and in English, apart from the resource scripts.
#pragma once

#include "tests/resources/ExpectedPulse.h"

/// A template of family A under another number: the controls above `lastId` are nothing that code asks for.
inline SExpectedTemplate AsTemplate(unsigned id, SExpectedTemplate expected, unsigned firstId, unsigned lastId)
{
    expected.id = id;
    expected.onlyInLibraries = true;
    for (SExpectedControl& control : expected.controls)
        if (control.id > lastId && control.id < firstId + 50)
            control.id = kNoId;
    return expected;
}

inline std::vector<SExpectedControl> ExpectedList(const char* label, unsigned id)
{
    return {{kNoId, EControl::Static, label}, {id, EControl::DropList, ""}};
}

inline std::vector<SExpectedControl> ExpectedNumber(const char* label, unsigned id, const char* unit, const char* range,
                                                    unsigned rangeId = kNoId)
{
    return {{kNoId, EControl::Static, label},
            {id, EControl::Edit, ""},
            {kNoId, EControl::Static, unit},
            {rangeId, EControl::Static, range}};
}

inline std::vector<SExpectedControl> ExpectedChannelSpeed(const char* label, unsigned id)
{
    return ExpectedNumber(label, id, "Hz", "(1 - 100000)");
}

inline std::vector<SExpectedControl> ExpectedChannelTime(const char* label, unsigned id)
{
    return ExpectedNumber(label, id, "ms", "(0 - 32767)");
}

inline std::vector<SExpectedControl> ExpectedAnyTarget(unsigned id)
{
    return ExpectedNumber("Target value", id, "Pulse No.", "(-2147483648 - 2147483647)");
}

inline std::vector<SExpectedControl> ExpectedCounterClear(unsigned id)
{
    return ExpectedNumber("Deviation counter clear signal", id, "ms", "(0, 1 - 100)  0: Not using");
}

inline std::vector<unsigned> ExpectedIds(unsigned first, unsigned last)
{
    std::vector<unsigned> ids;
    for (unsigned id = first; id <= last; ++id)
        ids.push_back(id);
    return ids;
}

inline constexpr unsigned kFirstHomeMode = 11052;
inline constexpr unsigned kLastHomeMode = 11067;

inline std::vector<SExpectedControl> ExpectedChannelSpdh(const char* mode)
{
    return Joined({ExpectedList("The channel for a pulse output", 2253), ExpectedList("Duty (on width)", 2255),
                   ExpectedList(mode, 2257), ExpectedChannelSpeed("Initial speed", 2261),
                   ExpectedChannelSpeed("Target speed", 2262), ExpectedChannelTime("Acceleration time", 2259),
                   ExpectedChannelTime("Deceleration time", 2266)});
}

inline SExpectedTemplate ExpectedChannelSpdhTrapezoidal()
{
    return {.id = 1059,
            .caption = "F171 (SPDH)",
            .controls = Joined(
                {ExpectedTop("SPDH (171)\tPulse output (with channel specification) (Trapezoidal control)", 2251, 2252),
                 ExpectedChannelSpdh("Operation mode and output method"), ExpectedAnyTarget(2260), ExpectedButtons()}),
            .items = {{2253, {11039}}, {2255, {11041, 11042}}, {2257, ExpectedIds(11046, 11051)}},
            .onlyInLibraries = true};
}

inline SExpectedTemplate ExpectedChannelSpdhHome()
{
    return {
        .id = 1060,
        .caption = "F171 (SPDH)",
        .controls = Joined(
            {ExpectedTop("SPDH (171)\tPulse output (with channel specification) (Home position return)", 2251, 2252),
             ExpectedChannelSpdh("Homing mode"), ExpectedChannelSpeed("Creep speed", 2063), ExpectedCounterClear(2265),
             ExpectedButtons()}),
        .items = {{2253, {11039}}, {2255, {11041, 11042}}, {2257, ExpectedIds(kFirstHomeMode, kLastHomeMode)}},
        .onlyInLibraries = true};
}

inline SExpectedTemplate ExpectedChannelPlsh()
{
    return {
        .id = 1062,
        .caption = "F172 (PLSH)",
        .controls =
            Joined({ExpectedTop("PLSH (172)\tPulse output (with channel specification) (JOG operation)", 2301, 2302),
                    ExpectedList("The channel for a pulse output", 2303), ExpectedList("Target value setting", 2304),
                    ExpectedList("Duty (on width)", 2305), ExpectedList("Output method", 2307),
                    ExpectedChannelSpeed("Initial speed", 2306), ExpectedChannelSpeed("Target speed", 2308),
                    ExpectedChannelTime("Acceleration time", 2309), ExpectedChannelTime("Deceleration time", 2311),
                    ExpectedAnyTarget(2310), ExpectedButtons()}),
        .items = {{2303, {11039}}, {2304, {11068, 11069}}, {2305, {11041, 11042}}, {2307, ExpectedIds(11070, 11077)}},
        .onlyInLibraries = true};
}

inline SExpectedTemplate ExpectedChannelPwmh()
{
    return {.id = 1063,
            .caption = "F173 (PWMH)",
            .controls =
                Joined({ExpectedTop("PWMH (173)\tPWM output (with channel specification)", 2351, 2352),
                        ExpectedList("The channel for a PWM output", 2353), ExpectedList("Frequency setting", 2354),
                        ExpectedNumber("Duty", 2357, "%", "", 2358), ExpectedButtons()}),
            .items = {{2353, {11039}}},
            .itemsOfLibraries = {{2354, ExpectedIds(11194, 11209)}},
            .onlyInLibraries = true};
}

inline SExpectedTemplate ExpectedChannelSpsh()
{
    SExpectedTemplate expected = AsTemplate(1065, ExpectedSpsh(), 2451, 2477);
    std::vector<SExpectedControl>& controls = expected.controls;
    for (size_t i = 0; i < controls.size(); ++i)
    {
        if (controls[i].text == std::string("Maximum speed"))
            controls[i].text = "Target speed";
        if (controls[i].id != 2473)
            continue;
        controls[i].text = "Acceleration time";
        const auto deceleration = ExpectedChannelTime("Deceleration time", 2457);
        controls.insert(controls.begin() + static_cast<std::ptrdiff_t>(i) + 4, deceleration.begin(),
                        deceleration.end());
    }
    return expected;
}

inline SExpectedTemplate ExpectedF177()
{
    return {
        .id = 1067,
        .caption = "F177",
        .controls = Joined(
            {ExpectedTop("F177 (177)\tPulse output (with channel specification) (Home position return)", 2551, 2552),
             ExpectedList("The channel for a pulse output", 2553), ExpectedList("Homing mode", 2554),
             ExpectedChannelSpeed("Target speed", 2555), ExpectedChannelTime("Acceleration time", 2556),
             ExpectedChannelTime("Deceleration time", 2557), ExpectedChannelSpeed("Creep speed", 2558),
             ExpectedCounterClear(2559), ExpectedButtons()}),
        .items = {{2553, {11039}}, {2554, ExpectedIds(kFirstHomeMode, kLastHomeMode)}},
        .onlyInLibraries = true};
}

inline SExpectedTemplate ExpectedFrequencyPwmh()
{
    return {.id = 1071,
            .caption = "F173 (PWMH)",
            .controls = Joined({ExpectedTop("PWMH (173)\tPWM output (with channel specification)", 2351, 2352),
                                ExpectedList("The channel for a PWM output", 2353),
                                ExpectedNumber("Frequency", 2354, "Hz", "", 2355),
                                ExpectedNumber("Duty", 2357, "%", "", 2356), ExpectedButtons()}),
            .items = {{2353, {11039}}},
            .onlyInLibraries = true};
}

/// All of them, ascending.
inline std::vector<SExpectedTemplate> ExpectedChannelTemplates()
{
    return {ExpectedChannelSpdhTrapezoidal(),
            ExpectedChannelSpdhHome(),
            AsTemplate(1061, ExpectedSpdhTrapezoidal(), 2251, 2266),
            ExpectedChannelPlsh(),
            ExpectedChannelPwmh(),
            AsTemplate(1064, ExpectedSp0h(), 2401, 2418),
            ExpectedChannelSpsh(),
            ExpectedF177(),
            AsTemplate(1069, ExpectedSpdhHome(), 2251, 2266),
            AsTemplate(1070, ExpectedPlsh(), 2301, 2310),
            ExpectedFrequencyPwmh(),
            AsTemplate(1072, ExpectedSp0h(), 2401, 2417),
            AsTemplate(1073, ExpectedSpsh(), 2451, 2477)};
}
