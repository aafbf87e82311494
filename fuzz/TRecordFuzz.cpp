#include "fuzz/TRecordFuzz.h"

#include "catalogue/MemoryRow.h"
#include "catalogue/PageModel.h"
#include "fuzz/FuzzWindow.h"
#include "transfer/HexText.h"
#include "transfer/TRecord.h"
#include "transfer/TRecordCodec.h"
#include "transfer/TransferContext.h"

namespace {

constexpr size_t ChecksumLength = 2;
constexpr size_t AddressPosition = 4, AddressLength = 4;

int AddressOf(const wxString& record) {
    return static_cast<int>(HexNumberAt(record, AddressPosition, AddressLength));
}

/// Returns the row of a record. On pages of the second generation, V1 has the guards after the 230th memory.
int RowOf(uint32_t version, const wxString& record) {
    using namespace RadioCatalogue;
    const int address = AddressOf(record);
    const bool isGuard = version == 1 && CurrentParameters().Radio == Kdrv716B && address > RP25Memories;
    return isGuard ? address + NP25GuardShift : address;
}

void DemandFrame(const wxString& record) {
    Demand(HasGoodChecksum(WithChecksum(record)), "a record that was made has no good checksum");
}

void CheckConfiguration(const wxString& record) {
    const wxString text = HexToText(record);
    IsGoodConfigText(text);
    TRecordContext context;
    wxString made;
    encodeConfigRecord(context, text, made);
    DemandFrame(made);
    Demand(HexToText(made) == text, "a configuration text changes on its way");
}

void CheckMemory(TRecordContext& context, const wxString& record) {
    wxGrid* grid = CurrentGrid();
    const int row = RowOf(context.RecordVersion, record);
    SetTFlag(grid, row, SEL);
    wxString made;
    encodeEraseRecord(context, row, made);
    if (!made.empty())
        DemandFrame(made);
    encodeTrecord(context, grid, row, made);
    // V1 has no record for most memories of the second generation.
    if (made.empty())
        return;
    DemandFrame(made);
    Demand(AddressOf(made) == AddressOf(record), "a row that was read is sent as another");
    Demand(decodeTrecord(context, grid, made) == 1, "a record that was made can't be read");
}

} // namespace

void ReadTRecordLine(uint32_t version, wxString line) {
    if (HasGoodChecksum(line))
        line.RemoveLast(ChecksumLength);
    CheckConfiguration(line);
    TRecordContext context;
    context.RecordVersion = version;
    if (decodeTrecord(context, CurrentGrid(), line) == 1)
        CheckMemory(context, line);
}
