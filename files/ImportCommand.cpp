// Command that imports a foreign file.
#include "catalogue/PageModel.h"
#include "commands/OpenEditor.h"
#include "editing/PageReset.h"
#include "editing/ZelkEditors.h"
#include "files/FilePatterns.h"
#include "files/ImportOutcome.h"
#include "files/ZelkFile_ImportExport.h"
#include "frame/ZelkMain.h"

#include <wx/filedlg.h>
#include <wx/filename.h>
#include <wx/msgdlg.h>

namespace {

struct OfferedKind {
    const char* name;
    const char* patterns;
};

constexpr OfferedKind OfferedKinds[] = {
    {"ZEL716 Binary files", "*.716"},
    {"ZEL716 List files", "*.txt"},
    {"MultiZEL files", "*.210;*.220;*.610;*.630;*.650;*.666;*.840"},
    {"CSV files", "*.csv"},
};

wxString OfferedFiles() {
    wxString offered;
    for (const OfferedKind& kind : OfferedKinds)
        offered +=
            wxString::Format("%s (%s)|%s|", kind.name, kind.patterns, PatternsOfAnyCase(kind.patterns));
    const wxString all = wxFileSelectorDefaultWildcardStr;
    return offered + wxString::Format("All files (%s)|%s", all, all);
}

/// A page that got memories is later saved next to their file. A page that got none has no name, so that
/// saving it does not overwrite the file of its former memories.
void NamePageAfter(const wxString& path, bool hasRows) {
    PageStringRecord& strings = PageStrings[CurrentPage];
    const wxFileName file(path);
    strings.FileName = hasRows ? file.GetName() : wxString();
    if (hasRows)
        strings.FileDir = file.GetPathWithSep();
}

void ReportImport(int kind, int count) {
    wxMessageBox(count > 0 ? wxString::Format("Imported %d Lines from %s file.", count, FileKindWord[kind])
                           : wxString("Error: Unknown File Type."),
                 "Import File", wxOK | wxCENTRE);
}

} // namespace

void ZelkFrame::OnImport(wxCommandEvent& event) {
    CommitOpenEditor();
    wxFileDialog dialog(this, "Import file", "", "", OfferedFiles(),
                        wxFD_OPEN | wxFD_FILE_MUST_EXIST | wxFD_CHANGE_DIR);
    dialog.CentreOnScreen();
    if (dialog.ShowModal() != wxID_OK)
        return event.Skip();
    const wxString path = dialog.GetPath();
    const int kind = m_importer->Identify(path);
    if (kind == MultiZELFile && !m_importer->OpenLines(path)) {
        m_importer->Close();
        wxMessageBox(path, "File Open Error", wxOK | wxCENTRE | wxICON_ERROR);
        return event.Skip();
    }
    ResetPage(CurrentPage);
    // Imported memories must not mix with those that a P25 page starts with.
    EmptyDefaultMemories(CurrentPage);
    const ReplacedCells replaced;
    const SkippedLines skipped;
    const int count = m_importer->Read(kind);
    NamePageAfter(path, count > 0);
    ReportImport(kind, count);
    m_importer->Close();
    CurrentParameters().Flags |= PageFromFile;
    SetPageEditors(CurrentPage);
    if (count > 0 || skipped.Count() > 0)
        TellImport(replaced, skipped);
    event.Skip();
}
