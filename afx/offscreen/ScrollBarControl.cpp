// The standard class "ScrollBar", and the scroll bars at the edges of other windows.

#include "afx/offscreen/Internal.h"

namespace offscreen
{
namespace
{
struct ScrollBarState : ControlState
{
    ScrollState scroll;
};

int LargestPosition(const ScrollState& scroll)
{
    return scroll.page ? scroll.high - static_cast<int>(scroll.page) + 1 : scroll.high;
}

void KeepInRange(ScrollState& scroll)
{
    const auto range = static_cast<long long>(scroll.high) - scroll.low + 1;
    scroll.page = static_cast<UINT>(std::clamp<long long>(scroll.page, 0, range));
    scroll.position = std::max(std::min(scroll.position, LargestPosition(scroll)), scroll.low);
}

int Change(ScrollState& scroll, const SCROLLINFO& info)
{
    if (info.fMask & SIF_PAGE)
        scroll.page = info.nPage;
    if (info.fMask & SIF_POS)
        scroll.position = info.nPos;
    if (info.fMask & SIF_RANGE)
    {
        // An empty or impossible range stands for no scrolling at all.
        const bool possible = info.nMin <= info.nMax && static_cast<UINT>(info.nMax - info.nMin) < 0x80000000u;
        scroll.low = possible ? info.nMin : 0;
        scroll.high = possible ? info.nMax : 0;
    }
    KeepInRange(scroll);
    return scroll.position;
}

bool Read(const ScrollState& scroll, SCROLLINFO& info)
{
    if (info.fMask & SIF_PAGE)
        info.nPage = scroll.page;
    if (info.fMask & SIF_POS)
        info.nPos = scroll.position;
    if (info.fMask & SIF_TRACKPOS)
        info.nTrackPos = scroll.position;
    if (info.fMask & SIF_RANGE)
    {
        info.nMin = scroll.low;
        info.nMax = scroll.high;
    }
    return (info.fMask & SIF_ALL) != 0;
}

ScrollState* ScrollOf(Window& window, int bar)
{
    if (bar != SB_CTL)
        return bar == SB_HORZ || bar == SB_VERT ? &window.scroll[bar] : nullptr;
    auto* state = window.windowClass->procedure.function == ScrollBarProc ? StateOf<ScrollBarState>(window) : nullptr;
    return state ? &state->scroll : nullptr;
}

void ScrollParent(const Window& bar, UINT code)
{
    const UINT message = bar.style & SBS_VERT ? WM_VSCROLL : WM_HSCROLL;
    Send(ParentOf(bar), message, code, reinterpret_cast<LPARAM>(bar.handle));
}

bool HandleKey(Window& bar, WPARAM key)
{
    UINT code = 0;
    switch (key)
    {
    case VK_PRIOR:
        code = SB_PAGEUP;
        break;
    case VK_NEXT:
        code = SB_PAGEDOWN;
        break;
    case VK_HOME:
        code = SB_TOP;
        break;
    case VK_END:
        code = SB_BOTTOM;
        break;
    case VK_UP:
    case VK_LEFT:
        code = SB_LINEUP;
        break;
    case VK_DOWN:
    case VK_RIGHT:
        code = SB_LINEDOWN;
        break;
    default:
        return false;
    }
    ScrollParent(bar, code);
    if (!bar.dead)
        ScrollParent(bar, SB_ENDSCROLL);
    return true;
}

// A click on an arrow scrolls by a line, beside the thumb by a page.
void HandleClick(Window& bar, LPARAM lParam)
{
    const RECT client = ClientRectOf(bar);
    const bool vertical = (bar.style & SBS_VERT) != 0;
    const int length = vertical ? client.bottom : client.right;
    const int at = vertical ? GET_Y_LPARAM(lParam) : GET_X_LPARAM(lParam);
    const int arrow = std::min<int>(GetSystemMetrics(SM_CYVSCROLL), length / 2);
    const ScrollState& scroll = StateOf<ScrollBarState>(bar)->scroll;
    const int range = std::max(LargestPosition(scroll) - scroll.low, 1);
    const int thumb = arrow + (length - 2 * arrow) * (scroll.position - scroll.low) / range;
    UINT code = at < thumb ? SB_PAGEUP : SB_PAGEDOWN;
    if (at < arrow)
        code = SB_LINEUP;
    else if (at >= length - arrow)
        code = SB_LINEDOWN;
    ScrollParent(bar, code);
    if (!bar.dead)
        ScrollParent(bar, SB_ENDSCROLL);
}

// Shows or hides the bar at an edge of a window, which thereby gets another client area.
void ShowBar(Window& window, int bar, bool show)
{
    const DWORD bit = bar == SB_VERT ? WS_VSCROLL : WS_HSCROLL;
    if (((window.style & bit) != 0) == show)
        return;
    window.style ^= bit;
    const RECT client = ClientRectOf(window);
    Send(window.handle, WM_SIZE, SIZE_RESTORED, MAKELPARAM(client.right, client.bottom));
}

SCROLLINFO Info(UINT mask, int low, int high, int position)
{
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = mask;
    info.nMin = low;
    info.nMax = high;
    info.nPos = position;
    return info;
}

LRESULT Create(Window& bar)
{
    auto state = std::make_unique<ScrollBarState>();
    state->scroll.high = 0;
    bar.control = std::move(state);
    return 0;
}

void PaintOn(Window& bar, HDC dc) { AskParentForColors(bar, WM_CTLCOLORSCROLLBAR, dc); }

LRESULT Handle(Window& bar, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message >= SBM_SETPOS && message <= SBM_GETSCROLLINFO)
    {
        Fail("not modelled: scroll bar message 0x%04X", message);
        return 0;
    }
    switch (message)
    {
    case WM_GETDLGCODE:
        return DLGC_WANTARROWS;
    case WM_KEYDOWN:
        return HandleKey(bar, wParam) ? 0 : DefWindowProcA(bar.handle, message, wParam, lParam);
    case WM_LBUTTONDOWN:
        if (bar.style & WS_TABSTOP)
            SetFocus(bar.handle);
        if (!bar.dead)
            HandleClick(bar, lParam);
        return 0;
    case WM_SETFONT: // It has no text.
    case WM_GETFONT:
        return 0;
    default:
        return DefControlProc(bar, PaintOn, message, wParam, lParam);
    }
}

constexpr ControlClass kScrollBar = {Create, Handle};
} // namespace

LRESULT CALLBACK ScrollBarProc(HWND handle, UINT message, WPARAM wParam, LPARAM lParam)
{
    return CallControl(kScrollBar, handle, message, wParam, lParam);
}
} // namespace offscreen

using namespace offscreen;

int SetScrollInfo(HWND window, int bar, LPCSCROLLINFO info, BOOL redraw)
{
    Inside inside;
    Window* found = Lookup(window);
    ScrollState* scroll = found ? ScrollOf(*found, bar) : nullptr;
    if (!scroll)
        return 0;
    const int position = Change(*scroll, *info);
    if (redraw)
        Invalidate(*found);
    // A bar at the edge of a window is there only while there is something to scroll.
    if (bar != SB_CTL && (info->fMask & (SIF_RANGE | SIF_PAGE)) && !(info->fMask & SIF_DISABLENOSCROLL))
        ShowBar(*found, bar, LargestPosition(*scroll) > scroll->low);
    return position;
}

BOOL GetScrollInfo(HWND window, int bar, LPSCROLLINFO info)
{
    Inside inside;
    Window* found = Lookup(window);
    const ScrollState* scroll = found ? ScrollOf(*found, bar) : nullptr;
    return scroll && Read(*scroll, *info);
}

int SetScrollPos(HWND window, int bar, int position, BOOL redraw)
{
    const int before = GetScrollPos(window, bar);
    const SCROLLINFO info = Info(SIF_POS, 0, 0, position);
    SetScrollInfo(window, bar, &info, redraw);
    return before;
}

int GetScrollPos(HWND window, int bar)
{
    Inside inside;
    Window* found = Lookup(window);
    const ScrollState* scroll = found ? ScrollOf(*found, bar) : nullptr;
    return scroll ? scroll->position : 0;
}

BOOL SetScrollRange(HWND window, int bar, int low, int high, BOOL redraw)
{
    const SCROLLINFO info = Info(SIF_RANGE, low, high, 0);
    SetScrollInfo(window, bar, &info, redraw);
    return IsWindow(window);
}
