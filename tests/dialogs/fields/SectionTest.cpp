// Rows that count only at times, and the controls that come and go with them.
#include "dialogs/pulse/PulseRows.h"
#include "tests/dialogs/base/ProbeDlg.h"

namespace
{

constexpr SWzdChoice kModes[] = {{IDS_DUTY_50_PERCENT, 0}, {IDS_FIXED_PULSE_WIDTH, 1}};

/// A probe whose table is as long as its rows say.
class CTableProbe : public CProbeDlg
{
public:
    using CProbeDlg::CProbeDlg;

    LONGLONG TableWords() override { return CWzdDlgBase::TableWords(); }
};

class CSectionTest : public CProbeTest
{
protected:
    /// A number that counts only in the second mode.
    template <typename TLook>
    int InTarget(TLook look)
    {
        CTableProbe probe(&m_wizard);
        probe.m_fields = [](CWzdExchange* wx) {
            CWzdDlgBase& dialog = wx->Dialog();
            WDX_TableStart(wx, {.edit = IDC_PROBE_START, .rangeLabel = IDC_PROBE_START_RANGE});
            WDX_ControlCode(wx, kTwoRegisters);
            WDX_Code(wx, {.combo = IDC_PROBE_COMBO, .choices = kModes, .bits = {16, 4}});
            WDX_Number(wx, {.edit = IDC_PROBE_NUMBER,
                            .entry = {2, kTwoRegisters},
                            .limit = 4,
                            .range = {1, 9},
                            .message = IDS_ERR_FREQUENCY});
            const bool stops = dialog.Selection(IDC_PROBE_COMBO) == 1;
            const CWzdSection target(wx, stops, dialog.ControlBefore(IDC_PROBE_OTHER), IDC_PROBE_OTHER);
            WDX_Number(wx, {.edit = IDC_PROBE_OTHER,
                            .entry = {4, kTwoRegisters},
                            .limit = 7,
                            .range = {-5, 5},
                            .message = IDS_ERR_TARGET_VALUE});
        };
        return Open(probe, [&](CDialogRobot& robot) {
            look(robot, probe);
            if (robot.IsOpen())
                robot.Click(IDCANCEL);
        });
    }

    static void ExpectShown(CDialogRobot& robot, CWzdDlgBase& probe, bool shown)
    {
        EXPECT_EQ(robot.Visible(IDC_PROBE_OTHER), shown);
        EXPECT_EQ(robot.Enabled(IDC_PROBE_OTHER), shown);
        const CWnd* label = probe.ControlBefore(IDC_PROBE_OTHER);
        EXPECT_EQ((label->GetStyle() & WS_VISIBLE) != 0, shown);
        EXPECT_EQ(label->IsWindowEnabled() != FALSE, shown);
        EXPECT_TRUE(robot.Visible(IDC_PROBE_NUMBER)) << "what is before the section stays";
        EXPECT_TRUE(robot.Visible(IDC_PROBE_SLOT)) << "what follows it, too";
    }
};

} // namespace

TEST_F(CSectionTest, ShowsItsControlsWhileItCounts)
{
    InTarget([](CDialogRobot& robot, CWzdDlgBase& probe) {
        ExpectShown(robot, probe, false);
        robot.Select(IDC_PROBE_COMBO, 1);
        ExpectShown(robot, probe, true);
        robot.Select(IDC_PROBE_COMBO, 0);
        ExpectShown(robot, probe, false);
    });
}

TEST_F(CSectionTest, TakesRegistersWhileItCounts)
{
    SetDeviceRange(m_wizard, kDT, 0, 1003);
    InTarget([](CDialogRobot& robot, CWzdDlgBase&) {
        EXPECT_EQ(robot.Text(IDC_PROBE_START_RANGE), "(0 - 1000)");
        EXPECT_EQ(robot.Limit(IDC_PROBE_START), 4);
        robot.Select(IDC_PROBE_COMBO, 1);
        EXPECT_EQ(robot.Text(IDC_PROBE_START_RANGE), "(0 - 998)");
        EXPECT_EQ(robot.Limit(IDC_PROBE_START), 3);
        robot.Select(IDC_PROBE_COMBO, 0);
        EXPECT_EQ(robot.Limit(IDC_PROBE_START), 4);
    });
}

TEST_F(CSectionTest, OpensWithTheLimitOfTheRestoredMode)
{
    SetDeviceRange(m_wizard, kDT, 0, 1003);
    m_wizard.AddDataInfo(kDT, 0, 1, 1, 0x10000);
    InTarget([](CDialogRobot& robot, CWzdDlgBase& probe) {
        ExpectShown(robot, probe, true);
        EXPECT_EQ(robot.Limit(IDC_PROBE_START), 3);
        EXPECT_EQ(robot.Limit(IDC_PROBE_OTHER), 7);
    });
}

TEST_F(CSectionTest, IsCheckedAndStoredWhileItCounts)
{
    struct
    {
        int mode;
        const char* target;
        bool accepted;
        std::vector<SDataRow> data;
    } const rows[] = {
        {0, "", true, {{kDT, 100, 1, 1, 0}, {kDT, 102, 1, 0, 7}}},
        {0, "nonsense", true, {{kDT, 100, 1, 1, 0}, {kDT, 102, 1, 0, 7}}},
        {1, "", false, {}},
        {1, "6", false, {}},
        {1, "-5", true, {{kDT, 100, 1, 1, 0x10000}, {kDT, 102, 1, 0, 7}, {kDT, 104, 1, 0, -5}}},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(testing::Message() << row.mode << " " << row.target);
        m_wizard.RemoveAllDataInfo();
        InTarget([&](CDialogRobot& robot, CWzdDlgBase& probe) {
            robot.Type(IDC_PROBE_START, "100");
            robot.Type(IDC_PROBE_NUMBER, "7");
            robot.Select(IDC_PROBE_COMBO, row.mode);
            probe.SetItemText(IDC_PROBE_OTHER, row.target);
            const CString message = robot.ClickAndAnswer(IDOK);
            EXPECT_EQ(message.IsEmpty(), row.accepted) << message;
            if (!row.accepted)
            {
                EXPECT_EQ(robot.FocusId(), static_cast<UINT>(IDC_PROBE_OTHER));
            }
        });
        EXPECT_EQ(ReadResults(m_wizard).data, row.data);
    }
}

TEST_F(CSectionTest, IsRestoredWhileItCounts)
{
    for (const int mode : {0, 1})
    {
        m_wizard.RemoveAllDataInfo();
        for (const int value : {mode << 16, 7, 3})
            m_wizard.AddDataInfo(kDT, 0, 1, 0, value);
        InTarget([&](CDialogRobot& robot, CWzdDlgBase&) {
            EXPECT_EQ(robot.Text(IDC_PROBE_NUMBER), "7");
            EXPECT_EQ(robot.Text(IDC_PROBE_OTHER), mode == 1 ? "3" : "");
        });
    }
}

TEST_F(CSectionTest, IsClearedEvenWhenItDoesNotCount)
{
    InTarget([](CDialogRobot& robot, CWzdDlgBase& probe) {
        probe.SetItemText(IDC_PROBE_OTHER, "4");
        robot.Click(2099);
        robot.Select(IDC_PROBE_COMBO, 1);
        EXPECT_EQ(robot.Text(IDC_PROBE_OTHER), "");
    });
}

TEST_F(CSectionTest, DoesNotCountInsideOneThatDoesNot)
{
    m_probe.m_fields = [](CWzdExchange* wx) {
        EXPECT_TRUE(wx->IsActive());
        {
            const CWzdSection outer(wx, false);
            {
                const CWzdSection inner(wx, true);
                EXPECT_FALSE(wx->IsActive());
            }
            EXPECT_FALSE(wx->IsActive());
        }
        EXPECT_TRUE(wx->IsActive());
    };
    InProbe(m_probe.m_fields, [](CDialogRobot&) {});
}

TEST_F(CSectionTest, IsFilledAndRefreshedEvenWhenItDoesNotCount)
{
    CTableProbe probe(&m_wizard);
    probe.m_fields = [](CWzdExchange* wx) {
        WDX_TableStart(wx, {.edit = IDC_PROBE_START, .rangeLabel = IDC_PROBE_START_RANGE});
        const CWzdSection section(wx, false);
        WDX_ControlCode(wx, kOneRegister);
        WDX_Code(wx, {.combo = IDC_PROBE_COMBO, .choices = kModes, .bits = {0, 4}});
        WDX_Register(wx, IDC_PROBE_FIRST_LABEL, {20});
        WDX_Number(wx, {.edit = IDC_PROBE_NUMBER, .entry = {30}, .limit = 3, .range = {0, 9}});
    };
    Open(probe, [](CDialogRobot& robot) {
        EXPECT_EQ(robot.Items(IDC_PROBE_COMBO), Texts({"Duty 50%", "Fixed pulse width (approx80us)"}));
        EXPECT_EQ(robot.Limit(IDC_PROBE_NUMBER), 3);
        EXPECT_EQ(robot.Text(IDC_PROBE_START_RANGE), "(0 - 32764)") << "no registers";
        robot.Type(IDC_PROBE_START, "100");
        robot.Click(IDC_PROBE_CHECK);
        EXPECT_EQ(robot.Text(IDC_PROBE_FIRST_LABEL), " DT 120");
        robot.Click(IDCANCEL);
    });
}

TEST_F(CSectionTest, StaysHiddenInsideOneThatDoesNotCount)
{
    CTableProbe probe(&m_wizard);
    probe.m_fields = [](CWzdExchange* wx) {
        const CWzdSection outer(wx, wx->Dialog().IsChecked(IDC_PROBE_CHECK));
        const CWzdSection inner(wx, true, wx->Dialog().GetDlgItem(IDC_PROBE_OTHER), IDC_PROBE_OTHER);
    };
    Open(probe, [](CDialogRobot& robot) {
        EXPECT_FALSE(robot.Visible(IDC_PROBE_OTHER));
        robot.Click(IDC_PROBE_CHECK);
        EXPECT_TRUE(robot.Visible(IDC_PROBE_OTHER));
        robot.Click(IDCANCEL);
    });
}

TEST_F(CSectionTest, LeavesTheDialogAloneWithoutItsLastControl)
{
    CTableProbe probe(&m_wizard);
    probe.m_fields = [](CWzdExchange* wx) {
        const CWzdSection section(wx, false, wx->Dialog().GetDlgItem(IDC_PROBE_OTHER), IDC_PROBE_NOTHING);
    };
    Open(probe, [](CDialogRobot& robot) {
        EXPECT_TRUE(robot.Visible(IDC_PROBE_OTHER));
        robot.Click(IDCANCEL);
    });
}
