// Printed lists of the KDRV-716 family.
#include "catalogue/RadioTables.h"
#include "files/Import716.h"
#include "fuzz/FileFuzz.h"
#include "fuzz/Mutation.h"

using namespace RadioCatalogue;

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    MakeFuzzWindow({{Kdrv716, 0}, {Kdrv716B, 0}});
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    return FuzzFile(data, size, Text716File, [](const wxString& path) {
        wxFFile file(path, "rb");
        Import716_Text(file);
    });
}

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t* data, size_t size, size_t most, unsigned seed) {
    return Mutate(data, size, most, seed, [](std::string_view input, size_t longest, Dice& dice) {
        return MutatedPieces(input, PiecesOfColumns(input, dice), longest, dice);
    });
}
