// What the status bar tells of an import.
#pragma once

#include "editing/ReplacedCells.h"

#include <wx/string.h>

#include <set>
#include <vector>

class wxGrid;

/// Collects, while it lives, the lines of a foreign file (records of a binary one) whose memory does not come
/// onto the page. Lines and records are counted from 1.
class SkippedLines {
public:
    SkippedLines();
    ~SkippedLines();
    SkippedLines(const SkippedLines&) = delete;
    SkippedLines& operator=(const SkippedLines&) = delete;

    /// For readers: the memory of a line is passed over, or gives way to that of a later line. Without effect
    /// while no SkippedLines lives.
    static void Note(int line);

    /// For readers: a line says that there is no memory. It is not skipped, for it has nothing to lose.
    static void NoteWithoutMemory();

    int Count() const { return static_cast<int>(m_lines.size()); }

    /// "3 lines skipped"; empty when there is none.
    wxString Text() const;

    /// The lines' numbers, and how many had no memory: "3 lines were skipped: 5, 17, 40". Empty when there is
    /// neither.
    wxString Story() const;

private:
    SkippedLines* const m_outer;
    std::set<int> m_lines;
    int m_withoutMemory = 0;
};

/// The line that each row's memory comes from.
class LinesOfRows {
public:
    /// For rows 0 to rows - 1.
    explicit LinesOfRows(int rows) : m_lines(static_cast<size_t>(rows)) {}

    /// The row gets the memory of a line. One that it had from an earlier line is lost, and noted.
    void Take(int row, int line);

private:
    std::vector<int> m_lines; ///< 0 for a row without one
};

/// Notes a cell of the current page that holds another text than the file gave it, but for capitals.
void NoteIfReplaced(const wxGrid* grid, int row, int column, const wxString& given);

/// Tells what an import that has read something replaced and skipped.
void TellImport(const ReplacedCells& cells, const SkippedLines& lines);
