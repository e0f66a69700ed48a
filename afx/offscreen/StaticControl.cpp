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

LRESULT NotifyIfAsked(const Window& control, int code)
{
    if (control.style & SS_NOTIFY)
        NotifyParent(control, code);
    return 0;
}

LRESULT Handle(Window& control, UINT message, WPARAM wParam, LPARAM lParam)
{
    auto& state = *StateOf<StaticState>(control);
    switch (message)
    {
    case WM_GETDLGCODE:
        return DLGC_STATIC;
    case WM_SETFONT:
        return IsIcon(control) ? 0 : DefControlProc(control, PaintOn, message, wParam, lParam);
    case WM_ENABLE:
        Invalidate(control);
        return NotifyIfAsked(control, wParam ? STN_ENABLE : STN_DISABLE);
    case WM_NCHITTEST:
        return control.style & SS_NOTIFY ? HTCLIENT : HTTRANSPARENT;
    case WM_LBUTTONDOWN:
        return NotifyIfAsked(control, STN_CLICKED);
    case WM_LBUTTONDBLCLK:
        return NotifyIfAsked(control, STN_DBLCLK);
    case STM_SETICON:
        return reinterpret_cast<LRESULT>(std::exchange(state.icon, reinterpret_cast<HANDLE>(wParam)));
    case STM_GETICON:
        return reinterpret_cast<LRESULT>(state.icon);
    case STM_SETIMAGE:
    case STM_GETIMAGE:
        return NotModelled("pictures other than icons", 0);
    default:
        return DefControlProc(control, PaintOn, message, wParam, lParam);
    }
}

constexpr ControlClass kStatic = {Create, Handle};
} // namespace

LRESULT CALLBACK StaticProc(HWND handle, UINT message, WPARAM wParam, LPARAM lParam)
{
    return CallControl(kStatic, handle, message, wParam, lParam);
}
} // namespace offscreen
