// The functions that reach a control through its dialog and its id.

#include "afx/offscreen/Internal.h"

using namespace offscreen;

LRESULT SendDlgItemMessageA(HWND dialog, int id, UINT message, WPARAM wParam, LPARAM lParam)
{
    const HWND control = GetDlgItem(dialog, id);
    return control ? SendMessageA(control, message, wParam, lParam) : 0;
}

LRESULT SendDlgItemMessageW(HWND dialog, int id, UINT message, WPARAM wParam, LPARAM lParam)
{
    const HWND control = GetDlgItem(dialog, id);
    return control ? SendMessageW(control, message, wParam, lParam) : 0;
}

BOOL CheckDlgButton(HWND dialog, int id, UINT check)
{
    const HWND control = GetDlgItem(dialog, id);
    if (!control)
        return FALSE;
    SendMessageA(control, BM_SETCHECK, check, 0);
    return TRUE;
}

UINT IsDlgButtonChecked(HWND dialog, int id)
{
    const HWND control = GetDlgItem(dialog, id);
    return control ? static_cast<UINT>(SendMessageA(control, BM_GETCHECK, 0, 0)) : 0;
}

BOOL CheckRadioButton(HWND dialog, int first, int last, int checked)
{
    Inside inside;
    const Window* window = Lookup(dialog);
    if (!window)
        return FALSE;
    const int low = std::min(first, last);
    const int high = std::max(first, last);
    std::vector<HWND> buttons;
    for (const Window* child = window->firstChild; child; child = child->next)
        if (child->id >= low && child->id <= high)
            buttons.push_back(child->handle);
    for (HWND button : buttons)
        Send(button, BM_SETCHECK, GetDlgCtrlID(button) == checked ? BST_CHECKED : BST_UNCHECKED);
    return TRUE;
}

BOOL SetDlgItemTextA(HWND dialog, int id, LPCSTR text)
{
    const HWND control = GetDlgItem(dialog, id);
    return control && SetWindowTextA(control, text);
}

UINT GetDlgItemTextA(HWND dialog, int id, LPSTR text, int size)
{
    const HWND control = GetDlgItem(dialog, id);
    if (text && size > 0)
        text[0] = 0;
    return control ? static_cast<UINT>(GetWindowTextA(control, text, size)) : 0;
}

BOOL SetDlgItemTextW(HWND dialog, int id, LPCWSTR text)
{
    const HWND control = GetDlgItem(dialog, id);
    return control && SetWindowTextW(control, text);
}

UINT GetDlgItemTextW(HWND dialog, int id, LPWSTR text, int size)
{
    const HWND control = GetDlgItem(dialog, id);
    if (text && size > 0)
        text[0] = 0;
    return control ? static_cast<UINT>(GetWindowTextW(control, text, size)) : 0;
}
