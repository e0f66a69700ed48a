#include "dialogs/base/WzdDlgBase.h"

#include "afx/Clipboard.h"
#include "core/AppName.h"
#include "core/Devices.h"
#include "core/FunWizard.h"
#include "core/Memory.h"
#include "core/ResourceScope.h"
#include "core/Values.h"
#include "dialogs/base/WzdResults.h"

namespace
{

constexpr UINT kFirstControl = 1;
constexpr UINT kLastControl = 0x7FFF;
constexpr short kRangeKind = -1; // Under which hosts set the device ranges.

} // namespace

// Every combo may change what another field shows or accepts, so a selection refreshes them all.
BEGIN_MESSAGE_MAP(CWzdDlgBase, CDialog)
ON_CONTROL_RANGE(CBN_SELCHANGE, kFirstControl, kLastControl, &CWzdDlgBase::OnSelectionChanged)
ON_BN_CLICKED(IDC_ONLY_DATA_TABLE, &CWzdDlgBase::OnOnlyDataTable)
ON_BN_CLICKED(IDC_CLEAR_SETTINGS, &CWzdDlgBase::OnClearSettings)
ON_BN_CLICKED(IDC_UNIT_CLEAR_SETTINGS, &CWzdDlgBase::OnClearSettings)
END_MESSAGE_MAP()

CWzdDlgBase::CWzdDlgBase(CFunWizard* wizard, UINT templateId, CWnd* parent)
    : CDialog(templateId, parent), m_wizard(wizard)
{
}

INT_PTR CWzdDlgBase::DoModal()
{
    CResourceScope scope(m_wizard != nullptr ? m_wizard->GetLoadInstance() : nullptr);
    return CDialog::DoModal();
}

void CWzdDlgBase::DoFieldExchange(CWzdExchange*) {}

template <typename TAction>
bool CWzdDlgBase::ForEachField(TAction action)
{
    CWzdWalk walk(*this, action);
    DoFieldExchange(&walk);
    return walk.Succeeded();
}

// ---- Opening and closing --------------------------------------------------------------------------------------------

BOOL CWzdDlgBase::OnInitDialog()
{
    CDialog::OnInitDialog();
    bool opened = false;
    const int enough = WithMemory([&] {
        if (m_wizard == nullptr)
            return;
        m_wizard->SetDlgFont(this, 0, nullptr);
        CheckDlgButton(IDC_ONLY_DATA_TABLE, m_wizard->IsOnlyDataTable() ? BST_CHECKED : BST_UNCHECKED);
        opened = ForEachField([](CWzdField& field) { return field.Open(); });
        if (opened)
            RefreshFields();
    });
    if (!enough || !opened)
    {
        EndDialog(IDCANCEL);
        return TRUE;
    }
    int low, high;
    if (GetDataTableRange(low, high))
        return TRUE;
    DisableAllButFirstAndBack();
    return FALSE; // Back has the focus.
}

void CWzdDlgBase::OnOK()
{
    bool confirmed = false;
    if (!WithMemory([&] { confirmed = Confirm(); }))
        ShowWarning(IDS_ERR_MEMORY);
    else if (confirmed)
        EndDialog(IDOK);
}

bool CWzdDlgBase::Confirm()
{
    CWzdResults results;
    if (!ForEachField([&results](CWzdField& field) { return field.Collect(results); }))
        return false;
    if (!results.StoreIn(*m_wizard))
    {
        ShowWarning(IDS_ERR_MEMORY);
        return false;
    }
    if (GetDlgItem(IDC_ONLY_DATA_TABLE) != nullptr)
        m_wizard->SetOnlyDataTable(IsChecked(IDC_ONLY_DATA_TABLE));
    return true;
}

void CWzdDlgBase::RefreshFields()
{
    ForEachField([](CWzdField& field) {
        field.Refresh();
        return true;
    });
}

void CWzdDlgBase::OnSelectionChanged(UINT) { RefreshFields(); }

void CWzdDlgBase::OnOnlyDataTable()
{
    ForEachField([](CWzdField& field) {
        field.OnOnlyDataTable();
        return true;
    });
    RefreshFields();
}

void CWzdDlgBase::OnClearSettings()
{
    ForEachField([](CWzdField& field) {
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

// ---- Controls -------------------------------------------------------------------------------------------------------

CString CWzdDlgBase::ItemText(UINT id) const
{
    CString text;
    if (const CWnd* item = GetDlgItem(id))
        item->GetWindowText(text);
    return text;
}

void CWzdDlgBase::SetItemText(UINT id, LPCSTR text)
{
    if (CWnd* item = GetDlgItem(id))
        item->SetWindowText(text);
}

bool CWzdDlgBase::IsChecked(UINT id) const { return IsDlgButtonChecked(id) == BST_CHECKED; }

int CWzdDlgBase::Selection(UINT combo) const
{
    const auto* list = static_cast<CComboBox*>(GetDlgItem(combo));
    return list != nullptr ? list->GetCurSel() : CB_ERR;
}

void CWzdDlgBase::Select(UINT combo, int index)
{
    if (auto* list = static_cast<CComboBox*>(GetDlgItem(combo)))
        list->SetCurSel(index);
}

void CWzdDlgBase::Enable(UINT id, bool enabled)
{
    if (CWnd* item = GetDlgItem(id))
        item->EnableWindow(enabled);
}

void CWzdDlgBase::LimitText(UINT edit, int characters)
{
    if (auto* item = static_cast<CEdit*>(GetDlgItem(edit)))
        item->LimitText(characters);
}

CWnd* CWzdDlgBase::ControlBefore(UINT id) const
{
    const CWnd* item = GetDlgItem(id);
    return item != nullptr ? item->GetWindow(GW_HWNDPREV) : nullptr;
}

CWnd* CWzdDlgBase::ControlAfter(UINT id) const
{
    const CWnd* item = GetDlgItem(id);
    return item != nullptr ? item->GetWindow(GW_HWNDNEXT) : nullptr;
}

bool CWzdDlgBase::FillCombo(UINT combo, CWzdChoices choices)
{
    auto* list = static_cast<CComboBox*>(GetDlgItem(combo));
    if (list == nullptr)
        return false;
    list->ResetContent();
    for (const SWzdChoice& choice : choices)
    {
        CString text;
        if (choice.argument == SWzdChoice::kPlainText)
            text.LoadString(choice.text);
        else
            text.Format(choice.text, choice.argument);
        if (text.IsEmpty() || list->AddString(text) < 0)
            return false;
    }
    return true;
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
    if (CWnd* back = GetDlgItem(IDCANCEL))
        GotoDlgCtrl(back); // Enter presses it, too.
}

// ---- Contacts -------------------------------------------------------------------------------------------------------

bool CWzdDlgBase::FillContactCombo(int comboId, int contactIndex)
{
    auto* list = static_cast<CComboBox*>(GetDlgItem(comboId));
    if (list == nullptr)
        return false;
    short kind, wanted = -1;
    int number;
    if (contactIndex <= 0 || !m_wizard->IsSameCondition())
        m_wizard->GetContInfo(contactIndex, kind, wanted, number);

    list->ResetContent();
    list->SetCurSel(CB_ERR);
    short code;
    BYTE bitKind = kWordDevice;
    for (int index = 0, found; (found = m_wizard->GetSeqDevInfo(index, kind, code, bitKind, 0)) >= 0; index++)
    {
        if (bitKind == kWordDevice)
            break;
        if (found > 0)
            continue;
        const CString name = FormatDeviceName(code);
        const int item = name.IsEmpty() ? CB_ERR : list->AddString(name);
        if (item < 0 || list->SetItemData(item, MAKELONG(code, kind)) < 0)
            return false;
        if (code == wanted)
            list->SetCurSel(item);
    }
    if (list->GetCurSel() == CB_ERR)
        list->SetCurSel(0);
    return true;
}

bool CWzdDlgBase::FillJogDirectionCombo()
{
    static constexpr SWzdChoice kDirections[] = {{IDS_JOG_FORWARD, 0}, {IDS_JOG_REVERSE, 1}};
    if (!FillCombo(IDC_JOG_DIRECTION, kDirections))
        return false;
    short kind, code;
    int number;
    const int count = m_wizard->GetContInfoCount();
    const bool reverse = count >= 3 && m_wizard->GetContInfo(count - 1, kind, code, number) && code == kDeviceY &&
                         FormatDeviceNumber(kDeviceY, number).Right(1) == "4";
    Select(IDC_JOG_DIRECTION, reverse ? 1 : 0);
    return true;
}

bool CWzdDlgBase::GetSelectedDevice(int comboId, short& kind, short& code) const
{
    const auto* list = static_cast<CComboBox*>(GetDlgItem(comboId));
    const int selection = Selection(comboId);
    if (selection == CB_ERR)
        return false;
    const auto data = static_cast<DWORD>(list->GetItemData(selection));
    kind = static_cast<short>(HIWORD(data));
    code = static_cast<short>(LOWORD(data));
    return code >= 0;
}

bool CWzdDlgBase::GetSelectedDeviceRange(int comboId, short& kind, short& code, int& low, int& high) const
{
    return GetSelectedDevice(comboId, kind, code) && m_wizard->GetDevRange(kind, code, low, high);
}

bool CWzdDlgBase::ShowContactRange(UINT combo, UINT label)
{
    short kind, code;
    int low, high;
    if (!GetSelectedDeviceRange(combo, kind, code, low, high))
        return false;
    CString text;
    text.Format(IDS_RANGE_TEXT, static_cast<LPCSTR>(FormatDeviceNumber(code, low)),
                static_cast<LPCSTR>(FormatDeviceNumber(code, high)));
    SetItemText(label, text);
    return true;
}

bool CWzdDlgBase::ShowContactRange(int which)
{
    return which == 0 ? ShowContactRange(IDC_CONTACT_DEVICE, IDC_CONTACT_RANGE)
                      : ShowContactRange(IDC_SECOND_DEVICE, IDC_SECOND_RANGE);
}

// ---- Ranges ---------------------------------------------------------------------------------------------------------

BOOL CWzdDlgBase::GetDataTableRange(int& low, int& high)
{
    int last;
    if (m_wizard == nullptr || !m_wizard->GetDevRange(kRangeKind, kDeviceDT, low, last))
        return FALSE;
    const LONGLONG highest = static_cast<LONGLONG>(last) - (TableWords() - 1);
    if (highest < low)
        return FALSE;
    high = static_cast<int>(highest);
    return TRUE;
}

bool CWzdDlgBase::GetWordDeviceRange(short code, int& low, int& high) const
{
    return (code == kDeviceY || code == kDeviceWY) && m_wizard->GetDevRange(kRangeKind, code, low, high) && high >= low;
}

void CWzdDlgBase::ShowRange(CWnd* label, SWzdRange range)
{
    if (label == nullptr)
        return;
    CString text;
    text.Format(IDS_RANGE_DECIMAL, static_cast<int>(range.low), static_cast<int>(range.high));
    label->SetWindowText(text);
}

bool CWzdDlgBase::ShowDataTableRange(UINT labelId)
{
    int low, high;
    if (!GetDataTableRange(low, high))
        return false;
    ShowRange(GetDlgItem(labelId), {low, high});
    return true;
}

void CWzdDlgBase::ShowAxisRange(UINT editId) { ShowRange(ControlAfter(editId), {1, m_wizard->IsAxisType() ? 2 : 4}); }

void CWzdDlgBase::ShowSlotRange(UINT editId) { ShowRange(ControlAfter(editId), {0, m_wizard->GetMaxSlot() - 1}); }

DWORD CWzdDlgBase::StoredControlCode() const
{
    SFunSetData data;
    return m_wizard->GetDataInfo(0, &data) && data.code == kDeviceDT ? static_cast<DWORD>(data.value) : 0;
}

// ---- Checking -------------------------------------------------------------------------------------------------------

bool CWzdDlgBase::ReadNumber(UINT edit, SWzdRange range, UINT message, LONGLONG& value)
{
    BOOL ok = FALSE;
    value = ParseEntry64(ItemText(edit), &ok);
    if (!ok)
        return Refuse(edit, IDS_ERR_NOT_A_NUMBER);
    return range.Holds(value) || Refuse(edit, message);
}

bool CWzdDlgBase::Refuse(UINT edit, UINT message)
{
    if (auto* item = static_cast<CEdit*>(GetDlgItem(edit)))
    {
        item->SetSel(0, -1); // and scrolls it into view
        item->SetFocus();
    }
    ShowWarning(message);
    return false;
}

int CWzdDlgBase::ShowWarning(UINT stringId, UINT flags)
{
    // Without allocating: the message may be that memory has run out.
    char text[512];
    AfxLoadString(stringId, text, sizeof text);
    CWnd* owner = CWnd::GetSafeOwner();
    return (owner != nullptr ? owner : this)->MessageBox(text, GetAppName(), flags | MB_ICONEXCLAMATION);
}

bool CWzdDlgBase::IsClipboardText() { return AfxIsClipboardText(); }

int CWzdDlgBase::UnitBufferAddress(int slot, int axis) { return axis < 1 ? -1 : (axis + slot * 8 + 9) * 16; }
