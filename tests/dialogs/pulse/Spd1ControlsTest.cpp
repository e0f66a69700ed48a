// The dialog of F168 as it comes up: controls, texts, items, ranges, limits, and the way around it by keyboard.
#include "tests/dialogs/pulse/Spd1Test.h"

namespace
{

using Texts = std::vector<CString>;

class CSpd1ControlsTest : public CSpd1Test, public testing::WithParamInterface<ESpd1Variant>
{
protected:
    bool IsTrapezoidal() const { return GetParam() == kTrapezoidal; }
};

INSTANTIATE_TEST_SUITE_P(Variants, CSpd1ControlsTest, testing::ValuesIn(kVariants),
                         [](const auto& variant) { return variant.param == kTrapezoidal ? "Trapezoidal" : "Home"; });

std::vector<SShownControl> ExpectedControls(ESpd1Variant variant)
{
    const bool trapezoidal = variant == kTrapezoidal;
    std::vector<SShownControl> controls = {
        {kSharedId, "Static",
         trapezoidal ? "SPD1 (168)\tPositioning control (Trapezoidal control)"
                     : "SPD1 (168)\tPositioning control (Home position return)"},
        {2061, "Button", "Only a data table is created."},
        {kSharedId, "Static", "Starting condition contact"},
        {2051, "ComboBox", "X"},
        {2052, "Edit", ""},
        {2053, "Static", "(0 - 109F)"},
        {kSharedId, "Static", "Data table starting address"},
        {2101, "Edit", ""},
        {2102, "Static", trapezoidal ? "(0 - 32758)" : "(0 - 32761)"},
        {kSharedId, "Static", "Candidate for a pulse output"},
        {2103, "ComboBox", "Y0"},
        {kSharedId, "Static", "Pulse width specification"},
        {2104, "ComboBox", "Duty 50%"},
        {kSharedId, "Static", "Operation mode and directional output theory"},
        {2105, "ComboBox",
         trapezoidal ? "Incremental  Does not use directional output" : "Homing mode1  No directional output"},
        {kSharedId, "Static", "Initial speed"},
        {2106, "Edit", ""},
        {kSharedId, "Static", "Hz"},
        {kSharedId, "Static", "(40 - 5000)"},
        {kSharedId, "Static", "Maximum speed"},
        {2107, "Edit", ""},
        {kSharedId, "Static", "Hz"},
        {2109, "Static", "(40 - 6000)"},
        {kSharedId, "Static", "Acceleration/deceleration time"},
        {2108, "Edit", ""},
        {kSharedId, "Static", "ms"},
        {kSharedId, "Static", "(30 - 32767)"},
    };
    if (trapezoidal)
    {
        controls.insert(controls.end(), {{kSharedId, "Static", "Target value"},
                                         {2110, "Edit", ""},
                                         {kSharedId, "Static", "Pulse No."},
                                         {kSharedId, "Static", "(-8388608 - 8388607)"}});
    }
    controls.insert(controls.end(),
                    {{1, "Button", "&OK"}, {2, "Button", "&Back"}, {2099, "Button", "&Clear settings"}});
    return controls;
}

TEST_P(CSpd1ControlsTest, ComesUpWithoutAnEarlierRun)
{
    Leave(GetParam(), [](CDialogRobot& dialog) {
        EXPECT_EQ(dialog.Caption(), CString("F168 (SPD1)"));
        ExpectControls(dialog, ExpectedControls(GetParam()));
        EXPECT_EQ(dialog.FocusId(), UINT{IDC_ONLY_DATA_TABLE});
        EXPECT_FALSE(dialog.Checked(IDC_ONLY_DATA_TABLE));
    });
}

TEST_P(CSpd1ControlsTest, ListsItsItems)
{
    Leave(GetParam(), [this](CDialogRobot& dialog) {
        EXPECT_EQ(dialog.Items(2051), (Texts{"X", "Y", "R", "Sp.R", "T", "C", "L"}));
        EXPECT_EQ(dialog.Items(2103), (Texts{"Y0", "Y1"}));
        EXPECT_EQ(dialog.Items(2104), (Texts{"Duty 50%", "Fixed pulse width (approx80us)"}));
        const Texts trapezoidal = {"Incremental  Does not use directional output",
                                   "Incremental  forward off/reverse on",
                                   "Incremental  forward on/reverse off",
                                   "absolute  Does not use directional output",
                                   "absolute  forward off/reverse on",
                                   "absolute  forward on/reverse off"};
        const Texts homeReturn = {"Homing mode1  No directional output",
                                  "Homing mode1  directional output off",
                                  "Homing mode1  directional output on",
                                  "Homing mode2  No directional output",
                                  "Homing mode2  output off",
                                  "Homing mode2  output on"};
        EXPECT_EQ(dialog.Items(2105), IsTrapezoidal() ? trapezoidal : homeReturn);
        for (UINT combo : {2051, 2103, 2104, 2105})
            EXPECT_EQ(dialog.Selection(combo), 0) << "of list " << combo;
    });
}

TEST_P(CSpd1ControlsTest, LimitsWhatIsTyped)
{
    const struct
    {
        UINT edit;
        int limit;
    } kEdits[] = {{2052, 4}, {2101, 5}, {2106, 4}, {2107, 4}, {2108, 5}, {2110, 8}};

    Leave(GetParam(), [&](CDialogRobot& dialog) {
        for (const auto& [edit, limit] : kEdits)
        {
            if (!dialog.Exists(edit))
                continue;
            EXPECT_EQ(dialog.Limit(edit), limit) << "of edit " << edit;
            dialog.Type(edit, "1234567890");
            EXPECT_EQ(dialog.Text(edit), CString("1234567890").Left(limit)) << "typed into edit " << edit;
        }
        EXPECT_EQ(dialog.Exists(2110), IsTrapezoidal());
    });
}

struct SStartLimit
{
    int lastRegister;
    int trapezoidal; // digits of the highest start
    int homeReturn;
};

// The limit of the start address is as long as its highest value, not as the highest register.
constexpr SStartLimit kStartLimits[] = {
    {9, 1, 1},   {12, 1, 1},    {13, 1, 2},    {15, 1, 2},    {16, 2, 2},    {102, 2, 2},    {103, 2, 3},
    {106, 3, 3}, {10002, 4, 4}, {10003, 4, 5}, {10006, 5, 5}, {32764, 5, 5}, {100005, 5, 6}, {2147483647, 10, 10}};

TEST_P(CSpd1ControlsTest, LimitsTheStartToTheDigitsOfItsHighestValue)
{
    for (const SStartLimit& limit : kStartLimits)
    {
        SetDeviceRange(m_wizard, kDT, 0, limit.lastRegister);
        Leave(GetParam(), [&](CDialogRobot& dialog) {
            EXPECT_EQ(dialog.Limit(2101), IsTrapezoidal() ? limit.trapezoidal : limit.homeReturn)
                << "with registers up to " << limit.lastRegister;
        });
    }
}

struct SStartLabel
{
    int low;
    int high;
    const char* trapezoidal; // null: no room for the table
    const char* homeReturn;
};

constexpr SStartLabel kStartLabels[] = {
    {0, 32764, "(0 - 32758)", "(0 - 32761)"},
    {100, 106, "(100 - 100)", "(100 - 103)"},
    {100, 105, nullptr, "(100 - 102)"},
    {100, 103, nullptr, "(100 - 100)"},
    {100, 102, nullptr, nullptr},
    {5, 4, nullptr, nullptr},
    {0, -1, nullptr, nullptr},
    {2147483640, 2147483647, "(2147483640 - 2147483641)", "(2147483640 - 2147483644)"},
    {-2147483647 - 1, -2147483647 - 1, nullptr, nullptr},
};

TEST_P(CSpd1ControlsTest, ShowsWhereTheTableMayStart)
{
    for (const SStartLabel& label : kStartLabels)
    {
        SCOPED_TRACE(testing::Message() << "registers " << label.low << " to " << label.high);
        SetDeviceRange(m_wizard, kDT, label.low, label.high);
        const char* expected = IsTrapezoidal() ? label.trapezoidal : label.homeReturn;
        Leave(GetParam(), [&](CDialogRobot& dialog) {
            EXPECT_EQ(dialog.Text(2102), CString(expected != nullptr ? expected : "Impossible settings"));
            EXPECT_EQ(dialog.Enabled(IDOK), expected != nullptr);
        });
    }
}

void ExpectOnlyBack(CDialogRobot& dialog)
{
    const std::vector<SRobotControl> controls = dialog.Controls();
    for (size_t i = 0; i < controls.size(); ++i)
        EXPECT_EQ(controls[i].enabled, i == 0 || controls[i].id == IDCANCEL) << "control " << i;
    EXPECT_EQ(dialog.Text(2102), CString("Impossible settings"));
    EXPECT_GE(dialog.Limit(2101), 30000) << "without a range there is no limit";
}

TEST_P(CSpd1ControlsTest, OnlyBackIsLeftWithTooFewRegisters)
{
    SetDeviceRange(m_wizard, kDT, 100, IsTrapezoidal() ? 105 : 102);
    Leave(GetParam(), ExpectOnlyBack);
    EXPECT_EQ(ReadResults(m_wizard), SResults());
}

TEST_P(CSpd1ControlsTest, OnlyBackIsLeftWithoutRegisters)
{
    CFunWizard wizard;
    SetDeviceRange(wizard, kR, 0, 100);
    wizard.EntrySupportFunInfo(168);
    Play([&] { return wizard.DoOpenPosDlg(0, 1, nullptr); },
         {Choose(GetParam()),
          [](CDialogRobot& dialog) {
              ExpectOnlyBack(dialog);
              dialog.PressKey(VK_RETURN); // OK cannot be meant
              EXPECT_TRUE(dialog.MessageBoxes().empty());
              if (dialog.IsOpen())
                  dialog.Click(IDCANCEL);
          },
          [](CDialogRobot& selection) { selection.Click(IDCANCEL); }});
    EXPECT_EQ(ReadResults(wizard), SResults());
}

// ---- The keyboard ---------------------------------------------------------------------------------------------------

std::vector<UINT> TabOrder(ESpd1Variant variant)
{
    if (variant == kTrapezoidal)
        return {2061, 2051, 2052, 2101, 2103, 2104, 2105, 2106, 2107, 2108, 2110, 1, 2, 2099};
    return {2061, 2051, 2052, 2101, 2103, 2104, 2105, 2106, 2107, 2108, 1, 2, 2099};
}

TEST_P(CSpd1ControlsTest, TabGoesThroughTheFieldsInReadingOrder)
{
    Leave(GetParam(), [](CDialogRobot& dialog) { ExpectTabOrder(dialog, TabOrder(GetParam())); });
}

TEST_P(CSpd1ControlsTest, TabPassesOverTheOutputOfATableAlone)
{
    Leave(GetParam(), [](CDialogRobot& dialog) {
        dialog.Check(IDC_ONLY_DATA_TABLE);
        dialog.Focus(IDC_SPD1_START);
        dialog.PressKey(VK_TAB);
        EXPECT_EQ(dialog.FocusId(), UINT{IDC_SPD1_WIDTH});
    });
}

TEST_P(CSpd1ControlsTest, EnterConfirms)
{
    Confirm(GetParam(), [](CDialogRobot& dialog) {
        FillIn(dialog, {});
        dialog.Focus(IDC_SPD1_MAXIMUM);
        EXPECT_EQ(dialog.Answering(IDOK, [&] { dialog.PressKey(VK_RETURN); }), CString());
        EXPECT_FALSE(dialog.IsOpen());
    });
    EXPECT_EQ(m_wizard.GetContInfoCount(), 1);
}

TEST_P(CSpd1ControlsTest, EnterIsRefusedAsAClickIs)
{
    Leave(GetParam(), [](CDialogRobot& dialog) {
        dialog.Focus(IDC_SPD1_MAXIMUM);
        EXPECT_EQ(dialog.Answering(IDOK, [&] { dialog.PressKey(VK_RETURN); }), CString(MessageText(20001).c_str()));
        EXPECT_TRUE(dialog.IsOpen());
        EXPECT_EQ(dialog.FocusId(), UINT{IDC_CONTACT_NUMBER});
    });
}

TEST_P(CSpd1ControlsTest, EnterOnBackGoesBack)
{
    Leave(GetParam(), [](CDialogRobot& dialog) {
        FillIn(dialog, {});
        dialog.Focus(IDCANCEL);
        dialog.PressKey(VK_RETURN);
        EXPECT_FALSE(dialog.IsOpen());
    });
    EXPECT_EQ(ReadResults(m_wizard), SResults());
}

TEST_P(CSpd1ControlsTest, EscGoesBack)
{
    Leave(GetParam(), [](CDialogRobot& dialog) {
        FillIn(dialog, {});
        dialog.PressKey(VK_ESCAPE);
        EXPECT_FALSE(dialog.IsOpen());
    });
    EXPECT_EQ(ReadResults(m_wizard), SResults());
}

} // namespace
