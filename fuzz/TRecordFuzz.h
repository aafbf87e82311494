// Common part of the fuzzers of the digital radios' records.
#pragma once

#include <wx/string.h>

#include <cstdint>

/// Reads a line, with or without its checksum, as a record of configuration and as a memory record of the
/// layout V1 or V2. Aborts the program, as a finding, unless what was read can be sent and read again.
void ReadTRecordLine(uint32_t version, wxString line);
