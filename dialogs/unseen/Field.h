// A field of a dialog as its user meets it: a control that takes an entry.
#pragma once

#include "dialogs/base/WzdDialog.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

enum EFieldKind
{
    kEditField = 1,
    kListField,
    kCheckField,
    kRadioField,
    kTableField
};

/// Why an entry could not be made.
enum EEntryProblem
{
    kEntered = 0,
    kByMessage,
    kNoField,
    kNoItem,
    kCannotBeTyped,
    kNotEnabled,
    kChangedAgain,
    kNotPossible,
    kCannotOpen
};

/// What became of an entry. Rows and columns count from 1.
struct SEntryOutcome
{
    EEntryProblem problem = kEntered;
    int row = 0;
    int column = 0;
};

/// The control lives as long as the object is used. Texts are in UTF-8.
class CField
{
public:
    /// Nothing for a control that takes no entry: labels, push buttons, the editor of a table.
    static std::optional<CField> Of(CWzdDialog& dialog, HWND control);
    /// All fields of a dialog in tab order, those that are not enabled too.
    static std::vector<CField> AllOf(CWzdDialog& dialog);

    EFieldKind Kind() const { return m_kind; }
    UINT Id() const { return m_id; }
    std::string_view Name() const;
    /// The label before it, or its own.
    CString Label() const;
    bool IsEnabled() const;
    /// What it holds, as Enter takes it.
    CString Text() const;

    /// Of a list: its items; of a table: the headings of its columns.
    int ItemCount() const;
    CString ItemText(int item) const;
    /// Of a list of devices the device.
    DWORD ItemCode(int item) const;
    /// Of a list: the item, -1 for none; of a table the rows that are used; else 0 or 1.
    int Selected() const;

    int LimitOfText() const;
    bool TakesDigitsOnly() const;
    /// The most rows of a table.
    int MostRows() const;

    /// Does what a user does who makes the entry and goes on; nothing when it cannot be made.
    [[nodiscard]] SEntryOutcome Enter(LPCSTR text);
    /// Whether it holds what Enter would leave in it.
    bool Holds(LPCSTR text) const;

private:
    CField(CWzdDialog& dialog, HWND control, EFieldKind kind);

    LRESULT Ask(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    void Notify(int code) const;
    int FindItem(LPCSTR text) const;
    bool IsOn() const;
    void SwitchOn(bool on) const;
    SEntryOutcome EnterText(LPCSTR text);
    SEntryOutcome EnterItem(LPCSTR text);
    SEntryOutcome EnterSwitch(LPCSTR text);
    SEntryOutcome EnterTable(LPCSTR text);

    CWzdDialog* m_dialog;
    HWND m_control;
    EFieldKind m_kind;
    UINT m_id;
};
