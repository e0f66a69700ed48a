// Everything that the generated instruction sequence depends on, as one value that can be drawn at random.
#pragma once

#include <random>
#include <string>
#include <vector>

#include "core/FunWizard.h"

namespace instcode
{

struct SContactInput
{
    short kind;
    short code;
    int number;
};

struct SOperandInput
{
    short code;
    int value;
};

struct SScenario
{
    BYTE unitMode = 0;
    int instruction = 168;
    int variant = 0;
    BYTE plcType = 0;
    BYTE startType = 0;
    int onlyDataTable = 0;
    int firstOption = 0;  ///< the fourth stored option field
    int secondOption = 1; ///< the first stored option field
    std::vector<SContactInput> contacts;
    std::vector<SFunSetData> data;
    std::vector<SOperandInput> operands;
};

/// A generator's result and the list that it leaves.
struct SProgram
{
    int result = 0;
    std::vector<SFWzdInstCode> records;
};

enum class EGenerator
{
    Selected, ///< CreateInstCode
    BuiltIn,  ///< CreateInstCode_1
    Scaling,  ///< CreateInstCode_11
    Unit,     ///< CreateInstCode_2
    Jog,      ///< CreateInstCode_3
    Pulsar    ///< CreateInstCode_4
};

/// Numbers that are the same on every platform for the same seed.
class CRandom
{
public:
    explicit CRandom(unsigned seed) : m_engine(seed) {}

    int Below(int count) { return static_cast<int>(m_engine() % static_cast<unsigned>(count)); }
    int Between(int low, int high) { return low + Below(high - low + 1); }
    bool OneIn(int count) { return Below(count) == 0; }
    unsigned Bits() { return static_cast<unsigned>(m_engine()); }
    template <typename T>
    T Of(std::initializer_list<T> choices)
    {
        return choices.begin()[Below(static_cast<int>(choices.size()))];
    }

private:
    std::mt19937 m_engine;
};

SScenario RandomScenario(CRandom& random);

/// A scenario's lists and settings, put into a fresh wizard.
void Fill(CFunWizard& wizard, const SScenario& scenario);

/// What the library generates.
SProgram Generate(CFunWizard& wizard, EGenerator generator);

bool operator==(const SProgram& a, const SProgram& b);

/// For failure messages.
std::string Describe(const SScenario& scenario);
std::string Describe(const SProgram& program);

} // namespace instcode
