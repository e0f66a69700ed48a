// The base of all instruction dialogs.
//
// A dialog derived from it says which template it has and, in DoFieldExchange, what its fields are. Everything that is
// done to the fields is done here: filling and restoring, labels, clearing, checking in order with focus and message,
// and replacing the wizard's lists on OK.
#pragma once

#include "dialogs/base/WzdDialog.h"
#include "dialogs/base/WzdExchange.h"
#include "resources/resource.h"

/// The contact of the starting condition, and the one of a second condition.
constexpr SWzdRow kStartingCondition = {.combo = IDC_CONTACT_DEVICE,
                                        .edit = IDC_CONTACT_NUMBER,
                                        .limit = 4,
                                        .message = IDS_ERR_CONTACT,
                                        .rangeLabel = IDC_CONTACT_RANGE};
constexpr SWzdRow kSecondCondition = {.combo = IDC_SECOND_DEVICE,
                                      .edit = IDC_SECOND_NUMBER,
                                      .limit = 4,
                                      .message = IDS_ERR_CONTACT,
                                      .rangeLabel = IDC_SECOND_RANGE};

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

    // ---- Devices ----------------------------------------------------------------------------------------------------

    /// Lists the devices of a row that the PLC has and selects `wanted`, or the first one when it is not among them.
    /// False when the list refuses an item.
    [[nodiscard]] bool FillDeviceCombo(const SWzdRow& row, short wanted);
    /// The same for a contact: it selects the device of contact record `contactIndex`, but the first one for a further
    /// contact that is the same as the starting condition.
    [[nodiscard]] bool FillContactCombo(int comboId, int contactIndex);
    /// Shows the range of the selected device in the label of the row. Without a selection or range the label stays as
    /// it is and the result is false.
    bool ShowDeviceRange(const SWzdRow& row);
    /// The numbers that CheckDevice accepts for what is selected; nothing without a selection or range.
    std::optional<SWzdAccepted> AcceptedNumbers(const SWzdRow& row) const;
    /// The text of a stored device number or constant, as CheckDevice reads it.
    static CString FormatDevice(const SWzdRow& row, short code, int number);
    /// The same as ShowDeviceRange for the starting condition (0) or the second one (1).
    bool ShowContactRange(int which);
    bool GetSelectedDevice(int comboId, short& kind, short& code) const;
    bool GetSelectedDeviceRange(int comboId, short& kind, short& code, int& low, int& high) const;

    // ---- The stored results -----------------------------------------------------------------------------------------

    /// The control code that the data list begins with; nothing when it does not begin with a register.
    virtual std::optional<DWORD> StoredControlCode() const;

    // ---- Checking ---------------------------------------------------------------------------------------------------

    /// Reads an entry. False, with the message shown, when it is no number or outside the range.
    [[nodiscard]] bool ReadNumber(UINT edit, SWzdRange range, UINT message, LONGLONG& value,
                                  const SWzdFormat& format = kSigned);
    /// Reads the device or constant selected in the combo of a row and the number in its edit. False, with the message
    /// shown, when it is no number or not of the PLC.
    [[nodiscard]] bool ReadDevice(const SWzdRow& row, short& code, int& number);
    /// The same without a message shown: the message that would be, or 0.
    UINT CheckDevice(const SWzdRow& row, short& code, int& number) const;

    /// Checks every field that counts, those behind a refused one too, and stores nothing. The unseen user is told of
    /// each refusal.
    void CheckEachField();

    /// Adds the comment of a row to the results; none when the label it comes from is missing.
    void AddComment(CWzdResults& results, const SWzdRow& row) const;

    /// Shows "(low - high)" in a label, when there is one.
    static void ShowRange(CWnd* label, SWzdRange range);
    bool ShowDataTableRange(UINT labelId);

    /// Only the first control and Back stay usable: the PLC lacks what the dialog needs.
    void DisableAllButFirstAndBack();
    static bool IsClipboardText();

    /// How many registers the data table takes: as far as the declared entries reach.
    virtual LONGLONG TableWords();

    /// The user has selected an item, clicked a button, left an edit that others follow, or changed something else that
    /// field `id` stands for. It may change what other fields show or accept, so all are told and brought into line.
    virtual void OnChanged(UINT id);

protected:
    [[nodiscard]] bool Open() override;
    [[nodiscard]] bool Confirm() override;

    void OnEditLeft(UINT id);
    void OnClearSettings();

    DECLARE_MESSAGE_MAP()

private:
    bool HasRoom(const SWzdRow& row, short kind, short code) const;
    /// The item to be selected; CB_ERR when the list refuses one.
    int ListDevices(CComboBox* list, const SWzdRow& row, short wanted) const;

    /// Which fields a walk comes to: all, or only those that count at the moment.
    enum EFields
    {
        kAllFields,
        kActiveFields
    };
    template <typename TAction>
    bool ForEachField(EFields fields, TAction action);
    void RefreshFields();
    bool IsPossible();

    enum EState
    {
        kOpening,   // or it could not be opened
        kOpen,      // for the user
        kImpossible // the PLC lacks what a field needs: everything stays disabled
    };
    EState m_state = kOpening;
};
