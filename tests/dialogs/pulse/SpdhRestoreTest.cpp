// What the dialog of F171 shows of an earlier run: each list position by its rule, and every stored control code.
#include "tests/dialogs/pulse/SpdhTest.h"

#include <map>

namespace
{

struct SShown
{
    const char* device = "X";
    const char* contact = "";
    const char* start = "";
    const char* initial = "";
    const char* maximum = "";
    const char* time = "";
    const char* last = "";
};

struct SRestoring
{
    const char* what;
    SResults stored;
    SShown shown;
};

const SRestoring kRestorings[] = {
    {"nothing", {}, {}},
    {"everything",
     {.contacts = {{2, 1, 170}},
      .operands = {{9, 100}, {11, 4}},
      .data = {{9, 100, 1, 1, 0x11213},
               {9, 102, 1, 0, 500},
               {9, 104, 1, 0, 5000},
               {9, 106, 1, 0, 300},
               {9, 108, 1, 0, -7},
               {9, 110, 1, 0, 0}}},
     {"R", "10A", "100", "500", "5000", "300", "-7"}},
    {"positions, not addresses or formats",
     {.contacts = {{3, 2, 31}, {2, 1, 170}},
      .operands = {{9, 1}, {12, 1}, {9, 7}},
      .data = {{9, 9, 0, 0, 3}, {9, 9, 0, 1, 1}, {9, 9, 2, 2, 2}, {9, 9, 0, 0, 3}, {9, 9, 0, 0, 4}, {9, 9, 0, 0, 5}}},
     {"Y", "1F", "1", "1", "2", "3", "4"}},
    {"numbers longer than what can be typed",
     {.contacts = {{2, 4, 123456}},
      .operands = {{9, 2147483647}},
      .data = {{9, 0, 1, 1, 0},
               {9, 0, 1, 0, -2147483647 - 1},
               {9, 0, 1, 0, 1234567},
               {9, 0, 1, 0, 2147483647},
               {9, 0, 1, 0, -2147483647 - 1}}},
     {"T", "123456", "2147483647", "-2147483648", "1234567", "2147483647", "-2147483648"}},
    {"a contact on a device that the controller does not have", {.contacts = {{2, 17, 170}}}, {"X", "10A"}},
    {"a start in another device", {.operands = {{10, 100}, {11, 1}}}, {}},
    {"a start as a constant", {.operands = {{11, 100}, {11, 1}}}, {}},
    {"records of other devices",
     {.data = {{10, 0, 1, 1, 0x113}, {20009, 1, 1, 0, 500}, {0, 2, 1, 0, 500}, {-1, 3, 1, 0, 300}, {11, 4, 1, 0, 3}}},
     {}},
    {"one record of another device",
     {.data = {{9, 0, 1, 1, 0}, {9, 1, 1, 0, 41}, {10, 2, 1, 0, 500}, {9, 3, 1, 0, 31}, {9, 4, 1, 0, 7}}},
     {.initial = "41", .time = "31", .last = "7"}},
    {"a control code alone", {.data = {{9, 0, 1, 1, 0x113}}}, {}},
};

TEST_F(CSpdhTest, RestoresEachListPositionByItsRule)
{
    for (ESpdhVariant variant : kSpdhVariants)
    {
        for (const SRestoring& restoring : kRestorings)
        {
            SCOPED_TRACE(testing::Message() << variant << ", " << restoring.what);
            WriteResults(m_wizard, restoring.stored);
            Leave(variant, [&](CDialogRobot& dialog) {
                const SShown& shown = restoring.shown;
                EXPECT_EQ(dialog.Text(2051), CString(shown.device));
                EXPECT_EQ(dialog.Text(2052), CString(shown.contact));
                EXPECT_EQ(dialog.Text(2251), CString(shown.start));
                EXPECT_EQ(dialog.Text(2261), CString(shown.initial));
                EXPECT_EQ(dialog.Text(2262), CString(shown.maximum));
                EXPECT_EQ(dialog.Text(2259), CString(shown.time));
                EXPECT_EQ(dialog.Text(SpdhLastEdit(variant)), CString(shown.last));
            });
            EXPECT_EQ(ReadResults(m_wizard), restoring.stored) << "Back keeps the lists";
        }
    }
}

TEST_F(CSpdhTest, ShowsAnyFlagOfTheHostAsChecked)
{
    m_wizard.SetOnlyDataTable(-7);
    Leave(kSpdhTrapezoidal, [](CDialogRobot& dialog) { EXPECT_TRUE(dialog.Checked(2061)); });
    EXPECT_EQ(m_wizard.IsOnlyDataTable(), -7);
}

// ---- Every control code ---------------------------------------------------------------------------------------------

int Position(unsigned nibble, unsigned items) { return nibble < items ? static_cast<int>(nibble) : 0; }

// The codes of both variants, in either; a list of six items takes no more.
int ModePosition(ESpdhVariant variant, unsigned code)
{
    static const std::map<unsigned, int> positions = {
        {0x00, 0},  {0x20, 0},  {0x02, 1},  {0x21, 1},  {0x03, 2},  {0x22, 2}, {0x10, 3}, {0x23, 3},
        {0x12, 4},  {0x24, 4},  {0x13, 5},  {0x25, 5},  {0x26, 6},  {0x27, 7}, {0x30, 8}, {0x31, 9},
        {0x32, 10}, {0x33, 11}, {0x34, 12}, {0x35, 13}, {0x36, 14}, {0x37, 15}};
    const auto found = positions.find(code & 0xFF);
    const int position = found != positions.end() ? found->second : 0;
    return variant == kSpdhTrapezoidal && position > 5 ? 0 : position;
}

class CSpdhStoredCodeTest : public CSpdhTest, public testing::WithParamInterface<ESpdhVariant>
{
protected:
    /// The dialog goes through its opening again with another code.
    void ExpectRestored(CDialogRobot& dialog, unsigned code)
    {
        SCOPED_TRACE(testing::Message() << "code " << std::hex << code);
        m_wizard.RemoveAllDataInfo();
        m_wizard.AddDataInfo(9, 100, 1, 1, static_cast<LONG>(code));
        dialog.Dialog()->SendMessage(WM_INITDIALOG);
        EXPECT_EQ(dialog.Selection(2254), Position(code >> 16 & 0xF, 2));
        EXPECT_EQ(dialog.Selection(2255), Position(code >> 12 & 0xF, 2));
        EXPECT_EQ(dialog.Selection(2256), Position(code >> 8 & 0xF, 3));
        EXPECT_EQ(dialog.Selection(2257), ModePosition(GetParam(), code));
        const char* kSpeeds[] = {"(1 - 9800)", "(48 - 100000)", "(191 - 100000)"};
        EXPECT_EQ(dialog.Text(2258), CString(kSpeeds[Position(code >> 8 & 0xF, 3)]));
        EXPECT_EQ(dialog.Text(2264), CString((code >> 16 & 0xF) == 1 ? "(60 - 32767)" : "(30 - 32767)"));
    }
};

INSTANTIATE_TEST_SUITE_P(Variants, CSpdhStoredCodeTest, testing::ValuesIn(kSpdhVariants), SpdhVariantName);

TEST_P(CSpdhStoredCodeTest, IsRestoredFieldByField)
{
    Leave(GetParam(), [this](CDialogRobot& dialog) {
        for (unsigned mode = 0; mode <= 0xFF; ++mode)
            ExpectRestored(dialog, mode);
        for (unsigned shift : {8u, 12u, 16u})
        {
            for (unsigned field = 0; field <= 0xF; ++field)
                ExpectRestored(dialog, field << shift);
        }
    });
}

TEST_P(CSpdhStoredCodeTest, IsRestoredWhateverElseItHolds)
{
    Leave(GetParam(), [this](CDialogRobot& dialog) {
        for (unsigned code : {0x11213u, 0xFFF11213u, 0x80000137u, 0xFFFFFFFFu, 0x7FF20037u, 0x00100000u, 0x11336u})
            ExpectRestored(dialog, code);
        unsigned code = 1;
        for (int i = 0; i < 100; ++i)
        {
            code = code * 1664525u + 1013904223u;
            ExpectRestored(dialog, code & 0xFFF13337u); // fields that often name an item
        }
    });
}

TEST_P(CSpdhStoredCodeTest, CountsForNothingInAnotherDevice)
{
    for (const short device : std::initializer_list<short>{10, 11, 0, 20009, -1})
    {
        WriteResults(m_wizard, {.data = {{device, 100, 1, 1, 0x11213}}});
        Leave(GetParam(), [](CDialogRobot& dialog) {
            for (UINT combo : {2254, 2255, 2256, 2257})
                EXPECT_EQ(dialog.Selection(combo), 0) << "of list " << combo;
        });
    }
}

} // namespace
