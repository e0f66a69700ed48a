// The marks and the two lines of the screen.
#pragma once

#include "dialogs/fields/Rows.h"
#include "dialogs/process/ScreenSettings.h"

/// What the dialog keeps beside its controls: they show one of the lines at a time.
struct SScreenInput
{
    SScreenSettings settings;
    int line = kUpsideLine; ///< that the controls show
};

/// Declared behind the operands: the control data (1) and the display data of the lines (2, 3). It keeps `input` in
/// step with the controls.
void WDX_Screen(CWzdExchange* wx, SScreenInput& input);
