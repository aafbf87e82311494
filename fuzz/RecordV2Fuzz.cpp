// Memory records of the digital radios, layout V2, and the checks that all their lines go through.
#include "catalogue/RadioTables.h"
#include "fuzz/RecordFuzz.h"
#include "fuzz/RecordMutation.h"
#include "fuzz/TRecordFuzz.h"

using namespace RadioCatalogue;

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    MakeFuzzWindow({{Kdrv716B, 0}, {Kdrv716, 0}});
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    return FuzzRecord(data, size, [](const wxString& line) { ReadTRecordLine(2, line); });
}

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t* data, size_t size, size_t most, unsigned seed) {
    return Mutate(data, size, most, seed, [](std::string_view input, size_t, Dice& dice) {
        return MutatedRecord(input, true, dice);
    });
}
