#include "catalogue/AsciiText.h"
#include "catalogue/PageModel.h"
#include "catalogue/PageTable.h"
#include "catalogue/TextNumbers.h"
#include "files/Import716.h"
#include "files/ImportOutcome.h"
#include "files/ImportText.h"
#include "files/LastOfRow.h"

#include <wx/ffile.h>
#include <wx/grid.h>

#include <memory>
#include <set>
#include <utility>

using namespace RadioCatalogue;

namespace {

constexpr int TitleLines = 3;
/// A shorter line ends the list.
constexpr size_t ShortestLine = 50;

constexpr TextColumns NumberColumns{3, 3};
constexpr TextColumns LinkMarkColumns{6, 1};
constexpr TextColumns PrimaryColumns{8, 3};
constexpr TextColumns ScanMarkColumns{9, 1};
constexpr TextColumns ZoneColumns{10, 2};
constexpr TextColumns DescriptionColumns{13, 8};
constexpr TextColumns UndefinedColumns{36, 9};
constexpr TextColumns ErasedColumns{37, 6};

struct ListField {
    TextColumns columns;
    Field716 into;
};

/// Fields of every line with a memory; blanks at both ends are ignored.
constexpr ListField ListFields[] = {
    {{23, 1}, &Record716::Mode}, {{25, 8}, &Record716::Rfrq}, {{35, 1}, &Record716::Rsql},
    {{37, 5}, &Record716::Rton}, {{43, 3}, &Record716::Rcod}, {{47, 4}, &Record716::Rtgp},
    {{52, 3}, &Record716::Rnac}, {{56, 8}, &Record716::Tfrq}, {{66, 1}, &Record716::Tsql},
    {{68, 5}, &Record716::Tton}, {{74, 3}, &Record716::Tcod}, {{78, 3}, &Record716::Ttgp},
    {{83, 3}, &Record716::Tnac},
};

constexpr const char* OnlyUnitId = "0000001";

/// Flags of rows that aren't scanned, and of rows without their own zone in the line.
constexpr int NotScanned = LinkFlags | GuardFlag;
constexpr int WithoutZone = ShadowIndexMask | GuardFlag;

/// Grids with more rows, including the default row, belong to the radio with 32 zones.
constexpr int LargestGridOf16Zones = 1 + RP25Memories + GuardRowTotal;

/// Reads the number of a line; the default row and the guard rows have a name instead. Returns true for
/// a guard row.
bool ReadNumberField(const wxString& line, int rows, wxString& number) {
    number = NumberColumns.TrimmedOf(line);
    if (IsText(number, "DEF"))
        number = NumberText(0);
    const bool first = IsText(number, "GD1");
    if (!first && !IsText(number, "GD2"))
        return false;
    number = NumberText(first ? rows - 2 : rows - 1);
    return true;
}

/// Record of a list, with the number of its primary from the line. The record's own text for it is lost
/// when its number moves, and the check of the row replaces it with the row's number.
struct ListRecord {
    Record716 record;
    int primary = 0;
};

/// Shared by all rows that repeat the record.
using KeptRecord = std::shared_ptr<ListRecord>;
using KeptRecords = LastOfRow<KeptRecord>;

bool IsGuardRecord(const Record716& record) {
    return ReadHex(record.Mflg) & GuardFlag;
}

int RowOfListRecord(Record716& record) {
    if (!IsGuardRecord(record))
        return RowOf716(record);
    return HasGuardRows(CurrentPage) ? ReadDecimal(record.Mnum) : -1;
}

/// Returns the row of the line's number if its SCAN is to be read-only, else -1.
/// Intentional: this is the number in the line, even if the memory moves to another row.
int UnscannedRow(const Record716& record) {
    if (!(ReadHex(record.Mflg) & NotScanned) || (IsGuardRecord(record) && !HasGuardRows(CurrentPage)))
        return -1;
    const int row = ReadDecimal(record.Mnum);
    return row <= CurrentParameters().Rows ? row : -1;
}

/// Assigns a slot of its primary to the shadow in a row.
void LinkShadow(wxGrid* grid, int row, int primary) {
    if (primary < 1 || primary > CurrentParameters().Rows)
        return;
    int slot = 0;
    while (slot <= SHD6 - SHD0 && ReadDecimal(grid->GetCellValue(primary, SHD0 + slot)) != 0)
        ++slot;
    if (slot > SHD6 - SHD0)
        return;
    grid->SetCellValue(primary, SHD0 + slot, wxString::Format("%d", row));
    grid->SetCellValue(row, MFLG, FlagText((slot + 1) | (MemoryFlags(grid, row) & RadioFlags)));
    grid->SetCellValue(primary, MFLG, FlagText(MemoryFlags(grid, primary) | ShadowLinkFlag));
    const int before = ReadDecimal(grid->GetCellValue(primary, SHAD).Mid(2));
    grid->SetCellValue(primary, SHAD, wxString::Format("P-%d", before + 1));
    grid->SetCellValue(row, ZONE, grid->GetCellValue(primary, ZONE));
    LockCell(grid, row, ZONE);
}

/// Lines of a list after its titles, numbered as in an editor.
class ListLines {
public:
    explicit ListLines(wxFFile& file) : m_lines(file) {
        wxString title;
        while (m_number < TitleLines && m_lines.Next(title))
            ++m_number;
    }

    bool Next(wxString& line) {
        ++m_number;
        return m_lines.Next(line);
    }

    int Number() const { return m_number; }

    /// Notes this line, which ended the list, and all later ones as skipped, except blank lines.
    void SkipRest(wxString line) {
        do
            if (!line.Strip(wxString::both).empty())
                SkippedLines::Note(m_number);
        while (Next(line));
    }

private:
    LineReader m_lines;
    int m_number = 0;
};

void LinkShadows(wxGrid* grid, const KeptRecords& kept) {
    for (int row = 1; row < grid->GetNumberRows(); ++row) {
        const KeptRecord* from = kept.Of(row);
        if (from && IsShadow(grid, row))
            LinkShadow(grid, row, (*from)->primary);
    }
}

} // namespace

ListLine716 Read716TextLine(const wxString& line, int rows, Record716& record) {
    if (line.length() < ShortestLine)
        return ListLine716::End;
    if (UndefinedColumns.Is(line, "UNDEFINED") || ErasedColumns.Is(line, "ERASED"))
        return ListLine716::NoMemory;
    // The line may lack these fields.
    for (Field716 field : {&Record716::Zone, &Record716::Encr, &Record716::Rfrn})
        (record.*field).clear();
    int flags = 0;
    if (ReadNumberField(line, rows, record.Mnum)) {
        flags |= GuardFlag;
        record.Zone = rows > LargestGridOf16Zones ? ZoneNames32[NP25GuardZone] : ZoneNames16[RP25GuardZone];
    }
    record.Prim = record.Mnum;
    if (LinkMarkColumns.Is(line, "S")) {
        // Placeholder: the list names no slots. Shadows get theirs after all rows are written.
        flags |= 0x01;
        record.Prim = PrimaryColumns.TrimmedOf(line);
    } else if (LinkMarkColumns.Is(line, "P")) {
        flags |= ShadowLinkFlag;
    }
    record.Scan = TextOfAscii("N");
    if (!(flags & NotScanned) && ScanMarkColumns.Is(line, "S")) {
        record.Scan = TextOfAscii("Y");
        flags |= ScanFlag;
    }
    if (!(flags & WithoutZone))
        record.Zone = ZoneColumns.TrimmedOf(line);
    record.Desc = DescriptionColumns.Of(line).Trim(true);
    for (const ListField& field : ListFields)
        record.*field.into = field.columns.TrimmedOf(line);
    record.Tidc = TextOfAscii(OnlyUnitId);
    for (Field716 shadow : Shadows716)
        record.*shadow = TextOfAscii("0");
    record.Mflg = FlagText(flags);
    record.Tflg = TextOfAscii(TflgMade);
    return ListLine716::Memory;
}

int Import716_Text(wxFFile& file) {
    wxGrid* grid = CurrentGrid();
    const int rows = grid->GetNumberRows();
    ListLines lines(file);
    wxString line;
    KeptRecords kept(rows);
    LinesOfRows linesOfRows(rows);
    std::set<int> unscanned;
    auto current = std::make_shared<ListRecord>();
    int count = 0;
    for (auto next = std::make_shared<ListRecord>(); lines.Next(line);) {
        const ListLine716 kind = Read716TextLine(line, rows, next->record);
        if (kind == ListLine716::End) {
            lines.SkipRest(line);
            break;
        }
        if (kind == ListLine716::NoMemory)
            SkippedLines::NoteWithoutMemory();
        if (kind == ListLine716::Memory) {
            current = std::exchange(next, std::make_shared<ListRecord>());
            const Record716& record = current->record;
            current->primary = MovedNumber716(ReadDecimal(record.Prim), CurrentParameters().Radio);
            unscanned.insert(UnscannedRow(record));
        }
        // Intentional: a number without a memory repeats the previous record, which is counted again.
        const int row = RowOfListRecord(current->record);
        if (kind == ListLine716::Memory && row >= 0)
            linesOfRows.Take(row, lines.Number());
        else if (kind == ListLine716::Memory)
            SkippedLines::Note(lines.Number());
        if (row < 0)
            continue;
        kept.Keep(row, current);
        ++count;
    }

    wxGridUpdateLocker quiet(grid);
    for (int row : unscanned)
        if (row >= 0)
            LockCell(grid, row, SCAN);
    RowWriter716 writer;
    kept.ForEach([&writer](int row, const KeptRecord& from) { writer.Write(row, from->record); });
    LinkShadows(grid, kept);
    return count;
}
