// What tables take from the clipboard and give to it.
#include "dialogs/grid/GridModel.h"
#include "tests/dialogs/grid/GridTexts.h"
#include "tests/support/AllocationFaults.h"

#include <gtest/gtest.h>

#include <chrono>

namespace
{

class CGridPasteTest : public testing::Test
{
protected:
    CGridPasteTest() { m_grid.SetMostRows(6); }

    CGridModel m_grid{2};
};

struct SPaste
{
    const char* text;
    GridTexts rows;
    SGridLoss loss = {};
};

const SPaste kPastes[] = {
    {"", {{"", ""}}},
    {"1", {{"1", ""}}},
    {"1\t2", {{"1", "2"}}},
    {"1\t2\r\n3\t4\r\n", {{"1", "2"}, {"3", "4"}}}, // as spreadsheets put it there
    {"1\t2\r\n3\t4", {{"1", "2"}, {"3", "4"}}},
    {"1\t2\n3\t4\n", {{"1", "2"}, {"3", "4"}}},
    {"1\t2\r3\t4\r", {{"1", "2"}, {"3", "4"}}},
    {"1\n\r\n2\n", {{"1", ""}, {"", ""}, {"2", ""}}},
    {"1,2\n3,4\n", {{"1", "2"}, {"3", "4"}}},
    {"1,5\t2\n", {{"1,5", "2"}}}, // with tabs, a comma is part of a cell
    {"1,5\t2\n3,4", {{"1,5", "2"}, {"3,4", ""}}},
    {" 1 \t  2  \r\n 3 4 \t \r\n", {{"1", "2"}, {"3 4", ""}}},
    {"1 , 2", {{"1", "2"}}},
    {"\t2\n\t4", {{"", "2"}, {"", "4"}}},
    {",2", {{"", "2"}}},
    {"\n\n3\t4\n\n\n", {{"", ""}, {"", ""}, {"3", "4"}}},
    {"1\t2\t3", {{"1", "2"}}, {0, 1}},
    {"1\t2\t\t\t5\n6\t7\t8", {{"1", "2"}, {"6", "7"}}, {0, 3}},
    {"1\t2\t\t \n", {{"1", "2"}}}, // only blanks are left out
    {"1,2,3,4", {{"1", "2"}}, {0, 2}},
    {"1\n2\n3\n4\n5\n6", {{"1", ""}, {"2", ""}, {"3", ""}, {"4", ""}, {"5", ""}, {"6", ""}}},
    {"1\n2\n3\n4\n5\n6\n7", {{"1", ""}, {"2", ""}, {"3", ""}, {"4", ""}, {"5", ""}, {"6", ""}}, {1, 0}},
    {"1\n2\n3\n4\n5\n6\n\n \n\t\n9\t8\t7\n",
     {{"1", ""}, {"2", ""}, {"3", ""}, {"4", ""}, {"5", ""}, {"6", ""}},
     {1, 0}},
    {"1\n2\n3\n4\n5\n6\n\n\n", {{"1", ""}, {"2", ""}, {"3", ""}, {"4", ""}, {"5", ""}, {"6", ""}}},
    {"not a number\t1e5", {{"not a number", "1e5"}}}, // OK will say so
};

} // namespace

TEST_F(CGridPasteTest, FillsRowsByLineBreaksAndCellsByTabsOrCommas)
{
    for (const SPaste& paste : kPastes)
    {
        SCOPED_TRACE(paste.text);
        m_grid.Clear();
        EXPECT_EQ(m_grid.Paste(paste.text), paste.loss);
        EXPECT_EQ(TextsOf(m_grid), paste.rows);
        EXPECT_EQ(m_grid.Current(), (SGridCell{0, 0}));
    }
}

TEST_F(CGridPasteTest, ReplacesWhatStandsFromTheCurrentCellOn)
{
    m_grid.Paste("0a\t0b\n1a\t1b\n2a\t2b\n3a\t3b");
    m_grid.GoTo({1, 0});
    EXPECT_EQ(m_grid.Paste("x\ty\nz"), SGridLoss{});
    EXPECT_EQ(TextsOf(m_grid), (GridTexts{{"0a", "0b"}, {"x", "y"}, {"z", "2b"}, {"3a", "3b"}}));
    m_grid.GoTo({2, 1});
    EXPECT_EQ(m_grid.Paste("p\tq\nr\ts"), (SGridLoss{0, 1}));
    EXPECT_EQ(TextsOf(m_grid), (GridTexts{{"0a", "0b"}, {"x", "y"}, {"z", "p"}, {"3a", "r"}}));
    m_grid.GoTo({3, 0});
    EXPECT_EQ(m_grid.Paste("\t\n"), SGridLoss{}); // empty cells are cells, too
    EXPECT_EQ(TextsOf(m_grid), (GridTexts{{"0a", "0b"}, {"x", "y"}, {"z", "p"}}));
}

TEST_F(CGridPasteTest, SaysHowManyRowsAndColumnsDoNotFit)
{
    m_grid.Paste("1\n2\n3\n4\n5");
    m_grid.GoTo({4, 1});
    EXPECT_EQ(m_grid.Paste("a\tb\tc\nd\te\nf\tg\tmuch\tmore\nh"), (SGridLoss{2, 2}));
    EXPECT_EQ(TextsOf(m_grid)[4], (std::vector<std::string>{"5", "a"}));
    EXPECT_EQ(TextsOf(m_grid)[5], (std::vector<std::string>{"", "d"}));
    EXPECT_EQ(m_grid.UsedRows(), 6);
}

TEST_F(CGridPasteTest, LeavesTheCurrentCellInView)
{
    m_grid.SetMostRows(100);
    std::string lines;
    for (int i = 0; i < 50; ++i)
        lines += std::to_string(i) + "\n";
    m_grid.Paste(lines.c_str());
    m_grid.GoTo({30, 0});
    m_grid.ScrollTo(0);
    m_grid.Paste("x");
    EXPECT_EQ(m_grid.Current(), (SGridCell{30, 0}));
    EXPECT_EQ(m_grid.FirstVisible(), 26);
}

TEST_F(CGridPasteTest, KnowsATableFromTheTextOfACell)
{
    for (const char* text : {"", "1", "1,2", " 1 ", "1\n", "1\r\n", "1 2"})
        EXPECT_FALSE(CGridModel::IsTable(text)) << text;
    for (const char* text : {"1\t2", "\t", "1\n2", "1\r\n2\r\n", "1\n\n", "\n1"})
        EXPECT_TRUE(CGridModel::IsTable(text)) << text;
}

TEST_F(CGridPasteTest, CopiesRowsAsSpreadsheetsTakeThem)
{
    EXPECT_STREQ(m_grid.CopyRow(), "\t\r\n");
    EXPECT_STREQ(m_grid.CopyAll(), "\t\r\n");
    m_grid.Paste("1\t2\n3\t4\n\t6");
    m_grid.GoTo({1, 1});
    EXPECT_STREQ(m_grid.CopyRow(), "3\t4\r\n");
    EXPECT_STREQ(m_grid.CopyAll(), "1\t2\r\n3\t4\r\n\t6\r\n");
    m_grid.GoTo({4, 0});
    EXPECT_STREQ(m_grid.CopyRow(), "\t\r\n");
}

TEST_F(CGridPasteTest, TakesBackWhatItCopied)
{
    m_grid.Paste("1\t2\n\n3\t4\n\t6\n7");
    const GridTexts before = TextsOf(m_grid);
    CGridModel other{2};
    other.SetMostRows(6);
    EXPECT_EQ(other.Paste(m_grid.CopyAll()), SGridLoss{});
    EXPECT_EQ(TextsOf(other), before);
}

// Each allocation of a paste fails once: it is done as a whole or not at all.
TEST_F(CGridPasteTest, LosesNothingWithoutMemory)
{
    m_grid.Paste("0a\t0b\n1a\t1b");
    m_grid.GoTo({1, 0});
    const GridTexts before = TextsOf(m_grid);
    int successes = 0;
    for (bool failed = true; failed; ++successes)
    {
        ASSERT_EQ(TextsOf(m_grid), before);
        failed = false;
        CAllocationFaults faults(successes, 1);
        try
        {
            m_grid.Paste("a text that needs memory\tanother one\nthird\tfourth\nfifth\tsixth");
        }
        catch (CException* e)
        {
            e->Delete();
            failed = true;
        }
        catch (const std::bad_alloc&)
        {
            failed = true;
        }
    }
    EXPECT_GT(successes, 6);
    EXPECT_EQ(TextsOf(m_grid),
              (GridTexts{
                  {"0a", "0b"}, {"a text that needs memory", "another one"}, {"third", "fourth"}, {"fifth", "sixth"}}));
}

// The time that large tables take grows with their size, not with its square; the margin is a hundred times.
TEST_F(CGridPasteTest, TakesLargeTablesAtOnce)
{
    constexpr int kRows = 8190;
    std::string lines;
    for (int row = 0; row < kRows; ++row)
        lines += std::to_string(row) + "\t-2147483648\r\n";
    m_grid.SetMostRows(kRows);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(m_grid.Paste(lines.c_str()), SGridLoss{});
    EXPECT_EQ(m_grid.UsedRows(), kRows);
    EXPECT_EQ(m_grid.CopyAll(), lines.c_str());
    const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - start;
    EXPECT_LT(passed.count(), 5);
    m_grid.GoTo({kRows, 0});
    EXPECT_EQ(m_grid.Current().row, kRows - 1);
    EXPECT_EQ(m_grid.FirstVisible(), kRows - 5);
}
