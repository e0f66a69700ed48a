#include "tests/dialogs/select/TabStops.h"

#include <map>

// The system does not tell the tab stops of a list, but it lets a hook see the message that sets them.
namespace
{

HHOOK g_hook = nullptr;
std::map<HWND, std::vector<int>> g_stops;

LRESULT CALLBACK OnSend(int code, WPARAM wParam, LPARAM lParam)
{
    const auto& sent = *reinterpret_cast<const CWPSTRUCT*>(lParam);
    if (code >= 0 && sent.message == LB_SETTABSTOPS)
    {
        const int* stops = reinterpret_cast<const int*>(sent.lParam);
        g_stops[sent.hwnd].assign(stops, stops + sent.wParam);
    }
    return ::CallNextHookEx(g_hook, code, wParam, lParam);
}

} // namespace

CTabStopWatch::CTabStopWatch()
{
    g_stops.clear();
    g_hook = ::SetWindowsHookExA(WH_CALLWNDPROC, &OnSend, nullptr, ::GetCurrentThreadId());
}

CTabStopWatch::~CTabStopWatch() { ::UnhookWindowsHookEx(g_hook); }

std::vector<int> CTabStopWatch::Of(HWND list) const
{
    const auto found = g_stops.find(list);
    return found != g_stops.end() ? found->second : std::vector<int>();
}
