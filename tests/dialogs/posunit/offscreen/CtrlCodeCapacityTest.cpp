// Lists that refuse an item: the dialog of the control code ends before it is seen, but outlives a direct input.
#include "afx/offscreen/Desktop.h"
#include "tests/dialogs/posunit/CtrlCodeTest.h"

namespace
{

class CCtrlCodeCapacityTest : public CCtrlCodeTest
{
protected:
    ~CCtrlCodeCapacityTest() override { offscreen::SetListCapacity(offscreen::kNoListLimit); }
};

// The longest lists have eight items.
TEST_F(CCtrlCodeCapacityTest, OpensOnlyWhenEveryListHoldsItsItems)
{
    for (size_t capacity = 0; capacity <= 10; ++capacity)
    {
        SCOPED_TRACE(capacity);
        offscreen::SetListCapacity(capacity);
        ULONG word = 0x12345678;
        const auto open = [&] { return m_wizard.DoInputPosCtrlDlg(word, nullptr); };
        std::vector<Scene> scenes;
        if (capacity >= 8)
            scenes.push_back([](CDialogRobot& dialog) { dialog.Click(IDOK); });
        EXPECT_EQ(Play(open, scenes), capacity >= 8 ? 1 : 2);
        EXPECT_EQ(word, capacity >= 8 ? 0x12041678u : 0x12345678u);
        EXPECT_EQ(SFunWizardTest::DialogFont(m_wizard), nullptr);
        EXPECT_TRUE(m_robot.MessageBoxes().empty());
    }
}

// A direct input goes on with the lists as far as they are filled.
TEST_F(CCtrlCodeCapacityTest, StaysOpenWhenTheListsCannotBeFilledAgain)
{
    Look(0,
         [](CDialogRobot& dialog) {
             offscreen::SetListCapacity(0);
             dialog.Click(kDirectInput);
             EXPECT_TRUE(dialog.IsOpen());
             EXPECT_TRUE(dialog.Items(3351).empty());
             EXPECT_EQ(dialog.Text(kReadOut), CString("0CC0C800"));
             EXPECT_TRUE(dialog.MessageBoxes().empty());
         },
         {Input("FFFFFFFF")});
}

} // namespace
