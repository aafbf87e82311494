// The memory files and the printed lists of the KDRV-716 family.
#pragma once

#include "editing/MemoryNumbers.h"
#include "files/Record716.h"

#include <string_view>

class wxFFile;

/// Puts the records of a binary memory file into the current page, each into the row of its number.
/// file is open and stands on the first record. Gives how many records fitted into the page.
int Import716_Binary(wxFFile& file);

/// The same for a printed list; file stands on the first of its three title lines. Shadows are then
/// linked to their primaries.
int Import716_Text(wxFFile& file);

/// Bytes of a record of a binary file.
inline constexpr size_t RecordSize716 = 106;

/// Reads the record that bytes begin with: RecordSize716 of them, fewer only at the file's end, where
/// every byte that is missing from a word reads as 0xFF and from a text as nothing. type is that of the
/// page, whose lists the mode and the codes are looked up in.
/// Gives how many bytes the record takes: fewer than RecordSize716 where newlines have cut its texts; 0
/// where not even its first word is there, and record is then as it was.
size_t Read716Record(std::string_view bytes, int type, Record716& record);

/// What a line of a printed list is.
enum class ListLine716 {
    End,      ///< too short for a memory: the list ends before it
    NoMemory, ///< a number without a memory
    Memory,
};

/// Reads a line of a printed list. rows is the grid's row count. Only a line with a memory changes
/// record.
ListLine716 Read716TextLine(const wxString& line, int rows, Record716& record);

/// The number that a memory of a file has on a page of the radio (index): the larger radio keeps the
/// rows behind its 230 ordinary memories at its end.
int MovedNumber716(int number, int radio);

/// The row of the current page's grid that a record is for, -1 when it is for none. Where the number
/// moves to a row, it is changed in the record's Mnum and Prim.
int RowOf716(Record716& record);

/// Puts records into rows of the current page, and each row through its check.
class RowWriter716 {
public:
    RowWriter716();

    /// row is one of the grid's.
    void Write(int row, const Record716& record);

private:
    wxGrid* m_grid;
    MemoryNumberIndex m_numbers;
};
