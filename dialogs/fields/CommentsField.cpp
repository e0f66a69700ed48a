// Whether comments are registered, in the dialogs that ask for it themselves, and comments that stand alone.
#include "core/FunWizard.h"
#include "dialogs/base/WzdDlgBase.h"
#include "dialogs/base/WzdResults.h"
#include "dialogs/fields/Rows.h"

namespace
{

class CCommentsField : public CWzdField
{
public:
    CCommentsField(CWzdDlgBase& dialog, const SWzdRow& row, ECommentFlag when) : CWzdField(dialog, row), m_when(when) {}

    bool Open() override
    {
        m_dialog.Check(IDC_REGISTER_COMMENTS, m_dialog.Wizard().IsCmtRec());
        return true;
    }

    bool Collect(CWzdResults& results) override
    {
        results.SetCommentRecord(m_dialog.IsChecked(IDC_REGISTER_COMMENTS), m_when);
        return true;
    }

private:
    ECommentFlag m_when;
};

class CCommentField : public CWzdField
{
public:
    using CWzdField::CWzdField;

    bool Collect(CWzdResults& results) override
    {
        m_dialog.AddComment(results, m_row);
        return true;
    }
};

} // namespace

void WDX_RegisterComments(CWzdExchange* wx, ECommentFlag when) { WzdDeclare<CCommentsField>(wx, {}, when); }

void WDX_Comment(CWzdExchange* wx, const SWzdRow& row) { WzdDeclare<CCommentField>(wx, row); }
