// A test's robot script, with its failures carried into the test.
#pragma once

#include <functional>

#include "robot/Robot.h"
#include "robot/ScreenSpots.h"

namespace testbench {

/// Called by a test: runs `script` in a thread of its own and `guiAction` here, in the window thread,
/// then keeps the windows alive until the script has ended. Modal dialogs that no DialogScript expects
/// are really shown meanwhile: the robot answers them. Whatever goes wrong fails the test: see
/// RunScript. The script may use the test framework's checks; it touches windows only through
/// Robot::Ask and Robot::WaitFor.
void RunWithRobot(const std::function<void(Robot&)>& script, const std::function<void()>& guiAction = {});

} // namespace testbench
