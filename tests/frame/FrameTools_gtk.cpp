#include "tests/frame/FrameTools.h"

namespace testbench {

const char* const KeyOfOk = "Alt+O";

} // namespace testbench
