// How the tests write down what the interface demands of a dialog template.
#pragma once

#include <cstddef>
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
    RadioButton,
    GroupBox,
    PushButton,
    DefaultButton,
    ScrollBar,
    DrawnButton ///< by the dialog
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
    std::vector<SExpectedControl> librariesOnly = {}; ///< what the language libraries' template has more
    size_t before = 0;                                ///< and the position in `controls` where it stands
    std::vector<SExpectedItems> itemsOfLibraries = {};
    bool onlyInLibraries = false; ///< the module does not have the template

    /// In tab order, in the module's own resources or in a language library.
    std::vector<SExpectedControl> ControlsIn(bool library) const
    {
        std::vector<SExpectedControl> all = controls;
        if (library)
            all.insert(all.begin() + static_cast<std::ptrdiff_t>(before), librariesOnly.begin(), librariesOnly.end());
        return all;
    }

    std::vector<SExpectedItems> ItemsIn(bool library) const
    {
        std::vector<SExpectedItems> all = items;
        if (library)
            all.insert(all.end(), itemsOfLibraries.begin(), itemsOfLibraries.end());
        return all;
    }
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
