#include "afx/Dialog.h"

#include "afx/Resources.h"
#include "afx/Temporary.h"

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
ON_MESSAGE(WM_INITDIALOG, &CDialog::HandleInitDialog)
ON_COMMAND(IDOK, &CDialog::OnOK)
ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
END_MESSAGE_MAP()

namespace
{

HWND HandleOf(CWnd* window) { return window ? window->m_hWnd : nullptr; }

LPCSTR ResourceName(UINT id) { return reinterpret_cast<LPCSTR>(static_cast<UINT_PTR>(id)); }

LPCDLGTEMPLATE FindTemplate(HINSTANCE module, LPCSTR name)
{
    const HRSRC found = ::FindResourceA(module, name, reinterpret_cast<LPCSTR>(RT_DIALOG));
    const HGLOBAL loaded = found ? ::LoadResource(module, found) : nullptr;
    return loaded ? static_cast<LPCDLGTEMPLATE>(::LockResource(loaded)) : nullptr;
}

// The head of an extended template, as far as it matters.
struct SExtendedTemplate
{
    WORD version;
    WORD signature; // 0xFFFF, where the style of a plain template never has all bits set
    DWORD helpId;
    DWORD exStyle;
    DWORD style;
    WORD controlCount;
    short x;
    short y;
};

// Whether a template leaves it to us where its dialog appears: at the corner (0, 0), and no style says otherwise.
bool IsToBeCentered(LPCDLGTEMPLATE dialogTemplate)
{
    constexpr DWORD kPlaced = WS_CHILD | DS_CENTER | DS_CENTERMOUSE | DS_ABSALIGN;
    const auto* extended = reinterpret_cast<const SExtendedTemplate*>(dialogTemplate);
    return extended->signature == 0xFFFF
               ? !(extended->style & kPlaced) && extended->x == 0 && extended->y == 0
               : !(dialogTemplate->style & kPlaced) && dialogTemplate->x == 0 && dialogTemplate->y == 0;
}

} // namespace

CDialog::CDialog(UINT templateId, CWnd* parent) : CDialog(ResourceName(templateId), parent) {}

CDialog::CDialog(LPCSTR templateName, CWnd* parent) : m_lpszTemplateName(templateName), m_pParentWnd(parent) {}

BOOL CDialog::InitModalIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent)
{
    m_lpDialogTemplate = dialogTemplate;
    if (parent)
        m_pParentWnd = parent;
    return dialogTemplate != nullptr;
}

INT_PTR CDialog::DoModal()
{
    ASSERT(!m_hWnd);
    const CTemporaryScope temporaries;
    const HINSTANCE module = AfxFindResourceHandle(m_lpszTemplateName, reinterpret_cast<LPCSTR>(RT_DIALOG));
    const LPCDLGTEMPLATE dialogTemplate =
        m_lpDialogTemplate ? m_lpDialogTemplate : FindTemplate(module, m_lpszTemplateName);
    if (!dialogTemplate)
        return -1;

    HWND disabledTop = nullptr;
    const HWND owner = AfxGetSafeOwner(HandleOf(m_pParentWnd), &disabledTop);
    const bool disablesOwner = owner && ::IsWindowEnabled(owner);
    if (disablesOwner)
        ::EnableWindow(owner, FALSE);

    if (CreateDlgIndirect(dialogTemplate, owner, module))
        RunModalLoop(MLF_SHOWONIDLE | (GetStyle() & DS_NOIDLEMSG ? MLF_NOIDLEMSG : 0));

    // Hidden first and with its owner enabled, the dialog leaves the activation to the owner and to no other program.
    if (m_hWnd)
        SetWindowPos(nullptr, 0, 0, 0, 0, SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    if (disablesOwner)
        ::EnableWindow(owner, TRUE);
    if (owner && m_hWnd && ::GetActiveWindow() == m_hWnd)
        ::SetActiveWindow(owner);
    DestroyWindow();
    if (disabledTop)
        ::EnableWindow(disabledTop, TRUE);
    return m_nModalResult;
}

BOOL CDialog::Create(UINT templateId, CWnd* parent) { return Create(ResourceName(templateId), parent); }

BOOL CDialog::Create(LPCSTR templateName, CWnd* parent)
{
    const HINSTANCE module = AfxFindResourceHandle(templateName, reinterpret_cast<LPCSTR>(RT_DIALOG));
    const LPCDLGTEMPLATE dialogTemplate = FindTemplate(module, templateName);
    return dialogTemplate && CreateDlgIndirect(dialogTemplate, HandleOf(parent), module);
}

BOOL CDialog::CreateIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent)
{
    return CreateDlgIndirect(dialogTemplate, HandleOf(parent), AfxGetResourceHandle());
}

// FALSE when the dialog is not there: it could not be created, or OnInitDialog has ended it.
BOOL CDialog::CreateDlgIndirect(LPCDLGTEMPLATE dialogTemplate, HWND owner, HINSTANCE instance)
{
    ASSERT(!m_hWnd);
    m_nModalResult = -1;
    m_nFlags |= WF_CONTINUEMODAL;
    const LPCDLGTEMPLATE given = std::exchange(m_lpDialogTemplate, dialogTemplate);
    ::CreateDialogIndirectParamW(instance, dialogTemplate, owner, DialogProc, reinterpret_cast<LPARAM>(this));
    m_lpDialogTemplate = given;
    if (!ContinueModal())
        DestroyWindow();
    return m_hWnd != nullptr;
}

// The object takes the dialog over with its first message for us. Every later message has passed the object before it
// comes here, and is left to the system.
INT_PTR CALLBACK CDialog::DialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != WM_INITDIALOG || FromHandlePermanent(window))
        return FALSE;
    CDialog* const dialog = reinterpret_cast<CDialog*>(lParam);
    if (!dialog->SubclassWindow(window))
        return ::DestroyWindow(window); // there was no memory to attach it
    return AfxCallWndProc(dialog, AfxMessage(window, message, wParam, lParam));
}

LRESULT CDialog::HandleInitDialog(WPARAM, LPARAM)
{
    CRect before;
    GetWindowRect(before);
    const BOOL setsFocus = OnInitDialog();
    if (!m_hWnd || IsWindowVisible() || !m_lpDialogTemplate || !IsToBeCentered(m_lpDialogTemplate))
        return setsFocus;

    CRect after;
    GetWindowRect(after);
    if (before.TopLeft() == after.TopLeft())
        CenterWindow();
    return setsFocus;
}

void CDialog::EndDialog(int result)
{
    if (ContinueModal())
        EndModalLoop(result);
    ::EndDialog(m_hWnd, result);
}

void CDialog::OnOK() { EndDialog(IDOK); }

void CDialog::OnCancel() { EndDialog(IDCANCEL); }

BOOL CDialog::PreTranslateMessage(MSG* message)
{
    const bool isInput = (message->message >= WM_KEYFIRST && message->message <= WM_KEYLAST) ||
                         (message->message >= WM_MOUSEFIRST && message->message <= WM_MOUSELAST);
    return isInput && ::IsDialogMessageW(m_hWnd, message);
}
