// Comma-separated lists of the KDAR-2000.
#include "files/CsvImport.h"
#include "fuzz/FileFuzz.h"

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    MakeFuzzWindow();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    return FuzzFile(data, size, RadioCatalogue::Kdar2000, 0, [](const wxString& path) {
        wxFFile file(path, "rb");
        Import_KDAR(file);
    });
}
