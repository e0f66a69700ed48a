// Every sequence is written down as a score: words that are played in order, until one of them finds no record.
//
//   c<n>         contact n, special-area codes mapped to the ordinary ones
//   C<n>         contact n as it is
//   c<n>:<k>     contact n mapped, with kind k instead of its own; a "!" behind it sets the second flag
//   on           the always-closed first-scan contact of the scaling table
//   17           the differential instruction
//   t<n>         the transfer of data record n: function, constant, register
//   f            the instruction and all its operands
//   ?            plays on only when the start condition is complete and a start type is chosen
//
// How a transfer or an instruction is written down is a dialect: two tables and a rule for the first flag.
#include "tests/core/InstCodeReference.h"

#include <algorithm>
#include <map>
#include <set>
#include <sstream>

namespace instcode
{

namespace
{

enum class EFlagRule
{
    Zero,        ///< all flags 0
    DataType,    ///< transfers carry their data type, the instruction that of the last data record
    Instruction, ///< transfers 0; the instruction 1 for F283 and F354
};

struct SDialect
{
    std::vector<int> functions;   ///< by data-type byte; the last entry serves all higher bytes
    std::vector<short> constants; ///< by constant-format byte, likewise
    EFlagRule flags;
};

const SDialect kBuiltIn = {{0, 1}, {11, 12}, EFlagRule::Zero};
const SDialect kScaling = {{0, 1, 309}, {11, 12, 20, -1}, EFlagRule::Instruction};
const SDialect kUnit = {{0, 1}, {11, 12}, EFlagRule::DataType};

const std::map<short, short> kOrdinaryCodes = {{20001, 1}, {20009, 9}, {20065, 65}};

template <typename T>
T AtOrLast(const std::vector<T>& table, size_t index)
{
    return table[std::min(index, table.size() - 1)];
}

class CPlayer
{
public:
    CPlayer(const SScenario& scenario, const SDialect& dialect) : m_scenario(scenario), m_dialect(dialect) {}

    SProgram Play(const std::string& score)
    {
        std::istringstream words(score);
        m_program.result = 1;
        for (std::string word; words >> word && m_program.result == 1;)
        {
            if (word == "?" && !MayPlayOn())
                break;
            m_program.result = PlayWord(word) ? 1 : 0;
        }
        return m_program;
    }

private:
    bool MayPlayOn() const
    {
        const auto& contacts = m_scenario.contacts;
        const bool complete = contacts.empty() || (contacts.size() > 2 && contacts.back().code == 2);
        return complete && m_scenario.startType != 0;
    }

    bool PlayWord(const std::string& word)
    {
        if (word == "?")
            return true;
        if (word == "on")
            return Emit(2, 1, 14419);
        if (word == "17")
            return Emit(17, -1, 0);
        if (word == "f")
            return PlayInstruction();
        return word[0] == 't' ? PlayTransfer(std::stoul(word.substr(1))) : PlayContact(word);
    }

    bool PlayContact(const std::string& word)
    {
        const size_t index = std::stoul(word.substr(1));
        if (index >= m_scenario.contacts.size())
            return false;
        SContactInput contact = m_scenario.contacts[index];
        if (word[0] == 'c' && kOrdinaryCodes.count(contact.code) != 0)
            contact.code = kOrdinaryCodes.at(contact.code);
        if (const size_t colon = word.find(':'); colon != std::string::npos)
            contact.kind = static_cast<short>(std::stoi(word.substr(colon + 1)));
        return Emit(contact.kind, contact.code, contact.number, 0, word.back() == '!' ? 1 : 0);
    }

    bool PlayTransfer(size_t index)
    {
        if (index >= m_scenario.data.size())
            return false;
        const SFunSetData& data = m_scenario.data[index];
        const unsigned char flag = m_dialect.flags == EFlagRule::DataType ? data.type : 0;
        return Emit(8, -1, AtOrLast(m_dialect.functions, data.type), flag) &&
               Emit(-1, AtOrLast(m_dialect.constants, data.format), data.value, flag) &&
               Emit(-1, data.code, data.number, flag);
    }

    bool PlayInstruction()
    {
        const unsigned char flag = InstructionFlag();
        Emit(8, -1, m_scenario.instruction, flag);
        for (const SOperandInput& operand : m_scenario.operands)
            Emit(-1, operand.code, operand.value, flag);
        return true;
    }

    unsigned char InstructionFlag() const
    {
        if (m_dialect.flags == EFlagRule::Instruction)
            return m_scenario.instruction == 283 || m_scenario.instruction == 354 ? 1 : 0;
        if (m_dialect.flags == EFlagRule::DataType && !m_scenario.data.empty())
            return m_scenario.data.back().type;
        return 0;
    }

    bool Emit(short kind, short code, int value, unsigned char flag1 = 0, unsigned char flag2 = 0)
    {
        m_program.records.push_back({kind, code, value, flag1, flag2});
        return true;
    }

    const SScenario& m_scenario;
    const SDialect& m_dialect;
    SProgram m_program;
};

std::string Transfers(const SScenario& scenario, const std::set<size_t>& left = {})
{
    std::string score;
    for (size_t i = 0; i < scenario.data.size(); ++i)
    {
        if (left.count(i) == 0)
            score += " t" + std::to_string(i);
    }
    return score;
}

bool IsLargeType(const SScenario& scenario) { return scenario.plcType >= 70 && scenario.plcType <= 74; }

bool StartsOnEdge(const SScenario& scenario)
{
    static const std::set<int> edgeInstructions = {168, 171, 174, 175, 355};
    static const std::set<int> specialNumbers = {14416, 14419};
    const SContactInput& start = scenario.contacts.front();
    if (start.code == 20001 && specialNumbers.count(start.number) != 0)
        return false;
    if (scenario.instruction == 171 && scenario.firstOption == 1 && scenario.secondOption == 0)
        return false;
    return IsLargeType(scenario) || edgeInstructions.count(scenario.instruction) != 0;
}

// What types 70..74 put between the table and the instruction.
std::string LargeTypeScore(const SScenario& scenario, bool edge)
{
    static const std::set<int> edgeOnly = {174, 175, 177};
    if (edgeOnly.count(scenario.instruction) != 0 || (scenario.instruction == 171 && scenario.secondOption == 1))
        return edge ? "" : " c0 17";
    return (edge ? 1 : 0) == scenario.secondOption ? "" : " c0";
}

// A block is one contact and up to 33 rows; the differential instruction is one of them.
std::string BuiltInScore(const SScenario& scenario)
{
    if (scenario.contacts.empty())
        return "c0";
    const bool edge = StartsOnEdge(scenario);
    const size_t recordsInBlock = edge ? 32 : 33;
    std::string score;
    for (size_t i = 0; i < scenario.data.size(); ++i)
    {
        if (i % recordsInBlock == 0)
            score += edge ? " c0 17" : " c0";
        score += " t" + std::to_string(i);
    }
    if (scenario.onlyDataTable != 0)
        return score;
    if (IsLargeType(scenario))
        score += LargeTypeScore(scenario, edge);
    if (scenario.instruction == 355)
        score += " c0";
    return score + " f";
}

// Record 0 stands alone, records 1 to m follow in blocks of 33, then the rest in blocks of 33.
std::string ScalingScore(const SScenario& scenario)
{
    std::set<long long> starts = {0};
    const auto count = static_cast<long long>(scenario.data.size());
    const long long points = count == 0 ? 0 : scenario.data.front().value;
    const long long secondStart = points >= 1 ? points + 1 : count;
    for (long long i = 1; i < std::min(secondStart, count); i += 33)
        starts.insert(i);
    for (long long i = secondStart; i < count; i += 33)
        starts.insert(i);

    std::string score;
    for (long long i = 0; i < count; ++i)
        score += (starts.count(i) != 0 ? " on t" : " t") + std::to_string(i);
    if (scenario.onlyDataTable != 0)
        return score;
    for (size_t i = 0; i < std::min<size_t>(2, scenario.contacts.size()); ++i)
        score += " c" + std::to_string(i);
    return score + " f";
}

std::string UnitScore(const SScenario& scenario)
{
    const bool jog = scenario.variant == 10040 || scenario.variant == 10050;
    return "c0 17" + Transfers(scenario) + (jog ? " f ? c1 C2" : " f ? c1 17 C2");
}

std::string JogScore(const SScenario& scenario)
{
    return "c1:2! c0:1 t2 c1:2 c0:1 t3 c0 17" + Transfers(scenario, {2, 3}) + " f ? c2 C3";
}

std::string PulsarScore(const SScenario& scenario) { return "c0 17" + Transfers(scenario) + " f ? c1 17 C2"; }

EGenerator Select(const SScenario& scenario)
{
    static const std::map<int, EGenerator> builtIn = {
        {282, EGenerator::Scaling}, {283, EGenerator::Scaling}, {354, EGenerator::Scaling}};
    static const std::map<std::pair<int, int>, EGenerator> unit = {{{151, 10080}, EGenerator::Pulsar},
                                                                   {{151, 10050}, EGenerator::Jog}};
    if (scenario.unitMode == 0)
    {
        const auto found = builtIn.find(scenario.instruction);
        return found != builtIn.end() ? found->second : EGenerator::BuiltIn;
    }
    const auto found = unit.find({scenario.instruction, scenario.variant});
    return found != unit.end() ? found->second : EGenerator::Unit;
}

bool NeedsData(EGenerator generator) { return generator == EGenerator::BuiltIn || generator == EGenerator::Scaling; }

} // namespace

SProgram Reference(const SScenario& scenario, EGenerator generator)
{
    if (generator == EGenerator::Selected)
        generator = Select(scenario);
    if (NeedsData(generator) && scenario.data.empty())
        return {};
    switch (generator)
    {
    case EGenerator::BuiltIn:
        return CPlayer(scenario, kBuiltIn).Play(BuiltInScore(scenario));
    case EGenerator::Scaling:
        return CPlayer(scenario, kScaling).Play(ScalingScore(scenario));
    case EGenerator::Jog:
        return CPlayer(scenario, kUnit).Play(JogScore(scenario));
    case EGenerator::Pulsar:
        return CPlayer(scenario, kUnit).Play(PulsarScore(scenario));
    default:
        return CPlayer(scenario, kUnit).Play(UnitScore(scenario));
    }
}

} // namespace instcode
