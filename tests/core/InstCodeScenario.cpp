#include "tests/core/InstCodeScenario.h"

#include <climits>
#include <cstring>

#include "tests/core/FunWizardTest.h"

namespace instcode
{

namespace
{

int RandomInstruction(CRandom& random)
{
    if (random.OneIn(2))
        return random.Between(168, 177);
    return random.Of({282, 283, 354, 355, 151, 151, 180, -1, 0, 167, 178, 309});
}

int RandomVariant(CRandom& random)
{
    return random.Of({0, 1, 10010, 10020, 10030, 10040, 10050, 10050, 10060, 10070, 10080, 10080});
}

BYTE RandomPlcType(CRandom& random)
{
    const int type = random.OneIn(2) ? random.Between(68, 76) : random.Of({0, 1, 114, 117, 160, 165, 168, 255});
    return static_cast<BYTE>(type);
}

SContactInput RandomContact(CRandom& random)
{
    const auto kind = random.Of<short>({2, 2, 2, 3, 17, 1, 0, -1});
    const auto code = random.Of<short>({1, 2, 2, 3, 0, 17, 4, 9, 65, -1, 20001, 20001, 20009, 20065});
    const int number = random.Of({14416, 14419, 14416, 14419, 14417, 14418, 0, 1, 35, -1, INT_MAX, INT_MIN});
    return {kind, code, number};
}

int RandomDataCount(CRandom& random)
{
    if (random.OneIn(2))
        return random.Below(7);
    if (random.OneIn(3))
        return random.Between(0, 120);
    return 33 * random.Between(1, 3) + random.Between(-3, 3);
}

SFunSetData RandomData(CRandom& random, int dataCount)
{
    SFunSetData data;
    data.code = random.Of<short>({9, 9, 9, 10, 8, 20009, -1});
    data.number = random.OneIn(4) ? static_cast<int>(random.Bits()) : random.Below(32766);
    data.type = static_cast<unsigned char>(random.OneIn(20) ? random.Below(256) : random.Below(4));
    data.format = static_cast<unsigned char>(random.OneIn(20) ? random.Below(256) : random.Below(4));
    data.value = random.OneIn(4) ? static_cast<int>(random.Bits()) : random.Between(-2, dataCount + 3);
    return data;
}

SOperandInput RandomOperand(CRandom& random)
{
    return {random.Of<short>({9, 11, 12, 65, 20009, -1, 0}), static_cast<int>(random.Bits())};
}

} // namespace

SScenario RandomScenario(CRandom& random)
{
    SScenario scenario;
    scenario.unitMode = random.Of<BYTE>({0, 0, 1, 1, 255});
    scenario.instruction = RandomInstruction(random);
    scenario.variant = RandomVariant(random);
    scenario.plcType = RandomPlcType(random);
    scenario.startType = static_cast<BYTE>(random.Below(3));
    scenario.onlyDataTable = random.Of({0, 0, 0, 1, -1});
    scenario.firstOption = random.Below(3);
    scenario.secondOption = random.Below(3);
    for (int count = random.Below(6); count > 0; --count)
        scenario.contacts.push_back(RandomContact(random));
    const int dataCount = RandomDataCount(random);
    for (int i = 0; i < dataCount; ++i)
        scenario.data.push_back(RandomData(random, dataCount));
    for (int count = random.Below(7); count > 0; --count)
        scenario.operands.push_back(RandomOperand(random));
    return scenario;
}

void Fill(CFunWizard& wizard, const SScenario& scenario)
{
    SFunWizardTest::SetLastWizard(wizard, scenario.unitMode, scenario.instruction, scenario.variant);
    SFunWizardTest::SetOption(wizard, 0, scenario.secondOption);
    SFunWizardTest::SetOption(wizard, 3, scenario.firstOption);
    wizard.SetPlcType(scenario.plcType);
    wizard.SetStartType(scenario.startType);
    wizard.SetOnlyDataTable(scenario.onlyDataTable);
    for (const SContactInput& contact : scenario.contacts)
        wizard.AddContInfo(contact.kind, contact.code, contact.number);
    for (const SFunSetData& data : scenario.data)
        wizard.AddDataInfo(data.code, data.number, data.type, data.format, data.value);
    for (const SOperandInput& operand : scenario.operands)
        wizard.AddOprdInfo(operand.code, operand.value);
}

SProgram Generate(CFunWizard& wizard, EGenerator generator)
{
    SProgram program;
    switch (generator)
    {
    case EGenerator::Selected:
        program.result = wizard.CreateInstCode();
        break;
    case EGenerator::BuiltIn:
        program.result = wizard.CreateInstCode_1();
        break;
    case EGenerator::Scaling:
        program.result = wizard.CreateInstCode_11();
        break;
    case EGenerator::Unit:
        program.result = wizard.CreateInstCode_2();
        break;
    case EGenerator::Jog:
        program.result = wizard.CreateInstCode_3();
        break;
    case EGenerator::Pulsar:
        program.result = wizard.CreateInstCode_4();
        break;
    }
    program.records.resize(static_cast<size_t>(wizard.GetInstCodeCount()));
    for (size_t i = 0; i < program.records.size(); ++i)
        wizard.GetInstCodeInfo(static_cast<int>(i), &program.records[i]);
    return program;
}

bool operator==(const SProgram& a, const SProgram& b)
{
    return a.result == b.result && a.records.size() == b.records.size() &&
           (a.records.empty() ||
            std::memcmp(a.records.data(), b.records.data(), a.records.size() * sizeof(SFWzdInstCode)) == 0);
}

std::string Describe(const SScenario& scenario)
{
    std::string text = "unit mode " + std::to_string(scenario.unitMode) + ", instruction " +
                       std::to_string(scenario.instruction) + ", variant " + std::to_string(scenario.variant) +
                       ", PLC " + std::to_string(scenario.plcType) + ", start type " +
                       std::to_string(scenario.startType) + ", only table " + std::to_string(scenario.onlyDataTable) +
                       ", options " + std::to_string(scenario.firstOption) + " and " +
                       std::to_string(scenario.secondOption) + ", " + std::to_string(scenario.data.size()) + " data, " +
                       std::to_string(scenario.operands.size()) + " operands, contacts";
    for (const SContactInput& contact : scenario.contacts)
        text += " (" + std::to_string(contact.kind) + " " + std::to_string(contact.code) + " " +
                std::to_string(contact.number) + ")";
    return text;
}

std::string Describe(const SProgram& program)
{
    std::string text = "result " + std::to_string(program.result) + "\n";
    for (size_t i = 0; i < program.records.size(); ++i)
        text += std::to_string(i) + ": " + RecordText(program.records[i]) + "\n";
    return text;
}

} // namespace instcode
