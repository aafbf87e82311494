// Text files of a simulated radio: reads lines and skips comments, writes complete files.
#pragma once

#include <functional>
#include <string>

namespace Simulator {

enum class Missing { IsEmpty, IsError };

/// Passes each line, without its end, to `take`. Skips empty lines and lines that begin with '#'. To refuse a
/// line, `take` returns false and puts the reason into `why`. Then, or if the file can't be read, returns
/// false and puts file, line (if one was refused) and reason into `problem`.
bool ReadLines(const std::string& path, Missing missing,
               const std::function<bool(const std::string& line, std::string& why)>& take,
               std::string& problem);

/// Writes the file in one step: at any time it holds either the old or the new text. On failure returns false
/// and puts the reason into `problem`.
bool WriteTextFile(const std::string& path, const std::string& text, std::string& problem);

} // namespace Simulator
