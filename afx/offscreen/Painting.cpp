// Which windows must be painted, and the questions that controls ask their parents when they paint themselves.

#include "afx/offscreen/Internal.h"

namespace offscreen
{
namespace
{
std::vector<HWND>& Dirty()
{
    static auto* dirty = new std::vector<HWND>;
    return *dirty;
}
} // namespace

void Invalidate(Window& window)
{
    // What cannot be seen is painted when it is shown.
    if (window.needsPaint || !window.parent || !IsEffectivelyVisible(window))
        return;
    window.needsPaint = true;
    Dirty().push_back(window.handle);
}

void InvalidateTree(Window& window)
{
    Invalidate(window);
    for (Window* child = window.firstChild; child; child = child->next)
        if (child->style & WS_VISIBLE)
            InvalidateTree(*child);
}

void ForgetPaint(Window& window)
{
    if (!window.needsPaint)
        return;
    window.needsPaint = false;
    std::erase(Dirty(), window.handle);
}

Window* NextWindowToPaint()
{
    auto& dirty = Dirty();
    while (!dirty.empty())
    {
        Window* window = Find(dirty.front());
        if (window && IsEffectivelyVisible(*window))
            return window;
        if (window)
            window->needsPaint = false;
        dirty.erase(dirty.begin());
    }
    return nullptr;
}

HBRUSH AskParentForColors(const Window& control, UINT message, HDC dc)
{
    const HWND parent = ParentOf(control);
    const auto brush = reinterpret_cast<HBRUSH>(
        Send(parent, message, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(control.handle)));
    if (brush)
        return brush;
    return reinterpret_cast<HBRUSH>(
        DefWindowProcA(parent, message, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(control.handle)));
}

void DrawItem(const Window& control, DRAWITEMSTRUCT& item)
{
    item.CtlID = static_cast<UINT>(control.id);
    item.hwndItem = control.handle;
    Send(ParentOf(control), WM_DRAWITEM, item.CtlID, reinterpret_cast<LPARAM>(&item));
}
} // namespace offscreen

using namespace offscreen;

namespace
{
void PaintNow(Window& window)
{
    if (!window.needsPaint || !IsEffectivelyVisible(window))
        return;
    const Pin pin(&window);
    Send(window.handle, WM_PAINT);
    if (!window.dead)
        ForgetPaint(window);
}

void PaintTree(Window& window)
{
    const Pin pin(&window);
    PaintNow(window);
    if (window.dead)
        return;
    std::vector<HWND> handles;
    for (const Window* child = window.firstChild; child; child = child->next)
        handles.push_back(child->handle);
    for (HWND handle : handles)
        if (Window* child = Find(handle))
            PaintTree(*child);
}
} // namespace

BOOL InvalidateRect(HWND window, const RECT*, BOOL)
{
    Inside inside;
    if (!window)
    {
        InvalidateTree(DesktopWindow());
        return TRUE;
    }
    Window* found = Lookup(window);
    if (!found)
        return FALSE;
    // The children are only invalidated with a parent that draws over them.
    if (found->style & WS_CLIPCHILDREN)
        Invalidate(*found);
    else
        InvalidateTree(*found);
    return TRUE;
}

BOOL ValidateRect(HWND window, const RECT*)
{
    Inside inside;
    Window* found = Lookup(window);
    if (!found)
        return FALSE;
    ForgetPaint(*found);
    return TRUE;
}

BOOL UpdateWindow(HWND window)
{
    Inside inside;
    Window* found = Lookup(window);
    if (!found)
        return FALSE;
    PaintTree(*found);
    return TRUE;
}

BOOL RedrawWindow(HWND window, const RECT*, HRGN, UINT flags)
{
    Inside inside;
    if (flags != (RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN))
        return NotModelled("RedrawWindow with these flags", FALSE);
    Window* found = Lookup(window);
    if (!found)
        return FALSE;
    InvalidateTree(*found);
    PaintTree(*found);
    return TRUE;
}

HDC BeginPaint(HWND window, LPPAINTSTRUCT paint)
{
    Inside inside;
    Window* found = Lookup(window);
    if (!found)
        return nullptr;
    ForgetPaint(*found);
    *paint = {};
    paint->hdc = OpenDc(window, true);
    const auto dc = reinterpret_cast<WPARAM>(paint->hdc);
    const Pin pin(found);
    paint->fErase = Send(window, WM_ERASEBKGND, dc) == 0;
    paint->rcPaint = ClientRectOf(*found);
    return paint->hdc;
}

BOOL EndPaint(HWND, const PAINTSTRUCT* paint)
{
    Inside inside;
    CloseDc(paint->hdc);
    return TRUE;
}
