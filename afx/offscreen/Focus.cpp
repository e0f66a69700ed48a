// Which window is active, which has the focus, what the keyboard and the mouse do.

#include "afx/offscreen/Internal.h"

#include <cstring>

namespace offscreen
{
InputState& Input()
{
    static auto* state = new InputState;
    return *state;
}

bool KeyIsDown(int key) { return (Input().keys[key & 0xFF] & 0x80) != 0; }

// Whether the user could switch to the window.
bool CanBeActivated(const Window& window)
{
    return (window.style & (WS_DISABLED | WS_CHILD)) == 0 && (window.style & WS_VISIBLE) &&
           window.parent == &DesktopWindow() && !window.dying && !(window.exStyle & WS_EX_NOACTIVATE);
}

void ChangeFocus(HWND window)
{
    InputState& input = Input();
    const HWND previous = input.focus;
    if (previous == window)
        return;
    input.focus = window;
    if (Find(previous))
    {
        Send(previous, WM_KILLFOCUS, reinterpret_cast<WPARAM>(window));
        if (input.focus != window) // The window that lost the focus gave it to yet another.
            return;
    }
    if (Find(window))
        Send(window, WM_SETFOCUS, reinterpret_cast<WPARAM>(previous));
}

namespace
{
// The window at the end of the chain of owners.
Window* RootOwnerOf(Window* window)
{
    Window* root = RootOf(window);
    while (Window* owner = Find(root->owner))
        root = RootOf(owner);
    return root;
}
} // namespace

bool Activate(HWND window, bool byMouse, bool moveFocus)
{
    InputState& input = Input();
    const HWND previous = input.active;
    if (previous == window)
    {
        if (moveFocus && window && !input.focus)
            ChangeFocus(window);
        return true;
    }

    if (Find(previous))
    {
        Send(previous, WM_NCACTIVATE, FALSE, reinterpret_cast<LPARAM>(window));
        Send(previous, WM_ACTIVATE, WA_INACTIVE, reinterpret_cast<LPARAM>(window));
    }
    if (window && !Find(window))
        return false;
    input.active = window;
    if (Window* found = Find(window))
    {
        RaiseToTop(*found);
        // The window at the end of the chain of owners remembers who was active last among its popups.
        RootOwnerOf(found)->lastActivePopup = window;
        if (Window* owner = Find(found->owner))
            owner->lastActivePopup = window;
        Send(window, WM_NCACTIVATE, TRUE, reinterpret_cast<LPARAM>(previous));
        Send(window, WM_ACTIVATE, byMouse ? WA_CLICKACTIVE : WA_ACTIVE, reinterpret_cast<LPARAM>(previous));
    }
    if (moveFocus && input.active == window)
    {
        const bool focusIsInside = window && RootOf(Find(input.focus)) == Find(window);
        if (!focusIsInside)
            ChangeFocus(window);
    }
    return input.active == window;
}

// Activates the window that takes over when `instead` disappears: its owner, else the topmost one that can be active,
// else a hidden owner, such as a dialog that has not come to show itself yet.
void ActivateAnother(HWND instead)
{
    const Window* leaving = Find(instead);
    const Window* owner = leaving && (leaving->style & WS_POPUP) ? RootOf(Find(leaving->owner)) : nullptr;
    if (owner && CanBeActivated(*owner))
    {
        Activate(owner->handle, false, true);
        return;
    }
    for (const Window* window = DesktopWindow().firstChild; window; window = window->next)
        if (window->handle != instead && CanBeActivated(*window))
        {
            Activate(window->handle, false, true);
            return;
        }
    const bool ownerIsReady = owner && !(owner->style & WS_DISABLED) && !owner->dying;
    Activate(ownerIsReady ? owner->handle : nullptr, false, true);
}
} // namespace offscreen

using namespace offscreen;

HWND SetFocus(HWND window)
{
    Inside inside;
    InputState& input = Input();
    const HWND previous = input.focus;
    if (!window)
    {
        ChangeFocus(nullptr);
        return previous;
    }
    Window* found = Lookup(window);
    if (!found)
        return nullptr;
    if (window == previous)
        return previous;
    if (found->parent == nullptr)
        return nullptr;

    const Window* top = found;
    for (;; top = top->parent)
    {
        if (top->style & (WS_MINIMIZE | WS_DISABLED))
            return nullptr;
        if (!top->IsChild() || !top->parent || !top->parent->parent)
            break;
    }
    const HWND topHandle = top->handle;
    if (topHandle != input.active)
    {
        if (!Activate(topHandle, false, false) || !Find(window) || input.active != topHandle)
            return nullptr;
    }
    ChangeFocus(window);
    return previous;
}

HWND GetFocus() { return Input().focus; }

HWND SetActiveWindow(HWND window)
{
    Inside inside;
    const HWND previous = Input().active;
    if (window)
    {
        const Window* found = Lookup(window);
        if (!found || found->IsChild() || (found->style & WS_DISABLED))
            return nullptr;
    }
    return Activate(window, false, true) ? previous : nullptr;
}

HWND GetActiveWindow() { return Input().active; }

namespace
{
// What SetWindowPos is to do for a command of ShowWindow.
UINT FlagsOf(int command, bool isChild)
{
    constexpr UINT kQuietly = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOZORDER;
    switch (command)
    {
    case SW_HIDE:
        return kQuietly | SWP_HIDEWINDOW;
    case SW_SHOWNOACTIVATE:
    case SW_SHOWNA:
    case SW_SHOWMINNOACTIVE:
        return kQuietly | SWP_SHOWWINDOW;
    default:
        return SWP_SHOWWINDOW | (isChild ? kQuietly : SWP_NOMOVE | SWP_NOSIZE);
    }
}

// A hidden window passes the activation on, a hidden child the focus to its parent.
void LeaveHidden(const Window& window)
{
    const HWND handle = window.handle;
    if (Input().active == handle)
        ActivateAnother(handle);
    const HWND focus = Input().focus;
    if (window.IsChild() && (focus == handle || IsChild(handle, focus)))
        SetFocus(ParentOf(window));
}
} // namespace

BOOL ShowWindow(HWND window, int command)
{
    Inside inside;
    Window* found = Lookup(window);
    if (!found)
        return FALSE;
    if (command == SW_SHOWMINIMIZED || command == SW_SHOWMAXIMIZED || command == SW_MINIMIZE)
        return NotModelled("minimized and maximized windows", FALSE);
    const Pin pin(found);
    const bool wasVisible = (found->style & WS_VISIBLE) != 0;
    const bool show = command != SW_HIDE;
    if (!show && !wasVisible)
        return FALSE;
    if (show && wasVisible && found->IsChild())
        return TRUE;

    if (show != wasVisible)
    {
        Send(window, WM_SHOWWINDOW, show, 0);
        if (found->dead)
            return wasVisible;
    }
    SetWindowPos(window, HWND_TOP, 0, 0, 0, 0, FlagsOf(command, found->IsChild()));
    if (!found->dead && !show)
        LeaveHidden(*found);
    return wasVisible;
}

HWND SetCapture(HWND window)
{
    Inside inside;
    InputState& input = Input();
    const HWND previous = input.capture;
    if (window && !Lookup(window))
        return nullptr;
    input.capture = window;
    if (previous && previous != window)
        Send(previous, WM_CAPTURECHANGED, 0, reinterpret_cast<LPARAM>(window));
    return previous;
}

BOOL ReleaseCapture()
{
    Inside inside;
    const HWND previous = Input().capture;
    Input().capture = nullptr;
    if (previous)
        Send(previous, WM_CAPTURECHANGED);
    return TRUE;
}

HWND GetCapture() { return Input().capture; }

SHORT GetKeyState(int key)
{
    const BYTE state = Input().keys[key & 0xFF];
    return static_cast<SHORT>((state & 0x80 ? 0x8000 : 0) | (state & 1));
}

BOOL GetKeyboardState(PBYTE keys)
{
    std::memcpy(keys, Input().keys, sizeof Input().keys);
    return TRUE;
}

BOOL SetKeyboardState(LPBYTE keys)
{
    std::memcpy(Input().keys, keys, sizeof Input().keys);
    return TRUE;
}

// The system's cursors and icons have no looks here; a handle that is not null is all that anybody needs.
HCURSOR LoadCursorW(HINSTANCE, LPCWSTR name)
{
    return reinterpret_cast<HCURSOR>(static_cast<ULONG_PTR>(0x10000) + LOWORD(name));
}

HCURSOR LoadCursorA(HINSTANCE instance, LPCSTR name)
{
    return LoadCursorW(instance, reinterpret_cast<LPCWSTR>(name)); // Only numbers are known.
}

HICON LoadIconA(HINSTANCE, LPCSTR name)
{
    return reinterpret_cast<HICON>(static_cast<ULONG_PTR>(0x20000) + LOWORD(name));
}
