// Reads channel files and files of other programs, and writes each as a channel file and as a list. Runs on
// every system: what it writes shows whether the systems read and write alike.
#include "campaign/Sheet.h"
#include "catalogue/PageModel.h"
#include "catalogue/RowFilling.h"
#include "editing/PageReset.h"
#include "editing/ZelkEditors.h"
#include "files/ChannelFileReader.h"
#include "files/CsvExport.h"
#include "files/FileKind.h"
#include "files/XmlFile.h"
#include "files/ZelkFile_ImportExport.h"
#include "files/ZelkFile_OpenSave.h"

#include <wx/dir.h>
#include <wx/filename.h>
#include <wx/grid.h>
#include <wx/modalhook.h>
#include <wx/xml/xml.h>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

std::string Utf8(const wxString& text) {
    return text.utf8_string();
}

/// Closes the message boxes of files that hold nothing.
class NoBoxes : public wxModalDialogHook {
protected:
    int Enter(wxDialog*) override { return wxID_OK; }
};

std::vector<wxString> FilesIn(const wxString& folder) {
    wxArrayString files;
    wxDir::GetAllFiles(folder, &files, "*.*", wxDIR_FILES);
    files.Sort();
    return {files.begin(), files.end()};
}

ChannelFile::Target TargetOf(const wxXmlDocument& document, const wxXmlNode*& memories) {
    ChannelFile::Target target;
    if (ChannelFile::ReadHeader(document, target, memories) != ChannelFile::ReadDone)
        throw std::runtime_error("a channel file without a header");
    return target;
}

std::unique_ptr<wxXmlDocument> Loaded(const wxString& path) {
    auto document = std::make_unique<wxXmlDocument>();
    if (!LoadXmlFile(path, *document))
        throw std::runtime_error(Utf8(path) + " can't be loaded");
    return document;
}

/// Writes the page as a channel file and all its rows as a list.
void Write(Campaign::Sheet& sheet, const wxString& folder, const wxString& name) {
    PageStrings[0].FileDir = folder + wxFileName::GetPathSeparator();
    PageStrings[0].FileName = name;
    SaveZelkFile(0, false);
    if (!wxFileName::FileExists(PageStrings[0].FileDir + name + ".zelk"))
        throw std::runtime_error(Utf8(name) + " was not saved");
    sheet.Grid()->SelectAll();
    const int type = CurrentParameters().Type;
    CsvExport list;
    bool good = list.OpenCsvWrite(PageStrings[0].FileDir + name + ".csv", type);
    if (good && type == RadioCatalogue::KDAR)
        list.ExportCSV_KDAR(sheet.Grid(), type);
    else if (good)
        list.ExportCSV(sheet.Grid(), type);
    if (!good || !list.CloseCsv())
        throw std::runtime_error(Utf8(name) + " was not exported");
}

void Convert(const wxString& path, const wxString& folder) {
    const auto document = Loaded(path);
    const wxXmlNode* memories = nullptr;
    const ChannelFile::Target target = TargetOf(*document, memories);
    Campaign::Sheet sheet(target.radio, target.bandIndex);
    if (ChannelFile::ReadMemories(memories, 0) != ChannelFile::ReadDone)
        throw std::runtime_error(Utf8(path) + " has unknown elements");
    Write(sheet, folder, wxFileName(path).GetName());
}

/// Imports a file into a page for the radio of the example whose name is most like the file's. Returns the
/// count of lines; a file that holds none is not written.
int Import(const wxString& path, const std::vector<wxString>& examples, const wxString& folder) {
    const wxString name = wxFileName(path).GetFullName();
    const auto Likeness = [&name](const wxString& example) {
        const wxString other = wxFileName(example).GetName();
        return std::mismatch(name.begin(), name.end(), other.begin(), other.end()).first - name.begin();
    };
    const auto nearest =
        std::max_element(examples.begin(), examples.end(), [&](const wxString& one, const wxString& other) {
            return Likeness(one) < Likeness(other);
        });
    const auto document = Loaded(*nearest);
    const wxXmlNode* memories = nullptr;
    const ChannelFile::Target target = TargetOf(*document, memories);
    Campaign::Sheet sheet(target.radio, target.bandIndex);
    // Cells ask for their renderer and editor, which a grid that is never shown doesn't have.
    for (int col = 0; col < ColumnTotal; ++col) {
        auto* const attributes = new wxGridCellAttr;
        attributes->SetRenderer(new wxGridCellStringRenderer);
        attributes->SetEditor(new wxGridCellTextEditor);
        sheet.Grid()->SetColAttr(col, attributes);
    }
    FileImporter importer;
    const int kind = importer.Identify(path);
    if (kind == MultiZELFile && !importer.OpenLines(path))
        throw std::runtime_error(Utf8(path) + " can't be opened");
    const int lines = importer.Read(kind);
    importer.Close();
    if (lines > 0) {
        SetPageEditors(0);
        Write(sheet, folder, "imported-" + name);
    }
    return lines;
}

} // namespace

// same-files OUTPUT EXAMPLES [FOREIGN]: EXAMPLES holds channel files, FOREIGN those of other programs.
int main(int argc, char** argv) {
    try {
        if (argc < 3)
            throw std::runtime_error("usage: same-files OUTPUT EXAMPLES [FOREIGN]");
        Campaign::StartWithoutDisplay();
        NoBoxes boxes;
        boxes.Register();
        const wxString output = wxString::FromUTF8(argv[1]);
        std::vector<wxString> examples;
        for (const wxString& file : FilesIn(wxString::FromUTF8(argv[2])))
            if (file.EndsWith(".zelk"))
                examples.push_back(file);
        for (const wxString& example : examples)
            Convert(example, output);
        size_t imported = 0;
        if (argc > 3)
            for (const wxString& file : FilesIn(wxString::FromUTF8(argv[3])))
                if (wxFileName(file).HasExt()) {
                    std::printf("%s: %d lines\n", Utf8(wxFileName(file).GetFullName()).c_str(),
                                Import(file, examples, output));
                    ++imported;
                }
        std::printf("%zu channel files and %zu files of other programs read and written\n", examples.size(),
                    imported);
        return examples.empty() ? 1 : 0;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "same-files: %s\n", failure.what());
        return 1;
    }
}
