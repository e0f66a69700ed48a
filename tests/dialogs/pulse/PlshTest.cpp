// What is particular to the dialog of F172: the target value that comes and goes, and its frequencies.
#include "tests/dialogs/pulse/PulseFormTest.h"

namespace
{

class CPlshTest : public CPulseFormTest
{
protected:
    const SPulseForm& m_form = PulseForm("PlshNoTarget");
    const SPulseForm& m_target = PulseForm("PlshTarget");
};

/// The label of the target value, its edit, its unit and its range.
void ExpectTarget(CDialogRobot& dialog, bool shown)
{
    int found = 0;
    for (const SRobotControl& control : dialog.Controls())
    {
        const bool target =
            control.id == 2310 || control.id == 2311 || control.text == "Target value" || control.text == "Pulse No.";
        found += target ? 1 : 0;
        EXPECT_EQ(control.visible, shown || !target) << control.id << ", " << control.text;
        EXPECT_EQ(control.enabled, shown || !target) << control.id << ", " << control.text;
    }
    EXPECT_EQ(found, 4);
}

} // namespace

TEST_F(CPlshTest, ShowsTheTargetInItsMode)
{
    Leave(m_form, [](CDialogRobot& dialog) {
        ExpectTarget(dialog, false);
        EXPECT_EQ(dialog.Text(2302), CString("(0 - 32761)"));
        for (int round = 0; round < 2; ++round)
        {
            dialog.Select(2304, 1);
            ExpectTarget(dialog, true);
            EXPECT_EQ(dialog.Text(2302), CString("(0 - 32759)"));
            dialog.Select(2304, 0);
            ExpectTarget(dialog, false);
            EXPECT_EQ(dialog.Text(2302), CString("(0 - 32761)"));
        }
        dialog.Select(2304, 1);
        SelectByProgram(dialog, 2304, -1);
        ExpectTarget(dialog, false);
        EXPECT_EQ(dialog.Text(2302), CString("(0 - 32761)"));
        dialog.Select(2304, 1);
        dialog.Click(2099);
        ExpectTarget(dialog, false);
        EXPECT_EQ(dialog.Text(2302), CString("(0 - 32761)"));
    });
}

TEST_F(CPlshTest, NeitherChecksNorStoresAHiddenTarget)
{
    Confirm(m_form, [&](CDialogRobot& dialog) {
        FillIn(dialog, m_target);
        dialog.Type(2310, "no target");
        dialog.Select(2304, 0);
    });
    EXPECT_EQ(ReadResults(m_wizard), FormResults(m_form, {}));
    Confirm(m_form, [&](CDialogRobot& dialog) {
        FillIn(dialog, m_target);
        SelectByProgram(dialog, 2304, -1);
    });
    EXPECT_EQ(ReadResults(m_wizard), FormResults(m_form, {}));
}

TEST_F(CPlshTest, ComposesTheCodeWithoutAMode)
{
    Confirm(m_form, [this](CDialogRobot& dialog) {
        FillIn(dialog, m_form, {.items = {0, 1, 2, 7}});
        SelectByProgram(dialog, 2304, -1);
    });
    EXPECT_EQ(ReadResults(m_wizard).data[0], (SDataRow{9, 100, 1, 1, 0x1223}));
}

// The highest start has as many digits as may be typed.
TEST_F(CPlshTest, LimitsTheStartAsItsRangeDoes)
{
    SetDeviceRange(m_wizard, kDT, 0, 103); // up to 100, or 98 with a target
    Leave(m_form, [](CDialogRobot& dialog) {
        ExpectLimits(dialog, {{2301, 3}});
        dialog.Select(2304, 1);
        ExpectLimits(dialog, {{2301, 2}});
        dialog.Select(2304, 0);
        ExpectLimits(dialog, {{2301, 3}});
    });
}

TEST_F(CPlshTest, RestoresATargetOfItsModeAlone)
{
    const struct
    {
        int code;
        bool shown;
    } rows[] = {{0x10000, true},  {0x11223, true}, {0x00000, false}, {0x20000, false},
                {0xF0000, false}, {0x1000, false}, {0x110000, true}, {-0xF0000, true}}; // 0xFFF10000
    for (const auto& row : rows)
    {
        SCOPED_TRACE(testing::Message() << std::hex << row.code);
        WriteResults(m_wizard, {.data = {{9, 1, 1, 1, row.code}, {9, 3, 1, 0, 7}, {9, 5, 1, 0, -8}}});
        Leave(m_form, [&](CDialogRobot& dialog) {
            ExpectTarget(dialog, row.shown);
            EXPECT_EQ(dialog.Selection(2304), row.shown ? 1 : 0);
            EXPECT_EQ(dialog.Text(2308), CString("7"));
            EXPECT_EQ(dialog.Text(2310), CString(row.shown ? "-8" : ""));
            EXPECT_EQ(dialog.Text(2302), CString(row.shown ? "(0 - 32759)" : "(0 - 32761)"));
            dialog.Select(2304, 1);
            EXPECT_EQ(dialog.Text(2310), CString(row.shown ? "-8" : "")) << "nothing comes up by choosing the mode";
        });
    }
}

// Two registers decide whether there is room for the target.
TEST_F(CPlshTest, NeedsMoreRegistersForATarget)
{
    SetDeviceRange(m_wizard, kDT, 10, 13);
    Confirm(m_form, [&](CDialogRobot& dialog) {
        FillIn(dialog, m_form);
        dialog.Type(2301, "10");
        EXPECT_EQ(dialog.Text(2302), CString("(10 - 10)"));
        dialog.Select(2304, 1);
        dialog.Type(2310, "1");
        ExpectRefusal(dialog, 20003, 2301);
        dialog.Select(2304, 0);
    });
    EXPECT_EQ(ReadResults(m_wizard).operands[0], (SOperandRow{9, 10}));
}

// ---- Frequencies ----------------------------------------------------------------------------------------------------

namespace
{

struct SFrequencies
{
    int range; // positions in the lists; -1: nothing selected
    int channel;
    int low;
    int high;
};

constexpr SFrequencies kFrequencies[] = {
    {0, 0, 1, 9800},     {0, 1, 1, 9800},     {0, 2, 1, 9800},    {0, 3, 1, 9800},    {0, -1, 1, 9800},
    {1, 0, 48, 100000},  {1, 1, 48, 100000},  {1, 2, 48, 20000},  {1, 3, 48, 20000},  {1, -1, 48, 20000},
    {2, 0, 191, 100000}, {2, 1, 191, 100000}, {2, 2, 191, 20000}, {2, 3, 191, 20000}, {2, -1, 191, 20000},
    {-1, 0, 0, 0},       {-1, 2, 0, 0},       {-1, -1, 0, 0},
};

} // namespace

TEST_F(CPlshTest, KeepsTheFrequencyInTheRangeOfListAndChannel)
{
    Leave(m_target, [&](CDialogRobot& dialog) {
        FillIn(dialog, m_target);
        dialog.Type(2310, ""); // refused once the frequency is right
        for (const SFrequencies& row : kFrequencies)
        {
            SCOPED_TRACE(testing::Message() << "range " << row.range << ", channel " << row.channel);
            SelectByProgram(dialog, 2306, row.range);
            SelectByProgram(dialog, 2303, row.channel);
            EXPECT_EQ(dialog.Text(2309), RangeText(row.low, row.high));
            for (const int inside : {row.low, row.high})
            {
                dialog.Type(2308, std::to_string(inside).c_str());
                ExpectRefusal(dialog, 20001, 2310);
            }
            for (const int outside : {row.low - 1, row.high + 1})
            {
                dialog.Type(2308, std::to_string(outside).c_str());
                ExpectRefusal(dialog, 20008, 2308);
            }
        }
    });
}

TEST_F(CPlshTest, ShowsTheFrequenciesOfWhatIsSelected)
{
    Leave(m_form, [](CDialogRobot& dialog) {
        for (const SFrequencies& row : kFrequencies)
        {
            if (row.range < 0 || row.channel < 0)
                continue;
            dialog.Select(2306, row.range);
            dialog.Select(2303, row.channel);
            EXPECT_EQ(dialog.Text(2309), RangeText(row.low, row.high));
        }
        dialog.Select(2303, 3);
        dialog.Select(2306, 2);
        EXPECT_EQ(dialog.Text(2309), CString("(191 - 20000)"));
        dialog.Click(2061); // the first channel is selected
        EXPECT_EQ(dialog.Text(2309), CString("(191 - 100000)"));
        SelectByProgram(dialog, 2303, 2);
        EXPECT_EQ(dialog.Text(2309), CString("(191 - 20000)"));
        dialog.Click(2061);
        EXPECT_EQ(dialog.Text(2309), CString("(191 - 100000)"));
        dialog.Click(2099);
        EXPECT_EQ(dialog.Text(2309), CString("(1 - 9800)"));
    });
    WriteResults(m_wizard, {.operands = {{9, 1}, {11, 6}}, .data = {{9, 1, 1, 1, 0x100}}});
    Leave(m_form, [](CDialogRobot& dialog) { EXPECT_EQ(dialog.Text(2309), CString("(48 - 20000)")); });
}
