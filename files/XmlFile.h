// Loads an XML file without trusting its content.
#pragma once

#include <string_view>

class wxString;
class wxXmlDocument;

/// False for markup that makes the toolkit's parser run far too long or ends the program: elements
/// nested more than 64 deep, a tag with more than 64 attributes, a tag, comment or text of more
/// than 64 KiB, a text in many pieces, a document type with its own declarations. Does not check
/// whether the bytes are XML at all.
[[nodiscard]] bool IsHarmlessMarkup(std::string_view bytes);

/// Parses the file into document, without texts of white space only. Returns false if it can't be
/// read, is not a file of at most 16 MiB, isn't harmless or isn't well-formed; document is then
/// unusable.
[[nodiscard]] bool LoadXmlFile(const wxString& path, wxXmlDocument& document);
