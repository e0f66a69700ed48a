#include "dialogs/process/GainField.h"

#include "dialogs/base/WzdDlgBase.h"
#include "dialogs/fields/NumberField.h"

namespace
{

class CGainField : public CNumberField
{
public:
    CGainField(CWzdDlgBase& dialog, const SWzdRow& row, int record, bool automatic)
        : CNumberField(dialog, row, record), m_automatic(automatic)
    {
    }

    // What is stored is shown as it is, whether auto-tuning found it or the user.
    bool Open() override
    {
        m_dialog.Enable(m_row.check, !m_automatic);
        return CNumberField::Open();
    }

    void OnChanged(UINT id) override
    {
        if (id == IDC_PID_AUTO_TUNING && WasAutomatic() != m_automatic)
            Switch();
    }

    void Refresh() override
    {
        CNumberField::Refresh();
        if (m_automatic)
            EnableEntry(false);
    }

protected:
    bool Read(LONGLONG& value) override
    {
        if (!m_automatic)
            return CNumberField::Read(value);
        if (!m_row.format.Parse(m_dialog.ItemText(m_row.edit), value) || !m_row.range.Holds(value))
            value = m_row.range.low;
        return true;
    }

private:
    // The check box remembers it: only a gain that is not automatic can be left out.
    bool WasAutomatic() const
    {
        const CWnd* check = m_dialog.GetDlgItem(m_row.check);
        return check != nullptr && !check->IsWindowEnabled();
    }

    void Switch()
    {
        m_dialog.Enable(m_row.check, !m_automatic);
        m_dialog.Check(m_row.check, m_automatic);
        if (m_automatic)
            m_dialog.SetItemText(m_row.edit, m_row.initial);
    }

    bool m_automatic;
};

} // namespace

void WDX_Gain(CWzdExchange* wx, const SWzdRow& row, bool automatic)
{
    WzdDeclareNumber<CGainField>(wx, row, automatic);
}
