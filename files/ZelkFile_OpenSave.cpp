#include "files/ZelkFile_OpenSave.h"

#include "catalogue/GridShape.h"
#include "catalogue/RowFilling.h"
#include "commands/StatusOutcome.h"
#include "editing/CellMarks.h"
#include "editing/PageReset.h"
#include "files/ChannelFileReader.h"
#include "files/ChannelFileWriter.h"
#include "files/FileReplacement.h"
#include "files/PageFiles.h"
#include "files/SaveOutcome.h"
#include "files/XmlFile.h"
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

/// Leaves only the default row on the page.
void WriteDefaultRow(int page) {
    SetPageDefaults(nullptr, page);
    EmptyDefaultMemories(page);
}

/// Sets page up for the file's target.
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
        // The reader sets the editors up after the last row.
        FitGridToTarget(former.Radio, former.BandIndex);
    UpdateStatus(MainFrame, page);
}

WriteResult WriteDocument(const wxXmlDocument& document, const wxString& path) {
    wxMemoryOutputStream bytes;
    if (!document.Save(bytes, 2))
        return {std::make_error_code(std::errc::not_enough_memory)};
    const wxStreamBuffer* buffer = bytes.GetOutputStreamBuffer();
    FileReplacement file;
    if (const auto error = file.Open(path))
        return {error};
    return file.Finish({static_cast<const char*>(buffer->GetBufferStart()), bytes.GetSize()});
}

/// File that a page is saved to.
struct PageFile {
    wxString folder; ///< with a trailing separator
    wxString name;   ///< without extension

    wxString Path() const { return folder + name + ".zelk"; }
};

/// Asks for the file of the page. Returns false if the user cancels.
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

} // namespace

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
    // Intentional: the folder is created even if the user then cancels the save.
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

    const WriteResult result = WriteDocument(document, path);
    if (!result.error)
        AddOwnFile(page, path);
    const Outcome outcome = result.error ? NotSavedOutcome(path, result.error, result.damaged)
                                         : SavedOutcome(file.name + ".zelk", leftOut);
    TellOutcome(outcome.verdict, outcome.story);
}
