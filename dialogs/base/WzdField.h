// What is done to every field alike.
#pragma once

#include "dialogs/base/WzdRow.h"

#include <optional>

class CWzdDlgBase;
class CWzdResults;

/// The numbers that an entry may be, and how they are written; units of the last decimal.
struct SWzdAccepted
{
    SWzdRange range;
    CString lowest;
    CString highest;
    int decimals = 0;
};

/// A field lives for the moment in which its dialog declares it; what it keeps between two such moments it keeps in the
/// controls.
class CWzdField
{
public:
    /// `row` outlives the field.
    CWzdField(CWzdDlgBase& dialog, const SWzdRow& row) : m_dialog(dialog), m_row(row) {}
    virtual ~CWzdField() = default;

    CWzdField(const CWzdField&) = delete;
    CWzdField& operator=(const CWzdField&) = delete;

    const SWzdRow& Describe() const { return m_row; }
    static SWzdAccepted NumbersOf(const SWzdRange& range, const SWzdFormat& format)
    {
        return {range, format.Format(range.low), format.Format(range.high), format.decimals};
    }

    /// Fills the controls and restores them from the wizard's lists. False when a list refused an item.
    [[nodiscard]] virtual bool Open() { return true; }
    /// Whether the PLC has what the field needs; without it the dialog can only be left again.
    virtual bool IsPossible() const { return true; }
    /// What the edit accepts as things stand; nothing when that is no range.
    virtual std::optional<SWzdAccepted> AcceptedNumbers() const
    {
        return m_row.range.low <= m_row.range.high ? std::optional(NumbersOf(m_row.range, m_row.format)) : std::nullopt;
    }
    /// Brings labels, limits and enabling into line with the other fields.
    virtual void Refresh() {}
    /// The user has selected, clicked or left the control; Refresh follows.
    virtual void OnChanged(UINT) {}
    /// Whether what is shown depends on the text of an edit: then leaving that edit is a change.
    virtual bool FollowsEdit(UINT) const { return false; }
    /// "Clear settings"; Refresh follows.
    virtual void Clear() {}
    /// Checks the entry and adds it to the results. False, with the message shown, when it is refused.
    [[nodiscard]] virtual bool Collect(CWzdResults&) { return true; }

protected:
    CWzdDlgBase& m_dialog;
    const SWzdRow& m_row;
};
