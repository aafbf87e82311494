// Builds the document of a channel file from the grid.
#pragma once

#include <wx/string.h>

#include <vector>

class wxXmlDocument;

/// Returns the text of a column's element for a cell text. number is the last memory number
/// written; it is written again for a number that can't be read.
wxString ChannelFileText(int column, const wxString& text, int& number);

/// Fills an empty document from the complete rows of page (0-based), which must be the current one.
/// Returns the rows with data that were left out, ascending; row 0 may be among them.
[[nodiscard]] std::vector<int> BuildChannelFile(int page, wxXmlDocument& document);
