#include "tests/support/DesktopTest.h"

#include "tests/support/PrintTo.h"

namespace
{
void ReportFailures(CDialogRobot& robot)
{
    for (const CString& failure : robot.Failures())
        ADD_FAILURE() << "robot: " << failure;
    robot.ClearFailures();
}
} // namespace

int CDesktopTest::Play(const std::function<int()>& open, std::vector<CDialogRobot::Scene> scenes)
{
    const int result = m_robot.Play(open, std::move(scenes));
    ReportFailures(m_robot);
    return result;
}

void CDesktopTest::TearDown()
{
    ReportFailures(m_robot);
    for (const CString& window : CDialogRobot::OpenWindows())
        ADD_FAILURE() << "left open: " << window;
}
