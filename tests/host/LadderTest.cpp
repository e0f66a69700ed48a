#include "host/Ladder.h"

#include "host/WizardLists.h"

#include <gtest/gtest.h>

#include <initializer_list>

namespace
{
std::string Draw(std::initializer_list<SInstructionEntry> records)
{
    CLadder ladder;
    for (const SInstructionEntry& record : records)
        ladder.Add(record);
    return ladder.Text();
}
} // namespace

TEST(LadderTest, NothingDrawsNothing) { EXPECT_EQ(Draw({}), ""); }

TEST(LadderTest, DrawsAContactADifferentialAndAnInstruction)
{
    EXPECT_EQ(Draw({{2, 1, 170, 0, 0}, {17, -1, 0, 0, 0}, {8, -1, 168, 0, 0}, {-1, 9, 100, 0, 0}, {-1, 11, 1, 0, 0}}),
              "|--| R10A |--( DF )-----[ F168  SPD1  DT100  K1 ]--|\n");
}

TEST(LadderTest, DrawsInstructionsOfOneRungBelowEachOther)
{
    EXPECT_EQ(Draw({{2, 3, 0, 0, 0},
                    {8, -1, 0, 0, 0},
                    {-1, 12, 0x113, 0, 0},
                    {-1, 9, 100, 0, 0},
                    {8, -1, 1, 0, 0},
                    {-1, 11, -8388608, 0, 0},
                    {-1, 9, 104, 0, 0},
                    {8, -1, 168, 0, 0},
                    {-1, 9, 100, 0, 0},
                    {-1, 11, 0, 0, 0}}),
              "|--| X0 |--+--[ F0    MV    H113       DT100 ]--|\n"
              "|          +--[ F1    DMV   K-8388608  DT104 ]--|\n"
              "|          +--[ F168  SPD1  DT100      K0    ]--|\n");
}

TEST(LadderTest, BeginsARungAtAContactAfterAnOutput)
{
    EXPECT_EQ(Draw({{2, 1, 0, 0, 0},
                    {8, -1, 151, 0, 0},
                    {-1, 11, 2, 0, 0},
                    {2, 1, 1, 0, 0},
                    {17, -1, 0, 0, 0},
                    {3, 2, 4, 0, 0}}),
              "|--| R0 |-----[ F151    K2 ]--|\n"
              "|--| R1 |--( DF )-----( Y4 )--|\n");
}

TEST(LadderTest, DrawsContactsInSeriesAndThoseThatAreClosedWhenOff)
{
    EXPECT_EQ(Draw({{2, 1, 5, 0, 1}, {1, 1, 0, 0, 0}, {8, -1, 1, 1, 0}, {-1, 11, 7, 1, 0}, {-1, 9, 3, 1, 0}}),
              "|--|/R5 |--| R0 |-----[ F1  DMV  K7  DT3 ]--|\n");
}

TEST(LadderTest, DrawsWhatItDoesNotKnowAsItIs)
{
    EXPECT_EQ(Draw({{99, 1, 0, 0, 0}}), "|--? 99 R0 ?----|\n");
    EXPECT_EQ(Draw({{-1, 11, 5, 0, 0}}), "|--? -1 K5 ?----|\n") << "an operand without an instruction";
}

TEST(LadderTest, DrawsTheInstructionsOfAWizard)
{
    CFunWizard wizard;
    EXPECT_EQ(CLadder::Of(ReadLists(wizard).instructions).Text(), "");
    wizard.AddInstCodeInfo(2, 20001, 14419, 0, 0);
    wizard.AddInstCodeInfo(8, -1, 309, 0, 0);
    wizard.AddInstCodeInfo(-1, 20, 0x40200000, 0, 0);
    wizard.AddInstCodeInfo(-1, 9, 10, 0, 0);
    EXPECT_EQ(CLadder::Of(ReadLists(wizard).instructions).Text(), "|--| Sp.R9013 |-----[ F309  FMV  f2.5  DT10 ]--|\n");
}
