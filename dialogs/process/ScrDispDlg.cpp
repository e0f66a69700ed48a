#include "dialogs/process/ScrDispDlg.h"

#include "core/Devices.h"
#include "core/FunWizard.h"
#include "core/Instructions.h"
#include "dialogs/process/DrawnControls.h"
#include "dialogs/process/ScreenDrawing.h"

namespace
{

constexpr SWzdChoice kScreens[] = {
    {IDS_SCREEN_N_MODE_1ST, 0}, {IDS_SCREEN_N_MODE_2ND, 1}, {IDS_SCREEN_S_MODE_1ST, 2}, {IDS_SCREEN_S_MODE_2ND, 3}};

/// A device of the instruction, by its operand.
struct SScreenDevice
{
    int operand;
    UINT combo;
    UINT edit;
    UINT range;
    UINT message;
    int shownLess;
};

constexpr int kWordsBehind = 2; // The control data takes three.

constexpr SScreenDevice kDevices[] = {
    {1, IDC_SCREEN_CONTROL_DEVICE, IDC_SCREEN_CONTROL, IDC_SCREEN_CONTROL_RANGE, IDS_ERR_SCREEN_CONTROL_DATA,
     kWordsBehind},
    {2, IDC_SCREEN_UPSIDE_DEVICE, IDC_SCREEN_UPSIDE, IDC_SCREEN_UPSIDE_RANGE, IDS_ERR_SCREEN_UPSIDE_DATA, 0},
    {3, IDC_SCREEN_DOWNSIDE_DEVICE, IDC_SCREEN_DOWNSIDE, IDC_SCREEN_DOWNSIDE_RANGE, IDS_ERR_SCREEN_DOWNSIDE_DATA, 0}};

} // namespace

BEGIN_MESSAGE_MAP(CScrDispDlg, CWzdDlgBase)
ON_EN_CHANGE(IDC_SCREEN_TEXT, &CScrDispDlg::OnTextChanged)
// Of two quick clicks the second comes as this.
ON_CONTROL_RANGE(BN_DOUBLECLICKED, IDC_SCREEN_MARK_1, IDC_SCREEN_MARK_8, &CScrDispDlg::OnChanged)
ON_WM_DRAWITEM()
END_MESSAGE_MAP()

CScrDispDlg::CScrDispDlg(CFunWizard* wizard, const ULONGLONG* permitted, CWnd* parent)
    : CWzdDlgBase(wizard, IDD_SCREEN, parent), m_permitted(permitted)
{
}

int CScrDispDlg::HelpTopic() const { return HELP_TOPIC_SCREEN; }

void CScrDispDlg::DoFieldExchange(CWzdExchange* wx)
{
    WDX_RegisterComments(wx, kBeforeTheLists);
    WDX_FixedContact(wx, kDeviceSpecialR, kFirstScanRelay);
    WDX_ConstantChoice(wx, {.combo = IDC_SCREEN, .choices = kScreens, .position = 0});
    for (const SScreenDevice& device : kDevices)
        WDX_DeviceOperand(wx, {.combo = device.combo,
                               .edit = device.edit,
                               .devices = kListAll,
                               .permitted = m_permitted != nullptr ? m_permitted + device.operand : nullptr,
                               .preferred = kDeviceDT,
                               .position = device.operand,
                               .shownLess = device.shownLess,
                               .message = device.message,
                               .rangeLabel = device.range});
    WDX_Screen(wx, m_input);
}

// An operand that no device of the PLC can be makes the dialog useless.
bool CScrDispDlg::Open()
{
    return CWzdDlgBase::Open() && std::all_of(std::begin(kDevices), std::end(kDevices), [this](const auto& device) {
               short kind, code;
               int low, high;
               return GetSelectedDeviceRange(static_cast<int>(device.combo), kind, code, low, high);
           });
}

// The dialog does not ask for a data table alone, so none is created alone.
bool CScrDispDlg::Confirm()
{
    if (!CWzdDlgBase::Confirm())
        return false;
    Wizard().SetOnlyDataTable(FALSE);
    return true;
}

std::optional<bool> CScrDispDlg::IsPressed(UINT id) const
{
    if (id < IDC_SCREEN_MARK_1 || id > IDC_SCREEN_MARK_8)
        return std::nullopt;
    return m_input.settings.IsMarkShown(static_cast<int>(id - IDC_SCREEN_MARK_1));
}

void CScrDispDlg::OnDrawItem(int id, LPDRAWITEMSTRUCT item)
{
    const auto control = static_cast<UINT>(id);
    if (control == IDC_SCREEN_PREVIEW)
        DrawScreen(*CDC::FromHandle(item->hDC), item->rcItem, m_input.settings, ItemText(IDC_SCREEN));
    else if (control >= IDC_SCREEN_MARK_1 && control <= IDC_SCREEN_MARK_8)
    {
        const auto mark = static_cast<int>(control - IDC_SCREEN_MARK_1);
        DrawMarkButton(*item, mark, m_input.settings.IsMarkShown(mark));
    }
    else if (control == IDC_SCREEN_COLOR && static_cast<int>(item->itemID) >= 0)
    {
        const auto* list = static_cast<CComboBox*>(GetDlgItem(control));
        const auto index = static_cast<int>(item->itemID);
        CString name;
        list->GetLBText(index, name);
        DrawSwatch(*item, ScreenColor(static_cast<DWORD>(list->GetItemData(index))), name);
    }
}
