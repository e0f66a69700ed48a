// Combos that refuse an item because they are full.
#include "dialogs/posunit/UnitRows.h"
#include "dialogs/pulse/PulseRows.h"
#include "tests/dialogs/base/ProbeDlg.h"

#include "afx/offscreen/Desktop.h"

namespace
{

class CListCapacityTest : public CProbeTest
{
protected:
    void TearDown() override
    {
        offscreen::SetListCapacity(offscreen::kNoListLimit);
        CProbeTest::TearDown();
    }

    /// Expects that a dialog with the fields opens exactly when its combos hold so many items.
    void ExpectItems(size_t items, CProbeDlg::Fields fields)
    {
        m_probe.m_fields = std::move(fields);
        for (size_t capacity = 0; capacity < items; ++capacity)
        {
            offscreen::SetListCapacity(capacity);
            EXPECT_EQ(Play([&] { return static_cast<int>(m_probe.DoModal()); }, {}), 2) << "room for " << capacity;
        }
        offscreen::SetListCapacity(items);
        bool opened = false;
        Open(m_probe, [&](CDialogRobot& robot) {
            opened = true;
            robot.Click(IDCANCEL);
        });
        EXPECT_TRUE(opened);
    }
};

constexpr SWzdChoice kOutputs[] = {{IDS_OUTPUT_Y, 0, 0}, {IDS_OUTPUT_Y, 1, 1}};

} // namespace

TEST_F(CListCapacityTest, CancelsWithoutRoomForTheContactDevices)
{
    ExpectItems(7, [](CWzdExchange* wx) { WDX_Contact(wx); });
}

TEST_F(CListCapacityTest, CancelsWithoutRoomForTheOutputs)
{
    ExpectItems(2, [](CWzdExchange* wx) { WDX_Output(wx, IDC_PROBE_OUTPUT, kOutputs); });
}

TEST_F(CListCapacityTest, CancelsWithoutRoomForACode)
{
    ExpectItems(8, [](CWzdExchange* wx) { WDX_AxisCode(wx, IDC_PROBE_CODE, EAxisCode::DividedMode); });
}

TEST_F(CListCapacityTest, IsReportedByTheFunctionsThatFill)
{
    InProbe([&](CDialogRobot&) {
        offscreen::SetListCapacity(1);
        EXPECT_FALSE(m_probe.FillContactCombo(2051, 0));
        EXPECT_FALSE(m_probe.FillCombo(IDC_PROBE_COMBO, kOutputs));
        EXPECT_FALSE(FillJogDirectionCombo(m_probe));
        offscreen::SetListCapacity(7);
        EXPECT_TRUE(m_probe.FillContactCombo(2051, 0));
        EXPECT_TRUE(m_probe.FillCombo(IDC_PROBE_COMBO, kOutputs));
        EXPECT_TRUE(FillJogDirectionCombo(m_probe));
    });
}
