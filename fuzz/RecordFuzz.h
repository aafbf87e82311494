// What the fuzzers of single records share: one page, which takes many of them.
#pragma once

#include "catalogue/PageModel.h"
#include "fuzz/FuzzWindow.h"

#include <cstdint>
#include <wx/string.h>

/// Hands the input, as a line, to decode, which writes into the grid of a page of that radio and band slot.
/// To be called with the same page always.
template <class Decode>
int FuzzRecord(const std::uint8_t* data, std::size_t size, int radio, int bandIndex, Decode decode) {
    constexpr int recordsOfPage = 500;
    static int records = 0;
    if (records++ % recordsOfPage == 0)
        MakeFuzzPage(radio, bandIndex);
    decode(wxString::From8BitData(reinterpret_cast<const char*>(data), size));
    CheckFuzzPage();
    return 0;
}
