// The pages of the window: their targets, texts and shared state, and the operations on rows.
#pragma once

#include "catalogue/NumberedArray.h"
#include "catalogue/RadioCatalogue.h"

#include <wx/arrstr.h>
#include <wx/colour.h>
#include <wx/string.h>

#include <cstdint>

class OrvZELFrame;
class ZelkFrame;
class wxGrid;

/// The notebook holds at most this many pages.
constexpr int PageLimit = 6;

/// Target and flags of a page. One record per page, by page number (0-based).
struct PageParameterRecord {
    int32_t Radio = 0;     ///< radio index
    int32_t BandIndex = 0; ///< band slot of the radio
    int32_t Band = 0;      ///< band id
    int32_t Rows = 0;      ///< highest grid row number
    int32_t Cols = 0;      ///< ColumnCount of the type
    int32_t Type = 0;      ///< radio type
    int32_t Flags = 0;     ///< page flags, below
};

/// Flags: the page's content came from a file.
constexpr int32_t PageFromFile = 0x02;
/// Flags: a file or import contained primaries or shadows.
constexpr int32_t PageHasShadows = 0x08;
/// Flags: rows are marked for column edits.
constexpr int32_t PageHasMarks = 0x10;

/// Texts of a page. One record per page.
struct PageStringRecord {
    wxString FileName; ///< the last file, without extension and directory
    wxString FileDir;  ///< its directory, with a separator at the end
    wxString RadioName;
    wxString BandName;
    wxString TypeName;
    /// Full paths of the channel files that the page has opened or saved.
    wxArrayString OwnFiles = {};
};

/// The only main window, set at start-up.
extern ZelkFrame* MainFrame;
/// Pages that exist, 1 to 6 once started.
extern int32_t PageCount;
/// 0-based index of the selected page.
extern int32_t CurrentPage;
/// Grids by page. The notebook owns them; entries shift down when a page is deleted.
extern NumberedArray<wxGrid*, PageLimit> PageGrid;
extern NumberedArray<PageParameterRecord, PageLimit> PageParameters;
extern NumberedArray<PageStringRecord, PageLimit> PageStrings;
/// Operating modes that the connected radio accepts, by page: WideMode, NarrowMode, DigitalMode.
extern NumberedArray<uint32_t, PageLimit> OpModes;
/// Guard rows of the current page, -1 when it has none.
extern int32_t GD1, GD2;
/// Row on which the row context menu was last opened.
extern int32_t ContextRow;
/// The 32 cells kept by the row copy command, or empty.
extern wxArrayString RowCopyBuffer;
/// Background of a repaired cell.
extern const wxColour FailColour;
/// Background of a marked row.
extern const wxColour MarkColour;

/// The parameters of the current page.
PageParameterRecord& CurrentParameters();

/// The grid of the current page.
wxGrid* CurrentGrid();

/// True when the current page is of a P25 type.
bool CurrentPageIsP25();

/// The 32 cell texts of a row of the page.
wxArrayString GetRowValues(int page, int row);

/// Writes texts into the cells of a row, from column 0 to the given one.
void SetRowValues(wxGrid* grid, int row, const wxArrayString& texts, int lastColumn = ColumnTotal - 1);

/// True when any of the 32 cells of the row has text, on the current page.
bool RowHasData(int row);

/// True when every column that the page's type shows has text, on the current page. Ignores cells that checks
/// empty by design (the zone of a shadow row, the tones of FXAM) and the blank filler column of O12.
bool RowIsComplete(int row);

/// Number of rows of the page that have data, from row 0 to Rows - 1: row 0 counts, the last row doesn't.
int CountRowsWithData(int page);

/// True when the row count of the page ends in the digit 2: its last two rows are guard rows.
bool HasGuardRows(int page);

/// True when the current page has guards and row is GD1 or later.
bool IsGuardRow(int row);

/// Sets GD1 and GD2 for a page of that many rows: -1 without guard rows.
void SetGuardRows(OrvZELFrame* frame, int page, int rows);

/// Removes the paint of a repair (FailColour) from a cell: it gets the background of cell (0, 0). Other paint
/// stays.
void TakePaintOff(wxGrid* grid, int row, int col);

/// Saves the cells of both guard rows of the current page.
void SaveGuardRows(OrvZELFrame* frame);

/// Writes the saved cells back into GD1 and GD2. With renumber, MNUM becomes the row number, and a guard row
/// that was blank is skipped: a number alone would make it an incomplete memory.
void RestoreGuardRows(OrvZELFrame* frame, bool renumber);

/// RadioCatalogue::CodeIndexForType for the type of the current page.
int GetCodeIndex(const wxString& text);

/// RadioCatalogue::GetCodeText for the type of the current page.
wxString GetCodeText(int i);
