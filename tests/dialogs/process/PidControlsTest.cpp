// The dialog of F355 as it comes up: controls, texts, items, limits, where the table may start, help, and the keyboard.
#include "dialogs/process/PidDlg.h"
#include "tests/dialogs/process/PidTest.h"

namespace
{

using CPidControlsTest = CPidTest;

void AddParameter(std::vector<SShownControl>& controls, const SPidParameterRow& parameter)
{
    controls.insert(controls.end(), {{parameter.check, "Button", parameter.name},
                                     {parameter.edit, "Edit", parameter.initial, parameter.used},
                                     {kSharedId, "Static", parameter.range, parameter.used}});
}

std::vector<SShownControl> ExpectedControls()
{
    std::vector<SShownControl> controls = {
        {2061, "Button", "Only a parameter table is created."},
        {kSharedId, "Static", "Starting condition contact"},
        {2051, "ComboBox", "X"},
        {2052, "Edit", ""},
        {2053, "Static", "(0 - 109F)"},
        {kSharedId, "Static", "Parameter table starting address"},
        {kSharedId, "Static", "DT"},
        {2801, "Edit", ""},
        {2802, "Static", "(0 - 32735)"},
        {kSharedId, "Static", "Control mode"},
        {kSharedId, "Static", "Auto-tuning"},
        {2805, "ComboBox", "Not executed"},
        {2803, "ComboBox", "Derivative type"},
        {2804, "ComboBox", "Reverse operation"},
    };
    AddParameter(controls, kPid[kSp]);
    controls.insert(controls.end(), {{kSharedId, "Static", "Measured value (PV)"},
                                     {2807, "Static", ""},
                                     {kSharedId, "Static", "Output value (MV)"},
                                     {2808, "Static", ""}});
    for (size_t i = kLower; i < kPidParameters; ++i)
        AddParameter(controls, kPid[i]);
    controls.insert(controls.end(), {{kSharedId, "Static", "Work area"},
                                     {2815, "Static", ""},
                                     {3001, "Button", "I/O comment is registered automatically."},
                                     {1, "Button", "&OK"},
                                     {2, "Button", "Cancel"},
                                     {2003, "Button", "&Help", false, false}});
    return controls;
}

TEST_F(CPidControlsTest, ComeUpWithoutAnEarlierRun)
{
    Leave([](CDialogRobot& dialog) {
        EXPECT_EQ(dialog.Caption(), CString("PID processing(F355) instruction input assistance"));
        ExpectControls(dialog, ExpectedControls());
        for (const SPidParameterRow& parameter : kPid)
            ExpectUsed(dialog, parameter, parameter.used);
        EXPECT_EQ(dialog.FocusId(), 2061u);
        EXPECT_FALSE(dialog.Checked(2061));
        EXPECT_TRUE(dialog.Checked(3001));
    });
}

TEST_F(CPidControlsTest, ListTheirItems)
{
    Leave([](CDialogRobot& dialog) {
        EXPECT_EQ(dialog.Items(2051), (Texts{"X", "Y", "R", "Sp.R", "T", "C", "L"}));
        EXPECT_EQ(dialog.Items(2805), (Texts{"Not executed", "Executed"}));
        EXPECT_EQ(dialog.Items(2803), (Texts{"Derivative type", "Proportional-derivative type"}));
        EXPECT_EQ(dialog.Items(2804), (Texts{"Reverse operation", "Forward operation"}));
        for (UINT combo : {2051, 2803, 2804, 2805})
            EXPECT_EQ(dialog.Selection(combo), 0) << "of list " << combo;
        dialog.SelectText(2051, "T");
        EXPECT_EQ(dialog.Text(2053), CString("(0 - 1007)"));
    });
}

TEST_F(CPidControlsTest, LimitWhatIsTyped)
{
    Leave([](CDialogRobot& dialog) {
        ExpectLimits(dialog, {{2052, 4}, {2801, 5}});
        for (const SPidParameterRow& parameter : kPid)
        {
            dialog.Check(parameter.check);
            ExpectLimits(dialog, {{parameter.edit, parameter.limit}});
        }
        dialog.Type(2814, "12.34");
        EXPECT_EQ(dialog.Text(2814), CString("12.3")) << "the control cycle has room for four characters";
    });
}

TEST_F(CPidControlsTest, FollowTheirCheckBoxes)
{
    Leave([](CDialogRobot& dialog) {
        for (const SPidParameterRow& parameter : kPid)
        {
            for (bool checked : {false, true, false})
            {
                dialog.Check(parameter.check, checked);
                ExpectUsed(dialog, parameter, checked);
            }
            EXPECT_EQ(dialog.Text(parameter.edit), CString(parameter.initial)) << "the text stays";
        }
    });
}

// ---- Where the table may start --------------------------------------------------------------------------------------

struct SPlace
{
    int workArea;
    int low; // of the registers
    int high;
    const char* label; // null: no room for the table
    int limit;
};

constexpr int kLowest = -2147483647 - 1;
constexpr int kHighest = 2147483647;

constexpr SPlace kPlaces[] = {
    {0, 0, 32764, "(0 - 32754)", 5},
    {19, 0, 12287, "(0 - 12258)", 5},
    {19, 0, 1028, "(0 - 999)", 3},
    {19, 0, 1029, "(0 - 1000)", 4},
    {0, 0, 10, "(0 - 0)", 1},
    {0, 0, 9, nullptr, 0},
    {1, 5, 16, "(5 - 5)", 1},
    {1, 5, 15, nullptr, 0},
    {30000, 0, 32764, "(0 - 2754)", 4},
    {32754, 0, 32764, "(0 - 0)", 1},
    {32755, 0, 32764, nullptr, 0},
    {0, 0, -1, nullptr, 0},
    {19, 0, 200000, "(0 - 199971)", 6},
    {0, 0, kHighest, "(0 - 2147483637)", 10},
    {kHighest - 10, 0, kHighest, "(0 - 0)", 1},
    {kHighest - 9, 0, kHighest, nullptr, 0},
    {kHighest, 0, kHighest, nullptr, 0},
    {kHighest, -100, kHighest, "(-100 - -10)", 3},
    {kHighest, kLowest, -1, nullptr, 0},
    {kHighest, 0, 32764, nullptr, 0},
};

TEST_F(CPidControlsTest, ShowWhereTheTableMayStart)
{
    for (const SPlace& place : kPlaces)
    {
        SCOPED_TRACE(testing::Message() << place.workArea << " in registers " << place.low << " to " << place.high);
        SetDeviceRange(m_wizard, kDT, place.low, place.high);
        m_workArea = place.workArea;
        Leave([&](CDialogRobot& dialog) {
            EXPECT_EQ(dialog.Text(2802), CString(place.label != nullptr ? place.label : "Impossible settings"));
            if (place.label != nullptr)
            {
                EXPECT_EQ(dialog.Limit(2801), place.limit);
                EXPECT_TRUE(dialog.Enabled(IDOK));
                return;
            }
            EXPECT_GE(dialog.Limit(2801), 30000) << "without a range there is no limit";
            EXPECT_EQ(dialog.FocusId(), UINT{IDCANCEL});
            for (bool only : {true, false})
            {
                ExpectOnlyFirstAndBack(dialog);
                dialog.Check(2061, only);
            }
            ExpectOnlyFirstAndBack(dialog);
        });
    }
}

TEST_F(CPidControlsTest, CanOnlyBeCancelledWithoutRegisters)
{
    CFunWizard wizard;
    SetDeviceRange(wizard, kR, 0, 100);
    wizard.SetHelpPath("C:\\there is no such file.chm");
    EXPECT_EQ(Play([&] { return wizard.DoOpenPIDDlg(0, nullptr); }, {[](CDialogRobot& dialog) {
                       ExpectOnlyFirstAndBack(dialog);
                       EXPECT_EQ(dialog.Text(2802), CString("Impossible settings"));
                       dialog.PressKey(VK_RETURN); // OK cannot be meant
                       EXPECT_TRUE(dialog.MessageBoxes().empty());
                       if (dialog.IsOpen())
                           dialog.Click(IDCANCEL);
                   }}),
              IDCANCEL);
    EXPECT_EQ(ReadResults(wizard), SResults());
}

// ---- Help -----------------------------------------------------------------------------------------------------------

TEST_F(CPidControlsTest, HaveHelpWhenTheHostHas)
{
    m_wizard.SetHelpPath("C:\\there is no such file.chm");
    Leave([](CDialogRobot& dialog) {
        EXPECT_TRUE(dialog.Visible(2003));
        EXPECT_TRUE(dialog.Enabled(2003));
        dialog.Click(2003);
        EXPECT_TRUE(dialog.IsOpen());
        EXPECT_TRUE(dialog.MessageBoxes().empty());
    });
    m_wizard.SetHelpPath("");
    Leave([](CDialogRobot& dialog) {
        EXPECT_FALSE(dialog.Visible(2003));
        EXPECT_FALSE(dialog.Enabled(2003));
    });
}

TEST_F(CPidControlsTest, HaveATopicOfTheirOwn)
{
    struct CTopic : CPidDlg
    {
        using CPidDlg::CPidDlg;
        using CPidDlg::HelpTopic;
    };
    EXPECT_EQ(CTopic(&m_wizard, 0, nullptr).HelpTopic(), 5553);
}

// ---- The keyboard ---------------------------------------------------------------------------------------------------

TEST_F(CPidControlsTest, AreReachedByTabInReadingOrder)
{
    Leave([](CDialogRobot& dialog) {
        ExpectTabOrder(dialog, {2061, 2051, 2052, 2801, 2805, 2803, 2804, 2816, 2806, 2819, 2809,
                                2820, 2810, 2821, 2822, 2823, 2824, 2814, 3001, 1,    2});
    });
    m_wizard.SetHelpPath("C:\\there is no such file.chm");
    Leave([](CDialogRobot& dialog) {
        for (const SPidParameterRow& parameter : kPid)
            dialog.Check(parameter.check);
        dialog.Focus(2061);
        ExpectTabOrder(dialog, {2061, 2051, 2052, 2801, 2805, 2803, 2804, 2816, 2806, 2819, 2809, 2820, 2810,
                                2821, 2811, 2822, 2812, 2823, 2813, 2824, 2814, 3001, 1,    2,    2003});
        dialog.Select(2805, 1);
        dialog.Focus(2810);
        dialog.PressKey(VK_TAB);
        EXPECT_EQ(dialog.FocusId(), 2824u) << "past the gains that auto-tuning finds";
    });
}

TEST_F(CPidControlsTest, ConfirmByEnterAndCancelByEsc)
{
    Confirm([](CDialogRobot& dialog) {
        FillIn(dialog, {});
        dialog.Focus(2810);
        EXPECT_EQ(dialog.Answering(IDOK, [&] { dialog.PressKey(VK_RETURN); }), CString());
        EXPECT_FALSE(dialog.IsOpen());
    });
    const SResults confirmed = ReadResults(m_wizard);
    EXPECT_EQ(confirmed, PidResults({}));
    Leave([](CDialogRobot& dialog) {
        SPidEntries other = PidWith(0x55);
        other.start = "7";
        other.comments = false;
        other.onlyDataTable = true;
        FillIn(dialog, other);
        dialog.PressKey(VK_ESCAPE);
        EXPECT_FALSE(dialog.IsOpen());
    });
    EXPECT_EQ(ReadResults(m_wizard), confirmed);
    EXPECT_EQ(m_wizard.IsCmtRec(), 1);
    EXPECT_EQ(m_wizard.IsOnlyDataTable(), 0);
}

} // namespace
