// What a confirmed dialog of E point control leaves in the wizard's lists.
#include "tests/dialogs/posunit/EPointTest.h"
#include "tests/support/Sampled.h"

#include <random>

namespace
{

// Written down once by hand, for the model as much as for the dialog.
TEST_F(CEPointTest, StoresItsEntriesInTheirPlaces)
{
    for (const int source : kSources)
    {
        Use(source);
        for (const EEPointForm form : kForms)
        {
            WriteResults(m_wizard, {.contacts = {{2, 3, 1}, {17, -1, 0}, {3, 2, 5}},
                                    .operands = {{9, 1}, {11, 1}, {11, 7}, {9, 8}, {9, 9}},
                                    .data = std::vector<SDataRow>(40, {9, 1, 0, 0, 7}),
                                    .comments = {"a", "b"},
                                    .instructions = {{8, -1, 151, 0, 0}}});
            Confirm(form, [](CDialogRobot& dialog) {
                FillIn(dialog, {.device = kSpecialR,
                                .contact = "901A",
                                .slot = "15",
                                .axis = "3",
                                .start = "32755",
                                .items = {1, 0, 1, 0, 1, 0, 2, 1, 0, 5},
                                .startup = "0",
                                .target = "4000000",
                                .time = "32767",
                                .position = "-2147483648"});
            });
            const SResults expected = {.contacts = {{2, 20001, 14426}},
                                       .operands = {{11, 15}, {9, 32755}, {11, 10}, {12, 0x120}},
                                       .data = {{9, 32755, 1, 1, 0x51002029},
                                                {9, 32757, 1, 0, 0},
                                                {9, 32759, 1, 0, 4000000},
                                                {9, 32761, 1, 0, 32767},
                                                {9, 32763, 1, 0, -2147483647 - 1}},
                                       .comments = {"Control code", "Startup speed", "Target speed",
                                                    "Accel./decel. time", "Position command value"},
                                       .instructions = {{8, -1, 151, 0, 0}}};
            EXPECT_EQ(ReadResults(m_wizard), expected) << form;
        }
    }
}

TEST_F(CEPointTest, StoresTheAreaOfTheAxis)
{
    constexpr int kAreas[] = {0x100, 0x110, 0x120, 0x130};
    for (int axis = 1; axis <= 4; ++axis)
    {
        Confirm(kEPointForm, [&](CDialogRobot& dialog) { FillIn(dialog, {.axis = std::to_string(axis)}); });
        EXPECT_EQ(ReadResults(m_wizard).operands.at(3), (SOperandRow{12, kAreas[axis - 1]}));
    }
}

// ---- The control code -----------------------------------------------------------------------------------------------

TEST_F(CEPointTest, StoresTheBitsOfEveryItem)
{
    Confirm(kEPointForm, [](CDialogRobot& dialog) { FillIn(dialog, {}); });
    const SResults allFirst = ReadResults(m_wizard);
    for (size_t i = 0; i < std::size(kEPointCombos); ++i)
    {
        const int count = static_cast<int>(AxisFieldAt(kEPointCombos[i].shift).items.size());
        for (int item = 0; item < count; ++item)
        {
            WriteResults(m_wizard, allFirst);
            Confirm(kEPointForm, [&](CDialogRobot& dialog) { dialog.Select(kEPointCombos[i].id, item); });
            EXPECT_EQ(ReadResults(m_wizard).data.at(0).value, item << kEPointCombos[i].shift)
                << "item " << item << " of list " << kEPointCombos[i].id;
        }
    }
}

const int kRounds = IsThorough() ? 1000 : 15;

// Bits of fields that this dialog does not have are lost, even when nothing is changed.
TEST_F(CEPointTest, KeepsOfAnyWordWhatItsListsShow)
{
    std::mt19937 random(1052);
    Confirm(kEPointForm, [](CDialogRobot& dialog) { FillIn(dialog, {}); });
    for (int i = 0; i < kRounds && !HasFailure(); ++i)
    {
        SResults stored = ReadResults(m_wizard);
        stored.data[0].value = static_cast<int>(random());
        WriteResults(m_wizard, stored);
        Confirm(kForms[i % 3]);
        stored.data[0].value &= 0x730030BB;
        EXPECT_EQ(ReadResults(m_wizard), stored);
    }
}

TEST_F(CEPointTest, StoresRandomEntries)
{
    std::mt19937 random(1053);
    const auto below = [&](unsigned count) { return static_cast<unsigned>(random()) % count; };
    const auto number = [&](unsigned low, unsigned high) { return std::to_string(low + below(high - low + 1)); };
    for (int i = 0; i < kRounds && !HasFailure(); ++i)
    {
        Use(kSources[below(2)]);
        m_wizard.SetStartType(static_cast<BYTE>(below(3)));
        SEPointEntries entries = {.contact = number(0, 255) + "A",
                                  .slot = number(0, 33),
                                  .axis = number(1, 4),
                                  .start = number(0, 32800),
                                  .startup = number(0, 4000100),
                                  .target = number(1, 4000000),
                                  .time = number(0, 32800),
                                  .position = (below(2) != 0 ? "-" : "") + number(0, 2147483648u),
                                  .startOutput = below(4) != 0,
                                  .same = below(3) == 0,
                                  .second = number(0, 112) + "F",
                                  .word = number(1, 112)};
        for (size_t item = 0; item < entries.items.size(); ++item)
            entries.items[item] =
                static_cast<int>(below(static_cast<unsigned>(AxisFieldAt(kEPointCombos[item].shift).items.size())));
        Check(kForms[below(3)], entries);
    }
}

// The first three lists end the word where one of them has no selection.
TEST_F(CEPointTest, EndsTheWordAtAMissingChoice)
{
    struct
    {
        UINT combo;
        int code;
    } const rows[] = {{3105, 0}, {3106, 0x1}, {3107, 0x3}};
    const SEPointEntries all = {.items = {1, 1, 1, 1, 1, 1, 3, 1, 1, 7}};
    for (const auto& row : rows)
    {
        Confirm(kEPointForm, [&](CDialogRobot& dialog) {
            FillIn(dialog, all);
            SelectByProgram(dialog, row.combo, -1);
        });
        EXPECT_EQ(ReadResults(m_wizard).data.at(0).value, row.code) << row.combo;
    }
}

// Those that the operations share only leave out their own bits.
TEST_F(CEPointTest, LeavesOutTheBitsOfAMissingSharedChoice)
{
    constexpr int kAllBits = 0x730030BB;
    struct
    {
        UINT combo;
        int bits;
    } const rows[] = {{3051, 0x10},      {3052, 0x20},      {3054, 0x80},      {3061, 0x3000},
                      {3065, 0x1000000}, {3066, 0x2000000}, {3071, 0x70000000}};
    const SEPointEntries all = {.items = {1, 1, 1, 1, 1, 1, 3, 1, 1, 7}};
    for (const auto& row : rows)
    {
        Confirm(kEPointForm, [&](CDialogRobot& dialog) {
            FillIn(dialog, all);
            SelectByProgram(dialog, row.combo, -1);
        });
        EXPECT_EQ(ReadResults(m_wizard).data.at(0).value, kAllBits & ~row.bits) << row.combo;
    }
}

// ---- Comments -------------------------------------------------------------------------------------------------------

TEST_F(CEPointTest, KeepsTheOldCommentsWhenNoneAreWanted)
{
    for (const int wanted : {0, 1, -5})
    {
        WriteResults(m_wizard, {.comments = {"of the host"}});
        m_wizard.SetCmtRec(wanted);
        Confirm(kEPointForm, [](CDialogRobot& dialog) { FillIn(dialog, {}); });
        const auto comments = ReadResults(m_wizard).comments;
        EXPECT_EQ(comments.size(), wanted == 0 ? 1u : 5u);
        EXPECT_EQ(comments.at(0), wanted == 0 ? "of the host" : "Control code");
        EXPECT_EQ(m_wizard.IsCmtRec(), wanted);
    }
}

TEST_F(CEPointTest, LetsTheSelectionDecideAboutComments)
{
    for (const bool wanted : {false, true})
    {
        m_wizard.RemoveAllCmtInfo();
        const auto choose = [&](CDialogRobot& selection) {
            selection.Check(IDC_REGISTER_COMMENTS, wanted);
            selection.Click(IDOK);
        };
        const auto confirm = [](CDialogRobot& dialog) {
            FillIn(dialog, {});
            EXPECT_EQ(dialog.ClickAndAnswer(IDOK), CString());
        };
        EXPECT_EQ(Play([&] { return m_wizard.DoOpenPosDlg(1, 1, nullptr); }, {choose, confirm}), 1);
        EXPECT_EQ(m_wizard.GetCmtInfoCount(), wanted ? 5 : 0);
    }
}

TEST_F(CEPointTest, TakesTheCommentsFromTheLabels)
{
    for (const int source : kSources)
    {
        Use(source);
        Confirm(kEPointForm, [](CDialogRobot& dialog) {
            FillIn(dialog, {});
            ControlBefore(dialog, 3108)->SetWindowText("Anfang");
            ControlBefore(dialog, 3109)->SetWindowText("");
            ControlBefore(dialog, 3111)->SetWindowText("Ziel");
        });
        EXPECT_EQ(ReadResults(m_wizard).comments,
                  (std::vector<std::string>{"Control code", "Anfang", "", "Accel./decel. time", "Ziel"}));
    }
}

// ---- Clear settings -------------------------------------------------------------------------------------------------

TEST_F(CEPointTest, ClearsItsSettings)
{
    for (const int source : kSources)
    {
        Use(source);
        m_wizard.SetStartType(2);
        const bool hasGroup = source != kModule;
        for (const EEPointForm form : kForms)
        {
            Leave(form, [&](CDialogRobot& dialog) {
                FillIn(dialog, {.items = {1, 1, 1, 1, 1, 1, 3, 1, 1, 7}, .startOutput = true, .same = true});
                dialog.Click(IDC_UNIT_CLEAR_SETTINGS);

                EXPECT_TRUE(dialog.IsOpen());
                ExpectShown(dialog, {});
                ExpectCodeShown(dialog, 0);
                EXPECT_EQ(dialog.FocusId(), 2051u);
                EXPECT_EQ(dialog.Text(2053), CString("(0 - 109F)"));
                EXPECT_EQ(dialog.Text(3102), CString("(0 - 32755)"));
                EXPECT_EQ(TextAfter(dialog, 3104), "(0 - 31)");
                EXPECT_EQ(TextAfter(dialog, 3103), "(1 - 4)");
                for (const SRobotControl& control : dialog.Controls())
                    EXPECT_EQ(control.enabled, !(control.id >= 2055 && control.id <= 2060) &&
                                                   control.text != "Start output condition" &&
                                                   control.text != "Start output relay" && control.text != "Word No." &&
                                                   control.text != "Y")
                        << control.id << " " << control.text;
                if (!hasGroup)
                    return;
                EXPECT_FALSE(dialog.Checked(2054));
                EXPECT_FALSE(dialog.Checked(2055));
                EXPECT_EQ(dialog.Text(2056), CString("X"));
                EXPECT_EQ(dialog.Text(2057), CString());
                EXPECT_EQ(dialog.Text(2058), CString("(0 - 109F)"));
                EXPECT_EQ(dialog.Text(2059), CString());
                EXPECT_EQ(dialog.Text(2060), CString("(2 - 109)"));
            });
        }
    }
}

TEST_F(CEPointTest, CanBeFilledInAgainAfterClearing)
{
    Use(kEnglish);
    m_wizard.SetStartType(2);
    Confirm(kEPointForm, [](CDialogRobot& dialog) {
        FillIn(dialog, {.device = kL, .startOutput = true, .same = true});
        dialog.Click(IDC_UNIT_CLEAR_SETTINGS);
        ExpectRefusal(dialog, 20001, 2052);
        FillIn(dialog, {.startOutput = true});
    });
    EXPECT_EQ(ReadResults(m_wizard), EPointOutcome(kEPointForm, {.startOutput = true}, m_wizard).results);
}

} // namespace
