// The table of a dialog under the hands of a user: keys, mouse, wheel, scroll bar, menu, clipboard and editor.
#include "dialogs/pulse/Sp0hDlg.h"
#include "tests/dialogs/grid/PaintCounter.h"
#include "tests/dialogs/pulse/Sp0hTest.h"

namespace
{

constexpr UINT kEditor = 2408;
constexpr UINT kScrollBar = 2409;

class CGridViewTest : public CSp0hTest
{
protected:
    /// Plays in a dialog whose table holds so many rows, named by CellName, and has the focus at its first cell.
    void InTable(int rows, const Scene& scene)
    {
        Leave([&](CDialogRobot& dialog) {
            dialog.Focus(kGridCells);
            std::string text;
            for (int row = 0; row < rows; ++row)
                text += CellName(row, 0) + "\t" + CellName(row, 1) + "\r\n";
            if (rows > 0)
                dialog.Paste(text.c_str());
            scene(dialog);
        });
    }

    static SGridCell Current(const CDialogRobot& dialog) { return CellsOf(dialog).Current(); }
    static bool IsEditing(CDialogRobot& dialog)
    {
        EXPECT_EQ(dialog.Visible(kEditor), dialog.FocusId() == kEditor);
        return dialog.Visible(kEditor);
    }
};

} // namespace

// ---- The window -----------------------------------------------------------------------------------------------------

TEST_F(CGridViewTest, StandsBetweenHeadingsLabelsAndScrollBar)
{
    InTable(0, [](CDialogRobot& dialog) {
        const auto place = [&dialog](UINT id) {
            CRect rect;
            dialog.Dialog()->GetDlgItem(static_cast<int>(id))->GetWindowRect(rect);
            return rect;
        };
        const CRect cells = place(kGridCells);
        EXPECT_EQ(cells.left, place(2411).left);
        EXPECT_EQ(cells.right, place(2417).right);
        EXPECT_LE(cells.right, place(kScrollBar).left);
        EXPECT_EQ(cells.top, place(2410).top);
        EXPECT_EQ(cells.bottom, place(2416).bottom);
        EXPECT_GE(cells.top, place(2411).bottom);
        EXPECT_LE(place(2416).right, cells.left);
        EXPECT_FALSE(dialog.Visible(kEditor));
    });
}

TEST_F(CGridViewTest, StandsInTheTabOrderBehindTheLists)
{
    InTable(0, [](CDialogRobot& dialog) {
        dialog.Focus(2404);
        dialog.PressKey(VK_TAB);
        EXPECT_EQ(dialog.FocusId(), kGridCells);
        PressKeys(dialog, {VK_TAB, VK_TAB}); // to the second cell, and out of the empty table
        EXPECT_EQ(dialog.FocusId(), static_cast<UINT>(IDOK));
        dialog.PressKey(VK_TAB, {VK_SHIFT});
        EXPECT_EQ(dialog.FocusId(), kGridCells);
        EXPECT_EQ(Current(dialog), (SGridCell{0, 1}));
        dialog.PressKey(VK_TAB, {VK_SHIFT});
        dialog.PressKey(VK_TAB, {VK_SHIFT});
        EXPECT_EQ(dialog.FocusId(), 2404u);
    });
}

TEST_F(CGridViewTest, NumbersItsRows)
{
    using Labels = std::vector<std::string>;
    InTable(7, [](CDialogRobot& dialog) {
        EXPECT_EQ(RowLabels(dialog), (Labels{"1", "2", "3", "4", "5"}));
        PressCtrl(dialog, VK_END);
        EXPECT_EQ(RowLabels(dialog), (Labels{"3", "4", "5", "6", "7"}));
        dialog.PressKey(VK_DOWN);
        EXPECT_EQ(RowLabels(dialog), (Labels{"4", "5", "6", "7", "8"}));
    });
    SetDeviceRange(m_wizard, kDT, 0, 15); // room for three steps
    InTable(1, [](CDialogRobot& dialog) { EXPECT_EQ(RowLabels(dialog), (Labels{"1", "2", "3", "", ""})); });
}

// ---- Keys -----------------------------------------------------------------------------------------------------------

TEST_F(CGridViewTest, GoesAboutByKeys)
{
    InTable(8, [](CDialogRobot& dialog) {
        const struct
        {
            UINT key;
            bool ctrl;
            SGridCell cell;
        } kKeys[] = {{VK_RIGHT, false, {0, 1}}, {VK_DOWN, false, {1, 1}}, {VK_LEFT, false, {1, 0}},
                     {VK_UP, false, {0, 0}},    {VK_END, false, {0, 1}},  {VK_HOME, false, {0, 0}},
                     {VK_NEXT, false, {5, 0}},  {VK_NEXT, false, {8, 0}}, {VK_PRIOR, false, {3, 0}},
                     {VK_END, true, {7, 1}},    {VK_HOME, true, {0, 0}},  {VK_RETURN, false, {1, 0}},
                     {VK_TAB, false, {1, 1}},   {VK_TAB, false, {2, 0}},  {VK_UP, false, {1, 0}}};
        for (const auto& [key, ctrl, cell] : kKeys)
        {
            ctrl ? PressCtrl(dialog, key) : dialog.PressKey(key);
            EXPECT_EQ(Current(dialog), cell) << "after key " << key;
            EXPECT_EQ(dialog.FocusId(), kGridCells);
        }
        dialog.PressKey(VK_TAB, {VK_SHIFT});
        EXPECT_EQ(Current(dialog), (SGridCell{0, 1}));
        EXPECT_EQ(TextsOf(CellsOf(dialog)).size(), 8u);
    });
}

TEST_F(CGridViewTest, LeavesKeysThatAreNotItsOwnToTheDialog)
{
    InTable(2, [](CDialogRobot& dialog) {
        dialog.PressKey(VK_ESCAPE);
        EXPECT_FALSE(dialog.IsOpen());
    });
    InTable(2, [](CDialogRobot& dialog) {
        dialog.Focus(2052); // Ctrl+D, Del and the arrows belong to the edit there
        PressCtrl(dialog, 'D');
        PressCtrl(dialog, 'I');
        PressKeys(dialog, {VK_DELETE, VK_DOWN, VK_HOME});
        EXPECT_EQ(CellsOf(dialog).UsedRows(), 2);
        EXPECT_EQ(Current(dialog), (SGridCell{0, 0}));
    });
}

TEST_F(CGridViewTest, EmptiesACellByDel)
{
    InTable(3, [](CDialogRobot& dialog) {
        dialog.PressKey(VK_DELETE);
        PressKeys(dialog, {VK_DOWN, VK_RIGHT, VK_BACK});
        EXPECT_EQ(TextsOf(CellsOf(dialog)), (GridTexts{{"", "0b"}, {"1a", ""}, {"2a", "2b"}}));
        EXPECT_FALSE(IsEditing(dialog));
    });
}

// ---- The editor -----------------------------------------------------------------------------------------------------

TEST_F(CGridViewTest, OpensItsEditorByTyping)
{
    InTable(2, [](CDialogRobot& dialog) {
        TypeHere(dialog, "4");
        EXPECT_TRUE(IsEditing(dialog));
        EXPECT_EQ(dialog.Text(kEditor), CString("4")); // it replaces what stood there
        TypeHere(dialog, "2");
        EXPECT_EQ(dialog.Text(kEditor), CString("42"));
        EXPECT_STREQ(CellsOf(dialog).Text({0, 0}), "0a");
        dialog.PressKey(VK_RETURN);
        EXPECT_FALSE(IsEditing(dialog));
        EXPECT_EQ(dialog.FocusId(), kGridCells);
        EXPECT_STREQ(CellsOf(dialog).Text({0, 0}), "42");
        EXPECT_EQ(Current(dialog), (SGridCell{1, 0}));
    });
}

TEST_F(CGridViewTest, PutsItsEditorOverTheCell)
{
    InTable(9, [](CDialogRobot& dialog) {
        for (const auto& [row, column] : {std::pair(0, 0), {0, 1}, {4, 1}, {7, 0}})
        {
            PressCtrl(dialog, VK_HOME);
            for (int i = 0; i < row; ++i)
                dialog.PressKey(VK_DOWN);
            dialog.PressKey(column == 1 ? VK_END : VK_HOME);
            dialog.PressKey(VK_F2);
            CRect place;
            dialog.Dialog()->GetDlgItem(kEditor)->GetWindowRect(place);
            CPoint point = CellPoint(dialog, row - CellsOf(dialog).FirstVisible(), column);
            GridOf(dialog).ClientToScreen(&point);
            EXPECT_TRUE(place.PtInRect(point)) << row << "/" << column;
            EXPECT_EQ(dialog.Text(kEditor), CString(CellName(row, column).c_str()));
            EXPECT_EQ(dialog.SelectedRange(kEditor), std::pair(2, 2)); // the caret is behind the text
            dialog.PressKey(VK_ESCAPE);
        }
    });
}

TEST_F(CGridViewTest, KeepsWhatIsTypedHoweverTheEditorIsLeft)
{
    const struct
    {
        const char* how;
        std::function<void(CDialogRobot&)> leave;
        SGridCell current;
        UINT focus;
    } kWays[] = {
        {"Enter", [](CDialogRobot& d) { d.PressKey(VK_RETURN); }, {2, 0}, kGridCells},
        {"Tab", [](CDialogRobot& d) { d.PressKey(VK_TAB); }, {1, 1}, kGridCells},
        {"Shift+Tab", [](CDialogRobot& d) { d.PressKey(VK_TAB, {VK_SHIFT}); }, {0, 1}, kGridCells},
        {"Up", [](CDialogRobot& d) { d.PressKey(VK_UP); }, {0, 0}, kGridCells},
        {"Down", [](CDialogRobot& d) { d.PressKey(VK_DOWN); }, {2, 0}, kGridCells},
        {"Page down", [](CDialogRobot& d) { d.PressKey(VK_NEXT); }, {6, 0}, kGridCells},
        {"Page up", [](CDialogRobot& d) { d.PressKey(VK_PRIOR); }, {0, 0}, kGridCells},
        {"a click in the table", [](CDialogRobot& d) { ClickCell(d, 3, 1); }, {3, 1}, kGridCells},
        {"another edit", [](CDialogRobot& d) { d.Focus(2052); }, {1, 0}, 2052},
        {"a list", [](CDialogRobot& d) { d.Select(2406, 1); }, {1, 0}, 2406},
        {"the check box", [](CDialogRobot& d) { d.Check(2061); }, {1, 0}, 2061},
        {"the scroll bar", [](CDialogRobot& d) { Scroll(d, SB_LINEDOWN); }, {1, 0}, kGridCells},
        {"the wheel", [](CDialogRobot& d) { TurnWheel(d, -120); }, {1, 0}, kGridCells},
    };
    for (const auto& [how, leave, current, focus] : kWays)
    {
        SCOPED_TRACE(how);
        InTable(9, [&, &leave = leave, &current = current, &focus = focus](CDialogRobot& dialog) {
            dialog.PressKey(VK_DOWN);
            TypeHere(dialog, "77");
            leave(dialog);
            EXPECT_FALSE(dialog.Visible(kEditor));
            EXPECT_STREQ(CellsOf(dialog).Text({1, 0}), "77");
            EXPECT_EQ(Current(dialog), current);
            if (focus != 2061) // a click by program does not move it everywhere
            {
                EXPECT_EQ(dialog.FocusId(), focus);
            }
        });
    }
}

TEST_F(CGridViewTest, DropsWhatIsTypedOnlyByEsc)
{
    InTable(2, [](CDialogRobot& dialog) {
        TypeHere(dialog, "77");
        dialog.PressKey(VK_ESCAPE);
        EXPECT_TRUE(dialog.IsOpen());
        EXPECT_FALSE(IsEditing(dialog));
        EXPECT_EQ(dialog.FocusId(), kGridCells);
        EXPECT_EQ(TextsOf(CellsOf(dialog)), (GridTexts{{"0a", "0b"}, {"1a", "1b"}}));
        EXPECT_EQ(Current(dialog), (SGridCell{0, 0}));
    });
}

TEST_F(CGridViewTest, LeavesTheKeysOfATextToTheEditor)
{
    InTable(2, [](CDialogRobot& dialog) {
        TypeHere(dialog, "123");
        PressKeys(dialog, {VK_LEFT, VK_LEFT, VK_DELETE, VK_HOME});
        TypeHere(dialog, "9");
        dialog.PressKey(VK_END);
        TypeHere(dialog, "8");
        TypeHere(dialog, "\b");
        EXPECT_TRUE(IsEditing(dialog));
        EXPECT_EQ(dialog.Text(kEditor), CString("913"));
        EXPECT_EQ(Current(dialog), (SGridCell{0, 0}));
    });
}

TEST_F(CGridViewTest, TypesFromCellToCellAndIntoNewRows)
{
    InTable(0, [](CDialogRobot& dialog) {
        TypeCells(dialog, {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12", "13"});
        EXPECT_EQ(TextsOf(CellsOf(dialog)),
                  (GridTexts{{"1", "2"}, {"3", "4"}, {"5", "6"}, {"7", "8"}, {"9", "10"}, {"11", "12"}, {"13", ""}}));
        EXPECT_EQ(dialog.FocusId(), kGridCells);
        dialog.PressKey(VK_TAB); // the first row that is not used is the last stop
        EXPECT_EQ(Current(dialog), (SGridCell{7, 0}));
        PressKeys(dialog, {VK_TAB, VK_TAB});
        EXPECT_EQ(dialog.FocusId(), static_cast<UINT>(IDOK));
    });
}

TEST_F(CGridViewTest, LeavesTheTableByTabFromTheEditorOfTheLastCell)
{
    SetDeviceRange(m_wizard, kDT, 0, 15);
    InTable(3, [](CDialogRobot& dialog) {
        PressCtrl(dialog, VK_END);
        TypeHere(dialog, "5");
        dialog.PressKey(VK_TAB);
        EXPECT_EQ(dialog.FocusId(), static_cast<UINT>(IDOK));
        EXPECT_FALSE(dialog.Visible(kEditor));
        EXPECT_STREQ(CellsOf(dialog).Text({2, 1}), "5");
    });
}

TEST_F(CGridViewTest, LimitsWhatIsTypedByColumn)
{
    InTable(0, [](CDialogRobot& dialog) {
        TypeCells(dialog, {"1234567", "123456789012"});
        EXPECT_EQ(TextsOf(CellsOf(dialog)), (GridTexts{{"123456", "12345678901"}}));
    });
}

TEST_F(CGridViewTest, BringsTheCurrentCellBackIntoViewWhenTypedInto)
{
    InTable(20, [](CDialogRobot& dialog) {
        Scroll(dialog, SB_BOTTOM);
        EXPECT_EQ(CellsOf(dialog).FirstVisible(), 16);
        TypeHere(dialog, "5");
        EXPECT_TRUE(IsEditing(dialog));
        EXPECT_EQ(CellsOf(dialog).FirstVisible(), 0);
        dialog.PressKey(VK_RETURN);
        EXPECT_STREQ(CellsOf(dialog).Text({0, 0}), "5");
    });
}

TEST_F(CGridViewTest, KeepsItsEditorUnderAMessageBox)
{
    InTable(1, [](CDialogRobot& dialog) {
        TypeHere(dialog, "5");
        dialog.Answering(IDOK, [&] { dialog.Dialog()->MessageBox("Something else", "Host"); });
        dialog.Pump();
        EXPECT_TRUE(dialog.Visible(kEditor));
        EXPECT_EQ(dialog.Text(kEditor), CString("5"));
        dialog.Focus(2052);
        EXPECT_STREQ(CellsOf(dialog).Text({0, 0}), "5");
    });
}

// ---- Mouse, wheel and scroll bar ------------------------------------------------------------------------------------

TEST_F(CGridViewTest, SelectsWhatIsClicked)
{
    InTable(9, [](CDialogRobot& dialog) {
        Scroll(dialog, SB_LINEDOWN);
        dialog.Focus(2052);
        for (const auto& [row, column] : {std::pair(0, 0), {4, 1}, {2, 0}, {3, 1}})
        {
            ClickCell(dialog, row, column);
            EXPECT_EQ(Current(dialog), (SGridCell{row + 1, column}));
            EXPECT_EQ(CellsOf(dialog).FirstVisible(), 1);
            EXPECT_EQ(dialog.FocusId(), kGridCells);
        }
    });
    SetDeviceRange(m_wizard, kDT, 0, 15);
    InTable(0, [](CDialogRobot& dialog) {
        ClickCell(dialog, 4, 1); // where there is no row
        EXPECT_EQ(Current(dialog), (SGridCell{2, 1}));
    });
}

TEST_F(CGridViewTest, OpensItsEditorByADoubleClick)
{
    InTable(3, [](CDialogRobot& dialog) {
        DoubleClickCell(dialog, 2, 1);
        EXPECT_TRUE(IsEditing(dialog));
        EXPECT_EQ(dialog.Text(kEditor), CString("2b"));
        DoubleClickCell(dialog, 0, 0);
        EXPECT_EQ(dialog.Text(kEditor), CString("0a"));
        EXPECT_EQ(Current(dialog), (SGridCell{0, 0}));
    });
}

TEST_F(CGridViewTest, ScrollsByItsScrollBar)
{
    InTable(20, [](CDialogRobot& dialog) {
        const struct
        {
            UINT code;
            int position;
            int first;
        } kScrolls[] = {{SB_LINEUP, 0, 0},      {SB_LINEDOWN, 0, 1},     {SB_PAGEDOWN, 0, 6},      {SB_LINEUP, 0, 5},
                        {SB_PAGEUP, 0, 0},      {SB_THUMBTRACK, 11, 11}, {SB_THUMBPOSITION, 9, 9}, {SB_ENDSCROLL, 0, 9},
                        {SB_BOTTOM, 0, 16},     {SB_PAGEDOWN, 0, 16},    {SB_LINEDOWN, 0, 16},     {SB_TOP, 0, 0},
                        {SB_THUMBTRACK, 99, 16}};
        for (const auto& [code, position, first] : kScrolls)
        {
            Scroll(dialog, code, position);
            EXPECT_EQ(CellsOf(dialog).FirstVisible(), first) << "by " << code;
            EXPECT_EQ(RowLabels(dialog)[0], std::to_string(first + 1));
            EXPECT_EQ(Current(dialog), (SGridCell{0, 0}));
            SCROLLINFO info = {};
            static_cast<CScrollBar*>(dialog.Dialog()->GetDlgItem(kScrollBar))->GetScrollInfo(&info);
            EXPECT_EQ(info.nPos, first);
            EXPECT_EQ(info.nMax, 20);
            EXPECT_EQ(info.nPage, 5u);
        }
    });
}

TEST_F(CGridViewTest, ScrollsByTheWheel)
{
    InTable(20, [](CDialogRobot& dialog) {
        const struct
        {
            int delta;
            int first;
        } kTurns[] = {{120, 0}, {-120, 3}, {-240, 9}, {120, 6}, {-40, 7}, {-20, 7}, {-20, 8}, {1200, 0}, {-12000, 16}};
        for (const auto& [delta, first] : kTurns)
        {
            TurnWheel(dialog, delta);
            EXPECT_EQ(CellsOf(dialog).FirstVisible(), first) << "by " << delta;
        }
    });
}

// ---- Rows -----------------------------------------------------------------------------------------------------------

TEST_F(CGridViewTest, InsertsAndDeletesRowsByKeysAndMenu)
{
    for (const bool byMenu : {false, true})
        InTable(3, [&](CDialogRobot& dialog) {
            dialog.PressKey(VK_DOWN);
            byMenu ? ChooseInMenu(dialog, 'i') : PressCtrl(dialog, 'I');
            EXPECT_EQ(TextsOf(CellsOf(dialog)), (GridTexts{{"0a", "0b"}, {"", ""}, {"1a", "1b"}, {"2a", "2b"}}));
            EXPECT_EQ(Current(dialog), (SGridCell{1, 0}));
            dialog.PressKey(VK_DOWN);
            byMenu ? ChooseInMenu(dialog, 'd') : PressCtrl(dialog, 'D');
            EXPECT_EQ(TextsOf(CellsOf(dialog)), (GridTexts{{"0a", "0b"}, {"", ""}, {"2a", "2b"}}));
        });
}

TEST_F(CGridViewTest, TakesWhatIsTypedOverBeforeARowIsInsertedOrDeleted)
{
    InTable(2, [](CDialogRobot& dialog) {
        TypeHere(dialog, "77");
        PressCtrl(dialog, 'I');
        EXPECT_FALSE(IsEditing(dialog));
        EXPECT_EQ(TextsOf(CellsOf(dialog)), (GridTexts{{"", ""}, {"77", "0b"}, {"1a", "1b"}}));
        TypeHere(dialog, "88");
        PressCtrl(dialog, 'D');
        EXPECT_EQ(TextsOf(CellsOf(dialog)), (GridTexts{{"77", "0b"}, {"1a", "1b"}}));
    });
}

TEST_F(CGridViewTest, PushesNoRowOutOfAFullTable)
{
    SetDeviceRange(m_wizard, kDT, 0, 15);
    for (const bool byMenu : {false, true})
        InTable(3, [&](CDialogRobot& dialog) {
            byMenu ? ChooseInMenu(dialog, 'i') : PressCtrl(dialog, 'I');
            EXPECT_EQ(TextsOf(CellsOf(dialog)), (GridTexts{{"0a", "0b"}, {"1a", "1b"}, {"2a", "2b"}}));
        });
}

// ---- Clipboard ------------------------------------------------------------------------------------------------------

TEST_F(CGridViewTest, PastesFromTheCurrentCellOnByKeyAndMenu)
{
    for (const bool byMenu : {false, true})
        InTable(3, [&](CDialogRobot& dialog) {
            dialog.Focus(2052);
            dialog.Paste("7\t8\r\n9\t10\r\n"); // the edit there takes the first line or nothing
            dialog.Focus(kGridCells);
            dialog.PressKey(VK_DOWN);
            byMenu ? ChooseInMenu(dialog, 'p') : PressCtrl(dialog, 'V');
            EXPECT_EQ(TextsOf(CellsOf(dialog)), (GridTexts{{"0a", "0b"}, {"7", "8"}, {"9", "10"}}));
        });
}

TEST_F(CGridViewTest, SaysWhatDidNotFit)
{
    SetDeviceRange(m_wizard, kDT, 0, 15);
    InTable(0, [](CDialogRobot& dialog) {
        EXPECT_STREQ(dialog.Answering(IDOK, [&] { dialog.Paste("1\t2\t3\t4\n5\t6\n7\n8\n9\n"); }),
                     "The table has no room for all that was to be pasted.\nLines left out: 2\nColumns left out: 2");
        EXPECT_EQ(dialog.MessageBoxes().back().caption, CString(kTestAppName));
        EXPECT_EQ(TextsOf(CellsOf(dialog)), (GridTexts{{"1", "2"}, {"5", "6"}, {"7", ""}}));
        EXPECT_EQ(dialog.FocusId(), kGridCells);
        dialog.Paste("a\tb\n"); // and says nothing when all does
    });
}

TEST_F(CGridViewTest, PastesIntoTheEditorWhatIsNoTable)
{
    InTable(2, [](CDialogRobot& dialog) {
        TypeHere(dialog, "1");
        dialog.Paste("23");
        EXPECT_EQ(dialog.Text(kEditor), CString("123"));
        dialog.Paste("5\t6\r\n7\t8\r\n"); // of which an edit would take the first line alone
        EXPECT_FALSE(IsEditing(dialog));
        EXPECT_EQ(TextsOf(CellsOf(dialog)), (GridTexts{{"5", "6"}, {"7", "8"}}));
    });
}

TEST_F(CGridViewTest, CopiesALineOrAllOfThem)
{
    const struct
    {
        std::function<void(CDialogRobot&)> copy;
        GridTexts pasted;
    } kCopies[] = {
        {[](CDialogRobot& d) { PressCtrl(d, 'C'); }, {{"1a", "1b"}}},
        {[](CDialogRobot& d) { ChooseInMenu(d, 'c'); }, {{"1a", "1b"}}},
        {[](CDialogRobot& d) {
             d.PressKey('C', {VK_CONTROL, VK_SHIFT});
         },
         {{"0a", "0b"}, {"1a", "1b"}, {"2a", "2b"}}},
        {[](CDialogRobot& d) { ChooseInMenu(d, 'a'); }, {{"0a", "0b"}, {"1a", "1b"}, {"2a", "2b"}}},
    };
    for (const auto& [copy, pasted] : kCopies)
    {
        InTable(3, [&copy = copy](CDialogRobot& dialog) {
            dialog.PressKey(VK_DOWN);
            copy(dialog);
        });
        InTable(0, [&pasted = pasted](CDialogRobot& dialog) {
            PressCtrl(dialog, 'V');
            EXPECT_EQ(TextsOf(CellsOf(dialog)), pasted);
        });
    }
}

TEST_F(CGridViewTest, OffersToPasteWhileThereIsAText)
{
    InTable(2, [](CDialogRobot& dialog) {
        dialog.Paste("x");
        if (::OpenClipboard(dialog.Dialog()->m_hWnd))
        {
            ::EmptyClipboard();
            ::CloseClipboard();
        }
        ChooseInMenu(dialog, 'p');
        PressCtrl(dialog, 'V');
        EXPECT_EQ(TextsOf(CellsOf(dialog)), (GridTexts{{"x", "0b"}, {"1a", "1b"}}));
    });
}

// ---- Painting -------------------------------------------------------------------------------------------------------

TEST_F(CGridViewTest, IsPaintedOnceByEachOperation)
{
    InTable(30, [](CDialogRobot& dialog) {
        const struct
        {
            const char* name;
            std::function<void()> operation;
        } kOperations[] = {
            {"paste", [&] { dialog.Paste("1\t2\n3\t4\n5\t6\n"); }},
            {"insert", [&] { PressCtrl(dialog, 'I'); }},
            {"delete", [&] { PressCtrl(dialog, 'D'); }},
            {"down", [&] { dialog.PressKey(VK_DOWN); }},
            {"scroll", [&] { Scroll(dialog, SB_PAGEDOWN); }},
            {"wheel", [&] { TurnWheel(dialog, -120); }},
        };
        dialog.Pump();
        for (const auto& [name, operation] : kOperations)
        {
            const CPaintCounter paints(GridOf(dialog).m_hWnd);
            operation();
            dialog.Pump();
            EXPECT_EQ(paints.Count(), 1) << name;
        }
    });
}
