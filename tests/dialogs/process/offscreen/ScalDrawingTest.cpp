// How the table of scaling draws the rows that do not count.
#include "afx/offscreen/Desktop.h"
#include "tests/dialogs/process/ScalTest.h"

#include <map>

namespace
{

class CScalDrawingTest : public CScalTest
{
protected:
    CScalDrawingTest() { offscreen::RecordDrawing(true); }
    ~CScalDrawingTest() override { offscreen::RecordDrawing(false); }
};

INSTANTIATE_TEST_SUITE_P(Kinds, CScalDrawingTest, testing::ValuesIn(kScalKinds), ScalKindName);

/// The colors in which the texts of the cells are drawn.
std::map<std::string, COLORREF> Colors(CDialogRobot& dialog)
{
    GridOf(dialog).Invalidate();
    dialog.Pump();
    std::map<std::string, COLORREF> colors;
    for (const offscreen::DrawnText& drawn : offscreen::TextDrawnIn(GridOf(dialog).m_hWnd))
        colors[drawn.text] = drawn.color;
    return colors;
}

TEST_P(CScalDrawingTest, GraysRowsBehindTheLastPoint)
{
    const COLORREF normal = ::GetSysColor(COLOR_WINDOWTEXT), gray = ::GetSysColor(COLOR_GRAYTEXT);
    ASSERT_NE(normal, gray);
    Leave([&](CDialogRobot& dialog) {
        PasteCells(dialog, "11\t12\n21\t22\n31\t32\n41\t42\n");
        for (const auto& [number, counting] : {std::pair("2", 2), {"3", 3}, {"4", 4}, {"9", 4}, {"1", 4}, {"x", 4}})
        {
            dialog.Focus(3371);
            dialog.Type(3371, number);
            dialog.Focus(3369);
            const auto colors = Colors(dialog);
            for (int row = 1; row <= 4; ++row)
                for (int column = 1; column <= 2; ++column)
                {
                    const auto found = colors.find(std::to_string(row * 10 + column));
                    ASSERT_NE(found, colors.end());
                    EXPECT_EQ(found->second, row <= counting ? normal : gray) << row << " of " << number;
                }
        }
    });
}

} // namespace
