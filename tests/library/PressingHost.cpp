#include "tests/library/PressingHost.h"

#include <string_view>
#include <utility>

namespace
{

constexpr char kClass[] = "PressingHost";
constexpr UINT kStep = WM_APP + 1;

CPressingHost* g_host = nullptr;

BOOL CALLBACK FindDialog(HWND window, LPARAM found)
{
    char name[32] = "";
    ::GetClassNameA(window, name, sizeof name);
    if (std::string_view(name) != "#32770" || !::IsWindowEnabled(window))
        return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

/// The one dialog of this thread that is not disabled by another one; null when there is none.
HWND TopDialog()
{
    HWND found = nullptr;
    ::EnumThreadWindows(::GetCurrentThreadId(), FindDialog, reinterpret_cast<LPARAM>(&found));
    return found;
}

} // namespace

CPressingHost::CPressingHost()
{
    WNDCLASSA description = {};
    description.lpfnWndProc = WindowProc;
    description.hInstance = ::GetModuleHandleA(nullptr);
    description.lpszClassName = kClass;
    ::RegisterClassA(&description);
    m_window = ::CreateWindowExA(0, kClass, "host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 200, 100, nullptr, nullptr,
                                 description.hInstance, nullptr);
    m_child = ::CreateWindowExA(0, "EDIT", "child", WS_CHILD | WS_VISIBLE, 0, 0, 100, 20, m_window, nullptr,
                                description.hInstance, nullptr);
    g_host = this;
}

CPressingHost::~CPressingHost()
{
    ::DestroyWindow(m_window);
    ::UnregisterClassA(kClass, ::GetModuleHandleA(nullptr));
    g_host = nullptr;
}

void CPressingHost::Press(std::deque<int> buttons)
{
    m_buttons = std::move(buttons);
    m_presses = 0;
    m_pressing = true;
    ::PostMessageA(m_window, kStep, 0, 0);
}

int CPressingHost::StopPressing()
{
    m_pressing = false;
    MSG message;
    while (::PeekMessageA(&message, m_window, kStep, kStep, PM_REMOVE))
        ;
    return m_presses;
}

LRESULT CALLBACK CPressingHost::WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != kStep)
        return ::DefWindowProcA(window, message, wParam, lParam);
    g_host->OnStep();
    return 0;
}

void CPressingHost::OnStep()
{
    if (!m_pressing)
        return;
    ::PostMessageA(m_window, kStep, 0, 0); // for the dialog that may come up now
    const HWND dialog = TopDialog();
    if (dialog == nullptr)
        return;
    int button = IDCANCEL;
    if (!m_buttons.empty())
    {
        button = m_buttons.front();
        m_buttons.pop_front();
    }
    m_presses++;
    ::SendMessageA(dialog, WM_COMMAND, static_cast<WPARAM>(button), 0);
}
