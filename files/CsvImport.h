// Comma-separated memory lists into the current page.
#pragma once

class wxFFile;

/// Reads a list whose heading line names its columns with the tags of CsvHeader. file is open at its
/// start and stays open. Rows are those that the MNUM fields name; other rows stay as they are.
/// The count of rows written; 0 with a message when no line is such a heading.
int Import_CSV(wxFFile& file);

/// Reads a list of the KDAR-2000: its lines go to rows 1, 2 and so on. file is open at its start and
/// stays open. The count of rows written; 0 with a message when the heading line is missing.
int Import_KDAR(wxFFile& file);
