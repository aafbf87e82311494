// A test's robot script; its failures become failures of the test.
#pragma once

#include "robot/Robot.h"
#include "robot/ScreenSpots.h"

#include <functional>

namespace testbench {

/// For tests: runs `script` in its own thread and `guiAction` here, in the window thread, then keeps
/// the windows alive until the script has ended. Modal dialogs that no DialogScript expects are really
/// shown meanwhile, for the robot to answer. Any error fails the test: see RunScript. The script may
/// use the test framework's checks; it accesses windows only through Robot::Ask and Robot::WaitFor.
void RunWithRobot(const std::function<void(Robot&)>& script, const std::function<void()>& guiAction = {});

} // namespace testbench
