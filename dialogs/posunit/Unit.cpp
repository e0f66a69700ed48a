// What is known of the positioning unit: slots, axes and relays.
#include "core/Devices.h"
#include "core/FunWizard.h"
#include "dialogs/base/WzdDlgBase.h"
#include "dialogs/posunit/UnitRows.h"

SWzdRange UnitAxisRange(const CFunWizard& wizard) { return {1, wizard.IsAxisType() ? 2 : 4}; }

SWzdRange UnitSlotRange(const CFunWizard& wizard) { return {0, wizard.GetMaxSlot() - 1}; }

void ShowAxisRange(CWzdDlgBase& dialog, UINT editId)
{
    CWzdDlgBase::ShowRange(dialog.ControlAfter(editId), UnitAxisRange(dialog.Wizard()));
}

void ShowSlotRange(CWzdDlgBase& dialog, UINT editId)
{
    CWzdDlgBase::ShowRange(dialog.ControlAfter(editId), UnitSlotRange(dialog.Wizard()));
}

int UnitBufferAddress(int slot, int axis) { return axis < 1 ? -1 : (axis + slot * 8 + 9) * 16; }

bool GetWordDeviceRange(const CFunWizard& wizard, short code, int& low, int& high)
{
    return (code == kDeviceY || code == kDeviceWY) && wizard.GetDevRange(-1, code, low, high) && high >= low;
}
