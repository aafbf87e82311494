// Headers and field masks of CSV files.
#pragma once

#include "catalogue/RadioTables.h"

namespace RadioCatalogue {

constexpr int CsvFieldTotal = 20;

/// First line of a CSV file.
/// Intentional: the comma at its end.
inline constexpr const char* CsvHeader =
    "MNUM,BAND,SCAN,ZONE,DESC,MODE,RFRQ,RSQL,RNSV,RTON,RCOD,RTGP,RNAC,TFRQ,TSQL,TTON,TCOD,TTGP,TNAC,TIDC,";

/// Header and purge banner of the KDAR dialect.
inline constexpr const char* KdarCsvHeader = "Memory,Name,Receive,Transmit,Scan,Rx Only";
inline constexpr const char* KdarCsvBanner = "KDAR-2000,Purge,,,,";

// clang-format off
/// 1 for each field of CsvHeader that a radio type has, by radio type and then position.
inline constexpr unsigned char CsvFieldMask[TypeTotal][CsvFieldTotal] = {
    // MNUM BAND SCAN ZONE DESC MODE RFRQ RSQL RNSV RTON RCOD RTGP RNAC TFRQ TSQL TTON TCOD TTGP TNAC TIDC
    {  1,   0,   1,   0,   1,   1,   1,   0,   0,   1,   1,   0,   0,   1,   0,   1,   1,   0,   0,   0  }, // ANFM
    {  1,   0,   1,   1,   1,   1,   1,   1,   0,   1,   1,   1,   1,   1,   1,   1,   1,   1,   1,   1  }, // RP25
    {  1,   0,   1,   1,   1,   1,   1,   1,   1,   1,   1,   1,   1,   1,   1,   1,   1,   1,   1,   1  }, // NP25
    {  1,   1,   1,   0,   1,   1,   1,   0,   0,   1,   1,   0,   0,   1,   0,   1,   1,   0,   0,   0  }, // MDLX
    {  1,   0,   0,   0,   0,   0,   1,   0,   0,   0,   0,   0,   0,   0,   0,   0,   0,   0,   0,   0  }, // O12
    {  1,   0,   1,   0,   1,   0,   1,   0,   0,   0,   0,   0,   0,   1,   0,   0,   0,   0,   0,   0  }, // KDAR
    {  1,   0,   1,   0,   1,   1,   1,   0,   0,   1,   0,   0,   0,   1,   0,   1,   0,   0,   0,   0  }, // ANAM
    {  1,   0,   1,   0,   1,   1,   1,   0,   0,   1,   0,   0,   0,   1,   0,   1,   0,   0,   0,   0  }, // FXAM
};
// clang-format on

} // namespace RadioCatalogue
