// A number of the data table, for the field kinds that differ from it in one point.
#pragma once

#include "dialogs/base/WzdField.h"
#include "dialogs/fields/Rows.h"

class CNumberField : public CWzdField
{
public:
    /// `record` of the wizard's data list restores the entry; CWzdExchange::kNoRecord when there is none.
    CNumberField(CWzdDlgBase& dialog, const SWzdRow& row, int record) : CWzdField(dialog, row), m_record(record) {}

    bool Open() override;
    void Refresh() override;
    bool FollowsEdit(UINT edit) const override { return edit == m_row.follows; }
    void Clear() override;
    bool Collect(CWzdResults& results) override;

protected:
    /// The value of the entry. False, with the message shown, when it is refused.
    [[nodiscard]] virtual bool Read(LONGLONG& value);
    /// Enables the edit and the label of its range.
    void EnableEntry(bool enabled);

private:
    int m_record;
};

/// Declares an entry of the kind TField as WDX_Number does.
template <class TField, class... TArguments>
void WzdDeclareNumber(CWzdExchange* wx, const SWzdRow& row, TArguments&&... arguments)
{
    const int record = row.check != 0 ? wx->AddOptionalEntry(row.entry) : wx->AddEntry(row.entry);
    WzdDeclare<TField>(wx, row, record, std::forward<TArguments>(arguments)...);
}
