// Lists that refuse an item: the dialog of F171 ends before it is seen.
#include "afx/offscreen/Desktop.h"
#include "tests/dialogs/pulse/SpdhTest.h"

namespace
{

class CSpdhCapacityTest : public CSpdhTest
{
protected:
    ~CSpdhCapacityTest() override { offscreen::SetListCapacity(offscreen::kNoListLimit); }
};

TEST_F(CSpdhCapacityTest, OpensOnlyWhenEveryListHoldsItsItems)
{
    for (ESpdhVariant variant : kSpdhVariants)
    {
        for (int channels : {2, 9, 16})
        {
            std::vector<int> offer;
            for (int channel = 0; channel < channels; ++channel)
                offer.push_back(channel);
            SetChannels(offer);
            // Seven devices for the contact, the channels, six or sixteen modes.
            const int longest = std::max({7, channels, variant == kSpdhTrapezoidal ? 6 : 16});
            for (int capacity = 0; capacity <= 17; ++capacity)
            {
                SCOPED_TRACE(testing::Message()
                             << variant << ", " << channels << " channels, " << capacity << " items");
                offscreen::SetListCapacity(static_cast<size_t>(capacity));
                std::vector<Scene> scenes;
                if (capacity >= longest)
                    scenes.push_back([](CDialogRobot& dialog) { dialog.Click(IDCANCEL); });
                EXPECT_EQ(Open(variant, scenes), IDCANCEL);
            }
        }
    }
}

} // namespace
