// Registers of the data table that the program fills: the dialog only tells where they are.
#include "core/FillText.h"
#include "dialogs/base/WzdDlgBase.h"

namespace
{

class CRegistersField : public CWzdField
{
public:
    CRegistersField(CWzdDlgBase& dialog, UINT label, UINT startEdit, SWzdFormat format, int offset, LONGLONG count,
                    bool span)
        : CWzdField(dialog), m_label(label), m_startEdit(startEdit), m_format(format), m_offset(offset), m_count(count),
          m_span(span)
    {
    }

    void Refresh() override
    {
        CString text;
        LONGLONG start;
        if (m_format.Parse(m_dialog.ItemText(m_startEdit), start))
        {
            const CString first = Name(start + m_offset);
            const CString last = Name(start + m_offset + m_count - 1);
            if (!m_span)
                text = first;
            else
                text = FillText(IDS_REGISTER_SPAN, {first, last});
            text = " " + text;
        }
        m_dialog.SetItemText(m_label, text);
    }

    SWzdFieldInfo Describe() const override
    {
        SWzdFieldInfo info;
        info.rangeLabel = m_label;
        info.offset = m_offset;
        info.registers = m_count;
        return info;
    }

private:
    static CString Name(LONGLONG number) { return FillText(IDS_DT_ADDRESS, {static_cast<int>(number)}); }

    UINT m_label;
    UINT m_startEdit;
    SWzdFormat m_format;
    int m_offset;
    LONGLONG m_count;
    bool m_span; // its last register is named too
};

} // namespace

void WDX_Register(CWzdExchange* wx, UINT label, UINT startEdit, SWzdFormat format, int offset)
{
    wx->Reserve(offset + 1);
    CRegistersField field(wx->Dialog(), label, startEdit, format, offset, 1, false);
    wx->Declare(field);
}

void WDX_Registers(CWzdExchange* wx, UINT label, UINT startEdit, SWzdFormat format, int offset, LONGLONG count)
{
    wx->Reserve(offset + count);
    CRegistersField field(wx->Dialog(), label, startEdit, format, offset, count, true);
    wx->Declare(field);
}
