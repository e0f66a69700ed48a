// An entry of the data table that the user may leave out.
#include "core/Devices.h"
#include "core/FunWizard.h"
#include "dialogs/base/WzdDlgBase.h"
#include "dialogs/base/WzdResults.h"

namespace
{

class CParameterField : public CWzdField
{
public:
    CParameterField(CWzdDlgBase& dialog, const SWzdParameter& parameter, int& storedRecord)
        : CWzdField(dialog), m_parameter(parameter), m_storedRecord(storedRecord)
    {
    }

    // As entries may have been left out, each is known by its register.
    bool Open() override
    {
        const CFunWizard& wizard = m_dialog.Wizard();
        SFunSetData data;
        const bool found = wizard.GetDataInfo(m_storedRecord, &data) && data.code == kDeviceDT &&
                           data.number == m_dialog.StoredTableStart() + m_parameter.offset;
        if (found)
            m_storedRecord++;
        m_dialog.SetItemText(m_parameter.edit,
                             found ? m_parameter.format.Format(data.value) : CString(m_parameter.initial));
        const bool used = found || (m_parameter.used && wizard.GetDataInfoCount() == 0);
        m_dialog.CheckDlgButton(m_parameter.check, used ? BST_CHECKED : BST_UNCHECKED);
        m_dialog.LimitText(m_parameter.edit, m_parameter.limit);
        return true;
    }

    void Refresh() override
    {
        m_dialog.Enable(m_parameter.check, !m_parameter.automatic);
        const bool wanted = !m_parameter.automatic && m_dialog.IsChecked(m_parameter.check);
        m_dialog.Enable(m_parameter.edit, wanted);
        if (CWnd* range = m_dialog.ControlAfter(m_parameter.edit))
            range->EnableWindow(wanted);
    }

    bool Collect(CWzdResults& results) override
    {
        if (!m_dialog.IsChecked(m_parameter.check))
            return true;
        LONGLONG value;
        if (!Read(value))
            return false;
        results.AddData(Entry(), kDecimalConstant, static_cast<LONG>(value));
        results.AddCommentFrom(m_dialog.GetDlgItem(m_parameter.check));
        return true;
    }

    SWzdFieldInfo Describe() const override
    {
        SWzdFieldInfo info;
        info.edit = m_parameter.edit;
        info.message = m_parameter.message;
        info.limit = m_parameter.limit;
        info.range = m_parameter.range;
        info.offset = m_parameter.offset;
        info.registers = Entry().Registers();
        info.check = m_parameter.check;
        info.format = m_parameter.format;
        return info;
    }

private:
    SWzdEntry Entry() const { return {m_parameter.offset, kOneRegister}; }

    bool Read(LONGLONG& value)
    {
        if (!m_parameter.automatic)
            return m_dialog.ReadNumber(m_parameter.edit, m_parameter.range, m_parameter.message, value,
                                       m_parameter.format);
        if (!m_parameter.format.Parse(m_dialog.ItemText(m_parameter.edit), value) || !m_parameter.range.Holds(value))
            value = m_parameter.range.low;
        return true;
    }

    SWzdParameter m_parameter;
    int& m_storedRecord;
};

} // namespace

void WDX_Parameter(CWzdExchange* wx, const SWzdParameter& parameter)
{
    wx->Reserve(parameter.offset + 1);
    CParameterField field(wx->Dialog(), parameter, wx->StoredRecord());
    wx->Declare(field);
}
