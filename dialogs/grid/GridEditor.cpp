// The editor that comes up over the current cell of a table.
#include "dialogs/base/UnseenUser.h"
#include "dialogs/grid/GridView.h"

#include <cstring>

void CGridView::OpenEditor(LPCSTR text)
{
    const SGridCell cell = m_model.Current();
    m_model.GoTo(cell); // into view
    ShowCells();
    CEdit* editor = Editor();
    editor->LimitText(m_limits[static_cast<size_t>(cell.column)]);
    editor->SetWindowText(text);
    CRect place = CellRect(cell);
    ::MapWindowPoints(m_hWnd, m_dialog.m_hWnd, reinterpret_cast<LPPOINT>(&place), 2);
    editor->MoveWindow(place);
    editor->ShowWindow(SW_SHOW);
    m_isEditing = true;
    editor->SetFocus();
    const auto end = static_cast<int>(std::strlen(text));
    editor->SetSel(end, end);
}

void CGridView::CloseEditor()
{
    if (!m_isEditing)
        return;
    m_model.SetText(m_model.Current(), m_dialog.ItemText(m_controls.editor));
    DropEditor();
}

void CGridView::Commit()
{
    CloseEditor();
    TellRows();
}

void CGridView::DropEditor()
{
    m_isEditing = false;
    if (GetFocus() == Editor())
        SetFocus();
    Editor()->ShowWindow(SW_HIDE);
    ShowCells();
}

// The focus may be on its way to another program or to a message box: then the editor gets it back.
void CGridView::OnEditorLeft()
{
    const CWnd* focus = GetFocus();
    if (!m_isEditing || focus == nullptr || !m_dialog.IsChild(focus))
        return;
    // Without memory the editor stays open and keeps its text: OK will say so.
    if (WithMemory([this] { CloseEditor(); }))
        TellRows();
}

// Enter has left no edit: what follows the one with the focus, the rows of the table perhaps, is not told before.
bool CGridView::Refuse(SGridCell cell, UINT message)
{
    if (CUnseenUser* const user = CUnseenUser::Current())
    {
        user->BeRefused(message, IDC_GRID_CELLS, cell.row + 1, cell.column + 1);
        return false;
    }
    SetFocus();
    m_model.GoTo(cell);
    EditCell();
    return m_dialog.Refuse(m_controls.editor, message);
}
