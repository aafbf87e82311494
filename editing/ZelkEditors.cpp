#include "editing/ZelkEditors.h"

#include "catalogue/PageModel.h"
#include "catalogue/PageTable.h"
#include "editing/BandCell.h"
#include "editing/ChoiceCells.h"
#include "editing/DescriptionCell.h"
#include "editing/DigitalSquelchCell.h"
#include "editing/MemoryNumberCell.h"
#include "editing/RowBand.h"
#include "editing/ScanListCell.h"
#include "editing/ScanLock.h"
#include "editing/ZoneCell.h"

#include <wx/grid.h>
#include <wx/log.h>

using namespace RadioCatalogue;

namespace {

/// Alignment of a column's texts.
enum class Placed { AsOthers, Centred, AtTheTopLeft };

/// Sets up a column of a page. The grid takes ownership of editor and renderer; null selects the grid's own.
wxGridCellAttr& SetColumn(wxGrid* grid, int col, Placed placed, wxGridCellEditor* editor = nullptr,
                          wxGridCellRenderer* renderer = nullptr) {
    auto* const attr = new wxGridCellAttr;
    if (placed == Placed::Centred)
        attr->SetAlignment(wxALIGN_CENTRE, wxALIGN_CENTRE);
    else if (placed == Placed::AtTheTopLeft)
        attr->SetAlignment(wxALIGN_LEFT, wxALIGN_TOP);
    attr->SetEditor(editor);
    attr->SetRenderer(renderer);
    grid->SetColAttr(col, attr);
    return *attr;
}

template <const auto& texts>
wxGridCellEditor* NewListEditor() {
    return new ListChoiceEditor(std::size(texts), Choices<texts>(), false);
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

wxGridCellEditor* NewBandEditor(int pageBand) {
    if (pageBand == K7Module)
        // The last band of the list isn't offered.
        return new MDLXBandChoiceEditor(std::size(MdlxBands8) - 1, Choices<MdlxBands8>());
    return new MDLXBandChoiceEditor(std::size(MdlxBands3), Choices<MdlxBands3>());
}

// Neither list offers its last zone: that of the guard rows, or the one that isn't scanned.
wxGridCellEditor* NewZoneEditor(int type) {
    return type == NP25 ? new P25ZoneEditor(std::size(ZoneNames32) - 1, Choices<ZoneNames32>())
                        : new P25ZoneEditor(std::size(ZoneNames16) - 1, Choices<ZoneNames16>());
}

/// Leaves out the first code, "OFF".
wxGridCellEditor* NewCodeEditorWithoutOff() {
    return new ZelkChoiceEditor(std::size(CodeTexts) - 1, Choices<CodeTexts>() + 1);
}

/// Adds the reference that an attribute takes over.
wxGridCellEditor* Referenced(const wxGridCellEditorPtr& editor) {
    editor->IncRef();
    return editor.get();
}

void SetFrequencyColumns(wxGrid* grid, int band) {
    for (int col : {RFRQ, TFRQ})
        SetColumn(grid, col, Placed::Centred, Referenced(FrequencyEditorOf(grid, band)));
}

void SetNumberColumn(wxGrid* grid) {
    const int rows = CurrentParameters().Rows;
    SetColumn(grid, MNUM, Placed::AsOthers, new ZelkMemoryNumberEditor(0, rows),
              new MemoryNumberRenderer(rows % 10 != 0));
}

/// True if tones have a list on a page that isn't P25. Rows of the module have it in every band.
bool HasToneList(const PageParameterRecord& page) {
    return page.Type == MDLX ||
           (page.Band != Am108To138 && page.Band != Am118To138 && page.Band != Am225To400);
}

void SetScanColumn(wxGrid* grid, int type) {
    if (type == KDAR) {
        SetColumn(grid, SCAN, Placed::Centred, NewListEditor<ScanYesNo>());
        return;
    }
    // Clicks are mapped to boxes from the cell's left edge.
    SetColumn(grid, SCAN, Placed::AtTheTopLeft, new ScanlistEditor(false), new ScanlistRenderer);
}

void SetColumns(wxGrid* grid) {
    const PageParameterRecord& page = CurrentParameters();
    SetNumberColumn(grid);
    if (page.Type == MDLX)
        SetColumn(grid, BAND, Placed::Centred, NewBandEditor(page.Band));
    SetScanColumn(grid, page.Type);
    SetColumn(grid, DESC, Placed::AsOthers, NewDescriptionEditor(page.Type));
    SetColumn(grid, MODE, Placed::Centred, NewListEditor<AnalogModes>());
    // Unused rows of a module have the band of the default row.
    SetFrequencyColumns(grid, page.Type == MDLX ? GetRowBand(grid, 0) : page.Band);
    for (int col : {RTON, TTON})
        SetColumn(grid, col, Placed::Centred, HasToneList(page) ? NewLinkedEditor<ToneTexts>() : nullptr);
    for (int col : {RCOD, TCOD})
        SetColumn(grid, col, Placed::Centred, NewLinkedEditor<CodeTexts>());
    if (page.Type == KDAR)
        SetColumn(grid, RONL, Placed::Centred, NewListEditor<ScanYesNo>());
}

void SetColumnsP25(wxGrid* grid) {
    const PageParameterRecord& page = CurrentParameters();
    SetNumberColumn(grid);
    SetColumn(grid, SHAD, Placed::Centred, new wxGridCellTextEditor(4)).SetReadOnly();
    SetColumn(grid, SCAN, Placed::Centred, NewListEditor<ScanYesNo>());
    SetColumn(grid, ZONE, Placed::Centred, NewZoneEditor(page.Type));
    SetColumn(grid, DESC, Placed::AsOthers, NewDescriptionEditor(page.Type));
    SetColumn(grid, MODE, Placed::Centred, NewLinkedEditor<P25Modes>());
    SetFrequencyColumns(grid, page.Band);
    for (int col : {RSQL, TSQL})
        SetColumn(grid, col, Placed::Centred, Referenced(AnalogSquelchEditor(grid)));
    SetColumn(grid, RNSV, Placed::Centred,
              page.Radio == Kdrv716B ? new wxGridCellNumberEditor(0, 15) : nullptr);
    for (int col : {RTON, TTON})
        SetColumn(grid, col, Placed::Centred, NewLinkedEditor<CtcssTexts>());
    for (int col : {RCOD, TCOD})
        SetColumn(grid, col, Placed::Centred, NewCodeEditorWithoutOff());
    for (int col : {RTGP, TTGP})
        SetColumn(grid, col, Placed::Centred, new DigitalSquelchEditor(4, 0, 65535));
    for (int col : {RNAC, TNAC})
        SetColumn(grid, col, Placed::Centred, new DigitalSquelchEditor(3, 0, 4095));
    SetColumn(grid, TIDC, Placed::AsOthers, new wxGridCellNumberEditor(0, 9999999), new IDCNumberRenderer);
}

void FitRowP25(wxGrid* grid, int row) {
    if (row == 0)
        LockCell(grid, 0, MNUM);
    SetScanLock(grid, row);
    SetSquelchChoices(grid, row, grid->GetCellValue(row, MODE), false);
}

void LockGuardRows(wxGrid* grid, bool p25) {
    static constexpr std::initializer_list<int> columns = {MNUM, SCAN, RTON, RCOD};
    static constexpr std::initializer_list<int> p25Columns = {MNUM, SCAN, ZONE};
    const int rows = CurrentParameters().Rows;
    for (int row : {rows - 1, rows})
        for (int col : p25 ? p25Columns : columns)
            LockCell(grid, row, col);
}

} // namespace

void SetPageEditors(int page) {
    const PageParameterRecord& parameters = PageParameters[page];
    wxLogMessage(" > SetPageEditors - Page: %i; Radio: %s; Type: %s", page + 1, PageStrings[page].RadioName,
                 PageStrings[page].TypeName);
    wxGrid* grid = PageGrid[page];
    const bool p25 = IsP25Type(parameters.Type);
    const wxGridUpdateLocker quiet(grid);
    TableOf(grid).ForgetEditors();
    for (int col = 0; col < ColumnTotal; ++col)
        grid->SetColAttr(col, nullptr);
    p25 ? SetColumnsP25(grid) : SetColumns(grid);
    for (int row = 0; row <= parameters.Rows; ++row) {
        if (p25) {
            FitRowP25(grid, row);
        } else {
            UnlockRow(grid, row);
            FitRow(grid, row);
        }
    }
    if (HasGuardRows(page))
        LockGuardRows(grid, p25);
}

void SetRowEditors(wxGrid* grid, int row) {
    TableOf(grid).ForgetEditors(row);
    FitRow(grid, row);
}

void SetRowEditorsP25(wxGrid* grid, int row) {
    TableOf(grid).ForgetEditors(row);
    FitRowP25(grid, row);
}
