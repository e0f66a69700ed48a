// What a confirmed dialog of F171 leaves in the wizard: every control code, every field, comments, and the ladder.
#include "tests/dialogs/pulse/SpdhTest.h"
#include "tests/support/Sampled.h"

namespace
{

class CSpdhResultsTest : public CSpdhTest, public testing::WithParamInterface<ESpdhVariant>
{
};

INSTANTIATE_TEST_SUITE_P(Variants, CSpdhResultsTest, testing::ValuesIn(kSpdhVariants), SpdhVariantName);

// ---- Control codes --------------------------------------------------------------------------------------------------

struct SItem
{
    const char* text;
    int code;
};

constexpr SItem kSteps[] = {{"30 steps", 0x00000}, {"60 steps", 0x10000}};
constexpr SItem kDuties[] = {{"Duty 1/2 (50%)", 0x0000}, {"Duty 1/4 (25%)", 0x1000}};
constexpr SItem kFrequencies[] = {{"1.5Hz to 9.8kHz", 0x000}, {"48Hz to 100kHz", 0x100}, {"191Hz to 100kHz", 0x200}};

const std::vector<SItem>& Modes(ESpdhVariant variant)
{
    static const std::vector<SItem> trapezoidal = {
        {"Incremental CW/CCW", 0x00},
        {"Incremental PLS+SIGN (forward off/reverse on)", 0x02},
        {"Incremental PLS+SIGN (forward on/reverse off)", 0x03},
        {"Absolute CW/CCW", 0x10},
        {"Absolute PLS+SIGN (forward off/reverse on)", 0x12},
        {"Absolute PLS+SIGN (forward on/reverse off)", 0x13},
    };
    static const std::vector<SItem> homeReturn = {
        {"Homing mode1  CW", 0x20},
        {"Homing mode1  CCW", 0x21},
        {"Homing mode1  Direction output off", 0x22},
        {"Homing mode1  Direction output on", 0x23},
        {"Homing mode1  CW + deviation counter reset", 0x24},
        {"Homing mode1  CCW + deviation counter reset", 0x25},
        {"Homing mode1  Direction output off + deviation counter reset", 0x26},
        {"Homing mode1  Direction output on + deviation counter reset", 0x27},
        {"Homing mode2  CW", 0x30},
        {"Homing mode2  CCW", 0x31},
        {"Homing mode2  Direction output off", 0x32},
        {"Homing mode2  Direction output on", 0x33},
        {"Homing mode2  CW + deviation counter reset", 0x34},
        {"Homing mode2  CCW + deviation counter reset", 0x35},
        {"Homing mode2  Direction output off + deviation counter reset", 0x36},
        {"Homing mode2  Direction output on + deviation counter reset", 0x37},
    };
    return variant == kSpdhTrapezoidal ? trapezoidal : homeReturn;
}

// Where one opening takes long, a part of the codes stands for all; the step takes every item in turn.
const int kStep = IsThorough() ? 1 : 11;

// Each code is stored, shown again, and stored again by the next OK.
TEST_P(CSpdhResultsTest, HoldTheCodeOfEveryCombination)
{
    const std::vector<SItem>& modes = Modes(GetParam());
    const int count = 2 * 2 * 3 * static_cast<int>(modes.size());
    for (int i = 0; i < count; i += kStep)
    {
        const SItem& steps = kSteps[i % 2];
        const SItem& duty = kDuties[i / 2 % 2];
        const SItem& frequency = kFrequencies[i / 4 % 3];
        const SItem& mode = modes[static_cast<size_t>(i / 12)];
        const int code = steps.code + duty.code + frequency.code + mode.code;
        SCOPED_TRACE(testing::Message() << "code " << std::hex << code);
        Confirm(GetParam(), [&](CDialogRobot& dialog) {
            FillIn(dialog, {});
            dialog.SelectText(2254, steps.text);
            dialog.SelectText(2255, duty.text);
            dialog.SelectText(2256, frequency.text);
            dialog.SelectText(2257, mode.text);
        });
        SResults expected = SpdhResults(GetParam(), {});
        expected.data[0].value = code;
        ASSERT_EQ(ReadResults(m_wizard), expected);
        Confirm(GetParam(), [&](CDialogRobot& dialog) {
            EXPECT_EQ(dialog.Text(2254), CString(steps.text));
            EXPECT_EQ(dialog.Text(2255), CString(duty.text));
            EXPECT_EQ(dialog.Text(2256), CString(frequency.text));
            EXPECT_EQ(dialog.Text(2257), CString(mode.text));
        });
        ASSERT_EQ(ReadResults(m_wizard), expected);
    }
}

TEST_F(CSpdhTest, ComposesTheCodeFromItsLists)
{
    EXPECT_EQ(Confirmed(kSpdhTrapezoidal, {.steps = 1, .duty = 1, .frequency = 2, .mode = 3}).data[0],
              (SDataRow{9, 100, 1, 1, 0x11210}));
}

// The code ends before the first list, in the order of the lists, that has no selection.
TEST_P(CSpdhResultsTest, HoldTheCodeUpToAListWithoutSelection)
{
    const int mode = SpdhModes(GetParam())[5];
    const struct
    {
        UINT combo;
        int code;
    } kEnds[] = {{2254, 0}, {2255, 0x10000}, {2256, 0x11000}, {2257, 0x11200}, {2251, 0x11200 + mode}};
    for (const auto& [combo, code] : kEnds)
    {
        Confirm(GetParam(), [&, list = combo](CDialogRobot& dialog) {
            FillIn(dialog, {.steps = 1, .duty = 1, .frequency = 2, .mode = 5});
            if (list != 2251)
                SelectByProgram(dialog, list, -1);
            if (list == 2256) // then the only speed is 0
            {
                dialog.Type(2261, "0");
                dialog.Type(2262, "0");
            }
        });
        EXPECT_EQ(ReadResults(m_wizard).data[0], (SDataRow{9, 100, 1, 1, code})) << "without " << combo;
    }
}

// ---- Fields ---------------------------------------------------------------------------------------------------------

TEST_P(CSpdhResultsTest, HoldEveryFieldInItsPlace)
{
    const SSpdhEntries kEntries[] = {
        {},
        {.device = kX, .contact = "0", .start = "0", .initial = "1", .maximum = "1", .time = "30", .clear = "0"},
        {.device = kY, .contact = "109F", .start = "32753", .initial = "9800", .maximum = "9800", .time = "32767"},
        {.device = kSpecialR, .contact = "901A", .channel = 1, .frequency = 1, .initial = "48", .maximum = "100000"},
        {.device = kT, .contact = "1007", .channel = 2, .frequency = 2, .initial = "20000", .maximum = "191"},
        {.device = kC, .contact = "1008", .channel = 3, .duty = 1, .target = "-2147483648", .clear = "100"},
        {.device = kL, .contact = "7F", .steps = 1, .mode = 4, .time = "60", .target = "2147483647", .clear = "1"},
        {.initial = "9800", .maximum = "1", .onlyDataTable = true}, // no field is compared with another
    };
    for (const SSpdhEntries& entries : kEntries)
    {
        EXPECT_EQ(Confirmed(GetParam(), entries), SpdhResults(GetParam(), entries));
        EXPECT_EQ(m_wizard.IsOnlyDataTable(), entries.onlyDataTable ? 1 : 0);
    }
}

TEST_P(CSpdhResultsTest, ReplaceTheListsAndLeaveTheInstructionsAlone)
{
    WriteResults(m_wizard, {.contacts = {{2, 3, 1}, {17, -1, 0}, {3, 2, 5}},
                            .operands = {{9, 1}, {11, 1}, {11, 7}},
                            .data = std::vector<SDataRow>(40, {9, 1, 0, 0, 7}),
                            .comments = {"a", "b", "c", "d", "e", "f", "g"},
                            .instructions = {{8, -1, 171, 0, 0}}});
    SResults expected = SpdhResults(GetParam(), {});
    expected.instructions = {{8, -1, 171, 0, 0}};
    EXPECT_EQ(Confirmed(GetParam(), {}), expected);
}

TEST_P(CSpdhResultsTest, AreCompleteOnceThereIsMemory)
{
    Confirm(GetParam(), [](CDialogRobot& dialog) {
        FillIn(dialog, {});
        EXPECT_GT(ConfirmShortOfMemory(dialog), 10) << "OK allocates more than that";
    });
    EXPECT_EQ(ReadResults(m_wizard), SpdhResults(GetParam(), {}));
}

// ---- Comments -------------------------------------------------------------------------------------------------------

TEST_P(CSpdhResultsTest, KeepTheOldCommentsWhenNoneAreWanted)
{
    m_wizard.AddCmtInfo("of the host");
    m_wizard.SetCmtRec(0);
    SResults expected = SpdhResults(GetParam(), {});
    expected.comments = {"of the host"};
    EXPECT_EQ(Confirmed(GetParam(), {}), expected);
    m_wizard.SetCmtRec(1);
    EXPECT_EQ(Confirmed(GetParam(), {}), SpdhResults(GetParam(), {}));
}

TEST_P(CSpdhResultsTest, TakeTheCommentsFromTheLabels)
{
    const UINT kEdits[] = {2261, 2262, 2259, SpdhLastEdit(GetParam())};
    Confirm(GetParam(), [&](CDialogRobot& dialog) {
        FillIn(dialog, {});
        for (UINT edit : kEdits)
            ControlBefore(dialog, edit)->SetWindowText(("before " + std::to_string(edit)).c_str());
    });
    std::vector<std::string> expected = {"Control code"};
    for (UINT edit : kEdits)
        expected.push_back("before " + std::to_string(edit));
    EXPECT_EQ(ReadResults(m_wizard).comments, expected);
}

// ---- From the selection to the ladder -------------------------------------------------------------------------------

TEST_P(CSpdhResultsTest, LeadToTheLadder)
{
    m_wizard.ClearSuppportFunInfo();
    m_wizard.EntrySupportFunInfo(171);
    const SSpdhEntries entries = {.channel = 3, .steps = 1, .duty = 1, .frequency = 2, .mode = 4, .maximum = "20000"};
    for (bool only : {false, true})
    {
        const int result = Play([this] { return m_wizard.DoOpenPosDlg(0, 1, nullptr); },
                                {[](CDialogRobot& selection) {
                                     ASSERT_EQ(selection.Items(IDC_SELECT_LIST).size(), 2u);
                                     selection.Select(IDC_SELECT_LIST, GetParam());
                                     selection.Click(IDOK);
                                 },
                                 [&](CDialogRobot& dialog) {
                                     EXPECT_EQ(dialog.Caption(), CString("F171 (SPDH)"));
                                     FillIn(dialog, entries);
                                     if (only)
                                         dialog.Check(2061);
                                     EXPECT_EQ(dialog.ClickAndAnswer(IDOK), CString());
                                 }});
        ASSERT_EQ(result, IDOK);
        const bool trapezoidal = GetParam() == kSpdhTrapezoidal;
        std::vector<SInstructionRow> expected = {{2, 1, 170, 0, 0}, {17, -1, 0, 0, 0}};
        const auto transfer = [&](int constant, int value, int number) {
            expected.insert(expected.end(), {{8, -1, 1, 0, 0}, {-1, constant, value, 0, 0}, {-1, 9, number, 0, 0}});
        };
        transfer(12, trapezoidal ? 0x11212 : 0x11224, 100);
        transfer(11, 500, 102);
        transfer(11, 20000, 104);
        transfer(11, 300, 106);
        transfer(11, trapezoidal ? 100000 : 50, 108);
        if (trapezoidal)
            transfer(11, 0, 110);
        if (!only)
            expected.insert(expected.end(), {{8, -1, 171, 0, 0}, {-1, 9, 100, 0, 0}, {-1, 11, 15, 0, 0}});
        EXPECT_EQ(m_wizard.CreateInstCode(), 1);
        EXPECT_EQ(ReadResults(m_wizard).instructions, expected);
    }
}

TEST_F(CSpdhTest, ForgetsTheOtherVariant)
{
    m_wizard.ClearSuppportFunInfo();
    m_wizard.EntrySupportFunInfo(171);
    const auto choose = [](ESpdhVariant variant) {
        return [variant](CDialogRobot& selection) {
            selection.Select(IDC_SELECT_LIST, variant);
            selection.Click(IDOK);
        };
    };
    Play([this] { return m_wizard.DoOpenPosDlg(0, 1, nullptr); }, {choose(kSpdhTrapezoidal), [](CDialogRobot& dialog) {
                                                                       FillIn(dialog, {});
                                                                       EXPECT_EQ(dialog.ClickAndAnswer(IDOK),
                                                                                 CString());
                                                                   }});
    EXPECT_EQ(ReadResults(m_wizard), SpdhResults(kSpdhTrapezoidal, {}));
    Play([this] { return m_wizard.DoOpenPosDlg(0, 1, nullptr); },
         {choose(kSpdhHome),
          [](CDialogRobot& dialog) {
              EXPECT_EQ(dialog.Text(2251), CString());
              EXPECT_EQ(dialog.Text(2261), CString());
              dialog.Click(IDCANCEL);
          },
          [](CDialogRobot& selection) { selection.Click(IDCANCEL); }});
    const SResults results = ReadResults(m_wizard);
    EXPECT_TRUE(results.contacts.empty() && results.operands.empty() && results.data.empty());
    EXPECT_EQ(results.comments.size(), 5u);
}

} // namespace
