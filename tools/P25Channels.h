// Reads memories of P25 radios into lists of channels.
#pragma once

#include "tools/Channel.h"

#include <map>
#include <string>

class wxGrid;

namespace Tour {

/// Reads a memory from the elements of a channel file, by name. Takes numbers, frequencies and unit IDs by
/// value: ignores leading zeros, and trailing zeros of a frequency.
Channel P25OfElements(const std::map<std::string, std::string>& elements);

/// Returns the same elements from a row of a P25 page.
std::map<std::string, std::string> P25ElementsOfRow(wxGrid& grid, int row);

/// True for a line of the memory file of a digital radio.
bool IsP25Record(const std::string& line);

/// Adds the memory of such a line, except memory 0. Throws std::runtime_error on the old layout.
void AddP25Record(const std::string& line, ChannelList& channels);

/// Builds the primaries' lists of shadows, as a radio does. Each shadow names its primary and its place (the
/// low flags) in that list.
void LinkP25Shadows(ChannelList& channels);

std::string Describe(const P25Facts& facts);

/// Returns the channels of a P25 page as the page shows them after they are read back from the radio. Each
/// code is one place further down the list. A code without a next one becomes the default row's code, also
/// one place further down, because the default row came from the radio too.
///
/// @param defaultCode the default row's code before sending; "023" on a new page
ChannelList AsReadBack(ChannelList channels, const std::string& defaultCode);

} // namespace Tour
