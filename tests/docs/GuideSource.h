// The source of the user guide, as tests read it.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace docstest {

/// The chapters of the guide below `folder`, in its order, as they stand.
std::string GuideSource(const std::filesystem::path& folder);

/// The text with each stretch of white space made one blank, and none at its ends.
std::string Squeezed(const std::string& text);

/// AsciiDoc as a reader sees it, as far as tests need it: without the marks of code, kept apart from its own
/// signs, and of line breaks; squeezed.
std::string PlainText(const std::string& source);

/// The first cells of the rows of the table of messages, as plain text.
std::vector<std::string> MessageCells(const std::string& source);

/// True when the cell is the message, or holds it behind a title or before more lines. Where the message has
/// a placeholder of a format (%d, %03d, %s), the cell may have any text.
bool CellHasMessage(const std::string& cell, const std::string& message);

} // namespace docstest
