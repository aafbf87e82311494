#include "transfer/AnalogRecord.h"

#include "catalogue/PageModel.h"
#include "catalogue/PageTable.h"
#include "catalogue/TextNumbers.h"
#include "editing/FrequencyRules.h"
#include "editing/RowBand.h"
#include "transfer/TransferContext.h"

#include <wx/grid.h>

using namespace RadioCatalogue;

namespace {

/// Returns the number of a row to be sent, 0 if it has none.
int NumberToSend(wxGrid* grid, int row) {
    wxString text = grid->GetCellValue(row, MNUM);
    if (text == "GD1")
        text = NumberText(GD1);
    else if (text == "GD2")
        text = NumberText(GD2);
    const int number = ReadDecimal(text);
    return number >= 1 && number <= CurrentParameters().Rows ? number : 0;
}

AnalogTexts TextsOfRow(wxGrid* grid, int row) {
    AnalogTexts texts;
    texts[DescriptionPart] = DescriptionToText(grid->GetCellValue(row, DESC));
    texts[RxFrequencyPart] = PadFrequency(grid->GetCellValue(row, RFRQ).Trim(true).Trim(false));
    texts[TxFrequencyPart] = PadFrequency(grid->GetCellValue(row, TFRQ).Trim(true).Trim(false));
    texts[RxTonePart] = ToneToCode(grid, row, RTON);
    texts[TxTonePart] = ToneToCode(grid, row, TTON);
    texts[RxCodePart] = CodeToText(grid->GetCellValue(row, RCOD));
    texts[TxCodePart] = CodeToText(grid->GetCellValue(row, TCOD));
    texts[ScanPart] = ScanMaskToText(grid->GetCellValue(row, SCAN));
    texts[ModePart] = ModeToText(grid->GetCellValue(row, MODE));
    return texts;
}

/// Returns the text of MNUM for the number field of a line.
wxString NumberFieldToCell(wxGrid* grid, const wxString& field) {
    if (field == "GD1")
        return wxString::Format("%d", grid->GetNumberRows() - 2);
    if (field == "GD2")
        return wxString::Format("%d", grid->GetNumberRows() - 1);
    return field;
}

/// Writes the text from the line. Without one, writes the default row's text and paints the cell.
void WriteField(wxGrid* grid, int row, int column, const std::optional<wxString>& text) {
    grid->SetCellValue(row, column, text ? *text : grid->GetCellValue(0, column));
    if (!text)
        PaintCell(grid, row, column, FailColour);
    else
        TakePaintOff(grid, row, column);
}

/// Each row of a module has its own band, which the line gives only by its receive frequency.
void WriteBand(wxGrid* grid, int row, const wxString& rxFrequency) {
    const int band = GetFreqBand(rxFrequency, MDLX);
    WriteField(grid, row, BAND, band >= 0 ? std::optional<wxString>(BandName[band]) : std::nullopt);
    SetFrequencyEditors(grid, row, GetRowBand(grid, row));
}

void WriteCells(wxGrid* grid, int row, const AnalogCells& cells) {
    grid->SetCellValue(row, DESC, cells.description);
    WriteField(grid, row, RFRQ, cells.rxFrequency);
    WriteField(grid, row, TFRQ, cells.txFrequency);
    WriteField(grid, row, RTON, cells.rxTone);
    WriteField(grid, row, RCOD, cells.rxCode);
    WriteField(grid, row, TTON, cells.txTone);
    WriteField(grid, row, TCOD, cells.txCode);
    grid->SetCellValue(row, SCAN, cells.scan);
    grid->SetCellValue(row, MODE, cells.mode);
    grid->SetCellValue(row, TFLG, TflgRead);
}

} // namespace

int encodeAnalogRecord(TransferContext&, wxGrid* grid, int row, wxString& out) {
    int errors = 0;
    if (const int number = NumberToSend(grid, row))
        out = NumberText(number) + " ";
    else
        ++errors; // Intentional: the line is appended to whatever out held.
    AppendAnalogFields(TextsOfRow(grid, row), out);
    return errors;
}

int decodeAnalogRecord(TransferContext& context, wxGrid* grid, const wxString& line) {
    return TakePlainAnalogRecord(context, grid, StripParity(line));
}

int TakePlainAnalogRecord(TransferContext& context, wxGrid* grid, const wxString& line) {
    if (!HasAnalogNumber(line))
        return 0;
    const AnalogTexts texts = SplitAnalogLine(line);
    const wxString number = NumberFieldToCell(grid, texts[NumberPart]);
    const int row = ReadDecimal(number);
    if (row < 1 || row >= grid->GetNumberRows())
        return 0;
    const int type = CurrentParameters().Type;
    grid->SetCellValue(row, MNUM, number);
    WriteCells(grid, row, ReadAnalogTexts(texts, IsShortAnalogForm(line), type));
    if (type == MDLX)
        WriteBand(grid, row, texts[RxFrequencyPart]);
    context.Work1 = row;
    return 1;
}

wxString ToneToCode(wxGrid* grid, int row, int column) {
    return ToneToText(grid->GetCellValue(row, column));
}
