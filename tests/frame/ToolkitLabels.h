// Texts in windows that the desktop toolkit builds itself.
#pragma once

#include <string>
#include <vector>

namespace testbench {

/// The texts, in UTF-8, of all visible labels in open windows of this GTK class ("GtkAboutDialog"). Call only
/// from the window thread.
std::vector<std::string> ShownLabels(const std::string& windowClass);

} // namespace testbench
