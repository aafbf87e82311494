#include "tests/frame/FrameTools.h"

namespace testbench {

const char* const KeyOfOk = "Alt+O";
const bool ReturnOpensLists = true;

} // namespace testbench
