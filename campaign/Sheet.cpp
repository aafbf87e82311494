#include "campaign/Sheet.h"

#include "campaign/NoDisplay.h"
#include "catalogue/PageCreation.h"
#include "catalogue/PageTable.h"
#include "catalogue/RowFilling.h"
#include "catalogue/ZoneSlots.h"
#include "editing/PageReset.h"
#include "transfer/RadioIdentity.h"
#include "transfer/TransferStatus.h"

#include <wx/app.h>
#include <wx/generic/gridsel.h>
#include <wx/grid.h>
#include <wx/init.h>
#include <wx/log.h>
#include <wx/utils.h>

#include <algorithm>
#include <stdexcept>

namespace Campaign {

namespace {

/// A grid that has cells, but no window.
class CellsOnly : public wxGrid {
public:
    explicit CellsOnly(int rows) {
        m_table = new PageTable(rows);
        m_table->SetView(this);
        m_ownTable = true;
        m_numRows = rows;
        m_numCols = ColumnTotal;
        m_selection = new wxGridSelection(this, wxGridSelectRows);
        m_created = true;
        // A grid that is created with a window sets these.
        m_defaultCellAttr = new wxGridCellAttr(*wxBLACK, *wxWHITE, GetFont(), wxALIGN_LEFT, wxALIGN_TOP);
        m_defaultCellAttr->SetKind(wxGridCellAttr::Default);
        m_cellEditCtrlEnabled = false;
        BeginBatch(); // never ended: nothing must be drawn
    }
};

} // namespace

void StartWithoutDisplay() {
    SilenceDisplayComplaints();
    wxSetEnv("TZ", "UTC"); // dates are the same on every machine
    wxDisableAsserts();
    wxApp::SetInstance(new wxAppConsole);
    int noArguments = 0;
    char** const arguments = nullptr;
    if (!wxEntryStart(noArguments, arguments))
        throw std::runtime_error("the toolkit doesn't start");
    wxLog::EnableLogging(false);
    RadioCatalogue::FillChoiceLists();
    FillStatusList();
}

Sheet::Sheet(int radio, int bandIndex) : m_radio(radio), m_bandIndex(bandIndex) {
    PageCount = 1;
    CurrentPage = 0;
    SetPageParameters(nullptr, 0, radio, bandIndex);
    m_grid = new CellsOnly(PageParameters[0].Rows + 1);
    PageGrid[0] = m_grid;
    Reset();
}

Sheet::~Sheet() {
    PageGrid[0] = nullptr;
    delete m_grid;
}

int Sheet::Rows() const {
    return PageParameters[0].Rows;
}

void Sheet::Reset() {
    PageGrid[0] = m_grid;
    SetPageParameters(nullptr, 0, m_radio, m_bandIndex);
    ResetPage(0);
    EmptyDefaultMemories(0);
    m_grid->ClearSelection();
}

void Sheet::Select(const std::map<int, bool>& rows) {
    m_grid->ClearSelection();
    for (const auto& [row, selected] : rows)
        if (selected)
            m_grid->SelectRow(row, true);
}

ProgramState Sheet::Save() const {
    ProgramState state;
    const wxGridTableBase* table = m_grid->GetTable();
    for (int row = 0; row < m_grid->GetNumberRows(); ++row) {
        RowTexts texts;
        bool used = false;
        for (int col = 0; col < ColumnTotal; ++col) {
            const wxString text = const_cast<wxGridTableBase*>(table)->GetValue(row, col);
            if (text.empty())
                continue;
            used = true;
            texts[static_cast<size_t>(col)] = text.utf8_string();
        }
        if (used)
            state.rows.emplace(row, std::move(texts));
    }
    std::copy_n(ZoneSlotsOf(0), state.zones.size(), state.zones.begin());
    state.modes = OpModes[0];
    state.stamp = RadioStamp;
    state.heldStamp = HeldByRadio.stamp;
    for (const int row : HeldByRadio.rows)
        state.heldRows[row] = true;
    state.readBrokeOff = HeldByRadio.readBrokeOff;
    return state;
}

void Sheet::Load(const ProgramState& state) {
    Reset();
    for (const auto& [row, texts] : state.rows)
        for (int col = 0; col < ColumnTotal; ++col)
            m_grid->SetCellValue(row, col, wxString::FromUTF8(texts[static_cast<size_t>(col)]));
    std::copy(state.zones.begin(), state.zones.end(), ZoneSlotsOf(0));
    OpModes[0] = state.modes;
    RadioStamp = state.stamp;
    HeldByRadio = {state.heldStamp, {}, state.readBrokeOff};
    for (const auto& [row, held] : state.heldRows)
        HeldByRadio.rows.insert(row);
}

} // namespace Campaign
