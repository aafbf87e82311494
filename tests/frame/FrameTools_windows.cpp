#include "tests/frame/FrameTools.h"

namespace testbench {

const char* const KeyOfOk = "Return";

} // namespace testbench
