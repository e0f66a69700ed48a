// What a confirmed dialog leaves behind: the five lists in plain numbers and UTF-8, whichever interface they were read
// through.
#pragma once

#include <string>
#include <vector>

struct SContactEntry
{
    int kind;
    int code;
    int number;
};

struct SOperandEntry
{
    int code;
    int value;
};

struct SDataEntry
{
    int code;
    int number;
    int type;   ///< 0 one register, 1 two registers, 2 real number
    int format; ///< of the constant: 0 decimal, 1 hexadecimal, 2 real
    int value;
};

struct SInstructionEntry
{
    int kind;
    int code;
    int value;
    int flag1;
    int flag2;
};

struct SResultLists
{
    std::vector<SContactEntry> contacts;
    std::vector<SOperandEntry> operands;
    std::vector<SDataEntry> data;
    std::vector<std::string> comments;
    std::vector<SInstructionEntry> instructions;
};
