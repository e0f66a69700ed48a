// What a confirmed dialog of F355 leaves in the wizard: every set of parameters, every control mode, comments, flags,
// and the ladder.
#include "tests/core/FunWizardTest.h"
#include "tests/dialogs/process/PidTest.h"
#include "tests/support/Sampled.h"

namespace
{

using CPidResultsTest = CPidTest;

// Each set is stored, shown again, and stored again by the next OK.
TEST_F(CPidResultsTest, HoldAnySetOfParameters)
{
    for (int autoTuning : {0, 1})
    {
        for (const unsigned used : SampledNumbers(0, (1u << kPidParameters) - 1, 23))
        {
            SCOPED_TRACE(testing::Message() << "set " << used << ", auto-tuning " << autoTuning);
            SPidEntries entries = PidWith(used);
            entries.autoTuning = autoTuning;
            const SResults expected = PidResults(entries);
            ASSERT_EQ(Confirmed(entries), expected);
            Confirm([&](CDialogRobot& dialog) {
                EXPECT_EQ(dialog.Selection(2805), autoTuning);
                for (size_t i = 0; i < kPidParameters; ++i)
                {
                    const bool forced = autoTuning == 1 && kPid[i].gain;
                    ExpectUsed(dialog, kPid[i], forced || entries.used[i], !forced);
                    const std::string text = forced || !entries.used[i] ? kPid[i].initial : entries.texts[i];
                    EXPECT_EQ(dialog.Text(kPid[i].edit), CString(text.c_str())) << kPid[i].name;
                }
            });
            ASSERT_EQ(ReadResults(m_wizard), expected);
        }
    }
}

TEST_F(CPidResultsTest, LeaveOutTheSetValueAlone)
{
    EXPECT_EQ(Confirmed(PidWith(0x7E)).data, (std::vector<SDataRow>{{9, 100, 0, 1, 0},
                                                                    {9, 104, 0, 0, 0},
                                                                    {9, 105, 0, 0, 10000},
                                                                    {9, 106, 0, 0, 15},
                                                                    {9, 107, 0, 0, 25},
                                                                    {9, 108, 0, 0, 35},
                                                                    {9, 109, 0, 0, 125}}));
}

// ---- Control mode ---------------------------------------------------------------------------------------------------

struct SMode
{
    const char* autoTuning;
    const char* derivative;
    const char* operation;
    int code;
};

constexpr SMode kModes[] = {
    {"Not executed", "Derivative type", "Reverse operation", 0x0000},
    {"Not executed", "Derivative type", "Forward operation", 0x0001},
    {"Not executed", "Proportional-derivative type", "Reverse operation", 0x0002},
    {"Not executed", "Proportional-derivative type", "Forward operation", 0x0003},
    {"Executed", "Derivative type", "Reverse operation", 0x8000},
    {"Executed", "Derivative type", "Forward operation", 0x8001},
    {"Executed", "Proportional-derivative type", "Reverse operation", 0x8002},
    {"Executed", "Proportional-derivative type", "Forward operation", 0x8003},
};

TEST_F(CPidResultsTest, HoldEveryControlMode)
{
    for (const SMode& mode : kModes)
    {
        Confirm([&](CDialogRobot& dialog) {
            FillIn(dialog, {});
            dialog.SelectText(2805, mode.autoTuning);
            dialog.SelectText(2803, mode.derivative);
            dialog.SelectText(2804, mode.operation);
        });
        EXPECT_EQ(ReadResults(m_wizard).data[0], (SDataRow{9, 100, 0, 1, mode.code}));
        Confirm([&](CDialogRobot& dialog) {
            EXPECT_EQ(dialog.Text(2805), CString(mode.autoTuning));
            EXPECT_EQ(dialog.Text(2803), CString(mode.derivative));
            EXPECT_EQ(dialog.Text(2804), CString(mode.operation));
        });
        EXPECT_EQ(ReadResults(m_wizard).data[0], (SDataRow{9, 100, 0, 1, mode.code}));
    }
}

// A list without selection gives no bit; without a derivative type there is no other bit either.
TEST_F(CPidResultsTest, HoldTheBitsOfTheListsWithASelection)
{
    const struct
    {
        UINT combo;
        int code;
    } kUnselected[] = {{2803, 0x0000}, {2804, 0x8002}, {2805, 0x0003}};
    for (const auto& [combo, code] : kUnselected)
    {
        Confirm([&, list = combo](CDialogRobot& dialog) {
            SPidEntries entries;
            entries.autoTuning = entries.derivative = entries.operation = 1;
            FillIn(dialog, entries);
            SelectByProgram(dialog, list, -1);
        });
        EXPECT_EQ(ReadResults(m_wizard).data[0], (SDataRow{9, 100, 0, 1, code})) << "without " << combo;
    }
}

// ---- Contact, start, flags ------------------------------------------------------------------------------------------

TEST_F(CPidResultsTest, HoldContactAndStart)
{
    const struct
    {
        int device;
        const char* text;
        int number;
        const char* start;
    } kRows[] = {{kX, "0", 0, "0"},           {kY, "109F", kLastInput, "32735"}, {kSpecialR, "901A", 14426, "7"},
                 {kT, "1007", 1007, "12345"}, {kC, "1008", 1008, "1"},           {kL, "7F", 127, "99"}};
    for (const auto& row : kRows)
    {
        SPidEntries entries = PidWith(0x11);
        entries.device = row.device;
        entries.contact = row.text;
        entries.contactNumber = row.number;
        entries.start = row.start;
        EXPECT_EQ(Confirmed(entries), PidResults(entries));
    }
}

TEST_F(CPidResultsTest, ReplaceTheListsAndLeaveTheInstructionsAlone)
{
    WriteResults(m_wizard, {.contacts = {{2, 3, 1}, {17, -1, 0}, {3, 2, 5}},
                            .operands = {{9, 1}, {11, 1}, {11, 7}},
                            .data = std::vector<SDataRow>(40, {9, 1, 0, 0, 7}),
                            .comments = std::vector<std::string>(20, "old"),
                            .instructions = {{8, -1, 355, 0, 0}}});
    SResults expected = PidResults({});
    expected.instructions = {{8, -1, 355, 0, 0}};
    EXPECT_EQ(Confirmed({}), expected);
}

TEST_F(CPidResultsTest, SetTheFlagOfTheTableAlone)
{
    for (bool only : {true, false})
    {
        SPidEntries entries;
        entries.onlyDataTable = only;
        EXPECT_EQ(Confirmed(entries), PidResults(entries));
        EXPECT_EQ(m_wizard.IsOnlyDataTable(), only ? 1 : 0);
        Leave([&](CDialogRobot& dialog) {
            EXPECT_EQ(dialog.Checked(2061), only);
            dialog.Check(2061, !only); // forgotten
        });
        EXPECT_EQ(m_wizard.IsOnlyDataTable(), only ? 1 : 0);
    }
}

TEST_F(CPidResultsTest, AreCompleteOnceThereIsMemory)
{
    Confirm([](CDialogRobot& dialog) {
        FillIn(dialog, {});
        EXPECT_GT(ConfirmShortOfMemory(dialog), 10) << "OK allocates more than that";
    });
    EXPECT_EQ(ReadResults(m_wizard), PidResults({}));
}

// ---- Comments -------------------------------------------------------------------------------------------------------

TEST_F(CPidResultsTest, HoldACommentForEachWord)
{
    SPidEntries entries = PidWith(0x4D);
    EXPECT_EQ(Confirmed(entries).comments,
              (std::vector<std::string>{"Control mode", "Set value (SP)", "Output upper limit value",
                                        "Proportional gain (Kp)", "Control cycle (Ts)"}));
    EXPECT_EQ(m_wizard.IsCmtRec(), 1);

    WriteResults(m_wizard, {.comments = {"of the host"}});
    entries.comments = false;
    EXPECT_EQ(Confirmed(entries).comments, std::vector<std::string>{"of the host"}) << "kept when none are wanted";
    EXPECT_EQ(m_wizard.IsCmtRec(), 0);

    m_wizard.SetCmtRec(5);
    entries.comments = true;
    EXPECT_EQ(Confirmed(entries), PidResults(entries));
    EXPECT_EQ(m_wizard.IsCmtRec(), 1);
}

TEST_F(CPidResultsTest, TakeTheCommentsFromTheControls)
{
    Confirm([](CDialogRobot& dialog) {
        FillIn(dialog, PidWith(0x2A));
        ControlBefore(dialog, 2805, 2)->SetWindowText("Betriebsart");
        for (const SPidParameterRow& parameter : kPid)
            SetTextByProgram(dialog, parameter.check, "check " + std::to_string(parameter.check));
    });
    EXPECT_EQ(ReadResults(m_wizard).comments,
              (std::vector<std::string>{"Betriebsart", "check 2819", "check 2821", "check 2823"}));
}

// ---- The last wizard ------------------------------------------------------------------------------------------------

TEST_F(CPidResultsTest, MakeItTheLastWizardEvenWhenCancelled)
{
    const SResults earlier = PidResults(PidWith(0x7F));
    for (bool confirmed : {false, true})
    {
        SFunWizardTest::SetLastWizard(m_wizard, 1, 151, 10040);
        WriteResults(m_wizard, earlier);
        const auto look = [](CDialogRobot& dialog) {
            EXPECT_EQ(dialog.Text(2801), CString()) << "the lists of another wizard are emptied";
            EXPECT_TRUE(dialog.Checked(kPid[kSp].check)) << "and nothing is stored";
            FillIn(dialog, {});
        };
        confirmed ? Confirm(look) : Leave(look);
        EXPECT_EQ(SFunWizardTest::UnitMode(m_wizard), 0);
        EXPECT_EQ(SFunWizardTest::LastInstruction(m_wizard), 355);
        EXPECT_EQ(SFunWizardTest::LastVariant(m_wizard), 0);
        EXPECT_EQ(SFunWizardTest::DialogFont(m_wizard), nullptr);
        SResults expected;
        expected.comments = earlier.comments;
        EXPECT_EQ(ReadResults(m_wizard), confirmed ? PidResults({}) : expected);
    }
}

// ---- The ladder -----------------------------------------------------------------------------------------------------

TEST_F(CPidResultsTest, LeadToTheLadder)
{
    const struct
    {
        int device;
        const char* text;
        int number;
        SInstructionRow contact;
        bool edge;
    } kStarts[] = {{kR, "10A", 170, {2, 1, 170, 0, 0}, true},
                   {kT, "99", 99, {2, 4, 99, 0, 0}, true},
                   {kSpecialR, "9010", 14416, {2, 1, 14416, 0, 0}, false}};
    for (const auto& start : kStarts)
    {
        for (bool only : {false, true})
        {
            SPidEntries entries = PidWith(0x45);
            entries.device = start.device;
            entries.contact = start.text;
            entries.contactNumber = start.number;
            entries.autoTuning = entries.derivative = entries.operation = 1;
            entries.onlyDataTable = only;
            m_wizard.RemoveAllInstCodeInfo();
            ASSERT_EQ(Confirmed(entries), PidResults(entries));

            std::vector<SInstructionRow> expected = {start.contact};
            if (start.edge)
                expected.push_back({17, -1, 0, 0, 0});
            const auto transfer = [&](int constant, int value, int number) {
                expected.insert(expected.end(), {{8, -1, 0, 0, 0}, {-1, constant, value, 0, 0}, {-1, 9, number, 0, 0}});
            };
            transfer(12, 0x8003, 100);
            transfer(11, 500, 101);
            transfer(11, 10000, 105);
            transfer(11, 1, 106);
            transfer(11, 1, 107);
            transfer(11, 0, 108);
            transfer(11, 125, 109);
            if (!only)
                expected.insert(expected.end(), {start.contact, {8, -1, 355, 0, 0}, {-1, 9, 100, 0, 0}});
            EXPECT_EQ(m_wizard.CreateInstCode(), 1);
            EXPECT_EQ(ReadResults(m_wizard).instructions, expected);
        }
    }
}

} // namespace
