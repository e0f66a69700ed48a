// Whether comments are registered, in the dialogs that ask for it themselves.
#include "core/FunWizard.h"
#include "dialogs/base/WzdDlgBase.h"
#include "dialogs/base/WzdResults.h"

namespace
{

class CCommentsField : public CWzdField
{
public:
    using CWzdField::CWzdField;

    bool Open() override
    {
        m_dialog.CheckDlgButton(IDC_REGISTER_COMMENTS, m_dialog.Wizard().IsCmtRec() ? BST_CHECKED : BST_UNCHECKED);
        return true;
    }

    bool Collect(CWzdResults& results) override
    {
        results.SetCommentRecord(m_dialog.IsChecked(IDC_REGISTER_COMMENTS));
        return true;
    }
};

} // namespace

void WDX_RegisterComments(CWzdExchange* wx)
{
    CCommentsField field(wx->Dialog());
    wx->Declare(field);
}
