#include "files/ZelkFile_ImportExport.h"

#include "catalogue/PageModel.h"
#include "commands/OpenEditor.h"
#include "editing/ZelkEditors.h"
#include "files/CsvImport.h"
#include "files/FilePatterns.h"
#include "files/Import716.h"
#include "files/ImportMultiZEL.h"
#include "files/ImportOutcome.h"
#include "files/ImportText.h"
#include "files/ZelkFile_OpenSave.h"
#include "frame/ZelkMain.h"

#include <wx/filedlg.h>
#include <wx/filename.h>
#include <wx/msgdlg.h>

#include <string>

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

/// A page that got memories is saved beside their file; one that got none has no name, so that it isn't saved
/// over the file of its former memories.
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

int FileImporter::Identify(const wxString& path) {
    if (m_stream.IsOpened() || !m_stream.Open(path, "rb"))
        return UnknownFile;
    std::string header(HeaderSize716, '\0');
    header.resize(m_stream.Read(header.data(), header.size()));
    if (Is716Header(header))
        return Binary716File;
    RewindText(m_stream);
    LineReader reader(m_stream);
    std::array<wxString, 4> lines;
    for (wxString& line : lines)
        reader.Next(line);
    RewindText(m_stream);
    return KindOfText(lines);
}

bool FileImporter::OpenLines(const wxString& path) {
    m_stream.Close();
    return m_lines.Open(path, wxConvAuto(wxFONTENCODING_ISO8859_1));
}

int FileImporter::Read(int kind) {
    switch (kind) {
    case Binary716File:
        return Import716_Binary(m_stream);
    case Text716File:
        return Import716_Text(m_stream);
    case MultiZELFile:
        return ImportMultiZEL(m_lines);
    case CsvFile:
        return Import_CSV(m_stream);
    case KdarFile:
        return Import_KDAR(m_stream);
    default:
        return 0;
    }
}

void FileImporter::Close() {
    m_stream.Close();
    m_lines.Close();
}

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
    // What comes must not stand among the memories that such a page begins with.
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
