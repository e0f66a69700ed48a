#include "dialogs/base/WzdDlgBase.h"

#include "afx/Clipboard.h"
#include "core/Devices.h"
#include "core/FillText.h"
#include "core/FunWizard.h"
#include "core/Values.h"
#include "dialogs/base/ListFilling.h"
#include "dialogs/base/UnseenUser.h"
#include "dialogs/base/WzdResults.h"
#include "resources/resource.h"

namespace
{

constexpr UINT kFirstChoice = IDCANCEL + 1; // OK and Cancel go their own ways
constexpr UINT kLastControl = 0x7FFF;
constexpr short kRangeKind = -1; // Under which hosts set the device ranges.

} // namespace

BEGIN_MESSAGE_MAP(CWzdDlgBase, CWzdDialog)
ON_BN_CLICKED(IDC_HELP_TOPIC, &CWzdDlgBase::OnHelpTopic)
ON_BN_CLICKED(IDC_CLEAR_SETTINGS, &CWzdDlgBase::OnClearSettings)
ON_BN_CLICKED(IDC_UNIT_CLEAR_SETTINGS, &CWzdDlgBase::OnClearSettings)
ON_CONTROL_RANGE(BN_CLICKED, kFirstChoice, kLastControl, &CWzdDlgBase::OnChanged)
ON_CONTROL_RANGE(CBN_SELCHANGE, kFirstChoice, kLastControl, &CWzdDlgBase::OnChanged)
ON_CONTROL_RANGE(EN_KILLFOCUS, kFirstChoice, kLastControl, &CWzdDlgBase::OnEditLeft)
END_MESSAGE_MAP()

CWzdDlgBase::CWzdDlgBase(CFunWizard* wizard, UINT templateId, CWnd* parent) : CWzdDialog(wizard, templateId, parent) {}

void CWzdDlgBase::DoFieldExchange(CWzdExchange*) {}

template <typename TAction>
bool CWzdDlgBase::ForEachField(EFields fields, TAction action)
{
    CWzdWalk walk(*this, fields == kAllFields, action);
    DoFieldExchange(&walk);
    return walk.Succeeded();
}

// ---- Opening and closing --------------------------------------------------------------------------------------------

bool CWzdDlgBase::Open()
{
    Check(IDC_ONLY_DATA_TABLE, Wizard().IsOnlyDataTable());
    if (!ForEachField(kAllFields, [](CWzdField& field) { return field.Open(); }))
        return false;
    RefreshFields();
    m_state = IsPossible() ? kOpen : kImpossible;
    if (m_state == kImpossible)
        DisableAllButFirstAndBack();
    return true;
}

bool CWzdDlgBase::IsPossible()
{
    return ForEachField(kActiveFields, [](CWzdField& field) { return field.IsPossible(); });
}

bool CWzdDlgBase::Confirm()
{
    CWzdResults results;
    if (!ForEachField(kActiveFields, [&results](CWzdField& field) { return field.Collect(results); }))
        return false;
    if (const CUnseenUser* const user = CUnseenUser::Current(); user != nullptr && !user->Stores())
        return true;
    if (!results.StoreIn(Wizard()))
    {
        ShowWarning(IDS_ERR_MEMORY);
        return false;
    }
    if (GetDlgItem(IDC_ONLY_DATA_TABLE) != nullptr)
        Wizard().SetOnlyDataTable(IsChecked(IDC_ONLY_DATA_TABLE));
    return true;
}

void CWzdDlgBase::CheckEachField()
{
    CWzdResults results;
    ForEachField(kActiveFields, [&results](CWzdField& field) {
        static_cast<void>(field.Collect(results));
        return true;
    });
}

void CWzdDlgBase::RefreshFields()
{
    ForEachField(kAllFields, [](CWzdField& field) {
        field.Refresh();
        return true;
    });
}

void CWzdDlgBase::OnChanged(UINT id)
{
    if (m_state != kOpen)
        return;
    ForEachField(kAllFields, [id](CWzdField& field) {
        field.OnChanged(id);
        return true;
    });
    RefreshFields();
}

void CWzdDlgBase::OnEditLeft(UINT id)
{
    if (m_state != kOpen)
        return;
    const bool isFollowed = !ForEachField(kActiveFields, [id](CWzdField& field) { return !field.FollowsEdit(id); });
    if (isFollowed)
        OnChanged(id);
}

void CWzdDlgBase::OnClearSettings()
{
    if (m_state != kOpen)
        return;
    ForEachField(kAllFields, [](CWzdField& field) {
        field.Clear();
        return true;
    });
    RefreshFields();
    CWnd* first = GetDlgItem(IDC_ONLY_DATA_TABLE);
    if (first == nullptr)
        first = GetDlgItem(IDC_CONTACT_DEVICE);
    if (first != nullptr)
        first->SetFocus();
}

void CWzdDlgBase::DisableAllButFirstAndBack()
{
    const CWnd* first = nullptr;
    for (CWnd* item = GetWindow(GW_CHILD); item != nullptr; item = item->GetWindow(GW_HWNDNEXT))
    {
        const int id = item->GetDlgCtrlID();
        if (id == 0)
            continue;
        if (first == nullptr)
            first = item;
        else if (id != IDCANCEL)
            item->EnableWindow(FALSE);
    }
    CWnd* const back = GetDlgItem(IDCANCEL);
    if (back != nullptr && CUnseenUser::Current() == nullptr)
        GotoDlgCtrl(back); // Enter presses it, too.
}

// ---- The data table -------------------------------------------------------------------------------------------------

BOOL CWzdDlgBase::GetDataTableRange(int& low, int& high)
{
    int last;
    if (!Wizard().GetDevRange(kRangeKind, kDeviceDT, low, last))
        return FALSE;
    const LONGLONG highest = std::min<LONGLONG>(last - (TableWords() - 1), INT_MAX);
    if (highest < low)
        return FALSE;
    high = static_cast<int>(highest);
    return TRUE;
}

LONGLONG CWzdDlgBase::TableWords()
{
    CWzdWalk declarations(*this, false, [](CWzdField&) { return true; });
    DoFieldExchange(&declarations);
    return declarations.TableWords();
}

void CWzdDlgBase::ShowRange(CWnd* label, SWzdRange range)
{
    SetText(label, FillText(IDS_RANGE_DECIMAL, {range.low, range.high}));
}

bool CWzdDlgBase::ShowDataTableRange(UINT labelId)
{
    int low, high;
    if (!GetDataTableRange(low, high))
        return false;
    ShowRange(GetDlgItem(labelId), {low, high});
    return true;
}

std::optional<DWORD> CWzdDlgBase::StoredControlCode() const
{
    SFunSetData data;
    if (!Wizard().GetDataInfo(0, &data) || data.code != kDeviceDT)
        return std::nullopt;
    return static_cast<DWORD>(data.value);
}

// ---- Checking -------------------------------------------------------------------------------------------------------

bool CWzdDlgBase::ReadNumber(UINT edit, SWzdRange range, UINT message, LONGLONG& value, const SWzdFormat& format)
{
    if (!format.Parse(ItemText(edit), value))
        return Refuse(edit, IDS_ERR_NOT_A_NUMBER);
    return range.Holds(value) || Refuse(edit, message);
}

void CWzdDlgBase::AddComment(CWzdResults& results, const SWzdRow& row) const
{
    const SWzdComment& comment = row.comment;
    if (comment.text != 0)
    {
        CString text;
        text.LoadString(comment.text);
        results.AddComment(text);
    }
    else if (comment.label != 0)
    {
        const CString joint = comment.secondLabel != 0 ? " " : "";
        if (GetDlgItem(comment.label) != nullptr)
            results.AddComment(ItemText(comment.label) + joint + ItemText(comment.secondLabel));
    }
    else
        results.AddCommentFrom(ControlBefore(row.combo != 0 ? row.combo : row.edit));
}

bool CWzdDlgBase::IsClipboardText() { return AfxIsClipboardText(); }
