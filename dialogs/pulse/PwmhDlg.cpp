#include "dialogs/pulse/PwmhDlg.h"

#include "dialogs/pulse/DutyFormat.h"
#include "dialogs/pulse/PulseRows.h"

namespace
{

constexpr SWzdChoice kFrequencies1000[] = {
    {IDS_PWMH_1_5_HZ, 0},    {IDS_PWMH_2_0_HZ, 1},   {IDS_PWMH_4_1_HZ, 2},    {IDS_PWMH_6_1_HZ, 3},
    {IDS_PWMH_8_1_HZ, 4},    {IDS_PWMH_9_8_HZ, 5},   {IDS_PWMH_19_5_HZ, 6},   {IDS_PWMH_48_8_HZ, 7},
    {IDS_PWMH_97_7_HZ, 8},   {IDS_PWMH_201_6_HZ, 9}, {IDS_PWMH_403_2_HZ, 10}, {IDS_PWMH_500_0_HZ, 11},
    {IDS_PWMH_694_4_HZ, 12}, {IDS_PWMH_1_0_KHZ, 13}, {IDS_PWMH_1_3_KHZ, 14},  {IDS_PWMH_1_6_KHZ, 15},
    {IDS_PWMH_2_1_KHZ, 16},  {IDS_PWMH_3_1_KHZ, 17}, {IDS_PWMH_6_3_KHZ, 18},  {IDS_PWMH_12_5_KHZ, 19},
};
constexpr LONG kFirstCodeOf100 = 20;
constexpr SWzdChoice kFrequencies100[] = {
    {IDS_PWMH_15_6_KHZ, kFirstCodeOf100},
    {IDS_PWMH_20_8_KHZ, 21},
    {IDS_PWMH_25_0_KHZ, 22},
    {IDS_PWMH_31_3_KHZ, 23},
    {IDS_PWMH_41_7_KHZ, 24},
};

// The third and the fourth channel of the list are slower.
CWzdChoices Frequencies(bool coarse, int channel)
{
    const CWzdChoices all = kFrequencies100;
    if (!coarse)
        return kFrequencies1000;
    return channel == 2 || channel == 3 ? all.first(1) : all;
}

constexpr UINT kFrequenciesDependOn[] = {IDC_ONLY_DATA_TABLE, IDC_PWMH_CHANNEL, IDC_PWMH_RESOLUTION_1000,
                                         IDC_PWMH_RESOLUTION_100};

/// The two buttons of the resolution. It is stored by the frequency alone.
class CResolutionField : public CWzdField
{
public:
    using CWzdField::CWzdField;

    bool Open() override
    {
        Choose(static_cast<LONG>(m_dialog.StoredControlCode().value_or(0)) >= kFirstCodeOf100);
        return true;
    }

    void Clear() override { Choose(false); }

private:
    void Choose(bool coarse)
    {
        m_dialog.Check(IDC_PWMH_RESOLUTION_1000, !coarse);
        m_dialog.Check(IDC_PWMH_RESOLUTION_100, coarse);
    }
};

} // namespace

CPwmhDlg::CPwmhDlg(CFunWizard* wizard, CWnd* parent) : CWzdDlgBase(wizard, IDD_PWMH, parent) {}

// clang-format off
void CPwmhDlg::DoFieldExchange(CWzdExchange* wx)
{
    WDX_Contact    (wx);
    WDX_TableStart (wx, {.edit = IDC_PWMH_START, .format = kUnsigned, .rangeLabel = IDC_PWMH_START_RANGE});
    WDX_Channel    (wx, IDC_PWMH_CHANNEL, kInstructionPwmh);
    WzdDeclare<CResolutionField>(wx, {});

    const bool coarse = IsChecked(IDC_PWMH_RESOLUTION_100);
    WDX_ControlCode(wx, kOneRegister, kDecimalConstant); // unlike the codes of all other instructions
    WDX_Code       (wx, {.combo = IDC_PWMH_FREQUENCY, .choices = Frequencies(coarse, Selection(IDC_PWMH_CHANNEL)), .bits = kWholeWord,
                         .refilledBy = kFrequenciesDependOn});

    if (coarse)
    {
        WDX_Number(wx, {.edit = IDC_PWMH_DUTY, .entry = {1}, .format = kWholeDuty, .limit = 2, .digitsOnly = true, .range = {0, 990},
                        .message = IDS_ERR_DUTY});
        WDX_Label (wx, IDC_PWMH_DUTY_RANGE, IDS_RANGE_DECIMAL, {0, 99});
    }
    else
    {
        WDX_Number(wx, {.edit = IDC_PWMH_DUTY, .entry = {1}, .format = kDutyInTenths, .limit = 4, .range = {0, 999},
                        .message = IDS_ERR_DUTY});
        WDX_Label (wx, IDC_PWMH_DUTY_RANGE, IDS_RANGE_TENTHS, {0.0, 99.9});
    }
}
// clang-format on
