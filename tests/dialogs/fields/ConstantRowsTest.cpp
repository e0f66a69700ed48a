// Devices whose list offers constants beside them, and devices that must leave room behind their number.
#include "core/Devices.h"
#include "dialogs/fields/Rows.h"
#include "dialogs/process/RealFormat.h"
#include "tests/dialogs/base/ProbeDlg.h"
#include "tests/support/Sampled.h"

namespace
{

constexpr SWzdConstant kDecimal = {kDeviceK, kSigned, {-5, 300}};
constexpr SWzdConstant kHex = {kDeviceH, kHexadecimal, {0, 0xFFFF}};
constexpr SWzdConstant kDoubleHex = {kDeviceH, kHexadecimal, {0, 0xFFFFFFFF}};
constexpr SWzdConstant kFloat = {kDeviceReal, kReal, kAnyDoubleWord, IDS_RANGE_REAL};

constexpr SWzdRow kOperand = {.combo = IDC_SECOND_DEVICE,
                              .edit = IDC_SECOND_NUMBER,
                              .devices = kListWords,
                              .position = 1,
                              .message = IDS_ERR_INPUT_X,
                              .rangeLabel = IDC_SECOND_RANGE};

SWzdRow With(CWzdConstants constants)
{
    SWzdRow row = kOperand;
    row.constants = constants;
    return row;
}

class CConstantRowsTest : public CProbeTest
{
protected:
    void SetUp() override
    {
        CProbeTest::SetUp();
        m_wizard.ResetContents();
        SFunWizardTest::SetLibrary(m_wizard, AfxLoadLibrary(AfxGetModuleFolder(nullptr) + "TestDialogs.DLL"));
        SetDeviceRange(m_wizard, kR, 0, kLastRelay);
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

    /// What is stored for a text; nothing when OK is refused with this message.
    std::vector<SOperandRow> Stored(const SWzdRow& row, LPCSTR device, LPCSTR text, UINT message = 0)
    {
        m_wizard.RemoveAllOprdInfo();
        InProbe([&](CWzdExchange* wx) { WDX_DeviceOperand(wx, row); },
                [&](CDialogRobot& robot) {
                    robot.SelectText(row.combo, device);
                    robot.Type(row.edit, text);
                    const CString shown = robot.ClickAndAnswer(IDOK);
                    CString expected;
                    if (message != 0)
                        expected.LoadString(message);
                    EXPECT_EQ(shown, expected) << device << text;
                    if (message != 0)
                    {
                        EXPECT_EQ(robot.FocusId(), row.edit);
                    }
                });
        return ReadResults(m_wizard).operands;
    }

    /// The text that is shown for a stored operand.
    CString Restored(const SWzdRow& row, int code, int value)
    {
        m_wizard.RemoveAllOprdInfo();
        m_wizard.AddOprdInfo(kDT, 0);
        m_wizard.AddOprdInfo(static_cast<short>(code), value);
        CString text;
        InProbe([&](CWzdExchange* wx) { WDX_DeviceOperand(wx, row); },
                [&](CDialogRobot& robot) { text = robot.Text(row.combo) + " " + robot.Text(row.edit); });
        return text;
    }
};

} // namespace

// ---- Lists ----------------------------------------------------------------------------------------------------------

TEST_F(CConstantRowsTest, AreListedBehindTheDevicesWhenTheRowNamesThem)
{
    const SWzdConstant decimal[] = {kDecimal}, hex[] = {kHex}, real[] = {kFloat};
    const SWzdConstant all[] = {kFloat, kHex, kDecimal}; // in the order of the device table all the same
    EXPECT_EQ(Listed(kOperand), Texts({"WR", "DT"}));
    EXPECT_EQ(Listed(With(decimal)), Texts({"WR", "DT", "K"}));
    EXPECT_EQ(Listed(With(hex)), Texts({"WR", "DT", "H"}));
    EXPECT_EQ(Listed(With(real)), Texts({"WR", "DT", "f"}));
    EXPECT_EQ(Listed(With(all)), Texts({"WR", "DT", "K", "H", "f"}));
    SWzdRow everything = With(all);
    everything.devices = kListAll;
    EXPECT_EQ(Listed(everything), Texts({"R", "WR", "DT", "K", "H", "f"}));
}

TEST_F(CConstantRowsTest, AreListedOnAPlcWithoutDevices)
{
    m_wizard.ResetContents();
    SFunWizardTest::SetLibrary(m_wizard, AfxLoadLibrary(AfxGetModuleFolder(nullptr) + "TestDialogs.DLL"));
    const SWzdConstant constants[] = {kDecimal, kHex};
    EXPECT_EQ(Listed(With(constants)), Texts({"K", "H"}));
}

TEST_F(CConstantRowsTest, AreListedWhenTheHostPermitsThem)
{
    const SWzdConstant constants[] = {kDecimal, kHex, kFloat};
    SWzdRow row = With(constants);
    const struct
    {
        ULONGLONG permitted;
        std::vector<CString> items;
    } kMasks[] = {{0, {}},
                  {1, {"K"}},
                  {2, {"H"}},
                  {4, {"f"}},
                  {7, {"K", "H", "f"}},
                  {0x800000 | 2, {"DT", "H"}},
                  {~7ull, {"WR", "DT"}},
                  {0x700000000ull, {}}};
    for (const auto& [permitted, items] : kMasks)
    {
        row.permitted = &permitted;
        EXPECT_EQ(Listed(row), items) << std::hex << permitted;
    }
}

// ---- Ranges and notations -------------------------------------------------------------------------------------------

TEST_F(CConstantRowsTest, ShowTheirRangesInTheirNotations)
{
    const SWzdConstant constants[] = {kDecimal, kDoubleHex, kFloat};
    const SWzdRow row = With(constants);
    InProbe([&](CWzdExchange* wx) { WDX_DeviceOperand(wx, row); },
            [](CDialogRobot& robot) {
                const struct
                {
                    LPCSTR device;
                    LPCSTR range;
                } kRanges[] = {{"DT", "(0 - 32764)"},
                               {"K", "(-5 - 300)"},
                               {"H", "(0 - FFFFFFFF)"},
                               {"f", "+-1.175494e-38 - 3.402823e+38"},
                               {"WR", "(10 - 300)"}};
                for (const auto& [device, range] : kRanges)
                {
                    robot.SelectText(IDC_SECOND_DEVICE, device);
                    EXPECT_EQ(robot.Text(IDC_SECOND_RANGE), range);
                }
            });
    const SWzdConstant words[] = {kHex};
    InProbe([&, word = With(words)](CWzdExchange* wx) { WDX_DeviceOperand(wx, word); },
            [](CDialogRobot& robot) {
                robot.SelectText(IDC_SECOND_DEVICE, "H");
                EXPECT_EQ(robot.Text(IDC_SECOND_RANGE), "(0 - FFFF)");
            });
}

TEST_F(CConstantRowsTest, AreReadInTheirNotationsAndRanges)
{
    const SWzdConstant constants[] = {kDecimal, kHex, kFloat};
    const SWzdConstant wide[] = {kDoubleHex};
    const struct
    {
        CWzdConstants constants;
        LPCSTR device;
        LPCSTR text;
        UINT message;
        SOperandRow operand;
    } kTexts[] = {
        {constants, "K", "-5", 0, {kK, -5}},
        {constants, "K", "300", 0, {kK, 300}},
        {constants, "K", "-6", IDS_ERR_INPUT_X, {}},
        {constants, "K", "301", IDS_ERR_INPUT_X, {}},
        {constants, "K", "4294967296", IDS_ERR_INPUT_X, {}},
        {constants, "K", "FF", IDS_ERR_NOT_A_NUMBER, {}},
        {constants, "K", "", IDS_ERR_NOT_A_NUMBER, {}},
        {constants, "H", "0", 0, {kH, 0}},
        {constants, "H", "ffff", 0, {kH, 0xFFFF}},
        {constants, "H", "00000000FFFF", 0, {kH, 0xFFFF}},
        {constants, "H", "10000", IDS_ERR_INPUT_X, {}},
        {constants, "H", "100000001", IDS_ERR_INPUT_X, {}}, // 1 in 32 bits
        {constants, "H", "-1", IDS_ERR_NOT_A_NUMBER, {}},
        {constants, "H", "", IDS_ERR_NOT_A_NUMBER, {}},
        {constants, "H", "1.5", IDS_ERR_NOT_A_NUMBER, {}},
        {wide, "H", "FFFFFFFF", 0, {kH, -1}},
        {wide, "H", "80000000", 0, {kH, INT_MIN}},
        {wide, "H", "100000000", IDS_ERR_INPUT_X, {}},
        {constants, "f", "-1.5", 0, {kF, static_cast<int>(0xBFC00000)}},
        {constants, "f", "0", 0, {kF, 0}},
        {constants, "f", "3.402822e38", 0, {kF, 0x7F7FFFF8}},
        {constants, "f", "3.402823e38", IDS_ERR_INPUT_X, {}},
        {constants, "f", "1,5", IDS_ERR_NOT_A_NUMBER, {}},
        {constants, "f", "12345678", IDS_ERR_NOT_A_NUMBER, {}},
        {constants, "DT", "300", 0, {kDT, 300}},
        {constants, "DT", "32765", IDS_ERR_INPUT_X, {}},
        {constants, "DT", "FF", IDS_ERR_NOT_A_NUMBER, {}},
    };
    for (const auto& [offered, device, text, message, operand] : Sampled(kTexts, 2))
    {
        const auto operands = Stored(With(offered), device, text, message);
        if (message == 0)
            EXPECT_EQ(operands, (std::vector<SOperandRow>{{0, 0}, operand})) << device << text;
        else
            EXPECT_EQ(operands, std::vector<SOperandRow>()) << device << text;
    }
}

TEST_F(CConstantRowsTest, AreRestoredInTheirNotations)
{
    const SWzdConstant constants[] = {kDecimal, kHex, kFloat};
    const SWzdRow row = With(constants);
    EXPECT_EQ(Restored(row, kK, -5), "K -5");
    EXPECT_EQ(Restored(row, kK, 1000), "K 1000"); // outside its range, to be seen
    EXPECT_EQ(Restored(row, kH, 0xAB), "H AB");
    EXPECT_EQ(Restored(row, kH, -1), "H FFFFFFFF");
    EXPECT_EQ(Restored(row, kF, 0x3DCCCCCD), "f 0.1");
    EXPECT_EQ(Restored(row, kF, 0x7FC00000), "f ");
    EXPECT_EQ(Restored(row, kDT, 7), "DT 7");
    EXPECT_EQ(Restored(kOperand, kDT, 7), "DT 7");
    EXPECT_EQ(Restored(row, -1, -1), "WR ");
}

// ---- Room behind a number -------------------------------------------------------------------------------------------

TEST_F(CConstantRowsTest, DevicesCanHaveToLeaveRoomBehindTheirNumber)
{
    SWzdRow row = kOperand;
    row.less = 20;
    InProbe([&](CWzdExchange* wx) { WDX_DeviceOperand(wx, row); },
            [](CDialogRobot& robot) {
                EXPECT_EQ(robot.Text(IDC_SECOND_RANGE), "(10 - 280)");
                robot.SelectText(IDC_SECOND_DEVICE, "DT");
                EXPECT_EQ(robot.Text(IDC_SECOND_RANGE), "(0 - 32744)");
            });
    EXPECT_EQ(Stored(row, "WR", "280").at(1), (SOperandRow{kWR, 280}));
    EXPECT_EQ(Stored(row, "WR", "10").at(1), (SOperandRow{kWR, 10}));
    Stored(row, "WR", "281", IDS_ERR_INPUT_X);
    Stored(row, "WR", "300", IDS_ERR_INPUT_X);
    Stored(row, "WR", "9", IDS_ERR_INPUT_X);
    row.shownLess = 5;
    InProbe([&](CWzdExchange* wx) { WDX_DeviceOperand(wx, row); },
            [](CDialogRobot& robot) { EXPECT_EQ(robot.Text(IDC_SECOND_RANGE), "(10 - 275)"); });
    EXPECT_EQ(Stored(row, "WR", "280").at(1), (SOperandRow{kWR, 280})) << "which is accepted all the same";
}

TEST_F(CConstantRowsTest, DevicesWithoutThatRoomAreNotListed)
{
    SWzdRow row = kOperand;
    const struct
    {
        int less;
        int low;
        int high;
        bool listed;
    } kDevices[] = {{290, 10, 300, true},
                    {291, 10, 300, false},
                    {1, 5, 5, false},
                    {0, 5, 5, true},
                    {0, 5, 4, true},
                    {1, INT_MIN, INT_MIN, false},
                    {1, INT_MIN, INT_MIN + 1, true},
                    {INT_MAX, 0, INT_MAX, true},
                    {INT_MAX, 1, INT_MAX, false}};
    for (const auto& [less, low, high, listed] : kDevices)
    {
        SetDeviceRange(m_wizard, kWR, low, high);
        SetDeviceRange(m_wizard, kDT, 0, INT_MAX);
        row.less = less;
        EXPECT_EQ(Listed(row), listed ? Texts({"WR", "DT"}) : Texts({"DT"})) << less << " of " << low << " to " << high;
    }
}

TEST_F(CConstantRowsTest, ConstantsNeedNoRoom)
{
    const SWzdConstant constants[] = {kDecimal};
    SWzdRow row = With(constants);
    row.less = 1000;
    EXPECT_EQ(Listed(row), Texts({"DT", "K"}));
    EXPECT_EQ(Stored(row, "K", "300").at(1), (SOperandRow{kK, 300}));
}
