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

ATOM Register(const WNDCLASSEXA& definition)
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
    windowClass.style = definition.style;
    windowClass.procedure = definition.lpfnWndProc;
    windowClass.classExtra = definition.cbClsExtra;
    windowClass.windowExtra = definition.cbWndExtra;
    windowClass.instance = definition.hInstance;
    windowClass.icon = definition.hIcon;
    windowClass.cursor = definition.hCursor;
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

void RegisterBuiltIn(const char* name, WNDPROC procedure, UINT style, int windowExtra, int atom)
{
    WindowClass windowClass;
    windowClass.name = name;
    windowClass.atom = atom ? static_cast<ATOM>(atom) : NextAtom();
    windowClass.style = style;
    windowClass.procedure = procedure;
    windowClass.windowExtra = windowExtra;
    windowClass.builtIn = true;
    Classes().push_back(std::move(windowClass));
}

void RegisterStandardClasses()
{
    RegisterBuiltIn("Button", ButtonProc, CS_DBLCLKS | CS_VREDRAW | CS_HREDRAW | CS_PARENTDC, 0);
    RegisterBuiltIn("Static", StaticProc, CS_DBLCLKS | CS_PARENTDC, 0);
    RegisterBuiltIn("Edit", EditProc, CS_DBLCLKS | CS_PARENTDC, 0);
    RegisterBuiltIn("ComboBox", ComboBoxProc, CS_DBLCLKS | CS_VREDRAW | CS_HREDRAW | CS_PARENTDC, 0);
    RegisterBuiltIn("ListBox", ListBoxProc, CS_DBLCLKS, 0);
    RegisterBuiltIn("ComboLBox", ListBoxProc, CS_DBLCLKS | CS_SAVEBITS, 0);
    RegisterBuiltIn("ScrollBar", ScrollBarProc, CS_DBLCLKS | CS_VREDRAW | CS_HREDRAW | CS_PARENTDC, 0);
    RegisterBuiltIn("#32770", DefDlgProcA, CS_DBLCLKS | CS_SAVEBITS, DLGWINDOWEXTRA, 0x8002);
    RegisterBuiltIn("#32769", DefWindowProcA, 0, 0, 0x8001);
    RegisterBuiltIn("Message", DefWindowProcA, 0, 0);
}
} // namespace offscreen

using namespace offscreen;

ATOM RegisterClassExA(const WNDCLASSEXA* wndClass)
{
    Inside inside;
    DesktopWindow();
    return Register(*wndClass);
}

ATOM RegisterClassA(const WNDCLASSA* wndClass)
{
    Inside inside;
    DesktopWindow();
    WNDCLASSEXA extended{};
    extended.cbSize = sizeof extended;
    extended.style = wndClass->style;
    extended.lpfnWndProc = wndClass->lpfnWndProc;
    extended.cbClsExtra = wndClass->cbClsExtra;
    extended.cbWndExtra = wndClass->cbWndExtra;
    extended.hInstance = wndClass->hInstance;
    extended.hIcon = wndClass->hIcon;
    extended.hCursor = wndClass->hCursor;
    extended.hbrBackground = wndClass->hbrBackground;
    extended.lpszMenuName = wndClass->lpszMenuName;
    extended.lpszClassName = wndClass->lpszClassName;
    return Register(extended);
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

BOOL GetClassInfoA(HINSTANCE, LPCSTR className, WNDCLASSA* wndClass)
{
    Inside inside;
    DesktopWindow();
    const WindowClass* windowClass = FindClass(className);
    if (!windowClass)
    {
        SetLastError(ERROR_CLASS_DOES_NOT_EXIST);
        return FALSE;
    }
    *wndClass = WNDCLASSA{};
    wndClass->style = windowClass->style;
    wndClass->lpfnWndProc = windowClass->procedure;
    wndClass->cbClsExtra = windowClass->classExtra;
    wndClass->cbWndExtra = windowClass->windowExtra;
    wndClass->hInstance = windowClass->instance;
    wndClass->hIcon = windowClass->icon;
    wndClass->hCursor = windowClass->cursor;
    wndClass->hbrBackground = windowClass->background;
    wndClass->lpszClassName = className;
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

ULONG_PTR GetClassLongPtrA(HWND window, int index)
{
    Inside inside;
    const Window* found = Lookup(window);
    if (!found)
        return 0;
    switch (index)
    {
    case GCL_STYLE:
        return found->windowClass->style;
    case GCLP_HBRBACKGROUND:
        return reinterpret_cast<ULONG_PTR>(found->windowClass->background);
    case GCLP_HCURSOR:
        return reinterpret_cast<ULONG_PTR>(found->windowClass->cursor);
    case GCLP_WNDPROC:
        return reinterpret_cast<ULONG_PTR>(found->windowClass->procedure);
    default:
        return NotModelled("GetClassLong with this index", 0);
    }
}

DWORD GetClassLongA(HWND window, int index) { return static_cast<DWORD>(GetClassLongPtrA(window, index)); }
