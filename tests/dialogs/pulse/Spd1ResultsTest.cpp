// What a confirmed dialog of F168 leaves in the wizard: every control code, every field, comments and flags.
#include "tests/dialogs/pulse/Spd1Test.h"

#include "core/ResourceScope.h"

namespace
{

class CSpd1ResultsTest : public CSpd1Test
{
protected:
    /// Confirms the entries and returns what the lists then hold.
    SResults ResultsOf(ESpd1Variant variant, const SSpd1Entries& entries)
    {
        Confirm(variant, [&](CDialogRobot& dialog) { FillIn(dialog, entries); });
        return ReadResults(m_wizard);
    }
};

// ---- Control codes --------------------------------------------------------------------------------------------------

struct SCode
{
    ESpd1Variant variant;
    const char* width;
    const char* mode;
    int code;
};

constexpr SCode kCodes[] = {
    {kTrapezoidal, "Duty 50%", "Incremental  Does not use directional output", 0x0000},
    {kTrapezoidal, "Duty 50%", "Incremental  forward off/reverse on", 0x0002},
    {kTrapezoidal, "Duty 50%", "Incremental  forward on/reverse off", 0x0003},
    {kTrapezoidal, "Duty 50%", "absolute  Does not use directional output", 0x0010},
    {kTrapezoidal, "Duty 50%", "absolute  forward off/reverse on", 0x0012},
    {kTrapezoidal, "Duty 50%", "absolute  forward on/reverse off", 0x0013},
    {kTrapezoidal, "Fixed pulse width (approx80us)", "Incremental  Does not use directional output", 0x0100},
    {kTrapezoidal, "Fixed pulse width (approx80us)", "Incremental  forward off/reverse on", 0x0102},
    {kTrapezoidal, "Fixed pulse width (approx80us)", "Incremental  forward on/reverse off", 0x0103},
    {kTrapezoidal, "Fixed pulse width (approx80us)", "absolute  Does not use directional output", 0x0110},
    {kTrapezoidal, "Fixed pulse width (approx80us)", "absolute  forward off/reverse on", 0x0112},
    {kTrapezoidal, "Fixed pulse width (approx80us)", "absolute  forward on/reverse off", 0x0113},
    {kHomeReturn, "Duty 50%", "Homing mode1  No directional output", 0x0020},
    {kHomeReturn, "Duty 50%", "Homing mode1  directional output off", 0x0022},
    {kHomeReturn, "Duty 50%", "Homing mode1  directional output on", 0x0023},
    {kHomeReturn, "Duty 50%", "Homing mode2  No directional output", 0x0024},
    {kHomeReturn, "Duty 50%", "Homing mode2  output off", 0x0026},
    {kHomeReturn, "Duty 50%", "Homing mode2  output on", 0x0027},
    {kHomeReturn, "Fixed pulse width (approx80us)", "Homing mode1  No directional output", 0x0120},
    {kHomeReturn, "Fixed pulse width (approx80us)", "Homing mode1  directional output off", 0x0122},
    {kHomeReturn, "Fixed pulse width (approx80us)", "Homing mode1  directional output on", 0x0123},
    {kHomeReturn, "Fixed pulse width (approx80us)", "Homing mode2  No directional output", 0x0124},
    {kHomeReturn, "Fixed pulse width (approx80us)", "Homing mode2  output off", 0x0126},
    {kHomeReturn, "Fixed pulse width (approx80us)", "Homing mode2  output on", 0x0127},
};

class CSpd1CodesTest : public CSpd1ResultsTest, public testing::WithParamInterface<SCode>
{
};

INSTANTIATE_TEST_SUITE_P(Codes, CSpd1CodesTest, testing::ValuesIn(kCodes), [](const auto& test) {
    return std::to_string(test.param.variant) + "_" + std::to_string(test.param.code);
});

TEST_P(CSpd1CodesTest, AreStoredWithTheRestOfTheTable)
{
    const SCode& code = GetParam();
    Confirm(code.variant, [&](CDialogRobot& dialog) {
        FillIn(dialog, {});
        dialog.SelectText(IDC_SPD1_WIDTH, code.width);
        dialog.SelectText(IDC_SPD1_MODE, code.mode);
    });

    SResults expected;
    expected.contacts = {{2, 1, 170}};
    expected.operands = {{9, 100}, {11, 0}};
    expected.data = {{9, 100, 0, 1, code.code}, {9, 101, 0, 0, 500}, {9, 102, 0, 0, 5000}, {9, 103, 0, 0, 300}};
    expected.comments = {"Control code", "Initial speed", "Maximum speed", "Acceleration/deceleration time"};
    if (code.variant == kTrapezoidal)
    {
        expected.data.push_back({9, 104, 1, 0, 100000});
        expected.data.push_back({9, 106, 0, 0, 0});
        expected.comments.push_back("Target value");
    }
    EXPECT_EQ(ReadResults(m_wizard), expected);
    EXPECT_EQ(m_wizard.IsOnlyDataTable(), 0);
}

// Confirmed, opened again and confirmed as it stands, a dialog stores the same.
TEST_P(CSpd1CodesTest, SurviveBeingConfirmedAgain)
{
    const SCode& code = GetParam();
    Confirm(code.variant, [&](CDialogRobot& dialog) {
        FillIn(dialog, {.device = kSpecialR, .contact = "901A", .start = "7", .target = "-8388608", .output = 1});
        dialog.SelectText(IDC_SPD1_WIDTH, code.width);
        dialog.SelectText(IDC_SPD1_MODE, code.mode);
    });
    const SResults first = ReadResults(m_wizard);
    EXPECT_EQ(first.operands, (std::vector<SOperandRow>{{9, 7}, {11, 1}}));

    Confirm(code.variant, [&](CDialogRobot& dialog) {
        EXPECT_EQ(dialog.Text(IDC_SPD1_WIDTH), CString(code.width));
        EXPECT_EQ(dialog.Text(IDC_SPD1_MODE), CString(code.mode));
    });
    EXPECT_EQ(ReadResults(m_wizard), first);
}

// ---- Fields ---------------------------------------------------------------------------------------------------------

TEST_F(CSpd1ResultsTest, HoldEveryFieldInItsPlace)
{
    const SSpd1Entries kEntries[] = {
        {},
        {.device = kX, .contact = "0", .start = "0", .initial = "40", .maximum = "40", .time = "30", .target = "0"},
        {.device = kY, .contact = "109f", .start = "32758", .initial = "5000", .maximum = "6000", .time = "32767"},
        {.device = kSpecialR, .contact = "9000", .target = "-1", .output = 1, .width = 1, .mode = 5},
        {.device = kT, .contact = "1007", .target = "8388607", .output = 1, .mode = 1},
        {.device = kC, .contact = "1008", .target = "-8388608", .width = 1, .mode = 2, .onlyDataTable = true},
        {.device = kL, .contact = "F", .output = 1, .mode = 3, .onlyDataTable = true},
        {.contact = " 1A ", .start = " 7", .initial = "0050", .maximum = "60 ", .time = "00030", .target = "-0"},
        {.initial = "5000", .maximum = "40"}, // no field is compared with another
        {.width = 1, .mode = 4},
    };
    for (ESpd1Variant variant : kVariants)
    {
        for (const SSpd1Entries& entries : kEntries)
        {
            const SSpd1Outcome outcome = Spd1Outcome(variant, entries, Limits(entries.device));
            ASSERT_EQ(outcome.message, 0u);
            EXPECT_EQ(ResultsOf(variant, entries), outcome.results) << "of " << variant;
            EXPECT_EQ(m_wizard.IsOnlyDataTable(), entries.onlyDataTable ? 1 : 0);
        }
    }
}

TEST_F(CSpd1ResultsTest, ReplaceTheListsAndLeaveTheInstructionsAlone)
{
    Remember(kTrapezoidal, {.contacts = {{2, 3, 1}, {17, -1, 0}, {3, 2, 5}},
                            .operands = {{9, 1}, {11, 1}, {11, 7}},
                            .data = std::vector<SDataRow>(40, {9, 1, 0, 0, 7}),
                            .comments = {"a", "b"},
                            .instructions = {{8, -1, 168, 0, 0}}});
    SResults expected = Spd1Outcome(kTrapezoidal, {}, Limits(kR)).results;
    expected.instructions = {{8, -1, 168, 0, 0}};
    EXPECT_EQ(ResultsOf(kTrapezoidal, {}), expected);
}

TEST_F(CSpd1ResultsTest, AreEmptiedWhenTheOtherVariantIsEntered)
{
    ResultsOf(kTrapezoidal, {});
    Leave(kHomeReturn, [this](CDialogRobot& dialog) {
        EXPECT_EQ(dialog.Text(IDC_SPD1_START), CString());
        const SResults results = ReadResults(m_wizard);
        EXPECT_TRUE(results.contacts.empty() && results.operands.empty() && results.data.empty());
        EXPECT_EQ(results.comments.size(), 5u);
    });
}

// ---- "Only a data table is created." --------------------------------------------------------------------------------

class CSpd1OnlyTableTest : public CSpd1Test, public testing::WithParamInterface<ESpd1Variant>
{
};

INSTANTIATE_TEST_SUITE_P(Variants, CSpd1OnlyTableTest, testing::ValuesIn(kVariants));

void ExpectOutputEnabled(CDialogRobot& dialog, bool enabled)
{
    EXPECT_EQ(dialog.Enabled(IDC_SPD1_OUTPUT), enabled);
    EXPECT_EQ(ControlBefore(dialog, IDC_SPD1_OUTPUT)->IsWindowEnabled() != FALSE, enabled);
    EXPECT_EQ(TextBefore(dialog, IDC_SPD1_OUTPUT), "Candidate for a pulse output");
    for (const SRobotControl& control : dialog.Controls())
    {
        const bool follows = control.id == IDC_SPD1_OUTPUT || control.text == "Candidate for a pulse output";
        EXPECT_EQ(control.enabled, enabled || !follows) << "control " << control.id;
    }
}

TEST_P(CSpd1OnlyTableTest, SwitchesTheOutputAndItsLabel)
{
    Leave(GetParam(), [](CDialogRobot& dialog) {
        ExpectOutputEnabled(dialog, true);
        dialog.Check(IDC_ONLY_DATA_TABLE);
        ExpectOutputEnabled(dialog, false);
        dialog.Check(IDC_ONLY_DATA_TABLE, false);
        ExpectOutputEnabled(dialog, true);
    });
}

TEST_P(CSpd1OnlyTableTest, StandsAsItWasConfirmed)
{
    for (bool only : {true, false})
    {
        Confirm(GetParam(), [&](CDialogRobot& dialog) { FillIn(dialog, {.onlyDataTable = only}); });
        EXPECT_EQ(m_wizard.IsOnlyDataTable(), only ? 1 : 0);
        Leave(GetParam(), [&](CDialogRobot& dialog) {
            EXPECT_EQ(dialog.Checked(IDC_ONLY_DATA_TABLE), only);
            ExpectOutputEnabled(dialog, !only);
            dialog.Check(IDC_ONLY_DATA_TABLE, !only); // Back forgets it
        });
        EXPECT_EQ(m_wizard.IsOnlyDataTable(), only ? 1 : 0);
    }
}

TEST_P(CSpd1OnlyTableTest, ShowsAnyFlagOfTheHostAsChecked)
{
    m_wizard.SetOnlyDataTable(-7);
    Leave(GetParam(), [](CDialogRobot& dialog) { EXPECT_TRUE(dialog.Checked(IDC_ONLY_DATA_TABLE)); });
    EXPECT_EQ(m_wizard.IsOnlyDataTable(), -7);
}

TEST_P(CSpd1OnlyTableTest, StoresTheDisabledOutputAndChecksTheContactAllTheSame)
{
    Confirm(GetParam(), [](CDialogRobot& dialog) {
        FillIn(dialog, {.contact = "256F", .output = 1, .onlyDataTable = true});
        ExpectRefusal(dialog, 20020, IDC_CONTACT_NUMBER);
        dialog.Type(IDC_CONTACT_NUMBER, "255F");
    });
    const SResults results = ReadResults(m_wizard);
    EXPECT_EQ(results.contacts, (std::vector<SContactRow>{{2, 1, 4095}}));
    EXPECT_EQ(results.operands, (std::vector<SOperandRow>{{9, 100}, {11, 1}}));
}

// ---- Comments -------------------------------------------------------------------------------------------------------

TEST_F(CSpd1ResultsTest, KeepTheOldCommentsWhenNoneAreWanted)
{
    m_wizard.AddCmtInfo("of the host");
    m_registerComments = false;
    for (ESpd1Variant variant : kVariants)
        EXPECT_EQ(ResultsOf(variant, {}).comments, std::vector<std::string>{"of the host"});
}

TEST_F(CSpd1ResultsTest, TakeTheCommentsFromTheLabels)
{
    Confirm(kTrapezoidal, [](CDialogRobot& dialog) {
        FillIn(dialog, {});
        ControlBefore(dialog, IDC_SPD1_INITIAL)->SetWindowText("Anfangsgeschwindigkeit");
        ControlBefore(dialog, IDC_SPD1_TIME)->SetWindowText("");
        ControlBefore(dialog, IDC_SPD1_TARGET)->SetWindowText("Zielwert");
    });
    EXPECT_EQ(ReadResults(m_wizard).comments,
              (std::vector<std::string>{"Control code", "Anfangsgeschwindigkeit", "Maximum speed", "", "Zielwert"}));
}

TEST_F(CSpd1ResultsTest, LeaveOutTheCommentOfAnEditWithoutLabel)
{
    Confirm(kTrapezoidal, [](CDialogRobot& dialog) {
        FillIn(dialog, {});
        ::SetWindowPos(*dialog.Dialog()->GetDlgItem(IDC_SPD1_MAXIMUM), HWND_TOP, 0, 0, 0, 0,
                       SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE); // nothing stands before it any more
    });
    EXPECT_EQ(
        ReadResults(m_wizard).comments,
        (std::vector<std::string>{"Control code", "Initial speed", "Acceleration/deceleration time", "Target value"}));
}

TEST_F(CSpd1ResultsTest, HaveTheCommentsOfTheLanguage)
{
    for (int language : {0, 1, 2, 3, 4, 5, 6, 9})
    {
        if (m_wizard.SetLanguageInfo(language) == nullptr)
        {
            EXPECT_NE(language, 0) << "the English library is always built";
            continue;
        }
        std::vector<std::string> expected;
        Confirm(kTrapezoidal, [&](CDialogRobot& dialog) {
            FillIn(dialog, {});
            CString code;
            code.LoadString(IDS_CONTROL_CODE);
            expected = {static_cast<LPCSTR>(code), TextBefore(dialog, IDC_SPD1_INITIAL),
                        TextBefore(dialog, IDC_SPD1_MAXIMUM), TextBefore(dialog, IDC_SPD1_TIME),
                        TextBefore(dialog, IDC_SPD1_TARGET)};
        });
        EXPECT_EQ(ReadResults(m_wizard).comments, expected) << "in language " << language;
        for (const std::string& comment : expected)
            EXPECT_FALSE(comment.empty());
    }
}

} // namespace
