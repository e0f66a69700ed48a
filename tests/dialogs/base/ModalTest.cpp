// How the dialog base runs: results, the source of texts, the font, and the ways in which opening can fail.
#include "dialogs/pulse/PulseRows.h"
#include "tests/dialogs/base/ProbeDlg.h"

#include <string>

namespace
{

constexpr UINT kNoSuchTemplate = 30999;
constexpr UINT kNoSuchText = 30999;

class CModalTest : public CProbeTest
{
};

void DeclareContact(CWzdExchange* wx) { WDX_Contact(wx); }
void DeclareStart(CWzdExchange* wx)
{
    WDX_TableStart(wx, {.edit = IDC_PROBE_START, .rangeLabel = IDC_PROBE_START_RANGE});
}

std::vector<UINT> EnabledIds(const CDialogRobot& robot)
{
    std::vector<UINT> ids;
    for (const SRobotControl& control : robot.Controls())
        if (control.enabled)
            ids.push_back(control.id);
    return ids;
}

} // namespace

TEST_F(CModalTest, ReturnsWhatItsButtonsSay)
{
    EXPECT_EQ(Open(m_probe, [](CDialogRobot& robot) { robot.Click(IDOK); }), 1);
    EXPECT_EQ(Open(m_probe, [](CDialogRobot& robot) { robot.Click(IDCANCEL); }), 2);
    EXPECT_EQ(Open(m_probe, [](CDialogRobot& robot) { robot.PressKey(VK_RETURN); }), 1);
    EXPECT_EQ(Open(m_probe, [](CDialogRobot& robot) { robot.PressKey(VK_ESCAPE); }), 2);
}

TEST_F(CModalTest, FailsWithoutItsTemplate)
{
    const HINSTANCE before = AfxGetResourceHandle();
    CProbeDlg missing(&m_wizard, kNoSuchTemplate);
    EXPECT_EQ(Play([&] { return static_cast<int>(missing.DoModal()); }, {}), -1);
    EXPECT_EQ(AfxGetResourceHandle(), before);

    // The module has the same texts, but not the templates of the test library.
    CFunWizard english;
    CProbeDlg foreign(&english, IDD_PROBE);
    EXPECT_EQ(Play([&] { return static_cast<int>(foreign.DoModal()); }, {}), -1);
}

TEST_F(CModalTest, CancelsWithoutAWizard)
{
    CProbeDlg orphan(nullptr, IDD_SPD1_TRAPEZOIDAL);
    EXPECT_EQ(Play([&] { return static_cast<int>(orphan.DoModal()); }, {}), 2);
}

TEST_F(CModalTest, MakesTheLanguageLibraryTheSourceOfTextsMeanwhile)
{
    const HINSTANCE before = AfxGetResourceHandle();
    ASSERT_NE(before, m_wizard.GetLoadInstance());
    InProbe([&](CDialogRobot&) { EXPECT_EQ(AfxGetResourceHandle(), m_wizard.GetLoadInstance()); });
    EXPECT_EQ(AfxGetResourceHandle(), before);

    // Whatever the source was before.
    AfxSetResourceHandle(m_wizard.GetLoadInstance());
    CFunWizard english;
    CProbeDlg spd1(&english, IDD_SPD1_HOME);
    Open(spd1, [&](CDialogRobot& robot) {
        EXPECT_EQ(AfxGetResourceHandle(), AfxGetInstanceHandle());
        robot.Click(IDCANCEL);
    });
    EXPECT_EQ(AfxGetResourceHandle(), m_wizard.GetLoadInstance());
    AfxSetResourceHandle(before);
}

TEST_F(CModalTest, GivesEveryControlTheFontOfTheWizard)
{
    m_wizard.CreateDlgFont(nullptr);
    const HFONT font = *SFunWizardTest::DialogFont(m_wizard);
    InProbe([&](CDialogRobot& robot) {
        int controls = 0;
        for (CWnd* control = robot.Dialog()->GetWindow(GW_CHILD); control; control = control->GetWindow(GW_HWNDNEXT))
        {
            EXPECT_EQ(reinterpret_cast<HFONT>(control->SendMessage(WM_GETFONT)), font) << control->GetDlgCtrlID();
            ++controls;
        }
        EXPECT_GT(controls, 40);
    });
}

TEST_F(CModalTest, DisablesItsParentMeanwhile)
{
    CWnd parent;
    ASSERT_TRUE(parent.CreateEx(0, nullptr, "Parent", WS_POPUP | WS_VISIBLE, 0, 0, 200, 100, nullptr, nullptr));
    CProbeDlg probe(&m_wizard, IDD_PROBE, &parent);
    Open(probe, [&](CDialogRobot& robot) {
        EXPECT_FALSE(parent.IsWindowEnabled());
        robot.Click(IDCANCEL);
    });
    EXPECT_TRUE(parent.IsWindowEnabled());
    parent.DestroyWindow();
}

TEST_F(CModalTest, CanBeOpenedAgain)
{
    for (int opening = 0; opening < 3; ++opening)
        EXPECT_EQ(InProbe(DeclareContact, [](CDialogRobot& robot) { EXPECT_EQ(robot.Items(2051).size(), 7u); }), 2);
}

// ---- Opening that fails ---------------------------------------------------------------------------------------------

TEST_F(CModalTest, CancelsWhenAnItemHasNoText)
{
    m_probe.m_fields = [](CWzdExchange* wx) {
        static constexpr SWzdChoice kItems[] = {{IDS_DUTY_50_PERCENT, 0}, {kNoSuchText, 1}};
        WDX_Output(wx, IDC_PROBE_OUTPUT, kItems);
    };
    EXPECT_EQ(Play([&] { return static_cast<int>(m_probe.DoModal()); }, {}), 2);
}

TEST_F(CModalTest, CancelsWhenAComboIsMissing)
{
    m_probe.m_fields = [](CWzdExchange* wx) {
        static constexpr SWzdChoice kItems[] = {{IDS_DUTY_50_PERCENT, 0}};
        WDX_Output(wx, IDC_PROBE_NOTHING, kItems);
    };
    EXPECT_EQ(Play([&] { return static_cast<int>(m_probe.DoModal()); }, {}), 2);
}

TEST_F(CModalTest, OpensNoFieldAfterTheOneThatFailed)
{
    m_probe.m_fields = [](CWzdExchange* wx) {
        static constexpr SWzdChoice kItems[] = {{kNoSuchText, 0}};
        WDX_Contact(wx);
        WDX_Output(wx, IDC_PROBE_OUTPUT, kItems);
        EXPECT_FALSE(wx->Succeeded());
        WDX_Number(wx, {.edit = IDC_PROBE_NUMBER,
                        .entry = {1, kOneRegister},
                        .limit = 3,
                        .range = {0, 9},
                        .message = IDS_ERR_FREQUENCY});
        EXPECT_EQ(wx->Dialog().ItemText(IDC_PROBE_NUMBER), "");
        EXPECT_EQ(wx->Dialog().SendDlgItemMessage(IDC_CONTACT_DEVICE, CB_GETCOUNT), 7);
    };
    m_wizard.AddDataInfo(kDT, 0, 0, 0, 5);
    m_wizard.AddDataInfo(kDT, 0, 0, 0, 5);
    EXPECT_EQ(Play([&] { return static_cast<int>(m_probe.DoModal()); }, {}), 2);
}

// ---- No room for the data table -------------------------------------------------------------------------------------

TEST_F(CModalTest, LeavesOnlyBackWithoutRegisters)
{
    CProbeDlg probe(&m_wizard, IDD_MIXED_IDS);
    probe.m_fields = DeclareStart;
    const std::vector<UINT> everything = {0, 30401, 30402, static_cast<WORD>(IDC_STATIC), 0, 30403, 1, 2, 2099};
    Open(probe, [&](CDialogRobot& robot) {
        EXPECT_EQ(EnabledIds(robot), everything);
        robot.Click(IDCANCEL);
    });

    m_wizard.ResetContents();
    const HINSTANCE library = AfxLoadLibrary(AfxGetModuleFolder(nullptr) + "TestDialogs.DLL");
    SFunWizardTest::SetLibrary(m_wizard, library);
    const int result = Open(probe, [&](CDialogRobot& robot) {
        // The first control that has an id, Back, and what has no id at all.
        EXPECT_EQ(EnabledIds(robot), (std::vector<UINT>{0, 30401, 0, 2}));
        EXPECT_EQ(robot.FocusId(), 2u);
        robot.PressKey(VK_RETURN);
    });
    EXPECT_EQ(result, 2);
}

TEST_F(CModalTest, LeavesOnlyBackWhenTheTableDoesNotFit)
{
    SetDeviceRange(m_wizard, kDT, 10, 15);
    m_probe.m_tableWords = 7;
    InProbe(DeclareStart, [](CDialogRobot& robot) {
        EXPECT_FALSE(robot.Enabled(IDOK));
        EXPECT_TRUE(robot.Enabled(IDCANCEL));
    });
    m_probe.m_tableWords = 6;
    InProbe(DeclareStart, [](CDialogRobot& robot) {
        EXPECT_TRUE(robot.Enabled(IDOK));
        EXPECT_NE(robot.FocusId(), 2u);
    });
}

TEST_F(CModalTest, NeedsNoRegistersForFieldsOutsideOfThem)
{
    m_wizard.ResetContents();
    SFunWizardTest::SetLibrary(m_wizard, AfxLoadLibrary(AfxGetModuleFolder(nullptr) + "TestDialogs.DLL"));
    const int result = InProbe(
        [](CWzdExchange* wx) {
            WDX_Number(
                wx,
                {.edit = IDC_PROBE_NUMBER, .entry = {0}, .limit = 3, .range = {0, 9}, .message = IDS_ERR_FREQUENCY});
        },
        [](CDialogRobot& robot) {
            EXPECT_TRUE(robot.Enabled(IDC_PROBE_NUMBER));
            robot.Type(IDC_PROBE_NUMBER, "5");
            robot.Click(IDOK);
        });
    EXPECT_EQ(result, 1);
}

// ---- "Only a data table is created." --------------------------------------------------------------------------------

TEST_F(CModalTest, KeepsTheOnlyDataTableFlagOnOkOnly)
{
    for (const int before : {0, 1, 7})
    {
        const bool checked = before != 0;
        m_wizard.SetOnlyDataTable(before);
        InProbe([&](CDialogRobot& robot) {
            EXPECT_EQ(robot.Checked(2061), checked);
            robot.Check(2061, !checked);
            robot.Click(IDCANCEL);
        });
        EXPECT_EQ(m_wizard.IsOnlyDataTable(), before);
        InProbe([&](CDialogRobot& robot) {
            robot.Check(2061, !checked);
            robot.Click(IDOK);
        });
        EXPECT_EQ(m_wizard.IsOnlyDataTable(), checked ? 0 : 1);
    }
}

TEST_F(CModalTest, LeavesTheOnlyDataTableFlagAloneWithoutTheCheckBox)
{
    m_wizard.SetOnlyDataTable(1);
    CProbeDlg probe(&m_wizard, IDD_MIXED_IDS);
    Open(probe, [](CDialogRobot& robot) { robot.Click(IDOK); });
    EXPECT_EQ(m_wizard.IsOnlyDataTable(), 1);
}
