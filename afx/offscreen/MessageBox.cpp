// MessageBox: a real dialog with its own modal loop.

#include "afx/offscreen/DialogTemplate.h"

namespace offscreen
{
namespace
{
constexpr DWORD kTextId = 0xFFFF;
constexpr DWORD kIconId = 20;

struct Button
{
    int id;
    LPCWSTR text;
};

constexpr Button kOk = {IDOK, u"OK"};
constexpr Button kCancel = {IDCANCEL, u"Cancel"};
constexpr Button kAbort = {IDABORT, u"&Abort"};
constexpr Button kRetry = {IDRETRY, u"&Retry"};
constexpr Button kIgnore = {IDIGNORE, u"&Ignore"};
constexpr Button kYes = {IDYES, u"&Yes"};
constexpr Button kNo = {IDNO, u"&No"};

std::vector<Button> ButtonsOf(UINT type)
{
    switch (type & MB_TYPEMASK)
    {
    case MB_OK:
        return {kOk};
    case MB_OKCANCEL:
        return {kOk, kCancel};
    case MB_ABORTRETRYIGNORE:
        return {kAbort, kRetry, kIgnore};
    case MB_YESNOCANCEL:
        return {kYes, kNo, kCancel};
    case MB_YESNO:
        return {kYes, kNo};
    case MB_RETRYCANCEL:
        return {kRetry, kCancel};
    default:
        return {};
    }
}

TemplateControl Control(DWORD id, LPCWSTR className, std::u16string title, DWORD style, int x, int y, int width,
                        int height)
{
    TemplateControl control;
    control.id = id;
    control.className.text = className;
    control.title.text = std::move(title);
    control.style = style | WS_VISIBLE;
    control.x = static_cast<short>(x);
    control.y = static_cast<short>(y);
    control.width = static_cast<short>(width);
    control.height = static_cast<short>(height);
    return control;
}

Template BoxTemplate(LPCWSTR text, LPCWSTR caption, UINT type, const std::vector<Button>& buttons)
{
    constexpr int kWidth = 240;
    constexpr int kButton = 50;
    Template box;
    box.style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE | DS_MODALFRAME | DS_CENTER | DS_NOIDLEMSG | DS_3DLOOK |
                DS_SETFONT;
    box.width = kWidth;
    box.height = 80;
    box.title.text = caption ? caption : u"Error";
    box.font = TemplateFont{8, FW_NORMAL, false, DEFAULT_CHARSET, u"MS Shell Dlg"};
    // The text comes before the icon, the buttons last, as in the system's own box.
    box.controls.push_back(Control(kIconId, u"Static", u"", SS_ICON, 8, 8, 20, 20));
    if (!(type & MB_ICONMASK))
        box.controls.back().style &= ~WS_VISIBLE;
    box.controls.push_back(Control(kTextId, u"Static", text ? text : u"", SS_LEFT | SS_NOPREFIX, 36, 8, 196, 44));
    const UINT defaultButton = std::min<UINT>((type & MB_DEFMASK) >> 8, static_cast<UINT>(buttons.size()) - 1);
    int x = (kWidth - static_cast<int>(buttons.size()) * (kButton + 6)) / 2;
    for (std::size_t i = 0; i < buttons.size(); ++i, x += kButton + 6)
        box.controls.push_back(
            Control(static_cast<DWORD>(buttons[i].id), u"Button", buttons[i].text,
                    WS_TABSTOP | (i == 0 ? WS_GROUP : 0) | (i == defaultButton ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON), x,
                    60, kButton, 14));
    return box;
}

bool HasButton(HWND box, int id) { return GetDlgItem(box, id) != nullptr; }

INT_PTR CALLBACK BoxProc(HWND box, UINT message, WPARAM wParam, LPARAM lParam)
{
    Inside inside;
    switch (message)
    {
    case WM_INITDIALOG:
        if (const int icon = HIWORD(lParam) >> 4) // the icons are numbered as their flags are
            SendDlgItemMessageW(box, kIconId, STM_SETICON,
                                reinterpret_cast<WPARAM>(LoadIconA(nullptr, IDI_APPLICATION + icon)), 0);
        // The default button has the focus from the start.
        SetFocus(GetDlgItem(box, LOWORD(lParam)));
        return FALSE;
    case WM_COMMAND: {
        int id = LOWORD(wParam);
        // Esc answers a box with the OK button alone, and only boxes that have a Cancel button otherwise.
        if (id == IDCANCEL && !HasButton(box, IDCANCEL))
            id = HasButton(box, IDOK) ? IDOK : 0;
        if (id && HasButton(box, id))
            EndDialog(box, id);
        return TRUE;
    }
    default:
        return FALSE;
    }
}
} // namespace
} // namespace offscreen

using namespace offscreen;

int MessageBoxW(HWND owner, LPCWSTR text, LPCWSTR caption, UINT type)
{
    Inside inside;
    if (owner && !Lookup(owner))
        return 0;
    const std::vector<Button> buttons = ButtonsOf(type);
    if (buttons.empty() || (type & (MB_HELP | MB_TASKMODAL)))
        return NotModelled("MessageBox with this type", 0);
    MessageBeep(type & MB_ICONMASK);

    const UINT defaultButton = std::min<UINT>((type & MB_DEFMASK) >> 8, static_cast<UINT>(buttons.size()) - 1);
    const HWND box = CreateDialogFrom(BoxTemplate(text, caption, type, buttons), nullptr, owner, BoxProc,
                                      MAKELPARAM(buttons[defaultButton].id, type & MB_ICONMASK), true);
    return box ? static_cast<int>(RunModal(box, owner)) : 0;
}

int MessageBoxA(HWND owner, LPCSTR text, LPCSTR caption, UINT type)
{
    Inside inside;
    return MessageBoxW(owner, Widened(text), Widened(caption), type);
}
