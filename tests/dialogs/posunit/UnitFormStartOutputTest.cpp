// The start output of the unit's operations: what is enabled and shown of it, and the contacts that it leaves.
#include "tests/dialogs/posunit/Layout.h"
#include "tests/dialogs/posunit/UnitFormTest.h"

namespace
{

class CUnitFormStartOutputTest : public CUnitFormsTest
{
protected:
    SLayout LayoutWith(BYTE startType)
    {
        m_wizard.SetStartType(startType);
        SLayout layout;
        Leave(GetParam(), [&](CDialogRobot& dialog) { layout = LayoutOf(dialog); });
        return layout;
    }
};

INSTANTIATE_TEST_SUITE_P(Forms, CUnitFormStartOutputTest, testing::ValuesIn(StartedForms()), UnitFormName);

// ---- Enabling -------------------------------------------------------------------------------------------------------

// In a JOG operation two more than in the others: the direction and its label.
TEST_P(CUnitFormStartOutputTest, EnablesWhatItsCheckBoxesLeaveToFillIn)
{
    const SUnitForm& form = GetParam();
    const int last = form.HasDirection() ? 12 : 10; // behind the check box of the start output
    constexpr int kFirstOfSecond = 2;               // label, list, edit and range
    constexpr int kLastOfSecond = 5;
    m_wizard.SetStartType(2);
    Leave(form, [&](CDialogRobot& dialog) {
        // Every state from every other one, as far as a click leads there.
        for (const int state : {3, 1, 0, 1, 3, 2, 3, 1, 0})
        {
            const bool wanted = (state & 1) != 0;
            const bool same = (state & 2) != 0;
            SCOPED_TRACE(testing::Message() << wanted << same);
            if (dialog.Checked(2055) != same)
                dialog.Check(2055, same);
            dialog.Check(2054, wanted);
            for (int position = 1; position <= last; ++position)
            {
                const bool second = position >= kFirstOfSecond && position <= kLastOfSecond;
                EXPECT_EQ(ControlAfter(dialog, 2054, position)->IsWindowEnabled() != FALSE, wanted && !(same && second))
                    << "control " << position;
            }
            EXPECT_EQ(ControlAfter(dialog, 2054, last + 1)->GetDlgCtrlID(), IDOK);
            for (const UINT id : {2051u, 2052u, form.numbers[0].id, 2054u, 1u, 2u, 3099u})
                EXPECT_TRUE(dialog.Enabled(id)) << id;
            if (form.changeDevice != 0)
            {
                EXPECT_TRUE(dialog.Enabled(form.changeDevice));
                EXPECT_TRUE(dialog.Enabled(form.changeNumber));
            }
        }
    });
}

// ---- Layout ---------------------------------------------------------------------------------------------------------

TEST_P(CUnitFormStartOutputTest, ShowsEverythingWhenTheOutputIsChosen)
{
    const SLayout full = LayoutWith(2);
    for (const SRobotControl& control : full.controls)
        EXPECT_TRUE(control.visible) << control.id;
    ExpectTidy(full);
}

TEST_P(CUnitFormStartOutputTest, ShowsNothingOfTheGroupWhenTheHostStartsTheAxis)
{
    const SUnitForm& form = GetParam();
    const SLayout full = LayoutWith(2);
    const size_t frame = IndexOf(full, 2054) - 1;
    const CRect frameRect(full.controls[frame].rect);
    const int gained = RectOf(full, 3099).top - frameRect.top;
    ASSERT_GT(gained, 0);
    ExpectCompacted(LayoutWith(0), full, frame, static_cast<size_t>(form.startType0Hides), gained, frameRect);
}

TEST_P(CUnitFormStartOutputTest, ShowsNoWordWhenTheUnitStartsTheAxis)
{
    const SUnitForm& form = GetParam();
    const SLayout full = LayoutWith(2);
    const size_t word = IndexOf(full, 2059);
    const CRect wordRect = RectOf(full, 2059);
    const int gained = RectOf(full, 3099).top - wordRect.bottom;
    ASSERT_GT(gained, 0);
    CRect frame(full.controls[IndexOf(full, 2054) - 1].rect);
    frame.bottom = wordRect.top + wordRect.Height() / form.frameShare;
    const SLayout layout = LayoutWith(1);
    ExpectCompacted(layout, full, word - 3, 5, gained, frame);
    EXPECT_GT(frame.bottom, RectOf(layout, form.HasDirection() ? 2062 : 2057).bottom) << "the frame still holds them";
    EXPECT_LT(frame.bottom, RectOf(layout, 1).top);
}

TEST_P(CUnitFormStartOutputTest, IsNotInTheTemplateOfTheModule)
{
    Use(kModule);
    const SLayout full = LayoutWith(2);
    ExpectTidy(full);
    for (const UINT id : {2054, 2055, 2056, 2057, 2058, 2059, 2060, 2061, 2062})
        EXPECT_EQ(IndexOf(full, id), full.controls.size()) << "control " << id;
    for (const BYTE startType : std::initializer_list<BYTE>{0, 1})
    {
        const SLayout layout = LayoutWith(startType);
        ASSERT_EQ(layout.controls.size(), full.controls.size());
        for (size_t i = 0; i < full.controls.size(); ++i)
        {
            EXPECT_TRUE(layout.controls[i].visible);
            EXPECT_EQ(CRect(layout.controls[i].rect), CRect(full.controls[i].rect));
        }
        EXPECT_EQ(layout.client, full.client);
    }
}

// The passing point is part of a move that runs: nothing starts it.
TEST_F(CUnitFormTest, ThePassingPointHasNoStartOutput)
{
    for (const int source : kUnitSources)
        for (const BYTE startType : std::initializer_list<BYTE>{0, 1, 2})
        {
            Use(source);
            m_wizard.SetStartType(startType);
            WriteResults(m_wizard, {.contacts = {{2, 1, 170}, {2, 2, 31}, {3, 2, 648}}});
            Confirm(UnitForm("PPointPassing"), [](CDialogRobot& dialog) {
                for (const UINT id : {2054, 2055, 2056, 2057, 2058, 2059, 2060, 2061, 2062})
                    EXPECT_FALSE(dialog.Exists(id)) << id;
                const SLayout layout = LayoutOf(dialog);
                ExpectTidy(layout);
                for (const SRobotControl& control : layout.controls)
                    EXPECT_TRUE(control.visible && control.enabled) << control.id;
                EXPECT_EQ(dialog.Text(2052), CString("10A"));
                FillIn(dialog, UnitForm("PPointPassing"), SUnitEntries(UnitForm("PPointPassing")));
            });
            EXPECT_EQ(ReadResults(m_wizard).contacts, (std::vector<SContactRow>{{2, 1, 170}}));
        }
}

// ---- Contacts -------------------------------------------------------------------------------------------------------

using Contacts = std::vector<SContactRow>;

struct SStarted
{
    const char* form;
    int direction;
    SContactRow unitRelay;   ///< of axis 2 in slot 1
    SContactRow chosenRelay; ///< of word 40
};

const SStarted kStarted[] = {
    {"Jog", 0, {3, 2, 307}, {3, 2, 643}},
    {"Jog", 1, {3, 2, 308}, {3, 2, 644}},
    {"JogSpeedChange", 0, {3, 2, 307}, {3, 2, 643}},
    {"JogSpeedChange", 1, {3, 2, 308}, {3, 2, 644}},
    {"HomeReturn", 0, {3, 2, 306}, {3, 2, 642}},
    {"Pulsar", 0, {3, 2, 311}, {3, 2, 647}},
};

TEST_F(CUnitFormTest, AddsTheConditionAndTheOutput)
{
    for (const SStarted& row : kStarted)
    {
        const SUnitForm& form = UnitForm(row.form);
        for (const int source : kSweptUnitSources)
        {
            Use(source);
            for (const BYTE startType : std::initializer_list<BYTE>{0, 1, 2})
                for (const bool wanted : {false, true})
                    for (const bool same : SameOrNot(wanted && startType != 0))
                    {
                        SCOPED_TRACE(testing::Message() << row.form << ", direction " << row.direction
                                                        << ", start type " << int{startType} << ", " << wanted << same);
                        m_wizard.SetStartType(startType);
                        SUnitEntries entries(form);
                        entries.startOutput = wanted;
                        entries.same = same;
                        entries.direction = row.direction;
                        Contacts expected = {{2, 1, 170}};
                        if (form.changeNumber != 0)
                            expected.push_back({2, 0, 5});
                        if (source != kModule && wanted && startType != 0)
                        {
                            expected.push_back(same ? SContactRow{2, 1, 170} : SContactRow{2, 2, 31});
                            expected.push_back(startType == 1 ? row.unitRelay : row.chosenRelay);
                        }
                        const SResults results = Confirmed(form, entries);
                        EXPECT_EQ(results.contacts, expected);
                        EXPECT_EQ(results, UnitOutcome(form, entries, m_wizard).results);
                    }
        }
    }
}

TEST_P(CUnitFormStartOutputTest, HasTheFirstConditionTwiceWhateverStandsInTheSecond)
{
    const SUnitForm& form = GetParam();
    m_wizard.SetStartType(1);
    SUnitEntries entries = Started(form);
    entries.device = kT;
    entries.contact = "9";
    entries.same = true;
    entries.second = "x";
    const Contacts contacts = Confirmed(form, entries).contacts;
    ASSERT_GE(contacts.size(), 3u);
    EXPECT_EQ(contacts[0], (SContactRow{2, 4, 9}));
    EXPECT_EQ(contacts[contacts.size() - 2], (SContactRow{2, 4, 9}));
}

TEST_P(CUnitFormStartOutputTest, IsTheRelayOfTheSlotAndAxis)
{
    const SUnitForm& form = GetParam();
    struct
    {
        int slot, axis, firstRelay;
    } const rows[] = {{0, 1, 160}, {0, 4, 208}, {1, 2, 304}, {2, 4, 464}, {15, 3, 2112}, {31, 1, 4128}, {31, 4, 4176}};
    m_wizard.SetStartType(1);
    SetDeviceRange(m_wizard, kY, 0, 80); // the relay of the unit is not checked
    for (const auto& row : Sampled(rows, 4))
        for (size_t direction = 0; direction < form.startBits.size(); ++direction)
        {
            SUnitEntries entries = Started(form);
            entries.slot = std::to_string(row.slot);
            entries.axis = std::to_string(row.axis);
            entries.same = true;
            entries.second = "0";
            entries.direction = static_cast<int>(direction);
            EXPECT_EQ(Confirmed(form, entries).contacts.back(),
                      (SContactRow{3, 2, row.firstRelay + form.startBits[direction]}))
                << "slot " << row.slot << ", axis " << row.axis;
        }
}

TEST_F(CUnitFormTest, StartsHomeReturnAndPulsarByTheirRelays)
{
    m_wizard.SetStartType(1);
    SUnitEntries home = Started(UnitForm("HomeReturn"));
    home.slot = "0";
    home.axis = "1";
    EXPECT_EQ(Confirmed(UnitForm("HomeReturn"), home).contacts.back(), (SContactRow{3, 2, 162}));
    SUnitEntries pulsar = Started(UnitForm("Pulsar"));
    pulsar.slot = "2";
    pulsar.axis = "4";
    EXPECT_EQ(Confirmed(UnitForm("Pulsar"), pulsar).contacts.back(), (SContactRow{3, 2, 471}));
}

// Without a selection the direction is the first one.
TEST_F(CUnitFormTest, RunsForwardWithoutADirection)
{
    m_wizard.SetStartType(1);
    for (const char* name : {"Jog", "JogSpeedChange"})
    {
        Confirm(UnitForm(name), [&](CDialogRobot& dialog) {
            SUnitEntries entries = Started(UnitForm(name));
            entries.direction = 1;
            FillIn(dialog, UnitForm(name), entries);
            SelectByProgram(dialog, 2062, -1);
        });
        EXPECT_EQ(ReadResults(m_wizard).contacts.back(), (SContactRow{3, 2, 307}));
    }
}

TEST_P(CUnitFormStartOutputTest, ShowsTheWordsOfTheOutputs)
{
    struct
    {
        int low, high;
        const char* label;
    } const rows[] = {{0, kLastInput, "(2 - 109)"},
                      {0, Bit(50, 7), "(2 - 50)"},
                      {0, Bit(49, 15), "(2 - 49)"},
                      {0, Bit(2, 0), "(2 - 2)"},
                      {5, 4, "Impossible settings"}};
    for (const auto& row : rows)
    {
        m_wizard.SetStartType(2);
        SetDeviceRange(m_wizard, kY, row.low, row.high);
        Leave(GetParam(), [&](CDialogRobot& dialog) { EXPECT_EQ(dialog.Text(2060), CString(row.label)); });
    }
}

} // namespace
