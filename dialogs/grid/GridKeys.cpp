// Keys of the table.
#include "afx/Clipboard.h"
#include "afx/System.h"
#include "dialogs/grid/GridView.h"

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

// Typing opens the editor.
void CGridView::OnChar(UINT character, UINT repeat, UINT)
{
    constexpr UINT kFirstPrinted = ' ', kDeleteWord = 0x7F;
    if (character < kFirstPrinted || character == kDeleteWord)
        return;
    if (!m_isEditing)
        OpenEditor("");
    AfxForward(Editor(), WM_CHAR, character, static_cast<LPARAM>(repeat));
}
