// What the dialog of F168 refuses: bounds, texts, the order of the checks, and what a refusal leaves alone.
#include "tests/dialogs/pulse/Spd1Test.h"

namespace
{

constexpr UINT kAccepted = 0;
constexpr UINT kNoNumber = 20001;

/// The edits in the order of their checks.
constexpr UINT kEdits[] = {2052, 2101, 2106, 2107, 2108, 2110};

std::string& EntryOf(SSpd1Entries& entries, UINT edit)
{
    switch (edit)
    {
    case 2052:
        return entries.contact;
    case 2101:
        return entries.start;
    case 2106:
        return entries.initial;
    case 2107:
        return entries.maximum;
    case 2108:
        return entries.time;
    default:
        return entries.target;
    }
}

bool HasEdit(ESpd1Variant variant, UINT edit) { return edit != 2110 || variant == kTrapezoidal; }

/// What the wizard held before, different from anything that the entries of the tests would store.
SResults EarlierResults()
{
    return {.contacts = {{2, 2, 7}},
            .operands = {{9, 200}, {11, 1}},
            .data = {{9, 200, 0, 1, 0x113}, {9, 201, 0, 0, 77}, {9, 202, 0, 0, 88}, {9, 203, 0, 0, 99}},
            .comments = {"kept"},
            .instructions = {{8, -1, 168, 0, 0}}};
}

class CSpd1CheckTest : public CSpd1Test
{
protected:
    /// Fills the entries in and clicks OK, which must do what the model says it does.
    void Check(CDialogRobot& dialog, ESpd1Variant variant, const SSpd1Entries& entries)
    {
        const SSpd1Outcome outcome = Spd1Outcome(variant, entries, Limits(entries.device));
        const SResults before = ReadResults(m_wizard);
        FillIn(dialog, entries);
        if (outcome.message != kAccepted)
        {
            ExpectRefusal(dialog, outcome.message, outcome.edit);
            EXPECT_EQ(ReadResults(m_wizard), before);
            return;
        }
        EXPECT_EQ(dialog.ClickAndAnswer(IDOK), CString());
        EXPECT_FALSE(dialog.IsOpen());
    }
};

// ---- Bounds ---------------------------------------------------------------------------------------------------------

struct SBound
{
    UINT edit;
    const char* text;
    UINT message;
    int width = 0; // position in the list of pulse widths
};

constexpr SBound kBounds[] = {
    {2106, "39", 20004},          {2106, "40", kAccepted},       {2106, "5000", kAccepted},
    {2106, "5001", 20004},        {2106, "-40", 20004},          {2106, "0", 20004},
    {2107, "39", 20005},          {2107, "40", kAccepted},       {2107, "6000", kAccepted},
    {2107, "6001", 20005},        {2107, "9500", 20005},         {2107, "39", 20005, 1},
    {2107, "40", kAccepted, 1},   {2107, "6000", kAccepted, 1},  {2107, "6001", kAccepted, 1},
    {2107, "9500", kAccepted, 1}, {2107, "9501", 20005, 1},      {2108, "29", 20006},
    {2108, "30", kAccepted},      {2108, "32767", kAccepted},    {2108, "32768", 20006},
    {2108, "99999", 20006},       {2110, "-8388608", kAccepted}, {2110, "8388607", kAccepted},
    {2110, "8388608", 20007},     {2110, "0", kAccepted},        {2110, "99999999", 20007},
    {2052, "0", kAccepted},       {2052, "255F", kAccepted},     {2052, "2560", 20020},
    {2052, "999F", 20020},        {2101, "0", kAccepted},        {2101, "-1", 20003},
    {2101, "99999", 20003},
};

TEST_F(CSpd1CheckTest, AcceptsTheBoundsAndRefusesWhatLiesOutside)
{
    for (ESpd1Variant variant : kVariants)
    {
        for (const SBound& bound : kBounds)
        {
            if (!HasEdit(variant, bound.edit))
                continue;
            SCOPED_TRACE(testing::Message() << variant << ", \"" << bound.text << "\" in edit " << bound.edit);
            SSpd1Entries entries = {.width = bound.width};
            EntryOf(entries, bound.edit) = bound.text;
            ASSERT_EQ(Spd1Outcome(variant, entries, Limits(kR)).message, bound.message);
            const auto check = [&](CDialogRobot& dialog) { Check(dialog, variant, entries); };
            bound.message == kAccepted ? Confirm(variant, check) : Leave(variant, check);
        }
    }
}

// The one below the lowest target has a character more than can be typed.
TEST_F(CSpd1CheckTest, RefusesTheTargetBelowTheLowest)
{
    Leave(kTrapezoidal, [](CDialogRobot& dialog) {
        FillIn(dialog, {});
        dialog.SetText(IDC_SPD1_TARGET, "-8388609");
        ExpectRefusal(dialog, 20007, IDC_SPD1_TARGET);
    });
}

struct SStartBound
{
    ESpd1Variant variant;
    const char* text;
    UINT message;
};

// Registers 100 to 1000: the table takes seven or four of them.
constexpr SStartBound kStartBounds[] = {
    {kTrapezoidal, "99", 20003},     {kTrapezoidal, "100", kAccepted}, {kTrapezoidal, "994", kAccepted},
    {kTrapezoidal, "995", 20003},    {kHomeReturn, "99", 20003},       {kHomeReturn, "100", kAccepted},
    {kHomeReturn, "997", kAccepted}, {kHomeReturn, "998", 20003},
};

TEST_F(CSpd1CheckTest, KeepsTheWholeTableInTheRegisters)
{
    SetDeviceRange(m_wizard, kDT, 100, 1000);
    for (const SStartBound& bound : kStartBounds)
    {
        SCOPED_TRACE(testing::Message() << bound.variant << " at " << bound.text);
        const SSpd1Entries entries = {.start = bound.text};
        ASSERT_EQ(Spd1Outcome(bound.variant, entries, Limits(kR)).message, bound.message);
        const auto check = [&](CDialogRobot& dialog) { Check(dialog, bound.variant, entries); };
        bound.message == kAccepted ? Confirm(bound.variant, check) : Leave(bound.variant, check);
    }
}

// ---- Texts that are no numbers --------------------------------------------------------------------------------------

// "-" alone reads as 0.
constexpr const char* kMalformed[] = {"",   " ",   "    ", "a",   "12a", "1-2", "--1",
                                      "+1", "1 2", "1.5",  "0x1", "1e3", "\x80"};

TEST_F(CSpd1CheckTest, RefusesWhatIsNoNumber)
{
    for (ESpd1Variant variant : kVariants)
    {
        Remember(variant, EarlierResults());
        Leave(variant, [&](CDialogRobot& dialog) {
            FillIn(dialog, {});
            for (UINT edit : kEdits)
            {
                if (!HasEdit(variant, edit))
                    continue;
                const CString good = dialog.Text(edit);
                for (const char* text : kMalformed)
                {
                    const bool isBitNumber =
                        edit == 2052 && (text[0] == 'a' || std::string(text) == "12a" || std::string(text) == "1 2");
                    if (isBitNumber)
                        continue;
                    SCOPED_TRACE(testing::Message() << variant << ", \"" << text << "\" in edit " << edit);
                    dialog.Type(edit, text);
                    ExpectRefusal(dialog, kNoNumber, edit);
                }
                dialog.Type(edit, good);
            }
        });
        EXPECT_EQ(ReadResults(m_wizard), EarlierResults());
    }
}

TEST_F(CSpd1CheckTest, TakesALoneSignForZero)
{
    Confirm(kTrapezoidal, [](CDialogRobot& dialog) { FillIn(dialog, {.start = "-", .target = "-"}); });
    EXPECT_EQ(ReadResults(m_wizard), Spd1Outcome(kTrapezoidal, {.start = "0", .target = "0"}, Limits(kR)).results);
}

// Numbers that no integer type holds are outside of every range.
TEST_F(CSpd1CheckTest, RefusesHugeNumbersAsOutOfRange)
{
    constexpr UINT kMessages[] = {20020, 20003, 20004, 20005, 20006, 20007};
    const char* kHuge[] = {"4294967296",           "4294967396",           "18446744073709551616",
                           "18446744073709551716", "99999999999999999999", "9223372036854775808",
                           "-9223372036854775809", "-18446744073709551516"};
    Leave(kTrapezoidal, [&](CDialogRobot& dialog) {
        FillIn(dialog, {});
        for (size_t i = 0; i < std::size(kEdits); ++i)
        {
            const CString good = dialog.Text(kEdits[i]);
            for (const char* text : kHuge)
            {
                if (kEdits[i] == 2052 && text[0] == '-')
                    continue; // bit numbers have no sign
                SCOPED_TRACE(testing::Message() << text << " in edit " << kEdits[i]);
                dialog.SetText(kEdits[i], text);
                ExpectRefusal(dialog, kMessages[i], kEdits[i]);
            }
            dialog.Type(kEdits[i], good);
        }
    });
}

// ---- Order ----------------------------------------------------------------------------------------------------------

// With every set of bad fields, the first of them is pointed at; whether the bad one is no number or out of its range.
TEST_F(CSpd1CheckTest, PointsAtTheFirstBadField)
{
    const char* kOutside[] = {"2560", "99999", "39", "39", "29", "8388608"};
    for (ESpd1Variant variant : kVariants)
    {
        const size_t count = variant == kTrapezoidal ? 6 : 5;
        Remember(variant, EarlierResults());
        Leave(variant, [&](CDialogRobot& dialog) {
            for (unsigned bad = 1; bad < 1u << count; ++bad)
            {
                SCOPED_TRACE(testing::Message() << variant << ", bad fields " << bad);
                SSpd1Entries entries;
                for (size_t i = 0; i < count; ++i)
                {
                    if ((bad >> i & 1) != 0)
                        EntryOf(entries, kEdits[i]) = (bad + i) % 2 == 0 ? "" : kOutside[i];
                }
                Check(dialog, variant, entries);
            }
        });
        EXPECT_EQ(ReadResults(m_wizard), EarlierResults());
    }
}

TEST_F(CSpd1CheckTest, AcceptsWhatWasRefusedOnceItIsRight)
{
    Confirm(kTrapezoidal, [](CDialogRobot& dialog) {
        FillIn(dialog, {.contact = "", .start = "x", .initial = "1", .maximum = "", .time = "1", .target = "-"});
        ExpectRefusal(dialog, 20001, 2052);
        dialog.Type(2052, "10A");
        ExpectRefusal(dialog, 20001, 2101);
        dialog.Type(2101, "100");
        ExpectRefusal(dialog, 20004, 2106);
        dialog.Type(2106, "500");
        ExpectRefusal(dialog, 20001, 2107);
        dialog.Type(2107, "5000");
        ExpectRefusal(dialog, 20006, 2108);
        dialog.Type(2108, "300");
    });
    EXPECT_EQ(ReadResults(m_wizard), Spd1Outcome(kTrapezoidal, {.target = "0"}, Limits(kR)).results);
}

// The number is replaced by what is typed next: it is selected as a whole.
TEST_F(CSpd1CheckTest, LetsTheUserTypeOverTheBadEntry)
{
    Leave(kTrapezoidal, [](CDialogRobot& dialog) {
        FillIn(dialog, {.time = "29"});
        ExpectRefusal(dialog, 20006, IDC_SPD1_TIME);
        for (char c : {'3', '1'})
            dialog.Dialog()->GetDlgItem(IDC_SPD1_TIME)->PostMessage(WM_CHAR, static_cast<WPARAM>(c), 1);
        dialog.Pump();
        EXPECT_EQ(dialog.Text(IDC_SPD1_TIME), CString("31"));
    });
}

// ---- Ranges that follow a choice ------------------------------------------------------------------------------------

TEST_F(CSpd1CheckTest, TheMaximumFollowsThePulseWidth)
{
    for (ESpd1Variant variant : kVariants)
    {
        Leave(variant, [](CDialogRobot& dialog) {
            FillIn(dialog, {.maximum = "9500"});
            EXPECT_EQ(dialog.Text(IDC_SPD1_MAXIMUM_RANGE), CString("(40 - 6000)"));
            ExpectRefusal(dialog, 20005, IDC_SPD1_MAXIMUM);

            dialog.Select(IDC_SPD1_WIDTH, 1);
            EXPECT_EQ(dialog.Text(IDC_SPD1_MAXIMUM_RANGE), CString("(40 - 9500)"));
            dialog.Type(IDC_SPD1_TIME, "");
            ExpectRefusal(dialog, 20001, IDC_SPD1_TIME); // past the maximum

            dialog.Select(IDC_SPD1_WIDTH, 0);
            EXPECT_EQ(dialog.Text(IDC_SPD1_MAXIMUM_RANGE), CString("(40 - 6000)"));
            ExpectRefusal(dialog, 20005, IDC_SPD1_MAXIMUM);
        });
    }
}

TEST_F(CSpd1CheckTest, WithoutAPulseWidthTheMaximumIsTheHigherOne)
{
    Leave(kTrapezoidal, [](CDialogRobot& dialog) {
        FillIn(dialog, {.maximum = "9501"});
        dialog.Dialog()->SendDlgItemMessage(IDC_SPD1_WIDTH, CB_SETCURSEL, static_cast<WPARAM>(-1));
        dialog.Dialog()->SendMessage(WM_COMMAND, MAKEWPARAM(IDC_SPD1_WIDTH, CBN_SELCHANGE));
        EXPECT_EQ(dialog.Text(IDC_SPD1_MAXIMUM_RANGE), CString("(40 - 9500)"));
        ExpectRefusal(dialog, 20005, IDC_SPD1_MAXIMUM);
        dialog.Type(IDC_SPD1_MAXIMUM, "9500");
        dialog.Type(IDC_SPD1_TIME, "");
        ExpectRefusal(dialog, 20001, IDC_SPD1_TIME);
    });
}

// ---- Clear settings -------------------------------------------------------------------------------------------------

TEST_F(CSpd1CheckTest, ClearSettingsEmptiesTheDialogAndNothingElse)
{
    for (ESpd1Variant variant : kVariants)
    {
        for (bool only : {false, true})
        {
            Remember(variant, EarlierResults());
            Leave(variant, [&](CDialogRobot& dialog) {
                FillIn(dialog,
                       {.device = kL, .contact = "7F", .output = 1, .width = 1, .mode = 4, .onlyDataTable = only});
                dialog.Click(IDC_CLEAR_SETTINGS);
                for (UINT combo : {2051, 2103, 2104, 2105})
                    EXPECT_EQ(dialog.Selection(combo), 0) << "of list " << combo;
                for (UINT edit : kEdits)
                {
                    if (HasEdit(variant, edit))
                    {
                        EXPECT_EQ(dialog.Text(edit), CString()) << "of edit " << edit;
                    }
                }
                EXPECT_EQ(dialog.Text(IDC_CONTACT_RANGE), CString("(0 - 109F)"));
                EXPECT_EQ(dialog.Text(IDC_SPD1_MAXIMUM_RANGE), CString("(40 - 6000)"));
                EXPECT_EQ(dialog.Checked(IDC_ONLY_DATA_TABLE), only);
                EXPECT_EQ(dialog.Enabled(IDC_SPD1_OUTPUT), !only);
                EXPECT_EQ(dialog.FocusId(), UINT{IDC_ONLY_DATA_TABLE});
                EXPECT_EQ(ReadResults(m_wizard), EarlierResults());
            });
            EXPECT_EQ(ReadResults(m_wizard), EarlierResults());
        }
    }
}

} // namespace
