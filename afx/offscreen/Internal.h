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

extern thread_local bool g_inside; // for one thread, whatever others ask

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

// A window procedure, and whether the texts of its messages are Unicode or bytes of the ANSI code page.
struct Procedure
{
    WNDPROC function = nullptr;
    bool unicode = false;

    bool operator==(const Procedure&) const = default;
};
// The procedure that a program means by an address or handle which it gave to an ANSI or a Unicode function.
Procedure ProcedureOf(WNDPROC given, bool unicode);
// What an ANSI or a Unicode function gives the program for a procedure.
WNDPROC AddressFor(const Procedure& procedure, bool unicode);

struct WindowClass
{
    std::u16string name;
    ATOM atom = 0;
    Procedure procedure;
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
    Procedure procedure;
    DWORD style = 0;
    DWORD exStyle = 0;
    LONG_PTR id = 0; // Control id of a child, menu of another.
    LONG_PTR userData = 0;
    std::vector<BYTE> extra;
    std::u16string text;
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

// Calls a procedure; texts are translated when the sender is of the other kind.
LRESULT CallProc(const Procedure& procedure, bool unicodeSender, HWND window, UINT message, WPARAM wParam,
                 LPARAM lParam);
// Sends a message whose texts are Unicode.
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

WindowClass* FindClass(LPCWSTR name);
void RegisterBuiltIn(LPCWSTR name, WNDPROC procedure, int windowExtra = 0, int atom = 0);
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
    int doubleByteWidth; // Of full-width characters
    int thaiWidth;
    const std::uint8_t* widths; // Of the characters of code page 1252.
};
const FontMetrics& MetricsOf(HFONT font);
const FontMetrics& MetricsFor(const LOGFONTW& font);
int TextWidth(const FontMetrics& metrics, std::u16string_view text);
const LOGFONTW& LogFontOf(HFONT font);

// ----------------------------------------------------------------------------------------------------- code page, text

// Of the ANSI code page
bool IsLeadByte(unsigned char c);
bool HasDoubleBytes();
std::u16string ToWide(std::string_view text);
std::string ToAnsi(std::u16string_view wide); // A question mark for what the code page does not have
// Copies as many whole characters as fit, always terminated; returns the number of bytes without the terminator.
int CopyAnsi(std::u16string_view text, LPSTR target, std::size_t size);

// What an ANSI function got, for its Unicode sister: no text (null) and a number in place of a text stay what they are.
class Widened
{
public:
    explicit Widened(LPCSTR text)
        : m_text(IS_INTRESOURCE(text) ? std::u16string() : ToWide(text)),
          m_number(IS_INTRESOURCE(text) ? reinterpret_cast<LPCWSTR>(text) : nullptr), m_isNumber(IS_INTRESOURCE(text))
    {
    }
    operator LPCWSTR() const { return m_isNumber ? m_number : m_text.c_str(); }

private:
    std::u16string m_text;
    LPCWSTR m_number;
    bool m_isNumber;
};

char16_t UpperCase(char16_t c);
char16_t LowerCase(char16_t c);
std::u16string UpperCase(std::u16string_view text);
int CompareTexts(std::u16string_view a, std::u16string_view b);        // Ignoring case.
bool StartsWith(std::u16string_view text, std::u16string_view prefix); // Ignoring case.
// The letter behind the & of a text, in upper case, 0 when there is none.
char16_t MnemonicOf(std::u16string_view text);
std::u16string WithoutMnemonic(std::u16string_view text);
// Copies as much as fits, always terminated; returns the number of characters without the terminator.
int CopyText(std::string_view text, LPSTR target, std::size_t size);
int CopyText(std::u16string_view text, LPWSTR target, std::size_t size);
// Whether East Asian fonts give the character the width of an ideograph.
bool IsFullWidth(char16_t c);
// Whether a line may end between two characters neither of which is a blank.
bool MayBreakBetween(char16_t before, char16_t behind);
void ResetCodePage();

// ----------------------------------------------------------------------------------------------- resources and the
// rest

struct Bytes
{
    const BYTE* data;
    std::size_t size;
};
// The data of a resource, nothing when the module has none.
Bytes FindResourceBytes(HMODULE module, LPCWSTR name, LPCWSTR type);
void ResetModules();
int CountModules();

void ResetMenus();
int CountMenus();

void ResetClipboard();
int CountGlobals();
void ResetRegistry();
int CountKeys();

} // namespace offscreen
