#include "dialogs/fields/ChoiceField.h"

#include "dialogs/base/WzdDlgBase.h"

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
