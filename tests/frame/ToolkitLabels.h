// Texts in windows that the desktop toolkit builds by itself.
#pragma once

#include <string>
#include <vector>

namespace testbench {

/// The texts, in UTF-8, of all labels that can be seen in open windows of this GTK class ("GtkAboutDialog").
/// To be called in the window thread.
std::vector<std::string> ShownLabels(const std::string& windowClass);

} // namespace testbench
