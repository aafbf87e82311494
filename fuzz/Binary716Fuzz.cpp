// Binary memory files of the KDRV-716 family: the input is a header, which is skipped, and records.
#include "files/FileKind.h"
#include "files/Import716.h"
#include "fuzz/FileFuzz.h"

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    MakeFuzzWindow();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    return FuzzFile(data, size, RadioCatalogue::Kdrv716, 0, [](const wxString& path) {
        wxFFile file(path, "rb");
        file.Seek(HeaderSize716);
        Import716_Binary(file);
    });
}
