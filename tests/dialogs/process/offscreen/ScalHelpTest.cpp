// The Help button of scaling: the default topic of the file.
#include "tests/dialogs/process/ScalTest.h"
#include "tests/support/offscreen/HelpCalls.h"

namespace
{

class CScalHelpTest : public CScalTest
{
};

INSTANTIATE_TEST_SUITE_P(Kinds, CScalHelpTest, testing::ValuesIn(kScalKinds), ScalKindName);

TEST_P(CScalHelpTest, OpensTheDefaultTopic)
{
    m_wizard.SetHelpPath("C:\\tool\\help.chm");
    HelpCalls().clear();
    Leave([](CDialogRobot& dialog) {
        dialog.Click(2003);
        EXPECT_TRUE(dialog.IsOpen());
        dialog.PressKey(VK_F1);
    });
    ASSERT_EQ(HelpCalls().size(), 2u);
    for (const SHelpCall& call : HelpCalls())
    {
        EXPECT_EQ(call.owner, nullptr);
        EXPECT_EQ(call.path, "C:\\tool\\help.chm");
        EXPECT_EQ(call.command, 0u);
        EXPECT_EQ(call.topic, 0u);
    }
}

TEST_P(CScalHelpTest, IsSilentWithoutHelp)
{
    HelpCalls().clear();
    Leave([](CDialogRobot& dialog) { dialog.PressKey(VK_F1); });
    EXPECT_TRUE(HelpCalls().empty());
}

} // namespace
