#include "dialogs/process/ScreenField.h"

#include "afx/CodePage.h"
#include "core/FunWizard.h"
#include "core/Values.h"
#include "dialogs/base/WzdResults.h"

namespace
{

constexpr SWzdChoice kModes[] = {{IDS_SCREEN_DECIMAL, kScreenDecimal},
                                 {IDS_SCREEN_HEXADECIMAL, kScreenHexadecimal},
                                 {IDS_SCREEN_BIT, kScreenBits},
                                 {IDS_SCREEN_ASCII, kScreenText},
                                 {IDS_SCREEN_7_SEGMENT, kScreenSegments}};
constexpr SWzdChoice kZeros[] = {{IDS_SCREEN_ZERO_SUPPRESSION, 0}, {IDS_SCREEN_ALL_DIGITS, 1}};
constexpr SWzdChoice kColors[] = {
    {IDS_SCREEN_GREEN, kScreenGreen}, {IDS_SCREEN_RED, kScreenRed}, {IDS_SCREEN_ORANGE, kScreenOrange}};

/// A list of codes, and check boxes of which each is a bit.
struct SLineList
{
    UINT combo;
    CWzdChoices choices;
    SWzdBits bits;
};

struct SLineChecks
{
    UINT first;
    SWzdBits bits;
};

constexpr SLineList kLists[] = {{IDC_SCREEN_MODE, kModes, kScreenMode},
                                {IDC_SCREEN_ZERO_SUPPRESSION, kZeros, kScreenAllDigits},
                                {IDC_SCREEN_COLOR, kColors, kScreenColor}};
constexpr SLineChecks kChecks[] = {{IDC_SCREEN_POINT_2, kScreenPoints}, {IDC_SCREEN_HIDE_1, kScreenHidden}};

enum EScreenOperand
{
    kControlData = 1,
    kUpsideData
};

class CScreenField : public CWzdField
{
public:
    CScreenField(CWzdDlgBase& dialog, const SWzdRow& row, SScreenInput& input) : CWzdField(dialog, row), m_input(input)
    {
    }

    bool Open() override
    {
        const auto* block = static_cast<const WORD*>(m_dialog.Wizard().GetDlgDataPtr());
        m_input.settings = block != nullptr ? SScreenSettings::FromBlock(block) : SScreenSettings();
        for (const SLineList& list : kLists)
            if (!m_dialog.FillCombo(list.combo, list.choices))
                return false;
        // The list that is drawn is as high as the others.
        auto* colors = static_cast<CComboBox*>(m_dialog.GetDlgItem(IDC_SCREEN_COLOR));
        const auto* modes = static_cast<CComboBox*>(m_dialog.GetDlgItem(IDC_SCREEN_MODE));
        constexpr int kClosedField = -1, kItems = 0;
        for (const int part : {kClosedField, kItems})
            colors->SetItemHeight(part, static_cast<UINT>(modes->GetItemHeight(part)));
        m_dialog.LimitText(IDC_SCREEN_TEXT, kScreenDigits);
        m_dialog.Check(IDC_SCREEN_UPSIDE_LINE, true);
        m_dialog.Check(IDC_SCREEN_DOWNSIDE_LINE, false);
        m_input.line = kUpsideLine;
        Load();
        return true;
    }

    void OnChanged(UINT id) override
    {
        if (id >= IDC_SCREEN_MARK_1 && id <= IDC_SCREEN_MARK_8)
            ToggleMark(id);
        else if (id == IDC_SCREEN_UPSIDE_LINE)
            SwitchTo(kUpsideLine);
        else if (id == IDC_SCREEN_DOWNSIDE_LINE)
            SwitchTo(kDownsideLine);
        else
            Store();
    }

    void Refresh() override
    {
        const SScreenLine& line = Line();
        for (CWnd* item = m_dialog.ControlAfter(IDC_SCREEN_NONDISPLAY); item != nullptr;
             item = item->GetWindow(GW_HWNDNEXT))
        {
            const auto id = static_cast<UINT>(item->GetDlgCtrlID());
            if (id == IDC_REGISTER_COMMENTS)
                break;
            const bool isOfText = id == IDC_SCREEN_TEXT_LABEL || id == IDC_SCREEN_TEXT;
            item->EnableWindow(!line.hidden && (!isOfText || line.IsText()));
        }
        if (CWnd* preview = m_dialog.GetDlgItem(IDC_SCREEN_PREVIEW))
            preview->Invalidate(FALSE);
    }

    bool Collect(CWzdResults& results) override
    {
        Store();
        const SScreenSettings& settings = m_input.settings;
        results.SetDialogData(settings.ToBlock());
        UseTable(results, kControlData);
        results.AddData({}, kHexadecimalConstant, settings.FirstWord());
        for (int index = 0; index < kScreenLines; ++index)
            if (const SScreenLine& line = settings.lines[static_cast<size_t>(index)]; !line.hidden)
                results.AddData({index + 1}, kHexadecimalConstant, line.control);
        for (int index = 0; index < kScreenLines; ++index)
            if (const SScreenLine& line = settings.lines[static_cast<size_t>(index)]; !line.hidden && line.IsText())
            {
                UseTable(results, kUpsideData + index);
                for (int word = 0; word < line.TextWords(); ++word)
                    results.AddData({word}, kHexadecimalConstant, line.TextWord(word));
            }
        return true;
    }

private:
    SScreenLine& Line() const { return m_input.settings.lines[static_cast<size_t>(m_input.line)]; }

    static void UseTable(CWzdResults& results, int operand)
    {
        const SOperand device = results.Operand(operand);
        results.SetTableStart(device.Code(), device.value);
    }

    void ToggleMark(UINT id)
    {
        m_input.settings.ToggleMark(static_cast<int>(id - IDC_SCREEN_MARK_1));
        if (CWnd* button = m_dialog.GetDlgItem(id))
            button->Invalidate(FALSE);
    }

    void SwitchTo(int line)
    {
        if (m_input.line == line)
            return;
        Store();
        m_input.line = line;
        Load();
    }

    void Load()
    {
        const SScreenLine line = Line(); // what is shown may not be stored before all of it is
        m_dialog.Check(IDC_SCREEN_NONDISPLAY, line.hidden);
        for (const SLineList& list : kLists)
            m_dialog.Select(list.combo, IndexOfCode(list.choices, line.Get(list.bits)));
        for (const SLineChecks& checks : kChecks)
            for (int bit = 0; bit < checks.bits.width; ++bit)
                m_dialog.Check(checks.first + static_cast<UINT>(bit), (line.Get(checks.bits) & 1u << bit) != 0);
        m_dialog.SetItemText(IDC_SCREEN_TEXT, line.text);
    }

    void Store()
    {
        SScreenLine& line = Line();
        line.hidden = m_dialog.IsChecked(IDC_SCREEN_NONDISPLAY);
        for (const SLineList& list : kLists)
            if (const int selected = m_dialog.Selection(list.combo); selected >= 0)
                line.Set(list.bits, list.choices[static_cast<size_t>(selected)].code);
        for (const SLineChecks& checks : kChecks)
        {
            DWORD bits = 0;
            for (int bit = 0; bit < checks.bits.width; ++bit)
                bits |= m_dialog.IsChecked(checks.first + static_cast<UINT>(bit)) ? 1u << bit : 0u;
            line.Set(checks.bits, bits);
        }
        StoreText(line);
    }

    // The limit of an edit counts characters; that of a line, bytes. What is stored is what is shown: a character that
    // the code page lacks is not.
    void StoreText(SScreenLine& line)
    {
        const CString entered = m_dialog.ItemText(IDC_SCREEN_TEXT);
        line.text = FitEntered(entered, line.text, kScreenDigits);
        auto* edit = static_cast<CEdit*>(m_dialog.GetDlgItem(IDC_SCREEN_TEXT));
        if (AfxShows(edit, line.text))
            return;
        edit->SetWindowText(line.text);
        edit->SetSel(line.text.GetLength(), line.text.GetLength());
    }

    SScreenInput& m_input;
};

} // namespace

void WDX_Screen(CWzdExchange* wx, SScreenInput& input) { WzdDeclare<CScreenField>(wx, {}, input); }
