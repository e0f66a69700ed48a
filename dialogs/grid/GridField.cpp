#include "dialogs/grid/GridField.h"

#include "core/FillText.h"

bool CGridField::Open()
{
    if (!m_grid.CreateView())
        return false;
    m_grid.Model().SetMostRows(MostRows());
    Restore();
    return true;
}

void CGridField::Refresh()
{
    for (int column = 0; column < static_cast<int>(m_columns.size()); ++column)
    {
        const SGridColumn& row = Column(column);
        m_grid.LimitText(column, row.limit);
        if (row.rangeHeading == 0)
            continue;
        const CString heading = m_dialog.ItemText(row.rangeHeading);
        m_dialog.SetItemText(row.rangeHeading, heading.Left(heading.Find('\n') + 1) +
                                                   FillText(IDS_RANGE_DECIMAL, {row.range.low, row.range.high}));
    }
    m_grid.Refresh();
}

void CGridField::SetValue(SGridCell cell, LONGLONG value)
{
    m_grid.Model().SetText(cell, Column(cell.column).format.Format(value));
}

bool CGridField::ReadCell(SGridCell cell, LONGLONG& value)
{
    const SGridColumn& column = Column(cell.column);
    if (!column.format.Parse(m_grid.Model().Text(cell), value))
        return m_grid.Refuse(cell, IDS_ERR_NOT_A_NUMBER);
    return column.range.Holds(value) || m_grid.Refuse(cell, column.message);
}
