// What the unit's operations refuse: bounds, texts, the order of the checks, and what a refusal leaves alone.
#include "tests/dialogs/posunit/UnitFormTest.h"

#include <algorithm>

namespace
{

/// All edits count.
class CUnitFormCheckTest : public CUnitFormsTest
{
protected:
    CUnitFormCheckTest() { m_wizard.SetStartType(2); }

    /// Fills the dialog in, plays the scene and leaves; the lists keep what they held.
    void Refuse(const Scene& scene)
    {
        const SUnitForm& form = GetParam();
        WriteResults(m_wizard, EarlierUnitResults());
        Leave(form, [&](CDialogRobot& dialog) {
            FillIn(dialog, form, Started(form));
            scene(dialog);
        });
        EXPECT_EQ(ReadResults(m_wizard), EarlierUnitResults());
    }
};

INSTANTIATE_TEST_SUITE_P(Forms, CUnitFormCheckTest, testing::ValuesIn(UnitForms()), UnitFormName);

// ---- Bounds ---------------------------------------------------------------------------------------------------------

struct SBoundTexts
{
    UINT edit;
    std::vector<std::string> accepted;
    std::vector<std::string> refused;
};

std::vector<SBoundTexts> Bounds(const SUnitForm& form)
{
    const int last = 32764 - form.registers + 1;
    std::vector<SBoundTexts> bounds = {
        {2052, {"0", "255F"}, {"2560", "999F"}},
        {form.slot, {"0", "31"}, {"-1", "32", "99"}},
        {form.axis, {"1", "2", "3", "4"}, {"0", "5", "9"}},
        {form.start, {"0", std::to_string(last)}, {"-1", std::to_string(last + 1), "99999"}}};
    for (const SUnitNumber& number : form.numbers)
    {
        SBoundTexts& row =
            bounds.emplace_back(SBoundTexts{number.id,
                                            {std::to_string(number.low), std::to_string(number.high)},
                                            {std::to_string(number.low - 1), std::to_string(number.high + 1)}});
        row.refused.push_back(number.limit == 11 ? "99999999999" : std::string(static_cast<size_t>(number.limit), '9'));
    }
    if (form.changeNumber != 0)
        bounds.push_back({form.changeNumber, {"0", "127F"}, {"1280", "999F"}});
    if (form.HasStartOutput())
    {
        bounds.push_back({2057, {"0", "109F"}, {"1100", "999F"}});
        bounds.push_back({2059, {"2", "109"}, {"0", "1", "-2", "110", "999"}});
    }
    return bounds;
}

TEST_P(CUnitFormCheckTest, TakesTheBoundsAndStoresThem)
{
    const SUnitForm& form = GetParam();
    for (const bool highest : {false, true})
    {
        SUnitEntries entries = Started(form);
        for (const SBoundTexts& bound : Bounds(form))
            EntryOf(entries, form, bound.edit) = highest ? bound.accepted.back() : bound.accepted.front();
        ASSERT_EQ(UnitOutcome(form, entries, m_wizard).message, 0u);
        Check(form, entries);
    }
    if (!IsThorough())
        return;
    for (const SBoundTexts& bound : Bounds(form))
        for (const std::string& text : bound.accepted)
        {
            SCOPED_TRACE(testing::Message() << text << " in edit " << bound.edit);
            SUnitEntries entries = Started(form);
            EntryOf(entries, form, bound.edit) = text;
            ASSERT_EQ(UnitOutcome(form, entries, m_wizard).message, 0u);
            Check(form, entries);
        }
}

TEST_P(CUnitFormCheckTest, RefusesWhatLiesOutside)
{
    const SUnitForm& form = GetParam();
    Refuse([&](CDialogRobot& dialog) {
        const auto messages = CheckedEdits(form, true);
        const auto bounds = Bounds(form);
        ASSERT_EQ(bounds.size(), messages.size());
        for (size_t i = 0; i < bounds.size(); ++i)
        {
            ASSERT_EQ(bounds[i].edit, messages[i].first);
            const CString good = dialog.Text(bounds[i].edit);
            for (const std::string& text : bounds[i].refused)
            {
                SCOPED_TRACE(testing::Message() << text << " in edit " << bounds[i].edit);
                dialog.Type(bounds[i].edit, text.c_str());
                EXPECT_EQ(dialog.Text(bounds[i].edit), CString(text.c_str())) << "can be typed";
                ExpectRefusal(dialog, messages[i].second, bounds[i].edit);
            }
            dialog.Type(bounds[i].edit, good);
        }
    });
}

// The registers of the controllers that have 32766 of them, and the fewest and the last that will do.
TEST_P(CUnitFormCheckTest, KeepsTheWholeTableInTheRegisters)
{
    const SUnitForm& form = GetParam();
    struct
    {
        int low, high;
    } const rows[] = {{0, 32765}, {0, form.registers - 1}, {100, 1000}};
    for (const auto& [low, high] : rows)
    {
        SetDeviceRange(m_wizard, kDT, low, high);
        const int last = high - form.registers + 1;
        SUnitEntries entries(form);
        for (const int start : {low, last})
        {
            SCOPED_TRACE(testing::Message() << start << " in " << low << " to " << high);
            entries.start = std::to_string(start);
            Confirm(form, [&](CDialogRobot& dialog) {
                FillIn(dialog, form, entries);
                SetTextByProgram(dialog, form.start, std::to_string(start == low ? low - 1 : last + 1));
                ExpectRefusal(dialog, 20003, form.start);
                dialog.Type(form.start, entries.start.c_str());
            });
            EXPECT_EQ(ReadResults(m_wizard), UnitOutcome(form, entries, m_wizard).results);
        }
    }
}

TEST_P(CUnitFormCheckTest, FollowsTheSlotsAndAxesOfTheUnit)
{
    const SUnitForm& form = GetParam();
    struct
    {
        BYTE slots;
        BYTE axisFlag;
        std::vector<const char*> slotsRefused, axesRefused;
        const char *lastSlot, *lastAxis;
    } const rows[] = {{16, 0, {"16", "-1"}, {"3", "4", "0"}, "15", "2"},
                      {1, 1, {"1"}, {"5", "0"}, "0", "4"},
                      {32, 9, {"32"}, {"5"}, "31", "4"},
                      {255, 0, {"-1"}, {"3"}, "99", "2"}};
    for (const auto& row : rows)
    {
        SCOPED_TRACE(testing::Message() << int{row.slots} << " slots, axis flag " << int{row.axisFlag});
        m_wizard.SetMaxSlot(row.slots);
        SFunWizardTest::SetAxisFlag(m_wizard, row.axisFlag);
        SUnitEntries entries(form);
        entries.slot = row.lastSlot;
        entries.axis = row.lastAxis;
        Confirm(form, [&](CDialogRobot& dialog) {
            FillIn(dialog, form, entries);
            for (const char* slot : row.slotsRefused)
            {
                dialog.Type(form.slot, slot);
                ExpectRefusal(dialog, 20021, form.slot);
            }
            dialog.Type(form.slot, row.lastSlot);
            for (const char* axis : row.axesRefused)
            {
                dialog.Type(form.axis, axis);
                ExpectRefusal(dialog, 20022, form.axis);
            }
            dialog.Type(form.axis, row.lastAxis);
        });
        EXPECT_EQ(ReadResults(m_wizard), UnitOutcome(form, entries, m_wizard).results);
    }
}

// ---- The relay of the start output ----------------------------------------------------------------------------------

// The relay counts, not its word: the outputs may end within it.
TEST_P(CUnitFormCheckTest, KeepsTheRelayAmongTheOutputs)
{
    const SUnitForm& form = GetParam();
    for (size_t direction = 0; direction < form.startBits.size(); ++direction)
    {
        const int bit = form.startBits[direction];
        struct
        {
            int lastOutput;
            const char *accepted, *refused;
        } const rows[] = {{Bit(50, bit), "50", "51"},
                          {Bit(50, bit - 1), "49", "50"},
                          {Bit(2, bit), "2", "1"},
                          {Bit(2, 15), "2", "3"}};
        for (const auto& row : rows)
        {
            SCOPED_TRACE(testing::Message() << "bit " << bit << ", outputs up to " << row.lastOutput);
            SetDeviceRange(m_wizard, kY, 0, row.lastOutput);
            SUnitEntries entries = Started(form);
            entries.same = true;
            entries.second = "0";
            entries.direction = static_cast<int>(direction);
            entries.word = row.accepted;
            Confirm(form, [&](CDialogRobot& dialog) {
                FillIn(dialog, form, entries);
                dialog.Type(2059, row.refused);
                ExpectRefusal(dialog, 20030, 2059);
                dialog.Type(2059, row.accepted);
            });
            const SResults expected = UnitOutcome(form, entries, m_wizard).results;
            EXPECT_EQ(expected.contacts.back().number, std::stoi(row.accepted) * 16 + bit);
            EXPECT_EQ(ReadResults(m_wizard), expected);
        }
    }
}

// ---- Devices of the contacts ----------------------------------------------------------------------------------------

struct SDevice
{
    int code;
    const char* lowest;
    const char* highest;
    const char* below; // null: there is none that could be typed
    const char* above;
};

constexpr SDevice kDevices[] = {
    {kX, "0", "109F", nullptr, "1100"}, {kY, "0", "109F", nullptr, "1100"},
    {kR, "0", "255F", nullptr, "2560"}, {kSpecialR, "9000", "911F", "899F", "9120"},
    {kT, "0", "1007", "-1", "1008"},    {kC, "1008", "1023", "1007", "1024"},
    {kL, "0", "127F", nullptr, "1280"},
};

TEST_P(CUnitFormCheckTest, ChecksEachContactByItsDevice)
{
    const SUnitForm& form = GetParam();
    for (const SDevice& device : Sampled(kDevices, 4))
    {
        SCOPED_TRACE(DeviceName(device.code));
        SUnitEntries entries = Started(form);
        entries.device = entries.changeDevice = entries.secondDevice = device.code;
        for (const char* number : {device.lowest, device.highest})
        {
            entries.contact = entries.change = entries.second = number;
            Check(form, entries);
        }
        Leave(form, [&](CDialogRobot& dialog) {
            for (const char* number : {device.below, device.above})
                for (const UINT edit : {2052u, form.changeNumber, 2057u})
                {
                    if (number == nullptr || edit == 0 || (edit == 2057 && !form.HasStartOutput()))
                        continue;
                    SUnitEntries bad = entries;
                    EntryOf(bad, form, edit) = number;
                    ASSERT_NE(UnitOutcome(form, bad, m_wizard).message, 0u);
                    Check(dialog, form, bad);
                }
        });
    }
}

TEST_P(CUnitFormCheckTest, RefusesAContactWithoutDevice)
{
    const SUnitForm& form = GetParam();
    Refuse([&](CDialogRobot& dialog) {
        if (form.HasStartOutput())
        {
            SelectByProgram(dialog, 2056, -1);
            ExpectRefusal(dialog, 20020, 2057);
        }
        if (form.changeDevice != 0)
        {
            const CString range = dialog.Text(form.changeRange);
            SelectByProgram(dialog, form.changeDevice, -1);
            EXPECT_EQ(dialog.Text(form.changeRange), range) << "stays as it was";
            ExpectRefusal(dialog, 20027, form.changeNumber);
        }
        SelectByProgram(dialog, 2051, -1);
        ExpectRefusal(dialog, 20029, 2052);
    });
}

// ---- Texts that are no numbers --------------------------------------------------------------------------------------

// "-" alone reads as 0. A bit number takes blanks within, and ends in a hexadecimal digit.
constexpr const char* kMalformed[] = {"", " ", "--", "1-", "+1", "1.5", "x", "1x", "0x1", "1 2", "\x80"};

TEST_P(CUnitFormCheckTest, RefusesWhatIsNoNumber)
{
    const SUnitForm& form = GetParam();
    Refuse([&](CDialogRobot& dialog) {
        for (const auto& [edit, message] : CheckedEdits(form, true))
        {
            const CString good = dialog.Text(edit);
            for (const char* text : Sampled(kMalformed, 5))
            {
                if (IsContactEdit(form, edit) && std::string(text) == "1 2")
                    continue;
                SCOPED_TRACE(testing::Message() << "\"" << text << "\" in edit " << edit);
                dialog.SetText(edit, text);
                ExpectRefusal(dialog, 20001, edit);
            }
            dialog.Type(edit, good);
        }
    });
}

// Numbers that no integer type holds are outside of every range.
TEST_P(CUnitFormCheckTest, RefusesHugeNumbersAsOutOfRange)
{
    const SUnitForm& form = GetParam();
    const char* huge[] = {"4294967297",          "18446744073709551617", "99999999999999999999", "9223372036854775808",
                          "1152921504606846979", "-9223372036854775809", "-18446744073709551615"};
    Refuse([&](CDialogRobot& dialog) {
        for (const auto& [edit, message] : CheckedEdits(form, true))
        {
            const CString good = dialog.Text(edit);
            for (const char* text : Sampled(huge, 3))
            {
                if (IsContactEdit(form, edit) && text[0] == '-')
                    continue; // bit numbers have no sign
                SCOPED_TRACE(testing::Message() << text << " in edit " << edit);
                dialog.SetText(edit, text);
                ExpectRefusal(dialog, message, edit);
            }
            dialog.Type(edit, good);
        }
    });
}

// ---- Order ----------------------------------------------------------------------------------------------------------

// With every set of bad fields, the first of them is pointed at; whether the bad one is no number or out of its range.
TEST_P(CUnitFormCheckTest, PointsAtTheFirstBadField)
{
    const SUnitForm& form = GetParam();
    const auto edits = CheckedEdits(form, true);
    const auto bounds = Bounds(form);
    Refuse([&](CDialogRobot& dialog) {
        for (const unsigned bad : SampledSets(edits.size(), IsThorough() ? 1 : 701))
        {
            if (IsThorough() && bad % 3 != 0 && (bad & (bad - 1)) != 0)
                continue; // every third set, and each field alone
            SCOPED_TRACE(testing::Message() << "bad fields " << bad);
            SUnitEntries entries = Started(form);
            for (size_t i = 0; i < edits.size(); ++i)
                if ((bad >> i & 1) != 0)
                    EntryOf(entries, form, edits[i].first) = (bad + i) % 2 == 0 ? "" : bounds[i].refused.back();
            Check(dialog, form, entries);
        }
    });
}

// Each field that is corrected leads to the next bad one.
TEST_P(CUnitFormCheckTest, GoesFromFieldToField)
{
    const SUnitForm& form = GetParam();
    Confirm(form, [&](CDialogRobot& dialog) {
        SUnitEntries good = Started(form);
        FillIn(dialog, form, good);
        const auto edits = CheckedEdits(form, true);
        for (const auto& [edit, message] : edits)
            dialog.Type(edit, "");
        for (const auto& [edit, message] : edits)
        {
            ExpectRefusal(dialog, 20001, edit);
            dialog.Type(edit, EntryOf(good, form, edit).c_str());
        }
    });
    EXPECT_EQ(ReadResults(m_wizard), UnitOutcome(form, Started(form), m_wizard).results);
}

// What a start output does not need is not checked.
TEST_P(CUnitFormCheckTest, ChecksOnlyWhatTheStartOutputNeeds)
{
    const SUnitForm& form = GetParam();
    for (const int source : kSweptUnitSources)
    {
        Use(source);
        for (const BYTE startType : std::initializer_list<BYTE>{0, 1, 2})
            for (const bool wanted : {false, true})
                for (const bool same : SameOrNot(wanted && startType != 0))
                    for (const UINT bad : {2057, 2059})
                    {
                        SCOPED_TRACE(testing::Message() << source << ", start type " << int{startType} << ", " << wanted
                                                        << same << ", edit " << bad);
                        m_wizard.SetStartType(startType);
                        SUnitEntries entries(form);
                        entries.startOutput = wanted;
                        entries.same = same;
                        EntryOf(entries, form, bad) = "";
                        const bool counts = source != kModule && form.HasStartOutput() && wanted && startType != 0 &&
                                            (bad == 2057 ? !same : startType == 2);
                        ASSERT_EQ(UnitOutcome(form, entries, m_wizard).message, counts ? 20001u : 0u);
                        Check(form, entries);
                    }
    }
}

// Not even when a template carries them.
TEST_F(CUnitFormTest, JogWithoutASpeedChangeNeverReadsHighSpeedAndCondition)
{
    const SUnitForm& form = UnitForm("Jog");
    Confirm(form, [&](CDialogRobot& dialog) {
        for (const UINT id : {3209u, 3211u})
        {
            const HWND edit = ::CreateWindowExA(0, "Edit", "no number", WS_CHILD, 0, 0, 10, 10, dialog.Dialog()->m_hWnd,
                                                reinterpret_cast<HMENU>(UINT_PTR{id}), nullptr, nullptr);
            ASSERT_NE(edit, nullptr);
            EXPECT_EQ(dialog.Text(id), CString("no number"));
        }
        FillIn(dialog, form, SUnitEntries(form));
    });
    EXPECT_EQ(ReadResults(m_wizard), UnitOutcome(form, SUnitEntries(form), m_wizard).results);
}

// Without a speed change its condition and speed do not exist, and cannot be missing.
TEST_F(CUnitFormTest, JogWithoutASpeedChangeHasNeitherHighSpeedNorCondition)
{
    const SUnitForm& form = UnitForm("Jog");
    for (const int source : kUnitSources)
    {
        Use(source);
        Confirm(form, [&](CDialogRobot& dialog) {
            for (const UINT id : {3209, 3210, 3211, 3212})
                EXPECT_FALSE(dialog.Exists(id)) << id;
            FillIn(dialog, form, SUnitEntries(form));
        });
        EXPECT_EQ(ReadResults(m_wizard).contacts.size(), 1u);
        EXPECT_EQ(ReadResults(m_wizard).data.size(), 4u);
    }
}

} // namespace
