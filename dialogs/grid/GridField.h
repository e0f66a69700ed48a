// A table as a field of its dialog.
#pragma once

#include "dialogs/base/WzdField.h"
#include "dialogs/grid/GridDlg.h"

/// A column: what its cells take, and what is said of them.
struct SGridColumn
{
    int limit = 0; ///< characters that can be typed
    SWzdFormat format = kSigned;
    SWzdRange range = {0, -1};
    UINT message = 0;      ///< when a cell is outside the range
    UINT rangeHeading = 0; ///< shows the range in its second line, when the template does not
    UINT rangeText = 0;    ///< shown in place of the range
    UINT comment = 0;      ///< with a gap for the number of the row, from 1
};

using CGridColumns = std::span<const SGridColumn>;

/// Opens, refreshes and clears the table and checks its cells; a kind derived from it knows where they are stored.
class CGridField : public CWzdField
{
public:
    /// `columns` outlives the field.
    CGridField(CWzdDlgBase&, const SWzdRow& row, CGridDlg& dialog, CGridColumns columns)
        : CWzdField(dialog, row), m_grid(dialog.Grid()), m_columns(columns)
    {
    }

    bool Open() override;
    void Refresh() override;
    void Clear() override { m_grid.Clear(); }

    CGridColumns Columns() const { return m_columns; }

protected:
    /// The most rows that the table can have; it is empty at that moment.
    virtual int MostRows() const = 0;
    /// Fills the cells from the wizard's lists.
    virtual void Restore() = 0;

    const SGridColumn& Column(int column) const { return m_columns[static_cast<size_t>(column)]; }
    void SetValue(SGridCell cell, LONGLONG value);
    /// The number in a cell. False, with the cell selected and the message shown, when it is refused.
    [[nodiscard]] bool ReadCell(SGridCell cell, LONGLONG& value);

    CGridView& m_grid;

private:
    CGridColumns m_columns;
};
