// A robot's script and the windows it works on, side by side.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace testbench {

class Robot;

/// Called in the window thread: runs `script` in a thread of its own and `guiAction` (something that
/// may open modal dialogs, which the script then answers) here, then keeps the windows alive until the
/// script has ended. Gives what went wrong, a line each: an exception of either; a modal dialog that
/// still stands open five seconds after the script's end, which is then cancelled.
std::vector<std::string> RunScript(const std::function<void(Robot&)>& script,
                                   const std::function<void()>& guiAction = {});

} // namespace testbench
