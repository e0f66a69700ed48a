// The results of a dialog whose entries have all been accepted.
#pragma once

#include "core/Devices.h"
#include "dialogs/base/WzdRow.h"

#include <optional>
#include <vector>

class CFunWizard;

/// In bytes: hosts read comments into buffers without telling their size.
constexpr int kLongestComment = 255;

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
    /// The contacts are appended to those that the wizard has instead of replacing them.
    void KeepContacts() { m_keepsContacts = true; }
    /// Operands are numbered: the order in which fields are checked need not be theirs.
    void SetOperand(int index, short code, int value);
    /// One that has been set; no device when its field has been refused.
    SOperand Operand(int index) const
    {
        const auto at = static_cast<size_t>(index);
        return at < m_operands.size() ? m_operands[at] : SOperand{-1, static_cast<WORD>(-1)};
    }

    /// The device at which the data table starts: the offsets of the entries that are added from now on count from its
    /// number.
    void SetTableStart(short code, int number) { m_tableStart = {number, static_cast<WORD>(code)}; }
    void AddData(const SWzdEntry& entry, EConstantFormat format, LONG value);
    /// Adds the control code as an entry of its own, its bits all 0.
    void AddControlCode(const SWzdEntry& entry, EConstantFormat format);
    /// Sets bits of the control code, which has been added.
    void AddToControlCode(DWORD bits);
    /// The control code is complete: bits that come later no longer count.
    void EndControlCode() { m_codeEnded = true; }

    /// A comment that is too long is cut behind a whole character.
    void AddComment(const CString& text);
    /// The text of a control; nothing when there is no control.
    void AddCommentFrom(const CWnd* label);
    /// Sets the wizard's comment flag when the results are stored, before the lists or behind them.
    void SetCommentRecord(bool on, ECommentFlag when)
    {
        m_commentRecord = on;
        m_setsCommentRecord = when;
    }

    /// The block that keeps the inputs until the next opening, in the wizard's place for it.
    void SetDialogData(std::span<const WORD> words) { m_dialogData.assign(words.begin(), words.end()); }

    /// The positioning unit and the starting condition, if there is one: a start output depends on them.
    SWzdUnitAxis& Unit() { return m_unit; }
    const SContact* StartingCondition() const { return m_contacts.empty() ? nullptr : &m_contacts.front(); }

    /// Replaces the contact, operand and data lists and, when the wizard asks for them, the comments. False when the
    /// wizard ran out of memory: the lists are then as far as they were written. Without memory for the dialog data it
    /// throws.
    [[nodiscard]] bool StoreIn(CFunWizard& wizard) const;

private:
    struct SData
    {
        SOperand table;
        LONGLONG offset;
        EDataType type;
        EConstantFormat format;
        LONG value;
    };

    [[nodiscard]] bool StoreContacts(CFunWizard& wizard) const;
    [[nodiscard]] bool StoreOperands(CFunWizard& wizard) const;
    void SetCommentRecordIn(CFunWizard& wizard, ECommentFlag when) const;
    void StoreDialogData(CFunWizard& wizard) const;
    [[nodiscard]] bool StoreData(CFunWizard& wizard) const;
    [[nodiscard]] bool StoreComments(CFunWizard& wizard) const;

    SWzdUnitAxis m_unit;
    std::vector<SContact> m_contacts;
    std::vector<SOperand> m_operands;
    std::vector<SData> m_data;
    std::vector<CString> m_comments;
    std::vector<WORD> m_dialogData;
    std::optional<bool> m_commentRecord;
    ECommentFlag m_setsCommentRecord = kBehindTheLists;
    bool m_keepsContacts = false;
    SOperand m_tableStart = {0, kDeviceDT};
    std::optional<size_t> m_codeRecord;
    bool m_codeEnded = false;
};
