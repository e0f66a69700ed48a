// The start output of E point control: what is enabled and shown of it, and the contacts that it leaves.
#include "tests/dialogs/posunit/EPointTest.h"
#include "tests/dialogs/posunit/Layout.h"

namespace
{

class CEPointStartOutputTest : public CEPointTest
{
protected:
    CEPointStartOutputTest() { Use(kEnglish); }
};

// ---- Enabling -------------------------------------------------------------------------------------------------------

/// A control of the group by its distance from the check box of the start output.
CWnd* InGroup(CDialogRobot& dialog, int position) { return ControlAfter(dialog, 2054, position); }

TEST_F(CEPointStartOutputTest, EnablesWhatItsCheckBoxesLeaveToFillIn)
{
    constexpr int kFirstOfSecond = 2; // label, list, edit and range
    constexpr int kLastOfSecond = 5;
    constexpr int kLast = 10;
    m_wizard.SetStartType(2);
    for (const EEPointForm form : kForms)
        Leave(form, [&](CDialogRobot& dialog) {
            // Every state from every other one, as far as a click leads there.
            for (const int state : {3, 1, 0, 1, 3, 2, 3, 1, 0})
            {
                const bool wanted = (state & 1) != 0;
                const bool same = (state & 2) != 0;
                SCOPED_TRACE(testing::Message() << form << ", " << wanted << same);
                if (dialog.Checked(2055) != same)
                    dialog.Check(2055, same);
                dialog.Check(2054, wanted);
                for (int position = 1; position <= kLast; ++position)
                {
                    const bool second = position >= kFirstOfSecond && position <= kLastOfSecond;
                    EXPECT_EQ(InGroup(dialog, position)->IsWindowEnabled() != FALSE, wanted && !(same && second))
                        << "control " << position;
                }
                EXPECT_EQ(InGroup(dialog, kLast + 1)->GetDlgCtrlID(), IDOK);
                for (const UINT id : {2051, 2052, 3111, 2054, 1, 2, 3099})
                    EXPECT_TRUE(dialog.Enabled(id)) << id;
            }
        });
}

// ---- Layout ---------------------------------------------------------------------------------------------------------

class CEPointLayoutTest : public CEPointStartOutputTest
{
protected:
    SLayout LayoutOfForm(BYTE startType, EEPointForm form = kEPointForm)
    {
        m_wizard.SetStartType(startType);
        SLayout layout;
        Leave(form, [&](CDialogRobot& dialog) { layout = LayoutOf(dialog); });
        return layout;
    }
};

TEST_F(CEPointLayoutTest, ShowsEverythingWhenTheOutputIsChosen)
{
    for (const EEPointForm form : kForms)
    {
        const SLayout full = LayoutOfForm(2, form);
        for (const SRobotControl& control : full.controls)
            EXPECT_TRUE(control.visible) << control.id;
        ExpectTidy(full);
    }
}

TEST_F(CEPointLayoutTest, ShowsNothingOfTheGroupWhenTheHostStartsTheAxis)
{
    const SLayout full = LayoutOfForm(2);
    const size_t frame = IndexOf(full, 2054) - 1;
    const CRect frameRect(full.controls[frame].rect);
    const int gained = RectOf(full, 3099).top - frameRect.top;
    ASSERT_GT(gained, 0);
    for (const EEPointForm form : kForms)
        ExpectCompacted(LayoutOfForm(0, form), full, frame, 12, gained, frameRect);
}

TEST_F(CEPointLayoutTest, ShowsNoWordWhenTheUnitStartsTheAxis)
{
    const SLayout full = LayoutOfForm(2);
    const size_t word = IndexOf(full, 2059);
    const CRect wordRect = RectOf(full, 2059);
    const int gained = RectOf(full, 3099).top - wordRect.bottom;
    ASSERT_GT(gained, 0);
    CRect frame(full.controls[IndexOf(full, 2054) - 1].rect);
    frame.bottom = wordRect.top + wordRect.Height() / 4;
    for (const EEPointForm form : kForms)
    {
        const SLayout layout = LayoutOfForm(1, form);
        ExpectCompacted(layout, full, word - 3, 5, gained, frame);
        EXPECT_GT(frame.bottom, RectOf(layout, 2057).bottom) << "the frame still holds the second condition";
        EXPECT_LT(frame.bottom, RectOf(layout, 1).top);
    }
}

TEST_F(CEPointLayoutTest, IsTheSameForEveryStartTypeInATemplateWithoutTheGroup)
{
    Use(kModule);
    const SLayout full = LayoutOfForm(2);
    ExpectTidy(full);
    for (const UINT id : {2054, 2055, 2056, 2057, 2058, 2059, 2060, 2061, 2062})
        EXPECT_EQ(IndexOf(full, id), full.controls.size()) << "control " << id;
    for (const BYTE startType : std::initializer_list<BYTE>{0, 1})
    {
        const SLayout layout = LayoutOfForm(startType);
        ASSERT_EQ(layout.controls.size(), full.controls.size());
        for (size_t i = 0; i < full.controls.size(); ++i)
        {
            EXPECT_TRUE(layout.controls[i].visible);
            EXPECT_EQ(CRect(layout.controls[i].rect), CRect(full.controls[i].rect));
        }
        EXPECT_EQ(layout.client, full.client);
    }
}

// ---- Contacts -------------------------------------------------------------------------------------------------------

using Contacts = std::vector<SContactRow>;

TEST_F(CEPointStartOutputTest, AddsTheConditionAndTheOutput)
{
    struct
    {
        BYTE startType;
        bool wanted;
        bool same;
        Contacts contacts[std::size(kForms)];
    } const rows[] = {
        {0, true, false, {{{2, 1, 170}}, {{2, 1, 170}}, {{2, 1, 170}}}},
        {1, false, false, {{{2, 1, 170}}, {{2, 1, 170}}, {{2, 1, 170}}}},
        {2, false, true, {{{2, 1, 170}}, {{2, 1, 170}}, {{2, 1, 170}}}},
        {1,
         true,
         false,
         {{{2, 1, 170}, {2, 2, 31}, {3, 2, 304}},
          {{2, 1, 170}, {2, 2, 31}, {3, 2, 305}},
          {{2, 1, 170}, {2, 2, 31}, {3, 2, 312}}}},
        {1,
         true,
         true,
         {{{2, 1, 170}, {2, 1, 170}, {3, 2, 304}},
          {{2, 1, 170}, {2, 1, 170}, {3, 2, 305}},
          {{2, 1, 170}, {2, 1, 170}, {3, 2, 312}}}},
        {2,
         true,
         false,
         {{{2, 1, 170}, {2, 2, 31}, {3, 2, 640}},
          {{2, 1, 170}, {2, 2, 31}, {3, 2, 641}},
          {{2, 1, 170}, {2, 2, 31}, {3, 2, 648}}}},
        {2,
         true,
         true,
         {{{2, 1, 170}, {2, 1, 170}, {3, 2, 640}},
          {{2, 1, 170}, {2, 1, 170}, {3, 2, 641}},
          {{2, 1, 170}, {2, 1, 170}, {3, 2, 648}}}},
    };
    for (const auto& row : rows)
    {
        m_wizard.SetStartType(row.startType);
        for (size_t form = 0; form < std::size(kForms); ++form)
        {
            SCOPED_TRACE(testing::Message() << kForms[form] << ", start type " << int{row.startType});
            const SEPointEntries entries = {.startOutput = row.wanted, .same = row.same};
            Confirm(kForms[form], [&](CDialogRobot& dialog) { FillIn(dialog, entries); });
            const SResults results = ReadResults(m_wizard);
            EXPECT_EQ(results.contacts, row.contacts[form]);
            EXPECT_EQ(results, EPointOutcome(kForms[form], entries, m_wizard).results);
        }
    }
}

TEST_F(CEPointStartOutputTest, HasTheFirstConditionTwiceWhateverStandsInTheSecond)
{
    m_wizard.SetStartType(1);
    Confirm(kEPointForm, [](CDialogRobot& dialog) {
        FillIn(dialog, {.device = kT, .contact = "9", .startOutput = true, .same = true, .second = "x"});
    });
    EXPECT_EQ(ReadResults(m_wizard).contacts, (Contacts{{2, 4, 9}, {2, 4, 9}, {3, 2, 304}}));
}

TEST_F(CEPointStartOutputTest, IsTheRelayOfTheSlotAndAxis)
{
    m_wizard.SetStartType(1);
    for (const EEPointForm form : kSweptForms)
        for (const int slot : {0, 1, 15, 31})
            for (int axis = 1; axis <= 4; ++axis)
            {
                Confirm(form, [&](CDialogRobot& dialog) {
                    FillIn(dialog, {.slot = std::to_string(slot),
                                    .axis = std::to_string(axis),
                                    .startOutput = true,
                                    .same = true});
                });
                const int offset = form == kEPointForm ? 0 : form == kPPointStartForm ? 1 : 8;
                EXPECT_EQ(ReadResults(m_wizard).contacts.at(2),
                          (SContactRow{3, 2, (slot * 8 + axis + 9) * 16 + offset}))
                    << form << ", slot " << slot << ", axis " << axis;
            }
}

TEST_F(CEPointStartOutputTest, IsRefusedWithItsSlotAndAxis)
{
    m_wizard.SetStartType(1);
    Leave(kEPointForm, [this](CDialogRobot& dialog) {
        for (const auto& [slot, axis] : {std::pair{"32", "1"}, {"-1", "1"}, {"0", "0"}, {"0", "5"}, {"31", "9"}})
            Check(dialog, kEPointForm, {.slot = slot, .axis = axis, .startOutput = true, .same = true});
    });
    EXPECT_EQ(ReadResults(m_wizard), SResults());
}

// The relay of the unit is not among the outputs that the controller was declared with; it is not checked.
TEST_F(CEPointStartOutputTest, NeedsNoRangeOfOutputsForTheRelayOfTheUnit)
{
    m_wizard.SetStartType(1);
    SetDeviceRange(m_wizard, kY, 5, 20);
    Confirm(kEPointForm, [](CDialogRobot& dialog) {
        FillIn(dialog, {.slot = "31", .axis = "4", .startOutput = true, .same = true, .second = "F"});
    });
    EXPECT_EQ(ReadResults(m_wizard).contacts.at(2), (SContactRow{3, 2, 4176}));
}

TEST_F(CEPointStartOutputTest, ShowsTheWordsOfTheOutputs)
{
    struct
    {
        int low, high;
        const char* label;
    } const rows[] = {{0, kLastInput, "(2 - 109)"}, {0, Bit(50, 7), "(2 - 50)"}, {0, Bit(50, 0), "(2 - 50)"},
                      {0, Bit(49, 15), "(2 - 49)"}, {80, Bit(9, 0), "(2 - 9)"},  {0, Bit(2, 0), "(2 - 2)"},
                      {5, 4, "Impossible settings"}};
    for (const BYTE startType : std::initializer_list<BYTE>{0, 1, 2})
        for (const auto& row : rows)
        {
            m_wizard.SetStartType(startType);
            SetDeviceRange(m_wizard, kY, row.low, row.high);
            Leave(kJogPositioningForm, [&](CDialogRobot& dialog) { EXPECT_EQ(dialog.Text(2060), CString(row.label)); });
        }
}

// The lowest word is the third, wherever the outputs of the controller begin.
TEST_F(CEPointStartOutputTest, BeginsAtTheThirdWord)
{
    m_wizard.SetStartType(2);
    SetDeviceRange(m_wizard, kY, Bit(5, 0), kLastInput);
    Confirm(kEPointForm, [](CDialogRobot& dialog) {
        FillIn(dialog, {.startOutput = true, .same = true, .second = "50", .word = "1"});
        ExpectRefusal(dialog, 20030, 2059);
        dialog.Type(2059, "2");
    });
    EXPECT_EQ(ReadResults(m_wizard).contacts.at(2), (SContactRow{3, 2, 32}));
}

// The template of the module cannot ask for a start output, so there is none.
TEST_F(CEPointStartOutputTest, IsNeverThereInATemplateWithoutTheGroup)
{
    Use(kModule);
    for (const BYTE startType : std::initializer_list<BYTE>{0, 1, 2})
        for (const EEPointForm form : kForms)
        {
            m_wizard.SetStartType(startType);
            WriteResults(m_wizard, {.contacts = {{2, 1, 170}, {2, 2, 31}, {3, 2, 648}}});
            Confirm(form, [](CDialogRobot& dialog) {
                EXPECT_EQ(dialog.Text(2052), CString("10A"));
                FillIn(dialog, {.startOutput = true});
            });
            EXPECT_EQ(ReadResults(m_wizard).contacts, (Contacts{{2, 1, 170}}));
        }
}

} // namespace
