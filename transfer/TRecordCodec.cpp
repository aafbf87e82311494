#include "transfer/TRecordCodec.h"

#include "catalogue/PageModel.h"
#include "catalogue/PageTable.h"
#include "catalogue/TextNumbers.h"
#include "catalogue/ZoneSlots.h"
#include "editing/ColumnChecks.h"
#include "editing/Shadows.h"
#include "transfer/HexText.h"
#include "transfer/TRecord.h"
#include "transfer/TRecordFields.h"
#include "transfer/TRecordMessages.h"
#include "transfer/TransferContext.h"

#include <wx/grid.h>

namespace {

constexpr uint32_t V1 = 1, V2 = 2;

/// Takes a cell's text without a second copy.
void TakeCell(wxString& text, const wxGrid* grid, int row, int column) {
    grid->GetCellValue(row, column).swap(text);
}

TRecordSource SourceOf(std::span<const TRecordField> layout, wxGrid* grid, int row) {
    TRecordSource source;
    for (int column = 0; column < ColumnTotal; ++column)
        TakeCell(source.cells[column], grid, row, column);
    for (const TRecordField& field : layout)
        if (field.kind == TRecordKind::Letter && source.cells[field.column].empty())
            TakeCell(source.defaults[field.column], grid, 0, field.column);
    source.row = row;
    source.gridRows = grid->GetNumberRows();
    source.type = CurrentParameters().Type;
    return source;
}

wxString RecordOf(std::span<const TRecordField> layout, wxGrid* grid, int row) {
    return MakeTRecord(layout, SourceOf(layout, grid, row));
}

void WriteCell(wxGrid* grid, int row, const TRecordCell& cell) {
    if (cell.column == ZONE) {
        CheckZone(grid, row, cell.text.value_or(""));
    } else if (cell.text) {
        grid->SetCellValue(row, cell.column, *cell.text);
    } else {
        grid->SetCellValue(row, cell.column, grid->GetCellValue(0, cell.column));
        PaintCell(grid, row, cell.column, FailColour);
    }
}

/// Marks the row as primary, shadow or neither. A row flagged as both is a shadow.
void WriteLink(wxGrid* grid, const TRecordValues& values) {
    if (values.flags & ShadowIndexMask) {
        grid->SetCellValue(values.row, SHAD, "S-" + NumberText(values.primary));
        LockLinkedRow(values.row, ShadowRow);
    } else if (values.flags & ShadowLinkFlag) {
        grid->SetCellValue(values.row, SHAD, wxString::Format("P-%d", values.shadows));
        LockLinkedRow(values.row, PrimaryRow);
    } else {
        grid->SetCellValue(values.row, SHAD, "N");
    }
}

TRecordValues ValuesOf(std::span<const TRecordField> layout, const wxString& line) {
    return ReadTRecord(layout, line, CurrentParameters().Radio, CurrentParameters().Type);
}

/// True if at least `count` other rows use the zone. Shadows don't count: they show their primary's zone.
bool OthersInZoneReach(int count, const wxGrid* grid, int row, const wxString& zone) {
    for (int other = 1; count > 0 && other < grid->GetNumberRows(); ++other)
        if (other != row && grid->GetCellValue(other, ZONE) == zone && !IsShadow(grid, other))
            --count;
    return count <= 0;
}

/// Releases the zone slot of a row whose record came before, since the row is about to get a zone again. A
/// row whose zone was full holds no slot: then the other rows of the zone account for all its slots.
void GiveZoneBack(const wxGrid* grid, int row) {
    if (row == 0 || !CurrentPageIsP25() || !(TransferFlags(grid, row) & ZoneTakenFlag) || IsShadow(grid, row))
        return;
    const wxString zone = grid->GetCellValue(row, ZONE);
    const int position = FindZone(zone);
    if (position >= 0 && !OthersInZoneReach(ZoneSlotsOf(CurrentPage)[position], grid, row, zone))
        ReleaseP25ZonePosition(position);
}

int WriteRow(wxGrid* grid, const TRecordValues& values) {
    if (values.row < 0 || values.row >= grid->GetNumberRows())
        return 0;
    GiveZoneBack(grid, values.row);
    // The flags come first: CheckZone depends on them.
    grid->SetCellValue(values.row, MFLG, FlagText(values.flags));
    grid->SetCellValue(values.row, TFLG, TflgRead);
    grid->SetCellValue(values.row, SCAN, values.flags & ScanFlag ? "Y" : "N");
    for (const TRecordCell& cell : values.cells)
        WriteCell(grid, values.row, cell);
    WriteLink(grid, values);
    return 1;
}

} // namespace

void encodeTrecord(TRecordContext& context, wxGrid* grid, int row, wxString& out) {
    if (context.RecordVersion == V2)
        encodeTrecordV2(grid, row, out);
    else
        encodeTrecordV1(grid, row, out);
}

int decodeTrecord(TRecordContext& context, wxGrid* grid, const wxString& line) {
    return context.RecordVersion == V1 ? decodeTrecordV1(grid, line) : decodeTrecordV2(grid, line);
}

void encodeTrecordV1(wxGrid* grid, int row, wxString& out) {
    out = FitsRecordV1(CurrentParameters().Type, row) ? RecordOf(TRecordV1, grid, row) : wxString();
}

void encodeTrecordV2(wxGrid* grid, int row, wxString& out) {
    out = RecordOf(TRecordV2, grid, row);
}

int decodeTrecordV1(wxGrid* grid, const wxString& line) {
    return WriteRow(grid, ValuesOf(TRecordV1, line));
}

int decodeTrecordV2(wxGrid* grid, const wxString& line) {
    return WriteRow(grid, ValuesOf(TRecordV2, line));
}

void encodeEraseRecord(TRecordContext& context, int row, wxString& out) {
    constexpr int firstRow = 2;
    const int last =
        context.RecordVersion == V2 ? RadioCatalogue::NP25Memories : RadioCatalogue::RP25Memories;
    out = row >= firstRow && row <= last ? EraseBegin + HexField(row, 4) + EraseEnd : wxString();
}

void encodeConfigRecord(TRecordContext&, const wxString& text, wxString& out) {
    constexpr size_t addressAndChecksum = 3;
    out = "T1" + HexField(static_cast<int64_t>(text.length() + addressAndChecksum), 2) + "0000";
    for (const wxUniChar c : text)
        out += HexField(c.GetValue(), 2);
}

bool IsGoodConfigText(const wxString& text) {
    constexpr size_t fewestFields = 6;
    const wxArrayString fields = wxSplit(text, ':', '\\');
    // An analog radio's line (AnalogConfig.cpp) may lack fields.
    return fields.size() >= fewestFields && HasConfigChecksum(fields);
}

void SetTFlag(wxGrid* grid, int row, int bits) {
    grid->SetCellValue(row, TFLG, FlagText(TransferFlags(grid, row) | bits));
}
