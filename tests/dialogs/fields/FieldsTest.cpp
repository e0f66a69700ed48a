// The kinds of fields, one by one: opening and restoring, refreshing, clearing, checking and storing.
#include "dialogs/pulse/PulseRows.h"
#include "tests/dialogs/base/ProbeDlg.h"

namespace
{

constexpr SWzdChoice kOutputs[] = {{IDS_OUTPUT_Y, 4, 0}, {IDS_OUTPUT_Y, 7, 1}, {IDS_OUTPUT_Y, 9, 2}};
constexpr SWzdChoice kModes[] = {{IDS_INCREMENTAL_CW_CCW, 0x00}, {IDS_ABSOLUTE_CW_CCW, 0x10}, {IDS_HOMING1_CW, 0x22}};
constexpr SWzdChoice kOtherModes[] = {{IDS_HOMING2_CW, 0x30}, {IDS_HOMING2_CCW, 0x31}};

class CFieldsTest : public CProbeTest
{
protected:
    void Contact(int code, int number) { m_wizard.AddContInfo(2, static_cast<short>(code), number); }
    void Operand(int code, int value) { m_wizard.AddOprdInfo(static_cast<short>(code), value); }
    void Data(int code, int value) { m_wizard.AddDataInfo(static_cast<short>(code), 0, 0, 0, value); }
};

void DeclareContact(CWzdExchange* wx) { WDX_Contact(wx); }
void DeclareStart(CWzdExchange* wx)
{
    WDX_TableStart(wx, {.edit = IDC_PROBE_START, .rangeLabel = IDC_PROBE_START_RANGE});
}
void DeclareOutput(CWzdExchange* wx) { WDX_Output(wx, IDC_PROBE_OUTPUT, kOutputs); }
void DeclareMode(CWzdExchange* wx)
{
    WDX_ControlCode(wx, kOneRegister);
    WDX_Code(wx, {.combo = IDC_PROBE_COMBO, .choices = kModes, .alsoRestores = kOtherModes, .bits = {4, 8}});
}
void DeclareNumber(CWzdExchange* wx)
{
    WDX_Number(wx, {.edit = IDC_PROBE_NUMBER,
                    .entry = {5, kTwoRegisters},
                    .limit = 6,
                    .range = {-20, 3000},
                    .message = IDS_ERR_FREQUENCY,
                    .rangeLabel = IDC_PROBE_NUMBER_RANGE});
}

} // namespace

// ---- The contact ----------------------------------------------------------------------------------------------------

TEST_F(CFieldsTest, ContactIsRestored)
{
    InProbe(DeclareContact, [](CDialogRobot& robot) {
        EXPECT_EQ(robot.Items(2051), Texts({"X", "Y", "R", "Sp.R", "T", "C", "L"}));
        EXPECT_EQ(robot.Selection(2051), 0);
        EXPECT_EQ(robot.Text(2052), "");
        EXPECT_EQ(robot.Limit(2052), 4);
        EXPECT_EQ(robot.Text(2053), "(0 - 109F)");
    });
    Contact(kC, 1010);
    InProbe(DeclareContact, [](CDialogRobot& robot) {
        EXPECT_EQ(robot.Text(2051), "C");
        EXPECT_EQ(robot.Text(2052), "1010");
        EXPECT_EQ(robot.Text(2053), "(1008 - 1023)");
    });
    m_wizard.RemoveAllContInfo();
    Contact(kR, Bit(10, 0xA));
    InProbe(DeclareContact, [](CDialogRobot& robot) {
        EXPECT_EQ(robot.Text(2051), "R");
        EXPECT_EQ(robot.Text(2052), "10A");
    });
}

TEST_F(CFieldsTest, ContactShowsTheRangeOfTheSelectedDevice)
{
    InProbe(DeclareContact, [](CDialogRobot& robot) {
        robot.SelectText(2051, "T");
        EXPECT_EQ(robot.Text(2053), "(0 - 1007)");
        robot.SelectText(2051, "Sp.R");
        EXPECT_EQ(robot.Text(2053), "(9000 - 911F)");
    });
}

TEST_F(CFieldsTest, ContactIsCheckedInTheNotationOfItsDevice)
{
    const CString notANumber = "Please input a numerical value correctly.";
    const CString outside = "The inputted starting condition contact number has become the outside of the range. \n"
                            "Please input the right value.";
    struct
    {
        const char* device;
        const char* text;
        CString message;
        SContactRow contact;
    } const rows[] = {
        {"X", "0", "", {2, kX, 0}},
        {"X", "109F", "", {2, kX, kLastInput}},
        {"X", "109f", "", {2, kX, kLastInput}},
        {"X", "1100", outside, {}},
        {"R", "10A", "", {2, kR, Bit(10, 10)}},
        {"R", "A", "", {2, kR, 10}},
        {"R", "A0", notANumber, {}},
        {"R", "10G", notANumber, {}},
        {"R", "", notANumber, {}},
        {"Sp.R", "8999", outside, {}},
        {"Sp.R", "9010", "", {2, kSpecialR, 14416}},
        {"T", "10", "", {2, kT, 10}},
        {"T", "1A", notANumber, {}},
        {"T", "1008", outside, {}},
        {"T", "-1", outside, {}},
        {"C", "1007", outside, {}},
        {"C", "1023", "", {2, kC, 1023}},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(testing::Message() << row.device << " " << row.text);
        m_wizard.RemoveAllContInfo();
        InProbe(DeclareContact, [&](CDialogRobot& robot) {
            robot.SelectText(2051, row.device);
            robot.Type(2052, row.text);
            EXPECT_EQ(robot.ClickAndAnswer(IDOK), row.message);
            EXPECT_EQ(robot.IsOpen(), !row.message.IsEmpty());
            if (robot.IsOpen())
            {
                EXPECT_EQ(robot.FocusId(), 2052u);
            }
        });
        const std::vector<SContactRow> stored = ReadResults(m_wizard).contacts;
        EXPECT_EQ(stored, row.message.IsEmpty() ? std::vector{row.contact} : std::vector<SContactRow>());
    }
}

TEST_F(CFieldsTest, ContactWithoutDeviceOrRangeIsOutside)
{
    InProbe(DeclareContact, [&](CDialogRobot& robot) {
        robot.Type(2052, "x");
        m_probe.Select(2051, -1);
        EXPECT_EQ(robot.ClickAndAnswer(IDOK).Left(43), "The inputted starting condition contact num");
        EXPECT_EQ(robot.FocusId(), 2052u);
        m_probe.Select(2051, 0);
        m_probe.SendDlgItemMessage(2051, CB_SETITEMDATA, 0, static_cast<LPARAM>(0xFFFF0011u));
        EXPECT_EQ(robot.ClickAndAnswer(IDOK).Left(43), "The inputted starting condition contact num");
    });
}

TEST_F(CFieldsTest, ContactsCanBeSeveral)
{
    const CProbeDlg::Fields declare = [](CWzdExchange* wx) {
        WDX_Contact(wx, IDS_ERR_UNIT_CONTACT);
        WDX_Contact(wx, {.combo = IDC_SECOND_DEVICE,
                         .edit = IDC_SECOND_NUMBER,
                         .position = 1,
                         .limit = 4,
                         .message = IDS_ERR_SPEED_CHANGE_CONTACT,
                         .rangeLabel = IDC_SECOND_RANGE});
    };
    InProbe(declare, [](CDialogRobot& robot) {
        robot.SelectText(2051, "R");
        robot.Type(2052, "1F");
        robot.SelectText(2056, "L");
        robot.Type(2057, "9999");
        EXPECT_EQ(robot.Text(2058), "(0 - 127F)");
        EXPECT_EQ(robot.ClickAndAnswer(IDOK), "The inputted speed change condition contact has become the outside of "
                                              "the range.\nPlease input the right value.");
        EXPECT_EQ(robot.FocusId(), 2057u);
        robot.Type(2057, "3");
        robot.Click(IDOK);
    });
    EXPECT_EQ(ReadResults(m_wizard).contacts, (std::vector<SContactRow>{{2, kR, 31}, {2, kL, 3}}));

    Contact(kY, 5); // the condition of the second contact counts from the third on
    InProbe(declare, [](CDialogRobot& robot) {
        EXPECT_EQ(robot.Text(2051), "R");
        EXPECT_EQ(robot.Text(2056), "L");
        EXPECT_EQ(robot.Text(2052), "1F");
        EXPECT_EQ(robot.Text(2057), "3");
    });
}

// ---- The data table -------------------------------------------------------------------------------------------------

TEST_F(CFieldsTest, TableStartIsRestoredFromARegisterOnly)
{
    InProbe(DeclareStart, [](CDialogRobot& robot) {
        EXPECT_EQ(robot.Text(IDC_PROBE_START), "");
        EXPECT_EQ(robot.Limit(IDC_PROBE_START), 5);
        EXPECT_EQ(robot.Text(IDC_PROBE_START_RANGE), "(0 - 32764)");
    });
    Operand(kDT, 120);
    InProbe(DeclareStart, [](CDialogRobot& robot) { EXPECT_EQ(robot.Text(IDC_PROBE_START), "120"); });
    m_wizard.RemoveAllOprdInfo();
    Operand(kK, 120);
    InProbe(DeclareStart, [](CDialogRobot& robot) { EXPECT_EQ(robot.Text(IDC_PROBE_START), ""); });
}

TEST_F(CFieldsTest, TableStartIsLimitedToTheLongestNumber)
{
    SetDeviceRange(m_wizard, kDT, 0, 1003);
    m_probe.m_tableWords = 5;
    InProbe(DeclareStart, [](CDialogRobot& robot) {
        EXPECT_EQ(robot.Limit(IDC_PROBE_START), 3);
        EXPECT_EQ(robot.Text(IDC_PROBE_START_RANGE), "(0 - 999)");
    });
}

TEST_F(CFieldsTest, TableStartIsCheckedAgainstItsRange)
{
    SetDeviceRange(m_wizard, kDT, 10, 1009);
    m_probe.m_tableWords = 7;
    struct
    {
        const char* text;
        UINT message;
    } const rows[] = {{"10", 0}, {"9", 20003}, {"1003", 0}, {"1004", 20003}, {"", 20001}, {"1a", 20001}, {"-", 20003}};
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.text);
        m_wizard.RemoveAllOprdInfo();
        InProbe(DeclareStart, [&](CDialogRobot& robot) {
            robot.Type(IDC_PROBE_START, row.text);
            const CString message = robot.ClickAndAnswer(IDOK);
            CString expected;
            if (row.message != 0)
                expected.LoadString(row.message);
            EXPECT_EQ(message, expected);
            if (robot.IsOpen())
            {
                EXPECT_EQ(robot.FocusId(), static_cast<UINT>(IDC_PROBE_START));
            }
        });
        const auto stored = ReadResults(m_wizard).operands;
        EXPECT_EQ(stored.size(), row.message == 0 ? 1u : 0u);
    }
}

// ---- The output -----------------------------------------------------------------------------------------------------

TEST_F(CFieldsTest, OutputIsRestoredFromAConstant)
{
    struct
    {
        int code, value;
        int selected;
    } const rows[] = {{kK, 4, 0}, {kK, 7, 1}, {kH, 9, 2}, {kK, 5, 0}, {kK, -1, 0}, {kDT, 7, 0}, {kF, 7, 0}};
    InProbe(DeclareOutput, [](CDialogRobot& robot) {
        EXPECT_EQ(robot.Items(IDC_PROBE_OUTPUT), Texts({"Y0", "Y1", "Y2"}));
        EXPECT_EQ(robot.Selection(IDC_PROBE_OUTPUT), 0);
    });
    for (const auto& row : rows)
    {
        m_wizard.RemoveAllOprdInfo();
        Operand(kDT, 7); // operand 0 is the data table's
        Operand(row.code, row.value);
        InProbe(DeclareOutput, [&](CDialogRobot& robot) {
            EXPECT_EQ(robot.Selection(IDC_PROBE_OUTPUT), row.selected) << row.code << ", " << row.value;
        });
    }
}

TEST_F(CFieldsTest, OutputIsStoredAsItsCode)
{
    const CProbeDlg::Fields declare = [](CWzdExchange* wx) {
        WDX_Output(wx, IDC_PROBE_OUTPUT, kOutputs); // checked before the operand that it follows
        WDX_TableStart(wx, {.edit = IDC_PROBE_START, .rangeLabel = IDC_PROBE_START_RANGE});
    };
    InProbe(declare, [](CDialogRobot& robot) {
        robot.Select(IDC_PROBE_OUTPUT, 2);
        robot.Type(IDC_PROBE_START, "50");
        robot.Click(IDOK);
    });
    EXPECT_EQ(ReadResults(m_wizard).operands, (std::vector<SOperandRow>{{kDT, 50}, {kK, 9}}));
}

TEST_F(CFieldsTest, OutputIsNoChoiceWithoutAnInstruction)
{
    for (const bool flagged : {false, true})
    {
        m_wizard.SetOnlyDataTable(flagged);
        InProbe(DeclareOutput, [&](CDialogRobot& robot) {
            const auto expectEnabled = [&](bool enabled) {
                EXPECT_EQ(robot.Enabled(IDC_PROBE_OUTPUT), enabled);
                EXPECT_EQ(m_probe.ControlBefore(IDC_PROBE_OUTPUT)->IsWindowEnabled() != FALSE, enabled);
            };
            expectEnabled(!flagged);
            robot.Click(2061);
            expectEnabled(flagged);
            robot.Click(2061);
            expectEnabled(!flagged);
        });
    }
}

// ---- The control code -----------------------------------------------------------------------------------------------

TEST_F(CFieldsTest, CodeIsRestoredFromItsBits)
{
    struct
    {
        int code, value;
        int selected;
    } const rows[] = {
        {kDT, 0x0000, 0}, {kDT, 0x0100, 1}, {kDT, 0x0220, 2}, {kDT, 0xF10F, 1}, // other bits do not count
        {kDT, 0x0110, 0}, {kDT, 0x0FF0, 0},                                     // codes of no item
        {kDT, 0x0300, 0}, {kDT, 0x0310, 1},                                     // codes of the other form
        {kK, 0x0220, 0},  {kWR, 0x0220, 0},
    };
    InProbe(DeclareMode, [](CDialogRobot& robot) { EXPECT_EQ(robot.Selection(IDC_PROBE_COMBO), 0); });
    for (const auto& row : rows)
    {
        m_wizard.RemoveAllDataInfo();
        Data(row.code, row.value);
        InProbe(DeclareMode, [&](CDialogRobot& robot) {
            EXPECT_EQ(robot.Selection(IDC_PROBE_COMBO), row.selected) << row.code << ", " << std::hex << row.value;
        });
    }
}

TEST_F(CFieldsTest, CodeIsStoredInHexadecimal)
{
    m_wizard.SetCmtRec(1);
    const CProbeDlg::Fields declare = [](CWzdExchange* wx) {
        DeclareStart(wx);
        DeclareMode(wx);
    };
    InProbe(declare, [](CDialogRobot& robot) {
        robot.Type(IDC_PROBE_START, "300");
        robot.Select(IDC_PROBE_COMBO, 2);
        robot.Click(IDOK);
    });
    EXPECT_EQ(ReadResults(m_wizard).data, (std::vector<SDataRow>{{kDT, 300, 0, 1, 0x220}}));
    EXPECT_EQ(ReadResults(m_wizard).comments, (std::vector<std::string>{"Control code"}));
}

// ---- Numbers --------------------------------------------------------------------------------------------------------

TEST_F(CFieldsTest, NumberIsRestoredFromItsRecord)
{
    const CProbeDlg::Fields declare = [](CWzdExchange* wx) {
        WDX_ControlCode(wx, kOneRegister);
        DeclareNumber(wx);
        WDX_Constant(wx, {7, kOneRegister}, 0);
        WDX_Number(wx, {.edit = IDC_PROBE_OTHER,
                        .entry = {8, kOneRegister},
                        .limit = 3,
                        .range = {0, 9},
                        .message = IDS_ERR_DUTY});
    };
    InProbe(declare, [](CDialogRobot& robot) {
        EXPECT_EQ(robot.Text(IDC_PROBE_NUMBER), "");
        EXPECT_EQ(robot.Limit(IDC_PROBE_NUMBER), 6);
        EXPECT_EQ(robot.Limit(IDC_PROBE_OTHER), 3);
        EXPECT_EQ(robot.Text(IDC_PROBE_NUMBER_RANGE), "(-20 - 3000)");
    });
    for (const int value : {11, 22, 33, -2147483647})
        Data(kDT, value);
    InProbe(declare, [](CDialogRobot& robot) {
        EXPECT_EQ(robot.Text(IDC_PROBE_NUMBER), "22");
        EXPECT_EQ(robot.Text(IDC_PROBE_OTHER), "-2147483647"); // as it stands, even past limit and range
    });
    m_wizard.RemoveAllDataInfo();
    Data(kDT, 11);
    Data(kK, 22);
    InProbe(declare, [](CDialogRobot& robot) { EXPECT_EQ(robot.Text(IDC_PROBE_NUMBER), ""); });
}

TEST_F(CFieldsTest, NumberIsStoredWithTheLabelAsComment)
{
    const CProbeDlg::Fields declare = [](CWzdExchange* wx) {
        DeclareStart(wx);
        DeclareNumber(wx);
        WDX_Constant(wx, {7, kOneRegister}, -3);
        WDX_Number(wx, {.edit = IDC_PROBE_UNLABELLED,
                        .entry = {8, kOneRegister},
                        .limit = 0,
                        .range = {0, 9},
                        .message = IDS_ERR_DUTY});
    };
    for (const bool comments : {true, false})
    {
        m_wizard.SetCmtRec(comments);
        m_wizard.RemoveAllCmtInfo();
        m_wizard.AddCmtInfo("before");
        InProbe(declare, [](CDialogRobot& robot) {
            robot.Type(IDC_PROBE_START, "100");
            robot.Type(IDC_PROBE_NUMBER, "-20");
            robot.Type(IDC_PROBE_UNLABELLED, "4");
            robot.Click(IDOK);
        });
        const SResults results = ReadResults(m_wizard);
        EXPECT_EQ(results.data,
                  (std::vector<SDataRow>{{kDT, 105, 1, 0, -20}, {kDT, 107, 0, 0, -3}, {kDT, 108, 0, 0, 4}}));
        EXPECT_EQ(results.comments, (std::vector<std::string>{comments ? "First number" : "before"}));
    }
}

TEST_F(CFieldsTest, NumberShowsARangeThatDependsOnAnotherField)
{
    const CProbeDlg::Fields declare = [](CWzdExchange* wx) {
        WDX_Output(wx, IDC_PROBE_OUTPUT, kOutputs);
        WDX_Number(wx, {.edit = IDC_PROBE_NUMBER,
                        .entry = {0},
                        .limit = 4,
                        .range = {1, 100 * (1 + wx->Dialog().Selection(IDC_PROBE_OUTPUT))},
                        .message = IDS_ERR_FREQUENCY,
                        .rangeLabel = IDC_PROBE_NUMBER_RANGE});
    };
    InProbe(declare, [](CDialogRobot& robot) {
        EXPECT_EQ(robot.Text(IDC_PROBE_NUMBER_RANGE), "(1 - 100)");
        robot.Select(IDC_PROBE_OUTPUT, 2);
        EXPECT_EQ(robot.Text(IDC_PROBE_NUMBER_RANGE), "(1 - 300)");
        robot.Type(IDC_PROBE_NUMBER, "250");
        robot.Select(IDC_PROBE_OUTPUT, 1);
        EXPECT_EQ(robot.Text(IDC_PROBE_NUMBER_RANGE), "(1 - 200)");
        EXPECT_EQ(robot.ClickAndAnswer(IDOK),
                  "The inputted frequency value has become the outside of the range.\nPlease input the right value.");
        robot.Select(IDC_PROBE_OUTPUT, 2);
        robot.Click(IDOK);
    });
}
