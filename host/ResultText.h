// The result lists of a wizard in plain text, one entry a line, for reading and for comparing.
#pragma once

#include "core/FunWizard.h"

#include <string>

std::string ContactsText(const CFunWizard& wizard);
std::string OperandsText(const CFunWizard& wizard);
/// Register, its width, and the constant in the notation it is transferred in.
std::string DataTableText(const CFunWizard& wizard);
std::string CommentsText(const CFunWizard& wizard);
/// The records as they are: kind, device code, value and the two flags.
std::string InstructionsText(const CFunWizard& wizard);

/// The five lists under their names.
std::string ResultText(const CFunWizard& wizard);
