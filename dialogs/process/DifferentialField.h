// The differential instruction behind a starting condition.
#pragma once

#include "dialogs/fields/Rows.h"

/// A check box: the starting condition counts when it becomes on. Without an instruction there is none.
void WDX_Differential(CWzdExchange* wx, UINT check);
