#include "files/ZelkFile_OpenSave.h"

#include "catalogue/GridShape.h"
#include "catalogue/RowFilling.h"
#include "catalogue/ZoneSlots.h"
#include "commands/OpenEditor.h"
#include "commands/StatusOutcome.h"
#include "editing/RowLooks.h"
#include "editing/ZelkEditors.h"
#include "files/ChannelFileReader.h"
#include "files/ChannelFileWriter.h"
#include "files/PageFiles.h"
#include "files/SaveOutcome.h"
#include "files/WholeFile.h"
#include "files/XmlFile.h"
#include "frame/PageLifecycle.h"
#include "frame/ZelkMain.h"

#include <wx/filedlg.h>
#include <wx/filename.h>
#include <wx/grid.h>
#include <wx/msgdlg.h>
#include <wx/mstream.h>
#include <wx/stdpaths.h>
#include <wx/xml/xml.h>

#include <system_error>
#include <vector>

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

/// What a save did to the file.
struct SaveResult {
    std::error_code error;
    bool damaged = false; ///< after an error: the former file could not be put back
};

SaveResult WriteDocument(const wxXmlDocument& document, const wxString& path) {
    wxMemoryOutputStream bytes;
    if (!document.Save(bytes, 2))
        return {std::make_error_code(std::errc::not_enough_memory)};
    const wxStreamBuffer* buffer = bytes.GetOutputStreamBuffer();
    FileReplacement file;
    if (const auto error = file.Open(path))
        return {error};
    const auto error = file.Finish({static_cast<const char*>(buffer->GetBufferStart()), bytes.GetSize()});
    return {error, file.FormerIsDamaged()};
}

/// Where a page is saved.
struct PageFile {
    wxString folder; ///< with a separator at its end
    wxString name;   ///< without extension

    wxString Path() const { return folder + name + ".zelk"; }
};

/// Asks for the file of the page. False when the user cancelled.
bool AskForFile(PageFile& file) {
    wxFileDialog dialog(nullptr, "Save .zelk file...", file.folder, file.name,
                        "Zelk Files|*.zelk|All files|*.*", wxFD_SAVE);
    if (dialog.ShowModal() != wxID_OK)
        return false;
    const wxFileName chosen(dialog.GetPath());
    file = {chosen.GetPathWithSep(), chosen.GetName()};
    return true;
}

void MakeUserFolder() {
    const wxString folder = wxStandardPaths::Get().GetUserDataDir();
    if (!wxFileName::DirExists(folder))
        wxFileName::Mkdir(folder, 0777, wxPATH_MKDIR_FULL);
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
    AddOwnFile(CurrentPage, file.GetFullPath());
    CurrentParameters().Flags |= PageFromFile;
    return true;
}

void SaveZelkFile(int page, bool saveAs) {
    wxXmlDocument document;
    const std::vector<int> leftOut = BuildChannelFile(page, document);
    // Meant: the folder is made also for a save that is then cancelled.
    MakeUserFolder();

    PageStringRecord& strings = PageStrings[page];
    PageFile file{strings.FileDir, strings.FileName};
    if ((file.name.empty() || saveAs) && !AskForFile(file))
        return;
    const wxString path = file.Path();
    if (!MayReplaceFile(page, path))
        return;
    strings.FileDir = file.folder;
    strings.FileName = file.name;

    const SaveResult result = WriteDocument(document, path);
    if (!result.error)
        AddOwnFile(page, path);
    const Outcome outcome = result.error ? NotSavedOutcome(path, result.error, result.damaged)
                                         : SavedOutcome(file.name + ".zelk", leftOut);
    TellOutcome(outcome.verdict, outcome.story);
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
