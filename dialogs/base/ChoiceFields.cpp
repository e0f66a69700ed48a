// Fields that are a choice from a list: the pulse output and the parts of the control code.
#include "core/Devices.h"
#include "core/FunWizard.h"
#include "dialogs/base/WzdDlgBase.h"
#include "dialogs/base/WzdResults.h"

#include <algorithm>
#include <optional>

namespace
{

// The position of a code in a list, or -1.
int Find(CWzdChoices choices, DWORD code)
{
    const auto found =
        std::find_if(choices.begin(), choices.end(), [code](const SWzdChoice& choice) { return choice.code == code; });
    return found != choices.end() ? static_cast<int>(found - choices.begin()) : -1;
}

/// A combo box that lists the choices in order, so that the position in the list is the position of the choice.
class CChoiceField : public CWzdField
{
public:
    CChoiceField(CWzdDlgBase& dialog, UINT combo, CWzdChoices choices)
        : CWzdField(dialog), m_combo(combo), m_choices(choices)
    {
    }

    bool Open() override
    {
        if (!m_dialog.FillCombo(m_combo, m_choices))
            return false;
        const int stored = StoredIndex();
        m_dialog.Select(m_combo, stored >= 0 && stored < static_cast<int>(m_choices.size()) ? stored : 0);
        return true;
    }

    void Clear() override { m_dialog.Select(m_combo, 0); }

    SWzdFieldInfo Describe() const override
    {
        SWzdFieldInfo info;
        info.combo = m_combo;
        info.choices = m_choices;
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
        return stored && (code == kDeviceK || code == kDeviceH) ? Find(m_choices, static_cast<DWORD>(value)) : -1;
    }

private:
    int m_operand;
};

class CCodeField : public CChoiceField
{
public:
    CCodeField(CWzdDlgBase& dialog, UINT combo, SWzdBits bits, CWzdChoices choices, CWzdChoices alsoRestores)
        : CChoiceField(dialog, combo, choices), m_bits(bits), m_alsoRestores(alsoRestores)
    {
    }

    bool Collect(CWzdResults& results) override
    {
        if (const auto code = SelectedCode())
            results.AddToControlCode(m_bits.Place(*code));
        else
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
        SFunSetData data;
        if (!m_dialog.Wizard().GetDataInfo(0, &data) || data.code != kDeviceDT)
            return -1;
        const DWORD code = m_bits.Extract(static_cast<DWORD>(data.value));
        return std::max(Find(m_choices, code), Find(m_alsoRestores, code));
    }

private:
    SWzdBits m_bits;
    CWzdChoices m_alsoRestores;
};

class CControlCodeField : public CWzdField
{
public:
    CControlCodeField(CWzdDlgBase& dialog, EDataType type) : CWzdField(dialog), m_type(type) {}

    bool Collect(CWzdResults& results) override
    {
        results.AddControlCode({0, m_type});
        CString comment;
        comment.LoadString(IDS_CONTROL_CODE);
        results.AddComment(comment);
        return true;
    }

    SWzdFieldInfo Describe() const override
    {
        SWzdFieldInfo info;
        info.offset = 0;
        info.type = m_type;
        return info;
    }

private:
    EDataType m_type;
};

} // namespace

void WDX_Output(CWzdExchange* wx, UINT combo, CWzdChoices choices, int operand)
{
    COutputField field(wx->Dialog(), combo, choices, operand);
    wx->Declare(field);
}

void WDX_ControlCode(CWzdExchange* wx, EDataType type)
{
    wx->NextRecord();
    CControlCodeField field(wx->Dialog(), type);
    wx->Declare(field);
}

void WDX_Code(CWzdExchange* wx, UINT combo, SWzdBits bits, CWzdChoices choices, CWzdChoices alsoRestores)
{
    CCodeField field(wx->Dialog(), combo, bits, choices, alsoRestores);
    wx->Declare(field);
}
