// From the grid to the document of a channel file.
#pragma once

#include <wx/string.h>

#include <vector>

class wxXmlDocument;

/// The text of a column's element for a cell text. number is the memory number written last: a
/// number that can't be read is written as that one.
wxString ChannelFileText(int column, const wxString& text, int& number);

/// Fills an empty document from the complete rows of page (0-based), which must be the current one.
/// Gives the rows, ascending and row 0 among them, that have data but were left out.
std::vector<int> BuildChannelFile(int page, wxXmlDocument& document);
