#include "dialogs/process/ScalDlg.h"

#include "core/Devices.h"
#include "core/FunWizard.h"
#include "dialogs/process/DifferentialField.h"
#include "dialogs/process/PointsField.h"
#include "dialogs/process/RealFormat.h"

namespace
{

double WholeNumber(LONGLONG value) { return static_cast<double>(value); }
double RealNumber(LONGLONG bits) { return static_cast<double>(RealOfBits(bits)); }

constexpr SWzdRange kAnyWord = {SHRT_MIN, SHRT_MAX};

constexpr SWzdConstant kWords[] = {{kDeviceK, kSigned, kAnyWord}, {kDeviceH, kHexadecimal, {0, 0xFFFF}}};
constexpr SWzdConstant kDoubleWords[] = {{kDeviceK, kSigned, kAnyDoubleWord},
                                         {kDeviceH, kHexadecimal, {0, 0xFFFFFFFF}}};
constexpr SWzdConstant kReals[] = {{kDeviceReal, kReal, kAnyDoubleWord, IDS_RANGE_REAL}};

constexpr UINT kHeadings[] = {IDC_SCAL_HEADING_X, IDC_SCAL_HEADING_Y};
constexpr UINT kRowLabels[] = {IDC_SCAL_ROW_1, IDC_SCAL_ROW_2, IDC_SCAL_ROW_3, IDC_SCAL_ROW_4, IDC_SCAL_ROW_5};
constexpr SGridControls kTable = {kHeadings, kRowLabels, IDC_SCAL_CELL_EDITOR, IDC_SCAL_SCROLL};

enum EScalOperand
{
    kInput,
    kStart,
    kOutput
};

constexpr int kFewestPoints = 2;
constexpr int kMostPoints = 32767;

} // namespace

/// What is different from one instruction to the other.
struct SScaling
{
    int instruction;
    UINT caption;
    UINT heading;
    CWzdConstants constants; ///< the input can be one
    SPointValues values;
    SGridColumn column; ///< what X and Y have in common

    /// The registers of so many points.
    LONGLONG Registers(int points) const { return SWzdEntry{0, values.type, 2LL * points}.Registers(); }
};

namespace
{

// clang-format off
constexpr SScaling kScalings[] = {
    {kInstructionScal,  IDS_CAPTION_SCAL,  IDS_HEADING_SCAL,  kWords,
     {kOneRegister,  kDecimalConstant, WholeNumber}, {.limit = 6,  .range = kAnyWord}},
    {kInstructionDscal, IDS_CAPTION_DSCAL, IDS_HEADING_DSCAL, kDoubleWords,
     {kTwoRegisters, kDecimalConstant, WholeNumber}, {.limit = 11, .range = kAnyDoubleWord}},
    {kInstructionFscal, IDS_CAPTION_FSCAL, IDS_HEADING_FSCAL, kReals,
     {kRealNumber,   kRealConstant,    RealNumber},  {.format = kReal, .range = kAnyDoubleWord, .rangeText = IDS_RANGE_REAL}}};
// clang-format on

const SScaling& ScalingOf(int kind) { return kScalings[kind == 0 || kind == 1 ? kind : 2]; }

} // namespace

CScalDlg::CScalDlg(CFunWizard* wizard, const ULONGLONG* permitted, int kind, CWnd* parent)
    : CGridDlg(wizard, IDD_SCALING, kTable, parent), m_scaling(ScalingOf(kind)), m_permitted(permitted)
{
}

int CScalDlg::InstructionOf(int kind) { return ScalingOf(kind).instruction; }

int CScalDlg::HelpTopic() const { return HELP_TOPIC_DEFAULT; }

// clang-format off
void CScalDlg::DoFieldExchange(CWzdExchange* wx)
{
    SWzdRow contact = kStartingCondition;
    contact.withoutInstruction = kLeftOut;

    WDX_Caption      (wx, m_scaling.caption);
    WDX_Label        (wx, IDC_SCAL_HEADING, m_scaling.heading);
    WDX_Contact      (wx, contact);
    WDX_Differential (wx, IDC_SCAL_DIFFERENTIAL);
    WDX_DeviceOperand(wx, {.combo = IDC_SCAL_INPUT_DEVICE, .edit = IDC_SCAL_INPUT, .devices = kListWords,
                           .permitted = Permitted(0), .constants = m_scaling.constants, .preferred = kDeviceDT,
                           .position = kInput, .withoutInstruction = kLeftOut,
                           .message = IDS_ERR_INPUT_X, .rangeLabel = IDC_SCAL_INPUT_RANGE});
    WDX_DeviceOperand(wx, {.combo = IDC_SCAL_OUTPUT_DEVICE, .edit = IDC_SCAL_OUTPUT, .devices = kListWords,
                           .permitted = Permitted(2), .preferred = kDeviceDT,
                           .position = kOutput, .withoutInstruction = kLeftOut,
                           .message = IDS_ERR_OUTPUT_Y, .rangeLabel = IDC_SCAL_OUTPUT_RANGE});
    WDX_DeviceTable  (wx, {.combo = IDC_SCAL_START_DEVICE, .edit = IDC_SCAL_START, .devices = kListWords,
                           .permitted = Permitted(1), .preferred = kDeviceDT,
                           .position = kStart, .less = static_cast<int>(m_scaling.Registers(kFewestPoints)),
                           .message = IDS_ERR_TABLE_START, .rangeLabel = IDC_SCAL_START_RANGE});

    const int most = MostPoints();
    WDX_Number       (wx, {.edit = IDC_SCAL_POINTS, .entry = {0}, .limit = 5, .range = {kFewestPoints, most},
                           .follows = IDC_SCAL_START, .message = IDS_ERR_NUMBER_OF_DATA,
                           .rangeLabel = IDC_SCAL_POINTS_RANGE});

    SGridColumn columns[] = {m_scaling.column, m_scaling.column};
    columns[0].message = IDS_ERR_DATA_X;
    columns[0].rangeHeading = IDC_SCAL_HEADING_X;
    columns[1].message = IDS_ERR_DATA_Y;
    columns[1].rangeHeading = IDC_SCAL_HEADING_Y;
    WDX_Points       (wx, *this, m_scaling.values, {IDC_SCAL_POINTS, Points(most), most}, columns);
}
// clang-format on

int CScalDlg::MostPoints() const
{
    short kind, code;
    int low, high, start;
    if (!GetSelectedDeviceRange(IDC_SCAL_START_DEVICE, kind, code, low, high))
        return kFewestPoints;
    const LONGLONG registers = m_scaling.Registers(1);
    const LONGLONG last = high - m_scaling.Registers(kFewestPoints);
    const bool entered = ParseDeviceNumber(code, ItemText(IDC_SCAL_START), start) && start >= low && start <= last;
    return static_cast<int>(
        std::min<LONGLONG>((static_cast<LONGLONG>(high) - (entered ? start : low)) / registers, kMostPoints));
}

int CScalDlg::Points(int most) const
{
    LONGLONG points;
    const bool usable = kSigned.Parse(ItemText(IDC_SCAL_POINTS), points) && points >= kFewestPoints && points <= most;
    return usable ? static_cast<int>(points) : 0;
}
