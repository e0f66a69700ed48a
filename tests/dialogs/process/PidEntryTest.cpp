// How the dialog of F355 reads its entries: digits, points, blanks, and the bounds of every one.
#include "tests/dialogs/process/PidTest.h"
#include "tests/support/Sampled.h"

namespace
{

using CPidEntryTest = CPidTest;

constexpr int kNoNumber = -1;
constexpr int kOutside = -2;

struct SReading
{
    EPidParameter parameter;
    const char* text;
    int value;
};

constexpr SReading kReadings[] = {
    {kSp, "0", 0},
    {kSp, "10000", 10000},
    {kSp, "10001", kOutside},
    {kSp, "99999", kOutside},
    {kSp, "00012", 12},
    {kSp, "000012", kNoNumber}, // leading zeros are digits too
    {kSp, "100.", 100},
    {kSp, "5.000", 5},
    {kSp, "10000.000", 10000},
    {kSp, "5.5", kNoNumber},
    {kSp, ".5", kNoNumber},
    {kSp, "-1", kNoNumber},
    {kSp, "+1", kNoNumber},
    {kSp, "1e2", kNoNumber},
    {kSp, "1 2", kNoNumber},
    {kSp, " 7 ", 7},
    {kSp, "", kNoNumber},
    {kSp, "   ", kNoNumber},
    {kSp, ".", kNoNumber},
    {kSp, "1..", kNoNumber},
    {kSp, "1.0.", kNoNumber},
    {kSp, "a", kNoNumber},
    {kSp, "0x1", kNoNumber},
    {kSp, "1,5", kNoNumber},
    {kSp, "4294967296", kNoNumber},

    {kLower, "0", 0},
    {kLower, "0.00", 0},
    {kLower, "0.01", 1},
    {kLower, "0.1", 10},
    {kLower, ".5", 50},
    {kLower, "5.", 500},
    {kLower, "2", 200},
    {kLower, "2.5", 250},
    {kLower, "12.50", 1250},
    {kLower, "12.500", 1250},
    {kLower, "12.345", kNoNumber},
    {kLower, "00.50", 50},
    {kLower, "000.5", kNoNumber},
    {kLower, "99.99", 9999},
    {kLower, "99.990000", 9999},
    {kLower, "100", kNoNumber},
    {kLower, "-0.5", kNoNumber},
    {kLower, ".", kNoNumber},
    {kLower, "1.2.3", kNoNumber},
    {kLower, "1. 5", kNoNumber},

    {kUpper, "0", kOutside},
    {kUpper, "0.00", kOutside},
    {kUpper, "0.01", 1},
    {kUpper, "0.001", kNoNumber},
    {kUpper, "50.5", 5050},
    {kUpper, "99.99", 9999},
    {kUpper, "100", 10000},
    {kUpper, "100.00", 10000},
    {kUpper, "100.01", kOutside},
    {kUpper, "999.99", kOutside},
    {kUpper, "1000", kNoNumber},

    {kKp, "0", kOutside},
    {kKp, "0.0", kOutside},
    {kKp, "0.05", kNoNumber},
    {kKp, "0.1", 1},
    {kKp, "0.10", 1},
    {kKp, ".1", 1},
    {kKp, "5", 50},
    {kKp, "999.9", 9999},
    {kKp, "999.90", 9999},
    {kKp, "1000", kNoNumber},
    {kKp, "999.99", kNoNumber},

    {kTi, "0", 0},
    {kTi, "0.1", 1},
    {kTi, "3000", 30000},
    {kTi, "3000.0", 30000},
    {kTi, "3000.1", kOutside},
    {kTi, "9999.9", kOutside},
    {kTi, "0.01", kNoNumber},
    {kTi, "10000", kNoNumber},

    {kTd, "0", 0},
    {kTd, "0.0", 0},
    {kTd, "1000", 10000},
    {kTd, "1000.0", 10000},
    {kTd, "1000.1", kOutside},
    {kTd, "3000", kOutside},
    {kTd, "9999.9", kOutside},
    {kTd, "1.23", kNoNumber},
    {kTd, "10000", kNoNumber},

    {kTs, "0", kOutside},
    {kTs, "0.00", kOutside},
    {kTs, "0.01", 1},
    {kTs, ".01", 1},
    {kTs, "1.5", 150},
    {kTs, "12.34", 1234}, // set, not typed
    {kTs, "60", 6000},
    {kTs, "60.00", 6000},
    {kTs, "60.01", kOutside},
    {kTs, "99.99", kOutside},
    {kTs, "100", kNoNumber},
    {kTs, "0.001", kNoNumber},
    {kTs, "x", kNoNumber},
};

TEST_F(CPidEntryTest, RefusesWhatIsNoNumberOrOutsideItsRange)
{
    Leave([](CDialogRobot& dialog) {
        FillIn(dialog, {});
        for (const SReading& reading : kReadings)
        {
            const SPidParameterRow& parameter = kPid[reading.parameter];
            const UINT message = reading.value == kNoNumber ? 20001 : reading.value == kOutside ? parameter.message : 0;
            SCOPED_TRACE(testing::Message() << parameter.name << " \"" << reading.text << '"');
            ASSERT_EQ(PidMessage(parameter, reading.text), message);
            if (message == 0)
                continue;
            const CString good = dialog.Text(parameter.edit);
            SetTextByProgram(dialog, parameter.edit, reading.text);
            ExpectRefusal(dialog, message, parameter.edit);
            dialog.Type(parameter.edit, good);
        }
    });
    EXPECT_EQ(ReadResults(m_wizard), SResults());
}

// Each opening takes the next accepted text of every parameter.
TEST_F(CPidEntryTest, StoresWhatItAccepts)
{
    std::array<std::vector<SReading>, kPidParameters> accepted;
    size_t openings = 0;
    for (const SReading& reading : kReadings)
    {
        if (reading.value >= 0)
            accepted[reading.parameter].push_back(reading);
        openings = std::max(openings, accepted[reading.parameter].size());
    }
    for (size_t i = 0; i < openings; ++i)
    {
        SResults expected = PidResults({});
        Confirm([&](CDialogRobot& dialog) {
            FillIn(dialog, {});
            for (size_t parameter = 0; parameter < kPidParameters; ++parameter)
            {
                const SReading& reading = accepted[parameter][i % accepted[parameter].size()];
                SetTextByProgram(dialog, kPid[parameter].edit, reading.text);
                expected.data[parameter + 1].value = reading.value;
            }
        });
        EXPECT_EQ(ReadResults(m_wizard), expected) << "in opening " << i;
    }
}

// Where a message box takes long, a part of the texts stands for all.
#if defined(__SANITIZE_ADDRESS__)
constexpr int kWholeStep = 5;
#else
constexpr int kWholeStep = 1;
#endif
const int kStep = IsThorough() ? kWholeStep : 397;

/// All texts up to a length from the characters that matter.
std::vector<std::string> ShortTexts(size_t length)
{
    std::vector<std::string> texts = {""};
    for (size_t i = 0; i < texts.size(); ++i)
    {
        if (texts[i].size() == length)
            break;
        for (char c : std::string("019. -a"))
            texts.push_back(texts[i] + c);
    }
    return texts;
}

// The last parameter is bad, so that what is accepted before it leads there.
TEST_F(CPidEntryTest, ReadsAnyShortText)
{
    const std::vector<std::string> texts = ShortTexts(4);
    Leave([&](CDialogRobot& dialog) {
        FillIn(dialog, {});
        dialog.Type(kPid[kTs].edit, "");
        for (size_t parameter : {kSp, kLower, kUpper, kKp, kTi, kTd})
        {
            const CString good = dialog.Text(kPid[parameter].edit);
            for (size_t i = parameter; i < texts.size(); i += kStep)
            {
                SCOPED_TRACE(testing::Message() << kPid[parameter].name << " \"" << texts[i] << '"');
                SetTextByProgram(dialog, kPid[parameter].edit, texts[i]);
                const UINT message = PidMessage(kPid[parameter], texts[i]);
                if (message == 0)
                    ExpectRefusal(dialog, 20001, kPid[kTs].edit);
                else
                    ExpectRefusal(dialog, message, kPid[parameter].edit);
                if (HasFailure())
                    return;
            }
            dialog.Type(kPid[parameter].edit, good);
        }
    });
}

// ---- The start ------------------------------------------------------------------------------------------------------

TEST_F(CPidEntryTest, KeepsTheWholeTableInTheRegisters)
{
    SetDeviceRange(m_wizard, kDT, 50, 12287);
    for (const char* start : {"50", "12258", "100.", " 99 ", "00077", "60.0"})
    {
        SPidEntries entries;
        entries.start = start;
        EXPECT_EQ(Confirmed(entries), PidResults(entries)) << start;
    }
    Leave([](CDialogRobot& dialog) {
        FillIn(dialog, {});
        const struct
        {
            const char* text;
            UINT message;
        } kRefused[] = {{"49", 20003},     {"12259", 20003}, {"0", 20003},    {"99999", 20003}, {"", 20001},
                        {"-1", 20001},     {"1e2", 20001},   {"x", 20001},    {"100.5", 20001}, {".", 20001},
                        {"000100", 20001}, {"1 00", 20001},  {"+100", 20001}, {"100000", 20001}};
        for (const auto& [text, message] : kRefused)
        {
            SCOPED_TRACE(testing::Message() << '"' << text << '"');
            SetTextByProgram(dialog, 2801, text);
            ExpectRefusal(dialog, message, 2801);
        }
    });
}

TEST_F(CPidEntryTest, ReadsFiveDigitsOfTheStart)
{
    SetDeviceRange(m_wizard, kDT, 0, 200000);
    SPidEntries entries;
    entries.start = "99999";
    EXPECT_EQ(Confirmed(entries), PidResults(entries));
    Leave([](CDialogRobot& dialog) {
        dialog.Type(2801, "100000");
        EXPECT_EQ(dialog.Text(2801), CString("100000"));
        ExpectRefusal(dialog, 20001, 2801);
    });
}

} // namespace
