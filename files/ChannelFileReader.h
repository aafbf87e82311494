// From the document of a channel file to the grid.
#pragma once

#include <wx/string.h>

class wxXmlDocument;
class wxXmlNode;

namespace ChannelFile {

/// What a channel file can lack; the user sees the number.
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
    OtherElement = 109, ///< among the memories; those before it have been read
};

/// The page that a file is for.
struct Target {
    int type = 0;      ///< radio type, 0 to 7
    int radio = 0;     ///< radio index
    int band = 0;      ///< band id
    int bandIndex = 0; ///< band slot of the radio
};

/// Reads the header of a document. On ReadDone target is filled and memories is the first element
/// behind the header, or null; otherwise the answer is the code of what is missing or not in the
/// catalogue. A type of the other family than its radio's (P25 or not) counts as unknown.
int ReadHeader(const wxXmlDocument& document, Target& target, const wxXmlNode*& memories);

/// Reads memories into the grid of page (0-based, the current one), whose target must be the file's,
/// and gives the page its editors. ReadDone or OtherElement.
int ReadMemories(const wxXmlNode* memories, int page);

} // namespace ChannelFile
