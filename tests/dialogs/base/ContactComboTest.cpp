// The list of contact devices and the range of the selected one.
#include "core/ResourceScope.h"
#include "resources/resource.h"
#include "tests/dialogs/base/ProbeDlg.h"

namespace
{

class CContactComboTest : public CProbeTest
{
protected:
    // None of the devices that the other tests set up.
    void SetUp() override
    {
        CProbeTest::SetUp();
        m_wizard.ResetContents();
        SFunWizardTest::SetLibrary(m_wizard, AfxLoadLibrary(AfxGetModuleFolder(nullptr) + "TestDialogs.DLL"));
        SetDeviceRange(m_wizard, kDT, 0, 100);
    }

    std::vector<DWORD> ItemData(UINT combo)
    {
        std::vector<DWORD> data;
        for (LRESULT i = 0; i < m_probe.SendDlgItemMessage(combo, CB_GETCOUNT); ++i)
            data.push_back(static_cast<DWORD>(m_probe.SendDlgItemMessage(combo, CB_GETITEMDATA, i)));
        return data;
    }
};

struct SContactRecord
{
    int code;
    int number;
};

} // namespace

TEST_F(CContactComboTest, ListsThePresentBitDevicesInOrder)
{
    // In the order of their codes; words and constants are never listed.
    for (const int code : {kL, kR, kY, kX, kT, kC,  kSV, kEV, 8,   kDT,       10,         kK,
                           kH, 15, 17, 18, kF, kWL, kWR, kWY, kWX, kSpecialR, kSpecialDT, 20065})
        SetDeviceRange(m_wizard, code, 0, 15);
    InProbe([&](CDialogRobot& robot) {
        EXPECT_TRUE(m_probe.FillContactCombo(2051, 0));
        EXPECT_EQ(robot.Items(2051), Texts({"X", "Y", "R", "Sp.R", "T", "C", "L", "E", "P"}));
        EXPECT_EQ(ItemData(2051), (std::vector<DWORD>{0xFFFF0003, 0xFFFF0002, 0xFFFF0001, 0xFFFF4E21, 0xFFFF0004,
                                                      0xFFFF0005, 0xFFFF0000, 0xFFFF0012, 0xFFFF0011}));
        EXPECT_EQ(robot.Selection(2051), 0);
    });
}

TEST_F(CContactComboTest, LeavesOutWhatThePlcDoesNotHave)
{
    SetDeviceRange(m_wizard, kL, 0, 15);
    SetDeviceRange(m_wizard, kSpecialR, 14400, 14419);
    InProbe([&](CDialogRobot& robot) {
        EXPECT_TRUE(m_probe.FillContactCombo(2051, 0));
        EXPECT_EQ(robot.Items(2051), Texts({"Sp.R", "L"}));
        EXPECT_EQ(ItemData(2051), (std::vector<DWORD>{0xFFFF4E21, 0xFFFF0000}));
        // A second time it is emptied first.
        EXPECT_TRUE(m_probe.FillContactCombo(2051, 0));
        EXPECT_EQ(robot.Items(2051), Texts({"Sp.R", "L"}));
    });
}

TEST_F(CContactComboTest, IsEmptyWithoutBitDevices)
{
    InProbe([&](CDialogRobot& robot) {
        EXPECT_TRUE(m_probe.FillContactCombo(2051, 0));
        EXPECT_EQ(robot.Items(2051), Texts({}));
        EXPECT_EQ(robot.Selection(2051), -1);
        EXPECT_FALSE(m_probe.FillContactCombo(IDC_PROBE_NOTHING, 0));
    });
}

TEST_F(CContactComboTest, IsNotFilledWithDevicesThatHaveNoName)
{
    SetDeviceRange(m_wizard, kR, 0, 15);
    const HINSTANCE nameless = AfxLoadLibrary(AfxGetModuleFolder(nullptr) + "SelectionOnly.DLL");
    ASSERT_NE(nameless, nullptr);
    InProbe([&](CDialogRobot& robot) {
        const CResourceScope scope(nameless);
        EXPECT_FALSE(m_probe.FillContactCombo(2051, 0));
        EXPECT_EQ(robot.Items(2051), Texts({}));
    });
    AfxFreeLibrary(nameless);
}

TEST_F(CContactComboTest, SelectsTheDeviceOfTheContact)
{
    for (const int code : {kX, kY, kR, kSpecialR, kL})
        SetDeviceRange(m_wizard, code, 0, 20000);

    struct
    {
        std::vector<SContactRecord> contacts;
        int index;
        int selected; // in X, Y, R, Sp.R, L
    } const rows[] = {
        {{}, 0, 0},
        {{{kX, 1}}, 0, 0},
        {{{kR, 1}}, 0, 2},
        {{{kSpecialR, 14416}}, 0, 3},
        {{{kL, 0}}, 0, 4},
        {{{kT, 0}}, 0, 0},                            // not on this PLC
        {{{kDT, 0}}, 0, 0},                           // no bit device
        {{{kX, 1}, {kR, 2}}, 1, 0},                   // too few contacts are always "the same condition"
        {{{kX, 1}, {kR, 1}, {kY, 5}}, 1, 2},          //
        {{{kX, 1}, {kR, 1}, {kY, 5}}, 0, 0},          //
        {{{kR, 1}, {kX, 1}, {kY, 5}}, 0, 2},          //
        {{{kR, 1}, {kL, 1}, {kY, 5}}, 2, 1},          //
        {{{kR, 1}, {kR, 2}, {kY, 5}}, 1, 2},          // another number is another condition
        {{{kR, 1}, {kR, 1}, {kY, 5}}, 1, 0},          // the same condition: none is looked for
        {{{kR, 1}, {kR, 1}, {kY, 5}}, 0, 2},          // except for the first contact
        {{{kR, 1}, {kX, 2}, {kL, 3}, {kY, 5}}, 2, 4}, //
        {{{kR, 1}, {kX, 2}, {kL, 3}, {kY, 5}}, 9, 0}, // no such contact
        {{{kR, 1}}, -1, 0},
    };
    for (size_t i = 0; i < std::size(rows); ++i)
    {
        SCOPED_TRACE("row " + std::to_string(i));
        m_wizard.RemoveAllContInfo();
        for (const SContactRecord& contact : rows[i].contacts)
            m_wizard.AddContInfo(2, static_cast<short>(contact.code), contact.number);
        InProbe([&](CDialogRobot& robot) {
            EXPECT_TRUE(m_probe.FillContactCombo(2051, rows[i].index));
            EXPECT_EQ(robot.Selection(2051), rows[i].selected);
        });
    }
}

TEST_F(CContactComboTest, TellsTheSelectedDevice)
{
    SetDeviceRange(m_wizard, kR, 3, 40);
    SetDeviceRange(m_wizard, kSpecialR, 14400, 14431);
    InProbe([&](CDialogRobot&) {
        short kind = 7, code = 7;
        int low = 7, high = 7;
        EXPECT_FALSE(m_probe.GetSelectedDevice(2051, kind, code));
        EXPECT_FALSE(m_probe.GetSelectedDevice(IDC_PROBE_NOTHING, kind, code));
        EXPECT_FALSE(m_probe.GetSelectedDeviceRange(2051, kind, code, low, high));

        ASSERT_TRUE(m_probe.FillContactCombo(2051, 0));
        EXPECT_TRUE(m_probe.GetSelectedDevice(2051, kind, code));
        EXPECT_EQ(kind, -1);
        EXPECT_EQ(code, kR);
        m_probe.Select(2051, 1);
        EXPECT_TRUE(m_probe.GetSelectedDeviceRange(2051, kind, code, low, high));
        EXPECT_EQ(kind, -1);
        EXPECT_EQ(code, kSpecialR);
        EXPECT_EQ(low, 14400);
        EXPECT_EQ(high, 14431);

        m_probe.SendDlgItemMessage(2051, CB_SETITEMDATA, 1, static_cast<LPARAM>(0xFFFFFFFFu));
        EXPECT_FALSE(m_probe.GetSelectedDevice(2051, kind, code));
        m_probe.SendDlgItemMessage(2051, CB_SETITEMDATA, 1, static_cast<LPARAM>(0xFFFF0007u));
        EXPECT_TRUE(m_probe.GetSelectedDevice(2051, kind, code));
        EXPECT_FALSE(m_probe.GetSelectedDeviceRange(2051, kind, code, low, high));
    });
}

TEST_F(CContactComboTest, ShowsTheRangeInTheNotationOfTheDevice)
{
    struct
    {
        int code;
        int low, high;
        const char* label;
    } const rows[] = {
        {kX, 0, Bit(109, 15), "(0 - 109F)"},        //
        {kY, Bit(1, 10), Bit(12, 0), "(1A - 120)"}, //
        {kR, 0, 15, "(0 - F)"},
        {kSpecialR, Bit(900, 0), Bit(911, 15), "(9000 - 911F)"},
        {kT, 0, 1007, "(0 - 1007)"},
        {kC, 1008, 1023, "(1008 - 1023)"},
        {kL, 0, Bit(127, 15), "(0 - 127F)"},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.label);
        CFunWizard wizard;
        wizard.SetLanguageInfo(0);
        SetDeviceRange(wizard, kDT, 0, 100);
        SetDeviceRange(wizard, row.code, row.low, row.high);
        CProbeDlg dialog(&wizard, IDD_SPD1_HOME);
        Open(dialog, [&](CDialogRobot& robot) {
            EXPECT_TRUE(dialog.FillContactCombo(2051, 0));
            EXPECT_TRUE(dialog.ShowContactRange(0));
            EXPECT_EQ(robot.Text(2053), row.label);
            robot.Click(IDCANCEL);
        });
    }
}

TEST_F(CContactComboTest, KeepsTheLabelWithoutSelectionOrRange)
{
    SetDeviceRange(m_wizard, kR, 0, 15);
    InProbe([&](CDialogRobot& robot) {
        EXPECT_FALSE(m_probe.ShowContactRange(0));
        EXPECT_FALSE(m_probe.ShowContactRange(1));
        EXPECT_EQ(robot.Text(2053), "Impossible settings");
        EXPECT_EQ(robot.Text(2058), "Impossible settings");

        // Each condition has its own combo and label.
        ASSERT_TRUE(m_probe.FillContactCombo(2056, 0));
        EXPECT_TRUE(m_probe.ShowContactRange(1));
        EXPECT_EQ(robot.Text(2053), "Impossible settings");
        EXPECT_EQ(robot.Text(2058), "(0 - F)");

        m_probe.SendDlgItemMessage(2056, CB_SETITEMDATA, 0, static_cast<LPARAM>(0xFFFF0007u));
        m_probe.SetItemText(2058, "as it was");
        EXPECT_FALSE(m_probe.ShowContactRange(1));
        EXPECT_EQ(robot.Text(2058), "as it was");
    });
}
