// Import and export of comma-separated lists.
#include "bench/Benches.h"
#include "bench/FullPage.h"
#include "bench/OperationRecord.h"
#include "bench/PageSide.h"
#include "bench/TakeFastest.h"
#include "bench/ToolkitFloor.h"
#include "catalogue/PageModel.h"
#include "catalogue/ZoneSlots.h"
#include "files/CsvExport.h"
#include "files/CsvFields.h"
#include "files/CsvImport.h"
#include "files/CsvWriter.h"
#include "frame/ZelkMain.h"

#include <wx/ffile.h>
#include <wx/file.h>
#include <wx/filename.h>
#include <wx/grid.h>
#include <wx/notebook.h>

#include <stdexcept>

namespace {

/// Pages of one type in three sizes, as in the other groups, besides the full pages of real radios.
constexpr PageCase CsvPages[] = {
    {"NP25", Kdrv716B, 0, -1, 102}, {"NP25", Kdrv716B, 0, -1, 232},
    {"NP25", Kdrv716B, 0},          {"ANFM", Krv214, 0},
    {"ANFM", Krv214, 0, -1, 232},   {"ANFM", Krv214, 0, -1, 502},
};

wxString ListPath() {
    return wxFileName::GetTempDir() + "/zelk-bench-list.csv";
}

void SelectMemories() {
    CurrentGrid()->SelectBlock(1, 0, CurrentParameters().Rows, ColumnTotal - 1);
}

void ExportMemories(const wxString& path) {
    CsvExport list;
    const bool opened = list.OpenCsvWrite(path, CurrentParameters().Type);
    list.ExportCSV(CurrentGrid(), CurrentParameters().Type);
    if (!opened || !list.CloseCsv())
        throw std::runtime_error("the list can't be written");
}

/// Makes a full page whose memories are selected and exported to the list.
void MakeListedPage(const PageCase& page) {
    MakePage(page);
    FillPage();
    SpreadTonesAndCodes();
    SelectMemories();
    ExportMemories(ListPath());
}

void DropListedPage() {
    DropPage();
    wxRemoveFile(ListPath());
}

void ImportList() {
    wxFFile file(ListPath(), "rb");
    Import_CSV(file);
}

void RunImport(benchmark::State& state, const PageCase& page) {
    MakeListedPage(page);
    TakeFastest(state, EmptyPage, ImportList);
    DropListedPage();
}

/// The toolkit alone: reads the file, and reads, writes and paints the same cells as the import.
void RunImportBare(benchmark::State& state, const PageCase& page) {
    MakeListedPage(page);
    const OperationRecord record = RecordOperation(EmptyPage, ImportList);
    DropPage();
    wxGrid* grid = AddBarePage(MainFrame->m_notebook, record.before);
    TakeFastest(
        state, [grid] { grid->ClearGrid(); },
        [&] {
            wxString text;
            wxFFile(ListPath(), "rb").ReadAll(&text);
            benchmark::DoNotOptimize(&text);
            const wxGridUpdateLocker quiet(grid);
            record.Redo(grid);
        });
    DropListedPage();
}

void RunExport(benchmark::State& state, const PageCase& page) {
    MakeListedPage(page);
    TakeFastest(
        state, [] {}, [] { ExportMemories(ListPath()); });
    DropListedPage();
}

/// The toolkit alone: reads the cells to be listed and writes their texts into a file that replaces the
/// previous one.
void RunExportBare(benchmark::State& state, const PageCase& page) {
    MakeListedPage(page);
    TakeFastest(
        state, [] {},
        [] {
            const int type = CurrentParameters().Type;
            wxString text = wxString::FromUTF8(CsvHeadingLine(type));
            for (int row = 1; row <= CurrentParameters().Rows; ++row) {
                for (int position = 0; position < RadioCatalogue::CsvFieldTotal; ++position)
                    if (RadioCatalogue::CsvFieldMask[type][position])
                        text << CurrentGrid()->GetCellValue(row, CsvFieldTable[position].written) << ',';
                text << '\n';
            }
            wxFile file(ListPath() + ".bare", wxFile::write);
            file.Write(text);
            file.Flush();
            file.Close();
            wxRenameFile(ListPath() + ".bare", ListPath());
        });
    DropListedPage();
}

} // namespace

void RegisterCsv() {
    constexpr int Passes = 4;
    for (int pass = 0; pass < Passes; ++pass)
        for (const PageCase& page : CsvPages) {
            RegisterPageSide("CsvImport", page, "program", RunImport);
            RegisterPageSide("CsvImport", page, "floor", RunImportBare);
            RegisterPageSide("CsvExport", page, "program", RunExport);
            RegisterPageSide("CsvExport", page, "floor", RunExportBare);
        }
}
