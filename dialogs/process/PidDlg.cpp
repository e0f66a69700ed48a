#include "dialogs/process/PidDlg.h"

namespace
{

constexpr SWzdChoice kAutoTuning[] = {{IDS_PID_NOT_EXECUTED, 0}, {IDS_PID_EXECUTED, 1}};
constexpr SWzdChoice kDerivative[] = {{IDS_PID_DERIVATIVE, 0}, {IDS_PID_PROPORTIONAL_DERIVATIVE, 1}};
constexpr SWzdChoice kOperation[] = {{IDS_PID_REVERSE, 0}, {IDS_PID_FORWARD, 1}};

// The gains are found by auto-tuning itself, which starts from these.
constexpr LPCSTR kFirstKp = "0.1";
constexpr LPCSTR kFirstTi = "0.1";
constexpr LPCSTR kFirstTd = "0";

constexpr struct
{
    UINT check;
    UINT edit;
    LPCSTR first;
} kGains[] = {
    {IDC_PID_KP_USED, IDC_PID_KP, kFirstKp},
    {IDC_PID_TI_USED, IDC_PID_TI, kFirstTi},
    {IDC_PID_TD_USED, IDC_PID_TD, kFirstTd},
};

constexpr SWzdFormat kStartFormat = {5, 0};
constexpr int kWorkAreaOffset = 10;

} // namespace

BEGIN_MESSAGE_MAP(CPidDlg, CWzdDlgBase)
ON_CBN_SELCHANGE(IDC_PID_AUTO_TUNING, &CPidDlg::OnAutoTuning)
ON_EN_KILLFOCUS(IDC_PID_START, &CPidDlg::OnStartLeft)
ON_CONTROL_RANGE(BN_CLICKED, IDC_PID_SP_USED, IDC_PID_TS_USED, &CPidDlg::OnUsedChanged)
END_MESSAGE_MAP()

CPidDlg::CPidDlg(CFunWizard* wizard, int workArea, CWnd* parent)
    : CWzdDlgBase(wizard, IDD_PID, parent), m_workArea(workArea)
{
}

int CPidDlg::HelpTopic() const { return HELP_TOPIC_PID; }

// clang-format off
void CPidDlg::DoFieldExchange(CWzdExchange* wx)
{
    const bool automatic = IsAutoTuning();

    WDX_Contact     (wx);
    WDX_TableStart  (wx, IDC_PID_START, IDC_PID_START_RANGE, 0, kStartFormat);
    WDX_Register    (wx, IDC_PID_PV, IDC_PID_START, kStartFormat, 2);
    WDX_Register    (wx, IDC_PID_MV, IDC_PID_START, kStartFormat, 3);
    WDX_Registers   (wx, IDC_PID_WORK_AREA, IDC_PID_START, kStartFormat, kWorkAreaOffset, m_workArea + 1LL);

    //               control                bits     items
    WDX_ControlCode (wx, kOneRegister, ControlBefore(IDC_PID_AUTO_TUNING, 2));
    WDX_Code        (wx, IDC_PID_DERIVATIVE,  {1, 1},  kDerivative);
    WDX_Code        (wx, IDC_PID_OPERATION,   {0, 1},  kOperation, {}, kCountsAsZero);
    WDX_Code        (wx, IDC_PID_AUTO_TUNING, {15, 1}, kAutoTuning, {}, kCountsAsZero);

    //                     used              value       offset  digits  limit  accepted    message when outside       first    used   automatic
    WDX_Parameter(wx, {IDC_PID_SP_USED,    IDC_PID_SP,     1,    {5, 0},   5,  {0, 10000}, IDS_ERR_SET_VALUE,          "",      true,  false});
    WDX_Parameter(wx, {IDC_PID_LOWER_USED, IDC_PID_LOWER,  4,    {2, 2},   5,  {0, 9999},  IDS_ERR_OUTPUT_LOWER_LIMIT, "0",     true,  false});
    WDX_Parameter(wx, {IDC_PID_UPPER_USED, IDC_PID_UPPER,  5,    {3, 2},   6,  {1, 10000}, IDS_ERR_OUTPUT_UPPER_LIMIT, "100",   true,  false});
    WDX_Parameter(wx, {IDC_PID_KP_USED,    IDC_PID_KP,     6,    {3, 1},   5,  {1, 9999},  IDS_ERR_PROPORTIONAL_GAIN,  kFirstKp, false, automatic});
    WDX_Parameter(wx, {IDC_PID_TI_USED,    IDC_PID_TI,     7,    {4, 1},   6,  {0, 30000}, IDS_ERR_INTEGRAL_TIME,      kFirstTi, false, automatic});
    WDX_Parameter(wx, {IDC_PID_TD_USED,    IDC_PID_TD,     8,    {4, 1},   6,  {0, 10000}, IDS_ERR_DERIVATIVE_TIME,    kFirstTd, false, automatic});
    WDX_Parameter(wx, {IDC_PID_TS_USED,    IDC_PID_TS,     9,    {2, 2},   4,  {1, 6000},  IDS_ERR_CONTROL_CYCLE,      "",      true,  false});

    WDX_RegisterComments(wx);
}
// clang-format on

LONGLONG CPidDlg::TableWords() { return kWorkAreaOffset + 1LL + m_workArea; }

// Any of the low bits but the first stands for the proportional-derivative type.
DWORD CPidDlg::StoredControlCode() const
{
    const DWORD code = CWzdDlgBase::StoredControlCode();
    return (code & 0x8001) | ((code & 0x000F) >= 2 ? 2 : 0);
}

// Without a derivative type there is no control mode, and so no auto-tuning in it.
bool CPidDlg::IsAutoTuning() const { return Selection(IDC_PID_DERIVATIVE) >= 0 && Selection(IDC_PID_AUTO_TUNING) == 1; }

bool CPidDlg::Open()
{
    const bool opened = CWzdDlgBase::Open();
    m_autoTuning = IsAutoTuning();
    return opened;
}

void CPidDlg::OnAutoTuning()
{
    const bool automatic = IsAutoTuning();
    if (automatic == m_autoTuning)
        return;
    m_autoTuning = automatic;
    for (const auto& gain : kGains)
    {
        CheckDlgButton(gain.check, automatic ? BST_CHECKED : BST_UNCHECKED);
        if (automatic)
            SetItemText(gain.edit, gain.first);
    }
    RefreshFields();
}

void CPidDlg::OnStartLeft() { RefreshFields(); }

void CPidDlg::OnUsedChanged(UINT) { RefreshFields(); }
