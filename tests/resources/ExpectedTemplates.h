// The dialog templates as the interface demands them: every control in tab order, with its English text. Written down
// apart from the resource scripts, by number.
#pragma once

#include <initializer_list>
#include <ostream>
#include <utility>
#include <vector>

enum class EControl
{
    Static,
    Edit,
    DropList,
    ListBox,
    CheckBox,
    PushButton,
    DefaultButton
};

struct SExpectedControl
{
    unsigned id; ///< kNoId for the statics that no code asks for
    EControl kind;
    const char* text;
};

inline constexpr unsigned kNoId = 0xFFFF;

/// The texts that the items of a drop-down list are made from; a format counts as it stands.
struct SExpectedItems
{
    unsigned combo;
    std::vector<unsigned> texts;
};

struct SExpectedTemplate
{
    unsigned id;
    const char* caption;
    std::vector<SExpectedControl> controls;
    std::vector<SExpectedItems> items;
};

inline void PrintTo(const SExpectedTemplate& expected, std::ostream* out) { *out << "template " << expected.id; }

inline std::vector<SExpectedControl> Joined(std::initializer_list<std::vector<SExpectedControl>> parts)
{
    std::vector<SExpectedControl> all;
    for (const std::vector<SExpectedControl>& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

// ---- What instruction dialogs share ---------------------------------------------------------------------------------

inline std::vector<SExpectedControl> ExpectedTop(const char* heading, unsigned start, unsigned startRange)
{
    return {
        {kNoId, EControl::Static, heading},
        {2061, EControl::CheckBox, "Only a data table is created."},
        {kNoId, EControl::Static, "Starting condition contact"},
        {2051, EControl::DropList, ""},
        {2052, EControl::Edit, ""},
        {2053, EControl::Static, "Impossible settings"},
        {kNoId, EControl::Static, "Data table starting address"},
        {start, EControl::Edit, ""},
        {startRange, EControl::Static, "Impossible settings"},
    };
}

inline std::vector<SExpectedControl> ExpectedButtons()
{
    return {
        {1, EControl::DefaultButton, "&OK"},
        {2, EControl::PushButton, "&Back"},
        {2099, EControl::PushButton, "&Clear settings"},
    };
}

// ---- The templates --------------------------------------------------------------------------------------------------

inline SExpectedTemplate ExpectedSelect()
{
    return {1001,
            "Positioning processing selection",
            {
                {3002, EControl::Static, "Instruction &list"},
                {2001, EControl::ListBox, ""},
                {kNoId, EControl::Static, "&Explain"},
                {2002, EControl::Edit, ""},
                {3001, EControl::CheckBox, "I/O comment is registered automatically."},
                {1, EControl::DefaultButton, "&OK"},
                {2, EControl::PushButton, "&Cancel"},
                {2003, EControl::PushButton, "&Help"},
            },
            {}};
}

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

/// Every template that is tested; a template that stands in a script and not here fails a test.
inline std::vector<SExpectedTemplate> ExpectedTemplates()
{
    return {ExpectedSelect(), ExpectedSpd1Trapezoidal(), ExpectedSpd1Home()};
}
