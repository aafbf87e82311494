// Channel lines of the analog radios, also on the page of a module, where each row has its own band.
#include "catalogue/RadioTables.h"
#include "fuzz/Mutation.h"
#include "fuzz/RecordFuzz.h"
#include "transfer/AnalogInformation.h"
#include "transfer/AnalogRecord.h"
#include "transfer/TransferContext.h"

using namespace RadioCatalogue;

namespace {

/// A row that was read is one that can be sent, and its line names the row again.
void CheckSent(int row) {
    TransferContext context;
    wxString line;
    Demand(encodeAnalogRecord(context, CurrentGrid(), row, line) == 0, "a row that was read can't be sent");
    Demand(decodeAnalogRecord(context, CurrentGrid(), line) == 1, "a line that was made can't be read");
    Demand(context.Work1 == row, "the line of a row names another row");
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    MakeFuzzWindow({{Kdrv4xxx, ModuleSlot}, {Krv214, 0}});
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    return FuzzRecord(data, size, [](const wxString& line) {
        TransferContext context;
        const AnalogInformation information = ParseInformation(line);
        Demand(information.productCode <= 0xF, "the product code is more than a digit");
        Demand(GetPibNumber(information.rowCount) <= 0xFF, "the PIB number is more than a byte");
        if (decodeAnalogRecord(context, CurrentGrid(), line) == 1)
            CheckSent(context.Work1);
    });
}

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t* data, size_t size, size_t most, unsigned seed) {
    return Mutate(data, size, most, seed, [](std::string_view input, size_t longest, Dice& dice) {
        return MutatedPieces(input, PiecesOfColumns(input, dice), longest, dice);
    });
}
