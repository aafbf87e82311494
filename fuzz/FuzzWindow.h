// The program's window for fuzzers whose readers write into a grid.
#pragma once

#include <cstddef>
#include <initializer_list>

/// Target of a page: radio index and band slot.
struct FuzzTarget {
    int radio;
    int bandIndex;
};

/// Makes the window, with an empty page for each target; call it once. Any dialog that opens later is
/// answered at once.
void MakeFuzzWindow(std::initializer_list<FuzzTarget> targets);

/// Makes one of the pages the current one. The size of the input chooses it, so that an input alone
/// says what a finding needs. Empties the pages at every emptyAfter-th call, since that is slow.
void ChooseFuzzPage(size_t size, int emptyAfter);

/// Aborts the program, as a finding, unless the condition holds.
void Demand(bool condition, const char* what);

/// Aborts the program, as a finding, unless the current page still has the shape of its target: 32 columns, a
/// row for each memory and the default row, zone counters from 0 to their limit.
void CheckFuzzPage();
