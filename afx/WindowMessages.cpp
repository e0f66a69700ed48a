// How messages reach the objects behind windows: dispatch, message maps and modal loops.

#include "afx/CodePage.h"
#include "afx/ThreadState.h"
#include "afx/Window.h"

#include <algorithm>
#include <cstring>

namespace
{

class CCurrentMessage
{
public:
    explicit CCurrentMessage(const MSG& message)
        : m_current(AfxThreadState().message), m_outer(std::exchange(m_current, message))
    {
    }
    ~CCurrentMessage() { m_current = m_outer; }
    CCurrentMessage(const CCurrentMessage&) = delete;
    CCurrentMessage& operator=(const CCurrentMessage&) = delete;

private:
    MSG& m_current;
    const MSG m_outer;
};

// Runs what may throw on behalf of the system, whose frames no exception may pass. FALSE when something was thrown.
template <class F>
bool Guarded(const F& run)
{
    try
    {
        run();
        return true;
    }
    catch (CException* exception)
    {
        exception->Delete();
    }
    catch (...)
    {
    }
    return false;
}

// The result of a message whose handler has thrown.
LRESULT FailedResult(CWnd* window, const MSG& message)
{
    switch (message.message)
    {
    case WM_CREATE:
        return -1; // the window is not created
    case WM_INITDIALOG:
        window->EndModalLoop(-1);
        return TRUE;
    case WM_PAINT:
        ::ValidateRect(message.hwnd, nullptr); // or it would come again at once
        return 0;
    default:
        return 0;
    }
}

bool PreTranslate(MSG& message)
{
    for (HWND window = message.hwnd; window; window = ::GetParent(window))
    {
        CWnd* const object = CWnd::FromHandlePermanent(window);
        if (object && object->PreTranslateMessage(&message))
            return true;
    }
    return false;
}

void Dispatch(MSG& message)
{
    bool isDone = true;
    Guarded([&] { isDone = PreTranslate(message); });
    if (isDone)
        return;
    ::TranslateMessage(&message);
    ::DispatchMessageW(&message);
}

} // namespace

// ---- Message maps ---------------------------------------------------------------------------------------------------

const AFX_MSGMAP_ENTRY* AFX_MSGMAP::Find(UINT message, UINT code, UINT id) const
{
    for (const AFX_MSGMAP* map = this; map; map = map->pfnGetBaseMap ? map->pfnGetBaseMap() : nullptr)
    {
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->pHandler; ++entry)
        {
            if (entry->nMessage == message && entry->nCode == code && entry->nID <= id && id <= entry->nLastID)
                return entry;
        }
    }
    return nullptr;
}

const AFX_MSGMAP* PASCAL CCmdTarget::GetThisMessageMap()
{
    static const AFX_MSGMAP_ENTRY none = {0, 0, 0, 0, nullptr};
    static const AFX_MSGMAP map = {nullptr, &none};
    return &map;
}

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const { return GetThisMessageMap(); }

BOOL CCmdTarget::OnCmdMsg(UINT id, int code, void*, AFX_CMDHANDLERINFO*)
{
    const AFX_MSGMAP_ENTRY* entry = GetMessageMap()->Find(WM_COMMAND, static_cast<UINT>(code), id);
    if (!entry)
        return FALSE;
    entry->pHandler(this, AfxMessage(nullptr, WM_COMMAND, MAKEWPARAM(id, code), 0));
    return TRUE;
}

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
END_MESSAGE_MAP()

// ---- Dispatch -------------------------------------------------------------------------------------------------------

LRESULT AfxCallWndProc(CWnd* window, const MSG& message)
{
    const CCurrentMessage current(message);
    const CTemporaryScope temporaries;
    LRESULT result = 0;
    if (Guarded([&] { result = window->WindowProc(message.message, message.wParam, message.lParam); }))
        return result;
    return FailedResult(window, message);
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT result = 0;
    return OnWndMsg(message, wParam, lParam, &result) ? result : DefWindowProc(message, wParam, lParam);
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (message == WM_COMMAND)
    {
        *result = OnCommand(wParam, lParam);
        return *result != 0;
    }
    if (message == WM_NCDESTROY)
    {
        OnNcDestroy();
        return TRUE;
    }

    const bool isControlColor = message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC;
    const AFX_MSGMAP_ENTRY* entry = GetMessageMap()->Find(isControlColor ? WM_CTLCOLOR : message);
    if (!entry)
        return FALSE;
    *result = entry->pHandler(this, AfxMessage(m_hWnd, message, wParam, lParam));
    return TRUE;
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM)
{
    const UINT id = LOWORD(wParam);
    return id != 0 && OnCmdMsg(id, HIWORD(wParam), nullptr, nullptr);
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    return m_pfnSuper ? ::CallWindowProcW(m_pfnSuper, m_hWnd, message, wParam, lParam)
                      : ::DefWindowProcW(m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::Default()
{
    const MSG& current = AfxThreadState().message;
    return DefWindowProc(current.message, current.wParam, current.lParam);
}

BOOL CWnd::PreTranslateMessage(MSG*) { return FALSE; }

// ---- Sending --------------------------------------------------------------------------------------------------------

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return ::SendMessageA(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::PostMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::PostMessageA(m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::SendDlgItemMessage(int id, UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::SendDlgItemMessageA(m_hWnd, id, message, wParam, lParam);
}

UINT_PTR CWnd::SetTimer(UINT_PTR id, UINT milliseconds, TIMERPROC callback)
{
    return ::SetTimer(m_hWnd, id, milliseconds, callback);
}

int CWnd::MessageBox(LPCSTR text, LPCSTR caption, UINT type)
{
    // No more of the caption than fits on a screen: a wide text of that length needs no memory.
    constexpr size_t kMostShown = 500;
    const auto captionLength = static_cast<int>(caption ? std::min(std::strlen(caption), kMostShown) : 0);
    return ::MessageBoxW(m_hWnd, CWideText(text), CWideText(caption, captionLength, CP_ACP), type);
}

// ---- Being modal ----------------------------------------------------------------------------------------------------

int CWnd::RunModalLoop(DWORD flags)
{
    ASSERT(!(m_nFlags & WF_MODALLOOP));
    m_nFlags |= WF_MODALLOOP | WF_CONTINUEMODAL;
    m_nModalResult = -1;
    while (ContinueModal())
    {
        const CTemporaryScope temporaries;
        MSG message;
        if (!::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        {
            OnModalIdle(flags);
            flags &= ~MLF_SHOWONIDLE; // once only
            if (::GetMessageW(&message, nullptr, 0, 0) < 0)
                break;
        }
        if (message.message == WM_QUIT)
        {
            ::PostQuitMessage(static_cast<int>(message.wParam)); // for the loop around this one
            break;
        }
        Dispatch(message);
    }
    m_nFlags &= ~(WF_MODALLOOP | WF_CONTINUEMODAL);
    return m_nModalResult;
}

void CWnd::OnModalIdle(DWORD flags)
{
    if ((flags & MLF_SHOWONIDLE) && !(GetStyle() & WS_VISIBLE))
    {
        ShowWindow(SW_SHOWNORMAL);
        UpdateWindow();
    }
    const HWND owner = ::GetParent(m_hWnd);
    if (owner && !(flags & MLF_NOIDLEMSG))
        ::SendMessageA(owner, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(m_hWnd));
}

BOOL CWnd::ContinueModal() { return (m_nFlags & WF_CONTINUEMODAL) != 0; }

void CWnd::EndModalLoop(int result)
{
    m_nModalResult = result;
    m_nFlags &= ~WF_CONTINUEMODAL;
    // The message may have been sent by another thread: then the loop waits until something is posted.
    PostMessage(WM_NULL);
}
