// The base of all instruction dialogs.
//
// A dialog derived from it says which template it has, how many registers its data table takes and, in
// DoFieldExchange, what its fields are. Everything that is done to the fields is done here: filling and restoring,
// labels, clearing, checking in order with focus and message, and replacing the wizard's lists on OK.
#pragma once

#include "dialogs/base/WzdExchange.h"

class CFunWizard;

class CWzdDlgBase : public CDialog
{
public:
    /// `wizard` is not owned and outlives the dialog.
    CWzdDlgBase(CFunWizard* wizard, UINT templateId, CWnd* parent);

    /// Runs the dialog with the language library as the source of texts: 1 on OK, 2 on Back or Cancel, -1 when the
    /// source does not hold the template.
    INT_PTR DoModal() override;

    /// The permitted data-table starts: the registers of the PLC, less those that the table takes after the first.
    /// False when there is no such range.
    virtual BOOL GetDataTableRange(int& low, int& high);

    /// Lists the fields in the order in which they are checked and stored.
    virtual void DoFieldExchange(CWzdExchange* wx);

    CFunWizard& Wizard() const { return *m_wizard; }

    // ---- Controls; a control that the template does not carry counts as empty, unchecked and without selection -----

    CString ItemText(UINT id) const;
    void SetItemText(UINT id, LPCSTR text);
    bool IsChecked(UINT id) const;
    int Selection(UINT combo) const;
    void Select(UINT combo, int index);
    void Enable(UINT id, bool enabled);
    void LimitText(UINT edit, int characters);
    /// The control before or after another one in tab order; null when there is none.
    CWnd* ControlBefore(UINT id) const;
    CWnd* ControlAfter(UINT id) const;

    /// Empties a combo and adds an item for every choice. False when a text is missing or the list refuses an item.
    [[nodiscard]] bool FillCombo(UINT combo, CWzdChoices choices);

    // ---- Contacts ---------------------------------------------------------------------------------------------------

    /// Lists the bit devices that the PLC has and selects the one of contact record `contactIndex`. False when the list
    /// refuses an item.
    [[nodiscard]] bool FillContactCombo(int comboId, int contactIndex);
    /// Shows the range of the selected device in the label of the contact. Without a selection or range the label stays
    /// as it is and the result is false.
    bool ShowContactRange(UINT combo, UINT label);
    /// The same for the starting condition (0) or the second one (1).
    bool ShowContactRange(int which);
    /// Fills the combo of the JOG direction and selects the direction of the start output that the contact list ends
    /// in: the second one runs from relays whose number ends in 4. False when the list refuses an item.
    [[nodiscard]] bool FillJogDirectionCombo();
    bool GetSelectedDevice(int comboId, short& kind, short& code) const;
    bool GetSelectedDeviceRange(int comboId, short& kind, short& code, int& low, int& high) const;

    // ---- Ranges -----------------------------------------------------------------------------------------------------

    /// Shows "(low - high)" in a label, when there is one.
    static void ShowRange(CWnd* label, SWzdRange range);
    /// The range of words of the devices Y and WY; false for any other device or without a range.
    bool GetWordDeviceRange(short code, int& low, int& high) const;
    bool ShowDataTableRange(UINT labelId);
    /// Shows the axes of the unit in the control after `editId`.
    void ShowAxisRange(UINT editId);
    /// Shows the slots in the control after `editId`.
    void ShowSlotRange(UINT editId);

    /// The control code that the data list begins with; 0 when it does not begin with a register.
    DWORD StoredControlCode() const;
    /// A field of it.
    DWORD StoredControlCode(SWzdBits bits) const { return bits.Extract(StoredControlCode()); }

    // ---- Checking ---------------------------------------------------------------------------------------------------

    /// Reads a decimal entry. False, with the message shown, when it is no number or outside the range.
    [[nodiscard]] bool ReadNumber(UINT edit, SWzdRange range, UINT message, LONGLONG& value);
    /// Selects the whole text of an edit, gives it the focus and shows the message. Always false.
    bool Refuse(UINT edit, UINT message);
    /// Shows a message box with an exclamation mark above the active window; returns the button pressed.
    int ShowWarning(UINT stringId, UINT flags = 0);

    /// Only the first control and Back stay usable: there is no room for the data table.
    void DisableAllButFirstAndBack();
    static bool IsClipboardText();
    /// The first relay of an axis of the positioning unit in a slot; -1 when `axis` is below 1.
    static int UnitBufferAddress(int slot, int axis);

protected:
    /// How many registers the data table takes.
    virtual int TableWords() const { return 1; }

    BOOL OnInitDialog() override;
    void OnOK() override;

    void OnSelectionChanged(UINT id);
    void OnOnlyDataTable();
    void OnClearSettings();

    DECLARE_MESSAGE_MAP()

private:
    template <typename TAction>
    bool ForEachField(TAction action);
    void RefreshFields();
    [[nodiscard]] bool Confirm();

    CFunWizard* m_wizard;
};
