// Common part of the fuzzers of single records: one page for many inputs.
#pragma once

#include "catalogue/PageModel.h"
#include "fuzz/FuzzWindow.h"

#include <wx/string.h>

#include <cstdint>

/// Passes the input, as a line, to decode, which writes into the grid of a page of that radio and band slot.
/// Always call it with the same page.
template <class Decode>
int FuzzRecord(const uint8_t* data, size_t size, int radio, int bandIndex, Decode decode) {
    constexpr int recordsOfPage = 500;
    static int records = 0;
    if (records++ % recordsOfPage == 0)
        MakeFuzzPage(radio, bandIndex);
    decode(wxString::From8BitData(reinterpret_cast<const char*>(data), size));
    CheckFuzzPage();
    return 0;
}
