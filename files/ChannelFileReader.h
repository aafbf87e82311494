// Reads the document of a channel file into the grid.
#pragma once

#include <wx/string.h>

class wxXmlDocument;
class wxXmlNode;

namespace ChannelFile {

/// Results of reading a channel file: the part that is missing or unknown. The user sees the number.
enum ReadResult : int {
    ReadDone = 0,
    NoRoot = 101,
    OtherRoot = 102,
    NoVersion = 103,
    NoDate = 104,
    NoTime = 105,
    NoType = 106,
    NoRadio = 107,
    NoBand = 108,
    OtherElement = 109, ///< unknown element among the memories; those before it have been read
};

/// Type, radio and band of the page that a file is for.
struct Target {
    int type = 0;      ///< radio type, 0 to 7
    int radio = 0;     ///< radio index
    int band = 0;      ///< band id
    int bandIndex = 0; ///< band slot of the radio
};

/// Reads the header of a document. On ReadDone, target is filled and memories is the first element
/// after the header, or null. Otherwise returns the code of the part that is missing or not in the
/// catalogue. A type whose family (P25 or not) differs from its radio's counts as unknown.
[[nodiscard]] int ReadHeader(const wxXmlDocument& document, Target& target, const wxXmlNode*& memories);

/// Reads memories into the grid of page (0-based, the current one), whose target must be the file's,
/// and sets the page's editors. Returns ReadDone or OtherElement.
[[nodiscard]] int ReadMemories(const wxXmlNode* memories, int page);

} // namespace ChannelFile
