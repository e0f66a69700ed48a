// The procedure of dialogs, DefDlgProc: it asks the dialog's own procedure first and does the rest.

#include "afx/offscreen/DialogState.h"
#include "afx/offscreen/TextMessages.h"

namespace offscreen
{
namespace
{
DLGPROC ProcedureOf(HWND dialog)
{
    return reinterpret_cast<DLGPROC>(GetWindowLongPtrW(dialog, static_cast<int>(DWLP_DLGPROC)));
}

// A dialog procedure tells whether it handled the message; its answer, which may tell the length of a text, stands in
// DWLP_MSGRESULT.
INT_PTR CallTranslated(DLGPROC procedure, HWND dialog, UINT message, WPARAM wParam, LPARAM lParam)
{
    INT_PTR handled = 0;
    const Receiver receiver = [&](UINT received, WPARAM w, LPARAM l) -> LRESULT {
        {
            Outside outside;
            handled = procedure(dialog, received, w, l);
        }
        return handled ? GetWindowLongPtrW(dialog, DWLP_MSGRESULT) : 0;
    };
    const LRESULT result = SendUnicodeToAnsi(receiver, message, wParam, lParam);
    if (handled)
        SetWindowLongPtrW(dialog, DWLP_MSGRESULT, result);
    return handled;
}

INT_PTR CallDialogProc(DLGPROC procedure, HWND dialog, UINT message, WPARAM wParam, LPARAM lParam)
{
    const DialogState* state = DialogStateOf(dialog);
    if (state && !state->unicodeProcedure && HasText(message))
        return CallTranslated(procedure, dialog, message, wParam, lParam);
    Outside outside;
    return procedure(dialog, message, wParam, lParam);
}

void SaveFocus(HWND dialog)
{
    const HWND focus = Input().focus;
    DialogState* state = DialogStateOf(dialog);
    if (state && focus && IsChild(dialog, focus))
        state->focus = focus;
}

void RestoreFocus(HWND dialog, bool justActivated)
{
    const DialogState* state = DialogStateOf(dialog);
    if (!state)
        return;
    HWND focus = state->focus;
    if (!focus || !Find(focus))
    {
        if (justActivated)
            return; // The dialog is not initialized yet, or has no control.
        focus = FirstControl(dialog);
        if (!focus)
            return;
    }
    SetFocus(focus);
}

bool SetDefaultId(HWND dialog, int id)
{
    DialogState* state = DialogStateOf(dialog);
    if (!state)
        return false;
    const HWND before = GetDlgItem(dialog, state->defaultId);
    const HWND after = GetDlgItem(dialog, id);
    state->defaultId = id;
    if (before && before != after && (DialogCode(before) & DLGC_DEFPUSHBUTTON))
        Send(before, BM_SETSTYLE, BS_PUSHBUTTON, TRUE);
    if (after && (DialogCode(after) & DLGC_UNDEFPUSHBUTTON))
        Send(after, BM_SETSTYLE, BS_DEFPUSHBUTTON, TRUE);
    return true;
}

} // namespace

HWND FirstControl(HWND dialog)
{
    const HWND control = GetNextDlgTabItem(dialog, nullptr, FALSE);
    return control ? control : GetNextDlgGroupItem(dialog, nullptr, FALSE);
}

void ShowDefaultButton(HWND dialog, HWND focus)
{
    DialogState* state = DialogStateOf(dialog);
    if (!state)
        return;
    const bool focusIsButton =
        focus && IsChild(dialog, focus) && (DialogCode(focus) & (DLGC_UNDEFPUSHBUTTON | DLGC_DEFPUSHBUTTON)) != 0;
    const HWND wanted = focusIsButton ? focus : GetDlgItem(dialog, state->defaultId);
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        if (child != wanted && (DialogCode(child) & DLGC_DEFPUSHBUTTON))
            Send(child, BM_SETSTYLE, BS_PUSHBUTTON, TRUE);
    if (wanted && (DialogCode(wanted) & DLGC_UNDEFPUSHBUTTON))
        Send(wanted, BM_SETSTYLE, BS_DEFPUSHBUTTON, TRUE);
}

void FocusControl(HWND control)
{
    if (DialogCode(control) & DLGC_HASSETSEL)
        Send(control, EM_SETSEL, 0, -1);
    SetFocus(control);
}

namespace
{
LRESULT MoveFocus(HWND dialog, WPARAM wParam, bool toWindow)
{
    HWND control = nullptr;
    if (toWindow)
        control = reinterpret_cast<HWND>(wParam);
    else
    {
        HWND current = Input().focus;
        if (!current || !IsChild(dialog, current))
            current = nullptr;
        control = GetNextDlgTabItem(dialog, current, wParam != 0);
    }
    if (control)
    {
        FocusControl(control);
        ShowDefaultButton(dialog, control);
    }
    return 0;
}

LRESULT CloseByCommand(HWND dialog)
{
    const HWND cancel = GetDlgItem(dialog, IDCANCEL);
    if (cancel && !IsWindowEnabled(cancel))
        MessageBeep(0);
    else
        PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED), reinterpret_cast<LPARAM>(cancel));
    return 0;
}

LRESULT DefaultDialogAction(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam)
{
    DialogState* state = DialogStateOf(dialog);
    switch (message)
    {
    case WM_ERASEBKGND: {
        const auto dc = reinterpret_cast<HDC>(wParam);
        auto brush = reinterpret_cast<HBRUSH>(Send(dialog, WM_CTLCOLORDLG, wParam, reinterpret_cast<LPARAM>(dialog)));
        if (!brush)
            brush = reinterpret_cast<HBRUSH>(
                DefWindowProcW(dialog, WM_CTLCOLORDLG, wParam, reinterpret_cast<LPARAM>(dialog)));
        RECT client{};
        GetClientRect(dialog, &client);
        FillRect(dc, &client, brush);
        return TRUE;
    }
    case WM_SHOWWINDOW:
        if (!wParam)
            SaveFocus(dialog);
        return DefWindowProcW(dialog, message, wParam, lParam);
    case WM_ACTIVATE:
        if (LOWORD(wParam) != WA_INACTIVE)
            RestoreFocus(dialog, true);
        else
            SaveFocus(dialog);
        return 0;
    case WM_SETFOCUS:
        RestoreFocus(dialog, false);
        return 0;
    case DM_SETDEFID:
        if (state && !state->ended)
            SetDefaultId(dialog, LOWORD(wParam));
        return TRUE;
    case DM_GETDEFID:
        if (state && !state->ended && state->defaultId)
            return MAKELONG(state->defaultId, DC_HASDEFID);
        return 0;
    case WM_NEXTDLGCTL:
        return MoveFocus(dialog, wParam, LOWORD(lParam) != 0);
    case WM_GETFONT:
        return state ? reinterpret_cast<LRESULT>(state->font) : 0;
    case WM_SETFONT:
        return 0;
    case WM_CLOSE:
        return CloseByCommand(dialog);
    case WM_INITDIALOG:
    case WM_VKEYTOITEM:
    case WM_COMPAREITEM:
    case WM_CHARTOITEM:
        return 0;
    default:
        return DefWindowProcW(dialog, message, wParam, lParam);
    }
}

bool AnswersItself(UINT message)
{
    switch (message)
    {
    case WM_CTLCOLORMSGBOX:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLORDLG:
    case WM_CTLCOLORSCROLLBAR:
    case WM_CTLCOLORSTATIC:
    case WM_COMPAREITEM:
    case WM_VKEYTOITEM:
    case WM_CHARTOITEM:
    case WM_INITDIALOG:
        return true;
    default:
        return false;
    }
}

bool IsDefaultAction(UINT message)
{
    switch (message)
    {
    case WM_ERASEBKGND:
    case WM_SHOWWINDOW:
    case WM_ACTIVATE:
    case WM_SETFOCUS:
    case DM_SETDEFID:
    case DM_GETDEFID:
    case WM_NEXTDLGCTL:
    case WM_GETFONT:
    case WM_SETFONT:
    case WM_CLOSE:
        return true;
    default:
        return false;
    }
}
} // namespace
} // namespace offscreen

using namespace offscreen;

LRESULT DefDlgProcW(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam)
{
    Inside inside;
    Window* window = Find(dialog);
    if (!window)
        return 0;
    const Pin pin(window);
    if (window->extra.size() < DLGWINDOWEXTRA)
        return DefWindowProcW(dialog, message, wParam, lParam);

    SetWindowLongPtrW(dialog, DWLP_MSGRESULT, 0);
    INT_PTR handled = 0;
    if (const DLGPROC procedure = ProcedureOf(dialog))
    {
        handled = CallDialogProc(procedure, dialog, message, wParam, lParam);
        if (window->dead)
            return handled;
    }
    if (!handled)
    {
        if (IsDefaultAction(message) || AnswersItself(message))
            return DefaultDialogAction(dialog, message, wParam, lParam);
        return DefWindowProcW(dialog, message, wParam, lParam);
    }
    if (AnswersItself(message))
        return handled;
    return GetWindowLongPtrW(dialog, DWLP_MSGRESULT);
}

LRESULT DefDlgProcA(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam)
{
    Inside inside;
    return CallProc({DefDlgProcW, true}, false, dialog, message, wParam, lParam);
}
