// What the dialog of scaling restores: all that it has stored itself, and of what hosts have put in the lists as much
// as there is.
#include "tests/dialogs/process/ScalTest.h"

#include <bit>

namespace
{

class CScalRestoreTest : public CScalTest
{
protected:
    /// A table at DT 100 as a host may have stored it: n, and the values behind it.
    void WriteTable(int n, std::vector<int> values, int code = kDT)
    {
        const SScalKind& kind = GetParam();
        SResults results;
        results.contacts = {{2, kR, 16}};
        results.operands = {{9, 10}, {code, 100}, {9, 20}};
        results.data = {{code, 100, 0, 0, n}};
        int number = 101;
        for (const int value : values)
        {
            const int stored = kind.IsReal() ? std::bit_cast<int>(static_cast<float>(value)) : value;
            results.data.push_back({code, number, kind.type, kind.format, stored});
            number += kind.width;
        }
        WriteResults(m_wizard, results);
    }
};

INSTANTIATE_TEST_SUITE_P(Kinds, CScalRestoreTest, testing::ValuesIn(kScalKinds), ScalKindName);

void ExpectRestored(CDialogRobot& dialog, const char* count, const GridTexts& points)
{
    EXPECT_EQ(dialog.Text(3371), CString(count));
    EXPECT_EQ(TextsOf(CellsOf(dialog)), points);
    EXPECT_EQ(CellsOf(dialog).Current(), (SGridCell{0, 0}));
    EXPECT_EQ(CellsOf(dialog).FirstVisible(), 0);
    EXPECT_FALSE(dialog.Visible(3381));
}

} // namespace

TEST_P(CScalRestoreTest, RestoresAllThatItStores)
{
    const SScalConstant& constant = GetParam().constants.back();
    const SScalEntries entries = {
        .device = kL,
        .contact = "7F",
        .contactNumber = 127,
        .differential = true,
        .inputDevice = constant.name,
        .input = "1",
        .outputDevice = "WR",
        .output = "5",
        .startDevice = "WL",
        .start = "7",
        .points = {{"-5", "1"}, {"6", "2"}, {"7", "-3"}, {"8", "0"}, {"9", "0"}, {"10", "0"}}};
    const SResults stored = Confirmed(entries);
    EXPECT_EQ(stored, ScalResults(GetParam(), entries));
    const auto expect = [&](CDialogRobot& dialog) {
        EXPECT_EQ(dialog.Text(2051), CString("L"));
        EXPECT_EQ(dialog.Text(2052), CString("7F"));
        EXPECT_EQ(dialog.Text(2053), CString("(0 - 127F)"));
        EXPECT_TRUE(dialog.Checked(3361));
        EXPECT_EQ(dialog.Text(3362), CString(constant.name));
        EXPECT_EQ(dialog.Text(3363), CString("1"));
        EXPECT_EQ(dialog.Text(3364), CString(constant.range));
        EXPECT_EQ(dialog.Text(3365), CString("WR"));
        EXPECT_EQ(dialog.Text(3366), CString("5"));
        EXPECT_EQ(dialog.Text(3367), CString("(0 - 255)"));
        EXPECT_EQ(dialog.Text(3368), CString("WL"));
        EXPECT_EQ(dialog.Text(3369), CString("7"));
        EXPECT_EQ(dialog.Text(3370), CString(GetParam().width == 1 ? "(0 - 123)" : "(0 - 119)"));
        EXPECT_EQ(dialog.Text(3372), CString(GetParam().width == 1 ? "(2 - 60)" : "(2 - 30)"));
        ExpectRestored(dialog, "6", {{"-5", "1"}, {"6", "2"}, {"7", "-3"}, {"8", "0"}, {"9", "0"}, {"10", "0"}});
        EXPECT_FALSE(dialog.Checked(2061));
    };
    Leave(expect);
    Confirm(expect);
    EXPECT_EQ(ReadResults(m_wizard), stored);
}

TEST_P(CScalRestoreTest, RestoresTheTableAlone)
{
    const SResults stored = Confirmed({.onlyDataTable = true});
    Confirm([](CDialogRobot& dialog) {
        EXPECT_TRUE(dialog.Checked(2061));
        EXPECT_EQ(dialog.Text(2051), CString("X"));
        for (const UINT edit : {2052u, 3363u, 3366u})
            EXPECT_EQ(dialog.Text(edit), CString()) << edit;
        for (const UINT list : {3362u, 3365u})
            EXPECT_EQ(dialog.Text(list), CString("DT")) << list;
        EXPECT_EQ(dialog.Text(3369), CString("100"));
        ExpectRestored(dialog, "3", {{"-100", "5"}, {"0", "-7"}, {"250", "32767"}});
    });
    EXPECT_EQ(ReadResults(m_wizard), stored);
}

TEST_P(CScalRestoreTest, RestoresCellsAsTheyWereMeant)
{
    struct SText
    {
        const char* typed;
        const char* shown;
    };
    const std::vector<SText> kWhole = {{"-032768", "-32768"}, {"-", "0"}, {" 5 ", "5"}, {"32767", "32767"}};
    const std::vector<SText> kReals = {{"-3.402822E38", "-3.402822e+38"},
                                       {"-1000000", "-1000000"},
                                       {"-0", "0"},
                                       {"1.175494e-38", "1.175494e-38"},
                                       {"1e-5", "1e-5"},
                                       {".1", "0.1"},
                                       {"1.50", "1.5"},
                                       {"1E6", "1000000"},
                                       {"12345670", "12345670"}};
    const auto& texts = GetParam().IsReal() ? kReals : kWhole;
    SScalEntries entries = {.points = {}};
    GridTexts shown;
    for (const auto& [typed, text] : texts)
    {
        entries.points.push_back({typed, typed});
        shown.push_back({text, text});
    }
    Confirm([&](CDialogRobot& dialog) { FillIn(dialog, entries); });
    const SResults stored = ReadResults(m_wizard);
    Confirm([&](CDialogRobot& dialog) { ExpectRestored(dialog, std::to_string(texts.size()).c_str(), shown); });
    EXPECT_EQ(ReadResults(m_wizard), stored);
}

TEST_P(CScalRestoreTest, OpensAfreshEachTime)
{
    Leave([](CDialogRobot& dialog) {
        FillIn(dialog, {.differential = true, .points = Points(8)});
        dialog.Focus(kGridCells);
        TypeHere(dialog, "7");
    });
    Leave([](CDialogRobot& dialog) {
        ExpectRestored(dialog, "", {{"", ""}});
        EXPECT_FALSE(dialog.Checked(3361));
        EXPECT_EQ(dialog.Text(3369), CString());
    });
}

// The same masks and devices list the same items again, whatever is stored.
TEST_P(CScalRestoreTest, ListsTheSameItemsWhenReopened)
{
    AddAllWords();
    ULONGLONG masks[3] = {0x840007, 0x860000, 0x10800000};
    m_permitted = masks;
    std::vector<std::vector<CString>> items;
    const auto list = [&](CDialogRobot& dialog) {
        for (const UINT id : {2051u, 3362u, 3365u, 3368u})
            items.push_back(dialog.Items(id));
    };
    Confirm([&](CDialogRobot& dialog) {
        FillIn(dialog, {});
        list(dialog);
    });
    Confirm(list);
    ASSERT_EQ(items.size(), 8u);
    for (size_t i = 0; i < 4; ++i)
        EXPECT_EQ(items[i], items[i + 4]);
    EXPECT_EQ(ReadResults(m_wizard), ScalResults(GetParam(), {}));
}

// A device that the host no longer permits or the PLC no longer has: the first one, or DT, with the number as it was.
TEST_P(CScalRestoreTest, FallsBackToTheRegistersWhenADeviceIsNoLongerListed)
{
    Confirmed(
        {.inputDevice = "WR", .input = "1", .outputDevice = "WR", .output = "2", .startDevice = "WR", .start = "3"});
    ULONGLONG masks[3] = {0xA00000, 0xA00000, 0x800000};
    m_permitted = masks;
    Leave([](CDialogRobot& dialog) {
        for (const UINT list : {3362u, 3365u, 3368u})
            EXPECT_EQ(dialog.Text(list), CString("DT")) << list;
        for (const UINT edit : {3363u, 3366u, 3369u}) // the numbers were of another device
            EXPECT_EQ(dialog.Text(edit), CString()) << edit;
    });
}

TEST_P(CScalRestoreTest, RestoresTheDifferentialOfTheSecondContact)
{
    const struct
    {
        std::vector<SContactRow> contacts;
        bool differential;
    } kLists[] = {{{}, false},
                  {{{2, 1, 5}}, false},
                  {{{2, 1, 5}, {17, -1, 0}}, true},
                  {{{2, 1, 5}, {2, 1, 6}}, false},
                  {{{17, -1, 0}}, false},
                  {{{2, 1, 5}, {2, 1, 6}, {17, -1, 0}}, false},
                  {{{2, 1, 5}, {17, -1, 0}, {2, 1, 6}}, true}};
    for (const auto& [contacts, differential] : kLists)
    {
        WriteResults(m_wizard, {.contacts = contacts});
        Leave([&on = differential](CDialogRobot& dialog) { EXPECT_EQ(dialog.Checked(3361), on); });
    }
}

// ---- Lists of hosts -------------------------------------------------------------------------------------------------

TEST_P(CScalRestoreTest, RestoresOfOddListsWhatThereIs)
{
    const struct
    {
        int n;
        std::vector<int> values;
        const char* count;
        GridTexts points;
    } kTables[] = {
        {2, {1, 2, 3, 4}, "2", {{"1", "3"}, {"2", "4"}}},
        {2, {1, 2, 3, 4, 5, 6}, "2", {{"1", "3"}, {"2", "4"}}},
        {3, {1, 2, 3, 4, 5}, "3", {{"1", "4"}, {"2", "5"}, {"3", ""}}}, // the last Y is missing
        {3, {1, 2, 3}, "3", {{"1", ""}, {"2", ""}, {"3", ""}}},
        {3, {1, 2}, "3", {{"1", ""}, {"2", ""}}},
        {3, {}, "3", {{"", ""}}},
        {1, {5, 6}, "1", {{"5", "6"}}},
        {0, {1, 2}, "0", {{"", ""}}},
        {-1, {1, 2, 3, 4}, "-1", {{"", ""}}},
        {INT_MIN, {1, 2, 3, 4}, "-2147483648", {{"", ""}}},
        {100, {1, 2, 3, 4}, "100", {{"1", ""}, {"2", ""}, {"3", ""}, {"4", ""}}},
        {40000, {1, 2}, "40000", {{"1", ""}, {"2", ""}}},
        {INT_MAX, {1, 2}, "2147483647", {{"1", ""}, {"2", ""}}},
        {INT_MAX - 1, {1, 2}, "2147483646", {{"1", ""}, {"2", ""}}},
    };
    for (const auto& [n, values, count, points] : kTables)
    {
        SCOPED_TRACE(testing::Message() << "n " << n << ", " << values.size() << " values");
        WriteTable(n, values);
        const SResults before = ReadResults(m_wizard);
        Leave([&count = count, &points = points](CDialogRobot& dialog) {
            ExpectRestored(dialog, count, points);
            PressCtrl(dialog, VK_END);
            dialog.Focus(3371);
            dialog.Focus(3369);
        });
        EXPECT_EQ(ReadResults(m_wizard), before);
    }
}

TEST_P(CScalRestoreTest, RestoresATableOfItsOwnDeviceAndFormatOnly)
{
    WriteTable(2, {1, 2, 3, 4}, kWR);
    Leave([](CDialogRobot& dialog) {
        EXPECT_EQ(dialog.Text(3368), CString("WR"));
        ExpectRestored(dialog, "2", {{"1", "3"}, {"2", "4"}});
    });
    WriteTable(2, {1, 2, 3, 4});
    SResults other = ReadResults(m_wizard);
    other.operands.at(1) = {kWR, 100}; // the operand says one device, the records another
    WriteResults(m_wizard, other);
    Leave([](CDialogRobot& dialog) { ExpectRestored(dialog, "", {{"", ""}}); });
    other.operands = {};
    WriteResults(m_wizard, other);
    Leave([](CDialogRobot& dialog) { EXPECT_EQ(dialog.Text(3369), CString()); });
    other.operands = {{9, 10}};
    WriteResults(m_wizard, other);
    Leave([](CDialogRobot& dialog) { EXPECT_EQ(dialog.Text(3363), CString("10")); });

    WriteTable(2, {1, 2, 3, 4}); // of another kind of values
    other = ReadResults(m_wizard);
    for (size_t i = 1; i < other.data.size(); ++i)
        other.data[i].format = 2 - GetParam().format;
    WriteResults(m_wizard, other);
    Leave([](CDialogRobot& dialog) { ExpectRestored(dialog, "2", {{"", ""}}); });
}

TEST_P(CScalRestoreTest, RestoresNoMoreRowsThanTheRegistersHold)
{
    const int width = GetParam().width;
    Confirmed({.points = Points(9)});
    SetDeviceRange(m_wizard, kDT, 0, 100 + 2 * width * 4);
    Leave([](CDialogRobot& dialog) {
        EXPECT_EQ(TextsOf(CellsOf(dialog)).size(), 4u);
        EXPECT_EQ(dialog.Text(3371), CString("9"));
        EXPECT_EQ(dialog.Text(3372), CString("(2 - 4)"));
        dialog.Type(3371, "4");
    });
}

TEST_P(CScalRestoreTest, ShowsConstantsThatHostsHaveStored)
{
    struct SStored
    {
        SOperandRow operand;
        const char* device;
        const char* text;
    };
    const SStored kWhole[] = {{{11, -5}, "K", "-5"},       {{12, 0xFF}, "H", "FF"},
                              {{12, -1}, "H", "FFFFFFFF"}, {{11, INT_MIN}, "K", "-2147483648"},
                              {{-1, -1}, "DT", ""},        {{9, -3}, "DT", "-3"}};
    const SStored kReals[] = {{{20, 0x3F800000}, "f", "1"},
                              {{20, 0x7FC00000}, "f", ""}, // no number
                              {{20, 0x7F800000}, "f", "3.402822e+38"},
                              {{20, static_cast<int>(0xFF800000)}, "f", "-3.402822e+38"},
                              {{20, 0x7F7FFFFF}, "f", "3.402822e+38"},
                              {{20, 1}, "f", "0"},
                              {{20, 0x00800000}, "f", "1.175494e-38"},
                              {{-1, -1}, "DT", ""}};
    const auto expect = [this](const SStored& one) {
        WriteResults(m_wizard, {.operands = {one.operand, {9, 100}, {9, 20}}});
        Leave([&](CDialogRobot& dialog) {
            EXPECT_EQ(dialog.Text(3362), CString(one.device));
            EXPECT_EQ(dialog.Text(3363), CString(one.text)) << one.operand;
        });
    };
    if (GetParam().IsReal())
        for (const SStored& one : kReals)
            expect(one);
    else
        for (const SStored& one : kWhole)
            expect(one);
}

// ---- Reals there and back -------------------------------------------------------------------------------------------

TEST_P(CScalRestoreTest, ShowsBitsThatNoTextGivesAsNearAsItCan)
{
    if (!GetParam().IsReal())
        return;
    const std::vector<int> bits = {
        static_cast<int>(0xFF800000), static_cast<int>(0x80000001), 0x00000001, 0x00800000, 0x3DCCCCCE, 0x7F7FFFFF};
    const char* const shown[] = {"-3.402822e+38", "0", "0", "1.175494e-38", "0.1", "3.402822e+38"};
    SResults results = {.operands = {{9, 10}, {9, 100}, {9, 20}}, .data = {{9, 100, 0, 0, 6}}};
    for (int column = 0; column < 2; ++column)
        for (const int value : bits)
            results.data.push_back({9, 0, 2, 2, value});
    WriteResults(m_wizard, results);
    GridTexts expected;
    for (const char* text : shown)
        expected.push_back({text, text});
    Leave([&](CDialogRobot& dialog) { ExpectRestored(dialog, "6", expected); });
}
