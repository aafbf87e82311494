// Loading an XML file that may be anything.
#pragma once

#include <string_view>

class wxString;
class wxXmlDocument;

/// False for markup that the toolkit's parser takes far too long over, or ends the program with:
/// elements nested more than 64 deep, a tag with more than 64 attributes, a tag, comment or text of
/// more than 64 KiB, a text in many pieces, a document type with declarations of its own. Says
/// nothing of whether the bytes are XML at all.
bool IsHarmlessMarkup(std::string_view bytes);

/// Parses the file into document, without texts of white space only. False when it can't be read,
/// is no file of at most 16 MiB, isn't harmless or isn't well-formed; document is then of no use.
bool LoadXmlFile(const wxString& path, wxXmlDocument& document);
