#include "afx/offscreen/Internal.h"

#include <strings.h>

#include <cstring>
#include <list>

namespace offscreen
{
namespace
{
// A list, because windows keep pointers to their classes.
std::list<WindowClass>& Classes()
{
    static auto* classes = new std::list<WindowClass>;
    return *classes;
}

ATOM NextAtom()
{
    static ATOM atom = 0xC000;
    return ++atom;
}

ATOM Register(const WNDCLASSA& definition)
{
    if (!definition.lpszClassName || !definition.lpfnWndProc)
    {
        SetLastError(ERROR_INVALID_PARAMETER);
        return 0;
    }
    if (const WindowClass* existing = FindClass(definition.lpszClassName); existing && !existing->builtIn)
    {
        SetLastError(ERROR_CLASS_ALREADY_EXISTS);
        return 0;
    }
    WindowClass windowClass;
    windowClass.name = definition.lpszClassName;
    windowClass.atom = NextAtom();
    windowClass.procedure = definition.lpfnWndProc;
    windowClass.windowExtra = definition.cbWndExtra;
    windowClass.background = definition.hbrBackground;
    Classes().push_front(std::move(windowClass)); // Before a standard class of the same name.
    return Classes().front().atom;
}
} // namespace

WindowClass* FindClass(LPCSTR name)
{
    for (WindowClass& windowClass : Classes())
    {
        if (IS_INTRESOURCE(name) ? windowClass.atom == LOWORD(name) : strcasecmp(windowClass.name.c_str(), name) == 0)
            return &windowClass;
    }
    return nullptr;
}

void RegisterBuiltIn(const char* name, WNDPROC procedure, int windowExtra, int atom)
{
    WindowClass windowClass;
    windowClass.name = name;
    windowClass.atom = atom ? static_cast<ATOM>(atom) : NextAtom();
    windowClass.procedure = procedure;
    windowClass.windowExtra = windowExtra;
    windowClass.builtIn = true;
    Classes().push_back(std::move(windowClass));
}

void RegisterStandardClasses()
{
    RegisterBuiltIn("Button", ButtonProc);
    RegisterBuiltIn("Static", StaticProc);
    RegisterBuiltIn("Edit", EditProc);
    RegisterBuiltIn("ComboBox", ComboBoxProc);
    RegisterBuiltIn("ListBox", ListBoxProc);
    RegisterBuiltIn("ComboLBox", ListBoxProc);
    RegisterBuiltIn("ScrollBar", ScrollBarProc);
    RegisterBuiltIn("#32770", DefDlgProcA, DLGWINDOWEXTRA, 0x8002);
    RegisterBuiltIn("#32769", DefWindowProcA, 0, 0x8001);
    RegisterBuiltIn("Message", DefWindowProcA);
}
} // namespace offscreen

using namespace offscreen;

ATOM RegisterClassA(const WNDCLASSA* wndClass)
{
    Inside inside;
    DesktopWindow();
    return Register(*wndClass);
}

BOOL UnregisterClassA(LPCSTR className, HINSTANCE)
{
    Inside inside;
    DesktopWindow();
    WindowClass* windowClass = FindClass(className);
    if (!windowClass || windowClass->builtIn)
    {
        SetLastError(ERROR_CLASS_DOES_NOT_EXIST);
        return FALSE;
    }
    if (windowClass->windows > 0)
    {
        SetLastError(ERROR_CLASS_HAS_WINDOWS);
        return FALSE;
    }
    Classes().remove_if([&](const WindowClass& other) { return &other == windowClass; });
    return TRUE;
}

int GetClassNameA(HWND window, LPSTR text, int size)
{
    Inside inside;
    const Window* found = Lookup(window);
    if (!found || size <= 0)
        return 0;
    return CopyText(found->windowClass->name, text, static_cast<std::size_t>(size));
}
