#include "frame/FindLine.h"

#include "catalogue/PageModel.h"
#include "catalogue/TextNumbers.h"
#include "catalogue/TextSizes.h"
#include "commands/OpenEditor.h"
#include "commands/SpokenNames.h"
#include "editing/CellText.h"
#include "editing/FindText.h"

#include <wx/grid.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <algorithm>
#include <vector>

namespace {

constexpr int Gap = 5;

std::vector<int> ShownColumns(const wxGrid* grid) {
    std::vector<int> columns;
    for (int col = 0; col < ColumnTotal; ++col)
        if (grid->IsColShown(col))
            columns.push_back(col);
    return columns;
}

wxString ResultText(int row, int col, bool forward, bool wrapped) {
    const wxString place =
        "Row " + NumberText(row) + ", " + RadioCatalogue::ColumnHeading[CurrentParameters().Type][col];
    if (!wrapped)
        return place;
    return place + (forward ? " - continued from the first row" : " - continued from the last row");
}

} // namespace

FindLine* FindLine::Of(const wxWindow* page) {
    for (wxWindow* part : page->GetChildren())
        if (auto* line = dynamic_cast<FindLine*>(part))
            return line;
    return nullptr;
}

FindLine* FindLine::AddTo(wxWindow* page) {
    auto* const line = new FindLine(page);
    page->GetSizer()->Add(line, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, Gap));
    return line;
}

FindLine::FindLine(wxWindow* page) : wxPanel(page) {
    auto* sizer = new wxBoxSizer(wxHORIZONTAL);
    const auto centred = wxSizerFlags().Centre();
    sizer->Add(new wxStaticText(this, wxID_ANY, "Find:"), centred);
    m_text = new wxTextCtrl(this, wxID_ANY);
    NameForReader(*m_text, "Find");
    m_text->SetMinSize(wxSize(m_text->GetTextExtent(wxString('0', 24)).x, FieldHeightFor(m_text)));
    m_text->SetToolTip("Text or frequency; Enter finds the next cell, Shift+Enter the previous one");
    sizer->Add(m_text, wxSizerFlags(centred).Border(wxLEFT | wxRIGHT, Gap));
    m_result = new wxStaticText(this, wxID_ANY, "", wxDefaultPosition, wxDefaultSize,
                                wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_END);
    sizer->Add(m_result, wxSizerFlags(1).Centre());
    SetSizer(sizer);
    Hide();
    Bind(wxEVT_CHAR_HOOK, &FindLine::OnKey, this);
    m_text->Bind(wxEVT_TEXT, [this](wxCommandEvent&) {
        m_textIsNew = true;
        ForgetResult();
    });
}

void FindLine::Open() {
    // A cell editor must not stay open while its cell is left.
    CommitOpenEditor();
    if (!IsShown()) {
        Show();
        GetParent()->Layout();
    }
    m_text->SetFocus();
    m_text->SelectAll();
}

void FindLine::Close() {
    Hide();
    GetParent()->Layout();
    ForgetResult();
    CurrentGrid()->SetFocus();
}

void FindLine::ForgetResult() {
    m_result->SetLabel("");
}

void FindLine::OnKey(wxKeyEvent& event) {
    const bool enter = event.GetKeyCode() == WXK_RETURN || event.GetKeyCode() == WXK_NUMPAD_ENTER;
    if (enter && (event.GetModifiers() & ~wxMOD_SHIFT) == 0)
        Find(!event.ShiftDown());
    else
        event.Skip();
}

void FindLine::Find(bool forward) {
    wxGrid* grid = CurrentGrid();
    const wxString wanted = m_text->GetValue();
    if (wxString(wanted).Trim().empty())
        return ForgetResult();
    const std::vector<int> columns = ShownColumns(grid);
    const int width = static_cast<int>(columns.size());
    const auto columnAt = [&](int position) { return columns[static_cast<size_t>(position % width)]; };
    const auto cursorColumn = std::find(columns.begin(), columns.end(), grid->GetGridCursorCol());
    int from = grid->GetGridCursorRow() * width + static_cast<int>(cursorColumn - columns.begin());
    if (m_textIsNew)
        from += forward ? -1 : 1;
    m_textIsNew = false;
    const auto found = NextMatch(width * grid->GetNumberRows(), from, forward, [&](int position) {
        return IsFoundBy(ShownText(grid, position / width, columnAt(position)), wanted);
    });
    if (!found) {
        m_result->SetLabel("Not found on this page");
        return;
    }
    const int row = found->position / width, col = columnAt(found->position);
    grid->GoToCell(row, col);
    // The grid doesn't draw its cursor while the line has the focus.
    grid->SelectBlock(row, col, row, col);
    m_result->SetLabel(ResultText(row, col, forward, found->wrapped));
}
