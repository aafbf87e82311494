// Regular expressions over UTF-8 texts.
#pragma once

#include <string>

namespace testbench {

/// Whether the Perl-like expression is found somewhere in the text. Both are UTF-8. Throws
/// std::runtime_error if the expression isn't one.
bool Finds(const std::string& expression, const std::string& text);

/// Whether the expression matches the whole text.
bool MatchesWhole(const std::string& expression, const std::string& text);

} // namespace testbench
