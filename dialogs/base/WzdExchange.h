// The exchange of a dialog's fields, in the manner of MFC's DoDataExchange: the dialog lists its fields once, in the
// order in which they are checked and stored, and every walk - open, refresh, clear, collect - goes through that list.
//
//     void CSomeDlg::DoFieldExchange(CWzdExchange* wx)
//     {
//         WDX_Contact(wx);
//         WDX_TableStart(wx, IDC_SOME_START, IDC_SOME_START_RANGE);
//         ...
//     }
//
// The list only declares. It may depend on what the controls hold at the moment: a walk sees the fields that count now.
#pragma once

#include "dialogs/base/WzdField.h"
#include "resources/resource.h"

#include <algorithm>

class CWzdExchange
{
public:
    explicit CWzdExchange(CWzdDlgBase& dialog) : m_dialog(dialog) {}
    virtual ~CWzdExchange() = default;

    CWzdExchange(const CWzdExchange&) = delete;
    CWzdExchange& operator=(const CWzdExchange&) = delete;

    CWzdDlgBase& Dialog() const { return m_dialog; }

    /// Declares an entry of the data table; returns its position in the wizard's data list.
    int AddEntry(SWzdEntry entry)
    {
        Reserve(entry.offset + entry.Registers());
        return m_nextRecord++;
    }
    /// The data table takes at least this many registers.
    void Reserve(LONGLONG registers) { m_tableWords = std::max(m_tableWords, registers); }
    LONGLONG TableWords() const { return m_tableWords; }

    /// Where a walk stands that restores entries by their register: the data record that comes next.
    int& StoredRecord() { return m_storedRecord; }

    /// Hands a declared field to the walk. After the first failure the remaining fields are passed over.
    void Declare(CWzdField& field) { m_succeeded = m_succeeded && Visit(field); }
    bool Succeeded() const { return m_succeeded; }

protected:
    virtual bool Visit(CWzdField& field) = 0;

private:
    CWzdDlgBase& m_dialog;
    int m_nextRecord = 0;
    int m_storedRecord = 1; // behind the control code
    LONGLONG m_tableWords = 1;
    bool m_succeeded = true;
};

/// A walk that does the same thing, a function of the field that returns whether to go on, to every field.
template <typename TAction>
class CWzdWalk : public CWzdExchange
{
public:
    CWzdWalk(CWzdDlgBase& dialog, TAction action) : CWzdExchange(dialog), m_action(action) {}

protected:
    bool Visit(CWzdField& field) override { return m_action(field); }

private:
    TAction m_action;
};

// ---- The rows -------------------------------------------------------------------------------------------------------

/// The caption of a dialog whose template serves several operations; 0 leaves the template's.
void WDX_Caption(CWzdExchange* wx, UINT text);

/// The starting condition: a device, a number in the notation of that device, and its range. `index` is the position
/// of the contact in the contact list.
struct SWzdContactIds
{
    UINT combo = IDC_CONTACT_DEVICE;
    UINT edit = IDC_CONTACT_NUMBER;
    UINT rangeLabel = IDC_CONTACT_RANGE;
    int index = 0;
};
void WDX_Contact(CWzdExchange* wx, UINT message = IDS_ERR_CONTACT, const SWzdContactIds& ids = {});

/// The register at which the data table starts, within CWzdDlgBase::GetDataTableRange; it is operand `operand`.
void WDX_TableStart(CWzdExchange* wx, UINT edit, UINT rangeLabel, int operand = 0, SWzdFormat format = {});

/// The pulse output, a constant operand; without an instruction ("Only a data table is created.") there is no choice.
void WDX_Output(CWzdExchange* wx, UINT combo, CWzdChoices choices, int operand = 1);

/// The same for the channels that the wizard offers to an instruction. A single channel leaves nothing to choose: then
/// the dialog does not open.
void WDX_Channel(CWzdExchange* wx, UINT combo, int instruction, int operand = 1);

/// The control code, the hexadecimal entry at the head of the data table. The codes declared after it are its bits.
/// `commentLabel` is the control whose text is its comment; without one it is "Control code".
void WDX_ControlCode(CWzdExchange* wx, EDataType type, const CWnd* commentLabel = nullptr);

/// What a list without a selection does to the control code: no field that is declared after it counts, or the others
/// stay as they are.
enum EUnselected
{
    kEndsTheCode,
    kCountsAsZero
};

/// A field of the control code. `alsoRestores` pairs further codes with the positions of the list: those under which
/// the other variant of a dialog stored the same choice. A code that stands in neither list selects the first item.
void WDX_Code(CWzdExchange* wx, UINT combo, SWzdBits bits, CWzdChoices choices, CWzdChoices alsoRestores = {},
              EUnselected unselected = kEndsTheCode);
/// The same in a dialog of two variants: the list of the present one, which also restores what the other has stored.
void WDX_Code(CWzdExchange* wx, UINT combo, SWzdBits bits, bool second, CWzdChoices choices, CWzdChoices secondChoices);

/// A decimal entry of the data table: at most `limit` characters, checked against `range`, which `rangeLabel` shows
/// when it is not fixed. The label before the edit is its comment.
void WDX_Number(CWzdExchange* wx, UINT edit, SWzdEntry entry, int limit, SWzdRange range, UINT message,
                UINT rangeLabel = 0);

/// An entry of the data table that always has the same value.
void WDX_Constant(CWzdExchange* wx, SWzdEntry entry, LONG value);

/// An entry of one register that the user may leave out: a check box, its text the comment, then the edit and the label
/// of its range.
struct SWzdParameter
{
    UINT check;
    UINT edit;
    int offset;
    SWzdFormat format;
    int limit;       ///< characters
    SWzdRange range; ///< in units of the last decimal
    UINT message;    ///< when outside the range
    LPCSTR initial;  ///< shown until there is a stored value
    bool used;       ///< checked as long as nothing is stored at all
    bool automatic;  ///< not for the user to choose; an unusable entry becomes the lowest value
};
void WDX_Parameter(CWzdExchange* wx, const SWzdParameter& parameter);

/// A register of the table that the program fills: `label` names it once `startEdit` holds the table's start.
void WDX_Register(CWzdExchange* wx, UINT label, UINT startEdit, SWzdFormat format, int offset);

/// The same for a span of registers: the first and the last are named.
void WDX_Registers(CWzdExchange* wx, UINT label, UINT startEdit, SWzdFormat format, int offset, LONGLONG count);

/// The check box "I/O comment is registered automatically.".
void WDX_RegisterComments(CWzdExchange* wx);

// ---- The positioning unit -------------------------------------------------------------------------------------------

/// The operands of the instruction that transfers the data table to the unit.
enum EUnitOperand
{
    kSlotOperand,
    kTableOperand,
    kWordsOperand,
    kAxisOperand
};

/// The slot of the unit and its axis; the range of each stands in the control after its edit.
void WDX_UnitAxis(CWzdExchange* wx, UINT slotEdit, UINT axisEdit);

/// The start output and the second condition that switches it on, in templates that carry them. `startBit` is the relay
/// of the axis that the output starts.
void WDX_StartOutput(CWzdExchange* wx, int startBit);
