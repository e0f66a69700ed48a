// The dialog of F171 as it comes up: controls, texts, items, limits, where its table may start, and the keyboard.
#include "dialogs/pulse/SpdhDlg.h"
#include "tests/dialogs/pulse/SpdhTest.h"

namespace
{

class CSpdhControlsTest : public CSpdhTest, public testing::WithParamInterface<ESpdhVariant>
{
protected:
    bool IsTrapezoidal() const { return GetParam() == kSpdhTrapezoidal; }
};

INSTANTIATE_TEST_SUITE_P(Variants, CSpdhControlsTest, testing::ValuesIn(kSpdhVariants), SpdhVariantName);

std::vector<SShownControl> ExpectedControls(bool trapezoidal)
{
    std::vector<SShownControl> controls = {
        {kSharedId, "Static",
         trapezoidal ? "SPDH (171)\tPulse output (with channel specification) (Trapezoidal control)"
                     : "SPDH (171)\tPulse output (with channel specification) (Home position return)"},
        {2061, "Button", "Only a data table is created."},
        {kSharedId, "Static", "Starting condition contact"},
        {2051, "ComboBox", "X"},
        {2052, "Edit", ""},
        {2053, "Static", "(0 - 109F)"},
        {kSharedId, "Static", "Data table starting address"},
        {2251, "Edit", ""},
        {2252, "Static", trapezoidal ? "(0 - 32753)" : "(0 - 32755)"},
        {kSharedId, "Static", "The channel for a pulse output"},
        {2253, "ComboBox", "ch1"},
        {kSharedId, "Static",
         trapezoidal ? "Number of acceleration/deceleration steps" : "Acceleration/Deceleration steps"},
        {2254, "ComboBox", "30 steps"},
        {kSharedId, "Static", "Duty (on width)"},
        {2255, "ComboBox", "Duty 1/2 (50%)"},
        {kSharedId, "Static", "Frequency range"},
        {2256, "ComboBox", "1.5Hz to 9.8kHz"},
        {kSharedId, "Static", "Operation mode and output method"},
        {2257, "ComboBox", trapezoidal ? "Incremental CW/CCW" : "Homing mode1  CW"},
        {kSharedId, "Static", "Initial speed"},
        {2261, "Edit", ""},
        {kSharedId, "Static", "Hz"},
        {2258, "Static", "(1 - 9800)"},
        {kSharedId, "Static", "Maximum speed"},
        {2262, "Edit", ""},
        {kSharedId, "Static", "Hz"},
        {2263, "Static", "(1 - 9800)"},
        {kSharedId, "Static", "Acceleration/deceleration time"},
        {2259, "Edit", ""},
        {kSharedId, "Static", "ms"},
        {2264, "Static", "(30 - 32767)"},
    };
    if (trapezoidal)
        controls.insert(controls.end(), {{kSharedId, "Static", "Target value"},
                                         {2260, "Edit", ""},
                                         {kSharedId, "Static", "Pulse No."},
                                         {kSharedId, "Static", "(-2147483648 - 2147483647)"}});
    else
        controls.insert(controls.end(), {{kSharedId, "Static", "Deviation counter clear signal"},
                                         {2265, "Edit", ""},
                                         {kSharedId, "Static", "ms"},
                                         {kSharedId, "Static", "(0, 1 - 100)  0: Not using"}});
    controls.insert(controls.end(),
                    {{1, "Button", "&OK"}, {2, "Button", "&Back"}, {2099, "Button", "&Clear settings"}});
    return controls;
}

TEST_P(CSpdhControlsTest, ComesUpWithoutAnEarlierRun)
{
    Leave(GetParam(), [this](CDialogRobot& dialog) {
        EXPECT_EQ(dialog.Caption(), CString("F171 (SPDH)"));
        ExpectControls(dialog, ExpectedControls(IsTrapezoidal()));
        EXPECT_EQ(dialog.FocusId(), 2061u);
        EXPECT_FALSE(dialog.Checked(2061));
    });
}

TEST_P(CSpdhControlsTest, ListsItsItems)
{
    Leave(GetParam(), [this](CDialogRobot& dialog) {
        EXPECT_EQ(dialog.Items(2051), (Texts{"X", "Y", "R", "Sp.R", "T", "C", "L"}));
        EXPECT_EQ(dialog.Items(2254), (Texts{"30 steps", "60 steps"}));
        EXPECT_EQ(dialog.Items(2255), (Texts{"Duty 1/2 (50%)", "Duty 1/4 (25%)"}));
        EXPECT_EQ(dialog.Items(2256), (Texts{"1.5Hz to 9.8kHz", "48Hz to 100kHz", "191Hz to 100kHz"}));
        const Texts trapezoidal = {"Incremental CW/CCW",
                                   "Incremental PLS+SIGN (forward off/reverse on)",
                                   "Incremental PLS+SIGN (forward on/reverse off)",
                                   "Absolute CW/CCW",
                                   "Absolute PLS+SIGN (forward off/reverse on)",
                                   "Absolute PLS+SIGN (forward on/reverse off)"};
        const Texts homeReturn = {"Homing mode1  CW",
                                  "Homing mode1  CCW",
                                  "Homing mode1  Direction output off",
                                  "Homing mode1  Direction output on",
                                  "Homing mode1  CW + deviation counter reset",
                                  "Homing mode1  CCW + deviation counter reset",
                                  "Homing mode1  Direction output off + deviation counter reset",
                                  "Homing mode1  Direction output on + deviation counter reset",
                                  "Homing mode2  CW",
                                  "Homing mode2  CCW",
                                  "Homing mode2  Direction output off",
                                  "Homing mode2  Direction output on",
                                  "Homing mode2  CW + deviation counter reset",
                                  "Homing mode2  CCW + deviation counter reset",
                                  "Homing mode2  Direction output off + deviation counter reset",
                                  "Homing mode2  Direction output on + deviation counter reset"};
        EXPECT_EQ(dialog.Items(2257), IsTrapezoidal() ? trapezoidal : homeReturn);
        for (UINT combo : {2051, 2253, 2254, 2255, 2256, 2257})
            EXPECT_EQ(dialog.Selection(combo), 0) << "of list " << combo;
    });
}

TEST_P(CSpdhControlsTest, LimitsWhatIsTyped)
{
    Leave(GetParam(), [this](CDialogRobot& dialog) {
        ExpectLimits(dialog, {{2052, 4}, {2251, 5}, {2261, 6}, {2262, 6}, {2259, 5}});
        ExpectLimits(dialog, {{SpdhLastEdit(GetParam()), IsTrapezoidal() ? 11 : 3}});
        EXPECT_EQ(dialog.Exists(2260), IsTrapezoidal());
        EXPECT_EQ(dialog.Exists(2265), !IsTrapezoidal());
    });
}

// ---- Where the table may start --------------------------------------------------------------------------------------

struct SRegisters
{
    int low;
    int high;
    const char* trapezoidal; // the label; null: no room for the table
    int trapezoidalLimit;
    const char* homeReturn;
    int homeLimit;
};

constexpr SRegisters kRegisters[] = {
    {0, 32764, "(0 - 32753)", 5, "(0 - 32755)", 5},
    {0, 11, "(0 - 0)", 1, "(0 - 2)", 1},
    {0, 20, "(0 - 9)", 1, "(0 - 11)", 2},
    {0, 108, "(0 - 97)", 2, "(0 - 99)", 2},
    {0, 109, "(0 - 98)", 2, "(0 - 100)", 3},
    {100, 111, "(100 - 100)", 3, "(100 - 102)", 3},
    {100, 110, nullptr, 0, "(100 - 101)", 3},
    {100, 109, nullptr, 0, "(100 - 100)", 3},
    {100, 108, nullptr, 0, nullptr, 0},
    {5, 4, nullptr, 0, nullptr, 0},
    {2147483630, 2147483647, "(2147483630 - 2147483636)", 10, "(2147483630 - 2147483638)", 10},
    {-2147483647 - 1, -2147483647 - 1, nullptr, 0, nullptr, 0},
};

TEST_P(CSpdhControlsTest, ShowsWhereTheTableMayStart)
{
    for (const SRegisters& registers : kRegisters)
    {
        SCOPED_TRACE(testing::Message() << "registers " << registers.low << " to " << registers.high);
        SetDeviceRange(m_wizard, kDT, registers.low, registers.high);
        const char* label = IsTrapezoidal() ? registers.trapezoidal : registers.homeReturn;
        Leave(GetParam(), [&](CDialogRobot& dialog) {
            EXPECT_EQ(dialog.Text(2252), CString(label != nullptr ? label : "Impossible settings"));
            if (label == nullptr)
            {
                ExpectOnlyFirstAndBack(dialog);
                EXPECT_GE(dialog.Limit(2251), 30000) << "without a range there is no limit";
                return;
            }
            EXPECT_EQ(dialog.Limit(2251), IsTrapezoidal() ? registers.trapezoidalLimit : registers.homeLimit);
            EXPECT_TRUE(dialog.Enabled(IDOK));
        });
    }
}

TEST_P(CSpdhControlsTest, OnlyBackIsLeftWithoutRegisters)
{
    CFunWizard wizard;
    SetDeviceRange(wizard, kR, 0, 100);
    for (int channel : {0, 1})
        wizard.SetChannelNo(channel, 171);
    wizard.ClearSuppportFunInfo();
    wizard.EntrySupportFunInfo(171);
    Play([&] { return wizard.DoOpenPosDlg(0, 1, nullptr); },
         {[](CDialogRobot& selection) {
              selection.Select(IDC_SELECT_LIST, GetParam());
              selection.Click(IDOK);
          },
          [](CDialogRobot& dialog) {
              ExpectOnlyFirstAndBack(dialog);
              EXPECT_EQ(dialog.Text(2252), CString("Impossible settings"));
              dialog.PressKey(VK_RETURN); // OK cannot be meant
              EXPECT_TRUE(dialog.MessageBoxes().empty());
              if (dialog.IsOpen())
                  dialog.Click(IDCANCEL);
          },
          [](CDialogRobot& selection) { selection.Click(IDCANCEL); }});
    EXPECT_EQ(ReadResults(wizard), SResults());
}

// ---- The keyboard ---------------------------------------------------------------------------------------------------

TEST_P(CSpdhControlsTest, TabGoesThroughTheFieldsInReadingOrder)
{
    Leave(GetParam(), [](CDialogRobot& dialog) {
        ExpectTabOrder(dialog, {2061, 2051, 2052, 2251, 2253, 2254, 2255, 2256, 2257, 2261, 2262, 2259,
                                SpdhLastEdit(GetParam()), 1, 2, 2099});
    });
}

TEST_P(CSpdhControlsTest, EnterConfirmsAndEscLeaves)
{
    Confirm(GetParam(), [](CDialogRobot& dialog) {
        FillIn(dialog, {});
        dialog.Focus(2262);
        EXPECT_EQ(dialog.Answering(IDOK, [&] { dialog.PressKey(VK_RETURN); }), CString());
        EXPECT_FALSE(dialog.IsOpen());
    });
    const SResults confirmed = ReadResults(m_wizard);
    EXPECT_EQ(confirmed, SpdhResults(GetParam(), {}));
    Leave(GetParam(), [](CDialogRobot& dialog) {
        FillIn(dialog, {.contact = "1", .start = "7", .steps = 1});
        dialog.PressKey(VK_ESCAPE);
        EXPECT_FALSE(dialog.IsOpen());
    });
    EXPECT_EQ(ReadResults(m_wizard), confirmed);
}

TEST_F(CSpdhTest, DoesNotOpenWithoutAWizard)
{
    for (ESpdhVariant variant : kSpdhVariants)
    {
        const auto open = [&] { return static_cast<int>(CSpdhDlg(nullptr, variant == kSpdhHome, nullptr).DoModal()); };
        EXPECT_EQ(Play(open, {}), IDCANCEL);
    }
    EXPECT_TRUE(m_robot.MessageBoxes().empty());
}

} // namespace
