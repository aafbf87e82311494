#include "tests/transfer/RadioPeerEnd.h"

#include <stdexcept>

namespace transfertest {

std::unique_ptr<RadioPeer::End> RadioPeer::AtRealPort() {
    throw std::logic_error("a test in real time needs a pseudo-terminal");
}

} // namespace transfertest
