// Auto-tuning finds the gains itself: what F355's dialog does to them when it is chosen, opened with, and confirmed.
#include "tests/dialogs/process/PidTest.h"

namespace
{

using CPidAutoTuningTest = CPidTest;

constexpr EPidParameter kGains[] = {kKp, kTi, kTd};

void ExpectGains(CDialogRobot& dialog, bool checked, bool changeable, const std::array<const char*, 3>& texts)
{
    for (size_t i = 0; i < std::size(kGains); ++i)
    {
        ExpectUsed(dialog, kPid[kGains[i]], checked, changeable);
        EXPECT_EQ(dialog.Text(kPid[kGains[i]].edit), CString(texts[i])) << kPid[kGains[i]].name;
    }
}

void ExpectTheOthersUntouched(CDialogRobot& dialog)
{
    const SPidEntries entries;
    for (EPidParameter parameter : {kSp, kLower, kUpper, kTs})
    {
        ExpectUsed(dialog, kPid[parameter], true);
        EXPECT_EQ(dialog.Text(kPid[parameter].edit), CString(entries.texts[parameter].c_str()));
    }
}

TEST_F(CPidAutoTuningTest, TakesTheGainsAwayAndGivesThemBack)
{
    Leave([](CDialogRobot& dialog) {
        FillIn(dialog, {});
        ExpectGains(dialog, true, true, {"1.5", "2.5", "3.5"});
        dialog.Select(2805, 1);
        ExpectGains(dialog, true, false, {"0.1", "0.1", "0"});
        ExpectTheOthersUntouched(dialog);

        dialog.Select(2805, 0);
        ExpectGains(dialog, false, true, {"0.1", "0.1", "0"});
        ExpectTheOthersUntouched(dialog);
        dialog.Check(kPid[kTi].check);
        ExpectUsed(dialog, kPid[kTi], true);
        ExpectUsed(dialog, kPid[kKp], false);

        dialog.Type(kPid[kTi].edit, "77");
        dialog.Select(2805, 1);
        ExpectGains(dialog, true, false, {"0.1", "0.1", "0"});
    });
}

TEST_F(CPidAutoTuningTest, ChangesNothingWhenItIsChosenAgain)
{
    Leave([](CDialogRobot& dialog) {
        FillIn(dialog, {});
        dialog.Select(2805, 0);
        ExpectGains(dialog, true, true, {"1.5", "2.5", "3.5"});
        dialog.Select(2805, 1);
        for (EPidParameter gain : kGains)
            SetTextByProgram(dialog, kPid[gain].edit, "9");
        dialog.Select(2805, 1);
        ExpectGains(dialog, true, false, {"9", "9", "9"});
    });
}

TEST_F(CPidAutoTuningTest, DoesNotDependOnTheOtherLists)
{
    Leave([](CDialogRobot& dialog) {
        FillIn(dialog, {});
        for (UINT combo : {2803, 2804, 2051})
        {
            dialog.Select(combo, 1);
            ExpectGains(dialog, true, true, {"1.5", "2.5", "3.5"});
        }
        dialog.Select(2805, 1);
        for (UINT combo : {2803, 2804, 2051})
        {
            dialog.Select(combo, 0);
            ExpectGains(dialog, true, false, {"0.1", "0.1", "0"});
        }
        for (EPidParameter other : {kSp, kTs})
        {
            dialog.Check(kPid[other].check, false);
            ExpectUsed(dialog, kPid[other], false);
            ExpectGains(dialog, true, false, {"0.1", "0.1", "0"});
        }
    });
}

// Without a derivative type there is no control mode, and so no auto-tuning in it.
TEST_F(CPidAutoTuningTest, IsNotExecutedWithoutAControlMode)
{
    Leave([](CDialogRobot& dialog) {
        FillIn(dialog, {});
        SelectSilently(dialog, 2803, -1);
        dialog.Select(2805, 1);
        ExpectGains(dialog, true, true, {"1.5", "2.5", "3.5"});
    });
}

// ---- Opened with it -------------------------------------------------------------------------------------------------

TEST_F(CPidAutoTuningTest, KeepsTheGainsThatAreStored)
{
    WriteResults(
        m_wizard,
        {.operands = {{9, 100}},
         .data = {
             {9, 100, 0, 1, 0x8000}, {9, 101, 0, 0, 500}, {9, 106, 0, 0, 55}, {9, 107, 0, 0, 660}, {9, 108, 0, 0, 7}}});
    Leave([](CDialogRobot& dialog) {
        EXPECT_EQ(dialog.Selection(2805), 1);
        ExpectGains(dialog, true, false, {"5.5", "66", "0.7"});
        dialog.Select(2805, 1); // as before
        ExpectGains(dialog, true, false, {"5.5", "66", "0.7"});
        dialog.Select(2805, 0);
        ExpectGains(dialog, false, true, {"5.5", "66", "0.7"});
    });
    Confirm([](CDialogRobot& dialog) { dialog.Type(2052, "10A"); });
    EXPECT_EQ(
        ReadResults(m_wizard).data,
        (std::vector<SDataRow>{
            {9, 100, 0, 1, 0x8000}, {9, 101, 0, 0, 500}, {9, 106, 0, 0, 55}, {9, 107, 0, 0, 660}, {9, 108, 0, 0, 7}}))
        << "the texts are read as they stand";
}

TEST_F(CPidAutoTuningTest, LeavesOutTheGainsThatAreNotStored)
{
    const std::vector<SDataRow> stored = {{9, 100, 0, 1, 0x8000}, {9, 101, 0, 0, 500}, {9, 107, 0, 0, 660}};
    WriteResults(m_wizard, {.operands = {{9, 100}}, .data = stored});
    Confirm([](CDialogRobot& dialog) {
        ExpectUsed(dialog, kPid[kKp], false, false);
        ExpectUsed(dialog, kPid[kTi], true, false);
        ExpectUsed(dialog, kPid[kTd], false, false);
        EXPECT_EQ(dialog.Text(kPid[kKp].edit), CString("0.1"));
        EXPECT_EQ(dialog.Text(kPid[kTi].edit), CString("66"));
        EXPECT_EQ(dialog.Text(kPid[kTd].edit), CString("0"));
        dialog.Type(2052, "10A");
    });
    EXPECT_EQ(ReadResults(m_wizard).data, stored);
}

// ---- Confirmed with it ----------------------------------------------------------------------------------------------

TEST_F(CPidAutoTuningTest, StoresTheFirstGains)
{
    SPidEntries entries;
    entries.autoTuning = 1;
    const SResults results = Confirmed(entries);
    EXPECT_EQ(results, PidResults(entries));
    EXPECT_EQ(std::vector<SDataRow>(results.data.begin() + 4, results.data.begin() + 7),
              (std::vector<SDataRow>{{9, 106, 0, 0, 1}, {9, 107, 0, 0, 1}, {9, 108, 0, 0, 0}}));
}

struct SGain
{
    const char* text;
    std::array<int, 3> values; // of Kp, Ti and Td
};

// A usable text counts; any other is the lowest value, and nothing is said.
constexpr SGain kTexts[] = {
    {"", {1, 0, 0}},
    {"x", {1, 0, 0}},
    {".", {1, 0, 0}},
    {"-1", {1, 0, 0}},
    {"0", {1, 0, 0}},
    {"0.1", {1, 1, 1}},
    {"0.05", {1, 0, 0}},
    {"5.5", {55, 55, 55}},
    {"999.9", {9999, 9999, 9999}},
    {"1000", {1, 10000, 10000}},
    {"1000.1", {1, 10001, 0}},
    {"3000", {1, 30000, 0}},
    {"3000.1", {1, 0, 0}},
    {"9999.9", {1, 0, 0}},
    {"10000", {1, 0, 0}},
    {" 2 ", {20, 20, 20}},
};

TEST_F(CPidAutoTuningTest, NeverRefusesAGain)
{
    SPidEntries entries;
    entries.autoTuning = 1;
    for (const SGain& gain : kTexts)
    {
        Confirm([&](CDialogRobot& dialog) {
            FillIn(dialog, entries);
            for (EPidParameter parameter : kGains)
                SetTextByProgram(dialog, kPid[parameter].edit, gain.text);
        });
        EXPECT_TRUE(m_robot.MessageBoxes().empty());
        SResults expected = PidResults(entries);
        for (size_t i = 0; i < std::size(kGains); ++i)
            expected.data[4 + i].value = gain.values[i];
        EXPECT_EQ(ReadResults(m_wizard), expected) << '"' << gain.text << '"';
    }
}

TEST_F(CPidAutoTuningTest, StillRefusesTheOthers)
{
    Leave([](CDialogRobot& dialog) {
        SPidEntries entries;
        entries.autoTuning = 1;
        FillIn(dialog, entries);
        for (EPidParameter parameter : {kTs, kUpper, kLower, kSp})
        {
            dialog.Type(kPid[parameter].edit, "x");
            ExpectRefusal(dialog, 20001, kPid[parameter].edit);
        }
    });
}

// The same bad texts are refused once the user is to choose the gains.
TEST_F(CPidAutoTuningTest, RefusesGainsWithoutIt)
{
    Leave([](CDialogRobot& dialog) {
        SPidEntries entries;
        entries.autoTuning = 1;
        FillIn(dialog, entries);
        for (EPidParameter gain : kGains)
            SetTextByProgram(dialog, kPid[gain].edit, "x");
        dialog.Select(2805, 0);
        for (EPidParameter gain : {kTd, kTi, kKp})
        {
            dialog.Check(kPid[gain].check);
            ExpectRefusal(dialog, 20001, kPid[gain].edit);
        }
    });
}

} // namespace
