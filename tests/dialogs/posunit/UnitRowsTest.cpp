// The rows of the positioning unit: where a table goes, the direction of JOG, and a start output without a condition.
#include "dialogs/posunit/UnitRows.h"

#include "tests/dialogs/base/ProbeDlg.h"

namespace
{

class CUnitRowsTest : public CProbeTest
{
protected:
    std::vector<SOperandRow> Operands(int words, int areaOffset, LPCSTR axis)
    {
        InProbe([&](CWzdExchange* wx) { WDX_UnitAxis(wx, IDC_PROBE_SLOT, IDC_PROBE_AXIS, words, areaOffset); },
                [&](CDialogRobot& robot) {
                    robot.Type(IDC_PROBE_SLOT, "5");
                    robot.Type(IDC_PROBE_AXIS, axis);
                    robot.Click(IDOK);
                });
        return ReadResults(m_wizard).operands;
    }
};

} // namespace

TEST_F(CUnitRowsTest, TablesGoToTheAreaOfTheirAxis)
{
    EXPECT_EQ(Operands(10, 0, "1"), (std::vector<SOperandRow>{{kK, 5}, {0, 0}, {kK, 10}, {kH, 0x100}}));
    EXPECT_EQ(Operands(8, 0, "4"), (std::vector<SOperandRow>{{kK, 5}, {0, 0}, {kK, 8}, {kH, 0x130}}));
    EXPECT_EQ(Operands(6, 4, "1"), (std::vector<SOperandRow>{{kK, 5}, {0, 0}, {kK, 6}, {kH, 0x104}}));
    EXPECT_EQ(Operands(6, 4, "3"), (std::vector<SOperandRow>{{kK, 5}, {0, 0}, {kK, 6}, {kH, 0x124}}));
    EXPECT_EQ(Operands(2, 0, "2"), (std::vector<SOperandRow>{{kK, 5}, {0, 0}, {kK, 2}, {kH, 0x110}}));
    InProbe([](CWzdExchange* wx) { WDX_UnitAxis(wx, IDC_PROBE_SLOT, IDC_PROBE_AXIS, 6, 4); },
            [](CDialogRobot& robot) { EXPECT_EQ(robot.Text(IDC_PROBE_AXIS), "2"); });
}

TEST_F(CUnitRowsTest, NoSlotsMeansNoEntry)
{
    m_wizard.SetMaxSlot(0);
    InProbe([](CWzdExchange* wx) { WDX_UnitAxis(wx, IDC_PROBE_SLOT, IDC_PROBE_AXIS, 6); },
            [&](CDialogRobot& robot) {
                CString label;
                m_probe.ControlAfter(IDC_PROBE_SLOT)->GetWindowText(label);
                EXPECT_EQ(label, "(0 - -1)");
                for (const char* slot : {"0", "-1", "1"})
                {
                    robot.Type(IDC_PROBE_SLOT, slot);
                    EXPECT_EQ(robot.ClickAndAnswer(IDOK), "The inputted slot number has become the outside of the "
                                                          "range.\nPlease input the right value.")
                        << slot;
                }
            });
}

TEST_F(CUnitRowsTest, JogDirectionIsRestoredAndCleared)
{
    const auto declare = [](CWzdExchange* wx) { WDX_JogDirection(wx); };
    InProbe(declare, [](CDialogRobot& robot) {
        EXPECT_EQ(robot.Items(2062), Texts({"Forward rotation", "Reverse rotation"}));
        EXPECT_EQ(robot.Selection(2062), 0);
    });
    for (const int number : {1, 2, Bit(20, 4)})
        m_wizard.AddContInfo(2, kY, number);
    InProbe(declare, [](CDialogRobot& robot) {
        EXPECT_EQ(robot.Selection(2062), 1);
        robot.Click(3099);
        EXPECT_EQ(robot.Selection(2062), 0);
    });
}

TEST_F(CUnitRowsTest, JogDirectionMayBeMissing)
{
    CProbeDlg probe(&m_wizard, IDD_GROUP);
    probe.m_fields = [](CWzdExchange* wx) { WDX_JogDirection(wx); };
    EXPECT_EQ(Open(probe, [](CDialogRobot& robot) { robot.Click(IDOK); }), 1);
}

// The second condition is "the same" as one that the dialog does not have: then it needs an entry of its own.
TEST_F(CUnitRowsTest, StartOutputWithoutAStartingConditionSaysSo)
{
    m_wizard.SetStartType(1);
    for (const UINT form : {IDD_GROUP, IDD_GROUP_EXTENDED})
    {
        CProbeDlg probe(&m_wizard, form);
        probe.m_fields = [](CWzdExchange* wx) { WDX_StartOutput(wx, 0); };
        Open(probe, [&](CDialogRobot& robot) {
            robot.Check(2054);
            robot.Check(2055);
            EXPECT_EQ(robot.ClickAndAnswer(IDOK), "Please input a numerical value correctly.");
            EXPECT_TRUE(robot.IsOpen());
            robot.Click(IDCANCEL);
        });
    }
}
