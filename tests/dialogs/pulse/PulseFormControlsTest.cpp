// The pulse-output dialogs as they come up: texts, items, limits, the font, where the table may start, the keyboard.
#include "tests/core/FunWizardTest.h"
#include "tests/dialogs/pulse/PulseFormTest.h"
#include "tests/support/Sampled.h"

namespace
{

class CPulseFormControlsTest : public CPulseFormsTest
{
};

INSTANTIATE_TEST_SUITE_P(Forms, CPulseFormControlsTest, testing::ValuesIn(PulseForms()), PulseFormName);

constexpr int kNoLimit = 30000; // at least so many characters

/// The items that are listed while the form is made.
std::vector<CString> ItemsOf(const SFormList& list)
{
    std::vector<CString> items;
    for (const SFormItem& item : list.items)
        items.emplace_back(item.text);
    return items;
}

} // namespace

TEST_P(CPulseFormControlsTest, ComeUpWithTheirTexts)
{
    Leave(GetParam(), [](CDialogRobot& dialog) {
        const SPulseForm& form = GetParam();
        const std::string name = std::string(form.heading).substr(0, form.heading[4] == ' ' ? 4 : 3);
        const std::string instruction = "F" + std::to_string(form.instruction);
        EXPECT_EQ(std::string(dialog.Caption()), name == instruction ? name : instruction + " (" + name + ")");
        EXPECT_EQ(dialog.Controls().front().text, CString(form.heading));
        EXPECT_EQ(dialog.FocusId(), 2061u);
        EXPECT_FALSE(dialog.Checked(2061));
        EXPECT_EQ(dialog.Text(2061), CString("Only a data table is created."));
        EXPECT_EQ(TextBefore(dialog, 2051), "Starting condition contact");
        EXPECT_EQ(dialog.Text(2053), CString("(0 - 109F)"));
        EXPECT_EQ(TextBefore(dialog, form.start), "Data table starting address");
        EXPECT_EQ(dialog.Text(1), CString("&OK"));
        EXPECT_EQ(dialog.Text(2), CString("&Back"));
        EXPECT_EQ(dialog.Text(2099), CString("&Clear settings"));
        if (form.output != kNoOutput)
        {
            EXPECT_EQ(TextBefore(dialog, form.outputList), form.outputLabel);
        }
        ChooseForm(dialog, form);
        for (const SFormList& list : form.lists)
            if (list.label != nullptr)
            {
                EXPECT_EQ(TextBefore(dialog, list.id), list.label);
            }
        for (const SFormNumber& number : form.numbers)
        {
            EXPECT_EQ(dialog.Text(number.id), CString());
            // The comment of an entry with a label of its own is the text before it; F175 and F176 join two.
            if (form.instruction != 175 && form.instruction != 176)
            {
                EXPECT_EQ(TextBefore(dialog, number.id), number.comment);
            }
            if (number.unit != nullptr)
            {
                EXPECT_EQ(TextAfter(dialog, number.id), number.unit);
            }
            if (number.range != nullptr)
            {
                EXPECT_EQ(TextAfter(dialog, number.id, 2), number.range);
            }
        }
        for (const SLabelText& label : form.labels)
            EXPECT_EQ(dialog.Text(label.id), CString(label.text)) << "of " << label.id;
    });
}

TEST_P(CPulseFormControlsTest, ListTheirItemsInOrder)
{
    Leave(GetParam(), [](CDialogRobot& dialog) {
        const SPulseForm& form = GetParam();
        EXPECT_EQ(dialog.Items(2051), (Texts{"X", "Y", "R", "Sp.R", "T", "C", "L"}));
        EXPECT_EQ(dialog.Selection(2051), 0);
        if (form.output == kBuiltInOutput)
        {
            EXPECT_EQ(dialog.Items(form.outputList), (Texts{"Y0", "Y1"}));
        }
        if (form.output == kChannelOutput)
        {
            EXPECT_EQ(dialog.Items(form.outputList), (Texts{"ch1", "ch4", "ch6", "ch11"}));
            for (int i = 0; i < 4; ++i)
                EXPECT_EQ(dialog.Dialog()->SendDlgItemMessage(form.outputList, CB_GETITEMDATA, i), kFormChannels[i]);
        }
        if (form.output != kNoOutput)
        {
            EXPECT_EQ(dialog.Selection(form.outputList), 0);
        }
        for (const SFormList& list : form.lists)
            EXPECT_EQ(dialog.Selection(list.id), 0) << "of list " << list.id;
        ChooseForm(dialog, form);
        for (const SFormList& list : form.lists)
            EXPECT_EQ(dialog.Items(list.id), ItemsOf(list)) << "of list " << list.id;
    });
}

TEST_P(CPulseFormControlsTest, LimitWhatIsTyped)
{
    Leave(GetParam(), [](CDialogRobot& dialog) {
        const SPulseForm& form = GetParam();
        ChooseForm(dialog, form);
        ExpectLimits(dialog, {{2052, 4}, {form.start, 5}});
        for (const SFormNumber& number : form.numbers)
            ExpectLimits(dialog, {{number.id, number.limit}});
    });
}

TEST_P(CPulseFormControlsTest, HaveTheFontOfTheWizard)
{
    ASSERT_NE(m_wizard.CreateDlgFont(nullptr), nullptr);
    const auto font = reinterpret_cast<LRESULT>(SFunWizardTest::DialogFont(m_wizard)->GetSafeHandle());
    Leave(GetParam(), [&](CDialogRobot& dialog) {
        int controls = 0;
        for (CWnd* child = dialog.Dialog()->GetWindow(GW_CHILD); child != nullptr;
             child = child->GetWindow(GW_HWNDNEXT), ++controls)
            EXPECT_EQ(child->SendMessage(WM_GETFONT), font) << "of " << child->GetDlgCtrlID();
        EXPECT_GT(controls, 10);
    });
    m_wizard.DeleteDlgFont();
}

// ---- Where the table may start --------------------------------------------------------------------------------------

TEST_P(CPulseFormControlsTest, ShowWhereTheTableMayStart)
{
    const SPulseForm& form = GetParam();
    const int words = form.wordsBefore;
    const struct
    {
        int low, high;
        int limit; // 0: no room for the table
    } rows[] = {
        {0, 32764, 5},         {0, words - 1, 1},     {0, words + 8, 1},   {0, words + 9, 2},
        {100, words + 99, 3},  {100, words + 98, 0},  {0, words - 2, 0},   {5, 4, 0},
        {7, words + 99998, 5}, {7, words + 99999, 6}, {0, 2147483647, 10}, {-2147483647 - 1, -2147483647 - 1, 0},
    };
    for (const auto& row : Sampled(rows, 2))
    {
        SCOPED_TRACE(testing::Message() << "registers " << row.low << " to " << row.high);
        SetDeviceRange(m_wizard, kDT, row.low, row.high);
        Leave(form, [&](CDialogRobot& dialog) {
            if (row.limit == 0)
            {
                EXPECT_EQ(dialog.Text(form.startLabel), CString("Impossible settings"));
                ExpectOnlyFirstAndBack(dialog);
                EXPECT_GE(dialog.Limit(form.start), kNoLimit);
                return;
            }
            EXPECT_EQ(dialog.Text(form.startLabel), RangeText(row.low, row.high - words + 1LL));
            EXPECT_EQ(dialog.Limit(form.start), row.limit);
            EXPECT_TRUE(dialog.Enabled(IDOK));
            EXPECT_TRUE(dialog.Enabled(form.start));
        });
    }
}

TEST_P(CPulseFormControlsTest, LeaveOnlyBackWithoutRegisters)
{
    CFunWizard wizard;
    SetUpFamily(wizard, GetParam());
    SetDeviceRange(wizard, kR, 0, 100);
    for (const int channel : kFormChannels)
        wizard.SetChannelNo(channel, GetParam().ChannelInstruction());
    const auto dialog = GetParam().make(&wizard);
    Play([&] { return static_cast<int>(dialog->DoModal()); }, {[](CDialogRobot& robot) {
             ExpectOnlyFirstAndBack(robot);
             EXPECT_EQ(robot.Text(GetParam().startLabel), CString("Impossible settings"));
             robot.PressKey(VK_RETURN); // OK cannot be meant
             EXPECT_TRUE(robot.MessageBoxes().empty());
             if (robot.IsOpen())
                 robot.Click(IDCANCEL);
         }});
    EXPECT_EQ(ReadResults(wizard), SResults());
}

// ---- The channels ---------------------------------------------------------------------------------------------------

TEST_P(CPulseFormControlsTest, NeedTwoChannelsToChooseFrom)
{
    const SPulseForm& form = GetParam();
    for (const std::vector<int>& offer : {std::vector<int>{}, {0}, {3}})
    {
        SetChannels(form.ChannelInstruction(), offer);
        for (const int other : {171, 172, 173, 174, 175})
            if (other != form.ChannelInstruction())
                for (const int channel : {2, 5})
                    m_wizard.SetChannelNo(channel, other);
        if (form.output == kChannelOutput)
        {
            EXPECT_EQ(Open(form, {}), IDCANCEL) << "with " << offer.size() << " channels";
        }
        else
            EXPECT_EQ(Confirmed(form, {}), FormResults(form, {}));
        EXPECT_TRUE(m_robot.MessageBoxes().empty());
    }
}

// Nor do those of families B and C without the texts of a language, which nobody but a wizard has.
TEST_P(CPulseFormControlsTest, DoNotOpenWithoutAWizard)
{
    constexpr int kNoTemplate = -1;
    const auto dialog = GetParam().make(nullptr);
    EXPECT_EQ(Play([&] { return static_cast<int>(dialog->DoModal()); }, {}),
              GetParam().plcType == kPlcFamilyA ? IDCANCEL : kNoTemplate);
    EXPECT_TRUE(m_robot.MessageBoxes().empty());
}

// ---- The keyboard ---------------------------------------------------------------------------------------------------

TEST_P(CPulseFormControlsTest, TabGoesThroughTheFieldsInReadingOrder)
{
    Leave(GetParam(), [](CDialogRobot& dialog) {
        const SPulseForm& form = GetParam();
        ChooseForm(dialog, form);
        dialog.Focus(2061);
        std::vector<UINT> order = {2061, 2051, 2052, form.start};
        if (form.output != kNoOutput)
            order.push_back(form.outputList);
        if (form.radio != 0)
            order.push_back(form.radio);
        for (const SFormList& list : form.lists)
            order.push_back(list.id);
        for (const SFormNumber& number : form.numbers)
            order.push_back(number.id);
        order.insert(order.end(), {1, 2, 2099});
        ExpectTabOrder(dialog, order);
    });
}

TEST_P(CPulseFormControlsTest, EnterConfirmsAndEscLeaves)
{
    const SPulseForm& form = GetParam();
    Confirm(form, [&](CDialogRobot& dialog) {
        FillIn(dialog, form);
        dialog.Focus(form.numbers[0].id);
        EXPECT_EQ(dialog.Answering(IDOK, [&] { dialog.PressKey(VK_RETURN); }), CString());
        EXPECT_FALSE(dialog.IsOpen());
    });
    EXPECT_EQ(ReadResults(m_wizard), FormResults(form, {}));
    Leave(form, [&](CDialogRobot& dialog) {
        FillIn(dialog, form, {.entry = 0});
        dialog.PressKey(VK_ESCAPE);
        EXPECT_FALSE(dialog.IsOpen());
    });
    EXPECT_EQ(ReadResults(m_wizard), FormResults(form, {}));
}
