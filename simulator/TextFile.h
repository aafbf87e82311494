// Text files of a simulated radio: lines with comments in, whole files out.
#pragma once

#include <functional>
#include <string>

namespace Simulator {

enum class Missing { IsEmpty, IsTrouble };

/// Gives each line to `take`, without its end; empty lines and those that begin with '#' are passed over.
/// `take` answers false with a reason to refuse a line: then, or if the file can't be read, the answer is
/// false with file, line and reason in `trouble`.
bool ReadLines(const std::string& path, Missing missing,
               const std::function<bool(const std::string& line, std::string& why)>& take,
               std::string& trouble);

/// Writes the file in one step: it holds the old or the new text at any moment. Answers false with the
/// reason in `trouble` when that can't be done.
bool WriteTextFile(const std::string& path, const std::string& text, std::string& trouble);

} // namespace Simulator
