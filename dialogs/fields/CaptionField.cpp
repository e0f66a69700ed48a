// The caption of a dialog whose template serves several operations.
#include "dialogs/base/WzdDlgBase.h"
#include "dialogs/fields/Rows.h"

namespace
{

class CCaptionField : public CWzdField
{
public:
    CCaptionField(CWzdDlgBase& dialog, const SWzdRow& row, UINT text) : CWzdField(dialog, row), m_text(text) {}

    bool Open() override
    {
        CString text;
        if (m_text != 0 && text.LoadString(m_text))
            m_dialog.SetWindowText(text);
        return true;
    }

private:
    UINT m_text;
};

} // namespace

void WDX_Caption(CWzdExchange* wx, UINT text) { WzdDeclare<CCaptionField>(wx, {}, text); }
