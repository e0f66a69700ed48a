// The marks, the swatches, and what is painted again when something changes.
#include "tests/dialogs/process/ScrDispTest.h"
#include "tests/support/Canvas.h"
#include "tests/support/Sampled.h"

#include "dialogs/process/ScrDispDlg.h"
#include "dialogs/process/ScreenDrawing.h"

#include <map>
#include <utility>

namespace
{

using CScrDispMarksTest = CScrDispTest;

TEST_F(CScrDispMarksTest, ShowTheMarksAtOnce)
{
    SScrDispEntries entries;
    Confirm([&](CDialogRobot& dialog) {
        FillIn(dialog, entries);
        for (int mark = 0; mark < kMarks; ++mark)
        {
            dialog.Click(kFirstMark + static_cast<UINT>(mark));
            entries.marks |= 1u << mark;
            ExpectPreview(dialog, entries);
        }
        for (const int mark : {3, 0, 7, 5})
        {
            dialog.Click(kFirstMark + static_cast<UINT>(mark));
            entries.marks &= ~(1u << mark);
            ExpectPreview(dialog, entries);
        }
    });
    EXPECT_EQ(ReadResults(m_wizard), ScrDispResults(entries));
    EXPECT_EQ(ReadResults(m_wizard).data[0].value, 0x40 | 0x20 | 0x08 | 0x02);
}

// Each mark alone, against its bit.
TEST_F(CScrDispMarksTest, HaveABitForEachMark)
{
    for (const unsigned mark : SampledNumbers(0, kMarks - 1, 3))
    {
        SScrDispEntries entries;
        entries.marks = 1u << mark;
        EXPECT_EQ(Confirmed(entries), ScrDispResults(entries));
        EXPECT_EQ(ReadResults(m_wizard).data[0], (SDataRow{9, 100, 0, 1, 0x80 >> mark})) << "mark " << mark;
    }
}

// Of two quick clicks the system makes a double click: it counts as the second one.
TEST_F(CScrDispMarksTest, TakeADoubleClickForTwoClicks)
{
    Confirm([](CDialogRobot& dialog) {
        FillIn(dialog, {});
        SScrDispEntries entries;
        for (UINT mark = 0; mark < kMarks; ++mark)
        {
            CWnd* button = dialog.Dialog()->GetDlgItem(kFirstMark + mark);
            const auto click = [&](UINT down) {
                button->SendMessage(down, MK_LBUTTON, MAKELPARAM(5, 5));
                button->SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
                entries.marks ^= 1u << mark;
                ExpectPreview(dialog, entries);
            };
            click(WM_LBUTTONDOWN);
            click(WM_LBUTTONDBLCLK);
            if (mark % 2 == 0)
                click(WM_LBUTTONDOWN);
        }
    });
    EXPECT_EQ(ReadResults(m_wizard).data[0].value, 0x80 | 0x20 | 0x08 | 0x02);
}

/// The picture of a control that the dialog draws.
std::vector<COLORREF> PictureOf(CDialogRobot& dialog, UINT id, UINT item = 0, UINT state = 0)
{
    CCanvas canvas(60, 40);
    DRAWITEMSTRUCT draw = {};
    draw.CtlID = id;
    draw.itemID = item;
    draw.itemState = state;
    draw.hDC = canvas.DC();
    draw.rcItem = {0, 0, 60, 40};
    dialog.Dialog()->SendMessage(WM_DRAWITEM, id, reinterpret_cast<LPARAM>(&draw));
    return canvas.ColorsAt({{0, 0}, {30, 20}, {30, 8}, {59, 39}});
}

TEST_F(CScrDispMarksTest, KeepAButtonDownWhileItsMarkIsShown)
{
    Leave([](CDialogRobot& dialog) {
        const COLORREF light = ::GetSysColor(COLOR_BTNHIGHLIGHT), shadow = ::GetSysColor(COLOR_BTNSHADOW);
        for (int round = 0; round < 2; ++round)
            for (UINT mark = kFirstMark; mark < kFirstMark + kMarks; ++mark)
            {
                EXPECT_EQ(PictureOf(dialog, mark)[0], round == 0 ? light : shadow) << mark;
                EXPECT_EQ(PictureOf(dialog, mark)[1], round == 0 ? kScreenDark : kScreenMark) << mark;
                dialog.Click(mark);
                EXPECT_EQ(PictureOf(dialog, mark)[0], round == 0 ? shadow : light) << mark;
                EXPECT_EQ(PictureOf(dialog, mark)[1], round == 0 ? kScreenMark : kScreenDark) << mark;
            }
    });
}

TEST_F(CScrDispMarksTest, ShowASwatchForEachColor)
{
    Leave([](CDialogRobot& dialog) {
        for (UINT color = 0; color < 3; ++color)
            EXPECT_EQ(PictureOf(dialog, 2883, color)[1], ScreenColor(color + 1)) << "item " << color;
        const std::vector<COLORREF> nothing = PictureOf(dialog, 1);
        EXPECT_EQ(PictureOf(dialog, 2883, static_cast<UINT>(-1)), nothing) << "no item is drawn";
    });
}

/// Tells how often its controls are painted.
class CPaintedDlg : public CScrDispDlg
{
public:
    using CScrDispDlg::CScrDispDlg;

    /// Whether a control has been painted since this was asked last.
    bool IsPainted(CDialogRobot& dialog, UINT id)
    {
        dialog.Dialog()->GetDlgItem(id)->UpdateWindow();
        return std::exchange(m_painted[id], 0) > 0;
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_DRAWITEM)
            ++m_painted[static_cast<UINT>(wParam)];
        return CScrDispDlg::WindowProc(message, wParam, lParam);
    }

private:
    std::map<UINT, int> m_painted;
};

TEST_F(CScrDispMarksTest, PaintWhatHasChangedAndNothingElse)
{
    m_wizard.CreateDlgFont(nullptr);
    CPaintedDlg painted(&m_wizard, nullptr, nullptr);
    const auto play = [&](CDialogRobot& dialog) {
        EXPECT_TRUE(painted.IsPainted(dialog, 2888));
        EXPECT_FALSE(painted.IsPainted(dialog, 2888)) << "only when something changes";
        for (UINT mark = kFirstMark; mark < kFirstMark + kMarks; ++mark)
            EXPECT_TRUE(painted.IsPainted(dialog, mark));
        for (UINT mark = kFirstMark; mark < kFirstMark + kMarks; ++mark)
        {
            EXPECT_FALSE(painted.IsPainted(dialog, mark));
            dialog.Dialog()->SendMessage(WM_COMMAND, MAKEWPARAM(mark, BN_CLICKED));
            EXPECT_TRUE(painted.IsPainted(dialog, mark)) << "button " << mark;
            EXPECT_TRUE(painted.IsPainted(dialog, 2888)) << "for button " << mark;
            EXPECT_FALSE(painted.IsPainted(dialog, mark == 2860 ? 2861 : 2860)) << "another button";
        }
        for (const UINT combo : {2850, 2869, 2884, 2883})
        {
            dialog.Select(combo, 1);
            EXPECT_TRUE(painted.IsPainted(dialog, 2888)) << "for list " << combo;
        }
        dialog.Select(2869, 3);
        painted.IsPainted(dialog, 2888);
        dialog.Type(2872, "A");
        EXPECT_TRUE(painted.IsPainted(dialog, 2888)) << "for a key";
        for (const UINT button : {2878, 2879, 2880, 2881, 2882, 2873, 2874, 2875, 2876, 2877, 2887, 2886, 2870, 2870})
        {
            dialog.Click(button);
            EXPECT_TRUE(painted.IsPainted(dialog, 2888)) << "for button " << button;
        }
        dialog.Click(IDCANCEL);
    };
    EXPECT_EQ(Play([&] { return static_cast<int>(painted.DoModal()); }, {play}), IDCANCEL);
}

} // namespace
