// Command line and output of the program. One source file for each operating system.
#pragma once

#include <string>
#include <vector>

namespace Simulator {

/// Returns the arguments of `main` after the program's name, in UTF-8. Lets the terminal show texts in UTF-8.
std::vector<std::string> TakeArguments(int argc, char** argv);

} // namespace Simulator
