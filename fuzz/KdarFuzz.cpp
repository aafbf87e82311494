// Comma-separated lists of the KDAR-2000.
#include "catalogue/RadioTables.h"
#include "files/CsvImport.h"
#include "fuzz/FileFuzz.h"
#include "fuzz/Mutation.h"

using namespace RadioCatalogue;

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    MakeFuzzWindow({{Kdar2000, 0}});
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    return FuzzFile(data, size, KdarFile, [](const wxString& path) {
        wxFFile file(path, "rb");
        Import_KDAR(file);
    });
}

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t* data, size_t size, size_t most, unsigned seed) {
    return Mutate(data, size, most, seed, [](std::string_view input, size_t longest, Dice& dice) {
        return MutatedPieces(input, PiecesOfList(input, dice), longest, dice);
    });
}
