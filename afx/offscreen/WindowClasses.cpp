#include "afx/offscreen/Internal.h"

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

ATOM Register(const WNDCLASSW& definition, bool unicode)
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
    windowClass.procedure = ProcedureOf(definition.lpfnWndProc, unicode);
    windowClass.windowExtra = definition.cbWndExtra;
    windowClass.background = definition.hbrBackground;
    Classes().push_front(std::move(windowClass)); // Before a standard class of the same name.
    return Classes().front().atom;
}
} // namespace

WindowClass* FindClass(LPCWSTR name)
{
    for (WindowClass& windowClass : Classes())
    {
        if (IS_INTRESOURCE(name) ? windowClass.atom == LOWORD(name) : CompareTexts(windowClass.name, name) == 0)
            return &windowClass;
    }
    return nullptr;
}

void RegisterBuiltIn(LPCWSTR name, WNDPROC procedure, int windowExtra, int atom)
{
    WindowClass windowClass;
    windowClass.name = name;
    windowClass.atom = atom ? static_cast<ATOM>(atom) : NextAtom();
    windowClass.procedure = {procedure, true};
    windowClass.windowExtra = windowExtra;
    windowClass.builtIn = true;
    Classes().push_back(std::move(windowClass));
}

void RegisterStandardClasses()
{
    RegisterBuiltIn(u"Button", ButtonProc);
    RegisterBuiltIn(u"Static", StaticProc);
    RegisterBuiltIn(u"Edit", EditProc);
    RegisterBuiltIn(u"ComboBox", ComboBoxProc);
    RegisterBuiltIn(u"ListBox", ListBoxProc);
    RegisterBuiltIn(u"ComboLBox", ListBoxProc);
    RegisterBuiltIn(u"ScrollBar", ScrollBarProc);
    RegisterBuiltIn(u"#32770", DefDlgProcW, DLGWINDOWEXTRA, 0x8002);
    RegisterBuiltIn(u"#32769", DefWindowProcW, 0, 0x8001);
    RegisterBuiltIn(u"Message", DefWindowProcW);
}
} // namespace offscreen

using namespace offscreen;

ATOM RegisterClassW(const WNDCLASSW* wndClass)
{
    Inside inside;
    DesktopWindow();
    return Register(*wndClass, true);
}

ATOM RegisterClassA(const WNDCLASSA* wndClass)
{
    Inside inside;
    DesktopWindow();
    const Widened name(wndClass->lpszClassName);
    WNDCLASSW wide{};
    wide.style = wndClass->style;
    wide.lpfnWndProc = wndClass->lpfnWndProc;
    wide.cbClsExtra = wndClass->cbClsExtra;
    wide.cbWndExtra = wndClass->cbWndExtra;
    wide.hInstance = wndClass->hInstance;
    wide.hIcon = wndClass->hIcon;
    wide.hCursor = wndClass->hCursor;
    wide.hbrBackground = wndClass->hbrBackground;
    wide.lpszClassName = name;
    return Register(wide, false);
}

BOOL UnregisterClassW(LPCWSTR className, HINSTANCE)
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

BOOL UnregisterClassA(LPCSTR className, HINSTANCE instance)
{
    Inside inside;
    return UnregisterClassW(Widened(className), instance);
}

int GetClassNameW(HWND window, LPWSTR text, int size)
{
    Inside inside;
    const Window* found = Lookup(window);
    if (!found || size <= 0)
        return 0;
    return CopyText(found->windowClass->name, text, static_cast<std::size_t>(size));
}

int GetClassNameA(HWND window, LPSTR text, int size)
{
    Inside inside;
    const Window* found = Lookup(window);
    if (!found || size <= 0)
        return 0;
    return CopyAnsi(found->windowClass->name, text, static_cast<std::size_t>(size));
}
