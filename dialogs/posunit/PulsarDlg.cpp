#include "dialogs/posunit/PulsarDlg.h"

#include "dialogs/posunit/UnitRows.h"

CPulsarDlg::CPulsarDlg(CFunWizard* wizard, CWnd* parent) : CWzdDlgBase(wizard, IDD_PULSAR, parent) {}

// clang-format off
void CPulsarDlg::DoFieldExchange(CWzdExchange* wx)
{
    constexpr int kControlCodeAlone = 2; // words: the target speed stays in the table

    WDX_Contact    (wx, IDS_ERR_UNIT_CONTACT);
    WDX_UnitAxis   (wx, IDC_PULSAR_SLOT, IDC_PULSAR_AXIS, kControlCodeAlone);
    WDX_TableStart (wx, {.edit = IDC_PULSAR_START, .position = kTableOperand, .rangeLabel = IDC_PULSAR_START_RANGE});

    //              control                   field                         without a selection
    WDX_ControlCode(wx, kTwoRegisters);
    WDX_AxisCode   (wx, IDC_CODE_INPUT_ROTATION,  EAxisCode::InputRotation);
    WDX_AxisCode   (wx, IDC_CODE_INPUT_COUNT,     EAxisCode::InputCount);
    WDX_AxisCode   (wx, IDC_CODE_INPUT_MODE,      EAxisCode::InputMode,      kCountsAsZero);
    WDX_AxisCode   (wx, IDC_CODE_INPUT_MULTIPLE,  EAxisCode::InputMultiple,  kCountsAsZero);
    WDX_AxisCode   (wx, IDC_PULSAR_MULTIPLE,      EAxisCode::PulsarMultiple, kCountsAsZero);
    WDX_HomeInputLogic(wx);
    WDX_AxisCode   (wx, IDC_CODE_LIMIT_LOGIC,     EAxisCode::LimitLogic,     kCountsAsZero);
    WDX_PulseOutput(wx);

    WDX_TargetSpeed(wx, IDC_PULSAR_TARGET_SPEED, 4); // The registers between belong to nothing.

    WDX_StartOutput(wx, 7);
}
// clang-format on
