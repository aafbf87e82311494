// Comma-separated lists of any radio, on a P25 page, which has all their columns.
#include "files/CsvImport.h"
#include "fuzz/FileFuzz.h"

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    MakeFuzzWindow();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    return FuzzFile(data, size, RadioCatalogue::Kdrv716, 0, [](const wxString& path) {
        wxFFile file(path, "rb");
        Import_CSV(file);
    });
}
