// Channel lines of the analog radios, on the page of a module, where each row has its own band.
#include "fuzz/RecordFuzz.h"
#include "transfer/AnalogInformation.h"
#include "transfer/AnalogRecord.h"
#include "transfer/TransferContext.h"

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    MakeFuzzWindow();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    return FuzzRecord(data, size, RadioCatalogue::Kdrv4xxx, RadioCatalogue::ModuleSlot,
                      [](const wxString& line) {
                          TransferContext context;
                          ParseInformation(line);
                          decodeAnalogRecord(context, CurrentGrid(), line);
                      });
}
