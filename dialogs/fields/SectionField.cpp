// Rows that count only at times, and the controls that come and go with them.
#include "dialogs/base/Compaction.h"
#include "dialogs/base/WzdDlgBase.h"
#include "dialogs/fields/Rows.h"

namespace
{

class CSectionField : public CWzdField
{
public:
    CSectionField(CWzdDlgBase& dialog, const SWzdRow& row, bool active, CWnd* first, const CWnd* last)
        : CWzdField(dialog, row), m_active(active), m_first(first), m_last(last)
    {
    }

    void Refresh() override { ShowControls(m_first, m_last, m_active); }

private:
    bool m_active;
    CWnd* m_first;
    const CWnd* m_last;
};

} // namespace

CWzdSection::CWzdSection(CWzdExchange* wx, bool active, CWnd* first, UINT last)
    : CWzdSection(wx, active, first, wx->Dialog().GetDlgItem(last))
{
}

CWzdSection::CWzdSection(CWzdExchange* wx, bool active, CWnd* first, const CWnd* last)
    : m_exchange(*wx), m_outerActive(wx->IsActive())
{
    if (first != nullptr)
        WzdDeclare<CSectionField>(wx, {}, active && m_outerActive, first, last);
    wx->SetActive(active && m_outerActive);
}
