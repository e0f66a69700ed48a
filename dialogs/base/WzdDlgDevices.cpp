// Lists of devices, their ranges, and the numbers entered for them.
#include "core/Devices.h"
#include "core/FillText.h"
#include "core/FunWizard.h"
#include "core/Values.h"
#include "dialogs/base/ListFilling.h"
#include "dialogs/base/WzdDlgBase.h"
#include "resources/resource.h"

// ---- Lists ----------------------------------------------------------------------------------------------------------

namespace
{

constexpr BYTE kWithAllConstants = 3;

bool IsConstant(short code) { return code == kDeviceK || code == kDeviceH || code == kDeviceReal; }

const SWzdConstant* FindConstant(const SWzdRow& row, short code)
{
    const auto found = std::find_if(row.constants.begin(), row.constants.end(),
                                    [code](const SWzdConstant& constant) { return constant.code == code; });
    return found != row.constants.end() ? &*found : nullptr;
}

bool IsListed(const SWzdRow& row, short code, BYTE bitKind)
{
    if (IsConstant(code))
        return FindConstant(row, code) != nullptr;
    return row.devices == kListAll || (row.devices == kListWords) == (bitKind == kWordDevice);
}

bool IsPermitted(const SWzdRow& row, short code)
{
    return row.permitted == nullptr || IsDevicePermitted(*row.permitted, code);
}

CString RangeText(const SWzdConstant& constant)
{
    CString text;
    if (constant.rangeText != 0)
        text.LoadString(constant.rangeText);
    else
        text = FillText(IDS_RANGE_TEXT,
                        {constant.format.Format(constant.range.low), constant.format.Format(constant.range.high)});
    return text;
}

/// The highest number of a device less so many; below INT_MIN there is none.
int Lowered(int high, int less)
{
    return static_cast<int>(std::max<LONGLONG>(static_cast<LONGLONG>(high) - less, INT_MIN));
}

} // namespace

bool CWzdDlgBase::FillDeviceCombo(const SWzdRow& row, short wanted)
{
    auto* list = static_cast<CComboBox*>(GetDlgItem(row.combo));
    const int selected = list != nullptr ? ListDevices(list, row, wanted) : CB_ERR;
    if (selected < 0)
        return false;
    list->SetCurSel(selected);
    return true;
}

int CWzdDlgBase::ListDevices(CComboBox* list, const SWzdRow& row, short wanted) const
{
    const CListFilling filling(list);
    int wantedItem = -1;
    int preferredItem = 0;
    short kind, code;
    BYTE bitKind = kWordDevice;
    const BYTE options = row.constants.empty() ? 0 : kWithAllConstants;
    for (int index = 0, found; (found = Wizard().GetSeqDevInfo(index, kind, code, bitKind, options)) >= 0; index++)
    {
        if (row.devices == kListBits && bitKind == kWordDevice)
            break; // bit devices come first
        if (found > 0 || !IsListed(row, code, bitKind) || !IsPermitted(row, code) || !HasRoom(row, kind, code))
            continue;
        const CString name = FormatDeviceName(code);
        const int item = name.IsEmpty() ? CB_ERR : list->AddString(name);
        if (item < 0 || list->SetItemData(item, static_cast<DWORD>(MAKELONG(code, kind))) < 0)
            return CB_ERR;
        if (code == wanted)
            wantedItem = item;
        if (code == row.preferred)
            preferredItem = item;
    }
    return wantedItem >= 0 ? wantedItem : preferredItem;
}

bool CWzdDlgBase::FillContactCombo(int comboId, int contactIndex)
{
    short kind, wanted = -1;
    int number;
    if (contactIndex <= 0 || !Wizard().IsSameCondition())
        Wizard().GetContInfo(contactIndex, kind, wanted, number);
    return FillDeviceCombo({.combo = static_cast<UINT>(comboId)}, wanted);
}

bool CWzdDlgBase::GetSelectedDevice(int comboId, short& kind, short& code) const
{
    const auto* list = static_cast<CComboBox*>(GetDlgItem(comboId));
    const int selection = Selection(static_cast<UINT>(comboId));
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

// A device that ends too early for what begins at it is of no use.
bool CWzdDlgBase::HasRoom(const SWzdRow& row, short kind, short code) const
{
    int low, high;
    return row.less == 0 || !Wizard().GetDevRange(kind, code, low, high) ||
           static_cast<LONGLONG>(high) - row.less >= low;
}

bool CWzdDlgBase::ShowDeviceRange(const SWzdRow& row)
{
    short kind, code;
    int low, high;
    const auto combo = static_cast<int>(row.combo);
    const SWzdConstant* constant = GetSelectedDevice(combo, kind, code) ? FindConstant(row, code) : nullptr;
    if (constant != nullptr)
        SetItemText(row.rangeLabel, RangeText(*constant));
    else if (GetSelectedDeviceRange(combo, kind, code, low, high))
        SetItemText(row.rangeLabel,
                    FillText(IDS_RANGE_TEXT, {FormatDeviceNumber(code, low),
                                              FormatDeviceNumber(code, Lowered(high, row.less + row.shownLess))}));
    else
        return false;
    return true;
}

std::optional<SWzdAccepted> CWzdDlgBase::AcceptedNumbers(const SWzdRow& row) const
{
    short kind, code;
    int low, high;
    const auto combo = static_cast<int>(row.combo);
    if (!GetSelectedDevice(combo, kind, code))
        return std::nullopt;
    if (const SWzdConstant* constant = FindConstant(row, code))
        return CWzdField::NumbersOf(constant->range, constant->format);
    if (!Wizard().GetDevRange(kind, code, low, high))
        return std::nullopt;
    high = Lowered(high, row.less);
    return SWzdAccepted{{low, high}, FormatDeviceNumber(code, low), FormatDeviceNumber(code, high)};
}

CString CWzdDlgBase::FormatDevice(const SWzdRow& row, short code, int number)
{
    const SWzdConstant* constant = FindConstant(row, code);
    return constant != nullptr ? constant->format.Format(number) : FormatDeviceNumber(code, number);
}

bool CWzdDlgBase::ShowContactRange(int which)
{
    return ShowDeviceRange(which == 0 ? kStartingCondition : kSecondCondition);
}

// ---- Numbers --------------------------------------------------------------------------------------------------------

UINT CWzdDlgBase::CheckDevice(const SWzdRow& row, short& code, int& number) const
{
    short kind;
    int low, high;
    const auto combo = static_cast<int>(row.combo);
    const SWzdConstant* constant = GetSelectedDevice(combo, kind, code) ? FindConstant(row, code) : nullptr;
    if (constant != nullptr)
    {
        LONGLONG value;
        if (!constant->format.Parse(ItemText(row.edit), value))
            return IDS_ERR_NOT_A_NUMBER;
        number = static_cast<int>(value);
        return constant->range.Holds(value) ? 0 : row.message;
    }
    if (!GetSelectedDeviceRange(combo, kind, code, low, high))
        return row.message;
    if (!ParseDeviceNumber(code, ItemText(row.edit), number))
        return IDS_ERR_NOT_A_NUMBER;
    return number >= low && number <= Lowered(high, row.less) ? 0 : row.message;
}

bool CWzdDlgBase::ReadDevice(const SWzdRow& row, short& code, int& number)
{
    const UINT problem = CheckDevice(row, code, number);
    return problem == 0 || Refuse(row.edit, problem);
}
