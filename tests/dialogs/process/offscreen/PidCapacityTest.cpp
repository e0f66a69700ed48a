// Lists that refuse an item: the dialog of F355 ends before it is seen.
#include "afx/offscreen/Desktop.h"
#include "tests/dialogs/process/PidTest.h"

namespace
{

class CPidCapacityTest : public CPidTest
{
protected:
    ~CPidCapacityTest() override { offscreen::SetListCapacity(offscreen::kNoListLimit); }
};

TEST_F(CPidCapacityTest, OpensOnlyWhenEveryListHoldsItsItems)
{
    for (int devices = 0; devices <= 4; ++devices)
    {
        CFunWizard wizard;
        SetDeviceRange(wizard, kDT, 0, 100);
        for (int device : {kL, kR, kY, kX})
        {
            if (device < devices)
                SetDeviceRange(wizard, device, 0, 100);
        }
        for (int capacity = 0; capacity <= 5; ++capacity)
        {
            SCOPED_TRACE(testing::Message() << devices << " devices, " << capacity << " items");
            offscreen::SetListCapacity(static_cast<size_t>(capacity));
            std::vector<Scene> scenes;
            if (capacity >= std::max(devices, 2))
                scenes.push_back([](CDialogRobot& dialog) { dialog.Click(IDCANCEL); });
            EXPECT_EQ(Play([&] { return wizard.DoOpenPIDDlg(0, nullptr); }, scenes), IDCANCEL);
        }
    }
}

} // namespace
