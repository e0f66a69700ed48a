// What the dialog of F355 shows of an earlier run: the control mode of every word, the notation of every value, and the
// walk over records of which any may be missing.
#include "tests/dialogs/process/PidTest.h"
#include "tests/support/Sampled.h"

#include <random>

namespace
{

using CPidRestoreTest = CPidTest;

/// The dialog goes through its opening again.
void Reopen(CDialogRobot& dialog) { dialog.Dialog()->SendMessage(WM_INITDIALOG); }

// ---- Control mode ---------------------------------------------------------------------------------------------------

TEST_F(CPidRestoreTest, ReadsTheControlModeOfAnyWord)
{
    Leave([this](CDialogRobot& dialog) {
        for (unsigned high : {0u, 0x8000u, 0x7FF0u, 0xFFF0u, 0x0100u, 0x18000u, 0xFFFF8000u, 0x7FFF0000u, 0x80000000u})
        {
            for (unsigned low = 0; low <= 0xF; ++low)
            {
                SCOPED_TRACE(testing::Message() << "word " << std::hex << (high | low));
                WriteResults(m_wizard, {.data = {{9, 100, 0, 1, static_cast<int>(high | low)}}});
                Reopen(dialog);
                const bool automatic = (high >> 12 & 8) != 0;
                EXPECT_EQ(dialog.Selection(2805), automatic ? 1 : 0);
                EXPECT_EQ(dialog.Selection(2803), low >= 2 ? 1 : 0);
                EXPECT_EQ(dialog.Selection(2804), low % 2 == 1 ? 1 : 0);
                for (const SPidParameterRow& parameter : kPid)
                {
                    EXPECT_EQ(dialog.Enabled(parameter.check), !(automatic && parameter.gain)) << parameter.name;
                    EXPECT_FALSE(dialog.Checked(parameter.check)) << parameter.name;
                }
            }
        }
    });
}

TEST_F(CPidRestoreTest, ReadsNoControlModeInAnotherDevice)
{
    for (const short device : std::initializer_list<short>{10, 11, 0, 20009, -1})
    {
        WriteResults(m_wizard, {.data = {{device, 100, 0, 1, 0x8003}}});
        Leave([](CDialogRobot& dialog) {
            for (UINT combo : {2803, 2804, 2805})
                EXPECT_EQ(dialog.Selection(combo), 0) << "of list " << combo;
        });
    }
}

// ---- Notation -------------------------------------------------------------------------------------------------------

struct SNotation
{
    int value;
    const char* whole;
    const char* tenths;
    const char* hundredths;
};

constexpr SNotation kNotations[] = {
    {0, "0", "0", "0"},
    {1, "1", "0.1", "0.01"},
    {5, "5", "0.5", "0.05"},
    {10, "10", "1", "0.1"},
    {50, "50", "5", "0.5"},
    {99, "99", "9.9", "0.99"},
    {100, "100", "10", "1"},
    {101, "101", "10.1", "1.01"},
    {110, "110", "11", "1.1"},
    {1205, "1205", "120.5", "12.05"},
    {1250, "1250", "125", "12.5"},
    {2000, "2000", "200", "20"},
    {9999, "9999", "999.9", "99.99"},
    {10000, "10000", "1000", "100"},
    {30000, "30000", "3000", "300"},
    {32767, "32767", "3276.7", "327.67"},
    {123456789, "123456789", "12345678.9", "1234567.89"},
    {-1, "-1", "-0.1", "-0.01"},
    {-50, "-50", "-5", "-0.5"},
    {-1250, "-1250", "-125", "-12.5"},
};

TEST_F(CPidRestoreTest, ShowsEveryValueInItsNotation)
{
    Leave([this](CDialogRobot& dialog) {
        for (const SNotation& notation : kNotations)
        {
            SResults stored = PidResults({});
            for (size_t i = 1; i < stored.data.size(); ++i)
                stored.data[i].value = notation.value;
            WriteResults(m_wizard, stored);
            Reopen(dialog);
            for (const SPidParameterRow& parameter : kPid)
            {
                const char* text = parameter.decimals == 0   ? notation.whole
                                   : parameter.decimals == 1 ? notation.tenths
                                                             : notation.hundredths;
                EXPECT_EQ(dialog.Text(parameter.edit), CString(text)) << parameter.name;
            }
        }
    });
}

// A control cycle that is too long to be typed can still be confirmed.
TEST_F(CPidRestoreTest, KeepsAValueThatIsTooLongToBeTyped)
{
    SResults stored = PidResults({});
    stored.data.back().value = 1234;
    WriteResults(m_wizard, stored);
    Confirm([](CDialogRobot& dialog) { EXPECT_EQ(dialog.Text(2814), CString("12.34")); });
    EXPECT_EQ(ReadResults(m_wizard), stored);
}

// ---- The walk -------------------------------------------------------------------------------------------------------

/// What the walk makes of the lists: the value of each parameter that it finds.
std::array<std::optional<int>, kPidParameters> Found(const SResults& stored)
{
    const bool known = !stored.operands.empty() && stored.operands[0].code == 9;
    const long long start = known ? stored.operands[0].value : -1;
    std::array<std::optional<int>, kPidParameters> found;
    size_t next = 1;
    for (size_t i = 0; i < kPidParameters; ++i)
    {
        if (next >= stored.data.size())
            break;
        const SDataRow& row = stored.data[next];
        if (row.code == 9 && row.number == start + kPid[i].offset)
        {
            found[i] = row.value;
            ++next;
        }
    }
    return found;
}

std::string Text(int value, int decimals)
{
    std::string text = std::to_string(value);
    if (decimals == 0)
        return text;
    while (text.size() <= static_cast<size_t>(decimals))
        text.insert(0, "0");
    text.insert(text.size() - static_cast<size_t>(decimals), ".");
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.')
        text.pop_back();
    return text;
}

void ExpectRestored(CDialogRobot& dialog, const SResults& stored)
{
    const auto found = Found(stored);
    const bool automatic = !stored.data.empty() && stored.data[0].code == 9 && (stored.data[0].value & 0x8000) != 0;
    for (size_t i = 0; i < kPidParameters; ++i)
    {
        const SPidParameterRow& parameter = kPid[i];
        const bool used = found[i] || (stored.data.empty() && parameter.used);
        ExpectUsed(dialog, parameter, used, !(automatic && parameter.gain));
        const std::string text = found[i] ? Text(*found[i], parameter.decimals) : parameter.initial;
        EXPECT_EQ(dialog.Text(parameter.edit), CString(text.c_str())) << parameter.name;
    }
}

struct SStored
{
    const char* what;
    SResults stored;
    std::array<const char*, kPidParameters> texts;
    unsigned used; // the parameters that are found
};

constexpr unsigned kSpFound = 1, kLowerFound = 2, kUpperFound = 4, kKpFound = 8, kTsFound = 64;
constexpr std::array<const char*, kPidParameters> kInitial = {"", "0", "100", "0.1", "0.1", "0", ""};

const SStored kStored[] = {
    {"the control mode alone", {.operands = {{9, 100}}, .data = {{9, 100, 0, 1, 0}}}, kInitial, 0},
    {"everything", PidResults({}), {"500", "0", "100", "1.5", "2.5", "3.5", "1.25"}, 0x7F},
    {"types and formats that do not matter",
     {.operands = {{9, 100}}, .data = {{9, 5, 1, 0, 0}, {9, 101, 1, 1, 7}, {9, 104, 2, 7, 8}, {9, 109, 1, 1, 9}}},
     {"7", "0.08", "100", "0.1", "0.1", "0", "0.09"},
     kSpFound | kLowerFound | kTsFound},
    {"a foreign device that stops the walk",
     {.operands = {{9, 100}},
      .data = {{9, 100, 0, 1, 0}, {9, 101, 0, 0, 7}, {10, 104, 0, 0, 8}, {9, 105, 0, 0, 9}, {9, 109, 0, 0, 10}}},
     {"7", "0", "100", "0.1", "0.1", "0", ""},
     kSpFound},
    {"a foreign register that stops the walk",
     {.operands = {{9, 100}}, .data = {{9, 100, 0, 1, 0}, {9, 102, 0, 0, 7}, {9, 104, 0, 0, 8}, {9, 109, 0, 0, 9}}},
     kInitial,
     0},
    {"a record out of order",
     {.operands = {{9, 100}}, .data = {{9, 100, 0, 1, 0}, {9, 105, 0, 0, 50}, {9, 104, 0, 0, 8}, {9, 109, 0, 0, 9}}},
     {"", "0", "0.5", "0.1", "0.1", "0", ""},
     kUpperFound},
    {"the same record twice",
     {.operands = {{9, 100}}, .data = {{9, 100, 0, 1, 0}, {9, 101, 0, 0, 7}, {9, 101, 0, 0, 8}, {9, 104, 0, 0, 9}}},
     {"7", "0", "100", "0.1", "0.1", "0", ""},
     kSpFound},
    {"more records than parameters",
     {.operands = {{9, 100}},
      .data = {{9, 100, 0, 1, 0}, {9, 101, 0, 0, 7}, {9, 106, 0, 0, 8}, {9, 109, 0, 0, 9}, {9, 110, 0, 0, 10}}},
     {"7", "0", "100", "0.8", "0.1", "0", "0.09"},
     kSpFound | kKpFound | kTsFound},
    {"another start", {.operands = {{9, 99}}, .data = PidResults({}).data}, kInitial, 0},
    {"no start: it counts as one before the first register",
     {.data = {{9, 100, 0, 1, 0}, {9, 0, 0, 0, 7}, {9, 3, 0, 0, 8}, {9, 8, 0, 0, 9}}},
     {"7", "0.08", "100", "0.1", "0.1", "0", "0.09"},
     kSpFound | kLowerFound | kTsFound},
    {"a start that is no register",
     {.operands = {{11, 100}}, .data = {{9, 100, 0, 1, 0}, {9, 0, 0, 0, 7}, {9, 104, 0, 0, 8}}},
     {"7", "0", "100", "0.1", "0.1", "0", ""},
     kSpFound},
    {"a foreign control mode, which the walk passes over",
     {.operands = {{9, 100}}, .data = {{10, 1, 0, 1, 0x8000}, {9, 101, 0, 0, 7}, {9, 104, 0, 0, 8}}},
     {"7", "0.08", "100", "0.1", "0.1", "0", ""},
     kSpFound | kLowerFound},
};

TEST_F(CPidRestoreTest, FindsTheRecordsByTheirRegisters)
{
    for (const SStored& row : kStored)
    {
        SCOPED_TRACE(row.what);
        WriteResults(m_wizard, row.stored);
        Leave([&](CDialogRobot& dialog) {
            for (size_t i = 0; i < kPidParameters; ++i)
            {
                EXPECT_EQ(dialog.Text(kPid[i].edit), CString(row.texts[i])) << kPid[i].name;
                ExpectUsed(dialog, kPid[i], (row.used >> i & 1) != 0);
            }
            ExpectRestored(dialog, row.stored);
        });
        EXPECT_EQ(ReadResults(m_wizard), row.stored) << "cancelling keeps the lists";
    }
}

const int kRounds = IsThorough() ? 2000 : 60;

TEST_F(CPidRestoreTest, WalksOverAnyRecords)
{
    std::mt19937 random(355);
    const auto below = [&](unsigned count) { return random() % count; };
    Leave([&](CDialogRobot& dialog) {
        for (int round = 0; round < kRounds && !HasFailure(); ++round)
        {
            SResults stored;
            const int start = static_cast<int>(below(3)) * 100;
            if (below(8) != 0)
                stored.operands = {{below(8) != 0 ? 9 : 10, start}};
            if (below(10) != 0)
                stored.data.push_back({below(8) != 0 ? 9 : 11, start, 0, 1, static_cast<int>(below(0x10000))});
            for (const SPidParameterRow& parameter : kPid)
            {
                if (stored.data.empty() || below(4) == 0)
                    continue;
                const int number = (below(12) != 0 ? start : -1) + parameter.offset;
                stored.data.push_back({below(12) != 0 ? 9 : 1, number, 0, 0, static_cast<int>(below(40000))});
                if (below(12) == 0)
                    stored.data.push_back({9, number + static_cast<int>(below(3)), 0, 0, 1});
            }
            SCOPED_TRACE(testing::Message() << "round " << round << ", " << stored);
            WriteResults(m_wizard, stored);
            Reopen(dialog);
            ExpectRestored(dialog, stored);
        }
    });
}

// ---- The rest -------------------------------------------------------------------------------------------------------

TEST_F(CPidRestoreTest, ShowsContactAndFlags)
{
    const struct
    {
        std::vector<SContactRow> contacts;
        const char* device;
        const char* number;
    } kContacts[] = {{{{2, 1, 170}}, "R", "10A"},
                     {{{3, 4, 1007}, {2, 1, 5}}, "T", "1007"},
                     {{}, "X", ""},
                     {{{2, 17, 170}}, "X", "10A"},
                     {{{2, 20001, 14416}}, "Sp.R", "9010"}};
    int flag = 0;
    for (const auto& row : kContacts)
    {
        const bool on = flag++ % 2 == 0;
        WriteResults(m_wizard, {.contacts = row.contacts});
        m_wizard.SetOnlyDataTable(on ? -7 : 0);
        m_wizard.SetCmtRec(on ? 0 : 5);
        Leave([&](CDialogRobot& dialog) {
            EXPECT_EQ(dialog.Text(2051), CString(row.device));
            EXPECT_EQ(dialog.Text(2052), CString(row.number));
            EXPECT_EQ(dialog.Checked(2061), on);
            EXPECT_EQ(dialog.Checked(3001), !on);
        });
        EXPECT_EQ(m_wizard.IsOnlyDataTable(), on ? -7 : 0);
        EXPECT_EQ(m_wizard.IsCmtRec(), on ? 0 : 5);
    }
}

} // namespace
