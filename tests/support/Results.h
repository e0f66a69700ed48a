// The five result lists of a wizard as plain values that compare and print.
#pragma once

#include "core/FunWizard.h"

#include <ostream>
#include <string>
#include <vector>

struct SContactRow
{
    int kind;
    int code;
    int number;

    bool operator==(const SContactRow&) const = default;
};

struct SOperandRow
{
    int code;
    int value;

    bool operator==(const SOperandRow&) const = default;
};

struct SDataRow
{
    int code;
    int number;
    int type;
    int format;
    int value;

    bool operator==(const SDataRow&) const = default;
};

struct SInstructionRow
{
    int kind;
    int code;
    int value;
    int flag1;
    int flag2;

    bool operator==(const SInstructionRow&) const = default;
};

struct SResults
{
    std::vector<SContactRow> contacts;
    std::vector<SOperandRow> operands;
    std::vector<SDataRow> data;
    std::vector<std::string> comments;
    std::vector<SInstructionRow> instructions;

    bool operator==(const SResults&) const = default;
};

/// Reads all lists back through the wizard's own operations.
SResults ReadResults(const CFunWizard& wizard);

/// Fills the lists with what they held before.
void WriteResults(CFunWizard& wizard, const SResults& results);

// As the rows are written in a test: {2, 1, 266}.
std::ostream& operator<<(std::ostream& out, const SContactRow& row);
std::ostream& operator<<(std::ostream& out, const SOperandRow& row);
std::ostream& operator<<(std::ostream& out, const SDataRow& row);
std::ostream& operator<<(std::ostream& out, const SInstructionRow& row);
std::ostream& operator<<(std::ostream& out, const SResults& results);
