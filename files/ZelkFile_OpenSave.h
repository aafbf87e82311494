// Channel file: one page of memories as an XML document.
#pragma once

class wxString;
class wxXmlDocument;

/// Reads a parsed channel file into page, which must be the current one and takes over the file's radio, band
/// and type. Returns 0, or the code of what is missing (101 to 109). Nothing of the header is stored unless
/// type, radio and band are all known. In every case row 0 then holds a default row and the cells have the
/// editors of the page.
[[nodiscard]] int OpenZelkFile(const wxXmlDocument& document, int page);

/// Opens the file of this name (absolute, or relative to the working folder) into the current page, as File >
/// Open does once the user has chosen. Returns false after a message box with the reason. The page is then
/// unchanged if the file is not an XML document, otherwise reset.
bool OpenChannelFile(const wxString& path);

/// Writes the complete rows of page to its file. Asks for a name if the page has none or saveAs is true, and
/// asks before it replaces a file that the page has neither opened nor saved. The former file stays intact
/// until the new one is complete. The status bar reports what was saved, which rows with data were left out,
/// and why a file could not be written.
void SaveZelkFile(int page, bool saveAs);
