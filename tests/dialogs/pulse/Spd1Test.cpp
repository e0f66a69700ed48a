#include "tests/dialogs/pulse/Spd1Test.h"

#include <map>

CSpd1Test::CSpd1Test()
{
    SetUpController(m_wizard);
    PexloDll_SetAppName(kAppName);
}

CSpd1Test::~CSpd1Test() { PexloDll_SetAppName(nullptr); }

CDialogRobot::Scene CSpd1Test::Choose(ESpd1Variant variant) const
{
    return [=, this](CDialogRobot& selection) {
        selection.Select(IDC_SELECT_LIST, variant);
        selection.Check(IDC_REGISTER_COMMENTS, m_registerComments);
        selection.Click(IDOK);
    };
}

void CSpd1Test::Confirm(ESpd1Variant variant, const Scene& scene)
{
    const auto confirm = [&](CDialogRobot& dialog) {
        if (scene)
            scene(dialog);
        if (!dialog.IsOpen())
            return;
        EXPECT_EQ(dialog.ClickAndAnswer(IDOK), CString()) << "OK was refused";
    };
    EXPECT_EQ(Play([this] { return m_wizard.DoOpenPosDlg(0, 1, nullptr); }, {Choose(variant), confirm}), IDOK);
    m_confirmed = variant;
}

void CSpd1Test::Leave(ESpd1Variant variant, const Scene& scene)
{
    const auto leave = [&](CDialogRobot& dialog) {
        if (scene)
            scene(dialog);
        if (dialog.IsOpen())
            dialog.Click(IDCANCEL);
    };
    const auto cancel = [](CDialogRobot& selection) { selection.Click(IDCANCEL); };
    EXPECT_EQ(Play([this] { return m_wizard.DoOpenPosDlg(0, 1, nullptr); }, {Choose(variant), leave, cancel}),
              IDCANCEL);
}

void CSpd1Test::Remember(ESpd1Variant variant, const SResults& results)
{
    // Only a confirmed dialog makes its instruction the last one; the lists of any other would be emptied.
    if (m_confirmed != variant)
        Confirm(variant, [](CDialogRobot& dialog) { FillIn(dialog, {}); });
    WriteResults(m_wizard, results);
}

SSpd1Limits CSpd1Test::Limits(int device) const
{
    int low, high, lowRegister, highRegister;
    EXPECT_EQ(m_wizard.GetDevRange(-1, static_cast<short>(device), low, high), 1);
    EXPECT_EQ(m_wizard.GetDevRange(-1, kDT, lowRegister, highRegister), 1);
    return {{low, high}, {lowRegister, highRegister}};
}

std::string DeviceName(int code)
{
    static const std::map<int, const char*> names = {{3, "X"}, {2, "Y"}, {1, "R"},  {20001, "Sp.R"}, {4, "T"},
                                                     {5, "C"}, {0, "L"}, {18, "E"}, {17, "P"}};
    return names.at(code);
}

void FillIn(CDialogRobot& dialog, const SSpd1Entries& entries)
{
    dialog.Check(IDC_ONLY_DATA_TABLE, false); // so that the output can be chosen
    dialog.SelectText(IDC_CONTACT_DEVICE, DeviceName(entries.device).c_str());
    dialog.Type(IDC_CONTACT_NUMBER, entries.contact.c_str());
    dialog.Type(IDC_SPD1_START, entries.start.c_str());
    dialog.Select(IDC_SPD1_OUTPUT, entries.output);
    dialog.Check(IDC_ONLY_DATA_TABLE, entries.onlyDataTable);
    dialog.Select(IDC_SPD1_WIDTH, entries.width);
    dialog.Select(IDC_SPD1_MODE, entries.mode);
    dialog.Type(IDC_SPD1_INITIAL, entries.initial.c_str());
    dialog.Type(IDC_SPD1_MAXIMUM, entries.maximum.c_str());
    dialog.Type(IDC_SPD1_TIME, entries.time.c_str());
    if (dialog.Exists(IDC_SPD1_TARGET))
        dialog.Type(IDC_SPD1_TARGET, entries.target.c_str());
}

void ExpectRefusal(CDialogRobot& dialog, unsigned message, unsigned edit)
{
    const size_t boxes = dialog.MessageBoxes().size();
    EXPECT_EQ(dialog.ClickAndAnswer(IDOK), CString(MessageText(message).c_str()));
    ASSERT_EQ(dialog.MessageBoxes().size(), boxes + 1);
    EXPECT_EQ(dialog.MessageBoxes().back().caption, CString("Ladder tool"));
    EXPECT_EQ(dialog.MessageBoxes().back().icon, UINT{MB_ICONEXCLAMATION});
    EXPECT_TRUE(dialog.IsOpen());
    EXPECT_EQ(dialog.FocusId(), edit);
    const std::pair<int, int> all = {0, dialog.Text(edit).GetLength()};
    EXPECT_EQ(dialog.SelectedRange(edit), all) << "of edit " << edit;
}

CWnd* ControlBefore(CDialogRobot& dialog, UINT id) { return dialog.Dialog()->GetDlgItem(id)->GetWindow(GW_HWNDPREV); }

std::string TextBefore(CDialogRobot& dialog, UINT id)
{
    CString text;
    ControlBefore(dialog, id)->GetWindowText(text);
    return static_cast<LPCSTR>(text);
}

std::string TextAfter(CDialogRobot& dialog, UINT id, int steps)
{
    CWnd* control = dialog.Dialog()->GetDlgItem(id);
    while (steps-- > 0)
        control = control->GetWindow(GW_HWNDNEXT);
    CString text;
    control->GetWindowText(text);
    return static_cast<LPCSTR>(text);
}
