#include "dialogs/channel/F177Dlg.h"

#include "dialogs/channel/ChannelRows.h"

CF177Dlg::CF177Dlg(CFunWizard* wizard, CWnd* parent) : CWzdDlgBase(wizard, IDD_B_F177, parent) {}

// The channels are those of F171.
// clang-format off
void CF177Dlg::DoFieldExchange(CWzdExchange* wx)
{
    WDX_Contact     (wx);
    WDX_TableStart  (wx, {.edit = IDC_F177_START, .rangeLabel = IDC_F177_START_RANGE});
    WDX_Channel     (wx, IDC_F177_CHANNEL, kInstructionSpdh);

    WDX_ControlCode (wx, kTwoRegisters);
    WDX_Code        (wx, {.combo = IDC_F177_MODE, .choices = kChannelHomeModes, .bits = {0, 8}});

    WDX_ChannelSpeed(wx, IDC_F177_TARGET_SPEED, 2, IDS_ERR_TARGET_SPEED);
    WDX_ChannelTimes(wx, IDC_F177_ACCELERATION, IDC_F177_DECELERATION, 4);
    WDX_ChannelSpeed(wx, IDC_F177_CREEP, 8, IDS_ERR_F177_CREEP_SPEED);
    WDX_CounterClear(wx, IDC_F177_CLEAR, 10, IDS_ERR_F177_COUNTER_CLEAR_SIGNAL);
}
// clang-format on
