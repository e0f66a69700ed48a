// What the dialog of F171 refuses: the speeds that frequency range and channel allow, the other bounds, texts that are
// no numbers, the order of the checks; and what "Clear settings" does.
#include "tests/dialogs/pulse/SpdhTest.h"
#include "tests/support/Sampled.h"

#include <algorithm>
#include <tuple>

namespace
{

class CSpdhCheckTest : public CSpdhTest, public testing::WithParamInterface<ESpdhVariant>
{
protected:
    /// The edits in the order of their checks, with the messages of their ranges.
    static std::vector<std::pair<UINT, UINT>> Edits()
    {
        return {{2052, 20020}, {2251, 20003}, {2261, 20004}, {2262, 20005}, {2259, 20006}, {LastEdit(), LastMessage()}};
    }
    static UINT LastEdit() { return SpdhLastEdit(GetParam()); }
    static UINT LastMessage() { return GetParam() == kSpdhTrapezoidal ? 20007 : 20010; }

    /// All is right but the last entry, which is empty: the check has come so far.
    static void ExpectAllAcceptedBeforeTheLast(CDialogRobot& dialog)
    {
        dialog.Type(LastEdit(), "");
        ExpectRefusal(dialog, 20001, LastEdit());
    }
};

INSTANTIATE_TEST_SUITE_P(Variants, CSpdhCheckTest, testing::ValuesIn(kSpdhVariants), SpdhVariantName);

// ---- Speeds ---------------------------------------------------------------------------------------------------------

struct SSpeeds
{
    int frequency; // positions in the lists; -1: nothing selected
    int channel;
    int low;
    int high;
};

constexpr SSpeeds kSpeeds[] = {
    {0, 0, 1, 9800},     {0, 1, 1, 9800},     {0, 2, 1, 9800},    {0, 3, 1, 9800},    {0, -1, 1, 9800},
    {1, 0, 48, 100000},  {1, 1, 48, 100000},  {1, 2, 48, 20000},  {1, 3, 48, 20000},  {1, -1, 48, 20000},
    {2, 0, 191, 100000}, {2, 1, 191, 100000}, {2, 2, 191, 20000}, {2, 3, 191, 20000}, {2, -1, 191, 20000},
    {-1, 0, 0, 0},       {-1, 2, 0, 0},       {-1, -1, 0, 0},
};

TEST_P(CSpdhCheckTest, KeepsBothSpeedsInTheRangeOfFrequencyAndChannel)
{
    Leave(GetParam(), [](CDialogRobot& dialog) {
        FillIn(dialog, {});
        for (const SSpeeds& speeds : Sampled(kSpeeds, 3))
        {
            SCOPED_TRACE(testing::Message()
                         << "frequency range " << speeds.frequency << ", channel " << speeds.channel);
            SelectByProgram(dialog, 2256, speeds.frequency);
            SelectByProgram(dialog, 2253, speeds.channel);
            const std::string low = std::to_string(speeds.low), high = std::to_string(speeds.high);
            const CString label = ("(" + low + " - " + high + ")").c_str();
            EXPECT_EQ(dialog.Text(2258), label);
            EXPECT_EQ(dialog.Text(2263), label);

            dialog.Type(2261, low.c_str());
            dialog.Type(2262, high.c_str());
            ExpectAllAcceptedBeforeTheLast(dialog);
            dialog.Type(2262, std::to_string(speeds.high + 1).c_str());
            ExpectRefusal(dialog, 20005, 2262);
            dialog.Type(2262, std::to_string(speeds.low - 1).c_str());
            ExpectRefusal(dialog, 20005, 2262);

            dialog.Type(2261, high.c_str()); // neither is compared with the other
            dialog.Type(2262, low.c_str());
            ExpectAllAcceptedBeforeTheLast(dialog);
            dialog.Type(2261, std::to_string(speeds.high + 1).c_str());
            ExpectRefusal(dialog, 20004, 2261);
            dialog.Type(2261, std::to_string(speeds.low - 1).c_str());
            ExpectRefusal(dialog, 20004, 2261);
        }
    });
}

TEST_P(CSpdhCheckTest, ShowsTheSpeedsOfWhatIsSelectedByTheUser)
{
    Leave(GetParam(), [](CDialogRobot& dialog) {
        for (const SSpeeds& speeds : kSpeeds)
        {
            if (speeds.frequency < 0 || speeds.channel < 0)
                continue;
            dialog.Select(2253, speeds.channel);
            dialog.Select(2256, speeds.frequency);
            const CString label =
                ("(" + std::to_string(speeds.low) + " - " + std::to_string(speeds.high) + ")").c_str();
            EXPECT_EQ(dialog.Text(2258), label);
            EXPECT_EQ(dialog.Text(2263), label);
        }
        // The position counts, not the number: the second channel is 4, the third 6.
        dialog.Select(2253, 1);
        EXPECT_EQ(dialog.Text(2263), CString("(191 - 100000)"));
        dialog.Select(2253, 2);
        EXPECT_EQ(dialog.Text(2263), CString("(191 - 20000)"));
    });
}

// ---- Acceleration/deceleration time ---------------------------------------------------------------------------------

TEST_P(CSpdhCheckTest, KeepsTheTimeInTheRangeOfTheSteps)
{
    const struct
    {
        int steps;
        int low;
        const char* label;
    } kTimes[] = {{0, 30, "(30 - 32767)"}, {1, 60, "(60 - 32767)"}, {-1, 30, "(30 - 32767)"}};
    Leave(GetParam(), [&](CDialogRobot& dialog) {
        FillIn(dialog, {});
        dialog.Select(2254, 1);
        EXPECT_EQ(dialog.Text(2264), CString("(60 - 32767)"));
        for (const auto& [steps, low, label] : kTimes)
        {
            SCOPED_TRACE(testing::Message() << "steps " << steps);
            SelectByProgram(dialog, 2254, steps);
            EXPECT_EQ(dialog.Text(2264), CString(label));
            for (int time : {low, 32767})
            {
                dialog.Type(2259, std::to_string(time).c_str());
                ExpectAllAcceptedBeforeTheLast(dialog);
            }
            for (int time : {low - 1, 32768, 0, -low, 99999})
            {
                dialog.Type(2259, std::to_string(time).c_str());
                ExpectRefusal(dialog, 20006, 2259);
            }
        }
    });
}

// ---- The other bounds -----------------------------------------------------------------------------------------------

TEST_P(CSpdhCheckTest, KeepsTheLastEntryInItsRange)
{
    const bool trapezoidal = GetParam() == kSpdhTrapezoidal;
    const std::vector<const char*> inside = trapezoidal
                                                ? std::vector<const char*>{"-2147483648", "2147483647", "0", "-1"}
                                                : std::vector<const char*>{"0", "1", "100", "099"};
    for (const char* text : inside)
    {
        const SSpdhEntries entries = {.target = text, .clear = text};
        EXPECT_EQ(Confirmed(GetParam(), entries), SpdhResults(GetParam(), entries)) << text;
    }
    const std::vector<const char*> outside = trapezoidal
                                                 ? std::vector<const char*>{"-2147483649", "2147483648", "99999999999"}
                                                 : std::vector<const char*>{"101", "-1", "999"};
    Leave(GetParam(), [&](CDialogRobot& dialog) {
        FillIn(dialog, {});
        for (const char* text : outside)
        {
            SCOPED_TRACE(text);
            dialog.Type(LastEdit(), text);
            ExpectRefusal(dialog, LastMessage(), LastEdit());
        }
    });
}

TEST_P(CSpdhCheckTest, KeepsTheWholeTableInTheRegisters)
{
    SetDeviceRange(m_wizard, kDT, 100, 1000);
    const int last = GetParam() == kSpdhTrapezoidal ? 989 : 991; // twelve registers, or ten
    for (int start : {100, last})
    {
        const SSpdhEntries entries = {.start = std::to_string(start)};
        EXPECT_EQ(Confirmed(GetParam(), entries), SpdhResults(GetParam(), entries));
    }
    Leave(GetParam(), [&](CDialogRobot& dialog) {
        FillIn(dialog, {});
        EXPECT_EQ(dialog.Text(2252), CString(("(100 - " + std::to_string(last) + ")").c_str()));
        for (int start : {99, last + 1, 0, -1, 999})
        {
            SCOPED_TRACE(start);
            dialog.Type(2251, std::to_string(start).c_str());
            ExpectRefusal(dialog, 20003, 2251);
        }
    });
}

TEST_P(CSpdhCheckTest, KeepsTheContactInTheRangeOfItsDevice)
{
    Leave(GetParam(), [](CDialogRobot& dialog) {
        FillIn(dialog, {});
        for (const char* text : {"0", "255F"})
        {
            dialog.Type(2052, text);
            ExpectAllAcceptedBeforeTheLast(dialog);
        }
        for (const char* text : {"2560", "999F"})
        {
            dialog.Type(2052, text);
            ExpectRefusal(dialog, 20020, 2052);
        }
        dialog.SelectText(2051, "T");
        EXPECT_EQ(dialog.Text(2053), CString("(0 - 1007)"));
        dialog.Type(2052, "1007");
        ExpectAllAcceptedBeforeTheLast(dialog);
        dialog.Type(2052, "1008");
        ExpectRefusal(dialog, 20020, 2052);
        dialog.Check(2061);
        ExpectRefusal(dialog, 20020, 2052); // checked even without an instruction
    });
}

// ---- Texts ----------------------------------------------------------------------------------------------------------

TEST_P(CSpdhCheckTest, RefusesWhatIsNoNumber)
{
    Leave(GetParam(), [](CDialogRobot& dialog) {
        FillIn(dialog, {});
        for (const auto& [edit, message] : Edits())
        {
            const CString good = dialog.Text(edit);
            for (const char* text : {"", " ", "a", "12a", "1-2", "--1", "+1", "1 2", "1.5", "0x1", "1e3", "."})
            {
                const std::string bitNumbers[] = {"a", "12a", "1 2"};
                if (edit == 2052 &&
                    std::find(std::begin(bitNumbers), std::end(bitNumbers), text) != std::end(bitNumbers))
                    continue;
                SCOPED_TRACE(testing::Message() << '"' << text << "\" in edit " << edit);
                SetTextByProgram(dialog, edit, text);
                ExpectRefusal(dialog, 20001, edit);
            }
            dialog.Type(edit, good);
        }
    });
}

// Numbers that no register holds, and some that no integer type holds, are outside of every range.
TEST_P(CSpdhCheckTest, RefusesHugeNumbersAsOutOfRange)
{
    const char* kHuge[] = {"4294967296",           "4294967396",           "2147483648",
                           "18446744073709551616", "18446744073709551716", "9223372036854775808",
                           "-9223372036854775809", "-18446744073709551516"};
    Leave(GetParam(), [&](CDialogRobot& dialog) {
        FillIn(dialog, {});
        for (const auto& [edit, message] : Edits())
        {
            const CString good = dialog.Text(edit);
            for (const char* text : kHuge)
            {
                if (edit == 2052 && text[0] == '-')
                    continue; // bit numbers have no sign
                SCOPED_TRACE(testing::Message() << text << " in edit " << edit);
                SetTextByProgram(dialog, edit, text);
                ExpectRefusal(dialog, message, edit);
            }
            dialog.Type(edit, good);
        }
    });
}

TEST_P(CSpdhCheckTest, TakesBlanksZerosAndALoneSign)
{
    Confirm(GetParam(), [](CDialogRobot& dialog) {
        FillIn(dialog, {.contact = " 1A", .start = " 007", .initial = " 0500", .maximum = "9800 ", .time = "00030"});
        dialog.Type(LastEdit(), "-");
    });
    EXPECT_EQ(
        ReadResults(m_wizard),
        SpdhResults(GetParam(),
                    {.contact = "1A", .start = "7", .maximum = "9800", .time = "30", .target = "0", .clear = "0"}));
}

// ---- Order ----------------------------------------------------------------------------------------------------------

// With every set of bad entries, the first of them is pointed at, whether it is no number or out of its range.
TEST_P(CSpdhCheckTest, PointsAtTheFirstBadEntry)
{
    constexpr const char* kGood[] = {"10A", "100", "500", "5000", "300", "50"};
    const char* kOutside[] = {"2560", "99999", "0",
                              "9801", "29",    GetParam() == kSpdhTrapezoidal ? "2147483648" : "101"};
    const SResults before = SpdhResults(GetParam(), {.start = "7", .frequency = 2});
    WriteResults(m_wizard, before);
    Leave(GetParam(), [&](CDialogRobot& dialog) {
        FillIn(dialog, {});
        const auto edits = Edits();
        for (const unsigned bad : SampledSets(edits.size(), 13))
        {
            SCOPED_TRACE(testing::Message() << "bad entries " << bad);
            size_t first = edits.size();
            UINT message = 0;
            for (size_t i = edits.size(); i-- > 0;)
            {
                const bool isBad = (bad >> i & 1) != 0, isText = (bad + i) % 2 == 0;
                SetTextByProgram(dialog, edits[i].first, !isBad ? kGood[i] : isText ? "x" : kOutside[i]);
                if (isBad)
                {
                    first = i;
                    message = isText ? 20001 : edits[i].second;
                }
            }
            ExpectRefusal(dialog, message, edits[first].first);
        }
        EXPECT_EQ(ReadResults(m_wizard), before);
    });
    EXPECT_EQ(ReadResults(m_wizard), before);
}

TEST_P(CSpdhCheckTest, AcceptsWhatWasRefusedOnceItIsRight)
{
    Confirm(GetParam(), [](CDialogRobot& dialog) {
        FillIn(dialog,
               {.contact = "", .start = "x", .initial = "0", .maximum = "", .time = "1", .target = "", .clear = ""});
        const SSpdhEntries good;
        for (const auto& [edit, message, text] : {std::tuple(2052, 20001, "10A"),
                                                  {2251, 20001, "100"},
                                                  {2261, 20004, "500"},
                                                  {2262, 20001, "5000"},
                                                  {2259, 20006, "300"}})
        {
            ExpectRefusal(dialog, message, edit);
            dialog.Type(edit, text);
        }
        ExpectRefusal(dialog, 20001, LastEdit());
        dialog.Type(LastEdit(), GetParam() == kSpdhTrapezoidal ? good.target.c_str() : good.clear.c_str());
    });
    EXPECT_EQ(ReadResults(m_wizard), SpdhResults(GetParam(), {}));
}

// ---- Clear settings -------------------------------------------------------------------------------------------------

TEST_P(CSpdhCheckTest, ClearSettingsEmptiesTheDialogAndNothingElse)
{
    for (bool only : {false, true})
    {
        const SSpdhEntries entries = {.device = kL,
                                      .contact = "7F",
                                      .channel = only ? 0 : 3,
                                      .steps = 1,
                                      .duty = 1,
                                      .frequency = 2,
                                      .mode = 5,
                                      .initial = "191",
                                      .onlyDataTable = only};
        const SResults before = Confirmed(GetParam(), entries);
        EXPECT_EQ(before, SpdhResults(GetParam(), entries));
        Leave(GetParam(), [&](CDialogRobot& dialog) {
            dialog.Click(2099);
            for (UINT combo : {2051, 2253, 2254, 2255, 2256, 2257})
                EXPECT_EQ(dialog.Selection(combo), 0) << "of list " << combo;
            for (const auto& [edit, message] : Edits())
                EXPECT_EQ(dialog.Text(edit), CString()) << "of edit " << edit;
            EXPECT_EQ(dialog.Text(2053), CString("(0 - 109F)"));
            EXPECT_EQ(dialog.Text(2258), CString("(1 - 9800)"));
            EXPECT_EQ(dialog.Text(2263), CString("(1 - 9800)"));
            EXPECT_EQ(dialog.Text(2264), CString("(30 - 32767)"));
            EXPECT_EQ(dialog.Checked(2061), only);
            EXPECT_EQ(dialog.Enabled(2253), !only);
            EXPECT_EQ(dialog.FocusId(), 2061u);
            EXPECT_EQ(ReadResults(m_wizard), before);
        });
        EXPECT_EQ(ReadResults(m_wizard), before);
    }
}

} // namespace
