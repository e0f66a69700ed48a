#include "afx/Window.h"

#include "afx/CodePage.h"
#include "afx/Resources.h"
#include "afx/ThreadState.h"

#include <algorithm>
#include <mutex>
#include <vector>

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)
IMPLEMENT_DYNAMIC(CWnd, CCmdTarget)

namespace
{

// The objects that are attached to a window, of all threads. They are a handful, the last ones being asked for most,
// and there is room for them from the start. A host may attach more.
std::mutex attachedGuard;
std::vector<CWnd*> attachedWindows = [] {
    std::vector<CWnd*> none;
    none.reserve(64);
    return none;
}();

class CPlainClass
{
public:
    CPlainClass()
    {
        WNDCLASSW plain = {};
        plain.style = CS_DBLCLKS;
        plain.lpfnWndProc = AfxWndProc;
        plain.hInstance = AfxGetInstanceHandle();
        plain.hCursor = ::LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
        plain.hbrBackground = ::GetSysColorBrush(COLOR_BTNFACE);
        plain.lpszClassName = m_name;
        ::RegisterClassW(&plain);
    }
    // A library that is unloaded must not leave its window procedure behind.
    ~CPlainClass() { ::UnregisterClassW(m_name, AfxGetInstanceHandle()); }

    static constexpr char kName[] = "AfxWnd";

private:
    const CWideText m_name{kName};
};

int GetText(HWND window, CString& text)
{
    const int size = ::GetWindowTextLengthW(window) + 1;
    const CWideBuffer shown(size);
    text = AfxNarrow(shown.Get(), ::GetWindowTextW(window, shown.Get(), size));
    return text.GetLength();
}

int GetText(HWND window, LPSTR text, int size)
{
    const CWideBuffer shown(std::max(size, 1)); // a character has at least one byte
    return AfxNarrow(shown.Get(), ::GetWindowTextW(window, shown.Get(), size), text, size);
}

int Clamp(int position, int size, int low, int high) { return std::max(std::min(position, high - size), low); }

} // namespace

// ---- The window behind the object -----------------------------------------------------------------------------------

CWnd::~CWnd() { CWnd::DestroyWindow(); }

CWnd* PASCAL CWnd::FromHandle(HWND window)
{
    CWnd* attached = FromHandlePermanent(window);
    return attached ? attached : AfxTemporaries().windows.FromHandle(window);
}

CWnd* PASCAL CWnd::FromHandlePermanent(HWND window)
{
    const std::lock_guard lock(attachedGuard);
    const auto found = std::find_if(attachedWindows.rbegin(), attachedWindows.rend(),
                                    [window](CWnd* one) { return one->m_hWnd == window; });
    return found != attachedWindows.rend() ? *found : nullptr;
}

void PASCAL CWnd::DeleteTempMap() { AfxTemporaries().windows.ReleaseAll(); }

BOOL CWnd::Attach(HWND window)
{
    ASSERT(!m_hWnd);
    if (!window)
        return FALSE;
    try
    {
        const std::lock_guard lock(attachedGuard);
        attachedWindows.push_back(this);
    }
    catch (const std::bad_alloc&) // which must not pass the system while it creates a window
    {
        return FALSE;
    }
    m_hWnd = window;
    return TRUE;
}

HWND CWnd::Detach()
{
    const std::lock_guard lock(attachedGuard);
    attachedWindows.erase(std::remove(attachedWindows.begin(), attachedWindows.end(), this), attachedWindows.end());
    return std::exchange(m_hWnd, nullptr);
}

void CWnd::AttachCreated(HWND window)
{
    if (!Attach(window))
        return;
    PreSubclassWindow();
    m_pfnSuper = ::DefWindowProcW;
}

BOOL CWnd::SubclassWindow(HWND window)
{
    if (!Attach(window))
        return FALSE;
    PreSubclassWindow();
    m_pfnSuper =
        reinterpret_cast<WNDPROC>(::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(AfxWndProc)));
    return TRUE;
}

HWND CWnd::UnsubclassWindow()
{
    ::SetWindowLongPtrW(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(std::exchange(m_pfnSuper, nullptr)));
    return Detach();
}

BOOL CWnd::Create(LPCSTR className, LPCSTR text, DWORD style, const RECT& rect, CWnd* parent, UINT id, void* context)
{
    return CreateEx(0, className, text, style | WS_CHILD, rect.left, rect.top, rect.right - rect.left,
                    rect.bottom - rect.top, parent->m_hWnd, reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)),
                    context);
}

BOOL CWnd::CreateEx(DWORD exStyle, LPCSTR className, LPCSTR text, DWORD style, int x, int y, int width, int height,
                    HWND parent, HMENU idOrMenu, void* context)
{
    ASSERT(!m_hWnd);
    static const CPlainClass plainClass;
    AfxThreadState().windowInCreation = className ? nullptr : this;
    const HWND created =
        ::CreateWindowExW(exStyle, CWideText(className ? className : plainClass.kName), CWideText(text), style, x, y,
                          width, height, parent, idOrMenu, AfxGetInstanceHandle(), context);
    AfxThreadState().windowInCreation = nullptr;
    if (!created || (className ? SubclassWindow(created) : m_hWnd != nullptr))
        return created != nullptr;
    ::DestroyWindow(created); // there was no memory to attach it
    return FALSE;
}

LRESULT CALLBACK AfxWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    CWnd* object = CWnd::FromHandlePermanent(window);
    if (!object && AfxThreadState().windowInCreation)
    {
        object = std::exchange(AfxThreadState().windowInCreation, nullptr);
        object->AttachCreated(window);
    }
    if (!object || !object->m_hWnd)
        return ::DefWindowProcW(window, message, wParam, lParam);

    return AfxCallWndProc(object, AfxMessage(window, message, wParam, lParam));
}

BOOL CWnd::DestroyWindow()
{
    const HWND window = m_hWnd;
    if (!window)
        return FALSE;
    const BOOL destroyed = ::DestroyWindow(window);
    // An object that receives the window's messages has let go by now and may have deleted itself.
    if (FromHandlePermanent(window) == this)
        Detach();
    return destroyed;
}

// The window's last message: what was subclassed gets it too, then the object is on its own.
void CWnd::OnNcDestroy()
{
    Default();
    if (m_hWnd)
        UnsubclassWindow();
    if (m_nFlags & WF_MODALLOOP)
        EndModalLoop(-1);
    PostNcDestroy();
}

// ---- Relatives ------------------------------------------------------------------------------------------------------

CWnd* PASCAL CWnd::GetSafeOwner(CWnd* parent, HWND* disabledTop)
{
    return FromHandle(AfxGetSafeOwner(parent ? parent->m_hWnd : nullptr, disabledTop));
}

HWND AfxGetSafeOwner(HWND parent, HWND* disabledTop)
{
    HWND owner = parent ? parent : ::GetActiveWindow();
    // A child window owns nothing.
    while (owner && (::GetWindowLongW(owner, GWL_STYLE) & WS_CHILD))
        owner = ::GetParent(owner);

    HWND top = owner;
    while (HWND above = top ? ::GetParent(top) : nullptr)
        top = above;

    if (!parent && owner)
        owner = ::GetLastActivePopup(owner);

    if (disabledTop)
    {
        *disabledTop = top && top != owner && ::IsWindowEnabled(top) ? top : nullptr;
        ::EnableWindow(*disabledTop, FALSE);
    }
    return owner;
}

// ---- State and text -------------------------------------------------------------------------------------------------

BOOL CWnd::ModifyStyle(DWORD remove, DWORD add, UINT flags)
{
    const DWORD style = GetStyle();
    const DWORD changed = (style & ~remove) | add;
    if (changed == style)
        return FALSE;
    ::SetWindowLongW(m_hWnd, GWL_STYLE, static_cast<LONG>(changed));
    if (flags)
        SetWindowPos(nullptr, 0, 0, 0, 0, flags | SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    return TRUE;
}

void CWnd::SetWindowText(LPCSTR text) { ::SetWindowTextW(m_hWnd, CWideText(text)); }

void CWnd::GetWindowText(CString& text) const { GetText(m_hWnd, text); }

int CWnd::GetWindowText(LPSTR text, int size) const { return GetText(m_hWnd, text, size); }

void CWnd::SetDlgItemText(int id, LPCSTR text) { ::SetWindowTextW(::GetDlgItem(m_hWnd, id), CWideText(text)); }

void CWnd::SetFont(CFont* font, BOOL redraw)
{
    SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(font ? font->m_hObject : nullptr), redraw);
}

int CWnd::GetDlgItemText(int id, LPSTR text, int size) const { return GetText(::GetDlgItem(m_hWnd, id), text, size); }

int CWnd::GetDlgItemText(int id, CString& text) const { return GetText(::GetDlgItem(m_hWnd, id), text); }

int CWnd::GetCheckedRadioButton(int first, int last) const
{
    for (int id = first; id <= last; ++id)
    {
        if (IsDlgButtonChecked(id))
            return id;
    }
    return 0;
}

// ---- Place ----------------------------------------------------------------------------------------------------------

void CWnd::MoveWindow(int x, int y, int width, int height, BOOL repaint)
{
    ::MoveWindow(m_hWnd, x, y, width, height, repaint);
}

void CWnd::MoveWindow(LPCRECT rect, BOOL repaint)
{
    MoveWindow(rect->left, rect->top, rect->right - rect->left, rect->bottom - rect->top, repaint);
}

BOOL CWnd::SetWindowPos(const CWnd* after, int x, int y, int width, int height, UINT flags)
{
    return ::SetWindowPos(m_hWnd, after ? after->m_hWnd : nullptr, x, y, width, height, flags);
}

void CWnd::ScreenToClient(LPRECT rect) const { ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<LPPOINT>(rect), 2); }

void CWnd::ClientToScreen(LPRECT rect) const { ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<LPPOINT>(rect), 2); }

void CWnd::CenterWindow(CWnd* other)
{
    const HWND parent = ::GetParent(m_hWnd); // of a popup: its owner
    const HWND middle = other ? other->m_hWnd : parent;

    CRect screen;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &screen, 0);
    CRect around = screen;
    if (middle && ::IsWindowVisible(middle) && !::IsIconic(middle))
        ::GetWindowRect(middle, around);

    CRect place;
    GetWindowRect(place);
    CPoint corner = around.CenterPoint();
    corner.Offset(-(place.Width() / 2), -(place.Height() / 2));
    if (screen.PtInRect(around.CenterPoint())) // else on another screen, of whose size nothing is known
    {
        corner.x = Clamp(corner.x, place.Width(), screen.left, screen.right);
        corner.y = Clamp(corner.y, place.Height(), screen.top, screen.bottom);
    }
    if (GetStyle() & WS_CHILD)
        ::ScreenToClient(parent, &corner);
    SetWindowPos(nullptr, corner.x, corner.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

BOOL CWnd::SetScrollInfo(int bar, LPSCROLLINFO info, BOOL redraw)
{
    info->cbSize = sizeof *info;
    ::SetScrollInfo(m_hWnd, bar, info, redraw);
    return TRUE;
}

BOOL CWnd::GetScrollInfo(int bar, LPSCROLLINFO info, UINT mask) const
{
    info->cbSize = sizeof *info;
    info->fMask = mask;
    return ::GetScrollInfo(m_hWnd, bar, info);
}
