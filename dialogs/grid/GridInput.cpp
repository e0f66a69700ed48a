// Keys, mouse and menu of the table.
#include "afx/Clipboard.h"
#include "dialogs/grid/GridView.h"

// ---- Keys -----------------------------------------------------------------------------------------------------------

namespace
{

/// A key that moves about, in the editor too when that has no use of its own for it.
struct SMoveKey
{
    UINT key;
    bool ctrl;
    bool inEditor;
    EGridMove move;
};

constexpr SMoveKey kMoveKeys[] = {
    {VK_UP, false, true, kCellUp},      {VK_DOWN, false, true, kCellDown},    {VK_RETURN, false, true, kCellDown},
    {VK_LEFT, false, false, kCellLeft}, {VK_RIGHT, false, false, kCellRight}, {VK_PRIOR, false, true, kPageUp},
    {VK_NEXT, false, true, kPageDown},  {VK_HOME, false, false, kRowStart},   {VK_END, false, false, kRowEnd},
    {VK_HOME, true, false, kFirstCell}, {VK_END, true, false, kLastCell},
};

bool IsDown(int key) { return ::GetKeyState(key) < 0; }

} // namespace

bool CGridView::TranslateKey(const MSG& message)
{
    const bool inEditor = IsToEditor(message);
    if (message.message != WM_KEYDOWN || (message.hwnd != m_hWnd && !inEditor) || IsDown(VK_MENU))
        return false;
    const auto key = static_cast<UINT>(message.wParam);
    const bool ctrl = IsDown(VK_CONTROL);
    if (key == VK_TAB && !ctrl) // where there is no further cell it leaves the table
        return MoveTo(IsDown(VK_SHIFT) ? kPreviousCell : kNextCell) || m_isEditing;
    for (const SMoveKey& row : kMoveKeys)
        if (row.key == key && row.ctrl == ctrl && (row.inEditor || !inEditor))
        {
            MoveTo(row.move);
            return true;
        }
    return TranslateCommand(key, ctrl) || (inEditor ? TranslateEditorKey(key, ctrl) : TranslateCellKey(key, ctrl));
}

bool CGridView::TranslateCommand(UINT key, bool ctrl)
{
    if (ctrl && key == 'I')
        InsertRow();
    else if (ctrl && key == 'D')
        DeleteRow();
    else
        return false;
    return true;
}

bool CGridView::TranslateEditorKey(UINT key, bool ctrl)
{
    if (ctrl && key == 'V')
        return PasteTable();
    if (key == VK_ESCAPE)
        DropEditor();
    else
        return false;
    return true;
}

bool CGridView::TranslateCellKey(UINT key, bool ctrl)
{
    if (ctrl && key == 'V')
        Paste();
    else if (ctrl && key == 'C')
        IsDown(VK_SHIFT) ? CopyAll() : CopyRow();
    else if (key == VK_F2)
        EditCell();
    else if (key == VK_DELETE || key == VK_BACK)
        EmptyCell();
    else
        return false;
    return true;
}

// What is no table goes into the text that is being edited.
bool CGridView::PasteTable()
{
    bool table = false;
    const int enough = WithMemory([&] {
        CString text;
        table = AfxGetClipboardText(this, text) && CGridModel::IsTable(text);
    });
    if (!enough)
        m_dialog.ShowWarning(IDS_ERR_MEMORY);
    else if (table)
        Paste();
    return table || !enough;
}

// Typing opens the editor. The second byte of a character comes when it is open.
void CGridView::OnChar(UINT character, UINT repeat, UINT)
{
    constexpr UINT kFirstPrinted = ' ', kDeleteWord = 0x7F;
    if (character < kFirstPrinted || character == kDeleteWord)
        return;
    if (!m_isEditing)
        OpenEditor("");
    Editor()->SendMessage(WM_CHAR, character, static_cast<LPARAM>(repeat));
}

// ---- Mouse ----------------------------------------------------------------------------------------------------------

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
