// The two lines: what each control does to the settings and to the picture at once.
#include "tests/dialogs/process/ScrDispTest.h"

#include <functional>

namespace
{

using CScrDispLinesTest = CScrDispTest;

/// Each control of a line alone: what a user does, and what becomes of the settings.
struct SLineStep
{
    const char* what;
    std::function<void(CDialogRobot&)> act;
    std::function<void(SLineEntries&)> expect;
};

std::vector<SLineStep> AllSteps()
{
    std::vector<SLineStep> steps;
    for (int mode = 0; mode < 5; ++mode)
        steps.push_back({"display mode", [=](CDialogRobot& dialog) { dialog.Select(2869, mode); },
                         [=](SLineEntries& line) { line.mode = mode; }});
    for (int index = 0; index < 2; ++index)
        steps.push_back({"zero suppression", [=](CDialogRobot& dialog) { dialog.Select(2884, index); },
                         [=](SLineEntries& line) { line.allDigits = index; }});
    for (int index = 0; index < 3; ++index)
        steps.push_back({"color", [=](CDialogRobot& dialog) { dialog.Select(2883, index); },
                         [=](SLineEntries& line) { line.color = index; }});
    for (size_t digit = 0; digit < 5; ++digit)
    {
        steps.push_back({"digit", [=](CDialogRobot& dialog) { dialog.Click(kHideDigit[digit]); },
                         [=](SLineEntries& line) { line.hiddenDigits ^= 1u << digit; }});
        steps.push_back({"point", [=](CDialogRobot& dialog) { dialog.Click(kPointBoxes[digit]); },
                         [=](SLineEntries& line) { line.points ^= 1u << digit; }});
    }
    return steps;
}

// ---- The picture follows --------------------------------------------------------------------------------------------

TEST_F(CScrDispLinesTest, ShowEachChangeAtOnce)
{
    SScrDispEntries entries;
    Leave([&](CDialogRobot& dialog) {
        FillIn(dialog, entries);
        for (const ELine line : {kUpside, kDownside})
        {
            EditLine(dialog, line);
            for (const SLineStep& step : AllSteps())
            {
                SCOPED_TRACE(testing::Message() << step.what << " of line " << line);
                step.act(dialog);
                step.expect(entries.lines[line]);
                ExpectLine(dialog, entries.lines[line]);
                ExpectPreview(dialog, entries);
            }
        }
    });
}

// ---- One line and the other -----------------------------------------------------------------------------------------

TEST_F(CScrDispLinesTest, AreStoredAndLoadedWhenTheyAreSwitched)
{
    SScrDispEntries entries;
    Confirm([&](CDialogRobot& dialog) {
        FillIn(dialog, entries);
        int turn = 0;
        for (const SLineStep& step : AllSteps())
        {
            const ELine line = turn++ % 2 == 0 ? kUpside : kDownside;
            SCOPED_TRACE(testing::Message() << step.what << " of line " << line);
            EditLine(dialog, line);
            step.act(dialog);
            step.expect(entries.lines[line]);
            const ELine other = line == kUpside ? kDownside : kUpside;
            EditLine(dialog, other);
            ExpectLine(dialog, entries.lines[other]);
            EditLine(dialog, line);
            ExpectLine(dialog, entries.lines[line]);
        }
    });
    EXPECT_EQ(ReadResults(m_wizard), ScrDispResults(entries));
    EXPECT_EQ(Block(), BlockOf(entries));
}

TEST_F(CScrDispLinesTest, StayWhenTheirOwnButtonIsPressedAgain)
{
    SLineEntries upside = {.mode = 3, .allDigits = 1, .color = 2, .hiddenDigits = 9, .points = 17, .text = "Ab"};
    Leave([&](CDialogRobot& dialog) {
        FillInLine(dialog, upside);
        EditLine(dialog, kUpside);
        ExpectLine(dialog, upside);
        EditLine(dialog, kDownside);
        SLineEntries downside = {.hidden = true, .mode = 4};
        FillInLine(dialog, downside);
        EditLine(dialog, kDownside);
        ExpectLine(dialog, downside);
        EditLine(dialog, kUpside);
        ExpectLine(dialog, upside);
    });
}

TEST_F(CScrDispLinesTest, KeepTheirTextsInOtherModes)
{
    SScrDispEntries entries;
    entries.lines[kUpside] = {.mode = 1, .text = "Up"};
    entries.lines[kDownside] = {.mode = 3, .text = "down"};
    const SResults results = Confirmed(entries);
    EXPECT_EQ(results, ScrDispResults(entries));
    EXPECT_EQ(Block(), BlockOf(entries));
    Leave([&](CDialogRobot& dialog) { ExpectEntries(dialog, entries); });
}

// OK stores the line that is edited, whichever it is.
TEST_F(CScrDispLinesTest, AreStoredFromEitherSide)
{
    for (const ELine edited : {kUpside, kDownside})
    {
        SScrDispEntries entries;
        entries.lines[kUpside] = {.mode = 3, .color = 1, .points = 5, .text = "abc"};
        entries.lines[kDownside] = {.mode = 2, .allDigits = 1, .color = 2, .hiddenDigits = 21};
        Forget();
        Confirm([&](CDialogRobot& dialog) {
            FillIn(dialog, entries);
            EditLine(dialog, edited);
            dialog.Click(2874);
        });
        entries.lines[edited].points ^= 2;
        EXPECT_EQ(ReadResults(m_wizard), ScrDispResults(entries));
        EXPECT_EQ(Block(), BlockOf(entries));
    }
}

// What a control does not tell of, as a list that is closed by Esc may not, is stored when the line is left.
TEST_F(CScrDispLinesTest, AreStoredAsTheControlsStand)
{
    for (const bool switched : {false, true})
    {
        SScrDispEntries entries;
        Forget();
        Confirm([&](CDialogRobot& dialog) {
            FillIn(dialog, entries);
            for (const ELine line : {kUpside, kDownside})
            {
                if (!switched && line == kDownside)
                    break;
                EditLine(dialog, line);
                SelectSilently(dialog, 2869, 4);
                SelectSilently(dialog, 2884, 1);
                SelectSilently(dialog, 2883, 2);
                for (const UINT box : {2879, 2874, 2877})
                    dialog.Dialog()->SendDlgItemMessage(box, BM_SETCHECK, BST_CHECKED);
                entries.lines[line] = {.mode = 4, .allDigits = 1, .color = 2, .hiddenDigits = 0x02, .points = 0x12};
            }
        });
        EXPECT_EQ(ReadResults(m_wizard), ScrDispResults(entries));
        EXPECT_EQ(Block(), BlockOf(entries));
    }
}

// A line that was never looked at is stored as it would have been shown: green.
TEST_F(CScrDispLinesTest, AreStoredAsTheyWouldBeShown)
{
    Confirm([](CDialogRobot& dialog) {
        for (const UINT edit : kDeviceEdits)
            dialog.Type(edit, "5");
    });
    const CScreenBlock block = {0, 0x2000, 0x2000, 0, 0, 0, 0, 0, 0, 0};
    EXPECT_EQ(Block(), block);
    EXPECT_EQ(ReadResults(m_wizard).data,
              (std::vector<SDataRow>{{9, 5, 0, 1, 0}, {9, 6, 0, 1, 0x2000}, {9, 7, 0, 1, 0x2000}}));
}

// ---- What can be used -----------------------------------------------------------------------------------------------

TEST_F(CScrDispLinesTest, TakeATextInOneModeAlone)
{
    Leave([](CDialogRobot& dialog) {
        for (const int mode : {3, 0, 3, 1, 3, 2, 3, 4})
        {
            dialog.Select(2869, mode);
            EXPECT_EQ(dialog.Enabled(2871), mode == 3);
            EXPECT_EQ(dialog.Enabled(2872), mode == 3);
            dialog.Check(2870, true);
            EXPECT_FALSE(dialog.Enabled(2871));
            EXPECT_FALSE(dialog.Enabled(2872));
            dialog.Check(2870, false);
            EXPECT_EQ(dialog.Enabled(2871), mode == 3) << "and not because the line is shown again";
            EXPECT_EQ(dialog.Enabled(2872), mode == 3);
        }
    });
}

/// Which controls can be used, in tab order.
std::vector<bool> UsableIn(CDialogRobot& dialog)
{
    std::vector<bool> usable;
    for (const SRobotControl& control : dialog.Controls())
        usable.push_back(control.enabled);
    return usable;
}

TEST_F(CScrDispLinesTest, DisableEverythingUpToTheCommentsWhileNotShown)
{
    Leave([](CDialogRobot& dialog) {
        const std::vector<SRobotControl> controls = dialog.Controls();
        const std::vector<bool> before = UsableIn(dialog);
        dialog.Check(2870);
        const std::vector<bool> hidden = UsableIn(dialog);
        bool inLine = false;
        for (size_t i = 0; i < controls.size(); ++i)
        {
            inLine = inLine && controls[i].id != 3001;
            EXPECT_EQ(hidden[i], before[i] && !inLine) << "control " << i << ", " << controls[i].text;
            inLine = inLine || controls[i].id == 2870;
        }
        dialog.Check(2870, false);
        EXPECT_EQ(UsableIn(dialog), before);

        // Of the other line nothing is hidden.
        dialog.Check(2870);
        EditLine(dialog, kDownside);
        EXPECT_EQ(UsableIn(dialog), before);
        dialog.Select(2869, 3);
        EditLine(dialog, kUpside);
        EXPECT_EQ(UsableIn(dialog), hidden);
        EditLine(dialog, kDownside);
        EXPECT_TRUE(dialog.Enabled(2872));
    });
}

TEST_F(CScrDispLinesTest, KeepWhatIsNotShown)
{
    SScrDispEntries entries;
    entries.lines[kUpside] = {
        .hidden = true, .mode = 3, .allDigits = 1, .color = 1, .hiddenDigits = 3, .points = 30, .text = "Hi"};
    entries.lines[kDownside] = {.hidden = true, .mode = 4, .color = 2};
    Confirmed(entries);
    Leave([&](CDialogRobot& dialog) {
        ExpectEntries(dialog, entries);
        for (const ELine line : {kUpside, kDownside})
        {
            EditLine(dialog, line);
            dialog.Check(2870, false);
            entries.lines[line].hidden = false;
            ExpectLine(dialog, entries.lines[line]);
            ExpectPreview(dialog, entries);
        }
    });
}

// ---- Lists without a selection --------------------------------------------------------------------------------------

// Which no user can bring about: the setting stays as it was.
TEST_F(CScrDispLinesTest, KeepASettingWhoseListHasNoSelection)
{
    for (const UINT combo : {2869, 2884, 2883})
    {
        SScrDispEntries entries;
        entries.lines[kUpside] = {.mode = 2, .allDigits = 1, .color = 2};
        Forget();
        Confirm([&](CDialogRobot& dialog) {
            FillIn(dialog, entries);
            SelectByProgram(dialog, combo, -1);
        });
        EXPECT_EQ(ReadResults(m_wizard), ScrDispResults(entries)) << "list " << combo;
    }
    Confirm([](CDialogRobot& dialog) { SelectByProgram(dialog, 2850, -1); });
    EXPECT_EQ(ReadResults(m_wizard).operands[0], (SOperandRow{11, 0}));
}

} // namespace
