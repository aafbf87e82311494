// Lists of the analog radios, on pages with and without bands of their rows, and on P25 pages.
#include "catalogue/RadioTables.h"
#include "files/ImportMultiZEL.h"
#include "fuzz/FileFuzz.h"
#include "fuzz/Mutation.h"

#include <wx/textfile.h>

using namespace RadioCatalogue;

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    MakeFuzzWindow({{Kdrv4xxx, ModuleSlot}, {Kdrv716B, 0}, {Krv650, 0}, {Krv214, 0}});
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    return FuzzFile(data, size, MultiZELFile, [](const wxString& path) {
        wxTextFile lines;
        if (lines.Open(path, wxConvAuto(wxFONTENCODING_ISO8859_1)))
            ImportMultiZEL(lines);
    });
}

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t* data, size_t size, size_t most, unsigned seed) {
    return Mutate(data, size, most, seed, [](std::string_view input, size_t longest, Dice& dice) {
        return MutatedPieces(input, PiecesOfColumns(input, dice), longest, dice);
    });
}
