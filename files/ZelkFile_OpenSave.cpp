#include "files/ZelkFile_OpenSave.h"

#include "catalogue/PageCreation.h"
#include "catalogue/ZoneSlots.h"
#include "editing/RowLooks.h"
#include "editing/ZelkEditors.h"
#include "files/ChannelFileReader.h"
#include "files/ChannelFileWriter.h"
#include "files/WholeFile.h"
#include "files/XmlFile.h"
#include "frame/Messages.h"
#include "frame/PageLifecycle.h"
#include "frame/ZelkMain.h"

#include <wx/filedlg.h>
#include <wx/filename.h>
#include <wx/grid.h>
#include <wx/msgdlg.h>
#include <wx/mstream.h>
#include <wx/statusbr.h>
#include <wx/stdpaths.h>
#include <wx/xml/xml.h>

namespace {

void MakeCellsWritable(wxGrid* grid) {
    ForEachOwnAttribute(grid, [](int, int, wxGridCellAttr& attributes) {
        if (attributes.IsReadOnly())
            attributes.SetReadOnly(false);
    });
}

void EmptyRow(wxGrid* grid, int row) {
    for (int col = 0; col < ColumnTotal; ++col)
        grid->SetCellValue(row, col, "");
}

/// The page holds its default row and nothing else.
void WriteDefaultRow(int page) {
    SetPageDefaults(MainFrame, page);
    EmptyDefaultMemories(page);
}

/// Makes page one for the file's target.
void TakeTarget(int page, const ChannelFile::Target& target) {
    using namespace RadioCatalogue;
    PageParameterRecord& parameters = PageParameters[page];
    const PageParameterRecord former = parameters;
    parameters.Radio = target.radio;
    parameters.Band = target.band;
    parameters.BandIndex = target.bandIndex;
    parameters.Type = target.type;
    parameters.Rows = RadioRows[target.radio][target.bandIndex];
    parameters.Cols = ColumnCount[target.type];
    PageStringRecord& strings = PageStrings[page];
    strings.RadioName = RadioName[target.radio];
    strings.BandName = BandName[target.band];
    strings.TypeName = RadioTypeName[target.type];

    const bool differs = former.Radio != parameters.Radio || former.BandIndex != parameters.BandIndex ||
                         former.Type != parameters.Type;
    if (differs)
        // The reader sets the editors up behind the last row.
        FitGridToTarget(former.Radio, former.BandIndex);
    UpdateStatus(MainFrame, page);
}

wxString LeftOutText(int rows) {
    if (rows == 0)
        return {};
    return rows == 1 ? wxString("1 row is incomplete and was not saved")
                     : wxString::Format("%d rows are incomplete and were not saved", rows);
}

/// Writes the document with the extension of channel files. Why not, or empty.
wxString WriteDocument(const wxXmlDocument& document, const wxString& path) {
    wxMemoryOutputStream bytes;
    if (!document.Save(bytes, 2))
        return "the document could not be written";
    const wxStreamBuffer* buffer = bytes.GetOutputStreamBuffer();
    FileReplacement file;
    std::error_code error = file.Open(path);
    if (!error)
        error = file.Finish({static_cast<const char*>(buffer->GetBufferStart()), bytes.GetSize()});
    return error ? wxString::FromUTF8(error.message()) : wxString();
}

/// Asks for the file of the page. False when the user cancelled.
bool AskForFile(PageStringRecord& strings) {
    wxFileDialog dialog(nullptr, "Save .zelk file...", strings.FileDir, strings.FileName,
                        "Zelk Files|*.zelk|All files|*.*", wxFD_SAVE);
    if (dialog.ShowModal() != wxID_OK)
        return false;
    const wxFileName chosen(dialog.GetPath());
    strings.FileDir = chosen.GetPathWithSep();
    strings.FileName = chosen.GetName();
    return true;
}

void SaveCurrentPage(bool saveAs) {
    CommitOpenEditor();
    if (CountRowsWithData(CurrentPage) == 0) {
        wxMessageBox("Empty Grid - No data to Save", "Error", wxOK | wxCENTRE | wxICON_ERROR);
        return;
    }
    SaveZelkFile(CurrentPage, saveAs);
}

} // namespace

void EmptyDefaultMemories(int page) {
    if (!RadioCatalogue::IsP25Type(PageParameters[page].Type))
        return;
    for (int row : {1, GD1, GD2})
        if (row >= 0)
            EmptyRow(PageGrid[page], row);
    ClearZoneSlots(page);
}

void ResetPage(int page) {
    wxGrid* grid = PageGrid[page];
    wxGridUpdateLocker quiet(grid);
    grid->ClearGrid();
    PageParameters[page].Flags = 0;
    ForgetLooksOfRows(grid);
    SetPageDefaults(MainFrame, page);
    ClearZoneSlots(page);
}

int OpenZelkFile(const wxXmlDocument& document, int page) {
    wxGrid* grid = PageGrid[page];
    wxGridUpdateLocker quiet(grid);
    grid->ClearGrid();
    MakeCellsWritable(grid);

    ChannelFile::Target target;
    const wxXmlNode* memories = nullptr;
    int result = ChannelFile::ReadHeader(document, target, memories);
    if (result == ChannelFile::ReadDone)
        TakeTarget(page, target);
    WriteDefaultRow(page);
    const int rowsResult = ChannelFile::ReadMemories(memories, page);
    return result != ChannelFile::ReadDone ? result : rowsResult;
}

bool OpenChannelFile(const wxString& path) {
    wxFileName file(path);
    file.MakeAbsolute();
    wxXmlDocument document;
    if (!LoadXmlFile(file.GetFullPath(), document)) {
        wxMessageBox("Not valid XML Document", "Error", wxOK | wxCENTRE | wxICON_ERROR);
        return false;
    }
    ResetPage(CurrentPage);
    const int result = OpenZelkFile(document, CurrentPage);
    if (result != 0) {
        wxMessageBox(wxString::Format("Open File returned: %d", result), "Error", wxOK | wxCENTRE);
        return false;
    }
    PageStringRecord& strings = PageStrings[CurrentPage];
    strings.FileName = file.GetName();
    strings.FileDir = file.GetPathWithSep();
    CurrentParameters().Flags |= PageFromFile;
    return true;
}

void SaveZelkFile(int page, bool saveAs) {
    wxXmlDocument document;
    const int leftOut = BuildChannelFile(page, document);
    // Meant: the folder is made also for a save that is then cancelled.
    const wxString userFolder = wxStandardPaths::Get().GetUserDataDir();
    if (!wxFileName::DirExists(userFolder))
        wxFileName::Mkdir(userFolder, 0777, wxPATH_MKDIR_FULL);

    PageStringRecord& strings = PageStrings[page];
    if ((strings.FileName.empty() || saveAs) && !AskForFile(strings))
        return;
    const wxString problem = WriteDocument(document, strings.FileDir + strings.FileName + ".zelk");
    TellOutcome(problem.empty() ? LeftOutText(leftOut) : "File was not saved: " + problem);
}

void ZelkFrame::OnOpen(wxCommandEvent&) {
    CommitOpenEditor();
    wxMessageDialog question(nullptr, "This will overwrite all data on this page! Continue?", "Open File?",
                             wxOK | wxCANCEL);
    if (question.ShowModal() != wxID_OK)
        return;
    const PageStringRecord& strings = PageStrings[CurrentPage];
    wxFileDialog dialog(this, "Select Zelk file",
                        strings.FileDir.empty() ? PageStrings[0].FileDir : strings.FileDir, "",
                        "Zelk files|*.zelk|All files|*.*", wxFD_OPEN);
    if (dialog.ShowModal() != wxID_OK)
        return;
    OpenChannelFile(dialog.GetPath());
}

void ZelkFrame::OnSave(wxCommandEvent&) {
    SaveCurrentPage(false);
}

void ZelkFrame::OnSaveAs(wxCommandEvent&) {
    SaveCurrentPage(true);
}
