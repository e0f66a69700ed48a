// The start output of an axis and the second condition that switches it on. Templates without the group leave them out.
#include "core/Devices.h"
#include "core/FillText.h"
#include "core/FunWizard.h"
#include "core/Values.h"
#include "dialogs/base/WzdDlgBase.h"
#include "dialogs/base/WzdResults.h"
#include "dialogs/posunit/StartOutputGroup.h"
#include "dialogs/posunit/UnitRows.h"

namespace
{

constexpr BYTE kNoStartOutput = 0;     // start types: the program of the host starts the axis,
constexpr BYTE kStartAxisRelay = 1;    // the relay of the unit's axis does,
constexpr BYTE kStartChosenOutput = 2; // or an output word that the user chooses
constexpr int kFirstWord = 2;

/// What a stored start output consists of: the last contact, and the condition before it.
bool GetStoredContact(const CFunWizard& wizard, int fromEnd, short& code, int& number)
{
    short kind;
    return wizard.IsStartCondition() && wizard.GetContInfo(wizard.GetContInfoCount() - fromEnd, kind, code, number);
}

class CSecondConditionField : public CWzdField
{
public:
    using CWzdField::CWzdField;

    bool Open() override
    {
        const CFunWizard& wizard = m_dialog.Wizard();
        if (m_dialog.GetDlgItem(IDC_SECOND_DEVICE) == nullptr)
            return true;
        if (!m_dialog.FillContactCombo(IDC_SECOND_DEVICE, std::max(wizard.GetContInfoCount() - 2, 1)))
            return false;
        short code;
        int number;
        const bool own = !wizard.IsSameCondition() && GetStoredContact(wizard, 2, code, number);
        m_dialog.SetItemText(IDC_SECOND_NUMBER, own ? FormatDeviceNumber(code, number) : CString());
        m_dialog.LimitText(IDC_SECOND_NUMBER, m_row.limit);
        m_dialog.Check(IDC_SAME_CONDITION, wizard.IsSameCondition());
        return true;
    }

    void Refresh() override { m_dialog.ShowContactRange(1); }

    void Clear() override
    {
        m_dialog.Select(IDC_SECOND_DEVICE, 0);
        m_dialog.SetItemText(IDC_SECOND_NUMBER, "");
        m_dialog.Check(IDC_SAME_CONDITION, false);
    }

    bool Collect(CWzdResults& results) override
    {
        if (!m_dialog.IsChecked(IDC_START_OUTPUT_ENABLE) || m_dialog.Wizard().GetStartType() == kNoStartOutput)
            return true;
        const SContact* first = results.StartingCondition();
        short code;
        int number;
        if (first != nullptr && m_dialog.IsChecked(IDC_SAME_CONDITION))
            results.AddContact(kInstContact, first->Code(), first->number);
        else if (m_dialog.ReadDevice(m_row, code, number))
            results.AddContact(kInstContact, code, number);
        else
            return false;
        return true;
    }
};

class CStartOutputField : public CWzdField
{
public:
    CStartOutputField(CWzdDlgBase& dialog, const SWzdRow& row, int startBit)
        : CWzdField(dialog, row), m_startBit(startBit)
    {
    }

    bool Open() override
    {
        const CFunWizard& wizard = m_dialog.Wizard();
        m_dialog.SetItemText(m_row.edit, StoredWord());
        m_dialog.LimitText(m_row.edit, m_row.limit);
        int low, high;
        if (GetWordDeviceRange(wizard, kDeviceY, low, high))
            m_dialog.SetItemText(m_row.rangeLabel,
                                 FillText(IDS_RANGE_TEXT, {FormatDecimal64(kFirstWord), FormatDecimal64(high >> 4)}));
        m_dialog.Check(IDC_START_OUTPUT_ENABLE, wizard.IsStartCondition());
        CStartOutputGroup(&m_dialog).Compact(wizard.GetStartType());
        return true;
    }

    void Refresh() override { CStartOutputGroup(&m_dialog).UpdateEnabling(); }

    void Clear() override
    {
        m_dialog.SetItemText(m_row.edit, "");
        m_dialog.Check(IDC_START_OUTPUT_ENABLE, false);
    }

    bool Collect(CWzdResults& results) override
    {
        const BYTE startType = m_dialog.Wizard().GetStartType();
        if (!m_dialog.IsChecked(IDC_START_OUTPUT_ENABLE) || startType == kNoStartOutput)
            return true;
        int relay = UnitBufferAddress(results.Unit().slot, results.Unit().axis) + m_startBit;
        if (startType != kStartAxisRelay && !ReadRelay(relay))
            return false;
        results.AddContact(kInstStartOutput, kDeviceY, relay);
        return true;
    }

private:
    // The number of the relay without its bit.
    CString StoredWord() const
    {
        const CFunWizard& wizard = m_dialog.Wizard();
        short code;
        int number;
        if (wizard.GetStartType() != kStartChosenOutput || !GetStoredContact(wizard, 1, code, number))
            return CString();
        const CString text = FormatDeviceNumber(code, number);
        return text.Left(text.GetLength() - 1);
    }

    bool ReadRelay(int& relay)
    {
        LONGLONG word;
        if (!m_dialog.ReadNumber(m_row.edit, m_row.range, m_row.message, word))
            return false;
        relay = static_cast<int>(word) * 16 + m_startBit;
        return true;
    }

    int m_startBit;
};

// The words whose relay exists; none without outputs.
SWzdRange OutputWords(const CFunWizard& wizard, int startBit)
{
    int low, high;
    if (!GetWordDeviceRange(wizard, kDeviceY, low, high))
        return {0, -1};
    return {kFirstWord, (static_cast<LONGLONG>(high) - startBit) >> 4};
}

} // namespace

void WDX_StartOutput(CWzdExchange* wx, int startBit)
{
    if (wx->Dialog().GetDlgItem(IDC_START_OUTPUT_ENABLE) == nullptr)
        return; // Not every template carries the group.
    WzdDeclare<CSecondConditionField>(wx, kSecondCondition);
    WzdDeclare<CStartOutputField>(wx,
                                  {.edit = IDC_START_OUTPUT_WORD,
                                   .limit = 3,
                                   .range = OutputWords(wx->Dialog().Wizard(), startBit),
                                   .message = IDS_ERR_START_OUTPUT,
                                   .rangeLabel = IDC_START_OUTPUT_RANGE},
                                  startBit);
}
