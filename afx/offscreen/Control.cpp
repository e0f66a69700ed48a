// What the standard controls have in common.

#include "afx/offscreen/Internal.h"

namespace offscreen
{
namespace
{
LRESULT Paint(Window& control, HDC given, PaintProc paint)
{
    if (given)
    {
        paint(control, given);
        return 0;
    }
    PAINTSTRUCT painting;
    paint(control, BeginPaint(control.handle, &painting));
    EndPaint(control.handle, &painting);
    return 0;
}
} // namespace

LRESULT CallControl(const ControlClass& controlClass, HWND handle, UINT message, WPARAM wParam, LPARAM lParam)
{
    Inside inside;
    Window* window = Find(handle);
    if (!window)
        return 0;
    const Pin pin(window);
    if (message == WM_CREATE)
        return controlClass.create(*window);
    if (!window->control)
        return DefWindowProcW(handle, message, wParam, lParam);
    return controlClass.handle(*window, message, wParam, lParam);
}

LRESULT DefControlProc(Window& control, PaintProc paint, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
    case WM_ENABLE:
        Invalidate(control);
        return 0;
    case WM_SETFONT:
        control.font = reinterpret_cast<HFONT>(wParam);
        if (lParam)
            Invalidate(control);
        return 0;
    case WM_GETFONT:
        return reinterpret_cast<LRESULT>(control.font);
    case WM_ERASEBKGND:
        return TRUE;
    case WM_PAINT:
        return Paint(control, reinterpret_cast<HDC>(wParam), paint);
    default:
        return DefWindowProcW(control.handle, message, wParam, lParam);
    }
}
} // namespace offscreen
