// Comma-separated lists of any radio: on a P25 page, which has all their columns but one, and on that of a
// module.
#include "catalogue/RadioTables.h"
#include "files/CsvImport.h"
#include "fuzz/FileFuzz.h"
#include "fuzz/Mutation.h"

using namespace RadioCatalogue;

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    MakeFuzzWindow({{Kdrv716, 0}, {Kdrv4xxx, ModuleSlot}});
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    return FuzzFile(data, size, CsvFile, [](const wxString& path) {
        wxFFile file(path, "rb");
        Import_CSV(file);
    });
}

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t* data, size_t size, size_t most, unsigned seed) {
    return Mutate(data, size, most, seed, [](std::string_view input, size_t longest, Dice& dice) {
        return MutatedPieces(input, PiecesOfList(input, dice), longest, dice);
    });
}
