// Speed of the conversion between memory rows and records.
#include "bench/Benches.h"
#include "bench/FullPage.h"
#include "catalogue/PageModel.h"
#include "catalogue/ZoneSlots.h"
#include "transfer/TRecordCodec.h"

#include <benchmark/benchmark.h>
#include <wx/grid.h>

#include <string>
#include <vector>

namespace {

/// KDRV-716B and the number of its memories that each layout carries.
constexpr PageCase RadioPage{"NP25", Kdrv716B, 0};
constexpr int RowsOfV1 = RadioCatalogue::RP25Memories, RowsOfV2 = RadioCatalogue::NP25Memories;

using Encoder = void (*)(wxGrid*, int, wxString&);
using Decoder = int (*)(wxGrid*, const wxString&);

void OpenFullPage() {
    MakePage(RadioPage);
    FillPage();
    SpreadTonesAndCodes();
}

void Encode(benchmark::State& state, Encoder encode, int rows) {
    OpenFullPage();
    wxString line;
    for ([[maybe_unused]] auto _ : state)
        for (int row = 1; row <= rows; ++row) {
            encode(CurrentGrid(), row, line);
            benchmark::DoNotOptimize(line.length());
        }
    state.SetItemsProcessed(state.iterations() * rows);
    DropPage();
}

/// Removes the rows from their zones: a read finds them without zones.
void ForgetZones(int rows) {
    ClearZoneSlots(CurrentPage);
    for (int row = 1; row <= rows; ++row)
        CurrentGrid()->SetCellValue(row, TFLG, "");
}

void Decode(benchmark::State& state, Encoder encode, Decoder decode, int rows) {
    OpenFullPage();
    std::vector<wxString> lines(static_cast<size_t>(rows));
    for (int row = 1; row <= rows; ++row)
        encode(CurrentGrid(), row, lines[static_cast<size_t>(row - 1)]);
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        ForgetZones(rows);
        state.ResumeTiming();
        for (const wxString& line : lines)
            if (decode(CurrentGrid(), line) != 1)
                state.SkipWithError("a record was refused");
    }
    state.SetItemsProcessed(state.iterations() * rows);
    DropPage();
}

/// Reads the texts of a row and of the default row, as the making of a record does.
void ReadBare(benchmark::State& state) {
    OpenFullPage();
    for ([[maybe_unused]] auto _ : state)
        for (int row = 1; row <= RowsOfV2; ++row)
            for (const int from : {row, 0})
                for (int column = 0; column < ColumnTotal; ++column)
                    benchmark::DoNotOptimize(CurrentGrid()->GetCellValue(from, column).length());
    state.SetItemsProcessed(state.iterations() * RowsOfV2);
    DropPage();
}

void WriteBare(benchmark::State& state) {
    OpenFullPage();
    const wxArrayString texts = GetRowValues(CurrentPage, 1);
    for ([[maybe_unused]] auto _ : state)
        for (int row = 1; row <= RowsOfV2; ++row)
            for (int column = 0; column < ColumnTotal; ++column)
                CurrentGrid()->SetCellValue(row, column, texts[static_cast<size_t>(column)]);
    state.SetItemsProcessed(state.iterations() * RowsOfV2);
    DropPage();
}

} // namespace

void RegisterRecordCodec() {
    struct Work {
        const char* name;
        void (*run)(benchmark::State&);
    };
    constexpr Work Works[] = {
        {"codec/encode-v1/rate", [](benchmark::State& state) { Encode(state, encodeTrecordV1, RowsOfV1); }},
        {"codec/encode-v2/rate", [](benchmark::State& state) { Encode(state, encodeTrecordV2, RowsOfV2); }},
        {"codec/read-cells/rate", [](benchmark::State& state) { ReadBare(state); }},
        {"codec/decode-v1/rate",
         [](benchmark::State& state) { Decode(state, encodeTrecordV1, decodeTrecordV1, RowsOfV1); }},
        {"codec/decode-v2/rate",
         [](benchmark::State& state) { Decode(state, encodeTrecordV2, decodeTrecordV2, RowsOfV2); }},
        {"codec/write-cells/rate", [](benchmark::State& state) { WriteBare(state); }},
    };
    for (const Work& work : Works)
        benchmark::RegisterBenchmark(work.name, work.run)->Repetitions(3)->MinTime(0.3);
}
