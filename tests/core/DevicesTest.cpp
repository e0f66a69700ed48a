// The device table, its walk and the device ranges.
#include "tests/core/FunWizardTest.h"

#include <climits>
#include <map>
#include <random>

#include "core/Devices.h"

namespace
{

struct SDeviceRow
{
    const char* name;
    short code;
    unsigned char bitKind;
    int options; ///< the option bits without which the row is not there
};

constexpr SDeviceRow kRows[] = {
    {"X", 3, 1, 0},         {"Y", 2, 1, 0},   {"R", 1, 1, 0},         {"Sp.R", 20001, 1, 0}, {"T", 4, 2, 0},
    {"C", 5, 2, 0},         {"L", 0, 1, 0},   {"E", 18, 2, 0},        {"P", 17, 1, 0},       {"WX", 67, 0, 0},
    {"WY", 66, 0, 0},       {"WR", 65, 0, 0}, {"Sp.WR", 20065, 0, 0}, {"WL", 64, 0, 0},      {"DT", 9, 0, 0},
    {"Sp.DT", 20009, 0, 0}, {"SV", 6, 0, 0},  {"EV", 7, 0, 0},        {"FL", 10, 0, 0},      {"LD", 8, 0, 0},
    {"INDEX", 15, 0, 0},    {"K", 11, 0, 1},  {"H", 12, 0, 1},        {"f", 20, 0, 3},
};
constexpr int kRowCount = static_cast<int>(std::size(kRows));
static_assert(kRowCount == 24);

struct SWalkStep
{
    int result;
    short kind;
    short code;
    int bitKind;

    bool operator==(const SWalkStep& other) const
    {
        return result == other.result && kind == other.kind && code == other.code && bitKind == other.bitKind;
    }
};

void PrintTo(const SWalkStep& step, std::ostream* out)
{
    *out << "result " << step.result << ", kind " << step.kind << ", code " << step.code << ", bit kind "
         << step.bitKind;
}

constexpr unsigned char kUntouched = 77;

SWalkStep Step(const CFunWizard& wizard, int index, int options)
{
    SWalkStep step = {5, 55, 555, 0};
    unsigned char bitKind = kUntouched;
    step.result = wizard.GetSeqDevInfo(index, step.kind, step.code, bitKind, static_cast<unsigned char>(options));
    step.bitKind = bitKind;
    return step;
}

constexpr SWalkStep kEnd = {-1, -1, -1, kUntouched};

} // namespace

TEST(DeviceWalk, GivesEveryRowForEveryOption)
{
    for (const bool present : {false, true})
    {
        CFunWizard wizard;
        for (const SDeviceRow& row : kRows)
        {
            if (present)
                wizard.SetDevRange(-1, row.code, 0, 1);
        }
        for (int options = 0; options < 256; ++options)
            for (int index = 0; index < kRowCount; ++index)
            {
                const SDeviceRow& row = kRows[index];
                const bool constant = row.options != 0;
                const SWalkStep found = {constant || present ? 0 : 1, -1, row.code, row.bitKind};
                const bool there = (options & row.options) == row.options;
                EXPECT_EQ(Step(wizard, index, options), there ? found : kEnd) << row.name << ", options " << options;
            }
    }
}

TEST(DeviceWalk, EndsOutsideTheTable)
{
    CFunWizard wizard;
    for (const int index : {-1, 24, 25, 100, INT_MAX, INT_MIN})
        for (const int options : {0, 1, 2, 3})
            EXPECT_EQ(Step(wizard, index, options), kEnd) << index;
}

TEST(DeviceWalk, AsksForOneDeviceAtATime)
{
    for (int present = 0; present < kRowCount; ++present)
    {
        CFunWizard wizard;
        wizard.SetDevRange(-1, kRows[present].code, 0, 1);
        for (int index = 0; index <= 20; ++index)
            EXPECT_EQ(Step(wizard, index, 3).result, index == present ? 0 : 1) << kRows[index].name;
    }
}

TEST(DeviceWalk, LooksUpRangesOfKindMinusOneOnly)
{
    CFunWizard wizard;
    for (const SDeviceRow& row : kRows)
    {
        wizard.SetDevRange(0, row.code, 0, 1);
        wizard.SetDevRange(row.code, -1, 0, 1);
        wizard.SetDevRange(-2, row.code, 0, 1);
    }
    for (int index = 0; index <= 20; ++index)
        EXPECT_EQ(Step(wizard, index, 0).result, 1) << kRows[index].name;
}

TEST(DeviceWalk, CanBeWalkedToItsEnd)
{
    CFunWizard wizard;
    wizard.SetDevRange(-1, 9, 0, 100);
    wizard.SetDevRange(-1, 0, 0, 100);
    const auto walk = [&wizard](int options) {
        std::vector<short> codes;
        for (int index = 0;; ++index)
        {
            const SWalkStep step = Step(wizard, index, options);
            if (step.result == -1)
                return codes;
            if (step.result == 0)
                codes.push_back(step.code);
        }
    };
    EXPECT_EQ(walk(0), std::vector<short>({0, 9}));
    EXPECT_EQ(walk(1), std::vector<short>({0, 9, 11, 12}));
    EXPECT_EQ(walk(2), std::vector<short>({0, 9}));
    EXPECT_EQ(walk(3), std::vector<short>({0, 9, 11, 12, 20}));
}

TEST(DeviceTable, MatchesTheWalk)
{
    for (int index = 0; index < kRowCount; ++index)
    {
        const SDeviceKind* device = DeviceAt(index);
        ASSERT_NE(device, nullptr);
        EXPECT_EQ(device->code, kRows[index].code);
        EXPECT_EQ(device->bitKind, kRows[index].bitKind);
        EXPECT_EQ(DeviceIndex(device->code), index);
    }
    for (const int index : {-1, 24, INT_MAX, INT_MIN})
        EXPECT_EQ(DeviceAt(index), nullptr);
    for (const int code : {-1, 13, 14, 16, 19, 21, 63, 68, 20000, 20002, 20064})
        EXPECT_EQ(DeviceIndex(static_cast<short>(code)), -1) << code;
}

TEST(DeviceTable, MapsSpecialAreasOnly)
{
    const std::map<int, int> special = {{20001, 1}, {20009, 9}, {20065, 65}};
    for (int code = SHRT_MIN; code <= SHRT_MAX; ++code)
    {
        const auto found = special.find(code);
        ASSERT_EQ(ProgramDeviceCode(static_cast<short>(code)), found != special.end() ? found->second : code);
    }
}

TEST(DeviceRanges, AreNotThereBeforeTheyAreSet)
{
    CFunWizard wizard;
    int low = 71;
    int high = 72;
    for (const SDeviceRow& row : kRows)
        EXPECT_EQ(wizard.GetDevRange(-1, row.code, low, high), 0);
    EXPECT_EQ(low, 71);
    EXPECT_EQ(high, 72);
}

TEST(DeviceRanges, KeepOneEntryWithTheLatestBounds)
{
    CFunWizard wizard;
    wizard.SetDevRange(-1, 9, 0, 100);
    wizard.SetDevRange(-1, 9, 5, 32765);
    int low = 0;
    int high = 0;
    EXPECT_EQ(wizard.GetDevRange(-1, 9, low, high), 1);
    EXPECT_EQ(low, 5);
    EXPECT_EQ(high, 32765);
    EXPECT_EQ(SFunWizardTest::RangeCount(wizard), 1);
}

TEST(DeviceRanges, AreStoredAsGiven)
{
    CFunWizard wizard;
    for (const auto& [low, high] : {std::pair(100, 0), std::pair(INT_MIN, INT_MAX), std::pair(-1, -1)})
    {
        wizard.SetDevRange(-1, 67, low, high);
        int readLow = 0;
        int readHigh = 0;
        EXPECT_EQ(wizard.GetDevRange(-1, 67, readLow, readHigh), 1);
        EXPECT_EQ(readLow, low);
        EXPECT_EQ(readHigh, high);
    }
}

TEST(DeviceRanges, TellAllPairsApart)
{
    CFunWizard wizard;
    const short shorts[] = {0, 1, -1, 9, 15, 16, 17, 101, 1616, SHRT_MAX, SHRT_MIN};
    int value = 0;
    for (const short kind : shorts)
        for (const short code : shorts)
        {
            wizard.SetDevRange(kind, code, value, -value);
            ++value;
        }
    EXPECT_EQ(SFunWizardTest::RangeCount(wizard), value);
    value = 0;
    for (const short kind : shorts)
        for (const short code : shorts)
        {
            int low = 0;
            int high = 0;
            ASSERT_EQ(wizard.GetDevRange(kind, code, low, high), 1);
            EXPECT_EQ(low, value);
            EXPECT_EQ(high, -value);
            ++value;
        }
}

TEST(DeviceRanges, AgreeWithAModelOverManyKeys)
{
    CFunWizard wizard;
    std::map<std::pair<short, short>, std::pair<int, int>> model;
    std::mt19937 random(7);
    for (int round = 0; round < 20000; ++round)
    {
        const auto kind = static_cast<short>(random() % 3 == 0 ? -1 : random() % 64);
        const auto code = static_cast<short>(random() % 256 - 128);
        const auto low = static_cast<int>(random());
        wizard.SetDevRange(kind, code, low, round);
        model[{kind, code}] = {low, round};
    }
    ASSERT_EQ(SFunWizardTest::RangeCount(wizard), static_cast<int>(model.size()));
    for (int kind = -2; kind < 66; ++kind)
        for (int code = -130; code < 130; ++code)
        {
            const std::pair<short, short> key(static_cast<short>(kind), static_cast<short>(code));
            int low = 0;
            int high = 0;
            const int found = wizard.GetDevRange(key.first, key.second, low, high);
            ASSERT_EQ(found, static_cast<int>(model.count(key)));
            if (found)
            {
                ASSERT_EQ(std::pair(low, high), model[key]);
            }
        }
}

TEST(DevicePermissions, HaveABitForEachDeviceThatCanBeLeftOut)
{
    struct
    {
        int code;
        DWORD bit;
    } const rows[] = {
        {0, 0x80},     {1, 0x40},      {2, 0x20},     {3, 0x10},       {4, 0x200},    {5, 0x400},    {6, 0x200000},
        {7, 0x400000}, {8, 0x1000000}, {9, 0x800000}, {10, 0x2000000}, {11, 0x1},     {12, 0x2},     {15, 0x10000000},
        {17, 0x100},   {18, 0x800},    {20, 0x4},     {64, 0x80000},   {65, 0x40000}, {66, 0x20000}, {81, 0x100000},
    };
    for (const auto& row : rows)
        for (int bit = 0; bit < 64; ++bit)
            EXPECT_EQ(IsDevicePermitted(1ull << bit, static_cast<short>(row.code)), 1ull << bit == row.bit)
                << row.code << ", bit " << bit;
}

TEST(DevicePermissions, AreNeverGivenToSomeAndAlwaysToOthers)
{
    for (const ULONGLONG mask : {0ull, ~0ull})
    {
        for (const int code : {67, 20009})
            EXPECT_FALSE(IsDevicePermitted(mask, static_cast<short>(code))) << code;
        for (const int code : {-1, 13, 14, 16, 19, 21, 63, 68, 80, 82, 20001, 20065})
            EXPECT_TRUE(IsDevicePermitted(mask, static_cast<short>(code))) << code;
    }
}
