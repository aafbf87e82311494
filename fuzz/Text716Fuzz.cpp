// Printed lists of the KDRV-716 family.
#include "files/Import716.h"
#include "fuzz/FileFuzz.h"

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    MakeFuzzWindow();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    return FuzzFile(data, size, RadioCatalogue::Kdrv716, 0, [](const wxString& path) {
        wxFFile file(path, "rb");
        Import716_Text(file);
    });
}
