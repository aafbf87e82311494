// Text files of a simulated radio: reads lines and skips comments, writes complete files.
#pragma once

#include "simulator/Result.h"

#include <functional>
#include <string>

namespace Simulator {

enum class Missing { IsEmpty, IsError };

/// Passes each line, without its end, to `take`, until that refuses one. Skips empty lines and lines that
/// begin with '#'. A failure names the file, the refused line and the reason.
[[nodiscard]] Failure ReadLines(const std::string& path, Missing missing,
                                const std::function<Failure(const std::string& line)>& take);

/// Writes the file in one step: at any time it holds either the old or the new text.
[[nodiscard]] Failure WriteTextFile(const std::string& path, const std::string& text);

} // namespace Simulator
