// Opening a full channel file, for each radio type.
#include "bench/Benches.h"
#include "bench/FullPage.h"
#include "bench/ToolkitFloor.h"
#include "catalogue/PageModel.h"
#include "editing/PageReset.h"
#include "files/XmlFile.h"
#include "files/ZelkFile_OpenSave.h"
#include "frame/ZelkMain.h"

#include <benchmark/benchmark.h>
#include <wx/filename.h>
#include <wx/grid.h>
#include <wx/notebook.h>
#include <wx/textfile.h>
#include <wx/xml/xml.h>

namespace {

/// Fills the current page and saves it in the system's temporary folder. Returns the file's path.
wxString SaveFullPage(const PageCase& page) {
    FillPage();
    PageStrings[CurrentPage].FileDir = wxFileName::GetTempDir() + "/";
    PageStrings[CurrentPage].FileName = wxString("zelk-bench-") + page.type;
    const wxString path = PageStrings[CurrentPage].FileDir + PageStrings[CurrentPage].FileName + ".zelk";
    // No one would answer the question about a file of an earlier run.
    if (wxFileExists(path))
        wxRemoveFile(path);
    SaveZelkFile(CurrentPage, false);
    if (page.forcedType >= 0) {
        // A save omits the name of this type; only an edited file has it.
        wxTextFile file(path);
        file.Open();
        for (size_t line = 0; line < 10; ++line)
            if (file[line].Contains("<FType>"))
                file[line] = wxString("  <FType>") + page.type + "</FType>";
        file.Write();
    }
    return path;
}

void OpenInProgram(benchmark::State& state, const wxString& path) {
    for ([[maybe_unused]] auto _ : state) {
        wxXmlDocument document;
        if (!LoadXmlFile(path, document))
            return state.SkipWithError("the file is refused");
        ResetPage(CurrentPage);
        if (const int result = OpenZelkFile(document, CurrentPage))
            return state.SkipWithError(("open answered " + std::to_string(result)).c_str());
    }
}

/// The toolkit alone, on a bare page: loads the document, visits each element, empties the grid, sets up its
/// columns and writes each text of the page.
void OpenBare(benchmark::State& state, const wxString& path) {
    const GridContent content = ContentOfCurrentPage();
    DropPage();
    wxGrid* grid = AddBarePage(MainFrame->m_notebook, content);
    for ([[maybe_unused]] auto _ : state) {
        wxXmlDocument document;
        if (!document.Load(path))
            return state.SkipWithError("the file is refused");
        size_t length = 0;
        for (wxXmlNode* row = document.GetRoot()->GetChildren(); row; row = row->GetNext())
            for (wxXmlNode* cell = row->GetChildren(); cell; cell = cell->GetNext())
                length += cell->GetNodeContent().length();
        benchmark::DoNotOptimize(length);
        wxGridUpdateLocker quiet(grid);
        grid->ClearGrid();
        SetBareColumns(grid, content.type);
        WriteTexts(grid, content);
    }
}

} // namespace

void RegisterChannelFiles() {
    for (const PageCase& page : PageCases)
        for (const bool floor : {false, true})
            benchmark::RegisterBenchmark(
                (std::string("file/") + page.type + (floor ? "/floor" : "/program")).c_str(),
                [floor, &page](benchmark::State& state) {
                    MakePage(page);
                    const wxString path = SaveFullPage(page);
                    floor ? OpenBare(state, path) : OpenInProgram(state, path);
                    DropPage();
                    wxRemoveFile(path);
                })
                ->Unit(benchmark::kMillisecond)
                ->Iterations(5)
                ->Repetitions(8)
                ->UseRealTime();
}
