#include "dialogs/grid/GridModel.h"

#include "dialogs/grid/CellText.h"

#include <algorithm>

// ---- Size -----------------------------------------------------------------------------------------------------------

void CGridModel::SetMostRows(int rows)
{
    m_mostRows = std::max(rows, 1);
    GoTo(m_current);
}

void CGridModel::SetWantedRows(int rows)
{
    m_wantedRows = rows;
    ScrollTo(m_firstVisible);
}

int CGridModel::Rows() const
{
    const int wanted = std::max({FilledRows() + 1, kVisibleRows, m_current.row + 1, m_wantedRows});
    return std::max(std::min(wanted, m_mostRows), FilledRows());
}

// ---- Cells ----------------------------------------------------------------------------------------------------------

LPCSTR CGridModel::Text(SGridCell cell) const
{
    return Index(cell) < m_cells.size() ? static_cast<LPCSTR>(m_cells[Index(cell)]) : "";
}

void CGridModel::SetText(SGridCell cell, LPCSTR text)
{
    Fill(Index(cell), MakeText(TrimmedCell(text)));
    Trim();
}

void CGridModel::Fill(size_t index, CString&& text)
{
    if (index >= m_cells.size())
        m_cells.resize((index / m_columns + 1) * m_columns);
    m_cells[index] = std::move(text);
}

// Empty rows at the end are not stored.
void CGridModel::Trim()
{
    const auto last =
        std::find_if(m_cells.rbegin(), m_cells.rend(), [](const CString& text) { return !text.IsEmpty(); });
    const auto filled = static_cast<size_t>(m_cells.rend() - last);
    m_cells.erase(m_cells.begin() + static_cast<std::ptrdiff_t>((filled + m_columns - 1) / m_columns * m_columns),
                  m_cells.end());
    ScrollTo(m_firstVisible);
}

void CGridModel::Clear()
{
    m_cells.clear();
    GoTo({});
}

bool CGridModel::InsertRow()
{
    if (m_current.row >= FilledRows())
        return true; // it is empty as it is
    if (IsFull())
        return false;
    m_cells.reserve(m_cells.size() + m_columns);
    m_cells.insert(m_cells.begin() + static_cast<std::ptrdiff_t>(Index({m_current.row, 0})), m_columns, CString());
    return true;
}

void CGridModel::DeleteRow()
{
    if (m_current.row >= FilledRows())
        return;
    const auto first = m_cells.begin() + static_cast<std::ptrdiff_t>(Index({m_current.row, 0}));
    m_cells.erase(first, first + m_columns);
    Trim();
}

// ---- The current cell and the view ----------------------------------------------------------------------------------

void CGridModel::GoTo(SGridCell cell)
{
    m_current = {std::clamp(cell.row, 0, Rows() - 1), std::clamp(cell.column, 0, m_columns - 1)};
    ScrollTo(std::clamp(m_firstVisible, m_current.row - kVisibleRows + 1, m_current.row));
}

bool CGridModel::Move(EGridMove move)
{
    const SGridCell before = m_current;
    GoTo(Target(move));
    return !(m_current == before);
}

SGridCell CGridModel::Target(EGridMove move) const
{
    const auto [row, column] = m_current;
    switch (move)
    {
    case kCellUp:
        return {row - 1, column};
    case kCellDown:
        return {row + 1, column};
    case kCellLeft:
        return {row, column - 1};
    case kCellRight:
        return {row, column + 1};
    case kPageUp:
        return {row - kVisibleRows, column};
    case kPageDown:
        return {row + kVisibleRows, column};
    case kRowStart:
        return {row, 0};
    case kRowEnd:
        return {row, m_columns - 1};
    case kFirstCell:
        return {0, 0};
    case kLastCell:
        return {UsedRows() - 1, m_columns - 1};
    case kNextCell:
        if (column + 1 < m_columns)
            return {row, column + 1};
        return row < FilledRows() && row + 1 < m_mostRows ? SGridCell{row + 1, 0} : m_current;
    case kPreviousCell:
        if (column > 0)
            return {row, column - 1};
        return row > 0 ? SGridCell{row - 1, m_columns - 1} : m_current;
    }
    return m_current;
}

void CGridModel::ScrollTo(int firstVisible)
{
    m_firstVisible = std::clamp(firstVisible, 0, std::max(Rows() - kVisibleRows, 0));
}
