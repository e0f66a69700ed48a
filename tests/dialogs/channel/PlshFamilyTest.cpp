// The target value of F172 in the dialogs of families B and C, which comes and goes with its mode.
#include "tests/dialogs/pulse/PulseFormTest.h"

namespace
{

struct SPlshFamily
{
    const char* name; ///< of the form without a target; that with one stands beside it
    const char* target;
    const char* starts; ///< without a target
    const char* startsOfTarget;
};

class CPlshFamilyTest : public CPulseFormTest, public testing::WithParamInterface<SPlshFamily>
{
protected:
    CPlshFamilyTest() { SetUpFamily(m_wizard, m_form); }

    const SPulseForm& m_form = PulseForm(GetParam().name);
    const SPulseForm& m_target = PulseForm(GetParam().target);
};

INSTANTIATE_TEST_SUITE_P(Families, CPlshFamilyTest,
                         testing::Values(SPlshFamily{"PlshNoTargetB", "PlshTargetB", "(0 - 32755)", "(0 - 32753)"},
                                         SPlshFamily{"PlshNoTargetC", "PlshTargetC", "(0 - 32761)", "(0 - 32759)"}),
                         [](const auto& row) { return std::string(row.param.name).substr(sizeof "PlshNoTarget" - 1); });

/// The label of the target value, its edit, its unit and its range.
void ExpectTarget(CDialogRobot& dialog, bool shown)
{
    EXPECT_EQ(TextBefore(dialog, 2310), "Target value");
    EXPECT_EQ(TextAfter(dialog, 2310, 2), "(-2147483648 - 2147483647)");
    for (CWnd* control : {ControlBefore(dialog, 2310), dialog.Dialog()->GetDlgItem(2310), ControlAfter(dialog, 2310),
                          ControlAfter(dialog, 2310, 2)})
    {
        EXPECT_EQ(control->IsWindowEnabled() != FALSE, shown);
        EXPECT_EQ((control->GetStyle() & WS_VISIBLE) != 0, shown);
    }
    for (const SRobotControl& control : dialog.Controls())
        if (control.id >= 2301 && control.id < 2310)
        {
            EXPECT_TRUE(control.visible && control.enabled) << control.id;
        }
}

} // namespace

TEST_P(CPlshFamilyTest, ShowsTheTargetInItsMode)
{
    Leave(m_form, [](CDialogRobot& dialog) {
        ExpectTarget(dialog, false);
        EXPECT_EQ(dialog.Text(2302), CString(GetParam().starts));
        dialog.Select(2304, 1);
        ExpectTarget(dialog, true);
        EXPECT_EQ(dialog.Text(2302), CString(GetParam().startsOfTarget));
        dialog.Click(2099);
        ExpectTarget(dialog, false);
        EXPECT_EQ(dialog.Text(2302), CString(GetParam().starts));
    });
}

TEST_P(CPlshFamilyTest, NeitherChecksNorStoresAHiddenTarget)
{
    Confirm(m_form, [&](CDialogRobot& dialog) {
        FillIn(dialog, m_target);
        SetTextByProgram(dialog, 2310, "no target");
        dialog.Select(2304, 0);
    });
    EXPECT_EQ(ReadResults(m_wizard), FormResults(m_form, {}));
}

TEST_P(CPlshFamilyTest, RestoresATargetOfItsModeAlone)
{
    for (const bool shown : {true, false})
    {
        SResults stored = FormResults(m_target, {});
        stored.data[0].value = shown ? 0x11013 : 0x1013;
        WriteResults(m_wizard, stored);
        Leave(m_form, [&](CDialogRobot& dialog) {
            ExpectTarget(dialog, shown);
            EXPECT_EQ(dialog.Text(2310), CString(shown ? "-1234" : ""));
        });
    }
}
