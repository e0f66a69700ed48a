// What the dialogs of the positioning unit have in common: rows, and what they know of the unit.
#pragma once

#include "dialogs/fields/Rows.h"
#include "dialogs/posunit/AxisCode.h"

class CFunWizard;

/// The operands of the instruction that transfers the data table to the unit.
enum EUnitOperand
{
    kSlotOperand,
    kTableOperand,
    kWordsOperand,
    kAxisOperand
};

/// The slot of the unit and its axis; the range of each stands in the control after its edit. `words` of the data table
/// are transferred, to the address `areaOffset` in the area of the axis.
void WDX_UnitAxis(CWzdExchange* wx, UINT slotEdit, UINT axisEdit, int words, int areaOffset = 0);

// Entries of the data table, each of two registers, by their offset: speeds in pulses a second, milliseconds, pulses.
// Their comments are their labels, or `comment`.
void WDX_StartupSpeed(CWzdExchange* wx, UINT edit, int offset);
void WDX_TargetSpeed(CWzdExchange* wx, UINT edit, int offset, UINT comment = 0);
void WDX_AccelerationTime(CWzdExchange* wx, UINT edit, int offset);
void WDX_Position(CWzdExchange* wx, UINT edit, int offset);

/// The start output and the second condition that switches it on, in templates that carry them. `startBit` is the relay
/// of the axis that the output starts.
void WDX_StartOutput(CWzdExchange* wx, int startBit);

/// The direction of a JOG operation, in templates that carry it.
void WDX_JogDirection(CWzdExchange* wx);

// ---- The unit -------------------------------------------------------------------------------------------------------

/// The axes of the unit, and the slots in which it can be.
SWzdRange UnitAxisRange(const CFunWizard& wizard);
SWzdRange UnitSlotRange(const CFunWizard& wizard);
/// Shows the axes of the unit in the control after `editId`.
void ShowAxisRange(CWzdDlgBase& dialog, UINT editId);
/// Shows the slots in the control after `editId`.
void ShowSlotRange(CWzdDlgBase& dialog, UINT editId);

/// The first relay of an axis of the unit in a slot; -1 when `axis` is below 1.
int UnitBufferAddress(int slot, int axis);

/// The range of the devices Y and WY; false for any other device or without a range.
bool GetWordDeviceRange(const CFunWizard& wizard, short code, int& low, int& high);

/// Fills the combo of the JOG direction and selects the direction of the start output that the contact list ends in:
/// the second one runs from relays whose number ends in 4. False when the list refuses an item.
[[nodiscard]] bool FillJogDirectionCombo(CWzdDlgBase& dialog);
