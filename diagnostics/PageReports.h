// A dump of a page into the log. It changes nothing on the page.
#pragma once

/// Logs what the page (0-based) is for. pages is the number of pages reported beside it; unused has no
/// effect.
void ReportPageParameters(int page, int unused, int pages);

/// Logs the cells of every row of the page that is selected and has a memory number, row 0 and guard rows
/// too. A row counts as selected when its PRIM cell is.
void ReportRowParameters(int page);

/// Logs the zone counters and the operating modes of a P25 page, and nothing of any other page.
void ReportPageP25OnlyParameters(int page);
