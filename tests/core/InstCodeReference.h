// A second opinion on instruction sequences, derived from rules in tables instead of a walk over the lists.
#pragma once

#include "tests/core/InstCodeScenario.h"

namespace instcode
{

/// What a generator has to produce for a scenario.
SProgram Reference(const SScenario& scenario, EGenerator generator);

} // namespace instcode
