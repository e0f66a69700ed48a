// Which axis of which positioning unit the data table goes to, and the numbers of which its moves consist.
#include "core/Devices.h"
#include "core/FunWizard.h"
#include "core/Values.h"
#include "dialogs/base/WzdDlgBase.h"
#include "dialogs/base/WzdResults.h"
#include "dialogs/posunit/UnitRows.h"

namespace
{

// Where the areas of the axes lie in the unit's shared memory.
constexpr int kFirstAxisArea = 0x100;
constexpr int kAxisAreaSize = 0x10;
constexpr int kMostAxes = 4;

/// A whole number that becomes an operand; its range stands in the control after the edit.
class CUnitField : public CWzdField
{
public:
    using CWzdField::CWzdField;

    bool Open() override
    {
        int value;
        m_dialog.SetItemText(m_row.edit, Restore(value) ? FormatDecimal64(value) : CString());
        m_dialog.LimitText(m_row.edit, m_row.limit);
        ShowRange();
        return true;
    }

    void Clear() override { m_dialog.SetItemText(m_row.edit, ""); }

    bool Collect(CWzdResults& results) override
    {
        LONGLONG value;
        if (!m_dialog.ReadNumber(m_row.edit, m_row.range, m_row.message, value))
            return false;
        Store(results, static_cast<int>(value));
        return true;
    }

protected:
    virtual void ShowRange() const = 0;
    virtual bool Restore(int& value) const = 0;
    virtual void Store(CWzdResults& results, int value) const = 0;
};

class CSlotField : public CUnitField
{
public:
    using CUnitField::CUnitField;

protected:
    void ShowRange() const override { ShowSlotRange(m_dialog, m_row.edit); }

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
    CAxisField(CWzdDlgBase& dialog, const SWzdRow& row, int words, int areaOffset)
        : CUnitField(dialog, row), m_words(words), m_areaOffset(areaOffset)
    {
    }

protected:
    void ShowRange() const override { ShowAxisRange(m_dialog, m_row.edit); }

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
        results.SetOperand(kWordsOperand, kDeviceK, m_words);
        results.SetOperand(kAxisOperand, kDeviceH, kFirstAxisArea + (axis - 1) * kAxisAreaSize + m_areaOffset);
    }

private:
    int m_words;
    int m_areaOffset;
};

constexpr LONGLONG kFastest = 4000000;

void DeclareDoubleWord(CWzdExchange* wx, UINT edit, int offset, int limit, SWzdRange range, UINT message,
                       UINT comment = 0)
{
    WDX_Number(wx, {.edit = edit,
                    .entry = {offset, kTwoRegisters},
                    .limit = limit,
                    .range = range,
                    .message = message,
                    .comment = {.text = comment}});
}

} // namespace

void WDX_UnitAxis(CWzdExchange* wx, UINT slotEdit, UINT axisEdit, int words, int areaOffset)
{
    const CWzdDlgBase& dialog = wx->Dialog(); // The slot's message may outlast the wizard.
    WzdDeclare<CSlotField>(
        wx, {.edit = slotEdit, .limit = 2, .range = UnitSlotRange(dialog.Wizard()), .message = IDS_ERR_SLOT});
    WzdDeclare<CAxisField>(
        wx, {.edit = axisEdit, .limit = 1, .range = UnitAxisRange(dialog.Wizard()), .message = IDS_ERR_AXIS}, words,
        areaOffset);
}

void WDX_StartupSpeed(CWzdExchange* wx, UINT edit, int offset)
{
    DeclareDoubleWord(wx, edit, offset, 7, {0, kFastest}, IDS_ERR_STARTUP_SPEED);
}

void WDX_TargetSpeed(CWzdExchange* wx, UINT edit, int offset, UINT comment)
{
    DeclareDoubleWord(wx, edit, offset, 7, {1, kFastest}, IDS_ERR_TARGET_SPEED, comment);
}

void WDX_AccelerationTime(CWzdExchange* wx, UINT edit, int offset)
{
    DeclareDoubleWord(wx, edit, offset, 5, {0, 32767}, IDS_ERR_UNIT_ACCELERATION_TIME);
}

void WDX_Position(CWzdExchange* wx, UINT edit, int offset)
{
    DeclareDoubleWord(wx, edit, offset, 11, kAnyDoubleWord, IDS_ERR_POSITION_COMMAND);
}
