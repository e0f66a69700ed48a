// Lists that refuse an item: the dialog of scaling ends before it is seen.
#include "afx/offscreen/Desktop.h"
#include "tests/dialogs/process/ScalTest.h"

namespace
{

class CScalCapacityTest : public CScalTest
{
protected:
    ~CScalCapacityTest() override { offscreen::SetListCapacity(offscreen::kNoListLimit); }
};

INSTANTIATE_TEST_SUITE_P(Kinds, CScalCapacityTest, testing::ValuesIn(kScalKinds), ScalKindName);

TEST_P(CScalCapacityTest, OpensOnlyWhenEveryListHoldsItsItems)
{
    const size_t constants = GetParam().constants.size();
    for (size_t words = 1; words <= 4; ++words)
    {
        CFunWizard wizard;
        SetDeviceRange(wizard, kR, 0, 100);
        for (size_t i = 0; i < words; ++i)
            SetDeviceRange(wizard, std::initializer_list<int>{kDT, kWR, kWL, kSV}.begin()[i], 0, 100);
        for (size_t capacity = 0; capacity <= 7; ++capacity)
        {
            SCOPED_TRACE(testing::Message() << words << " devices, " << capacity << " items");
            offscreen::SetListCapacity(capacity);
            std::vector<Scene> scenes;
            if (capacity >= words + constants)
                scenes.push_back([](CDialogRobot& dialog) { dialog.Click(IDCANCEL); });
            EXPECT_EQ(Play([&] { return wizard.DoOpenSCALDlg(nullptr, GetParam().argument, nullptr); }, scenes),
                      IDCANCEL);
        }
    }
}

} // namespace
