// How often a window was painted, counted at the window itself.
#pragma once

#include "afx/afx.h"

class CPaintCounter
{
public:
    explicit CPaintCounter(HWND window) : m_window(window)
    {
        s_previous = reinterpret_cast<WNDPROC>(
            ::SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(CountingProc)));
        s_count = 0;
    }
    ~CPaintCounter() { ::SetWindowLongPtrA(m_window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(s_previous)); }
    CPaintCounter(const CPaintCounter&) = delete;
    CPaintCounter& operator=(const CPaintCounter&) = delete;

    int Count() const { return s_count; }

private:
    static LRESULT CALLBACK CountingProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        s_count += message == WM_PAINT;
        return ::CallWindowProcA(s_previous, window, message, wParam, lParam);
    }

    static inline WNDPROC s_previous = nullptr;
    static inline int s_count = 0;
    HWND m_window;
};
