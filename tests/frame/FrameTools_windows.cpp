#include "tests/frame/FrameTools.h"

namespace testbench {

const char* const KeyOfOk = "Return";
const bool ReturnOpensLists = false;

} // namespace testbench
