// What the unit's operations show of an earlier run: each list position by its rule, whichever operation left it there.
#include "tests/dialogs/posunit/EPointModel.h"
#include "tests/dialogs/posunit/UnitFormTest.h"

#include <random>

namespace
{

class CUnitFormRestoreTest : public CUnitFormsTest
{
protected:
    /// Opens the dialog on the lists, which Back keeps.
    void ExpectRestored(const SResults& stored)
    {
        const SUnitForm& form = GetParam();
        WriteResults(m_wizard, stored);
        Leave(form, [&](CDialogRobot& dialog) {
            SUnitEntries shown = UnitShown(form, stored, m_wizard.GetStartType() == 2);
            ExpectShown(dialog, form, shown);
        });
        EXPECT_EQ(ReadResults(m_wizard), stored) << "Back keeps the lists";
    }
};

INSTANTIATE_TEST_SUITE_P(Forms, CUnitFormRestoreTest, testing::ValuesIn(UnitForms()), UnitFormName);

// ---- By hand --------------------------------------------------------------------------------------------------------

// The same lists, as each operation shows them.
TEST_P(CUnitFormRestoreTest, ShowTheirShareOfOneRecord)
{
    const SUnitForm& form = GetParam();
    m_wizard.SetStartType(2);
    const SResults stored = {
        .contacts = {{2, 1, 170}, {2, 4, 17}, {2, 2, 31}, {3, 2, 644}},
        .operands = {{11, 7}, {9, 100}, {11, 99}, {12, 0x114}},
        .data = {{9, 0, 1, 1, 0x13}, {9, 0, 1, 0, 41}, {9, 0, 1, 0, 42}, {9, 0, 1, 0, 43}, {9, 0, 1, 0, 44}}};
    WriteResults(m_wizard, stored);
    Leave(form, [&](CDialogRobot& dialog) {
        EXPECT_EQ(dialog.Text(2051), CString("R"));
        EXPECT_EQ(dialog.Text(2052), CString("10A"));
        EXPECT_EQ(dialog.Text(form.slot), CString("7"));
        EXPECT_EQ(dialog.Text(form.axis), CString("2"));
        EXPECT_EQ(dialog.Text(form.start), CString("100"));
        const char* numbers[] = {"19", "41", "42", "43", "44"};
        const size_t first = form.variant == 10030 ? 0 : 1;
        for (size_t i = 0; i < form.numbers.size(); ++i)
            EXPECT_EQ(dialog.Text(form.numbers[i].id), CString(numbers[first + i])) << form.numbers[i].id;
        if (form.variant == 10050)
        {
            EXPECT_EQ(dialog.Text(3210), CString("T"));
            EXPECT_EQ(dialog.Text(3211), CString("17"));
            EXPECT_EQ(dialog.Text(3212), CString("(0 - 1007)"));
        }
        for (const SUnitList& list : form.lists)
            EXPECT_EQ(dialog.Selection(list.id), list.shift == 1 || list.shift == 4 ? 1 : 0) << list.id;
        if (form.variant == 10030)
            return;
        EXPECT_TRUE(dialog.Checked(2054));
        EXPECT_FALSE(dialog.Checked(2055));
        EXPECT_EQ(dialog.Text(2056), CString("Y"));
        EXPECT_EQ(dialog.Text(2057), CString("1F"));
        EXPECT_EQ(dialog.Text(2059), CString("40"));
        EXPECT_EQ(dialog.Exists(2062) ? dialog.Selection(2062) : -1, form.HasDirection() ? 1 : -1);
    });
}

struct SStored
{
    const char* what;
    SResults results;
};

const SStored kStored[] = {
    {"nothing", {}},
    {"positions, not addresses, types or formats",
     {.contacts = {{3, 2, 31}, {2, 1, 170}},
      .operands = {{11, -1}, {9, 1}, {9, 77}, {12, 0x100}, {12, 0x130}},
      .data = {{9, 9, 0, 0, 1}, {9, 9, 0, 1, 1}, {9, 9, 2, 2, 2}, {9, 9, 0, 0, 3}, {9, 9, 0, 0, 4}, {9, 9, 0, 0, 5}}}},
    {"numbers longer than what can be typed",
     {.contacts = {{2, 4, 123456}, {2, 4, 7654321}},
      .operands = {{11, 2147483647}, {9, 2147483647}, {11, 10}, {12, 0x13F}},
      .data = {{9, 0, 1, 1, -1},
               {9, 0, 1, 0, -2147483647 - 1},
               {9, 0, 1, 0, 2147483647},
               {9, 0, 1, 0, 1234567},
               {9, 0, 1, 0, -2147483647 - 1}}}},
    {"operands of other devices", {.operands = {{12, 7}, {11, 100}, {11, 10}, {11, 0x120}}}},
    {"operands of the special registers", {.operands = {{9, 7}, {20009, 100}, {11, 10}, {9, 0x120}}}},
    {"the operands of an instruction", {.operands = {{9, 100}, {11, 1}}}},
    {"one operand", {.operands = {{11, 3}}}},
    {"two operands", {.operands = {{11, 3}, {9, 5}}}},
    {"records of other devices",
     {.data = {{10, 0, 1, 1, -1}, {20009, 1, 1, 0, 500}, {0, 2, 1, 0, 500}, {-1, 3, 1, 0, 300}, {11, 4, 1, 0, 300}}}},
    {"one record of another device",
     {.data = {{9, 0, 1, 1, 0x28}, {9, 1, 1, 0, 41}, {10, 2, 1, 0, 500}, {9, 3, 1, 0, 31}, {9, 4, 1, 0, 7}}}},
    {"a first record of another device", {.data = {{10, 0, 1, 1, -1}, {9, 1, 1, 0, 41}}}},
    {"a control code alone", {.data = {{9, 0, 1, 1, 0x10000000}}}},
    {"every bit of the control code", {.data = {{9, 0, 1, 1, -1}}}},
};

TEST_P(CUnitFormRestoreTest, RestoreEachListPositionByItsRule)
{
    for (const int source : kSweptUnitSources)
    {
        Use(source);
        for (const SStored& stored : kStored)
        {
            SCOPED_TRACE(testing::Message() << "source " << source << ", " << stored.what);
            ExpectRestored(stored.results);
        }
    }
}

TEST_P(CUnitFormRestoreTest, ShowContactsOfAbsentDevicesByTheirNumbers)
{
    const SUnitForm& form = GetParam();
    WriteResults(m_wizard, {.contacts = {{2, 17, 170}, {2, 65, 171}}});
    Leave(form, [&](CDialogRobot& dialog) {
        EXPECT_EQ(dialog.Text(2051), CString("X"));
        EXPECT_EQ(dialog.Text(2052), CString("10A"));
        if (form.changeDevice != 0)
        {
            EXPECT_EQ(dialog.Text(3210), CString("X"));
            EXPECT_EQ(dialog.Text(3211), CString("171"));
        }
    });
}

// ---- The start output -----------------------------------------------------------------------------------------------

struct SContacts
{
    const char* what;
    std::vector<SContactRow> contacts;
};

const SContacts kContacts[] = {
    {"nothing", {}},
    {"no start output", {{2, 1, 170}}},
    {"a second contact alone", {{2, 1, 170}, {2, 2, 31}}},
    {"a second condition", {{2, 1, 170}, {2, 2, 31}, {3, 2, 643}}},
    {"backwards", {{2, 1, 170}, {2, 2, 31}, {3, 2, 644}}},
    {"backwards in word 0", {{2, 1, 170}, {2, 2, 31}, {3, 2, 4}}},
    {"backwards after a speed change", {{2, 1, 170}, {2, 0, 5}, {2, 2, 31}, {3, 2, 308}}},
    {"a speed change on the first contact", {{2, 1, 170}, {2, 1, 170}, {2, 1, 170}, {3, 2, 307}}},
    {"a speed change on the second condition", {{2, 1, 170}, {2, 2, 31}, {2, 2, 31}, {3, 2, 307}}},
    {"a condition on the same device", {{2, 1, 170}, {2, 1, 171}, {3, 2, 648}}},
    {"the same condition", {{2, 1, 170}, {2, 1, 170}, {3, 2, 648}}},
    {"the same number on another device", {{2, 1, 14400}, {2, 20001, 14400}, {3, 2, 47}}},
    {"a timer", {{2, 1, 170}, {2, 4, 1007}, {3, 2, 1759}}},
    {"the last contacts of more", {{2, 1, 170}, {2, 3, 1}, {2, 4, 7}, {2, 5, 1009}, {3, 2, 648}}},
    {"an output in word 0", {{2, 1, 170}, {2, 2, 31}, {3, 2, 9}}},
    {"a relay as the output", {{2, 1, 170}, {2, 3, 31}, {3, 1, 644}}},
    {"an output among conditions", {{3, 2, 644}, {3, 2, 644}, {2, 2, 644}}},
};

TEST_P(CUnitFormRestoreTest, RestoreTheContacts)
{
    for (const BYTE startType : std::initializer_list<BYTE>{0, 1, 2})
    {
        m_wizard.SetStartType(startType);
        for (size_t i = IsThorough() ? 0 : startType; i < std::size(kContacts); i += IsThorough() ? 1 : 3)
        {
            const SContacts& row = kContacts[i];
            SCOPED_TRACE(testing::Message() << "start type " << int{startType} << ", " << row.what);
            ExpectRestored({.contacts = row.contacts});
        }
    }
}

// ---- Records of other operations ------------------------------------------------------------------------------------

// All have one instruction: a host may give the lists of one to another.
TEST_P(CUnitFormRestoreTest, ShowWhatTheirPlacesHoldOfAnyOtherOperation)
{
    std::vector<SResults> records;
    for (const BYTE startType : std::initializer_list<BYTE>{0, 1, 2})
        for (const bool same : {false, true})
        {
            if (startType == 0 && same)
                continue;
            m_wizard.SetStartType(startType);
            for (const EEPointForm other : kForms)
            {
                const SEPointEntries entries = {
                    .items = {1, 1, 1, 1, 1, 1, 3, 1, 1, 7}, .startOutput = true, .same = same};
                records.push_back(EPointOutcome(other, entries, m_wizard).results);
            }
            for (const SUnitForm& other : UnitForms())
                for (int direction = 0; direction <= (other.HasDirection() ? 1 : 0); ++direction)
                {
                    SUnitEntries entries = Started(other);
                    entries.items = LastItems(other);
                    entries.same = same;
                    entries.direction = direction;
                    const SUnitOutcome outcome = UnitOutcome(other, entries, m_wizard);
                    ASSERT_EQ(outcome.message, 0u) << other;
                    records.push_back(outcome.results);
                }
        }
    for (const int source : kSweptUnitSources)
    {
        Use(source);
        for (const BYTE startType : std::initializer_list<BYTE>{0, 1, 2})
        {
            m_wizard.SetStartType(startType);
            for (size_t i = IsThorough() ? 0 : startType; i < records.size(); i += IsThorough() ? 1 : 7)
            {
                SCOPED_TRACE(testing::Message() << "source " << source << ", start type " << int{startType}
                                                << ", record " << i << ": " << records[i]);
                ExpectRestored(records[i]);
            }
        }
    }
}

// What is shown of them can be confirmed where it is complete, and is then a record of this operation.
TEST_P(CUnitFormRestoreTest, MakeARecordOfTheirOwnOfAnotherOperations)
{
    const SUnitForm& form = GetParam();
    m_wizard.SetStartType(2);
    for (const SUnitForm& other : UnitForms())
    {
        SCOPED_TRACE(other.name);
        WriteResults(m_wizard, UnitOutcome(other, Started(other), m_wizard).results);
        const SUnitEntries shown = UnitShown(form, ReadResults(m_wizard), true);
        const SUnitOutcome outcome = UnitOutcome(form, shown, m_wizard);
        if (outcome.message != 0)
            Leave(form, [&](CDialogRobot& dialog) { ExpectRefusal(dialog, outcome.message, outcome.edit); });
        else
        {
            Confirm(form);
            EXPECT_EQ(ReadResults(m_wizard), outcome.results);
        }
    }
}

// ---- Axes and words -------------------------------------------------------------------------------------------------

// One dialog goes through its opening again for every case of the following tests.
TEST_P(CUnitFormRestoreTest, RestoreTheAxisOfAnyAddressInItsArea)
{
    const SUnitForm& form = GetParam();
    std::vector<int> addresses = {0xF0, 0xFF, 0x100, 0x104, 0x10F, 0x110, 0x125, 0x12F, 0x130, 0x13F, 0x140, 0x14F};
    for (int address = 0xE0; address <= 0x160 && IsThorough(); ++address)
        addresses.push_back(address);
    Leave(form, [&](CDialogRobot& dialog) {
        for (const int address : addresses)
        {
            const char* const axes[] = {"1", "2", "3", "4"};
            const char* expected = address >= 0x100 && address <= 0x13F ? axes[(address - 0x100) / 16] : "";
            WriteResults(m_wizard, {.operands = {{11, 0}, {9, 0}, {11, 10}, {12, address}}});
            dialog.Dialog()->SendMessage(WM_INITDIALOG);
            EXPECT_EQ(dialog.Text(form.axis), CString(expected)) << address;
        }
    });
}

const int kWords = IsThorough() ? 2000 : 10;

TEST_P(CUnitFormRestoreTest, RestoreTheListsFromAnyWord)
{
    const SUnitForm& form = GetParam();
    std::mt19937 random(form.templateId);
    Leave(form, [&](CDialogRobot& dialog) {
        for (int i = 0; i < kWords && !HasFailure(); ++i)
        {
            const DWORD word = i < 32 && IsThorough() ? DWORD{1} << i : static_cast<DWORD>(random());
            m_wizard.RemoveAllDataInfo();
            m_wizard.AddDataInfo(kDT, 0, 1, 1, static_cast<LONG>(word));
            dialog.Dialog()->SendMessage(WM_INITDIALOG);
            for (const SUnitList& list : form.lists)
                EXPECT_EQ(dialog.Selection(list.id), ItemOf(word, AxisFieldAt(list.shift)))
                    << "list " << list.id << " for " << HexText(word);
        }
    });
}

// ---- Round trips ----------------------------------------------------------------------------------------------------

TEST_P(CUnitFormRestoreTest, StoreTheSameWhenConfirmedAgain)
{
    const SUnitForm& form = GetParam();
    for (const BYTE startType : std::initializer_list<BYTE>{0, 1, 2})
        for (const bool wanted : {false, true})
            for (const bool same : SameOrNot(wanted && startType != 0))
                for (const int direction : SweptDirections(form))
                {
                    SCOPED_TRACE(testing::Message() << "start type " << int{startType} << ", " << wanted << same
                                                    << ", direction " << direction);
                    WriteResults(m_wizard, {});
                    m_wizard.SetStartType(startType);
                    SUnitEntries entries(form);
                    entries.items = LastItems(form);
                    entries.startOutput = wanted;
                    entries.same = same;
                    entries.direction = direction;
                    const SResults first = Confirmed(form, entries);
                    EXPECT_EQ(first, UnitOutcome(form, entries, m_wizard).results);
                    Confirm(form);
                    EXPECT_EQ(ReadResults(m_wizard), first);
                }
}

TEST_P(CUnitFormRestoreTest, BackKeepsWhatWasConfirmedBefore)
{
    const SUnitForm& form = GetParam();
    m_wizard.SetStartType(2);
    const SResults confirmed = Confirmed(form, Started(form));
    Leave(form, [&](CDialogRobot& dialog) {
        SUnitEntries entries = Started(form);
        entries.device = kL;
        entries.start = "2";
        entries.items = LastItems(form);
        FillIn(dialog, form, entries);
    });
    EXPECT_EQ(ReadResults(m_wizard), confirmed);
    Leave(form, [](CDialogRobot& dialog) { dialog.Click(3099); });
    EXPECT_EQ(ReadResults(m_wizard), confirmed);
}

} // namespace
