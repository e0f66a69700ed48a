#include "dialogs/pulse/SpchDlg.h"

#include "dialogs/pulse/PulseRows.h"

namespace
{

constexpr SWzdChoice kConnections[] = {{IDS_SPCH_STOP, 0}, {IDS_SPCH_CONTINUE, 1}};
constexpr SWzdChoice kRotations[] = {{IDS_SPCH_CLOCKWISE, 0}, {IDS_SPCH_COUNTERCLOCKWISE, 1}};
constexpr SWzdChoice kMethods[] = {{IDS_SPCH_PASS_METHOD, 0}, {IDS_SPCH_CENTER_METHOD, 1}};
constexpr int kCenterMethod = 1;

constexpr SWzdRange kPositions = {-8388608, 8388607};

} // namespace

CSpchDlg::CSpchDlg(CFunWizard* wizard, CWnd* parent) : CWzdDlgBase(wizard, IDD_SPCH, parent) {}

// clang-format off
void CSpchDlg::DoFieldExchange(CWzdExchange* wx)
{
    WDX_Contact        (wx);
    WDX_TableStart     (wx, {.edit = IDC_SPCH_START, .rangeLabel = IDC_SPCH_START_RANGE});
    WDX_ConstantOperand(wx, 1, 0);

    WDX_ControlCode(wx, kTwoRegisters);
    WDX_Code       (wx, {.combo = IDC_SPCH_CONNECTION, .choices = kConnections, .bits = {16, 4}});
    WDX_Code       (wx, {.combo = IDC_SPCH_ROTATION,   .choices = kRotations,   .bits = {12, 4}});
    WDX_Code       (wx, {.combo = IDC_SPCH_METHOD,     .choices = kMethods,     .bits = {8, 4}});
    WDX_Code       (wx, {.combo = IDC_SPCH_MODE,       .choices = kMoveModes,   .bits = {0, 8}});

    // The third point of the arc, beside where it starts and where it ends.
    const bool center = Selection(IDC_SPCH_METHOD) == kCenterMethod;
    const UINT outsideX = center ? IDS_ERR_CENTER_POSITION_X : IDS_ERR_PASS_POSITION_X;
    const UINT outsideY = center ? IDS_ERR_CENTER_POSITION_Y : IDS_ERR_PASS_POSITION_Y;
    WDX_Label(wx, IDC_SPCH_THIRD_POINT_LABEL, center ? IDS_SPCH_CENTER_POSITION : IDS_SPCH_PASS_POSITION);

    WDX_Number(wx, {.edit = IDC_SPCH_SPEED,         .entry = {2, kTwoRegisters},  .limit = 5, .range = {100, 20000},
                    .message = IDS_ERR_COMPOSITE_SPEED});
    WDX_Number(wx, {.edit = IDC_SPCH_TARGET_X,      .entry = {4, kTwoRegisters},  .limit = 8, .range = kPositions,
                    .message = IDS_ERR_TARGET_POSITION_X,
                    .comment = {IDC_SPCH_TARGET_LABEL, IDC_SPCH_TARGET_X_LABEL}});
    WDX_Number(wx, {.edit = IDC_SPCH_TARGET_Y,      .entry = {6, kTwoRegisters},  .limit = 8, .range = kPositions,
                    .message = IDS_ERR_TARGET_POSITION_Y,
                    .comment = {IDC_SPCH_TARGET_LABEL, IDC_SPCH_TARGET_Y_LABEL}});
    WDX_Number(wx, {.edit = IDC_SPCH_THIRD_POINT_X, .entry = {8, kTwoRegisters},  .limit = 8, .range = kPositions,
                    .message = outsideX,
                    .comment = {IDC_SPCH_THIRD_POINT_LABEL, IDC_SPCH_THIRD_POINT_X_LABEL}});
    WDX_Number(wx, {.edit = IDC_SPCH_THIRD_POINT_Y, .entry = {10, kTwoRegisters}, .limit = 8, .range = kPositions,
                    .message = outsideY,
                    .comment = {IDC_SPCH_THIRD_POINT_LABEL, IDC_SPCH_THIRD_POINT_Y_LABEL}});

    WDX_Register(wx, IDC_SPCH_RESULT_RADIUS, {12, kTwoRegisters}, true);
    const CWzdSection calculated(wx, !center, GetDlgItem(IDC_SPCH_RESULT_CENTER_LABEL), IDC_SPCH_RESULT_CENTER_Y);
    WDX_Register(wx, IDC_SPCH_RESULT_CENTER_X, {14, kTwoRegisters}, true);
    WDX_Register(wx, IDC_SPCH_RESULT_CENTER_Y, {16, kTwoRegisters}, true);
}
// clang-format on
