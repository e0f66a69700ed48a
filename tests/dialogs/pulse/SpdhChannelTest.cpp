// The channel of F171: what is offered, what is stored, and what "Only a data table is created." does to it.
#include "tests/dialogs/pulse/SpdhTest.h"

namespace
{

class CSpdhChannelTest : public CSpdhTest, public testing::WithParamInterface<ESpdhVariant>
{
};

INSTANTIATE_TEST_SUITE_P(Variants, CSpdhChannelTest, testing::ValuesIn(kSpdhVariants), SpdhVariantName);

TEST_P(CSpdhChannelTest, IsOneOfThoseOfferedToTheInstruction)
{
    const std::vector<std::vector<int>> kOffers = {
        {0, 1}, {14, 15}, {0, 15}, {2, 3, 7}, {1, 4, 6, 15}, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15}};
    for (const std::vector<int>& offer : kOffers)
    {
        SetChannels(offer);
        m_wizard.SetChannelNo(9, 172); // another instruction's
        Leave(GetParam(), [&](CDialogRobot& dialog) {
            ASSERT_EQ(dialog.Items(2253).size(), offer.size());
            for (size_t i = 0; i < offer.size(); ++i)
            {
                EXPECT_EQ(dialog.Items(2253)[i], CString(("ch" + std::to_string(offer[i])).c_str()));
                EXPECT_EQ(dialog.Dialog()->SendDlgItemMessage(2253, CB_GETITEMDATA, i), offer[i]) << "of item " << i;
            }
            EXPECT_EQ(dialog.Selection(2253), 0);
            EXPECT_TRUE(dialog.Enabled(2253));
        });
    }
}

TEST_P(CSpdhChannelTest, IsNeededTwiceForTheDialogToOpen)
{
    for (const std::vector<int>& offer : {std::vector<int>{}, std::vector<int>{0}, std::vector<int>{15}})
    {
        SetChannels(offer);
        for (int instruction : {172, 173, 174, 175})
        {
            m_wizard.SetChannelNo(2, instruction);
            m_wizard.SetChannelNo(3, instruction);
        }
        EXPECT_EQ(Open(GetParam(), {}), IDCANCEL) << "with " << offer.size() << " channels";
        EXPECT_TRUE(m_robot.MessageBoxes().empty());
    }
}

TEST_P(CSpdhChannelTest, LeadsBackToTheSelectionWhenThereIsOnlyOne)
{
    SetChannels({3});
    m_wizard.ClearSuppportFunInfo();
    m_wizard.EntrySupportFunInfo(171);
    EXPECT_EQ(Play([this] { return m_wizard.DoOpenPosDlg(0, 1, nullptr); },
                   {[](CDialogRobot& selection) {
                        selection.Select(IDC_SELECT_LIST, GetParam());
                        selection.Click(IDOK);
                    },
                    [](CDialogRobot& selection) {
                        EXPECT_TRUE(selection.Exists(IDC_SELECT_LIST));
                        selection.Click(IDCANCEL);
                    }}),
              IDCANCEL);
    EXPECT_TRUE(m_robot.MessageBoxes().empty());
}

TEST_P(CSpdhChannelTest, IsStoredAndRestoredByItsNumber)
{
    for (int channel = 0; channel < 4; ++channel)
    {
        EXPECT_EQ(Confirmed(GetParam(), {.channel = channel}).operands,
                  (std::vector<SOperandRow>{{9, 100}, {11, kSpdhChannels[channel]}}));
        Leave(GetParam(), [&](CDialogRobot& dialog) { EXPECT_EQ(dialog.Selection(2253), channel); });
    }
}

struct SStoredChannel
{
    std::vector<SOperandRow> operands;
    int position;
};

TEST_P(CSpdhChannelTest, IsRestoredFromAConstantThatNamesIt)
{
    const SStoredChannel kStored[] = {
        {{{9, 1}, {11, 4}}, 1},
        {{{9, 1}, {12, 6}}, 2},
        {{{9, 1}, {11, 15}}, 3},
        {{{9, 1}, {11, 1}}, 0},
        {{{9, 1}, {11, 0}}, 0},
        {{{9, 1}, {11, 2}}, 0},
        {{{9, 1}, {11, 16}}, 0},
        {{{9, 1}, {12, -1}}, 0},
        {{{9, 1}, {9, 4}}, 0},
        {{{9, 1}, {20, 4}}, 0},
        {{{9, 1}}, 0},
        {{}, 0},
        {{{10, 1}, {11, 6}}, 2},
        {{{11, 4}, {11, 15}}, 3},
        {{{9, 1}, {11, 260}}, 0},
        {{{9, 1}, {11, 65540}}, 0},
    };
    for (const SStoredChannel& stored : kStored)
    {
        WriteResults(m_wizard, {.operands = stored.operands});
        Leave(GetParam(), [&](CDialogRobot& dialog) {
            EXPECT_EQ(dialog.Selection(2253), stored.position)
                << "from " << (stored.operands.size() < 2 ? SOperandRow{0, 0} : stored.operands[1]);
        });
    }
}

// ---- "Only a data table is created." --------------------------------------------------------------------------------

void ExpectChannelEnabled(CDialogRobot& dialog, bool enabled)
{
    for (const SRobotControl& control : dialog.Controls())
    {
        const bool follows = control.id == 2253 || control.text == "The channel for a pulse output";
        EXPECT_EQ(control.enabled, enabled || !follows) << "control " << control.id << ", " << control.text;
    }
}

TEST_P(CSpdhChannelTest, IsResetByEveryClickOnOnlyADataTable)
{
    Leave(GetParam(), [](CDialogRobot& dialog) {
        FillIn(dialog, {.channel = 2, .frequency = 1});
        EXPECT_EQ(dialog.Text(2258), CString("(48 - 20000)"));
        EXPECT_EQ(dialog.Text(2263), CString("(48 - 20000)"));
        ExpectChannelEnabled(dialog, true);

        dialog.Check(2061, true);
        EXPECT_EQ(dialog.Selection(2253), 0);
        EXPECT_EQ(dialog.Text(2258), CString("(48 - 100000)"));
        EXPECT_EQ(dialog.Text(2263), CString("(48 - 100000)"));
        ExpectChannelEnabled(dialog, false);

        SelectByProgram(dialog, 2253, 3); // no user can while it is disabled
        EXPECT_EQ(dialog.Text(2258), CString("(48 - 20000)"));
        dialog.Check(2061, false);
        EXPECT_EQ(dialog.Selection(2253), 0);
        EXPECT_EQ(dialog.Text(2258), CString("(48 - 100000)"));
        EXPECT_EQ(dialog.Text(2263), CString("(48 - 100000)"));
        ExpectChannelEnabled(dialog, true);
    });
}

TEST_P(CSpdhChannelTest, StaysAsRestoredInADataTableAlone)
{
    m_wizard.SetOnlyDataTable(1);
    WriteResults(m_wizard, {.operands = {{9, 100}, {11, 6}}});
    Confirm(GetParam(), [](CDialogRobot& dialog) {
        EXPECT_TRUE(dialog.Checked(2061));
        EXPECT_EQ(dialog.Selection(2253), 2);
        ExpectChannelEnabled(dialog, false);
        dialog.Type(2052, "1");
        dialog.Type(2261, "1");
        dialog.Type(2262, "1");
        dialog.Type(2259, "30");
        dialog.Type(SpdhLastEdit(GetParam()), "0");
    });
    EXPECT_EQ(ReadResults(m_wizard).operands, (std::vector<SOperandRow>{{9, 100}, {11, 6}}));
    EXPECT_EQ(m_wizard.IsOnlyDataTable(), 1);
}

TEST_P(CSpdhChannelTest, IsTheFirstOneOfADataTableAlone)
{
    for (bool only : {true, false})
    {
        EXPECT_EQ(Confirmed(GetParam(), {.onlyDataTable = only}), SpdhResults(GetParam(), {}));
        EXPECT_EQ(m_wizard.IsOnlyDataTable(), only ? 1 : 0);
        Leave(GetParam(), [&](CDialogRobot& dialog) {
            EXPECT_EQ(dialog.Checked(2061), only);
            ExpectChannelEnabled(dialog, !only);
            dialog.Check(2061, !only); // Back forgets it
        });
        EXPECT_EQ(m_wizard.IsOnlyDataTable(), only ? 1 : 0);
    }
}

} // namespace
