// Posting and fetching messages, and timers. The messages in the queue are Unicode ones.

#include "afx/offscreen/TextMessages.h"

#include <chrono>
#include <optional>

namespace offscreen
{
namespace
{
struct Timer
{
    HWND window;
    UINT_PTR id;
    DWORD interval;
    DWORD due;
    TIMERPROC callback;
};

struct MessageState
{
    std::deque<MSG> queue;
    std::optional<MSG> trail; // The second byte of a double-byte character whose first has been fetched
    bool quitting = false;
    int exitCode = 0;
    bool hanging = false;
    std::vector<Timer> timers;
    UINT_PTR nextTimer = 0x7FFF;
    DWORD skippedTime = 0;
};

MessageState& State()
{
    static auto* state = new MessageState;
    return *state;
}

DWORD Now()
{
    using namespace std::chrono;
    static const auto start = steady_clock::now();
    const auto elapsed = duration_cast<milliseconds>(steady_clock::now() - start).count();
    return static_cast<DWORD>(elapsed) + State().skippedTime + 0x10000;
}

MSG MakeMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    MSG msg{};
    msg.hwnd = window;
    msg.message = message;
    msg.wParam = wParam;
    msg.lParam = lParam;
    msg.time = Now();
    return msg;
}

bool IsWanted(const MSG& msg, HWND window, UINT first, UINT last)
{
    if (window == reinterpret_cast<HWND>(static_cast<LONG_PTR>(-1))
            ? msg.hwnd != nullptr
            : window && msg.hwnd != window && !IsChild(window, msg.hwnd))
        return false;
    return (first == 0 && last == 0) || (msg.message >= first && msg.message <= last);
}

bool TakePosted(MSG& msg, HWND window, UINT first, UINT last, bool remove)
{
    auto& queue = State().queue;
    for (auto it = queue.begin(); it != queue.end(); ++it)
    {
        if (!IsWanted(*it, window, first, last))
            continue;
        msg = *it;
        if (remove)
            queue.erase(it);
        return true;
    }
    return false;
}

bool TakeQuit(MSG& msg, bool remove)
{
    MessageState& state = State();
    if (!state.quitting || !state.queue.empty())
        return false;
    msg = MakeMessage(nullptr, WM_QUIT, static_cast<WPARAM>(state.exitCode), 0);
    if (remove)
        state.quitting = false;
    return true;
}

bool TakePaint(MSG& msg, HWND window, UINT first, UINT last)
{
    const Window* dirty = NextWindowToPaint();
    if (!dirty)
        return false;
    msg = MakeMessage(dirty->handle, WM_PAINT, 0, 0);
    return IsWanted(msg, window, first, last);
}

Timer* EarliestTimer()
{
    auto& timers = State().timers;
    const auto earliest =
        std::min_element(timers.begin(), timers.end(), [](const Timer& a, const Timer& b) { return a.due < b.due; });
    return earliest == timers.end() ? nullptr : &*earliest;
}

// A timer that is due. Somebody who waits need not really wait: with `skipWaiting` the clock jumps to the next timer.
bool TakeTimer(MSG& msg, HWND window, UINT first, UINT last, bool skipWaiting, bool remove)
{
    Timer* timer = EarliestTimer();
    if (!timer)
        return false;
    const DWORD now = Now();
    if (timer->due > now)
    {
        if (!skipWaiting)
            return false;
        State().skippedTime += timer->due - now;
    }
    msg = MakeMessage(timer->window, WM_TIMER, timer->id, reinterpret_cast<LPARAM>(timer->callback));
    if (!IsWanted(msg, window, first, last))
        return false;
    if (remove)
        timer->due = Now() + timer->interval;
    return true;
}

bool Take(MSG& msg, HWND window, UINT first, UINT last, bool remove, bool waiting)
{
    return TakePosted(msg, window, first, last, remove) || TakeQuit(msg, remove) ||
           TakePaint(msg, window, first, last) || TakeTimer(msg, window, first, last, waiting, remove);
}

bool Post(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    State().queue.push_back(MakeMessage(window, message, wParam, lParam));
    return true;
}

// A key whose character is no letter and no digit.
struct OtherKey
{
    WPARAM key;
    char plain;
    char shifted;
};

constexpr OtherKey kOtherKeys[] = {{VK_SPACE, ' ', ' '},
                                   {VK_RETURN, '\r', '\r'},
                                   {VK_TAB, '\t', '\t'},
                                   {VK_BACK, '\b', '\b'},
                                   {VK_ESCAPE, '\x1B', '\x1B'},
                                   {VK_MULTIPLY, '*', '*'},
                                   {VK_ADD, '+', '+'},
                                   {VK_SUBTRACT, '-', '-'},
                                   {VK_DECIMAL, '.', '.'},
                                   {VK_DIVIDE, '/', '/'},
                                   {0xBA, ';', ':'},
                                   {0xBB, '=', '+'},
                                   {0xBC, ',', '<'},
                                   {VK_OEM_MINUS, '-', '_'},
                                   {VK_OEM_PERIOD, '.', '>'},
                                   {0xBF, '/', '?'},
                                   {0xC0, '`', '~'},
                                   {0xDB, '[', '{'},
                                   {0xDC, '\\', '|'},
                                   {0xDD, ']', '}'},
                                   {0xDE, '\'', '"'}};

// The character that a key gives on a US keyboard; 0 when it gives none.
char CharacterOf(WPARAM key)
{
    const bool shift = KeyIsDown(VK_SHIFT);
    if (KeyIsDown(VK_CONTROL))
        return key >= 'A' && key <= 'Z' ? static_cast<char>(key - 'A' + 1) : key == VK_RETURN ? '\n' : 0;
    if (key >= 'A' && key <= 'Z')
        return static_cast<char>(shift == ((Input().keys[VK_CAPITAL] & 1) != 0) ? key - 'A' + 'a' : key);
    if (key >= '0' && key <= '9')
        return shift ? ")!@#$%^&*("[key - '0'] : static_cast<char>(key);
    if (key >= VK_NUMPAD0 && key <= VK_NUMPAD9)
        return static_cast<char>(key - VK_NUMPAD0 + '0');
    for (const OtherKey& other : kOtherKeys)
        if (other.key == key)
            return shift ? other.shifted : other.plain;
    return 0;
}
} // namespace

void ForgetMessages(HWND window)
{
    MessageState& state = State();
    std::erase_if(state.queue, [=](const MSG& msg) { return msg.hwnd == window; });
    if (state.trail && state.trail->hwnd == window)
        state.trail.reset();
    std::erase_if(state.timers, [=](const Timer& timer) { return timer.window == window; });
}

void ReportHang(const char* where)
{
    MessageState& state = State();
    if (!state.hanging)
        Fail("%s would wait forever: the message queue is empty and there is no timer", where);
    state.hanging = true;
    state.quitting = true;
}

void ResetMessages()
{
    State() = MessageState{};
    ForgetLeadByte();
}

int CountTimers() { return static_cast<int>(State().timers.size()); }
} // namespace offscreen

using namespace offscreen;

namespace
{
bool IsCharacter(UINT message) { return message == WM_CHAR || message == WM_SYSCHAR; }

BOOL PostFrom(bool unicode, HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (window == HWND_BROADCAST)
        return NotModelled("PostMessage(HWND_BROADCAST)", FALSE);
    if (window && !Lookup(window))
        return FALSE;
    if (!unicode && IsCharacter(message) && !WidenCharacter(window, wParam))
        return TRUE; // It is posted together with the second byte.
    return Post(window, message, wParam, lParam);
}

BOOL Get(MSG& message, HWND window, UINT first, UINT last)
{
    if (!Take(message, window, first, last, true, true))
    {
        ReportHang("GetMessage");
        if (!TakeQuit(message, true))
            message = MakeMessage(nullptr, WM_QUIT, 0, 0);
    }
    return message.message != WM_QUIT;
}

bool TakeTrail(MSG& message, HWND window, UINT first, UINT last, bool remove)
{
    std::optional<MSG>& trail = State().trail;
    if (!trail || !IsWanted(*trail, window, first, last))
        return false;
    message = *trail;
    if (remove)
        trail.reset();
    return true;
}

// A double-byte character comes as two messages.
void Narrow(MSG& message, bool removed)
{
    if (!IsCharacter(message.message))
        return;
    const char16_t c = static_cast<char16_t>(message.wParam);
    const std::string bytes = ToAnsi({&c, 1});
    if (bytes.size() == 2 && removed)
    {
        State().trail = message;
        State().trail->wParam = static_cast<unsigned char>(bytes[1]);
    }
    message.wParam = static_cast<unsigned char>(bytes[0]);
}

LRESULT DispatchFrom(bool unicode, const MSG& message)
{
    if (message.message == WM_TIMER && message.lParam)
    {
        const auto callback = reinterpret_cast<TIMERPROC>(message.lParam);
        Outside outside;
        callback(message.hwnd, WM_TIMER, message.wParam, Now());
        return 0;
    }
    if (!message.hwnd)
        return 0;
    Window* found = Lookup(message.hwnd);
    if (!found)
        return 0;
    // A procedure that ignores WM_PAINT would be asked again forever.
    const Pin pin(found);
    const LRESULT result =
        CallProc(found->procedure, unicode, message.hwnd, message.message, message.wParam, message.lParam);
    if (message.message == WM_PAINT && !found->dead && found->needsPaint)
        ForgetPaint(*found);
    return result;
}
} // namespace

BOOL PostMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    Inside inside;
    return PostFrom(false, window, message, wParam, lParam);
}

BOOL PostMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    Inside inside;
    return PostFrom(true, window, message, wParam, lParam);
}

void PostQuitMessage(int exitCode)
{
    State().quitting = true;
    State().exitCode = exitCode;
}

BOOL GetMessageA(LPMSG message, HWND window, UINT first, UINT last)
{
    Inside inside;
    if (TakeTrail(*message, window, first, last, true))
        return TRUE;
    const BOOL result = Get(*message, window, first, last);
    Narrow(*message, true);
    return result;
}

BOOL GetMessageW(LPMSG message, HWND window, UINT first, UINT last)
{
    Inside inside;
    return Get(*message, window, first, last);
}

BOOL PeekMessageA(LPMSG message, HWND window, UINT first, UINT last, UINT remove)
{
    Inside inside;
    const bool removes = (remove & PM_REMOVE) != 0;
    if (TakeTrail(*message, window, first, last, removes))
        return TRUE;
    if (!Take(*message, window, first, last, removes, false))
        return FALSE;
    Narrow(*message, removes);
    return TRUE;
}

BOOL PeekMessageW(LPMSG message, HWND window, UINT first, UINT last, UINT remove)
{
    Inside inside;
    return Take(*message, window, first, last, (remove & PM_REMOVE) != 0, false);
}

BOOL TranslateMessage(const MSG* message)
{
    Inside inside;
    const bool system = message->message == WM_SYSKEYDOWN;
    if (message->message != WM_KEYDOWN && !system)
        return message->message == WM_KEYUP || message->message == WM_SYSKEYUP;
    if (const char c = CharacterOf(message->wParam))
        Post(message->hwnd, system ? WM_SYSCHAR : WM_CHAR, static_cast<unsigned char>(c), message->lParam);
    return TRUE;
}

LRESULT DispatchMessageA(const MSG* message)
{
    Inside inside;
    return DispatchFrom(false, *message);
}

LRESULT DispatchMessageW(const MSG* message)
{
    Inside inside;
    return DispatchFrom(true, *message);
}

UINT_PTR SetTimer(HWND window, UINT_PTR id, UINT milliseconds, TIMERPROC callback)
{
    Inside inside;
    if (window && !Lookup(window))
        return 0;
    auto& timers = State().timers;
    const DWORD interval = std::max(milliseconds, 10u);
    const DWORD due = Now() + interval;
    for (Timer& timer : timers)
        if (timer.window == window && timer.id == id && (window || id))
        {
            timer = {window, id, interval, due, callback};
            return window ? TRUE : id;
        }
    const UINT_PTR newId = window ? id : State().nextTimer--;
    timers.push_back({window, newId, interval, due, callback});
    return newId ? newId : TRUE;
}

BOOL KillTimer(HWND window, UINT_PTR id)
{
    Inside inside;
    const auto gone =
        std::erase_if(State().timers, [=](const Timer& timer) { return timer.window == window && timer.id == id; });
    std::erase_if(State().queue,
                  [=](const MSG& msg) { return msg.message == WM_TIMER && msg.hwnd == window && msg.wParam == id; });
    return gone > 0;
}
