// Numbers of the data table.
#include "dialogs/fields/NumberField.h"

#include "core/Devices.h"
#include "core/FunWizard.h"
#include "core/Values.h"
#include "dialogs/base/WzdDlgBase.h"
#include "dialogs/base/WzdResults.h"

bool CNumberField::Open()
{
    const CFunWizard& wizard = m_dialog.Wizard();
    SFunSetData data;
    const bool stored = wizard.GetDataInfo(m_record, &data);
    m_dialog.SetItemText(m_row.edit, stored ? m_row.format.Format(data.value) : CString(m_row.initial));
    if (m_row.check != 0)
        m_dialog.Check(m_row.check, stored || (m_row.used && wizard.GetDataInfoCount() == 0));
    return true;
}

void CNumberField::Refresh()
{
    m_dialog.LimitText(m_row.edit, m_row.limit);
    m_dialog.TakeDigitsOnly(m_row.edit, m_row.digitsOnly);
    if (m_row.rangeLabel != 0)
        CWzdDlgBase::ShowRange(m_dialog.GetDlgItem(m_row.rangeLabel), m_row.shown.value_or(m_row.range));
    if (m_row.check != 0)
        EnableEntry(m_dialog.IsChecked(m_row.check));
}

void CNumberField::Clear() { m_dialog.SetItemText(m_row.edit, ""); }

bool CNumberField::Collect(CWzdResults& results)
{
    if (m_row.check != 0 && !m_dialog.IsChecked(m_row.check))
        return true;
    LONGLONG value;
    if (!Read(value))
        return false;
    results.AddData(m_row.entry, kDecimalConstant, static_cast<LONG>(value));
    m_dialog.AddComment(results, m_row);
    return true;
}

bool CNumberField::Read(LONGLONG& value)
{
    return m_dialog.ReadNumber(m_row.edit, m_row.range, m_row.message, value, m_row.format);
}

void CNumberField::EnableEntry(bool enabled)
{
    m_dialog.Enable(m_row.edit, enabled);
    if (CWnd* range = m_dialog.ControlAfter(m_row.edit))
        range->EnableWindow(enabled);
}

namespace
{

class CConstantField : public CWzdField
{
public:
    CConstantField(CWzdDlgBase& dialog, const SWzdRow& row, LONG value) : CWzdField(dialog, row), m_value(value) {}

    bool Collect(CWzdResults& results) override
    {
        results.AddData(m_row.entry, kDecimalConstant, m_value);
        return true;
    }

private:
    LONG m_value;
};

} // namespace

void WDX_Number(CWzdExchange* wx, const SWzdRow& row) { WzdDeclareNumber<CNumberField>(wx, row); }

void WDX_Constant(CWzdExchange* wx, const SWzdEntry& entry, LONG value)
{
    wx->AddEntry(entry);
    WzdDeclare<CConstantField>(wx, {.entry = entry}, value);
}
