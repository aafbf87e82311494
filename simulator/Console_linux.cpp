#include "simulator/Console.h"

namespace Simulator {

std::vector<std::string> TakeArguments(int argc, char** argv) {
    return {argv + 1, argv + argc};
}

} // namespace Simulator
