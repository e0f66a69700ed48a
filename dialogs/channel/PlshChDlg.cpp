#include "dialogs/channel/PlshChDlg.h"

#include "dialogs/channel/ChannelRows.h"

CPlshChDlg::CPlshChDlg(CFunWizard* wizard, CWnd* parent) : CWzdDlgBase(wizard, IDD_B_PLSH, parent) {}

// clang-format off
void CPlshChDlg::DoFieldExchange(CWzdExchange* wx)
{
    WDX_Contact     (wx);
    WDX_TableStart  (wx, {.edit = IDC_PLSH_START, .rangeLabel = IDC_PLSH_START_RANGE});
    WDX_Channel     (wx, IDC_PLSH_CHANNEL, kInstructionPlsh);

    WDX_ControlCode (wx, kTwoRegisters);
    WDX_Code        (wx, {.combo = IDC_PLSH_STOP_MODE,     .choices = kStopModes,  .bits = {16, 4}, .unselected = kCountsAsZero});
    WDX_Code        (wx, {.combo = IDC_PLSH_DUTY,          .choices = kDuties,     .bits = {12, 4}});
    WDX_Code        (wx, {.combo = IDC_PLSH_OUTPUT_METHOD, .choices = kJogMethods, .bits = {0, 8}});

    WDX_ChannelSpeed(wx, IDC_B_PLSH_INITIAL,      2, IDS_ERR_INITIAL_SPEED);
    WDX_ChannelSpeed(wx, IDC_B_PLSH_TARGET_SPEED, 4, IDS_ERR_TARGET_SPEED);
    WDX_ChannelTimes(wx, IDC_B_PLSH_ACCELERATION, IDC_B_PLSH_DECELERATION, 6);
    WDX_StopTarget  (wx, 10);
}
// clang-format on
