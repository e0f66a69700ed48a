// What the dialog of the screen display shows of an earlier run: operands, block, and flags.
#include "tests/dialogs/process/ScrDispTest.h"
#include "tests/support/Sampled.h"

#include <random>

namespace
{

using CScrDispRestoreTest = CScrDispTest;

/// The dialog goes through its opening again.
void Reopen(CDialogRobot& dialog) { dialog.Dialog()->SendMessage(WM_INITDIALOG); }

// ---- Operands -------------------------------------------------------------------------------------------------------

struct SStored
{
    std::vector<SOperandRow> operands;
    int screen;
    std::array<const char*, 3> devices;
    std::array<const char*, 3> numbers;
};

const SStored kStored[] = {
    {{}, 0, {"DT", "DT", "DT"}, {"", "", ""}},
    {{{11, 0}, {9, 100}, {9, 200}, {9, 300}}, 0, {"DT", "DT", "DT"}, {"100", "200", "300"}},
    {{{11, 1}, {1, 170}, {20001, 14416}, {4, 1007}}, 1, {"R", "Sp.R", "T"}, {"10A", "9010", "1007"}},
    {{{11, 2}, {65, 5}, {64, 6}, {20009, 90000}}, 2, {"WR", "WL", "Sp.DT"}, {"5", "6", "90000"}},
    {{{11, 3}}, 3, {"DT", "DT", "DT"}, {"", "", ""}},
    {{{11, 3}, {9, 1}}, 3, {"DT", "DT", "DT"}, {"1", "", ""}},
    {{{11, 4}}, 0, {"DT", "DT", "DT"}, {"", "", ""}},
    {{{11, -1}}, 0, {"DT", "DT", "DT"}, {"", "", ""}},
    {{{9, 2}}, 0, {"DT", "DT", "DT"}, {"", "", ""}}, // no constant
    {{{11, 1}, {9, 0}, {9, 99999}, {9, -1}}, 1, {"DT", "DT", "DT"}, {"0", "99999", "-1"}},
};

TEST_F(CScrDispRestoreTest, ShowTheOperands)
{
    Leave([this](CDialogRobot& dialog) {
        for (const SStored& row : kStored)
        {
            WriteResults(m_wizard, {.operands = row.operands});
            Reopen(dialog);
            EXPECT_EQ(dialog.Selection(2850), row.screen);
            for (size_t i = 0; i < kScreenOperands; ++i)
            {
                EXPECT_EQ(dialog.Text(kDeviceCombos[i]), CString(row.devices[i]));
                EXPECT_EQ(dialog.Text(kDeviceEdits[i]), CString(row.numbers[i]));
            }
        }
    });
}

// ---- The block ------------------------------------------------------------------------------------------------------

SScrDispEntries EntriesOf(int first, int upside, int downside)
{
    SScrDispEntries entries;
    for (SDeviceEntry& device : entries.devices)
        device.text = "";
    for (int mark = 0; mark < kMarks; ++mark)
        entries.marks |= (first & kMarkBits[mark]) != 0 ? 1u << mark : 0u;
    const int words[] = {upside, downside};
    for (int line = kUpside; line <= kDownside; ++line)
    {
        const int word = words[line];
        SLineEntries& entry = entries.lines[static_cast<size_t>(line)];
        entry.hidden = (first & 0x100 << line) != 0;
        entry.points = static_cast<unsigned>(word & 0x1F);
        entry.mode = (word >> 5 & 7) > 4 ? 0 : word >> 5 & 7;
        entry.hiddenDigits = static_cast<unsigned>(word >> 8 & 0x1F);
        entry.color = std::max((word >> 13 & 3) - 1, 0);
        entry.allDigits = word >> 15 & 1;
    }
    return entries;
}

TEST_F(CScrDispRestoreTest, ShowEveryBitOfTheBlock)
{
    Leave([this](CDialogRobot& dialog) {
        for (const unsigned bit : SampledNumbers(0, 47, 5))
        {
            SCOPED_TRACE(testing::Message() << "bit " << bit);
            CScreenBlock block = {0, 0x2000, 0x2000, 0, 0, 0, 0, 0, 0, 0};
            block[bit / 16] ^= 1 << bit % 16;
            SetBlock(block);
            Reopen(dialog);
            ExpectEntries(dialog, EntriesOf(block[0], block[1], block[2]));
        }
    });
}

TEST_F(CScrDispRestoreTest, ShowAnyBlock)
{
    std::mt19937 random(180);
    const int rounds = IsThorough() ? 100 : 6;
    Leave([&](CDialogRobot& dialog) {
        for (int round = 0; round < rounds && !HasFailure(); ++round)
        {
            const auto word = [&] { return static_cast<int>(random() & 0xFFFF); };
            const int first = word(), upside = word(), downside = word();
            SCOPED_TRACE(testing::Message() << std::hex << first << ' ' << upside << ' ' << downside);
            SScrDispEntries entries = EntriesOf(first, upside, downside);
            const std::string texts[] = {"", "7", "-1", "off", "Er 4", "HELLO"};
            CScreenBlock block = {first, upside, downside};
            for (SLineEntries& line : entries.lines)
            {
                line.text = texts[random() % std::size(texts)];
                std::vector<int> words = TextWordsOf(line.text);
                words.resize(3);
                block.insert(block.end(), words.begin(), words.end());
            }
            block.push_back(word());
            SetBlock(block);
            Reopen(dialog);
            ExpectEntries(dialog, entries);
        }
    });
}

// What is shown is what is stored: a mode or a color that there is not becomes the first one.
TEST_F(CScrDispRestoreTest, StoreWhatIsShown)
{
    const struct
    {
        int stored;
        int kept;
    } kWords[] = {{0x0000, 0x2000}, {0x80A0, 0xA000}, {0x40E0, 0x4000}, {0x7FDF, 0x7F1F}, {0xFF9F, 0xFF9F}};
    for (const auto& [stored, kept] : kWords)
    {
        WriteResults(m_wizard, {.operands = ScrDispResults({}).operands});
        SetBlock({0xFC00, stored, stored, 0, 0x4141, 0x4141, 0, 0x4141, 0, 0xFFFF});
        Confirm([](CDialogRobot&) {});
        EXPECT_EQ(Block(), (CScreenBlock{0, kept, kept, 0, 0, 0, 0, 0, 0, 0}));
        EXPECT_EQ(ReadResults(m_wizard).data,
                  (std::vector<SDataRow>{{9, 100, 0, 1, 0}, {9, 101, 0, 1, kept}, {9, 102, 0, 1, kept}}));
    }
}

// ---- Round trips ----------------------------------------------------------------------------------------------------

TEST_F(CScrDispRestoreTest, ConfirmAgainToTheSame)
{
    std::mt19937 random(6180);
    const auto below = [&](unsigned count) { return static_cast<unsigned>(random()) % count; };
    const int rounds = IsThorough() ? 150 : 8;
    const SDeviceEntry devices[] = {
        {kDT, 0, "0"},      {kDT, 32764, "32764"},     {kR, 15, "F"}, {kWR, 7, "7"}, {kX, 170, "10A"},
        {kC, 1008, "1008"}, {kSpecialR, 14419, "9013"}};
    const std::string texts[] = {"", "A", "no", "oFF", "Er 4", "HELLO", "     ", "a-b_c"};
    for (int round = 0; round < rounds && !HasFailure(); ++round)
    {
        SScrDispEntries entries;
        entries.screen = static_cast<int>(below(4));
        for (SDeviceEntry& device : entries.devices)
            device = devices[below(std::size(devices))];
        entries.marks = below(256);
        for (SLineEntries& line : entries.lines)
            line = {.hidden = below(3) == 0,
                    .mode = static_cast<int>(below(5)),
                    .allDigits = static_cast<int>(below(2)),
                    .color = static_cast<int>(below(3)),
                    .hiddenDigits = below(32),
                    .points = below(32),
                    .text = texts[below(std::size(texts))]};
        SCOPED_TRACE(testing::Message() << "round " << round);
        SResults expected = ScrDispResults(entries);
        EXPECT_EQ(Confirmed(entries), expected);
        EXPECT_EQ(Block(), BlockOf(entries));
        Confirm([&](CDialogRobot& dialog) { ExpectEntries(dialog, entries); });
        expected.contacts.push_back({2, 20001, 14419});
        EXPECT_EQ(ReadResults(m_wizard), expected);
        EXPECT_EQ(Block(), BlockOf(entries));
        EXPECT_EQ(m_wizard.IsCmtRec(), 1);
    }
}

// ---- Flags ----------------------------------------------------------------------------------------------------------

TEST_F(CScrDispRestoreTest, ShowWhetherCommentsAreWanted)
{
    for (const int flag : {0, 1, 5, -7})
    {
        m_wizard.SetCmtRec(flag);
        Leave([&](CDialogRobot& dialog) {
            EXPECT_EQ(dialog.Checked(3001), flag != 0);
            dialog.Check(3001, flag == 0); // forgotten
        });
        EXPECT_EQ(m_wizard.IsCmtRec(), flag);
    }
}

} // namespace
