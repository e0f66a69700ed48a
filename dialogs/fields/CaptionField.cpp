// The caption of a dialog whose template serves several operations.
#include "dialogs/base/WzdDlgBase.h"

namespace
{

class CCaptionField : public CWzdField
{
public:
    CCaptionField(CWzdDlgBase& dialog, UINT text) : CWzdField(dialog), m_text(text) {}

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

void WDX_Caption(CWzdExchange* wx, UINT text)
{
    CCaptionField field(wx->Dialog(), text);
    wx->Declare(field);
}
