// What the dialog of the screen display checks, and in which order.
#include "tests/dialogs/process/ScrDispTest.h"
#include "tests/support/Sampled.h"

namespace
{

using CScrDispCheckTest = CScrDispTest;

TEST_F(CScrDispCheckTest, PointsAtTheFirstBadEntry)
{
    Leave([this](CDialogRobot& dialog) {
        FillIn(dialog, {});
        for (unsigned bad = 1; bad < 8; ++bad)
            for (unsigned isText = 0; isText < 8; ++isText)
            {
                if ((isText & ~bad) != 0)
                    continue;
                SCOPED_TRACE(testing::Message() << "bad entries " << bad << ", no numbers " << isText);
                size_t first = kScreenOperands;
                for (size_t i = kScreenOperands; i-- > 0;)
                {
                    const bool isBad = (bad >> i & 1) != 0;
                    SetTextByProgram(dialog, kDeviceEdits[i], !isBad ? "5" : (isText >> i & 1) != 0 ? "x" : "32765");
                    first = isBad ? i : first;
                }
                ExpectRefusal(dialog, (isText >> first & 1) != 0 ? 20001 : kDeviceMessages[first], kDeviceEdits[first]);
            }
        EXPECT_EQ(ReadResults(m_wizard), SResults());
    });
    EXPECT_EQ(ReadResults(m_wizard), SResults());
    EXPECT_EQ(Block(), std::nullopt);
}

TEST_F(CScrDispCheckTest, ShowsTheMessages)
{
    EXPECT_EQ(MessageText(20001), "Please input a numerical value correctly.");
    EXPECT_EQ(MessageText(20037), "The inputted screen display control data has become the outside of the range.\n"
                                  "Please input the right value.");
    EXPECT_EQ(MessageText(20038),
              "The inputted upside display data has become the outside of the range.\nPlease input the right value.");
    EXPECT_EQ(MessageText(20039),
              "The inputted downside display data has become the outside of the range.\nPlease input the right value.");
}

// ---- Numbers --------------------------------------------------------------------------------------------------------

struct SNumber
{
    int code;
    bool isNumber;
    const char* text;
    std::optional<int> number = {}; // none: it is refused
};

const SNumber kNumbers[] = {
    // Words in decimal.
    {kDT, true, "0", 0},
    {kDT, true, "32764", 32764},
    {kDT, true, "32763", 32763}, // above what the label of the control data shows
    {kDT, true, "32762", 32762},
    {kDT, true, "00077", 77},
    {kDT, true, " 7 ", 7},
    {kDT, true, "32765"},
    {kDT, true, "99999999999"},
    {kDT, true, "-1"},
    {kDT, false, ""},
    {kDT, false, "x"},
    {kDT, false, "1.5"},
    {kDT, false, "1A"},
    {kDT, false, "1 2"},
    {kWR, true, "255", 255},
    {kWR, true, "256"},
    {kSpecialDT, true, "90000", 90000},
    {kSpecialDT, true, "89999"},
    {kSpecialDT, true, "90511", 90511},
    {kSpecialDT, true, "90512"},
    // Bits as word and hexadecimal digit.
    {kR, true, "0", 0},
    {kR, true, "A", 10},
    {kR, true, "10a", 170},
    {kR, true, "255F", 4095},
    {kR, true, "255D", 4093},
    {kR, true, "2560"},
    {kR, false, "1G"},
    {kR, false, ""},
    {kX, true, "109F", 1759},
    {kX, true, "1100"},
    {kSpecialR, true, "9000", 14400},
    {kSpecialR, true, "899F"},
    {kSpecialR, true, "9120"},
    // Contacts in decimal.
    {kT, true, "1007", 1007},
    {kT, true, "1008"},
    {kT, false, "10A"},
    {kC, true, "1008", 1008},
    {kC, true, "1007"},
};

TEST_F(CScrDispCheckTest, ReadsNumbersInTheNotationOfTheirDevice)
{
    for (size_t operand = 0; operand < kScreenOperands; ++operand)
        Leave([&](CDialogRobot& dialog) {
            FillIn(dialog, {});
            for (const SNumber& row : Sampled(kNumbers, 4))
            {
                if (row.number)
                    continue;
                SCOPED_TRACE(testing::Message() << "operand " << operand << ": " << row.code << ' ' << row.text);
                SelectDevice(dialog, operand, row.code);
                SetTextByProgram(dialog, kDeviceEdits[operand], row.text);
                ExpectRefusal(dialog, row.isNumber ? kDeviceMessages[operand] : 20001, kDeviceEdits[operand]);
            }
        });
    for (size_t operand = 0; operand < kScreenOperands; ++operand)
        for (const SNumber& row : Sampled(kNumbers, 5))
        {
            if (!row.number)
                continue;
            SCOPED_TRACE(testing::Message() << "operand " << operand << ": " << row.code << ' ' << row.text);
            SScrDispEntries entries;
            entries.devices[operand] = {row.code, *row.number, row.text};
            ASSERT_EQ(Confirmed(entries), ScrDispResults(entries));
        }
}

// The label of the control data shows two less than what is accepted: its other words then lie behind the last one.
TEST_F(CScrDispCheckTest, AcceptsControlDataInTheWholeRange)
{
    SetDeviceRange(m_wizard, kDT, 10, 20);
    for (const auto& [text, number] : {std::pair{"10", 10}, {"18", 18}, {"19", 19}, {"20", 20}})
    {
        SScrDispEntries entries;
        for (SDeviceEntry& device : entries.devices)
            device = {kDT, 15, "15"};
        entries.devices[0] = {kDT, number, text};
        EXPECT_EQ(Confirmed(entries), ScrDispResults(entries));
    }
    Leave([](CDialogRobot& dialog) {
        EXPECT_EQ(dialog.Text(2853), CString("(10 - 18)"));
        for (const char* text : {"9", "21"})
        {
            dialog.Type(2852, text);
            ExpectRefusal(dialog, 20037, 2852);
        }
    });
    SetDeviceRange(m_wizard, kDT, 0, 1); // no room at all, by the label
    SScrDispEntries entries;
    for (SDeviceEntry& device : entries.devices)
        device = {kDT, 1, "1"};
    EXPECT_EQ(Confirmed(entries), ScrDispResults(entries));
}

TEST_F(CScrDispCheckTest, RefusesADeviceThatIsNotSelected)
{
    Leave([](CDialogRobot& dialog) {
        FillIn(dialog, {});
        for (size_t i = 0; i < kScreenOperands; ++i)
        {
            const int selected = dialog.Selection(kDeviceCombos[i]);
            SelectByProgram(dialog, kDeviceCombos[i], -1);
            ExpectRefusal(dialog, kDeviceMessages[i], kDeviceEdits[i]);
            SelectByProgram(dialog, kDeviceCombos[i], selected);
        }
    });
}

TEST_F(CScrDispCheckTest, AcceptsWhatWasRefusedOnceItIsRight)
{
    SScrDispEntries good;
    good.marks = 0x81;
    good.lines[kUpside] = {.mode = 3, .color = 1, .text = "abc"};
    good.lines[kDownside] = {.hidden = true, .color = 2};
    Confirm([&](CDialogRobot& dialog) {
        FillIn(dialog, good);
        for (const UINT edit : kDeviceEdits)
            dialog.Type(edit, "");
        for (size_t i = 0; i < kScreenOperands; ++i)
        {
            ExpectRefusal(dialog, 20001, kDeviceEdits[i]);
            dialog.Type(kDeviceEdits[i], good.devices[i].text.c_str());
        }
    });
    EXPECT_EQ(ReadResults(m_wizard), ScrDispResults(good));
    EXPECT_EQ(Block(), BlockOf(good));
}

// The operands may lie anywhere, on each other too.
TEST_F(CScrDispCheckTest, AcceptsOperandsThatOverlap)
{
    SScrDispEntries entries;
    for (SDeviceEntry& device : entries.devices)
        device = {kDT, 7, "7"};
    entries.lines[kUpside] = {.mode = 3, .text = "12345"};
    EXPECT_EQ(Confirmed(entries), ScrDispResults(entries));
}

} // namespace
