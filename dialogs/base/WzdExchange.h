// The exchange of a dialog's fields, in the manner of MFC's DoDataExchange: the dialog lists its fields once, in the
// order in which they are checked and stored, and every walk - open, refresh, clear, collect - goes through that list.
//
//     void CSomeDlg::DoFieldExchange(CWzdExchange* wx)
//     {
//         WDX_Contact(wx);
//         WDX_TableStart(wx, {.edit = IDC_SOME_START, .rangeLabel = IDC_SOME_START_RANGE});
//         ...
//     }
//
// The list only declares. It may depend on what the controls hold at the moment: a walk sees the fields that count now.
#pragma once

#include "dialogs/base/WzdField.h"

#include <algorithm>
#include <utility>

/// Where the start of the data table is entered, and which operand it is.
struct SWzdTableStart
{
    UINT edit = 0;
    SWzdFormat format = kSigned;
    int operand = 0;
    bool anyDevice = false; ///< not DT alone
};

class CWzdExchange
{
public:
    static constexpr int kNoRecord = -1;

    explicit CWzdExchange(CWzdDlgBase& dialog) : m_dialog(dialog) {}
    virtual ~CWzdExchange() = default;

    CWzdExchange(const CWzdExchange&) = delete;
    CWzdExchange& operator=(const CWzdExchange&) = delete;

    CWzdDlgBase& Dialog() const { return m_dialog; }

    // ---- The data table ---------------------------------------------------------------------------------------------

    /// Declares an entry of the data table. Returns the record of the wizard's data list that restores it: each entry
    /// takes the record behind that of the entry before, as long as it is of the table's device.
    int AddEntry(const SWzdEntry& entry);
    /// The same for an entry that may have been left out: it takes the next record only if that is of its register.
    int AddOptionalEntry(const SWzdEntry& entry);
    /// The data table reaches as far as `entry`.
    void Reserve(const SWzdEntry& entry) { m_tableWords = std::max(m_tableWords, m_active ? entry.End() : 0); }
    LONGLONG TableWords() const { return m_tableWords; }

    /// Declares where the table's start is entered; before, it is a register DT.
    void SetTableStart(const SWzdTableStart& start) { m_tableStart = start; }
    const SWzdTableStart& TableStart() const { return m_tableStart; }

    // ---- The walk ---------------------------------------------------------------------------------------------------

    /// Hands a declared field to the walk. After the first failure the remaining fields are passed over.
    void Declare(CWzdField& field);
    bool Succeeded() const { return m_succeeded; }

    /// Whether the fields that are declared now count; returns what was set before.
    bool SetActive(bool active) { return std::exchange(m_active, active); }
    bool IsActive() const { return m_active; }

protected:
    virtual bool Visit(CWzdField& field) = 0;
    /// Whether the walk comes to fields that do not count.
    virtual bool VisitsInactive() const { return false; }

private:
    /// The device and number of the stored table; DT without one.
    SOperand StoredTable() const;
    /// Whether a record of the data list is of the stored table's device, and which register it holds.
    bool IsOfTable(int record, int& number) const;

    CWzdDlgBase& m_dialog;
    int m_nextRecord = 0;
    LONGLONG m_tableWords = 1;
    SWzdTableStart m_tableStart;
    bool m_active = true;
    bool m_succeeded = true;
};

/// Declares a field of a kind: what the WDX_ functions do.
template <class TField, class... TArguments>
void WzdDeclare(CWzdExchange* wx, const SWzdRow& row, TArguments&&... arguments)
{
    TField field(wx->Dialog(), row, std::forward<TArguments>(arguments)...);
    wx->Declare(field);
}

/// A walk that does the same thing, a function of the field that returns whether to go on, to every field.
template <typename TAction>
class CWzdWalk : public CWzdExchange
{
public:
    CWzdWalk(CWzdDlgBase& dialog, bool visitsInactive, TAction action)
        : CWzdExchange(dialog), m_visitsInactive(visitsInactive), m_action(action)
    {
    }

protected:
    bool Visit(CWzdField& field) override { return m_action(field); }
    bool VisitsInactive() const override { return m_visitsInactive; }

private:
    bool m_visitsInactive;
    TAction m_action;
};
