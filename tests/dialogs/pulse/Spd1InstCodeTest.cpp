// The ladder that a confirmed dialog of F168 leads to, worked out by hand for every device that can start it.
#include "tests/dialogs/pulse/Spd1Test.h"

namespace
{

using Instructions = std::vector<SInstructionRow>;

struct SStart
{
    int device;
    const char* number;
    SInstructionRow contact; // as it stands in the ladder
    bool edge;               // followed by instruction 17
};

constexpr int kE = 18;
constexpr int kP = 17;

constexpr SStart kStarts[] = {
    {kX, "0", {2, 3, 0, 0, 0}, true},
    {kY, "1F", {2, 2, 31, 0, 0}, true},
    {kR, "10A", {2, 1, 170, 0, 0}, true},
    {kR, "901", {2, 1, 1441, 0, 0}, true},
    {kT, "99", {2, 4, 99, 0, 0}, true},
    {kC, "1010", {2, 5, 1010, 0, 0}, true},
    {kL, "127F", {2, 0, 2047, 0, 0}, true},
    {kE, "14", {2, 18, 14, 0, 0}, true},
    {kP, "A", {2, 17, 10, 0, 0}, true},
    // The special relays are ordinary ones in the ladder; always on and first scan need no edge.
    {kSpecialR, "9000", {2, 1, 14400, 0, 0}, true},
    {kSpecialR, "9010", {2, 1, 14416, 0, 0}, false},
    {kSpecialR, "9011", {2, 1, 14417, 0, 0}, true},
    {kSpecialR, "9012", {2, 1, 14418, 0, 0}, true},
    {kSpecialR, "9013", {2, 1, 14419, 0, 0}, false},
    {kSpecialR, "9014", {2, 1, 14420, 0, 0}, true},
    {kSpecialR, "911F", {2, 1, 14591, 0, 0}, true},
};

const Instructions kTrapezoidalTable = {
    {8, -1, 0, 0, 0}, {-1, 12, 0x113, 0, 0}, {-1, 9, 100, 0, 0}, //
    {8, -1, 0, 0, 0}, {-1, 11, 500, 0, 0},   {-1, 9, 101, 0, 0}, //
    {8, -1, 0, 0, 0}, {-1, 11, 9500, 0, 0},  {-1, 9, 102, 0, 0}, //
    {8, -1, 0, 0, 0}, {-1, 11, 300, 0, 0},   {-1, 9, 103, 0, 0}, //
    {8, -1, 1, 0, 0}, {-1, 11, -1234, 0, 0}, {-1, 9, 104, 0, 0}, //
    {8, -1, 0, 0, 0}, {-1, 11, 0, 0, 0},     {-1, 9, 106, 0, 0}, //
};

const Instructions kHomeTable = {
    {8, -1, 0, 0, 0}, {-1, 12, 0x127, 0, 0}, {-1, 9, 100, 0, 0}, //
    {8, -1, 0, 0, 0}, {-1, 11, 500, 0, 0},   {-1, 9, 101, 0, 0}, //
    {8, -1, 0, 0, 0}, {-1, 11, 9500, 0, 0},  {-1, 9, 102, 0, 0}, //
    {8, -1, 0, 0, 0}, {-1, 11, 300, 0, 0},   {-1, 9, 103, 0, 0}, //
};

const Instructions kPositioning = {{8, -1, 168, 0, 0}, {-1, 9, 100, 0, 0}, {-1, 11, 1, 0, 0}};

Instructions Expected(ESpd1Variant variant, const SStart& start, bool onlyDataTable)
{
    Instructions expected = {start.contact};
    if (start.edge)
        expected.push_back({17, -1, 0, 0, 0});
    const Instructions& table = variant == kTrapezoidal ? kTrapezoidalTable : kHomeTable;
    expected.insert(expected.end(), table.begin(), table.end());
    if (!onlyDataTable)
        expected.insert(expected.end(), kPositioning.begin(), kPositioning.end());
    return expected;
}

TEST_F(CSpd1Test, LeadsToTheLadderOfItsEntries)
{
    SetDeviceRange(m_wizard, kE, 0, 2047);
    SetDeviceRange(m_wizard, kP, 0, 2047);
    for (ESpd1Variant variant : kVariants)
    {
        for (const SStart& start : kStarts)
        {
            for (bool only : {false, true})
            {
                SCOPED_TRACE(testing::Message() << variant << " from " << DeviceName(start.device) << start.number);
                Confirm(variant, [&](CDialogRobot& dialog) {
                    FillIn(dialog, {.device = start.device,
                                    .contact = start.number,
                                    .maximum = "9500",
                                    .target = "-1234",
                                    .output = 1,
                                    .width = 1,
                                    .mode = 5,
                                    .onlyDataTable = only});
                });
                EXPECT_EQ(m_wizard.CreateInstCode(), 1);
                EXPECT_EQ(ReadResults(m_wizard).instructions, Expected(variant, start, only));
            }
        }
    }
}

} // namespace
