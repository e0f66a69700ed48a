// Fields that are a choice from a list: the pulse output and the parts of the control code.
#include "core/Devices.h"
#include "core/FunWizard.h"
#include "dialogs/base/WzdDlgBase.h"
#include "dialogs/base/WzdResults.h"

#include <algorithm>
#include <optional>

namespace
{

/// A combo box that lists the choices in order, so that the position in the list is the position of the choice.
class CChoiceField : public CWzdField
{
public:
    CChoiceField(CWzdDlgBase& dialog, UINT combo, CWzdChoices choices)
        : CWzdField(dialog), m_combo(combo), m_choices(choices)
    {
    }

    bool Open() override { return m_dialog.FillCombo(m_combo, m_choices, StoredIndex()); }

    void Clear() override { m_dialog.Select(m_combo, 0); }

    SWzdFieldInfo Describe() const override
    {
        SWzdFieldInfo info;
        info.combo = m_combo;
        info.choices.assign(m_choices.begin(), m_choices.end());
        return info;
    }

protected:
    /// Where the choice that the wizard's lists hold stands; any number that is no position when they hold none.
    virtual int StoredIndex() const = 0;

    std::optional<DWORD> SelectedCode() const
    {
        const int selection = m_dialog.Selection(m_combo);
        if (selection < 0 || selection >= static_cast<int>(m_choices.size()))
            return std::nullopt;
        return m_choices[selection].code;
    }

    UINT m_combo;
    CWzdChoices m_choices;
};

class COutputField : public CChoiceField
{
public:
    COutputField(CWzdDlgBase& dialog, UINT combo, CWzdChoices choices, int operand)
        : CChoiceField(dialog, combo, choices), m_operand(operand)
    {
    }

    // Without an instruction there is no output to choose.
    void Refresh() override
    {
        const bool wanted = !m_dialog.IsChecked(IDC_ONLY_DATA_TABLE);
        m_dialog.Enable(m_combo, wanted);
        if (CWnd* label = m_dialog.ControlBefore(m_combo))
            label->EnableWindow(wanted);
    }

    bool Collect(CWzdResults& results) override
    {
        results.SetOperand(m_operand, kDeviceK, static_cast<int>(SelectedCode().value_or(0)));
        return true;
    }

protected:
    int StoredIndex() const override
    {
        short code;
        int value;
        const bool stored = m_dialog.Wizard().GetOprdInfo(m_operand, code, value);
        return stored && (code == kDeviceK || code == kDeviceH) ? IndexOfCode(m_choices, static_cast<DWORD>(value))
                                                                : -1;
    }

private:
    int m_operand;
};

class CChannelField : public COutputField
{
public:
    using COutputField::COutputField;

    bool Open() override { return m_choices.size() > 1 && COutputField::Open(); }
    void OnOnlyDataTable() override { m_dialog.Select(m_combo, 0); }
};

class CCodeField : public CChoiceField
{
public:
    CCodeField(CWzdDlgBase& dialog, UINT combo, SWzdBits bits, CWzdChoices choices, CWzdChoices alsoRestores,
               EUnselected unselected)
        : CChoiceField(dialog, combo, choices), m_bits(bits), m_alsoRestores(alsoRestores), m_unselected(unselected)
    {
    }

    bool Collect(CWzdResults& results) override
    {
        if (const auto code = SelectedCode())
            results.AddToControlCode(m_bits.Place(*code));
        else if (m_unselected == kEndsTheCode)
            results.EndControlCode();
        return true;
    }

    SWzdFieldInfo Describe() const override
    {
        SWzdFieldInfo info = CChoiceField::Describe();
        info.bits = m_bits;
        return info;
    }

protected:
    int StoredIndex() const override
    {
        const DWORD code = m_dialog.StoredControlCode(m_bits);
        return std::max(IndexOfCode(m_choices, code), IndexOfCode(m_alsoRestores, code));
    }

private:
    SWzdBits m_bits;
    CWzdChoices m_alsoRestores;
    EUnselected m_unselected;
};

class CControlCodeField : public CWzdField
{
public:
    CControlCodeField(CWzdDlgBase& dialog, SWzdEntry entry, const CWnd* commentLabel)
        : CWzdField(dialog), m_entry(entry), m_commentLabel(commentLabel)
    {
    }

    bool Collect(CWzdResults& results) override
    {
        results.AddControlCode(m_entry);
        if (m_commentLabel != nullptr)
            results.AddCommentFrom(m_commentLabel);
        else
        {
            CString comment;
            comment.LoadString(IDS_CONTROL_CODE);
            results.AddComment(comment);
        }
        return true;
    }

    SWzdFieldInfo Describe() const override
    {
        SWzdFieldInfo info;
        info.offset = m_entry.offset;
        info.registers = m_entry.Registers();
        return info;
    }

private:
    SWzdEntry m_entry;
    const CWnd* m_commentLabel;
};

} // namespace

void WDX_Output(CWzdExchange* wx, UINT combo, CWzdChoices choices, int operand)
{
    COutputField field(wx->Dialog(), combo, choices, operand);
    wx->Declare(field);
}

void WDX_Channel(CWzdExchange* wx, UINT combo, int instruction, int operand)
{
    const CFunWizard& wizard = wx->Dialog().Wizard();
    std::vector<SWzdChoice> channels;
    for (int i = 0; i < wizard.GetNumOfChannel(instruction); ++i)
    {
        const int channel = wizard.GetChannelNo(i, instruction);
        channels.push_back({IDS_CHANNEL, static_cast<DWORD>(channel), channel});
    }
    CChannelField field(wx->Dialog(), combo, channels, operand);
    wx->Declare(field);
}

void WDX_ControlCode(CWzdExchange* wx, EDataType type, const CWnd* commentLabel)
{
    const SWzdEntry entry = {0, type};
    wx->AddEntry(entry);
    CControlCodeField field(wx->Dialog(), entry, commentLabel);
    wx->Declare(field);
}

void WDX_Code(CWzdExchange* wx, UINT combo, SWzdBits bits, CWzdChoices choices, CWzdChoices alsoRestores,
              EUnselected unselected)
{
    CCodeField field(wx->Dialog(), combo, bits, choices, alsoRestores, unselected);
    wx->Declare(field);
}

void WDX_Code(CWzdExchange* wx, UINT combo, SWzdBits bits, bool second, CWzdChoices choices, CWzdChoices secondChoices)
{
    WDX_Code(wx, combo, bits, second ? secondChoices : choices, second ? choices : secondChoices);
}
