// The axes of F175 in the dialogs of families B and C: their labels, their speeds, and the registers of the results.
#include "tests/dialogs/pulse/PulseFormTest.h"

namespace
{

struct SSpshFamily
{
    const char* name; ///< of the form where the channel is chosen
    const char* plain;
    UINT messageOfUpperSpeed;
    std::vector<int> offsets; ///< of the registers of the results
};

class CSpshFamilyTest : public CPulseFormTest, public testing::WithParamInterface<SSpshFamily>
{
protected:
    CSpshFamilyTest() { SetUpFamily(m_wizard, m_form); }

    const SPulseForm& m_form = PulseForm(GetParam().name);
    const SPulseForm& m_plain = PulseForm(GetParam().plain);
};

INSTANTIATE_TEST_SUITE_P(
    Families, CSpshFamilyTest,
    testing::Values(SSpshFamily{"SpshChannelB", "SpshPlainAxesB", 20024, {14, 16, 18, 20, 22, 23, 24, 25}},
                    SSpshFamily{"SpshChannelC", "SpshPlainAxesC", 20005, {12, 14, 16, 18, 20, 21, 22, 23}}),
    [](const auto& row) { return std::string(row.param.name).substr(sizeof "SpshChannel" - 1); });

constexpr UINT kResults[] = {2462, 2463, 2464, 2465, 2466, 2467, 2468, 2469};

} // namespace

TEST_P(CSpshFamilyTest, NamesTheAxesOfTheChannel)
{
    Leave(m_form, [](CDialogRobot& dialog) {
        for (const int channel : {0, 1, 2, 3, 0})
        {
            dialog.Select(2477, channel);
            EXPECT_EQ(dialog.Text(2475), CString(channel == 0 ? "X-axis (CH0)" : "X-axis (CH2)"));
            EXPECT_EQ(dialog.Text(2476), CString(channel == 0 ? "Y-axis (CH1)" : "Y-axis (CH3)"));
            EXPECT_EQ(dialog.Text(2454), CString(channel == 0 ? "(1 - 100000)" : "(1 - 20000)"));
        }
    });
}

TEST_P(CSpshFamilyTest, KeepsBothSpeedsInTheRangeOfTheChannel)
{
    Leave(m_form, [this](CDialogRobot& dialog) {
        FillIn(dialog, m_form);
        dialog.Type(2459, ""); // refused once the speeds are right
        for (const int channel : {0, 1, 3})
        {
            const int highest = channel == 0 ? 100000 : 20000;
            dialog.Select(2477, channel);
            dialog.Type(2453, "1");
            dialog.Type(2456, std::to_string(highest).c_str());
            ExpectRefusal(dialog, 20001, 2459);
            dialog.Type(2456, std::to_string(highest + 1).c_str());
            ExpectRefusal(dialog, GetParam().messageOfUpperSpeed, 2456);
            dialog.Type(2453, std::to_string(highest + 1).c_str());
            ExpectRefusal(dialog, 20004, 2453);
        }
    });
}

TEST_P(CSpshFamilyTest, ShowsTheRegistersOfTheResults)
{
    for (const SPulseForm* form : {&m_form, &m_plain})
        Leave(*form, [](CDialogRobot& dialog) {
            dialog.Type(2451, "100");
            dialog.Focus(2052);
            for (size_t i = 0; i < std::size(kResults); ++i)
                EXPECT_EQ(std::string(dialog.Text(kResults[i])), " DT " + std::to_string(100 + GetParam().offsets[i]))
                    << "of " << kResults[i];
            dialog.Click(2099);
            for (const UINT result : kResults)
                EXPECT_EQ(dialog.Text(result), CString()) << "of " << result;
        });
}

TEST_P(CSpshFamilyTest, LeavesTheChannelOutWhereTheHostHasChosenTheAxes)
{
    Leave(m_plain, [](CDialogRobot& dialog) {
        for (const SRobotControl& control : dialog.Controls())
        {
            const bool ofChannel = control.id == 2477 || control.text == "The channel for a pulse output";
            EXPECT_EQ(control.visible, !ofChannel) << control.id << ", " << control.text;
        }
    });
}
