// Registration of benchmarks on pages of several sizes.
#pragma once

#include "bench/FullPage.h"

#include <benchmark/benchmark.h>

/// Registers one side ("program" or "floor") of a group's pair for the page, named group/type/rows/side. page
/// must outlive the benchmark. run sets the time of an iteration by itself.
void RegisterPageSide(const char* group, const PageCase& page, const char* side,
                      void (*run)(benchmark::State&, const PageCase&));
