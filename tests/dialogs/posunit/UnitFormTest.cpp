#include "tests/dialogs/posunit/UnitFormTest.h"

#include <algorithm>

CUnitFormTest::CUnitFormTest()
{
    SFunWizardTest::SetAxisFlag(m_wizard, 1);
    Use(kEnglish);
}

void CUnitFormTest::Use(int source)
{
    const HINSTANCE library = m_wizard.SetLanguageInfo(source);
    ASSERT_EQ(library != nullptr, source != kModule);
}

int CUnitFormTest::Open(const SUnitForm& form, std::vector<Scene> scenes)
{
    const auto dialog = form.make(&m_wizard);
    return Play([&] { return static_cast<int>(dialog->DoModal()); }, std::move(scenes));
}

void CUnitFormTest::Confirm(const SUnitForm& form, const Scene& scene)
{
    EXPECT_EQ(Open(form, {[&](CDialogRobot& dialog) {
                       if (scene)
                           scene(dialog);
                       if (dialog.IsOpen())
                       {
                           EXPECT_EQ(dialog.ClickAndAnswer(IDOK), CString()) << "OK was refused";
                       }
                   }}),
              1);
}

void CUnitFormTest::Leave(const SUnitForm& form, const Scene& scene)
{
    EXPECT_EQ(Open(form, {[&](CDialogRobot& dialog) {
                       if (scene)
                           scene(dialog);
                       if (dialog.IsOpen())
                           dialog.Click(IDCANCEL);
                   }}),
              2);
}

void CUnitFormTest::ConfirmFromSelection(const SUnitForm& form, const Scene& scene, unsigned char axisFlag)
{
    const auto choose = [&](CDialogRobot& selection) {
        selection.SelectText(2001, form.title);
        selection.Click(IDOK);
    };
    const auto confirm = [&](CDialogRobot& dialog) {
        scene(dialog);
        EXPECT_EQ(dialog.ClickAndAnswer(IDOK), CString()) << "OK was refused";
    };
    EXPECT_EQ(Play([&] { return m_wizard.DoOpenPosDlg(1, axisFlag, nullptr); }, {choose, confirm}), 1);
}

SResults CUnitFormTest::Confirmed(const SUnitForm& form, const SUnitEntries& entries)
{
    Confirm(form, [&](CDialogRobot& dialog) { FillIn(dialog, form, entries); });
    return ReadResults(m_wizard);
}

void CUnitFormTest::Check(CDialogRobot& dialog, const SUnitForm& form, const SUnitEntries& entries)
{
    const SUnitOutcome outcome = UnitOutcome(form, entries, m_wizard);
    const SResults before = ReadResults(m_wizard);
    FillIn(dialog, form, entries);
    if (outcome.message != 0)
    {
        ExpectRefusal(dialog, outcome.message, outcome.edit);
        EXPECT_EQ(ReadResults(m_wizard), before);
        return;
    }
    EXPECT_EQ(dialog.ClickAndAnswer(IDOK), CString());
    EXPECT_FALSE(dialog.IsOpen());
    SResults expected = outcome.results;
    expected.instructions = before.instructions;
    if (!m_wizard.IsCmtRec())
        expected.comments = before.comments;
    EXPECT_EQ(ReadResults(m_wizard), expected);
}

void CUnitFormTest::Check(const SUnitForm& form, const SUnitEntries& entries)
{
    const auto check = [&](CDialogRobot& dialog) { Check(dialog, form, entries); };
    UnitOutcome(form, entries, m_wizard).message == 0 ? Confirm(form, check) : Leave(form, check);
}

std::vector<SUnitForm> StartedForms()
{
    std::vector<SUnitForm> forms = UnitForms();
    std::erase_if(forms, [](const SUnitForm& form) { return !form.HasStartOutput(); });
    return forms;
}

std::string UnitFormName(const testing::TestParamInfo<SUnitForm>& info) { return info.param.name; }

SResults EarlierUnitResults()
{
    return {.contacts = {{2, 2, 7}, {2, 1, 9}, {2, 2, 7}, {3, 2, 100}},
            .operands = {{11, 5}, {9, 200}, {11, 8}, {12, 0x130}},
            .data = {{9, 200, 1, 1, 0x10}, {9, 202, 1, 0, 77}},
            .comments = {"kept"},
            .instructions = {{8, -1, 151, 0, 0}}};
}

std::vector<bool> SameOrNot(bool wanted)
{
    return wanted || IsThorough() ? std::vector{false, true} : std::vector{true};
}

std::vector<int> SweptDirections(const SUnitForm& form)
{
    if (!form.HasDirection())
        return {0};
    return IsThorough() ? std::vector{0, 1} : std::vector{1};
}

SUnitEntries Started(const SUnitForm& form)
{
    SUnitEntries entries(form);
    entries.startOutput = true;
    return entries;
}

namespace
{

bool IsShown(CDialogRobot& dialog, UINT id) { return dialog.Exists(id) && dialog.Visible(id); }

void FillInStartOutput(CDialogRobot& dialog, const SUnitEntries& entries)
{
    dialog.Check(2054); // so that the rest can be filled in
    dialog.Check(2055, false);
    dialog.SelectText(2056, DeviceName(entries.secondDevice).c_str());
    dialog.Type(2057, entries.second.c_str());
    dialog.Check(2055, entries.same);
    if (dialog.Exists(2062))
        dialog.Select(2062, entries.direction);
    if (IsShown(dialog, 2059))
        dialog.Type(2059, entries.word.c_str());
    dialog.Check(2054, entries.startOutput);
}

} // namespace

void FillIn(CDialogRobot& dialog, const SUnitForm& form, const SUnitEntries& entries)
{
    dialog.SelectText(2051, DeviceName(entries.device).c_str());
    dialog.Type(2052, entries.contact.c_str());
    dialog.Type(form.slot, entries.slot.c_str());
    dialog.Type(form.axis, entries.axis.c_str());
    dialog.Type(form.start, entries.start.c_str());
    for (size_t i = 0; i < form.lists.size(); ++i)
        entries.items[i] < 0 ? SelectByProgram(dialog, form.lists[i].id, -1)
                             : dialog.Select(form.lists[i].id, entries.items[i]);
    for (size_t i = 0; i < form.numbers.size(); ++i)
        dialog.Type(form.numbers[i].id, entries.numbers[i].c_str());
    if (form.changeDevice != 0)
    {
        dialog.SelectText(form.changeDevice, DeviceName(entries.changeDevice).c_str());
        dialog.Type(form.changeNumber, entries.change.c_str());
    }
    if (IsShown(dialog, 2054))
        FillInStartOutput(dialog, entries);
}

void ExpectShown(CDialogRobot& dialog, const SUnitForm& form, const SUnitEntries& shown)
{
    const auto text = [&](UINT id) { return std::string(dialog.Text(id)); };
    EXPECT_EQ(text(2051), DeviceName(shown.device));
    EXPECT_EQ(text(2052), shown.contact);
    EXPECT_EQ(text(form.slot), shown.slot);
    EXPECT_EQ(text(form.axis), shown.axis);
    EXPECT_EQ(text(form.start), shown.start);
    for (size_t i = 0; i < form.lists.size(); ++i)
        EXPECT_EQ(dialog.Selection(form.lists[i].id), shown.items[i]) << "list " << form.lists[i].id;
    for (size_t i = 0; i < form.numbers.size(); ++i)
        EXPECT_EQ(text(form.numbers[i].id), shown.numbers[i]) << "edit " << form.numbers[i].id;
    if (form.changeDevice != 0)
    {
        EXPECT_EQ(text(form.changeDevice), DeviceName(shown.changeDevice));
        EXPECT_EQ(text(form.changeNumber), shown.change);
    }
    if (!dialog.Exists(2054))
        return;
    EXPECT_EQ(dialog.Checked(2054), shown.startOutput);
    EXPECT_EQ(dialog.Checked(2055), shown.same);
    EXPECT_EQ(text(2056), DeviceName(shown.secondDevice));
    EXPECT_EQ(text(2057), shown.second);
    EXPECT_EQ(text(2059), shown.word);
    if (form.HasDirection())
    {
        EXPECT_EQ(dialog.Selection(2062), shown.direction);
    }
}

CString UnitRangeText(long long low, long long high)
{
    return ("(" + std::to_string(low) + " - " + std::to_string(high) + ")").c_str();
}
