// The selection dialog where the desktop is short of room or has other sizes.
#include "tests/dialogs/select/PosSelectTest.h"

#include "afx/offscreen/Desktop.h"
#include "tests/dialogs/select/TabStops.h"

namespace
{

class CSelectionDesktopTest : public CPosSelectTest
{
protected:
    void TearDown() override
    {
        offscreen::SetListCapacity(offscreen::kNoListLimit);
        offscreen::SetDialogBaseUnits(8, 16);
        CPosSelectTest::TearDown();
    }
};

} // namespace

TEST_F(CSelectionDesktopTest, IsCancelledWhenTheListRefusesAnItem)
{
    struct
    {
        int mode;
        size_t items;
    } const rows[] = {{0, 11}, {1, 8}};
    for (const auto& row : rows)
    {
        for (size_t capacity = 0; capacity < row.items; ++capacity)
        {
            offscreen::SetListCapacity(capacity);
            EXPECT_EQ(Open(row.mode, {}), 2) << "mode " << row.mode << ", room for " << capacity;
        }
        offscreen::SetListCapacity(row.items);
        EXPECT_EQ(Look(row.mode, [](CDialogRobot&) {}), 2);
    }
}

TEST_F(CSelectionDesktopTest, NeedsNoRoomForWhatIsNotSupported)
{
    Support({170, 176});
    offscreen::SetListCapacity(2);
    Look(0, [](CDialogRobot& robot) { EXPECT_EQ(robot.Items(kList).size(), 2u); });
    offscreen::SetListCapacity(1);
    EXPECT_EQ(Open(0, {}), 2);
    Support({});
    offscreen::SetListCapacity(0);
    Look(0, [](CDialogRobot& robot) { EXPECT_TRUE(robot.Items(kList).empty()); });
}

TEST_F(CSelectionDesktopTest, HasColumnsInUnitsOfTheSystemsFont)
{
    m_wizard.SetPlcType(kPlcFamilyB); // whose texts the module does not have: 55 and 43 pixels
    struct
    {
        int unit;
        std::vector<int> stops;
    } const rows[] = {{4, {55, 98}}, {6, {36, 64}}, {7, {31, 55}}, {8, {27, 48}}, {10, {22, 39}}};
    for (const auto& row : rows)
    {
        offscreen::SetDialogBaseUnits(row.unit, 2 * row.unit);
        const CTabStopWatch watch;
        Look(0, [&](CDialogRobot& robot) {
            EXPECT_EQ(watch.Of(robot.Dialog()->GetDlgItem(kList)->m_hWnd), row.stops) << row.unit;
        });
    }
}
