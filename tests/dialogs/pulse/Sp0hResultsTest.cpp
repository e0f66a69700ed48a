// What a confirmed dialog of F174 leaves in the wizard, and what it restores of it: every control code, steps,
// comments, and the ladder.
#include "tests/dialogs/pulse/LadderStarts.h"
#include "tests/dialogs/pulse/Sp0hTest.h"

namespace
{

struct SItem
{
    const char* text;
    int code;
};

constexpr SItem kDuties[] = {{"Duty 1/2 (50%)", 0x0000}, {"Duty 1/4 (25%)", 0x1000}};
constexpr SItem kFrequencies[] = {{"1.5Hz to 9.8kHz", 0x000}, {"48Hz to 100kHz", 0x100}, {"191Hz to 100kHz", 0x200}};
constexpr SItem kModes[] = {{"Incremental", 0x00}, {"Absolute", 0x10}};
constexpr SItem kOutputs[] = {
    {"CW/CCW", 0}, {"PLS+SIGN (forward off/reverse on)", 2}, {"PLS+SIGN (forward on/reverse off)", 3}};

const std::vector<SStepEntry> kFastSteps = {{"500", "1"}, {"9800", "2"}};

} // namespace

// ---- Control codes --------------------------------------------------------------------------------------------------

// Each code is stored, shown again, and stored again by the next OK.
TEST_F(CSp0hTest, HoldsTheCodeOfEveryCombination)
{
    for (const unsigned i : SampledNumbers(0, 2 * 3 * 2 * 3 - 1, 7))
    {
        const SItem& duty = kDuties[i % 2];
        const SItem& mode = kModes[i / 2 % 2];
        const SItem& frequency = kFrequencies[i / 4 % 3];
        const SItem& output = kOutputs[i / 12];
        SResults expected = Sp0hResults({.steps = kFastSteps});
        expected.data[0].value = duty.code + frequency.code + mode.code + output.code;
        SCOPED_TRACE(testing::Message() << "code " << std::hex << expected.data[0].value);
        Confirm([&](CDialogRobot& dialog) {
            FillIn(dialog, {.steps = kFastSteps});
            dialog.SelectText(2405, duty.text);
            dialog.SelectText(2406, frequency.text);
            dialog.SelectText(2407, mode.text);
            dialog.SelectText(2404, output.text);
        });
        ASSERT_EQ(ReadResults(m_wizard), expected);
        Confirm([&](CDialogRobot& dialog) {
            EXPECT_EQ(dialog.Text(2405), CString(duty.text));
            EXPECT_EQ(dialog.Text(2406), CString(frequency.text));
            EXPECT_EQ(dialog.Text(2407), CString(mode.text));
            EXPECT_EQ(dialog.Text(2404), CString(output.text));
        });
        ASSERT_EQ(ReadResults(m_wizard), expected);
    }
}

// The code ends before the first list, in the order of its bits from above, that has no selection.
TEST_F(CSp0hTest, HoldsTheCodeUpToAListWithoutSelection)
{
    const struct
    {
        UINT combo;
        int code;
    } kEnds[] = {{2405, 0}, {2406, 0x1000}, {2407, 0x1200}, {2404, 0x1210}, {0, 0x1213}};
    for (const auto& [combo, code] : kEnds)
    {
        Confirm([&, list = combo](CDialogRobot& dialog) {
            FillIn(dialog, {.duty = 1, .frequency = 2, .mode = 1, .output = 2, .steps = kFastSteps});
            if (list != 0)
                SelectByProgram(dialog, list, -1);
            if (list == 2406) // then the only frequency is 0
                PasteCells(dialog, "0\t1\n0\t2\n");
        });
        EXPECT_EQ(ReadResults(m_wizard).data[0], (SDataRow{9, 100, 1, 1, code})) << "without " << combo;
    }
}

TEST_F(CSp0hTest, RestoresTheFirstItemForCodesThatItDoesNotKnow)
{
    const struct
    {
        unsigned code;
        int duty, frequency, mode, output;
    } kCodes[] = {{0x1213, 1, 2, 1, 2}, {0x2000, 0, 0, 0, 0}, {0x0300, 0, 0, 0, 0},     {0x0020, 0, 0, 0, 0},
                  {0x0001, 0, 0, 0, 0}, {0x0004, 0, 0, 0, 0}, {0xFFFF1112, 1, 1, 1, 1}, {0xFFFFFFFF, 0, 0, 0, 0},
                  {0x1F2F, 1, 0, 0, 0}, {0xF2F3, 0, 2, 0, 2}};
    for (const auto& row : kCodes)
    {
        SResults stored = Sp0hResults({});
        stored.data[0].value = static_cast<int>(row.code);
        WriteResults(m_wizard, stored);
        Leave([&](CDialogRobot& dialog) {
            EXPECT_EQ(dialog.Selection(2405), row.duty) << std::hex << row.code;
            EXPECT_EQ(dialog.Selection(2406), row.frequency) << std::hex << row.code;
            EXPECT_EQ(dialog.Selection(2407), row.mode) << std::hex << row.code;
            EXPECT_EQ(dialog.Selection(2404), row.output) << std::hex << row.code;
        });
    }
}

// ---- Fields and steps -----------------------------------------------------------------------------------------------

TEST_F(CSp0hTest, HoldsEveryFieldInItsPlace)
{
    const SSp0hEntries kEntries[] = {
        {},
        {.device = kX, .contact = "0", .contactNumber = 0, .start = "0", .steps = {{"1", "-2147483648"}}},
        {.device = kY,
         .contact = "109F",
         .contactNumber = kLastInput,
         .start = "32757",
         .steps = {{"9800", "2147483647"}}},
        {.device = kT,
         .contact = "1007",
         .contactNumber = 1007,
         .channel = 2,
         .frequency = 2,
         .steps = {{"20000", "5"}, {"191", "5"}}},
        {.device = kC, .contact = "1008", .contactNumber = 1008, .channel = 3, .duty = 1, .steps = Steps(5)},
        {.device = kL, .contact = "7F", .contactNumber = 127, .channel = 1, .mode = 1, .output = 2, .steps = Steps(6)},
        {.frequency = 1, .steps = {{"48", "0"}, {"100000", "0"}}, .onlyDataTable = true},
    };
    for (const SSp0hEntries& entries : kEntries)
    {
        EXPECT_EQ(Confirmed(entries), Sp0hResults(entries));
        EXPECT_EQ(m_wizard.IsOnlyDataTable(), entries.onlyDataTable ? 1 : 0);
        Confirm([](CDialogRobot&) {}); // and again, untouched
        EXPECT_EQ(ReadResults(m_wizard), Sp0hResults(entries));
        WriteResults(m_wizard, {});
    }
}

TEST_F(CSp0hTest, EndsThreeStepsWithAMarkAndNumbersTheirComments)
{
    const SResults results = Confirmed({});
    EXPECT_EQ(results.data.back(), (SDataRow{9, 114, 1, 0, 0}));
    EXPECT_EQ(results.comments,
              (std::vector<std::string>{"Control code", "Frequency 1", "Target value 1", "Frequency 2",
                                        "Target value 2", "Frequency 3", "Target value 3"}));
}

TEST_F(CSp0hTest, WritesNoCommentsUnlessTheyAreWanted)
{
    m_wizard.SetCmtRec(0);
    WriteResults(m_wizard, {.comments = {"as before"}});
    EXPECT_EQ(Confirmed({}).comments, (std::vector<std::string>{"as before"}));
}

TEST_F(CSp0hTest, ReplacesTheListsAndLeavesTheInstructionsAlone)
{
    WriteResults(m_wizard, {.contacts = {{2, 3, 1}, {17, -1, 0}},
                            .operands = {{9, 1}, {11, 1}, {11, 7}},
                            .data = std::vector<SDataRow>(40, {9, 1, 0, 0, 7}),
                            .comments = {"a", "b", "c"},
                            .instructions = {{8, -1, 174, 0, 0}}});
    SResults expected = Sp0hResults({});
    expected.instructions = {{8, -1, 174, 0, 0}};
    Confirm([](CDialogRobot& dialog) {
        PressCtrl(dialog, VK_HOME);
        dialog.Click(2099);
        FillIn(dialog, {});
    });
    EXPECT_EQ(ReadResults(m_wizard), expected);
}

// ---- Restoring ------------------------------------------------------------------------------------------------------

TEST_F(CSp0hTest, RestoresItsStepsByTheirPositions)
{
    const std::vector<SOperandRow> table = {{9, 100}, {11, 1}};
    const SDataRow code = {9, 100, 1, 1, 0};
    const auto value = [](int number) { return SDataRow{9, 1, 0, 0, number}; };
    const SDataRow other = {2, 1, 1, 0, 9};
    const struct
    {
        std::vector<SDataRow> data;
        GridTexts steps;
    } kLists[] = {
        {{}, {{"", ""}}},
        {{code}, {{"", ""}}},
        {{code, value(0)}, {{"", ""}}}, // the end mark alone
        {{code, value(1), value(2), value(0)}, {{"1", "2"}}},
        {{code, value(1), value(2), value(3)}, {{"1", "2"}}}, // the last one is the end mark, whatever it holds
        {{code, value(1), value(2), value(-3), value(0), value(0)}, {{"1", "2"}, {"-3", "0"}}},
        {{code, value(1), value(2), value(3), value(0)}, {{"1", "2"}, {"3", ""}}},
        {{code, value(1), value(2), value(0), other, value(5)}, {{"1", "2"}}},
        {{code, value(0), value(0), value(0)}, {{"0", "0"}}},
        {{code, other, value(1), value(2), value(0)}, {{"", ""}}},
        {{other, value(1), value(2), value(0)}, {{"1", "2"}}},
    };
    for (const auto& [data, steps] : kLists)
    {
        WriteResults(m_wizard, {.operands = table, .data = data});
        Leave([&expected = steps](CDialogRobot& dialog) {
            EXPECT_EQ(TextsOf(CellsOf(dialog)), expected);
            EXPECT_EQ(CellsOf(dialog).Current(), (SGridCell{0, 0}));
            EXPECT_EQ(CellsOf(dialog).FirstVisible(), 0);
        });
    }
}

TEST_F(CSp0hTest, RestoresNoMoreStepsThanTheRegistersHold)
{
    WriteResults(m_wizard, Sp0hResults({.steps = Steps(9)}));
    SetDeviceRange(m_wizard, kDT, 0, 30);
    Leave([](CDialogRobot& dialog) {
        EXPECT_EQ(TextsOf(CellsOf(dialog)).size(), 6u);
        EXPECT_EQ(dialog.Text(2402), CString("(0 - 3)"));
        EXPECT_TRUE(dialog.Enabled(kGridCells));
    });
}

TEST_F(CSp0hTest, OpensAfreshEachTime)
{
    Leave([](CDialogRobot& dialog) {
        FillIn(dialog, {.steps = Steps(8)});
        dialog.Focus(kGridCells);
        TypeHere(dialog, "7");
    });
    Leave([](CDialogRobot& dialog) {
        EXPECT_EQ(TextsOf(CellsOf(dialog)), (GridTexts{{"", ""}}));
        EXPECT_FALSE(dialog.Visible(2408));
        for (const UINT combo : {2051u, 2403u, 2404u, 2405u, 2406u, 2407u})
            EXPECT_EQ(dialog.Selection(combo), 0);
        ExpectLimits(dialog, {{2052, 4}, {2401, 5}});
    });
}

TEST_F(CSp0hTest, ClearSettingsEmptiesTheDialogAndNothingElse)
{
    for (const bool only : {false, true})
    {
        const SSp0hEntries entries = {.device = kL,
                                      .contact = "7F",
                                      .contactNumber = 127,
                                      .channel = only ? 0 : 3,
                                      .duty = 1,
                                      .frequency = 2,
                                      .mode = 1,
                                      .output = 2,
                                      .steps = std::vector<SStepEntry>(9, {"191", "-5"}),
                                      .onlyDataTable = only};
        const SResults before = Confirmed(entries);
        EXPECT_EQ(before, Sp0hResults(entries));
        Leave([&](CDialogRobot& dialog) {
            dialog.Focus(kGridCells);
            PressCtrl(dialog, VK_END);
            TypeHere(dialog, "12");
            dialog.Click(2099);
            for (const UINT combo : {2051u, 2403u, 2404u, 2405u, 2406u, 2407u})
                EXPECT_EQ(dialog.Selection(combo), 0) << "of list " << combo;
            for (const UINT edit : {2052u, 2401u})
                EXPECT_EQ(dialog.Text(edit), CString()) << "of edit " << edit;
            EXPECT_EQ(TextsOf(CellsOf(dialog)), (GridTexts{{"", ""}}));
            EXPECT_EQ(CellsOf(dialog).Current(), (SGridCell{0, 0}));
            EXPECT_FALSE(dialog.Visible(2408));
            EXPECT_EQ(RowLabels(dialog), (std::vector<std::string>{"1", "2", "3", "4", "5"}));
            EXPECT_EQ(dialog.Text(2411), CString("Frequency (Hz)\n(1 - 9800)"));
            EXPECT_EQ(dialog.Text(2402), CString("(0 - 32757)"));
            EXPECT_EQ(dialog.Checked(2061), only);
            EXPECT_EQ(dialog.Enabled(2403), !only);
            EXPECT_EQ(dialog.FocusId(), 2061u);
            EXPECT_EQ(ReadResults(m_wizard), before);
        });
        EXPECT_EQ(ReadResults(m_wizard), before);
        WriteResults(m_wizard, {});
    }
}

TEST_F(CSp0hTest, SelectsTheFirstChannelWhenOnlyADataTableIsCreated)
{
    Leave([](CDialogRobot& dialog) {
        dialog.Select(2406, 1);
        dialog.Select(2403, 3);
        EXPECT_EQ(dialog.Text(2411), CString("Frequency (Hz)\n(48 - 20000)"));
        dialog.Check(2061);
        EXPECT_EQ(dialog.Selection(2403), 0);
        EXPECT_FALSE(dialog.Enabled(2403));
        EXPECT_EQ(dialog.Text(2411), CString("Frequency (Hz)\n(48 - 100000)"));
        dialog.Check(2061, false);
        EXPECT_TRUE(dialog.Enabled(2403));
    });
}

TEST_F(CSp0hTest, NeedsTwoChannels)
{
    m_wizard.ResetChannelNo();
    m_wizard.SetChannelNo(3, 174);
    m_wizard.SetChannelNo(4, 171);
    EXPECT_EQ(Open({}), IDCANCEL);
}

// ---- The ladder -----------------------------------------------------------------------------------------------------

namespace
{

/// The contact stands before every 33 rows again; with `stepFive` one that takes no edge stands before the instruction.
std::vector<SInstructionRow> Ladder(const SResults& results, const SStart& start, bool stepFive, bool only)
{
    const SInstructionRow edge = {17, -1, 0, 0, 0};
    std::vector<SInstructionRow> rows;
    int count = 0;
    for (const SDataRow& record : results.data)
    {
        if (count % 33 == 0)
        {
            rows.push_back(start.contact);
            if (start.takesEdge)
                rows.push_back(edge);
            count += start.takesEdge;
        }
        rows.push_back({8, -1, 1, 0, 0});
        rows.push_back({-1, record.format != 0 ? 12 : 11, record.value, 0, 0});
        rows.push_back({-1, 9, record.number, 0, 0});
        ++count;
    }
    if (only)
        return rows;
    if (stepFive && !start.takesEdge)
        rows.insert(rows.end(), {start.contact, edge});
    rows.push_back({8, -1, 174, 0, 0});
    for (const SOperandRow& operand : results.operands)
        rows.push_back({-1, operand.code, operand.value, 0, 0});
    return rows;
}

} // namespace

// The dialog is one of PLC types without step 5 of the generator; what it stored becomes the ladder of one with it,
// too.
TEST_F(CSp0hTest, LeadsToTheLadderOfItsSteps)
{
    m_wizard.ClearSuppportFunInfo();
    m_wizard.EntrySupportFunInfo(174);
    for (const SStart& start : kStarts)
        for (const int steps : {1, 3, 15, 16, 17, 40})
            for (const bool only : {false, true})
            {
                const SSp0hEntries entries = {
                    .channel = only ? 0 : 1, .output = 1, .steps = Steps(steps), .onlyDataTable = only};
                const auto choose = [](CDialogRobot& selection) {
                    ASSERT_EQ(selection.Items(IDC_SELECT_LIST).size(), 1u);
                    selection.Select(IDC_SELECT_LIST, 0);
                    selection.Click(IDOK);
                };
                const auto confirm = [&](CDialogRobot& dialog) {
                    dialog.Click(2099);
                    FillIn(dialog, entries);
                    dialog.SelectText(2051, start.device);
                    dialog.Type(2052, start.number);
                    EXPECT_EQ(dialog.ClickAndAnswer(IDOK), CString());
                };
                m_wizard.SetPlcType(kPlcFamilyA);
                ASSERT_EQ(Play([this] { return m_wizard.DoOpenPosDlg(0, 1, nullptr); }, {choose, confirm}), IDOK);
                for (const int plcType : {1, 69, 70, 72, 74, 75, 114, 160})
                {
                    SCOPED_TRACE(testing::Message() << start.device << start.number << ", " << steps << " steps, only "
                                                    << only << ", type " << plcType);
                    m_wizard.SetPlcType(static_cast<BYTE>(plcType));
                    EXPECT_EQ(m_wizard.CreateInstCode(), 1);
                    EXPECT_EQ(ReadResults(m_wizard).instructions,
                              Ladder(Sp0hResults(entries), start, plcType >= 70 && plcType <= 74, only));
                }
            }
}
