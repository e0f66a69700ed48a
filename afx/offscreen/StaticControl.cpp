// The standard class "Static": texts, icons, and what the dialog draws itself.

#include "afx/offscreen/Internal.h"

namespace offscreen
{
namespace
{
struct StaticState : ControlState
{
    HANDLE icon = nullptr;
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

bool IsIcon(const Window& control) { return (control.style & SS_TYPEMASK) == SS_ICON; }

LRESULT Create(Window& control)
{
    const DWORD kind = control.style & SS_TYPEMASK;
    if (kind == SS_BITMAP || kind == SS_ENHMETAFILE)
        return NotModelled("pictures other than icons", -1);
    control.control = std::make_unique<StaticState>();
    return 0;
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
        return Create(control);
    case WM_GETDLGCODE:
        return DLGC_STATIC;
    case WM_SETFONT:
        if (IsIcon(control))
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
    case STM_SETICON:
        return state ? reinterpret_cast<LRESULT>(std::exchange(state->icon, reinterpret_cast<HANDLE>(wParam))) : 0;
    case STM_GETICON:
        return state ? reinterpret_cast<LRESULT>(state->icon) : 0;
    case STM_SETIMAGE:
    case STM_GETIMAGE:
        return NotModelled("pictures other than icons", 0);
    default:
        return DefWindowProcA(handle, message, wParam, lParam);
    }
}
} // namespace offscreen
