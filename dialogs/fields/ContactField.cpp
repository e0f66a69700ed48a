// A contact of the starting condition.
#include "core/Devices.h"
#include "core/FunWizard.h"
#include "core/Values.h"
#include "dialogs/base/WzdDlgBase.h"
#include "dialogs/base/WzdResults.h"

namespace
{

constexpr int kNumberLimit = 4;

class CContactField : public CWzdField
{
public:
    CContactField(CWzdDlgBase& dialog, const SWzdContactIds& ids, UINT message)
        : CWzdField(dialog), m_ids(ids), m_message(message)
    {
    }

    bool Open() override
    {
        if (!m_dialog.FillContactCombo(m_ids.combo, m_ids.index))
            return false;
        short kind, code;
        int number;
        const bool stored = m_dialog.Wizard().GetContInfo(m_ids.index, kind, code, number);
        m_dialog.SetItemText(m_ids.edit, stored ? FormatDeviceNumber(code, number) : CString());
        m_dialog.LimitText(m_ids.edit, kNumberLimit);
        return true;
    }

    void Refresh() override { m_dialog.ShowContactRange(m_ids.combo, m_ids.rangeLabel); }

    void Clear() override
    {
        m_dialog.Select(m_ids.combo, 0);
        m_dialog.SetItemText(m_ids.edit, "");
    }

    bool Collect(CWzdResults& results) override
    {
        short code;
        int number;
        if (!m_dialog.ReadContact(m_ids.combo, m_ids.edit, m_message, code, number))
            return false;
        results.AddContact(kInstContact, code, number);
        return true;
    }

    SWzdFieldInfo Describe() const override
    {
        SWzdFieldInfo info;
        info.combo = m_ids.combo;
        info.edit = m_ids.edit;
        info.rangeLabel = m_ids.rangeLabel;
        info.message = m_message;
        info.limit = kNumberLimit;
        return info;
    }

private:
    SWzdContactIds m_ids;
    UINT m_message;
};

} // namespace

void WDX_Contact(CWzdExchange* wx, UINT message, const SWzdContactIds& ids)
{
    CContactField field(wx->Dialog(), ids, message);
    wx->Declare(field);
}
