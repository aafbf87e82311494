// The lines of the page and row reports, as texts.
#pragma once

#include "catalogue/PageModel.h"

#include <wx/arrstr.h>
#include <wx/string.h>

#include <cstdint>
#include <span>

/// What a page is for. page is 0-based, and counts from 1 in the report; pages is the number to report
/// beside it.
wxArrayString PageParameterLines(int page, int pages, const PageParameterRecord& parameters,
                                 const PageStringRecord& strings);

/// One row's heading and its cells, those that pages of the radio type have. row is 0-based; cells are the
/// row's 32 texts. The numbers of MFLG and TFLG are what their texts hold in hexadecimal, 0 without one.
wxArrayString RowLines(int type, int row, const wxArrayString& cells);

/// Heading and zone counters, one line each.
wxArrayString ZoneLines(std::span<const int32_t> counters);

/// Heading and the modes of an OpModes word.
wxArrayString OpModeLines(uint32_t modes);
