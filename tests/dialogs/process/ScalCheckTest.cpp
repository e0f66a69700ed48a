// What the dialog of scaling accepts and refuses: every field on both sides of its bounds, every kind of cell, the
// order of X, and which of several bad entries is pointed at.
#include "tests/dialogs/process/ScalTest.h"

namespace
{

class CScalCheckTest : public CScalTest
{
protected:
    /// Fills in entries that are accepted but for the cell of the last Y, which is no number: what comes before it is
    /// accepted when that cell is refused.
    static void FillInAllButTheLast(CDialogRobot& dialog)
    {
        FillIn(dialog, {});
        SetCell(dialog, 2, 1, "x");
    }

    static void ExpectAccepted(CDialogRobot& dialog)
    {
        ExpectCellRefusal(dialog, 20001, 2, 1);
        dialog.PressKey(VK_ESCAPE);
    }
};

INSTANTIATE_TEST_SUITE_P(Kinds, CScalCheckTest, testing::ValuesIn(kScalKinds), ScalKindName);

} // namespace

// ---- Contact, X, Y, table -------------------------------------------------------------------------------------------

TEST_P(CScalCheckTest, KeepsTheContactInTheRangeOfItsDevice)
{
    SetDeviceRange(m_wizard, kR, 16, kLastRelay);
    const struct
    {
        const char* device;
        const char* text;
        UINT message; // 0: accepted
    } kContacts[] = {{"R", "10", 0},       {"R", "255F", 0},     {"R", "F", 20020},    {"R", "2560", 20020},
                     {"R", "999F", 20020}, {"R", "", 20001},     {"R", "x", 20001},    {"R", "1G", 20001},
                     {"R", "-1", 20001},   {"T", "1007", 0},     {"T", "1008", 20020}, {"T", "1A", 20001},
                     {"C", "1008", 0},     {"C", "1007", 20020}, {"C", "1024", 20020}, {"L", "127F", 0},
                     {"L", "1280", 20020}, {"X", "0", 0},        {"Y", "109F", 0},     {"Y", "1100", 20020},
                     {"Sp.R", "9013", 0},  {"Sp.R", "0", 20020}};
    Leave([&](CDialogRobot& dialog) {
        FillInAllButTheLast(dialog);
        for (const auto& [device, text, message] : kContacts)
        {
            SCOPED_TRACE(testing::Message() << device << " \"" << text << '"');
            dialog.SelectText(2051, device);
            dialog.Type(2052, text);
            message != 0 ? ExpectRefusal(dialog, message, 2052) : ExpectAccepted(dialog);
        }
        SelectByProgram(dialog, 2051, -1);
        ExpectRefusal(dialog, 20020, 2052);
    });
}

TEST_P(CScalCheckTest, KeepsDevicesOfTheInputAndTheOutputInTheirRanges)
{
    AddAllWords();
    const struct
    {
        UINT list;
        UINT edit;
        UINT message;
    } kOperands[] = {{3362, 3363, 20040}, {3365, 3366, 20041}};
    const char* const kUnreadable[] = {"", " ", "x", "1A", "1.5", "1e2", "+1", "--1", "1 2"};
    Leave([&](CDialogRobot& dialog) {
        FillInAllButTheLast(dialog);
        for (const auto& [list, edit, message] : kOperands)
        {
            for (const SWordDevice& device : Sampled(kWordDevices, 6))
            {
                const int low = LowestOf(device);
                SCOPED_TRACE(testing::Message() << device.name << " in " << list);
                dialog.SelectText(list, device.name);
                for (const std::string& text : {std::to_string(low), std::string("30000"), std::string(" 00500 ")})
                {
                    dialog.Type(edit, text.c_str());
                    ExpectAccepted(dialog);
                }
                for (const std::string& text :
                     {std::to_string(low - 1), std::string("30001"), std::string("4294967400"),
                      std::string("18446744073709551716"), std::string("-99999999999999999999")})
                {
                    dialog.Type(edit, text.c_str());
                    ExpectRefusal(dialog, message, edit);
                }
                for (const char* text : Sampled(kUnreadable, 4))
                {
                    SCOPED_TRACE(text);
                    dialog.Type(edit, text);
                    ExpectRefusal(dialog, 20001, edit);
                }
            }
            dialog.Type(edit, "100");
            dialog.SelectText(list, "DT");
            SelectByProgram(dialog, list, -1);
            ExpectRefusal(dialog, message, edit);
            dialog.SelectText(list, "DT");
        }
        ExpectAccepted(dialog);
    });
}

TEST_P(CScalCheckTest, KeepsConstantsOfTheInputInTheRangesOfTheInstruction)
{
    Leave([](CDialogRobot& dialog) {
        FillInAllButTheLast(dialog);
        for (const SScalConstant& constant : GetParam().constants)
        {
            dialog.SelectText(3362, constant.name);
            const auto expect = [&](const std::vector<std::string>& texts, UINT message) {
                for (const std::string& text : texts)
                {
                    SCOPED_TRACE(testing::Message() << constant.name << " \"" << text << '"');
                    dialog.Type(3363, text.c_str());
                    message != 0 ? ExpectRefusal(dialog, message, 3363) : ExpectAccepted(dialog);
                }
            };
            expect(constant.inside, 0);
            expect(constant.outside, 20040);
            expect(constant.unreadable, 20001);
        }
        dialog.SelectText(3362, "DT"); // the text stays, what it is read as does not
        dialog.Type(3363, "1.5");
        ExpectRefusal(dialog, 20001, 3363);
    });
}

TEST_P(CScalCheckTest, KeepsTwoPointsBehindTheStartOfTheTable)
{
    AddAllWords();
    const int width = GetParam().width;
    Leave([&](CDialogRobot& dialog) {
        FillIn(dialog, {.count = "2"});
        SetCell(dialog, 1, 1, "x");
        const auto expectAccepted = [&dialog] {
            ExpectCellRefusal(dialog, 20001, 1, 1);
            dialog.PressKey(VK_ESCAPE);
        };
        for (const SWordDevice& device : Sampled(kWordDevices, 5))
        {
            const int low = LowestOf(device);
            SCOPED_TRACE(device.name);
            dialog.SelectText(3368, device.name);
            const int highest = 30000 - 4 * width;
            for (const int start : {low, highest})
            {
                dialog.Type(3369, std::to_string(start).c_str());
                expectAccepted();
            }
            for (const std::string& text :
                 {std::to_string(highest + 1), std::string("30000"), std::string("99999999999")})
            {
                dialog.Type(3369, text.c_str());
                ExpectRefusal(dialog, 20003, 3369);
            }
            if (low > 0)
            {
                dialog.Type(3369, std::to_string(low - 1).c_str());
                ExpectRefusal(dialog, 20003, 3369);
            }
            for (const char* text : {"", "x", "1A", "1.5"})
            {
                dialog.Type(3369, text);
                ExpectRefusal(dialog, 20001, 3369);
            }
        }
        SelectByProgram(dialog, 3368, -1);
        dialog.Type(3369, "100");
        ExpectRefusal(dialog, 20003, 3369);
    });
}

// ---- The number of points -------------------------------------------------------------------------------------------

TEST_P(CScalCheckTest, KeepsTheNumberOfPointsBetweenTwoAndWhatTheRegistersHold)
{
    const int width = GetParam().width;
    SetDeviceRange(m_wizard, kFL, 10, 1000000); // more registers than any table
    const struct
    {
        const char* device;
        int last;
        int start;
    } kStarts[] = {{"DT", 32764, 0},
                   {"DT", 32764, 100},
                   {"DT", 32764, 32764 - 4 * width},
                   {"DT", 32764, 32764 - 4 * width - 1},
                   {"DT", 32764, 32764 - 6 * width},
                   {"DT", 32764, 32764 - 6 * width + 1},
                   {"WL", 127, 0},
                   {"WL", 127, 100},
                   {"FL", 1000000, 10},
                   {"FL", 1000000, 1000000 - 65534 * width},
                   {"FL", 1000000, 1000000 - 65534 * width + 1}};
    Leave([&](CDialogRobot& dialog) {
        FillIn(dialog, {});
        for (const auto& [device, last, start] : Sampled(kStarts, 4))
        {
            const int most = std::min(32767, (last - start) / (2 * width));
            SCOPED_TRACE(testing::Message() << device << start << ", " << most);
            dialog.SelectText(3368, device);
            dialog.Focus(3369);
            dialog.Type(3369, std::to_string(start).c_str());
            dialog.Focus(3371);
            EXPECT_EQ(dialog.Text(3372), CString(("(2 - " + std::to_string(most) + ")").c_str()));
            for (const int n : {-1, 0, 1, most + 1, 99999})
            {
                dialog.Type(3371, std::to_string(n).c_str());
                ExpectRefusal(dialog, 20042, 3371);
            }
            for (const std::string& text : Sampled(std::vector<std::string>{"", " ", "x", "1.5", "2A", "--2", "+2"}, 3))
            {
                dialog.Type(3371, text.c_str());
                ExpectRefusal(dialog, 20001, 3371);
            }
            for (const int n : {2, most})
            {
                dialog.Type(3371, std::to_string(n).c_str());
                SetCell(dialog, 1, 1, "x");
                ExpectCellRefusal(dialog, 20001, 1, 1);
                dialog.PressKey(VK_ESCAPE);
            }
        }
        for (const char* text : {"4294967298", "18446744073709551618"}) // 2 in fewer bits
        {
            SetTextByProgram(dialog, 3371, text);
            ExpectRefusal(dialog, 20042, 3371);
        }
    });
}

TEST_P(CScalCheckTest, ShowsForHowManyPointsThereAreRegistersAsTheStartChanges)
{
    const int width = GetParam().width;
    SetDeviceRange(m_wizard, kDT, 100, 1000);
    SetDeviceRange(m_wizard, kWL, 5, 127);
    const auto most = [width](int registers) {
        return CString(("(2 - " + std::to_string(registers / (2 * width)) + ")").c_str());
    };
    Leave([&](CDialogRobot& dialog) {
        dialog.SelectText(3368, "DT");
        EXPECT_EQ(dialog.Text(3372), most(900)); // behind the lowest start as long as none is entered
        const struct
        {
            const char* text;
            int registers;
        } kTexts[] = {{"100", 900}, {"500", 500},  {"", 900},   {"501", 499}, {"x", 900},
                      {"99", 900},  {"5000", 900}, {"990", 10}, {"1000", 900}};
        for (const auto& [text, registers] : kTexts)
        {
            dialog.Focus(3369);
            dialog.Type(3369, text);
            dialog.Focus(3371);
            EXPECT_EQ(dialog.Text(3372), most(registers)) << text;
        }
        dialog.Focus(3369);
        dialog.Type(3369, "100");
        dialog.SelectText(3368, "WL");
        EXPECT_EQ(dialog.Text(3372), most(27));
        EXPECT_EQ(dialog.Text(3370), CString(width == 1 ? "(5 - 123)" : "(5 - 119)"));
        dialog.SelectText(3368, "DT");
        EXPECT_EQ(dialog.Text(3372), most(900));
    });
}

TEST_P(CScalCheckTest, TakesATableThatEndsAtTheHighestRegister)
{
    for (const int count : {2, 3, 7})
    {
        const int start = kLastRegister - 2 * count * GetParam().width;
        const SScalEntries entries = {.start = std::to_string(start), .points = Points(count)};
        EXPECT_EQ(Confirmed(entries), ScalResults(GetParam(), entries));
        const SDataRow last = ReadResults(m_wizard).data.at(2 * static_cast<size_t>(count));
        EXPECT_EQ(last.number + GetParam().width - 1, kLastRegister);
        Leave([&](CDialogRobot& dialog) {
            dialog.Type(3369, std::to_string(start + 1).c_str());
            count == 2 ? ExpectRefusal(dialog, 20003, 3369) : ExpectRefusal(dialog, 20042, 3371);
        });
        WriteResults(m_wizard, {});
    }
}

// ---- Cells ----------------------------------------------------------------------------------------------------------

TEST_P(CScalCheckTest, KeepsCellsInTheRangeOfTheInstruction)
{
    const SScalKind& kind = GetParam();
    SScalEntries all = {.points = {}};
    for (const std::string& text : kind.inside)
        all.points.push_back({text, text});
    EXPECT_EQ(Confirmed(all), ScalResults(kind, all));
    WriteResults(m_wizard, {});

    Leave([&](CDialogRobot& dialog) {
        FillIn(dialog, {});
        for (const unsigned cell : SampledNumbers(0, 5, 5))
        {
            const int row = static_cast<int>(cell / 2), column = static_cast<int>(cell % 2);
            const CString good = CellsOf(dialog).Text({row, column});
            const auto expect = [&](const std::vector<std::string>& texts, UINT message) {
                for (const std::string& text : texts)
                {
                    SCOPED_TRACE(testing::Message() << '"' << text << "\" in " << row << '/' << column);
                    SetCell(dialog, row, column, text);
                    ExpectCellRefusal(dialog, message, row, column);
                }
            };
            expect(kind.outside, column == 0 ? 20043 : 20044);
            expect(kind.unreadable, 20001);
            SetCell(dialog, row, column, static_cast<LPCSTR>(good));
        }
    });
}

// Each cell of a long table in turn is bad in each way, wherever the table is scrolled to.
TEST_P(CScalCheckTest, SelectsTheBadCellScrollsItIntoViewAndOpensIt)
{
    constexpr int kRows = 12;
    const std::string outside = GetParam().outside.front();
    Leave([&](CDialogRobot& dialog) {
        FillIn(dialog, {.points = Points(kRows)});
        for (const unsigned cell : SampledNumbers(0, 2 * kRows - 1, 9))
            for (const unsigned first : SampledNumbers(0, 7, 7))
                for (const std::string& text : {std::string(), std::string("x"), outside})
                {
                    const int row = static_cast<int>(cell / 2), column = static_cast<int>(cell % 2);
                    SCOPED_TRACE(testing::Message() << '"' << text << "\" in " << row << '/' << column);
                    const CString good = CellsOf(dialog).Text({row, column});
                    Scroll(dialog, SB_THUMBPOSITION, static_cast<int>(first));
                    SetCell(dialog, row, column, text);
                    ExpectCellRefusal(dialog, text != outside ? 20001 : column == 0 ? 20043 : 20044, row, column);
                    SetTextByProgram(dialog, EditorOf(dialog), static_cast<LPCSTR>(good));
                    dialog.PressKey(VK_RETURN);
                    EXPECT_EQ(CellsOf(dialog).Text({row, column}), good);
                }
    });
}

TEST_P(CScalCheckTest, LeavesRowsBehindTheLastPointAlone)
{
    SScalEntries entries = {.count = "2"};
    entries.points = {{"1", "2"}, {"3", "4"}, {"x", ""}, {"-99999999999", "y"}, {"", "5"}};
    EXPECT_EQ(Confirmed(entries), ScalResults(GetParam(), entries));
    WriteResults(m_wizard, {});
    entries.count = "3";
    Leave([&](CDialogRobot& dialog) {
        FillIn(dialog, entries);
        ExpectCellRefusal(dialog, 20001, 2, 0);
        dialog.PressKey(VK_ESCAPE);
        dialog.Type(3371, "7"); // more points than rows: those are empty
        SetCell(dialog, 2, 0, "5");
        SetCell(dialog, 2, 1, "5");
        SetCell(dialog, 3, 0, "6");
        SetCell(dialog, 3, 1, "6");
        SetCell(dialog, 4, 0, "7");
        ExpectCellRefusal(dialog, 20001, 5, 0);
        dialog.PressKey(VK_ESCAPE);
        for (const int row : {5, 6})
        {
            SetCell(dialog, row, 0, std::to_string(row * 10));
            SetCell(dialog, row, 1, row == 5 ? "0" : "");
        }
        ExpectCellRefusal(dialog, 20001, 6, 1);
        dialog.PressKey(VK_ESCAPE);
    });
}

// ---- The order of X -------------------------------------------------------------------------------------------------

TEST_P(CScalCheckTest, WantsXInAscendingOrder)
{
    constexpr int kRows = 7;
    const SScalKind& kind = GetParam();
    Leave([&](CDialogRobot& dialog) {
        FillIn(dialog, {.points = Points(kRows)});
        for (int row = 1; row < kRows; ++row)
            for (const bool equal : {true, false})
            {
                SCOPED_TRACE(testing::Message() << "row " << row << (equal ? ", equal" : ", reversed"));
                const std::string before = CellsOf(dialog).Text({row - 1, 0}), here = CellsOf(dialog).Text({row, 0});
                SetCell(dialog, row, 0, before);
                if (!equal)
                    SetCell(dialog, row - 1, 0, here);
                ExpectCellRefusal(dialog, 20045, row, 0); // which does not rise above the one before it
                dialog.PressKey(VK_ESCAPE);
                SetCell(dialog, row - 1, 0, before);
                SetCell(dialog, row, 0, here);
            }
        // Several: the first.
        SetCell(dialog, 2, 0, "-20000");
        SetCell(dialog, 5, 0, "-20000");
        ExpectCellRefusal(dialog, 20045, 2, 0);
        dialog.PressKey(VK_ESCAPE);
        // All falling.
        for (int row = 0; row < kRows; ++row)
            SetCell(dialog, row, 0, std::to_string(-row));
        ExpectCellRefusal(dialog, 20045, 1, 0);
        dialog.PressKey(VK_ESCAPE);
        // A cell that is refused comes before the order of any.
        SetCell(dialog, kRows - 1, 1, "x");
        ExpectCellRefusal(dialog, 20001, kRows - 1, 1);
        dialog.PressKey(VK_ESCAPE);
        SetCell(dialog, kRows - 1, 1, kind.outside.front());
        ExpectCellRefusal(dialog, 20044, kRows - 1, 1);
        dialog.PressKey(VK_ESCAPE);
    });
}

TEST_P(CScalCheckTest, ComparesXAsNumbers)
{
    struct SNeighbours
    {
        const char* first;
        const char* second;
        bool ascending;
        bool onlyReal = false;
    };
    const SNeighbours kNeighbours[] = {
        {"9", "10", true},
        {"10", "9", false},
        {"-10", "-9", true},
        {"-9", "-10", false},
        {"-1", "0", true},
        {"0", "-1", false},
        {"-1", "1", true},
        {"1", "-1", false},
        {"007", "7", false},
        {"-32768", "32767", true},
        {"32767", "-32768", false},
        {"0", "-0", false},
        {"1.5", "1.50", false, true},
        {"1e2", "100", false, true},
        {"100", "1e2", false, true},
        {"-1.5", "-1.4999", true, true},
        {"-1.4999", "-1.5", false, true},
        {"-1e20", "1e-20", true, true},
        {"1e-20", "1e20", true, true},
        {"-1e-20", "-1e20", false, true},
        {"-3.402822e38", "3.402822e38", true, true},
        {"3.402822e38", "-3.402822e38", false, true},
        {"0", "1.175494e-38", true, true},
        {"-1.175494e-38", "0", true, true},
        {"0", "-1.175494e-38", false, true},
        {"8.589973e9", "8.589974e9", false, true}, // one number to single precision
        {"1.000000", "1.000001", true, true},
    };
    const bool real = GetParam().IsReal();
    Leave([&](CDialogRobot& dialog) {
        FillIn(dialog, {.points = {{"0", "x"}, {"1", "1"}}});
        for (const SNeighbours& pair : kNeighbours)
        {
            if (pair.onlyReal && !real)
                continue;
            SCOPED_TRACE(testing::Message() << pair.first << " and " << pair.second);
            SetCell(dialog, 0, 0, pair.first);
            SetCell(dialog, 1, 0, pair.second);
            SetCell(dialog, 0, 1, "1");
            if (!pair.ascending)
            {
                ExpectCellRefusal(dialog, 20045, 1, 0);
                dialog.PressKey(VK_ESCAPE);
                continue;
            }
            // Ascending on to a third row that never is.
            SetCell(dialog, 2, 0, pair.second);
            SetCell(dialog, 2, 1, "1");
            dialog.Type(3371, "3");
            ExpectCellRefusal(dialog, 20045, 2, 0);
            dialog.PressKey(VK_ESCAPE);
            dialog.Type(3371, "2");
        }
    });
}

TEST_P(CScalCheckTest, LetsYBeInAnyOrder)
{
    const SScalEntries entries = {.points = {{"1", "5"}, {"2", "5"}, {"3", "-5"}, {"4", "0"}}};
    EXPECT_EQ(Confirmed(entries), ScalResults(GetParam(), entries));
}

// ---- The order of checks --------------------------------------------------------------------------------------------

namespace
{

enum EWrong
{
    kContact,
    kInput,
    kOutput,
    kStart,
    kNumber,
    kFirstX,
    kFirstY,
    kSecondX,
    kSecondY,
    kThirdX,
    kThirdY,
    kWrongs
};

constexpr UINT kEdits[] = {2052, 3363, 3366, 3369, 3371};
constexpr UINT kMessages[] = {20020, 20040, 20041, 20003, 20042};
constexpr const char* kGood[] = {"10", "10", "20", "100", "3"};
constexpr const char* kOutside[] = {"999F", "99999", "99999", "99999", "1"};
constexpr const char* kGoodCells[] = {"-100", "5", "0", "-7", "250", "32"};

} // namespace

// Two entries at a time are wrong, each no number or outside its range, and X is not in order unless that is one of
// them: the first is pointed at.
TEST_P(CScalCheckTest, PointsAtTheFirstBadEntry)
{
    const std::string outsideCell = GetParam().outside.front();
    const SResults before = ScalResults(GetParam(), {.start = "7"});
    WriteResults(m_wizard, before);
    Leave([&](CDialogRobot& dialog) {
        FillIn(dialog, {});
        const auto put = [&dialog](int field, const std::string& text) {
            if (field < kFirstX)
                SetTextByProgram(dialog, kEdits[field], text);
            else
                SetCell(dialog, (field - kFirstX) / 2, (field - kFirstX) % 2, text);
        };
        const auto good = [](int field) { return field < kFirstX ? kGood[field] : kGoodCells[field - kFirstX]; };
        const auto outside = [&](int field) { return field < kFirstX ? kOutside[field] : outsideCell; };
        for (const unsigned pair : SampledNumbers(0, kWrongs * kWrongs - 1, 11))
            for (const unsigned ways : {0u, 1u, 2u, 3u})
            {
                const int first = static_cast<int>(pair / kWrongs), second = static_cast<int>(pair % kWrongs);
                if (first >= second)
                    continue;
                SCOPED_TRACE(testing::Message() << first << " and " << second << ", ways " << ways);
                const bool isText = (ways & 1) != 0;
                put(first, isText ? "x" : outside(first));
                put(second, (ways & 2) != 0 ? "x" : outside(second));
                const UINT message = isText                     ? 20001
                                     : first < kFirstX          ? kMessages[first]
                                     : first % 2 == kFirstX % 2 ? 20043
                                                                : 20044;
                if (first < kFirstX)
                    ExpectRefusal(dialog, message, kEdits[first]);
                else
                    ExpectCellRefusal(dialog, message, (first - kFirstX) / 2, (first - kFirstX) % 2);
                put(first, good(first));
                put(second, good(second));
            }
        // The order of X is the last.
        SetCell(dialog, 1, 0, "-200");
        for (int field = 0; field < kWrongs; ++field)
        {
            if (field == kSecondX)
                continue;
            put(field, "x");
            if (field < kFirstX)
                ExpectRefusal(dialog, 20001, kEdits[field]);
            else
                ExpectCellRefusal(dialog, 20001, (field - kFirstX) / 2, (field - kFirstX) % 2);
            put(field, good(field));
        }
        ExpectCellRefusal(dialog, 20045, 1, 0);
        dialog.PressKey(VK_ESCAPE);
        EXPECT_EQ(ReadResults(m_wizard), before);
    });
    EXPECT_EQ(ReadResults(m_wizard), before);
}

TEST_P(CScalCheckTest, SkipsContactInputAndOutputWhenOnlyADataTableIsCreated)
{
    SScalEntries entries = {.onlyDataTable = true, .differential = true};
    Confirm([&](CDialogRobot& dialog) {
        FillIn(dialog, {.differential = true});
        for (const char* text : {"x", "", "99999"})
        {
            for (const UINT edit : {2052u, 3363u, 3366u})
                SetTextByProgram(dialog, edit, text);
            dialog.Check(2061, false);
            EXPECT_NE(dialog.ClickAndAnswer(IDOK), CString());
            dialog.Check(2061);
            SetCell(dialog, 2, 1, "x");
            ExpectCellRefusal(dialog, 20001, 2, 1);
            dialog.PressKey(VK_ESCAPE);
            SetCell(dialog, 2, 1, "32767");
            dialog.Type(3369, "x");
            ExpectRefusal(dialog, 20001, 3369);
            dialog.Type(3369, "100");
            dialog.Type(3371, "1");
            ExpectRefusal(dialog, 20042, 3371);
            dialog.Type(3371, "3");
        }
    });
    EXPECT_EQ(ReadResults(m_wizard), ScalResults(GetParam(), entries));
    EXPECT_EQ(m_wizard.IsOnlyDataTable(), 1);
}

TEST_P(CScalCheckTest, AcceptsWhatWasRefusedOnceItIsRight)
{
    Confirm([](CDialogRobot& dialog) {
        FillIn(dialog, {.contact = "", .input = "x", .output = "99999", .start = "32764", .count = "2"});
        SetCell(dialog, 0, 0, "x");
        SetCell(dialog, 1, 1, "99999999999x");
        ExpectRefusal(dialog, 20001, 2052);
        TypeHere(dialog, "10"); // over the text that is selected
        ExpectRefusal(dialog, 20001, 3363);
        TypeHere(dialog, "10");
        ExpectRefusal(dialog, 20041, 3366);
        TypeHere(dialog, "20");
        ExpectRefusal(dialog, 20003, 3369);
        TypeHere(dialog, "100");
        dialog.Type(3371, "99999");
        ExpectRefusal(dialog, 20042, 3371);
        TypeHere(dialog, "3");
        ExpectCellRefusal(dialog, 20001, 0, 0);
        TypeHere(dialog, "300");
        ExpectCellRefusal(dialog, 20001, 1, 1);
        TypeHere(dialog, "-7");
        ExpectCellRefusal(dialog, 20045, 1, 0);
        dialog.PressKey(VK_ESCAPE);
        SetCell(dialog, 0, 0, "-100");
    });
    EXPECT_EQ(ReadResults(m_wizard), ScalResults(GetParam(), {}));
}
