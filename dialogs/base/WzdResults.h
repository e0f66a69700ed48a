// The results of a dialog whose entries have all been accepted.
#pragma once

#include "dialogs/base/WzdField.h"

#include <optional>
#include <vector>

class CFunWizard;

/// An axis of a positioning unit, from 1, and the slot of the unit.
struct SWzdUnitAxis
{
    int slot = 0;
    int axis = 0;
};

/// Collects what the fields contribute and then replaces the wizard's lists as a whole. Running out of memory while
/// collecting throws; the wizard's lists are not touched by then.
class CWzdResults
{
public:
    void AddContact(short kind, short code, int number);
    /// Operands are numbered: the order in which fields are checked need not be theirs.
    void SetOperand(int index, short code, int value);

    /// The register at which the data table starts; the offsets of its entries count from it.
    void SetTableStart(int number) { m_tableStart = number; }
    void AddData(SWzdEntry entry, EConstantFormat format, LONG value);
    /// Adds the control code as an entry of its own, its bits all 0.
    void AddControlCode(SWzdEntry entry);
    /// Sets bits of the control code.
    void AddToControlCode(DWORD bits);
    /// The control code is complete: bits that come later no longer count.
    void EndControlCode() { m_codeEnded = true; }

    void AddComment(const CString& text);
    /// The text of a control; nothing when there is no control.
    void AddCommentFrom(const CWnd* label);
    /// Sets the wizard's comment flag when the results are stored.
    void SetCommentRecord(bool on) { m_commentRecord = on; }

    /// The positioning unit and the starting condition: a start output depends on them.
    SWzdUnitAxis& Unit() { return m_unit; }
    const SContact& StartingCondition() const { return m_contacts.at(0); }

    /// Replaces the contact, operand and data lists and, when the wizard asks for them, the comments. False when the
    /// wizard ran out of memory: the lists are then as far as they were written.
    [[nodiscard]] bool StoreIn(CFunWizard& wizard) const;

private:
    struct SData
    {
        SWzdEntry entry;
        EConstantFormat format;
        LONG value;
    };

    [[nodiscard]] bool StoreContacts(CFunWizard& wizard) const;
    [[nodiscard]] bool StoreOperands(CFunWizard& wizard) const;
    [[nodiscard]] bool StoreData(CFunWizard& wizard) const;
    [[nodiscard]] bool StoreComments(CFunWizard& wizard) const;

    SWzdUnitAxis m_unit;
    std::vector<SContact> m_contacts;
    std::vector<SOperand> m_operands;
    std::vector<SData> m_data;
    std::vector<CString> m_comments;
    std::optional<bool> m_commentRecord;
    int m_tableStart = 0;
    size_t m_codeRecord = 0;
    bool m_codeEnded = false;
};
