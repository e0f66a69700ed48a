// Numeric entries of the data table.
#include "core/Devices.h"
#include "core/FunWizard.h"
#include "core/Values.h"
#include "dialogs/base/WzdDlgBase.h"
#include "dialogs/base/WzdResults.h"

namespace
{

class CNumberField : public CWzdField
{
public:
    CNumberField(CWzdDlgBase& dialog, UINT edit, SWzdEntry entry, int record, int limit, SWzdRange range, UINT message,
                 UINT rangeLabel)
        : CWzdField(dialog), m_edit(edit), m_entry(entry), m_record(record), m_limit(limit), m_range(range),
          m_message(message), m_rangeLabel(rangeLabel)
    {
    }

    bool Open() override
    {
        SFunSetData data;
        const bool stored = m_dialog.Wizard().GetDataInfo(m_record, &data) && data.code == kDeviceDT;
        m_dialog.SetItemText(m_edit, stored ? FormatDecimal64(data.value) : CString());
        m_dialog.LimitText(m_edit, m_limit);
        return true;
    }

    void Refresh() override
    {
        if (m_rangeLabel != 0)
            CWzdDlgBase::ShowRange(m_dialog.GetDlgItem(m_rangeLabel), m_range);
    }

    void Clear() override { m_dialog.SetItemText(m_edit, ""); }

    bool Collect(CWzdResults& results) override
    {
        LONGLONG value;
        if (!m_dialog.ReadNumber(m_edit, m_range, m_message, value))
            return false;
        results.AddData(m_entry, kDecimalConstant, static_cast<LONG>(value));
        results.AddCommentFrom(m_dialog.ControlBefore(m_edit));
        return true;
    }

    SWzdFieldInfo Describe() const override
    {
        SWzdFieldInfo info;
        info.edit = m_edit;
        info.rangeLabel = m_rangeLabel;
        info.message = m_message;
        info.limit = m_limit;
        info.range = m_range;
        info.offset = m_entry.offset;
        info.registers = m_entry.Registers();
        return info;
    }

private:
    UINT m_edit;
    SWzdEntry m_entry;
    int m_record;
    int m_limit;
    SWzdRange m_range;
    UINT m_message;
    UINT m_rangeLabel;
};

class CConstantField : public CWzdField
{
public:
    CConstantField(CWzdDlgBase& dialog, SWzdEntry entry, LONG value) : CWzdField(dialog), m_entry(entry), m_value(value)
    {
    }

    bool Collect(CWzdResults& results) override
    {
        results.AddData(m_entry, kDecimalConstant, m_value);
        return true;
    }

    SWzdFieldInfo Describe() const override
    {
        SWzdFieldInfo info;
        info.offset = m_entry.offset;
        info.registers = m_entry.Registers();
        return info;
    }

private:
    SWzdEntry m_entry;
    LONG m_value;
};

} // namespace

void WDX_Number(CWzdExchange* wx, UINT edit, SWzdEntry entry, int limit, SWzdRange range, UINT message, UINT rangeLabel)
{
    CNumberField field(wx->Dialog(), edit, entry, wx->AddEntry(entry), limit, range, message, rangeLabel);
    wx->Declare(field);
}

void WDX_Constant(CWzdExchange* wx, SWzdEntry entry, LONG value)
{
    wx->AddEntry(entry);
    CConstantField field(wx->Dialog(), entry, value);
    wx->Declare(field);
}
