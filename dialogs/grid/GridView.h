// The window of a table's cells. Headings, row labels, scroll bar and editor are controls of the dialog's template; the
// window takes the place between them.
#pragma once

#include "core/Memory.h"
#include "dialogs/base/WzdDlgBase.h"
#include "dialogs/grid/GridModel.h"

#include <vector>

/// The controls of a template that belong to its table. The editor stands behind the row labels in tab order, hidden.
struct SGridControls
{
    std::span<const UINT> headings;  ///< above the columns
    std::span<const UINT> rowLabels; ///< beside the rows in view, of equal heights
    UINT editor;                     ///< comes up over the current cell
    UINT scrollBar;
};

class CGridView : public CWnd
{
public:
    /// `controls` and what it names live as long as the object.
    CGridView(CWzdDlgBase& dialog, const SGridControls& controls);

    /// Makes the window in the opened dialog, of a table that is empty. False when it cannot be made.
    [[nodiscard]] bool CreateView();

    const SGridControls& Controls() const { return m_controls; }
    const CGridModel& Model() const { return m_model; }

    // ---- For the fields of the dialog, which tell the user about failures -------------------------------------------

    /// To be followed by ShowCells.
    CGridModel& Model() { return m_model; }
    void ShowCells();
    /// How many rows were used when the dialog was told last.
    int ToldRows() const { return m_toldRows; }
    /// Shows the cells to a dialog that is in line with the rows: it is told when they become more or fewer.
    void Refresh();
    /// How many characters can be typed into the cells of a column.
    void LimitText(int column, int characters) { m_limits.at(static_cast<size_t>(column)) = characters; }
    int TextLimit(int column) const { return m_limits.at(static_cast<size_t>(column)); }
    void Clear();
    /// Selects a cell whose entry is refused, scrolls it into view, opens its editor with all of its text selected and
    /// shows the message. Always false.
    bool Refuse(SGridCell cell, UINT message);
    /// Takes over what stands in the editor and closes it. Without memory for it, it throws, and the editor stays open.
    void CloseEditor();
    /// The same for a dialog that then counts on being told of the rows.
    void Commit();

    // ---- What the user does; failures are told to him ---------------------------------------------------------------

    /// Whether a message is a key of the table, for the cells or for the editor.
    bool TranslateKey(const MSG& message);
    /// Whether a message is a turn of the wheel in the editor.
    bool TranslateWheel(const MSG& message);
    void OnEditorLeft();
    void Scroll(UINT code, int position);
    void ScrollBy(short wheelDelta);
    void Paste();
    void CopyRow();
    void CopyAll();
    void InsertRow();
    void DeleteRow();

protected:
    DECLARE_MESSAGE_MAP()

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC*) { return TRUE; } // every pixel is painted
    afx_msg void OnSetFocus(CWnd*) { Invalidate(FALSE); }
    afx_msg void OnKillFocus(CWnd*) { Invalidate(FALSE); }
    afx_msg UINT OnGetDlgCode() { return DLGC_WANTARROWS | DLGC_WANTCHARS; }
    afx_msg void OnChar(UINT character, UINT repeat, UINT flags);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnRButtonDown(UINT flags, CPoint point);
    afx_msg void OnContextMenu(CWnd* window, CPoint point);

private:
    bool IsToEditor(const MSG& message) const { return m_isEditing && message.hwnd == Editor()->m_hWnd; }
    CEdit* Editor() const { return static_cast<CEdit*>(m_dialog.GetDlgItem(m_controls.editor)); }
    /// Opens the editor over the current cell. `text` is what it begins with.
    void OpenEditor(LPCSTR text);
    void DropEditor();
    void EditCell() { OpenEditor(m_model.Text(m_model.Current())); }
    void EmptyCell();
    bool MoveTo(EGridMove move);
    bool TranslateCommand(UINT key, bool ctrl);
    bool TranslateEditorKey(UINT key, bool ctrl);
    bool TranslateCellKey(UINT key, bool ctrl);
    bool PasteTable();
    void SelectAt(CPoint point);

    /// Does what the user asked for, on the closed table, and shows the outcome.
    template <typename TOperation>
    void Do(TOperation operation);
    void TellRows();

    CRect CellRect(SGridCell cell) const;
    SGridCell CellAt(CPoint point) const;
    void DrawCell(CDC& dc, SGridCell cell) const;

    CWzdDlgBase& m_dialog;
    const SGridControls& m_controls;
    CGridModel m_model;
    std::vector<int> m_limits;
    bool m_isEditing = false;
    int m_toldRows = 1; // what the dialog knows of
    int m_wheel = 0;    // turned, and not enough for a line yet
};

template <typename TOperation>
void CGridView::Do(TOperation operation)
{
    const int enough = WithMemory([&] {
        CloseEditor();
        operation();
        ShowCells();
        TellRows();
    });
    if (!enough)
        m_dialog.ShowWarning(IDS_ERR_MEMORY);
}
