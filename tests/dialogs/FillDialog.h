// Fills in any instruction dialog by what it declares of its fields.
#pragma once

#include "afx/DialogRobot.h"
#include "dialogs/base/WzdDlgBase.h"

/// Makes every choice that the round comes to, and enters a bound wherever something can be entered: the lowest in even
/// rounds, the highest in odd ones.
void FillDialog(CWzdDlgBase& dialog, CDialogRobot& robot, int round);
