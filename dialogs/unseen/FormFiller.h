// Fills a dialog that nobody sees.
#pragma once

#include "dialogs/base/Catalogue.h"
#include "dialogs/base/UnseenUser.h"
#include "dialogs/unseen/Field.h"

#include <span>

/// What to enter into a control, which is meant by its id or, when that is 0, by its name. In UTF-8.
struct SFormEntry
{
    UINT control;
    LPCSTR name;
    LPCSTR text;
};

/// What a dialog did not accept. `entry` is the entry's index, -1 when it is none's fault.
struct SFormRefusal
{
    EEntryProblem problem = kEntered;
    UINT message = 0; ///< of the dialog; 0 when it was not the dialog
    UINT control = 0;
    int entry = -1;
    int row = 0;
    int column = 0;
    std::string name;
    std::string text; ///< the message in UTF-8
};

/// Makes entries in the first dialog that it works in and presses OK. It takes what a selection dialog offers when that
/// is `choice`.
class CFormFiller : public CUnseenUser
{
public:
    /// `entries` live as long as the object. Without `stores` what the dialog accepts is not stored.
    CFormFiller(const SWizardChoice& choice, std::span<const SFormEntry> entries, bool stores);

    bool Choose(CPosSelectDlg& selection) override;
    void Work(CWzdDialog& dialog) override;
    bool Stores() const override { return m_stores; }
    void BeRefused(UINT message, UINT control, int row, int column) override;

    /// Whether the selection dialog had the choice, or there was none.
    bool IsOffered() const { return m_offered; }
    /// The first thing that was not accepted. A dialog in which nobody could work could not be opened.
    const SFormRefusal& Refusal() const { return m_refusal; }

protected:
    /// What is done when the entries have been made, as far as that was possible.
    virtual void Finish(CWzdDialog& dialog);
    void MakeEntries(CWzdDialog& dialog);

    SFormRefusal m_refusal;

private:
    struct SPageEntry
    {
        int index;
        CField field;
        bool isMade = false;
    };

    bool Find(int index, std::vector<SPageEntry>& page);
    bool MakePage(std::vector<SPageEntry>& page);
    bool AreEnabled(const std::vector<SPageEntry>& page);
    bool Reject(int index, const SEntryOutcome& outcome);
    void Explain();

    SWizardChoice m_choice;
    std::span<const SFormEntry> m_entries;
    bool m_stores;
    CWzdDialog* m_dialog = nullptr;
    std::vector<CField> m_fields; ///< of the dialog
    bool m_offered = true;
    bool m_chosen = false;
};
