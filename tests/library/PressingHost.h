// A host's window in plain Windows calls, and a user who presses buttons in the dialogs that come up above it.
#pragma once

#include <windows.h>

#include <deque>

/// While it lives, the buttons given to Press are pressed one after the other in whichever dialog is on top; then every
/// dialog is cancelled. The window's own loop is not needed: the presses are posted and reach it through the loops of
/// the dialogs.
class CPressingHost
{
public:
    CPressingHost();
    ~CPressingHost();
    CPressingHost(const CPressingHost&) = delete;
    CPressingHost& operator=(const CPressingHost&) = delete;

    HWND Window() const { return m_window; }
    HWND Child() const { return m_child; }

    /// What is to be pressed in the dialogs of the next call.
    void Press(std::deque<int> buttons);
    /// Ends it; returns how many buttons were pressed.
    int StopPressing();

private:
    static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void OnStep();

    HWND m_window = nullptr;
    HWND m_child = nullptr;
    std::deque<int> m_buttons;
    bool m_pressing = false;
    int m_presses = 0;
};
