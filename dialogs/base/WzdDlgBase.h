// The base of all instruction dialogs.
//
// A dialog derived from it says which template it has and, in DoFieldExchange, what its fields are. Everything that is
// done to the fields is done here: filling and restoring, labels, clearing, checking in order with focus and message,
// and replacing the wizard's lists on OK.
#pragma once

#include "dialogs/base/WzdDialog.h"
#include "dialogs/base/WzdExchange.h"

class CWzdDlgBase : public CWzdDialog
{
public:
    /// `wizard` is not owned and outlives the dialog.
    CWzdDlgBase(CFunWizard* wizard, UINT templateId, CWnd* parent);

    /// The permitted data-table starts: the registers of the PLC, less those that the table takes after the first.
    /// False when there is no such range.
    virtual BOOL GetDataTableRange(int& low, int& high);

    /// Lists the fields in the order in which they are checked and stored.
    virtual void DoFieldExchange(CWzdExchange* wx);

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
    /// The axes of the positioning unit, and the slots in which it can be.
    SWzdRange AxisRange() const;
    SWzdRange SlotRange() const;
    /// Shows the axes of the unit in the control after `editId`.
    void ShowAxisRange(UINT editId);
    /// Shows the slots in the control after `editId`.
    void ShowSlotRange(UINT editId);

    /// The register that the first operand names; -1 when it names none.
    LONGLONG StoredTableStart() const;
    /// The control code that the data list begins with; 0 when it does not begin with a register.
    virtual DWORD StoredControlCode() const;
    /// A field of it.
    DWORD StoredControlCode(SWzdBits bits) const { return bits.Extract(StoredControlCode()); }

    // ---- Checking ---------------------------------------------------------------------------------------------------

    /// Reads an entry. False, with the message shown, when it is no number or outside the range.
    [[nodiscard]] bool ReadNumber(UINT edit, SWzdRange range, UINT message, LONGLONG& value, SWzdFormat format = {});
    /// Reads a contact: the device selected in `combo` and the number in `edit`. False, with the message shown, when it
    /// is no number or not of the PLC.
    [[nodiscard]] bool ReadContact(UINT combo, UINT edit, UINT message, short& code, int& number);

    /// Only the first control and Back stay usable: there is no room for the data table.
    void DisableAllButFirstAndBack();
    static bool IsClipboardText();
    /// The first relay of an axis of the positioning unit in a slot; -1 when `axis` is below 1.
    static int UnitBufferAddress(int slot, int axis);

    /// How many registers the data table takes: as far as the declared entries reach.
    virtual LONGLONG TableWords();

protected:
    /// Brings all labels and the enabling into line with what the controls hold.
    void RefreshFields();

    [[nodiscard]] bool Open() override;
    [[nodiscard]] bool Confirm() override;

    void OnSelectionChanged(UINT id);
    void OnOnlyDataTable();
    void OnClearSettings();

    DECLARE_MESSAGE_MAP()

private:
    template <typename TAction>
    bool ForEachField(TAction action);

    bool m_impossible = false; // there is no room for the data table
};
