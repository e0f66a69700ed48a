// What a confirmed dialog of the screen display leaves in the wizard: lists, flags, the block, and the ladder.
#include "tests/core/FunWizardTest.h"
#include "tests/dialogs/process/ScrDispTest.h"
#include "tests/support/AllocationFaults.h"
#include "tests/support/Sampled.h"

namespace
{

using CScrDispResultsTest = CScrDispTest;

// ---- The control data -----------------------------------------------------------------------------------------------

TEST_F(CScrDispResultsTest, HoldTheLinesThatAreShown)
{
    const std::vector<SDataRow> kData[] = {
        {{9, 100, 0, 1, 0x0080}, {9, 101, 0, 1, 0xC060}, {9, 102, 0, 1, 0x6040}, {9, 200, 0, 1, 0x6261}},
        {{9, 100, 0, 1, 0x0180}, {9, 102, 0, 1, 0x6040}},
        {{9, 100, 0, 1, 0x0280}, {9, 101, 0, 1, 0xC060}, {9, 200, 0, 1, 0x6261}},
        {{9, 100, 0, 1, 0x0380}},
    };
    for (unsigned hidden = 0; hidden < 4; ++hidden)
    {
        SScrDispEntries entries;
        entries.marks = 1;
        entries.lines[kUpside] = {.hidden = (hidden & 1) != 0, .mode = 3, .allDigits = 1, .color = 1, .text = "ab"};
        entries.lines[kDownside] = {.hidden = (hidden & 2) != 0, .mode = 2, .color = 2};
        const SResults results = Confirmed(entries);
        EXPECT_EQ(results.data, kData[hidden]);
        EXPECT_EQ(results, ScrDispResults(entries));
        EXPECT_EQ(Block(),
                  (CScreenBlock{static_cast<int>(hidden << 8 | 0x80), 0xC060, 0x6040, 0x6261, 0, 0, 0, 0, 0, 0}));
    }
}

struct SLineBit
{
    SLineEntries line;
    int word;
};

const SLineBit kLineBits[] = {
    {{}, 0x2000},
    {{.points = 0x01}, 0x2001},
    {{.points = 0x02}, 0x2002},
    {{.points = 0x04}, 0x2004},
    {{.points = 0x08}, 0x2008},
    {{.points = 0x10}, 0x2010},
    {{.mode = 1}, 0x2020},
    {{.mode = 2}, 0x2040},
    {{.mode = 3}, 0x2060},
    {{.mode = 4}, 0x2080},
    {{.hiddenDigits = 0x01}, 0x2100},
    {{.hiddenDigits = 0x02}, 0x2200},
    {{.hiddenDigits = 0x04}, 0x2400},
    {{.hiddenDigits = 0x08}, 0x2800},
    {{.hiddenDigits = 0x10}, 0x3000},
    {{.color = 1}, 0x4000},
    {{.color = 2}, 0x6000},
    {{.allDigits = 1}, 0xA000},
    {{.mode = 3, .allDigits = 1, .color = 1}, 0xC060},
    {{.mode = 4, .allDigits = 1, .color = 2, .hiddenDigits = 0x1F, .points = 0x1F}, 0xFF9F},
};

TEST_F(CScrDispResultsTest, HoldEveryBitOfALine)
{
    for (const SLineBit& row : Sampled(kLineBits, 4))
        for (const ELine line : {kUpside, kDownside})
        {
            SScrDispEntries entries;
            entries.lines[line] = row.line;
            const SResults results = Confirmed(entries);
            EXPECT_EQ(results, ScrDispResults(entries));
            EXPECT_EQ(results.data[1].value, line == kUpside ? row.word : 0x2000);
            EXPECT_EQ(results.data[2].value, line == kDownside ? row.word : 0x2000);
            Leave([&](CDialogRobot& dialog) { ExpectEntries(dialog, entries); });
        }
}

TEST_F(CScrDispResultsTest, HoldTheOperands)
{
    for (const int screen : {0, 1, 2, 3})
    {
        SScrDispEntries entries;
        entries.screen = screen;
        entries.devices = {SDeviceEntry{kWR, 5, "5"}, SDeviceEntry{kR, 31, "1F"},
                           SDeviceEntry{kSpecialR, 14416, "9010"}};
        const SResults results = Confirmed(entries);
        EXPECT_EQ(results.operands, (std::vector<SOperandRow>{{11, screen}, {65, 5}, {1, 31}, {20001, 14416}}));
        EXPECT_EQ(results.data,
                  (std::vector<SDataRow>{{65, 5, 0, 1, 0}, {65, 6, 0, 1, 0x2000}, {65, 7, 0, 1, 0x2000}}));
        EXPECT_EQ(results, ScrDispResults(entries));
    }
}

// ---- Lists ----------------------------------------------------------------------------------------------------------

TEST_F(CScrDispResultsTest, AppendTheContactEachTime)
{
    SResults expected = ScrDispResults({});
    for (int times = 1; times <= 3; ++times)
    {
        Confirm([&](CDialogRobot& dialog) { times == 1 ? FillIn(dialog, {}) : ExpectEntries(dialog, {}); });
        EXPECT_EQ(ReadResults(m_wizard), expected);
        expected.contacts.push_back({2, 20001, 14419});
    }
}

TEST_F(CScrDispResultsTest, KeepContactsAndInstructionsAndReplaceTheRest)
{
    WriteResults(m_wizard, {.contacts = {{2, 3, 1}, {17, -1, 0}, {3, 2, 5}},
                            .operands = {{11, 3}, {9, 1}, {9, 2}, {9, 3}, {11, 7}},
                            .data = std::vector<SDataRow>(40, {9, 1, 0, 0, 7}),
                            .comments = std::vector<std::string>(20, "old"),
                            .instructions = {{8, -1, 180, 0, 0}}});
    SResults expected = ScrDispResults({});
    expected.contacts.insert(expected.contacts.begin(), {{2, 3, 1}, {17, -1, 0}, {3, 2, 5}});
    expected.instructions = {{8, -1, 180, 0, 0}};
    Confirm([](CDialogRobot& dialog) { FillIn(dialog, {}); });
    EXPECT_EQ(ReadResults(m_wizard), expected);
}

// ---- Comments -------------------------------------------------------------------------------------------------------

TEST_F(CScrDispResultsTest, HoldThreeComments)
{
    WriteResults(m_wizard, {.comments = {"of the host", "two"}});
    SScrDispEntries entries;
    entries.comments = false;
    Confirm([&](CDialogRobot& dialog) { FillIn(dialog, entries); });
    EXPECT_EQ(ReadResults(m_wizard).comments, (std::vector<std::string>{"of the host", "two"}));
    EXPECT_EQ(m_wizard.IsCmtRec(), 0);

    m_wizard.SetCmtRec(5);
    Confirm([&](CDialogRobot& dialog) {
        ControlBefore(dialog, 2851)->SetWindowText("Steuerdaten");
        ControlBefore(dialog, 2857)->SetWindowText("unten");
        dialog.Check(3001, true);
    });
    EXPECT_EQ(ReadResults(m_wizard).comments,
              (std::vector<std::string>{"Steuerdaten", "Upside display data", "unten"}));
    EXPECT_EQ(m_wizard.IsCmtRec(), 1);
}

TEST_F(CScrDispResultsTest, HoldTheCommentsWhateverIsHidden)
{
    SScrDispEntries entries;
    entries.lines[kUpside].hidden = entries.lines[kDownside].hidden = true;
    EXPECT_EQ(Confirmed(entries).comments,
              (std::vector<std::string>{"Control data", "Upside display data", "Downside display data"}));
}

// ---- Flags ----------------------------------------------------------------------------------------------------------

// The dialog does not ask for a data table alone: what an earlier one has asked for ends with it.
TEST_F(CScrDispResultsTest, AlwaysHoldTheInstruction)
{
    m_wizard.SetOnlyDataTable(1);
    Leave([](CDialogRobot& dialog) { FillIn(dialog, {}); });
    EXPECT_EQ(m_wizard.IsOnlyDataTable(), 1);
    Confirm([](CDialogRobot& dialog) { FillIn(dialog, {}); });
    EXPECT_EQ(m_wizard.IsOnlyDataTable(), 0);
}

TEST_F(CScrDispResultsTest, AreLeftAloneByCancel)
{
    SScrDispEntries earlier;
    earlier.screen = 2;
    earlier.marks = 0x81;
    earlier.lines[kUpside] = {.mode = 3, .color = 1, .text = "abc"};
    const SResults before = Confirmed(earlier);
    const void* const block = m_wizard.GetDlgDataPtr();
    Leave([](CDialogRobot& dialog) {
        SScrDispEntries other;
        other.comments = false;
        other.marks = 0x42;
        other.lines[kDownside] = {.hidden = true, .color = 2};
        FillIn(dialog, other, 0x81);
    });
    EXPECT_EQ(ReadResults(m_wizard), before);
    EXPECT_EQ(m_wizard.GetDlgDataPtr(), block);
    EXPECT_EQ(Block(), BlockOf(earlier));
    EXPECT_EQ(m_wizard.IsCmtRec(), 1);
}

// ---- The last wizard ------------------------------------------------------------------------------------------------

TEST_F(CScrDispResultsTest, MakeItTheLastWizardEvenWhenCancelled)
{
    const struct
    {
        BYTE unit;
        int instruction;
        int variant;
    } kOthers[] = {{0, 168, 0}, {0, 180, 1}, {1, 151, 10040}, {0, -1, 0}};
    for (const auto& other : kOthers)
        for (const bool confirmed : {false, true})
        {
            SResults earlier = ScrDispResults({});
            earlier.instructions = {{8, -1, 168, 0, 0}};
            WriteResults(m_wizard, earlier);
            SetBlock({0xFF, 0xE060, 0xE060, 0x4141, 0x4141, 0x41, 0x4242, 0, 0, 0});
            SFunWizardTest::SetLastWizard(m_wizard, other.unit, other.instruction, other.variant);
            const auto look = [](CDialogRobot& dialog) {
                SScrDispEntries empty;
                for (SDeviceEntry& device : empty.devices)
                    device.text = "";
                ExpectEntries(dialog, empty);
                FillIn(dialog, {});
            };
            confirmed ? Confirm(look) : Leave(look);
            EXPECT_EQ(SFunWizardTest::UnitMode(m_wizard), 0);
            EXPECT_EQ(SFunWizardTest::LastInstruction(m_wizard), 180);
            EXPECT_EQ(SFunWizardTest::LastVariant(m_wizard), 0);
            EXPECT_EQ(SFunWizardTest::DialogFont(m_wizard), nullptr);
            SResults cleared;
            cleared.comments = earlier.comments;
            EXPECT_EQ(ReadResults(m_wizard), confirmed ? ScrDispResults({}) : cleared);
            EXPECT_EQ(Block(), confirmed ? std::optional(BlockOf({})) : std::nullopt);
        }
}

// The mode alone does not make it another wizard.
TEST_F(CScrDispResultsTest, StayWithTheSameInstruction)
{
    SScrDispEntries entries;
    entries.marks = 0x10;
    const SResults before = Confirmed(entries);
    SFunWizardTest::SetLastWizard(m_wizard, 1, 180, 0);
    Leave([&](CDialogRobot& dialog) { ExpectEntries(dialog, entries); });
    EXPECT_EQ(ReadResults(m_wizard), before);
    EXPECT_EQ(SFunWizardTest::UnitMode(m_wizard), 0);
}

TEST_F(CScrDispResultsTest, GiveWayToAnotherInstruction)
{
    Confirmed({});
    EXPECT_NE(Block(), std::nullopt);
    Play([this] { return m_wizard.DoOpenPIDDlg(0, nullptr); }, {[](CDialogRobot& pid) { pid.Click(IDCANCEL); }});
    EXPECT_EQ(Block(), std::nullopt);
    EXPECT_EQ(ReadResults(m_wizard).operands, std::vector<SOperandRow>());
}

// ---- Memory ---------------------------------------------------------------------------------------------------------

TEST_F(CScrDispResultsTest, AreCompleteOnceThereIsMemory)
{
    SScrDispEntries entries;
    entries.marks = 0x18;
    entries.lines[kUpside] = {.mode = 3, .text = "abcde"};
    entries.lines[kDownside] = {.mode = 3, .text = "wxyz"};
    Confirm([&](CDialogRobot& dialog) {
        FillIn(dialog, entries);
        EXPECT_GT(ConfirmShortOfMemory(dialog), 15) << "OK allocates more than that";
    });
    SResults results = ReadResults(m_wizard);
    EXPECT_FALSE(results.contacts.empty());
    for (const SContactRow& contact : results.contacts)
        EXPECT_EQ(contact, (SContactRow{2, 20001, 14419}));
    results.contacts.resize(1); // each attempt that came so far has appended one
    EXPECT_EQ(results, ScrDispResults(entries));
    EXPECT_EQ(Block(), BlockOf(entries));
}

/// Whether a list is a beginning of another one.
template <typename TRow>
bool Begins(const std::vector<TRow>& list, const std::vector<TRow>& whole)
{
    return list.size() <= whole.size() && std::equal(list.begin(), list.end(), whole.begin());
}

// The lists are written one behind the other: contact, operands, block, data, comments. Where memory fails, those
// before are complete, and those behind hold what they held.
TEST_F(CScrDispResultsTest, AreAsFarAsTheyWereWrittenWithoutMemory)
{
    const SResults before = {
        .operands = {{11, 1}, {9, 1}, {9, 2}, {9, 3}}, .data = {{9, 1, 0, 0, 7}}, .comments = {"old"}};
    const CScreenBlock oldBlock = {0x01, 0x2000, 0x2000, 0, 0, 0, 0, 0, 0, 0};
    SScrDispEntries entries;
    entries.screen = 3;
    entries.marks = 0x7F; // the old block's mark, the last one, is turned off
    entries.lines[kUpside] = {.mode = 3, .text = "abcde"};
    const SResults after = ScrDispResults(entries);
    enum EStage
    {
        kNothing,
        kContact,
        kOperands,
        kBlock,
        kData,
        kComments,
        kStages
    };
    const auto stageOf = [&](const SResults& now) {
        if (now.contacts.empty())
            return m_wizard.IsCmtRec() == 0 ? kNothing : kContact;
        if (now.operands != after.operands)
            return kOperands;
        if (Block() != BlockOf(entries))
            return kBlock;
        return now.data != after.data ? kData : kComments;
    };
    std::vector<int> seen(kStages);
    Confirm([&](CDialogRobot& dialog) {
        FillIn(dialog, entries);
        bool failed = true;
        for (int successes = 0; failed && dialog.IsOpen(); ++successes)
        {
            SCOPED_TRACE(testing::Message() << "allocation " << successes);
            WriteResults(m_wizard, before);
            SetBlock(oldBlock);
            m_wizard.SetCmtRec(0);
            {
                CAllocationFaults faults(successes);
                dialog.ClickAndAnswer(IDOK);
                failed = faults.Failures() > 0;
            }
            if (!failed)
                break;
            const SResults now = ReadResults(m_wizard);
            const EStage stage = stageOf(now);
            ++seen[stage];
            EXPECT_EQ(m_wizard.IsCmtRec(), stage == kNothing ? 0 : 1);
            EXPECT_EQ(now.contacts, stage >= kOperands ? after.contacts : before.contacts);
            EXPECT_TRUE(stage == kOperands ? Begins(now.operands, after.operands)
                                           : now.operands == (stage > kOperands ? after : before).operands)
                << now;
            EXPECT_EQ(Block(), stage > kBlock ? BlockOf(entries) : oldBlock);
            EXPECT_TRUE(stage == kData ? Begins(now.data, after.data)
                                       : now.data == (stage > kData ? after : before).data)
                << now;
            EXPECT_TRUE(stage == kComments ? Begins(now.comments, after.comments) : now.comments == before.comments)
                << now;
        }
    });
    for (int stage = kNothing; stage < kStages; ++stage)
        EXPECT_GT(seen[static_cast<size_t>(stage)], 0) << "no allocation failed in stage " << stage;
}

// ---- The ladder -----------------------------------------------------------------------------------------------------

TEST_F(CScrDispResultsTest, LeadToTheLadder)
{
    SScrDispEntries entries;
    entries.screen = 2;
    entries.devices[1] = {kSpecialDT, 90100, "90100"};
    entries.marks = 0x80;
    entries.lines[kUpside] = {.mode = 3, .allDigits = 1, .color = 1, .text = "abc"};
    entries.lines[kDownside] = {.hidden = true};
    for (const bool onlyBefore : {false, true})
    {
        m_wizard.SetOnlyDataTable(onlyBefore);
        ASSERT_EQ(Confirmed(entries), ScrDispResults(entries));
        EXPECT_EQ(m_wizard.CreateInstCode(), 1);
        std::vector<SInstructionRow> expected = {{2, 1, 14419, 0, 0}};
        const auto transfer = [&](int value, int device, int number) {
            expected.insert(expected.end(), {{8, -1, 0, 0, 0}, {-1, 12, value, 0, 0}, {-1, device, number, 0, 0}});
        };
        transfer(0x0201, 9, 100);
        transfer(0xC060, 9, 101);
        transfer(0x6261, 20009, 90100);
        transfer(0x0063, 20009, 90101);
        expected.insert(
            expected.end(),
            {{8, -1, 180, 0, 0}, {-1, 11, 2, 0, 0}, {-1, 9, 100, 0, 0}, {-1, 20009, 90100, 0, 0}, {-1, 9, 300, 0, 0}});
        EXPECT_EQ(ReadResults(m_wizard).instructions, expected);
    }
}

} // namespace
