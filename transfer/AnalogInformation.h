// Information that an analog radio reports about itself before a transfer.
#pragma once

#include <wx/arrstr.h>
#include <wx/string.h>

#include <cstdint>

/// Fields of an information block.
struct AnalogInformation {
    uint32_t productCode = 0; ///< 0 to 15, 0 if the block has none
    wxString version;         ///< firmware version
    wxString serial;
    int32_t rowCount = 0;    ///< channels that the radio holds
    int32_t configCount = 0; ///< configuration lines that the radio holds
    wxString field4, field5; ///< use unknown
    wxArrayString fields;    ///< all fields, including those filled in for an older radio
};

/// Block of a radio that isn't asked or doesn't answer: 200 channels, no configuration. The leading blank
/// takes the place of the product code.
inline constexpr const char* UnknownInformation = " UNKNOWN:UNKNOWN:200:0:UNKNOWN:UNKNOWN:";

/// Splits an information block at its colons; a backslash escapes a colon. Older radios, whose second field
/// is "T" or "Y", send no serial number and no counts: these become "UNKNOWN", 200 and 11. Missing fields are
/// empty, missing numbers 0.
AnalogInformation ParseInformation(const wxString& block);

/// Returns the PIB number of a radio index, 0 to 19. 0 for a radio that takes commands at once, otherwise the
/// number in the "rt" command that opens the radio. 10, which no radio of the catalogue has, is for a radio
/// that is asked for its information block. 0 for any other index.
int GetPibNumber(int radio);

/// PIB number of a radio that is asked for its information block.
constexpr int AskingPibNumber = 10;
