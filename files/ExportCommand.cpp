// Command that exports the selected rows as a list.
#include "catalogue/PageModel.h"
#include "commands/OpenEditor.h"
#include "files/CsvExport.h"
#include "frame/ZelkMain.h"

#include <wx/filedlg.h>
#include <wx/grid.h>
#include <wx/msgdlg.h>

namespace {

/// Asks for the file to export to. Returns an empty path if the user cancels.
wxString AskForExportFile(wxWindow* parent) {
    const wxString every = wxFileSelectorDefaultWildcardStr;
    wxFileDialog dialog(parent, "Export CSV file", "", PageStrings[CurrentPage].RadioName + ".csv",
                        wxString::Format("CSV files (*.csv)|*.csv|All files (%s)|%s", every, every),
                        wxFD_SAVE | wxFD_OVERWRITE_PROMPT | wxFD_CHANGE_DIR);
    dialog.CentreOnScreen();
    return dialog.ShowModal() == wxID_OK ? dialog.GetPath() : wxString();
}

} // namespace

void ZelkFrame::OnExport(wxCommandEvent& event) {
    CommitOpenEditor();
    wxGrid* grid = CurrentGrid();
    const int type = CurrentParameters().Type;
    if (!HasRowsToList(grid, type)) {
        wxMessageBox("No data selected!", "Export CSV - Error!", wxOK | wxCENTRE | wxICON_ERROR);
        return;
    }
    const wxString path = AskForExportFile(this);
    if (path.empty())
        return;
    CsvExport list;
    bool written = list.OpenCsvWrite(path, type);
    if (written) {
        if (type == RadioCatalogue::KDAR)
            list.ExportCSV_KDAR(grid, type);
        else
            list.ExportCSV(grid, type);
        written = list.CloseCsv();
    }
    if (!written) {
        wxMessageBox("Unable to write to selected File", "Export file", wxOK | wxCENTRE | wxICON_ERROR);
        return;
    }
    event.Skip();
}
