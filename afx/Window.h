// CWnd: an object behind a window.
//
// A CWnd made by the program is attached to at most one window and receives its messages if it created or subclassed
// it. FromHandle and everything else that returns a CWnd* gives the attached object of the window or, where there is
// none, as for the controls of a dialog, a temporary one: that belongs to nobody and is valid until the running message
// handler returns. It may be cast to the class of its control, such as CEdit*.
//
// Operations on a window that is gone fail as the system's functions of the same name do.
#pragma once

#include "afx/Gdi.h"
#include "afx/MessageMap.h"

class CScrollBar;
struct AFX_CMDHANDLERINFO; // never passed

/// The root of what handles messages.
class AFX_API CCmdTarget : public CObject
{
    DECLARE_DYNAMIC(CCmdTarget)

    /// Calls the handler of a command or a notification. FALSE when there is none.
    virtual BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info);

protected:
    static const AFX_MSGMAP* PASCAL GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;
};

// What RunModalLoop does when no message waits.
#define MLF_NOIDLEMSG 0x0001  // the owner gets no WM_ENTERIDLE
#define MLF_NOKICKIDLE 0x0002 // accepted; WM_KICKIDLE is never sent
#define MLF_SHOWONIDLE 0x0004 // the window is shown, if it is not yet

class AFX_API CWnd : public CCmdTarget
{
    DECLARE_DYNAMIC(CWnd)

    CWnd() = default;
    /// Destroys a window that is still attached.
    ~CWnd() override;

    // ---- The window behind the object -------------------------------------------------------------------------------

    static CWnd* PASCAL FromHandle(HWND window);
    /// The attached object of a window, or null.
    static CWnd* PASCAL FromHandlePermanent(HWND window);
    /// Frees the temporary objects that the running handler has asked for.
    static void PASCAL DeleteTempMap();

    HWND GetSafeHwnd() const { return m_hWnd; }
    operator HWND() const { return m_hWnd; }

    /// Stands for a window without receiving its messages. FALSE for a null handle.
    BOOL Attach(HWND window);
    HWND Detach();
    /// Stands for a window and receives its messages from now on, until it is destroyed or UnsubclassWindow is called.
    BOOL SubclassWindow(HWND window);
    BOOL SubclassDlgItem(UINT id, CWnd* parent) { return SubclassWindow(::GetDlgItem(parent->m_hWnd, int(id))); }
    HWND UnsubclassWindow();

    /// Creates a window and receives its messages; a null class name means a plain window class. FALSE on failure.
    BOOL Create(LPCSTR className, LPCSTR text, DWORD style, const RECT& rect, CWnd* parent, UINT id,
                void* context = nullptr);
    BOOL CreateEx(DWORD exStyle, LPCSTR className, LPCSTR text, DWORD style, int x, int y, int width, int height,
                  HWND parent, HMENU idOrMenu, void* context = nullptr);
    virtual BOOL DestroyWindow();

    // ---- Relatives --------------------------------------------------------------------------------------------------
    // Null when there is none.

    CWnd* GetParent() const { return FromHandle(::GetParent(m_hWnd)); }
    CWnd* GetWindow(UINT relation) const { return FromHandle(::GetWindow(m_hWnd, relation)); }
    BOOL IsChild(const CWnd* window) const { return ::IsChild(m_hWnd, window->m_hWnd); }
    CWnd* GetDlgItem(int id) const { return FromHandle(::GetDlgItem(m_hWnd, id)); }
    static CWnd* PASCAL GetActiveWindow() { return FromHandle(::GetActiveWindow()); }
    static CWnd* PASCAL GetFocus() { return FromHandle(::GetFocus()); }

    /// The window that owns what the program is about to pop up: the parent or, when it is null, the thread's active
    /// window; of a child window its top-level one; without a parent, the popup last active there. With `disabledTop` a
    /// further window above that one is disabled and returned through it, for the caller to enable again.
    static CWnd* PASCAL GetSafeOwner(CWnd* parent = nullptr, HWND* disabledTop = nullptr);

    // ---- State ------------------------------------------------------------------------------------------------------

    int GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); }
    DWORD GetStyle() const { return static_cast<DWORD>(::GetWindowLongW(m_hWnd, GWL_STYLE)); }
    /// Changes style bits and, when `flags` is not 0, applies SetWindowPos with it. FALSE when nothing changed.
    BOOL ModifyStyle(DWORD remove, DWORD add, UINT flags = 0);

    BOOL EnableWindow(BOOL enable = TRUE) { return ::EnableWindow(m_hWnd, enable); }
    BOOL IsWindowEnabled() const { return ::IsWindowEnabled(m_hWnd); }
    BOOL ShowWindow(int command) { return ::ShowWindow(m_hWnd, command); }
    BOOL IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
    CWnd* SetFocus() { return FromHandle(::SetFocus(m_hWnd)); }
    CWnd* SetActiveWindow() { return FromHandle(::SetActiveWindow(m_hWnd)); }
    CWnd* SetCapture() { return FromHandle(::SetCapture(m_hWnd)); }

    // ---- Text -------------------------------------------------------------------------------------------------------

    void SetWindowText(LPCSTR text);
    int GetWindowText(LPSTR text, int size) const;
    void GetWindowText(CString& text) const;
    void SetFont(CFont* font, BOOL redraw = TRUE);
    CFont* GetFont() const { return CFont::FromHandle(reinterpret_cast<HFONT>(SendMessage(WM_GETFONT))); }

    // ---- Place, in pixels -------------------------------------------------------------------------------------------

    /// On the screen.
    void GetWindowRect(LPRECT rect) const { ::GetWindowRect(m_hWnd, rect); }
    void GetClientRect(LPRECT rect) const { ::GetClientRect(m_hWnd, rect); }
    void MoveWindow(int x, int y, int width, int height, BOOL repaint = TRUE);
    void MoveWindow(LPCRECT rect, BOOL repaint = TRUE);
    BOOL SetWindowPos(const CWnd* after, int x, int y, int width, int height, UINT flags);
    void ScreenToClient(LPPOINT point) const { ::ScreenToClient(m_hWnd, point); }
    void ScreenToClient(LPRECT rect) const;
    void ClientToScreen(LPPOINT point) const { ::ClientToScreen(m_hWnd, point); }
    void ClientToScreen(LPRECT rect) const;
    /// Moves the window over the middle of `other`, else of its owner or parent, within the screen.
    void CenterWindow(CWnd* other = nullptr);

    // ---- Painting ---------------------------------------------------------------------------------------------------

    void SetRedraw(BOOL redraw = TRUE) { SendMessage(WM_SETREDRAW, redraw, 0); }
    void Invalidate(BOOL erase = TRUE) { ::InvalidateRect(m_hWnd, nullptr, erase); }
    void InvalidateRect(LPCRECT rect, BOOL erase = TRUE) { ::InvalidateRect(m_hWnd, rect, erase); }
    void UpdateWindow() { ::UpdateWindow(m_hWnd); }
    /// To be given back by ReleaseDC.
    CDC* GetDC() { return CDC::FromHandle(::GetDC(m_hWnd)); }
    int ReleaseDC(CDC* dc) { return ::ReleaseDC(m_hWnd, dc->m_hDC); }

    // ---- Scroll bars ------------------------------------------------------------------------------------------------

    BOOL SetScrollInfo(int bar, LPSCROLLINFO info, BOOL redraw = TRUE);
    BOOL GetScrollInfo(int bar, LPSCROLLINFO info, UINT mask = SIF_ALL) const;

    // ---- The controls of a dialog, by id ----------------------------------------------------------------------------

    void SetDlgItemText(int id, LPCSTR text);
    int GetDlgItemText(int id, LPSTR text, int size) const;
    /// Returns the length; 0, and an empty text, when there is no such control.
    int GetDlgItemText(int id, CString& text) const;
    void CheckDlgButton(int id, UINT check) { ::CheckDlgButton(m_hWnd, id, check); }
    UINT IsDlgButtonChecked(int id) const { return ::IsDlgButtonChecked(m_hWnd, id); }
    void CheckRadioButton(int first, int last, int checked) { ::CheckRadioButton(m_hWnd, first, last, checked); }
    int GetCheckedRadioButton(int first, int last) const;
    LRESULT SendDlgItemMessage(int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

    // ---- Messages ---------------------------------------------------------------------------------------------------

    /// A text that goes with a message is in the system's code page; the operations of the classes convert theirs.
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    UINT_PTR SetTimer(UINT_PTR id, UINT milliseconds, TIMERPROC callback);
    BOOL KillTimer(UINT_PTR id) { return ::KillTimer(m_hWnd, id); }
    /// The caption, the name of a program, is in the system's code page.
    int MessageBox(LPCSTR text, LPCSTR caption = nullptr, UINT type = MB_OK);

    // ---- Being modal ------------------------------------------------------------------------------------------------

    /// Dispatches messages until EndModalLoop is called; returns its result, or -1 when the program is told to quit or
    /// the window is destroyed.
    int RunModalLoop(DWORD flags = 0);
    virtual BOOL ContinueModal();
    virtual void EndModalLoop(int result);

    // ---- Message handling -------------------------------------------------------------------------------------------

    /// Sees each message of the queue for this window or its children first. TRUE when it is done with.
    virtual BOOL PreTranslateMessage(MSG* message);

    HWND m_hWnd = nullptr;

protected:
    DECLARE_MESSAGE_MAP()

    /// Receives every message: the message map first, DefWindowProc for the rest. An exception that leaves it is caught
    /// and the message counts as failed: -1 for WM_CREATE, else 0.
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    /// What the window does without us.
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    /// The same for the message that is being handled.
    LRESULT Default();
    virtual void PreSubclassWindow() {}
    /// The window is gone and no longer attached: the object may delete itself.
    virtual void PostNcDestroy() {}

    // Handlers for message maps; each does what happens without it.
    afx_msg void OnPaint() { Default(); }
    afx_msg BOOL OnEraseBkgnd(CDC*) { return static_cast<BOOL>(Default()); }
    afx_msg void OnSetFocus(CWnd*) { Default(); }
    afx_msg void OnKillFocus(CWnd*) { Default(); }
    afx_msg UINT OnGetDlgCode() { return static_cast<UINT>(Default()); }
    afx_msg void OnTimer(UINT_PTR) { Default(); }
    afx_msg void OnKeyDown(UINT, UINT, UINT) { Default(); }
    afx_msg void OnChar(UINT, UINT, UINT) { Default(); }
    afx_msg void OnLButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnLButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnLButtonDblClk(UINT, CPoint) { Default(); }
    afx_msg void OnRButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnRButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnMouseMove(UINT, CPoint) { Default(); }
    afx_msg BOOL OnMouseWheel(UINT, short, CPoint) { return static_cast<BOOL>(Default()); }
    afx_msg void OnContextMenu(CWnd*, CPoint) { Default(); }
    afx_msg BOOL OnHelpInfo(HELPINFO*) { return static_cast<BOOL>(Default()); }
    afx_msg HBRUSH OnCtlColor(CDC*, CWnd*, UINT) { return reinterpret_cast<HBRUSH>(Default()); }
    afx_msg void OnVScroll(UINT, UINT, CScrollBar*) { Default(); }
    afx_msg void OnDrawItem(int, LPDRAWITEMSTRUCT) { Default(); }
    afx_msg void OnMeasureItem(int, LPMEASUREITEMSTRUCT) { Default(); }

    enum EFlags : UINT
    {
        WF_MODALLOOP = 1,     // RunModalLoop is running
        WF_CONTINUEMODAL = 2, // and goes on
    };

    WNDPROC m_pfnSuper = nullptr; // what received the window's messages before us; null: we do not receive them
    UINT m_nFlags = 0;
    int m_nModalResult = -1;

private:
    friend LRESULT AfxCallWndProc(CWnd* window, const MSG& message);
    friend LRESULT CALLBACK AfxWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    void AttachCreated(HWND window);
    void OnNcDestroy();
    void OnModalIdle(DWORD flags);
};

// ---- For the classes of this folder ---------------------------------------------------------------------------------

inline MSG AfxMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    MSG made = {};
    made.hwnd = window;
    made.message = message;
    made.wParam = wParam;
    made.lParam = lParam;
    return made;
}

/// Gives a message to a window object and catches what its handlers throw.
LRESULT AfxCallWndProc(CWnd* window, const MSG& message);

/// The window procedure of every window whose messages an object receives.
LRESULT CALLBACK AfxWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

/// CWnd::GetSafeOwner in terms of handles.
HWND AfxGetSafeOwner(HWND parent, HWND* disabledTop);
