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
                    robot.SetText(2052, row.text);
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
