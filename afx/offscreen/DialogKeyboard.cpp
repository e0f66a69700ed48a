// IsDialogMessage: the keys that move about in a dialog, press its default button and leave it.

#include "afx/offscreen/DialogState.h"
#include "afx/offscreen/TextMessages.h"

using namespace offscreen;

namespace
{
bool IsDisabled(HWND control) { return control && !IsWindowEnabled(control); }

// The windows of a dialog in the order in which mnemonics are looked for: after the one with the focus, then round.
std::vector<HWND> WindowsAround(HWND dialog, HWND focus)
{
    std::vector<HWND> windows = DescendantsOf(*Find(dialog));
    const auto it = std::find(windows.begin(), windows.end(), focus);
    if (it != windows.end())
        std::rotate(windows.begin(), it + 1, windows.end());
    return windows;
}

bool CanBeReached(HWND control)
{
    const Window* window = Find(control);
    return window && IsEffectivelyVisible(*window) && IsEffectivelyEnabled(*window);
}

bool FollowMnemonic(HWND dialog, HWND focus, WPARAM character)
{
    const char16_t wanted = UpperCase(static_cast<char16_t>(character));
    for (HWND control : WindowsAround(dialog, focus))
    {
        if (!CanBeReached(control))
            continue;
        const LRESULT code = DialogCode(control);
        const DWORD style = static_cast<DWORD>(GetWindowLongW(control, GWL_STYLE));
        if (!(code & (DLGC_BUTTON | DLGC_STATIC)) || ((code & DLGC_STATIC) && (style & SS_NOPREFIX)))
            continue;
        const Window* window = Find(control);
        if (!window || MnemonicOf(window->text) != wanted)
            continue;
        // A label stands for the control behind it.
        if ((code & DLGC_STATIC) || (style & BS_TYPEMASK) == BS_GROUPBOX)
        {
            if (const HWND next = GetNextDlgTabItem(dialog, control, FALSE))
                Send(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(next), 1);
        }
        else
            Send(control, BM_CLICK);
        return true;
    }
    return false;
}

void MoveInGroup(HWND dialog, const MSG& message, bool backwards)
{
    const HWND next = GetNextDlgGroupItem(dialog, message.hwnd, backwards);
    if (!next)
        return;
    if (DialogCode(next) & DLGC_RADIOBUTTON)
    {
        SetFocus(next);
        const bool isAuto = (GetWindowLongW(next, GWL_STYLE) & BS_TYPEMASK) == BS_AUTORADIOBUTTON;
        if (isAuto && Send(next, BM_GETCHECK) != BST_CHECKED)
            Send(next, BM_CLICK, TRUE);
    }
    else
        Send(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(next), 1);
}

void PressButton(HWND dialog, int id, HWND button)
{
    if (IsDisabled(button))
        MessageBeep(0);
    else
        Send(dialog, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), reinterpret_cast<LPARAM>(button));
}

void PressDefaultButton(HWND dialog)
{
    const HWND focus = Input().focus;
    if (focus && IsChild(dialog, focus) && (DialogCode(focus) & DLGC_DEFPUSHBUTTON))
    {
        PressButton(dialog, GetDlgCtrlID(focus), focus);
        return;
    }
    const LRESULT answer = Send(dialog, DM_GETDEFID);
    const int id = HIWORD(answer) == DC_HASDEFID ? LOWORD(answer) : IDOK;
    PressButton(dialog, id, GetDlgItem(dialog, id));
}

// Whether the key was one of the dialog's.
bool HandleKeyDown(HWND dialog, const MSG& message)
{
    const LRESULT code = DialogCode(message.hwnd, &message);
    if (code & DLGC_WANTMESSAGE)
        return false;
    switch (message.wParam)
    {
    case VK_TAB:
        if (code & DLGC_WANTTAB)
            return false;
        Send(dialog, WM_NEXTDLGCTL, KeyIsDown(VK_SHIFT), 0);
        return true;
    case VK_LEFT:
    case VK_UP:
    case VK_RIGHT:
    case VK_DOWN:
        if (code & DLGC_WANTARROWS)
            return false;
        MoveInGroup(dialog, message, message.wParam == VK_LEFT || message.wParam == VK_UP);
        return true;
    case VK_CANCEL:
    case VK_ESCAPE:
        PressButton(dialog, IDCANCEL, GetDlgItem(dialog, IDCANCEL));
        return true;
    case VK_EXECUTE:
    case VK_RETURN:
        PressDefaultButton(dialog);
        return true;
    default:
        return false;
    }
}

bool HandleCharacter(HWND dialog, const MSG& message)
{
    if (message.message == WM_CHAR)
    {
        const LRESULT code = DialogCode(message.hwnd, &message);
        if (code & (DLGC_WANTCHARS | DLGC_WANTMESSAGE))
            return false;
        if (message.wParam == '\t' && (code & DLGC_WANTTAB))
            return false;
    }
    return FollowMnemonic(dialog, message.hwnd, message.wParam);
}
} // namespace

BOOL IsDialogMessageW(HWND dialog, LPMSG message)
{
    Inside inside;
    if (!Find(dialog) || (message->hwnd != dialog && !IsChild(dialog, message->hwnd)))
        return FALSE;
    bool handled = false;
    switch (message->message)
    {
    case WM_KEYDOWN:
        handled = HandleKeyDown(dialog, *message);
        break;
    case WM_CHAR:
    case WM_SYSCHAR:
        handled = HandleCharacter(dialog, *message);
        break;
    default:
        break;
    }
    if (!handled)
    {
        TranslateMessage(message);
        DispatchMessageW(message);
    }
    return TRUE;
}

BOOL IsDialogMessageA(HWND dialog, LPMSG message)
{
    Inside inside;
    MSG wide = *message;
    const bool isCharacter = wide.message == WM_CHAR || wide.message == WM_SYSCHAR;
    if (isCharacter && !WidenCharacter(wide.hwnd, wide.wParam))
        return TRUE; // It is handled together with the second byte.
    return IsDialogMessageW(dialog, &wide);
}
