#include "dialogs/grid/GridDlg.h"

namespace
{

constexpr UINT kFirstEdit = IDCANCEL + 1;
constexpr UINT kLastEdit = 0x7FFF;

} // namespace

BEGIN_MESSAGE_MAP(CGridDlg, CWzdDlgBase)
ON_CONTROL_RANGE(EN_KILLFOCUS, kFirstEdit, kLastEdit, &CGridDlg::OnEditLeft)
ON_WM_VSCROLL()
ON_WM_MOUSEWHEEL()
ON_COMMAND(ID_EDIT_PASTE, &CGridDlg::OnPaste)
ON_COMMAND(ID_EDIT_COPY, &CGridDlg::OnCopyLine)
ON_COMMAND(ID_GRID_COPY_ALL, &CGridDlg::OnCopyAll)
ON_COMMAND(ID_GRID_INSERT_LINE, &CGridDlg::OnInsertLine)
ON_COMMAND(ID_GRID_DELETE_LINE, &CGridDlg::OnDeleteLine)
END_MESSAGE_MAP()

// Before the dialog makes Enter, Esc and Tab its own, and an edit the wheel.
BOOL CGridDlg::PreTranslateMessage(MSG* message)
{
    return m_grid.TranslateKey(*message) || m_grid.TranslateWheel(*message) ||
           CWzdDlgBase::PreTranslateMessage(message);
}

// What is still in the editor counts, too.
bool CGridDlg::Confirm()
{
    m_grid.Commit();
    return CWzdDlgBase::Confirm();
}

void CGridDlg::OnEditLeft(UINT id)
{
    if (id == m_grid.Controls().editor)
        m_grid.OnEditorLeft();
    else
        CWzdDlgBase::OnEditLeft(id);
}

void CGridDlg::OnVScroll(UINT code, UINT position, CScrollBar* bar)
{
    if (bar != nullptr && static_cast<UINT>(bar->GetDlgCtrlID()) == m_grid.Controls().scrollBar)
        m_grid.Scroll(code, static_cast<int>(position));
}

BOOL CGridDlg::OnMouseWheel(UINT, short delta, CPoint)
{
    m_grid.ScrollBy(delta);
    return TRUE;
}
