// The forms of the dialogs of controllers of families B and C, but those of F174.
#pragma once

#include "tests/dialogs/pulse/PulseForms.h"

/// Those that differ from a form of family A in little start from it.
std::vector<SPulseForm> ChannelForms(const std::vector<SPulseForm>& familyA);
