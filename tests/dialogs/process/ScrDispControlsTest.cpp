// The dialog of the screen display as it comes up: controls, texts, items, help, and the keyboard.
#include "dialogs/process/ScrDispDlg.h"
#include "tests/core/FunWizardTest.h"
#include "tests/dialogs/process/ScrDispTest.h"

namespace
{

using CScrDispControlsTest = CScrDispTest;

std::vector<SShownControl> ExpectedControls()
{
    return {
        {kSharedId, "Static", "Display screen"},
        {2850, "ComboBox", "N mode The 1st screen"},
        {kSharedId, "Static", "Control data"},
        {2851, "ComboBox", "DT"},
        {2852, "Edit", ""},
        {2853, "Static", "(0 - 32762)"},
        {kSharedId, "Static", "Upside display data"},
        {2854, "ComboBox", "DT"},
        {2855, "Edit", ""},
        {2856, "Static", "(0 - 32764)"},
        {kSharedId, "Static", "Downside display data"},
        {2857, "ComboBox", "DT"},
        {2858, "Edit", ""},
        {2859, "Static", "(0 - 32764)"},
        {kSharedId, "Button", "Mark display"},
        {2860, "Button", "Mark 1"},
        {2861, "Button", "Mark 2"},
        {2862, "Button", "Mark 3"},
        {2867, "Button", "Mark 8"},
        {2863, "Button", "Mark 4"},
        {2864, "Button", "Mark 5"},
        {2865, "Button", "Mark 6"},
        {2866, "Button", "Mark 7"},
        {2885, "Static", ""},
        {2888, "Static", ""},
        {2886, "Button", "Upside control"},
        {2887, "Button", "Downside control"},
        {kSharedId, "Static", ""},
        {2870, "Button", "Nondisplay"},
        {kSharedId, "Static", "Display mode"},
        {2869, "ComboBox", "Signed Dec 5 digits"},
        {2871, "Static", "ASCII data", false},
        {2872, "Edit", "", false},
        {kSharedId, "Static", "Zero suppression"},
        {2884, "ComboBox", "Zero suppression"},
        {kSharedId, "Static", "Color"},
        {2883, "ComboBox", "Green"},
        {kSharedId, "Button", "Digit nondisplay"},
        {2878, "Button", "1st"},
        {2879, "Button", "2nd"},
        {2880, "Button", "3rd"},
        {2881, "Button", "4th"},
        {2882, "Button", "5th"},
        {kSharedId, "Button", "Decimal point display"},
        {2873, "Button", "2nd"},
        {2874, "Button", "3rd"},
        {2875, "Button", "4th"},
        {2876, "Button", "5th"},
        {2877, "Button", "3rd-Upper"},
        {3001, "Button", "I/O comment is registered automatically"},
        {1, "Button", "&OK"},
        {2, "Button", "Cancel"},
        {2003, "Button", "&Help", false, false},
    };
}

TEST_F(CScrDispControlsTest, ComeUpWithoutAnEarlierRun)
{
    Leave([](CDialogRobot& dialog) {
        EXPECT_EQ(dialog.Caption(), CString("Tolvi Screen display instruction input assistance"));
        ExpectControls(dialog, ExpectedControls());
        EXPECT_EQ(dialog.FocusId(), 2850u);
        SScrDispEntries entries;
        for (SDeviceEntry& device : entries.devices)
            device.text = "";
        ExpectEntries(dialog, entries);
    });
    EXPECT_EQ(ReadResults(m_wizard), SResults());
    EXPECT_EQ(Block(), std::nullopt);
}

TEST_F(CScrDispControlsTest, ListTheirItems)
{
    Leave([](CDialogRobot& dialog) {
        EXPECT_EQ(dialog.Items(2850), (Texts{"N mode The 1st screen", "N mode The 2nd screen", "S mode The 1st screen",
                                             "S mode The 2nd screen"}));
        EXPECT_EQ(dialog.Items(2869), (Texts{"Signed Dec 5 digits", "Hex 4 digits or BCD 4 digits", "Bit",
                                             "ASCII data of five characters", "7SEG Data"}));
        EXPECT_EQ(dialog.Items(2884), (Texts{"Zero suppression", "All digits display"}));
        EXPECT_EQ(dialog.Items(2883), (Texts{"Green", "Red", "Orange"}));
        EXPECT_EQ(dialog.Limit(2872), 5);
    });
}

// The list that is drawn by the dialog looks like the others, but for the two pixels by which Wine makes the field of
// such a list higher than it is told to.
TEST_F(CScrDispControlsTest, HaveListsOfOneHeight)
{
    Leave([](CDialogRobot& dialog) {
        const auto height = [&](UINT list, int part) {
            return static_cast<int>(
                dialog.Dialog()->SendDlgItemMessage(list, CB_GETITEMHEIGHT, static_cast<WPARAM>(part)));
        };
        EXPECT_GT(height(2869, 0), 5);
        EXPECT_EQ(height(2883, 0), height(2869, 0));
        EXPECT_GE(height(2883, -1), height(2869, -1));
        EXPECT_LE(height(2883, -1), height(2869, -1) + 2);
    });
}

TEST_F(CScrDispControlsTest, HaveNoneOfTheSharedOnesThatDoNotBelongHere)
{
    Leave([](CDialogRobot& dialog) {
        for (const UINT id : {2051, 2052, 2053, 2061, 2099, 2101, 2102})
            EXPECT_FALSE(dialog.Exists(id)) << id;
    });
}

// ---- Help -----------------------------------------------------------------------------------------------------------

TEST_F(CScrDispControlsTest, HaveHelpWhenTheHostHas)
{
    m_wizard.SetHelpPath("C:\\there is no such file.chm");
    Leave([](CDialogRobot& dialog) {
        EXPECT_TRUE(dialog.Visible(2003));
        EXPECT_TRUE(dialog.Enabled(2003));
        dialog.Click(2003);
        EXPECT_TRUE(dialog.IsOpen());
        EXPECT_TRUE(dialog.MessageBoxes().empty());
        dialog.Check(2870);
        EXPECT_TRUE(dialog.Enabled(2003)) << "help is not a part of the line";
    });
    m_wizard.SetHelpPath("");
    Leave([](CDialogRobot& dialog) {
        EXPECT_FALSE(dialog.Visible(2003));
        EXPECT_FALSE(dialog.Enabled(2003));
    });
}

TEST_F(CScrDispControlsTest, HaveATopicOfTheirOwn)
{
    struct CTopic : CScrDispDlg
    {
        using CScrDispDlg::CScrDispDlg;
        using CScrDispDlg::HelpTopic;
    };
    EXPECT_EQ(CTopic(&m_wizard, nullptr, nullptr).HelpTopic(), 5555);
}

// ---- The keyboard ---------------------------------------------------------------------------------------------------

const std::vector<UINT> kAboveTheLine = {2850, 2851, 2852, 2854, 2855, 2857, 2858, 2860, 2861,
                                         2862, 2867, 2863, 2864, 2865, 2866, 2886, 2870};
const std::vector<UINT> kLineLists = {2884, 2883};
const std::vector<UINT> kLineBoxes = {2878, 2879, 2880, 2881, 2882, 2873, 2874, 2875, 2876, 2877};
const std::vector<UINT> kBelowTheLine = {3001, 1, 2};

std::vector<UINT> Joined(std::initializer_list<std::vector<UINT>> parts)
{
    std::vector<UINT> all;
    for (const std::vector<UINT>& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

TEST_F(CScrDispControlsTest, AreReachedByTabInReadingOrder)
{
    Leave([](CDialogRobot& dialog) {
        ExpectTabOrder(dialog, Joined({kAboveTheLine, {2869}, kLineLists, kLineBoxes, kBelowTheLine}));
        dialog.Select(2869, 3);
        dialog.Focus(2850);
        ExpectTabOrder(dialog, Joined({kAboveTheLine, {2869, 2872}, kLineLists, kLineBoxes, kBelowTheLine}));
        dialog.Check(2870);
        dialog.Focus(2850);
        ExpectTabOrder(dialog, Joined({kAboveTheLine, kBelowTheLine}));
    });
}

TEST_F(CScrDispControlsTest, ConfirmByEnterAndCancelByEsc)
{
    Confirm([](CDialogRobot& dialog) {
        FillIn(dialog, {});
        dialog.Focus(2858);
        EXPECT_EQ(dialog.Answering(IDOK, [&] { dialog.PressKey(VK_RETURN); }), CString());
        EXPECT_FALSE(dialog.IsOpen());
    });
    const SResults confirmed = ReadResults(m_wizard);
    EXPECT_EQ(confirmed, ScrDispResults({}));
    Leave([](CDialogRobot& dialog) {
        dialog.Type(2852, "7");
        dialog.Click(2860);
        dialog.PressKey(VK_ESCAPE);
        EXPECT_FALSE(dialog.IsOpen());
    });
    EXPECT_EQ(ReadResults(m_wizard), confirmed);
    EXPECT_EQ(Block(), BlockOf({}));
}

// The arrow keys go from one line to the other.
TEST_F(CScrDispControlsTest, SwitchLinesByArrowKeys)
{
    Leave([](CDialogRobot& dialog) {
        SLineEntries upside, downside;
        upside.color = 1;
        FillInLine(dialog, upside);
        dialog.Focus(2886);
        dialog.PressKey(VK_DOWN);
        EXPECT_EQ(dialog.FocusId(), 2887u);
        EXPECT_TRUE(dialog.Checked(2887));
        ExpectLine(dialog, downside);
        dialog.PressKey(VK_UP);
        EXPECT_TRUE(dialog.Checked(2886));
        ExpectLine(dialog, upside);
    });
}

TEST_F(CScrDispControlsTest, ToggleTheMarkThatHasTheFocusBySpace)
{
    Confirm([](CDialogRobot& dialog) {
        FillIn(dialog, {});
        for (int mark = 0; mark < kMarks; mark += 2)
        {
            dialog.Focus(kFirstMark + static_cast<UINT>(mark));
            dialog.PressKey(VK_SPACE);
            SScrDispEntries shown;
            shown.marks = 0x55u & ((2u << mark) - 1);
            ExpectPreview(dialog, shown);
        }
    });
    EXPECT_EQ(ReadResults(m_wizard).data[0], (SDataRow{9, 100, 0, 1, 0x80 | 0x20 | 0x08 | 0x02}));
}

} // namespace
