// Mutation of the digital radios' records: of their bytes, not of the digits that write them.
#pragma once

#include "fuzz/Mutation.h"

#include <string>
#include <string_view>

/// Returns a record, without its carriage return, with some bytes changed. Its count and, if it has one, its
/// checksum fit again. A line that is no record is changed as text.
std::string MutatedRecord(std::string_view line, bool hasChecksum, Dice& dice);
