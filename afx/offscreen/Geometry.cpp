// Rectangles: of windows, of their client areas, and by themselves.

#include "afx/offscreen/Internal.h"

namespace offscreen
{
namespace
{
constexpr int kEdge = 2;
constexpr int kBorder = 1;
constexpr int kDialogFrame = 3;
constexpr int kSizingFrame = 4;
constexpr int kCaption = 19;
constexpr int kSmallCaption = 16;
constexpr int kScrollBar = 17;

RECT Moved(RECT rect, POINT by) { return {rect.left + by.x, rect.top + by.y, rect.right + by.x, rect.bottom + by.y}; }

void SendPositionChanges(Window& window, const RECT& before, UINT flags)
{
    WINDOWPOS position{};
    position.hwnd = window.handle;
    position.x = window.rect.left;
    position.y = window.rect.top;
    position.cx = window.rect.right - window.rect.left;
    position.cy = window.rect.bottom - window.rect.top;
    position.flags = flags;
    if (before.left == position.x && before.top == position.y)
        position.flags |= SWP_NOMOVE;
    if (before.right - before.left == position.cx && before.bottom - before.top == position.cy)
        position.flags |= SWP_NOSIZE;
    // DefWindowProc turns this into WM_MOVE and WM_SIZE.
    Send(window.handle, WM_WINDOWPOSCHANGED, 0, reinterpret_cast<LPARAM>(&position));
}

void Reorder(Window& window, HWND after)
{
    if (!window.parent)
        return;
    Window& parent = *window.parent;
    Window* behind = after == HWND_BOTTOM ? parent.lastChild : Find(after);
    if (behind == &window || (behind && behind->parent != &parent))
        return;

    Unlink(window);
    Link(window, behind);
}
} // namespace

void FrameOf(DWORD style, DWORD exStyle, RECT& margins)
{
    int frame = 0;
    if (exStyle & WS_EX_STATICEDGE && !(exStyle & WS_EX_DLGMODALFRAME))
        frame = kBorder;
    else if ((exStyle & WS_EX_DLGMODALFRAME) || (style & (WS_DLGFRAME | WS_THICKFRAME)))
        frame = kEdge;
    if (style & WS_THICKFRAME)
        frame += kSizingFrame - kDialogFrame;
    if ((style & (WS_BORDER | WS_DLGFRAME)) || (exStyle & WS_EX_DLGMODALFRAME))
        frame += kBorder;
    margins = {frame, frame, frame, frame};
    if ((style & WS_CAPTION) == WS_CAPTION)
        margins.top += exStyle & WS_EX_TOOLWINDOW ? kSmallCaption : kCaption;
    if (exStyle & WS_EX_CLIENTEDGE)
        margins = {margins.left + kEdge, margins.top + kEdge, margins.right + kEdge, margins.bottom + kEdge};
}

RECT ClientRectOf(const Window& window)
{
    RECT margins{};
    FrameOf(window.style, window.exStyle, margins);
    int width = window.rect.right - window.rect.left - margins.left - margins.right;
    int height = window.rect.bottom - window.rect.top - margins.top - margins.bottom;
    if ((window.style & WS_VSCROLL) && width >= kScrollBar)
        width -= kScrollBar;
    if ((window.style & WS_HSCROLL) && height >= kScrollBar)
        height -= kScrollBar;
    return {0, 0, std::max(width, 0), std::max(height, 0)};
}

POINT ClientOrigin(const Window& window)
{
    POINT origin{};
    for (const Window* w = &window; w; w = w->parent)
    {
        RECT margins{};
        if (w->parent)
            FrameOf(w->style, w->exStyle, margins);
        origin.x += w->rect.left + margins.left;
        origin.y += w->rect.top + margins.top;
    }
    return origin;
}

RECT ScreenRectOf(const Window& window)
{
    return window.parent ? Moved(window.rect, ClientOrigin(*window.parent)) : window.rect;
}
} // namespace offscreen

using namespace offscreen;

namespace
{
// The place and size that were asked for, as WM_WINDOWPOSCHANGING tells them and may change them.
WINDOWPOS AskedPosition(const Window& window, HWND after, const RECT& asked, UINT flags)
{
    WINDOWPOS position{window.handle, after, asked.left, asked.top, asked.right, asked.bottom, flags};
    if (flags & SWP_NOMOVE)
    {
        position.x = window.rect.left;
        position.y = window.rect.top;
    }
    if (flags & SWP_NOSIZE)
    {
        position.cx = window.rect.right - window.rect.left;
        position.cy = window.rect.bottom - window.rect.top;
    }
    return position;
}

RECT NewRect(RECT rect, const WINDOWPOS& position)
{
    if (!(position.flags & SWP_NOMOVE))
        rect = Moved(rect, {position.x - rect.left, position.y - rect.top});
    if (!(position.flags & SWP_NOSIZE))
    {
        rect.right = rect.left + std::max(position.cx, 0);
        rect.bottom = rect.top + std::max(position.cy, 0);
    }
    return rect;
}

// Shows or hides the window as the flags say; returns them without what was so already.
UINT ChangeVisibility(Window& window, UINT flags)
{
    const bool wasVisible = (window.style & WS_VISIBLE) != 0;
    if (flags & SWP_SHOWWINDOW)
    {
        window.style |= WS_VISIBLE;
        return wasVisible ? flags & ~static_cast<UINT>(SWP_SHOWWINDOW) : flags;
    }
    if (!(flags & SWP_HIDEWINDOW))
        return flags;
    window.style &= ~WS_VISIBLE;
    if (window.handle == Input().capture)
        ReleaseCapture();
    return wasVisible ? flags : flags & ~static_cast<UINT>(SWP_HIDEWINDOW);
}
} // namespace

BOOL SetWindowPos(HWND window, HWND after, int x, int y, int width, int height, UINT flags)
{
    Inside inside;
    Window* found = Lookup(window);
    if (!found || !found->parent)
        return FALSE;
    const Pin pin(found);
    const RECT before = found->rect;

    WINDOWPOS position = AskedPosition(*found, after, {x, y, width, height}, flags);
    if (!(flags & SWP_NOSENDCHANGING))
        Send(window, WM_WINDOWPOSCHANGING, 0, reinterpret_cast<LPARAM>(&position));
    if (found->dead)
        return FALSE;

    found->rect = NewRect(before, position);
    if (!(position.flags & SWP_NOZORDER))
        Reorder(*found, position.hwndInsertAfter);
    const UINT done = ChangeVisibility(*found, position.flags);
    if (!(position.flags & SWP_NOREDRAW))
        InvalidateTree(*found);

    if (!(position.flags & (SWP_NOACTIVATE | SWP_HIDEWINDOW)) && !found->IsChild() && CanBeActivated(*found))
        Activate(window, false, true);
    if (!found->dead)
        SendPositionChanges(*found, before, done);
    return TRUE;
}

BOOL MoveWindow(HWND window, int x, int y, int width, int height, BOOL repaint)
{
    return SetWindowPos(window, nullptr, x, y, width, height,
                        SWP_NOZORDER | SWP_NOACTIVATE | (repaint ? 0u : static_cast<UINT>(SWP_NOREDRAW)));
}

BOOL GetWindowRect(HWND window, LPRECT rect)
{
    Inside inside;
    const Window* found = Lookup(window);
    if (!found)
        return FALSE;
    *rect = ScreenRectOf(*found);
    return TRUE;
}

BOOL GetClientRect(HWND window, LPRECT rect)
{
    Inside inside;
    const Window* found = Lookup(window);
    if (!found)
        return FALSE;
    *rect = found->parent ? ClientRectOf(*found) : found->rect;
    return TRUE;
}

BOOL ScreenToClient(HWND window, LPPOINT point)
{
    if (!Lookup(window))
        return FALSE;
    MapWindowPoints(nullptr, window, point, 1);
    return TRUE;
}

BOOL ClientToScreen(HWND window, LPPOINT point)
{
    if (!Lookup(window))
        return FALSE;
    MapWindowPoints(window, nullptr, point, 1);
    return TRUE;
}

int MapWindowPoints(HWND from, HWND to, LPPOINT points, UINT count)
{
    Inside inside;
    const Window* source = from ? Lookup(from) : &DesktopWindow();
    const Window* target = to ? Lookup(to) : &DesktopWindow();
    if (!source || !target)
        return 0;
    const POINT a = ClientOrigin(*source);
    const POINT b = ClientOrigin(*target);
    const int dx = a.x - b.x;
    const int dy = a.y - b.y;
    for (UINT i = 0; i < count; ++i)
    {
        points[i].x += dx;
        points[i].y += dy;
    }
    return MAKELONG(dx, dy);
}

int GetSystemMetrics(int index)
{
    Inside inside;
    switch (index)
    {
    case SM_CXVSCROLL:
    case SM_CYVSCROLL:
        return kScrollBar;
    default:
        return NotModelled("GetSystemMetrics with this index", 0);
    }
}

BOOL SystemParametersInfoW(UINT action, UINT, LPVOID value, UINT)
{
    Inside inside;
    if (action != SPI_GETWORKAREA)
        return NotModelled("SystemParametersInfo with this action", FALSE);
    *static_cast<RECT*>(value) = DesktopWindow().rect;
    return TRUE;
}

BOOL SystemParametersInfoA(UINT action, UINT param, LPVOID value, UINT flags)
{
    return SystemParametersInfoW(action, param, value, flags); // No text is modelled.
}

// ------------------------------------------------------------------------------------------------ rectangle functions

BOOL SetRect(LPRECT rect, int left, int top, int right, int bottom)
{
    *rect = {left, top, right, bottom};
    return TRUE;
}

BOOL SetRectEmpty(LPRECT rect)
{
    *rect = {};
    return TRUE;
}

BOOL InflateRect(LPRECT rect, int dx, int dy)
{
    *rect = {rect->left - dx, rect->top - dy, rect->right + dx, rect->bottom + dy};
    return TRUE;
}

BOOL OffsetRect(LPRECT rect, int dx, int dy)
{
    *rect = {rect->left + dx, rect->top + dy, rect->right + dx, rect->bottom + dy};
    return TRUE;
}

BOOL PtInRect(const RECT* rect, POINT point)
{
    return point.x >= rect->left && point.x < rect->right && point.y >= rect->top && point.y < rect->bottom;
}

BOOL IsRectEmpty(const RECT* rect) { return rect->left >= rect->right || rect->top >= rect->bottom; }

BOOL EqualRect(const RECT* a, const RECT* b)
{
    return a->left == b->left && a->top == b->top && a->right == b->right && a->bottom == b->bottom;
}
