// What a confirmed dialog of scaling leaves in the wizard: contacts, operands, every register of the table, comments,
// the flag, and the ladder that follows from them.
#include "tests/core/FunWizardTest.h"
#include "tests/dialogs/process/ScalTest.h"
#include "tests/support/AllocationFaults.h"

#include <bit>

namespace
{

class CScalResultsTest : public CScalTest
{
};

INSTANTIATE_TEST_SUITE_P(Kinds, CScalResultsTest, testing::ValuesIn(kScalKinds), ScalKindName);

} // namespace

// ---- Registers ------------------------------------------------------------------------------------------------------

TEST_P(CScalResultsTest, StoresTheTableRegisterByRegister)
{
    const std::vector<SPointEntry> points = {{"-3", "40"}, {"2", "-50"}, {"7", "60"}};
    const SResults results = Confirmed({.start = "500", .points = points});
    const auto real = [](float value) { return std::bit_cast<int>(value); };
    const std::vector<SDataRow> kExpected[] = {
        {{9, 500, 0, 0, 3},
         {9, 501, 0, 0, -3},
         {9, 502, 0, 0, 2},
         {9, 503, 0, 0, 7},
         {9, 504, 0, 0, 40},
         {9, 505, 0, 0, -50},
         {9, 506, 0, 0, 60}},
        {{9, 500, 0, 0, 3},
         {9, 501, 1, 0, -3},
         {9, 503, 1, 0, 2},
         {9, 505, 1, 0, 7},
         {9, 507, 1, 0, 40},
         {9, 509, 1, 0, -50},
         {9, 511, 1, 0, 60}},
        {{9, 500, 0, 0, 3},
         {9, 501, 2, 2, real(-3)},
         {9, 503, 2, 2, real(2)},
         {9, 505, 2, 2, real(7)},
         {9, 507, 2, 2, real(40)},
         {9, 509, 2, 2, real(-50)},
         {9, 511, 2, 2, real(60)}},
    };
    EXPECT_EQ(results.data, kExpected[GetParam().argument]);
    EXPECT_EQ(results.operands, (std::vector<SOperandRow>{{9, 10}, {9, 500}, {9, 20}}));
}

TEST_P(CScalResultsTest, StoresEverySizeInEveryDevice)
{
    AddAllWords();
    for (const SWordDevice& device : Sampled(kWordDevices, 6))
        for (const int count : {2, 3, 11})
        {
            const SScalEntries entries = {.inputDevice = device.name,
                                          .input = "101",
                                          .outputDevice = device.name,
                                          .output = "202",
                                          .startDevice = device.name,
                                          .start = "303",
                                          .points = Points(count)};
            EXPECT_EQ(Confirmed(entries), ScalResults(GetParam(), entries)) << device.name;
            EXPECT_EQ(ReadResults(m_wizard).operands.at(1), (SOperandRow{device.code, 303}));
            Confirm([](CDialogRobot&) {}); // and again, untouched
            EXPECT_EQ(ReadResults(m_wizard), ScalResults(GetParam(), entries)) << device.name;
            WriteResults(m_wizard, {});
        }
}

TEST_P(CScalResultsTest, StoresOperandsInTheOrderInputTableOutput)
{
    const SScalEntries entries = {
        .inputDevice = "WX", .input = "1", .outputDevice = "WY", .output = "2", .startDevice = "WR", .start = "3"};
    EXPECT_EQ(Confirmed(entries).operands, (std::vector<SOperandRow>{{kWX, 1}, {kWR, 3}, {kWY, 2}}));
}

TEST_P(CScalResultsTest, StoresConstantsOfTheInput)
{
    for (const SScalConstant& constant : GetParam().constants)
        for (const std::string& text : constant.inside)
        {
            const SScalEntries entries = {.inputDevice = constant.name, .input = text};
            EXPECT_EQ(Confirmed(entries), ScalResults(GetParam(), entries)) << constant.name << text;
            Confirm([&](CDialogRobot& dialog) { EXPECT_EQ(dialog.Text(3362), CString(constant.name)); });
            EXPECT_EQ(ReadResults(m_wizard), ScalResults(GetParam(), entries)) << constant.name << text;
            WriteResults(m_wizard, {});
        }
    struct SStored
    {
        const char* device;
        const char* text;
        SOperandRow operand;
    };
    const std::vector<SStored> kStored[] = {
        {{"H", "FFFF", {12, 65535}}, {"H", "8000", {12, 32768}}, {"K", "-32768", {11, -32768}}},
        {{"H", "FFFFFFFF", {12, -1}}, {"H", "80000000", {12, INT_MIN}}, {"K", "-1", {11, -1}}},
        {{"f", "1", {20, 0x3F800000}},
         {"f", "0.1", {20, 0x3DCCCCCD}},
         {"f", "-0", {20, 0}},
         {"f", "-2.5E-3", {20, std::bit_cast<int>(-2.5e-3F)}}}};
    for (const auto& [device, text, operand] : kStored[GetParam().argument])
    {
        EXPECT_EQ(Confirmed({.inputDevice = device, .input = text}).operands.at(0), operand) << device << text;
        WriteResults(m_wizard, {});
    }
}

TEST_P(CScalResultsTest, RoundsRealsOnceAndStoresTheirBits)
{
    if (!GetParam().IsReal())
        return;
    const SResults results =
        Confirmed({.count = "2", .points = {{"-0.1", "7038531e-32"}, {" 1e-1 ", "3.402822e38"}, {"0.10000000", "x"}}});
    EXPECT_EQ(results.data.at(1).value, static_cast<int>(0xBDCCCCCD));
    EXPECT_EQ(results.data.at(2).value, 0x3DCCCCCD);
    EXPECT_EQ(results.data.at(3).value, 0x15AE43FD);
    EXPECT_EQ(results.data.at(4).value, 0x7F7FFFF8);
}

// ---- Contacts -------------------------------------------------------------------------------------------------------

TEST_P(CScalResultsTest, StoresTheContactAndItsDifferential)
{
    const struct
    {
        const char* text;
        int device;
        int number;
    } kContacts[] = {{"0", kX, 0},       {"109F", kY, kLastInput},         {"10A", kR, 170}, {"1007", kT, 1007},
                     {"1008", kC, 1008}, {"9013", kSpecialR, Bit(901, 3)}, {"7F", kL, 127}};
    for (const auto& [text, device, number] : Sampled(kContacts, 3))
        for (const bool differential : {false, true})
        {
            const SScalEntries entries = {
                .device = device, .contact = text, .contactNumber = number, .differential = differential};
            std::vector<SContactRow> contacts = {{2, device, number}};
            if (differential)
                contacts.push_back({17, -1, 0});
            EXPECT_EQ(Confirmed(entries).contacts, contacts);
            EXPECT_EQ(ReadResults(m_wizard), ScalResults(GetParam(), entries));
            Confirm([&, on = differential](CDialogRobot& dialog) { EXPECT_EQ(dialog.Checked(3361), on); });
            EXPECT_EQ(ReadResults(m_wizard), ScalResults(GetParam(), entries));
        }
}

TEST_P(CScalResultsTest, StoresNeitherContactNorInputNorOutputWithTheTableAlone)
{
    for (const bool differential : {false, true})
    {
        WriteResults(m_wizard, {.contacts = {{2, 3, 1}, {17, -1, 0}}, .operands = {{9, 1}, {9, 2}, {9, 3}, {9, 4}}});
        Confirm([&](CDialogRobot& dialog) {
            FillIn(dialog, {.differential = differential});
            dialog.Check(2061);
        });
        EXPECT_EQ(ReadResults(m_wizard), ScalResults(GetParam(), {.onlyDataTable = true}));
        EXPECT_EQ(ReadResults(m_wizard).operands, (std::vector<SOperandRow>{{-1, -1}, {9, 100}, {-1, -1}}));
        EXPECT_EQ(ReadResults(m_wizard).contacts, std::vector<SContactRow>());
        EXPECT_EQ(m_wizard.IsOnlyDataTable(), 1);
        m_wizard.SetOnlyDataTable(0);
    }
}

// ---- Comments, flags, lists -----------------------------------------------------------------------------------------

TEST_P(CScalResultsTest, CommentsItsFourEntries)
{
    WriteResults(m_wizard, {.comments = {"as before", "b", "c", "d", "e"}});
    EXPECT_EQ(Confirmed({}).comments,
              (std::vector<std::string>{"Input value X", "Output result Y", "Starting address", "Number of data(n)"}));
    EXPECT_EQ(Confirmed({.onlyDataTable = true}).comments.size(), 4u);
    m_wizard.SetCmtRec(0);
    WriteResults(m_wizard, {.comments = {"as before"}});
    EXPECT_EQ(Confirmed({}).comments, (std::vector<std::string>{"as before"}));
    EXPECT_EQ(m_wizard.IsCmtRec(), 0);
}

TEST_P(CScalResultsTest, ReplacesTheListsAndLeavesTheInstructionsAlone)
{
    WriteResults(m_wizard, {.contacts = {{2, 3, 1}, {17, -1, 0}, {2, 2, 2}},
                            .operands = {{9, 1}, {9, 1}, {11, 7}, {11, 8}},
                            .data = std::vector<SDataRow>(40, {9, 1, 0, 0, 7}),
                            .comments = {"a", "b", "c", "d", "e"},
                            .instructions = {{8, -1, 282, 0, 0}}});
    SResults expected = ScalResults(GetParam(), {});
    expected.instructions = {{8, -1, 282, 0, 0}};
    EXPECT_EQ(Confirmed({}), expected);
}

TEST_P(CScalResultsTest, SetsTheFlagOfTheTableAloneEachTime)
{
    for (const bool only : {true, false, true, false})
    {
        Confirmed({.onlyDataTable = only});
        EXPECT_EQ(m_wizard.IsOnlyDataTable(), only ? 1 : 0);
    }
    m_wizard.SetOnlyDataTable(1);
    Leave([](CDialogRobot& dialog) { dialog.Check(2061, false); });
    EXPECT_EQ(m_wizard.IsOnlyDataTable(), 1) << "after Cancel";
}

// The flag is the last that changes: as long as memory fails it stays as it was.
TEST_P(CScalResultsTest, SetsTheFlagLast)
{
    int refusals = 0;
    Open({[&](CDialogRobot& dialog) {
        FillIn(dialog, {.onlyDataTable = true});
        dialog.Focus(IDOK);
        while (dialog.IsOpen() && refusals < 1000)
        {
            CString message;
            {
                CAllocationFaults faults(refusals);
                message = dialog.ClickAndAnswer(IDOK);
            }
            if (!dialog.IsOpen())
                break;
            ++refusals;
            EXPECT_EQ(message, CString(MessageText(20002).c_str()));
            EXPECT_EQ(m_wizard.IsOnlyDataTable(), 0);
        }
    }});
    EXPECT_GT(refusals, 3);
    EXPECT_EQ(m_wizard.IsOnlyDataTable(), 1);
    EXPECT_EQ(ReadResults(m_wizard), ScalResults(GetParam(), {.onlyDataTable = true}));
}

TEST_P(CScalResultsTest, WritesNothingWhenCancelledButIsTheLastWizard)
{
    const SResults before = ScalResults(GetParam(), {.differential = true, .start = "7"});
    WriteResults(m_wizard, before);
    for (const bool byKey : {false, true})
    {
        Leave([&](CDialogRobot& dialog) {
            FillIn(dialog, {.points = Points(9)});
            dialog.Focus(2052);
            if (byKey)
                dialog.PressKey(VK_ESCAPE);
        });
        EXPECT_EQ(ReadResults(m_wizard), before);
        EXPECT_EQ(m_wizard.IsOnlyDataTable(), 0);
    }
    for (const int earlier : {168, GetParam().instruction})
    {
        SFunWizardTest::SetLastWizard(m_wizard, 1, earlier, 0);
        Leave([](CDialogRobot&) {});
        EXPECT_EQ(SFunWizardTest::UnitMode(m_wizard), 0);
        EXPECT_EQ(SFunWizardTest::LastInstruction(m_wizard), GetParam().instruction);
        EXPECT_EQ(SFunWizardTest::LastVariant(m_wizard), 0);
    }
}

TEST_P(CScalResultsTest, ForgetsTheListsOfAnotherInstructionButNotTheComments)
{
    WriteResults(m_wizard, ScalResults(GetParam(), {}));
    SFunWizardTest::SetLastWizard(m_wizard, 0, GetParam().instruction + 1, 0);
    Leave([](CDialogRobot& dialog) {
        EXPECT_EQ(dialog.Text(3369), CString());
        EXPECT_EQ(TextsOf(CellsOf(dialog)), (GridTexts{{"", ""}}));
    });
    EXPECT_EQ(ReadResults(m_wizard), (SResults{.comments = ScalResults(GetParam(), {}).comments}));
}

// ---- The ladder -----------------------------------------------------------------------------------------------------

namespace
{

/// The first scan transfers n in a block of its own, then X and Y in blocks of 33.
std::vector<SInstructionRow> Ladder(const SScalKind& kind, const SScalEntries& entries)
{
    const SResults results = ScalResults(kind, entries);
    const SInstructionRow firstScan = {2, 1, 14419, 0, 0};
    const int n = entries.Count();
    std::vector<SInstructionRow> rows;
    for (int i = 0; i <= 2 * n; ++i)
    {
        const SDataRow& record = results.data[static_cast<size_t>(i)];
        const int inBlock = i == 0 ? 0 : (i - 1) % n;
        if (inBlock % 33 == 0)
            rows.push_back(firstScan);
        const int transfer = record.type == 0 ? 0 : record.type == 1 ? 1 : 309;
        rows.insert(rows.end(), {{8, -1, transfer, 0, 0},
                                 {-1, record.format == 2 ? 20 : 11, record.value, 0, 0},
                                 {-1, record.code, record.number, 0, 0}});
    }
    if (entries.onlyDataTable)
        return rows;
    for (const SContactRow& contact : results.contacts)
        rows.push_back({contact.kind, contact.code == kSpecialR ? kR : contact.code, contact.number, 0, 0});
    const int flag = kind.instruction == 282 ? 0 : 1;
    rows.push_back({8, -1, kind.instruction, flag, 0});
    for (const SOperandRow& operand : results.operands)
        rows.push_back({-1, operand.code, operand.value, flag, 0});
    return rows;
}

} // namespace

TEST_P(CScalResultsTest, LeadsToTheLadderOfItsPoints)
{
    const SScalConstant& constant = GetParam().constants.back();
    for (const int count : Sampled(std::vector<int>{2, 3, 32, 33, 34, 66, 67, 100}, 4))
        for (const unsigned way : SampledNumbers(0, 7, 3))
        {
            SScalEntries entries = {.onlyDataTable = (way & 1) != 0, .differential = (way & 2) != 0};
            entries.points = Points(count);
            if ((way & 4) != 0)
            {
                entries.device = kSpecialR;
                entries.contact = "9010";
                entries.contactNumber = Bit(901, 0);
                entries.inputDevice = constant.name;
                entries.input = "1";
            }
            Confirmed(entries);
            for (const int plcType : {1, 70, 74, 114, 160})
            {
                SCOPED_TRACE(testing::Message() << count << " points, way " << way << ", type " << plcType);
                m_wizard.SetPlcType(static_cast<BYTE>(plcType));
                EXPECT_EQ(m_wizard.CreateInstCode(), 1);
                EXPECT_EQ(ReadResults(m_wizard).instructions, Ladder(GetParam(), entries));
            }
            WriteResults(m_wizard, {});
        }
}
