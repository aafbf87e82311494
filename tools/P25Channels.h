// The memories of P25 radios, for the lists of channels.
#pragma once

#include "tools/Channel.h"

#include <map>
#include <string>

class wxGrid;

namespace Tour {

/// A memory from the elements of a channel file, by name. Numbers, frequencies and unit ids count by their
/// value: leading zeros, and zeros at the end of a frequency, say nothing.
Channel P25OfElements(const std::map<std::string, std::string>& elements);

/// The same elements from a row of a P25 page.
std::map<std::string, std::string> P25ElementsOfRow(wxGrid& grid, int row);

/// True for a line of the memory file of a digital radio.
bool IsP25Record(const std::string& line);

/// Adds the memory of such a line, but for memory 0. Throws std::runtime_error on the old layout.
void AddP25Record(const std::string& line, ChannelList& channels);

/// Tells primaries of their shadows, as a radio does, from what the shadows say: each has its place (the low
/// flags) in the list of its primary.
void LinkP25Shadows(ChannelList& channels);

std::string Describe(const P25Facts& facts);

/// The channels of a P25 page as the page shows them when the radio has sent them back: every code comes
/// one place further down the list, and where that has an end, the default row's stands. The default row
/// came from the radio too.
///
/// @param defaultCode the default row's code before it was sent; "023" on a new page
ChannelList AsReadBack(ChannelList channels, const std::string& defaultCode);

} // namespace Tour
