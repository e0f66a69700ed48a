// What the dialog of E point control shows of an earlier run: each list position by its rule, and every control code.
#include "tests/dialogs/posunit/EPointTest.h"
#include "tests/support/Sampled.h"

#include <random>

namespace
{

struct SRestoring
{
    const char* what;
    SResults stored;
    SEPointShown shown;
    DWORD code = 0;
};

const SRestoring kRestorings[] = {
    {"nothing", {}, {}},
    {"everything",
     {.contacts = {{2, 1, 170}},
      .operands = {{11, 7}, {9, 100}, {11, 10}, {12, 0x120}},
      .data = {{9, 100, 1, 1, 0x7300108B},
               {9, 102, 1, 0, 500},
               {9, 104, 1, 0, 20000},
               {9, 106, 1, 0, 300},
               {9, 108, 1, 0, -7}}},
     {"R", "10A", "7", "3", "100", "500", "20000", "300", "-7"},
     0x7300108B},
    {"positions, not addresses, types or formats",
     {.contacts = {{3, 2, 31}, {2, 1, 170}},
      .operands = {{11, -1}, {9, 1}, {9, 77}, {12, 0x100}, {12, 0x130}},
      .data = {{9, 9, 0, 0, 1}, {9, 9, 0, 1, 1}, {9, 9, 2, 2, 2}, {9, 9, 0, 0, 3}, {9, 9, 0, 0, 4}, {9, 9, 0, 0, 5}}},
     {"Y", "1F", "-1", "1", "1", "1", "2", "3", "4"},
     1},
    {"numbers longer than what can be typed",
     {.contacts = {{2, 4, 123456}},
      .operands = {{11, 2147483647}, {9, 2147483647}, {11, 10}, {12, 0x13F}},
      .data = {{9, 0, 1, 1, -1},
               {9, 0, 1, 0, -2147483647 - 1},
               {9, 0, 1, 0, 2147483647},
               {9, 0, 1, 0, 1234567},
               {9, 0, 1, 0, -2147483647 - 1}}},
     {"T", "123456", "2147483647", "4", "2147483647", "-2147483648", "2147483647", "1234567", "-2147483648"},
     0xFFFFFFFF},
    {"a contact on a device that the controller does not have", {.contacts = {{2, 17, 170}}}, {"X", "10A"}},
    {"a contact on a word device", {.contacts = {{2, 65, 170}}}, {"X", "170"}},
    {"operands of other devices", {.operands = {{12, 7}, {11, 100}, {11, 10}, {11, 0x120}}}, {}},
    {"operands of the special registers", {.operands = {{9, 7}, {20009, 100}, {11, 10}, {9, 0x120}}}, {}},
    {"the operands of an instruction", {.operands = {{9, 100}, {11, 1}}}, {}},
    {"one operand", {.operands = {{11, 3}}}, {.slot = "3"}},
    {"two operands", {.operands = {{11, 3}, {9, 5}}}, {.slot = "3", .start = "5"}},
    {"records of other devices",
     {.data = {{10, 0, 1, 1, -1}, {20009, 1, 1, 0, 500}, {0, 2, 1, 0, 500}, {-1, 3, 1, 0, 300}, {11, 4, 1, 0, 300}}},
     {}},
    {"one record of another device",
     {.data = {{9, 0, 1, 1, 0x20}, {9, 1, 1, 0, 41}, {10, 2, 1, 0, 500}, {9, 3, 1, 0, 31}, {9, 4, 1, 0, 7}}},
     {.startup = "41", .time = "31", .position = "7"},
     0x20},
    {"a control code alone", {.data = {{9, 0, 1, 1, 0x10000000}}}, {}, 0x10000000},
};

TEST_F(CEPointTest, RestoresEachListPositionByItsRule)
{
    for (const int source : kSources)
    {
        Use(source);
        for (const EEPointForm form : kSweptForms)
            for (const SRestoring& restoring : kRestorings)
            {
                SCOPED_TRACE(testing::Message() << form << ", " << restoring.what);
                WriteResults(m_wizard, restoring.stored);
                Leave(form, [&](CDialogRobot& dialog) {
                    ExpectShown(dialog, restoring.shown);
                    ExpectCodeShown(dialog, restoring.code);
                });
                EXPECT_EQ(ReadResults(m_wizard), restoring.stored) << "Back keeps the lists";
            }
    }
}

TEST_F(CEPointTest, BackKeepsWhatWasConfirmedBefore)
{
    Use(kEnglish);
    m_wizard.SetStartType(2);
    Confirm(kEPointForm, [](CDialogRobot& dialog) { FillIn(dialog, {.startOutput = true}); });
    const SResults confirmed = ReadResults(m_wizard);
    Leave(kEPointForm, [](CDialogRobot& dialog) {
        FillIn(dialog, {.device = kL, .contact = "1", .slot = "2", .axis = "1", .start = "2", .same = true});
    });
    EXPECT_EQ(ReadResults(m_wizard), confirmed);
    Leave(kEPointForm, [](CDialogRobot& dialog) { dialog.Click(IDC_UNIT_CLEAR_SETTINGS); });
    EXPECT_EQ(ReadResults(m_wizard), confirmed);
    Confirm(kEPointForm, [](CDialogRobot& dialog) {
        ExpectShown(dialog, {"R", "10A", "1", "2", "100", "500", "20000", "300", "-100000"});
    });
    EXPECT_EQ(ReadResults(m_wizard), confirmed);
}

// ---- The axis -------------------------------------------------------------------------------------------------------

// One dialog goes through its opening again for every case of the following tests.
template <typename TCheck>
void OpenAgain(CDialogRobot& dialog, TCheck check)
{
    dialog.Dialog()->SendMessage(WM_INITDIALOG);
    check();
}

TEST_F(CEPointTest, RestoresTheAxisOfAnyAddressInItsArea)
{
    Leave(kEPointForm, [this](CDialogRobot& dialog) {
        for (int address = 0xE0; address <= 0x160; ++address)
        {
            const char* const axes[] = {"1", "2", "3", "4"};
            const char* expected = address >= 0x100 && address <= 0x13F ? axes[(address - 0x100) / 16] : "";
            WriteResults(m_wizard, {.operands = {{11, 0}, {9, 0}, {11, 10}, {12, address}}});
            OpenAgain(dialog, [&] { EXPECT_EQ(dialog.Text(3103), CString(expected)) << address; });
        }
    });
}

TEST_F(CEPointTest, RestoresNoAxisOfAnotherAddress)
{
    struct
    {
        int code, address;
        const char* shown;
    } const rows[] = {{12, 0x125, "3"}, {11, 0x125, ""},  {9, 0x125, ""},       {20, 0x125, ""},
                      {12, 0, ""},      {12, 1, ""},      {12, -1, ""},         {12, 0x10100, ""},
                      {12, 0x1100, ""}, {12, -0x100, ""}, {12, 2147483647, ""}, {12, -2147483647 - 1, ""}};
    for (const auto& row : rows)
    {
        WriteResults(m_wizard, {.operands = {{11, 0}, {9, 0}, {11, 10}, {row.code, row.address}}});
        Leave(kEPointForm, [&](CDialogRobot& dialog) {
            EXPECT_EQ(dialog.Text(3103), CString(row.shown)) << row.code << ", " << row.address;
        });
    }
}

// ---- The control code -----------------------------------------------------------------------------------------------

const int kWords = IsThorough() ? 10000 : 200;

TEST_F(CEPointTest, RestoresTheListsFromAnyWord)
{
    std::mt19937 random(1051);
    Leave(kEPointForm, [&](CDialogRobot& dialog) {
        for (int i = 0; i < kWords && !HasFailure(); ++i)
        {
            const DWORD word = i < 32 ? DWORD{1} << i : static_cast<DWORD>(random());
            m_wizard.RemoveAllDataInfo();
            m_wizard.AddDataInfo(kDT, 0, 1, 1, static_cast<LONG>(word));
            OpenAgain(dialog, [&] { ExpectCodeShown(dialog, word); });
        }
    });
}

// ---- The start output -----------------------------------------------------------------------------------------------

struct SRestoredGroup
{
    const char* what;
    std::vector<SContactRow> contacts;
    bool wanted;
    bool same;
    const char* device = "X";
    const char* second = "";
    const char* word = ""; // with start type 2
};

const SRestoredGroup kRestoredGroups[] = {
    {"nothing", {}, true, true},
    {"no start output", {{2, 1, 170}}, false, true},
    {"a second condition alone", {{2, 1, 170}, {2, 2, 31}}, false, true},
    {"a second condition", {{2, 1, 170}, {2, 2, 31}, {3, 2, 648}}, true, false, "Y", "1F", "40"},
    {"a condition on the same device", {{2, 1, 170}, {2, 1, 171}, {3, 2, 648}}, true, false, "R", "10B", "40"},
    {"the same condition", {{2, 1, 170}, {2, 1, 170}, {3, 2, 648}}, true, true, "X", "", "40"},
    {"the same number on another device",
     {{2, 1, 14400}, {2, 20001, 14400}, {3, 2, 47}},
     true,
     false,
     "Sp.R",
     "9000",
     "2"},
    {"a timer", {{2, 1, 170}, {2, 4, 1007}, {3, 2, 1759}}, true, false, "T", "1007", "109"},
    {"the last contacts of more", {{2, 1, 170}, {2, 3, 1}, {2, 4, 7}, {3, 2, 648}}, true, false, "T", "7", "40"},
    {"an output in word 0", {{2, 1, 170}, {2, 2, 31}, {3, 2, 9}}, true, false, "Y", "1F", ""},
    {"an output without notation", {{2, 1, 170}, {2, 2, 31}, {3, 2, 16000}}, true, false, "Y", "1F", "1600"},
    {"a relay as the output", {{2, 1, 170}, {2, 3, 31}, {3, 1, 648}}, false, false, "X", "", ""},
};

TEST_F(CEPointTest, RestoresTheStartOutput)
{
    Use(kEnglish);
    for (const BYTE startType : std::initializer_list<BYTE>{0, 1, 2})
    {
        m_wizard.SetStartType(startType);
        for (const EEPointForm form : kSweptForms)
            for (const SRestoredGroup& group : kRestoredGroups)
            {
                SCOPED_TRACE(testing::Message() << form << ", start type " << int{startType} << ", " << group.what);
                WriteResults(m_wizard, {.contacts = group.contacts});
                Leave(form, [&](CDialogRobot& dialog) {
                    EXPECT_EQ(dialog.Checked(2054), group.wanted);
                    EXPECT_EQ(dialog.Checked(2055), group.same);
                    EXPECT_EQ(dialog.Text(2056), CString(group.device));
                    EXPECT_EQ(dialog.Text(2057), CString(group.second));
                    EXPECT_EQ(dialog.Text(2059), CString(startType == 2 ? group.word : ""));
                    EXPECT_EQ(dialog.Enabled(2055), group.wanted);
                    EXPECT_EQ(dialog.Enabled(2057), group.wanted && !group.same);
                    EXPECT_EQ(dialog.Enabled(2059), group.wanted);
                });
            }
    }
}

TEST_F(CEPointTest, StoresTheSameWhenConfirmedAgain)
{
    Use(kEnglish);
    for (const EEPointForm form : kSweptForms)
        for (const BYTE startType : std::initializer_list<BYTE>{0, 1, 2})
            for (const bool same : {false, true})
            {
                m_wizard.SetStartType(startType);
                Confirm(form, [&](CDialogRobot& dialog) {
                    FillIn(dialog, {.items = {1, 1, 1, 1, 1, 1, 3, 1, 1, 7}, .startOutput = true, .same = same});
                });
                const SResults first = ReadResults(m_wizard);
                EXPECT_EQ(first.contacts.size(), startType == 0 ? 1u : 3u);
                Confirm(form);
                EXPECT_EQ(ReadResults(m_wizard), first) << form << ", start type " << int{startType};
            }
}

} // namespace
