#include "tests/dialogs/grid/GridRobot.h"

#include "tests/support/DialogChecks.h"
#include "tests/support/PrintTo.h"

#include <gtest/gtest.h>

#include <stdexcept>

CGridView& GridOf(const CDialogRobot& dialog)
{
    auto* table = dynamic_cast<CGridDlg*>(dialog.Dialog());
    if (table == nullptr)
        throw std::logic_error("no dialog with a table is open");
    return table->Grid();
}

void TypeHere(CDialogRobot& dialog, const std::string& text)
{
    for (const char c : text)
    {
        ::PostMessageA(::GetFocus(), WM_CHAR, static_cast<unsigned char>(c), 1);
        dialog.Pump();
    }
}

void PressKeys(CDialogRobot& dialog, std::initializer_list<UINT> keys)
{
    for (const UINT key : keys)
        dialog.PressKey(key);
}

void TypeCells(CDialogRobot& dialog, std::initializer_list<const char*> texts)
{
    for (const char* text : texts)
    {
        TypeHere(dialog, text);
        dialog.PressKey(VK_TAB);
    }
}

void PasteCells(CDialogRobot& dialog, const std::string& text)
{
    dialog.Focus(kGridCells);
    PressCtrl(dialog, VK_HOME);
    dialog.Paste(text.c_str());
}

CPoint CellPoint(const CDialogRobot& dialog, int visibleRow, int column)
{
    const SGridControls& controls = GridOf(dialog).Controls();
    CRect heading, label;
    const CWnd* window = dialog.Dialog();
    window->GetDlgItem(static_cast<int>(controls.headings[static_cast<size_t>(column)]))->GetWindowRect(heading);
    window->GetDlgItem(static_cast<int>(controls.rowLabels[static_cast<size_t>(visibleRow)]))->GetWindowRect(label);
    CPoint point(heading.CenterPoint().x, label.CenterPoint().y);
    GridOf(dialog).ScreenToClient(&point);
    return point;
}

namespace
{

void SendMouse(CDialogRobot& dialog, UINT message, int visibleRow, int column)
{
    const CPoint point = CellPoint(dialog, visibleRow, column);
    GridOf(dialog).SendMessage(message, 0, MAKELPARAM(point.x, point.y));
    dialog.Pump();
}

} // namespace

void ClickCell(CDialogRobot& dialog, int visibleRow, int column)
{
    SendMouse(dialog, WM_LBUTTONDOWN, visibleRow, column);
    SendMouse(dialog, WM_LBUTTONUP, visibleRow, column);
}

void DoubleClickCell(CDialogRobot& dialog, int visibleRow, int column)
{
    ClickCell(dialog, visibleRow, column);
    SendMouse(dialog, WM_LBUTTONDBLCLK, visibleRow, column);
    SendMouse(dialog, WM_LBUTTONUP, visibleRow, column);
}

void Scroll(CDialogRobot& dialog, UINT code, int position)
{
    const CWnd* window = dialog.Dialog();
    const CWnd* bar = window->GetDlgItem(static_cast<int>(GridOf(dialog).Controls().scrollBar));
    window->SendMessage(WM_VSCROLL, MAKEWPARAM(code, position), reinterpret_cast<LPARAM>(bar->m_hWnd));
    dialog.Pump();
}

void TurnWheel(CDialogRobot& dialog, int delta)
{
    ::PostMessageA(::GetFocus(), WM_MOUSEWHEEL, MAKEWPARAM(0, delta), 0);
    dialog.Pump();
}

void ChooseInMenu(CDialogRobot& dialog, char accessKey)
{
    const HWND window = dialog.Dialog()->m_hWnd;
    CGridView& grid = GridOf(dialog);
    ::PostMessageA(window, WM_CHAR, static_cast<WPARAM>(accessKey), 1);
    ::PostMessageA(window, WM_KEYDOWN, VK_ESCAPE, 1); // leaves a menu in which nothing was chosen
    grid.SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(grid.m_hWnd), -1);
    MSG message;
    while (::PeekMessageA(&message, window, WM_KEYFIRST, WM_KEYLAST, PM_REMOVE))
        continue; // or the dialog would take it
    dialog.Pump();
}

std::vector<std::string> RowLabels(CDialogRobot& dialog)
{
    std::vector<std::string> labels;
    for (const UINT label : GridOf(dialog).Controls().rowLabels)
        labels.emplace_back(dialog.Text(label));
    return labels;
}

void SetCell(CDialogRobot& dialog, int row, int column, const std::string& text)
{
    if (dialog.Visible(EditorOf(dialog)))
        dialog.PressKey(VK_ESCAPE);
    GridOf(dialog).Model().SetText({row, column}, text.c_str());
}

void ExpectCellRefusal(CDialogRobot& dialog, unsigned message, int row, int column)
{
    ExpectRefusal(dialog, message, EditorOf(dialog));
    const CGridModel& cells = CellsOf(dialog);
    const SGridCell cell = {row, column};
    EXPECT_EQ(cells.Current().row, row);
    EXPECT_EQ(cells.Current().column, column);
    EXPECT_LE(cells.FirstVisible(), row);
    EXPECT_LT(row, cells.FirstVisible() + 5);
    EXPECT_TRUE(dialog.Visible(EditorOf(dialog)));
    EXPECT_EQ(dialog.Text(EditorOf(dialog)), cells.Text(cell));
}
