// Binary memory files of the KDRV-716 family: the input is a header, which is skipped, and records.
#include "catalogue/PageModel.h"
#include "files/FileKind.h"
#include "files/Import716.h"
#include "fuzz/FileFuzz.h"
#include "fuzz/Mutation.h"

#include <algorithm>

using namespace RadioCatalogue;

namespace {

/// Records, which can move, or parts of them that stay.
Pieces PiecesOfFile(std::string_view input, Dice& dice) {
    constexpr size_t wordSize = 2, longestText = 10;
    const size_t choice = Throw(dice, 4);
    if (choice == 0) {
        Pieces records = SplitEvery(input, HeaderSize716, RecordSize716);
        records.stay = false;
        return records;
    }
    return SplitEvery(input, HeaderSize716, choice == 1 ? longestText : wordSize);
}

/// The record at the start of the input takes some of its bytes, and never more than a record has.
void CheckRecord(std::string_view input) {
    Record716 record;
    const size_t taken = Read716Record(input, CurrentParameters().Type, record);
    Demand(taken <= std::min(input.size(), RecordSize716), "a record takes too many bytes");
    Demand((taken == 0) == (input.size() < 2), "a record takes no byte");
    Dump716Record(record);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    MakeFuzzWindow({{Kdrv716, 0}, {Kdrv716B, 0}});
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    CheckRecord({reinterpret_cast<const char*>(data), size});
    return FuzzFile(data, size, Binary716File, [](const wxString& path) {
        wxFFile file(path, "rb");
        file.Seek(HeaderSize716);
        Import716_Binary(file);
    });
}

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t* data, size_t size, size_t most, unsigned seed) {
    return Mutate(data, size, most, seed, [](std::string_view input, size_t longest, Dice& dice) {
        return MutatedPieces(input, PiecesOfFile(input, dice), longest, dice);
    });
}
