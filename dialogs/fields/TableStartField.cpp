// The register at which the data table starts.
#include "core/Devices.h"
#include "core/FunWizard.h"
#include "core/Values.h"
#include "dialogs/base/WzdDlgBase.h"
#include "dialogs/base/WzdResults.h"

namespace
{

class CTableStartField : public CWzdField
{
public:
    CTableStartField(CWzdDlgBase& dialog, UINT edit, UINT rangeLabel, int operand, SWzdFormat format)
        : CWzdField(dialog), m_edit(edit), m_rangeLabel(rangeLabel), m_operand(operand), m_format(format)
    {
    }

    bool Open() override
    {
        short code;
        int number;
        const bool stored = m_dialog.Wizard().GetOprdInfo(m_operand, code, number) && code == kDeviceDT;
        m_dialog.SetItemText(m_edit, stored ? FormatDecimal64(number) : CString());
        int low, high;
        const bool available = m_dialog.GetDataTableRange(low, high);
        m_dialog.LimitText(m_edit, available ? FormatDecimal64(high).GetLength() : 0);
        return true;
    }

    void Refresh() override { m_dialog.ShowDataTableRange(m_rangeLabel); }

    void Clear() override { m_dialog.SetItemText(m_edit, ""); }

    bool Collect(CWzdResults& results) override
    {
        int low, high;
        LONGLONG start;
        if (!m_dialog.GetDataTableRange(low, high))
            return m_dialog.Refuse(m_edit, IDS_ERR_TABLE_START);
        if (!m_dialog.ReadNumber(m_edit, {low, high}, IDS_ERR_TABLE_START, start, m_format))
            return false;
        results.SetOperand(m_operand, kDeviceDT, static_cast<int>(start));
        results.SetTableStart(static_cast<int>(start));
        return true;
    }

    SWzdFieldInfo Describe() const override
    {
        SWzdFieldInfo info;
        info.edit = m_edit;
        info.rangeLabel = m_rangeLabel;
        info.message = IDS_ERR_TABLE_START;
        return info;
    }

private:
    UINT m_edit;
    UINT m_rangeLabel;
    int m_operand;
    SWzdFormat m_format;
};

} // namespace

void WDX_TableStart(CWzdExchange* wx, UINT edit, UINT rangeLabel, int operand, SWzdFormat format)
{
    CTableStartField field(wx->Dialog(), edit, rangeLabel, operand, format);
    wx->Declare(field);
}
