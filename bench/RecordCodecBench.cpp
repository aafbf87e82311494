// How fast memory rows become records and records become rows.
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

/// KDRV-716B, and its rows that both layouts carry.
constexpr PageCase RadioPage{"NP25", Kdrv716B, 0};
constexpr int Rows = 230;

using Encoder = void (*)(wxGrid*, int, wxString&);
using Decoder = int (*)(wxGrid*, const wxString&);

void OpenFullPage() {
    MakePage(RadioPage);
    FillPage();
    SpreadTonesAndCodes();
}

void Encode(benchmark::State& state, Encoder encode) {
    OpenFullPage();
    wxString line;
    for ([[maybe_unused]] auto _ : state)
        for (int row = 1; row <= Rows; ++row) {
            encode(CurrentGrid(), row, line);
            benchmark::DoNotOptimize(line.length());
        }
    state.SetItemsProcessed(state.iterations() * Rows);
    DropPage();
}

/// Each pass finds the zones empty, as a read does.
void Decode(benchmark::State& state, Encoder encode, Decoder decode) {
    OpenFullPage();
    std::vector<wxString> lines(Rows);
    for (int row = 1; row <= Rows; ++row)
        encode(CurrentGrid(), row, lines[static_cast<size_t>(row - 1)]);
    for ([[maybe_unused]] auto _ : state) {
        ClearZoneSlots(CurrentPage);
        for (const wxString& line : lines)
            if (decode(CurrentGrid(), line) != 1)
                state.SkipWithError("a record was refused");
    }
    state.SetItemsProcessed(state.iterations() * Rows);
    DropPage();
}

/// The texts of a row and of the default row, as a record is made from them.
void ReadBare(benchmark::State& state) {
    OpenFullPage();
    for ([[maybe_unused]] auto _ : state)
        for (int row = 1; row <= Rows; ++row)
            for (const int from : {row, 0})
                for (int column = 0; column < ColumnTotal; ++column)
                    benchmark::DoNotOptimize(CurrentGrid()->GetCellValue(from, column).length());
    state.SetItemsProcessed(state.iterations() * Rows);
    DropPage();
}

void WriteBare(benchmark::State& state) {
    OpenFullPage();
    const wxArrayString texts = GetRowValues(CurrentPage, 1);
    for ([[maybe_unused]] auto _ : state)
        for (int row = 1; row <= Rows; ++row)
            for (int column = 0; column < ColumnTotal; ++column)
                CurrentGrid()->SetCellValue(row, column, texts[static_cast<size_t>(column)]);
    state.SetItemsProcessed(state.iterations() * Rows);
    DropPage();
}

} // namespace

void RegisterRecordCodec() {
    struct Work {
        const char* name;
        void (*run)(benchmark::State&);
    };
    constexpr Work Works[] = {
        {"codec/encode-v1/rate", [](benchmark::State& state) { Encode(state, encodeTrecordV1); }},
        {"codec/encode-v2/rate", [](benchmark::State& state) { Encode(state, encodeTrecordV2); }},
        {"codec/read-cells/rate", [](benchmark::State& state) { ReadBare(state); }},
        {"codec/decode-v1/rate",
         [](benchmark::State& state) { Decode(state, encodeTrecordV1, decodeTrecordV1); }},
        {"codec/decode-v2/rate",
         [](benchmark::State& state) { Decode(state, encodeTrecordV2, decodeTrecordV2); }},
        {"codec/write-cells/rate", [](benchmark::State& state) { WriteBare(state); }},
    };
    for (const Work& work : Works)
        benchmark::RegisterBenchmark(work.name, work.run)->Repetitions(3)->MinTime(0.3);
}
