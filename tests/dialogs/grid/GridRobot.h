// What a user does in the table of an open dialog, and what he sees there.
#pragma once

#include "afx/DialogRobot.h"
#include "dialogs/grid/GridDlg.h"
#include "tests/dialogs/grid/GridTexts.h"

#include <initializer_list>
#include <string>

inline constexpr UINT kGridCells = IDC_GRID_CELLS;

/// The table of the dialog that is being played. Without one it throws, which ends the scene.
CGridView& GridOf(const CDialogRobot& dialog);
inline const CGridModel& CellsOf(const CDialogRobot& dialog) { return GridOf(dialog).Model(); }
inline UINT EditorOf(const CDialogRobot& dialog) { return GridOf(dialog).Controls().editor; }

/// Types where the focus is.
void TypeHere(CDialogRobot& dialog, const std::string& text);
/// Presses keys one after the other.
void PressKeys(CDialogRobot& dialog, std::initializer_list<UINT> keys);
inline void PressCtrl(CDialogRobot& dialog, UINT key) { dialog.PressKey(key, {VK_CONTROL}); }
/// Types texts into cells from the current one on, from one to the next by Tab.
void TypeCells(CDialogRobot& dialog, std::initializer_list<const char*> texts);
/// Goes to the first cell and pastes.
void PasteCells(CDialogRobot& dialog, const std::string& text);

/// In pixels of the window of the cells.
CPoint CellPoint(const CDialogRobot& dialog, int visibleRow, int column);
void ClickCell(CDialogRobot& dialog, int visibleRow, int column);
void DoubleClickCell(CDialogRobot& dialog, int visibleRow, int column);
void Scroll(CDialogRobot& dialog, UINT code, int position = 0);
void TurnWheel(CDialogRobot& dialog, int delta);
/// Chooses an item of the context menu by its access key; nothing happens when it is grayed.
void ChooseInMenu(CDialogRobot& dialog, char accessKey);

/// What stands beside the rows in view.
std::vector<std::string> RowLabels(CDialogRobot& dialog);

/// Puts a text in a cell, past the limit of its editor, as the clipboard does. An editor that is open is dropped.
void SetCell(CDialogRobot& dialog, int row, int column, const std::string& text);
/// Clicks OK, which must be refused with this message: the cell is current, in view, and its editor is open with all of
/// its text selected.
void ExpectCellRefusal(CDialogRobot& dialog, unsigned message, int row, int column);
