#include "dialogs/process/DifferentialField.h"

#include "core/FunWizard.h"
#include "dialogs/base/WzdResults.h"

namespace
{

class CDifferentialField : public CWzdField
{
public:
    using CWzdField::CWzdField;

    bool Open() override
    {
        constexpr int kBehindTheContact = 1;
        short kind, code;
        int number;
        const bool stored = m_dialog.Wizard().GetContInfo(kBehindTheContact, kind, code, number);
        m_dialog.Check(m_row.check, stored && kind == kInstDifferential);
        return true;
    }

    void Refresh() override { m_dialog.Enable(m_row.check, !IsWithoutInstruction()); }

    bool Collect(CWzdResults& results) override
    {
        if (m_dialog.IsChecked(m_row.check) && !IsWithoutInstruction())
            results.AddContact(kInstDifferential, -1, 0);
        return true;
    }

private:
    bool IsWithoutInstruction() const { return m_dialog.IsChecked(IDC_ONLY_DATA_TABLE); }
};

} // namespace

void WDX_Differential(CWzdExchange* wx, UINT check) { WzdDeclare<CDifferentialField>(wx, {.check = check}); }
