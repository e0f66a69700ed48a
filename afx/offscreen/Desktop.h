#pragma once

// What tests and batch programs may ask of and set in the offscreen desktop beyond the Win32 functions.

#include "afx/offscreen/Win32.h"

#include <cstddef>
#include <string>
#include <vector>

namespace offscreen
{
// Objects that are alive. The desktop's own (desktop window, stock objects, the running module) are not counted.
struct Counts
{
    int windows = 0;
    int fonts = 0;
    int brushes = 0;
    int pens = 0;
    int dcs = 0;
    int menus = 0;
    int modules = 0; // Loaded libraries, each counted once however often it was loaded.
    int timers = 0;
    int globals = 0; // Movable memory that the clipboard does not own.
    int keys = 0;    // Open registry keys.

    bool operator==(const Counts&) const = default;
};
Counts Live();

// Puts everything back to how a new process finds it: destroys all windows and objects, empties the message queue, the
// clipboard and the registry, and restores all settings below except the failure hook. Window classes stay: programs
// register them once.
void Reset();

// True while the desktop itself runs, false while a procedure that it called out to does. An allocator that injects
// failures leaves the desktop's own allocations alone by asking this.
bool IsInside();

// ------------------------------------------------------------------------------------------------------ being honest

// Called with a sentence when something is asked that the desktop does not model, or when it would hang (waiting for a
// message that nobody can send). The default prints the sentence and aborts. Returns the hook that was set before.
using FailureHook = void (*)(const char* what);
FailureHook SetFailureHook(FailureHook hook);
void Fail(const char* format, ...) __attribute__((format(printf, 1, 2)));

// A picture of the window and its descendants in text, for failure messages.
std::string Describe(HWND window);

// ---------------------------------------------------------------------------------------------------------- settings

// The ANSI code page: 1252 (default), 874, 932, 936, 949, 950.
void SetCodePage(UINT codePage);

// What GetDialogBaseUnits returns and dialogs without a font of their own use. Default 8 x 16.
void SetDialogBaseUnits(int x, int y);

// List and combo boxes refuse further items with LB_ERRSPACE, CB_ERRSPACE when they hold this many. Default: no limit.
void SetListCapacity(std::size_t items);
constexpr std::size_t kNoListLimit = static_cast<std::size_t>(-1);

void SetCurrentDrive(int drive);

// Text values of keys. The empty name is a key's default value; REG_EXPAND_SZ is a text with names of the environment.
void SetRegistryValue(HKEY root, const char* subKey, const char* name, const char* value, DWORD type = REG_SZ);
void ClearRegistry();

// A library that LoadLibraryA finds under the name (with or without a folder before it) although there is no file.
struct Export
{
    WORD ordinal;
    FARPROC function;
};
void RegisterLibrary(const char* name, const std::vector<Export>& exports);
void ForgetLibraries();

// How often LoadLibraryA has been asked for anything, successfully or not.
int LoadAttempts();

// -------------------------------------------------------------------------------------------------------- inspection

// The tab stops of a list box in dialog units, as LB_SETTABSTOPS received them.
std::vector<int> TabStops(HWND listBox);

// Text that has been drawn into a window (by TextOut, ExtTextOut, DrawText) since its last BeginPaint or WM_DRAWITEM.
struct DrawnText
{
    std::string text; // In the ANSI code page
    int x;
    int y;
    COLORREF color;
    std::u16string wideText;
};
std::vector<DrawnText> TextDrawnIn(HWND window);

// The color with which a pixel of a memory context has been filled last (by FillRect, ExtTextOut, Rectangle, Ellipse,
// Polygon; frames are not filled, and focus rectangles are black); CLR_INVALID where nothing has been.
COLORREF ColorAt(HDC dc, int x, int y);

// Both are only noted while this is on.
void RecordDrawing(bool on);
} // namespace offscreen
