// Instruction sequences of the positioning-unit operations, each worked out by hand.
#include <array>

#include "tests/core/FunWizardTest.h"

namespace
{

class InstCodeUnitTest : public ::testing::Test
{
protected:
    void UseOperation(int instruction, int variant)
    {
        SFunWizardTest::SetLastWizard(m_wizard, 1, instruction, variant);
    }

    void SetContacts(std::initializer_list<std::array<int, 3>> contacts)
    {
        m_wizard.RemoveAllContInfo();
        for (const auto& [kind, code, number] : contacts)
            m_wizard.AddContInfo(static_cast<short>(kind), static_cast<short>(code), number);
    }

    /// The four operands of every operation.
    void AddOperands()
    {
        m_wizard.AddOprdInfo(11, 3);
        m_wizard.AddOprdInfo(9, 100);
        m_wizard.AddOprdInfo(11, 10);
        m_wizard.AddOprdInfo(12, 0x110);
    }

    static std::string Instruction(int number, int flag)
    {
        const std::string flags = flag != 0 ? " /" + std::to_string(flag) + " 0\n" : "\n";
        return "8 -1 " + std::to_string(number) + flags + "-1 11 3" + flags + "-1 9 100" + flags + "-1 11 10" + flags +
               "-1 12 272" + flags;
    }

    /// Control code, startup speed, low and high speed, time: the records of a JOG operation with speed change.
    void AddJogData()
    {
        m_wizard.AddDataInfo(9, 100, 1, 1, 0xA);
        m_wizard.AddDataInfo(9, 102, 1, 0, 50);
        m_wizard.AddDataInfo(9, 104, 1, 0, 1000);
        m_wizard.AddDataInfo(9, 104, 1, 0, 5000);
        m_wizard.AddDataInfo(9, 106, 1, 0, 100);
    }

    static std::string Double(const std::string& constant, int number)
    {
        return "8 -1 1 /1 0\n-1 " + constant + " /1 0\n-1 9 " + std::to_string(number) + " /1 0\n";
    }

    void Expect(int result, const std::string& program)
    {
        EXPECT_EQ(m_wizard.CreateInstCode(), result);
        EXPECT_EQ(ProgramText(m_wizard), program);
    }

    void ExpectEnd(const std::string& end)
    {
        const std::string program = ProgramText(m_wizard);
        ASSERT_GE(program.size(), end.size());
        EXPECT_EQ(program.substr(program.size() - end.size()), end);
    }

    CFunWizard m_wizard;
};

const std::string kEdge = "17 -1 0\n";

} // namespace

TEST_F(InstCodeUnitTest, PointControlWithoutStartRelay)
{
    UseOperation(151, 10010);
    SetContacts({{2, 3, 5}});
    AddOperands();
    m_wizard.AddDataInfo(9, 100, 1, 1, 0x10);
    m_wizard.AddDataInfo(9, 102, 0, 0, -4);
    m_wizard.AddDataInfo(9, 103, 1, 0, 300);
    Expect(1, "2 3 5\n" + kEdge + Double("12 16", 100) + Lines({"8 -1 0", "-1 11 -4", "-1 9 102"}) +
                  Double("11 300", 103) + Instruction(151, 1));
}

TEST_F(InstCodeUnitTest, FlagsCarryTheDataType)
{
    UseOperation(151, 10010);
    SetContacts({{2, 20001, 14416}});
    AddOperands();
    m_wizard.AddDataInfo(9, 100, 255, 0, 7);
    m_wizard.AddDataInfo(9, 102, 2, 2, 8);
    Expect(1, "2 1 14416\n" + kEdge +
                  Lines({"8 -1 1 /255 0", "-1 11 7 /255 0", "-1 9 100 /255 0", "8 -1 1 /2 0", "-1 12 8 /2 0",
                         "-1 9 102 /2 0"}) +
                  Instruction(151, 2));
    m_wizard.AddDataInfo(9, 104, 0, 0, 9);
    m_wizard.CreateInstCode();
    ExpectEnd(Lines({"8 -1 0", "-1 11 9", "-1 9 104"}) + Instruction(151, 0));
}

TEST_F(InstCodeUnitTest, NoDataGoesOnWithFlagZero)
{
    SetContacts({{2, 3, 5}});
    AddOperands();
    for (const int variant : {10010, 10080})
    {
        UseOperation(151, variant);
        Expect(1, "2 3 5\n" + kEdge + Instruction(151, 0));
    }
}

TEST_F(InstCodeUnitTest, NoContactFails)
{
    AddOperands();
    AddJogData();
    for (const int variant : {10010, 10050, 10080})
    {
        UseOperation(151, variant);
        Expect(0, "");
    }
}

TEST_F(InstCodeUnitTest, TheStartingContactIsNotRepeated)
{
    SetContacts({{2, 3, 5}});
    std::string table;
    for (int i = 0; i < 70; ++i)
    {
        m_wizard.AddDataInfo(9, i, 0, 0, i);
        table += "8 -1 0\n-1 11 " + std::to_string(i) + "\n-1 9 " + std::to_string(i) + "\n";
    }
    for (const int variant : {10020, 10080})
    {
        UseOperation(151, variant);
        Expect(1, "2 3 5\n" + kEdge + table + "8 -1 151\n");
    }
}

TEST_F(InstCodeUnitTest, OnlyDataTableHasNoEffect)
{
    UseOperation(151, 10010);
    SetContacts({{2, 3, 5}});
    m_wizard.SetOnlyDataTable(1);
    Expect(1, "2 3 5\n" + kEdge + "8 -1 151\n");
}

TEST_F(InstCodeUnitTest, StartRelayWithEdge)
{
    for (const int variant : {10010, 10020, 10030, 10060, 10070, 10080})
        for (const int startType : {1, 2})
        {
            UseOperation(151, variant);
            SetContacts({{2, 3, 5}, {2, 20065, 6}, {3, 2, 33}});
            m_wizard.SetStartType(static_cast<unsigned char>(startType));
            Expect(1, "2 3 5\n" + kEdge + "8 -1 151\n" + "2 65 6\n" + kEdge + "3 2 33\n");
        }
}

TEST_F(InstCodeUnitTest, StartRelayWithoutEdgeForJog)
{
    SetContacts({{2, 3, 5}, {2, 20009, 6}, {3, 2, 33}});
    m_wizard.SetStartType(1);
    UseOperation(151, 10040);
    Expect(1, Lines({"2 3 5", "17 -1 0", "8 -1 151", "2 9 6", "3 2 33"}));
    UseOperation(152, 10050); // another instruction number: the common generator, the JOG variant
    Expect(1, Lines({"2 3 5", "17 -1 0", "8 -1 152", "2 9 6", "3 2 33"}));
}

TEST_F(InstCodeUnitTest, TheStartOutputIsNotMapped)
{
    m_wizard.SetStartType(1);
    SetContacts({{2, 3, 5}, {2, 1, 6}, {3, 20001, 33}, {3, 2, 34}});
    UseOperation(151, 10010);
    Expect(1, Lines({"2 3 5", "17 -1 0", "8 -1 151", "2 1 6", "17 -1 0", "3 20001 33"}));
    UseOperation(151, 10080);
    Expect(1, Lines({"2 3 5", "17 -1 0", "8 -1 151", "2 1 6", "17 -1 0", "3 20001 33"}));
}

TEST_F(InstCodeUnitTest, NoStartRelayWhenTheConditionIsIncompleteOrUnused)
{
    const std::string program = Lines({"2 3 5", "17 -1 0", "8 -1 151"});
    for (const int variant : {10010, 10040, 10080})
    {
        UseOperation(151, variant);
        m_wizard.SetStartType(1);
        SetContacts({{2, 3, 5}, {3, 2, 33}});
        Expect(1, program);
        SetContacts({{2, 3, 5}, {2, 3, 6}, {3, 1, 33}});
        Expect(1, program);
        SetContacts({{2, 3, 5}, {2, 3, 6}, {3, 2, 33}});
        m_wizard.SetStartType(0);
        Expect(1, program);
    }
}

TEST_F(InstCodeUnitTest, JogWithSpeedChange)
{
    UseOperation(151, 10050);
    SetContacts({{2, 3, 5}, {2, 20001, 18}});
    AddOperands();
    AddJogData();
    Expect(1, Lines({"2 1 18 /0 1", "1 3 5"}) + Double("11 1000", 104) + Lines({"2 1 18", "1 3 5"}) +
                  Double("11 5000", 104) + "2 3 5\n" + kEdge + Double("12 10", 100) + Double("11 50", 102) +
                  Double("11 100", 106) + Instruction(151, 1));
}

TEST_F(InstCodeUnitTest, JogRungsForceTheirKinds)
{
    UseOperation(151, 10050);
    SetContacts({{7, 20009, 5}, {9, 20065, 18}});
    for (int i = 0; i < 4; ++i)
        m_wizard.AddDataInfo(9, i, 0, 0, i);
    Expect(1, Lines({"2 65 18 /0 1", "1 9 5", "8 -1 0", "-1 11 2", "-1 9 2", "2 65 18", "1 9 5", "8 -1 0", "-1 11 3",
                     "-1 9 3", "7 9 5", "17 -1 0", "8 -1 0", "-1 11 0", "-1 9 0", "8 -1 0", "-1 11 1", "-1 9 1",
                     "8 -1 151"}));
}

TEST_F(InstCodeUnitTest, JogTakesTheFlagOfTheLastRecord)
{
    UseOperation(151, 10050);
    SetContacts({{2, 3, 5}, {2, 3, 6}});
    for (int i = 0; i < 5; ++i)
        m_wizard.AddDataInfo(9, i, static_cast<unsigned char>(i == 4 ? 1 : 0), 0, i);
    ASSERT_EQ(m_wizard.CreateInstCode(), 1);
    ExpectEnd("8 -1 151 /1 0\n");
}

TEST_F(InstCodeUnitTest, JogStartRelayUsesContactsTwoAndThree)
{
    UseOperation(151, 10050);
    m_wizard.SetStartType(2);
    for (int i = 0; i < 4; ++i)
        m_wizard.AddDataInfo(9, i, 0, 0, i);
    SetContacts({{2, 3, 5}, {2, 3, 6}, {2, 20001, 7}, {3, 2, 33}});
    ASSERT_EQ(m_wizard.CreateInstCode(), 1);
    ExpectEnd(Lines({"8 -1 151", "2 1 7", "3 2 33"}));
}

TEST_F(InstCodeUnitTest, JogStopsAtTheFirstMissingRecord)
{
    UseOperation(151, 10050);
    SetContacts({{2, 3, 5}});
    AddJogData();
    Expect(0, "");
    SetContacts({{2, 3, 5}, {2, 3, 6}});
    m_wizard.RemoveAllDataInfo();
    Expect(0, Lines({"2 3 6 /0 1", "1 3 5"}));
    for (int i = 0; i < 3; ++i)
        m_wizard.AddDataInfo(9, i, 0, 0, i);
    Expect(0, Lines({"2 3 6 /0 1", "1 3 5", "8 -1 0", "-1 11 2", "-1 9 2", "2 3 6", "1 3 5"}));
    m_wizard.AddDataInfo(9, 3, 0, 0, 3);
    SetContacts({{2, 3, 5}, {2, 3, 6}, {3, 2, 33}});
    m_wizard.SetStartType(1);
    ASSERT_EQ(m_wizard.CreateInstCode(), 0);
    ExpectEnd(Lines({"8 -1 151", "3 2 33"}));
}

TEST_F(InstCodeUnitTest, PulsarInput)
{
    UseOperation(151, 10080);
    SetContacts({{2, 20001, 14419}, {2, 3, 6}, {3, 2, 33}});
    AddOperands();
    m_wizard.AddDataInfo(9, 100, 1, 1, 0x500);
    m_wizard.AddDataInfo(9, 104, 1, 0, 2000);
    m_wizard.SetStartType(1);
    Expect(1, "2 1 14419\n" + kEdge + Double("12 1280", 100) + Double("11 2000", 104) + Instruction(151, 1) +
                  "2 3 6\n" + kEdge + "3 2 33\n");
}

TEST_F(InstCodeUnitTest, AnotherInstructionOrVariantUsesTheCommonGenerator)
{
    SetContacts({{2, 3, 5}, {2, 3, 6}});
    for (int i = 0; i < 5; ++i)
        m_wizard.AddDataInfo(9, i, 0, 0, i);
    UseOperation(151, 10050);
    ASSERT_EQ(m_wizard.CreateInstCode(), 1);
    EXPECT_EQ(m_wizard.GetInstCodeCount(), 4 + 2 * 3 + 2 + 3 * 3 + 1);
    for (const auto& [instruction, variant] : {std::pair(168, 10050), std::pair(151, 10051), std::pair(282, 0)})
    {
        UseOperation(instruction, variant);
        ASSERT_EQ(m_wizard.CreateInstCode(), 1);
        EXPECT_EQ(m_wizard.GetInstCodeCount(), 2 + 5 * 3 + 1);
    }
    SFunWizardTest::SetLastWizard(m_wizard, 0, 151, 10050); // the variant means nothing without a unit
    ASSERT_EQ(m_wizard.CreateInstCode(), 1);
    EXPECT_EQ(m_wizard.GetInstCodeCount(), 1 + 5 * 3 + 1);
}
