#pragma once

// What the files of the offscreen desktop share. Nothing outside this folder includes it.
//
// Rules of the house:
// - Every Win32 function opens with `Inside inside;`, every call of a foreign procedure goes through CallProc or opens
//   with `Outside outside;`. IsInside() rests on that.
// - A procedure that is called out to may destroy any window. A Window* outlives that only while it is pinned: CallProc
//   pins the window whose procedure it calls, so a control may go on using its own Window and state, then dead but
//   still in memory; whoever holds another window's pointer over a call pins it or looks its handle up again.

#include "afx/offscreen/Desktop.h"
#include "afx/offscreen/Handles.h"

#include <algorithm>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace offscreen
{
// ---------------------------------------------------------------------------------------------------- inside, outside

extern bool g_inside;

class InsideFlag
{
public:
    explicit InsideFlag(bool inside) : m_before(g_inside) { g_inside = inside; }
    ~InsideFlag() { g_inside = m_before; }
    InsideFlag(const InsideFlag&) = delete;
    InsideFlag& operator=(const InsideFlag&) = delete;

private:
    bool m_before;
};

struct [[nodiscard]] Inside : InsideFlag
{
    Inside() : InsideFlag(true) {}
};

struct [[nodiscard]] Outside : InsideFlag
{
    Outside() : InsideFlag(false) {}
};

// Fails and returns `result`, for calls that the desktop does not model.
template <class Result>
Result NotModelled(const char* what, Result result)
{
    Fail("not modelled: %s", what);
    return result;
}

// ------------------------------------------------------------------------------------------------------------ windows

struct WindowClass
{
    std::string name;
    ATOM atom = 0;
    WNDPROC procedure = nullptr;
    int windowExtra = 0;
    HBRUSH background = nullptr;
    int windows = 0;
    bool builtIn = false;
};

// What a standard control or a dialog keeps beside its window.
struct ControlState
{
    virtual ~ControlState() = default;
};

struct ScrollState
{
    int low = 0;
    int high = 100;
    UINT page = 0;
    int position = 0;
};

struct Window
{
    HWND handle = nullptr;
    WindowClass* windowClass = nullptr;
    WNDPROC procedure = nullptr;
    DWORD style = 0;
    DWORD exStyle = 0;
    LONG_PTR id = 0; // Control id of a child, menu of another.
    LONG_PTR userData = 0;
    std::vector<BYTE> extra;
    std::string text;
    RECT rect{}; // Relative to the parent's client area.

    Window* parent = nullptr; // The desktop window for a top-level window, nothing for a root.
    Window* firstChild = nullptr;
    Window* lastChild = nullptr;
    Window* next = nullptr; // Siblings, topmost first.
    Window* previous = nullptr;
    HWND owner = nullptr;
    HWND lastActivePopup = nullptr;

    std::unique_ptr<ControlState> control;
    std::unique_ptr<ControlState> dialog;
    ScrollState scroll[2]; // SB_HORZ, SB_VERT

    HFONT font = nullptr;
    bool needsPaint = false;
    bool dying = false; // DestroyWindow is at work on it.
    bool dead = false;  // Gone; only pins keep it in memory.
    int pins = 0;

    bool IsChild() const { return (style & (WS_CHILD | WS_POPUP)) == WS_CHILD; }
};

Window* Find(HWND window);   // Nothing for a dead or foreign handle.
Window* Lookup(HWND window); // The same, and sets the last error.
Window& DesktopWindow();
Window& MessageRoot();
void FreeIfDead(Window* window);
void Unlink(Window& window);
// Puts the window among its parent's children, behind `after`, or on top when that is null.
void Link(Window& window, Window* after);
std::vector<HWND> ChildrenOf(const Window& window);
std::vector<HWND> DescendantsOf(const Window& window); // Each before its own children.

class Pin
{
public:
    explicit Pin(Window* window) : m_window(window)
    {
        if (m_window)
            ++m_window->pins;
    }
    ~Pin()
    {
        if (m_window && --m_window->pins == 0)
            FreeIfDead(m_window);
    }
    Pin(const Pin&) = delete;
    Pin& operator=(const Pin&) = delete;

private:
    Window* m_window;
};

LRESULT CallProc(WNDPROC procedure, HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT Send(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
// WM_COMMAND from a control to its parent.
LRESULT NotifyParent(const Window& control, int code);
inline HWND ParentOf(const Window& window) { return window.parent ? window.parent->handle : nullptr; }
Window* RootOf(Window* window);
bool IsEffectivelyVisible(const Window& window);
bool IsEffectivelyEnabled(const Window& window);

RECT ClientRectOf(const Window& window);  // Origin 0, 0.
POINT ClientOrigin(const Window& window); // On the screen.
RECT ScreenRectOf(const Window& window);
void FrameOf(DWORD style, DWORD exStyle, RECT& margins); // Thickness of the frame on each side.

WindowClass* FindClass(LPCSTR name);
void RegisterBuiltIn(const char* name, WNDPROC procedure, int windowExtra = 0, int atom = 0);
void RegisterStandardClasses();

// Window procedures of the standard classes.
LRESULT CALLBACK ButtonProc(HWND, UINT, WPARAM, LPARAM);
LRESULT CALLBACK EditProc(HWND, UINT, WPARAM, LPARAM);
LRESULT CALLBACK StaticProc(HWND, UINT, WPARAM, LPARAM);
LRESULT CALLBACK ListBoxProc(HWND, UINT, WPARAM, LPARAM);
LRESULT CALLBACK ComboBoxProc(HWND, UINT, WPARAM, LPARAM);
LRESULT CALLBACK ScrollBarProc(HWND, UINT, WPARAM, LPARAM);

// How a standard class answers: `create` makes the state of a control, `handle` gets every later message.
struct ControlClass
{
    LRESULT (*create)(Window& control);
    LRESULT (*handle)(Window& control, UINT message, WPARAM wParam, LPARAM lParam);
};
LRESULT CallControl(const ControlClass& controlClass, HWND handle, UINT message, WPARAM wParam, LPARAM lParam);

using PaintProc = void (*)(Window& control, HDC dc);
// What controls do alike, else DefWindowProc.
LRESULT DefControlProc(Window& control, PaintProc paint, UINT message, WPARAM wParam, LPARAM lParam);

// The state of a control, created when the window was.
template <class State>
State* StateOf(Window& window)
{
    return static_cast<State*>(window.control.get());
}

// ----------------------------------------------------------------------------------------- focus, activation, painting

struct InputState
{
    HWND focus = nullptr;
    HWND active = nullptr;
    HWND capture = nullptr;
    BYTE keys[256] = {};
};
InputState& Input();

bool Activate(HWND window, bool byMouse, bool moveFocus);
void ActivateAnother(HWND instead);
bool CanBeActivated(const Window& window);
void ChangeFocus(HWND window);
bool KeyIsDown(int key);
void Invalidate(Window& window);
void InvalidateTree(Window& window); // With its descendants.
Window* NextWindowToPaint();
void ForgetPaint(Window& window);
void RaiseToTop(Window& window);

// The brush that the parent of a control answers to WM_CTLCOLOR*.
HBRUSH AskParentForColors(const Window& control, UINT message, HDC dc);
// Sends WM_DRAWITEM to the parent of an owner-drawn control.
void DrawItem(const Window& control, DRAWITEMSTRUCT& item);

// ----------------------------------------------------------------------------------------------------------- messages

void ForgetMessages(HWND window);
// Reports that GetMessage would wait forever and makes it return WM_QUIT from now on.
void ReportHang(const char* where);
void ResetMessages();
int CountTimers();

// ------------------------------------------------------------------------------------------------------------ dialogs

struct BaseUnits
{
    int x;
    int y;
};
BaseUnits SystemBaseUnits();
BaseUnits BaseUnitsOf(HFONT font);
// Runs a modal loop for a dialog until EndDialog was called for it.
INT_PTR RunModal(HWND dialog, HWND owner);

// --------------------------------------------------------------------------------------------------------- GDI and
// text

void CountGdi(Counts& counts);
void ResetGdi();
void ForgetDcsOf(HWND window);
HDC OpenDc(HWND window, bool forPainting);
void CloseDc(HDC dc);

// Widths and heights of one font, in pixels.
struct FontMetrics
{
    int height;
    int ascent;
    int internalLeading;
    int externalLeading;
    int averageWidth;
    int maximumWidth;
    int doubleByteWidth;
    const std::uint8_t* widths; // Of the single-byte characters.
};
const FontMetrics& MetricsOf(HFONT font);
const FontMetrics& MetricsFor(const LOGFONTA& font);
int TextWidth(const FontMetrics& metrics, std::string_view text);
const LOGFONTA& LogFontOf(HFONT font);

// ----------------------------------------------------------------------------------------------------- code page, text

bool IsLeadByte(unsigned char c);
// Bytes of the character that starts at `position`.
int CharacterLength(std::string_view text, std::size_t position);
// Start of the last character that starts before `position`.
std::size_t PreviousCharacter(std::string_view text, std::size_t position);
std::string ToAnsi(std::u16string_view wide);
std::string UpperCase(std::string_view text);
std::string LowerCase(std::string_view text);
int CompareTexts(std::string_view a, std::string_view b);        // Ignoring case.
bool StartsWith(std::string_view text, std::string_view prefix); // Ignoring case.
// The letter behind the & of a text, in upper case, 0 when there is none.
char MnemonicOf(std::string_view text);
std::string WithoutMnemonic(std::string_view text);
// Copies as much as fits, always terminated; returns the number of characters without the terminator.
int CopyText(std::string_view text, LPSTR target, std::size_t size);
void ResetCodePage();

// ----------------------------------------------------------------------------------------------- resources and the
// rest

struct Bytes
{
    const BYTE* data;
    std::size_t size;
};
// The data of a resource, nothing when the module has none.
Bytes FindResourceBytes(HMODULE module, LPCSTR name, LPCSTR type);
void ResetModules();
int CountModules();

void ResetMenus();
int CountMenus();

void ResetClipboard();
int CountGlobals();
void ResetRegistry();
int CountKeys();

} // namespace offscreen
