// The Help button of the selection dialog: which topic of which file it opens.
#include "tests/dialogs/select/PosSelectTest.h"

#include "afx/offscreen/Desktop.h"

namespace
{

struct SHelpCall
{
    HWND owner;
    std::string path;
    UINT command;
    DWORD_PTR topic;
};

std::vector<SHelpCall> g_calls;

HWND WINAPI RecordHelp(HWND owner, LPCSTR path, UINT command, DWORD_PTR topic)
{
    g_calls.push_back({owner, path, command, topic});
    return nullptr;
}

class CSelectionHelpTest : public CPosSelectTest
{
protected:
    // The control is looked for once in the life of the program.
    void SetUp() override
    {
        CPosSelectTest::SetUp();
        offscreen::RegisterLibrary("hhctrl.ocx",
                                   {{14, reinterpret_cast<FARPROC>(reinterpret_cast<void*>(&RecordHelp))}});
        g_calls.clear();
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
            g_calls.clear();
            robot.Click(kHelp);
            EXPECT_TRUE(robot.IsOpen());
            ASSERT_EQ(g_calls.size(), 1u);
            EXPECT_EQ(g_calls[0].owner, nullptr);
            EXPECT_EQ(g_calls[0].path, "C:\\tool\\help.chm");
            EXPECT_EQ(g_calls[0].command, 15u);
            EXPECT_EQ(g_calls[0].topic, row.topic);

            robot.Click(kHelp);
            EXPECT_EQ(g_calls.size(), 2u);
        });
    }
}

TEST_F(CSelectionHelpTest, F1OpensTheSameTopic)
{
    m_wizard.SetHelpPath("C:\\tool\\help.chm");
    Look(1, [](CDialogRobot& robot) {
        g_calls.clear();
        robot.PressKey(VK_F1);
        ASSERT_EQ(g_calls.size(), 1u);
        EXPECT_EQ(g_calls[0].topic, 5552u);
    });
}

TEST_F(CSelectionHelpTest, F1DoesNothingWithoutHelp)
{
    Look(0, [](CDialogRobot& robot) {
        g_calls.clear();
        robot.PressKey(VK_F1);
        EXPECT_TRUE(g_calls.empty());
        EXPECT_TRUE(robot.IsOpen());
    });
}
