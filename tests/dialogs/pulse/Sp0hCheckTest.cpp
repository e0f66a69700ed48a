// What the dialog of F174 accepts and refuses: contact, start, and every kind of cell in every place of the table.
#include "tests/dialogs/pulse/Sp0hTest.h"

namespace
{

/// Everything but the last target is accepted: only that is refused.
void ExpectAllAcceptedBeforeTheLast(CDialogRobot& dialog)
{
    const int last = CellsOf(dialog).UsedRows() - 1;
    SetCell(dialog, last, 1, "x");
    ExpectCellRefusal(dialog, 20001, last, 1);
    dialog.PressKey(VK_ESCAPE);
}

} // namespace

// ---- Frequencies and targets ----------------------------------------------------------------------------------------

TEST_F(CSp0hTest, KeepsFrequenciesInTheRangeOfFrequencyAndChannel)
{
    const struct
    {
        int frequency; // positions in the lists; -1: nothing selected
        int channel;
        int low;
        int high;
    } kRanges[] = {{0, 0, 1, 9800},    {0, 1, 1, 9800},    {0, 2, 1, 9800},    {0, 3, 1, 9800},     {1, 0, 48, 100000},
                   {1, 1, 48, 100000}, {1, 2, 48, 20000},  {1, 3, 48, 20000},  {2, 0, 191, 100000}, {2, 1, 191, 100000},
                   {2, 2, 191, 20000}, {2, 3, 191, 20000}, {1, -1, 48, 20000}, {-1, 0, 0, 0},       {-1, 2, 0, 0}};
    Leave([&](CDialogRobot& dialog) {
        FillIn(dialog, {});
        for (const auto& range : kRanges)
        {
            SCOPED_TRACE(testing::Message() << "frequency " << range.frequency << ", channel " << range.channel);
            SelectByProgram(dialog, 2406, range.frequency);
            SelectByProgram(dialog, 2403, range.channel);
            const std::string bounds = "(" + std::to_string(range.low) + " - " + std::to_string(range.high) + ")";
            EXPECT_EQ(dialog.Text(2411), CString(("Frequency (Hz)\n" + bounds).c_str()));
            SetCell(dialog, 0, 0, std::to_string(range.low));
            SetCell(dialog, 1, 0, std::to_string(range.high));
            SetCell(dialog, 2, 0, std::to_string(range.high));
            ExpectAllAcceptedBeforeTheLast(dialog);
            SetCell(dialog, 2, 0, std::to_string(range.high + 1));
            ExpectCellRefusal(dialog, 20008, 2, 0);
            SetCell(dialog, 0, 0, std::to_string(range.low - 1));
            ExpectCellRefusal(dialog, 20008, 0, 0);
        }
    });
}

TEST_F(CSp0hTest, KeepsTargetsInTwoRegisters)
{
    for (const char* text : {"-2147483648", "2147483647", "0", "-1", "-"})
    {
        SSp0hEntries entries;
        entries.steps[1].target = text;
        Confirm([&](CDialogRobot& dialog) { FillIn(dialog, entries); });
        entries.steps[1].target = std::string(text) == "-" ? "0" : text;
        EXPECT_EQ(ReadResults(m_wizard), Sp0hResults(entries)) << text;
    }
    Leave([](CDialogRobot& dialog) {
        FillIn(dialog, {});
        for (const char* text : {"-2147483649", "2147483648", "99999999999", "4294967296", "18446744073709551616",
                                 "-18446744073709551616", "9223372036854775808"})
        {
            SCOPED_TRACE(text);
            SetCell(dialog, 1, 1, text);
            ExpectCellRefusal(dialog, 20007, 1, 1);
        }
    });
}

TEST_F(CSp0hTest, RefusesCellsThatAreNoNumbers)
{
    Leave([](CDialogRobot& dialog) {
        FillIn(dialog, {});
        for (const int column : {0, 1})
            for (const char* text : {"", "a", "12a", "1-2", "--1", "+1", "1 2", "1.5", "0x1", "1e3", "."})
            {
                SCOPED_TRACE(testing::Message() << '"' << text << "\" in column " << column);
                SetCell(dialog, 1, column, text);
                ExpectCellRefusal(dialog, 20001, 1, column);
                dialog.PressKey(VK_ESCAPE);
                SetCell(dialog, 1, column, "500");
            }
        for (const char* text : {"4294967796", "18446744073709552116", "-9223372036854775809"})
        {
            SetCell(dialog, 1, 0, text);
            ExpectCellRefusal(dialog, 20008, 1, 0);
            dialog.PressKey(VK_ESCAPE);
        }
    });
}

// Of a table of twelve steps, each cell in turn is bad in each way, wherever the table is scrolled to.
TEST_F(CSp0hTest, SelectsTheBadCellScrollsItIntoViewAndOpensIt)
{
    constexpr int kRows = 12;
    Leave([](CDialogRobot& dialog) {
        FillIn(dialog, {.steps = Steps(kRows)});
        for (const unsigned cell : SampledNumbers(0, 2 * kRows - 1, 5))
            for (const int first : {0, 4, 7})
                for (const char* text : {"", "x", "99999999999"})
                {
                    const int row = static_cast<int>(cell / 2), column = static_cast<int>(cell % 2);
                    SCOPED_TRACE(testing::Message()
                                 << '"' << text << "\" in " << row << "/" << column << " from row " << first);
                    const CString good = CellsOf(dialog).Text({row, column});
                    if (*text == '\0' && row == kRows - 1 && column == 1)
                        continue; // then the step ends before it: tested below
                    GridOf(dialog).Model().GoTo({first, 0});
                    Scroll(dialog, SB_THUMBPOSITION, first);
                    SetCell(dialog, row, column, text);
                    const bool outside = *text == '9';
                    ExpectCellRefusal(dialog, !outside ? 20001 : column == 0 ? 20008 : 20007, row, column);
                    SetTextByProgram(dialog, EditorOf(dialog), static_cast<LPCSTR>(good));
                    dialog.PressKey(VK_RETURN);
                    EXPECT_EQ(CellsOf(dialog).Text({row, column}), good);
                }
    });
}

TEST_F(CSp0hTest, WantsBothCellsOfItsLastStep)
{
    Leave([](CDialogRobot& dialog) {
        FillIn(dialog, {});
        SetCell(dialog, 2, 1, "");
        ExpectCellRefusal(dialog, 20001, 2, 1);
        dialog.PressKey(VK_ESCAPE);
        SetCell(dialog, 2, 1, "5");
        SetCell(dialog, 2, 0, "");
        ExpectCellRefusal(dialog, 20001, 2, 0);
        dialog.PressKey(VK_ESCAPE);
        SetCell(dialog, 7, 1, "5"); // rows before a used one are used
        ExpectCellRefusal(dialog, 20001, 2, 0);
        dialog.PressKey(VK_ESCAPE);
        SetCell(dialog, 2, 0, "5");
        ExpectCellRefusal(dialog, 20001, 3, 0);
        dialog.PressKey(VK_ESCAPE);
    });
}

TEST_F(CSp0hTest, WantsAStep)
{
    Leave([](CDialogRobot& dialog) {
        FillIn(dialog, {.steps = {}});
        ExpectCellRefusal(dialog, 20001, 0, 0);
        dialog.PressKey(VK_ESCAPE);
        EXPECT_TRUE(dialog.IsOpen());
        TypeCells(dialog, {"1", "2"});
    });
}

// ---- Order ----------------------------------------------------------------------------------------------------------

// With every set of bad entries, the first of them is pointed at, whether it is no number or out of its range.
TEST_F(CSp0hTest, PointsAtTheFirstBadEntry)
{
    constexpr int kRows = 3, kFirstCell = 2, kEntries = kFirstCell + 2 * kRows;
    const SResults before = Sp0hResults({.start = "7"});
    WriteResults(m_wizard, before);
    Leave([&](CDialogRobot& dialog) {
        FillIn(dialog, {});
        for (const unsigned bad : SampledSets(kEntries, 29))
        {
            SCOPED_TRACE(testing::Message() << "bad entries " << bad);
            int first = kEntries;
            bool firstIsText = false;
            for (int i = kEntries; i-- > 0;)
            {
                const bool isBad = (bad >> i & 1) != 0, isText = (bad + static_cast<unsigned>(i)) % 2 == 0;
                const char* text = !isBad ? "50" : isText ? "x" : "99999999999";
                if (i < kFirstCell)
                    SetTextByProgram(dialog, i == 0 ? 2052 : 2401, !isBad || isText ? text : "9999");
                else
                    SetCell(dialog, (i - kFirstCell) / 2, (i - kFirstCell) % 2, text);
                if (isBad)
                {
                    first = i;
                    firstIsText = isText;
                }
            }
            if (first == 0)
                ExpectRefusal(dialog, firstIsText ? 20001 : 20020, 2052);
            else if (first == 1)
            {
                if (!firstIsText)
                    SetTextByProgram(dialog, 2401, "99999");
                ExpectRefusal(dialog, firstIsText ? 20001 : 20003, 2401);
            }
            else
            {
                const int cell = first - kFirstCell;
                ExpectCellRefusal(dialog, firstIsText ? 20001 : cell % 2 == 0 ? 20008 : 20007, cell / 2, cell % 2);
                dialog.PressKey(VK_ESCAPE);
            }
        }
        EXPECT_EQ(ReadResults(m_wizard), before);
    });
    EXPECT_EQ(ReadResults(m_wizard), before);
}

TEST_F(CSp0hTest, AcceptsWhatWasRefusedOnceItIsRight)
{
    Confirm([](CDialogRobot& dialog) {
        FillIn(dialog, {.contact = "", .start = "x", .steps = {{"0", "1000"}, {"9800", "y"}, {"", "0"}}});
        ExpectRefusal(dialog, 20001, 2052);
        dialog.Type(2052, "10");
        ExpectRefusal(dialog, 20001, 2401);
        dialog.Type(2401, "100");
        ExpectCellRefusal(dialog, 20008, 0, 0);
        TypeHere(dialog, "500"); // into the open editor, all of whose text is selected
        ExpectCellRefusal(dialog, 20001, 1, 1);
        TypeHere(dialog, "-2000");
        dialog.PressKey(VK_RETURN);
        ExpectCellRefusal(dialog, 20001, 2, 0);
        TypeHere(dialog, "1"); // OK takes over what stands in the editor
    });
    EXPECT_EQ(ReadResults(m_wizard), Sp0hResults({}));
}

// ---- Start and contact ----------------------------------------------------------------------------------------------

TEST_F(CSp0hTest, KeepsTheWholeTableInTheRegisters)
{
    SetDeviceRange(m_wizard, kDT, 100, 1000);
    for (const int steps : {1, 2, 5, 6, 100, 224})
    {
        const int last = 1000 - (4 * steps + 3);
        for (const int start : {100, last})
        {
            const SSp0hEntries entries = {.start = std::to_string(start), .steps = Steps(steps)};
            EXPECT_EQ(Confirmed(entries), Sp0hResults(entries));
        }
        Leave([&](CDialogRobot& dialog) {
            const CString range = ("(100 - " + std::to_string(last) + ")").c_str();
            EXPECT_EQ(dialog.Text(2402), range); // of the restored steps
            for (const int start : {99, last + 1})
            {
                dialog.Type(2401, std::to_string(start).c_str());
                ExpectRefusal(dialog, 20003, 2401);
            }
        });
        WriteResults(m_wizard, {});
    }
}

TEST_F(CSp0hTest, ShowsTheRangeOfItsStartAsRowsComeAndGo)
{
    Leave([](CDialogRobot& dialog) {
        const auto highest = [&dialog] { return dialog.Text(2402); };
        EXPECT_EQ(highest(), CString("(0 - 32757)"));
        dialog.Focus(kGridCells);
        TypeCells(dialog, {"1", "2", "3"});
        EXPECT_EQ(highest(), CString("(0 - 32753)"));
        dialog.Paste("\n\n\n9\n");
        EXPECT_EQ(highest(), CString("(0 - 32741)"));
        PressCtrl(dialog, VK_HOME);
        PressCtrl(dialog, 'I');
        EXPECT_EQ(highest(), CString("(0 - 32737)"));
        PressCtrl(dialog, 'D');
        EXPECT_EQ(highest(), CString("(0 - 32741)"));
        PressCtrl(dialog, VK_END);
        dialog.PressKey(VK_DELETE);
        EXPECT_EQ(highest(), CString("(0 - 32753)"));
        dialog.Click(2099);
        EXPECT_EQ(highest(), CString("(0 - 32757)"));
        EXPECT_EQ(dialog.Limit(2401), 5);
    });
}

TEST_F(CSp0hTest, HasAsManyStepsAsTheRegistersHold)
{
    const struct
    {
        int registers;
        int steps;
    } kSizes[] = {{8, 1}, {11, 1}, {12, 2}, {15, 2}, {16, 3}, {23, 4}, {24, 5}, {28, 6}, {32765, 8190}};
    for (const auto& [registers, steps] : kSizes)
    {
        WriteResults(m_wizard, {});
        SetDeviceRange(m_wizard, kDT, 10, 9 + registers);
        Leave([&, steps = steps](CDialogRobot& dialog) {
            EXPECT_EQ(CellsOf(dialog).MostRows(), steps);
            dialog.Answering(IDOK, [&] { PasteCells(dialog, AsText(Steps(steps + 1))); });
            EXPECT_EQ(CellsOf(dialog).UsedRows(), steps);
            ASSERT_EQ(dialog.MessageBoxes().size(), 1u);
            EXPECT_NE(dialog.MessageBoxes()[0].text.Find("Lines left out: 1\n"), -1);
        });
        const SSp0hEntries entries = {.start = "10", .steps = Steps(steps)};
        EXPECT_EQ(Confirmed(entries), Sp0hResults(entries));
        // All of them come back, and are confirmed again.
        Confirm([&, steps = steps](CDialogRobot& dialog) { EXPECT_EQ(CellsOf(dialog).UsedRows(), steps); });
        EXPECT_EQ(ReadResults(m_wizard), Sp0hResults(entries));
    }
    SetDeviceRange(m_wizard, kDT, 10, 16); // seven registers hold no step
    Leave([](CDialogRobot& dialog) {
        ExpectOnlyFirstAndBack(dialog);
        EXPECT_EQ(dialog.Text(2402), CString("Impossible settings"));
        EXPECT_FALSE(dialog.Enabled(kGridCells));
    });
}

TEST_F(CSp0hTest, ChecksItsContactUnlessOnlyADataTableIsCreated)
{
    Leave([](CDialogRobot& dialog) {
        FillIn(dialog, {.steps = {{"x", ""}}});
        for (const char* text : {"0", "255F"})
        {
            dialog.Type(2052, text);
            ExpectCellRefusal(dialog, 20001, 0, 0);
            dialog.PressKey(VK_ESCAPE);
        }
        for (const char* text : {"2560", "999F"})
        {
            dialog.Type(2052, text);
            ExpectRefusal(dialog, 20020, 2052);
        }
        dialog.Type(2052, "");
        ExpectRefusal(dialog, 20001, 2052);
        dialog.Check(2061);
        ExpectCellRefusal(dialog, 20001, 0, 0);
        dialog.PressKey(VK_ESCAPE);
    });
    // One contact is stored all the same: the entry, or the lowest of its device when it cannot be used.
    SetDeviceRange(m_wizard, kR, 16, kLastRelay);
    const struct
    {
        const char* contact;
        int number;
    } kContacts[] = {{"10A", 170}, {"0", 16}, {"", 16}, {"x", 16}, {"2560", 16}, {"1", 16}};
    for (const auto& [contact, number] : kContacts)
    {
        const SSp0hEntries entries = {.contact = contact, .contactNumber = number, .onlyDataTable = true};
        EXPECT_EQ(Confirmed(entries), Sp0hResults(entries)) << contact;
        EXPECT_EQ(m_wizard.IsOnlyDataTable(), 1);
    }
}
