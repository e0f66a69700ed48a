#include "dialogs/base/WzdDlgBase.h"

#include "afx/Clipboard.h"
#include "core/Devices.h"
#include "core/FillText.h"
#include "core/FunWizard.h"
#include "core/Values.h"
#include "dialogs/base/WzdResults.h"

#include <algorithm>
#include <climits>

namespace
{

constexpr UINT kFirstControl = 1;
constexpr UINT kLastControl = 0x7FFF;
constexpr short kRangeKind = -1; // Under which hosts set the device ranges.

} // namespace

// Every combo may change what another field shows or accepts, so a selection refreshes them all.
BEGIN_MESSAGE_MAP(CWzdDlgBase, CWzdDialog)
ON_CONTROL_RANGE(CBN_SELCHANGE, kFirstControl, kLastControl, &CWzdDlgBase::OnSelectionChanged)
ON_BN_CLICKED(IDC_ONLY_DATA_TABLE, &CWzdDlgBase::OnOnlyDataTable)
ON_BN_CLICKED(IDC_START_OUTPUT_ENABLE, &CWzdDlgBase::RefreshFields)
ON_BN_CLICKED(IDC_SAME_CONDITION, &CWzdDlgBase::RefreshFields)
ON_BN_CLICKED(IDC_CLEAR_SETTINGS, &CWzdDlgBase::OnClearSettings)
ON_BN_CLICKED(IDC_UNIT_CLEAR_SETTINGS, &CWzdDlgBase::OnClearSettings)
END_MESSAGE_MAP()

CWzdDlgBase::CWzdDlgBase(CFunWizard* wizard, UINT templateId, CWnd* parent) : CWzdDialog(wizard, templateId, parent) {}

void CWzdDlgBase::DoFieldExchange(CWzdExchange*) {}

template <typename TAction>
bool CWzdDlgBase::ForEachField(TAction action)
{
    CWzdWalk walk(*this, action);
    DoFieldExchange(&walk);
    return walk.Succeeded();
}

// ---- Opening and closing --------------------------------------------------------------------------------------------

bool CWzdDlgBase::Open()
{
    CheckDlgButton(IDC_ONLY_DATA_TABLE, Wizard().IsOnlyDataTable() ? BST_CHECKED : BST_UNCHECKED);
    if (!ForEachField([](CWzdField& field) { return field.Open(); }))
        return false;
    RefreshFields();
    int low, high;
    m_impossible = !GetDataTableRange(low, high);
    if (m_impossible)
        DisableAllButFirstAndBack();
    return true;
}

bool CWzdDlgBase::Confirm()
{
    CWzdResults results;
    if (!ForEachField([&results](CWzdField& field) { return field.Collect(results); }))
        return false;
    if (!results.StoreIn(Wizard()))
    {
        ShowWarning(IDS_ERR_MEMORY);
        return false;
    }
    if (GetDlgItem(IDC_ONLY_DATA_TABLE) != nullptr)
        Wizard().SetOnlyDataTable(IsChecked(IDC_ONLY_DATA_TABLE));
    return true;
}

void CWzdDlgBase::RefreshFields()
{
    if (m_impossible)
        return; // Everything stays disabled.
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
    if (contactIndex <= 0 || !Wizard().IsSameCondition())
        Wizard().GetContInfo(contactIndex, kind, wanted, number);

    list->ResetContent();
    list->SetCurSel(CB_ERR);
    short code;
    BYTE bitKind = kWordDevice;
    for (int index = 0, found; (found = Wizard().GetSeqDevInfo(index, kind, code, bitKind, 0)) >= 0; index++)
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
    const int count = Wizard().GetContInfoCount();
    const bool reverse = count >= 3 && Wizard().GetContInfo(count - 1, kind, code, number) && code == kDeviceY &&
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
    return GetSelectedDevice(comboId, kind, code) && Wizard().GetDevRange(kind, code, low, high);
}

bool CWzdDlgBase::ShowContactRange(UINT combo, UINT label)
{
    short kind, code;
    int low, high;
    if (!GetSelectedDeviceRange(combo, kind, code, low, high))
        return false;
    SetItemText(label, FillText(IDS_RANGE_TEXT, {FormatDeviceNumber(code, low), FormatDeviceNumber(code, high)}));
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
    CWzdWalk declarations(*this, [](CWzdField&) { return true; });
    DoFieldExchange(&declarations);
    return declarations.TableWords();
}

bool CWzdDlgBase::GetWordDeviceRange(short code, int& low, int& high) const
{
    return (code == kDeviceY || code == kDeviceWY) && Wizard().GetDevRange(kRangeKind, code, low, high) && high >= low;
}

void CWzdDlgBase::ShowRange(CWnd* label, SWzdRange range)
{
    if (label != nullptr)
        label->SetWindowText(FillText(IDS_RANGE_DECIMAL, {range.low, range.high}));
}

bool CWzdDlgBase::ShowDataTableRange(UINT labelId)
{
    int low, high;
    if (!GetDataTableRange(low, high))
        return false;
    ShowRange(GetDlgItem(labelId), {low, high});
    return true;
}

SWzdRange CWzdDlgBase::AxisRange() const { return {1, Wizard().IsAxisType() ? 2 : 4}; }

SWzdRange CWzdDlgBase::SlotRange() const { return {0, Wizard().GetMaxSlot() - 1}; }

void CWzdDlgBase::ShowAxisRange(UINT editId) { ShowRange(ControlAfter(editId), AxisRange()); }

void CWzdDlgBase::ShowSlotRange(UINT editId) { ShowRange(ControlAfter(editId), SlotRange()); }

LONGLONG CWzdDlgBase::StoredTableStart() const
{
    short code;
    int number;
    return Wizard().GetOprdInfo(0, code, number) && code == kDeviceDT ? number : -1;
}

DWORD CWzdDlgBase::StoredControlCode() const
{
    SFunSetData data;
    return Wizard().GetDataInfo(0, &data) && data.code == kDeviceDT ? static_cast<DWORD>(data.value) : 0;
}

// ---- Checking -------------------------------------------------------------------------------------------------------

bool CWzdDlgBase::ReadNumber(UINT edit, SWzdRange range, UINT message, LONGLONG& value, SWzdFormat format)
{
    if (!format.Parse(ItemText(edit), value))
        return Refuse(edit, IDS_ERR_NOT_A_NUMBER);
    return range.Holds(value) || Refuse(edit, message);
}

bool CWzdDlgBase::ReadContact(UINT combo, UINT edit, UINT message, short& code, int& number)
{
    short kind;
    int low, high;
    if (!GetSelectedDeviceRange(combo, kind, code, low, high))
        return Refuse(edit, message);
    if (!ParseDeviceNumber(code, ItemText(edit), number))
        return Refuse(edit, IDS_ERR_NOT_A_NUMBER);
    return (number >= low && number <= high) || Refuse(edit, message);
}

bool CWzdDlgBase::IsClipboardText() { return AfxIsClipboardText(); }

int CWzdDlgBase::UnitBufferAddress(int slot, int axis) { return axis < 1 ? -1 : (axis + slot * 8 + 9) * 16; }
