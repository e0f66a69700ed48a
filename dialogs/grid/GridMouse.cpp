// Mouse, scroll bar and menu of the table.
#include "dialogs/grid/GridView.h"

void CGridView::SelectAt(CPoint point)
{
    Do([&] { m_model.GoTo(CellAt(point)); });
    if (!m_isEditing)
        SetFocus();
}

void CGridView::OnLButtonDown(UINT, CPoint point) { SelectAt(point); }

void CGridView::OnLButtonDblClk(UINT, CPoint point)
{
    SelectAt(point);
    if (!m_isEditing)
        EditCell();
}

void CGridView::OnRButtonDown(UINT, CPoint point)
{
    SelectAt(point);
    Default();
}

void CGridView::Scroll(UINT code, int position)
{
    Do([&] {
        const int first = m_model.FirstVisible();
        switch (code)
        {
        case SB_LINEUP:
            return m_model.ScrollTo(first - 1);
        case SB_LINEDOWN:
            return m_model.ScrollTo(first + 1);
        case SB_PAGEUP:
            return m_model.ScrollTo(first - CGridModel::kVisibleRows);
        case SB_PAGEDOWN:
            return m_model.ScrollTo(first + CGridModel::kVisibleRows);
        case SB_TOP:
            return m_model.ScrollTo(0);
        case SB_BOTTOM:
            return m_model.ScrollTo(m_model.Rows());
        case SB_THUMBTRACK:
        case SB_THUMBPOSITION:
            return m_model.ScrollTo(position);
        default:
            return;
        }
    });
}

// Fine wheels turn by less than a line at a time.
void CGridView::ScrollBy(short wheelDelta)
{
    constexpr int kLinesOfANotch = 3;
    m_wheel += wheelDelta * kLinesOfANotch;
    const int lines = m_wheel / WHEEL_DELTA;
    m_wheel %= WHEEL_DELTA;
    if (lines != 0)
        Do([&] { m_model.ScrollTo(m_model.FirstVisible() - lines); });
}

bool CGridView::TranslateWheel(const MSG& message)
{
    if (message.message != WM_MOUSEWHEEL || !IsToEditor(message))
        return false;
    ScrollBy(static_cast<short>(HIWORD(message.wParam)));
    return true;
}

void CGridView::OnContextMenu(CWnd*, CPoint point)
{
    const bool byKey = point.x == -1 && point.y == -1;
    if (byKey)
    {
        m_model.GoTo(m_model.Current()); // into view
        ShowCells();
        point = CellRect(m_model.Current()).CenterPoint();
        ClientToScreen(&point);
    }
    const struct
    {
        UINT command;
        UINT text;
        bool enabled;
    } kItems[] = {{ID_EDIT_PASTE, IDS_MENU_PASTE, CWzdDlgBase::IsClipboardText()},
                  {ID_EDIT_COPY, IDS_MENU_COPY_LINE, true},
                  {ID_GRID_COPY_ALL, IDS_MENU_COPY_ALL, true},
                  {ID_GRID_INSERT_LINE, IDS_MENU_INSERT_LINE, !m_model.IsFull()},
                  {ID_GRID_DELETE_LINE, IDS_MENU_DELETE_LINE, true}};
    CMenu menu;
    menu.CreatePopupMenu();
    for (const auto& item : kItems)
    {
        CString text;
        text.LoadString(item.text);
        menu.AppendMenu(MF_STRING | (item.enabled ? MF_ENABLED : MF_GRAYED), item.command, text);
    }
    menu.TrackPopupMenu(TPM_LEFTALIGN | TPM_RIGHTBUTTON, point.x, point.y, &m_dialog);
}
