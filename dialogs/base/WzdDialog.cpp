#include "dialogs/base/WzdDialog.h"

#include "afx/HtmlHelp.h"
#include "core/AppName.h"
#include "core/FillText.h"
#include "core/FunWizard.h"
#include "core/Memory.h"
#include "core/OpenWizard.h"
#include "core/ResourceScope.h"
#include "dialogs/base/Compaction.h"
#include "dialogs/base/ListFilling.h"
#include "dialogs/base/UnseenUser.h"
#include "resources/resource.h"

namespace
{

bool ListChoices(CComboBox* list, CWzdChoices choices)
{
    const CListFilling filling(list);
    for (const SWzdChoice& choice : choices)
    {
        CString text;
        if (choice.argument == SWzdChoice::kPlainText)
            text.LoadString(choice.text);
        else
            text = FillText(choice.text, {choice.argument});
        const int item = text.IsEmpty() ? CB_ERR : list->AddString(text);
        if (item < 0 || list->SetItemData(item, choice.code) < 0)
            return false;
    }
    return true;
}

} // namespace

BEGIN_MESSAGE_MAP(CWzdDialog, CDialog)
ON_BN_CLICKED(IDC_HELP_TOPIC, &CWzdDialog::OnHelpTopic)
ON_WM_HELPINFO()
END_MESSAGE_MAP()

CWzdDialog::CWzdDialog(CFunWizard* wizard, UINT templateId, CWnd* parent)
    : CDialog(templateId, parent), m_templateId(templateId), m_wizard(wizard)
{
}

INT_PTR CWzdDialog::DoModal()
{
    const COpenWizard open(m_wizard, this);
    const CResourceScope scope(Library());
    CUnseenUser* const user = CUnseenUser::Current();
    const INT_PTR result = user != nullptr ? RunUnseen(*user) : CDialog::DoModal();
    return open.IsOrphaned() ? IDCANCEL : result;
}

// No template has the style that would show it.
INT_PTR CWzdDialog::RunUnseen(CUnseenUser& user)
{
    const CTemporaryScope temporaries;
    if (!Create(m_templateId))
        return IDCANCEL;
    user.Work(*this);
    const bool confirmed = !ContinueModal() && m_nModalResult == IDOK;
    DestroyWindow();
    return confirmed ? IDOK : IDCANCEL;
}

HINSTANCE CWzdDialog::Library() const { return m_wizard != nullptr ? m_wizard->GetLoadInstance() : nullptr; }

LRESULT CWzdDialog::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const CMessageScope scope(Library());
    return CDialog::WindowProc(message, wParam, lParam);
}

BOOL CWzdDialog::OnInitDialog()
{
    CDialog::OnInitDialog();
    m_items.fill(nullptr); // those of an earlier opening
    bool opened = false;
    const int enough = WithMemory([&] {
        if (m_wizard == nullptr)
            return;
        m_wizard->SetDlgFont(this, 0, nullptr);
        CWnd* help = GetDlgItem(IDC_HELP_TOPIC);
        if (help != nullptr && m_wizard->GetHelpPath().IsEmpty())
        {
            help->EnableWindow(FALSE);
            help->ShowWindow(SW_HIDE);
        }
        opened = Open();
    });
    if (!enough || !opened)
        EndDialog(IDCANCEL);
    if (CUnseenUser::Current() != nullptr)
        return FALSE; // The focus stays with what can be seen.
    const CWnd* focus = GetFocus();
    return focus == nullptr || !IsChild(focus); // A control that has taken the focus keeps it.
}

void CWzdDialog::OnOK()
{
    bool confirmed = false;
    if (!WithMemory([&] { confirmed = Confirm(); }))
        ShowWarning(IDS_ERR_MEMORY);
    else if (confirmed)
        EndDialog(IDOK);
}

void CWzdDialog::OnHelpTopic()
{
    const CString path = m_wizard->GetHelpPath();
    if (HelpTopic() != kNoHelp && !path.IsEmpty())
        AfxHtmlHelp(path, HelpTopic());
}

// F1 does what the button does.
BOOL CWzdDialog::OnHelpInfo(HELPINFO* info)
{
    if (HelpTopic() == kNoHelp)
        return CDialog::OnHelpInfo(info);
    OnHelpTopic();
    return TRUE;
}

// ---- Controls -------------------------------------------------------------------------------------------------------

CWnd* CWzdDialog::GetDlgItem(UINT id) const
{
    HWND& item = m_items[id % m_items.size()];
    if (item == nullptr || static_cast<UINT>(::GetDlgCtrlID(item)) != id) // another one's place, or gone
        item = ::GetDlgItem(m_hWnd, static_cast<int>(id));
    return FromHandle(item);
}

CString CWzdDialog::ItemText(UINT id) const
{
    CString text;
    if (const CWnd* item = GetDlgItem(id))
        item->GetWindowText(text);
    return text;
}

void CWzdDialog::SetText(CWnd* item, LPCSTR text)
{
    if (item == nullptr)
        return;
    CString current;
    item->GetWindowText(current);
    if (current != text)
        item->SetWindowText(text);
}

bool CWzdDialog::IsChecked(UINT id) const
{
    const auto* box = static_cast<CButton*>(GetDlgItem(id));
    return box != nullptr && box->GetCheck() == BST_CHECKED;
}

void CWzdDialog::Check(UINT id, bool checked)
{
    if (auto* box = static_cast<CButton*>(GetDlgItem(id)))
        box->SetCheck(checked ? BST_CHECKED : BST_UNCHECKED);
}

int CWzdDialog::Selection(UINT combo) const
{
    const auto* list = static_cast<CComboBox*>(GetDlgItem(combo));
    return list != nullptr ? list->GetCurSel() : CB_ERR;
}

void CWzdDialog::Select(UINT combo, int index)
{
    if (auto* list = static_cast<CComboBox*>(GetDlgItem(combo)))
        list->SetCurSel(index);
}

void CWzdDialog::Enable(UINT id, bool enabled)
{
    if (CWnd* item = GetDlgItem(id))
        item->EnableWindow(enabled);
}

void CWzdDialog::LimitText(UINT edit, int characters)
{
    if (auto* item = static_cast<CEdit*>(GetDlgItem(edit)))
        item->LimitText(characters);
}

void CWzdDialog::TakeDigitsOnly(UINT edit, bool digitsOnly)
{
    if (CWnd* item = GetDlgItem(edit))
        item->ModifyStyle(digitsOnly ? 0 : ES_NUMBER, digitsOnly ? ES_NUMBER : 0);
}

CWnd* CWzdDialog::ControlBefore(UINT id, int steps) const { return Neighbour(GetDlgItem(id), GW_HWNDPREV, steps); }

CWnd* CWzdDialog::ControlAfter(UINT id, int steps) const { return Neighbour(GetDlgItem(id), GW_HWNDNEXT, steps); }

bool CWzdDialog::FillCombo(UINT combo, CWzdChoices choices, int selected)
{
    auto* list = static_cast<CComboBox*>(GetDlgItem(combo));
    if (list == nullptr || !ListChoices(list, choices))
        return false;
    list->SetCurSel(selected >= 0 && selected < list->GetCount() ? selected : 0);
    return true;
}

// ---- Messages -------------------------------------------------------------------------------------------------------

bool CWzdDialog::Refuse(UINT edit, UINT message)
{
    if (CUnseenUser* const user = CUnseenUser::Current())
    {
        user->BeRefused(message, edit, 0, 0);
        return false;
    }
    if (auto* item = static_cast<CEdit*>(GetDlgItem(edit)))
    {
        item->SetSel(0, -1); // and scrolls it into view
        item->SetFocus();
    }
    ShowWarning(message);
    return false;
}

int CWzdDialog::ShowWarning(UINT stringId, UINT flags)
{
    if (CUnseenUser* const user = CUnseenUser::Current())
    {
        user->BeRefused(stringId, 0, 0, 0);
        return IDOK;
    }
    // Without allocating: the message may be that memory has run out.
    char text[512];
    AfxLoadString(stringId, text, sizeof text);
    return ShowWarningText(text, flags);
}

int CWzdDialog::ShowWarningText(LPCSTR text, UINT flags)
{
    CWnd* owner = CWnd::GetSafeOwner();
    return (owner != nullptr ? owner : this)->MessageBox(text, GetAppName(), flags | MB_ICONEXCLAMATION);
}
