#include "editing/ZelkEdit.h"

#include "catalogue/PageModel.h"
#include "catalogue/TextNumbers.h"
#include "catalogue/ZoneSlots.h"
#include "editing/MemoryNumbers.h"
#include "editing/RowBand.h"

#include <wx/grid.h>

#include <algorithm>

using namespace RadioCatalogue;

namespace {

/// Arguments of a cell's check.
struct CellToCheck {
    wxGrid* grid;
    int row;
    int column;
    wxString text;
    /// Text of RSQL or TSQL, whichever came last, before its check.
    wxString squelch;
    MemoryNumberIndex* numbers;
};

using ColumnCheck = void (*)(const CellToCheck& cell);

// clang-format off
void Number(const CellToCheck& c) {
    c.numbers ? CheckMNum(c.grid, c.row, c.text, *c.numbers) : CheckMNum(c.grid, c.row, c.text);
}
void Primary(const CellToCheck& c)     { CheckPrim(c.grid, c.row, c.text); }
void Shadow(const CellToCheck& c)      { CheckShad(c.grid, c.row, c.text); }
void Band(const CellToCheck& c)        { CheckBand(c.grid, c.row, c.text); }
void Scan(const CellToCheck& c)        { CheckScan(c.grid, c.row, c.text); }
void Zone(const CellToCheck& c)        { CheckZone(c.grid, c.row, c.text); }
void Description(const CellToCheck& c) { CheckDesc(c.grid, c.row, c.text); }
void Mode(const CellToCheck& c)        { CheckMode(c.grid, c.row, c.text); }
void Frequency(const CellToCheck& c)   { CheckFreq(c.grid, c.row, c.column, c.text); }
void Squelch(const CellToCheck& c)     { CheckSquelch(c.grid, c.row, c.column, c.text); }
void SquelchValue(const CellToCheck& c){ CheckRnsv(c.grid, c.row, c.text); }
void Tone(const CellToCheck& c)        { CheckTone(c.grid, c.row, c.column, c.text, c.squelch); }
void Code(const CellToCheck& c)        { CheckCode(c.grid, c.row, c.column, c.text, c.squelch); }
void TalkGroup(const CellToCheck& c)   { CheckTalkGroup(c.grid, c.row, c.column, c.text); }
void Nac(const CellToCheck& c)         { CheckNac(c.grid, c.row, c.column, c.text); }
void UnitId(const CellToCheck& c)      { CheckTidc(c.grid, c.row, c.text); }
void RxOnly(const CellToCheck& c)      { CheckRonl(c.grid, c.row, c.text); }

/// The check of each column; flags and shadow slots have none.
constexpr ColumnCheck CheckOfColumn[ColumnTotal] = {
    /* MFLG */ nullptr,     /* MNUM */ Number,       /* PRIM */ Primary,   /* SHAD */ Shadow,
    /* BAND */ Band,        /* SCAN */ Scan,         /* ZONE */ Zone,      /* DESC */ Description,
    /* MODE */ Mode,        /* RFRQ */ Frequency,    /* RSQL */ Squelch,   /* RNSV */ SquelchValue,
    /* RTON */ Tone,        /* RCOD */ Code,         /* RTGP */ TalkGroup, /* RNAC */ Nac,
    /* TFRQ */ Frequency,   /* TSQL */ Squelch,      /* TTON */ Tone,      /* TCOD */ Code,
    /* TTGP */ TalkGroup,   /* TNAC */ Nac,          /* TIDC */ UnitId,
    /* SHD0 to SHD6 */ nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
    /* RONL */ RxOnly,      /* TFLG */ nullptr,
};
// clang-format on

void CheckCellsOfRow(wxGrid* grid, int row, MemoryNumberIndex* numbers) {
    const wxString band = grid->GetCellValue(row, BAND);
    CellToCheck cell{grid, row, 0, {}, {}, numbers};
    for (; cell.column < ColumnTotal; ++cell.column) {
        if (!CheckOfColumn[cell.column])
            continue;
        cell.text = grid->GetCellValue(row, cell.column);
        if (cell.column == RSQL || cell.column == TSQL)
            cell.squelch = cell.text;
        CheckOfColumn[cell.column](cell);
    }
    if (grid->GetCellValue(row, BAND) != band)
        FitRowToItsBand(grid, row);
}

/// Clears the zone counters of the current page and the taken slots of its rows.
void ForgetZones() {
    wxGrid* grid = CurrentGrid();
    std::fill_n(ZoneSlotsOf(CurrentPage), ZonesPerPage, 0);
    for (int row = 1; row <= CurrentParameters().Rows; ++row) {
        const int flags = TransferFlags(grid, row);
        if (flags & ZoneTakenFlag)
            grid->SetCellValue(row, TFLG, FlagText(flags & ~ZoneTakenFlag));
    }
}

} // namespace

void CheckRow(wxGrid* grid, int row) {
    if (RowHasData(row))
        CheckCellsOfRow(grid, row, nullptr);
}

void CheckRow(wxGrid* grid, int row, MemoryNumberIndex& numbers) {
    if (RowHasData(row))
        CheckCellsOfRow(grid, row, &numbers);
}

void CheckPage() {
    wxGrid* grid = CurrentGrid();
    const int rows = CurrentParameters().Rows;
    wxGridUpdateLocker quiet(grid);
    if (CurrentPageIsP25())
        ForgetZones();
    MemoryNumberIndex numbers(rows);
    for (int row = 1; row <= rows; ++row)
        CheckRow(grid, row, numbers);
}
