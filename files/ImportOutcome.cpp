#include "files/ImportOutcome.h"

#include "catalogue/TextNumbers.h"
#include "commands/StatusOutcome.h"

#include <wx/grid.h>

#include <algorithm>

namespace {

/// Most recently created instance.
SkippedLines* innermost = nullptr;

wxString Counted(int count, const char* one, const char* several) {
    return wxString::Format(count == 1 ? one : several, count);
}

} // namespace

SkippedLines::SkippedLines() : m_outer(innermost) {
    innermost = this;
}

SkippedLines::~SkippedLines() {
    innermost = m_outer;
}

void SkippedLines::Note(int line) {
    if (innermost)
        innermost->m_noted.push_back(line);
}

void SkippedLines::NoteWithoutMemory() {
    if (innermost)
        ++innermost->m_withoutMemory;
}

std::vector<int> SkippedLines::Lines() const {
    std::vector<int> lines = m_noted;
    std::sort(lines.begin(), lines.end());
    lines.erase(std::unique(lines.begin(), lines.end()), lines.end());
    return lines;
}

wxString SkippedLines::Text() const {
    const int count = Count();
    return count == 0 ? wxString() : Counted(count, "%d line skipped", "%d lines skipped");
}

wxString SkippedLines::Story() const {
    wxString story;
    if (const std::vector<int> lines = Lines(); !lines.empty())
        story = Counted(static_cast<int>(lines.size()), "%d line was skipped: ", "%d lines were skipped: ") +
                NumberList(lines);
    if (m_withoutMemory > 0)
        story += (story.empty() ? "" : "\n") +
                 Counted(m_withoutMemory, "%d line holds no memory", "%d lines hold no memory");
    return story;
}

void LinesOfRows::Take(int row, int line) {
    int& former = m_lines[static_cast<size_t>(row)];
    if (former != 0)
        SkippedLines::Note(former);
    former = line;
}

void NoteIfReplaced(const wxGrid* grid, int row, int column, const wxString& given) {
    const wxString held = grid->GetCellValue(row, column);
    if (held != given && !held.IsSameAs(given, false))
        ReplacedCells::Note(row, column);
}

void TellImport(const ReplacedCells& cells, const SkippedLines& lines) {
    wxString verdict = cells.Text();
    if (lines.Count() > 0)
        verdict += (verdict.empty() ? "" : "; ") + lines.Text();
    if (verdict.empty())
        verdict = "No cell replaced";
    wxString story = cells.Story();
    if (const wxString skipped = lines.Story(); !skipped.empty())
        story = (story.empty() ? wxString("No cell was replaced.") : story) + "\n" + skipped;
    TellOutcome(verdict, story);
}
