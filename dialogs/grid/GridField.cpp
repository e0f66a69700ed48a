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
        CString range;
        if (row.rangeText != 0)
            range.LoadString(row.rangeText);
        else
            range = FillText(IDS_RANGE_DECIMAL, {row.range.low, row.range.high});
        const CString heading = m_dialog.ItemText(row.rangeHeading);
        const int lineBreak = heading.Find('\n');
        const CString firstLine = lineBreak < 0 ? heading + "\n" : heading.Left(lineBreak + 1);
        m_dialog.SetItemText(row.rangeHeading, firstLine + range);
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
