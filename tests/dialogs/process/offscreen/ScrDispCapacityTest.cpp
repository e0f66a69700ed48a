// Lists that refuse an item: the dialog of the screen display ends before it is seen. And what it leaves behind.
#include "afx/offscreen/Desktop.h"
#include "tests/dialogs/process/ScrDispTest.h"

namespace
{

class CScrDispCapacityTest : public CScrDispTest
{
protected:
    ~CScrDispCapacityTest() override { offscreen::SetListCapacity(offscreen::kNoListLimit); }
};

TEST_F(CScrDispCapacityTest, OpensOnlyWhenEveryListHoldsItsItems)
{
    constexpr int kLongest = 5; // of the lists: the display modes
    for (int devices = 1; devices <= 7; devices += 3)
    {
        CFunWizard wizard;
        for (int device = 0; device < devices; ++device)
            SetDeviceRange(wizard, device, 0, 100);
        for (int capacity = 0; capacity <= 8; ++capacity)
        {
            SCOPED_TRACE(testing::Message() << devices << " devices, " << capacity << " items");
            offscreen::SetListCapacity(static_cast<size_t>(capacity));
            std::vector<Scene> scenes;
            if (capacity >= std::max(devices, kLongest))
                scenes.push_back([](CDialogRobot& dialog) { dialog.Click(IDCANCEL); });
            EXPECT_EQ(Play([&] { return wizard.DoOpenSCRDlg(nullptr, nullptr); }, scenes), IDCANCEL);
            EXPECT_TRUE(m_robot.MessageBoxes().empty());
        }
    }
}

TEST_F(CScrDispCapacityTest, LeavesNothingOfItsPicturesBehind)
{
    const offscreen::Counts before = offscreen::Live();
    Leave([](CDialogRobot& dialog) {
        dialog.Pump();
        const offscreen::Counts open = offscreen::Live();
        for (int round = 0; round < 20; ++round)
        {
            for (UINT mark = kFirstMark; mark < kFirstMark + kMarks; ++mark)
                dialog.Click(mark);
            dialog.Select(2883, round % 3);
            dialog.Pump();
        }
        EXPECT_EQ(offscreen::Live(), open);
    });
    EXPECT_EQ(offscreen::Live(), before);
}

} // namespace
