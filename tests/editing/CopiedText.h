// The text on the clipboard.
#pragma once

#include <string>

namespace testbench {

/// Returns the text on the clipboard in UTF-8, with line ends as other programs get them; "(nothing)" if
/// there is no text. One source file for each operating system.
std::string TextOnClipboard();

} // namespace testbench
