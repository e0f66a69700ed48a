// The system's controls. Objects of these classes are what GetDlgItem's result is cast to; Create makes a control of
// one's own. What the operations do is what the control's message of the same name does.
#pragma once

#include "afx/Window.h"

class AFX_API CStatic : public CWnd
{
    DECLARE_DYNAMIC(CStatic)

    BOOL Create(LPCSTR text, DWORD style, const RECT& rect, CWnd* parent, UINT id = 0xFFFF)
    {
        return CWnd::Create("STATIC", text, style, rect, parent, id);
    }
};

class AFX_API CButton : public CWnd
{
    DECLARE_DYNAMIC(CButton)

    BOOL Create(LPCSTR text, DWORD style, const RECT& rect, CWnd* parent, UINT id)
    {
        return CWnd::Create("BUTTON", text, style, rect, parent, id);
    }

    int GetCheck() const { return static_cast<int>(SendMessage(BM_GETCHECK)); }
    void SetCheck(int check) { SendMessage(BM_SETCHECK, static_cast<WPARAM>(check)); }
};

class AFX_API CEdit : public CWnd
{
    DECLARE_DYNAMIC(CEdit)

    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
    {
        return CWnd::Create("EDIT", nullptr, style, rect, parent, id);
    }

    /// 0 means no limit of ours.
    void LimitText(int characters = 0) { SendMessage(EM_LIMITTEXT, static_cast<WPARAM>(characters)); }
    /// Positions are characters; (0, -1) selects everything. The caret is scrolled into view unless `noScroll`.
    void SetSel(int first, int last, BOOL noScroll = FALSE)
    {
        SendMessage(EM_SETSEL, static_cast<WPARAM>(first), last);
        if (!noScroll)
            SendMessage(EM_SCROLLCARET);
    }
    void GetSel(int& first, int& last) const
    {
        DWORD from = 0;
        DWORD to = 0;
        SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&to));
        first = static_cast<int>(from);
        last = static_cast<int>(to);
    }
    void Paste() { SendMessage(WM_PASTE); }
};

/// Indexes are -1 when there is none; adding returns the index, CB_ERR or CB_ERRSPACE.
class AFX_API CComboBox : public CWnd
{
    DECLARE_DYNAMIC(CComboBox)

    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
    {
        return CWnd::Create("COMBOBOX", nullptr, style, rect, parent, id);
    }

    int GetCount() const { return Send(CB_GETCOUNT); }
    int GetCurSel() const { return Send(CB_GETCURSEL); }
    int SetCurSel(int index) { return Send(CB_SETCURSEL, index); }
    int AddString(LPCSTR text);
    void ResetContent() { Send(CB_RESETCONTENT); }
    DWORD_PTR GetItemData(int index) const
    {
        return static_cast<DWORD_PTR>(SendMessage(CB_GETITEMDATA, static_cast<WPARAM>(index)));
    }
    int SetItemData(int index, DWORD_PTR data) { return Send(CB_SETITEMDATA, index, static_cast<LPARAM>(data)); }
    /// Of the items or, with index -1, of the field that shows the selected one.
    int GetItemHeight(int index) const { return Send(CB_GETITEMHEIGHT, index); }
    int SetItemHeight(int index, UINT height) { return Send(CB_SETITEMHEIGHT, index, static_cast<LPARAM>(height)); }
    /// Empty when there is no such item.
    void GetLBText(int index, CString& text) const;

private:
    int Send(UINT message, int wParam = 0, LPARAM lParam = 0) const
    {
        return static_cast<int>(SendMessage(message, static_cast<WPARAM>(wParam), lParam));
    }
};

/// Indexes are -1 when there is none; adding returns the index, LB_ERR or LB_ERRSPACE.
class AFX_API CListBox : public CWnd
{
    DECLARE_DYNAMIC(CListBox)

    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
    {
        return CWnd::Create("LISTBOX", nullptr, style, rect, parent, id);
    }

    int GetCount() const { return Send(LB_GETCOUNT); }
    int GetCurSel() const { return Send(LB_GETCURSEL); }
    int SetCurSel(int index) { return Send(LB_SETCURSEL, index); }
    int AddString(LPCSTR text);
    void ResetContent() { Send(LB_RESETCONTENT); }
    DWORD_PTR GetItemData(int index) const
    {
        return static_cast<DWORD_PTR>(SendMessage(LB_GETITEMDATA, static_cast<WPARAM>(index)));
    }
    int SetItemData(int index, DWORD_PTR data) { return Send(LB_SETITEMDATA, index, static_cast<LPARAM>(data)); }
    /// Empty when there is no such item.
    void GetText(int index, CString& text) const;
    /// In dialog units from the left edge.
    BOOL SetTabStops(int count, LPINT stops) { return Send(LB_SETTABSTOPS, count, reinterpret_cast<LPARAM>(stops)); }

private:
    int Send(UINT message, int wParam = 0, LPARAM lParam = 0) const
    {
        return static_cast<int>(SendMessage(message, static_cast<WPARAM>(wParam), lParam));
    }
};

class AFX_API CScrollBar : public CWnd
{
    DECLARE_DYNAMIC(CScrollBar)

    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
    {
        return CWnd::Create("SCROLLBAR", nullptr, style, rect, parent, id);
    }

    int GetScrollPos() const { return ::GetScrollPos(m_hWnd, SB_CTL); }
    int SetScrollPos(int position, BOOL redraw = TRUE) { return ::SetScrollPos(m_hWnd, SB_CTL, position, redraw); }
    void SetScrollRange(int low, int high, BOOL redraw = TRUE) { ::SetScrollRange(m_hWnd, SB_CTL, low, high, redraw); }
    BOOL SetScrollInfo(LPSCROLLINFO info, BOOL redraw = TRUE) { return CWnd::SetScrollInfo(SB_CTL, info, redraw); }
    BOOL GetScrollInfo(LPSCROLLINFO info, UINT mask = SIF_ALL) const { return CWnd::GetScrollInfo(SB_CTL, info, mask); }
};
