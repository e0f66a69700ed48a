// Labels that follow what is entered and selected elsewhere.
#include "core/FillText.h"
#include "dialogs/base/WzdDlgBase.h"
#include "dialogs/fields/Rows.h"

namespace
{

class CLabelField : public CWzdField
{
public:
    CLabelField(CWzdDlgBase& dialog, const SWzdRow& row, UINT text, std::initializer_list<CGapValue> values)
        : CWzdField(dialog, row), m_text(text), m_values(values)
    {
    }

    void Refresh() override { m_dialog.SetItemText(m_row.rangeLabel, FillText(m_text, m_values)); }

private:
    UINT m_text;
    std::initializer_list<CGapValue> m_values; // of the declaration, which the field does not outlive
};

/// The names of registers that the program fills: the dialog only tells where they are.
class CRegisterField : public CWzdField
{
public:
    CRegisterField(CWzdDlgBase& dialog, const SWzdRow& row, const SWzdTableStart& start, bool span, bool inRange)
        : CWzdField(dialog, row), m_start(start), m_span(span), m_inRange(inRange)
    {
    }

    void Refresh() override
    {
        LONGLONG start;
        const CString text = m_dialog.ItemText(m_start.edit);
        const bool known =
            m_inRange ? kUnsigned.Parse(text, start) && Accepts(start) : m_start.format.Parse(text, start);
        m_dialog.SetItemText(m_row.rangeLabel, known ? Text(start) : CString());
    }

    bool FollowsEdit(UINT edit) const override { return edit == m_start.edit; }

private:
    bool Accepts(LONGLONG start) const
    {
        int low, high;
        return m_dialog.GetDataTableRange(low, high) && start >= low && start <= high;
    }

    CString Text(LONGLONG start) const
    {
        const CString first = Name(start + m_row.entry.offset);
        if (!m_span)
            return " " + first;
        const CString last = Name(start + m_row.entry.End() - 1);
        return " " + FillText(IDS_REGISTER_SPAN, {first, last});
    }

    static CString Name(LONGLONG number) { return FillText(IDS_DT_ADDRESS, {number}); }

    SWzdTableStart m_start;
    bool m_span; // the last register is named too
    bool m_inRange;
};

void DeclareRegisters(CWzdExchange* wx, UINT label, const SWzdEntry& entry, bool span, bool inRange)
{
    ASSERT(wx->TableStart().edit != 0);
    wx->Reserve(entry);
    WzdDeclare<CRegisterField>(wx, {.entry = entry, .rangeLabel = label}, wx->TableStart(), span, inRange);
}

} // namespace

void WDX_Label(CWzdExchange* wx, UINT label, UINT text, std::initializer_list<CGapValue> values)
{
    WzdDeclare<CLabelField>(wx, {.rangeLabel = label}, text, values);
}

void WDX_Register(CWzdExchange* wx, UINT label, const SWzdEntry& entry, bool inRange)
{
    DeclareRegisters(wx, label, entry, false, inRange);
}

void WDX_RegisterSpan(CWzdExchange* wx, UINT label, const SWzdEntry& entry)
{
    DeclareRegisters(wx, label, entry, true, false);
}
