// What is particular to the dialog of F173: the resolution, the list that is filled by it, and the digits of the duty.
#include "tests/dialogs/pulse/PulseFormTest.h"

namespace
{

constexpr const char* kFirstFine = "1.5 Hz (Timing 666.7 ms)";
constexpr const char* kFirstCoarse = "15.6 kHz (Timing 0.06 ms)";

class CPwmhTest : public CPulseFormTest
{
protected:
    const SPulseForm& m_fine = PulseForm("Pwmh1000");
    const SPulseForm& m_coarse = PulseForm("Pwmh100");
};

bool TakesDigitsOnly(CDialogRobot& dialog)
{
    for (const SRobotControl& control : dialog.Controls())
        if (control.id == 2357)
            return (control.style & ES_NUMBER) != 0;
    ADD_FAILURE() << "no edit 2357";
    return false;
}

void ExpectResolution(CDialogRobot& dialog, int resolution, size_t items, int item = 0)
{
    const bool fine = resolution == 1000;
    EXPECT_EQ(dialog.Checked(2355), fine);
    EXPECT_EQ(dialog.Checked(2356), !fine);
    EXPECT_EQ(dialog.Items(2354).size(), items);
    EXPECT_EQ(dialog.Items(2354).at(0), CString(fine ? kFirstFine : kFirstCoarse));
    EXPECT_EQ(dialog.Selection(2354), item);
    EXPECT_EQ(dialog.Text(2358), CString(fine ? "0.0 - 99.9" : "(0 - 99)"));
    EXPECT_EQ(dialog.Limit(2357), fine ? 4 : 2);
    EXPECT_EQ(TakesDigitsOnly(dialog), !fine);
}

} // namespace

TEST_F(CPwmhTest, FollowsTheResolution)
{
    Leave(m_fine, [](CDialogRobot& dialog) {
        ExpectResolution(dialog, 1000, 20);
        for (int round = 0; round < 2; ++round)
        {
            dialog.Select(2354, 4);
            dialog.Click(2356);
            ExpectResolution(dialog, 100, 5);
            dialog.Type(2357, "5.5");
            EXPECT_EQ(dialog.Text(2357), CString("55"));
            dialog.Select(2354, 4);
            dialog.Click(2355);
            ExpectResolution(dialog, 1000, 20);
            dialog.Type(2357, "5.5");
            EXPECT_EQ(dialog.Text(2357), CString("5.5"));
            dialog.Type(2357, "a,-1234");
            EXPECT_EQ(dialog.Text(2357), CString("a,-1")) << "any characters";
        }
        dialog.Select(2354, 7);
        dialog.Click(2355); // clicking what is chosen fills the list, too
        ExpectResolution(dialog, 1000, 20);
        dialog.Click(2356);
        dialog.Click(2099);
        ExpectResolution(dialog, 1000, 20);
    });
}

TEST_F(CPwmhTest, OffersTheFrequenciesOfTheChannel)
{
    Leave(m_fine, [](CDialogRobot& dialog) {
        for (int channel = 0; channel < 4; ++channel)
        {
            const size_t coarseItems = channel < 2 ? 5 : 1;
            dialog.Click(2355);
            dialog.Select(2354, 3);
            dialog.Select(2353, channel);
            ExpectResolution(dialog, 1000, 20);
            dialog.Click(2356);
            ExpectResolution(dialog, 100, coarseItems);
            dialog.Select(2353, 0);
            ExpectResolution(dialog, 100, 5);
            dialog.Select(2354, 4);
            dialog.Select(2353, channel);
            ExpectResolution(dialog, 100, coarseItems);
        }
        // Only a data table has no channel of its own: the first one is selected.
        dialog.Click(2061);
        EXPECT_EQ(dialog.Selection(2353), 0);
        ExpectResolution(dialog, 100, 5);
        dialog.Select(2354, 3);
        dialog.Click(2061);
        ExpectResolution(dialog, 100, 5);
        dialog.Click(2355);
        dialog.Select(2354, 3);
        dialog.Click(2061);
        ExpectResolution(dialog, 1000, 20);
    });
}

// The position in the list counts, and only the third and the fourth have one frequency.
TEST_F(CPwmhTest, OffersTheFrequenciesByThePositionOfTheChannel)
{
    SetChannels(173, {2, 3, 5, 6, 7});
    Leave(m_fine, [](CDialogRobot& dialog) {
        dialog.Click(2356);
        for (const auto& [channel, items] :
             std::initializer_list<std::pair<int, size_t>>{{0, 5}, {1, 5}, {2, 1}, {3, 1}, {4, 5}})
        {
            dialog.Select(2353, channel);
            EXPECT_EQ(dialog.Items(2354).size(), items) << "on channel " << channel;
        }
    });
}

TEST_F(CPwmhTest, StoresTheCodeOfEachChannel)
{
    for (int channel = 0; channel < 4; ++channel)
    {
        EXPECT_EQ(Confirmed(m_coarse, {.output = channel}), FormResults(m_coarse, {.output = channel}));
        EXPECT_EQ(Confirmed(m_fine, {.items = {19}, .output = channel}),
                  FormResults(m_fine, {.items = {19}, .output = channel}));
    }
}

TEST_F(CPwmhTest, RefusesATextOfTheOtherResolution)
{
    Confirm(m_fine, [&](CDialogRobot& dialog) {
        FillIn(dialog, m_fine);
        dialog.Type(2357, "5.5");
        dialog.Click(2356);
        EXPECT_EQ(dialog.Text(2357), CString("5.5"));
        ExpectRefusal(dialog, 20001, 2357);
        dialog.Type(2357, "55");
    });
    EXPECT_EQ(ReadResults(m_wizard).data, (std::vector<SDataRow>{{9, 100, 0, 0, 20}, {9, 101, 0, 0, 550}}));
}

TEST_F(CPwmhTest, RestoresTheResolutionFromTheCode)
{
    const struct
    {
        int code;
        int channel; // stored
        int resolution, item;
        size_t items;
    } rows[] = {
        {0, 1, 1000, 0, 20}, {1, 1, 1000, 1, 20}, {19, 1, 1000, 19, 20}, {19, 11, 1000, 19, 20}, {20, 1, 100, 0, 5},
        {21, 1, 100, 1, 5},  {22, 1, 100, 2, 5},  {22, 4, 100, 2, 5},    {23, 4, 100, 3, 5},     {24, 1, 100, 4, 5},
        {25, 1, 100, 0, 5},  {255, 1, 100, 0, 5}, {0x114, 1, 100, 0, 5}, {20, 6, 100, 0, 1},     {22, 6, 100, 0, 1},
        {24, 11, 100, 0, 1}, {22, 99, 100, 2, 5},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(testing::Message() << "code " << row.code << ", channel " << row.channel);
        WriteResults(m_wizard,
                     {.operands = {{9, 1}, {11, row.channel}}, .data = {{9, 1, 0, 0, row.code}, {9, 2, 0, 0, 505}}});
        Leave(m_fine, [&](CDialogRobot& dialog) {
            ExpectResolution(dialog, row.resolution, row.items, row.item);
            EXPECT_EQ(dialog.Text(2357), CString("50.5"));
        });
    }
    for (const int device : {10, 11, 0, -1, 20009})
    {
        WriteResults(m_wizard, {.data = {{device, 1, 0, 0, 22}, {9, 2, 0, 0, 7}}});
        Leave(m_fine, [](CDialogRobot& dialog) {
            ExpectResolution(dialog, 1000, 20);
            EXPECT_EQ(dialog.Text(2357), CString("0.7"));
        });
    }
}

// What is shown with a fraction of zeros is taken as it stands.
TEST_F(CPwmhTest, ConfirmsWhatItRestores)
{
    for (const SPulseForm* form : {&m_fine, &m_coarse})
        for (size_t entry = 0; entry < 3; ++entry)
        {
            const SResults stored = Confirmed(*form, {.items = {4}, .entry = entry, .output = 1});
            EXPECT_EQ(stored, FormResults(*form, {.items = {4}, .entry = entry, .output = 1}));
            Confirm(*form);
            EXPECT_EQ(ReadResults(m_wizard), stored);
        }
}
