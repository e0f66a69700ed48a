// What the dialog of E point control refuses: bounds, texts, the order of the checks, and what a refusal leaves alone.
#include "tests/dialogs/posunit/EPointTest.h"
#include "tests/support/Sampled.h"

namespace
{

constexpr UINT kAccepted = 0;
constexpr UINT kNoNumber = 20001;

const SResults kEarlier = {.contacts = {{2, 2, 7}, {2, 2, 7}, {3, 2, 100}},
                           .operands = {{11, 5}, {9, 200}, {11, 10}, {12, 0x130}},
                           .data = {{9, 200, 1, 1, 0x10}, {9, 202, 1, 0, 77}},
                           .comments = {"kept"},
                           .instructions = {{8, -1, 151, 0, 0}}};

class CEPointCheckTest : public CEPointTest
{
protected:
    /// All ten edits count.
    CEPointCheckTest()
    {
        Use(kEnglish);
        m_wizard.SetStartType(2);
    }
};

// ---- Bounds ---------------------------------------------------------------------------------------------------------

struct SBound
{
    UINT edit;
    const char* text;
    UINT message;
};

constexpr SBound kBounds[] = {
    {2052, "0", kAccepted},
    {2052, "255F", kAccepted},
    {2052, "2560", 20029},
    {2052, "999F", 20029},
    {3104, "-1", 20021},
    {3104, "0", kAccepted},
    {3104, "31", kAccepted},
    {3104, "32", 20021},
    {3104, "99", 20021},
    {3103, "0", 20022},
    {3103, "1", kAccepted},
    {3103, "4", kAccepted},
    {3103, "5", 20022},
    {3103, "9", 20022},
    {3101, "-1", 20003},
    {3101, "0", kAccepted},
    {3101, "32755", kAccepted},
    {3101, "32756", 20003},
    {3101, "99999", 20003},
    {3108, "-1", 20023},
    {3108, "0", kAccepted},
    {3108, "4000000", kAccepted},
    {3108, "4000001", 20023},
    {3108, "9999999", 20023},
    {3109, "-1", 20024},
    {3109, "0", 20024},
    {3109, "1", kAccepted},
    {3109, "4000000", kAccepted},
    {3109, "4000001", 20024},
    {3110, "-1", 20025},
    {3110, "0", kAccepted},
    {3110, "32767", kAccepted},
    {3110, "32768", 20025},
    {3110, "99999", 20025},
    {3111, "-2147483648", kAccepted},
    {3111, "-2147483649", 20026},
    {3111, "2147483647", kAccepted},
    {3111, "2147483648", 20026},
    {3111, "4294967296", 20026},
    {3111, "-9999999999", 20026},
    {3111, "99999999999", 20026},
    {3111, "0", kAccepted},
    {2057, "0", kAccepted},
    {2057, "109F", kAccepted},
    {2057, "1100", 20020},
    {2057, "999F", 20020},
    {2059, "0", 20030},
    {2059, "1", 20030},
    {2059, "2", kAccepted},
    {2059, "109", kAccepted},
    {2059, "110", 20030},
    {2059, "999", 20030},
    {2059, "-2", 20030},
};

TEST_F(CEPointCheckTest, AcceptsTheBounds)
{
    for (const EEPointForm form : kSweptForms)
        for (const SBound& bound : kBounds)
        {
            if (bound.message != kAccepted)
                continue;
            SCOPED_TRACE(testing::Message() << form << ", \"" << bound.text << "\" in edit " << bound.edit);
            SEPointEntries entries = {.startOutput = true};
            EntryOf(entries, bound.edit) = bound.text;
            ASSERT_EQ(EPointOutcome(form, entries, m_wizard).message, kAccepted);
            Check(form, entries);
        }
}

TEST_F(CEPointCheckTest, RefusesWhatLiesOutside)
{
    for (const EEPointForm form : kSweptForms)
    {
        WriteResults(m_wizard, kEarlier);
        Leave(form, [&](CDialogRobot& dialog) {
            FillIn(dialog, {.startOutput = true});
            for (const SBound& bound : kBounds)
            {
                if (bound.message == kAccepted)
                    continue;
                SCOPED_TRACE(testing::Message() << form << ", \"" << bound.text << "\" in edit " << bound.edit);
                const CString good = dialog.Text(bound.edit);
                dialog.Type(bound.edit, bound.text);
                EXPECT_EQ(dialog.Text(bound.edit), CString(bound.text)) << "can be typed";
                ExpectRefusal(dialog, bound.message, bound.edit);
                dialog.Type(bound.edit, good);
            }
        });
        EXPECT_EQ(ReadResults(m_wizard), kEarlier);
    }
}

struct SSettings
{
    BYTE slots = 32;
    BYTE axisFlag = 1;
    int lastRegister = kLastRegister;
    int lastOutput = kLastInput;
};

struct SSettingsBound
{
    SSettings settings;
    EEPointForm form;
    UINT edit;
    const char* accepted;
    const char* refused;
    UINT message;
};

constexpr SSettingsBound kSettingsBounds[] = {
    {{.slots = 16}, kEPointForm, 3104, "15", "16", 20021},
    {{.slots = 1}, kEPointForm, 3104, "0", "1", 20021},
    {{.slots = 255}, kEPointForm, 3104, "99", "-1", 20021},
    {{.axisFlag = 0}, kEPointForm, 3103, "2", "3", 20022},
    {{.axisFlag = 0}, kEPointForm, 3103, "1", "0", 20022},
    {{.axisFlag = 9}, kEPointForm, 3103, "4", "5", 20022},
    {{.lastRegister = 32765}, kEPointForm, 3101, "32756", "32757", 20003},
    {{.lastRegister = 9}, kEPointForm, 3101, "0", "1", 20003},
    // The relay of the word counts, not the word: outputs may end within it.
    {{.lastOutput = Bit(50, 0)}, kEPointForm, 2059, "50", "51", 20030},
    {{.lastOutput = Bit(49, 15)}, kEPointForm, 2059, "49", "50", 20030},
    {{.lastOutput = Bit(50, 0)}, kPPointStartForm, 2059, "49", "50", 20030},
    {{.lastOutput = Bit(50, 1)}, kPPointStartForm, 2059, "50", "51", 20030},
    {{.lastOutput = Bit(50, 7)}, kJogPositioningForm, 2059, "49", "50", 20030},
    {{.lastOutput = Bit(50, 8)}, kJogPositioningForm, 2059, "50", "51", 20030},
    {{.lastOutput = Bit(2, 0)}, kEPointForm, 2059, "2", "1", 20030},
    {{.lastOutput = Bit(2, 8)}, kJogPositioningForm, 2059, "2", "1", 20030},
};

TEST_F(CEPointCheckTest, FollowsTheSettingsOfTheWizard)
{
    for (const SSettingsBound& bound : kSettingsBounds)
    {
        SCOPED_TRACE(testing::Message() << bound.form << ", " << bound.accepted << " in edit " << bound.edit);
        m_wizard.SetMaxSlot(bound.settings.slots);
        SFunWizardTest::SetAxisFlag(m_wizard, bound.settings.axisFlag);
        SetDeviceRange(m_wizard, kDT, 0, bound.settings.lastRegister);
        SetDeviceRange(m_wizard, kY, 0, bound.settings.lastOutput);
        SEPointEntries entries = {.axis = "1", .start = "0", .startOutput = true, .same = true, .word = "2"};
        EntryOf(entries, bound.edit) = bound.accepted;
        Confirm(bound.form, [&](CDialogRobot& dialog) {
            FillIn(dialog, entries);
            dialog.Type(bound.edit, bound.refused);
            ExpectRefusal(dialog, bound.message, bound.edit);
            dialog.Type(bound.edit, bound.accepted);
        });
        SResults expected = EPointOutcome(bound.form, entries, m_wizard).results;
        EXPECT_EQ(ReadResults(m_wizard), expected);
    }
}

TEST_F(CEPointCheckTest, HoldsBothEndsOfTheRegisters)
{
    SetDeviceRange(m_wizard, kDT, 100, 1000);
    for (const char* start : {"99", "100", "991", "992"})
        Check(kEPointForm, {.start = start});
}

// ---- Devices of the contacts ----------------------------------------------------------------------------------------

struct SDevice
{
    int code;
    const char* lowest;
    const char* highest;
    const char* below; // null: there is none that could be typed
    const char* above;
};

constexpr SDevice kDevices[] = {
    {kX, "0", "109F", nullptr, "1100"}, {kY, "0", "109F", nullptr, "1100"},
    {kR, "0", "255F", nullptr, "2560"}, {kSpecialR, "9000", "911F", "899F", "9120"},
    {kT, "0", "1007", "-1", "1008"},    {kC, "1008", "1023", "1007", "1024"},
    {kL, "0", "127F", nullptr, "1280"},
};

TEST_F(CEPointCheckTest, ChecksAContactByItsDevice)
{
    for (const SDevice& device : kDevices)
    {
        SCOPED_TRACE(DeviceName(device.code));
        for (const char* number : {device.lowest, device.highest})
            Check(kEPointForm, {.device = device.code,
                                .contact = number,
                                .startOutput = true,
                                .secondDevice = device.code,
                                .second = number});
        Leave(kEPointForm, [&](CDialogRobot& dialog) {
            for (const char* number : {device.below, device.above})
            {
                if (number == nullptr)
                    continue;
                Check(dialog, kEPointForm, {.device = device.code, .contact = number, .startOutput = true});
                Check(dialog, kEPointForm, {.startOutput = true, .secondDevice = device.code, .second = number});
            }
        });
    }
}

TEST_F(CEPointCheckTest, RefusesAContactWithoutDevice)
{
    Leave(kEPointForm, [](CDialogRobot& dialog) {
        FillIn(dialog, {.startOutput = true});
        SelectByProgram(dialog, 2056, -1);
        EXPECT_EQ(dialog.Text(2058), CString("(0 - 109F)")) << "stays as it was";
        ExpectRefusal(dialog, 20020, 2057);
        SelectByProgram(dialog, 2051, -1);
        ExpectRefusal(dialog, 20029, 2052);
    });
}

// ---- Texts that are no numbers --------------------------------------------------------------------------------------

// "-" alone reads as 0.
constexpr const char* kMalformed[] = {"", " ", "--", "1-", "+1", "1.5", "x", "1x", "0x1", "1 2", "\x80"};

// A bit number takes blanks within, and ends in a hexadecimal digit.
bool IsBitNumber(const std::string& text) { return text == "1 2"; }

TEST_F(CEPointCheckTest, RefusesWhatIsNoNumber)
{
    WriteResults(m_wizard, kEarlier);
    Leave(kJogPositioningForm, [&](CDialogRobot& dialog) {
        FillIn(dialog, {.startOutput = true});
        for (const UINT edit : kEPointEdits)
        {
            const CString good = dialog.Text(edit);
            for (const char* text : kMalformed)
            {
                if ((edit == 2052 || edit == 2057) && IsBitNumber(text))
                    continue;
                SCOPED_TRACE(testing::Message() << "\"" << text << "\" in edit " << edit);
                dialog.SetText(edit, text);
                ExpectRefusal(dialog, kNoNumber, edit);
            }
            dialog.Type(edit, good);
        }
    });
    EXPECT_EQ(ReadResults(m_wizard), kEarlier);
}

// Numbers that no integer type holds are outside of every range.
TEST_F(CEPointCheckTest, RefusesHugeNumbersAsOutOfRange)
{
    constexpr UINT kMessages[] = {20029, 20021, 20022, 20003, 20023, 20024, 20025, 20026, 20020, 20030};
    const char* kHuge[] = {"4294967297",          "18446744073709551617", "99999999999999999999", "9223372036854775808",
                           "1152921504606846979", "-9223372036854775809", "-18446744073709551615"};
    Leave(kEPointForm, [&](CDialogRobot& dialog) {
        FillIn(dialog, {.startOutput = true});
        for (size_t i = 0; i < std::size(kEPointEdits); ++i)
        {
            const UINT edit = kEPointEdits[i];
            const CString good = dialog.Text(edit);
            for (const char* text : kHuge)
            {
                if ((edit == 2052 || edit == 2057) && text[0] == '-')
                    continue; // bit numbers have no sign
                SCOPED_TRACE(testing::Message() << text << " in edit " << edit);
                dialog.SetText(edit, text);
                ExpectRefusal(dialog, kMessages[i], edit);
            }
            dialog.Type(edit, good);
        }
    });
}

TEST_F(CEPointCheckTest, TakesBlanksAroundANumber)
{
    Check(kEPointForm, {.contact = " 1A ",
                        .slot = " 3",
                        .axis = "2",
                        .start = " 7 ",
                        .startup = "0050",
                        .target = "60 ",
                        .time = " 30",
                        .position = "-",
                        .startOutput = true,
                        .second = " 2",
                        .word = "40 "});
}

// ---- Order ----------------------------------------------------------------------------------------------------------

// With every set of bad fields, the first of them is pointed at; whether the bad one is no number or out of its range.
TEST_F(CEPointCheckTest, PointsAtTheFirstBadField)
{
    const char* kOutside[] = {"2560", "32", "5", "99999", "9999999", "0", "99999", "2147483648", "1100", "1"};
    WriteResults(m_wizard, kEarlier);
    Leave(kPPointStartForm, [&](CDialogRobot& dialog) {
        for (const unsigned bad : SampledSets(std::size(kEPointEdits), 83))
        {
            SCOPED_TRACE(testing::Message() << "bad fields " << bad);
            SEPointEntries entries = {.startOutput = true};
            for (size_t i = 0; i < std::size(kEPointEdits); ++i)
                if ((bad >> i & 1) != 0)
                    EntryOf(entries, kEPointEdits[i]) = (bad + i) % 2 == 0 ? "" : kOutside[i];
            Check(dialog, kPPointStartForm, entries);
        }
    });
    EXPECT_EQ(ReadResults(m_wizard), kEarlier);
}

// Each field that is corrected leads to the next bad one.
TEST_F(CEPointCheckTest, GoesFromFieldToField)
{
    for (const EEPointForm form : kForms)
    {
        Confirm(form, [&](CDialogRobot& dialog) {
            const SEPointEntries good = {.startOutput = true};
            FillIn(dialog, good);
            for (const UINT edit : kEPointEdits)
                dialog.Type(edit, "");
            for (const UINT edit : kEPointEdits)
            {
                ExpectRefusal(dialog, kNoNumber, edit);
                SEPointEntries entries = good;
                dialog.Type(edit, EntryOf(entries, edit).c_str());
            }
        });
        EXPECT_EQ(ReadResults(m_wizard), EPointOutcome(form, {.startOutput = true}, m_wizard).results);
    }
}

// What a start output does not need is not checked.
TEST_F(CEPointCheckTest, ChecksOnlyWhatTheStartOutputNeeds)
{
    for (const int source : kSweptSources)
    {
        Use(source);
        for (const BYTE startType : std::initializer_list<BYTE>{0, 1, 2})
            for (const bool wanted : {false, true})
                for (const bool same : {false, true})
                    for (const UINT bad : {2057, 2059})
                    {
                        SCOPED_TRACE(testing::Message() << source << ", start type " << int{startType} << ", " << wanted
                                                        << same << ", edit " << bad);
                        m_wizard.SetStartType(startType);
                        SEPointEntries entries = {.startOutput = wanted, .same = same};
                        EntryOf(entries, bad) = "";
                        ASSERT_EQ(EPointOutcome(kEPointForm, entries, m_wizard).message != 0,
                                  Counts(bad, entries, m_wizard));
                        Check(kEPointForm, entries);
                    }
    }
}

TEST_F(CEPointCheckTest, RefusesEveryOutputWithoutARangeOfOutputs)
{
    CFunWizard wizard;
    ASSERT_NE(wizard.SetLanguageInfo(kEnglish), nullptr);
    SetDeviceRange(wizard, kR, 0, kLastRelay);
    SetDeviceRange(wizard, kDT, 0, kLastRegister);
    SetDeviceRange(wizard, kWY, 0, 109); // the words are no outputs
    wizard.SetStartType(2);
    Play([&] { return static_cast<int>(CEPointDlg(&wizard, kEPointForm, nullptr).DoModal()); },
         {[](CDialogRobot& dialog) {
             EXPECT_EQ(dialog.Text(2060), CString("Impossible settings"));
             FillIn(dialog, {.startOutput = true, .same = true, .secondDevice = kR});
             for (const char* word : {"0", "2", "40", "999"})
             {
                 dialog.Type(2059, word);
                 ExpectRefusal(dialog, 20030, 2059);
             }
             dialog.Type(2059, "");
             ExpectRefusal(dialog, kNoNumber, 2059);
             dialog.Check(2054, false);
             EXPECT_EQ(dialog.ClickAndAnswer(IDOK), CString());
         }});
    EXPECT_EQ(wizard.GetContInfoCount(), 1);
}

} // namespace
