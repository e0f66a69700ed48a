// The base of all tests that open windows.
#pragma once

#include <gtest/gtest.h>

#include "afx/DialogRobot.h"

#include <functional>
#include <vector>

/// Offers a robot whose failures are failures of the test, and checks after each test that no window is left.
class CDesktopTest : public testing::Test
{
protected:
    void TearDown() override;

    /// Plays the scenes in what open() opens; see CDialogRobot::Play. The robot's failures become the test's at once.
    int Play(const std::function<int()>& open, std::vector<CDialogRobot::Scene> scenes);

    CDialogRobot m_robot;
};
