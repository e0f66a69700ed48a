// The walks over all fields: clearing, checking in order, replacing the lists, and running out of memory meanwhile.
#include "dialogs/pulse/PulseRows.h"
#include "tests/dialogs/base/ProbeDlg.h"
#include "tests/support/AllocationFaults.h"

#include <optional>

namespace
{

constexpr SWzdChoice kOutputs[] = {{IDS_OUTPUT_Y, 0, 0}, {IDS_OUTPUT_Y, 1, 1}};
constexpr SWzdChoice kWidths[] = {{IDS_DUTY_50_PERCENT, 0}, {IDS_FIXED_PULSE_WIDTH, 1}};

void DeclareEverything(CWzdExchange* wx)
{
    WDX_Contact(wx);
    WDX_TableStart(wx, {.edit = IDC_PROBE_START, .rangeLabel = IDC_PROBE_START_RANGE});
    WDX_Output(wx, IDC_PROBE_OUTPUT, kOutputs);
    WDX_ControlCode(wx, kOneRegister);
    WDX_Code(wx, {.combo = IDC_PROBE_COMBO, .choices = kWidths, .bits = {8, 1}});
    WDX_Number(wx, {.edit = IDC_PROBE_NUMBER,
                    .entry = {1, kOneRegister},
                    .limit = 4,
                    .range = {40, 5000},
                    .message = IDS_ERR_INITIAL_SPEED});
    WDX_Number(wx, {.edit = IDC_PROBE_OTHER,
                    .entry = {2, kTwoRegisters},
                    .limit = 8,
                    .range = {-10, 10},
                    .message = IDS_ERR_TARGET_VALUE});
    WDX_Constant(wx, {4, kOneRegister}, 0);
}

/// What Fill enters.
const SResults& FilledResults()
{
    static const SResults results = {
        {{2, kR, Bit(1, 2)}},
        {{kDT, 100}, {kK, 1}},
        {{kDT, 100, 0, 1, 0x100}, {kDT, 101, 0, 0, 500}, {kDT, 102, 1, 0, -10}, {kDT, 104, 0, 0, 0}},
        {"Control code", "First number", "Second number"},
        {},
    };
    return results;
}

const SResults& ResultsBefore()
{
    static const SResults results = {
        {{2, kX, 5}, {2, kX, 6}}, {{kDT, 7}, {kK, 0}, {kK, 3}}, {{kDT, 7, 0, 1, 0}}, {"before"}, {{8, -1, 1, 0, 0}}};
    return results;
}

class CExchangeTest : public CProbeTest
{
protected:
    void SetUp() override
    {
        CProbeTest::SetUp();
        m_wizard.SetCmtRec(1);
        WriteResults(m_wizard, ResultsBefore());
    }

    static void Fill(CDialogRobot& robot)
    {
        robot.SelectText(2051, "R");
        robot.Type(2052, "12");
        robot.Type(IDC_PROBE_START, "100");
        robot.Select(IDC_PROBE_OUTPUT, 1);
        robot.Select(IDC_PROBE_COMBO, 1);
        robot.Type(IDC_PROBE_NUMBER, "500");
        robot.Type(IDC_PROBE_OTHER, "-10");
    }

    /// The results of Fill beside what OK leaves alone.
    static SResults Expected()
    {
        SResults expected = FilledResults();
        expected.instructions = ResultsBefore().instructions;
        return expected;
    }
};

} // namespace

TEST_F(CExchangeTest, ReplacesTheListsOnOk)
{
    EXPECT_EQ(InProbe(DeclareEverything,
                      [](CDialogRobot& robot) {
                          Fill(robot);
                          robot.Click(IDOK);
                      }),
              1);
    EXPECT_EQ(ReadResults(m_wizard), Expected());
}

TEST_F(CExchangeTest, LeavesTheListsAloneOnBack)
{
    EXPECT_EQ(InProbe(DeclareEverything, Fill), 2);
    EXPECT_EQ(ReadResults(m_wizard), ResultsBefore());
}

TEST_F(CExchangeTest, RestoresWhatItStored)
{
    InProbe(DeclareEverything, [](CDialogRobot& robot) {
        Fill(robot);
        robot.Click(IDOK);
    });
    EXPECT_EQ(InProbe(DeclareEverything, [](CDialogRobot& robot) { robot.Click(IDOK); }), 1);
    EXPECT_EQ(ReadResults(m_wizard), Expected());
}

TEST_F(CExchangeTest, ChecksInTheDeclaredOrderAndChangesNothingBeforeTheEnd)
{
    struct
    {
        UINT edit;
        const char* valid;
        const char* message;
    } const fields[] = {
        {2052, "12", "The inputted starting condition contact number has become the outside of the range. \n"},
        {IDC_PROBE_START, "100", "The inputted data table starting address has become the outside of the range.\n"},
        {IDC_PROBE_NUMBER, "500", "The inputted initial speed value has become the outside of the range.\n"},
        {IDC_PROBE_OTHER, "-10", "The inputted target value has become the outside of the range.\n"},
    };
    InProbe(DeclareEverything, [&](CDialogRobot& robot) {
        Fill(robot);
        for (const auto& field : fields)
            robot.SetText(field.edit, "99999"); // outside of every range
        for (const auto& field : fields)
        {
            robot.Focus(2061);
            EXPECT_EQ(robot.ClickAndAnswer(IDOK), CString(field.message) + "Please input the right value.");
            EXPECT_TRUE(robot.IsOpen());
            EXPECT_EQ(robot.FocusId(), field.edit);
            EXPECT_EQ(robot.SelectedRange(field.edit), std::make_pair(0, 5));
            EXPECT_EQ(ReadResults(m_wizard), ResultsBefore());

            robot.SetText(field.edit, "?");
            EXPECT_EQ(robot.ClickAndAnswer(IDOK), "Please input a numerical value correctly.");
            EXPECT_EQ(robot.FocusId(), field.edit);
            robot.SetText(field.edit, field.valid);
        }
        for (const SRobotMessageBox& box : robot.MessageBoxes())
            EXPECT_EQ(box.caption, "Test program");
        robot.Click(IDOK);
    });
    EXPECT_EQ(ReadResults(m_wizard), Expected());
}

TEST_F(CExchangeTest, ClearsTheFieldsAndNothingElse)
{
    for (const UINT button : {2099u, 3099u})
    {
        InProbe(DeclareEverything, [&](CDialogRobot& robot) {
            Fill(robot);
            robot.Check(2061);
            robot.Click(button);

            EXPECT_EQ(robot.Text(2051), "X");
            EXPECT_EQ(robot.Text(2053), "(0 - 109F)");
            EXPECT_EQ(robot.Selection(IDC_PROBE_OUTPUT), 0);
            EXPECT_EQ(robot.Selection(IDC_PROBE_COMBO), 0);
            for (const UINT edit : {2052, IDC_PROBE_START, IDC_PROBE_NUMBER, IDC_PROBE_OTHER})
                EXPECT_EQ(robot.Text(edit), "") << edit;
            EXPECT_TRUE(robot.Checked(2061)) << "the check box keeps its state";
            EXPECT_FALSE(robot.Enabled(IDC_PROBE_OUTPUT));
            EXPECT_EQ(robot.FocusId(), 2061u);
            EXPECT_EQ(ReadResults(m_wizard), ResultsBefore());
        });
    }
}

TEST_F(CExchangeTest, ClearingGoesToTheContactWithoutTheCheckBox)
{
    InProbe(DeclareEverything, [](CDialogRobot& robot) {
        robot.Dialog()->GetDlgItem(2061)->DestroyWindow();
        robot.Focus(IDC_PROBE_NUMBER);
        robot.Click(3099);
        EXPECT_EQ(robot.FocusId(), 2051u);
    });
}

// ---- Memory ---------------------------------------------------------------------------------------------------------

TEST_F(CExchangeTest, SaysWhenMemoryDoesNotSufficeAndStaysOpen)
{
    m_probe.m_fields = DeclareEverything;
    int failing = 0;
    Open(m_probe, [&](CDialogRobot& robot) {
        Fill(robot);
        for (;; ++failing)
        {
            WriteResults(m_wizard, ResultsBefore());
            int failures = 0;
            const CString message = robot.Answering(IDOK, [&] {
                const CAllocationFaults faults(failing);
                robot.Click(IDOK);
                failures = faults.Failures();
            });
            if (failures == 0)
                break;
            ASSERT_TRUE(robot.IsOpen()) << failing;
            EXPECT_EQ(message, "Since a memory was insufficient, the inputted contents were not able to be decided.")
                << failing;
            EXPECT_EQ(robot.MessageBoxes().back().caption, "Test program");
            // What was not reached yet is as it was.
            EXPECT_EQ(ReadResults(m_wizard).instructions, ResultsBefore().instructions);
        }
    });
    EXPECT_GT(failing, 10);
    EXPECT_EQ(ReadResults(m_wizard), Expected());
}

TEST_F(CExchangeTest, CancelsWhenMemoryDoesNotSufficeToOpen)
{
    m_probe.m_fields = DeclareEverything;
    int failing = 0;
    for (int failures = 1; failures > 0; ++failing)
    {
        std::optional<CAllocationFaults> faults;
        bool opened = false;
        const int result = m_robot.Play(
            [&] {
                faults.emplace(failing);
                const int closed = static_cast<int>(m_probe.DoModal());
                faults->Pause();
                return closed;
            },
            {[&](CDialogRobot& robot) {
                faults->Pause();
                opened = true;
                robot.Click(IDCANCEL);
            }});
        failures = faults->Failures();
        EXPECT_TRUE(result == 2 || result == -1) << failing;
        EXPECT_EQ(ReadResults(m_wizard), ResultsBefore()) << failing;
        if (!opened && failures > 0)
            m_robot.ClearFailures(); // that its scene was not played
    }
    EXPECT_GT(failing, 10);
}
