// The channel file: one page of memories as an XML document.
#pragma once

class wxString;
class wxXmlDocument;

/// Reads a parsed channel file into page, which must be the current one: its radio, band and type
/// become those of the file. 0, or the code of what is missing (101 to 109). Nothing of the
/// header is stored unless type, radio and band are all known. Whatever the answer, row 0 holds a
/// default row and the cells have the editors of the page.
int OpenZelkFile(const wxXmlDocument& document, int page);

/// Opens the file of this name, relative to the working folder or whole, into the current page, as File >
/// Open does once the user has chosen. False after a message box that tells why not: the page is untouched if
/// the file is no XML document, and reset otherwise.
bool OpenChannelFile(const wxString& path);

/// Writes the complete rows of page to its file; asks for a name when the page has none or
/// saveAs is true, and before it replaces a file that the page has neither opened nor saved. The former file
/// stays whole until the new one is. The status bar tells what was saved, which rows with data were left out,
/// and why a file could not be written.
void SaveZelkFile(int page, bool saveAs);
