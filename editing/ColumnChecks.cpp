#include "editing/ColumnChecks.h"

#include "catalogue/AsciiText.h"
#include "catalogue/PageModel.h"
#include "catalogue/PageTable.h"
#include "catalogue/TextNumbers.h"
#include "catalogue/ZoneDealing.h"
#include "commands/ErrorBox.h"
#include "editing/CellChecks.h"
#include "editing/FrequencyRules.h"
#include "editing/MemoryNumbers.h"
#include "editing/ReplacedCells.h"
#include "editing/ScanListCell.h"

#include <wx/grid.h>

using namespace RadioCatalogue;

namespace {

wxString DefaultText(const wxGrid* grid, int col) {
    return grid->GetCellValue(0, col);
}

/// Writes the default row's text into a cell and paints the cell in FailColour.
void Repair(wxGrid* grid, int row, int col) {
    grid->SetCellValue(row, col, DefaultText(grid, col));
    PaintCell(grid, row, col, FailColour);
    ReplacedCells::Note(row, col);
}

void WriteOrRepair(wxGrid* grid, int row, int col, const wxString& text, bool good) {
    if (good)
        grid->SetCellValue(row, col, text);
    else
        Repair(grid, row, col);
}

/// Writes forced, the only text that the row can have. Counts as replaced unless text was empty, "OFF" or
/// equal.
void WriteForced(wxGrid* grid, int row, int col, const wxString& text, const wxString& forced) {
    grid->SetCellValue(row, col, forced);
    if (!text.empty() && !IsText(text, "OFF") && text != forced)
        ReplacedCells::Note(row, col);
}

bool IsWithin(const wxString& text, int low, int high) {
    const int number = ReadDecimal(text);
    return low <= number && number <= high;
}

wxString Letter(char letter) {
    return wxString(wxUniChar(letter));
}

/// Returns the band id of a row: the page's; on an MDLX page the row's own, or -1 if BAND holds none.
int BandOfRow(const wxGrid* grid, int row) {
    const PageParameterRecord& page = CurrentParameters();
    return page.Type == MDLX ? FindBand(grid->GetCellValue(row, BAND)) : page.Band;
}

/// Returns the squelch column for a tone or code column.
int SquelchColumn(int column) {
    return column <= RNAC ? RSQL : TSQL;
}

} // namespace

namespace {

/// findDuplicate returns the first other row that holds a number, or one past the rows if there is none.
template <class FindDuplicate>
int CheckNumber(wxGrid* grid, int row, wxString& text, FindDuplicate findDuplicate) {
    int result = CheckGood;
    if (!text.empty()) {
        const int number = ReadDecimal(text);
        const bool outOfRange = IsNumberOutOfRange(number);
        const bool isNumber = ReadNumber(text).has_value();
        text = outOfRange ? wxString() : NumberText(number);
        if (outOfRange || !isNumber)
            ReplacedCells::Note(row, MNUM);
        const int other = findDuplicate(number);
        if (other <= CurrentParameters().Rows) {
            DisplayError(ResultNumberUsed, other);
            text.clear();
            ReplacedCells::Note(row, MNUM);
            result = CheckBadValue;
        }
    }
    grid->SetCellValue(row, MNUM, text);
    return result;
}

} // namespace

int CheckMNum(wxGrid* grid, int row, const wxString& text) {
    wxString number = text;
    return CheckNumber(grid, row, number,
                       [row](int n) { return FindDuplicateMNum(1, row, CurrentParameters().Rows, n); });
}

int CheckMNum(wxGrid* grid, int row, const wxString& text, MemoryNumberIndex& numbers) {
    wxString number = text;
    const int result = CheckNumber(grid, row, number, [&](int n) { return numbers.FindDuplicate(row, n); });
    numbers.Change(row, number);
    return result;
}

void CheckPrim(wxGrid* grid, int row, const wxString&) {
    // Intentional: after this, only SHAD holds a shadow's link to its primary.
    grid->SetCellValue(row, PRIM, CurrentPageIsP25() ? grid->GetCellValue(row, MNUM) : wxString());
}

int CheckShad(wxGrid* grid, int row, const wxString& text) {
    if (!CurrentPageIsP25()) {
        grid->SetCellValue(row, SHAD, wxString());
        return CheckNotApplicable;
    }
    const bool good = IsText(text, "N") || BeginsWith(text, "P-") || BeginsWith(text, "S-");
    grid->SetCellValue(row, SHAD, good ? text : Letter('N'));
    if (!good && !text.empty())
        ReplacedCells::Note(row, SHAD);
    return good ? CheckGood : CheckBadValue;
}

int CheckBand(wxGrid* grid, int row, const wxString& text) {
    const PageParameterRecord& page = CurrentParameters();
    if (page.Type != MDLX) {
        grid->SetCellValue(row, BAND, wxString());
        return CheckNotApplicable;
    }
    const int band = FindBand(text);
    // Intentional: a valid band is not written; the cell keeps its text.
    if (band >= 0 && (page.Band == K7Module || IsK6Band(band)))
        return CheckGood;
    Repair(grid, row, BAND);
    return CheckBadValue;
}

namespace {

/// Checks SCAN on pages where it is a letter. A text that means neither "Y" nor "N" becomes "N".
void CheckScanLetter(wxGrid* grid, int row, const wxString& text) {
    const bool scanned = IsText(text, "1") || IsText(text, "Y") || IsText(text, "Yes");
    grid->SetCellValue(row, SCAN, Letter(scanned ? 'Y' : 'N'));
    if (scanned || text.empty() || IsText(text, "N"))
        return;
    const wxString upper = text.Upper();
    if (!IsText(upper, "0") && !IsText(upper, "N") && !IsText(upper, "NO"))
        ReplacedCells::Note(row, SCAN);
}

} // namespace

void CheckScan(wxGrid* grid, int row, const wxString& text) {
    if (IsGuardRow(row)) {
        grid->SetCellValue(row, SCAN, DefaultText(grid, SCAN));
        return;
    }
    const size_t length = text.length();
    if (CurrentPageIsP25() || CurrentParameters().Type == KDAR)
        CheckScanLetter(grid, row, text);
    else if (length < 3 && IsWithin(text, 0, 31))
        SetScanCell(grid, row, SCAN, text, false);
    else if (length == 4 || length == 5)
        SetScanCell(grid, row, SCAN, ScanTextToMask(text), false);
    else
        Repair(grid, row, SCAN);
}

void CheckZone(wxGrid* grid, int row, const wxString& text) {
    if (DealZone(grid, row, text))
        ReplacedCells::Note(row, ZONE);
}

void CheckDesc(wxGrid* grid, int row, const wxString& text) {
    const wxString description = DescriptionText(text, CurrentParameters().Type);
    grid->SetCellValue(row, DESC, description);
    // Trailing blanks are invisible and the radio decides the case, so neither counts as replaced.
    if (description != text && description.Strip().CmpNoCase(text.Strip()) != 0)
        ReplacedCells::Note(row, DESC);
}

void CheckMode(wxGrid* grid, int row, const wxString& text) {
    // Rows in the module's AM 225-400 band have no mode and show "n/a".
    if (CurrentParameters().Type == MDLX && IsText(text, "n/a") && BandOfRow(grid, row) == Am225To400) {
        grid->SetCellValue(row, MODE, text);
        return;
    }
    const auto mode = ModeText(text, CurrentParameters().Type);
    WriteOrRepair(grid, row, MODE, mode.value_or(wxString()), mode.has_value());
}

int CheckFreq(wxGrid* grid, int row, int column, const wxString& text) {
    const int band = BandOfRow(grid, row);
    // Intentional: any text is accepted as the transmit frequency of an AM 108-138 row.
    const bool good = (band == Am108To138 && column == TFRQ) || CheckFreqInBand(text, band) == 0;
    WriteOrRepair(grid, row, column, text, good);
    return good ? CheckGood : CheckBadValue;
}

void CheckSquelch(wxGrid* grid, int row, int column, const wxString& text) {
    if (!CurrentPageIsP25()) {
        grid->SetCellValue(row, column, wxString());
        return;
    }
    const bool digital = IsText(grid->GetCellValue(row, MODE), "D");
    WriteOrRepair(grid, row, column, text,
                  digital ? IsDigitalSquelch(text, column) : IsAnalogSquelch(text, column));
}

void CheckRnsv(wxGrid* grid, int row, const wxString& text) {
    if (CurrentParameters().Type == NP25)
        WriteOrRepair(grid, row, RNSV, text, IsWithin(text, 0, 15));
    else
        grid->SetCellValue(row, RNSV, wxString());
}

namespace {

/// Shared check of CTCSS tones and DPL codes in P25 rows. index looks up a text in the column's list
/// (negative if absent); letter is the matching squelch.
void CheckP25SquelchValue(wxGrid* grid, int row, int column, const wxString& text, const wxString& squelch,
                          int (*index)(const wxString&), const char* letter) {
    bool good = false;
    if (!squelch.empty() || !IsText(text, "OFF")) {
        good = index(text) >= 0;
        if (squelch.empty())
            grid->SetCellValue(row, SquelchColumn(column), letter);
    }
    WriteOrRepair(grid, row, column, text, good);
}

} // namespace

void CheckTone(wxGrid* grid, int row, int column, const wxString& text, const wxString& squelch) {
    const int type = CurrentParameters().Type;
    if (IsP25Type(type)) {
        CheckP25SquelchValue(grid, row, column, text, squelch, GetCtcssIndex, "t");
        return;
    }
    if (type != ANFM && type != MDLX) {
        // Intentional: FXAM too. It shows its tones, but a check clears them.
        WriteForced(grid, row, column, text, wxString());
        return;
    }
    if ((column == RTON && IsGuardRow(row)) || FindBand(grid->GetCellValue(row, BAND)) == Am108To138) {
        WriteForced(grid, row, column, text, "n/a");
        return;
    }
    const wxString tone = squelch.empty() || IsText(squelch, "t") ? text : wxString("OFF");
    WriteOrRepair(grid, row, column, tone, GetToneIndex(tone) >= 0);
}

void CheckCode(wxGrid* grid, int row, int column, const wxString& text, const wxString& squelch) {
    const PageParameterRecord& page = CurrentParameters();
    const int rowType = GetRadioType(page.Radio, BandOfRow(grid, row));
    if (rowType == O12 || rowType == KDAR || rowType == ANAM) {
        WriteForced(grid, row, column, text, "n/a");
        return;
    }
    const wxString code = IsText(text, "000") ? wxString("OFF") : text;
    if (IsP25Type(page.Type)) {
        CheckP25SquelchValue(grid, row, column, code, squelch, GetCodeIndex, "c");
        return;
    }
    if (page.Type != ANFM && page.Type != MDLX) {
        grid->SetCellValue(row, column, code);
        return;
    }
    if (column == RCOD && IsGuardRow(row)) {
        WriteForced(grid, row, column, text, "n/a");
        return;
    }
    const wxString wanted = squelch.empty() || IsText(squelch, "c") ? code : wxString("OFF");
    WriteOrRepair(grid, row, column, wanted, GetCodeIndex(wanted) >= 0);
}

namespace {

void CheckHexDigits(wxGrid* grid, int row, int column, const wxString& text, size_t digits) {
    wxString value;
    if (CurrentPageIsP25()) {
        const auto number = HexDigitsText(text, digits);
        value = number ? *number : DefaultText(grid, column);
        if (!number)
            ReplacedCells::Note(row, column);
    }
    grid->SetCellValue(row, column, value);
}

} // namespace

void CheckTalkGroup(wxGrid* grid, int row, int column, const wxString& text) {
    CheckHexDigits(grid, row, column, text, 4);
}

void CheckNac(wxGrid* grid, int row, int column, const wxString& text) {
    CheckHexDigits(grid, row, column, text, 3);
}

void CheckTidc(wxGrid* grid, int row, const wxString& text) {
    wxString id;
    if (CurrentPageIsP25()) {
        if (text.empty())
            id = "0000001";
        else if (IsWithin(text, 0, 9999999))
            id = text;
        else {
            id = DefaultText(grid, TIDC);
            ReplacedCells::Note(row, TIDC);
        }
    }
    grid->SetCellValue(row, TIDC, id);
}

void CheckRonl(wxGrid* grid, int row, const wxString&) {
    if (CurrentParameters().Type != KDAR)
        grid->SetCellValue(row, RONL, wxString());
}
