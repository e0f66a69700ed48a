// The picture in the dialog as it is painted: with the name of the screen, and again after each change.
#include "afx/offscreen/Desktop.h"
#include "tests/dialogs/process/ScrDispTest.h"

namespace
{

class CScrDispPreviewTest : public CScrDispTest
{
protected:
    CScrDispPreviewTest() { offscreen::RecordDrawing(true); }
    ~CScrDispPreviewTest() override { offscreen::RecordDrawing(false); }

    /// The texts painted into the picture since this was asked last; nothing when it was not painted again.
    static std::vector<std::string> Painted(CDialogRobot& dialog)
    {
        const HWND preview = ::GetDlgItem(dialog.Dialog()->GetSafeHwnd(), 2888);
        ::UpdateWindow(preview);
        std::vector<std::string> texts;
        for (const offscreen::DrawnText& text : offscreen::TextDrawnIn(preview))
            texts.push_back(text.text);
        offscreen::RecordDrawing(true);
        return texts;
    }
};

using Names = std::vector<std::string>;

TEST_F(CScrDispPreviewTest, NamesTheSelectedScreen)
{
    Leave([](CDialogRobot& dialog) {
        EXPECT_EQ(Painted(dialog), Names{"N mode The 1st screen"});
        for (int screen = 3; screen >= 0; --screen)
        {
            dialog.Select(2850, screen);
            EXPECT_EQ(Painted(dialog), Names{static_cast<LPCSTR>(dialog.Text(2850))});
        }
    });
}

TEST_F(CScrDispPreviewTest, IsPaintedAgainAfterEachChange)
{
    Leave([](CDialogRobot& dialog) {
        EXPECT_EQ(Painted(dialog).size(), 1u);
        EXPECT_EQ(Painted(dialog), Names()) << "only then";
        dialog.Select(2869, 3);
        EXPECT_EQ(Painted(dialog).size(), 1u);
        dialog.Type(2872, "A");
        EXPECT_EQ(Painted(dialog).size(), 1u) << "after a keystroke";
        for (const UINT combo : {2850, 2883, 2884})
        {
            dialog.Select(combo, 1);
            EXPECT_EQ(Painted(dialog).size(), 1u) << "after list " << combo;
        }
        for (const UINT button : {2860, 2861, 2862, 2863, 2864, 2865, 2866, 2867, 2878, 2879, 2880,
                                  2881, 2882, 2873, 2874, 2875, 2876, 2877, 2887, 2886, 2870, 2870})
        {
            dialog.Click(button);
            EXPECT_EQ(Painted(dialog).size(), 1u) << "after button " << button;
        }
    });
}

TEST_F(CScrDispPreviewTest, NamesTheSelectedColor)
{
    Leave([](CDialogRobot& dialog) {
        const char* kNames[] = {"Green", "Red", "Orange"};
        for (const int color : {2, 1, 0})
        {
            offscreen::RecordDrawing(true);
            dialog.Select(2883, color);
            const CWnd* list = dialog.Dialog()->GetDlgItem(2883);
            ::InvalidateRect(list->GetSafeHwnd(), nullptr, FALSE);
            ::UpdateWindow(list->GetSafeHwnd());
            const auto texts = offscreen::TextDrawnIn(list->GetSafeHwnd());
            ASSERT_FALSE(texts.empty());
            EXPECT_EQ(texts.back().text, kNames[color]);
        }
    });
}

} // namespace
