// F174 of families B and C: the dialog of family A from another template, whose controls must be where it looks for
// them.
#include "tests/dialogs/pulse/Sp0hTest.h"

namespace
{

struct SSp0hFamily
{
    const char* name;
    UINT templateId;
    int plcType;
};

class CSp0hFamilyTest : public CSp0hTest, public testing::WithParamInterface<SSp0hFamily>
{
protected:
    CSp0hFamilyTest()
    {
        constexpr int kEnglish = 0;
        m_templateId = GetParam().templateId;
        m_wizard.SetPlcType(static_cast<BYTE>(GetParam().plcType));
        m_wizard.SetLanguageInfo(kEnglish);
    }
};

INSTANTIATE_TEST_SUITE_P(Families, CSp0hFamilyTest,
                         testing::Values(SSp0hFamily{"B", 1064, kPlcFamilyB}, SSp0hFamily{"C", 1072, kPlcFamilyC}),
                         [](const auto& row) { return std::string(row.param.name); });

} // namespace

TEST_P(CSp0hFamilyTest, NeedsTwoChannelsToChooseFrom)
{
    m_wizard.ResetChannelNo();
    m_wizard.SetChannelNo(3, 174);
    for (const int other : {171, 172, 173, 175})
        for (const int channel : {0, 2})
            m_wizard.SetChannelNo(channel, other);
    EXPECT_EQ(Open({}), IDCANCEL);
    m_wizard.SetChannelNo(5, 174);
    Leave([](CDialogRobot& dialog) {
        EXPECT_EQ(dialog.Items(2403), (std::vector<CString>{"ch3", "ch5"}));
        EXPECT_EQ(dialog.Dialog()->SendDlgItemMessage(2403, CB_GETITEMDATA, 1), 5);
    });
}

TEST_P(CSp0hFamilyTest, HoldsEveryFieldInItsPlaceAndShowsItAgain)
{
    const SSp0hEntries kEntries[] = {
        {},
        {.start = "200", .channel = 3, .duty = 1, .frequency = 1, .mode = 1, .output = 2, .steps = {{"48", "-5"}}},
        {.channel = 2, .frequency = 2, .output = 1, .steps = {{"191", "7"}, {"20000", "8"}}},
        {.start = "0", .steps = Steps(20)},
        {.onlyDataTable = true}};
    for (const SSp0hEntries& entries : kEntries)
    {
        const SResults expected = Sp0hResults(entries);
        WriteResults(m_wizard, {});
        EXPECT_EQ(Confirmed(entries), expected);
        EXPECT_EQ(m_wizard.IsOnlyDataTable(), entries.onlyDataTable ? 1 : 0);
        Leave([&](CDialogRobot& dialog) {
            EXPECT_EQ(dialog.Checked(2061), entries.onlyDataTable);
            EXPECT_EQ(std::string(dialog.Text(2052)), entries.contact);
            EXPECT_EQ(std::string(dialog.Text(2401)), entries.start);
            EXPECT_EQ(dialog.Selection(2403), entries.channel);
            EXPECT_EQ(dialog.Selection(2405), entries.duty);
            EXPECT_EQ(dialog.Selection(2406), entries.frequency);
            EXPECT_EQ(dialog.Selection(2407), entries.mode);
            EXPECT_EQ(dialog.Selection(2404), entries.output);
            EXPECT_EQ(CellsOf(dialog).UsedRows(), static_cast<int>(entries.steps.size()));
            EXPECT_EQ(CellsOf(dialog).Text({0, 0}), CString(entries.steps[0].frequency.c_str()));
            EXPECT_EQ(CellsOf(dialog).Text({0, 1}), CString(entries.steps[0].target.c_str()));
        });
        Confirm([](CDialogRobot&) {});
        EXPECT_EQ(ReadResults(m_wizard), expected);
    }
}

// Each check is the first to fail once those before it are content.
TEST_P(CSp0hFamilyTest, ChecksContactStartAndStepsInThisOrder)
{
    Leave([](CDialogRobot& dialog) {
        FillIn(dialog, {});
        dialog.Type(2052, "2560");
        SetTextByProgram(dialog, 2401, "40000");
        SetCell(dialog, 1, 0, "9801");
        SetCell(dialog, 2, 1, "2147483648");
        ExpectRefusal(dialog, 20020, 2052);
        dialog.Type(2052, "");
        ExpectRefusal(dialog, 20001, 2052);
        dialog.Type(2052, "10");
        ExpectRefusal(dialog, 20003, 2401);
        dialog.Type(2401, "");
        ExpectRefusal(dialog, 20001, 2401);
        dialog.Type(2401, "100");
        ExpectCellRefusal(dialog, 20008, 1, 0);
        SetTextByProgram(dialog, EditorOf(dialog), "9800");
        dialog.PressKey(VK_RETURN);
        ExpectCellRefusal(dialog, 20007, 2, 1);
    });
}

TEST_P(CSp0hFamilyTest, NeedsNoChannelForADataTableAlone)
{
    Leave([](CDialogRobot& dialog) {
        dialog.Select(2403, 2);
        dialog.Check(2061, true);
        EXPECT_FALSE(dialog.Enabled(2403));
        EXPECT_FALSE(ControlBefore(dialog, 2403)->IsWindowEnabled());
        EXPECT_EQ(dialog.Selection(2403), 0);
        dialog.Check(2061, false);
        EXPECT_TRUE(dialog.Enabled(2403));
        EXPECT_TRUE(ControlBefore(dialog, 2403)->IsWindowEnabled());
    });
}

TEST_P(CSp0hFamilyTest, EmptiesEverythingByClearSettings)
{
    const SResults before =
        Confirmed({.channel = 3, .duty = 1, .frequency = 1, .mode = 1, .output = 2, .steps = {{"48", "-5"}}});
    Leave([&](CDialogRobot& dialog) {
        dialog.Click(2099);
        for (const UINT list : {2051u, 2403u, 2404u, 2405u, 2406u, 2407u})
            EXPECT_EQ(dialog.Selection(list), 0) << "of list " << list;
        EXPECT_EQ(dialog.Text(2052), CString());
        EXPECT_EQ(dialog.Text(2401), CString());
        EXPECT_EQ(CellsOf(dialog).Text({0, 0}), CString());
        EXPECT_EQ(CellsOf(dialog).Text({0, 1}), CString());
        EXPECT_EQ(dialog.FocusId(), 2061u);
    });
    EXPECT_EQ(ReadResults(m_wizard), before);
}

TEST_P(CSp0hFamilyTest, LimitsWhatIsTyped)
{
    Leave([](CDialogRobot& dialog) { ExpectLimits(dialog, {{2052, 4}, {2401, 5}}); });
}
