// Generation of the instruction sequence from the contact, operand and data lists.
//
// A sequence initialises the data table by transfers, one per data record, and then runs the instruction itself. Each
// generator below is one layout of such a sequence; the steps they share are the functions of the class.
#include "core/Devices.h"
#include "core/FunWizard.h"
#include "core/Memory.h"

#include <algorithm>

namespace
{

// Ladder rungs are bounded in length: after so many rows the starting contact is repeated.
constexpr int kRowsPerRung = 33;

// Function instructions that transfer a constant into a register.
constexpr int kTransferWord = 0;
constexpr int kTransferDoubleWord = 1;
constexpr int kTransferReal = 309;

bool IsSpecialStart(const SContact& contact)
{
    return contact.Code() == kDeviceSpecialR && (contact.number == kAlwaysOnRelay || contact.number == kFirstScanRelay);
}

bool IsScaling(int instruction)
{
    return instruction == kInstructionScal || instruction == kInstructionDscal || instruction == kInstructionFscal;
}

bool StartsOnEdge(int instruction)
{
    return instruction == kInstructionSpd1 || instruction == kInstructionSpdh || instruction == kInstructionSp0h ||
           instruction == kInstructionSpsh || instruction == kInstructionPid;
}

} // namespace

/// Appends generated records to the instruction list of a wizard. Every Emit function returns whether the records it
/// needed were there; the first false ends the generation. Running out of memory throws.
class CInstCodeGenerator
{
public:
    // The list is given the room for the whole sequence at once, and cut to what was generated in the end.
    explicit CInstCodeGenerator(CFunWizard& wizard)
        : m_wizard(wizard), m_list(wizard.m_instructions), m_count(m_list.GetSize())
    {
        const int rows = m_wizard.GetDataInfoCount();
        MakeRoom(3 * rows + 2 * (rows / kRowsPerRung + 1) + m_wizard.GetOprdInfoCount() + 8);
    }

    ~CInstCodeGenerator() { m_list.SetSize(m_count); }

    CInstCodeGenerator(const CInstCodeGenerator&) = delete;
    CInstCodeGenerator& operator=(const CInstCodeGenerator&) = delete;

    [[nodiscard]] bool GeneratePulse();
    [[nodiscard]] bool GenerateScaling();
    [[nodiscard]] bool GenerateUnit(bool edgeBeforeOutput);
    [[nodiscard]] bool GenerateUnitSpeedChange();

    bool IsJog() const { return m_wizard.m_lastVariant == kUnitJog || m_wizard.m_lastVariant == kUnitJogSpeedChange; }

private:
    bool Emit(short kind, short code, int value, BYTE flag1 = 0, BYTE flag2 = 0)
    {
        if (m_count == m_room)
            MakeRoom(m_count);
        m_records[m_count++] = {kind, code, value, flag1, flag2};
        return true;
    }

    void MakeRoom(int records)
    {
        m_list.SetSize(m_count + records);
        m_room = m_count + records;
        m_records = m_list.GetData();
    }

    bool EmitDifferential() { return Emit(kInstDifferential, -1, 0); }
    bool EmitFunction(int number, BYTE flag1 = 0) { return Emit(kInstFunction, -1, number, flag1); }

    bool ReadContact(int index, SContact& contact) const
    {
        if (index >= m_wizard.GetContInfoCount())
            return false;
        contact = m_wizard.m_contacts[index];
        return true;
    }

    bool EmitContact(int index)
    {
        SContact contact;
        return ReadContact(index, contact) && Emit(contact.Kind(), ProgramDeviceCode(contact.Code()), contact.number);
    }

    bool EmitContactAsItIs(int index)
    {
        SContact contact;
        return ReadContact(index, contact) && Emit(contact.Kind(), contact.Code(), contact.number);
    }

    bool EmitContactAs(short kind, int index, BYTE flag2)
    {
        SContact contact;
        return ReadContact(index, contact) && Emit(kind, ProgramDeviceCode(contact.Code()), contact.number, 0, flag2);
    }

    bool EmitTransfer(int function, short constantCode, const SFunSetData& data, BYTE flag1 = 0)
    {
        return EmitFunction(function, flag1) && Emit(kInstOperand, constantCode, data.value, flag1) &&
               Emit(kInstOperand, data.code, data.number, flag1);
    }

    // The transfer of a whole number, whose type and format bytes only count as zero or not.
    bool EmitIntegerTransfer(const SFunSetData& data, BYTE flag1 = 0)
    {
        return EmitTransfer(data.type != kOneRegister ? kTransferDoubleWord : kTransferWord,
                            data.format != kDecimalConstant ? kDeviceH : kDeviceK, data, flag1);
    }

    bool EmitUnitTransfer(int index)
    {
        SFunSetData data;
        return m_wizard.GetDataInfo(index, &data) && EmitIntegerTransfer(data, data.type);
    }

    // Positioning-unit operations mark the instruction with the data type of their last data record.
    BYTE LastDataType() const
    {
        SFunSetData data;
        return m_wizard.GetDataInfo(m_wizard.GetDataInfoCount() - 1, &data) ? data.type : 0;
    }

    bool EmitInstruction(BYTE flag1)
    {
        if (!EmitFunction(m_wizard.m_lastInstruction, flag1))
            return false;
        const int count = m_wizard.GetOprdInfoCount();
        for (int i = 0; i < count; i++)
        {
            const SOperand operand = m_wizard.m_operands[i];
            if (!Emit(kInstOperand, operand.Code(), operand.value, flag1))
                return false;
        }
        return true;
    }

    bool HasStartOutput() const { return m_wizard.IsStartCondition() && m_wizard.GetStartType() != 0; }

    // The two option fields that the generators test; the first is the last one stored.
    bool FirstOption() const { return m_wizard.m_options[3] == 1; }
    int SecondOption() const { return m_wizard.m_options[0]; }

    bool WantsDifferential(const SContact& start) const;
    bool EmitPulseBlockStart(int& row, bool& noted);
    bool EmitPulseInstructionStart(bool noted);

    CFunWizard& m_wizard;
    CArray<SFWzdInstCode, const SFWzdInstCode&>& m_list;
    int m_count;    // records in the list that are generated,
    int m_room = 0; // and that it has room for
    SFWzdInstCode* m_records = nullptr;
};

// ---- Built-in instructions ------------------------------------------------------------------------------------------

bool CInstCodeGenerator::WantsDifferential(const SContact& start) const
{
    const int instruction = m_wizard.m_lastInstruction;
    if (IsSpecialStart(start) || (FirstOption() && SecondOption() == 0 && instruction == kInstructionSpdh))
        return false;
    return StartsOnEdge(instruction) || IsLargeFamilyB(m_wizard.m_plcType);
}

bool CInstCodeGenerator::EmitPulseBlockStart(int& row, bool& noted)
{
    SContact start;
    if (!EmitContact(0) || !ReadContact(0, start))
        return false;
    if (!WantsDifferential(start))
        return true;
    row++;
    noted = noted || IsLargeFamilyB(m_wizard.m_plcType);
    return EmitDifferential();
}

// In types 70..74 the instruction stands in a rung of its own.
bool CInstCodeGenerator::EmitPulseInstructionStart(bool noted)
{
    const int instruction = m_wizard.m_lastInstruction;
    const bool startsOnEdge = (SecondOption() == 1 && instruction == kInstructionSpdh) ||
                              instruction == kInstructionSp0h || instruction == kInstructionSpsh ||
                              instruction == kInstructionF177;
    if (startsOnEdge)
        return noted || (EmitContact(0) && EmitDifferential());
    // The rung of the table goes on when it ends in the condition that the instruction asks for. The starting contact
    // is the same in both, so only the differential instruction can make the difference.
    return static_cast<int>(noted) == SecondOption() || EmitContact(0);
}

bool CInstCodeGenerator::GeneratePulse()
{
    int row = 0;
    bool noted = false;
    const int count = m_wizard.GetDataInfoCount();
    for (int i = 0; i < count; i++)
    {
        if (row % kRowsPerRung == 0 && !EmitPulseBlockStart(row, noted))
            return false;
        if (!EmitIntegerTransfer(m_wizard.m_data[i]))
            return false;
        row++;
    }
    if (count == 0)
        return false;
    if (m_wizard.IsOnlyDataTable())
        return true;
    if (IsLargeFamilyB(m_wizard.m_plcType) && !EmitPulseInstructionStart(noted))
        return false;
    if (m_wizard.m_lastInstruction == kInstructionPid && !EmitContact(0))
        return false;
    return EmitInstruction(0);
}

// ---- Scaling --------------------------------------------------------------------------------------------------------

bool CInstCodeGenerator::GenerateScaling()
{
    static constexpr short kConstantCodes[] = {kDeviceK, kDeviceH, kDeviceReal};
    static constexpr int kTransfers[] = {kTransferWord, kTransferDoubleWord, kTransferReal};

    const int count = m_wizard.GetDataInfoCount();
    if (count == 0)
        return false;
    // Record 0, the number of points, stands in a block of its own; the X values follow it and then the Y values.
    const int points = m_wizard.m_data[0].value;
    int row = 0;
    for (int i = 0; i < count; i++)
    {
        if (row % kRowsPerRung == 0 && !Emit(kInstContact, kDeviceR, kFirstScanRelay))
            return false;
        const SFunSetData data = m_wizard.m_data[i];
        const short constantCode = data.format <= kRealConstant ? kConstantCodes[data.format] : short{-1};
        if (!EmitTransfer(kTransfers[std::min<int>(data.type, kRealNumber)], constantCode, data))
            return false;
        row = i == 0 || i == points ? 0 : row + 1;
    }
    if (m_wizard.IsOnlyDataTable())
        return true;
    const int contacts = std::min(m_wizard.GetContInfoCount(), 2);
    for (int i = 0; i < contacts; i++)
        if (!EmitContact(i))
            return false;
    const int instruction = m_wizard.m_lastInstruction;
    return EmitInstruction(instruction == kInstructionDscal || instruction == kInstructionFscal ? 1 : 0);
}

// ---- Positioning-unit operations ------------------------------------------------------------------------------------

bool CInstCodeGenerator::GenerateUnit(bool edgeBeforeOutput)
{
    if (!EmitContact(0) || !EmitDifferential())
        return false;
    const int count = m_wizard.GetDataInfoCount();
    for (int i = 0; i < count; i++)
        if (!EmitUnitTransfer(i))
            return false;
    if (!EmitInstruction(LastDataType()))
        return false;
    if (!HasStartOutput())
        return true;
    // The start output goes out under its own device code: it is no special relay.
    return EmitContact(1) && (!edgeBeforeOutput || EmitDifferential()) && EmitContactAsItIs(2);
}

bool CInstCodeGenerator::GenerateUnitSpeedChange()
{
    constexpr int kFirstSpeed = 2;
    constexpr int kSpeeds = 2;
    // Two rungs select the speed by the speed change condition (contact 1) and the starting condition (contact 0).
    for (int rung = 0; rung < kSpeeds; rung++)
        if (!EmitContactAs(kInstContact, 1, rung == 0) || !EmitContactAs(kInstSecondContact, 0, 0) ||
            !EmitUnitTransfer(kFirstSpeed + rung))
            return false;
    if (!EmitContact(0) || !EmitDifferential())
        return false;
    const int count = m_wizard.GetDataInfoCount();
    for (int i = 0; i < count; i++)
        if ((i < kFirstSpeed || i >= kFirstSpeed + kSpeeds) && !EmitUnitTransfer(i))
            return false;
    if (!EmitInstruction(LastDataType()))
        return false;
    return !HasStartOutput() || (EmitContact(2) && EmitContactAsItIs(3));
}

// ---- The operations of the wizard object ----------------------------------------------------------------------------

int CFunWizard::CreateInstCode()
{
    RemoveAllInstCodeInfo();
    if (m_unitMode == 0)
        return IsScaling(m_lastInstruction) ? CreateInstCode_11() : CreateInstCode_1();
    if (m_lastInstruction == kInstructionUnit && m_lastVariant == kUnitPulsar)
        return CreateInstCode_4();
    if (m_lastInstruction == kInstructionUnit && m_lastVariant == kUnitJogSpeedChange)
        return CreateInstCode_3();
    return CreateInstCode_2();
}

template <typename TGenerate>
int CFunWizard::Generate(TGenerate generate)
{
    bool complete = false;
    const int enough = WithMemory([&] {
        CInstCodeGenerator generator(*this);
        complete = generate(generator);
    });
    return enough && complete;
}

int CFunWizard::CreateInstCode_1()
{
    return Generate([](CInstCodeGenerator& generator) { return generator.GeneratePulse(); });
}

int CFunWizard::CreateInstCode_11()
{
    return Generate([](CInstCodeGenerator& generator) { return generator.GenerateScaling(); });
}

int CFunWizard::CreateInstCode_2()
{
    return Generate([](CInstCodeGenerator& generator) { return generator.GenerateUnit(!generator.IsJog()); });
}

int CFunWizard::CreateInstCode_3()
{
    return Generate([](CInstCodeGenerator& generator) { return generator.GenerateUnitSpeedChange(); });
}

int CFunWizard::CreateInstCode_4()
{
    return Generate([](CInstCodeGenerator& generator) { return generator.GenerateUnit(true); });
}
