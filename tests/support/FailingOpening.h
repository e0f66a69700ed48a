// Opening a dialog while memory is short.
#pragma once

#include "afx/DialogRobot.h"

#include <functional>

struct SFailingOpening
{
    bool opened; ///< the dialog came up all the same
    bool failed; ///< an allocation failed
};

/// Calls open() while the `failures` allocations after `successes` fail, and leaves the dialog that may come up. It
/// must end with 2 in either case, without an exception and without a message.
SFailingOpening OpenWithoutMemory(CDialogRobot& robot, int successes, int failures, const std::function<int()>& open);
