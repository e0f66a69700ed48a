// The standard class "ComboBox" in the form of a drop-down list (CBS_DROPDOWNLIST). The list that drops down is no
// window of its own here.

#include "afx/offscreen/ItemList.h"

namespace offscreen
{
namespace
{
struct ComboState : ControlState
{
    explicit ComboState(UINT ownerDrawnType) : items({ownerDrawnType, CBN_ERRSPACE}) {}

    ItemList items;
    bool dropped = false;
    int selectionBefore = -1; // When the list dropped down; Esc goes back to it.
    int itemHeight = 0;
    int fieldHeight = 0; // Of the selection field.
    int dropHeight = 0;  // The whole height that creation asked for, with the list.
    bool resizing = false;
};

constexpr int kBorder = 2;  // Around the selection field.
constexpr int kPadding = 2; // Between it and the text.

ComboState& Of(Window& combo) { return *StateOf<ComboState>(combo); }

bool IsOwnerDrawn(const Window& combo) { return (combo.style & CBS_OWNERDRAWFIXED) != 0; }

// The closed combo box is as high as its selection field, whatever height it is given.
void AdjustHeight(Window& combo)
{
    ComboState& state = Of(combo);
    const int height = state.fieldHeight + 2 * kBorder;
    if (state.resizing || combo.rect.bottom - combo.rect.top == height)
        return;
    state.resizing = true;
    SetWindowPos(combo.handle, nullptr, 0, 0, combo.rect.right - combo.rect.left, height,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOREDRAW);
    if (combo.control)
        Of(combo).resizing = false;
}

void MeasureText(Window& combo)
{
    ComboState& state = Of(combo);
    const int height = MetricsOf(combo.font).height;
    state.itemHeight = height;
    state.fieldHeight = height + 2 * kPadding;
}

void MeasureItem(Window& combo)
{
    ComboState& state = Of(combo);
    for (int part : {-1, 0})
    {
        MEASUREITEMSTRUCT measure{};
        measure.CtlType = ODT_COMBOBOX;
        measure.CtlID = static_cast<UINT>(combo.id);
        measure.itemID = static_cast<UINT>(part);
        measure.itemHeight = static_cast<UINT>(MetricsOf(combo.font).height);
        Send(ParentOf(combo), WM_MEASUREITEM, measure.CtlID, reinterpret_cast<LPARAM>(&measure));
        if (part == -1)
            state.fieldHeight = static_cast<int>(measure.itemHeight) + 2 * kPadding + 2; // And a line around the item
        else
            state.itemHeight = static_cast<int>(measure.itemHeight);
    }
}

LRESULT Create(Window& combo)
{
    if ((combo.style & CBS_DROPDOWNLIST) != CBS_DROPDOWNLIST || (combo.style & (CBS_OWNERDRAWVARIABLE | CBS_SORT)))
        return NotModelled("combo boxes with an edit, a sorted list or items of several heights", -1);
    if (IsOwnerDrawn(combo) && !(combo.style & CBS_HASSTRINGS))
        return NotModelled("owner-drawn combo boxes without texts", -1);
    combo.style |= CBS_HASSTRINGS;
    // The frame is drawn by the control itself.
    combo.exStyle &= ~(WS_EX_CLIENTEDGE | WS_EX_WINDOWEDGE);
    combo.style &= ~(WS_BORDER | WS_HSCROLL);
    combo.control = std::make_unique<ComboState>(IsOwnerDrawn(combo) ? ODT_COMBOBOX : 0);
    Of(combo).dropHeight = combo.rect.bottom - combo.rect.top;
    MeasureText(combo);
    if (IsOwnerDrawn(combo))
        MeasureItem(combo);
    AdjustHeight(combo);
    return 0;
}

// ----------------------------------------------------------------------------------------------------- dropping down

void DropDown(Window& combo)
{
    ComboState& state = Of(combo);
    NotifyParent(combo, CBN_DROPDOWN);
    if (combo.dead)
        return;
    state.dropped = true;
    state.selectionBefore = state.items.Selection();
}

void RollUp(Window& combo, bool accept)
{
    ComboState& state = Of(combo);
    NotifyParent(combo, accept ? CBN_SELENDOK : CBN_SELENDCANCEL);
    if (combo.dead || !state.dropped)
        return;
    state.dropped = false;
    Invalidate(combo);
    NotifyParent(combo, CBN_CLOSEUP);
}

void Toggle(Window& combo)
{
    if (Of(combo).dropped)
        RollUp(combo, true);
    else
        DropDown(combo);
}

// -------------------------------------------------------------------------------------------------------- selecting

void SelectByUser(Window& combo, int index)
{
    ComboState& state = Of(combo);
    if (index < 0 || index >= state.items.Count() || index == state.items.Selection())
        return;
    state.items.Select(index);
    Invalidate(combo);
    if (!state.dropped)
        NotifyParent(combo, CBN_SELENDOK);
    if (!combo.dead)
        NotifyParent(combo, CBN_SELCHANGE);
}

LRESULT SetSelection(Window& combo, int index)
{
    ItemList& items = Of(combo).items;
    const bool valid = index >= 0 && index < items.Count();
    items.Select(valid ? index : -1);
    Invalidate(combo);
    return valid ? index : CB_ERR;
}

int VisibleItems(const ComboState& state)
{
    return std::max((state.dropHeight - state.fieldHeight - 2 * kBorder) / std::max(state.itemHeight, 1), 1);
}

void TakeBack(Window& combo)
{
    ComboState& state = Of(combo);
    state.items.Select(state.selectionBefore < state.items.Count() ? state.selectionBefore : -1);
    RollUp(combo, false);
}

LRESULT HandleKey(Window& combo, UINT message, WPARAM key)
{
    ComboState& state = Of(combo);
    if (message == WM_SYSKEYDOWN) // With Alt
    {
        if (key == VK_UP || key == VK_DOWN)
            Toggle(combo);
        return 0;
    }
    switch (key)
    {
    case VK_RETURN:
        if (state.dropped)
            RollUp(combo, true);
        return 0;
    case VK_ESCAPE:
        if (state.dropped)
            TakeBack(combo);
        return 0;
    case VK_F4:
        Toggle(combo);
        return 0;
    default:
        if (const std::optional<int> index = state.items.MovedBy(key, VisibleItems(state)))
            SelectByUser(combo, *index);
        return 0;
    }
}

// ---------------------------------------------------------------------------------------------------------- painting

void PaintOn(Window& combo, HDC dc)
{
    ComboState& state = Of(combo);
    SelectObject(dc, combo.font);
    AskParentForColors(combo, combo.style & WS_DISABLED ? WM_CTLCOLORSTATIC : WM_CTLCOLORLISTBOX, dc);
    if (!IsOwnerDrawn(combo) || combo.dead)
        return;
    const int selection = state.items.Selection();
    const RECT client = ClientRectOf(combo);
    DRAWITEMSTRUCT item{};
    item.CtlType = ODT_COMBOBOX;
    item.itemID = static_cast<UINT>(selection);
    item.itemAction = ODA_DRAWENTIRE;
    item.itemState = ODS_COMBOBOXEDIT | (GetFocus() == combo.handle ? ODS_FOCUS | ODS_SELECTED : 0u) |
                     (combo.style & WS_DISABLED ? ODS_DISABLED : 0u);
    item.hDC = dc;
    item.rcItem = {kBorder + 1, kBorder + 1, client.right - kBorder - 1 - GetSystemMetrics(SM_CXVSCROLL),
                   client.bottom - kBorder - 1};
    item.itemData = selection >= 0 ? static_cast<ULONG_PTR>(state.items.Data(selection)) : 0;
    DrawItem(combo, item);
}

LRESULT CopySelectedText(Window& combo, WPARAM size, LPARAM target)
{
    const ItemList& items = Of(combo).items;
    const int selection = items.Selection();
    return CopyText(selection >= 0 ? std::u16string_view(items.Text(selection)) : std::u16string_view(),
                    reinterpret_cast<LPWSTR>(target), size);
}

LRESULT SetItemHeight(Window& combo, int part, int height)
{
    if (height <= 0 || height > UCHAR_MAX)
        return CB_ERR;
    if (part == -1)
        Of(combo).fieldHeight = height;
    else
        Of(combo).itemHeight = height;
    AdjustHeight(combo);
    return CB_OKAY;
}

LRESULT HandleComboMessage(Window& combo, UINT message, WPARAM wParam, LPARAM lParam)
{
    ComboState& state = Of(combo);
    ItemList& items = state.items;
    const int start = static_cast<int>(wParam);
    switch (message)
    {
    case CB_ADDSTRING:
        return items.Add(combo, lParam);
    case CB_RESETCONTENT:
        items.Clear(combo);
        Invalidate(combo);
        return CB_OKAY;
    case CB_GETCOUNT:
        return items.Count();
    case CB_SETCURSEL:
        return SetSelection(combo, start);
    case CB_GETCURSEL:
        return items.Selection();
    case CB_GETLBTEXT:
        return items.CopyItem(wParam, lParam);
    case CB_GETLBTEXTLEN:
        return items.TextLength(wParam);
    case CB_GETITEMDATA:
        return items.IsIndex(wParam) ? items.Data(start) : CB_ERR;
    case CB_SETITEMDATA:
        if (!items.IsIndex(wParam))
            return CB_ERR;
        items.SetData(start, lParam);
        return TRUE;
    case CB_SHOWDROPDOWN:
        if (wParam && !state.dropped)
            DropDown(combo);
        else if (!wParam && state.dropped)
            RollUp(combo, false);
        return TRUE;
    case CB_GETDROPPEDSTATE:
        return state.dropped;
    case CB_GETITEMHEIGHT:
        return start == -1 ? state.fieldHeight : state.itemHeight;
    case CB_SETITEMHEIGHT:
        return SetItemHeight(combo, start, static_cast<int>(lParam));
    default:
        Fail("not modelled: combo box message 0x%04X", message);
        return CB_ERR;
    }
}

// A new height is that of the list.
void ChangePosition(Window& combo, WINDOWPOS& position)
{
    ComboState& state = Of(combo);
    if ((position.flags & SWP_NOSIZE) || state.resizing)
        return;
    const int closed = state.fieldHeight + 2 * kBorder;
    if (position.cy > closed)
        state.dropHeight = position.cy;
    position.cy = closed;
}

LRESULT DialogCodeOf(Window& combo, const MSG* key)
{
    const LRESULT code = DLGC_WANTARROWS | DLGC_WANTCHARS;
    // While the list is down, Enter and Esc belong to it.
    const bool isOfList = key && key->message == WM_KEYDOWN && (key->wParam == VK_RETURN || key->wParam == VK_ESCAPE);
    return Of(combo).dropped && isOfList ? code | DLGC_WANTMESSAGE : code;
}

void ChangeFont(Window& combo)
{
    if (!IsOwnerDrawn(combo))
        MeasureText(combo);
    AdjustHeight(combo);
}

LRESULT HandleFocus(Window& combo, bool gained)
{
    if (!gained)
        RollUp(combo, false);
    if (combo.dead)
        return 0;
    Invalidate(combo);
    NotifyParent(combo, gained ? CBN_SETFOCUS : CBN_KILLFOCUS);
    return 0;
}

LRESULT HandleMousePress(Window& combo)
{
    SetFocus(combo.handle);
    if (!combo.dead)
        Toggle(combo);
    return 0;
}

LRESULT Handle(Window& combo, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message >= CB_GETEDITSEL && message <= CB_GETCOMBOBOXINFO)
        return HandleComboMessage(combo, message, wParam, lParam);
    ItemList& items = Of(combo).items;
    switch (message)
    {
    case WM_DESTROY:
        items.Clear(combo);
        return 0;
    case WM_GETDLGCODE:
        return DialogCodeOf(combo, reinterpret_cast<const MSG*>(lParam));
    case WM_SETFONT:
        DefControlProc(combo, PaintOn, message, wParam, lParam);
        ChangeFont(combo);
        return 0;
    case WM_WINDOWPOSCHANGING:
        ChangePosition(combo, *reinterpret_cast<WINDOWPOS*>(lParam));
        return 0;
    case WM_SETREDRAW: // The list inside leaves out the drawing; the combo box does not become invisible.
        return 0;
    case WM_GETTEXT:
        return CopySelectedText(combo, wParam, lParam);
    case WM_GETTEXTLENGTH:
        return items.Selection() >= 0 ? items.TextLength(static_cast<WPARAM>(items.Selection())) : 0;
    case WM_SETTEXT:
        return CB_ERR;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
        return HandleFocus(combo, message == WM_SETFOCUS);
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
        return HandleKey(combo, message, wParam);
    case WM_CHAR:
        SelectByUser(combo, items.FindNext(static_cast<char16_t>(wParam)));
        return 0;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        return HandleMousePress(combo);
    default:
        return DefControlProc(combo, PaintOn, message, wParam, lParam);
    }
}

constexpr ControlClass kComboBox = {Create, Handle};
} // namespace

LRESULT CALLBACK ComboBoxProc(HWND handle, UINT message, WPARAM wParam, LPARAM lParam)
{
    return CallControl(kComboBox, handle, message, wParam, lParam);
}
} // namespace offscreen
