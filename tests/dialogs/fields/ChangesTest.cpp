// What a selection, a click and leaving an edit do to the other fields.
#include "dialogs/base/WzdField.h"
#include "dialogs/pulse/PulseRows.h"
#include "tests/dialogs/base/ProbeDlg.h"

namespace
{

constexpr SWzdChoice kFew[] = {{IDS_DUTY_HALF, 20}, {IDS_DUTY_QUARTER, 21}};
constexpr SWzdChoice kMany[] = {
    {IDS_FREQUENCY_FROM_1_5_HZ, 0}, {IDS_FREQUENCY_FROM_48_HZ, 1}, {IDS_FREQUENCY_FROM_191_HZ, 2}};
constexpr SWzdChoice kOutputs[] = {{IDS_OUTPUT_Y, 0, 0}, {IDS_OUTPUT_Y, 1, 1}};
constexpr UINT kRefillers[] = {IDC_PROBE_OUTPUT, IDC_PROBE_CHECK};

/// Writes down what it is told.
class CListener : public CWzdField
{
public:
    CListener(CWzdDlgBase& dialog, const SWzdRow& row, std::vector<UINT>& changes, int& refreshes)
        : CWzdField(dialog, row), m_changes(changes), m_refreshes(refreshes)
    {
    }

    void OnChanged(UINT id) override { m_changes.push_back(id); }
    bool FollowsEdit(UINT edit) const override { return edit == IDC_PROBE_NUMBER; }
    void Refresh() override { ++m_refreshes; }

private:
    std::vector<UINT>& m_changes;
    int& m_refreshes;
};

class CChangesTest : public CProbeTest
{
};

} // namespace

TEST_F(CChangesTest, AreToldToEveryField)
{
    std::vector<UINT> changes;
    int refreshes = 0;
    const auto declare = [&](CWzdExchange* wx) {
        WDX_Output(wx, IDC_PROBE_OUTPUT, kOutputs);
        WzdDeclare<CListener>(wx, {}, changes, refreshes);
    };
    InProbe(declare, [&](CDialogRobot& robot) {
        const auto expect = [&](const std::vector<UINT>& expected) {
            EXPECT_EQ(changes, expected);
            EXPECT_EQ(refreshes, static_cast<int>(expected.size()));
            changes.clear();
            refreshes = 0;
        };
        robot.Focus(IDC_PROBE_CHECK);
        changes.clear();
        refreshes = 0;
        robot.Select(IDC_PROBE_OUTPUT, 1);
        expect({IDC_PROBE_OUTPUT});
        robot.Focus(IDC_PROBE_NUMBER);
        robot.Focus(IDC_PROBE_OTHER);
        expect({IDC_PROBE_NUMBER});
        robot.Focus(IDC_PROBE_CHECK); // nobody follows the edit that it leaves
        expect({});
        robot.Click(IDC_PROBE_CHECK);
        expect({IDC_PROBE_CHECK});
        robot.Click(2061);
        expect({2061});
    });
}

TEST_F(CChangesTest, RefillTheListsThatDependOnThem)
{
    const auto declare = [](CWzdExchange* wx) {
        WDX_Output(wx, IDC_PROBE_OUTPUT, kOutputs);
        const bool many = wx->Dialog().Selection(IDC_PROBE_OUTPUT) == 1;
        WDX_ControlCode(wx, kOneRegister);
        WDX_Code(wx, {.combo = IDC_PROBE_COMBO,
                      .choices = many ? CWzdChoices(kMany) : CWzdChoices(kFew),
                      .bits = {0, 16},
                      .refilledBy = kRefillers});
    };
    const auto few = Texts({"Duty 1/2 (50%)", "Duty 1/4 (25%)"});
    const auto many = Texts({"1.5Hz to 9.8kHz", "48Hz to 100kHz", "191Hz to 100kHz"});
    InProbe(declare, [&](CDialogRobot& robot) {
        EXPECT_EQ(robot.Items(IDC_PROBE_COMBO), few);
        robot.Select(IDC_PROBE_COMBO, 1);
        robot.Select(IDC_PROBE_OUTPUT, 1);
        EXPECT_EQ(robot.Items(IDC_PROBE_COMBO), many);
        EXPECT_EQ(robot.Selection(IDC_PROBE_COMBO), 0);
        robot.Select(IDC_PROBE_COMBO, 2);
        robot.Click(IDC_PROBE_CHECK); // the same items again
        EXPECT_EQ(robot.Selection(IDC_PROBE_COMBO), 0);
        robot.Select(IDC_PROBE_COMBO, 2);
        robot.Click(2061); // not one that it depends on
        EXPECT_EQ(robot.Selection(IDC_PROBE_COMBO), 2);
        robot.Click(IDOK);
    });
    EXPECT_EQ(ReadResults(m_wizard).data.at(0).value, 2);

    m_wizard.SetOnlyDataTable(0);
    // Clearing the output clears the list that depends on it.
    InProbe(declare, [&](CDialogRobot& robot) {
        robot.Select(IDC_PROBE_OUTPUT, 1);
        robot.Select(IDC_PROBE_COMBO, 2);
        robot.Click(2099);
        EXPECT_EQ(robot.Selection(IDC_PROBE_OUTPUT), 0);
        EXPECT_EQ(robot.Items(IDC_PROBE_COMBO), few);
        EXPECT_EQ(robot.Selection(IDC_PROBE_COMBO), 0);
    });

    // When the dialog opens, the list is the one of the restored output.
    InProbe(declare, [&](CDialogRobot& robot) {
        EXPECT_EQ(robot.Items(IDC_PROBE_COMBO), many);
        EXPECT_EQ(robot.Selection(IDC_PROBE_COMBO), 2);
    });
}

TEST_F(CChangesTest, DoNothingWhileNothingCanBeEntered)
{
    m_wizard.ResetContents();
    SFunWizardTest::SetLibrary(m_wizard, AfxLoadLibrary(AfxGetModuleFolder(nullptr) + "TestDialogs.DLL"));
    std::vector<UINT> changes;
    int refreshes = 0;
    const auto declare = [&](CWzdExchange* wx) {
        WDX_TableStart(wx, {.edit = IDC_PROBE_START, .rangeLabel = IDC_PROBE_START_RANGE});
        WDX_Output(wx, IDC_PROBE_OUTPUT, kOutputs);
        WzdDeclare<CListener>(wx, {}, changes, refreshes);
    };
    InProbe(declare, [&](CDialogRobot& robot) {
        const int before = refreshes;
        CWnd* dialog = robot.Dialog();
        dialog->SendMessage(WM_COMMAND, MAKEWPARAM(IDC_PROBE_OUTPUT, CBN_SELCHANGE), 0);
        dialog->SendMessage(WM_COMMAND, MAKEWPARAM(2061, BN_CLICKED), 0);
        dialog->SendMessage(WM_COMMAND, MAKEWPARAM(IDC_PROBE_NUMBER, EN_KILLFOCUS), 0);
        dialog->SendMessage(WM_COMMAND, MAKEWPARAM(2099, BN_CLICKED), 0);
        EXPECT_EQ(changes, std::vector<UINT>());
        EXPECT_EQ(refreshes, before);
        EXPECT_FALSE(robot.Enabled(IDC_PROBE_OUTPUT));
        EXPECT_EQ(robot.FocusId(), 2u);
    });
}

TEST_F(CChangesTest, OfFieldsThatDoNotCountAreNotFollowed)
{
    std::vector<UINT> changes;
    int refreshes = 0;
    const auto declare = [&](CWzdExchange* wx) {
        const CWzdSection section(wx, wx->Dialog().IsChecked(IDC_PROBE_CHECK));
        WzdDeclare<CListener>(wx, {}, changes, refreshes);
    };
    InProbe(declare, [&](CDialogRobot& robot) {
        robot.Focus(IDC_PROBE_NUMBER);
        changes.clear();
        robot.Focus(IDC_PROBE_CHECK);
        EXPECT_EQ(changes, std::vector<UINT>());
        robot.Check(IDC_PROBE_CHECK);
        EXPECT_EQ(changes, (std::vector<UINT>{IDC_PROBE_CHECK}));
        robot.Focus(IDC_PROBE_NUMBER);
        robot.Focus(IDC_PROBE_CHECK);
        EXPECT_EQ(changes, (std::vector<UINT>{IDC_PROBE_CHECK, IDC_PROBE_NUMBER}));
    });
}
