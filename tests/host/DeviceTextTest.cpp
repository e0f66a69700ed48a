#include "host/DeviceText.h"

#include <gtest/gtest.h>

#include <bit>
#include <cfloat>
#include <cstdint>

namespace
{
std::string RealText(float real) { return DeviceText(20, std::bit_cast<std::int32_t>(real)); }
} // namespace

TEST(DeviceTextTest, WritesWordDevicesInDecimal)
{
    EXPECT_EQ(DeviceText(9, 0), "DT0");
    EXPECT_EQ(DeviceText(9, 32764), "DT32764");
    EXPECT_EQ(DeviceText(20009, 90052), "Sp.DT90052");
    EXPECT_EQ(DeviceText(65, 10), "WR10");
    EXPECT_EQ(DeviceText(4, 99), "T99");
}

TEST(DeviceTextTest, WritesBitDevicesAsWordAndBit)
{
    EXPECT_EQ(DeviceText(1, 10 * 16 + 10), "R10A");
    EXPECT_EQ(DeviceText(3, 0), "X0");
    EXPECT_EQ(DeviceText(2, 15), "YF");
    EXPECT_EQ(DeviceText(1, 16), "R10");
    EXPECT_EQ(DeviceText(20001, 14419), "Sp.R9013");
    EXPECT_EQ(DeviceText(17, -1), "P-1");
}

TEST(DeviceTextTest, WritesConstants)
{
    EXPECT_EQ(DeviceText(11, -8388608), "K-8388608");
    EXPECT_EQ(DeviceText(12, 0x113), "H113");
    EXPECT_EQ(DeviceText(12, -1), "HFFFFFFFF");
}

TEST(DeviceTextTest, WritesRealNumbersAsShortAsTheyReadBack)
{
    EXPECT_EQ(RealText(0.0f), "f0");
    EXPECT_EQ(RealText(0.1f), "f0.1");
    EXPECT_EQ(RealText(-2.5f), "f-2.5");
    EXPECT_EQ(RealText(16777216.0f), "f16777216");
    EXPECT_EQ(RealText(FLT_MAX), "f3.4028235e+38");
    EXPECT_EQ(RealText(1e-10f), "f1e-10");
}

TEST(DeviceTextTest, ShowsWhatItDoesNotKnow)
{
    EXPECT_EQ(DeviceText(-1, -1), "-");
    EXPECT_EQ(DeviceText(81, 5), "?81:5");
}

TEST(DeviceTextTest, FindsDevicesByName)
{
    EXPECT_EQ(DeviceCode("DT"), 9);
    EXPECT_EQ(DeviceCode("Sp.R"), 20001);
    EXPECT_EQ(DeviceCode("L"), 0);
    EXPECT_EQ(DeviceCode("dt"), -1);
    EXPECT_EQ(DeviceCode(""), -1);
}
