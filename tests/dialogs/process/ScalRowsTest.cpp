// The table of scaling under the hands of a user: the number of points and the rows follow one another; keys, menu and
// clipboard work as in the other tables.
#include "tests/dialogs/process/ScalTest.h"

namespace
{

constexpr UINT kPoints = 3371;

class CScalRowsTest : public CScalTest
{
protected:
    /// Plays in a dialog whose table holds so many rows, with the number as typed or, when that is null, as it became.
    void InTable(int rows, const char* number, const Scene& scene)
    {
        Leave([&](CDialogRobot& dialog) {
            dialog.Type(3369, "100");
            dialog.Focus(kGridCells);
            if (rows > 0)
                dialog.Paste(AsText(Points(rows)).c_str());
            if (number != nullptr)
            {
                dialog.Focus(kPoints);
                dialog.Type(kPoints, number);
                dialog.Focus(kGridCells);
            }
            scene(dialog);
        });
    }

    static void ExpectCount(CDialogRobot& dialog, const char* number, int rows)
    {
        EXPECT_EQ(dialog.Text(kPoints), CString(number));
        EXPECT_EQ(CellsOf(dialog).UsedRows(), rows);
    }
};

INSTANTIATE_TEST_SUITE_P(Kinds, CScalRowsTest, testing::ValuesIn(kScalKinds), ScalKindName);

} // namespace

// ---- The number follows the rows ------------------------------------------------------------------------------------

TEST_P(CScalRowsTest, CountsTheRowsThatAreTyped)
{
    InTable(0, nullptr, [](CDialogRobot& dialog) {
        TypeCells(dialog, {"1", "2"}); // one row is no table yet
        ExpectCount(dialog, "", 1);
        TypeCells(dialog, {"3"});
        ExpectCount(dialog, "2", 2);
        TypeCells(dialog, {"4", "5", "6", "7", "8", "9", "10", "11", "12", "13"});
        ExpectCount(dialog, "7", 7);
    });
}

TEST_P(CScalRowsTest, CountsTheRowsThatArePasted)
{
    InTable(0, nullptr, [](CDialogRobot& dialog) {
        dialog.Paste("1\t2\n3\t4\n5\t6\n");
        ExpectCount(dialog, "3", 3);
        PressCtrl(dialog, VK_END);
        dialog.PressKey(VK_DOWN);
        PressCtrl(dialog, VK_HOME);
        for (int i = 0; i < 3; ++i)
            dialog.PressKey(VK_DOWN);
        dialog.Paste("7,8\n9,10\n");
        ExpectCount(dialog, "5", 5);
        PressCtrl(dialog, VK_HOME);
        dialog.Paste("0\t0\n"); // over rows that there are
        ExpectCount(dialog, "5", 5);
    });
}

TEST_P(CScalRowsTest, CountsRowsThatAreInsertedAndDeleted)
{
    InTable(4, nullptr, [](CDialogRobot& dialog) {
        ExpectCount(dialog, "4", 4);
        PressCtrl(dialog, 'I');
        ExpectCount(dialog, "5", 5);
        PressCtrl(dialog, 'D');
        ExpectCount(dialog, "4", 4);
        PressCtrl(dialog, 'D');
        ExpectCount(dialog, "3", 3);
        PressCtrl(dialog, VK_END);
        dialog.PressKey(VK_DELETE);
        ExpectCount(dialog, "3", 3); // the other cell of the row is filled
        dialog.PressKey(VK_LEFT);
        dialog.PressKey(VK_DELETE);
        ExpectCount(dialog, "2", 2);
        for (int i = 0; i < 4; ++i)
        {
            PressCtrl(dialog, VK_HOME);
            PressCtrl(dialog, 'D');
        }
        ExpectCount(dialog, "", 1); // no table has a single row
        TypeCells(dialog, {"1", "2", "3"});
        ExpectCount(dialog, "2", 2);
    });
}

TEST_P(CScalRowsTest, LeavesALargerNumberUntilThereAreMoreRows)
{
    InTable(2, "5", [](CDialogRobot& dialog) {
        ExpectCount(dialog, "5", 2);
        PressCtrl(dialog, VK_END);
        dialog.PressKey(VK_TAB);
        TypeCells(dialog, {"500", "1", "501", "1"});
        ExpectCount(dialog, "5", 4);
        PressCtrl(dialog, VK_HOME);
        PressCtrl(dialog, 'D');
        ExpectCount(dialog, "5", 3);
        dialog.Paste("1\t1\n2\t2\n3\t3\n4\t4\n5\t5\n");
        ExpectCount(dialog, "5", 5);
        PressCtrl(dialog, 'I'); // now it is the number of the rows
        ExpectCount(dialog, "6", 6);
        PressCtrl(dialog, 'D');
        ExpectCount(dialog, "5", 5);
    });
    InTable(2, "5", [](CDialogRobot& dialog) {
        dialog.Paste("1\t1\n2\t2\n3\t3\n4\t4\n5\t5\n6\t6\n7\t7\n");
        ExpectCount(dialog, "7", 7);
    });
}

// The rows behind it are left out because the user wants it so.
TEST_P(CScalRowsTest, LeavesASmallerNumber)
{
    InTable(5, "3", [](CDialogRobot& dialog) {
        ExpectCount(dialog, "3", 5);
        PressCtrl(dialog, 'D');
        ExpectCount(dialog, "3", 4);
        dialog.Paste("1\t1\n"); // the same rows
        ExpectCount(dialog, "3", 4);
        PressCtrl(dialog, 'I');
        PressCtrl(dialog, 'I');
        ExpectCount(dialog, "3", 6);
    });
    InTable(5, "3", [](CDialogRobot& dialog) {
        PressCtrl(dialog, 'D');
        ExpectCount(dialog, "3", 4);
        PressCtrl(dialog, 'D');
        ExpectCount(dialog, "3", 3);
        PressCtrl(dialog, 'D'); // by now it is the number of the rows
        ExpectCount(dialog, "2", 2);
    });
}

TEST_P(CScalRowsTest, LeavesANumberAloneThatItCannotRead)
{
    for (const char* number : {"x", "-3", "0", "2.0"})
        InTable(3, number, [number](CDialogRobot& dialog) {
            PressCtrl(dialog, 'I');
            ExpectCount(dialog, number, 4);
            PressCtrl(dialog, 'D');
            PressCtrl(dialog, 'D');
            ExpectCount(dialog, number, 2);
            dialog.Paste("1\t1\n2\t2\n3\t3\n4\t4\n5\t5\n6\t6\n7\t7\n");
            ExpectCount(dialog, number, 7);
        });
    InTable(3, "99999", [](CDialogRobot& dialog) { // more than there can be
        PressCtrl(dialog, 'I');
        ExpectCount(dialog, "99999", 4);
    });
    for (const char* blank : {"", "   "})
        InTable(3, blank, [](CDialogRobot& dialog) {
            PressCtrl(dialog, 'I');
            ExpectCount(dialog, "4", 4);
        });
}

TEST_P(CScalRowsTest, CountsTheRowThatIsStillInTheEditorWhenOkIsPressed)
{
    SScalEntries entries;
    entries.points = {{"1", "2"}, {"3", "4"}, {"5", "6"}};
    Confirm([&](CDialogRobot& dialog) {
        FillIn(dialog, {.points = {{"1", "2"}, {"3", "4"}}});
        PressCtrl(dialog, VK_HOME);
        dialog.Focus(kGridCells);
        PressCtrl(dialog, VK_END);
        dialog.PressKey(VK_TAB);
        TypeHere(dialog, "5"); // OK counts the row, and misses its Y
        EXPECT_EQ(dialog.Text(kPoints), CString("2"));
        ExpectCellRefusal(dialog, 20001, 2, 1);
        EXPECT_EQ(dialog.Text(kPoints), CString("3"));
        TypeHere(dialog, "6");
    });
    EXPECT_EQ(ReadResults(m_wizard), ScalResults(GetParam(), entries));
}

// Without the focus leaving the editor first.
TEST_P(CScalRowsTest, CountsThatRowWhenAProgramPressesOk)
{
    Confirm([](CDialogRobot& dialog) {
        FillIn(dialog, {.points = {{"1", "2"}, {"3", "4"}}});
        dialog.Focus(kGridCells);
        PressCtrl(dialog, VK_END);
        dialog.PressKey(VK_TAB);
        TypeHere(dialog, "5");
        const auto press = [&dialog] { dialog.Dialog()->SendMessage(WM_COMMAND, IDOK); };
        EXPECT_EQ(dialog.Answering(IDOK, press), CString(MessageText(20001).c_str())); // its Y is missing
        EXPECT_EQ(dialog.Text(kPoints), CString("3"));
        TypeHere(dialog, "6");
    });
    EXPECT_EQ(ReadResults(m_wizard), ScalResults(GetParam(), {.points = {{"1", "2"}, {"3", "4"}, {"5", "6"}}}));
}

TEST_P(CScalRowsTest, CountsOnFromTheRowsThatAreRestored)
{
    Confirmed({});
    Leave([](CDialogRobot& dialog) {
        ExpectCount(dialog, "3", 3);
        dialog.Focus(kGridCells);
        PressCtrl(dialog, 'I');
        ExpectCount(dialog, "4", 4);
    });
}

// ---- The rows follow the number -------------------------------------------------------------------------------------

TEST_P(CScalRowsTest, OffersAsManyRowsAsPointsAreWanted)
{
    InTable(2, nullptr, [](CDialogRobot& dialog) {
        const struct
        {
            const char* number;
            int rows;
        } kNumbers[] = {{"2", 5}, {"20", 20}, {"6", 6}, {"1", 5}, {"1000", 1000}, {"x", 5}, {"99999", 5}, {"", 5}};
        for (const auto& [number, rows] : kNumbers)
        {
            dialog.Focus(kPoints);
            dialog.Type(kPoints, number);
            dialog.Focus(kGridCells);
            EXPECT_EQ(CellsOf(dialog).Rows(), rows) << number;
            Scroll(dialog, SB_BOTTOM);
            EXPECT_EQ(RowLabels(dialog).back(), std::to_string(rows)) << number;
            Scroll(dialog, SB_TOP);
            PressCtrl(dialog, VK_HOME);
        }
    });
}

TEST_P(CScalRowsTest, ShowsWhichRowsAreBehindTheLastPoint)
{
    InTable(4, "2", [](CDialogRobot& dialog) {
        for (int row = 0; row < 6; ++row)
            EXPECT_EQ(CellsOf(dialog).IsWanted(row), row < 2) << row;
        dialog.Focus(kPoints);
        dialog.Type(kPoints, "4");
        dialog.Focus(kGridCells);
        EXPECT_TRUE(CellsOf(dialog).IsWanted(3));
        EXPECT_FALSE(CellsOf(dialog).IsWanted(4));
        dialog.Focus(kPoints);
        dialog.Type(kPoints, "x");
        dialog.Focus(kGridCells);
        EXPECT_TRUE(CellsOf(dialog).IsWanted(9)) << "no number that could be used";
    });
}

TEST_P(CScalRowsTest, HasNoMoreRowsThanTheRegistersHold)
{
    SetDeviceRange(m_wizard, kDT, 100, 100 + 2 * GetParam().width * 3); // three points
    InTable(0, nullptr, [](CDialogRobot& dialog) {
        EXPECT_EQ(dialog.Answering(IDOK, [&] { dialog.Paste(AsText(Points(5)).c_str()); }),
                  CString("The table has no room for all that was to be pasted.\nLines left out: 2\nColumns left out: "
                          "0"));
        ExpectCount(dialog, "3", 3);
        EXPECT_EQ(RowLabels(dialog), (std::vector<std::string>{"1", "2", "3", "", ""}));
        PressCtrl(dialog, 'I'); // it is full
        ExpectCount(dialog, "3", 3);
        EXPECT_EQ(CellsOf(dialog).MostRows(), 3);
    });
}

TEST_P(CScalRowsTest, HasAsManyRowsAsTheStartLeavesRoomFor)
{
    const int width = GetParam().width;
    InTable(0, nullptr, [width](CDialogRobot& dialog) {
        const auto start = [&](int number) {
            dialog.Focus(3369);
            dialog.Type(3369, std::to_string(number).c_str());
            dialog.Focus(kGridCells);
            return CellsOf(dialog).MostRows();
        };
        EXPECT_EQ(start(0), 32764 / (2 * width));
        EXPECT_EQ(start(32764 - 2 * width * 7), 7);
        EXPECT_EQ(start(32764 - 2 * width * 7 + 1), 6);
        dialog.SelectText(3368, "WL");
        EXPECT_EQ(CellsOf(dialog).MostRows(), 127 / (2 * width));
    });
}

// ---- Keys, menu, clipboard ------------------------------------------------------------------------------------------

TEST_P(CScalRowsTest, WorksByKeysMenuAndClipboardAsOtherTables)
{
    InTable(3, nullptr, [](CDialogRobot& dialog) {
        SetCell(dialog, 0, 0, "a");
        dialog.PressKey(VK_DOWN);
        ChooseInMenu(dialog, 'i');
        ExpectCount(dialog, "4", 4);
        EXPECT_STREQ(CellsOf(dialog).Text({1, 0}), "");
        EXPECT_STREQ(CellsOf(dialog).Text({0, 0}), "a");
        TypeCells(dialog, {"7", "8"});
        EXPECT_EQ(CellsOf(dialog).Current(), (SGridCell{2, 0}));
        dialog.PressKey(VK_UP);
        ChooseInMenu(dialog, 'd');
        ExpectCount(dialog, "3", 3);
        PressCtrl(dialog, VK_HOME);
        PressCtrl(dialog, 'C');
        dialog.PressKey(VK_DOWN);
        ChooseInMenu(dialog, 'p');
        EXPECT_STREQ(CellsOf(dialog).Text({1, 0}), "a");
        TypeHere(dialog, "12");
        EXPECT_TRUE(dialog.Visible(3381));
        dialog.PressKey(VK_ESCAPE);
        EXPECT_TRUE(dialog.IsOpen());
        EXPECT_STREQ(CellsOf(dialog).Text({1, 0}), "a");
        TypeHere(dialog, "12");
        dialog.PressKey(VK_RETURN);
        EXPECT_TRUE(dialog.IsOpen());
        EXPECT_STREQ(CellsOf(dialog).Text({1, 0}), "12");
        DoubleClickCell(dialog, 0, 1);
        EXPECT_TRUE(dialog.Visible(3381));
        dialog.PressKey(VK_TAB);
        EXPECT_EQ(CellsOf(dialog).Current(), (SGridCell{1, 0}));
        TurnWheel(dialog, -120);
        EXPECT_EQ(CellsOf(dialog).FirstVisible(), 0); // all in view
    });
}

// ---- Refused cells --------------------------------------------------------------------------------------------------

namespace
{

/// Enter, which leaves no edit: whatever follows the one with the focus has not been told yet.
void ExpectRefusedByEnter(CDialogRobot& dialog, int row)
{
    dialog.Answering(IDOK, [&] { dialog.PressKey(VK_RETURN); });
    ASSERT_TRUE(dialog.IsOpen());
    EXPECT_EQ(CellsOf(dialog).Current(), (SGridCell{row, 0}));
    EXPECT_TRUE(dialog.Visible(3381));
    EXPECT_EQ(dialog.FocusId(), 3381u);
    EXPECT_EQ(dialog.Text(3381), CString());
    CRect cells, editor;
    dialog.Dialog()->GetDlgItem(kGridCells)->GetWindowRect(cells);
    dialog.Dialog()->GetDlgItem(3381)->GetWindowRect(editor);
    const int line = row - CellsOf(dialog).FirstVisible();
    EXPECT_EQ((editor.top - cells.top + 2) * CGridModel::kVisibleRows / cells.Height(), line);
}

} // namespace

TEST_P(CScalRowsTest, OpensARefusedCellWhereTheNumberJustTypedHasMovedIt)
{
    InTable(3, "100", [](CDialogRobot& dialog) {
        dialog.Check(2061);
        dialog.Focus(kGridCells);
        for (int i = 0; i < 3; ++i)
            dialog.PressKey(VK_NEXT);
        dialog.Focus(kPoints);
        dialog.Type(kPoints, "4");
        ExpectRefusedByEnter(dialog, 3);
    });
}

TEST_P(CScalRowsTest, OpensARefusedCellThatTheStartJustTypedMakesRoomFor)
{
    Leave([this](CDialogRobot& dialog) {
        dialog.Check(2061);
        dialog.Type(3369, std::to_string(kLastRegister - 6 * GetParam().width).c_str());
        dialog.Focus(kGridCells);
        dialog.Paste(AsText(Points(3)).c_str());
        dialog.Focus(kPoints);
        dialog.Type(kPoints, "10");
        dialog.Focus(3369);
        dialog.Type(3369, "1");
        ExpectRefusedByEnter(dialog, 3);
        dialog.Focus(kGridCells);
        EXPECT_EQ(TextsOf(CellsOf(dialog)).size(), 3u) << "nothing is lost";
    });
}
