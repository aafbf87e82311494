// Dump of a page into the log. Changes nothing on the page.
#pragma once

/// Logs the target and size of the page (0-based). pages is the page count to report; unused has no effect.
void ReportPageParameters(int page, int unused, int pages);

/// Logs the cells of every selected row of the page that has a memory number, including row 0 and guard rows.
/// A row counts as selected when its PRIM cell is.
void ReportRowParameters(int page);

/// Logs the zone counters and the operating modes of a P25 page; logs nothing for other pages.
void ReportPageP25OnlyParameters(int page);
