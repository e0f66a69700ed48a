// The standard class "Static": texts, frames, rectangles, images.

#include "afx/offscreen/Internal.h"

namespace offscreen
{
namespace
{
struct StaticState : ControlState
{
    HANDLE image = nullptr;
};

void PaintOn(Window& control, HDC dc)
{
    SelectObject(dc, control.font);
    if ((control.style & SS_TYPEMASK) == SS_OWNERDRAW)
    {
        DRAWITEMSTRUCT item{};
        item.CtlType = ODT_STATIC;
        item.itemAction = ODA_DRAWENTIRE;
        item.itemState = control.style & WS_DISABLED ? ODS_DISABLED : 0;
        item.hDC = dc;
        item.rcItem = ClientRectOf(control);
        AskParentForColors(control, WM_CTLCOLORSTATIC, dc);
        DrawItem(control, item);
        return;
    }
    AskParentForColors(control, WM_CTLCOLORSTATIC, dc);
}

bool HasText(const Window& control)
{
    switch (control.style & SS_TYPEMASK)
    {
    case SS_ICON:
    case SS_BITMAP:
    case SS_ENHMETAFILE:
        return false;
    default:
        return true;
    }
}
} // namespace

LRESULT CALLBACK StaticProc(HWND handle, UINT message, WPARAM wParam, LPARAM lParam)
{
    Inside inside;
    Window* window = Find(handle);
    if (!window)
        return 0;
    Window& control = *window;
    const Pin pin(window);
    auto* state = StateOf<StaticState>(control);

    switch (message)
    {
    case WM_CREATE:
        control.control = std::make_unique<StaticState>();
        return 0;
    case WM_GETDLGCODE:
        return DLGC_STATIC;
    case WM_SETFONT:
        if (!HasText(control))
            return 0;
        control.font = reinterpret_cast<HFONT>(wParam);
        if (LOWORD(lParam))
            Invalidate(control);
        return 0;
    case WM_GETFONT:
        return reinterpret_cast<LRESULT>(control.font);
    case WM_ENABLE:
        Invalidate(control);
        if (control.style & SS_NOTIFY)
            NotifyParent(control, wParam ? STN_ENABLE : STN_DISABLE);
        return 0;
    case WM_ERASEBKGND:
        return TRUE;
    case WM_PAINT: {
        PAINTSTRUCT paint;
        const HDC dc = wParam ? reinterpret_cast<HDC>(wParam) : BeginPaint(handle, &paint);
        PaintOn(control, dc);
        if (!wParam)
            EndPaint(handle, &paint);
        return 0;
    }
    case WM_PRINTCLIENT:
        PaintOn(control, reinterpret_cast<HDC>(wParam));
        return 0;
    case WM_NCHITTEST:
        return control.style & SS_NOTIFY ? HTCLIENT : HTTRANSPARENT;
    case WM_LBUTTONDOWN:
        if (control.style & SS_NOTIFY)
            NotifyParent(control, STN_CLICKED);
        return 0;
    case WM_LBUTTONDBLCLK:
        if (control.style & SS_NOTIFY)
            NotifyParent(control, STN_DBLCLK);
        return 0;
    case STM_SETIMAGE:
    case STM_SETICON:
        if (!state)
            return 0;
        return reinterpret_cast<LRESULT>(
            std::exchange(state->image, reinterpret_cast<HANDLE>(message == STM_SETICON ? wParam : lParam)));
    case STM_GETIMAGE:
    case STM_GETICON:
        return state ? reinterpret_cast<LRESULT>(state->image) : 0;
    default:
        return DefWindowProcA(handle, message, wParam, lParam);
    }
}
} // namespace offscreen
