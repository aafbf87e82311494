#include "tests/support/RunWithRobot.h"

#include "robot/RunScript.h"
#include "tests/support/Modals.h"

#include <gtest/gtest.h>

namespace testbench {

void RunWithRobot(const std::function<void(Robot&)>& script, const std::function<void()>& guiAction) {
    const ShowDialogs shown;
    for (const std::string& problem : RunScript(script, guiAction)) {
        ADD_FAILURE() << problem;
    }
}

} // namespace testbench
