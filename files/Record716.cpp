#include "files/Record716.h"

#include "catalogue/AsciiText.h"
#include "catalogue/PageModel.h"
#include "catalogue/PageTable.h"
#include "catalogue/TextNumbers.h"
#include "editing/ColumnChecks.h"

#include <wx/grid.h>
#include <wx/log.h>

#include <algorithm>
#include <iterator>

namespace {

struct NamedField {
    const char* name;
    Field716 field;
};

constexpr NamedField FieldsBeforeShadows[] = {
    {"Mflg", &Record716::Mflg}, {"Mnum", &Record716::Mnum}, {"Prim", &Record716::Prim},
    {"Scan", &Record716::Scan}, {"Zone", &Record716::Zone}, {"Desc", &Record716::Desc},
    {"Encr", &Record716::Encr}, {"Mode", &Record716::Mode}, {"Rsql", &Record716::Rsql},
    {"Rtgp", &Record716::Rtgp}, {"Rton", &Record716::Rton}, {"Rcod", &Record716::Rcod},
    {"Rnac", &Record716::Rnac}, {"Rfrq", &Record716::Rfrq}, {"Tsql", &Record716::Tsql},
    {"Ttgp", &Record716::Ttgp}, {"Tton", &Record716::Tton}, {"Tcod", &Record716::Tcod},
    {"Tnac", &Record716::Tnac}, {"Tfrq", &Record716::Tfrq}, {"Tidc", &Record716::Tidc},
};
constexpr NamedField FieldsBehindShadows[] = {
    {"Rfrn", &Record716::Rfrn},
    {"Tflg", &Record716::Tflg},
};

/// Numeric squelch value of an imported row.
constexpr const char* ImportedSquelchValue = "10";

struct CellField {
    int column;
    Field716 field;
};

void WriteCells(wxGrid* grid, int row, const Record716& record, std::initializer_list<CellField> cells) {
    for (const CellField& cell : cells)
        grid->SetCellValue(row, cell.column, record.*cell.field);
}

/// Writes SHAD and the cells that depend on it.
void WriteLinks(wxGrid* grid, int row, const Record716& record) {
    const int flags = ReadHex(record.Mflg);
    if (flags & ShadowLinkFlag) {
        CurrentParameters().Flags |= PageHasShadows;
        LockCell(grid, row, SCAN);
        for (int slot = 0; slot <= SHD6 - SHD0; ++slot)
            grid->SetCellValue(row, SHD0 + slot, record.*Shadows716[slot]);
        const auto used = std::count_if(std::begin(Shadows716), std::end(Shadows716),
                                        [&](Field716 shadow) { return ReadDecimal(record.*shadow) != 0; });
        grid->SetCellValue(row, SHAD, wxString::Format("P-%d", static_cast<int>(used)));
    } else if (flags & ShadowIndexMask) {
        LockCell(grid, row, SCAN);
        grid->SetCellValue(row, SHAD, "S-" + record.Prim);
    } else {
        grid->SetCellValue(row, SHAD, TextOfAscii("N"));
    }
}

void Log(const NamedField& named, const Record716& record) {
    wxLogMessage(" .%s: %s", named.name, record.*named.field);
}

} // namespace

void write716ToGrid(wxGrid* grid, int row, const Record716& record) {
    WriteCells(grid, row, record,
               {{TFLG, &Record716::Tflg},
                {MFLG, &Record716::Mflg},
                {MNUM, &Record716::Mnum},
                {PRIM, &Record716::Prim},
                {SCAN, &Record716::Scan},
                {ZONE, &Record716::Zone}});
    CheckZone(grid, row, record.Zone);
    WriteCells(grid, row, record,
               {{DESC, &Record716::Desc},
                {MODE, &Record716::Mode},
                {RFRQ, &Record716::Rfrq},
                {RSQL, &Record716::Rsql}});
    if (CurrentParameters().Radio == RadioCatalogue::Kdrv716B)
        grid->SetCellValue(row, RNSV, TextOfAscii(ImportedSquelchValue));
    CheckTone(grid, row, RTON, record.Rton, record.Rsql);
    CheckCode(grid, row, RCOD, record.Rcod, record.Rsql);
    WriteCells(grid, row, record,
               {{RTGP, &Record716::Rtgp},
                {RNAC, &Record716::Rnac},
                {TFRQ, &Record716::Tfrq},
                {TSQL, &Record716::Tsql}});
    CheckTone(grid, row, TTON, record.Tton, record.Tsql);
    CheckCode(grid, row, TCOD, record.Tcod, record.Tsql);
    WriteCells(grid, row, record,
               {{TTGP, &Record716::Ttgp}, {TNAC, &Record716::Tnac}, {TIDC, &Record716::Tidc}});
    WriteLinks(grid, row, record);
}

void Dump716Record(const Record716& record) {
    for (const NamedField& named : FieldsBeforeShadows)
        Log(named, record);
    for (size_t slot = 0; slot < std::size(Shadows716); ++slot)
        wxLogMessage(" .Shd%d: %s", static_cast<int>(slot), record.*Shadows716[slot]);
    for (const NamedField& named : FieldsBehindShadows)
        Log(named, record);
}
