// DefWindowProc: what every window does with what it does not handle.

#include "afx/offscreen/TextMessages.h"

using namespace offscreen;

namespace
{
LRESULT SetText(Window& window, LPCWSTR text)
{
    window.text = text ? text : u"";
    Invalidate(window);
    return TRUE;
}

// Alt with a letter, or F10, belongs to the menu bar of the top-level window.
LRESULT HandleSystemKey(HWND window, UINT message, WPARAM wParam)
{
    if (message == WM_SYSKEYDOWN && wParam == VK_F4 && KeyIsDown(VK_MENU))
        PostMessageW(RootOf(Find(window))->handle, WM_SYSCOMMAND, SC_CLOSE, 0);
    return 0;
}

LRESULT HandleSystemCommand(HWND window, WPARAM wParam)
{
    switch (wParam & 0xFFF0)
    {
    case SC_CLOSE:
        return SendMessageW(window, WM_CLOSE, 0, 0);
    case SC_KEYMENU:
        return 0;
    default:
        return NotModelled("WM_SYSCOMMAND other than SC_CLOSE", 0);
    }
}

LRESULT ControlColors(UINT message, HDC dc)
{
    if (message == WM_CTLCOLORSCROLLBAR)
        return reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_SCROLLBAR));
    const bool white = message == WM_CTLCOLOREDIT || message == WM_CTLCOLORLISTBOX;
    const int background = white ? COLOR_WINDOW : COLOR_BTNFACE;
    SetTextColor(dc, GetSysColor(COLOR_WINDOWTEXT));
    SetBkColor(dc, GetSysColor(background));
    return reinterpret_cast<LRESULT>(GetSysColorBrush(background));
}

LRESULT PositionChanged(HWND window, const WINDOWPOS& position)
{
    Window* found = Find(window);
    if (!found)
        return 0;
    const Pin pin(found);
    if (!(position.flags & SWP_NOMOVE))
        Send(window, WM_MOVE, 0, MAKELPARAM(found->rect.left, found->rect.top));
    if (!(position.flags & SWP_NOSIZE) && !found->dead)
    {
        const RECT client = ClientRectOf(*found);
        Send(window, WM_SIZE, SIZE_RESTORED, MAKELPARAM(client.right, client.bottom));
    }
    return 0;
}

LRESULT Paint(HWND window)
{
    PAINTSTRUCT paint;
    if (BeginPaint(window, &paint))
        EndPaint(window, &paint);
    return 0;
}

LRESULT TakeFirstText(Window& window, const CREATESTRUCTW& create)
{
    // A text of the form 0xFFFF, id names an icon and is no text.
    if (create.lpszName && create.lpszName[0] != 0xFFFF)
        window.text = create.lpszName;
    return TRUE;
}

LRESULT SetRedraw(Window& window, bool redraw)
{
    if (redraw)
        window.style |= WS_VISIBLE;
    else
        window.style &= ~WS_VISIBLE;
    return 0;
}

// What a child does not handle goes to its parent.
LRESULT PassToParent(const Window& window, UINT message, WPARAM wParam, LPARAM lParam)
{
    return window.IsChild() ? Send(ParentOf(window), message, wParam, lParam) : 0;
}

LRESULT AskForHelp(const Window& window)
{
    HELPINFO info{};
    info.cbSize = sizeof info;
    info.iContextType = 1;
    info.iCtrlId = static_cast<int>(window.id);
    info.hItemHandle = window.handle;
    Send(window.handle, WM_HELP, 0, reinterpret_cast<LPARAM>(&info));
    return 0;
}

LRESULT AskForContextMenu(HWND window, LPARAM at)
{
    POINT point = {GET_X_LPARAM(at), GET_Y_LPARAM(at)};
    ClientToScreen(window, &point);
    Send(window, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(window), MAKELPARAM(point.x, point.y));
    return 0;
}

// Keys, the mouse, and what they ask for.
LRESULT HandleInput(Window& window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const HWND handle = window.handle;
    switch (message)
    {
    case WM_SYSKEYDOWN:
    case WM_SYSKEYUP:
    case WM_SYSCHAR:
        return HandleSystemKey(handle, message, wParam);
    case WM_SYSCOMMAND:
        return HandleSystemCommand(handle, wParam);
    case WM_KEYDOWN:
        return wParam == VK_F1 ? AskForHelp(window) : 0;
    case WM_KEYUP:
        if (wParam == VK_APPS)
            Send(handle, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(handle), -1);
        return 0;
    case WM_RBUTTONUP:
        return AskForContextMenu(handle, lParam);
    case WM_CONTEXTMENU:
        PassToParent(window, message, wParam, lParam);
        return 0;
    case WM_HELP:
    case WM_MOUSEWHEEL:
        return PassToParent(window, message, wParam, lParam);
    // NOLINTBEGIN(bugprone-branch-clone): these answers only happen to be the same number
    case WM_MOUSEACTIVATE:
        return MA_ACTIVATE;
    case WM_NCHITTEST:
        return HTCLIENT;
    // NOLINTEND(bugprone-branch-clone)
    case WM_VKEYTOITEM:
    case WM_CHARTOITEM:
        return -1;
    default:
        return 0;
    }
}

LRESULT HandleText(Window& window, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
    case WM_SETTEXT:
        return SetText(window, reinterpret_cast<LPCWSTR>(lParam));
    case WM_GETTEXT:
        return wParam ? CopyText(window.text, reinterpret_cast<LPWSTR>(lParam), wParam) : 0;
    default: // WM_GETTEXTLENGTH
        return static_cast<LRESULT>(window.text.size());
    }
}
} // namespace

LRESULT DefWindowProcW(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    Inside inside;
    Window* found = Find(window);
    if (!found)
        return 0;
    switch (message)
    {
    case WM_NCCREATE:
        return TakeFirstText(*found, *reinterpret_cast<const CREATESTRUCTW*>(lParam));
    case WM_SETTEXT:
    case WM_GETTEXT:
    case WM_GETTEXTLENGTH:
        return HandleText(*found, message, wParam, lParam);
    case WM_CLOSE:
        DestroyWindow(window);
        return 0;
    // NOLINTBEGIN(bugprone-branch-clone): these answers only happen to be the same number
    case WM_QUERYENDSESSION:
        return TRUE;
    case WM_NCACTIVATE:
        return TRUE;
    // NOLINTEND(bugprone-branch-clone)
    case WM_ACTIVATE:
        if (LOWORD(wParam) != WA_INACTIVE && !(found->style & WS_MINIMIZE))
            SetFocus(window);
        return 0;
    case WM_ERASEBKGND:
        return found->windowClass->background != nullptr;
    case WM_PAINT:
        return Paint(window);
    case WM_PRINT:
    case WM_PRINTCLIENT:
        return NotModelled("drawing a window elsewhere", 0);
    case WM_WINDOWPOSCHANGED:
        return PositionChanged(window, *reinterpret_cast<const WINDOWPOS*>(lParam));
    case WM_SHOWWINDOW:
        // Popups are hidden and shown with their owner.
        if (lParam && (found->style & WS_POPUP))
            ShowWindow(window, wParam ? SW_SHOWNOACTIVATE : SW_HIDE);
        return 0;
    case WM_SETREDRAW:
        return SetRedraw(*found, wParam != 0);
    case WM_CTLCOLORMSGBOX:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLORDLG:
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORSCROLLBAR:
        return ControlColors(message, reinterpret_cast<HDC>(wParam));
    default:
        return HandleInput(*found, message, wParam, lParam);
    }
}

LRESULT DefWindowProcA(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    Inside inside;
    // Characters mean nothing to it: the bytes of one need not be put together.
    if (!HasText(message) || message == WM_CHAR || message == WM_SYSCHAR)
        return DefWindowProcW(window, message, wParam, lParam);
    return CallProc({DefWindowProcW, true}, false, window, message, wParam, lParam);
}
