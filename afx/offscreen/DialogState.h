#pragma once

#include "afx/offscreen/Internal.h"

namespace offscreen
{
struct DialogState : ControlState
{
    HFONT font = nullptr; // Made for the template; nothing when the template names none.
    BaseUnits units{};
    int defaultId = 0;
    HWND focus = nullptr;         // What had the focus when the dialog was last active.
    bool unicodeProcedure = true; // The dialog's own procedure, DWLP_DLGPROC
    bool ended = false;
    INT_PTR result = 0;
    bool enableOwner = false; // The owner was disabled for the dialog.

    ~DialogState() override
    {
        if (font)
            DeleteObject(font);
    }
};

inline DialogState* DialogStateOf(HWND dialog)
{
    Window* window = Find(dialog);
    return window ? static_cast<DialogState*>(window->dialog.get()) : nullptr;
}

inline LRESULT DialogCode(HWND control, const MSG* message = nullptr)
{
    return Send(control, WM_GETDLGCODE, message ? message->wParam : 0, reinterpret_cast<LPARAM>(message));
}

// Gives a control the focus as the keyboard does: an edit's whole text becomes selected.
void FocusControl(HWND control);
// The push button with the focus looks like the default button; without one, the button of the default id does.
void ShowDefaultButton(HWND dialog, HWND focus);
// The first control that the keyboard reaches.
HWND FirstControl(HWND dialog);
} // namespace offscreen
