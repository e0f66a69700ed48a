// The dialog of E point control as it comes up: controls, texts, items, ranges, limits, and the way around it by
// keyboard.
#include "tests/dialogs/posunit/EPointTest.h"

namespace
{

using Texts = std::vector<CString>;

struct SLook
{
    bool group;           // a start output can be asked for, and is;
    bool secondCondition; // with a condition of its own
};

std::vector<SShownControl> ExpectedEPointControls(SLook look)
{
    std::vector<SShownControl> controls = {
        {kSharedId, "Static", "Starting condition contact"},
        {2051, "ComboBox", "X"},
        {2052, "Edit", ""},
        {2053, "Static", "(0 - 109F)"},
        {kSharedId, "Static", "Slot number"},
        {3104, "Edit", ""},
        {kSharedId, "Static", "(0 - 31)"},
        {kSharedId, "Static", "Output axis"},
        {3103, "Edit", ""},
        {kSharedId, "Static", "(1 - 4)"},
        {kSharedId, "Static", "Data table starting address"},
        {kSharedId, "Static", "DT"},
        {3101, "Edit", ""},
        {3102, "Static", "(0 - 32755)"},
    };
    for (const SEPointCombo& combo : kEPointCombos)
    {
        if (combo.id == 3065)
            controls.push_back({kSharedId, "Button", "Pulse output"});
        controls.push_back({kSharedId, "Static", combo.label});
        controls.push_back({combo.id, "ComboBox", AxisFieldAt(combo.shift).items[0]});
    }
    controls.insert(controls.end(), {{kSharedId, "Static", "Startup speed"},
                                     {3108, "Edit", ""},
                                     {kSharedId, "Static", "pps"},
                                     {kSharedId, "Static", "(0 - 4000000)"},
                                     {kSharedId, "Static", "Target speed"},
                                     {3109, "Edit", ""},
                                     {kSharedId, "Static", "pps"},
                                     {kSharedId, "Static", "(1 - 4000000)"},
                                     {kSharedId, "Static", "Accel./decel. time"},
                                     {3110, "Edit", ""},
                                     {kSharedId, "Static", "ms"},
                                     {kSharedId, "Static", "(0 - 32767)"},
                                     {kSharedId, "Static", "Position command value"},
                                     {3111, "Edit", ""},
                                     {kSharedId, "Static", "Pulse"},
                                     {kSharedId, "Static", "(-2147483648 - 2147483647)"}});
    if (look.group)
        controls.insert(controls.end(), {{kSharedId, "Button", ""},
                                         {2054, "Button", "A &start output is generated."},
                                         {2055, "Button", "The condition is the sa&me as the starting condition."},
                                         {kSharedId, "Static", "Start output condition", look.secondCondition},
                                         {2056, "ComboBox", "X", look.secondCondition},
                                         {2057, "Edit", "", look.secondCondition},
                                         {2058, "Static", "(0 - 109F)", look.secondCondition},
                                         {kSharedId, "Static", "Start output relay"},
                                         {kSharedId, "Static", "Word No."},
                                         {kSharedId, "Static", "Y"},
                                         {2059, "Edit", ""},
                                         {2060, "Static", "(2 - 109)"}});
    controls.insert(controls.end(),
                    {{1, "Button", "&OK"}, {2, "Button", "&Back"}, {3099, "Button", "&Clear settings"}});
    return controls;
}

std::vector<UINT> TabOrder(SLook look)
{
    std::vector<UINT> order = {2051, 2052, 3104, 3103, 3101, 3105, 3106, 3107, 3051, 3052,
                               3054, 3061, 3065, 3066, 3071, 3108, 3109, 3110, 3111};
    if (look.group)
        order.insert(order.end(), {2054, 2055});
    if (look.secondCondition)
        order.insert(order.end(), {2056, 2057});
    if (look.group)
        order.push_back(2059);
    order.insert(order.end(), {1, 2, 3099});
    return order;
}

TEST_F(CEPointTest, HasTheTitleOfItsForm)
{
    for (const int source : kSources)
    {
        Use(source);
        for (const EEPointForm form : kForms)
            Leave(form, [form](CDialogRobot& dialog) {
                EXPECT_EQ(dialog.Caption(), CString(form == kEPointForm        ? "E point control"
                                                    : form == kPPointStartForm ? "P point control start point"
                                                                               : "JOG positioning operation"));
            });
    }
}

TEST_F(CEPointTest, ComesUpWithoutAnEarlierRun)
{
    m_wizard.SetStartType(2);
    for (const EEPointForm form : kForms)
    {
        SCOPED_TRACE(testing::Message() << form);
        Use(kModule);
        Leave(form, [](CDialogRobot& dialog) {
            ExpectControls(dialog, ExpectedEPointControls({}));
            ExpectTabOrder(dialog, TabOrder({}));
        });
        Use(kEnglish);
        Leave(form, [](CDialogRobot& dialog) {
            ExpectControls(dialog, ExpectedEPointControls({.group = true}));
            EXPECT_TRUE(dialog.Checked(2054));
            EXPECT_TRUE(dialog.Checked(2055));
            ExpectTabOrder(dialog, TabOrder({.group = true}));
            dialog.Check(2055, false);
            ExpectControls(dialog, ExpectedEPointControls({.group = true, .secondCondition = true}));
            dialog.Focus(2051);
            ExpectTabOrder(dialog, TabOrder({.group = true, .secondCondition = true}));
        });
    }
}

TEST_F(CEPointTest, ListsItsItems)
{
    const Texts devices = {"X", "Y", "R", "Sp.R", "T", "C", "L"};
    for (const int source : kSources)
    {
        Use(source);
        Leave(kEPointForm, [&](CDialogRobot& dialog) {
            EXPECT_EQ(dialog.Items(2051), devices);
            if (source != kModule)
            {
                EXPECT_EQ(dialog.Items(2056), devices);
            }
            for (const SEPointCombo& combo : kEPointCombos)
            {
                const auto& items = AxisFieldAt(combo.shift).items;
                EXPECT_EQ(dialog.Items(combo.id), Texts(items.begin(), items.end())) << "of list " << combo.id;
                EXPECT_EQ(dialog.Selection(combo.id), 0) << "of list " << combo.id;
            }
        });
    }
}

TEST_F(CEPointTest, LimitsWhatIsTyped)
{
    Use(kEnglish);
    m_wizard.SetStartType(2);
    for (const EEPointForm form : kForms)
        Leave(form, [](CDialogRobot& dialog) {
            dialog.Check(2055, false);
            ExpectLimits(dialog, {{2052, 4},
                                  {3104, 2},
                                  {3103, 1},
                                  {3101, 5},
                                  {3108, 7},
                                  {3109, 7},
                                  {3110, 5},
                                  {3111, 11},
                                  {2057, 4},
                                  {2059, 3}});
        });
}

// ---- Ranges ---------------------------------------------------------------------------------------------------------

struct SStartRange
{
    int low;
    int high;
    const char* label;
    int limit; // digits of the highest start
};

constexpr SStartRange kStartRanges[] = {
    {0, 32764, "(0 - 32755)", 5}, {0, 32765, "(0 - 32756)", 5}, {0, 9, "(0 - 0)", 1},
    {0, 18, "(0 - 9)", 1},        {0, 19, "(0 - 10)", 2},       {100, 109, "(100 - 100)", 3},
    {5, 1007, "(5 - 998)", 3},    {5, 1008, "(5 - 999)", 3},    {5, 1009, "(5 - 1000)", 4},
    {0, 10008, "(0 - 9999)", 4},  {0, 10009, "(0 - 10000)", 5}, {0, 2147483647, "(0 - 2147483638)", 10}};

TEST_F(CEPointTest, ShowsWhereTheTableMayStart)
{
    for (const SStartRange& range : kStartRanges)
    {
        SetDeviceRange(m_wizard, kDT, range.low, range.high);
        Leave(kEPointForm, [&](CDialogRobot& dialog) {
            EXPECT_EQ(dialog.Text(3102), CString(range.label));
            EXPECT_EQ(dialog.Limit(3101), range.limit) << range.label;
            EXPECT_TRUE(dialog.Enabled(IDOK));
        });
    }
}

// Nine registers are not enough; nor is a range that ends before it begins.
TEST_F(CEPointTest, OnlyBackIsLeftWithoutRoomForTheTable)
{
    constexpr struct
    {
        int low, high;
        BYTE startType;
    } kTooFew[] = {{0, 8, 0}, {100, 108, 1}, {0, -1, 2}, {5, 4, 2}, {-2147483647 - 1, -2147483647 - 1, 1}};
    WriteResults(m_wizard, {.operands = {{11, 1}, {9, 7}, {11, 10}, {12, 0x110}}});
    for (const int source : kSources)
    {
        Use(source);
        for (const auto& [low, high, startType] : kTooFew)
        {
            SCOPED_TRACE(testing::Message() << source << ", " << low << " to " << high);
            SetDeviceRange(m_wizard, kDT, low, high);
            m_wizard.SetStartType(startType);
            Leave(kJogPositioningForm, [](CDialogRobot& dialog) {
                ExpectOnlyFirstAndBack(dialog);
                EXPECT_EQ(dialog.Text(3102), CString("Impossible settings"));
                EXPECT_EQ(dialog.Text(3101), CString("7"));
                dialog.PressKey(VK_RETURN); // OK cannot be meant
                EXPECT_TRUE(dialog.MessageBoxes().empty());
            });
        }
    }
}

TEST_F(CEPointTest, OnlyBackIsLeftWithoutRegisters)
{
    CFunWizard wizard;
    SetDeviceRange(wizard, kR, 0, 100);
    Play([&] { return static_cast<int>(CEPointDlg(&wizard, kEPointForm, nullptr).DoModal()); },
         {[](CDialogRobot& dialog) {
             ExpectOnlyFirstAndBack(dialog);
             EXPECT_EQ(dialog.Text(3102), CString("Impossible settings"));
             EXPECT_EQ(dialog.Text(2053), CString("(0 - 64)")) << "word 6, bit 4";
             dialog.Click(IDCANCEL);
         }});
    EXPECT_EQ(ReadResults(wizard), SResults());
}

TEST_F(CEPointTest, ShowsTheSlotsAndAxesOfTheUnit)
{
    constexpr struct
    {
        BYTE slots;
        BYTE axisFlag;
        const char* slotLabel;
        const char* axisLabel;
    } kUnits[] = {{1, 0, "(0 - 0)", "(1 - 2)"},
                  {16, 1, "(0 - 15)", "(1 - 4)"},
                  {32, 7, "(0 - 31)", "(1 - 4)"},
                  {100, 0, "(0 - 99)", "(1 - 2)"},
                  {255, 255, "(0 - 254)", "(1 - 4)"}};
    for (const int source : kSources)
    {
        Use(source);
        for (const auto& unit : kUnits)
        {
            m_wizard.SetMaxSlot(unit.slots);
            SFunWizardTest::SetAxisFlag(m_wizard, unit.axisFlag);
            Leave(kEPointForm, [&](CDialogRobot& dialog) {
                EXPECT_EQ(TextAfter(dialog, 3104), unit.slotLabel);
                EXPECT_EQ(TextAfter(dialog, 3103), unit.axisLabel);
            });
        }
    }
}

TEST_F(CEPointTest, ShowsTheRangeOfTheSelectedDevices)
{
    constexpr struct
    {
        const char* device;
        const char* label;
    } kLabels[] = {{"Y", "(0 - 109F)"}, {"R", "(0 - 255F)"},    {"Sp.R", "(9000 - 911F)"}, {"T", "(0 - 1007)"},
                   {"X", "(0 - 109F)"}, {"C", "(1008 - 1023)"}, {"L", "(0 - 127F)"}};
    Use(kEnglish);
    m_wizard.SetStartType(1);
    Leave(kEPointForm, [&](CDialogRobot& dialog) {
        dialog.Check(2055, false);
        for (const auto& [device, label] : kLabels)
        {
            dialog.SelectText(2051, device);
            EXPECT_EQ(dialog.Text(2053), CString(label));
            EXPECT_EQ(dialog.Text(2058), CString("(0 - 109F)")) << "of X";
        }
        for (const auto& [device, label] : kLabels)
        {
            dialog.SelectText(2056, device);
            EXPECT_EQ(dialog.Text(2058), CString(label));
            EXPECT_EQ(dialog.Text(2053), CString("(0 - 127F)")) << "of L";
        }
    });
}

// ---- From the selection ---------------------------------------------------------------------------------------------

TEST_F(CEPointTest, OpensFromTheSelection)
{
    for (const int source : kSources)
    {
        Use(source);
        for (const EEPointForm form : kForms)
            for (const BYTE axisFlag : std::initializer_list<BYTE>{0, 1})
            {
                SCOPED_TRACE(testing::Message() << form << ", " << int{axisFlag});
                ConfirmFromSelection(
                    form,
                    [&](CDialogRobot& dialog) {
                        ExpectDialogFont(dialog);
                        EXPECT_EQ(TextAfter(dialog, 3103), axisFlag == 0 ? "(1 - 2)" : "(1 - 4)");
                        FillIn(dialog, {});
                        if (axisFlag == 0)
                        {
                            dialog.Type(3103, "3");
                            ExpectRefusal(dialog, 20022, 3103);
                            dialog.Type(3103, "2");
                        }
                    },
                    axisFlag);
                EXPECT_EQ(m_wizard.IsAxisType(), axisFlag == 0 ? 1 : 0);
                EXPECT_EQ(SFunWizardTest::UnitMode(m_wizard), 1);
                EXPECT_EQ(SFunWizardTest::LastInstruction(m_wizard), 151);
                EXPECT_EQ(SFunWizardTest::LastVariant(m_wizard), VariantOf(form));
                EXPECT_EQ(ReadResults(m_wizard), EPointOutcome(form, {}, m_wizard).results);
            }
    }
}

// Each form starts afresh, though the dialog is the same.
TEST_F(CEPointTest, ForgetsTheResultsOfAnotherForm)
{
    ConfirmFromSelection(kEPointForm, [](CDialogRobot& dialog) { FillIn(dialog, {}); });
    ConfirmFromSelection(kEPointForm, [](CDialogRobot& dialog) { EXPECT_EQ(dialog.Text(3101), CString("100")); });
    ConfirmFromSelection(kPPointStartForm, [](CDialogRobot& dialog) {
        ExpectShown(dialog, {});
        FillIn(dialog, {});
    });
    ConfirmFromSelection(kJogPositioningForm, [](CDialogRobot& dialog) {
        ExpectShown(dialog, {});
        FillIn(dialog, {});
    });
}

TEST_F(CEPointTest, DoesNotOpenWithoutItsTemplateOrAWizard)
{
    EXPECT_EQ(Play([] { return static_cast<int>(CEPointDlg(nullptr, kEPointForm, nullptr).DoModal()); }, {}), 2);
    UseLibraryWithoutDialogs();
    EXPECT_EQ(Play([&] { return static_cast<int>(CEPointDlg(&m_wizard, kEPointForm, nullptr).DoModal()); }, {}), -1);
    EXPECT_TRUE(m_robot.MessageBoxes().empty());
}

// ---- The keyboard ---------------------------------------------------------------------------------------------------

TEST_F(CEPointTest, EnterConfirmsAndEscGoesBack)
{
    Leave(kEPointForm, [](CDialogRobot& dialog) {
        dialog.Focus(3109);
        EXPECT_EQ(dialog.Answering(IDOK, [&] { dialog.PressKey(VK_RETURN); }), CString(MessageText(20001).c_str()));
        EXPECT_EQ(dialog.FocusId(), 2052u);
        FillIn(dialog, {});
        dialog.PressKey(VK_ESCAPE);
        EXPECT_FALSE(dialog.IsOpen());
    });
    EXPECT_EQ(ReadResults(m_wizard), SResults());
    Confirm(kEPointForm, [](CDialogRobot& dialog) {
        FillIn(dialog, {});
        dialog.Focus(3109);
        dialog.PressKey(VK_RETURN);
        EXPECT_FALSE(dialog.IsOpen());
    });
    EXPECT_EQ(ReadResults(m_wizard), EPointOutcome(kEPointForm, {}, m_wizard).results);
}

} // namespace
