#include "dialogs/posunit/JogDlg.h"

#include "dialogs/posunit/UnitRows.h"

namespace
{

// In the relays of the axis.
constexpr int kForwardBit = 3;
constexpr int kReverseBit = 4;

constexpr SWzdRow kSpeedChangeCondition = {.combo = IDC_JOG_CHANGE_DEVICE,
                                           .edit = IDC_JOG_CHANGE_NUMBER,
                                           .position = 1,
                                           .limit = 4,
                                           .message = IDS_ERR_SPEED_CHANGE_CONTACT,
                                           .rangeLabel = IDC_JOG_CHANGE_RANGE};

} // namespace

CJogDlg::CJogDlg(CFunWizard* wizard, bool speedChange, CWnd* parent)
    : CWzdDlgBase(wizard, speedChange ? IDD_JOG_SPEED_CHANGE : IDD_JOG, parent), m_speedChange(speedChange)
{
}

// clang-format off
void CJogDlg::DoFieldExchange(CWzdExchange* wx)
{
    WDX_Contact    (wx, IDS_ERR_UNIT_CONTACT);
    WDX_UnitAxis   (wx, IDC_JOG_SLOT, IDC_JOG_AXIS, 8);
    WDX_TableStart (wx, {.edit = IDC_JOG_START, .position = kTableOperand, .rangeLabel = IDC_JOG_START_RANGE});

    //              control                   field                         without a selection
    WDX_ControlCode(wx, kTwoRegisters);
    WDX_AxisCode   (wx, IDC_JOG_ACCELERATION,     EAxisCode::Acceleration);
    WDX_AxisCode   (wx, IDC_JOG_STARTUP,          EAxisCode::StartupSpeed);
    WDX_HomeInputLogic(wx);
    WDX_AxisCode   (wx, IDC_CODE_LIMIT_LOGIC,     EAxisCode::LimitLogic,        kCountsAsZero);
    WDX_AxisCode   (wx, IDC_CODE_S_CURVE,         EAxisCode::AccelerationCurve, kCountsAsZero);
    WDX_PulseOutput(wx);

    WDX_StartupSpeed(wx, IDC_JOG_STARTUP_SPEED, 2);
    if (m_speedChange)
    {
        // The speed change writes the high speed over the low one, so both are meant for the same register.
        WDX_TargetSpeed(wx, IDC_JOG_TARGET_SPEED, 4, IDS_TARGET_SPEED);
        WDX_TargetSpeed(wx, IDC_JOG_HIGH_SPEED,   4, IDS_TARGET_SPEED);
    }
    else
        WDX_TargetSpeed(wx, IDC_JOG_TARGET_SPEED, 4);
    WDX_AccelerationTime(wx, IDC_JOG_TIME, 6);
    if (m_speedChange)
        WDX_Contact(wx, kSpeedChangeCondition);

    WDX_JogDirection(wx);
    WDX_StartOutput (wx, Selection(IDC_JOG_DIRECTION) == 1 ? kReverseBit : kForwardBit);
}
// clang-format on
