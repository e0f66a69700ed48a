// What a window is asked and told about itself: its state, its text, its numbers.

#include "afx/offscreen/DialogState.h"

#include <cstring>

using namespace offscreen;

BOOL EnableWindow(HWND window, BOOL enable)
{
    Inside inside;
    Window* found = Lookup(window);
    if (!found)
        return FALSE;
    const Pin pin(found);
    const bool wasDisabled = (found->style & WS_DISABLED) != 0;
    if (enable && wasDisabled)
    {
        found->style &= ~WS_DISABLED;
        Invalidate(*found);
        Send(window, WM_ENABLE, TRUE);
    }
    else if (!enable && !wasDisabled)
    {
        Send(window, WM_CANCELMODE);
        found->style |= WS_DISABLED;
        Invalidate(*found);
        if (window == Input().focus)
            SetFocus(nullptr); // The window stays active, nothing has the focus.
        if (window == Input().capture)
            ReleaseCapture();
        Send(window, WM_ENABLE, FALSE);
    }
    return wasDisabled;
}

BOOL IsWindowEnabled(HWND window)
{
    Inside inside;
    const Window* found = Lookup(window);
    return found && !(found->style & WS_DISABLED);
}

BOOL IsWindowVisible(HWND window)
{
    Inside inside;
    const Window* found = Lookup(window);
    return found && IsEffectivelyVisible(*found);
}

BOOL IsIconic(HWND window)
{
    const Window* found = Find(window);
    return found && (found->style & WS_MINIMIZE);
}

BOOL SetWindowTextA(HWND window, LPCSTR text)
{
    Inside inside;
    return Lookup(window) && SendMessageA(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text));
}

BOOL SetWindowTextW(HWND window, LPCWSTR text)
{
    Inside inside;
    return Lookup(window) && Send(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text));
}

int GetWindowTextA(HWND window, LPSTR text, int size)
{
    Inside inside;
    if (!text || size <= 0)
        return 0;
    text[0] = 0;
    return static_cast<int>(
        SendMessageA(window, WM_GETTEXT, static_cast<WPARAM>(size), reinterpret_cast<LPARAM>(text)));
}

int GetWindowTextW(HWND window, LPWSTR text, int size)
{
    Inside inside;
    if (!text || size <= 0)
        return 0;
    text[0] = 0;
    return static_cast<int>(
        SendMessageW(window, WM_GETTEXT, static_cast<WPARAM>(size), reinterpret_cast<LPARAM>(text)));
}

int GetWindowTextLengthA(HWND window)
{
    Inside inside;
    return static_cast<int>(SendMessageA(window, WM_GETTEXTLENGTH, 0, 0));
}

int GetWindowTextLengthW(HWND window)
{
    Inside inside;
    return static_cast<int>(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0));
}

namespace
{
LONG_PTR ReadExtra(const Window& window, int index, std::size_t size)
{
    if (index < 0)
        return NotModelled("GetWindowLong with this index", 0);
    if (static_cast<std::size_t>(index) + size > window.extra.size())
    {
        SetLastError(ERROR_INVALID_INDEX);
        return 0;
    }
    LONG_PTR value = 0;
    if (size == sizeof(LONG))
    {
        LONG narrow = 0;
        std::memcpy(&narrow, window.extra.data() + index, sizeof narrow);
        value = narrow;
    }
    else
        std::memcpy(&value, window.extra.data() + index, size);
    return value;
}

LONG_PTR GetLong(HWND window, int index, std::size_t size, bool unicode)
{
    const Window* found = Lookup(window);
    if (!found)
        return 0;
    switch (index)
    {
    case GWLP_WNDPROC:
        return reinterpret_cast<LONG_PTR>(AddressFor(found->procedure, unicode));
    case GWLP_HWNDPARENT:
        return reinterpret_cast<LONG_PTR>(GetParent(window));
    case GWLP_ID:
        return found->id;
    case GWL_STYLE:
        return static_cast<LONG>(found->style);
    case GWL_EXSTYLE:
        return static_cast<LONG>(found->exStyle);
    case GWLP_USERDATA:
        return found->userData;
    default:
        return ReadExtra(*found, index, size);
    }
}

LONG_PTR SetLong(HWND window, int index, LONG_PTR value, std::size_t size, bool unicode)
{
    const LONG_PTR before = GetLong(window, index, size, unicode);
    Window* found = Find(window);
    if (!found)
        return 0;
    switch (index)
    {
    case GWLP_WNDPROC:
        found->procedure = ProcedureOf(reinterpret_cast<WNDPROC>(value), unicode);
        break;
    case GWLP_HWNDPARENT:
        found->owner = reinterpret_cast<HWND>(value);
        break;
    case GWLP_ID:
        found->id = value;
        break;
    case GWL_STYLE: {
        // WS_VISIBLE may be set and cleared this way too, without any message.
        found->style = static_cast<DWORD>(value);
        break;
    }
    case GWL_EXSTYLE:
        found->exStyle = static_cast<DWORD>(value);
        break;
    case GWLP_USERDATA:
        found->userData = value;
        break;
    default:
        if (index < 0 || static_cast<std::size_t>(index) + size > found->extra.size())
            return 0;
        if (index == static_cast<int>(DWLP_DLGPROC) && found->dialog)
            DialogStateOf(window)->unicodeProcedure = unicode;
        if (size == sizeof(LONG))
        {
            const LONG narrow = static_cast<LONG>(value);
            std::memcpy(found->extra.data() + index, &narrow, sizeof narrow);
        }
        else
            std::memcpy(found->extra.data() + index, &value, size);
        break;
    }
    return before;
}

LONG SetNarrowLong(HWND window, int index, LONG value, bool unicode)
{
    if (index == GWLP_WNDPROC)
        return NotModelled("SetWindowLong(GWL_WNDPROC), which would cut the pointer: use SetWindowLongPtr", 0);
    return static_cast<LONG>(SetLong(window, index, value, sizeof(LONG), unicode));
}
} // namespace

LONG GetWindowLongA(HWND window, int index)
{
    Inside inside;
    return static_cast<LONG>(GetLong(window, index, sizeof(LONG), false));
}

LONG GetWindowLongW(HWND window, int index)
{
    Inside inside;
    return static_cast<LONG>(GetLong(window, index, sizeof(LONG), true));
}

LONG SetWindowLongA(HWND window, int index, LONG value)
{
    Inside inside;
    return SetNarrowLong(window, index, value, false);
}

LONG SetWindowLongW(HWND window, int index, LONG value)
{
    Inside inside;
    return SetNarrowLong(window, index, value, true);
}

LONG_PTR GetWindowLongPtrA(HWND window, int index)
{
    Inside inside;
    return GetLong(window, index, sizeof(LONG_PTR), false);
}

LONG_PTR GetWindowLongPtrW(HWND window, int index)
{
    Inside inside;
    return GetLong(window, index, sizeof(LONG_PTR), true);
}

LONG_PTR SetWindowLongPtrA(HWND window, int index, LONG_PTR value)
{
    Inside inside;
    return SetLong(window, index, value, sizeof(LONG_PTR), false);
}

LONG_PTR SetWindowLongPtrW(HWND window, int index, LONG_PTR value)
{
    Inside inside;
    return SetLong(window, index, value, sizeof(LONG_PTR), true);
}

DWORD GetCurrentThreadId() { return 0x24; }
DWORD GetCurrentProcessId() { return 0x20; }
