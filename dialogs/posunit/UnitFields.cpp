// Which axis of which positioning unit the data table goes to.
#include "core/Devices.h"
#include "core/FunWizard.h"
#include "core/Values.h"
#include "dialogs/base/WzdDlgBase.h"
#include "dialogs/base/WzdResults.h"

namespace
{

constexpr int kSlotLimit = 2;
constexpr int kAxisLimit = 1;

// Where the areas of the axes lie in the unit's shared memory.
constexpr int kFirstAxisArea = 0x100;
constexpr int kAxisAreaSize = 0x10;
constexpr int kMostAxes = 4;

/// A whole number that becomes an operand; its range stands in the control after the edit.
class CUnitField : public CWzdField
{
public:
    CUnitField(CWzdDlgBase& dialog, UINT edit, int limit, SWzdRange range, UINT message)
        : CWzdField(dialog), m_edit(edit), m_limit(limit), m_range(range), m_message(message)
    {
    }

    bool Open() override
    {
        int value;
        m_dialog.SetItemText(m_edit, Restore(value) ? FormatDecimal64(value) : CString());
        m_dialog.LimitText(m_edit, m_limit);
        CWzdDlgBase::ShowRange(m_dialog.ControlAfter(m_edit), m_range);
        return true;
    }

    void Clear() override { m_dialog.SetItemText(m_edit, ""); }

    bool Collect(CWzdResults& results) override
    {
        LONGLONG value;
        if (!m_dialog.ReadNumber(m_edit, m_range, m_message, value))
            return false;
        Store(results, static_cast<int>(value));
        return true;
    }

    SWzdFieldInfo Describe() const override
    {
        SWzdFieldInfo info;
        info.edit = m_edit;
        info.message = m_message;
        info.limit = m_limit;
        info.range = m_range;
        return info;
    }

protected:
    virtual bool Restore(int& value) const = 0;
    virtual void Store(CWzdResults& results, int value) const = 0;

private:
    UINT m_edit;
    int m_limit;
    SWzdRange m_range;
    UINT m_message;
};

class CSlotField : public CUnitField
{
public:
    CSlotField(CWzdDlgBase& dialog, UINT edit) : CUnitField(dialog, edit, kSlotLimit, dialog.SlotRange(), IDS_ERR_SLOT)
    {
    }

protected:
    bool Restore(int& slot) const override
    {
        short code;
        return m_dialog.Wizard().GetOprdInfo(kSlotOperand, code, slot) && code == kDeviceK;
    }

    void Store(CWzdResults& results, int slot) const override
    {
        results.Unit().slot = slot;
        results.SetOperand(kSlotOperand, kDeviceK, slot);
    }
};

class CAxisField : public CUnitField
{
public:
    CAxisField(CWzdDlgBase& dialog, UINT edit) : CUnitField(dialog, edit, kAxisLimit, dialog.AxisRange(), IDS_ERR_AXIS)
    {
    }

protected:
    bool Restore(int& axis) const override
    {
        short code;
        int address;
        if (!m_dialog.Wizard().GetOprdInfo(kAxisOperand, code, address) || code != kDeviceH ||
            address < kFirstAxisArea || address >= kFirstAxisArea + kMostAxes * kAxisAreaSize)
            return false;
        axis = (address - kFirstAxisArea) / kAxisAreaSize + 1;
        return true;
    }

    void Store(CWzdResults& results, int axis) const override
    {
        results.Unit().axis = axis;
        results.SetOperand(kWordsOperand, kDeviceK, static_cast<int>(m_dialog.TableWords()));
        results.SetOperand(kAxisOperand, kDeviceH, kFirstAxisArea + (axis - 1) * kAxisAreaSize);
    }
};

} // namespace

void WDX_UnitAxis(CWzdExchange* wx, UINT slotEdit, UINT axisEdit)
{
    CSlotField slot(wx->Dialog(), slotEdit);
    wx->Declare(slot);
    CAxisField axis(wx->Dialog(), axisEdit);
    wx->Declare(axis);
}
