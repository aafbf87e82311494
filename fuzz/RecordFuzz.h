// Common part of the fuzzers of single records: a few pages for many inputs.
#pragma once

#include "catalogue/PageModel.h"
#include "fuzz/FuzzWindow.h"

#include <wx/string.h>

#include <cstdint>

/// Passes the input, as a line, to decode, which writes into the grid of a page.
template <class Decode>
int FuzzRecord(const uint8_t* data, size_t size, Decode decode) {
    constexpr int recordsOfPage = 500;
    ChooseFuzzPage(size, recordsOfPage);
    decode(wxString::From8BitData(reinterpret_cast<const char*>(data), size));
    CheckFuzzPage();
    return 0;
}
