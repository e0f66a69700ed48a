#include "tests/dialogs/posunit/EPointTest.h"

#include <algorithm>

CEPointTest::CEPointTest() { SFunWizardTest::SetAxisFlag(m_wizard, 1); }

void CEPointTest::Use(int source)
{
    const HINSTANCE library = m_wizard.SetLanguageInfo(source);
    ASSERT_EQ(library != nullptr, source != kModule);
}

void CEPointTest::Confirm(EEPointForm form, const Scene& scene)
{
    const auto confirm = [&](CDialogRobot& dialog) {
        if (scene)
            scene(dialog);
        if (!dialog.IsOpen())
            return;
        EXPECT_EQ(dialog.ClickAndAnswer(IDOK), CString()) << "OK was refused";
    };
    EXPECT_EQ(Play([&] { return static_cast<int>(CEPointDlg(&m_wizard, form, nullptr).DoModal()); }, {confirm}), 1);
}

void CEPointTest::Leave(EEPointForm form, const Scene& scene)
{
    const auto leave = [&](CDialogRobot& dialog) {
        if (scene)
            scene(dialog);
        if (dialog.IsOpen())
            dialog.Click(IDCANCEL);
    };
    EXPECT_EQ(Play([&] { return static_cast<int>(CEPointDlg(&m_wizard, form, nullptr).DoModal()); }, {leave}), 2);
}

void CEPointTest::ConfirmFromSelection(EEPointForm form, const Scene& scene, unsigned char axisFlag)
{
    const auto choose = [&](CDialogRobot& selection) {
        selection.SelectText(IDC_SELECT_LIST, form == kEPointForm        ? "E point control"
                                              : form == kPPointStartForm ? "P point control  Start point"
                                                                         : "JOG positioning operation");
        selection.Click(IDOK);
    };
    const auto confirm = [&](CDialogRobot& dialog) {
        scene(dialog);
        EXPECT_EQ(dialog.ClickAndAnswer(IDOK), CString()) << "OK was refused";
    };
    EXPECT_EQ(Play([&] { return m_wizard.DoOpenPosDlg(1, axisFlag, nullptr); }, {choose, confirm}), 1);
}

void CEPointTest::Check(CDialogRobot& dialog, EEPointForm form, const SEPointEntries& entries)
{
    const SEPointOutcome outcome = EPointOutcome(form, entries, m_wizard);
    const SResults before = ReadResults(m_wizard);
    FillIn(dialog, entries);
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

void CEPointTest::Check(EEPointForm form, const SEPointEntries& entries)
{
    const auto check = [&](CDialogRobot& dialog) { Check(dialog, form, entries); };
    EPointOutcome(form, entries, m_wizard).message == 0 ? Confirm(form, check) : Leave(form, check);
}

int VariantOf(EEPointForm form) { return form == kEPointForm ? 10010 : form == kPPointStartForm ? 10020 : 10060; }

namespace
{

bool IsShown(CDialogRobot& dialog, UINT id) { return dialog.Exists(id) && dialog.Visible(id); }

void FillInStartOutput(CDialogRobot& dialog, const SEPointEntries& entries)
{
    dialog.Check(IDC_START_OUTPUT_ENABLE); // so that the rest can be filled in
    dialog.Check(IDC_SAME_CONDITION, false);
    dialog.SelectText(IDC_SECOND_DEVICE, DeviceName(entries.secondDevice).c_str());
    dialog.Type(IDC_SECOND_NUMBER, entries.second.c_str());
    dialog.Check(IDC_SAME_CONDITION, entries.same);
    if (IsShown(dialog, IDC_START_OUTPUT_WORD))
        dialog.Type(IDC_START_OUTPUT_WORD, entries.word.c_str());
    dialog.Check(IDC_START_OUTPUT_ENABLE, entries.startOutput);
}

} // namespace

void FillIn(CDialogRobot& dialog, const SEPointEntries& entries)
{
    dialog.SelectText(IDC_CONTACT_DEVICE, DeviceName(entries.device).c_str());
    dialog.Type(IDC_CONTACT_NUMBER, entries.contact.c_str());
    dialog.Type(IDC_EPOINT_SLOT, entries.slot.c_str());
    dialog.Type(IDC_EPOINT_AXIS, entries.axis.c_str());
    dialog.Type(IDC_EPOINT_START, entries.start.c_str());
    for (size_t i = 0; i < entries.items.size(); ++i)
        dialog.Select(kEPointCombos[i].id, entries.items[i]);
    dialog.Type(IDC_EPOINT_STARTUP_SPEED, entries.startup.c_str());
    dialog.Type(IDC_EPOINT_TARGET_SPEED, entries.target.c_str());
    dialog.Type(IDC_EPOINT_TIME, entries.time.c_str());
    dialog.Type(IDC_EPOINT_POSITION, entries.position.c_str());
    if (IsShown(dialog, IDC_START_OUTPUT_ENABLE))
        FillInStartOutput(dialog, entries);
}

void ExpectShown(CDialogRobot& dialog, const SEPointShown& shown)
{
    EXPECT_EQ(dialog.Text(2051), CString(shown.device));
    EXPECT_EQ(dialog.Text(2052), CString(shown.contact));
    EXPECT_EQ(dialog.Text(3104), CString(shown.slot));
    EXPECT_EQ(dialog.Text(3103), CString(shown.axis));
    EXPECT_EQ(dialog.Text(3101), CString(shown.start));
    EXPECT_EQ(dialog.Text(3108), CString(shown.startup));
    EXPECT_EQ(dialog.Text(3109), CString(shown.target));
    EXPECT_EQ(dialog.Text(3110), CString(shown.time));
    EXPECT_EQ(dialog.Text(3111), CString(shown.position));
}

void ExpectCodeShown(CDialogRobot& dialog, DWORD word)
{
    for (const SEPointCombo& combo : kEPointCombos)
        EXPECT_EQ(dialog.Selection(combo.id), ItemOf(word, AxisFieldAt(combo.shift)))
            << "list " << combo.id << " for " << HexText(word);
}
