// Lists that refuse an item: an operation of the unit ends before it is seen.
#include "afx/offscreen/Desktop.h"
#include "tests/dialogs/posunit/UnitFormTest.h"

#include <algorithm>

namespace
{

class CUnitFormCapacityTest : public CUnitFormsTest
{
protected:
    ~CUnitFormCapacityTest() override { offscreen::SetListCapacity(offscreen::kNoListLimit); }
};

INSTANTIATE_TEST_SUITE_P(Forms, CUnitFormCapacityTest, testing::ValuesIn(UnitForms()), UnitFormName);

TEST_P(CUnitFormCapacityTest, OpensOnlyWhenEveryListHoldsItsItems)
{
    const SUnitForm& form = GetParam();
    constexpr int kBitDevices[] = {kX, kY, kR, kSpecialR, kT, kC, kL, 18, 17};
    size_t longest = 0;
    for (const SUnitList& list : form.lists)
        longest = std::max(longest, AxisFieldAt(list.shift).items.size());
    for (const int source : kUnitSources)
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
                // The direction has two items, which no other list of the form falls short of.
                std::vector<Scene> scenes;
                if (capacity >= std::max(devices, longest))
                    scenes.push_back([](CDialogRobot& dialog) { dialog.Click(IDCANCEL); });
                const auto dialog = form.make(&wizard);
                EXPECT_EQ(Play([&] { return static_cast<int>(dialog->DoModal()); }, scenes), 2);
            }
        }
}

} // namespace
