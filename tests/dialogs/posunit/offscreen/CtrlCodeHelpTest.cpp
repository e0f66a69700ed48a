// The Help button of the control code: which topic of which file it opens.
#include "tests/dialogs/posunit/CtrlCodeTest.h"
#include "tests/support/offscreen/HelpCalls.h"

namespace
{

constexpr UINT kShowContext = 15;

TEST_F(CCtrlCodeTest, HelpOpensItsTopic)
{
    m_wizard.SetHelpPath("C:\\tool\\help.chm");
    HelpCalls().clear();
    Look(0, [](CDialogRobot& dialog) {
        dialog.Click(IDC_HELP_TOPIC);
        EXPECT_TRUE(dialog.IsOpen());
        dialog.PressKey(VK_F1);
    });
    ASSERT_EQ(HelpCalls().size(), 2u);
    for (const SHelpCall& call : HelpCalls())
    {
        EXPECT_EQ(call.path, "C:\\tool\\help.chm");
        EXPECT_EQ(call.command, kShowContext);
        EXPECT_EQ(call.topic, 5554u);
    }
}

} // namespace
