#include "host/Plc.h"

#include "core/FunWizard.h"
#include "host/DeviceText.h"

#include <gtest/gtest.h>

#include <set>

TEST(PlcTest, PresetsAreNamedOnceAndComplete)
{
    std::set<std::string> names;
    for (const SPlc& plc : PlcPresets())
    {
        SCOPED_TRACE(plc.name);
        EXPECT_TRUE(names.insert(plc.name).second);
        EXPECT_EQ(FindPlcPreset(plc.name), &plc);
        EXPECT_FALSE(plc.title.empty());
        EXPECT_FALSE(plc.instructions.empty());
        for (const SDeviceRange& range : plc.ranges)
        {
            EXPECT_GE(DeviceCode(range.device), 0) << range.device;
            EXPECT_LE(range.low, range.high) << range.device;
        }
    }
    EXPECT_EQ(FindPlcPreset("none of them"), nullptr);
}

TEST(PlcTest, ConfiguresAWizardInPlaceOfWhatItHadBefore)
{
    CFunWizard wizard;
    wizard.SetDevRange(-1, 18, 1, 2);
    wizard.EntrySupportFunInfo(177);
    wizard.AddContInfo(2, 1, 0);
    wizard.AddOprdInfo(9, 0);

    FindPlcPreset("small-table")->Configure(wizard);

    EXPECT_EQ(wizard.GetPlcType(), 1);
    EXPECT_EQ(wizard.GetMaxSlot(), 8);
    int low = -1, high = -1;
    EXPECT_EQ(wizard.GetDevRange(-1, 9, low, high), 1);
    EXPECT_EQ(low, 0);
    EXPECT_EQ(high, 7);
    EXPECT_EQ(wizard.GetDevRange(-1, 18, low, high), 0);
    EXPECT_EQ(wizard.GetNumOfChannel(171), 2);
    EXPECT_EQ(wizard.GetChannelNo(1, 171), 2);
    EXPECT_TRUE(wizard.FindSupportFun(168));
    EXPECT_FALSE(wizard.FindSupportFun(177));
    EXPECT_EQ(wizard.GetContInfoCount(), 0);
    EXPECT_EQ(wizard.GetOprdInfoCount(), 0);
}
