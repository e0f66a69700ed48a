#include "dialogs/pulse/SpshDlg.h"

#include "core/FunWizard.h"
#include "dialogs/base/Compaction.h"
#include "dialogs/pulse/PulseRows.h"

namespace
{

/// What hosts say about the axes.
enum EDisplayType
{
    kChannelChosenHere,
    kFirstChannel,
    kOtherAxes // any other number: the template tells what there is to tell
};

constexpr SWzdRange kFastSpeeds = {1, 100000};
constexpr SWzdRange kSlowSpeeds = {1, 20000};
constexpr SWzdRange kTargets = {-8388608, 8388607};

constexpr UINT kXLabels[] = {IDC_SPSH_TARGET_X_LABEL, IDC_SPSH_RESULT_SPEED_X_LABEL, IDC_SPSH_RESULT_FREQUENCY_X_LABEL,
                             IDC_SPSH_RESULT_STEPS_X_LABEL};
constexpr UINT kYLabels[] = {IDC_SPSH_TARGET_Y_LABEL, IDC_SPSH_RESULT_SPEED_Y_LABEL, IDC_SPSH_RESULT_FREQUENCY_Y_LABEL,
                             IDC_SPSH_RESULT_STEPS_Y_LABEL};

// The templates of other families have labels of the results that nothing is declared of.
void DeclareLabels(CWzdExchange* wx, std::span<const UINT> labels, UINT text)
{
    for (const UINT label : labels)
        if (wx->Dialog().GetDlgItem(label) != nullptr)
            WDX_Label(wx, label, text);
}

} // namespace

CSpshDlg::CSpshDlg(CFunWizard* wizard, UINT templateId, CWnd* parent)
    : CWzdDlgBase(wizard, templateId, parent), m_twoTimes(templateId == IDD_B_SPSH)
{
}

// clang-format off
void CSpshDlg::DoFieldExchange(CWzdExchange* wx)
{
    const int displayType = Wizard().GetF175DispType();

    WDX_Contact    (wx);
    WDX_TableStart (wx, {.edit = IDC_SPSH_START, .rangeLabel = IDC_SPSH_START_RANGE});
    if (displayType == kChannelChosenHere)
        WDX_Channel(wx, IDC_SPSH_CHANNEL, kInstructionSpsh);
    else
        WDX_ConstantOperand(wx, 1, 0);

    const bool first = displayType == kFirstChannel || Selection(IDC_SPSH_CHANNEL) == 0;
    if (displayType <= kFirstChannel)
    {
        DeclareLabels(wx, kXLabels, first ? IDS_X_AXIS_CH0 : IDS_X_AXIS_CH2);
        DeclareLabels(wx, kYLabels, first ? IDS_Y_AXIS_CH1 : IDS_Y_AXIS_CH3);
        WDX_Label(wx, IDC_SPSH_SPEED_RANGE, IDS_RANGE_DECIMAL, {1, (first ? kFastSpeeds : kSlowSpeeds).high});
    }

    WDX_ControlCode(wx, kTwoRegisters);
    WDX_Code       (wx, {.combo = IDC_SPSH_DUTY, .choices = kDuties,    .bits = {12, 4}});
    WDX_Code       (wx, {.combo = IDC_SPSH_MODE, .choices = kMoveModes, .bits = {0, 8}});

    // Without a choice of the channel the slow speeds count, whatever the label says.
    const SWzdRange speeds = Selection(IDC_SPSH_CHANNEL) == 0 ? kFastSpeeds : kSlowSpeeds;
    const UINT topSpeedMessage = m_twoTimes ? IDS_ERR_TARGET_SPEED : IDS_ERR_MAXIMUM_SPEED;
    const UINT timeMessage = m_twoTimes ? IDS_ERR_B_ACCELERATION_TIME : IDS_ERR_ACCELERATION_TIME;
    WDX_Number(wx, {.edit = IDC_SPSH_INITIAL,  .entry = {2, kTwoRegisters},  .limit = 6, .range = speeds,
                    .message = IDS_ERR_INITIAL_SPEED, .comment = {IDC_SPSH_SPEED_LABEL, IDC_SPSH_INITIAL_LABEL}});
    WDX_Number(wx, {.edit = IDC_SPSH_MAXIMUM,  .entry = {4, kTwoRegisters},  .limit = 6, .range = speeds,
                    .message = topSpeedMessage, .comment = {IDC_SPSH_SPEED_LABEL, IDC_SPSH_MAXIMUM_LABEL}});
    WDX_Number(wx, {.edit = IDC_SPSH_TIME,     .entry = {6, kTwoRegisters},  .limit = 5, .range = {0, 32767},
                    .message = timeMessage});
    if (m_twoTimes)
        WDX_Number(wx, {.edit = IDC_SPSH_DECELERATION, .entry = {8, kTwoRegisters}, .limit = 5, .range = {0, 32767},
                        .message = IDS_ERR_B_DECELERATION_TIME});
    const LONGLONG targets = m_twoTimes ? 10 : 8;
    WDX_Number(wx, {.edit = IDC_SPSH_TARGET_X, .entry = {targets, kTwoRegisters},     .limit = 8, .range = kTargets,
                    .message = IDS_ERR_TARGET_VALUE_X, .comment = {IDC_SPSH_TARGET_LABEL, IDC_SPSH_TARGET_X_LABEL}});
    WDX_Number(wx, {.edit = IDC_SPSH_TARGET_Y, .entry = {targets + 2, kTwoRegisters}, .limit = 8, .range = kTargets,
                    .message = IDS_ERR_TARGET_VALUE_Y, .comment = {IDC_SPSH_TARGET_LABEL, IDC_SPSH_TARGET_Y_LABEL}});

    WDX_Register(wx, IDC_SPSH_RESULT_INITIAL_X,   {targets + 4, kTwoRegisters}, true);
    WDX_Register(wx, IDC_SPSH_RESULT_MAXIMUM_X,   {targets + 6, kTwoRegisters}, true);
    WDX_Register(wx, IDC_SPSH_RESULT_INITIAL_Y,   {targets + 8, kTwoRegisters}, true);
    WDX_Register(wx, IDC_SPSH_RESULT_MAXIMUM_Y,   {targets + 10, kTwoRegisters}, true);
    WDX_Register(wx, IDC_SPSH_RESULT_FREQUENCY_X, {targets + 12}, true);
    WDX_Register(wx, IDC_SPSH_RESULT_FREQUENCY_Y, {targets + 13}, true);
    WDX_Register(wx, IDC_SPSH_RESULT_STEPS_X,     {targets + 14}, true);
    WDX_Register(wx, IDC_SPSH_RESULT_STEPS_Y,     {targets + 15}, true);
}
// clang-format on

bool CSpshDlg::Open()
{
    if (Wizard().GetF175DispType() != kChannelChosenHere)
        LeaveOutChannel();
    return CWzdDlgBase::Open();
}

// The row closes up: the frame around the first rows, which comes before them, becomes shorter by what the rest moves.
void CSpshDlg::LeaveOutChannel()
{
    const CWnd* const channel = GetDlgItem(IDC_SPSH_CHANNEL);
    const CWnd* const nextRow = GetDlgItem(IDC_SPSH_DUTY);
    CWnd* const frame = ControlBefore(IDC_ONLY_DATA_TABLE);
    if (channel == nullptr || nextRow == nullptr || frame == nullptr)
        return;
    const int height = RectInDialog(nextRow).top - RectInDialog(channel).top;
    HideControls(ControlBefore(IDC_SPSH_CHANNEL), 2);
    CRect frameRect = RectInDialog(frame);
    frameRect.bottom -= height;
    frame->MoveWindow(&frameRect);
    CloseGap(ControlAfter(IDC_SPSH_CHANNEL), IDC_CLEAR_SETTINGS, height);
}
