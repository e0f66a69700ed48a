// Window procedures, ANSI and Unicode ones: how they are called, and how they look to the program.

#include "afx/offscreen/TextMessages.h"

namespace offscreen
{
namespace
{
// What the program gets for a procedure of the other kind is no address but a handle, good only for CallWindowProc,
// SetWindowLongPtr and RegisterClass.
constexpr std::uintptr_t kFirstHandle = 0xFFFF0000;

std::vector<Procedure>& WithHandles()
{
    static auto* procedures = new std::vector<Procedure>;
    return *procedures;
}

// The procedures of the standard classes are Unicode ones however a program came by their addresses.
bool IsStandard(WNDPROC procedure)
{
    for (const WNDPROC standard : {ButtonProc, EditProc, StaticProc, ListBoxProc, ComboBoxProc, ScrollBarProc})
        if (procedure == standard)
            return true;
    return false;
}
} // namespace

Procedure ProcedureOf(WNDPROC given, bool unicode)
{
    const std::uintptr_t index = reinterpret_cast<std::uintptr_t>(given) - kFirstHandle;
    if (index < WithHandles().size())
        return WithHandles()[index];
    return {given, unicode || IsStandard(given)};
}

WNDPROC AddressFor(const Procedure& procedure, bool unicode)
{
    if (procedure.unicode == unicode || !procedure.function)
        return procedure.function;
    auto& known = WithHandles();
    const auto it = std::find(known.begin(), known.end(), procedure);
    const auto index = static_cast<std::uintptr_t>(it - known.begin());
    if (it == known.end())
        known.push_back(procedure);
    return reinterpret_cast<WNDPROC>(kFirstHandle + index);
}

LRESULT CallProc(const Procedure& procedure, bool unicodeSender, HWND window, UINT message, WPARAM wParam,
                 LPARAM lParam)
{
    const Pin pin(Find(window));
    const WNDPROC function = procedure.function;
    if (procedure.unicode == unicodeSender || !HasText(message))
    {
        Outside outside;
        return function(window, message, wParam, lParam);
    }
    const Receiver receiver = [=](UINT received, WPARAM w, LPARAM l) {
        Outside outside;
        return function(window, received, w, l);
    };
    return unicodeSender ? SendUnicodeToAnsi(receiver, message, wParam, lParam)
                         : SendAnsiToUnicode(receiver, window, message, wParam, lParam);
}

LRESULT Send(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const Window* found = Find(window);
    return found ? CallProc(found->procedure, true, window, message, wParam, lParam) : 0;
}
} // namespace offscreen

using namespace offscreen;

namespace
{
LRESULT SendFrom(bool unicode, HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (window == HWND_BROADCAST)
        return NotModelled("SendMessage(HWND_BROADCAST)", 0);
    const Window* found = Lookup(window);
    return found ? CallProc(found->procedure, unicode, window, message, wParam, lParam) : 0;
}

LRESULT CallFrom(bool unicode, WNDPROC procedure, HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    return procedure ? CallProc(ProcedureOf(procedure, unicode), unicode, window, message, wParam, lParam) : 0;
}
} // namespace

LRESULT SendMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    Inside inside;
    return SendFrom(false, window, message, wParam, lParam);
}

LRESULT SendMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    Inside inside;
    return SendFrom(true, window, message, wParam, lParam);
}

LRESULT CallWindowProcA(WNDPROC procedure, HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    Inside inside;
    return CallFrom(false, procedure, window, message, wParam, lParam);
}

LRESULT CallWindowProcW(WNDPROC procedure, HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    Inside inside;
    return CallFrom(true, procedure, window, message, wParam, lParam);
}

BOOL IsWindowUnicode(HWND window)
{
    Inside inside;
    const Window* found = Lookup(window);
    return found && found->procedure.unicode;
}
