// Imports memory files and printed lists of the KDRV-716 family.
#pragma once

#include "editing/MemoryNumbers.h"
#include "files/Record716.h"

#include <string_view>

class wxFFile;

/// Reads the records of a binary memory file into the current page, each into the row of its number.
/// file must be open at the first record. Returns how many records fitted into the page.
int Import716_Binary(wxFFile& file);

/// Reads a printed list likewise, then links shadows to their primaries. file must be at the first of
/// its three title lines.
int Import716_Text(wxFFile& file);

/// Size of a record of a binary file, in bytes.
inline constexpr size_t RecordSize716 = 106;

/// Reads the record at the start of bytes: RecordSize716 bytes, fewer only at the end of the file,
/// where each byte missing from a word reads as 0xFF and one missing from a text as nothing. type is
/// the page's radio type, in whose lists the mode and the codes are looked up.
/// Returns how many bytes the record takes: fewer than RecordSize716 if newlines have cut its texts; 0
/// if not even its first word is complete, and record is then unchanged.
size_t Read716Record(std::string_view bytes, int type, Record716& record);

/// Kind of a line of a printed list.
enum class ListLine716 {
    End,      ///< too short for a memory: the list ends before this line
    NoMemory, ///< a number without a memory
    Memory,
};

/// Reads a line of a printed list. rows is the grid's row count. Changes record only if the line has a
/// memory.
ListLine716 Read716TextLine(const wxString& line, int rows, Record716& record);

/// Returns the number of a file's memory on a page of the radio (index). On the larger
/// radio, the rows after the 230 ordinary memories are at the end of the page.
int MovedNumber716(int number, int radio);

/// Returns the row of the current page's grid for a record, -1 if there is none. If the number moves to
/// another row, the record's Mnum and Prim change with it.
int RowOf716(Record716& record);

/// Writes records to rows of the current page and checks each row.
class RowWriter716 {
public:
    RowWriter716();

    /// row must be a row of the grid.
    void Write(int row, const Record716& record);

private:
    wxGrid* m_grid;
    MemoryNumberIndex m_numbers;
};
