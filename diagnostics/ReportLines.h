// Lines of the page and row reports, as texts.
#pragma once

#include "catalogue/PageModel.h"

#include <wx/arrstr.h>
#include <wx/string.h>

#include <cstdint>
#include <span>

/// Target and size of a page. page is 0-based, and is shown 1-based; pages is the page count to report.
wxArrayString PageParameterLines(int page, int pages, const PageParameterRecord& parameters,
                                 const PageStringRecord& strings);

/// Heading of a row, and the cells that pages of the radio type have. row is 0-based; cells are the row's 32
/// texts. The texts of MFLG and TFLG are also shown as hexadecimal numbers, 0 for a text without a number.
wxArrayString RowLines(int type, int row, const wxArrayString& cells);

/// Heading and zone counters, one line each.
wxArrayString ZoneLines(std::span<const int32_t> counters);

/// Heading and the modes of an OpModes word.
wxArrayString OpModeLines(uint32_t modes);
