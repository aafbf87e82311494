#include "files/ImportMultiZEL.h"

#include "catalogue/AsciiText.h"
#include "catalogue/PageModel.h"
#include "catalogue/TextNumbers.h"
#include "editing/CellChecks.h"
#include "editing/ColumnChecks.h"
#include "editing/FrequencyRules.h"
#include "editing/ScanListCell.h"
#include "files/ImportOutcome.h"
#include "files/ImportText.h"
#include "files/LastOfRow.h"

#include <wx/grid.h>
#include <wx/textfile.h>

#include <algorithm>
#include <iterator>

using namespace RadioCatalogue;

namespace {

constexpr TextColumns NumberColumns{0, 3};
constexpr TextColumns DescriptionColumns{4, 9};
constexpr TextColumns ReceiveFrequencyColumns{14, 8};
constexpr TextColumns TransmitFrequencyColumns{25, 8};
constexpr TextColumns ReceiveToneColumns{43, 2};
constexpr TextColumns TransmitToneColumns{48, 2};
// Intentional: the reverse of the order in the radio's records.
constexpr TextColumns TransmitCodeColumns{58, 3};
constexpr TextColumns ReceiveCodeColumns{64, 3};
constexpr TextColumns ScanColumns{70, 5};
constexpr TextColumns ModeColumns{75, 1};

/// Intentional: a line's own mode has no effect, whatever the page's type.
constexpr const char* ImportedMode = "w";

/// Position of the second "OFF" in the list of tones, used for all positions beyond the list.
constexpr int LastTone = std::size(ToneTexts) - 1;

/// Writes the texts of a line to its row of the page.
class LineWriter {
public:
    LineWriter(wxGrid* grid, int row, const wxString& line)
        : m_grid(grid), m_row(row), m_line(line), m_p25(CurrentPageIsP25()),
          m_sourceBand(GetFreqBand(ReceiveFrequencyColumns.Of(line), ANFM)),
          m_alignment(GetAlignment(0, m_sourceBand)) {}

    void Write() {
        WriteNumber();
        WriteBand();
        WriteScan();
        if (m_p25)
            CheckZone(m_grid, m_row, wxString());
        Set(DESC, DescriptionColumns.Of(m_line));
        Set(MODE, TextOfAscii(ImportedMode));
        if (ModeColumns.Of(m_line).IsSameAs("N", false))
            ReplacedCells::Note(m_row, MODE);
        WriteFrequency(RFRQ, ReceiveFrequencyColumns);
        TakeFromDefaultRow({RSQL});
        if (CurrentParameters().Type == NP25)
            TakeFromDefaultRow({RNSV});
        WriteTone(RTON, ReceiveToneColumns, RSQL);
        CheckCode(m_grid, m_row, RCOD, ReceiveCodeColumns.Of(m_line), DefaultSquelch(RSQL));
        TakeFromDefaultRow({RTGP, RNAC});
        WriteFrequency(TFRQ, TransmitFrequencyColumns);
        TakeFromDefaultRow({TSQL});
        WriteTone(TTON, TransmitToneColumns, TSQL);
        CheckCode(m_grid, m_row, TCOD, TransmitCodeColumns.Of(m_line), DefaultSquelch(TSQL));
        TakeFromDefaultRow({TTGP, TNAC, TIDC});
    }

private:
    void Set(int column, const wxString& text) { m_grid->SetCellValue(m_row, column, text); }

    /// P25 pages only: analog memories have no text of their own for these columns.
    void TakeFromDefaultRow(std::initializer_list<int> columns) {
        if (m_p25)
            for (int column : columns)
                Set(column, m_grid->GetCellValue(0, column));
    }

    wxString DefaultSquelch(int column) const { return m_p25 ? m_grid->GetCellValue(0, column) : wxString(); }

    void WriteNumber() {
        const wxString number = NumberColumns.Of(m_line);
        // Set before the zone check, so that the row counts as used and holds its slot.
        Set(TFLG, TextOfAscii(TflgMade));
        Set(MNUM, number);
        if (m_p25) {
            Set(PRIM, number);
            Set(SHAD, TextOfAscii("N"));
        }
    }

    void WriteBand() {
        const int pageBand = CurrentParameters().Band;
        if (pageBand != K6Module && pageBand != K7Module)
            return;
        // Intentional: on a page of the K6 module, every line goes to the module's first band.
        const int band = pageBand == K6Module ? Fm30To50 : m_sourceBand;
        Set(BAND, band >= 0 ? wxString(BandName[band]) : m_grid->GetCellValue(0, BAND));
    }

    void WriteScan() {
        const wxString mask = ScanTextToMask(ScanColumns.Of(m_line));
        const int type = CurrentParameters().Type;
        if (type == ANFM || type == MDLX)
            SetScanCell(m_grid, m_row, SCAN, mask, false);
        else if (m_p25)
            Set(SCAN, TextOfAscii(IsText(mask, "0") ? "N" : "Y"));
    }

    void WriteFrequency(int column, const TextColumns& columns) {
        const wxString given = columns.Of(m_line);
        const int band = CurrentParameters().Band;
        if (!(m_alignment & FrequenciesCannotStay))
            Set(column, given);
        else
            Set(column, band < BandTotal ? wxString(BandStart[band]) : wxString());
        NoteIfReplaced(m_grid, m_row, column, given);
    }

    void WriteTone(int column, const TextColumns& columns, int squelchColumn) {
        const int position = ReadDecimal(columns.Of(m_line));
        CheckTone(m_grid, m_row, column, GetToneText(std::min(position, LastTone)),
                  DefaultSquelch(squelchColumn));
        if (position > LastTone)
            ReplacedCells::Note(m_row, column);
    }

    wxGrid* m_grid;
    int m_row;
    const wxString& m_line;
    bool m_p25;
    int m_sourceBand;
    int m_alignment;
};

} // namespace

int AlignmentOf(int sourceKind, int sourceBand, int pageBand, int pageType) {
    if (sourceKind == 0) {
        const int family = pageType == ANFM ? 0 : OtherFamily;
        const bool module = pageBand == K6Module && IsK6Band(sourceBand);
        if (sourceBand == pageBand || module)
            return family | BandSuits;
        const bool neighbours = (pageBand == Fm136To174 && sourceBand == Fm138To174) ||
                                (pageBand == Fm138To174 && sourceBand == Fm136To174);
        return family | (neighbours ? NeighbourBand : FrequenciesCannotStay);
    }
    if ((sourceKind == 1 || sourceKind == 2) && !IsP25Type(pageType))
        return OtherFamily | (pageBand == Fm138To174 ? NeighbourBand : FrequenciesCannotStay);
    return BandSuits;
}

int GetAlignment(int sourceKind, int sourceBand) {
    const PageParameterRecord& page = CurrentParameters();
    return AlignmentOf(sourceKind, sourceBand, page.Band, page.Type);
}

int RowOfMultiZELLine(const wxString& line, int rows) {
    const wxString number = NumberColumns.TrimmedOf(line);
    if (number.empty())
        return -1;
    const int row = ReadDecimal(number);
    return row >= 0 && row < rows ? row : -1;
}

void writeANFMToGrid(wxGrid* grid, const wxString& line) {
    const int row = RowOfMultiZELLine(line, grid->GetNumberRows());
    if (row >= 0)
        LineWriter(grid, row, line).Write();
}

int ImportMultiZEL(const wxTextFile& file) {
    wxGrid* grid = CurrentGrid();
    LastOfRow<wxString> kept(grid->GetNumberRows());
    LinesOfRows lines(grid->GetNumberRows());
    for (size_t number = 0; number < file.GetLineCount(); ++number) {
        // A zero byte ends a line, as it ends the texts of other files.
        const wxString line = file[number].BeforeFirst('\0');
        const int row = RowOfMultiZELLine(line, grid->GetNumberRows());
        const int lineNumber = static_cast<int>(number) + 1;
        if (row >= 0) {
            kept.Keep(row, line);
            lines.Take(row, lineNumber);
        } else if (!line.Strip(wxString::both).empty()) {
            SkippedLines::Note(lineNumber);
        }
    }
    wxGridUpdateLocker quiet(grid);
    kept.ForEach([grid](int, const wxString& line) { writeANFMToGrid(grid, line); });
    return static_cast<int>(file.GetLineCount());
}
