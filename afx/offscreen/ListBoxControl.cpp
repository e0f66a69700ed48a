// The standard class "ListBox" with single selection.

#include "afx/offscreen/ItemList.h"

namespace offscreen
{
namespace
{
struct ListBoxState : ControlState
{
    ItemList items{{0, LBN_ERRSPACE}};
    int top = 0;
    int itemHeight = 0;
    std::vector<int> tabs; // In dialog units.
    bool pressed = false;
    bool mayScroll = false; // Created with WS_VSCROLL; the style is set while the bar is there.
};

ListBoxState& Of(Window& list) { return *StateOf<ListBoxState>(list); }

int VisibleItems(const Window& list, const ListBoxState& state)
{
    return std::max<int>(ClientRectOf(list).bottom / std::max(state.itemHeight, 1), 1);
}

void UpdateScrollBar(Window& list)
{
    const ListBoxState& state = Of(list);
    if (!state.mayScroll)
        return;
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_ALL;
    info.nMax = state.items.Count() - 1;
    info.nPage = static_cast<UINT>(VisibleItems(list, state));
    info.nPos = state.top;
    if (info.nMax < info.nMin)
        info.nMax = info.nMin;
    if (list.style & LBS_DISABLENOSCROLL)
        info.fMask |= SIF_DISABLENOSCROLL;
    SetScrollInfo(list.handle, SB_VERT, &info, FALSE);
}

void SetTop(Window& list, int top)
{
    ListBoxState& state = Of(list);
    const int last = std::max(state.items.Count() - VisibleItems(list, state), 0);
    state.top = std::clamp(top, 0, last);
    UpdateScrollBar(list);
}

void ShowItem(Window& list, int index)
{
    ListBoxState& state = Of(list);
    if (index < 0)
        return;
    if (index < state.top)
        SetTop(list, index);
    else if (index >= state.top + VisibleItems(list, state))
        SetTop(list, index - VisibleItems(list, state) + 1);
}

void Notify(const Window& list, int code)
{
    if (list.style & LBS_NOTIFY)
        NotifyParent(list, code);
}

// The item at a point of the client area, -1 beside the items.
int ItemAt(Window& list, int y)
{
    const ListBoxState& state = Of(list);
    const int index = state.top + y / std::max(state.itemHeight, 1);
    return y >= 0 && index < state.items.Count() ? index : -1;
}

// A list that shows whole items only gives up the height of a cut one.
void AdjustHeight(Window& list)
{
    const ListBoxState& state = Of(list);
    if ((list.style & LBS_NOINTEGRALHEIGHT) || state.itemHeight <= 0)
        return;
    const int height = ClientRectOf(list).bottom;
    const int rest = height % state.itemHeight;
    if (height > state.itemHeight && rest)
        SetWindowPos(list.handle, nullptr, 0, 0, list.rect.right - list.rect.left,
                     list.rect.bottom - list.rect.top - rest, SWP_NOZORDER | SWP_NOMOVE | SWP_NOACTIVATE);
}

void PaintOn(Window& list, HDC dc)
{
    SelectObject(dc, list.font);
    AskParentForColors(list, WM_CTLCOLORLISTBOX, dc);
}

// Selects as the user does; notifies when `index` is an item.
void SelectByUser(Window& list, int index)
{
    if (index < 0)
        return;
    Of(list).items.Select(index);
    ShowItem(list, index);
    Invalidate(list);
    Notify(list, LBN_SELCHANGE);
}

LRESULT HandleKey(Window& list, WPARAM key)
{
    const ListBoxState& state = Of(list);
    const std::optional<int> index = state.items.MovedBy(key, VisibleItems(list, state));
    if (!index)
        return DefWindowProcW(list.handle, WM_KEYDOWN, key, 0);
    SelectByUser(list, *index);
    return 0;
}

LRESULT HandleChar(Window& list, char16_t c)
{
    const int index = Of(list).items.FindNext(c);
    if (index >= 0)
        SelectByUser(list, index);
    return 0;
}

LRESULT HandleMouse(Window& list, UINT message, LPARAM lParam)
{
    ListBoxState& state = Of(list);
    const int index = ItemAt(list, GET_Y_LPARAM(lParam));
    switch (message)
    {
    case WM_LBUTTONDOWN:
        SetFocus(list.handle);
        if (list.dead || index < 0)
            return 0;
        state.pressed = true;
        SetCapture(list.handle);
        state.items.Select(index);
        Invalidate(list);
        return 0;
    case WM_LBUTTONUP:
        if (!state.pressed)
            return 0;
        state.pressed = false;
        if (GetCapture() == list.handle)
            ReleaseCapture();
        Notify(list, LBN_SELCHANGE);
        return 0;
    default: // WM_LBUTTONDBLCLK
        if (index < 0)
            return 0;
        state.items.Select(index);
        Notify(list, LBN_DBLCLK);
        return 0;
    }
}

void SetItemHeight(Window& list) { Of(list).itemHeight = MetricsOf(list.font).height; }

LRESULT Create(Window& list)
{
    constexpr DWORD kNot = LBS_SORT | LBS_MULTIPLESEL | LBS_EXTENDEDSEL | LBS_MULTICOLUMN | LBS_NODATA |
                           LBS_WANTKEYBOARDINPUT | LBS_OWNERDRAWFIXED | LBS_OWNERDRAWVARIABLE;
    if (list.style & kNot)
        return NotModelled("list boxes that sort or draw their items or have several selections or columns", -1);
    list.control = std::make_unique<ListBoxState>();
    SetItemHeight(list);
    AdjustHeight(list);
    Of(list).mayScroll = (list.style & WS_VSCROLL) != 0;
    UpdateScrollBar(list);
    return 0;
}

LRESULT SetSelection(Window& list, int index)
{
    ItemList& items = Of(list).items;
    Invalidate(list);
    if (index == -1)
    {
        items.Select(-1);
        return LB_ERR;
    }
    if (index < 0 || index >= items.Count())
        return LB_ERR;
    items.Select(index);
    ShowItem(list, index);
    return index;
}

LRESULT SetTabs(Window& list, WPARAM count, const int* stops)
{
    if (!(list.style & LBS_USETABSTOPS))
        return FALSE;
    Of(list).tabs.assign(stops, stops + count);
    return TRUE;
}

LRESULT HandleListMessage(Window& list, UINT message, WPARAM wParam, LPARAM lParam)
{
    ListBoxState& state = Of(list);
    ItemList& items = state.items;
    switch (message)
    {
    case LB_ADDSTRING: {
        const LRESULT index = items.Add(list, lParam);
        UpdateScrollBar(list);
        Invalidate(list);
        return index;
    }
    case LB_RESETCONTENT:
        items.Clear(list);
        SetTop(list, 0);
        Invalidate(list);
        return LB_OKAY;
    case LB_GETCOUNT:
        return items.Count();
    case LB_SETCURSEL:
        return SetSelection(list, static_cast<int>(wParam));
    case LB_GETCURSEL:
        return items.Selection();
    case LB_GETTEXT:
        return items.CopyItem(wParam, lParam);
    case LB_GETTEXTLEN:
        return items.TextLength(wParam);
    case LB_GETITEMDATA:
        return items.IsIndex(wParam) ? items.Data(static_cast<int>(wParam)) : LB_ERR;
    case LB_SETITEMDATA:
        if (!items.IsIndex(wParam))
            return LB_ERR;
        items.SetData(static_cast<int>(wParam), lParam);
        return TRUE;
    case LB_GETTOPINDEX:
        return state.top;
    case LB_SETTABSTOPS:
        return SetTabs(list, wParam, reinterpret_cast<const int*>(lParam));
    case LB_GETITEMHEIGHT:
        return state.itemHeight;
    default:
        Fail("not modelled: list box message 0x%04X", message);
        return LB_ERR;
    }
}

LRESULT HandleFocus(Window& list, int notification)
{
    Invalidate(list);
    NotifyParent(list, notification); // Without LBS_NOTIFY too
    return 0;
}

LRESULT Handle(Window& list, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message >= LB_ADDSTRING && message <= LB_ITEMFROMPOINT)
        return HandleListMessage(list, message, wParam, lParam);
    switch (message)
    {
    case WM_DESTROY:
        Of(list).items.Clear(list);
        return 0;
    case WM_GETDLGCODE:
        return DLGC_WANTARROWS | DLGC_WANTCHARS;
    case WM_SETFONT:
        DefControlProc(list, PaintOn, message, wParam, lParam);
        SetItemHeight(list);
        SetTop(list, Of(list).top);
        return 0;
    case WM_SIZE:
        AdjustHeight(list);
        SetTop(list, Of(list).top);
        return 0;
    case WM_SETFOCUS:
        return HandleFocus(list, LBN_SETFOCUS);
    case WM_KILLFOCUS:
        return HandleFocus(list, LBN_KILLFOCUS);
    case WM_KEYDOWN:
        return HandleKey(list, wParam);
    case WM_CHAR:
        return HandleChar(list, static_cast<char16_t>(wParam));
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_LBUTTONDBLCLK:
        return HandleMouse(list, message, lParam);
    case WM_SETREDRAW: // The list itself leaves out the drawing; it does not become invisible.
        return 0;
    default:
        return DefControlProc(list, PaintOn, message, wParam, lParam);
    }
}

constexpr ControlClass kListBox = {Create, Handle};
} // namespace

std::vector<int> TabStops(HWND listBox)
{
    Window* window = Find(listBox);
    if (!window || window->windowClass->procedure.function != ListBoxProc || !window->control)
        return {};
    return Of(*window).tabs;
}

LRESULT CALLBACK ListBoxProc(HWND handle, UINT message, WPARAM wParam, LPARAM lParam)
{
    return CallControl(kListBox, handle, message, wParam, lParam);
}
} // namespace offscreen
