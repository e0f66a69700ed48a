// Fields that are a device and its number: contacts, operands, and the start of a data table.
#include "core/Devices.h"
#include "core/FunWizard.h"
#include "core/Values.h"
#include "dialogs/base/WzdDlgBase.h"
#include "dialogs/base/WzdResults.h"
#include "dialogs/fields/Rows.h"

namespace
{

/// A combo box that lists devices, an edit for the number, and the label of the range.
class CDeviceField : public CWzdField
{
public:
    using CWzdField::CWzdField;

    bool Open() override
    {
        short code = -1;
        int number;
        const bool stored = Restore(code, number) && code >= 0;
        if (!m_dialog.FillDeviceCombo(m_row, code))
            return false;
        m_dialog.SetItemText(m_row.edit, stored ? CWzdDlgBase::FormatDevice(m_row, code, number) : CString());
        m_dialog.LimitText(m_row.edit, m_row.limit);
        return true;
    }

    std::optional<SWzdAccepted> AcceptedNumbers() const override { return m_dialog.AcceptedNumbers(m_row); }

    void Refresh() override
    {
        m_dialog.ShowDeviceRange(m_row);
        if (m_row.withoutInstruction == kLeftOut)
            for (const UINT id : {m_row.combo, m_row.edit, m_row.rangeLabel})
                m_dialog.Enable(id, !IsLeftOut());
    }

    void Clear() override
    {
        m_dialog.Select(m_row.combo, 0);
        m_dialog.SetItemText(m_row.edit, "");
    }

    bool Collect(CWzdResults& results) override
    {
        if (IsLeftOut())
        {
            LeaveOut(results);
            return true;
        }
        short code;
        int number;
        if (!m_dialog.ReadDevice(m_row, code, number))
            return false;
        Store(results, code, number);
        return true;
    }

protected:
    bool IsWithoutInstruction() const { return m_dialog.IsChecked(IDC_ONLY_DATA_TABLE); }
    bool IsLeftOut() const { return m_row.withoutInstruction == kLeftOut && IsWithoutInstruction(); }
    /// What the wizard's lists hold; false when they hold nothing.
    virtual bool Restore(short& code, int& number) const = 0;
    virtual void Store(CWzdResults& results, short code, int number) const = 0;
    /// Stores what stands for no device.
    virtual void LeaveOut(CWzdResults& results) const = 0;
};

class CContactField : public CDeviceField
{
public:
    using CDeviceField::CDeviceField;

    bool Collect(CWzdResults& results) override
    {
        if (m_row.withoutInstruction != kBestKnown || !IsWithoutInstruction())
            return CDeviceField::Collect(results);
        short code;
        int number;
        if (BestKnown(code, number))
            Store(results, code, number);
        return true;
    }

protected:
    bool Restore(short& code, int& number) const override
    {
        short kind;
        return m_dialog.Wizard().GetContInfo(m_row.position, kind, code, number);
    }

    void Store(CWzdResults& results, short code, int number) const override
    {
        results.AddContact(kInstContact, code, number);
    }

    void LeaveOut(CWzdResults&) const override {}

private:
    bool BestKnown(short& code, int& number) const
    {
        short kind;
        int high;
        return m_dialog.CheckDevice(m_row, code, number) == 0 ||
               m_dialog.GetSelectedDeviceRange(m_row.combo, kind, code, number, high);
    }
};

class CDeviceOperandField : public CDeviceField
{
public:
    using CDeviceField::CDeviceField;

    // The number of a device that is not listed is none of the one that is selected instead.
    bool Open() override
    {
        short stored, kind, selected;
        int number;
        if (!CDeviceField::Open())
            return false;
        if (Restore(stored, number) && m_dialog.GetSelectedDevice(static_cast<int>(m_row.combo), kind, selected) &&
            selected != stored)
            m_dialog.SetItemText(m_row.edit, "");
        return true;
    }

    bool Collect(CWzdResults& results) override
    {
        if (!CDeviceField::Collect(results))
            return false;
        m_dialog.AddComment(results, m_row);
        return true;
    }

protected:
    bool Restore(short& code, int& number) const override
    {
        return m_dialog.Wizard().GetOprdInfo(m_row.position, code, number);
    }

    void Store(CWzdResults& results, short code, int number) const override
    {
        results.SetOperand(m_row.position, code, number);
    }

    void LeaveOut(CWzdResults& results) const override { results.SetOperand(m_row.position, -1, -1); }
};

class CDeviceTableField : public CDeviceOperandField
{
public:
    using CDeviceOperandField::CDeviceOperandField;

    bool IsPossible() const override { return m_dialog.Selection(m_row.combo) >= 0; }

protected:
    void Store(CWzdResults& results, short code, int number) const override
    {
        CDeviceOperandField::Store(results, code, number);
        results.SetTableStart(code, number);
    }
};

} // namespace

void WDX_Contact(CWzdExchange* wx, const SWzdRow& row) { WzdDeclare<CContactField>(wx, row); }

void WDX_Contact(CWzdExchange* wx, UINT message)
{
    SWzdRow row = kStartingCondition;
    row.message = message;
    WDX_Contact(wx, row);
}

void WDX_DeviceOperand(CWzdExchange* wx, const SWzdRow& row) { WzdDeclare<CDeviceOperandField>(wx, row); }

void WDX_DeviceTable(CWzdExchange* wx, const SWzdRow& row)
{
    wx->SetTableStart({row.edit, row.format, row.position, true});
    WzdDeclare<CDeviceTableField>(wx, row);
}
