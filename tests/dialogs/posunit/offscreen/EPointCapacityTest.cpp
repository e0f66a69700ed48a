// Lists that refuse an item: the dialog of E point control ends before it is seen.
#include "afx/offscreen/Desktop.h"
#include "tests/dialogs/posunit/EPointTest.h"

namespace
{

class CEPointCapacityTest : public CEPointTest
{
protected:
    ~CEPointCapacityTest() override { offscreen::SetListCapacity(offscreen::kNoListLimit); }
};

// The lists hold the contact's devices, and at most eight items of the control code.
TEST_F(CEPointCapacityTest, OpensOnlyWhenEveryListHoldsItsItems)
{
    constexpr int kBitDevices[] = {kX, kY, kR, kSpecialR, kT, kC, kL, 18, 17};
    for (const int source : kSources)
        for (size_t devices = 0; devices <= std::size(kBitDevices); ++devices)
        {
            CFunWizard wizard;
            wizard.SetLanguageInfo(source);
            SetDeviceRange(wizard, kDT, 0, 100);
            for (size_t i = 0; i < devices; ++i)
                SetDeviceRange(wizard, kBitDevices[i], 0, 100);
            for (size_t capacity = 0; capacity <= 10; ++capacity)
            {
                SCOPED_TRACE(testing::Message() << source << ", " << devices << " devices, " << capacity << " items");
                offscreen::SetListCapacity(capacity);
                std::vector<Scene> scenes;
                if (capacity >= std::max<size_t>(devices, 8))
                    scenes.push_back([](CDialogRobot& dialog) { dialog.Click(IDCANCEL); });
                const auto open = [&] { return static_cast<int>(CEPointDlg(&wizard, kEPointForm, nullptr).DoModal()); };
                EXPECT_EQ(Play(open, scenes), 2);
            }
        }
}

// The selection has eight operations, and the controller as many devices and one more.
TEST_F(CEPointCapacityTest, LeadsBackToTheSelection)
{
    for (const int device : {18, 17})
        SetDeviceRange(m_wizard, device, 0, 100);
    const int result = Play([&] { return m_wizard.DoOpenPosDlg(1, 1, nullptr); },
                            {[](CDialogRobot& selection) {
                                 offscreen::SetListCapacity(8);
                                 selection.Click(IDOK);
                             },
                             [](CDialogRobot& selection) {
                                 EXPECT_EQ(selection.Items(IDC_SELECT_LIST).size(), 8u);
                                 selection.Click(IDCANCEL);
                             }});
    EXPECT_EQ(result, 2);
    EXPECT_TRUE(m_robot.MessageBoxes().empty());
}

} // namespace
