// What the pulse-output dialogs share: channels and speeds.
#include "dialogs/pulse/PulseRows.h"

#include "tests/dialogs/base/ProbeDlg.h"

namespace
{

class CPulseRowsTest : public CProbeTest
{
};

} // namespace

TEST_F(CPulseRowsTest, ChannelsAreThoseOfTheInstruction)
{
    for (const int instruction : {171, 172, 173, 174, 175})
    {
        m_wizard.ResetChannelNo();
        for (const int channel : {1, 4, 11})
            m_wizard.SetChannelNo(channel, instruction);
        InProbe([&](CWzdExchange* wx) { WDX_Channel(wx, IDC_PROBE_OUTPUT, instruction); },
                [](CDialogRobot& robot) {
                    EXPECT_EQ(robot.Items(IDC_PROBE_OUTPUT), Texts({"ch1", "ch4", "ch11"}));
                    robot.Select(IDC_PROBE_OUTPUT, 1);
                    robot.Click(2061);
                    EXPECT_EQ(robot.Selection(IDC_PROBE_OUTPUT), 0);
                    EXPECT_FALSE(robot.Enabled(IDC_PROBE_OUTPUT));
                    robot.Click(2061);
                    robot.Select(IDC_PROBE_OUTPUT, 2);
                    robot.Click(IDOK);
                });
        EXPECT_EQ(ReadResults(m_wizard).operands, (std::vector<SOperandRow>{{0, 0}, {kK, 11}}));
    }
}

// The high bits of F175's word say how its dialog looks.
TEST_F(CPulseRowsTest, ChannelsOfF175EndAt11)
{
    m_wizard.ResetChannelNo();
    for (const int channel : {0, 11, 12, 15})
        for (const int instruction : {174, 175})
            m_wizard.SetChannelNo(channel, instruction);
    const auto listed = [&](int instruction) {
        std::vector<CString> items;
        InProbe([&](CWzdExchange* wx) { WDX_Channel(wx, IDC_PROBE_OUTPUT, instruction); },
                [&](CDialogRobot& robot) { items = robot.Items(IDC_PROBE_OUTPUT); });
        return items;
    };
    EXPECT_EQ(listed(175), Texts({"ch0", "ch11"}));
    EXPECT_EQ(listed(174), Texts({"ch0", "ch11", "ch12", "ch15"}));
}

TEST_F(CPulseRowsTest, OneChannelIsNoChoice)
{
    m_wizard.ResetChannelNo();
    m_wizard.SetChannelNo(3, 172);
    m_probe.m_fields = [](CWzdExchange* wx) { WDX_Channel(wx, IDC_PROBE_OUTPUT, 172); };
    EXPECT_EQ(Play([&] { return static_cast<int>(m_probe.DoModal()); }, {}), 2);
}

TEST_F(CPulseRowsTest, SpeedsDependOnFrequencyAndChannel)
{
    struct
    {
        int frequency, channel;
        LONGLONG low, high;
    } const rows[] = {
        {0, 0, 1, 9800},     {0, 1, 1, 9800},     {0, 2, 1, 9800},     {0, -1, 1, 9800},
        {1, 0, 48, 100000},  {1, 1, 48, 100000},  {1, 2, 48, 20000},   {1, 7, 48, 20000},
        {1, -1, 48, 20000},  {2, 0, 191, 100000}, {2, 1, 191, 100000}, {2, 2, 191, 20000},
        {2, -1, 191, 20000}, {-1, 0, 0, 0},       {3, 0, 0, 0},        {99, 2, 0, 0},
    };
    for (const auto& row : rows)
    {
        const SWzdRange range = SpeedRange(row.frequency, row.channel);
        EXPECT_EQ(range.low, row.low) << row.frequency << ", " << row.channel;
        EXPECT_EQ(range.high, row.high) << row.frequency << ", " << row.channel;
    }
}
