#include "dialogs/pulse/Sp0hDlg.h"

#include "core/Instructions.h"
#include "dialogs/grid/StepsField.h"
#include "dialogs/pulse/PulseRows.h"

namespace
{

constexpr SWzdChoice kModes[] = {{IDS_SP0H_INCREMENTAL, 0}, {IDS_SP0H_ABSOLUTE, 1}};

constexpr SWzdChoice kOutputMethods[] = {
    {IDS_SP0H_CW_CCW, 0}, {IDS_SP0H_SIGN_FORWARD_OFF, 2}, {IDS_SP0H_SIGN_FORWARD_ON, 3}};

constexpr UINT kHeadings[] = {IDC_SP0H_STEP_FREQUENCY, IDC_SP0H_STEP_TARGET};
constexpr UINT kRowLabels[] = {IDC_SP0H_ROW_1, IDC_SP0H_ROW_2, IDC_SP0H_ROW_3, IDC_SP0H_ROW_4, IDC_SP0H_ROW_5};
constexpr SGridControls kTable = {kHeadings, kRowLabels, IDC_SP0H_CELL_EDITOR, IDC_SP0H_SCROLL};

} // namespace

CSp0hDlg::CSp0hDlg(CFunWizard* wizard, UINT templateId, CWnd* parent) : CGridDlg(wizard, templateId, kTable, parent) {}

// clang-format off
void CSp0hDlg::DoFieldExchange(CWzdExchange* wx)
{
    SWzdRow contact = kStartingCondition;
    contact.withoutInstruction = kBestKnown;

    WDX_Contact    (wx, contact);
    WDX_TableStart (wx, {.edit = IDC_SP0H_START, .rangeLabel = IDC_SP0H_START_RANGE});
    WDX_Channel    (wx, IDC_SP0H_CHANNEL, kInstructionSp0h);

    WDX_ControlCode(wx, kTwoRegisters);
    WDX_Code       (wx, {.combo = IDC_SP0H_DUTY,      .choices = kDuties,        .bits = {12, 4}});
    WDX_Code       (wx, {.combo = IDC_SP0H_FREQUENCY, .choices = kFrequencies,   .bits = {8, 4}});
    WDX_Code       (wx, {.combo = IDC_SP0H_MODE,      .choices = kModes,         .bits = {4, 4}});
    WDX_Code       (wx, {.combo = IDC_SP0H_OUTPUT,    .choices = kOutputMethods, .bits = {0, 4}});

    const SGridColumn columns[] = {
        {.limit = 6, .range = SpeedRange(Selection(IDC_SP0H_FREQUENCY), Selection(IDC_SP0H_CHANNEL)),
         .message = IDS_ERR_FREQUENCY, .rangeHeading = IDC_SP0H_STEP_FREQUENCY, .comment = IDS_STEP_FREQUENCY},
        {.limit = 11, .range = kAnyDoubleWord,
         .message = IDS_ERR_TARGET_VALUE, .comment = IDS_STEP_TARGET_VALUE}};
    WDX_Steps      (wx, *this, 2, columns);
}
// clang-format on
