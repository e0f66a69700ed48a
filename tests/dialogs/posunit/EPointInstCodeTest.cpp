// The ladder that a confirmed dialog of E point control leads to, worked out by hand.
#include "tests/dialogs/posunit/EPointTest.h"

namespace
{

using Instructions = std::vector<SInstructionRow>;

const Instructions kTransfer = {
    {8, -1, 1, 1, 0},   {-1, 12, 0x51002029, 1, 0}, {-1, 9, 100, 1, 0}, //
    {8, -1, 1, 1, 0},   {-1, 11, 500, 1, 0},        {-1, 9, 102, 1, 0}, //
    {8, -1, 1, 1, 0},   {-1, 11, 20000, 1, 0},      {-1, 9, 104, 1, 0}, //
    {8, -1, 1, 1, 0},   {-1, 11, 300, 1, 0},        {-1, 9, 106, 1, 0}, //
    {8, -1, 1, 1, 0},   {-1, 11, -100000, 1, 0},    {-1, 9, 108, 1, 0}, //
    {8, -1, 151, 1, 0}, {-1, 11, 1, 1, 0},          {-1, 9, 100, 1, 0}, {-1, 11, 10, 1, 0}, {-1, 12, 0x110, 1, 0},
};

struct SLadder
{
    BYTE startType;
    SEPointEntries entries;
    SInstructionRow start;
    Instructions output[std::size(kForms)]; // as each form starts the axis
};

const SLadder kLadders[] = {
    {0, {.startOutput = true, .same = true}, {2, 1, 170, 0, 0}, {}},
    {1, {.startOutput = false}, {2, 1, 170, 0, 0}, {}},
    {2, {.startOutput = false}, {2, 1, 170, 0, 0}, {}},
    {1,
     {.startOutput = true, .same = true},
     {2, 1, 170, 0, 0},
     {{{2, 1, 170, 0, 0}, {17, -1, 0, 0, 0}, {3, 2, 304, 0, 0}},
      {{2, 1, 170, 0, 0}, {17, -1, 0, 0, 0}, {3, 2, 305, 0, 0}},
      {{2, 1, 170, 0, 0}, {17, -1, 0, 0, 0}, {3, 2, 312, 0, 0}}}},
    {2,
     {.startOutput = true},
     {2, 1, 170, 0, 0},
     {{{2, 2, 31, 0, 0}, {17, -1, 0, 0, 0}, {3, 2, 640, 0, 0}},
      {{2, 2, 31, 0, 0}, {17, -1, 0, 0, 0}, {3, 2, 641, 0, 0}},
      {{2, 2, 31, 0, 0}, {17, -1, 0, 0, 0}, {3, 2, 648, 0, 0}}}},
    // The special relays are ordinary ones in the ladder.
    {2,
     {.device = kSpecialR, .contact = "9010", .startOutput = true, .secondDevice = kSpecialR, .second = "9013"},
     {2, 1, 14416, 0, 0},
     {{{2, 1, 14419, 0, 0}, {17, -1, 0, 0, 0}, {3, 2, 640, 0, 0}},
      {{2, 1, 14419, 0, 0}, {17, -1, 0, 0, 0}, {3, 2, 641, 0, 0}},
      {{2, 1, 14419, 0, 0}, {17, -1, 0, 0, 0}, {3, 2, 648, 0, 0}}}},
};

TEST_F(CEPointTest, LeadsToTheLadderOfItsEntries)
{
    for (const int source : kSweptSources)
    {
        Use(source);
        for (const SLadder& ladder : kLadders)
            for (size_t form = 0; form < std::size(kForms); ++form)
            {
                SCOPED_TRACE(testing::Message()
                             << source << ", " << kForms[form] << ", start type " << int{ladder.startType});
                m_wizard.SetStartType(ladder.startType);
                ConfirmFromSelection(kForms[form], [&](CDialogRobot& dialog) {
                    SEPointEntries entries = ladder.entries;
                    entries.items = {1, 0, 1, 0, 1, 0, 2, 1, 0, 5};
                    FillIn(dialog, entries);
                });
                Instructions expected = {ladder.start, {17, -1, 0, 0, 0}};
                expected.insert(expected.end(), kTransfer.begin(), kTransfer.end());
                const Instructions& output = ladder.output[form];
                if (source != kModule) // whose dialog cannot ask for a start output
                    expected.insert(expected.end(), output.begin(), output.end());
                EXPECT_EQ(m_wizard.CreateInstCode(), 1);
                EXPECT_EQ(ReadResults(m_wizard).instructions, expected);
            }
    }
}

} // namespace
