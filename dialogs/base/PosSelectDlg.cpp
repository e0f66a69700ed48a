#include "dialogs/base/PosSelectDlg.h"

#include "afx/System.h"
#include "core/FunWizard.h"
#include "core/Values.h"
#include "dialogs/base/UnseenUser.h"
#include "resources/resource.h"

#include <algorithm>

namespace
{

constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kBlue = RGB(0, 0, 255);
constexpr int kExplanationMargin = 3; // pixels that the edit keeps free of text

// An item carries its choice: the instruction in the upper half, the variant in the lower.
DWORD ItemData(const SWizardChoice& choice) { return static_cast<DWORD>(MAKELONG(choice.variant, choice.instruction)); }

SWizardChoice ChoiceOf(DWORD itemData) { return {HIWORD(itemData), LOWORD(itemData)}; }

/// The device context of a control with the control's font selected.
class CControlDC : public CClientDC
{
public:
    explicit CControlDC(CWnd* control) : CClientDC(control), m_previous(nullptr)
    {
        if (CFont* font = control->GetFont())
            m_previous = SelectObject(font);
    }
    ~CControlDC() override
    {
        if (m_previous != nullptr)
            SelectObject(m_previous);
    }

    CControlDC(const CControlDC&) = delete;
    CControlDC& operator=(const CControlDC&) = delete;

private:
    CFont* m_previous;
};

/// The widest text of a column, in pixels, and from it the width of the column.
struct SColumn
{
    int margin;
    int widthWithoutText;
    int widest = 0;

    void Measure(CDC& dc, const CString& text) { widest = std::max<int>(widest, dc.GetTextExtent(text).cx); }
    int Width() const { return widest > 0 ? widest + margin : widthWithoutText; }

    /// In dialog units. A column is reckoned in those of the system; the list takes them for those of its font, and
    /// where these are smaller its texts must not reach the next column.
    int WidthInUnits(int listUnit) const
    {
        constexpr int kGap = 4;
        return std::max(Width() * 4 / LOWORD(AfxGetDialogBaseUnits()), (widest + kGap) * 4 / listUnit);
    }
};

/// Of a letter, in pixels, as the system reckons it.
int AverageWidth(CDC& dc)
{
    const CString letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    return (dc.GetTextExtent(letters).cx / 26 + 1) / 2;
}

CString TakeColumn(CString& text)
{
    const int tab = text.Find('\t');
    CString column = tab >= 0 ? text.Left(tab) : text;
    text = tab >= 0 ? text.Mid(tab + 1) : CString();
    return column;
}

} // namespace

BEGIN_MESSAGE_MAP(CPosSelectDlg, CWzdDialog)
ON_LBN_SELCHANGE(IDC_SELECT_LIST, &CPosSelectDlg::OnSelectionChanged)
ON_LBN_DBLCLK(IDC_SELECT_LIST, &CPosSelectDlg::OnDoubleClick)
ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

CPosSelectDlg::CPosSelectDlg(CFunWizard* wizard, EWizardMode mode, CWnd* parent)
    : CWzdDialog(wizard, IDD_SELECT, parent), m_mode(mode)
{
    m_white.CreateSolidBrush(kWhite);
}

int CPosSelectDlg::HelpTopic() const
{
    return m_mode == kPulseInstructions ? HELP_TOPIC_INSTRUCTIONS : HELP_TOPIC_UNIT_OPERATIONS;
}

INT_PTR CPosSelectDlg::DoModal()
{
    if (CUnseenUser* const user = CUnseenUser::Current())
        return user->Choose(*this) ? IDOK : IDCANCEL;
    return CWzdDialog::DoModal();
}

bool CPosSelectDlg::Offers(const SCatalogueItem& item) const
{
    return m_mode != kPulseInstructions || Wizard().FindSupportFun(item.choice.instruction);
}

bool CPosSelectDlg::Open()
{
    if (!FillList())
        return false;
    ShowExplanation();
    CheckDlgButton(IDC_REGISTER_COMMENTS, Wizard().IsCmtRec() ? BST_CHECKED : BST_UNCHECKED);
    return true;
}

// ---- The list -------------------------------------------------------------------------------------------------------

bool CPosSelectDlg::FillList()
{
    auto* list = static_cast<CListBox*>(GetDlgItem(IDC_SELECT_LIST));
    if (list == nullptr)
        return false;
    list->ResetContent();
    if (m_mode == kPulseInstructions)
        SetTabStops();
    else
    {
        CString label;
        label.LoadString(IDS_PROCESSING_LIST);
        SetDlgItemText(IDC_SELECT_LABEL, label);
    }
    SWizardChoice preset = m_choice;
    if (m_mode != kPulseInstructions)
        preset.instruction = kInstructionUnit; // Whatever was confirmed before, the variant tells the operation.
    int selected = 0;
    for (const SCatalogueItem& item : CatalogueItems(m_mode, Wizard().GetPlcType()))
    {
        if (!Offers(item))
            continue;
        CString text;
        text.LoadString(item.text);
        const int index = list->AddString(text);
        if (index < 0 || list->SetItemData(index, ItemData(item.choice)) < 0)
            return false;
        if (item.choice == preset)
            selected = index;
    }
    list->SetCurSel(selected);
    return true;
}

// The columns are as wide as the widest text of the whole catalogue, so that they do not move with what is supported.
void CPosSelectDlg::SetTabStops()
{
    auto* list = static_cast<CListBox*>(GetDlgItem(IDC_SELECT_LIST));
    SColumn mnemonic = {20, 55};
    SColumn number = {15, 43};
    CControlDC dc(list);
    for (const SCatalogueItem& item : CatalogueItems(m_mode, Wizard().GetPlcType()))
    {
        CString text;
        text.LoadString(item.text);
        mnemonic.Measure(dc, TakeColumn(text));
        number.Measure(dc, TakeColumn(text));
    }
    const int listUnit = AverageWidth(dc);
    int stops[2];
    stops[0] = mnemonic.WidthInUnits(listUnit);
    stops[1] = stops[0] + number.WidthInUnits(listUnit);
    list->SetTabStops(2, stops);
}

bool CPosSelectDlg::GetSelected(SWizardChoice& choice) const
{
    const auto* list = static_cast<CListBox*>(GetDlgItem(IDC_SELECT_LIST));
    const int selection = list != nullptr ? list->GetCurSel() : LB_ERR;
    if (selection == LB_ERR)
        return false;
    choice = ChoiceOf(static_cast<DWORD>(list->GetItemData(selection)));
    return true;
}

// ---- The explanation ------------------------------------------------------------------------------------------------

void CPosSelectDlg::ShowExplanation()
{
    SetDlgItemText(IDC_SELECT_EXPLANATION, "");
    CWnd* edit = GetDlgItem(IDC_SELECT_EXPLANATION);
    SWizardChoice choice;
    if (edit == nullptr || !GetSelected(choice))
        return;
    CString text;
    const UINT id = ExplanationText(m_mode, Wizard().GetPlcType(), choice);
    if (id == 0 || !text.LoadString(id))
        return;

    CRect client;
    edit->GetClientRect(&client);
    CControlDC dc(edit);
    CString wrapped;
    while (!text.IsEmpty())
    {
        if (!wrapped.IsEmpty())
            wrapped += "\r\n";
        wrapped += TakeFittingLine(&dc, client.Width() - kExplanationMargin, text);
    }
    edit->SetWindowText(wrapped);
}

HBRUSH CPosSelectDlg::OnCtlColor(CDC* dc, CWnd* control, UINT type)
{
    const HBRUSH brush = CWzdDialog::OnCtlColor(dc, control, type);
    if (control->GetDlgCtrlID() != IDC_SELECT_EXPLANATION)
        return brush;
    dc->SetTextColor(kBlue);
    dc->SetBkColor(kWhite);
    return m_white;
}

// ---- Notifications --------------------------------------------------------------------------------------------------

void CPosSelectDlg::OnSelectionChanged() { ShowExplanation(); }

void CPosSelectDlg::OnDoubleClick() { OnOK(); }

bool CPosSelectDlg::Confirm()
{
    if (!GetSelected(m_choice))
        return false;
    Wizard().SetCmtRec(IsChecked(IDC_REGISTER_COMMENTS));
    return true;
}
