// Message maps: a table in each class says which member handles which message or notification.
//
//     BEGIN_MESSAGE_MAP(CSpd1Dlg, CWzdDlgBase)
//         ON_BN_CLICKED(IDC_CLEAR, &CSpd1Dlg::OnClear)
//     END_MESSAGE_MAP()
//
// The maps of the derived classes are searched first. A handler that wants the message to be handled as without it
// calls the same member of the base class, or Default().
#pragma once

#include "afx/Object.h"

#include <type_traits>

class CCmdTarget;

/// Calls the member of `target` that handles a message. Returns the result of the message.
typedef LRESULT (*AFX_HANDLER)(CCmdTarget* target, const MSG& message);

struct AFX_MSGMAP_ENTRY
{
    UINT nMessage;        ///< 0 ends a map
    UINT nCode;           ///< of WM_COMMAND: the notification code
    UINT nID;             ///< of WM_COMMAND: the first and the
    UINT nLastID;         ///< last id of the controls
    AFX_HANDLER pHandler; ///< null ends a map
};

struct AFX_MSGMAP
{
    const AFX_MSGMAP*(PASCAL* pfnGetBaseMap)(); ///< null for the root class
    const AFX_MSGMAP_ENTRY* lpEntries;

    /// The first entry for a message in this map and those of the base classes; null when there is none. `code` and
    /// `id` count for WM_COMMAND only.
    const AFX_MSGMAP_ENTRY* Find(UINT message, UINT code = 0, UINT id = 0) const;
};

/// Inside the class.
#define DECLARE_MESSAGE_MAP()                                                                                          \
protected:                                                                                                             \
    static const AFX_MSGMAP* PASCAL GetThisMessageMap();                                                               \
    const AFX_MSGMAP* GetMessageMap() const override;

// clang-format off
/// In its source file, around the entries.
#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                                         \
    const AFX_MSGMAP* theClass::GetMessageMap() const { return GetThisMessageMap(); }                                  \
    const AFX_MSGMAP* PASCAL theClass::GetThisMessageMap()                                                             \
    {                                                                                                                  \
        using ThisClass = theClass;                                                                                    \
        using TheBaseClass = baseClass;                                                                                \
        static_assert(std::is_base_of<TheBaseClass, ThisClass>::value, "the map names the wrong base class");          \
        static const AFX_MSGMAP_ENTRY entries[] = {

#define END_MESSAGE_MAP()                                                                                              \
            {0, 0, 0, 0, nullptr}};                                                                                    \
        static const AFX_MSGMAP map = {&TheBaseClass::GetThisMessageMap, entries};                                     \
        return &map;                                                                                                   \
    }
// clang-format on

// An entry whose handler is a statement about `self`, the object, and `m`, the message.
#define AFX_MSG_ENTRY(message, code, first, last, statement)                                                           \
    {message, static_cast<UINT>(code), static_cast<UINT>(first), static_cast<UINT>(last),                              \
     [](CCmdTarget* target, const MSG& m) -> LRESULT {                                                                 \
         ThisClass* const self = static_cast<ThisClass*>(target);                                                      \
         static_cast<void>(m);                                                                                         \
         statement;                                                                                                    \
     }},

// ---- Commands and notifications of controls -------------------------------------------------------------------------

/// Any notification of a control; `member` is void OnX().
#define ON_CONTROL(code, id, member) AFX_MSG_ENTRY(WM_COMMAND, code, id, id, (self->*(member))(); return 0)
/// One handler for a range of ids; `member` is void OnX(UINT id).
#define ON_CONTROL_RANGE(code, id, lastId, member)                                                                     \
    AFX_MSG_ENTRY(WM_COMMAND, code, id, lastId, (self->*(member))(LOWORD(m.wParam)); return 0)

/// A menu item, a key, or the click on a button.
#define ON_COMMAND(id, member) ON_CONTROL(0, id, member)

#define ON_BN_CLICKED(id, member) ON_CONTROL(BN_CLICKED, id, member)
#define ON_CBN_SELCHANGE(id, member) ON_CONTROL(CBN_SELCHANGE, id, member)
#define ON_LBN_SELCHANGE(id, member) ON_CONTROL(LBN_SELCHANGE, id, member)
#define ON_LBN_DBLCLK(id, member) ON_CONTROL(LBN_DBLCLK, id, member)
#define ON_EN_CHANGE(id, member) ON_CONTROL(EN_CHANGE, id, member)
#define ON_EN_KILLFOCUS(id, member) ON_CONTROL(EN_KILLFOCUS, id, member)

// ---- Messages of windows --------------------------------------------------------------------------------------------

/// Any message; `member` is LRESULT OnX(WPARAM, LPARAM).
#define ON_MESSAGE(message, member) AFX_MSG_ENTRY(message, 0, 0, 0, return (self->*(member))(m.wParam, m.lParam))

// The window that a message names, as a temporary object.
#define AFX_WINDOW(parameter) CWnd::FromHandle(reinterpret_cast<HWND>(parameter))

/// void OnX()
#define ON_WM_PAINT() AFX_MSG_ENTRY(WM_PAINT, 0, 0, 0, self->OnPaint(); return 0)
/// BOOL OnEraseBkgnd(CDC* dc)
#define ON_WM_ERASEBKGND()                                                                                             \
    AFX_MSG_ENTRY(WM_ERASEBKGND, 0, 0, 0, return self->OnEraseBkgnd(CDC::FromHandle(reinterpret_cast<HDC>(m.wParam))))
/// void OnSetFocus(CWnd* loser) and void OnKillFocus(CWnd* winner), which may be null
#define ON_WM_SETFOCUS() AFX_MSG_ENTRY(WM_SETFOCUS, 0, 0, 0, self->OnSetFocus(AFX_WINDOW(m.wParam)); return 0)
#define ON_WM_KILLFOCUS() AFX_MSG_ENTRY(WM_KILLFOCUS, 0, 0, 0, self->OnKillFocus(AFX_WINDOW(m.wParam)); return 0)
/// UINT OnGetDlgCode(), of DLGC_...
#define ON_WM_GETDLGCODE() AFX_MSG_ENTRY(WM_GETDLGCODE, 0, 0, 0, return static_cast<LRESULT>(self->OnGetDlgCode()))
/// void OnTimer(UINT_PTR id)
#define ON_WM_TIMER() AFX_MSG_ENTRY(WM_TIMER, 0, 0, 0, self->OnTimer(m.wParam); return 0)

// void OnX(UINT key or character, UINT repeat, UINT flags)
#define AFX_KEY_ENTRY(message, member)                                                                                 \
    AFX_MSG_ENTRY(message, 0, 0, 0, self->member(static_cast<UINT>(m.wParam), LOWORD(m.lParam), HIWORD(m.lParam));     \
                  return 0)
#define ON_WM_KEYDOWN() AFX_KEY_ENTRY(WM_KEYDOWN, OnKeyDown)
#define ON_WM_CHAR() AFX_KEY_ENTRY(WM_CHAR, OnChar)

// void OnX(UINT flags, CPoint point), in the client area
#define AFX_MOUSE_ENTRY(message, member)                                                                               \
    AFX_MSG_ENTRY(message, 0, 0, 0, self->member(static_cast<UINT>(m.wParam), CPoint(m.lParam)); return 0)
#define ON_WM_LBUTTONDOWN() AFX_MOUSE_ENTRY(WM_LBUTTONDOWN, OnLButtonDown)
#define ON_WM_LBUTTONUP() AFX_MOUSE_ENTRY(WM_LBUTTONUP, OnLButtonUp)
#define ON_WM_LBUTTONDBLCLK() AFX_MOUSE_ENTRY(WM_LBUTTONDBLCLK, OnLButtonDblClk)
#define ON_WM_RBUTTONDOWN() AFX_MOUSE_ENTRY(WM_RBUTTONDOWN, OnRButtonDown)
#define ON_WM_RBUTTONUP() AFX_MOUSE_ENTRY(WM_RBUTTONUP, OnRButtonUp)
#define ON_WM_MOUSEMOVE() AFX_MOUSE_ENTRY(WM_MOUSEMOVE, OnMouseMove)
/// BOOL OnMouseWheel(UINT flags, short delta, CPoint point), on the screen
#define ON_WM_MOUSEWHEEL()                                                                                             \
    AFX_MSG_ENTRY(WM_MOUSEWHEEL, 0, 0, 0,                                                                              \
                  return self->OnMouseWheel(LOWORD(m.wParam), static_cast<short>(HIWORD(m.wParam)), CPoint(m.lParam)))
/// void OnContextMenu(CWnd* window, CPoint point), on the screen; (-1, -1) when it comes from the keyboard
#define ON_WM_CONTEXTMENU()                                                                                            \
    AFX_MSG_ENTRY(WM_CONTEXTMENU, 0, 0, 0, self->OnContextMenu(AFX_WINDOW(m.wParam), CPoint(m.lParam)); return 0)
/// BOOL OnHelpInfo(HELPINFO* info), for F1
#define ON_WM_HELPINFO() AFX_MSG_ENTRY(WM_HELP, 0, 0, 0, return self->OnHelpInfo(reinterpret_cast<HELPINFO*>(m.lParam)))

// What controls ask of their parent.

#ifndef WM_CTLCOLOR
#define WM_CTLCOLOR 0x0019 // stands for all of WM_CTLCOLOR... in message maps
#endif
/// HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT kind), `kind` being CTLCOLOR_...
#define ON_WM_CTLCOLOR()                                                                                               \
    AFX_MSG_ENTRY(                                                                                                     \
        WM_CTLCOLOR, 0, 0, 0,                                                                                          \
        return reinterpret_cast<LRESULT>(self->OnCtlColor(CDC::FromHandle(reinterpret_cast<HDC>(m.wParam)),            \
                                                          AFX_WINDOW(m.lParam), m.message - WM_CTLCOLORMSGBOX)))
// void OnX(UINT code, UINT position, CScrollBar* bar); null for a bar of the window itself
#define AFX_SCROLL_ENTRY(message, member)                                                                              \
    AFX_MSG_ENTRY(message, 0, 0, 0,                                                                                    \
                  self->member(LOWORD(m.wParam), HIWORD(m.wParam), static_cast<CScrollBar*>(AFX_WINDOW(m.lParam)));    \
                  return 0)
#define ON_WM_VSCROLL() AFX_SCROLL_ENTRY(WM_VSCROLL, OnVScroll)
/// void OnDrawItem(int id, LPDRAWITEMSTRUCT item)
#define ON_WM_DRAWITEM()                                                                                               \
    AFX_MSG_ENTRY(WM_DRAWITEM, 0, 0, 0,                                                                                \
                  self->OnDrawItem(static_cast<int>(m.wParam), reinterpret_cast<LPDRAWITEMSTRUCT>(m.lParam));          \
                  return TRUE)
/// void OnMeasureItem(int id, LPMEASUREITEMSTRUCT item)
#define ON_WM_MEASUREITEM()                                                                                            \
    AFX_MSG_ENTRY(WM_MEASUREITEM, 0, 0, 0,                                                                             \
                  self->OnMeasureItem(static_cast<int>(m.wParam), reinterpret_cast<LPMEASUREITEMSTRUCT>(m.lParam));    \
                  return TRUE)
