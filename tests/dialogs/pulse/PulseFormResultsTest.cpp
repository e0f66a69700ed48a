// What a confirmed pulse-output dialog leaves in the wizard: every control code, comments, the flag, the ladder.
#include "resources/resource.h"
#include "tests/dialogs/pulse/LadderStarts.h"
#include "tests/dialogs/pulse/PulseFormTest.h"
#include "tests/support/Sampled.h"

#include <algorithm>

namespace
{

class CPulseFormResultsTest : public CPulseFormsTest
{
};

class CPulseFormMemoryTest : public CPulseFormsTest
{
};

INSTANTIATE_TEST_SUITE_P(Forms, CPulseFormResultsTest, testing::ValuesIn(SweptForms()), PulseFormName);
INSTANTIATE_TEST_SUITE_P(Forms, CPulseFormMemoryTest, testing::ValuesIn(Sampled(PulseForms(), 5)), PulseFormName);

/// Every combination of items that makes the form; or as a sample as many as take each item once.
std::vector<std::vector<size_t>> Combinations(const SPulseForm& form)
{
    size_t all = 1, longest = 1;
    for (const SFormList& list : form.lists)
        if (list.formItem < 0)
        {
            all *= list.items.size();
            longest = std::max(longest, list.items.size());
        }
    std::vector<std::vector<size_t>> combinations;
    for (size_t i = 0; i < (IsThorough() ? all : longest); ++i)
    {
        std::vector<size_t> items;
        size_t rest = i;
        for (const SFormList& list : form.lists)
        {
            if (list.formItem >= 0)
            {
                items.push_back(static_cast<size_t>(list.formItem));
                continue;
            }
            items.push_back((IsThorough() ? rest : i) % list.items.size());
            rest /= list.items.size();
        }
        combinations.push_back(items);
    }
    return combinations;
}

int Outputs(const SPulseForm& form) { return form.output == kNoOutput ? 1 : form.output == kBuiltInOutput ? 2 : 4; }

/// Resolution 100 has one item on the third and fourth channel.
int OutputFor(const SPulseForm& form, size_t combination)
{
    const bool coarse = form.radio == 2356;
    return static_cast<int>(combination) % (coarse ? 2 : Outputs(form));
}

void ExpectSelected(CDialogRobot& dialog, const SPulseForm& form, const SFormEntries& entries)
{
    if (form.radio != 0)
    {
        EXPECT_TRUE(dialog.Checked(form.radio));
    }
    if (form.output != kNoOutput)
    {
        EXPECT_EQ(dialog.Selection(form.outputList), entries.output);
    }
    for (size_t i = 0; i < form.lists.size(); ++i)
        EXPECT_EQ(dialog.Selection(form.lists[i].id), static_cast<int>(SelectedItem(form, entries, i)))
            << "of list " << form.lists[i].id;
    for (const SFormNumber& number : form.numbers)
        EXPECT_EQ(std::string(dialog.Text(number.id)), ShownNumber(number, number.good[entries.entry].value));
}

} // namespace

// Each code is stored, shown again, and stored again by the next OK.
TEST_P(CPulseFormResultsTest, HoldTheCodeOfEveryCombination)
{
    const SPulseForm& form = GetParam();
    size_t combination = 0;
    for (const std::vector<size_t>& items : Combinations(form))
    {
        const SFormEntries entries = {.items = items, .output = OutputFor(form, combination++)};
        const SResults expected = FormResults(form, entries);
        SCOPED_TRACE(testing::Message() << "code " << std::hex << ControlCode(form, entries));
        ASSERT_EQ(Confirmed(form, entries), expected);
        Confirm(form, [&](CDialogRobot& dialog) { ExpectSelected(dialog, form, entries); });
        ASSERT_EQ(ReadResults(m_wizard), expected);
    }
}

// The code ends before the first list, in the order of the lists, that has no selection. The mode that makes a form of
// F172 is no such list: without a selection there is no target.
TEST_P(CPulseFormResultsTest, HoldTheCodeUpToAListWithoutSelection)
{
    const SPulseForm& form = GetParam();
    if (form.instruction < 171 || form.instruction == 173)
        return;
    std::vector<size_t> last;
    for (const SFormList& list : form.lists)
        last.push_back(list.formItem < 0 ? list.items.size() - 1 : static_cast<size_t>(list.formItem));
    int before = 0;
    for (size_t i = 0; i < form.lists.size(); ++i)
    {
        const SFormList& list = form.lists[i];
        if (list.id == 2304)
        {
            before = list.items[last[i]].code;
            continue;
        }
        Confirm(form, [&](CDialogRobot& dialog) {
            FillIn(dialog, form, {.items = last});
            SelectByProgram(dialog, list.id, -1);
            // Without a range the only frequency, or speed, is 0.
            for (const UINT edit : list.id == 2306   ? std::vector<UINT>{2308}
                                   : list.id == 2256 ? std::vector<UINT>{2261, 2262}
                                                     : std::vector<UINT>())
                dialog.Type(edit, "0");
        });
        EXPECT_EQ(ReadResults(m_wizard).data[0], (SDataRow{9, 100, 1, 1, before})) << "without " << list.id;
        before += list.items[last[i]].code;
    }
}

TEST_P(CPulseFormResultsTest, HoldTheOutput)
{
    const SPulseForm& form = GetParam();
    for (int output = 0; output < Outputs(form); ++output)
    {
        EXPECT_EQ(Confirmed(form, {.output = output}), FormResults(form, {.output = output}));
        Leave(form, [&](CDialogRobot& dialog) { ExpectSelected(dialog, form, {.output = output}); });
    }
}

TEST_P(CPulseFormResultsTest, HoldTheContact)
{
    const SPulseForm& form = GetParam();
    const struct
    {
        const char* text;
        int device;
        int number;
    } contacts[] = {{"0", kX, 0}, {"109F", kY, 1759}, {"901A", kSpecialR, 14426}, {"1007", kT, 1007}, {"7F", kL, 127}};
    for (const auto& contact : Sampled(contacts, 3))
    {
        SResults expected = FormResults(form, {});
        expected.contacts = {{2, contact.device, contact.number}};
        Confirm(form, [&](CDialogRobot& dialog) {
            FillIn(dialog, form);
            dialog.SelectText(2051, DeviceName(contact.device).c_str());
            dialog.Type(2052, contact.text);
        });
        EXPECT_EQ(ReadResults(m_wizard), expected);
    }
    Leave(form, [](CDialogRobot& dialog) {
        EXPECT_EQ(dialog.Text(2051), CString("L"));
        EXPECT_EQ(dialog.Text(2052), CString("7F"));
    });
}

TEST_P(CPulseFormResultsTest, ReplaceTheListsAndLeaveTheInstructionsAlone)
{
    const SPulseForm& form = GetParam();
    WriteResults(m_wizard, {.contacts = {{2, 3, 1}, {17, -1, 0}, {3, 2, 5}},
                            .operands = {{9, 1}, {11, 1}, {11, 7}},
                            .data = std::vector<SDataRow>(40, {9, 1, 0, 0, 7}),
                            .comments = {"a", "b", "c", "d", "e", "f", "g", "h"},
                            .instructions = {{8, -1, 171, 0, 0}}});
    SResults expected = FormResults(form, {});
    expected.instructions = {{8, -1, 171, 0, 0}};
    EXPECT_EQ(Confirmed(form, {}), expected);
}

TEST_P(CPulseFormResultsTest, KeepTheOldCommentsWhenNoneAreWanted)
{
    const SPulseForm& form = GetParam();
    m_wizard.AddCmtInfo("of the host");
    m_wizard.SetCmtRec(0);
    SResults expected = FormResults(form, {});
    expected.comments = {"of the host"};
    EXPECT_EQ(Confirmed(form, {}), expected);
    m_wizard.SetCmtRec(-1);
    EXPECT_EQ(Confirmed(form, {}), FormResults(form, {}));
}

TEST_P(CPulseFormResultsTest, TakeTheCommentsFromTheLabels)
{
    const SPulseForm& form = GetParam();
    if (form.instruction == 175 || form.instruction == 176)
        return; // they join two labels, and have tests of their own
    SResults expected = FormResults(form, {});
    for (size_t i = 0; i < form.numbers.size(); ++i)
        expected.comments[form.CodeRecords() + i] = "before " + std::to_string(form.numbers[i].id);
    Confirm(form, [&](CDialogRobot& dialog) {
        FillIn(dialog, form);
        for (const SFormNumber& number : form.numbers)
            ControlBefore(dialog, number.id)->SetWindowText(("before " + std::to_string(number.id)).c_str());
    });
    EXPECT_EQ(ReadResults(m_wizard), expected);
}

TEST_P(CPulseFormResultsTest, SayWhetherOnlyADataTableIsCreated)
{
    const SPulseForm& form = GetParam();
    for (const bool only : {true, false})
    {
        EXPECT_EQ(Confirmed(form, {.onlyDataTable = only}), FormResults(form, {}));
        EXPECT_EQ(m_wizard.IsOnlyDataTable(), only ? 1 : 0);
        Leave(form, [&](CDialogRobot& dialog) {
            EXPECT_EQ(dialog.Checked(2061), only);
            dialog.Check(2061, !only); // Back forgets it
        });
        EXPECT_EQ(m_wizard.IsOnlyDataTable(), only ? 1 : 0);
    }
}

TEST_P(CPulseFormMemoryTest, LeavesCompleteResultsOnceThereIsEnough)
{
    const SPulseForm& form = GetParam();
    Confirm(form, [&](CDialogRobot& dialog) {
        FillIn(dialog, form);
        EXPECT_GT(ConfirmShortOfMemory(dialog), 5) << "OK allocates more than that";
    });
    EXPECT_EQ(ReadResults(m_wizard), FormResults(form, {}));
}

// ---- "Only a data table is created." and "Clear settings" -----------------------------------------------------------

TEST_P(CPulseFormResultsTest, NeedNoOutputForADataTableAlone)
{
    const SPulseForm& form = GetParam();
    const auto expectOutputEnabled = [&](CDialogRobot& dialog, bool enabled) {
        for (const SRobotControl& control : dialog.Controls())
        {
            const bool follows = form.output != kNoOutput &&
                                 (control.id == form.outputList || control.text == CString(form.outputLabel));
            if (control.visible)
            {
                EXPECT_EQ(control.enabled, enabled || !follows) << "control " << control.id << ", " << control.text;
            }
        }
    };
    m_wizard.SetOnlyDataTable(0);
    Leave(form, [&](CDialogRobot& dialog) {
        FillIn(dialog, form, {.output = form.output == kNoOutput ? 0 : 1});
        expectOutputEnabled(dialog, true);
        dialog.Check(2061, true);
        expectOutputEnabled(dialog, false);
        // A channel becomes the first one; a built-in output stays.
        const int after = form.output == kBuiltInOutput ? 1 : 0;
        if (form.output != kNoOutput)
        {
            EXPECT_EQ(dialog.Selection(form.outputList), after);
            SelectByProgram(dialog, form.outputList, 1); // no user can while it is disabled
        }
        dialog.Check(2061, false);
        expectOutputEnabled(dialog, true);
        if (form.output != kNoOutput)
        {
            EXPECT_EQ(dialog.Selection(form.outputList), after);
        }
    });
    m_wizard.SetOnlyDataTable(-7);
    Leave(form, [&](CDialogRobot& dialog) {
        EXPECT_TRUE(dialog.Checked(2061));
        expectOutputEnabled(dialog, false);
    });
    EXPECT_EQ(m_wizard.IsOnlyDataTable(), -7);
}

TEST_P(CPulseFormResultsTest, AreNotTouchedByClearSettings)
{
    const SPulseForm& form = GetParam();
    std::vector<size_t> last;
    for (const SFormList& list : form.lists)
        last.push_back(list.formItem < 0 ? list.items.size() - 1 : static_cast<size_t>(list.formItem));
    for (const bool only : {false, true})
    {
        const SFormEntries entries = {
            .items = last, .output = form.output == kNoOutput || only ? 0 : 1, .onlyDataTable = only};
        WriteResults(m_wizard, {});
        const SResults before = Confirmed(form, entries);
        EXPECT_EQ(before, FormResults(form, entries));
        Leave(form, [&](CDialogRobot& dialog) {
            dialog.Click(2099);
            EXPECT_EQ(dialog.Selection(2051), 0);
            EXPECT_EQ(dialog.Text(2053), CString("(0 - 109F)"));
            if (form.output != kNoOutput)
            {
                EXPECT_EQ(dialog.Selection(form.outputList), 0);
                EXPECT_EQ(dialog.Enabled(form.outputList), !only);
            }
            if (form.radio != 0)
            {
                EXPECT_TRUE(dialog.Checked(2355));
            }
            for (const SFormList& list : form.lists)
                EXPECT_EQ(dialog.Selection(list.id), 0) << "of list " << list.id;
            for (const auto& [edit, message] : CheckedEdits(form))
                EXPECT_EQ(dialog.Text(edit), CString()) << "of edit " << edit;
            EXPECT_EQ(dialog.Text(form.startLabel), RangeText(0, 32764 - form.wordsBefore + 1));
            EXPECT_EQ(dialog.Checked(2061), only);
            EXPECT_EQ(dialog.FocusId(), 2061u);
            EXPECT_EQ(ReadResults(m_wizard), before);
        });
        EXPECT_EQ(ReadResults(m_wizard), before);
    }
}

// ---- The ladder -----------------------------------------------------------------------------------------------------

namespace
{

std::vector<SInstructionRow> Ladder(const SPulseForm& form, const SResults& results, const SStart& start, bool stepFive,
                                    bool only)
{
    const SInstructionRow edge = {17, -1, 0, 0, 0};
    std::vector<SInstructionRow> rows = {start.contact};
    const bool startsOnEdge = form.instruction == 171 || form.instruction == 175;
    const bool hasEdge = start.takesEdge && (stepFive || startsOnEdge);
    if (hasEdge)
        rows.push_back(edge);
    for (const SDataRow& record : results.data)
    {
        rows.push_back({8, -1, record.type, 0, 0});
        rows.push_back({-1, record.format != 0 ? 12 : 11, record.value, 0, 0});
        rows.push_back({-1, 9, record.number, 0, 0});
    }
    if (only)
        return rows;
    if (stepFive && !hasEdge)
    {
        rows.push_back(start.contact);
        if (startsOnEdge || form.instruction == 177)
            rows.push_back(edge);
    }
    rows.push_back({8, -1, form.instruction, 0, 0});
    for (const SOperandRow& operand : results.operands)
        rows.push_back({-1, operand.code, operand.value, 0, 0});
    return rows;
}

} // namespace

// What a dialog stored becomes the ladder of every PLC type, with step 5 of the generator and without.
TEST_P(CPulseFormResultsTest, LeadToTheLadder)
{
    const SPulseForm& form = GetParam();
    m_wizard.ClearSuppportFunInfo();
    m_wizard.EntrySupportFunInfo(form.instruction);
    if (form.displayType != 0)
        m_wizard.SetF175DispType(static_cast<unsigned short>(form.displayType));
    for (const SStart& start : Sampled(kStarts, 2))
        for (const bool only : {false, true})
        {
            const SFormEntries entries = {.output = form.output == kNoOutput || only ? 0 : 1, .onlyDataTable = only};
            const auto choose = [&](CDialogRobot& selection) {
                ASSERT_EQ(selection.Items(IDC_SELECT_LIST).size(), form.instruction == 171 ? 2u : 1u);
                selection.Select(IDC_SELECT_LIST, form.variant);
                selection.Click(IDOK);
            };
            const auto confirm = [&](CDialogRobot& dialog) {
                FillIn(dialog, form, entries);
                dialog.SelectText(2051, start.device);
                dialog.Type(2052, start.number);
                EXPECT_EQ(dialog.ClickAndAnswer(IDOK), CString());
            };
            m_wizard.SetPlcType(static_cast<BYTE>(form.plcType));
            ASSERT_EQ(Play([this] { return m_wizard.DoOpenPosDlg(0, 1, nullptr); }, {choose, confirm}), IDOK);
            for (const int plcType : {1, 69, 70, 72, 74, 75, 114, 160})
            {
                SCOPED_TRACE(testing::Message()
                             << start.device << start.number << ", only " << only << ", type " << plcType);
                m_wizard.SetPlcType(static_cast<BYTE>(plcType));
                EXPECT_EQ(m_wizard.CreateInstCode(), 1);
                EXPECT_EQ(ReadResults(m_wizard).instructions,
                          Ladder(form, FormResults(form, entries), start, plcType >= 70 && plcType <= 74, only));
            }
        }
}
