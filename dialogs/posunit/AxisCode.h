// The control code of a positioning unit's axis: one 32-bit word of bit fields, and the texts of their values.
#pragma once

#include "dialogs/fields/Rows.h"

/// The fields of the word. Bits 11, 14, 15, 22, 23, 26 and 27 belong to none.
enum class EAxisCode
{
    PositionCommand,
    Acceleration,
    HomeReturnDirection,
    StartupSpeed,
    HomeLogic,
    NearHomeLogic,
    HomeSearch,
    LimitLogic,
    PulsarMultiple,
    AccelerationCurve,
    InputRotation,
    InputCount,
    InputMode,
    InputMultiple,
    OutputRotation,
    OutputMode,
    DividedMode,
    ClearTime
};

/// The bits of a field and the items of its combo box, whose positions are the field's values. A value without an item
/// is shown as the first one.
struct SAxisCodeField
{
    SWzdBits bits;
    CWzdChoices items;
};

const SAxisCodeField& AxisCodeField(EAxisCode field);

/// A field of the control code as a row of a dialog's exchange.
void WDX_AxisCode(CWzdExchange* wx, UINT combo, EAxisCode field, EUnselected unselected = kEndsTheCode);

// Fields that several operations have, in lists of the same ids. Without a selection they count as 0.
void WDX_HomeInputLogic(CWzdExchange* wx); ///< of the home and the near home input
void WDX_PulseOutput(CWzdExchange* wx);    ///< rotation, mode and division
