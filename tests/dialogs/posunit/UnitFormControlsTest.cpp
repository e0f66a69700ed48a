// The unit's operations as they come up: controls, texts, items, ranges, limits, and the way around them by keyboard.
#include "tests/dialogs/posunit/UnitFormTest.h"

#include <algorithm>

namespace
{

using CUnitFormControlsTest = CUnitFormsTest;
INSTANTIATE_TEST_SUITE_P(Forms, CUnitFormControlsTest, testing::ValuesIn(UnitForms()), UnitFormName);

constexpr const char* kDevices[] = {"X", "Y", "R", "Sp.R", "T", "C", "L"};

/// What an opening writes over the texts of the template, without an earlier run.
std::string OpenedText(const SUnitForm& form, const SExpectedControl& control)
{
    if (control.id == 2051 || control.id == 2056 || (control.id == form.changeDevice && control.id != 0))
        return "X";
    if (control.id == 2053 || control.id == 2058 || (control.id == form.changeRange && control.id != 0))
        return "(0 - 109F)";
    if (control.id == 2060)
        return "(2 - 109)";
    if (control.id == 2062)
        return "Forward rotation";
    if (control.id == form.startRange)
        return "(0 - " + std::to_string(32764 - form.registers + 1) + ")";
    for (const SUnitList& list : form.lists)
        if (list.id == control.id)
            return AxisFieldAt(list.shift).items[0];
    return control.text;
}

const char* ClassOf(EControl kind)
{
    switch (kind)
    {
    case EControl::Edit:
        return "Edit";
    case EControl::DropList:
        return "ComboBox";
    case EControl::Static:
        return "Static";
    default:
        return "Button";
    }
}

TEST_P(CUnitFormControlsTest, ComeUpWithoutAnEarlierRun)
{
    const SUnitForm& form = GetParam();
    m_wizard.SetStartType(2);
    for (const int source : kUnitSources)
    {
        SCOPED_TRACE(source);
        Use(source);
        const auto controls = form.controls().ControlsIn(source != kModule);
        Leave(form, [&](CDialogRobot& dialog) {
            EXPECT_EQ(dialog.Caption(), CString(form.title));
            const bool hasGroup = source != kModule && form.HasStartOutput();
            ASSERT_EQ(dialog.Exists(2054), hasGroup);
            if (hasGroup)
            {
                EXPECT_TRUE(dialog.Checked(2054));
                EXPECT_TRUE(dialog.Checked(2055));
                dialog.Check(2055, false); // which enables the rest
                dialog.Focus(2051);
            }
            std::vector<std::string> texts;
            for (const SExpectedControl& control : controls)
                texts.push_back(OpenedText(form, control));
            std::vector<SShownControl> shown;
            std::vector<UINT> order;
            for (size_t i = 0; i < controls.size(); ++i)
            {
                const EControl kind = controls[i].kind;
                shown.push_back({controls[i].id, ClassOf(kind), texts[i].c_str()});
                if (kind != EControl::Static && kind != EControl::GroupBox)
                    order.push_back(controls[i].id);
            }
            ExpectControls(dialog, shown);
            ExpectTabOrder(dialog, order);
        });
    }
}

TEST_P(CUnitFormControlsTest, ListTheirItems)
{
    const SUnitForm& form = GetParam();
    const Texts devices(std::begin(kDevices), std::end(kDevices));
    for (const int source : kUnitSources)
    {
        Use(source);
        Leave(form, [&](CDialogRobot& dialog) {
            for (const UINT id : {2051u, 2056u, form.changeDevice})
                if (id != 0 && dialog.Exists(id))
                {
                    EXPECT_EQ(dialog.Items(id), devices) << "of list " << id;
                }
            for (const SUnitList& list : form.lists)
            {
                const auto& items = AxisFieldAt(list.shift).items;
                EXPECT_EQ(dialog.Items(list.id), Texts(items.begin(), items.end())) << "of list " << list.id;
                EXPECT_EQ(dialog.Selection(list.id), 0) << "of list " << list.id;
            }
            EXPECT_EQ(dialog.Exists(2062), source != kModule && form.HasDirection());
            if (dialog.Exists(2062))
            {
                EXPECT_EQ(dialog.Items(2062), (Texts{"Forward rotation", "Reverse rotation"}));
                EXPECT_EQ(dialog.Selection(2062), 0);
            }
        });
    }
}

TEST_P(CUnitFormControlsTest, LimitWhatIsTyped)
{
    const SUnitForm& form = GetParam();
    m_wizard.SetStartType(2);
    std::vector<std::pair<UINT, int>> limits = {{2052, 4}, {form.slot, 2}, {form.axis, 1}, {form.start, 5}};
    for (const SUnitNumber& number : form.numbers)
        limits.emplace_back(number.id, number.limit);
    if (form.changeNumber != 0)
        limits.emplace_back(form.changeNumber, 4);
    if (form.HasStartOutput())
        limits.insert(limits.end(), {{2057, 4}, {2059, 3}});
    Leave(form, [&](CDialogRobot& dialog) {
        if (form.HasStartOutput())
            dialog.Check(2055, false);
        ExpectLimits(dialog, limits);
    });
}

// ---- Ranges ---------------------------------------------------------------------------------------------------------

TEST_P(CUnitFormControlsTest, ShowWhereTheTableMayStart)
{
    const SUnitForm& form = GetParam();
    const int more = form.registers - 1; // than the first register
    struct
    {
        int low;
        int lastStart;
        int limit; // its digits
    } const rows[] = {{0, 32758, 5}, {0, 0, 1},    {0, 9, 1},    {0, 10, 2},    {100, 100, 3},
                      {5, 999, 3},   {5, 1000, 4}, {0, 9999, 4}, {0, 10000, 5}, {0, 2147483640, 10}};
    for (const auto& row : Sampled(rows, 3))
    {
        SetDeviceRange(m_wizard, kDT, row.low, std::min(row.lastStart, 2147483647 - more) + more);
        Leave(form, [&](CDialogRobot& dialog) {
            const int lastStart = std::min(row.lastStart, 2147483647 - more);
            EXPECT_EQ(dialog.Text(form.startRange), UnitRangeText(row.low, lastStart));
            EXPECT_EQ(dialog.Limit(form.start), row.limit) << lastStart;
            EXPECT_TRUE(dialog.Enabled(IDOK));
        });
    }
}

TEST_P(CUnitFormControlsTest, OnlyBackIsLeftWithoutRoomForTheTable)
{
    const SUnitForm& form = GetParam();
    struct
    {
        int low, high;
        BYTE startType;
    } const tooFew[] = {
        {0, form.registers - 2, 0}, {100, 100 + form.registers - 2, 1}, {0, -1, 2}, {5, 4, 2}, {0, 0, 1}};
    WriteResults(m_wizard, {.operands = {{11, 1}, {9, 7}, {11, 8}, {12, 0x114}}});
    for (const int source : kUnitSources)
    {
        Use(source);
        for (const auto& [low, high, startType] : tooFew)
        {
            SCOPED_TRACE(testing::Message() << source << ", " << low << " to " << high);
            SetDeviceRange(m_wizard, kDT, low, high);
            m_wizard.SetStartType(startType);
            Leave(form, [&](CDialogRobot& dialog) {
                ExpectOnlyFirstAndBack(dialog);
                EXPECT_EQ(dialog.Text(form.startRange), CString("Impossible settings"));
                EXPECT_EQ(dialog.Text(form.start), CString("7"));
                EXPECT_EQ(dialog.Text(form.axis), CString("2"));
                dialog.PressKey(VK_RETURN); // OK cannot be meant
                EXPECT_TRUE(dialog.MessageBoxes().empty());
            });
        }
    }
}

TEST_P(CUnitFormControlsTest, OnlyBackIsLeftWithoutRegisters)
{
    const SUnitForm& form = GetParam();
    CFunWizard wizard;
    SetDeviceRange(wizard, kR, 0, 100);
    const auto dialog = form.make(&wizard);
    Play([&] { return static_cast<int>(dialog->DoModal()); }, {[&](CDialogRobot& robot) {
             ExpectOnlyFirstAndBack(robot);
             EXPECT_EQ(robot.Text(form.startRange), CString("Impossible settings"));
             EXPECT_EQ(robot.Text(2053), CString("(0 - 64)")) << "word 6, bit 4";
             robot.Click(IDCANCEL);
         }});
    EXPECT_EQ(ReadResults(wizard), SResults());
}

TEST_P(CUnitFormControlsTest, ShowTheSlotsAndAxesOfTheUnit)
{
    const SUnitForm& form = GetParam();
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
    for (const int source : kUnitSources)
    {
        Use(source);
        for (const auto& unit : Sampled(kUnits, 2))
        {
            m_wizard.SetMaxSlot(unit.slots);
            SFunWizardTest::SetAxisFlag(m_wizard, unit.axisFlag);
            Leave(form, [&](CDialogRobot& dialog) {
                EXPECT_EQ(TextAfter(dialog, form.slot), unit.slotLabel);
                EXPECT_EQ(TextAfter(dialog, form.axis), unit.axisLabel);
            });
        }
    }
}

TEST_P(CUnitFormControlsTest, ShowTheRangeOfEachSelectedDevice)
{
    const SUnitForm& form = GetParam();
    constexpr struct
    {
        const char* device;
        const char* label;
    } kLabels[] = {{"Y", "(0 - 109F)"}, {"R", "(0 - 255F)"},    {"Sp.R", "(9000 - 911F)"}, {"T", "(0 - 1007)"},
                   {"X", "(0 - 109F)"}, {"C", "(1008 - 1023)"}, {"L", "(0 - 127F)"}};
    m_wizard.SetStartType(1);
    Leave(form, [&](CDialogRobot& dialog) {
        std::vector<std::pair<UINT, UINT>> lists = {{2051, 2053}};
        if (form.HasStartOutput())
        {
            dialog.Check(2055, false);
            lists.emplace_back(2056, 2058);
        }
        if (form.changeDevice != 0)
            lists.emplace_back(form.changeDevice, form.changeRange);
        for (const auto& [list, range] : lists)
            for (const auto& [device, label] : kLabels)
            {
                std::vector<CString> others;
                for (const auto& other : lists)
                    others.push_back(dialog.Text(other.second));
                dialog.SelectText(list, device);
                EXPECT_EQ(dialog.Text(range), CString(label));
                for (size_t i = 0; i < lists.size(); ++i)
                    if (lists[i].second != range)
                    {
                        EXPECT_EQ(dialog.Text(lists[i].second), others[i]) << "of another list";
                    }
            }
    });
}

// ---- From the selection ---------------------------------------------------------------------------------------------

TEST_P(CUnitFormControlsTest, OpenFromTheSelection)
{
    const SUnitForm& form = GetParam();
    for (const int source : kUnitSources)
    {
        Use(source);
        for (const BYTE axisFlag : std::initializer_list<BYTE>{0, 1})
        {
            SCOPED_TRACE(testing::Message() << source << ", " << int{axisFlag});
            ConfirmFromSelection(
                form,
                [&](CDialogRobot& dialog) {
                    EXPECT_EQ(dialog.Caption(), CString(form.title));
                    ExpectDialogFont(dialog);
                    EXPECT_EQ(TextAfter(dialog, form.axis), axisFlag == 0 ? "(1 - 2)" : "(1 - 4)");
                    FillIn(dialog, form, SUnitEntries(form));
                },
                axisFlag);
            EXPECT_EQ(m_wizard.IsAxisType(), axisFlag == 0 ? 1 : 0);
            EXPECT_EQ(SFunWizardTest::UnitMode(m_wizard), 1);
            EXPECT_EQ(SFunWizardTest::LastInstruction(m_wizard), 151);
            EXPECT_EQ(SFunWizardTest::LastVariant(m_wizard), form.variant);
            EXPECT_EQ(ReadResults(m_wizard), UnitOutcome(form, SUnitEntries(form), m_wizard).results);
        }
    }
}

// Each operation starts afresh after another one, though all share one instruction.
TEST_P(CUnitFormControlsTest, ForgetTheResultsOfAnotherOperation)
{
    const SUnitForm& form = GetParam();
    const auto fill = [](const SUnitForm& filled) {
        return [&filled](CDialogRobot& dialog) { FillIn(dialog, filled, SUnitEntries(filled)); };
    };
    const auto& forms = UnitForms();
    const size_t own = static_cast<size_t>(&UnitForm(form.name) - forms.data());
    for (size_t step = 1; step < (IsThorough() ? forms.size() : 2); ++step)
    {
        const SUnitForm& other = forms[(own + step) % forms.size()];
        SCOPED_TRACE(other.name);
        ConfirmFromSelection(other, fill(other));
        ConfirmFromSelection(form, [&](CDialogRobot& dialog) {
            ExpectShown(dialog, form, UnitShown(form, {}, false));
            FillIn(dialog, form, SUnitEntries(form));
        });
        ConfirmFromSelection(form, [&](CDialogRobot& dialog) { EXPECT_EQ(dialog.Text(form.start), CString("100")); });
    }
}

TEST_P(CUnitFormControlsTest, DoNotOpenWithoutTheirTemplateOrAWizard)
{
    const SUnitForm& form = GetParam();
    const auto none = form.make(nullptr);
    EXPECT_EQ(Play([&] { return static_cast<int>(none->DoModal()); }, {}), 2);
    Use(kModule); // lets the library go that the next one takes the place of
    UseLibraryWithoutDialogs();
    EXPECT_EQ(Open(form, {}), -1);
    EXPECT_TRUE(m_robot.MessageBoxes().empty());
}

// ---- The keyboard ---------------------------------------------------------------------------------------------------

TEST_P(CUnitFormControlsTest, EnterConfirmsAndEscGoesBack)
{
    const SUnitForm& form = GetParam();
    Leave(form, [&](CDialogRobot& dialog) {
        dialog.Focus(form.numbers[0].id);
        EXPECT_EQ(dialog.Answering(IDOK, [&] { dialog.PressKey(VK_RETURN); }), CString(MessageText(20001).c_str()));
        EXPECT_EQ(dialog.FocusId(), 2052u);
        FillIn(dialog, form, SUnitEntries(form));
        dialog.PressKey(VK_ESCAPE);
        EXPECT_FALSE(dialog.IsOpen());
    });
    EXPECT_EQ(ReadResults(m_wizard), SResults());
    Confirm(form, [&](CDialogRobot& dialog) {
        FillIn(dialog, form, SUnitEntries(form));
        dialog.Focus(form.numbers[0].id);
        dialog.PressKey(VK_RETURN);
        EXPECT_FALSE(dialog.IsOpen());
    });
    EXPECT_EQ(ReadResults(m_wizard), UnitOutcome(form, SUnitEntries(form), m_wizard).results);
}

} // namespace
