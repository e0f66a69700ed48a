// The standard class "Button": push buttons, check boxes, radio buttons, group boxes, owner-drawn buttons.

#include "afx/offscreen/Internal.h"

namespace offscreen
{
namespace
{
struct ButtonState : ControlState
{
    UINT check = BST_UNCHECKED;
    bool pushed = false;
    bool focused = false;
    bool spaceHeld = false;
};

UINT KindOf(const Window& button) { return button.style & BS_TYPEMASK; }

bool IsPush(UINT kind) { return kind == BS_PUSHBUTTON || kind == BS_DEFPUSHBUTTON; }
bool IsRadio(UINT kind) { return kind == BS_RADIOBUTTON || kind == BS_AUTORADIOBUTTON; }
bool IsCheckable(UINT kind) { return kind == BS_CHECKBOX || kind == BS_AUTOCHECKBOX || IsRadio(kind); }

void SetCheck(Window& button, UINT check)
{
    auto& state = *StateOf<ButtonState>(button);
    const UINT kind = KindOf(button);
    if (!IsCheckable(kind))
        return;
    check = std::min<UINT>(check, BST_CHECKED);
    if (IsRadio(kind))
    {
        // The checked button of a group is the one that the tab key stops at.
        if (check)
            button.style |= WS_TABSTOP;
        else
            button.style &= ~WS_TABSTOP;
    }
    if (state.check == check)
        return;
    state.check = check;
    Invalidate(button);
}

// Unchecks the other automatic radio buttons of the group.
void CheckRadioInGroup(Window& button)
{
    if (!button.IsChild())
        return;
    const HWND parent = ParentOf(button);
    const HWND start = button.handle;
    HWND sibling = start;
    for (int steps = 0; steps < 10000; ++steps)
    {
        const Window* window = Find(sibling);
        if (!window)
            return;
        const bool isRadio = (Send(sibling, WM_GETDLGCODE) & DLGC_RADIOBUTTON) && KindOf(*window) == BS_AUTORADIOBUTTON;
        if (isRadio)
            Send(sibling, BM_SETCHECK, sibling == start ? BST_CHECKED : BST_UNCHECKED);
        sibling = GetNextDlgGroupItem(parent, sibling, FALSE);
        if (!sibling || sibling == start)
            return;
    }
}

void ChangeByClick(Window& button)
{
    auto& state = *StateOf<ButtonState>(button);
    switch (KindOf(button))
    {
    case BS_AUTOCHECKBOX:
        SetCheck(button, state.check ? BST_UNCHECKED : BST_CHECKED);
        break;
    case BS_AUTORADIOBUTTON:
        CheckRadioInGroup(button);
        break;
    default:
        break;
    }
}

void SetPushed(Window& button, bool pushed)
{
    auto& state = *StateOf<ButtonState>(button);
    if (state.pushed == pushed)
        return;
    state.pushed = pushed;
    Invalidate(button);
}

void NotifyIfAsked(const Window& button, int code)
{
    if (button.style & BS_NOTIFY)
        NotifyParent(button, code);
}

void PressMouse(Window& button)
{
    SetCapture(button.handle);
    SetFocus(button.handle);
    if (!button.dead)
        SetPushed(button, true);
}

bool IsOver(const Window& button, LPARAM lParam)
{
    const RECT client = ClientRectOf(button);
    return PtInRect(&client, POINT{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
}

void ReleaseMouse(Window& button, LPARAM lParam)
{
    auto& state = *StateOf<ButtonState>(button);
    const bool wasPushed = state.pushed;
    if (!wasPushed)
    {
        if (GetCapture() == button.handle)
            ReleaseCapture();
        return;
    }
    SetPushed(button, false);
    const bool clicked = IsOver(button, lParam);
    if (clicked)
        ChangeByClick(button);
    if (button.dead)
        return;
    if (GetCapture() == button.handle)
        ReleaseCapture();
    if (clicked && !button.dead)
        NotifyParent(button, BN_CLICKED);
}

void Click(Window& button)
{
    PressMouse(button);
    if (!button.dead && StateOf<ButtonState>(button)->pushed)
        ReleaseMouse(button, 0);
}

LRESULT DialogCodeOf(const Window& button)
{
    switch (KindOf(button))
    {
    case BS_PUSHBUTTON:
        return DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON;
    case BS_DEFPUSHBUTTON:
        return DLGC_BUTTON | DLGC_DEFPUSHBUTTON;
    case BS_RADIOBUTTON:
    case BS_AUTORADIOBUTTON:
        return DLGC_BUTTON | DLGC_RADIOBUTTON;
    case BS_GROUPBOX:
        return DLGC_STATIC;
    default:
        return DLGC_BUTTON;
    }
}

UINT ItemState(const Window& button)
{
    const auto& state = *StateOf<ButtonState>(const_cast<Window&>(button));
    return (state.pushed ? ODS_SELECTED : 0u) | (state.focused ? ODS_FOCUS : 0u) |
           (button.style & WS_DISABLED ? ODS_DISABLED : 0u);
}

void PaintOn(Window& button, HDC dc, UINT action)
{
    SelectObject(dc, button.font);
    if (KindOf(button) == BS_OWNERDRAW)
    {
        DRAWITEMSTRUCT item{};
        item.CtlType = ODT_BUTTON;
        item.itemAction = action;
        item.itemState = ItemState(button);
        item.hDC = dc;
        item.rcItem = ClientRectOf(button);
        DrawItem(button, item);
        return;
    }
    const bool isButton = IsPush(KindOf(button)) || (button.style & BS_PUSHLIKE);
    AskParentForColors(button, isButton ? WM_CTLCOLORBTN : WM_CTLCOLORSTATIC, dc);
}

void PaintNow(Window& button, UINT action)
{
    if (KindOf(button) != BS_OWNERDRAW || !IsEffectivelyVisible(button))
    {
        Invalidate(button);
        return;
    }
    const HDC dc = GetDC(button.handle);
    PaintOn(button, dc, action);
    ReleaseDC(button.handle, dc);
}

LRESULT HandleFocus(Window& button, bool gained)
{
    auto& state = *StateOf<ButtonState>(button);
    state.focused = gained;
    if (gained)
    {
        PaintNow(button, ODA_FOCUS);
        NotifyIfAsked(button, BN_SETFOCUS);
        if (!button.dead && IsRadio(KindOf(button)) && !state.check && KindOf(button) == BS_AUTORADIOBUTTON)
            NotifyParent(button, BN_CLICKED);
        return 0;
    }
    if (state.spaceHeld || state.pushed)
    {
        state.spaceHeld = false;
        SetPushed(button, false);
        if (GetCapture() == button.handle)
            ReleaseCapture();
    }
    PaintNow(button, ODA_FOCUS);
    NotifyIfAsked(button, BN_KILLFOCUS);
    return 0;
}

LRESULT HandleSpace(Window& button, bool down)
{
    auto& state = *StateOf<ButtonState>(button);
    if (down)
    {
        state.spaceHeld = true;
        SetPushed(button, true);
        SetCapture(button.handle);
        return 0;
    }
    if (!state.spaceHeld)
        return 0;
    state.spaceHeld = false;
    SetPushed(button, false);
    if (GetCapture() == button.handle)
        ReleaseCapture();
    ChangeByClick(button);
    if (!button.dead)
        NotifyParent(button, BN_CLICKED);
    return 0;
}

LRESULT Create(Window& button)
{
    const UINT kind = KindOf(button);
    if (!IsPush(kind) && !IsCheckable(kind) && kind != BS_GROUPBOX && kind != BS_OWNERDRAW)
        return NotModelled("buttons of this kind", -1);
    button.control = std::make_unique<ButtonState>();
    return 0;
}

LRESULT HandleMouse(Window& button, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
    case WM_LBUTTONDBLCLK:
        if ((button.style & BS_NOTIFY) || IsRadio(KindOf(button)) || KindOf(button) == BS_OWNERDRAW)
        {
            NotifyParent(button, BN_DOUBLECLICKED);
            return 0;
        }
        [[fallthrough]];
    case WM_LBUTTONDOWN:
        PressMouse(button);
        return 0;
    case WM_LBUTTONUP:
        ReleaseMouse(button, lParam);
        return 0;
    default: // WM_MOUSEMOVE
        if (GetCapture() == button.handle && (wParam & MK_LBUTTON))
            SetPushed(button, IsOver(button, lParam));
        return 0;
    }
}

LRESULT HandleButtonMessage(Window& button, UINT message, WPARAM wParam, LPARAM lParam)
{
    const auto& state = *StateOf<ButtonState>(button);
    switch (message)
    {
    case BM_CLICK:
        Click(button);
        return 0;
    case BM_GETCHECK:
        return static_cast<LRESULT>(state.check);
    case BM_SETCHECK:
        SetCheck(button, static_cast<UINT>(wParam));
        return 0;
    case BM_GETSTATE:
        return static_cast<LRESULT>(state.check | (state.pushed ? BST_PUSHED : 0u) | (state.focused ? BST_FOCUS : 0u));
    case BM_SETSTYLE:
        button.style = (button.style & ~BS_TYPEMASK) | (static_cast<UINT>(wParam) & BS_TYPEMASK);
        if (lParam)
            Invalidate(button);
        return 0;
    default:
        Fail("not modelled: button message 0x%04X", message);
        return 0;
    }
}

void PaintWhole(Window& button, HDC dc) { PaintOn(button, dc, ODA_DRAWENTIRE); }

LRESULT Handle(Window& button, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message >= BM_GETCHECK && message <= BM_SETIMAGE)
        return HandleButtonMessage(button, message, wParam, lParam);
    switch (message)
    {
    case WM_GETDLGCODE:
        return DialogCodeOf(button);
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
        return HandleFocus(button, message == WM_SETFOCUS);
    case WM_KEYDOWN:
    case WM_KEYUP:
        if (wParam == VK_SPACE)
            return HandleSpace(button, message == WM_KEYDOWN);
        break;
    case WM_LBUTTONDBLCLK:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_MOUSEMOVE:
        return HandleMouse(button, message, wParam, lParam);
    case WM_CAPTURECHANGED:
        SetPushed(button, false);
        return 0;
    case WM_NCHITTEST:
        return KindOf(button) == BS_GROUPBOX ? HTTRANSPARENT : HTCLIENT;
    default:
        break;
    }
    return DefControlProc(button, PaintWhole, message, wParam, lParam);
}

constexpr ControlClass kButton = {Create, Handle};
} // namespace

LRESULT CALLBACK ButtonProc(HWND handle, UINT message, WPARAM wParam, LPARAM lParam)
{
    return CallControl(kButton, handle, message, wParam, lParam);
}
} // namespace offscreen
