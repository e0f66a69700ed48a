// The control code and its fields.
#include "core/FunWizard.h"
#include "dialogs/base/WzdDlgBase.h"
#include "dialogs/base/WzdResults.h"
#include "dialogs/fields/ChoiceField.h"
#include "dialogs/fields/Rows.h"

namespace
{

class CCodeField : public CChoiceField
{
public:
    using CChoiceField::CChoiceField;

    bool Collect(CWzdResults& results) override
    {
        if (const auto code = SelectedCode())
            results.AddToControlCode(m_row.bits.Place(*code));
        else if (m_row.unselected == kEndsTheCode)
            results.EndControlCode();
        return true;
    }

protected:
    int StoredIndex() const override
    {
        const auto stored = m_dialog.StoredControlCode();
        if (!stored)
            return 0;
        const DWORD code = m_row.bits.Extract(*stored);
        return std::max(IndexOfCode(m_row.choices, code), IndexOfCode(m_row.alsoRestores, code));
    }
};

class CControlCodeField : public CWzdField
{
public:
    CControlCodeField(CWzdDlgBase& dialog, const SWzdRow& row, EConstantFormat format, const CWnd* commentLabel)
        : CWzdField(dialog, row), m_format(format), m_commentLabel(commentLabel)
    {
    }

    bool Collect(CWzdResults& results) override
    {
        results.AddControlCode(m_row.entry, m_format);
        if (m_commentLabel != nullptr)
            results.AddCommentFrom(m_commentLabel);
        else
            m_dialog.AddComment(results, m_row);
        return true;
    }

private:
    EConstantFormat m_format;
    const CWnd* m_commentLabel;
};

} // namespace

void WDX_ControlCode(CWzdExchange* wx, EDataType type, EConstantFormat format, const CWnd* commentLabel)
{
    const SWzdRow row = {.entry = {0, type}, .comment = {.text = IDS_CONTROL_CODE}};
    wx->AddEntry(row.entry);
    WzdDeclare<CControlCodeField>(wx, row, format, commentLabel);
}

void WDX_Code(CWzdExchange* wx, const SWzdRow& row) { WzdDeclare<CCodeField>(wx, row); }

void WDX_Code(CWzdExchange* wx, UINT combo, SWzdBits bits, bool second, CWzdChoices choices, CWzdChoices secondChoices)
{
    WDX_Code(wx, {.combo = combo,
                  .choices = second ? secondChoices : choices,
                  .alsoRestores = second ? choices : secondChoices,
                  .bits = bits});
}
