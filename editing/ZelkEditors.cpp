#include "editing/ZelkEditors.h"

#include "catalogue/PageModel.h"
#include "editing/ChoiceCells.h"
#include "editing/DescriptionCell.h"
#include "editing/DigitalSquelchCell.h"
#include "editing/MemoryNumberCell.h"
#include "editing/ScanLock.h"
#include "editing/ZoneCell.h"

#include <wx/grid.h>
#include <wx/log.h>

using namespace RadioCatalogue;

namespace {

/// Columns that the radio fixes in guard rows, by kind of page.
constexpr int GuardLocks[] = {MNUM, SCAN, RTON, RCOD};
constexpr int GuardLocksP25[] = {MNUM, SCAN, ZONE};

/// The entries of a constant list. The lists of RadioCatalogue would not do: the first page is made
/// before they are filled.
template <const auto& texts>
const wxString* Choices() {
    static const wxArrayString list = ListOf(texts);
    return &list[0];
}

wxGridCellAttrPtr AttrOf(wxGrid* grid, int row, int col) {
    return grid->GetOrCreateCellAttrPtr(row, col);
}

void SetEditor(wxGrid* grid, int row, int col, wxGridCellEditor* editor) {
    AttrOf(grid, row, col)->SetEditor(editor);
}

/// The editor of a cell whose text stands in its middle.
void SetCentred(wxGrid* grid, int row, int col, wxGridCellEditor* editor) {
    const wxGridCellAttrPtr attr = AttrOf(grid, row, col);
    attr->SetAlignment(wxALIGN_CENTRE, wxALIGN_CENTRE);
    attr->SetEditor(editor);
}

void Centre(wxGrid* grid, int row, std::initializer_list<int> cols) {
    for (int col : cols)
        AttrOf(grid, row, col)->SetAlignment(wxALIGN_CENTRE, wxALIGN_CENTRE);
}

void SetReadOnly(wxGrid* grid, int row, std::initializer_list<int> cols, bool readOnly) {
    for (int col : cols)
        AttrOf(grid, row, col)->SetReadOnly(readOnly);
}

/// Writes texts that are right as they stand, whatever a check has said of the former ones.
void SetTexts(wxGrid* grid, int row, std::initializer_list<int> cols, const wxString& text) {
    for (int col : cols) {
        grid->SetCellValue(row, col, text);
        TakePaintOff(grid, row, col);
    }
}

void SetYesNoEditor(wxGrid* grid, int row, int col) {
    SetCentred(grid, row, col, new ListChoiceEditor(std::size(ScanYesNo), Choices<ScanYesNo>(), false));
}

/// A SCAN cell that says "Y" or "N": a page of another radio may have left it boxes.
void SetYesNoScanCell(wxGrid* grid, int row) {
    SetYesNoEditor(grid, row, SCAN);
    AttrOf(grid, row, SCAN)->SetRenderer(nullptr);
}

void SetNumberCell(wxGrid* grid, int row) {
    const int rows = CurrentParameters().Rows;
    const wxGridCellAttrPtr attr = AttrOf(grid, row, MNUM);
    attr->SetEditor(new ZelkMemoryNumberEditor(0, rows));
    attr->SetRenderer(new MemoryNumberRenderer(rows % 10 != 0));
    if (row == 0)
        attr->SetReadOnly(true);
}

wxGridCellEditor* NewDescriptionEditor(int type) {
    switch (type) {
    case RP25:
    case NP25:
        return new ZelkDescriptionEditor(8, 1);
    case MDLX:
        return new ZelkDescriptionEditor(9, 1);
    case KDAR:
        return new ZelkDescriptionEditor(8, 5);
    default:
        return new ZelkDescriptionEditor(9, 0);
    }
}

void SetToneEditors(wxGrid* grid, int row) {
    for (int col : {RTON, TTON})
        SetEditor(grid, row, col, new ZelkChoiceEditor(std::size(ToneTexts), Choices<ToneTexts>()));
}

wxGridCellEditor* NewBandEditor(int pageBand) {
    if (pageBand == K7Module)
        // The last band of the list isn't offered.
        return new MDLXBandChoiceEditor(std::size(MdlxBands8) - 1, Choices<MdlxBands8>());
    return new MDLXBandChoiceEditor(std::size(MdlxBands3), Choices<MdlxBands3>());
}

/// What a page that was another radio's before, or rows that have moved, may have left read-only.
void Unlock(wxGrid* grid, int row) {
    for (int col : {MNUM, SCAN, ZONE, MODE, RFRQ, RTON, RCOD, TFRQ, TTON, TCOD})
        if (grid->IsReadOnly(row, col))
            grid->SetReadOnly(row, col, false);
}

} // namespace

void SetPageEditors(int page) {
    const PageParameterRecord& parameters = PageParameters[page];
    wxLogMessage(" > SetPageEditors - Page: %i; Radio: %s; Type: %s", page + 1, PageStrings[page].RadioName,
                 PageStrings[page].TypeName);
    wxGrid* grid = PageGrid[page];
    const int rows = parameters.Rows;
    const bool p25 = IsP25Type(parameters.Type);
    wxGridUpdateLocker quiet(grid);
    for (int row = 0; row <= rows; ++row) {
        if (p25) {
            SetRowEditorsP25(grid, row);
        } else {
            Unlock(grid, row);
            SetRowEditors(grid, row);
        }
    }
    if (!HasGuardRows(page))
        return;
    for (int row = rows - 1; row <= rows; ++row) {
        if (p25)
            for (int col : GuardLocksP25)
                grid->SetReadOnly(row, col, true);
        else
            for (int col : GuardLocks)
                grid->SetReadOnly(row, col, true);
    }
}

void SetRowEditors(wxGrid* grid, int row) {
    const PageParameterRecord& page = CurrentParameters();
    const int band = page.Type == MDLX ? GetBandOfEdit(grid, row) : page.Band;
    SetNumberCell(grid, row);
    if (page.Type == MDLX)
        SetCentred(grid, row, BAND, NewBandEditor(page.Band));
    if (page.Type == KDAR) {
        SetYesNoScanCell(grid, row);
    } else {
        SetScanCell(grid, row, SCAN, grid->GetCellValue(row, SCAN), false);
        // Clicks find the boxes from the cell's left edge on.
        AttrOf(grid, row, SCAN)->SetAlignment(wxALIGN_LEFT, wxALIGN_TOP);
    }
    SetEditor(grid, row, DESC, NewDescriptionEditor(page.Type));
    SetCentred(grid, row, MODE, new ListChoiceEditor(std::size(AnalogModes), Choices<AnalogModes>(), false));
    SetFrequencyEditors(grid, row, band);
    for (int col : {RCOD, TCOD})
        SetCentred(grid, row, col, new ZelkChoiceEditor(std::size(CodeTexts), Choices<CodeTexts>()));
    Centre(grid, row, {RTON, TTON});
    if (page.Type == KDAR)
        SetYesNoEditor(grid, row, RONL);
    SetBandEditors(grid, row, band);
}

void SetRowEditorsP25(wxGrid* grid, int row) {
    const PageParameterRecord& page = CurrentParameters();
    SetNumberCell(grid, row);
    SetCentred(grid, row, SHAD, new wxGridCellTextEditor(4));
    SetReadOnly(grid, row, {SHAD}, true);
    SetYesNoScanCell(grid, row);
    AttrOf(grid, row, SCAN)->SetFont(grid->GetDefaultCellFont());
    SetScanLock(grid, row);
    // The zones of both lists end before that of the guard rows, or the one that isn't scanned.
    SetCentred(grid, row, ZONE,
               page.Type == NP25 ? new P25ZoneEditor(std::size(ZoneNames32) - 1, Choices<ZoneNames32>())
                                 : new P25ZoneEditor(std::size(ZoneNames16) - 1, Choices<ZoneNames16>()));
    SetEditor(grid, row, DESC, NewDescriptionEditor(page.Type));
    SetCentred(grid, row, MODE, new ZelkChoiceEditor(std::size(P25Modes), Choices<P25Modes>()));
    SetFrequencyEditors(grid, row, page.Band);
    Centre(grid, row, {RSQL, TSQL});
    SetSquelchChoices(grid, row, grid->GetCellValue(row, MODE), false);
    Centre(grid, row, {RNSV});
    if (page.Radio == Kdrv716B)
        SetEditor(grid, row, RNSV, new wxGridCellNumberEditor(0, 15));
    for (int col : {RTON, TTON})
        SetCentred(grid, row, col, new ZelkChoiceEditor(std::size(CtcssTexts), Choices<CtcssTexts>()));
    // Without "OFF", the first.
    for (int col : {RCOD, TCOD})
        SetCentred(grid, row, col, new ZelkChoiceEditor(std::size(CodeTexts) - 1, Choices<CodeTexts>() + 1));
    for (int col : {RTGP, TTGP})
        SetCentred(grid, row, col, new DigitalSquelchEditor(4, 0, 65535));
    for (int col : {RNAC, TNAC})
        SetCentred(grid, row, col, new DigitalSquelchEditor(3, 0, 4095));
    const wxGridCellAttrPtr unitId = AttrOf(grid, row, TIDC);
    unitId->SetEditor(new wxGridCellNumberEditor(0, 9999999));
    unitId->SetRenderer(new IDCNumberRenderer);
}

void SetFrequencyEditors(wxGrid* grid, int row, int band) {
    const int step = GetChannelStep(CurrentParameters().Radio, band);
    for (int col : {RFRQ, TFRQ})
        SetCentred(grid, row, col, new FrequencyEditor(row, band, step));
}

void SetBandEditors(wxGrid* grid, int row, int band, bool bandChanged) {
    const int type = CurrentParameters().Type;
    // A row that is still to be filled has the locks of its texts to come, but none of them.
    const bool hasTexts = !IsFilledByEdit(grid, row);
    if (band == Am118To138)
        return;
    if (band == Am225To400) {
        if (type != MDLX)
            return;
        SetReadOnly(grid, row, {MODE, RCOD, TCOD}, true);
        SetReadOnly(grid, row, {RTON, TTON}, false);
        if (hasTexts)
            SetTexts(grid, row, {MODE, RCOD, TCOD}, "n/a");
        for (int col : {RTON, TTON})
            if (hasTexts && (bandChanged || GetToneIndex(grid->GetCellValue(row, col)) < 0))
                SetTexts(grid, row, {col}, "OFF");
        SetToneEditors(grid, row);
        return;
    }
    if (band == Am108To138) {
        if (type != MDLX)
            return;
        if (hasTexts)
            SetTexts(grid, row, {RTON, TTON, RCOD, TCOD}, "n/a");
        SetReadOnly(grid, row, {MODE}, false);
        SetReadOnly(grid, row, {RTON, TTON, RCOD, TCOD}, true);
        return;
    }
    // Meant: TCOD keeps the mark that a former band gave it until the page is set up again.
    SetReadOnly(grid, row, {MODE, RTON, TTON, RCOD}, false);
    if (!IsP25Type(type)) {
        SetToneEditors(grid, row);
        return;
    }
    // Meant: TTON keeps the editor that it has.
    SetEditor(grid, row, RTON, new ZelkChoiceEditor(std::size(CtcssTexts), Choices<CtcssTexts>()));
    SetReadOnly(grid, row, {SCAN}, grid->GetCellValue(row, ZONE) == ZoneNames32[NP25GuardZone]);
}

void FitRowToItsBand(wxGrid* grid, int row) {
    if (CurrentParameters().Type != MDLX)
        return;
    Unlock(grid, row);
    SetRowEditors(grid, row);
}

void FitUnusedRowsToDefaultBand(wxGrid* grid) {
    const wxGridUpdateLocker quiet(grid);
    for (int row = 1; row <= CurrentParameters().Rows; ++row)
        if (IsFilledByEdit(grid, row))
            FitRowToItsBand(grid, row);
}

void ChangeRowBand(wxGrid* grid, int row, int band) {
    SetTexts(grid, row, {RFRQ, TFRQ}, "");
    SetFrequencyEditors(grid, row, band);
    SetBandEditors(grid, row, band, true);
}

void SetSquelchChoices(wxGrid* grid, int row, const wxString& mode, bool applyDefault) {
    if (mode != "D") {
        for (int col : {RSQL, TSQL})
            SetEditor(grid, row, col,
                      new ZelkChoiceEditor(std::size(RxAnalogSquelch), Choices<RxAnalogSquelch>()));
        if (applyDefault)
            SetTexts(grid, row, {RSQL, TSQL}, "x");
        return;
    }
    SetEditor(grid, row, RSQL,
              new ZelkChoiceEditor(std::size(RxDigitalSquelch), Choices<RxDigitalSquelch>()));
    const bool shadow = IsShadow(grid, row);
    SetEditor(grid, row, TSQL,
              shadow ? new ZelkChoiceEditor(std::size(TxDigitalSquelchRestricted),
                                            Choices<TxDigitalSquelchRestricted>())
                     : new ZelkChoiceEditor(std::size(TxDigitalSquelch), Choices<TxDigitalSquelch>()));
    if (applyDefault) {
        SetTexts(grid, row, {RSQL}, "m");
        SetTexts(grid, row, {TSQL}, "g");
    }
}
