// What the user can do in the selection dialog: choose, cancel, ask for comments and for help.
#include "tests/dialogs/select/PosSelectTest.h"
#include "tests/support/AllocationFaults.h"

#include "dialogs/base/PosSelectDlg.h"

#include <optional>

namespace
{

/// Tests the dialog by itself, without what a choice leads to.
class CPosSelectActionsTest : public CPosSelectTest
{
protected:
    int Run(CPosSelectDlg& dialog, CDialogRobot::Scene scene)
    {
        return Play([&] { return static_cast<int>(dialog.DoModal()); }, {std::move(scene)});
    }

    CPosSelectDlg m_instructions{&m_wizard, kPulseInstructions, nullptr};
    CPosSelectDlg m_operations{&m_wizard, kUnitOperations, nullptr};
};

} // namespace

TEST_F(CPosSelectActionsTest, StartsWithoutAChoice)
{
    EXPECT_EQ(m_instructions.GetChoice().instruction, -1);
    EXPECT_EQ(m_instructions.GetChoice().variant, 0);
}

TEST_F(CPosSelectActionsTest, ReturnsTheSelectedItem)
{
    struct
    {
        int item;
        SWizardChoice choice;
    } const instructions[] = {{0, {168, 0}}, {1, {168, 1}}, {5, {171, 1}}, {10, {176, 0}}};
    for (const auto& row : instructions)
    {
        const int result = Run(m_instructions, [&](CDialogRobot& robot) {
            robot.Select(kList, row.item);
            robot.Click(IDOK);
        });
        EXPECT_EQ(result, 1);
        EXPECT_TRUE(m_instructions.GetChoice() == row.choice) << row.item;
    }
    for (int item = 0; item < 8; ++item)
    {
        Run(m_operations, [&](CDialogRobot& robot) {
            robot.Select(kList, item);
            robot.Click(IDOK);
        });
        EXPECT_TRUE(m_operations.GetChoice() == (SWizardChoice{151, 10010 + 10 * item})) << item;
    }
}

TEST_F(CPosSelectActionsTest, OpensOnTheChoiceThatWasSet)
{
    struct
    {
        SWizardChoice choice;
        int selected;
    } const rows[] = {{{168, 1}, 1}, {{169, 0}, 2}, {{176, 0}, 10}, {{169, 1}, 0}, {{177, 0}, 0}, {{-1, 0}, 0}};
    for (const auto& row : rows)
    {
        m_instructions.SetChoice(row.choice);
        Run(m_instructions, [&](CDialogRobot& robot) {
            EXPECT_EQ(robot.Selection(kList), row.selected);
            robot.Click(IDCANCEL);
        });
        EXPECT_TRUE(m_instructions.GetChoice() == row.choice) << "Cancel chooses nothing";
    }
}

TEST_F(CPosSelectActionsTest, TakesADoubleClickEnterAndEscape)
{
    const auto choose = [&](auto action) {
        m_instructions.SetChoice({});
        return Run(m_instructions, [&](CDialogRobot& robot) {
            robot.Select(kList, 3);
            action(robot);
        });
    };
    EXPECT_EQ(choose([](CDialogRobot& robot) { robot.DoubleClick(kList); }), 1);
    EXPECT_TRUE(m_instructions.GetChoice() == (SWizardChoice{170, 0}));
    EXPECT_EQ(choose([](CDialogRobot& robot) { robot.PressKey(VK_RETURN); }), 1);
    EXPECT_TRUE(m_instructions.GetChoice() == (SWizardChoice{170, 0}));
    EXPECT_EQ(choose([](CDialogRobot& robot) { robot.PressKey(VK_ESCAPE); }), 2);
    EXPECT_EQ(choose([](CDialogRobot& robot) { robot.Click(IDCANCEL); }), 2);
    EXPECT_EQ(choose([](CDialogRobot& robot) {
                  robot.Dialog()->PostMessage(WM_CLOSE);
                  robot.Pump();
              }),
              2);
    EXPECT_TRUE(m_instructions.GetChoice() == SWizardChoice{});
}

TEST_F(CPosSelectActionsTest, MovesTheSelectionByKeys)
{
    Run(m_instructions, [](CDialogRobot& robot) {
        robot.Focus(kList);
        const CString first = robot.Text(kExplanation);
        robot.PressKey(VK_DOWN);
        EXPECT_EQ(robot.Selection(kList), 1);
        EXPECT_NE(robot.Text(kExplanation), first);
        robot.PressKey(VK_RETURN);
    });
    EXPECT_TRUE(m_instructions.GetChoice() == (SWizardChoice{168, 1}));
}

TEST_F(CPosSelectActionsTest, DoesNothingOnOkWithoutASelection)
{
    const auto expectOpen = [&](CDialogRobot& robot) {
        robot.Click(kComments);
        robot.Click(IDOK);
        EXPECT_TRUE(robot.IsOpen());
        robot.DoubleClick(kList);
        EXPECT_TRUE(robot.IsOpen());
        robot.PressKey(VK_RETURN);
        EXPECT_TRUE(robot.IsOpen());
        EXPECT_TRUE(m_instructions.GetChoice() == SWizardChoice{});
        EXPECT_EQ(m_wizard.IsCmtRec(), 1) << "the check box was not stored either";
        robot.Click(IDCANCEL);
    };
    Run(m_instructions, [&](CDialogRobot& robot) {
        robot.Dialog()->SendDlgItemMessage(kList, LB_SETCURSEL, static_cast<WPARAM>(-1));
        expectOpen(robot);
    });
    Support({});
    Run(m_instructions, expectOpen);
}

// ---- Comments -------------------------------------------------------------------------------------------------------

TEST_F(CPosSelectActionsTest, KeepsTheCommentFlagOnOkOnly)
{
    for (const int before : {0, 1, 5})
    {
        const bool checked = before != 0;
        m_wizard.SetCmtRec(before);
        Run(m_instructions, [&](CDialogRobot& robot) {
            EXPECT_EQ(robot.Checked(kComments), checked);
            robot.Click(kComments);
            robot.Click(IDCANCEL);
        });
        EXPECT_EQ(m_wizard.IsCmtRec(), before);

        Run(m_instructions, [&](CDialogRobot& robot) {
            robot.Click(kComments);
            robot.Click(IDOK);
        });
        EXPECT_EQ(m_wizard.IsCmtRec(), checked ? 0 : 1);
        m_wizard.SetCmtRec(before);
        Run(m_operations, [&](CDialogRobot& robot) { robot.Click(IDOK); });
        EXPECT_EQ(m_wizard.IsCmtRec(), checked ? 1 : 0);
    }
}

// ---- Help -----------------------------------------------------------------------------------------------------------

TEST_F(CPosSelectActionsTest, OffersHelpWhenThereIsAHelpFile)
{
    const auto expectHelp = [&](bool offered) {
        for (CPosSelectDlg* dialog : {&m_instructions, &m_operations})
            Run(*dialog, [&](CDialogRobot& robot) {
                EXPECT_EQ(robot.Visible(kHelp), offered);
                EXPECT_EQ(robot.Enabled(kHelp), offered);
                robot.Click(IDCANCEL);
            });
    };
    expectHelp(false);
    m_wizard.SetHelpPath("C:\\tool\\help.chm");
    expectHelp(true);
    m_wizard.SetHelpPath("");
    expectHelp(false);
    m_wizard.SetHelpPath("help.chm");
    expectHelp(true);
    m_wizard.SetHelpPath(nullptr);
    expectHelp(false);
}

// ---- Memory ---------------------------------------------------------------------------------------------------------

TEST_F(CPosSelectActionsTest, IsCancelledWhenMemoryDoesNotSufficeToOpenIt)
{
    for (CPosSelectDlg* dialog : {&m_instructions, &m_operations})
    {
        int failing = 0;
        for (int failures = 1; failures > 0; ++failing)
        {
            std::optional<CAllocationFaults> faults;
            bool opened = false;
            const int result = m_robot.Play(
                [&] {
                    faults.emplace(failing);
                    const int closed = static_cast<int>(dialog->DoModal());
                    faults->Pause();
                    return closed;
                },
                {[&](CDialogRobot& robot) {
                    faults->Pause();
                    opened = true;
                    robot.Click(IDCANCEL);
                }});
            failures = faults->Failures();
            EXPECT_TRUE(result == 2 || result == -1) << failing;
            if (!opened && failures > 0)
                m_robot.ClearFailures(); // that its scene was not played
        }
        EXPECT_GT(failing, 3);
    }
}
