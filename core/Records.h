// The records that the result lists of CFunWizard hold.
//
// Their sizes are part of the interface that hosts are compiled against, so they are packed to one byte everywhere.
#pragma once

#include "afx/afx.h"

#include "core/Instructions.h"

#pragma pack(push, 1)

/// One instruction of a generated sequence, or one operand of the instruction before it.
struct SFWzdInstCode
{
    short kind;          ///< EInstKind: contact, function instruction, operand, ...
    short code;          ///< device code of a contact or an operand; -1 for instructions
    int value;           ///< device number, constant, or function instruction number
    unsigned char flag1; ///< first flag byte, as handed to AddInstCodeInfo
    unsigned char flag2; ///< second flag byte
};

/// The initial value of one entry of an instruction's data table.
struct SFunSetData
{
    short code;           ///< device code of the register, EDevice::DataRegister as a rule
    int number;           ///< register number
    unsigned char type;   ///< EDataType: how many registers the value takes
    unsigned char format; ///< EConstantFormat: the notation of the constant that is transferred
    int value;            ///< the value; for a real number the bits of its single-precision form
};

/// A contact of the starting condition. The word packs the instruction kind (upper half) and the device code (lower).
struct SContact
{
    int number;
    DWORD kindAndCode;

    short Kind() const { return static_cast<short>(HIWORD(kindAndCode)); }
    short Code() const { return static_cast<short>(LOWORD(kindAndCode)); }
};

/// An operand of the generated instruction. Only the low 16 bits of the code word mean anything.
struct SOperand
{
    int value;
    DWORD codeWord;

    short Code() const { return static_cast<short>(LOWORD(codeWord)); }
};

/// The lowest and the highest number of a device that the PLC offers.
struct SDevRange
{
    int low;
    int high;
};

#pragma pack(pop)

static_assert(sizeof(SContact) == 8, "contact record");
static_assert(sizeof(SOperand) == 8, "operand record");
static_assert(sizeof(SFunSetData) == 12, "data-table record");
static_assert(sizeof(SFWzdInstCode) == 10, "instruction record");

/// Instruction kinds of contacts and generated records.
enum EInstKind : short
{
    kInstOperand = -1,      ///< an operand of the preceding function instruction
    kInstSecondContact = 1, ///< the second contact of a speed-selection rung
    kInstContact = 2,       ///< a contact of the starting condition
    kInstStartOutput = 3,   ///< the output of a start relay
    kInstFunction = 8,      ///< a function instruction, its number in the value
    kInstDifferential = 17  ///< the differential instruction after the starting contact
};

/// Data-type byte of SFunSetData.
enum EDataType : unsigned char
{
    kOneRegister = 0,
    kTwoRegisters = 1,
    kRealNumber = 2
};

/// Constant-format byte of SFunSetData.
enum EConstantFormat : unsigned char
{
    kDecimalConstant = 0,
    kHexadecimalConstant = 1,
    kRealConstant = 2
};
