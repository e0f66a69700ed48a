// What the dialog of F168 shows of an earlier run: each list position by its rule, and every stored control code.
#include "tests/dialogs/pulse/Spd1Test.h"
#include "tests/support/Sampled.h"

#include <map>

namespace
{

struct SShown
{
    const char* device = "X";
    const char* contact = "";
    const char* start = "";
    int output = 0;
    int width = 0;
    int mode = 0;
    const char* initial = "";
    const char* maximum = "";
    const char* time = "";
    const char* target = "";
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
      .operands = {{9, 100}, {11, 1}},
      .data = {{9, 100, 0, 1, 0x113},
               {9, 101, 0, 0, 500},
               {9, 102, 0, 0, 5000},
               {9, 103, 0, 0, 300},
               {9, 104, 1, 0, -7},
               {9, 106, 0, 0, 0}}},
     {"R", "10A", "100", 1, 1, 5, "500", "5000", "300", "-7"}},
    {"positions, not addresses or formats",
     {.contacts = {{3, 2, 31}, {2, 1, 170}},
      .operands = {{9, 1}, {12, 1}, {9, 7}},
      .data = {{9, 9, 1, 0, 3}, {9, 9, 1, 1, 1}, {9, 9, 2, 2, 2}, {9, 9, 0, 0, 3}, {9, 9, 0, 0, 4}, {9, 9, 0, 0, 5}}},
     {"Y", "1F", "1", 1, 0, 2, "1", "2", "3", "4"}},
    {"numbers longer than what can be typed",
     {.contacts = {{2, 4, 123456}},
      .operands = {{9, 2147483647}},
      .data = {{9, 0, 0, 0, 0},
               {9, 0, 0, 0, -2147483647 - 1},
               {9, 0, 0, 0, 123456},
               {9, 0, 0, 0, 2147483647},
               {9, 0, 0, 0, -2147483647 - 1}}},
     {"T", "123456", "2147483647", 0, 0, 0, "-2147483648", "123456", "2147483647", "-2147483648"}},

    {"a contact on a device that the controller does not have", {.contacts = {{2, 17, 170}}}, {"X", "10A"}},
    {"a contact on a device that does not exist", {.contacts = {{2, 999, 170}}}, {"X", "170"}},
    {"a contact on a word device", {.contacts = {{2, 65, 170}}}, {"X", "170"}},
    {"a bit number without notation", {.contacts = {{2, 1, -5}}}, {"R", "-5"}},
    {"a bit number past the notation", {.contacts = {{2, 1, 16000}}}, {"R", "16000"}},

    {"a start in another device", {.operands = {{10, 100}, {11, 1}}}, {.output = 1}},
    {"a start as a constant", {.operands = {{11, 100}, {11, 1}}}, {.output = 1}},
    {"a start in the special registers", {.operands = {{20009, 100}, {12, 0}}}, {}},
    {"an output in a register", {.operands = {{9, 3}, {9, 1}}}, {.start = "3"}},
    {"an output as a real", {.operands = {{9, 3}, {20, 1}}}, {.start = "3"}},
    {"an output past the list", {.operands = {{9, 3}, {11, 2}}}, {.start = "3"}},
    {"a negative output", {.operands = {{9, 3}, {12, -1}}}, {.start = "3"}},

    {"records of other devices",
     {.data = {{10, 0, 0, 1, 0x113}, {20009, 1, 0, 0, 500}, {0, 2, 0, 0, 500}, {-1, 3, 0, 0, 300}, {11, 4, 0, 0, 300}}},
     {}},
    {"one record of another device",
     {.data = {{9, 0, 0, 1, 0x103}, {9, 1, 0, 0, 41}, {10, 2, 0, 0, 500}, {9, 3, 0, 0, 31}, {9, 4, 0, 0, 7}}},
     {.width = 1, .mode = 2, .initial = "41", .time = "31", .target = "7"}},
    {"a control code alone", {.data = {{9, 0, 0, 1, 0x112}}}, {.width = 1, .mode = 4}},
};

void ExpectShown(CDialogRobot& dialog, const SShown& shown)
{
    EXPECT_EQ(dialog.Text(2051), CString(shown.device));
    EXPECT_EQ(dialog.Text(2052), CString(shown.contact));
    EXPECT_EQ(dialog.Text(2101), CString(shown.start));
    EXPECT_EQ(dialog.Selection(2103), shown.output);
    EXPECT_EQ(dialog.Selection(2104), shown.width);
    EXPECT_EQ(dialog.Selection(2105), shown.mode);
    EXPECT_EQ(dialog.Text(2106), CString(shown.initial));
    EXPECT_EQ(dialog.Text(2107), CString(shown.maximum));
    EXPECT_EQ(dialog.Text(2108), CString(shown.time));
    if (dialog.Exists(2110))
    {
        EXPECT_EQ(dialog.Text(2110), CString(shown.target));
    }
    EXPECT_EQ(dialog.Text(2109), CString(shown.width == 0 ? "(40 - 6000)" : "(40 - 9500)"));
}

TEST_F(CSpd1Test, RestoresEachListPositionByItsRule)
{
    for (ESpd1Variant variant : kVariants)
    {
        for (const SRestoring& restoring : kRestorings)
        {
            SCOPED_TRACE(testing::Message() << variant << ", " << restoring.what);
            Remember(variant, restoring.stored);
            Leave(variant, [&](CDialogRobot& dialog) { ExpectShown(dialog, restoring.shown); });
            EXPECT_EQ(ReadResults(m_wizard), restoring.stored) << "Back keeps the lists";
        }
    }
}

TEST_F(CSpd1Test, BackKeepsWhatWasConfirmedBefore)
{
    for (ESpd1Variant variant : kVariants)
    {
        Confirm(variant, [](CDialogRobot& dialog) { FillIn(dialog, {}); });
        const SResults confirmed = ReadResults(m_wizard);
        Leave(variant, [](CDialogRobot& dialog) {
            FillIn(dialog,
                   {.device = kL, .contact = "1", .start = "2", .initial = "50", .output = 1, .onlyDataTable = true});
        });
        EXPECT_EQ(ReadResults(m_wizard), confirmed);
        EXPECT_EQ(m_wizard.IsOnlyDataTable(), 0);
        Leave(variant, [](CDialogRobot& dialog) {
            ExpectShown(dialog, {"R", "10A", "100", 0, 0, 0, "500", "5000", "300", "100000"});
        });
    }
}

// ---- Every control code ---------------------------------------------------------------------------------------------

int ExpectedWidth(unsigned code) { return (code >> 8 & 0xF) == 1 ? 1 : 0; }

// The codes of both variants, in either.
int ExpectedMode(unsigned code)
{
    static const std::map<unsigned, int> positions = {{0x00, 0}, {0x20, 0}, {0x02, 1}, {0x22, 1}, {0x03, 2}, {0x23, 2},
                                                      {0x10, 3}, {0x24, 3}, {0x12, 4}, {0x26, 4}, {0x13, 5}, {0x27, 5}};
    const auto found = positions.find(code & 0xFF);
    return found != positions.end() ? found->second : 0;
}

class CSpd1StoredCodeTest : public CSpd1Test, public testing::WithParamInterface<ESpd1Variant>
{
protected:
    void Store(unsigned code)
    {
        m_wizard.RemoveAllDataInfo();
        m_wizard.AddDataInfo(9, 100, 0, 1, static_cast<LONG>(code));
    }
};

INSTANTIATE_TEST_SUITE_P(Variants, CSpd1StoredCodeTest, testing::ValuesIn(kVariants));

// Where one opening takes long, a part of the codes stands for all: an odd step goes through all the low bytes, and
// through all the high ones.
#if defined(__SANITIZE_ADDRESS__)
constexpr unsigned kWholeStep = 7;
#else
constexpr unsigned kWholeStep = 1;
#endif
const unsigned kStep = IsThorough() ? kWholeStep : 251;

// One dialog goes through its opening again for every code.
TEST_P(CSpd1StoredCodeTest, IsRestoredFromAll16Bits)
{
    Remember(GetParam(), {});
    Leave(GetParam(), [this](CDialogRobot& dialog) {
        for (unsigned code = 0; code <= 0xFFFF; code += kStep)
        {
            Store(code);
            dialog.Dialog()->SendMessage(WM_INITDIALOG);
            ASSERT_EQ(dialog.Selection(IDC_SPD1_WIDTH), ExpectedWidth(code)) << std::hex << "code " << code;
            ASSERT_EQ(dialog.Selection(IDC_SPD1_MODE), ExpectedMode(code)) << std::hex << "code " << code;
        }
    });
}

TEST_P(CSpd1StoredCodeTest, IsRestoredWhateverTheUpperHalfHolds)
{
    Remember(GetParam(), {});
    for (unsigned code : {0x0213u, 0x0F12u, 0x1113u, 0xF127u, 0x10010u, 0x80000113u, 0xFFFFFFFFu, 0x7FFF0126u, 0x20u})
    {
        Store(code);
        Leave(GetParam(), [&](CDialogRobot& dialog) {
            EXPECT_EQ(dialog.Selection(IDC_SPD1_WIDTH), ExpectedWidth(code)) << std::hex << "code " << code;
            EXPECT_EQ(dialog.Selection(IDC_SPD1_MODE), ExpectedMode(code)) << std::hex << "code " << code;
        });
    }
}

TEST_P(CSpd1StoredCodeTest, IsRestoredFromEachCodeOfTheOtherVariant)
{
    struct
    {
        unsigned code;
        const char* trapezoidal;
        const char* homeReturn;
    } const kCodes[] = {
        {0x00, "Incremental  Does not use directional output", "Homing mode1  No directional output"},
        {0x20, "Incremental  Does not use directional output", "Homing mode1  No directional output"},
        {0x02, "Incremental  forward off/reverse on", "Homing mode1  directional output off"},
        {0x22, "Incremental  forward off/reverse on", "Homing mode1  directional output off"},
        {0x03, "Incremental  forward on/reverse off", "Homing mode1  directional output on"},
        {0x23, "Incremental  forward on/reverse off", "Homing mode1  directional output on"},
        {0x10, "absolute  Does not use directional output", "Homing mode2  No directional output"},
        {0x24, "absolute  Does not use directional output", "Homing mode2  No directional output"},
        {0x12, "absolute  forward off/reverse on", "Homing mode2  output off"},
        {0x26, "absolute  forward off/reverse on", "Homing mode2  output off"},
        {0x13, "absolute  forward on/reverse off", "Homing mode2  output on"},
        {0x27, "absolute  forward on/reverse off", "Homing mode2  output on"},
        {0x25, "Incremental  Does not use directional output", "Homing mode1  No directional output"},
        {0x01, "Incremental  Does not use directional output", "Homing mode1  No directional output"},
    };
    Remember(GetParam(), {});
    for (const auto& [code, trapezoidal, homeReturn] : kCodes)
    {
        Store(code);
        Leave(GetParam(), [&](CDialogRobot& dialog) {
            EXPECT_EQ(dialog.Text(IDC_SPD1_MODE), CString(GetParam() == kTrapezoidal ? trapezoidal : homeReturn));
        });
    }
}

} // namespace
