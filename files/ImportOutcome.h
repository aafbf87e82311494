// Status bar report of an import.
#pragma once

#include "editing/ReplacedCells.h"

#include <wx/string.h>

#include <vector>

class wxGrid;

/// Collects, while it exists, the lines of a foreign file (records of a binary one) whose memory does not
/// reach the page. Lines and records are counted from 1.
class SkippedLines {
public:
    SkippedLines();
    ~SkippedLines();
    SkippedLines(const SkippedLines&) = delete;
    SkippedLines& operator=(const SkippedLines&) = delete;

    /// For readers: the memory of a line is skipped, or replaced by that of a later line. Has no effect while
    /// no SkippedLines exists.
    static void Note(int line);

    /// For readers: a line says that there is no memory. It does not count as skipped, since nothing is lost.
    static void NoteWithoutMemory();

    int Count() const { return static_cast<int>(Lines().size()); }

    /// "3 lines skipped", empty if there are none.
    wxString Text() const;

    /// Numbers of the lines, and how many had no memory: "3 lines were skipped: 5, 17, 40". Empty if there
    /// are neither.
    wxString Story() const;

private:
    /// Their numbers in order, each once.
    std::vector<int> Lines() const;

    SkippedLines* const m_outer;
    /// In the order of the calls. One block of memory: a hundred thousand small ones, allocated between those
    /// of the records that come and go, leave gaps that some heaps search one by one.
    std::vector<int> m_noted;
    int m_withoutMemory = 0;
};

/// Line that each row's memory comes from.
class LinesOfRows {
public:
    /// For rows 0 to rows - 1.
    explicit LinesOfRows(int rows) : m_lines(static_cast<size_t>(rows)) {}

    /// Assigns the memory of a line to the row. A memory from an earlier line is lost; that line is noted.
    void Take(int row, int line);

private:
    std::vector<int> m_lines; ///< 0 for a row without one
};

/// Notes a cell of the current page whose text differs from the file's by more than case.
void NoteIfReplaced(const wxGrid* grid, int row, int column, const wxString& given);

/// Reports what an import that has read something replaced and skipped.
void TellImport(const ReplacedCells& cells, const SkippedLines& lines);
