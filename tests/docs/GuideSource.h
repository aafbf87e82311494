// The source of the user guide, for tests.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace docstest {

/// The unchanged chapters of the guide below `folder`, in its order.
std::string GuideSource(const std::filesystem::path& folder);

/// The text with each run of white space replaced by one blank, and none at its ends.
std::string Squeezed(const std::string& text);

/// AsciiDoc as a reader sees it, to the extent that tests need: squeezed, and without the marks of code,
/// escapes and line breaks.
std::string PlainText(const std::string& source);

/// The first cells of the rows of the table of messages, as plain text.
std::vector<std::string> MessageCells(const std::string& source);

/// True if the cell is the message, or contains it after a title or before more lines. Where the message has
/// a format's placeholder (%d, %03d, %s), the cell may have any text.
bool CellHasMessage(const std::string& cell, const std::string& message);

} // namespace docstest
