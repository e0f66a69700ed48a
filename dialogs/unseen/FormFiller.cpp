#include "dialogs/unseen/FormFiller.h"

#include "afx/CodePage.h"
#include "afx/Resources.h"
#include "core/FunWizard.h"
#include "dialogs/base/PosSelectDlg.h"
#include "dialogs/unseen/FieldNames.h"

#include <algorithm>

CFormFiller::CFormFiller(const SWizardChoice& choice, std::span<const SFormEntry> entries, bool stores)
    : m_choice(choice), m_entries(entries), m_stores(stores)
{
    m_refusal.problem = kCannotOpen; // until it has been
    m_refusal.text =
        "The dialog could not be opened: there is none for this PLC, the PLC lacks a device or the channels "
        "that it needs, or the language library that has it is missing.";
}

bool CFormFiller::Choose(CPosSelectDlg& selection)
{
    const auto items = CatalogueItems(selection.Mode(), selection.Wizard().GetPlcType());
    m_offered = std::any_of(items.begin(), items.end(), [&](const SCatalogueItem& item) {
        return item.choice == m_choice && selection.Offers(item);
    });
    selection.SetChoice(m_choice);
    return m_offered && !std::exchange(m_chosen, true); // after the dialog it is left
}

void CFormFiller::Work(CWzdDialog& dialog)
{
    m_dialog = &dialog;
    m_refusal = {};
    m_fields = CField::AllOf(dialog);
    const CWnd* const ok = dialog.GetDlgItem(IDOK);
    if (ok != nullptr && !ok->IsWindowEnabled())
        m_refusal.problem = kNotPossible;
    else
        MakeEntries(dialog);
    Finish(dialog);
    Explain();
    m_fields.clear();
    m_dialog = nullptr;
}

void CFormFiller::Finish(CWzdDialog& dialog)
{
    if (m_refusal.problem == kEntered)
        dialog.SendMessage(WM_COMMAND, IDOK);
}

void CFormFiller::BeRefused(UINT message, UINT control, int row, int column)
{
    if (m_refusal.problem != kEntered)
        return;
    m_refusal = {kByMessage, message, control, -1, row, column, {}, {}};
    for (size_t i = 0; i < m_entries.size() && m_dialog != nullptr; ++i)
        if (control != 0 &&
            (m_entries[i].control == control ||
             (m_entries[i].control == 0 && FieldName(m_dialog->TemplateId(), control) == m_entries[i].name)))
            m_refusal.entry = static_cast<int>(i);
}

// ---- Entries --------------------------------------------------------------------------------------------------------

// Page by page: a button that turns to other settings ends a page.
void CFormFiller::MakeEntries(CWzdDialog& dialog)
{
    std::vector<SPageEntry> page;
    for (int index = 0; index < static_cast<int>(m_entries.size()); ++index)
    {
        if (!Find(index, page))
            return;
        if (!dialog.TurnsPage(page.back().field.Id()))
            continue;
        std::vector<SPageEntry> turn = {page.back()};
        page.pop_back();
        if (!MakePage(page) || !MakePage(turn))
            return;
        page.clear();
    }
    MakePage(page);
}

bool CFormFiller::Find(int index, std::vector<SPageEntry>& page)
{
    const SFormEntry& entry = m_entries[static_cast<size_t>(index)];
    for (const CField& field : m_fields)
        if (entry.control != 0 ? field.Id() == entry.control : !field.Name().empty() && field.Name() == entry.name)
        {
            page.push_back({index, field});
            return true;
        }
    return Reject(index, {kNoField});
}

// Again and again until every field holds what was asked for: fields may wait for others, and change others.
bool CFormFiller::MakePage(std::vector<SPageEntry>& page)
{
    for (size_t pass = 0; pass <= page.size(); ++pass)
    {
        int rejected = -1;
        SEntryOutcome outcome;
        bool isComplete = true, isMoving = false;
        for (SPageEntry& entry : page)
        {
            const LPCSTR text = m_entries[static_cast<size_t>(entry.index)].text;
            if (entry.field.Holds(text))
                continue;
            isComplete = false;
            const SEntryOutcome made = entry.field.Enter(text);
            if (made.problem == kEntered)
                isMoving = entry.isMade = true;
            else if (rejected < 0)
            {
                rejected = entry.index;
                outcome = made;
            }
            if (made.problem == kCannotBeTyped)
                return Reject(entry.index, made);
        }
        if (isComplete)
            return AreEnabled(page);
        if (!isMoving)
            return Reject(rejected, outcome);
    }
    for (const SPageEntry& entry : page)
        if (!entry.field.Holds(m_entries[static_cast<size_t>(entry.index)].text))
            return Reject(entry.index, {kChangedAgain});
    return AreEnabled(page);
}

// An entry whose field another one has disabled afterwards would not count, and that depends on their order. A switch
// counts as it stands.
bool CFormFiller::AreEnabled(const std::vector<SPageEntry>& page)
{
    for (const SPageEntry& entry : page)
    {
        const bool isSwitch = entry.field.Kind() == kCheckField || entry.field.Kind() == kRadioField;
        if (entry.isMade && !isSwitch && !entry.field.IsEnabled())
            return Reject(entry.index, {kNotEnabled});
    }
    return true;
}

bool CFormFiller::Reject(int index, const SEntryOutcome& outcome)
{
    const SFormEntry& entry = m_entries[static_cast<size_t>(index)];
    m_refusal = {outcome.problem, 0, entry.control, index, outcome.row, outcome.column, {}, {}};
    if (entry.control == 0)
    {
        m_refusal.name = entry.name;
        for (const CField& field : m_fields)
            if (field.Name() == entry.name)
                m_refusal.control = field.Id();
    }
    return false;
}

// ---- What is told ---------------------------------------------------------------------------------------------------

void CFormFiller::Explain()
{
    SFormRefusal& refusal = m_refusal;
    if (refusal.control != 0 && refusal.name.empty())
        refusal.name = FieldName(m_dialog->TemplateId(), refusal.control);
    const std::string field = refusal.name.empty() ? std::to_string(refusal.control) : refusal.name;
    const std::string text = refusal.entry >= 0 ? m_entries[static_cast<size_t>(refusal.entry)].text : std::string();
    switch (refusal.problem)
    {
    case kByMessage: {
        int length = 0;
        const LPCWSTR message = AfxFindString(refusal.message, length);
        refusal.text = static_cast<LPCSTR>(AfxNarrow(message, length, CP_UTF8));
        break;
    }
    case kNoField:
        refusal.text = "The dialog has no field \"" + field + "\".";
        break;
    case kNoItem:
        refusal.text = "\"" + field + "\" cannot be set to \"" + text + "\".";
        break;
    case kCannotBeTyped:
        refusal.text =
            "\"" + field + "\" does not take the text \"" + text + "\": it is too long or has other characters.";
        break;
    case kNotEnabled:
        refusal.text = "\"" + field + "\" is not enabled with the other entries as they are.";
        break;
    case kChangedAgain:
        refusal.text = "\"" + field + "\" does not keep \"" + text + "\" with the other entries as they are.";
        break;
    case kNotPossible:
        refusal.text = "The PLC lacks what the dialog needs.";
        break;
    default:
        break;
    }
}
