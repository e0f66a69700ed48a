// Instruction sequences of the built-in instructions and of scaling, each worked out by hand.
#include "tests/core/FunWizardTest.h"

namespace
{

class InstCodeTest : public ::testing::Test
{
protected:
    void UseInstruction(int instruction) { SFunWizardTest::SetLastWizard(m_wizard, 0, instruction, 0); }

    void SetOptions(int first, int second)
    {
        SFunWizardTest::SetOption(m_wizard, 3, first);
        SFunWizardTest::SetOption(m_wizard, 0, second);
    }

    /// DT registers from 100 on, each given its index as a decimal constant.
    void AddRegisters(int count)
    {
        for (int i = 0; i < count; ++i)
            ASSERT_EQ(m_wizard.AddDataInfo(9, 100 + i, 0, 0, i), 1);
    }

    static std::string Registers(int first, int end)
    {
        std::string text;
        for (int i = first; i < end; ++i)
            text += "8 -1 0\n-1 11 " + std::to_string(i) + "\n-1 9 " + std::to_string(100 + i) + "\n";
        return text;
    }

    void Expect(int result, const std::string& program)
    {
        EXPECT_EQ(m_wizard.CreateInstCode(), result);
        EXPECT_EQ(ProgramText(m_wizard), program);
    }

    CFunWizard m_wizard;
};

const std::string kStart = "2 3 5\n";
const std::string kEdge = "17 -1 0\n";
const std::string kFirstScan = "2 1 14419\n";

} // namespace

TEST_F(InstCodeTest, PositioningControlWithStartingEdge)
{
    UseInstruction(168);
    m_wizard.AddContInfo(2, 3, 5);
    m_wizard.AddDataInfo(9, 100, 0, 1, 0x112);
    m_wizard.AddDataInfo(9, 101, 0, 0, 500);
    m_wizard.AddDataInfo(9, 104, 1, 0, -200000);
    m_wizard.AddOprdInfo(9, 100);
    m_wizard.AddOprdInfo(11, 2);
    Expect(1, Lines({"2 3 5", "17 -1 0", "8 -1 0", "-1 12 274", "-1 9 100", "8 -1 0", "-1 11 500", "-1 9 101", "8 -1 1",
                     "-1 11 -200000", "-1 9 104", "8 -1 168", "-1 9 100", "-1 11 2"}));
}

TEST_F(InstCodeTest, StartingEdgeByInstruction)
{
    m_wizard.AddContInfo(2, 3, 5);
    AddRegisters(1);
    for (const int instruction : {168, 169, 170, 171, 172, 173, 174, 175, 176, 177, 180, -1, 151})
    {
        UseInstruction(instruction);
        const bool edge = instruction == 168 || instruction == 171 || instruction == 174 || instruction == 175;
        Expect(1, kStart + (edge ? kEdge : "") + Registers(0, 1) + "8 -1 " + std::to_string(instruction) + "\n");
    }
}

TEST_F(InstCodeTest, ContactKindIsKept)
{
    UseInstruction(169);
    m_wizard.AddContInfo(-7, 4, -3);
    AddRegisters(1);
    Expect(1, "-7 4 -3\n" + Registers(0, 1) + "8 -1 169\n");
}

TEST_F(InstCodeTest, SpecialAreaCodesBecomeOrdinary)
{
    const std::pair<short, int> codes[] = {{20001, 1}, {20009, 9}, {20065, 65}, {20002, 20002}, {18, 18}, {-1, -1}};
    UseInstruction(169);
    AddRegisters(1);
    for (const auto& [code, mapped] : codes)
    {
        m_wizard.RemoveAllContInfo();
        m_wizard.AddContInfo(2, code, 16);
        Expect(1, "2 " + std::to_string(mapped) + " 16\n" + Registers(0, 1) + "8 -1 169\n");
    }
}

TEST_F(InstCodeTest, OnlyContactsAreMapped)
{
    UseInstruction(169);
    m_wizard.AddContInfo(2, 3, 5);
    m_wizard.AddDataInfo(20009, 7, 0, 0, 1);
    m_wizard.AddOprdInfo(20065, 8);
    Expect(1, kStart + Lines({"8 -1 0", "-1 11 1", "-1 20009 7", "8 -1 169", "-1 20065 8"}));
}

TEST_F(InstCodeTest, SpecialContactsGetNoEdge)
{
    UseInstruction(168);
    AddRegisters(1);
    for (const int number : {14416, 14419})
    {
        m_wizard.RemoveAllContInfo();
        m_wizard.AddContInfo(2, 20001, number);
        Expect(1, "2 1 " + std::to_string(number) + "\n" + Registers(0, 1) + "8 -1 168\n");
    }
}

TEST_F(InstCodeTest, OtherSpecialRelaysGetTheEdge)
{
    const std::pair<short, int> starts[] = {{20001, 14417}, {20001, 14418}, {20001, 14415}, {1, 14416}, {20009, 14419}};
    UseInstruction(168);
    AddRegisters(1);
    for (const auto& [code, number] : starts)
    {
        m_wizard.RemoveAllContInfo();
        m_wizard.AddContInfo(2, code, number);
        const std::string mapped = code == 20009 ? "9" : "1";
        Expect(1, "2 " + mapped + " " + std::to_string(number) + "\n" + kEdge + Registers(0, 1) + "8 -1 168\n");
    }
}

TEST_F(InstCodeTest, OptionFieldsSuppressTheEdgeOf171Only)
{
    m_wizard.AddContInfo(2, 3, 5);
    AddRegisters(1);
    SetOptions(1, 0);
    UseInstruction(171);
    Expect(1, kStart + Registers(0, 1) + "8 -1 171\n");
    UseInstruction(168);
    Expect(1, kStart + kEdge + Registers(0, 1) + "8 -1 168\n");
    UseInstruction(171);
    SetOptions(1, 1);
    Expect(1, kStart + kEdge + Registers(0, 1) + "8 -1 171\n");
    SetOptions(0, 0);
    Expect(1, kStart + kEdge + Registers(0, 1) + "8 -1 171\n");
}

TEST_F(InstCodeTest, DataTypeAndFormatBytesAreTestedForZero)
{
    UseInstruction(169);
    m_wizard.AddContInfo(2, 3, 5);
    m_wizard.AddDataInfo(9, 1, 2, 2, 10);
    m_wizard.AddDataInfo(10, 2, 255, 128, -1);
    Expect(1, kStart + Lines({"8 -1 1", "-1 12 10", "-1 9 1", "8 -1 1", "-1 12 -1", "-1 10 2", "8 -1 169"}));
}

TEST_F(InstCodeTest, ThirtyThreeRowsFitOneBlock)
{
    UseInstruction(169);
    m_wizard.AddContInfo(2, 3, 5);
    AddRegisters(33);
    Expect(1, kStart + Registers(0, 33) + "8 -1 169\n");
    m_wizard.AddDataInfo(9, 133, 0, 0, 33);
    Expect(1, kStart + Registers(0, 33) + kStart + Registers(33, 34) + "8 -1 169\n");
}

TEST_F(InstCodeTest, TheEdgeCountsAsARow)
{
    UseInstruction(168);
    m_wizard.AddContInfo(2, 3, 5);
    AddRegisters(40);
    Expect(1, kStart + kEdge + Registers(0, 32) + kStart + kEdge + Registers(32, 40) + "8 -1 168\n");
}

TEST_F(InstCodeTest, EveryBlockOfALongTableStartsWithTheContact)
{
    UseInstruction(168);
    m_wizard.AddContInfo(2, 20001, 14416);
    AddRegisters(100);
    const std::string start = "2 1 14416\n";
    Expect(1, start + Registers(0, 33) + start + Registers(33, 66) + start + Registers(66, 99) + start +
                  Registers(99, 100) + "8 -1 168\n");
}

TEST_F(InstCodeTest, OnlyTheFirstContactIsUsed)
{
    UseInstruction(169);
    m_wizard.AddContInfo(2, 3, 5);
    m_wizard.AddContInfo(2, 2, 9);
    AddRegisters(1);
    Expect(1, kStart + Registers(0, 1) + "8 -1 169\n");
}

TEST_F(InstCodeTest, OnlyTheDataTable)
{
    UseInstruction(168);
    m_wizard.AddContInfo(2, 3, 5);
    m_wizard.AddOprdInfo(9, 100);
    AddRegisters(2);
    m_wizard.SetOnlyDataTable(1);
    Expect(1, kStart + kEdge + Registers(0, 2));
    m_wizard.SetOnlyDataTable(-1);
    Expect(1, kStart + kEdge + Registers(0, 2));
    m_wizard.SetOnlyDataTable(0);
    Expect(1, kStart + kEdge + Registers(0, 2) + Lines({"8 -1 168", "-1 9 100"}));
}

TEST_F(InstCodeTest, NoDataFails)
{
    m_wizard.AddContInfo(2, 3, 5);
    m_wizard.AddOprdInfo(9, 100);
    for (const int instruction : {168, 171, 355, 282, 283, 354, -1})
    {
        UseInstruction(instruction);
        for (const int onlyTable : {0, 1})
        {
            m_wizard.SetOnlyDataTable(onlyTable);
            Expect(0, "");
        }
    }
}

TEST_F(InstCodeTest, NoContactFails)
{
    UseInstruction(168);
    AddRegisters(2);
    Expect(0, "");
}

TEST_F(InstCodeTest, PidRepeatsTheContact)
{
    UseInstruction(355);
    m_wizard.AddContInfo(2, 20001, 17);
    AddRegisters(1);
    m_wizard.AddOprdInfo(9, 100);
    Expect(1, "2 1 17\n" + kEdge + Registers(0, 1) + "2 1 17\n" + Lines({"8 -1 355", "-1 9 100"}));
    m_wizard.SetOnlyDataTable(1);
    Expect(1, "2 1 17\n" + kEdge + Registers(0, 1));
}

TEST_F(InstCodeTest, TypesFrom70To74StartOnAnEdge)
{
    UseInstruction(172);
    m_wizard.AddContInfo(2, 3, 5);
    AddRegisters(1);
    for (int type = 0; type < 256; ++type)
    {
        m_wizard.SetPlcType(static_cast<unsigned char>(type));
        const bool edge = type >= 70 && type <= 74;
        Expect(1, kStart + (edge ? kEdge : "") + Registers(0, 1) + "8 -1 172\n");
    }
}

TEST_F(InstCodeTest, LargeTypesRepeatTheContactWhenEdgeAndOptionDiffer)
{
    m_wizard.SetPlcType(72);
    m_wizard.AddContInfo(2, 20065, 5);
    AddRegisters(1);
    UseInstruction(172);
    SetOptions(0, 0);
    Expect(1, "2 65 5\n" + kEdge + Registers(0, 1) + "2 65 5\n8 -1 172\n");
    SetOptions(0, 1);
    Expect(1, "2 65 5\n" + kEdge + Registers(0, 1) + "8 -1 172\n");
    m_wizard.RemoveAllContInfo();
    m_wizard.AddContInfo(2, 20001, 14416);
    Expect(1, "2 1 14416\n" + Registers(0, 1) + "2 1 14416\n8 -1 172\n");
    SetOptions(0, 0);
    Expect(1, "2 1 14416\n" + Registers(0, 1) + "8 -1 172\n");
}

TEST_F(InstCodeTest, LargeTypesKeepTheEdgeOfDataTableInstructions)
{
    m_wizard.SetPlcType(74);
    AddRegisters(1);
    for (const int instruction : {171, 174, 175, 177})
        for (const int second : {0, 1})
        {
            if (instruction == 171 && second == 0)
                continue;
            const std::string end = "8 -1 " + std::to_string(instruction) + "\n";
            UseInstruction(instruction);
            SetOptions(0, second);
            m_wizard.RemoveAllContInfo();
            m_wizard.AddContInfo(2, 3, 5);
            Expect(1, kStart + kEdge + Registers(0, 1) + end);
            m_wizard.RemoveAllContInfo();
            m_wizard.AddContInfo(2, 20001, 14419);
            Expect(1, kFirstScan + Registers(0, 1) + kFirstScan + kEdge + end);
        }
}

TEST_F(InstCodeTest, LargeTypesWith171AndItsOptionOff)
{
    m_wizard.SetPlcType(70);
    UseInstruction(171);
    m_wizard.AddContInfo(2, 3, 5);
    AddRegisters(1);
    SetOptions(1, 0);
    Expect(1, kStart + Registers(0, 1) + "8 -1 171\n");
    SetOptions(0, 0);
    Expect(1, kStart + kEdge + Registers(0, 1) + kStart + "8 -1 171\n");
}

TEST_F(InstCodeTest, PidOnALargeType)
{
    m_wizard.SetPlcType(73);
    UseInstruction(355);
    m_wizard.AddContInfo(2, 3, 5);
    AddRegisters(1);
    SetOptions(0, 0);
    Expect(1, kStart + kEdge + Registers(0, 1) + kStart + kStart + "8 -1 355\n");
    SetOptions(0, 1);
    Expect(1, kStart + kEdge + Registers(0, 1) + kStart + "8 -1 355\n");
}

TEST_F(InstCodeTest, ScalingTableInThreeBlocks)
{
    UseInstruction(282);
    m_wizard.AddContInfo(2, 20001, 20);
    m_wizard.AddContInfo(17, -1, 0);
    m_wizard.AddOprdInfo(67, 3);
    m_wizard.AddOprdInfo(9, 100);
    m_wizard.AddDataInfo(9, 100, 0, 0, 2);
    for (int i = 1; i <= 4; ++i)
        m_wizard.AddDataInfo(9, 100 + i, 0, 0, i);
    const std::string points = Lines({"8 -1 0", "-1 11 2", "-1 9 100"});
    Expect(1, kFirstScan + points + kFirstScan + Registers(1, 3) + kFirstScan + Registers(3, 5) +
                  Lines({"2 1 20", "17 -1 0", "8 -1 282", "-1 67 3", "-1 9 100"}));
}

TEST_F(InstCodeTest, ScalingFunctionsAndConstants)
{
    UseInstruction(354);
    m_wizard.AddContInfo(2, 3, 5);
    m_wizard.AddDataInfo(9, 100, 0, 0, 2);
    m_wizard.AddDataInfo(9, 101, 2, 2, 0x3F800000);
    m_wizard.AddDataInfo(9, 103, 1, 1, 255);
    m_wizard.AddDataInfo(9, 105, 255, 3, 1);
    Expect(1, Lines({"2 1 14419", "8 -1 0", "-1 11 2", "-1 9 100", "2 1 14419", "8 -1 309", "-1 20 1065353216",
                     "-1 9 101", "8 -1 1", "-1 12 255", "-1 9 103", "2 1 14419", "8 -1 309", "-1 -1 1", "-1 9 105",
                     "2 3 5", "8 -1 354 /1 0"}));
}

TEST_F(InstCodeTest, ScalingFlagsByInstruction)
{
    m_wizard.AddContInfo(2, 3, 5);
    m_wizard.AddOprdInfo(9, 7);
    AddRegisters(1);
    const std::string table = kFirstScan + Registers(0, 1) + kStart;
    UseInstruction(282);
    Expect(1, table + Lines({"8 -1 282", "-1 9 7"}));
    UseInstruction(283);
    Expect(1, table + Lines({"8 -1 283 /1 0", "-1 9 7 /1 0"}));
    UseInstruction(354);
    Expect(1, table + Lines({"8 -1 354 /1 0", "-1 9 7 /1 0"}));
}

TEST_F(InstCodeTest, ScalingGoesOnWithoutContacts)
{
    UseInstruction(282);
    AddRegisters(1);
    Expect(1, kFirstScan + Registers(0, 1) + "8 -1 282\n");
    m_wizard.SetOnlyDataTable(1);
    Expect(1, kFirstScan + Registers(0, 1));
}

TEST_F(InstCodeTest, ScalingUsesTwoContactsAtMost)
{
    UseInstruction(282);
    AddRegisters(1);
    m_wizard.AddContInfo(2, 20001, 14416);
    m_wizard.AddContInfo(17, 20065, 0);
    m_wizard.AddContInfo(3, 2, 33);
    Expect(1, kFirstScan + Registers(0, 1) + Lines({"2 1 14416", "17 65 0", "8 -1 282"}));
}

TEST_F(InstCodeTest, ScalingRowsAreCountedFromRecordOneAndFromTheSecondColumn)
{
    UseInstruction(282);
    m_wizard.AddDataInfo(9, 100, 0, 0, 34);
    for (int i = 1; i <= 68; ++i)
        m_wizard.AddDataInfo(9, 100 + i, 0, 0, i);
    const std::string points = Lines({"8 -1 0", "-1 11 34", "-1 9 100"});
    Expect(1, kFirstScan + points + kFirstScan + Registers(1, 34) + kFirstScan + Registers(34, 35) + kFirstScan +
                  Registers(35, 68) + kFirstScan + Registers(68, 69) + "8 -1 282\n");
}

TEST_F(InstCodeTest, OnlyCreateInstCodeEmptiesTheList)
{
    UseInstruction(169);
    m_wizard.AddContInfo(2, 3, 5);
    AddRegisters(1);
    m_wizard.AddInstCodeInfo(5, 6, 7, 8, 9);
    const std::string program = kStart + Registers(0, 1) + "8 -1 169\n";
    EXPECT_EQ(m_wizard.CreateInstCode_1(), 1);
    EXPECT_EQ(ProgramText(m_wizard), "5 6 7 /8 9\n" + program);
    Expect(1, program);
    Expect(1, program);
}

TEST_F(InstCodeTest, TheOtherListsAreLeftAlone)
{
    UseInstruction(168);
    m_wizard.AddContInfo(2, 20001, 5);
    m_wizard.AddOprdInfo(9, 100);
    m_wizard.AddCmtInfo("Control code");
    AddRegisters(3);
    ASSERT_EQ(m_wizard.CreateInstCode(), 1);
    short kind = 0;
    short code = 0;
    int number = 0;
    EXPECT_EQ(m_wizard.GetContInfo(0, kind, code, number), 1);
    EXPECT_EQ(code, 20001);
    EXPECT_EQ(m_wizard.GetContInfoCount(), 1);
    EXPECT_EQ(m_wizard.GetOprdInfoCount(), 1);
    EXPECT_EQ(m_wizard.GetDataInfoCount(), 3);
    EXPECT_EQ(m_wizard.GetCmtInfoCount(), 1);
}
