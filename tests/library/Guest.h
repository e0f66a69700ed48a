// What Guest.dll does with the library for the program that has loaded it.
#pragma once

#include <windows.h>

constexpr short kDataRegister = 9;

extern "C"
{
    /// Opens the selection dialog above a window; returns its result.
    typedef int OpenWizardFunction(HWND parent);
    /// Creates the dialog font for a window and gives it to the window and its children. 1 when there was a font.
    typedef int UseFontFunction(HWND window);
    /// Asks for the objects behind handles, as a host does in passing, and never again thinks of them. 1 when it got
    /// them.
    typedef int AskForObjectsFunction(HWND window, HDC context, HGDIOBJ object);
}
