// Labels that follow what is entered and selected.
#include "dialogs/pulse/PulseRows.h"
#include "tests/dialogs/base/ProbeDlg.h"

namespace
{

constexpr SWzdChoice kOutputs[] = {{IDS_OUTPUT_Y, 0, 0}, {IDS_OUTPUT_Y, 1, 1}};

class CLabelFieldsTest : public CProbeTest
{
};

} // namespace

TEST_F(CLabelFieldsTest, ShowTheTextOfTheMoment)
{
    const auto declare = [](CWzdExchange* wx) {
        WDX_Output(wx, IDC_PROBE_OUTPUT, kOutputs);
        WDX_Label(wx, IDC_PROBE_FIRST_LABEL,
                  wx->Dialog().Selection(IDC_PROBE_OUTPUT) == 1 ? IDS_DUTY_HALF : IDS_CONTROL_CODE);
    };
    InProbe(declare, [](CDialogRobot& robot) {
        EXPECT_EQ(robot.Text(IDC_PROBE_FIRST_LABEL), "Control code");
        robot.Select(IDC_PROBE_OUTPUT, 1);
        EXPECT_EQ(robot.Text(IDC_PROBE_FIRST_LABEL), "Duty 1/2 (50%)");
    });
}

TEST_F(CLabelFieldsTest, FillTheGapsOfTheirText)
{
    InProbe([](CWzdExchange* wx) { WDX_Label(wx, IDC_PROBE_FIRST_LABEL, IDS_CHANNEL, {12}); },
            [](CDialogRobot& robot) { EXPECT_EQ(robot.Text(IDC_PROBE_FIRST_LABEL), "ch12"); });
}

TEST_F(CLabelFieldsTest, CanBeCommentsByThemselves)
{
    m_wizard.SetCmtRec(1);
    InProbe(
        [](CWzdExchange* wx) {
            WDX_Comment(wx, {.combo = IDC_PROBE_OUTPUT});
            WDX_Comment(wx, {.edit = IDC_PROBE_NUMBER});
            WDX_Comment(wx, {.comment = {.label = IDC_PROBE_SECOND_LABEL}});
        },
        [](CDialogRobot& robot) { robot.Click(IDOK); });
    EXPECT_EQ(ReadResults(m_wizard).comments, (std::vector<std::string>{"Output", "First number", "at first"}));
}

TEST_F(CLabelFieldsTest, NameRegistersOnceTheStartIsEntered)
{
    SetDeviceRange(m_wizard, kDT, 10, 100);
    m_probe.m_tableWords = 6;
    const auto declare = [](CWzdExchange* wx) {
        WDX_TableStart(wx, {.edit = IDC_PROBE_START, .format = kUnsigned, .rangeLabel = IDC_PROBE_START_RANGE});
        WDX_Register(wx, IDC_PROBE_FIRST_LABEL, {2, kTwoRegisters}, true);
        WDX_Register(wx, IDC_PROBE_SECOND_LABEL, {4, kOneRegister});
        WDX_RegisterSpan(wx, IDC_PROBE_OPTIONAL_RANGE, {5, kOneRegister, 3});
    };
    struct
    {
        const char* start;
        const char* inRange;
        const char* anywhere;
        const char* span;
    } const rows[] = {
        {"", "", "", ""},
        {"x", "", "", ""},
        {"-1", "", "", ""},
        {"10", " DT 12", " DT 14", " DT 15 - DT 17"},
        {"95", " DT 97", " DT 99", " DT 100 - DT 102"},
        {"96", "", " DT 100", " DT 101 - DT 103"},
        {"9", "", " DT 13", " DT 14 - DT 16"},
    };
    InProbe(declare, [&](CDialogRobot& robot) {
        for (const auto& row : rows)
        {
            SCOPED_TRACE(row.start);
            robot.SetText(IDC_PROBE_START, row.start);
            robot.Focus(IDC_PROBE_START);
            robot.Focus(IDC_PROBE_NUMBER); // leaving the edit shows it
            EXPECT_EQ(robot.Text(IDC_PROBE_FIRST_LABEL), row.inRange);
            EXPECT_EQ(robot.Text(IDC_PROBE_SECOND_LABEL), row.anywhere);
            EXPECT_EQ(robot.Text(IDC_PROBE_OPTIONAL_RANGE), row.span);
        }
    });
}

TEST_F(CLabelFieldsTest, CountTheirRegistersInTheTable)
{
    CFunWizard& wizard = m_wizard;
    class CPlainProbe : public CProbeDlg
    {
    public:
        using CProbeDlg::CProbeDlg;
        LONGLONG TableWords() override { return CWzdDlgBase::TableWords(); }
    } probe(&wizard);
    const auto start = [](CWzdExchange* wx) { WDX_TableStart(wx, {.edit = IDC_PROBE_START}); };
    probe.m_fields = [&](CWzdExchange* wx) {
        start(wx);
        WDX_RegisterSpan(wx, IDC_PROBE_OPTIONAL_RANGE, {10, kOneRegister, 21});
    };
    EXPECT_EQ(probe.TableWords(), 31);
    probe.m_fields = [&](CWzdExchange* wx) {
        start(wx);
        WDX_Register(wx, IDC_PROBE_FIRST_LABEL, {20, kTwoRegisters});
    };
    EXPECT_EQ(probe.TableWords(), 22);
    probe.m_fields = nullptr;
    EXPECT_EQ(probe.TableWords(), 1);
}
