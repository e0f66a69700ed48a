#include "dialogs/grid/GridView.h"

#include "core/Memory.h"
#include "core/ResourceScope.h"
#include "core/Values.h"

#include <algorithm>

BEGIN_MESSAGE_MAP(CGridView, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_SETFOCUS()
ON_WM_KILLFOCUS()
ON_WM_GETDLGCODE()
ON_WM_CHAR()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONDBLCLK()
ON_WM_RBUTTONDOWN()
ON_WM_CONTEXTMENU()
END_MESSAGE_MAP()

CGridView::CGridView(CWzdDlgBase& dialog, const SGridControls& controls)
    : m_dialog(dialog), m_controls(controls), m_model(static_cast<int>(controls.headings.size())),
      m_limits(controls.headings.size())
{
    ASSERT(controls.rowLabels.size() == CGridModel::kVisibleRows);
}

namespace
{

CRect PlaceOf(const CWzdDlgBase& dialog, UINT id)
{
    CRect place;
    if (const CWnd* control = dialog.GetDlgItem(id))
        control->GetWindowRect(place);
    dialog.ScreenToClient(place);
    return place;
}

} // namespace

bool CGridView::CreateView()
{
    m_model.Clear();
    m_isEditing = false;
    CRect place = PlaceOf(m_dialog, m_controls.rowLabels.front());
    place.bottom = PlaceOf(m_dialog, m_controls.rowLabels.back()).bottom;
    place.left = PlaceOf(m_dialog, m_controls.headings.front()).left;
    place.right = PlaceOf(m_dialog, m_controls.headings.back()).right;
    if (Editor() == nullptr ||
        !Create(nullptr, nullptr, WS_VISIBLE | WS_TABSTOP | WS_CLIPSIBLINGS, place, &m_dialog, IDC_GRID_CELLS))
        return false;
    // Behind the editor in tab order, and below it.
    SetWindowPos(Editor(), 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    ShowCells();
    return true;
}

// ---- Showing --------------------------------------------------------------------------------------------------------

void CGridView::Refresh()
{
    m_toldRows = m_model.UsedRows();
    ShowCells();
}

void CGridView::ShowCells()
{
    int row = m_model.FirstVisible();
    for (const UINT label : m_controls.rowLabels)
    {
        m_dialog.SetItemText(label, row < m_model.Rows() ? FormatDecimal64(row + 1) : CString());
        ++row;
    }
    SCROLLINFO scroll = {};
    scroll.fMask = SIF_RANGE | SIF_PAGE | SIF_POS | SIF_DISABLENOSCROLL;
    scroll.nMax = m_model.Rows() - 1;
    scroll.nPage = CGridModel::kVisibleRows;
    scroll.nPos = m_model.FirstVisible();
    if (auto* bar = static_cast<CScrollBar*>(m_dialog.GetDlgItem(m_controls.scrollBar)))
        bar->SetScrollInfo(&scroll);
    Invalidate(FALSE);
}

CRect CGridView::CellRect(SGridCell cell) const
{
    CRect client;
    GetClientRect(client);
    const int row = cell.row - m_model.FirstVisible();
    const auto x = [&](int column) { return client.right * column / m_model.Columns(); };
    const auto y = [&](int line) { return client.bottom * line / CGridModel::kVisibleRows; };
    return {x(cell.column), y(row), x(cell.column + 1), y(row + 1)};
}

SGridCell CGridView::CellAt(CPoint point) const
{
    CRect client;
    GetClientRect(client);
    return {m_model.FirstVisible() + point.y * CGridModel::kVisibleRows / std::max<int>(client.bottom, 1),
            point.x * m_model.Columns() / std::max<int>(client.right, 1)};
}

LRESULT CGridView::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const CMessageScope scope(m_dialog.Library());
    return CWnd::WindowProc(message, wParam, lParam);
}

void CGridView::OnPaint()
{
    CPaintDC dc(this);
    CFont* previous = dc.SelectObject(Editor()->GetFont());
    dc.SetBkMode(TRANSPARENT);
    const int first = m_model.FirstVisible();
    for (int row = first; row < first + CGridModel::kVisibleRows; ++row)
        for (int column = 0; column < m_model.Columns(); ++column)
            DrawCell(dc, {row, column});
    dc.SelectObject(previous);
}

void CGridView::DrawCell(CDC& dc, SGridCell cell) const
{
    constexpr int kLine = 1, kMargin = 4, kMostDrawn = 200;
    CRect rect = CellRect(cell);
    dc.FillSolidRect(rect, ::GetSysColor(COLOR_BTNSHADOW));
    rect.right -= kLine;
    rect.bottom -= kLine;

    const bool usable = IsWindowEnabled() && cell.row < m_model.Rows() && m_model.IsWanted(cell.row);
    const bool current = IsWindowEnabled() && cell == m_model.Current();
    const bool selected = current && ::GetFocus() == m_hWnd;
    dc.FillSolidRect(rect, ::GetSysColor(selected ? COLOR_HIGHLIGHT : usable ? COLOR_WINDOW : COLOR_BTNFACE));
    if (current)
        dc.DrawFocusRect(rect);
    rect.left += kMargin;
    dc.SetTextColor(::GetSysColor(selected ? COLOR_HIGHLIGHTTEXT : usable ? COLOR_WINDOWTEXT : COLOR_GRAYTEXT));
    dc.DrawText(LeftWhole(m_model.Text(cell), kMostDrawn), rect, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
}

// ---- Operations -----------------------------------------------------------------------------------------------------

void CGridView::TellRows()
{
    if (m_model.UsedRows() == m_toldRows)
        return;
    m_dialog.OnChanged(m_controls.editor); // which refreshes the fields, the table among them
}

void CGridView::Clear()
{
    if (m_isEditing)
        DropEditor();
    m_model.Clear();
    ShowCells();
}

bool CGridView::MoveTo(EGridMove move)
{
    bool moved = false;
    Do([&] { moved = m_model.Move(move); });
    return moved;
}

void CGridView::EmptyCell()
{
    Do([this] { m_model.SetText(m_model.Current(), ""); });
}

void CGridView::InsertRow()
{
    bool inserted = true;
    Do([&] { inserted = m_model.InsertRow(); });
    if (!inserted)
        ::MessageBeep(MB_OK);
}

void CGridView::DeleteRow()
{
    Do([this] { m_model.DeleteRow(); });
}
