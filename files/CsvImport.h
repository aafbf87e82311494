// Imports comma-separated memory lists into the current page.
#pragma once

class wxFFile;

/// Reads a list whose heading line names its columns with the tags of CsvHeader. file must be open
/// at its start, and stays open. The MNUM field of a line names its row; other rows are unchanged.
/// Returns the count of rows written; 0 with a message if there is no such heading line.
int Import_CSV(wxFFile& file);

/// Reads a list of the KDAR-2000; its lines go to rows 1, 2 and so on. file must be open at its
/// start, and stays open. Returns the count of rows written; 0 with a message if the heading line is
/// missing.
int Import_KDAR(wxFFile& file);
