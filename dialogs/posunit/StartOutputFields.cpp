// The start output of an axis and the second condition that switches it on. Templates without the group leave them out.
#include "core/Devices.h"
#include "core/FillText.h"
#include "core/FunWizard.h"
#include "core/Values.h"
#include "dialogs/posunit/StartOutputGroup.h"
#include "dialogs/base/WzdDlgBase.h"
#include "dialogs/base/WzdResults.h"

namespace
{

constexpr BYTE kNoStartOutput = 0;     // start types: the program of the host starts the axis,
constexpr BYTE kStartAxisRelay = 1;    // the relay of the unit's axis does,
constexpr BYTE kStartChosenOutput = 2; // or an output word that the user chooses
constexpr int kNumberLimit = 4;
constexpr int kWordLimit = 3;
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
        m_dialog.LimitText(IDC_SECOND_NUMBER, kNumberLimit);
        m_dialog.CheckDlgButton(IDC_SAME_CONDITION, wizard.IsSameCondition() ? BST_CHECKED : BST_UNCHECKED);
        return true;
    }

    void Refresh() override { m_dialog.ShowContactRange(IDC_SECOND_DEVICE, IDC_SECOND_RANGE); }

    void Clear() override
    {
        m_dialog.Select(IDC_SECOND_DEVICE, 0);
        m_dialog.SetItemText(IDC_SECOND_NUMBER, "");
        m_dialog.CheckDlgButton(IDC_SAME_CONDITION, BST_UNCHECKED);
    }

    bool Collect(CWzdResults& results) override
    {
        if (!m_dialog.IsChecked(IDC_START_OUTPUT_ENABLE) || m_dialog.Wizard().GetStartType() == kNoStartOutput)
            return true;
        short code = results.StartingCondition().Code();
        int number = results.StartingCondition().number;
        if (!m_dialog.IsChecked(IDC_SAME_CONDITION) &&
            !m_dialog.ReadContact(IDC_SECOND_DEVICE, IDC_SECOND_NUMBER, IDS_ERR_CONTACT, code, number))
            return false;
        results.AddContact(kInstContact, code, number);
        return true;
    }

    SWzdFieldInfo Describe() const override
    {
        SWzdFieldInfo info;
        if (m_dialog.GetDlgItem(IDC_SECOND_DEVICE) == nullptr)
            return info;
        info.combo = IDC_SECOND_DEVICE;
        info.edit = IDC_SECOND_NUMBER;
        info.rangeLabel = IDC_SECOND_RANGE;
        info.message = IDS_ERR_CONTACT;
        info.limit = kNumberLimit;
        return info;
    }
};

class CStartOutputField : public CWzdField
{
public:
    CStartOutputField(CWzdDlgBase& dialog, int startBit) : CWzdField(dialog), m_startBit(startBit) {}

    bool Open() override
    {
        const CFunWizard& wizard = m_dialog.Wizard();
        if (m_dialog.GetDlgItem(IDC_START_OUTPUT_ENABLE) == nullptr)
            return true;
        m_dialog.SetItemText(IDC_START_OUTPUT_WORD, StoredWord());
        m_dialog.LimitText(IDC_START_OUTPUT_WORD, kWordLimit);
        int low, high;
        if (m_dialog.GetWordDeviceRange(kDeviceY, low, high))
            m_dialog.SetItemText(IDC_START_OUTPUT_RANGE,
                                 FillText(IDS_RANGE_TEXT, {FormatDecimal64(kFirstWord), FormatDecimal64(high >> 4)}));
        m_dialog.CheckDlgButton(IDC_START_OUTPUT_ENABLE, wizard.IsStartCondition() ? BST_CHECKED : BST_UNCHECKED);
        CStartOutputGroup(&m_dialog, false).Compact(wizard.GetStartType());
        return true;
    }

    void Refresh() override { CStartOutputGroup(&m_dialog, false).UpdateEnabling(); }

    void Clear() override
    {
        m_dialog.SetItemText(IDC_START_OUTPUT_WORD, "");
        m_dialog.CheckDlgButton(IDC_START_OUTPUT_ENABLE, BST_UNCHECKED);
    }

    bool Collect(CWzdResults& results) override
    {
        const BYTE startType = m_dialog.Wizard().GetStartType();
        if (!m_dialog.IsChecked(IDC_START_OUTPUT_ENABLE) || startType == kNoStartOutput)
            return true;
        int relay = CWzdDlgBase::UnitBufferAddress(results.Unit().slot, results.Unit().axis) + m_startBit;
        if (startType != kStartAxisRelay && !ReadRelay(relay))
            return false;
        results.AddContact(kInstStartOutput, kDeviceY, relay);
        return true;
    }

    SWzdFieldInfo Describe() const override
    {
        SWzdFieldInfo info;
        if (m_dialog.GetDlgItem(IDC_START_OUTPUT_WORD) == nullptr)
            return info;
        info.edit = IDC_START_OUTPUT_WORD;
        info.rangeLabel = IDC_START_OUTPUT_RANGE;
        info.message = IDS_ERR_START_OUTPUT;
        info.limit = kWordLimit;
        info.range = Words();
        return info;
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

    // Those whose relay exists; none without outputs.
    SWzdRange Words() const
    {
        int low, high;
        if (!m_dialog.GetWordDeviceRange(kDeviceY, low, high))
            return {0, -1};
        return {kFirstWord, (static_cast<LONGLONG>(high) - m_startBit) >> 4};
    }

    bool ReadRelay(int& relay)
    {
        LONGLONG word;
        if (!m_dialog.ReadNumber(IDC_START_OUTPUT_WORD, Words(), IDS_ERR_START_OUTPUT, word))
            return false;
        relay = static_cast<int>(word) * 16 + m_startBit;
        return true;
    }

    int m_startBit;
};

} // namespace

void WDX_StartOutput(CWzdExchange* wx, int startBit)
{
    CSecondConditionField condition(wx->Dialog());
    wx->Declare(condition);
    CStartOutputField output(wx->Dialog(), startBit);
    wx->Declare(output);
}
