#include "tests/dialogs/pulse/Spd1Test.h"

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
