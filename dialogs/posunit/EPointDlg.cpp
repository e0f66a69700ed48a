#include "dialogs/posunit/EPointDlg.h"

#include "dialogs/posunit/UnitRows.h"

namespace
{

/// What the forms differ in.
struct SForm
{
    UINT caption; // 0: that of the template
    int startBit; // in the relays of the axis
};

constexpr SForm kForms[] = {{0, 0}, {IDS_CAPTION_P_POINT_START, 1}, {IDS_CAPTION_JOG_POSITIONING, 8}};

} // namespace

CEPointDlg::CEPointDlg(CFunWizard* wizard, EEPointForm form, CWnd* parent)
    : CWzdDlgBase(wizard, IDD_EPOINT, parent), m_form(form)
{
}

// clang-format off
void CEPointDlg::DoFieldExchange(CWzdExchange* wx)
{
    WDX_Caption    (wx, kForms[m_form].caption);
    WDX_Contact    (wx, IDS_ERR_UNIT_CONTACT);
    WDX_UnitAxis   (wx, IDC_EPOINT_SLOT, IDC_EPOINT_AXIS, 10);
    WDX_TableStart (wx, {.edit = IDC_EPOINT_START, .position = kTableOperand, .rangeLabel = IDC_EPOINT_START_RANGE});

    //              control                          field                         without a selection
    WDX_ControlCode(wx, kTwoRegisters);
    WDX_AxisCode   (wx, IDC_EPOINT_POSITION_COMMAND, EAxisCode::PositionCommand);
    WDX_AxisCode   (wx, IDC_EPOINT_ACCELERATION,     EAxisCode::Acceleration);
    WDX_AxisCode   (wx, IDC_EPOINT_STARTUP,          EAxisCode::StartupSpeed);
    WDX_HomeInputLogic(wx);
    WDX_AxisCode   (wx, IDC_CODE_LIMIT_LOGIC,        EAxisCode::LimitLogic,        kCountsAsZero);
    WDX_AxisCode   (wx, IDC_CODE_S_CURVE,            EAxisCode::AccelerationCurve, kCountsAsZero);
    WDX_PulseOutput(wx);

    WDX_StartupSpeed    (wx, IDC_EPOINT_STARTUP_SPEED, 2);
    WDX_TargetSpeed     (wx, IDC_EPOINT_TARGET_SPEED,  4);
    WDX_AccelerationTime(wx, IDC_EPOINT_TIME,          6);
    WDX_Position        (wx, IDC_EPOINT_POSITION,      8);

    WDX_StartOutput(wx, kForms[m_form].startBit);
}
// clang-format on
