// Import of files of older programming software.
#include "bench/Benches.h"
#include "bench/OperationRecord.h"
#include "bench/PageSide.h"
#include "bench/TakeFastest.h"
#include "catalogue/PageModel.h"
#include "catalogue/TextNumbers.h"
#include "files/ZelkFile_ImportExport.h"
#include "frame/ZelkMain.h"

#include <wx/ffile.h>
#include <wx/filename.h>
#include <wx/grid.h>
#include <wx/textfile.h>

#include <cstdlib>
#include <string>
#include <string_view>

namespace {

/// KDRV-716 pages, some of sizes that no radio has. An import shifts none of their numbers, so it fills all
/// rows.
constexpr PageCase DigitalPages[] = {
    {"NP25", Kdrv716, 0, RadioCatalogue::NP25, 102},
    {"RP25", Kdrv716, 0},
    {"NP25", Kdrv716, 0, RadioCatalogue::NP25, 502},
};
constexpr PageCase AnalogPages[] = {
    {"ANFM", Krv610, 1, -1, 102}, {"ANFM", Krv610, 1}, {"ANFM", Krv610, 1, -1, 502}};

using MakeFile = std::string (*)(int rows);

void Put(std::string& text, size_t position, std::string_view part) {
    text.replace(position, part.size(), part);
}

std::string NumberOf(int row) {
    return NumberText(row).utf8_string();
}

/// From 138.0000 MHz on, in steps of 12.5 kHz.
std::string FrequencyOf(int row) {
    return wxString::Format("%08.4f", 138 + row * 0.0125).utf8_string();
}

/// Returns the record of a plain memory.
std::string BinaryRecordOf(int row) {
    std::string record(106, '\0');
    const auto word = [&record](size_t at, int value) {
        record[at] = static_cast<char>(value & 0xFF);
        record[at + 1] = static_cast<char>(value >> 8);
    };
    const auto text = [&record](size_t at, size_t size, std::string part) {
        part.resize(size, ' ');
        Put(record, at, part);
    };
    word(4, row);
    word(6, row);
    word(8, row - 1);
    text(10, 8, "CH" + NumberOf(row));
    word(20, row % 2);
    for (const size_t at : {22u, 50u})
        word(at, 't');
    for (const size_t at : {24u, 52u})
        text(at, 6, "00AB");
    for (const size_t at : {30u, 58u})
        word(at, 1 + row % 30);
    for (const size_t at : {32u, 60u})
        word(at, row % 80);
    for (const size_t at : {34u, 62u})
        text(at, 6, "12C");
    for (const size_t at : {40u, 68u})
        text(at, 10, FrequencyOf(row));
    word(84, 0x42);
    return record;
}

std::string BinaryFile(int rows) {
    std::string file(HeaderSize716, '\0');
    Put(file, 0, "ZEL716  2 ");
    Put(file, 15, "\x01\x01KDRV716 ");
    for (int row = 1; row <= rows; ++row)
        file += BinaryRecordOf(row);
    return file;
}

std::string ListLineOf(int row) {
    std::string line(86, ' ');
    Put(line, 3, NumberOf(row));
    Put(line, 10, std::to_string(1 + (row - 1) / 16));
    Put(line, 13, "CH" + NumberOf(row));
    Put(line, 23, "n");
    for (const size_t at : {25u, 56u})
        Put(line, at, FrequencyOf(row));
    for (const size_t at : {35u, 66u})
        Put(line, at, "t");
    for (const size_t at : {37u, 68u})
        Put(line, at, row % 2 ? "67.0" : "100.0");
    for (const size_t at : {43u, 74u})
        Put(line, at, row % 2 ? "023" : "754");
    Put(line, 47, "00AB");
    Put(line, 78, "0AB");
    for (const size_t at : {52u, 83u})
        Put(line, at, "12C");
    return line + "\n";
}

std::string ListFile(int rows) {
    std::string first(46, ' '), second(17, ' ');
    Put(first, 5, "Basic Information");
    Put(first, 32, "Rx Information");
    Put(second, 3, "Ch# Scan  Desc");
    std::string file = first + "\n" + second + "\n---\n";
    for (int row = 1; row <= rows; ++row)
        file += ListLineOf(row);
    return file;
}

std::string MultiZELFileOf(int rows) {
    std::string file;
    for (int row = 1; row <= rows; ++row) {
        std::string line(76, ' ');
        Put(line, 0, NumberOf(row));
        Put(line, 4, "CH" + NumberOf(row));
        Put(line, 14, FrequencyOf(row));
        Put(line, 25, FrequencyOf(row));
        Put(line, 33, "TX CTCSS: ");
        Put(line, 43, row % 2 ? "25" : "01");
        Put(line, 48, row % 2 ? "21" : "02");
        Put(line, 58, row % 2 ? "023" : "000");
        Put(line, 64, row % 2 ? "754" : "026");
        Put(line, 70, row % 3 ? "1____N" : "_2_4_N");
        file += line + "\n";
    }
    return file;
}

wxString Path() {
    return wxFileName::GetTempDir() + "/zelk-bench-import";
}

/// Makes a full page and a file with a memory for each of its rows.
template <MakeFile make>
void MakeImportedPage(const PageCase& page) {
    MakePage(page);
    FillPage();
    SpreadTonesAndCodes();
    const std::string bytes = make(CurrentParameters().Rows);
    wxFFile(Path(), "wb").Write(bytes.data(), bytes.size());
}

void ImportFile() {
    FileImporter importer;
    const int kind = importer.Identify(Path());
    if (kind == MultiZELFile && !importer.OpenLines(Path()))
        std::abort();
    if (importer.Read(kind) != CurrentParameters().Rows)
        std::abort();
}

template <MakeFile make>
void RunImport(benchmark::State& state, const PageCase& page) {
    MakeImportedPage<make>(page);
    TakeFastest(state, EmptyPage, ImportFile);
    DropPage();
    wxRemoveFile(Path());
}

/// Reads the file with toolkit functions: a list of analog radios line by line, others in one piece.
void ReadFileBare(bool byLines) {
    if (byLines) {
        wxTextFile file;
        file.Open(Path(), wxConvAuto(wxFONTENCODING_ISO8859_1));
        benchmark::DoNotOptimize(&file);
    } else {
        wxString text;
        wxFFile(Path(), "rb").ReadAll(&text, wxConvISO8859_1);
        benchmark::DoNotOptimize(&text);
    }
}

/// The toolkit alone: reads the file and does the same to the cells as the import.
template <MakeFile make>
void RunBare(benchmark::State& state, const PageCase& page) {
    MakeImportedPage<make>(page);
    const OperationRecord record = RecordOperation(EmptyPage, ImportFile);
    DropPage();
    wxGrid* grid = AddBarePage(MainFrame->m_notebook, record.before);
    TakeFastest(
        state, [grid] { grid->ClearGrid(); },
        [&] {
            ReadFileBare(make == MultiZELFileOf);
            const wxGridUpdateLocker quiet(grid);
            record.Redo(grid);
        });
    DropPage();
    wxRemoveFile(Path());
}

template <MakeFile make>
void RegisterPair(const char* group, const PageCase& page) {
    RegisterPageSide(group, page, "program", RunImport<make>);
    RegisterPageSide(group, page, "floor", RunBare<make>);
}

} // namespace

void RegisterImports() {
    constexpr int Passes = 4;
    for (int pass = 0; pass < Passes; ++pass) {
        for (const PageCase& page : DigitalPages) {
            RegisterPair<BinaryFile>("Import716Binary", page);
            RegisterPair<ListFile>("Import716Text", page);
        }
        for (const PageCase& page : AnalogPages)
            RegisterPair<MultiZELFileOf>("ImportMultiZEL", page);
    }
}
