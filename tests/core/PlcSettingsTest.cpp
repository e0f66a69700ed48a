// PLC types and their families, pulse-output channels, the F175 display type and the slots.
#include "tests/core/FunWizardTest.h"

#include <climits>
#include <set>

#include "core/Devices.h"

namespace
{

constexpr int kChannelInstructions[] = {171, 172, 173, 174, 175};

} // namespace

TEST(PlcType, IsAnyByte)
{
    CFunWizard wizard;
    for (int type = 0; type < 256; ++type)
    {
        wizard.SetPlcType(static_cast<unsigned char>(type));
        EXPECT_EQ(wizard.GetPlcType(), type);
    }
}

TEST(PlcType, BelongsToAFamily)
{
    const std::set<int> familyB = {70, 71, 72, 73, 74, 114, 117};
    const std::set<int> familyC = {160, 161, 164, 165, 168};
    for (int type = 0; type < 256; ++type)
    {
        const EPlcFamily expected = familyB.count(type)   ? EPlcFamily::B
                                    : familyC.count(type) ? EPlcFamily::C
                                                          : EPlcFamily::A;
        EXPECT_EQ(PlcFamily(static_cast<unsigned char>(type)), expected) << type;
        EXPECT_EQ(IsLargeFamilyB(static_cast<unsigned char>(type)), type >= 70 && type <= 74) << type;
    }
}

TEST(Channels, HaveATypeIndexForFiveInstructions)
{
    CFunWizard wizard;
    for (int instruction = -10; instruction < 400; ++instruction)
    {
        const bool known = instruction >= 171 && instruction <= 175;
        EXPECT_EQ(wizard.GetChannelTypeIndex(instruction), known ? instruction - 171 : -1);
    }
    EXPECT_EQ(wizard.GetChannelTypeIndex(INT_MAX), -1);
    EXPECT_EQ(wizard.GetChannelTypeIndex(INT_MIN), -1);
}

TEST(Channels, AreZeroAndTwoAtFirst)
{
    CFunWizard wizard;
    for (const int instruction : kChannelInstructions)
    {
        EXPECT_EQ(wizard.GetNumOfChannel(instruction), 2);
        EXPECT_EQ(wizard.GetChannelNo(0, instruction), 0);
        EXPECT_EQ(wizard.GetChannelNo(1, instruction), 2);
        EXPECT_EQ(wizard.GetChannelNo(2, instruction), -1);
        EXPECT_EQ(wizard.GetChannelNo(-1, instruction), -1);
        EXPECT_EQ(wizard.GetChannelNo(INT_MAX, instruction), -1);
        EXPECT_EQ(wizard.GetChannelNo(INT_MIN, instruction), -1);
    }
    EXPECT_EQ(wizard.GetF175DispType(), 0);
}

TEST(Channels, OfUnknownInstructionsAreNone)
{
    CFunWizard wizard;
    for (const int instruction : {170, 176, 177, 168, 0, -1, 355, INT_MAX, INT_MIN})
    {
        wizard.SetChannelNo(1, instruction);
        EXPECT_EQ(wizard.GetNumOfChannel(instruction), 0);
        EXPECT_EQ(wizard.GetChannelNo(0, instruction), -1);
    }
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(SFunWizardTest::ChannelWord(wizard, i), 5);
}

TEST(Channels, NumbersCountModulo32AndFallOutAbove15)
{
    const int numbers[] = {0, 1, 15, 16, 17, 31, 32, 33, 47, 48, 63, 64, -1, -17, -32, -31, INT_MAX, INT_MIN};
    for (const int instruction : kChannelInstructions)
        for (const int number : numbers)
        {
            CFunWizard wizard;
            wizard.ResetChannelNo();
            wizard.SetChannelNo(number, instruction);
            const int bit = ((number % 32) + 32) % 32;
            for (int i = 0; i < 5; ++i)
            {
                const int expected = i == instruction - 171 && bit < 16 ? 1 << bit : 0;
                EXPECT_EQ(SFunWizardTest::ChannelWord(wizard, i), expected) << number << " of " << instruction;
            }
        }
}

TEST(Channels, AreListedInOrderForEveryMask)
{
    CFunWizard wizard;
    for (int mask = 0; mask < 0x10000; mask += 37)
    {
        wizard.ResetChannelNo();
        std::vector<int> expected;
        for (int bit = 0; bit < 16; ++bit)
        {
            if ((mask >> bit) % 2 == 0)
                continue;
            wizard.SetChannelNo(bit, 173);
            expected.push_back(bit);
        }
        std::vector<int> channels;
        for (int n = 0; n < wizard.GetNumOfChannel(173); ++n)
            channels.push_back(wizard.GetChannelNo(n, 173));
        ASSERT_EQ(channels, expected);
        ASSERT_EQ(wizard.GetChannelNo(static_cast<int>(expected.size()), 173), -1);
    }
}

TEST(Channels, AreAllClearedTogether)
{
    CFunWizard wizard;
    wizard.SetF175DispType(2);
    wizard.ResetChannelNo();
    for (const int instruction : kChannelInstructions)
        EXPECT_EQ(wizard.GetNumOfChannel(instruction), 0);
    EXPECT_EQ(wizard.GetF175DispType(), 0);
}

TEST(F175DispType, StoresOneAndTwo)
{
    CFunWizard wizard;
    for (int type = 0; type <= USHRT_MAX; ++type)
    {
        wizard.SetF175DispType(1);
        wizard.SetF175DispType(static_cast<unsigned short>(type));
        ASSERT_EQ(wizard.GetF175DispType(), type == 2 ? 2 : 1) << type;
        ASSERT_EQ(SFunWizardTest::ChannelWord(wizard, 4) & 0x0FFF, 5);
    }
}

TEST(F175DispType, SharesItsWordWithTheChannels)
{
    CFunWizard wizard;
    wizard.SetF175DispType(1);
    EXPECT_EQ(SFunWizardTest::ChannelWord(wizard, 4), 0x1005);
    EXPECT_EQ(wizard.GetNumOfChannel(175), 3) << "all 16 bits count";
    EXPECT_EQ(wizard.GetChannelNo(2, 175), 12);
    wizard.SetF175DispType(2);
    EXPECT_EQ(SFunWizardTest::ChannelWord(wizard, 4), 0x2005) << "the former type is replaced";
    wizard.SetChannelNo(15, 175);
    EXPECT_EQ(wizard.GetF175DispType(), 0xA);
    wizard.SetF175DispType(1);
    EXPECT_EQ(SFunWizardTest::ChannelWord(wizard, 4), 0x1005);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(SFunWizardTest::ChannelWord(wizard, i), 5);
}

TEST(MaximumSlot, IsAnyByteAnd32AtFirst)
{
    CFunWizard wizard;
    for (int slot = 0; slot < 256; ++slot)
    {
        wizard.SetMaxSlot(static_cast<unsigned char>(slot));
        EXPECT_EQ(wizard.GetMaxSlot(), slot);
    }
    wizard.SetDefaultMaxSlot();
    EXPECT_EQ(wizard.GetMaxSlot(), 32);
}
