// Lists of the analog radios, on the page of a module, where each row has its own band.
#include "files/ImportMultiZEL.h"
#include "fuzz/FileFuzz.h"

#include <wx/textfile.h>

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    MakeFuzzWindow();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    return FuzzFile(data, size, RadioCatalogue::Kdrv4xxx, RadioCatalogue::ModuleSlot,
                    [](const wxString& path) {
                        wxTextFile lines;
                        if (lines.Open(path, wxConvAuto(wxFONTENCODING_ISO8859_1)))
                            ImportMultiZEL(lines);
                    });
}
