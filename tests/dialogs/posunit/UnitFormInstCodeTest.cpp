// The ladder that the unit's operations lead to, by hand and by the reference of the generators.
#include "tests/core/InstCodeReference.h"
#include "tests/dialogs/posunit/UnitFormTest.h"

namespace
{

using Instructions = std::vector<SInstructionRow>;
using CUnitFormInstCodeTest = CUnitFormsTest;
INSTANTIATE_TEST_SUITE_P(Forms, CUnitFormInstCodeTest, testing::ValuesIn(UnitForms()), UnitFormName);

instcode::SScenario ScenarioOf(const CFunWizard& wizard, const SResults& results)
{
    instcode::SScenario scenario;
    scenario.unitMode = 1;
    scenario.instruction = SFunWizardTest::LastInstruction(wizard);
    scenario.variant = SFunWizardTest::LastVariant(wizard);
    scenario.plcType = wizard.GetPlcType();
    scenario.startType = wizard.GetStartType();
    for (const SContactRow& row : results.contacts)
        scenario.contacts.push_back({static_cast<short>(row.kind), static_cast<short>(row.code), row.number});
    for (const SOperandRow& row : results.operands)
        scenario.operands.push_back({static_cast<short>(row.code), row.value});
    for (int i = 0; i < wizard.GetDataInfoCount(); ++i)
    {
        SFunSetData data = {};
        wizard.GetDataInfo(i, &data);
        scenario.data.push_back(data);
    }
    return scenario;
}

Instructions Rows(const instcode::SProgram& program)
{
    Instructions rows;
    for (const SFWzdInstCode& record : program.records)
        rows.push_back({record.kind, record.code, record.value, record.flag1, record.flag2});
    return rows;
}

TEST_P(CUnitFormInstCodeTest, LeadToTheLadderOfTheReference)
{
    const SUnitForm& form = GetParam();
    for (const int source : kSweptUnitSources)
    {
        Use(source);
        for (const BYTE startType : std::initializer_list<BYTE>{0, 1, 2})
            for (const bool wanted : {false, true})
                for (const bool same : SameOrNot(wanted && startType != 0))
                    for (const int direction : SweptDirections(form))
                    {
                        SCOPED_TRACE(testing::Message() << "source " << source << ", start type " << int{startType}
                                                        << ", " << wanted << same << direction);
                        m_wizard.SetStartType(startType);
                        SUnitEntries entries(form);
                        entries.items = LastItems(form);
                        entries.device = kSpecialR; // which is an ordinary relay in the ladder
                        entries.contact = "901A";
                        entries.startOutput = wanted;
                        entries.same = same;
                        entries.direction = direction;
                        ConfirmFromSelection(form, [&](CDialogRobot& dialog) { FillIn(dialog, form, entries); });
                        const instcode::SScenario scenario = ScenarioOf(m_wizard, ReadResults(m_wizard));
                        const instcode::SProgram expected =
                            instcode::Reference(scenario, instcode::EGenerator::Selected);
                        ASSERT_FALSE(expected.records.empty());
                        EXPECT_EQ(m_wizard.CreateInstCode(), expected.result);
                        EXPECT_EQ(ReadResults(m_wizard).instructions, Rows(expected));
                    }
    }
}

struct SLadder
{
    const char* form;
    int direction;
    Instructions before; // the starting condition
    Instructions transfer;
    Instructions unit;   // what the relay of the unit adds
    Instructions chosen; // and an output of the user's choice
};

const Instructions kStart = {{2, 1, 170, 0, 0}, {17, -1, 0, 0, 0}};

// Slot 1, axis 2, DT100, the last items of all lists, the same starting condition for the output.
const SLadder kLadders[] = {
    {"PPointPassing",
     0,
     kStart,
     {{8, -1, 1, 1, 0},
      {-1, 11, 300, 1, 0},
      {-1, 9, 100, 1, 0},
      {8, -1, 1, 1, 0},
      {-1, 11, 300, 1, 0},
      {-1, 9, 102, 1, 0},
      {8, -1, 1, 1, 0},
      {-1, 11, -100000, 1, 0},
      {-1, 9, 104, 1, 0},
      {8, -1, 151, 1, 0},
      {-1, 11, 1, 1, 0},
      {-1, 9, 100, 1, 0},
      {-1, 11, 6, 1, 0},
      {-1, 12, 0x114, 1, 0}},
     {},
     {}},
    {"Jog",
     1,
     kStart,
     {{8, -1, 1, 1, 0},
      {-1, 12, 0x730030BA, 1, 0},
      {-1, 9, 100, 1, 0},
      {8, -1, 1, 1, 0},
      {-1, 11, 500, 1, 0},
      {-1, 9, 102, 1, 0},
      {8, -1, 1, 1, 0},
      {-1, 11, 1000, 1, 0},
      {-1, 9, 104, 1, 0},
      {8, -1, 1, 1, 0},
      {-1, 11, 300, 1, 0},
      {-1, 9, 106, 1, 0},
      {8, -1, 151, 1, 0},
      {-1, 11, 1, 1, 0},
      {-1, 9, 100, 1, 0},
      {-1, 11, 8, 1, 0},
      {-1, 12, 0x110, 1, 0}},
     {{2, 1, 170, 0, 0}, {3, 2, 308, 0, 0}},
     {{2, 1, 170, 0, 0}, {3, 2, 644, 0, 0}}},
    {"JogSpeedChange",
     0,
     {{2, 0, 5, 0, 1},
      {1, 1, 170, 0, 0},
      {8, -1, 1, 1, 0},
      {-1, 11, 1000, 1, 0},
      {-1, 9, 104, 1, 0},
      {2, 0, 5, 0, 0},
      {1, 1, 170, 0, 0},
      {8, -1, 1, 1, 0},
      {-1, 11, 5000, 1, 0},
      {-1, 9, 104, 1, 0},
      {2, 1, 170, 0, 0},
      {17, -1, 0, 0, 0}},
     {{8, -1, 1, 1, 0},
      {-1, 12, 0x730030BA, 1, 0},
      {-1, 9, 100, 1, 0},
      {8, -1, 1, 1, 0},
      {-1, 11, 500, 1, 0},
      {-1, 9, 102, 1, 0},
      {8, -1, 1, 1, 0},
      {-1, 11, 300, 1, 0},
      {-1, 9, 106, 1, 0},
      {8, -1, 151, 1, 0},
      {-1, 11, 1, 1, 0},
      {-1, 9, 100, 1, 0},
      {-1, 11, 8, 1, 0},
      {-1, 12, 0x110, 1, 0}},
     {{2, 1, 170, 0, 0}, {3, 2, 307, 0, 0}},
     {{2, 1, 170, 0, 0}, {3, 2, 643, 0, 0}}},
    {"HomeReturn",
     0,
     kStart,
     {{8, -1, 1, 1, 0},
      {-1, 12, static_cast<int>(0xF30030FE), 1, 0},
      {-1, 9, 100, 1, 0},
      {8, -1, 1, 1, 0},
      {-1, 11, 500, 1, 0},
      {-1, 9, 102, 1, 0},
      {8, -1, 1, 1, 0},
      {-1, 11, 20000, 1, 0},
      {-1, 9, 104, 1, 0},
      {8, -1, 1, 1, 0},
      {-1, 11, 300, 1, 0},
      {-1, 9, 106, 1, 0},
      {8, -1, 151, 1, 0},
      {-1, 11, 1, 1, 0},
      {-1, 9, 100, 1, 0},
      {-1, 11, 8, 1, 0},
      {-1, 12, 0x110, 1, 0}},
     {{2, 1, 170, 0, 0}, {17, -1, 0, 0, 0}, {3, 2, 306, 0, 0}},
     {{2, 1, 170, 0, 0}, {17, -1, 0, 0, 0}, {3, 2, 642, 0, 0}}},
    {"Pulsar",
     0,
     kStart,
     {{8, -1, 1, 1, 0},
      {-1, 12, 0x732B07B0, 1, 0},
      {-1, 9, 100, 1, 0},
      {8, -1, 1, 1, 0},
      {-1, 11, 300, 1, 0},
      {-1, 9, 104, 1, 0},
      {8, -1, 151, 1, 0},
      {-1, 11, 1, 1, 0},
      {-1, 9, 100, 1, 0},
      {-1, 11, 2, 1, 0},
      {-1, 12, 0x110, 1, 0}},
     {{2, 1, 170, 0, 0}, {17, -1, 0, 0, 0}, {3, 2, 311, 0, 0}},
     {{2, 1, 170, 0, 0}, {17, -1, 0, 0, 0}, {3, 2, 647, 0, 0}}},
};

TEST_F(CUnitFormTest, LeadsToTheLadderOfItsEntries)
{
    for (const SLadder& ladder : kLadders)
        for (const BYTE startType : std::initializer_list<BYTE>{0, 1, 2})
        {
            SCOPED_TRACE(testing::Message() << ladder.form << ", start type " << int{startType});
            const SUnitForm& form = UnitForm(ladder.form);
            m_wizard.SetStartType(startType);
            ConfirmFromSelection(form, [&](CDialogRobot& dialog) {
                SUnitEntries entries = Started(form);
                entries.items = LastItems(form);
                entries.same = true;
                entries.direction = ladder.direction;
                FillIn(dialog, form, entries);
            });
            Instructions expected = ladder.before;
            expected.insert(expected.end(), ladder.transfer.begin(), ladder.transfer.end());
            const Instructions none;
            const Instructions& output = startType == 0 ? none : startType == 1 ? ladder.unit : ladder.chosen;
            expected.insert(expected.end(), output.begin(), output.end());
            EXPECT_EQ(m_wizard.CreateInstCode(), 1);
            EXPECT_EQ(ReadResults(m_wizard).instructions, expected);
        }
}

} // namespace
