#include "dialogs/pulse/PlshDlg.h"

#include "dialogs/pulse/PulseRows.h"

CPlshDlg::CPlshDlg(CFunWizard* wizard, UINT templateId, CWnd* parent) : CWzdDlgBase(wizard, templateId, parent) {}

// clang-format off
void CPlshDlg::DoFieldExchange(CWzdExchange* wx)
{
    WDX_Contact    (wx);
    WDX_TableStart (wx, {.edit = IDC_PLSH_START, .rangeLabel = IDC_PLSH_START_RANGE});
    WDX_Channel    (wx, IDC_PLSH_CHANNEL, kInstructionPlsh);

    WDX_ControlCode(wx, kTwoRegisters);
    WDX_Code       (wx, {.combo = IDC_PLSH_STOP_MODE,       .choices = kStopModes,     .bits = {16, 4}, .unselected = kCountsAsZero});
    WDX_Code       (wx, {.combo = IDC_PLSH_DUTY,            .choices = kDuties,        .bits = {12, 4}});
    WDX_Code       (wx, {.combo = IDC_PLSH_FREQUENCY_RANGE, .choices = kFrequencies,   .bits = {8, 4}});
    WDX_Code       (wx, {.combo = IDC_PLSH_OUTPUT_METHOD,   .choices = kJogMethods,    .bits = {0, 8}});

    const SWzdRange frequencies = SpeedRange(Selection(IDC_PLSH_FREQUENCY_RANGE), Selection(IDC_PLSH_CHANNEL));
    WDX_Number(wx, {.edit = IDC_PLSH_FREQUENCY, .entry = {2, kTwoRegisters}, .limit = 6, .range = frequencies,
                    .message = IDS_ERR_FREQUENCY, .rangeLabel = IDC_PLSH_FREQUENCY_BOUNDS});

    WDX_StopTarget (wx, 4);
}
// clang-format on
