// The largest table of scaling: 32,767 points.
#include "tests/dialogs/grid/PaintCounter.h"
#include "tests/dialogs/process/ScalTest.h"

namespace
{

constexpr int kMost = 32767;

class CScalLargeTest : public CScalTest
{
protected:
    CScalLargeTest() { SetDeviceRange(m_wizard, kDT, 0, 1000000); }
};

INSTANTIATE_TEST_SUITE_P(Kinds, CScalLargeTest, testing::ValuesIn(kScalKinds), ScalKindName);

TEST_P(CScalLargeTest, IsPastedTypedIntoConfirmedAndRestored)
{
    SScalEntries entries = {.points = Points(kMost)};
    Confirm([&](CDialogRobot& dialog) {
        FillIn(dialog, entries);
        EXPECT_EQ(dialog.Text(3371), CString("32767"));
        EXPECT_EQ(dialog.Text(3372), CString("(2 - 32767)"));
        EXPECT_EQ(CellsOf(dialog).UsedRows(), kMost);
        EXPECT_TRUE(CellsOf(dialog).IsFull());
        dialog.Focus(kGridCells);
        PressCtrl(dialog, VK_END);
        EXPECT_EQ(CellsOf(dialog).Current(), (SGridCell{kMost - 1, 1}));
        EXPECT_EQ(RowLabels(dialog).back(), "32767");
        TypeHere(dialog, "7");
        dialog.PressKey(VK_RETURN);
        entries.points.back().y = "7";
        EXPECT_STREQ(CellsOf(dialog).Text({kMost - 1, 1}), "7");
    });
    EXPECT_EQ(ReadResults(m_wizard), ScalResults(GetParam(), entries));
    Confirm([](CDialogRobot& dialog) {
        EXPECT_EQ(CellsOf(dialog).UsedRows(), kMost);
        EXPECT_EQ(dialog.Text(3371), CString("32767"));
        EXPECT_STREQ(CellsOf(dialog).Text({kMost - 1, 1}), "7");
    });
    EXPECT_EQ(ReadResults(m_wizard), ScalResults(GetParam(), entries));
    EXPECT_EQ(m_wizard.CreateInstCode(), 1);
}

TEST_P(CScalLargeTest, TakesNoPointMore)
{
    Leave([](CDialogRobot& dialog) {
        FillIn(dialog, {});
        PressCtrl(dialog, VK_HOME);
        const CString message = dialog.Answering(IDOK, [&] { PasteCells(dialog, AsText(Points(kMost + 2))); });
        EXPECT_NE(message.Find("Lines left out: 2\n"), -1);
        EXPECT_EQ(dialog.Text(3371), CString("32767"));
        dialog.Type(3371, "32768");
        ExpectRefusal(dialog, 20042, 3371);
    });
}

TEST_P(CScalLargeTest, FindsItsLastCellBad)
{
    Leave([](CDialogRobot& dialog) {
        FillIn(dialog, {.points = Points(kMost)});
        SetCell(dialog, kMost - 1, 1, "x");
        ExpectCellRefusal(dialog, 20001, kMost - 1, 1);
        dialog.PressKey(VK_ESCAPE);
        SetCell(dialog, kMost - 1, 1, "1");
        SetCell(dialog, kMost - 1, 0, "0");
        ExpectCellRefusal(dialog, 20045, kMost - 1, 0);
        dialog.PressKey(VK_ESCAPE);
    });
}

TEST_P(CScalLargeTest, IsPaintedOnceByAKeyThatChangesIt)
{
    Leave([](CDialogRobot& dialog) {
        FillIn(dialog, {.points = Points(kMost)});
        dialog.Focus(kGridCells);
        PressCtrl(dialog, VK_END);
        dialog.Pump();
        const struct
        {
            const char* name;
            int paints;
            std::function<void()> press;
        } kKeys[] = {
            {"up", 1, [&] { dialog.PressKey(VK_UP); }},
            {"a digit that opens the editor", 1, [&] { TypeHere(dialog, "1"); }},
            {"a digit in the editor", 0, [&] { TypeHere(dialog, "2"); }},
            {"Enter", 1, [&] { dialog.PressKey(VK_RETURN); }},
            {"Tab", 1, [&] { dialog.PressKey(VK_TAB, {VK_SHIFT}); }},
            {"page up", 1, [&] { dialog.PressKey(VK_PRIOR); }},
            {"delete a row", 1, [&] { PressCtrl(dialog, 'D'); }},
            {"insert a row", 1, [&] { PressCtrl(dialog, 'I'); }},
            {"home", 1, [&] { PressCtrl(dialog, VK_HOME); }},
        };
        for (const auto& [name, paints, press] : kKeys)
        {
            const CPaintCounter counter(GridOf(dialog).m_hWnd);
            press();
            dialog.Pump();
            EXPECT_EQ(counter.Count(), paints) << name;
        }
    });
}

} // namespace
