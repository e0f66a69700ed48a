// The rows with which dialogs declare their fields. Each reads the members of SWzdRow that it names.
#pragma once

#include "core/FillText.h"
#include "dialogs/base/WzdDlgBase.h"

/// The rows declared during its life count only while it is active: else they are opened, empty, and refreshed and
/// cleared as always, but neither checked nor stored, and take no registers. The controls from `first` to `last`
/// in tab order are then hidden and disabled; without `first` the section has no controls to itself.
class CWzdSection
{
public:
    CWzdSection(CWzdExchange* wx, bool active, CWnd* first = nullptr, const CWnd* last = nullptr);
    CWzdSection(CWzdExchange* wx, bool active, CWnd* first, UINT last);
    ~CWzdSection() { m_exchange.SetActive(m_outerActive); }

    CWzdSection(const CWzdSection&) = delete;
    CWzdSection& operator=(const CWzdSection&) = delete;

private:
    CWzdExchange& m_exchange;
    bool m_outerActive;
};

/// The caption of a dialog whose template serves several operations; 0 leaves the template's.
void WDX_Caption(CWzdExchange* wx, UINT text);

/// A label whose text, with its gaps filled, depends on what is selected.
void WDX_Label(CWzdExchange* wx, UINT label, UINT text, std::initializer_list<CGapValue> values = {});

/// A comment for what no other row comments: `comment`, or the control before `combo` or `edit`.
void WDX_Comment(CWzdExchange* wx, const SWzdRow& row);

/// The check box "I/O comment is registered automatically.".
void WDX_RegisterComments(CWzdExchange* wx, ECommentFlag when);

// ---- Devices --------------------------------------------------------------------------------------------------------

/// A contact: a bit device, a number in the notation of that device, and its range. `position`, `withoutInstruction`.
void WDX_Contact(CWzdExchange* wx, const SWzdRow& row = kStartingCondition);
/// The same with another message.
void WDX_Contact(CWzdExchange* wx, UINT message);
/// A contact that is always the same, appended to those that the wizard has.
void WDX_FixedContact(CWzdExchange* wx, short code, int number);

/// A device that is an operand: `devices`, `permitted`, `constants`, `preferred`, `position`, `withoutInstruction`,
/// `limit`, `less`, `shownLess`, `comment`.
void WDX_DeviceOperand(CWzdExchange* wx, const SWzdRow& row);
/// The same for the device at which the data table starts.
void WDX_DeviceTable(CWzdExchange* wx, const SWzdRow& row);

/// An operand that is a constant K, chosen from a list: `combo`, `choices`, `position`.
void WDX_ConstantChoice(CWzdExchange* wx, const SWzdRow& row);

/// An operand that is always the same constant K.
void WDX_ConstantOperand(CWzdExchange* wx, int position, int value);

/// The register DT at which the data table starts, within CWzdDlgBase::GetDataTableRange: `edit`, `rangeLabel`,
/// `position` among the operands, `format`. A PLC without such registers has no use for the dialog.
void WDX_TableStart(CWzdExchange* wx, const SWzdRow& row);

// ---- The control code -----------------------------------------------------------------------------------------------

/// The control code, the entry at the head of the data table. The codes declared after it are its bits. `commentLabel`
/// is the control whose text is its comment; without one it is "Control code".
void WDX_ControlCode(CWzdExchange* wx, EDataType type, EConstantFormat format = kHexadecimalConstant,
                     const CWnd* commentLabel = nullptr);

/// A field of the control code: `combo`, `bits`, `choices`, `alsoRestores`, `unselected`, `refilledBy`. A code that
/// stands in neither list selects the first item.
void WDX_Code(CWzdExchange* wx, const SWzdRow& row);
/// The same in a dialog of two forms: the list of the present one, which also restores what the other has stored.
void WDX_Code(CWzdExchange* wx, UINT combo, SWzdBits bits, bool second, CWzdChoices choices, CWzdChoices secondChoices);

// ---- Entries of the data table --------------------------------------------------------------------------------------

/// A number: `edit`, `entry`, `limit`, `range`, `message`, and what it needs of `format`, `digitsOnly`, `rangeLabel`,
/// `shown`, `follows` and `comment`. With `check` it can be left out: a check box, directly before the edit, and behind
/// it the label of its range; `initial`, `used`.
void WDX_Number(CWzdExchange* wx, const SWzdRow& row);

/// An entry that always has the same value.
void WDX_Constant(CWzdExchange* wx, const SWzdEntry& entry, LONG value);

/// Registers of the table that the program fills, declared behind the table's start: `label` names the first of them,
/// or the first and the last, once the start of the table is entered; with `inRange` only when it is one that is
/// accepted.
void WDX_Register(CWzdExchange* wx, UINT label, const SWzdEntry& entry, bool inRange = false);
void WDX_RegisterSpan(CWzdExchange* wx, UINT label, const SWzdEntry& entry);
