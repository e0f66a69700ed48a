#include "dialogs/process/PidDlg.h"

#include "dialogs/process/GainField.h"

namespace
{

constexpr SWzdChoice kAutoTuning[] = {{IDS_PID_NOT_EXECUTED, 0}, {IDS_PID_EXECUTED, 1}};
constexpr SWzdChoice kDerivative[] = {{IDS_PID_DERIVATIVE, 0}, {IDS_PID_PROPORTIONAL_DERIVATIVE, 1}};
constexpr SWzdChoice kOperation[] = {{IDS_PID_REVERSE, 0}, {IDS_PID_FORWARD, 1}};

constexpr int kWorkAreaOffset = 10;

} // namespace

CPidDlg::CPidDlg(CFunWizard* wizard, int workArea, CWnd* parent)
    : CWzdDlgBase(wizard, IDD_PID, parent), m_workArea(workArea)
{
}

int CPidDlg::HelpTopic() const { return HELP_TOPIC_PID; }

// clang-format off
void CPidDlg::DoFieldExchange(CWzdExchange* wx)
{
    WDX_Contact     (wx);
    WDX_TableStart  (wx, {.edit = IDC_PID_START, .format = Fixed(5, 0), .rangeLabel = IDC_PID_START_RANGE});
    WDX_Register    (wx, IDC_PID_PV, {2});
    WDX_Register    (wx, IDC_PID_MV, {3});
    WDX_RegisterSpan(wx, IDC_PID_WORK_AREA, {kWorkAreaOffset, kOneRegister, m_workArea + 1LL});

    WDX_ControlCode (wx, kOneRegister, kHexadecimalConstant, ControlBefore(IDC_PID_AUTO_TUNING, 2));
    WDX_Code        (wx, {.combo = IDC_PID_DERIVATIVE,  .choices = kDerivative, .bits = {1, 1}});
    WDX_Code        (wx, {.combo = IDC_PID_OPERATION,   .choices = kOperation,  .bits = {0, 1},  .unselected = kCountsAsZero});
    WDX_Code        (wx, {.combo = IDC_PID_AUTO_TUNING, .choices = kAutoTuning, .bits = {15, 1}, .unselected = kCountsAsZero});

    const bool automatic = IsAutoTuning();
    WDX_Number(wx, {.edit = IDC_PID_SP,    .entry = {1}, .format = Fixed(5, 0), .limit = 5, .range = {0, 10000},
                    .message = IDS_ERR_SET_VALUE, .check = IDC_PID_SP_USED, .used = true});
    WDX_Number(wx, {.edit = IDC_PID_LOWER, .entry = {4}, .format = Fixed(2, 2), .limit = 5, .range = {0, 9999},
                    .message = IDS_ERR_OUTPUT_LOWER_LIMIT, .check = IDC_PID_LOWER_USED, .initial = "0", .used = true});
    WDX_Number(wx, {.edit = IDC_PID_UPPER, .entry = {5}, .format = Fixed(3, 2), .limit = 6, .range = {1, 10000},
                    .message = IDS_ERR_OUTPUT_UPPER_LIMIT, .check = IDC_PID_UPPER_USED, .initial = "100", .used = true});
    WDX_Gain  (wx, {.edit = IDC_PID_KP,    .entry = {6}, .format = Fixed(3, 1), .limit = 5, .range = {1, 9999},
                    .message = IDS_ERR_PROPORTIONAL_GAIN, .check = IDC_PID_KP_USED, .initial = "0.1"}, automatic);
    WDX_Gain  (wx, {.edit = IDC_PID_TI,    .entry = {7}, .format = Fixed(4, 1), .limit = 6, .range = {0, 30000},
                    .message = IDS_ERR_INTEGRAL_TIME, .check = IDC_PID_TI_USED, .initial = "0.1"}, automatic);
    WDX_Gain  (wx, {.edit = IDC_PID_TD,    .entry = {8}, .format = Fixed(4, 1), .limit = 6, .range = {0, 10000},
                    .message = IDS_ERR_DERIVATIVE_TIME, .check = IDC_PID_TD_USED, .initial = "0", .used = false}, automatic);
    WDX_Number(wx, {.edit = IDC_PID_TS,    .entry = {9}, .format = Fixed(2, 2), .limit = 4, .range = {1, 6000},
                    .message = IDS_ERR_CONTROL_CYCLE, .check = IDC_PID_TS_USED, .used = true});

    WDX_RegisterComments(wx, kBehindTheLists);
}
// clang-format on

// Hosts count; a work area that ends before it begins makes the table shorter than its entries.
LONGLONG CPidDlg::TableWords() { return kWorkAreaOffset + 1LL + m_workArea; }

// Any of the low bits but the first stands for the proportional-derivative type.
std::optional<DWORD> CPidDlg::StoredControlCode() const
{
    const DWORD code = CWzdDlgBase::StoredControlCode().value_or(0);
    return (code & 0x8001) | ((code & 0x000F) >= 2 ? 2 : 0);
}

// Without a derivative type there is no control mode, and so no auto-tuning in it.
bool CPidDlg::IsAutoTuning() const { return Selection(IDC_PID_DERIVATIVE) >= 0 && Selection(IDC_PID_AUTO_TUNING) == 1; }
