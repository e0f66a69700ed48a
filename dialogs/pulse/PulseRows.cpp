#include "dialogs/pulse/PulseRows.h"

#include "core/Devices.h"
#include "core/FunWizard.h"
#include "core/Instructions.h"
#include "dialogs/base/WzdDlgBase.h"
#include "dialogs/base/WzdResults.h"
#include "dialogs/fields/ChoiceField.h"

#include <array>

namespace
{

class COutputField : public CConstantChoiceField
{
public:
    using CConstantChoiceField::CConstantChoiceField;

    // Without an instruction there is no output to choose.
    void Refresh() override
    {
        const bool wanted = !m_dialog.IsChecked(IDC_ONLY_DATA_TABLE);
        m_dialog.Enable(m_row.combo, wanted);
        if (CWnd* label = m_dialog.ControlBefore(m_row.combo))
            label->EnableWindow(wanted);
    }
};

class CChannelField : public COutputField
{
public:
    using COutputField::COutputField;

    bool Open() override { return m_row.choices.size() > 1 && COutputField::Open(); }

    void OnChanged(UINT id) override
    {
        if (id == IDC_ONLY_DATA_TABLE)
            m_dialog.Select(m_row.combo, 0);
    }
};

/// The channels offered to F175 are the low bits of a word that says something else in its high ones.
constexpr int kHighestF175Channel = 11;

/// The channels that the wizard offers to an instruction.
class CChannels
{
public:
    CChannels(const CFunWizard& wizard, int instruction)
    {
        for (int i = 0; i < wizard.GetNumOfChannel(instruction); ++i)
        {
            const int channel = wizard.GetChannelNo(i, instruction);
            if (instruction != kInstructionSpsh || channel <= kHighestF175Channel)
                m_items[m_count++] = {IDS_CHANNEL, static_cast<DWORD>(channel), channel};
        }
    }

    operator CWzdChoices() const { return {m_items.data(), m_count}; }

private:
    std::array<SWzdChoice, 16> m_items; // one for each bit of a mask
    size_t m_count = 0;
};

constexpr SWzdRange kSpeeds[] = {{1, 9800}, {48, 100000}, {191, 100000}};
static_assert(std::size(kSpeeds) == std::size(kFrequencies), "a range for each item");
constexpr int kFastChannels = 2;
constexpr LONGLONG kSlowChannelSpeed = 20000;

} // namespace

void WDX_Output(CWzdExchange* wx, UINT combo, CWzdChoices choices, int operand)
{
    WzdDeclare<COutputField>(wx, {.combo = combo, .choices = choices, .position = operand});
}

void WDX_Channel(CWzdExchange* wx, UINT combo, int instruction, int operand)
{
    const CChannels channels(wx->Dialog().Wizard(), instruction);
    WzdDeclare<CChannelField>(wx, {.combo = combo, .choices = channels, .position = operand});
}

void WDX_StopTarget(CWzdExchange* wx, LONGLONG offset)
{
    constexpr int kStops = 1;
    const CWzdDlgBase& dialog = wx->Dialog();
    const CWzdSection target(wx, dialog.Selection(IDC_PLSH_STOP_MODE) == kStops, dialog.ControlBefore(IDC_PLSH_TARGET),
                             dialog.ControlAfter(IDC_PLSH_TARGET, 2));
    WDX_Number(wx, {.edit = IDC_PLSH_TARGET,
                    .entry = {offset, kTwoRegisters},
                    .limit = 11,
                    .range = kAnyDoubleWord,
                    .message = IDS_ERR_TARGET_VALUE});
}

SWzdRange SpeedRange(int frequency, int channel)
{
    if (frequency < 0 || frequency >= static_cast<int>(std::size(kSpeeds)))
        return {0, 0};
    SWzdRange range = kSpeeds[frequency];
    if (channel < 0 || channel >= kFastChannels)
        range.high = std::min(range.high, kSlowChannelSpeed);
    return range;
}
