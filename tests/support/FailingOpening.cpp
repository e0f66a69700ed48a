#include "tests/support/FailingOpening.h"

#include <gtest/gtest.h>

#include "tests/support/AllocationFaults.h"
#include "tests/support/PrintTo.h"

SFailingOpening OpenWithoutMemory(CDialogRobot& robot, int successes, int failures, const std::function<int()>& open)
{
    SCOPED_TRACE(testing::Message() << "after " << successes << " allocations");
    bool opened = false;
    CAllocationFaults faults(successes, failures);
    faults.Pause();
    const auto openShort = [&] {
        const CShortOfMemory shortOfMemory(faults);
        return open();
    };
    const auto leave = [&](CDialogRobot& dialog) {
        faults.Pause();
        opened = true;
        dialog.Click(IDCANCEL);
        faults.Resume();
    };
    int result = 0;
    EXPECT_NO_THROW(result = robot.Play(openShort, {leave}));
    EXPECT_EQ(result, IDCANCEL);
    EXPECT_TRUE(robot.MessageBoxes().empty());
    EXPECT_EQ(robot.Failures().size(), opened ? 0u : 1u) << "only the scene that was not played";
    robot.ClearFailures();
    return {opened, faults.Failures() > 0};
}
