// The Help button of the selection dialog: which topic of which file it opens.
#include "tests/dialogs/select/PosSelectTest.h"

#include "tests/support/offscreen/HelpCalls.h"

namespace
{

class CSelectionHelpTest : public CPosSelectTest
{
protected:
    void SetUp() override
    {
        CPosSelectTest::SetUp();
        HelpCalls().clear();
    }
};

} // namespace

TEST_F(CSelectionHelpTest, OpensTheTopicOfTheMode)
{
    m_wizard.SetHelpPath("C:\\tool\\help.chm");
    struct
    {
        int mode;
        DWORD_PTR topic;
    } const rows[] = {{0, 5551}, {1, 5552}, {2, 5552}};
    for (const auto& row : rows)
    {
        Look(row.mode, [&](CDialogRobot& robot) {
            HelpCalls().clear();
            robot.Click(kHelp);
            EXPECT_TRUE(robot.IsOpen());
            ASSERT_EQ(HelpCalls().size(), 1u);
            EXPECT_EQ(HelpCalls()[0].owner, nullptr);
            EXPECT_EQ(HelpCalls()[0].path, "C:\\tool\\help.chm");
            EXPECT_EQ(HelpCalls()[0].command, 15u);
            EXPECT_EQ(HelpCalls()[0].topic, row.topic);

            robot.Click(kHelp);
            EXPECT_EQ(HelpCalls().size(), 2u);
        });
    }
}

TEST_F(CSelectionHelpTest, F1OpensTheSameTopic)
{
    m_wizard.SetHelpPath("C:\\tool\\help.chm");
    Look(1, [](CDialogRobot& robot) {
        HelpCalls().clear();
        robot.PressKey(VK_F1);
        ASSERT_EQ(HelpCalls().size(), 1u);
        EXPECT_EQ(HelpCalls()[0].topic, 5552u);
    });
}

TEST_F(CSelectionHelpTest, F1DoesNothingWithoutHelp)
{
    Look(0, [](CDialogRobot& robot) {
        HelpCalls().clear();
        robot.PressKey(VK_F1);
        EXPECT_TRUE(HelpCalls().empty());
        EXPECT_TRUE(robot.IsOpen());
    });
}
