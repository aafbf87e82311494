// Runs a robot's script in parallel to the windows that it works on.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace testbench {

class Robot;

/// Runs `script` in a separate thread and `guiAction` in the calling thread, then dispatches events until the
/// script has ended. Call in the window thread. `guiAction` may open modal dialogs, which the script answers.
/// Returns the problems, one line each: exceptions of either, and modal dialogs that are still open five
/// seconds after the script's end. Such dialogs are cancelled.
std::vector<std::string> RunScript(const std::function<void(Robot&)>& script,
                                   const std::function<void()>& guiAction = {});

} // namespace testbench
