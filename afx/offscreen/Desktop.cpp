// What offscreen::... offers beside the Win32 functions, and the few system functions that have no other home.

#include "afx/offscreen/Internal.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>

namespace offscreen
{
int CountWindows();
void DestroyEverything();

namespace
{
void PrintAndAbort(const char* what)
{
    std::fprintf(stderr, "offscreen desktop: %s\n", what);
    std::abort();
}

FailureHook g_failureHook = PrintAndAbort;
DWORD g_lastError = NO_ERROR;
int g_drive = 3;

void DescribeInto(const Window& window, int depth, std::string& text)
{
    char line[256];
    std::snprintf(line, sizeof line, "%*s%s %d (%d,%d %dx%d)%s%s ", depth * 2, "",
                  ToAnsi(window.windowClass->name).c_str(), static_cast<int>(window.id), window.rect.left,
                  window.rect.top, window.rect.right - window.rect.left, window.rect.bottom - window.rect.top,
                  window.style & WS_VISIBLE ? "" : " hidden", window.style & WS_DISABLED ? " disabled" : "");
    text += line;
    text += "\"" + ToAnsi(window.text) + "\"\n";
    for (const Window* child = window.firstChild; child; child = child->next)
        DescribeInto(*child, depth + 1, text);
}
} // namespace

FailureHook SetFailureHook(FailureHook hook) { return std::exchange(g_failureHook, hook ? hook : PrintAndAbort); }

void Fail(const char* format, ...)
{
    char text[512];
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(text, sizeof text, format, arguments);
    va_end(arguments);
    Outside outside;
    g_failureHook(text);
}

Counts Live()
{
    Inside inside;
    Counts counts;
    counts.windows = CountWindows();
    CountGdi(counts);
    counts.menus = CountMenus();
    counts.modules = CountModules();
    counts.timers = CountTimers();
    counts.globals = CountGlobals();
    counts.keys = CountKeys();
    return counts;
}

void Reset()
{
    Inside inside;
    DestroyEverything();
    ResetMessages();
    ResetMenus();
    ResetGdi();
    ResetModules();
    ResetClipboard();
    ResetRegistry();
    ResetCodePage();
    SetDialogBaseUnits(8, 16);
    SetListCapacity(kNoListLimit);
    Input() = InputState{};
    g_lastError = NO_ERROR;
    g_drive = 3;
}

std::string Describe(HWND window)
{
    Inside inside;
    const Window* found = Find(window);
    std::string text;
    if (found)
        DescribeInto(*found, 0, text);
    return text;
}

void SetCurrentDrive(int drive) { g_drive = drive; }
} // namespace offscreen

using namespace offscreen;

DWORD GetLastError() { return g_lastError; }
void SetLastError(DWORD error) { g_lastError = error; }

BOOL MessageBeep(UINT) { return TRUE; }

int _getdrive() { return g_drive; }

int _chdrive(int drive)
{
    if (drive < 1 || drive > 26)
        return -1;
    g_drive = drive;
    return 0;
}

int MulDiv(int number, int numerator, int denominator)
{
    if (denominator == 0)
        return -1;
    // Rounded to the nearest, halves away from zero.
    const long long product = static_cast<long long>(number) * numerator;
    const long long half = denominator < 0 ? -static_cast<long long>(denominator) / 2 : denominator / 2;
    const bool negative = (product < 0) != (denominator < 0);
    const long long divisor = denominator < 0 ? -static_cast<long long>(denominator) : denominator;
    const long long magnitude = ((product < 0 ? -product : product) + half) / divisor;
    const long long result = negative ? -magnitude : magnitude;
    return result > 0x7FFFFFFF || result < -0x7FFFFFFFLL - 1 ? -1 : static_cast<int>(result);
}
