// What a confirmed operation of the unit leaves in the wizard's lists.
#include "tests/dialogs/posunit/UnitFormTest.h"

#include <random>

namespace
{

using CUnitFormResultsTest = CUnitFormsTest;
INSTANTIATE_TEST_SUITE_P(Forms, CUnitFormResultsTest, testing::ValuesIn(UnitForms()), UnitFormName);

// ---- Once by hand, for the model as much as for the dialogs
// -----------------------------------------------------------

struct SWritten
{
    const char* form;
    std::vector<int> items;
    std::vector<std::string> numbers;
    SResults results;
};

const std::vector<SWritten>& Written()
{
    static const std::vector<SWritten> rows = {
        {"PPointPassing",
         {},
         {"4000000", "32767", "-2147483648"},
         {.contacts = {{2, 20001, 14426}},
          .operands = {{11, 15}, {9, 200}, {11, 6}, {12, 0x124}},
          .data = {{9, 200, 1, 0, 4000000}, {9, 202, 1, 0, 32767}, {9, 204, 1, 0, -2147483647 - 1}},
          .comments = {"Target speed", "Accel./Decel. time", "Position command value"}}},
        {"Jog",
         {1, 0, 1, 0, 1, 2, 1, 0, 5},
         {"0", "1", "0"},
         {.contacts = {{2, 20001, 14426}},
          .operands = {{11, 15}, {9, 200}, {11, 8}, {12, 0x120}},
          .data = {{9, 200, 1, 1, 0x51002092}, {9, 202, 1, 0, 0}, {9, 204, 1, 0, 1}, {9, 206, 1, 0, 0}},
          .comments = {"Control code", "Startup speed", "Target speed", "Accel./decel. time"}}},
        {"JogSpeedChange",
         {0, 1, 0, 1, 0, 3, 0, 1, 7},
         {"500", "1000", "5000", "300"},
         {.contacts = {{2, 20001, 14426}, {2, 5, 1010}},
          .operands = {{11, 15}, {9, 200}, {11, 8}, {12, 0x120}},
          .data = {{9, 200, 1, 1, 0x72003028},
                   {9, 202, 1, 0, 500},
                   {9, 204, 1, 0, 1000},
                   {9, 204, 1, 0, 5000},
                   {9, 206, 1, 0, 300}},
          .comments = {"Control code", "Startup speed", "Target speed", "Target speed", "Accel./decel. time"}}},
        {"HomeReturn",
         {1, 1, 0, 0, 1, 1, 0, 1, 0, 1, 2, 1},
         {"500", "20000", "300"},
         {.contacts = {{2, 20001, 14426}},
          .operands = {{11, 15}, {9, 200}, {11, 8}, {12, 0x120}},
          .data = {{9, 200, 1, 1, static_cast<int>(0xA2001066)},
                   {9, 202, 1, 0, 500},
                   {9, 204, 1, 0, 20000},
                   {9, 206, 1, 0, 300}},
          .comments = {"Control code", "Startup speed", "Target speed", "Accel./decel. time"}}},
        {"Pulsar",
         {1, 0, 2, 1, 6, 0, 1, 1, 0, 1, 3},
         {"20000"},
         {.contacts = {{2, 20001, 14426}},
          .operands = {{11, 15}, {9, 200}, {11, 2}, {12, 0x120}},
          .data = {{9, 200, 1, 1, 0x321906A0}, {9, 204, 1, 0, 20000}},
          .comments = {"Control code", "Target speed"}}},
    };
    return rows;
}

TEST_F(CUnitFormTest, StoresItsEntriesInTheirPlaces)
{
    ASSERT_EQ(Written().size(), UnitForms().size());
    for (const int source : kUnitSources)
    {
        Use(source);
        for (const SWritten& row : Written())
        {
            SCOPED_TRACE(testing::Message() << row.form << ", source " << source);
            const SUnitForm& form = UnitForm(row.form);
            WriteResults(m_wizard, {.contacts = {{2, 3, 1}, {17, -1, 0}, {3, 2, 5}},
                                    .operands = {{9, 1}, {11, 1}, {11, 7}, {9, 8}, {9, 9}},
                                    .data = std::vector<SDataRow>(40, {9, 1, 0, 0, 7}),
                                    .comments = {"a", "b"},
                                    .instructions = {{8, -1, 151, 0, 0}}});
            SUnitEntries entries(form);
            entries.device = kSpecialR;
            entries.contact = "901A";
            entries.slot = "15";
            entries.axis = "3";
            entries.start = "200";
            entries.items = row.items;
            entries.numbers = row.numbers;
            entries.changeDevice = kC;
            entries.change = "1010";
            SResults expected = row.results;
            expected.instructions = {{8, -1, 151, 0, 0}};
            EXPECT_EQ(Confirmed(form, entries), expected);
        }
    }
}

TEST_P(CUnitFormResultsTest, StoreTheAreaOfTheAxis)
{
    const SUnitForm& form = GetParam();
    const int first = form.variant == 10030 ? 0x104 : 0x100;
    for (int axis = 1; axis <= 4; ++axis)
    {
        SUnitEntries entries(form);
        entries.axis = std::to_string(axis);
        EXPECT_EQ(Confirmed(form, entries).operands.at(3), (SOperandRow{12, first + 0x10 * (axis - 1)}));
        Leave(form,
              [&](CDialogRobot& dialog) { EXPECT_EQ(dialog.Text(form.axis), CString(std::to_string(axis).c_str())); });
    }
}

// ---- The control code -----------------------------------------------------------------------------------------------

TEST_P(CUnitFormResultsTest, StoreTheBitsOfEveryItemAndShowItAgain)
{
    const SUnitForm& form = GetParam();
    for (size_t i = 0; i < form.lists.size() && IsThorough(); ++i)
        for (size_t item = 0; item < AxisFieldAt(form.lists[i].shift).items.size(); ++item)
        {
            SUnitEntries entries(form);
            entries.items[i] = static_cast<int>(item);
            EXPECT_EQ(static_cast<DWORD>(Confirmed(form, entries).data.at(0).value), static_cast<DWORD>(item)
                                                                                         << form.lists[i].shift)
                << "item " << item << " of list " << form.lists[i].id;
            Leave(form, [&](CDialogRobot& dialog) {
                for (size_t k = 0; k < form.lists.size(); ++k)
                    EXPECT_EQ(dialog.Selection(form.lists[k].id), entries.items[k]) << "list " << form.lists[k].id;
            });
        }
}

// Every item of every list at least once.
TEST_P(CUnitFormResultsTest, StoreTheBitsOfAllListsAndShowThemAgain)
{
    constexpr int kLongestList = 8;
    const SUnitForm& form = GetParam();
    const std::vector<int> last = LastItems(form);
    for (int round = 0; round < (form.HasCode() ? kLongestList : 0); ++round)
    {
        SUnitEntries entries(form);
        DWORD code = 0;
        for (size_t i = 0; i < form.lists.size(); ++i)
        {
            entries.items[i] = (round + static_cast<int>(i)) % (last[i] + 1);
            code |= static_cast<DWORD>(entries.items[i]) << form.lists[i].shift;
        }
        EXPECT_EQ(HexText(static_cast<DWORD>(Confirmed(form, entries).data.at(0).value)), HexText(code));
        Leave(form, [&](CDialogRobot& dialog) {
            for (size_t i = 0; i < form.lists.size(); ++i)
                EXPECT_EQ(dialog.Selection(form.lists[i].id), entries.items[i]) << "list " << form.lists[i].id;
        });
    }
}

TEST_F(CUnitFormTest, StoresTheClearTimeInTheSign)
{
    const SUnitForm& form = UnitForm("HomeReturn");
    SUnitEntries entries(form);
    entries.items.back() = 1;
    EXPECT_EQ(Confirmed(form, entries).data.at(0).value, -2147483647 - 1);
    entries.items = LastItems(form);
    EXPECT_EQ(static_cast<DWORD>(Confirmed(form, entries).data.at(0).value), 0xF30030FE);
}

// Where a list has no selection, the word either ends or only lacks its bits.
TEST_P(CUnitFormResultsTest, EndTheWordOrLeaveOutBitsAtAMissingChoice)
{
    struct SMissing
    {
        const char* form;
        std::vector<std::pair<UINT, DWORD>> codes; // with the last items of all the others
    };
    const std::vector<SMissing> rows = {
        {"PPointPassing", {}},
        {"Jog",
         {{3205, 0},
          {3206, 0x2},
          {3051, 0x730030AA},
          {3052, 0x7300309A},
          {3054, 0x7300303A},
          {3061, 0x730000BA},
          {3065, 0x720030BA},
          {3066, 0x710030BA},
          {3071, 0x030030BA}}},
        {"JogSpeedChange",
         {{3205, 0},
          {3206, 0x2},
          {3051, 0x730030AA},
          {3052, 0x7300309A},
          {3054, 0x7300303A},
          {3061, 0x730000BA},
          {3065, 0x720030BA},
          {3066, 0x710030BA},
          {3071, 0x030030BA}}},
        {"HomeReturn",
         {{3255, 0},
          {3257, 0x2},
          {3256, 0x6},
          {3051, 0xF30030EE},
          {3052, 0xF30030DE},
          {3053, 0x3E},
          {3054, 0xF300307E},
          {3061, 0xF30000FE},
          {3065, 0xF20030FE},
          {3066, 0xF10030FE},
          {3071, 0x830030FE},
          {3258, 0x730030FE}}},
        {"Pulsar",
         {{3067, 0},
          {3068, 0x10000},
          {3069, 0x732307B0},
          {3070, 0x730B07B0},
          {3305, 0x732B00B0},
          {3051, 0x732B07A0},
          {3052, 0x732B0790},
          {3054, 0x732B0730},
          {3065, 0x722B07B0},
          {3066, 0x712B07B0},
          {3071, 0x032B07B0}}},
    };
    const SUnitForm& form = GetParam();
    for (const SMissing& row : rows)
    {
        if (row.form != std::string(form.name))
            continue;
        ASSERT_EQ(row.codes.size(), form.lists.size());
        for (size_t i = 0; i < form.lists.size(); ++i)
        {
            ASSERT_EQ(row.codes[i].first, form.lists[i].id);
            SUnitEntries entries(form);
            entries.items = LastItems(form);
            entries.items[i] = -1;
            EXPECT_EQ(HexText(static_cast<DWORD>(Confirmed(form, entries).data.at(0).value)),
                      HexText(row.codes[i].second))
                << "without a selection in list " << form.lists[i].id;
        }
    }
}

const int kRounds = IsThorough() ? 300 : 3;

// Bits of fields that a dialog does not have are lost, even when nothing is changed.
TEST_P(CUnitFormResultsTest, KeepOfAnyWordWhatTheirListsShow)
{
    const SUnitForm& form = GetParam();
    if (!form.HasCode())
        return; // and it keeps the target speed in that place
    std::mt19937 random(form.templateId);
    SResults stored = Confirmed(form, SUnitEntries(form));
    for (int i = 0; i < kRounds && !HasFailure(); ++i)
    {
        const DWORD word = i < 32 && IsThorough() ? DWORD{1} << i : static_cast<DWORD>(random());
        stored.data[0].value = static_cast<int>(word);
        WriteResults(m_wizard, stored);
        Confirm(form);
        stored.data[0].value = static_cast<int>(ComposedOf(word) & CodeMask(form));
        EXPECT_EQ(ReadResults(m_wizard), stored) << HexText(word);
    }
}

TEST_P(CUnitFormResultsTest, StoreRandomEntries)
{
    const SUnitForm& form = GetParam();
    std::mt19937 random(form.templateId);
    const auto below = [&](unsigned count) { return static_cast<unsigned>(random()) % count; };
    const auto number = [&](unsigned low, unsigned high) { return std::to_string(low + below(high - low + 1)); };
    for (int i = 0; i < kRounds && !HasFailure(); ++i)
    {
        Use(kUnitSources[below(2)]);
        m_wizard.SetStartType(static_cast<BYTE>(below(3)));
        SUnitEntries entries(form);
        entries.contact = number(0, 258) + "A";
        entries.slot = number(0, 33);
        entries.axis = number(1, 4);
        entries.start = number(0, 32800);
        entries.change = number(0, 129) + "7";
        entries.startOutput = below(4) != 0;
        entries.same = below(3) == 0;
        entries.second = number(0, 112) + "F";
        entries.direction = static_cast<int>(below(2));
        entries.word = number(1, 112);
        for (size_t list = 0; list < form.lists.size(); ++list)
            entries.items[list] =
                static_cast<int>(below(static_cast<unsigned>(AxisFieldAt(form.lists[list].shift).items.size())));
        for (size_t k = 0; k < form.numbers.size(); ++k)
            entries.numbers[k] = form.numbers[k].low < 0 ? (below(2) != 0 ? "-" : "") + number(0, 2147483648u)
                                                         : number(0, static_cast<unsigned>(form.numbers[k].high) + 100);
        Check(form, entries);
    }
}

// ---- Comments -------------------------------------------------------------------------------------------------------

TEST_P(CUnitFormResultsTest, KeepTheOldCommentsWhenNoneAreWanted)
{
    const SUnitForm& form = GetParam();
    for (const int wanted : {0, 1, -5})
    {
        WriteResults(m_wizard, {.comments = {"of the host"}});
        m_wizard.SetCmtRec(wanted);
        SResults expected = UnitOutcome(form, SUnitEntries(form), m_wizard).results;
        if (wanted == 0)
            expected.comments = {"of the host"};
        EXPECT_EQ(Confirmed(form, SUnitEntries(form)), expected);
        EXPECT_EQ(m_wizard.IsCmtRec(), wanted);
    }
}

TEST_P(CUnitFormResultsTest, TakeTheirCommentsFromTheLabelsOrTheTexts)
{
    const SUnitForm& form = GetParam();
    for (const int source : kUnitSources)
    {
        Use(source);
        std::vector<std::string> expected;
        if (form.HasCode())
            expected.push_back("Control code");
        Confirm(form, [&](CDialogRobot& dialog) {
            FillIn(dialog, form, SUnitEntries(form));
            for (const SUnitNumber& number : form.numbers)
            {
                const std::string label = "Label " + std::to_string(number.id);
                ControlBefore(dialog, number.id)->SetWindowText(label.c_str());
                expected.push_back(number.ownComment ? number.comment : label);
            }
        });
        EXPECT_EQ(ReadResults(m_wizard).comments, expected);
    }
}

// ---- Clear settings -------------------------------------------------------------------------------------------------

TEST_P(CUnitFormResultsTest, ClearTheirSettings)
{
    const SUnitForm& form = GetParam();
    m_wizard.SetStartType(2);
    for (const int source : kUnitSources)
    {
        SCOPED_TRACE(source);
        Use(source);
        Leave(form, [&](CDialogRobot& dialog) {
            SUnitEntries entries = Started(form);
            entries.items = LastItems(form);
            entries.same = true;
            entries.direction = form.HasDirection() ? 1 : 0;
            FillIn(dialog, form, entries);
            dialog.Click(3099);

            EXPECT_TRUE(dialog.IsOpen());
            SUnitEntries cleared = UnitShown(form, {}, true);
            cleared.startOutput = cleared.same = false;
            ExpectShown(dialog, form, cleared);
            EXPECT_EQ(dialog.FocusId(), 2051u);
            EXPECT_EQ(dialog.Text(2053), CString("(0 - 109F)"));
            EXPECT_EQ(dialog.Text(form.startRange), UnitRangeText(0, 32764 - form.registers + 1));
            EXPECT_EQ(TextAfter(dialog, form.slot), "(0 - 31)");
            EXPECT_EQ(TextAfter(dialog, form.axis), "(1 - 4)");
            if (form.changeDevice != 0)
            {
                EXPECT_EQ(dialog.Text(form.changeRange), CString("(0 - 109F)"));
            }
            if (!dialog.Exists(2054))
                return;
            EXPECT_EQ(dialog.Text(2058), CString("(0 - 109F)"));
            EXPECT_EQ(dialog.Text(2060), CString("(2 - 109)"));
            for (const UINT id : {2055, 2056, 2057, 2058, 2059, 2060, 2062})
                if (dialog.Exists(id))
                {
                    EXPECT_FALSE(dialog.Enabled(id)) << id;
                }
        });
    }
}

TEST_P(CUnitFormResultsTest, CanBeFilledInAgainAfterClearing)
{
    const SUnitForm& form = GetParam();
    m_wizard.SetStartType(2);
    Confirm(form, [&](CDialogRobot& dialog) {
        FillIn(dialog, form, Started(form));
        dialog.Click(3099);
        ExpectRefusal(dialog, 20001, 2052);
        FillIn(dialog, form, Started(form));
    });
    EXPECT_EQ(ReadResults(m_wizard), UnitOutcome(form, Started(form), m_wizard).results);
}

} // namespace
