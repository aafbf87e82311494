// Memory records of the digital radios, layout V2, and the checks that all their lines go through.
#include "fuzz/RecordFuzz.h"
#include "transfer/TRecord.h"
#include "transfer/TRecordCodec.h"

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    MakeFuzzWindow();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    return FuzzRecord(data, size, RadioCatalogue::Kdrv716B, 0, [](const wxString& line) {
        HasGoodChecksum(line);
        IsGoodConfigText(HexToText(line));
        decodeTrecordV2(CurrentGrid(), line);
    });
}
