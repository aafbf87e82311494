#include "bench/PageSide.h"

#include "catalogue/RadioTables.h"

#include <string>

void RegisterPageSide(const char* group, const PageCase& page, const char* side,
                      void (*run)(benchmark::State&, const PageCase&)) {
    const int rows = page.rows ? page.rows : RadioCatalogue::RadioRows[page.radio][page.bandIndex];
    const std::string name = std::string(group) + "/" + page.type + "/" + std::to_string(rows) + "/" + side;
    benchmark::RegisterBenchmark(name.c_str(), [run, &page](benchmark::State& state) { run(state, page); })
        ->Unit(benchmark::kMillisecond)
        ->Iterations(1)
        ->UseManualTime();
}
