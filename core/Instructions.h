// The instructions that the wizards fill in, by the numbers under which hosts know them.
#pragma once

enum EInstruction
{
    kNoInstruction = -1,
    kInstructionUnit = 151, ///< every operation of the positioning unit; the variant tells which
    kInstructionSpd1 = 168,
    kInstructionPls = 169,
    kInstructionPwm = 170,
    kInstructionSpdh = 171,
    kInstructionPlsh = 172,
    kInstructionPwmh = 173,
    kInstructionSp0h = 174,
    kInstructionSpsh = 175,
    kInstructionSpch = 176,
    kInstructionF177 = 177,
    kInstructionScreen = 180,
    kInstructionScal = 282,
    kInstructionDscal = 283,
    kInstructionFscal = 354,
    kInstructionPid = 355
};

/// The operations of the positioning unit.
enum EUnitVariant
{
    kUnitEPoint = 10010,
    kUnitPPointStart = 10020,
    kUnitPPointPassing = 10030,
    kUnitJog = 10040,
    kUnitJogSpeedChange = 10050,
    kUnitJogPositioning = 10060,
    kUnitHomeReturn = 10070,
    kUnitPulsar = 10080
};
