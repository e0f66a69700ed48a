#include "tests/afx/TestWindow.h"

BEGIN_MESSAGE_MAP(CTestWindow, CWnd)
ON_MESSAGE(WM_APP, &CTestWindow::OnRun)
ON_MESSAGE(WM_APP + 1, &CTestWindow::OnAdd)
ON_COMMAND(1, &CTestWindow::OnCommand1)
ON_BN_CLICKED(20, &CTestWindow::OnClicked)
ON_CONTROL_RANGE(EN_CHANGE, 30, 32, &CTestWindow::OnEditRange)
ON_CBN_SELCHANGE(40, &CTestWindow::OnSelChange)
ON_EN_KILLFOCUS(41, &CTestWindow::OnKillFocusOfEdit)
ON_WM_TIMER()
ON_WM_CTLCOLOR()
ON_WM_VSCROLL()
ON_WM_HELPINFO()
ON_WM_CONTEXTMENU()
ON_WM_LBUTTONDOWN()
END_MESSAGE_MAP()

void CTestWindow::Log(LPCSTR format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    CString line;
    line.FormatV(format, arguments);
    va_end(arguments);
    m_log.emplace_back(line);
}

LRESULT CTestWindow::OnRun(WPARAM, LPARAM)
{
    m_action();
    return 7;
}

HBRUSH CTestWindow::OnCtlColor(CDC* dc, CWnd* control, UINT kind)
{
    Log("ctlcolor %u %d", kind, control ? control->GetDlgCtrlID() : -1);
    dc->SetTextColor(RGB(0, 0, 255));
    return reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(1234));
}

void CTestWindow::OnVScroll(UINT code, UINT position, CScrollBar* bar)
{
    Log("vscroll %u %u %d", code, position, bar ? bar->GetDlgCtrlID() : -1);
}

BOOL CTestWindow::OnHelpInfo(HELPINFO* info)
{
    Log("help %d", info->iCtrlId);
    return TRUE;
}

void CTestWindow::OnContextMenu(CWnd* window, CPoint point)
{
    Log("menu %d %d %d", window == this, static_cast<int>(point.x), static_cast<int>(point.y));
}

void CTestWindow::OnLButtonDown(UINT flags, CPoint point)
{
    Log("down %u %d %d", flags, static_cast<int>(point.x), static_cast<int>(point.y));
}
