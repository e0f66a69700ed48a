#include "dialogs/grid/GridView.h"

#include "afx/Clipboard.h"
#include "core/FillText.h"
#include "core/Memory.h"
#include "core/Values.h"

#include <algorithm>
#include <cstring>

BEGIN_MESSAGE_MAP(CGridView, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_SETFOCUS()
ON_WM_KILLFOCUS()
ON_WM_GETDLGCODE()
ON_WM_CHAR()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONDBLCLK()
ON_WM_RBUTTONDOWN()
ON_WM_CONTEXTMENU()
END_MESSAGE_MAP()

CGridView::CGridView(CWzdDlgBase& dialog, const SGridControls& controls)
    : m_dialog(dialog), m_controls(controls), m_model(static_cast<int>(controls.headings.size())),
      m_limits(controls.headings.size())
{
    ASSERT(controls.rowLabels.size() == CGridModel::kVisibleRows);
}

namespace
{

CRect PlaceOf(const CWzdDlgBase& dialog, UINT id)
{
    CRect place;
    if (const CWnd* control = dialog.GetDlgItem(id))
        control->GetWindowRect(place);
    dialog.ScreenToClient(place);
    return place;
}

} // namespace

bool CGridView::CreateView()
{
    m_model.Clear();
    m_isEditing = false;
    m_toldRows = m_model.UsedRows();
    CRect place = PlaceOf(m_dialog, m_controls.rowLabels.front());
    place.bottom = PlaceOf(m_dialog, m_controls.rowLabels.back()).bottom;
    place.left = PlaceOf(m_dialog, m_controls.headings.front()).left;
    place.right = PlaceOf(m_dialog, m_controls.headings.back()).right;
    if (Editor() == nullptr ||
        !Create(nullptr, nullptr, WS_VISIBLE | WS_TABSTOP | WS_CLIPSIBLINGS, place, &m_dialog, IDC_GRID_CELLS))
        return false;
    // Behind the editor in tab order, and below it.
    SetWindowPos(Editor(), 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    ShowCells();
    return true;
}

// ---- Showing --------------------------------------------------------------------------------------------------------

void CGridView::ShowCells()
{
    int row = m_model.FirstVisible();
    for (const UINT label : m_controls.rowLabels)
    {
        m_dialog.SetItemText(label, row < m_model.Rows() ? FormatDecimal64(row + 1) : CString());
        ++row;
    }
    SCROLLINFO scroll = {};
    scroll.fMask = SIF_RANGE | SIF_PAGE | SIF_POS | SIF_DISABLENOSCROLL;
    scroll.nMax = m_model.Rows() - 1;
    scroll.nPage = CGridModel::kVisibleRows;
    scroll.nPos = m_model.FirstVisible();
    if (auto* bar = static_cast<CScrollBar*>(m_dialog.GetDlgItem(m_controls.scrollBar)))
        bar->SetScrollInfo(&scroll);
    Invalidate(FALSE);
}

CRect CGridView::CellRect(SGridCell cell) const
{
    CRect client;
    GetClientRect(client);
    const int row = cell.row - m_model.FirstVisible();
    const auto x = [&](int column) { return client.right * column / m_model.Columns(); };
    const auto y = [&](int line) { return client.bottom * line / CGridModel::kVisibleRows; };
    return {x(cell.column), y(row), x(cell.column + 1), y(row + 1)};
}

SGridCell CGridView::CellAt(CPoint point) const
{
    CRect client;
    GetClientRect(client);
    return {m_model.FirstVisible() + point.y * CGridModel::kVisibleRows / std::max<int>(client.bottom, 1),
            point.x * m_model.Columns() / std::max<int>(client.right, 1)};
}

void CGridView::OnPaint()
{
    CPaintDC dc(this);
    CFont* previous = dc.SelectObject(Editor()->GetFont());
    dc.SetBkMode(TRANSPARENT);
    const int first = m_model.FirstVisible();
    for (int row = first; row < first + CGridModel::kVisibleRows; ++row)
        for (int column = 0; column < m_model.Columns(); ++column)
            DrawCell(dc, {row, column});
    dc.SelectObject(previous);
}

void CGridView::DrawCell(CDC& dc, SGridCell cell) const
{
    constexpr int kLine = 1, kMargin = 4, kMostDrawn = 200;
    CRect rect = CellRect(cell);
    dc.FillSolidRect(rect, ::GetSysColor(COLOR_BTNSHADOW));
    rect.right -= kLine;
    rect.bottom -= kLine;

    const bool usable = IsWindowEnabled() && cell.row < m_model.Rows();
    const bool current = usable && cell == m_model.Current();
    const bool selected = current && ::GetFocus() == m_hWnd;
    dc.FillSolidRect(rect, ::GetSysColor(selected ? COLOR_HIGHLIGHT : usable ? COLOR_WINDOW : COLOR_BTNFACE));
    if (current)
        dc.DrawFocusRect(rect);
    rect.left += kMargin;
    dc.SetTextColor(::GetSysColor(selected ? COLOR_HIGHLIGHTTEXT : usable ? COLOR_WINDOWTEXT : COLOR_GRAYTEXT));
    dc.DrawText(CString(m_model.Text(cell)).Left(kMostDrawn), rect, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
}

// ---- The editor -----------------------------------------------------------------------------------------------------

void CGridView::OpenEditor(LPCSTR text)
{
    const SGridCell cell = m_model.Current();
    m_model.GoTo(cell); // into view
    ShowCells();
    CEdit* editor = Editor();
    editor->LimitText(m_limits[static_cast<size_t>(cell.column)]);
    editor->SetWindowText(text);
    CRect place = CellRect(cell);
    ::MapWindowPoints(m_hWnd, m_dialog.m_hWnd, reinterpret_cast<LPPOINT>(&place), 2);
    editor->MoveWindow(place);
    editor->ShowWindow(SW_SHOW);
    m_isEditing = true;
    editor->SetFocus();
    const auto end = static_cast<int>(std::strlen(text));
    editor->SetSel(end, end);
}

void CGridView::CloseEditor()
{
    if (!m_isEditing)
        return;
    m_model.SetText(m_model.Current(), m_dialog.ItemText(m_controls.editor));
    DropEditor();
}

void CGridView::DropEditor()
{
    m_isEditing = false;
    if (GetFocus() == Editor())
        SetFocus();
    Editor()->ShowWindow(SW_HIDE);
    ShowCells();
}

// The focus may be on its way to another program or to a message box: then the editor gets it back.
void CGridView::OnEditorLeft()
{
    const CWnd* focus = GetFocus();
    if (!m_isEditing || focus == nullptr || !m_dialog.IsChild(focus))
        return;
    // Without memory the editor stays open and keeps its text: OK will say so.
    if (WithMemory([this] { CloseEditor(); }))
        TellRows();
}

bool CGridView::Refuse(SGridCell cell, UINT message)
{
    m_model.GoTo(cell);
    EditCell();
    return m_dialog.Refuse(m_controls.editor, message);
}

// ---- Operations -----------------------------------------------------------------------------------------------------

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

void CGridView::TellRows()
{
    if (m_model.UsedRows() == m_toldRows)
        return;
    m_dialog.OnChanged(m_controls.editor);
    m_toldRows = m_model.UsedRows();
}

void CGridView::Clear()
{
    if (m_isEditing)
        DropEditor();
    m_model.Clear();
    m_toldRows = m_model.UsedRows();
    ShowCells();
}

bool CGridView::MoveTo(EGridMove move)
{
    bool moved = false;
    Do([&] { moved = m_model.Move(move); });
    return moved;
}

void CGridView::EmptyCell()
{
    Do([this] { m_model.SetText(m_model.Current(), ""); });
}

void CGridView::InsertRow()
{
    bool inserted = true;
    Do([&] { inserted = m_model.InsertRow(); });
    if (!inserted)
        ::MessageBeep(MB_OK);
}

void CGridView::DeleteRow()
{
    Do([this] { m_model.DeleteRow(); });
}

void CGridView::Paste()
{
    SGridLoss loss;
    Do([&] {
        CString text;
        if (AfxGetClipboardText(this, text))
            loss = m_model.Paste(text);
    });
    if (loss == SGridLoss())
        return;
    const int enough = WithMemory([&] {
        const CString message = FillText(IDS_GRID_NO_ROOM, {loss.rows, loss.columns});
        m_dialog.ShowWarningText(message);
    });
    if (!enough)
        m_dialog.ShowWarning(IDS_ERR_MEMORY);
}

void CGridView::CopyRow()
{
    Do([this] { AfxSetClipboardText(this, m_model.CopyRow()); });
}

void CGridView::CopyAll()
{
    Do([this] { AfxSetClipboardText(this, m_model.CopyAll()); });
}

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
