// Result lists in plain text, one entry a line, for reading and for comparing.
#pragma once

#include "host/ResultLists.h"

#include <string>
#include <vector>

std::string ContactsText(const std::vector<SContactEntry>& contacts);
std::string OperandsText(const std::vector<SOperandEntry>& operands);
/// Register, its width, and the constant in the notation it is transferred in.
std::string DataTableText(const std::vector<SDataEntry>& data);
std::string CommentsText(const std::vector<std::string>& comments);
/// The records as they are: kind, device code, value and the two flags.
std::string InstructionsText(const std::vector<SInstructionEntry>& instructions);

/// "1 word", "2 words" or "real".
const char* WidthText(const SDataEntry& entry);
/// The constant as an operand shows it.
std::string ConstantText(const SDataEntry& entry);

/// A list under its name and the number of its entries.
std::string ListText(const char* name, size_t count, const std::string& entries);
/// The five lists under their names.
std::string ResultText(const SResultLists& lists);
