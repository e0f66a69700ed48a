// The table without windows: size, cells, insertion and deletion, moving about, scrolling.
#include "dialogs/grid/GridModel.h"
#include "tests/dialogs/grid/GridTexts.h"

#include <gtest/gtest.h>

#include <random>

namespace
{

class CGridModelTest : public testing::Test
{
protected:
    CGridModelTest() { m_grid.SetMostRows(100); }

    void Fill(int rows)
    {
        for (int row = 0; row < rows; ++row)
            for (int column = 0; column < 2; ++column)
                m_grid.SetText({row, column}, CellName(row, column).c_str());
    }

    CGridModel m_grid{2};
};

} // namespace

// ---- Size -----------------------------------------------------------------------------------------------------------

TEST_F(CGridModelTest, BeginsWithOneUsedRowAndAViewOfEmptyOnes)
{
    EXPECT_EQ(m_grid.Columns(), 2);
    EXPECT_EQ(m_grid.UsedRows(), 1);
    EXPECT_EQ(m_grid.Rows(), 5);
    EXPECT_EQ(m_grid.FirstVisible(), 0);
    EXPECT_EQ(m_grid.Current(), (SGridCell{0, 0}));
    EXPECT_EQ(TextsOf(m_grid), (GridTexts{{"", ""}}));
    EXPECT_FALSE(m_grid.IsFull());
}

TEST_F(CGridModelTest, IsUsedUpToTheLastFilledCell)
{
    m_grid.SetText({3, 1}, "x");
    EXPECT_EQ(m_grid.UsedRows(), 4);
    EXPECT_EQ(TextsOf(m_grid), (GridTexts{{"", ""}, {"", ""}, {"", ""}, {"", "x"}}));
    m_grid.SetText({1, 0}, "y");
    EXPECT_EQ(m_grid.UsedRows(), 4);
    m_grid.SetText({3, 1}, "");
    EXPECT_EQ(m_grid.UsedRows(), 2);
    m_grid.SetText({1, 0}, "");
    EXPECT_EQ(m_grid.UsedRows(), 1);
}

TEST_F(CGridModelTest, OffersAnEmptyRowBelowTheUsedOnes)
{
    const int rows[] = {5, 5, 5, 5, 5, 6, 7, 8};
    for (int used = 0; used < 8; ++used)
    {
        Fill(used);
        EXPECT_EQ(m_grid.Rows(), rows[used]) << used;
    }
    m_grid.SetMostRows(7);
    EXPECT_EQ(m_grid.Rows(), 7);
    EXPECT_TRUE(m_grid.IsFull());
    m_grid.SetMostRows(8);
    EXPECT_EQ(m_grid.Rows(), 8);
    EXPECT_FALSE(m_grid.IsFull());
}

TEST_F(CGridModelTest, HasNoMoreRowsThanThereMayBe)
{
    m_grid.SetMostRows(3);
    EXPECT_EQ(m_grid.Rows(), 3);
    m_grid.GoTo({4, 0});
    EXPECT_EQ(m_grid.Current(), (SGridCell{2, 0}));
    m_grid.SetMostRows(0);
    EXPECT_EQ(m_grid.Rows(), 1);
    EXPECT_EQ(m_grid.MostRows(), 1);
    EXPECT_EQ(m_grid.Current(), (SGridCell{0, 0}));
}

TEST_F(CGridModelTest, KeepsItsRowsWhenFewerMayBe)
{
    Fill(6);
    m_grid.GoTo({5, 1});
    m_grid.SetMostRows(2);
    EXPECT_EQ(m_grid.UsedRows(), 6);
    EXPECT_EQ(m_grid.Rows(), 6);
    EXPECT_TRUE(m_grid.IsFull());
    EXPECT_EQ(m_grid.Current(), (SGridCell{5, 1}));
    EXPECT_FALSE(m_grid.InsertRow());
    EXPECT_EQ(TextsOf(m_grid).back(), (std::vector<std::string>{"5a", "5b"}));
}

// ---- Cells ----------------------------------------------------------------------------------------------------------

TEST_F(CGridModelTest, LeavesOutBlanksAroundATextButNotInIt)
{
    m_grid.SetText({0, 0}, "  1 2 ");
    m_grid.SetText({0, 1}, "   ");
    EXPECT_STREQ(m_grid.Text({0, 0}), "1 2");
    EXPECT_STREQ(m_grid.Text({0, 1}), "");
    m_grid.SetText({4, 0}, "  ");
    EXPECT_EQ(m_grid.UsedRows(), 1);
}

TEST_F(CGridModelTest, IsClearedWhole)
{
    Fill(9);
    m_grid.GoTo({8, 1});
    m_grid.Clear();
    EXPECT_EQ(TextsOf(m_grid), (GridTexts{{"", ""}}));
    EXPECT_EQ(m_grid.Current(), (SGridCell{0, 0}));
    EXPECT_EQ(m_grid.FirstVisible(), 0);
    EXPECT_EQ(m_grid.Rows(), 5);
}

TEST_F(CGridModelTest, InsertsBeforeTheCurrentRow)
{
    Fill(3);
    m_grid.GoTo({1, 1});
    EXPECT_TRUE(m_grid.InsertRow());
    EXPECT_EQ(TextsOf(m_grid), (GridTexts{{"0a", "0b"}, {"", ""}, {"1a", "1b"}, {"2a", "2b"}}));
    EXPECT_EQ(m_grid.Current(), (SGridCell{1, 1}));
    m_grid.GoTo({0, 0});
    EXPECT_TRUE(m_grid.InsertRow());
    EXPECT_EQ(m_grid.UsedRows(), 5);
    m_grid.GoTo({5, 0}); // the empty row below
    EXPECT_TRUE(m_grid.InsertRow());
    EXPECT_EQ(m_grid.UsedRows(), 5);
}

TEST_F(CGridModelTest, DoesNotPushItsLastRowOut)
{
    m_grid.SetMostRows(3);
    Fill(3);
    EXPECT_FALSE(m_grid.InsertRow());
    EXPECT_EQ(TextsOf(m_grid), (GridTexts{{"0a", "0b"}, {"1a", "1b"}, {"2a", "2b"}}));
    m_grid.SetText({2, 0}, "");
    m_grid.SetText({2, 1}, "");
    EXPECT_TRUE(m_grid.InsertRow());
    EXPECT_EQ(TextsOf(m_grid), (GridTexts{{"", ""}, {"0a", "0b"}, {"1a", "1b"}}));
}

TEST_F(CGridModelTest, DeletesTheCurrentRow)
{
    Fill(4);
    m_grid.GoTo({1, 0});
    m_grid.DeleteRow();
    EXPECT_EQ(TextsOf(m_grid), (GridTexts{{"0a", "0b"}, {"2a", "2b"}, {"3a", "3b"}}));
    m_grid.GoTo({3, 0}); // the empty row below
    m_grid.DeleteRow();
    EXPECT_EQ(m_grid.UsedRows(), 3);
    for (int i = 0; i < 5; ++i)
    {
        m_grid.GoTo({0, 0});
        m_grid.DeleteRow();
    }
    EXPECT_EQ(TextsOf(m_grid), (GridTexts{{"", ""}}));
}

TEST_F(CGridModelTest, DropsRowsThatAreEmptyAtTheEndAfterADeletion)
{
    Fill(2);
    m_grid.SetText({6, 0}, "x");
    m_grid.GoTo({6, 0});
    m_grid.DeleteRow();
    EXPECT_EQ(m_grid.UsedRows(), 2);
    EXPECT_EQ(m_grid.Current(), (SGridCell{6, 0})); // nothing jumps under the user's hand
    EXPECT_EQ(m_grid.Rows(), 7);
    EXPECT_TRUE(m_grid.Move(kCellRight));
    EXPECT_EQ(m_grid.Current(), (SGridCell{6, 1}));
    EXPECT_FALSE(m_grid.Move(kCellDown));
    m_grid.GoTo({0, 0});
    EXPECT_EQ(m_grid.Rows(), 5);
}

// ---- Moving about ---------------------------------------------------------------------------------------------------

TEST_F(CGridModelTest, MovesCellByCell)
{
    Fill(6);
    const struct
    {
        SGridCell from;
        EGridMove move;
        SGridCell to;
    } kMoves[] = {
        {{0, 0}, kCellUp, {0, 0}},       {{3, 1}, kCellUp, {2, 1}},       {{6, 0}, kCellDown, {6, 0}},
        {{5, 0}, kCellDown, {6, 0}},     {{2, 0}, kCellLeft, {2, 0}},     {{2, 1}, kCellLeft, {2, 0}},
        {{2, 0}, kCellRight, {2, 1}},    {{2, 1}, kCellRight, {2, 1}},    {{6, 1}, kPageUp, {1, 1}},
        {{3, 1}, kPageUp, {0, 1}},       {{0, 1}, kPageDown, {5, 1}},     {{4, 1}, kPageDown, {6, 1}},
        {{4, 1}, kRowStart, {4, 0}},     {{4, 0}, kRowEnd, {4, 1}},       {{4, 1}, kFirstCell, {0, 0}},
        {{1, 0}, kLastCell, {5, 1}},     {{6, 0}, kLastCell, {5, 1}},     {{2, 0}, kNextCell, {2, 1}},
        {{2, 1}, kNextCell, {3, 0}},     {{5, 1}, kNextCell, {6, 0}},     {{6, 0}, kNextCell, {6, 1}},
        {{6, 1}, kNextCell, {6, 1}},     {{0, 0}, kPreviousCell, {0, 0}}, {{0, 1}, kPreviousCell, {0, 0}},
        {{3, 0}, kPreviousCell, {2, 1}},
    };
    for (const auto& [from, move, to] : kMoves)
    {
        m_grid.GoTo(from);
        EXPECT_EQ(m_grid.Move(move), !(from == to)) << move;
        EXPECT_EQ(m_grid.Current(), to) << "from " << from.row << "/" << from.column << " by " << move;
    }
}

TEST_F(CGridModelTest, TabsNoFurtherThanTheFirstEmptyRow)
{
    const auto tabs = [this] {
        m_grid.GoTo({0, 0});
        int count = 0;
        while (m_grid.Move(kNextCell))
            ++count;
        return count;
    };
    EXPECT_EQ(tabs(), 1);
    Fill(1);
    EXPECT_EQ(tabs(), 3);
    Fill(3);
    EXPECT_EQ(tabs(), 7);
    m_grid.SetMostRows(3);
    EXPECT_EQ(tabs(), 5);
    int back = 0;
    while (m_grid.Move(kPreviousCell))
        ++back;
    EXPECT_EQ(back, 5);
}

TEST_F(CGridModelTest, GoesToTheNearestCellThatThereIs)
{
    Fill(8);
    m_grid.GoTo({-3, -1});
    EXPECT_EQ(m_grid.Current(), (SGridCell{0, 0}));
    m_grid.GoTo({99, 7});
    EXPECT_EQ(m_grid.Current(), (SGridCell{8, 1}));
}

// ---- The view -------------------------------------------------------------------------------------------------------

TEST_F(CGridModelTest, ScrollsTheCurrentCellIntoViewAndNoFurther)
{
    Fill(20);
    for (const auto& [row, first] : {std::pair(4, 0), {5, 1}, {9, 5}, {7, 5}, {5, 5}, {4, 4}, {20, 16}, {0, 0}})
    {
        m_grid.GoTo({row, 0});
        EXPECT_EQ(m_grid.FirstVisible(), first) << row;
    }
}

TEST_F(CGridModelTest, ScrollsWithoutTheCurrentCell)
{
    Fill(20);
    m_grid.GoTo({2, 1});
    for (const auto& [wanted, first] : {std::pair(10, 10), {-5, 0}, {16, 16}, {17, 16}, {1000, 16}})
    {
        m_grid.ScrollTo(wanted);
        EXPECT_EQ(m_grid.FirstVisible(), first);
        EXPECT_EQ(m_grid.Current(), (SGridCell{2, 1}));
    }
    m_grid.Move(kCellRight);
    EXPECT_EQ(m_grid.FirstVisible(), 2);
}

TEST_F(CGridModelTest, ScrollsNothingOutOfSightWhenItShrinks)
{
    Fill(20);
    m_grid.ScrollTo(16);
    m_grid.SetText({19, 0}, "");
    m_grid.SetText({19, 1}, "");
    EXPECT_EQ(m_grid.FirstVisible(), 15);
    m_grid.GoTo({0, 0});
    m_grid.ScrollTo(15);
    m_grid.DeleteRow();
    EXPECT_EQ(m_grid.FirstVisible(), 14);
    m_grid.Clear();
    EXPECT_EQ(m_grid.FirstVisible(), 0);
}

// ---- Rows that are wanted
// --------------------------------------------------------------------------------------------

TEST_F(CGridModelTest, HasTheWantedRowsBesideTheUsedOnes)
{
    const struct
    {
        int wanted;
        int used;
        int rows;
    } kSizes[] = {{0, 0, 5},    {1, 0, 5},    {5, 0, 5},   {6, 0, 6},   {20, 0, 20},   {20, 3, 20},   {20, 19, 20},
                  {20, 20, 21}, {20, 25, 26}, {2, 10, 11}, {0, 10, 11}, {100, 4, 100}, {101, 4, 100}, {40000, 4, 100}};
    for (const auto& [wanted, used, rows] : kSizes)
    {
        m_grid.Clear();
        Fill(used);
        m_grid.SetWantedRows(wanted);
        EXPECT_EQ(m_grid.Rows(), rows) << wanted << " wanted, " << used << " used";
        EXPECT_EQ(m_grid.UsedRows(), std::max(used, 1));
        EXPECT_EQ(m_grid.IsFull(), false);
        m_grid.GoTo({1000, 0});
        EXPECT_EQ(m_grid.Current().row, rows - 1);
        EXPECT_EQ(m_grid.FirstVisible(), rows - 5);
        m_grid.GoTo({0, 0});
        m_grid.ScrollTo(1000);
        EXPECT_EQ(m_grid.FirstVisible(), rows - 5);
    }
}

TEST_F(CGridModelTest, KnowsWhichRowsAreWanted)
{
    Fill(6);
    for (const int row : {0, 5, 99})
        EXPECT_TRUE(m_grid.IsWanted(row)) << "without a number all are";
    m_grid.SetWantedRows(4);
    EXPECT_TRUE(m_grid.IsWanted(0));
    EXPECT_TRUE(m_grid.IsWanted(3));
    EXPECT_FALSE(m_grid.IsWanted(4));
    EXPECT_FALSE(m_grid.IsWanted(5));
    m_grid.SetWantedRows(0);
    EXPECT_TRUE(m_grid.IsWanted(5));
    EXPECT_EQ(m_grid.UsedRows(), 6) << "whatever is wanted";
}

TEST_F(CGridModelTest, ScrollsBackWhenFewerRowsAreWanted)
{
    Fill(8);
    m_grid.SetWantedRows(50);
    m_grid.ScrollTo(45);
    m_grid.SetWantedRows(20);
    EXPECT_EQ(m_grid.FirstVisible(), 15);
    m_grid.SetWantedRows(0);
    EXPECT_EQ(m_grid.FirstVisible(), 4); // 8 rows and an empty one
    m_grid.SetWantedRows(50);
    m_grid.GoTo({40, 1});
    m_grid.SetWantedRows(10); // the current row stays
    EXPECT_EQ(m_grid.Current(), (SGridCell{40, 1}));
    EXPECT_EQ(m_grid.Rows(), 41);
    m_grid.SetMostRows(30);
    EXPECT_EQ(m_grid.Current(), (SGridCell{29, 1}));
}

TEST_F(CGridModelTest, MovesThroughWantedRows)
{
    m_grid.SetWantedRows(12);
    EXPECT_TRUE(m_grid.Move(kPageDown));
    EXPECT_EQ(m_grid.Current(), (SGridCell{5, 0}));
    EXPECT_TRUE(m_grid.Move(kPageDown));
    EXPECT_TRUE(m_grid.Move(kPageDown));
    EXPECT_EQ(m_grid.Current(), (SGridCell{11, 0}));
    EXPECT_FALSE(m_grid.Move(kCellDown));
    m_grid.SetText({11, 0}, "x");
    EXPECT_EQ(m_grid.UsedRows(), 12);
    EXPECT_TRUE(m_grid.Move(kCellDown)); // to the empty one below
    EXPECT_EQ(m_grid.Current(), (SGridCell{12, 0}));
}

// ---- Everything at random, against a plain model --------------------------------------------------------------------

TEST_F(CGridModelTest, DoesAtRandomWhatAPlainListOfRowsDoes)
{
    constexpr int kMost = 12;
    std::mt19937 random(1);
    m_grid.SetMostRows(kMost);
    std::vector<std::vector<std::string>> rows(kMost, {"", ""});
    const auto used = [&rows] {
        int last = 0;
        for (int row = 0; row < kMost; ++row)
            last = rows[static_cast<size_t>(row)] == std::vector<std::string>{"", ""} ? last : row;
        return last + 1;
    };
    for (int step = 0; step < 20000; ++step)
    {
        const int row = static_cast<int>(random() % kMost), column = static_cast<int>(random() % 2);
        const int before = m_grid.Current().row;
        m_grid.GoTo({row, column});
        const SGridCell at = m_grid.Current();
        ASSERT_EQ(at.row, std::min(row, std::min(std::max({used(), 4, before}), kMost - 1)));
        const auto here = rows.begin() + at.row;
        switch (random() % 4)
        {
        case 0:
        case 1:
            (*here)[static_cast<size_t>(at.column)] = random() % 2 == 0 ? std::to_string(step) : "";
            m_grid.SetText(at, (*here)[static_cast<size_t>(at.column)].c_str());
            break;
        case 2: {
            const bool full = rows.back() != std::vector<std::string>{"", ""};
            EXPECT_EQ(m_grid.InsertRow(), !full);
            if (!full)
            {
                rows.insert(here, {"", ""});
                rows.pop_back();
            }
            break;
        }
        default:
            m_grid.DeleteRow();
            rows.erase(here);
            rows.push_back({"", ""});
        }
        ASSERT_EQ(m_grid.UsedRows(), used()) << "step " << step;
        ASSERT_EQ(TextsOf(m_grid), GridTexts(rows.begin(), rows.begin() + used())) << "step " << step;
        ASSERT_LE(m_grid.FirstVisible(), std::max(m_grid.Rows() - 5, 0));
    }
}
