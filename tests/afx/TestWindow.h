// A window to try things on: it remembers what reaches it.
#pragma once

#include "afx/afx.h"

#include <functional>
#include <string>
#include <vector>

/// A popup that is not shown, with a message map of everything simple.
class CTestWindow : public CWnd
{
public:
    CTestWindow() = default;

    bool Open(CWnd* parent = nullptr)
    {
        return CreateEx(0, nullptr, "test", WS_POPUP | WS_CAPTION, 100, 100, 300, 200,
                        parent ? parent->m_hWnd : nullptr, nullptr) != FALSE;
    }

    /// Runs something inside a message handler of this window.
    void RunInHandler(std::function<void()> action)
    {
        m_action = std::move(action);
        SendMessage(WM_APP);
    }

    std::vector<std::string> m_log;

protected:
    DECLARE_MESSAGE_MAP()

    void Log(LPCSTR format, ...);

    LRESULT OnRun(WPARAM, LPARAM);
    LRESULT OnAdd(WPARAM wParam, LPARAM lParam) { return static_cast<LRESULT>(wParam) + lParam; }
    void OnCommand1() { Log("command 1"); }
    void OnClicked() { Log("clicked"); }
    void OnEditRange(UINT id) { Log("edit %u", id); }
    void OnSelChange() { Log("selchange"); }
    void OnKillFocusOfEdit() { Log("killfocus"); }
    void OnTimer(UINT_PTR id) { Log("timer %u", static_cast<UINT>(id)); }
    HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT kind);
    void OnVScroll(UINT code, UINT position, CScrollBar* bar);
    BOOL OnHelpInfo(HELPINFO* info);
    void OnContextMenu(CWnd* window, CPoint point);
    void OnLButtonDown(UINT flags, CPoint point);
    void PostNcDestroy() override { Log("gone, attached: %d", m_hWnd != nullptr); }

private:
    std::function<void()> m_action;
};
