// Creating dialogs from templates, modal loops and EndDialog.

#include "afx/offscreen/DialogState.h"
#include "afx/offscreen/DialogTemplate.h"

namespace offscreen
{
namespace
{
LPCWSTR ClassOfOrdinal(int ordinal)
{
    switch (ordinal)
    {
    case 0x80:
        return u"Button";
    case 0x81:
        return u"Edit";
    case 0x82:
        return u"Static";
    case 0x83:
        return u"ListBox";
    case 0x84:
        return u"ScrollBar";
    case 0x85:
        return u"ComboBox";
    default:
        return u"";
    }
}

int Scaled(int value, int unit, int divisor) { return MulDiv(value, unit, divisor); }

HFONT MakeFont(const TemplateFont& font)
{
    LOGFONTW logFont{};
    // Negative sizes are pixels already.
    logFont.lfHeight = font.pointSize < 0 ? font.pointSize : -MulDiv(font.pointSize, 96, 72);
    logFont.lfWeight = font.weight;
    logFont.lfItalic = font.italic;
    logFont.lfCharSet = font.charSet;
    CopyText(font.face, logFont.lfFaceName, LF_FACESIZE);
    return CreateFontIndirectW(&logFont);
}

struct Place
{
    int x;
    int y;
    int width;
    int height;
};

// Keeps a rectangle of the given size on the screen.
void KeepOnScreen(int& x, int& y, int width, int height)
{
    const RECT screen = DesktopWindow().rect;
    x = std::max<int>(std::min<int>(x, screen.right - width), screen.left);
    y = std::max<int>(std::min<int>(y, screen.bottom - height), screen.top);
}

Place DialogPlace(const Template& tmpl, const BaseUnits& units, DWORD style, DWORD exStyle, HWND owner)
{
    RECT frame{};
    FrameOf(style, exStyle, frame);
    Place place{};
    place.width = Scaled(tmpl.width, units.x, 4) + frame.left + frame.right;
    place.height = Scaled(tmpl.height, units.y, 8) + frame.top + frame.bottom;

    const RECT screen = DesktopWindow().rect;
    const bool isChild = (style & WS_CHILD) != 0;
    if (tmpl.x == static_cast<short>(0x8000))
        return {0, 0, place.width, place.height};
    if (style & DS_CENTER)
    {
        place.x = (screen.left + screen.right - place.width) / 2;
        place.y = (screen.top + screen.bottom - place.height) / 2;
        return place;
    }
    place.x = Scaled(tmpl.x, units.x, 4) - frame.left;
    place.y = Scaled(tmpl.y, units.y, 8) - frame.top;
    if (isChild)
        return place;
    if (owner && !(style & DS_ABSALIGN))
    {
        POINT point = {Scaled(tmpl.x, units.x, 4), Scaled(tmpl.y, units.y, 8)};
        ClientToScreen(owner, &point);
        place.x = point.x - frame.left;
        place.y = point.y - frame.top;
    }
    KeepOnScreen(place.x, place.y, place.width, place.height);
    return place;
}

bool CreateControl(HWND dialog, HINSTANCE instance, const TemplateControl& control)
{
    DialogState* state = DialogStateOf(dialog);
    const std::u16string& className =
        control.className.ordinal >= 0 ? ClassOfOrdinal(control.className.ordinal) : control.className.text;
    std::u16string title = control.title.text;
    if (control.title.ordinal >= 0)
        title = ToWide("#" + std::to_string(control.title.ordinal));

    DWORD style = control.style | WS_CHILD;
    DWORD exStyle = control.exStyle | WS_EX_NOPARENTNOTIFY;
    if (style & WS_BORDER) // Dialogs give their controls sunken edges in place of plain borders.
    {
        style &= ~WS_BORDER;
        exStyle |= WS_EX_CLIENTEDGE;
    }
    const BaseUnits units = state->units;
    const HWND window = CreateWindowExW(
        exStyle, className.c_str(), title.c_str(), style, Scaled(control.x, units.x, 4), Scaled(control.y, units.y, 8),
        Scaled(control.width, units.x, 4), Scaled(control.height, units.y, 8), dialog,
        reinterpret_cast<HMENU>(static_cast<UINT_PTR>(control.id)), instance, const_cast<void*>(control.data));
    state = DialogStateOf(dialog);
    if (!state)
        return false;
    if (!window)
        return (GetWindowLongW(dialog, GWL_STYLE) & DS_NOFAILCREATE) != 0;
    if (state->font)
        Send(window, WM_SETFONT, reinterpret_cast<WPARAM>(state->font), 0);
    if (DialogCode(window) & DLGC_DEFPUSHBUTTON)
    {
        state = DialogStateOf(dialog);
        if (!state)
            return false;
        // There can be only one default button: the last one.
        if (const HWND before = state->defaultId ? GetDlgItem(dialog, state->defaultId) : nullptr)
            Send(before, BM_SETSTYLE, BS_PUSHBUTTON, FALSE);
        state->defaultId = GetDlgCtrlID(window);
    }
    return DialogStateOf(dialog) != nullptr;
}

void GiveFirstFocus(HWND dialog)
{
    if (const HWND control = FirstControl(dialog))
        FocusControl(control);
    else
        SetFocus(dialog);
}

bool DisableOwner(HWND owner)
{
    if (!Find(owner) || !IsWindowEnabled(owner))
        return false;
    EnableWindow(owner, FALSE);
    return true;
}

// Initializes the dialog and shows it. False when it did not survive that.
bool Initialize(HWND dialog, DWORD style, LPARAM param)
{
    const HWND first = FirstControl(dialog);
    const bool wantsFocus = Send(dialog, WM_INITDIALOG, reinterpret_cast<WPARAM>(first), param) != 0;
    if (!Find(dialog))
        return false;
    if (wantsFocus && (!(style & DS_CONTROL) || (style & WS_VISIBLE)))
        GiveFirstFocus(dialog);
    if (!Find(dialog))
        return false;
    if ((style & WS_VISIBLE) && !(GetWindowLongW(dialog, GWL_STYLE) & WS_VISIBLE) && !DialogStateOf(dialog)->ended)
        ShowWindow(dialog, SW_SHOWNORMAL);
    return Find(dialog) != nullptr;
}

// The styles that the system makes of those of a template.
void CompleteStyles(DWORD& style, DWORD& exStyle)
{
    if (style & DS_MODALFRAME)
        exStyle |= WS_EX_DLGMODALFRAME;
    if ((style & DS_CONTROL) || !(style & WS_CHILD))
        exStyle |= WS_EX_CONTROLPARENT;
    if (style & WS_CHILD)
        style &= ~WS_POPUP;
}

std::unique_ptr<DialogState> MakeState(const Template& tmpl)
{
    auto state = std::make_unique<DialogState>();
    state->units = SystemBaseUnits();
    if (tmpl.font && tmpl.font->pointSize != 0x7FFF)
    {
        state->font = MakeFont(*tmpl.font);
        state->units = BaseUnitsOf(state->font);
    }
    return state;
}

// The dialog's window, still hidden and without controls.
HWND CreateFrame(const Template& tmpl, HINSTANCE instance, HWND owner, DLGPROC procedure,
                 std::unique_ptr<DialogState> state)
{
    DWORD style = tmpl.style;
    DWORD exStyle = tmpl.exStyle;
    CompleteStyles(style, exStyle);
    const Place place = DialogPlace(tmpl, state->units, style, exStyle, owner);
    LPCWSTR className = tmpl.className.text.empty() ? u"#32770" : tmpl.className.text.c_str();
    const HWND dialog = CreateWindowExW(exStyle, className, tmpl.title.text.c_str(), style & ~WS_VISIBLE, place.x,
                                        place.y, place.width, place.height, owner, nullptr, instance, nullptr);
    Window* window = Find(dialog);
    if (!window)
        return nullptr;
    const HFONT font = state->font;
    const auto setLong = state->unicodeProcedure ? SetWindowLongPtrW : SetWindowLongPtrA;
    window->dialog = std::move(state);
    window->extra.resize(std::max<std::size_t>(window->extra.size(), DLGWINDOWEXTRA));
    setLong(dialog, static_cast<int>(DWLP_DLGPROC), reinterpret_cast<LONG_PTR>(procedure));
    if (font)
        Send(dialog, WM_SETFONT, reinterpret_cast<WPARAM>(font), 0);
    return dialog;
}

bool CreateControls(HWND dialog, HINSTANCE instance, const Template& tmpl)
{
    for (const TemplateControl& control : tmpl.controls)
        if (!CreateControl(dialog, instance, control))
        {
            if (Find(dialog))
                DestroyWindow(dialog);
            return false;
        }
    return true;
}

// A dialog that an ANSI function creates gets its texts by the ANSI code page, although its controls could show more.
void KeepAnsiTexts(Template& tmpl)
{
    const auto keep = [](TemplateWindow& window) { window.title.text = ToWide(ToAnsi(window.title.text)); };
    keep(tmpl);
    std::for_each(tmpl.controls.begin(), tmpl.controls.end(), keep);
}

HWND Create(HINSTANCE instance, const void* data, HWND owner, DLGPROC procedure, LPARAM param, bool modal, bool unicode)
{
    DesktopWindow();
    if (!data)
        return nullptr;
    Template tmpl = ReadTemplate(data);
    if (!unicode)
        KeepAnsiTexts(tmpl);
    return CreateDialogFrom(tmpl, instance, owner, procedure, param, modal, unicode);
}
} // namespace

HWND CreateDialogFrom(const Template& tmpl, HINSTANCE instance, HWND owner, DLGPROC procedure, LPARAM param, bool modal,
                      bool unicode)
{
    DesktopWindow();
    if (!tmpl.menu.IsEmpty())
        return NotModelled("dialogs with a menu bar", HWND{});
    std::unique_ptr<DialogState> state = MakeState(tmpl);
    state->unicodeProcedure = unicode;
    const bool enableOwner = modal && DisableOwner(owner);
    state->enableOwner = enableOwner;
    const HWND dialog = CreateFrame(tmpl, instance, owner, procedure, std::move(state));
    if (dialog && CreateControls(dialog, instance, tmpl))
    {
        if (!procedure && !tmpl.className.IsEmpty() && tmpl.controls.empty())
            return dialog;
        if (Initialize(dialog, tmpl.style, param))
            return dialog;
    }
    if (enableOwner && Find(owner))
        EnableWindow(owner, TRUE);
    return nullptr;
}

INT_PTR RunModal(HWND dialog, HWND owner)
{
    const bool wantsIdle = !(GetWindowLongW(dialog, GWL_STYLE) & DS_NOIDLEMSG);
    MSG msg{};
    while (DialogState* state = DialogStateOf(dialog))
    {
        if (state->ended)
            break;
        if (!PeekMessageW(&msg, nullptr, 0, 0, PM_NOREMOVE))
        {
            // A dialog that is not visible yet appears when there is nothing else to do.
            if (!(GetWindowLongW(dialog, GWL_STYLE) & WS_VISIBLE))
                ShowWindow(dialog, SW_SHOWNORMAL);
            if (wantsIdle && Find(owner))
                Send(owner, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(dialog));
            state = DialogStateOf(dialog);
            if (!state || state->ended)
                break;
        }
        if (!GetMessageW(&msg, nullptr, 0, 0))
        {
            // The loops below this one shall end too.
            PostQuitMessage(static_cast<int>(msg.wParam));
            break;
        }
        if (!Find(dialog) || IsDialogMessageW(dialog, &msg))
            continue;
        TranslateMessage(&msg);
        DispatchMessageW(&msg);
    }

    const DialogState* state = DialogStateOf(dialog);
    const INT_PTR result = state ? state->result : -1;
    if (state && !state->ended && state->enableOwner && Find(owner))
        EnableWindow(owner, TRUE);
    if (Find(dialog))
        DestroyWindow(dialog);
    return result;
}
} // namespace offscreen

using namespace offscreen;

HWND CreateDialogIndirectParamA(HINSTANCE instance, LPCDLGTEMPLATE dialogTemplate, HWND owner, DLGPROC procedure,
                                LPARAM param)
{
    Inside inside;
    return Create(instance, dialogTemplate, owner, procedure, param, false, false);
}

HWND CreateDialogIndirectParamW(HINSTANCE instance, LPCDLGTEMPLATE dialogTemplate, HWND owner, DLGPROC procedure,
                                LPARAM param)
{
    Inside inside;
    return Create(instance, dialogTemplate, owner, procedure, param, false, true);
}

namespace
{
INT_PTR RunDialogBox(HINSTANCE instance, LPCDLGTEMPLATE dialogTemplate, HWND owner, DLGPROC procedure, LPARAM param,
                     bool unicode)
{
    if (owner && !Find(owner))
    {
        SetLastError(ERROR_INVALID_WINDOW_HANDLE);
        return 0;
    }
    const HWND dialog = Create(instance, dialogTemplate, owner, procedure, param, true, unicode);
    return dialog ? RunModal(dialog, owner) : -1;
}
} // namespace

INT_PTR DialogBoxIndirectParamA(HINSTANCE instance, LPCDLGTEMPLATE dialogTemplate, HWND owner, DLGPROC procedure,
                                LPARAM param)
{
    Inside inside;
    return RunDialogBox(instance, dialogTemplate, owner, procedure, param, false);
}

INT_PTR DialogBoxIndirectParamW(HINSTANCE instance, LPCDLGTEMPLATE dialogTemplate, HWND owner, DLGPROC procedure,
                                LPARAM param)
{
    Inside inside;
    return RunDialogBox(instance, dialogTemplate, owner, procedure, param, true);
}

BOOL EndDialog(HWND dialog, INT_PTR result)
{
    Inside inside;
    Window* window = Lookup(dialog);
    if (!window)
        return FALSE;
    DialogState* state = DialogStateOf(dialog);
    if (!state)
        return FALSE;
    const bool wasEnabled = !(window->style & WS_DISABLED);
    state->result = result;
    state->ended = true;

    const HWND owner = window->owner;
    // Whoever disabled it: a modal loop of the program's own does not enable it before the dialog is hidden.
    state->enableOwner = false;
    if (owner && Find(owner))
        EnableWindow(owner, TRUE);
    if (!Find(dialog))
        return TRUE;
    // The focus must not stay with a control of a window that is about to disappear.
    if (const HWND focus = Input().focus; focus && IsChild(dialog, focus) && wasEnabled)
        SetFocus(dialog);
    if (!Find(dialog))
        return TRUE;
    SetWindowPos(dialog, nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_HIDEWINDOW);
    if (dialog == Input().active)
        ActivateAnother(dialog);
    // Wakes the modal loop.
    if (Find(dialog))
        PostMessageW(dialog, WM_NULL, 0, 0);
    return TRUE;
}

LONG GetDialogBaseUnits()
{
    Inside inside;
    const BaseUnits units = SystemBaseUnits();
    return MAKELONG(units.x, units.y);
}

BOOL MapDialogRect(HWND dialog, LPRECT rect)
{
    Inside inside;
    const DialogState* state = DialogStateOf(dialog);
    if (!state)
        return FALSE;
    const BaseUnits units = state->units;
    *rect = {MulDiv(rect->left, units.x, 4), MulDiv(rect->top, units.y, 8), MulDiv(rect->right, units.x, 4),
             MulDiv(rect->bottom, units.y, 8)};
    return TRUE;
}
