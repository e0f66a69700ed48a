#include "dialogs/posunit/PosCtrlCodeDlg.h"

#include "core/Memory.h"
#include "core/Values.h"
#include "dialogs/posunit/AxisCode.h"
#include "dialogs/posunit/CtrlCodeHexDlg.h"
#include "resources/resource.h"

namespace
{

constexpr DWORD kReservedBits = 0x0CC0C800; // belong to no field

constexpr struct
{
    UINT combo;
    EAxisCode field;
} kFields[] = {
    {IDC_CTRL_POSITION_COMMAND, EAxisCode::PositionCommand},
    {IDC_CTRL_ACCELERATION, EAxisCode::Acceleration},
    {IDC_CTRL_HOME_DIRECTION, EAxisCode::HomeReturnDirection},
    {IDC_CTRL_STARTUP, EAxisCode::StartupSpeed},
    {IDC_CODE_HOME_LOGIC, EAxisCode::HomeLogic},
    {IDC_CODE_NEAR_HOME_LOGIC, EAxisCode::NearHomeLogic},
    {IDC_CODE_HOME_SEARCH, EAxisCode::HomeSearch},
    {IDC_CODE_LIMIT_LOGIC, EAxisCode::LimitLogic},
    {IDC_CTRL_PULSAR_MULTIPLE, EAxisCode::PulsarMultiple},
    {IDC_CODE_S_CURVE, EAxisCode::AccelerationCurve},
    {IDC_CODE_INPUT_ROTATION, EAxisCode::InputRotation},
    {IDC_CODE_INPUT_COUNT, EAxisCode::InputCount},
    {IDC_CODE_INPUT_MODE, EAxisCode::InputMode},
    {IDC_CODE_INPUT_MULTIPLE, EAxisCode::InputMultiple},
    {IDC_CODE_OUTPUT_ROTATION, EAxisCode::OutputRotation},
    {IDC_CODE_OUTPUT_MODE, EAxisCode::OutputMode},
    {IDC_CODE_DIVIDED_MODE, EAxisCode::DividedMode},
    {IDC_CODE_CLEAR_TIME, EAxisCode::ClearTime},
};

constexpr UINT kFirstControl = 1;
constexpr UINT kLastControl = 0x7FFF;

} // namespace

BEGIN_MESSAGE_MAP(CPosCtrlCodeDlg, CWzdDialog)
ON_CONTROL_RANGE(CBN_SELCHANGE, kFirstControl, kLastControl, &CPosCtrlCodeDlg::OnSelectionChanged)
ON_BN_CLICKED(IDC_CTRL_DIRECT_INPUT, &CPosCtrlCodeDlg::OnDirectInput)
END_MESSAGE_MAP()

CPosCtrlCodeDlg::CPosCtrlCodeDlg(CFunWizard* wizard, CWnd* parent) : CWzdDialog(wizard, IDD_CONTROL_CODE, parent) {}

int CPosCtrlCodeDlg::HelpTopic() const { return HELP_TOPIC_CONTROL_CODE; }

bool CPosCtrlCodeDlg::Open()
{
    if (!FillCombos())
        return false;
    ShowCode();
    return true;
}

bool CPosCtrlCodeDlg::FillCombos()
{
    for (const auto& row : kFields)
    {
        const SAxisCodeField& field = AxisCodeField(row.field);
        if (!FillCombo(row.combo, field.items, IndexOfCode(field.items, field.bits.Extract(m_code))))
            return false;
    }
    return true;
}

// Ends at the first list without a selection.
DWORD CPosCtrlCodeDlg::ComposedCode() const
{
    DWORD code = 0;
    for (const auto& row : kFields)
    {
        const SAxisCodeField& field = AxisCodeField(row.field);
        const int item = Selection(row.combo);
        if (item < 0)
            break;
        if (item < static_cast<int>(field.items.size()))
            code |= field.bits.Place(field.items[item].code);
    }
    return code;
}

DWORD CPosCtrlCodeDlg::ShownCode() const { return ComposedCode() | (m_code & kReservedBits); }

void CPosCtrlCodeDlg::ShowCode() { SetItemText(IDC_CTRL_CODE, FormatHex32(ShownCode())); }

void CPosCtrlCodeDlg::OnSelectionChanged(UINT) { ShowCode(); }

void CPosCtrlCodeDlg::OnDirectInput()
{
    CCtrlCodeHexDlg input(&Wizard(), this);
    input.SetCode(ShownCode());
    if (input.DoModal() != IDOK)
        return;
    m_code = input.GetCode();
    static_cast<void>(FillCombos()); // They have held the same items before.
    ShowCode();
}

bool CPosCtrlCodeDlg::Confirm()
{
    m_code = ComposedCode();
    return true;
}
