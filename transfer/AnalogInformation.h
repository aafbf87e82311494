// What an analog radio tells of itself before a transfer.
#pragma once

#include <cstdint>
#include <wx/arrstr.h>
#include <wx/string.h>

/// The fields of an information block.
struct AnalogInformation {
    std::uint32_t productCode = 0; ///< 0 to 15, 0 also where the block has none
    wxString version;              ///< of the firmware
    wxString serial;
    std::int32_t rowCount = 0;    ///< channels that the radio holds
    std::int32_t configCount = 0; ///< configuration lines that the radio holds
    wxString field4, field5;      ///< of unknown use
    wxArrayString fields;         ///< all of them, those that an older radio lacks filled in
};

/// The block of a radio that isn't asked or doesn't answer: 200 channels, no configuration. The blank that
/// it begins with stands where others have their product code.
inline constexpr const char* UnknownInformation = " UNKNOWN:UNKNOWN:200:0:UNKNOWN:UNKNOWN:";

/// Splits an information block at its colons; a backslash takes the meaning from a colon. Older radios,
/// whose second field is "T" or "Y", tell no serial number and no counts: theirs are "UNKNOWN", 200 and 11.
/// Fields that the block lacks are empty, and 0.
AnalogInformation ParseInformation(const wxString& block);

/// The PIB number of a radio index, 0 to 19: 0 for a radio that takes commands at once, else what the "rt"
/// command carries that opens it. 10, of no radio of the catalogue, stands for one that is asked for its
/// information block. 0 for any other index.
int GetPibNumber(int radio);

/// The PIB number of a radio that is asked for its information block.
constexpr int AskingPibNumber = 10;
