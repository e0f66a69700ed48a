// A table of texts that grows as it is filled, without windows: its cells, the current cell, and the rows in view.
#pragma once

#include "afx/afx.h"

#include <vector>

enum EGridMove
{
    kCellUp,
    kCellDown,
    kCellLeft,
    kCellRight,
    kPageUp,
    kPageDown,
    kRowStart,
    kRowEnd,
    kFirstCell,
    kLastCell, ///< of the last row that is used
    kNextCell, ///< to the right, then in the next row; no further than the first row that is not used
    kPreviousCell
};

struct SGridCell
{
    int row = 0;
    int column = 0;

    bool operator==(const SGridCell& other) const { return row == other.row && column == other.column; }
};

/// What of a text did not fit.
struct SGridLoss
{
    int rows = 0;
    int columns = 0;

    bool operator==(const SGridLoss& other) const { return rows == other.rows && columns == other.columns; }
};

/// Operations that need memory throw when there is none, and leave the table as it was.
class CGridModel
{
public:
    static constexpr int kVisibleRows = 5;

    explicit CGridModel(int columns) : m_columns(columns) {}

    // ---- Size -------------------------------------------------------------------------------------------------------

    int Columns() const { return m_columns; }
    /// The most rows that can be filled, at least one. Rows that are filled stay when it shrinks.
    void SetMostRows(int rows);
    int MostRows() const { return m_mostRows; }
    /// Up to the last row with a filled cell, at least 1.
    int UsedRows() const { return FilledRows() > 0 ? FilledRows() : 1; }
    /// How many rows the table is to have; with 0 it has those that are used.
    void SetWantedRows(int rows);
    /// Whether a row is one of the table, not one behind it.
    bool IsWanted(int row) const { return m_wantedRows == 0 || row < m_wantedRows; }
    /// Those that can be gone to: the used ones and an empty one, the wanted ones, and as many as are in view at once.
    int Rows() const;
    bool IsFull() const { return FilledRows() >= m_mostRows; }

    // ---- Cells ------------------------------------------------------------------------------------------------------

    /// Empty for a cell that was never filled.
    LPCSTR Text(SGridCell cell) const;
    /// Blanks around a text are no part of it.
    void SetText(SGridCell cell, LPCSTR text);
    void Clear();

    /// Inserts an empty row before the current one. False when the table is full.
    bool InsertRow();
    void DeleteRow();

    /// Fills cells from the current one on. Line breaks end rows; tabs separate cells or, in a text without any,
    /// commas.
    SGridLoss Paste(LPCSTR text);
    /// Whether a text is more than the text of one cell.
    static bool IsTable(LPCSTR text);
    /// Rows as spreadsheets exchange them, each with its line break.
    CString CopyRow() const { return Copy(m_current.row, m_current.row + 1); }
    CString CopyAll() const { return Copy(0, UsedRows()); }

    // ---- The current cell and the view ------------------------------------------------------------------------------

    SGridCell Current() const { return m_current; }
    /// Goes to the nearest cell that there is and scrolls it into view.
    void GoTo(SGridCell cell);
    /// False when there is no further cell that way.
    bool Move(EGridMove move);

    int FirstVisible() const { return m_firstVisible; }
    void ScrollTo(int firstVisible);

private:
    int FilledRows() const { return static_cast<int>(m_cells.size()) / m_columns; }
    size_t Index(SGridCell cell) const { return static_cast<size_t>(cell.row) * m_columns + cell.column; }
    SGridCell Target(EGridMove move) const;
    void Fill(size_t index, CString&& text);
    void Trim();
    CString Copy(int firstRow, int endRow) const;

    int m_columns;
    int m_mostRows = 1;
    int m_wantedRows = 0;
    std::vector<CString> m_cells; // row by row; the last row has a filled cell
    SGridCell m_current;
    int m_firstVisible = 0;
};
