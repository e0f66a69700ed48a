// What all dialogs of the library have in common: texts and template come from the language library, the wizard's font,
// a help topic, running out of memory, and access to the controls by id.
#pragma once

#include "dialogs/base/WzdRow.h"

#include <array>
#include <optional>

class CFunWizard;
class CGridView;
class CUnseenUser;

class CWzdDialog : public CDialog
{
public:
    /// `wizard` is not owned. The host may destroy it while the dialog is open, which ends the dialog.
    CWzdDialog(CFunWizard* wizard, UINT templateId, CWnd* parent);

    /// Runs the dialog with the language library as the source of texts: 1 on OK, 2 on Back or Cancel or when the
    /// dialog could not be opened or the wizard was destroyed, -1 when the source does not hold the template.
    INT_PTR DoModal() override;

    /// To be asked again after a message box or another dialog: the host may have destroyed the object meanwhile, and a
    /// stand-in has taken its place.
    CFunWizard& Wizard() const { return *m_wizard; }
    /// The language library of the texts; null for the module itself.
    HINSTANCE Library() const;
    UINT TemplateId() const { return m_templateId; }

    // ---- For a user who does not see the dialog ---------------------------------------------------------------------

    /// The table of the dialog, when it has one.
    virtual CGridView* Table() { return nullptr; }
    /// Whether a button that stays pressed is; nothing for any other control.
    virtual std::optional<bool> IsPressed(UINT) const { return std::nullopt; }
    /// Whether a button turns to other settings that the same controls then show.
    virtual bool TurnsPage(UINT) const { return false; }

    // ---- Controls; a control that the template does not carry counts as empty, unchecked and without selection -----

    /// The control of an id. Remembered, as all the rest asks for it and the system looks through all controls.
    CWnd* GetDlgItem(UINT id) const;
    CString ItemText(UINT id) const;
    void SetItemText(UINT id, LPCSTR text) { SetText(GetDlgItem(id), text); }
    /// Nothing is painted when the control, if there is one, has the text already.
    static void SetText(CWnd* item, LPCSTR text);
    bool IsChecked(UINT id) const;
    void Check(UINT id, bool checked);
    int Selection(UINT combo) const;
    void Select(UINT combo, int index);
    void Enable(UINT id, bool enabled);
    void LimitText(UINT edit, int characters);
    /// Whether only digits can be typed into an edit.
    void TakeDigitsOnly(UINT edit, bool digitsOnly);
    /// The control before or after another one in tab order; null when there is none.
    CWnd* ControlBefore(UINT id, int steps = 1) const;
    CWnd* ControlAfter(UINT id, int steps = 1) const;

    /// Empties a combo, adds an item for every choice, its code as item data, and selects the item `selected`, or the
    /// first one when there is no such item. False when a text is missing or the list refuses an item.
    [[nodiscard]] bool FillCombo(UINT combo, CWzdChoices choices, int selected = 0);

    // ---- Messages ---------------------------------------------------------------------------------------------------

    /// Selects the whole text of an edit, gives it the focus and shows the message. Always false.
    bool Refuse(UINT edit, UINT message);
    /// Shows a message box with an exclamation mark above the active window; returns the button pressed.
    int ShowWarning(UINT stringId, UINT flags = 0);
    int ShowWarningText(LPCSTR text, UINT flags = 0);

protected:
    static constexpr int kNoHelp = -1;

    /// The help topic of the dialog. The Help button is hidden when the wizard has no help file.
    virtual int HelpTopic() const { return kNoHelp; }

    /// Fills the controls. False ends the dialog with 2; so does running out of memory.
    [[nodiscard]] virtual bool Open() { return true; }
    /// Checks and stores the entries. False, with the message shown, keeps the dialog open; so does running out of
    /// memory.
    [[nodiscard]] virtual bool Confirm() { return true; }

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL OnInitDialog() override;
    void OnOK() override;
    void OnHelpTopic();
    BOOL OnHelpInfo(HELPINFO* info);

    DECLARE_MESSAGE_MAP()

private:
    INT_PTR RunUnseen(CUnseenUser& user);

    UINT m_templateId;
    mutable std::array<HWND, 128> m_items = {}; // by the last bits of their ids
    CFunWizard* m_wizard;                       // a stand-in once the host has destroyed the wizard of an open dialog
};
