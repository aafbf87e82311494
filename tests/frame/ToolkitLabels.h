// Texts in windows that the desktop toolkit builds itself.
#pragma once

#include <string>
#include <vector>

namespace testbench {

/// The texts, in UTF-8, of all visible labels in the About box. Call only from the window thread.
std::vector<std::string> AboutBoxLabels();

/// How the toolkit's About box shows a program's name and version: as one label or as two.
std::vector<std::string> NameLabels(const std::string& name, const std::string& version);

} // namespace testbench
