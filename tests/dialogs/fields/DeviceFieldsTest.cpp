// Devices as contacts, operands and starts of data tables.
#include "dialogs/fields/Rows.h"
#include "tests/dialogs/base/ProbeDlg.h"

namespace
{

constexpr SWzdRow kDevice = {.combo = IDC_SECOND_DEVICE,
                             .edit = IDC_SECOND_NUMBER,
                             .devices = kListWords,
                             .position = 1,
                             .limit = 5,
                             .message = IDS_ERR_FREQUENCY,
                             .rangeLabel = IDC_SECOND_RANGE};

class CDeviceFieldsTest : public CProbeTest
{
protected:
    void SetUp() override
    {
        CProbeTest::SetUp();
        m_wizard.ResetContents();
        SFunWizardTest::SetLibrary(m_wizard, AfxLoadLibrary(AfxGetModuleFolder(nullptr) + "TestDialogs.DLL"));
        SetDeviceRange(m_wizard, kX, 3, 31);
        SetDeviceRange(m_wizard, kR, 0, kLastRelay);
        SetDeviceRange(m_wizard, kSpecialR, Bit(900, 0), Bit(911, 15));
        SetDeviceRange(m_wizard, kWR, 10, 300);
        SetDeviceRange(m_wizard, kDT, 0, 32764);
    }

    std::vector<CString> Listed(const SWzdRow& row)
    {
        std::vector<CString> items;
        InProbe([&](CWzdExchange* wx) { WDX_DeviceOperand(wx, row); },
                [&](CDialogRobot& robot) { items = robot.Items(row.combo); });
        return items;
    }
};

SWzdRow Listing(EListedDevices devices, const ULONGLONG* permitted = nullptr)
{
    SWzdRow row = kDevice;
    row.devices = devices;
    row.permitted = permitted;
    return row;
}

SWzdRow Contact(EWithoutInstruction withoutInstruction)
{
    SWzdRow row = kStartingCondition;
    row.withoutInstruction = withoutInstruction;
    return row;
}

} // namespace

// ---- Lists ----------------------------------------------------------------------------------------------------------

TEST_F(CDeviceFieldsTest, ListBitsWordsOrAllThatThePlcHas)
{
    const auto bits = Texts({"X", "R", "Sp.R"});
    const auto words = Texts({"WR", "DT"});
    auto all = bits;
    all.insert(all.end(), words.begin(), words.end());
    EXPECT_EQ(Listed(Listing(kListBits)), bits);
    EXPECT_EQ(Listed(Listing(kListWords)), words);
    EXPECT_EQ(Listed(Listing(kListAll)), all);
}

TEST_F(CDeviceFieldsTest, ListWhatTheHostPermits)
{
    SetDeviceRange(m_wizard, kWX, 0, 9);
    SetDeviceRange(m_wizard, kSpecialDT, 90000, 90511);
    const ULONGLONG none = 0;
    const ULONGLONG registers = 0x800000;
    const ULONGLONG relaysAndWords = 0x40 | 0x40000;
    const ULONGLONG everything = ~0ull;
    EXPECT_EQ(Listed(Listing(kListAll, &none)), Texts({"Sp.R"})) << "which no mask can leave out";
    EXPECT_EQ(Listed(Listing(kListWords, &registers)), Texts({"DT"}));
    EXPECT_EQ(Listed(Listing(kListAll, &relaysAndWords)), Texts({"R", "Sp.R", "WR"}));
    EXPECT_EQ(Listed(Listing(kListWords, &everything)), Texts({"WR", "DT"}));
}

// ---- Operands -------------------------------------------------------------------------------------------------------

TEST_F(CDeviceFieldsTest, OperandIsCheckedStoredAndRestored)
{
    const auto declare = [](CWzdExchange* wx) { WDX_DeviceOperand(wx, kDevice); };
    InProbe(declare, [](CDialogRobot& robot) {
        EXPECT_EQ(robot.Text(IDC_SECOND_DEVICE), "WR");
        EXPECT_EQ(robot.Text(IDC_SECOND_NUMBER), "");
        EXPECT_EQ(robot.Limit(IDC_SECOND_NUMBER), 5);
        EXPECT_EQ(robot.Text(IDC_SECOND_RANGE), "(10 - 300)");
        robot.SelectText(IDC_SECOND_DEVICE, "DT");
        EXPECT_EQ(robot.Text(IDC_SECOND_RANGE), "(0 - 32764)");
        robot.SelectText(IDC_SECOND_DEVICE, "WR");
        for (const char* text : {"9", "301"})
        {
            robot.Type(IDC_SECOND_NUMBER, text);
            EXPECT_EQ(robot.ClickAndAnswer(IDOK), "The inputted frequency value has become the outside of the "
                                                  "range.\nPlease input the right value.");
            EXPECT_EQ(robot.FocusId(), static_cast<UINT>(IDC_SECOND_NUMBER));
        }
        robot.Type(IDC_SECOND_NUMBER, "1A");
        EXPECT_EQ(robot.ClickAndAnswer(IDOK), "Please input a numerical value correctly.");
        robot.Type(IDC_SECOND_NUMBER, "300");
        robot.Click(IDOK);
    });
    EXPECT_EQ(ReadResults(m_wizard).operands, (std::vector<SOperandRow>{{0, 0}, {kWR, 300}}));
    EXPECT_EQ(ReadResults(m_wizard).contacts, std::vector<SContactRow>());

    m_wizard.AddOprdInfo(kK, 5);
    InProbe(declare, [](CDialogRobot& robot) {
        EXPECT_EQ(robot.Text(IDC_SECOND_DEVICE), "WR");
        EXPECT_EQ(robot.Text(IDC_SECOND_NUMBER), "300");
        robot.SelectText(IDC_SECOND_DEVICE, "DT");
        robot.Click(2099);
        EXPECT_EQ(robot.Text(IDC_SECOND_DEVICE), "WR");
        EXPECT_EQ(robot.Text(IDC_SECOND_NUMBER), "");
        EXPECT_EQ(robot.Text(IDC_SECOND_RANGE), "(10 - 300)");
    });
}

TEST_F(CDeviceFieldsTest, OperandCanShowLessThanItAccepts)
{
    SWzdRow row = kDevice;
    row.shownLess = 2;
    InProbe([&](CWzdExchange* wx) { WDX_DeviceOperand(wx, row); },
            [](CDialogRobot& robot) {
                EXPECT_EQ(robot.Text(IDC_SECOND_RANGE), "(10 - 298)");
                robot.Type(IDC_SECOND_NUMBER, "300");
                robot.Click(IDOK);
                EXPECT_FALSE(robot.IsOpen());
            });
}

TEST_F(CDeviceFieldsTest, OperandCanBeAConstantOfTheDialog)
{
    InProbe([](CWzdExchange* wx) { WDX_ConstantOperand(wx, 1, 7); }, [](CDialogRobot& robot) { robot.Click(IDOK); });
    EXPECT_EQ(ReadResults(m_wizard).operands, (std::vector<SOperandRow>{{0, 0}, {kK, 7}}));
}

TEST_F(CDeviceFieldsTest, TablesStartAtAnyDevice)
{
    InProbe(
        [](CWzdExchange* wx) {
            WDX_DeviceTable(wx, kDevice);
            WDX_Constant(wx, {0}, 5);
            WDX_Constant(wx, {1, kTwoRegisters}, 6);
        },
        [](CDialogRobot& robot) {
            robot.Type(IDC_SECOND_NUMBER, "20");
            robot.Click(IDOK);
        });
    EXPECT_EQ(ReadResults(m_wizard).operands.at(1), (SOperandRow{kWR, 20}));
    EXPECT_EQ(ReadResults(m_wizard).data, (std::vector<SDataRow>{{kWR, 20, 0, 0, 5}, {kWR, 21, 1, 0, 6}}));
}

TEST_F(CDeviceFieldsTest, TablesInOtherDevicesAreRestored)
{
    const auto declare = [](CWzdExchange* wx) {
        WDX_DeviceTable(wx, kDevice);
        WDX_Number(wx, {.edit = IDC_PROBE_NUMBER, .entry = {0}, .limit = 5, .range = {0, 99}, .message = IDS_ERR_DUTY});
    };
    const auto expect = [&](LPCSTR text) {
        InProbe(declare, [&](CDialogRobot& robot) { EXPECT_EQ(robot.Text(IDC_PROBE_NUMBER), text); });
    };
    InProbe(declare, [](CDialogRobot& robot) {
        robot.Type(IDC_SECOND_NUMBER, "20");
        robot.Type(IDC_PROBE_NUMBER, "42");
        robot.Click(IDOK);
    });
    EXPECT_EQ(ReadResults(m_wizard).data, (std::vector<SDataRow>{{kWR, 20, 0, 0, 42}}));
    expect("42");
    m_wizard.RemoveAllDataInfo();
    m_wizard.AddDataInfo(kDT, 20, 0, 0, 42); // of another device
    expect("");
}

TEST_F(CDeviceFieldsTest, EntriesGoToTheTableDeclaredBeforeThem)
{
    SWzdRow other = kDevice;
    other.combo = IDC_CONTACT_DEVICE;
    other.edit = IDC_CONTACT_NUMBER;
    other.rangeLabel = IDC_CONTACT_RANGE;
    other.position = 2;
    InProbe(
        [&](CWzdExchange* wx) {
            WDX_DeviceTable(wx, kDevice);
            WDX_Constant(wx, {0}, 1);
            WDX_DeviceTable(wx, other);
            WDX_Constant(wx, {1}, 2);
        },
        [](CDialogRobot& robot) {
            robot.Type(IDC_SECOND_NUMBER, "20");
            robot.SelectText(IDC_CONTACT_DEVICE, "DT");
            robot.Type(IDC_CONTACT_NUMBER, "50");
            robot.Click(IDOK);
        });
    EXPECT_EQ(ReadResults(m_wizard).data, (std::vector<SDataRow>{{kWR, 20, 0, 0, 1}, {kDT, 51, 0, 0, 2}}));
}

TEST_F(CDeviceFieldsTest, OperandCanBeLeftOutWithTheInstruction)
{
    SWzdRow row = kDevice;
    row.withoutInstruction = kLeftOut;
    const auto declare = [&](CWzdExchange* wx) { WDX_DeviceOperand(wx, row); };
    InProbe(declare, [](CDialogRobot& robot) {
        robot.SetText(IDC_SECOND_NUMBER, "nonsense");
        EXPECT_NE(robot.ClickAndAnswer(IDOK), "");
        robot.Check(2061);
        for (const UINT id : {IDC_SECOND_DEVICE, IDC_SECOND_NUMBER, IDC_SECOND_RANGE})
            EXPECT_FALSE(robot.Enabled(id)) << id;
        robot.Check(2061, false);
        EXPECT_TRUE(robot.Enabled(IDC_SECOND_NUMBER));
        robot.Check(2061);
        robot.Click(IDOK);
        EXPECT_FALSE(robot.IsOpen());
    });
    EXPECT_EQ(ReadResults(m_wizard).operands, (std::vector<SOperandRow>{{0, 0}, {-1, -1}}));
    InProbe(declare, [](CDialogRobot& robot) {
        EXPECT_EQ(robot.Selection(IDC_SECOND_DEVICE), 0);
        EXPECT_EQ(robot.Text(IDC_SECOND_NUMBER), "");
    });
}

TEST_F(CDeviceFieldsTest, ADeviceCanBePreferredUntilOneIsStored)
{
    SWzdRow row = kDevice;
    const auto selected = [&](short preferred) {
        row.preferred = preferred;
        CString text;
        InProbe([&](CWzdExchange* wx) { WDX_DeviceOperand(wx, row); },
                [&](CDialogRobot& robot) { text = robot.Text(IDC_SECOND_DEVICE); });
        return text;
    };
    EXPECT_EQ(selected(kDT), "DT");
    EXPECT_EQ(selected(kX), "WR") << "which is not listed";
    m_wizard.AddOprdInfo(kK, 0);
    m_wizard.AddOprdInfo(kWR, 11);
    EXPECT_EQ(selected(kDT), "WR");
}

// ---- Contacts -------------------------------------------------------------------------------------------------------

TEST_F(CDeviceFieldsTest, ContactCanDependOnTheInstruction)
{
    struct
    {
        EWithoutInstruction withoutInstruction;
        bool onlyTable;
        const char* text;
        bool accepted;
        std::vector<SContactRow> contacts;
    } const rows[] = {
        {kStillChecked, true, "?", false, {}},
        {kStillChecked, true, "5", true, {{2, kX, 5}}},
        {kLeftOut, false, "?", false, {}},
        {kLeftOut, false, "5", true, {{2, kX, 5}}},
        {kLeftOut, true, "?", true, {}},
        {kLeftOut, true, "5", true, {}},
        {kBestKnown, false, "?", false, {}},
        {kBestKnown, false, "2", false, {}},
        {kBestKnown, false, "5", true, {{2, kX, 5}}},
        {kBestKnown, true, "5", true, {{2, kX, 5}}},
        {kBestKnown, true, "?", true, {{2, kX, 3}}},
        {kBestKnown, true, "2", true, {{2, kX, 3}}},
        {kBestKnown, true, "", true, {{2, kX, 3}}},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(testing::Message() << row.withoutInstruction << row.onlyTable << row.text);
        m_wizard.RemoveAllContInfo();
        InProbe([&](CWzdExchange* wx) { WDX_Contact(wx, Contact(row.withoutInstruction)); },
                [&](CDialogRobot& robot) {
                    robot.Check(2061, row.onlyTable);
                    m_probe.SetItemText(2052, row.text);
                    EXPECT_EQ(robot.ClickAndAnswer(IDOK).IsEmpty(), row.accepted);
                });
        EXPECT_EQ(ReadResults(m_wizard).contacts, row.contacts);
    }
}

TEST_F(CDeviceFieldsTest, FurtherContactIsRestoredFromItsOwnRecord)
{
    SWzdRow row = kStartingCondition;
    row.position = 1;
    // Two contacts of the same device, as they are without a start output.
    m_wizard.AddContInfo(2, kR, 31);
    m_wizard.AddContInfo(2, kR, 32);
    InProbe([&](CWzdExchange* wx) { WDX_Contact(wx, row); },
            [](CDialogRobot& robot) {
                EXPECT_EQ(robot.Text(2051), "R");
                EXPECT_EQ(robot.Text(2052), "20");
            });
}

TEST_F(CDeviceFieldsTest, FixedContactIsAppended)
{
    const auto declare = [](CWzdExchange* wx) { WDX_FixedContact(wx, kSpecialR, 14419); };
    m_wizard.AddContInfo(2, kX, 1);
    InProbe(declare, [](CDialogRobot& robot) { robot.Click(IDOK); });
    InProbe(declare, [](CDialogRobot& robot) { robot.Click(IDOK); });
    EXPECT_EQ(ReadResults(m_wizard).contacts,
              (std::vector<SContactRow>{{2, kX, 1}, {2, kSpecialR, 14419}, {2, kSpecialR, 14419}}));
}

TEST_F(CDeviceFieldsTest, FallbackContactNeedsADevice)
{
    m_wizard.ResetContents();
    SFunWizardTest::SetLibrary(m_wizard, AfxLoadLibrary(AfxGetModuleFolder(nullptr) + "TestDialogs.DLL"));
    const int result = InProbe([&](CWzdExchange* wx) { WDX_Contact(wx, Contact(kBestKnown)); },
                               [&](CDialogRobot& robot) {
                                   robot.Check(2061);
                                   robot.Click(IDOK);
                               });
    EXPECT_EQ(result, 1);
    EXPECT_EQ(ReadResults(m_wizard).contacts, std::vector<SContactRow>());
}
