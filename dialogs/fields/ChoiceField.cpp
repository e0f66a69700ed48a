#include "dialogs/fields/ChoiceField.h"

#include "core/Devices.h"
#include "core/FunWizard.h"
#include "dialogs/base/WzdDlgBase.h"
#include "dialogs/base/WzdResults.h"
#include "dialogs/fields/Rows.h"

bool CChoiceField::Open() { return m_dialog.FillCombo(m_row.combo, m_row.choices, StoredIndex()); }

void CChoiceField::OnChanged(UINT id)
{
    if (std::find(m_row.refilledBy.begin(), m_row.refilledBy.end(), id) != m_row.refilledBy.end())
        Refill();
}

// What a list depends on has been cleared, too.
void CChoiceField::Clear()
{
    if (m_row.refilledBy.empty())
        m_dialog.Select(m_row.combo, 0);
    else
        Refill();
}

// An item that the list refuses now is missing; nothing more can be done about it than that the user sees it.
void CChoiceField::Refill() { static_cast<void>(m_dialog.FillCombo(m_row.combo, m_row.choices)); }

std::optional<DWORD> CChoiceField::SelectedCode() const
{
    const int selection = m_dialog.Selection(m_row.combo);
    if (selection < 0 || selection >= static_cast<int>(m_row.choices.size()))
        return std::nullopt;
    return m_row.choices[static_cast<size_t>(selection)].code;
}

bool CConstantChoiceField::Collect(CWzdResults& results)
{
    results.SetOperand(m_row.position, kDeviceK, static_cast<int>(SelectedCode().value_or(0)));
    return true;
}

int CConstantChoiceField::StoredIndex() const
{
    short code;
    int value;
    const bool stored = m_dialog.Wizard().GetOprdInfo(m_row.position, code, value);
    return stored && (code == kDeviceK || code == kDeviceH) ? IndexOfCode(m_row.choices, static_cast<DWORD>(value))
                                                            : -1;
}

void WDX_ConstantChoice(CWzdExchange* wx, const SWzdRow& row) { WzdDeclare<CConstantChoiceField>(wx, row); }
