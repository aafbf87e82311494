// Regular expressions over UTF-8 texts.
#pragma once

#include <string>

namespace testbench {

/// True if the Perl-like expression matches anywhere in the text. Both are UTF-8. Throws
/// std::runtime_error if the expression is invalid.
bool Finds(const std::string& expression, const std::string& text);

/// True if the expression matches the whole text. Encoding and failure as for Finds.
bool MatchesWhole(const std::string& expression, const std::string& text);

} // namespace testbench
