// The generators against the reference, over every combination of their switches and over many random lists.
#include <gtest/gtest.h>

#include "tests/core/InstCodeReference.h"

using namespace instcode;

namespace
{

::testing::AssertionResult Agrees(const SScenario& scenario, EGenerator generator)
{
    CFunWizard wizard;
    Fill(wizard, scenario);
    const SProgram actual = Generate(wizard, generator);
    const SProgram expected = Reference(scenario, generator);
    if (actual == expected)
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << Describe(scenario) << "\nexpected " << Describe(expected) << "got "
                                         << Describe(actual);
}

std::vector<SFunSetData> SomeData(int count)
{
    std::vector<SFunSetData> data;
    for (int i = 0; i < count; ++i)
    {
        const auto type = static_cast<unsigned char>(i % 3);
        const auto format = static_cast<unsigned char>(i / 3 % 4);
        data.push_back({9, 100 + 2 * i, type, format, 1000 - i});
    }
    return data;
}

constexpr int kRounds = 10000;

class InstCodeRandom : public ::testing::TestWithParam<EGenerator>
{
};

} // namespace

TEST_P(InstCodeRandom, AgreesWithTheReference)
{
    CRandom random(20240u + static_cast<unsigned>(GetParam()));
    int programs[2] = {};
    for (int round = 0; round < kRounds; ++round)
    {
        SScenario scenario = RandomScenario(random);
        if (GetParam() == EGenerator::Scaling)
            scenario.instruction = random.Of({282, 283, 354});
        ASSERT_TRUE(Agrees(scenario, GetParam())) << "round " << round;
        ++programs[Reference(scenario, GetParam()).result];
    }
    EXPECT_GT(programs[0], kRounds / 100) << "the draw has to include failing generations";
    EXPECT_GT(programs[1], kRounds / 10) << "and successful ones";
}

INSTANTIATE_TEST_SUITE_P(EveryGenerator, InstCodeRandom,
                         ::testing::Values(EGenerator::Selected, EGenerator::BuiltIn, EGenerator::Scaling,
                                           EGenerator::Unit, EGenerator::Jog, EGenerator::Pulsar));

TEST(InstCodeReference, EverySwitchOfTheBuiltInInstructions)
{
    const SContactInput starts[] = {{2, 3, 5},         {2, 20001, 14416}, {2, 20001, 14419},
                                    {2, 20001, 14417}, {2, 1, 14416},     {2, 20065, 14419}};
    const int instructions[] = {168, 169, 170, 171, 172, 173, 174, 175, 176, 177, 355, 180, -1, 151, 0};
    SScenario scenario;
    scenario.operands = {{9, 100}, {11, 2}};
    for (const int plcType : {0, 69, 70, 71, 72, 73, 74, 75, 114, 160})
        for (const int instruction : instructions)
            for (const SContactInput& start : starts)
                for (int switches = 0; switches < 3 * 3 * 2 * 4; ++switches)
                {
                    scenario.plcType = static_cast<BYTE>(plcType);
                    scenario.instruction = instruction;
                    scenario.contacts = {start};
                    scenario.firstOption = switches % 3;
                    scenario.secondOption = switches / 3 % 3;
                    scenario.onlyDataTable = switches / 9 % 2;
                    scenario.data = SomeData(switches / 18 == 3 ? 34 : switches / 18);
                    ASSERT_TRUE(Agrees(scenario, EGenerator::Selected));
                }
}

TEST(InstCodeReference, EveryTableLengthOfEveryGenerator)
{
    for (int count = 0; count <= 120; ++count)
        for (const EGenerator generator : {EGenerator::BuiltIn, EGenerator::Unit, EGenerator::Jog, EGenerator::Pulsar})
            for (const int instruction : {169, 171})
            {
                SScenario scenario;
                scenario.instruction = instruction;
                scenario.startType = 1;
                scenario.contacts = {{2, 20001, 16}, {2, 20009, 3}, {2, 20065, 4}, {3, 2, 40}};
                scenario.data = SomeData(count);
                scenario.operands = {{11, 3}, {9, 100}, {11, 10}, {12, 0x100}};
                ASSERT_TRUE(Agrees(scenario, generator));
            }
}

TEST(InstCodeReference, EveryPointCountOfEveryScalingTable)
{
    for (int count = 0; count <= 72; ++count)
        for (int points = -2; points <= 72; ++points)
        {
            SScenario scenario;
            scenario.instruction = 282;
            scenario.contacts = {{2, 20001, 14416}, {17, -1, 0}};
            scenario.data = SomeData(count);
            if (count > 0)
                scenario.data.front().value = points;
            ASSERT_TRUE(Agrees(scenario, EGenerator::Selected)) << points << " points in " << count << " records";
        }
}

TEST(InstCodeReference, EverySwitchOfTheUnitOperations)
{
    const SContactInput contacts[] = {{2, 20001, 14416}, {2, 20065, 7}, {3, 20009, 33}, {3, 2, 36}, {3, 2, 37}};
    for (const int variant : {0, 1, 10010, 10020, 10030, 10040, 10050, 10060, 10070, 10080})
        for (const int instruction : {151, 150, 168, 282})
            for (int contactCount = 0; contactCount <= 5; ++contactCount)
                for (int switches = 0; switches < 3 * 2 * 7; ++switches)
                {
                    SScenario scenario;
                    scenario.unitMode = 1;
                    scenario.instruction = instruction;
                    scenario.variant = variant;
                    scenario.startType = static_cast<BYTE>(switches % 3);
                    scenario.contacts.assign(contacts, contacts + contactCount);
                    if (switches / 3 % 2 != 0 && contactCount > 0)
                        scenario.contacts.back().code = 2;
                    scenario.data = SomeData(switches / 6);
                    scenario.operands = {{11, 3}, {9, 100}, {11, 10}, {12, 0x100}};
                    ASSERT_TRUE(Agrees(scenario, EGenerator::Selected));
                }
}
