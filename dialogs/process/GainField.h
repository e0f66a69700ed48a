// The gains of PID: numbers that auto-tuning finds by itself.
#pragma once

#include "dialogs/fields/Rows.h"

/// A number that can be left out, as WDX_Number. While it is `automatic` it is written and not for the user to choose:
/// it starts from `initial`, and an unusable entry becomes the lowest value. When that ends it is left out at first.
void WDX_Gain(CWzdExchange* wx, const SWzdRow& row, bool automatic);
