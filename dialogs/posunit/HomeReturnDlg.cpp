#include "dialogs/posunit/HomeReturnDlg.h"

#include "dialogs/posunit/UnitRows.h"

CHomeReturnDlg::CHomeReturnDlg(CFunWizard* wizard, CWnd* parent) : CWzdDlgBase(wizard, IDD_HOME_RETURN, parent) {}

// clang-format off
void CHomeReturnDlg::DoFieldExchange(CWzdExchange* wx)
{
    WDX_Contact    (wx, IDS_ERR_UNIT_CONTACT);
    WDX_UnitAxis   (wx, IDC_HOME_SLOT, IDC_HOME_AXIS, 8);
    WDX_TableStart (wx, {.edit = IDC_HOME_START, .position = kTableOperand, .rangeLabel = IDC_HOME_START_RANGE});

    //              control                   field                           without a selection
    WDX_ControlCode(wx, kTwoRegisters);
    WDX_AxisCode   (wx, IDC_HOME_ACCELERATION,    EAxisCode::Acceleration);
    WDX_AxisCode   (wx, IDC_HOME_DIRECTION,       EAxisCode::HomeReturnDirection);
    WDX_AxisCode   (wx, IDC_HOME_STARTUP,         EAxisCode::StartupSpeed);
    WDX_HomeInputLogic(wx);
    WDX_AxisCode   (wx, IDC_CODE_HOME_SEARCH,     EAxisCode::HomeSearch);
    WDX_AxisCode   (wx, IDC_CODE_LIMIT_LOGIC,     EAxisCode::LimitLogic,        kCountsAsZero);
    WDX_AxisCode   (wx, IDC_CODE_S_CURVE,         EAxisCode::AccelerationCurve, kCountsAsZero);
    WDX_PulseOutput(wx);
    WDX_AxisCode   (wx, IDC_HOME_CLEAR_TIME,      EAxisCode::ClearTime,         kCountsAsZero);

    WDX_StartupSpeed    (wx, IDC_HOME_STARTUP_SPEED, 2);
    WDX_TargetSpeed     (wx, IDC_HOME_TARGET_SPEED,  4);
    WDX_AccelerationTime(wx, IDC_HOME_TIME,          6);

    WDX_StartOutput(wx, 2);
}
// clang-format on
