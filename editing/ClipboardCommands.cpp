// Keys that copy, paste and empty cells.
#include "catalogue/PageTable.h"
#include "catalogue/TextNumbers.h"
#include "commands/CommandQuestions.h"
#include "commands/StatusOutcome.h"
#include "editing/CellText.h"
#include "editing/ClipboardText.h"
#include "editing/NumbersTogether.h"
#include "editing/PasteOutcome.h"
#include "editing/RowCommands.h"
#include "editing/Shadows.h"
#include "editing/TextCell.h"
#include "frame/ZelkMain.h"

#include <wx/clipbrd.h>
#include <wx/dataobj.h>
#include <wx/textfile.h>

#include <algorithm>
#include <map>
#include <set>
#include <utility>
#include <vector>

namespace {

struct CellPlace {
    int row, col;
};

bool SpansRows(const wxGridBlockCoords& block) {
    return block.GetLeftCol() == 0 && block.GetRightCol() == ColumnTotal - 1;
}

bool SpansColumns(const wxGridBlockCoords& block) {
    return block.GetTopRow() == 0 && block.GetBottomRow() == CurrentParameters().Rows;
}

std::vector<wxGridBlockCoords> SelectedBlocks(const wxGrid* grid) {
    const wxGridBlocks blocks = grid->GetSelectedBlocks();
    std::vector<wxGridBlockCoords> list;
    for (const wxGridBlockCoords& block : blocks)
        list.push_back(block);
    return list;
}

bool OnlyRowsAreSelected(const wxGrid* grid) {
    const std::vector<wxGridBlockCoords> blocks = SelectedBlocks(grid);
    return !blocks.empty() && std::all_of(blocks.begin(), blocks.end(), SpansRows);
}

/// Returns the selected cells that the page shows, row by row.
std::vector<CellPlace> SelectedCells(const wxGrid* grid) {
    std::vector<CellPlace> cells;
    if (!grid->IsSelection())
        return cells;
    for (int row = 0; row <= CurrentParameters().Rows; ++row)
        for (int col = 0; col < ColumnTotal; ++col)
            if (grid->IsColShown(col) && grid->IsInSelection(row, col))
                cells.push_back({row, col});
    return cells;
}

/// Returns the shown texts of the selected cells, or that of the cursor's cell if none is selected. Selected
/// cells keep their places in rows and columns; cells between them that aren't selected are empty.
ClipboardRows TextsToCopy(const wxGrid* grid) {
    const std::vector<CellPlace> cells = SelectedCells(grid);
    if (cells.empty()) {
        const int row = grid->GetGridCursorRow(), col = grid->GetGridCursorCol();
        return row < 0 ? ClipboardRows() : ClipboardRows{{ShownText(grid, row, col)}};
    }
    std::vector<int> columns;
    for (int col = 0; col < ColumnTotal; ++col)
        if (std::any_of(cells.begin(), cells.end(), [col](const CellPlace& c) { return c.col == col; }))
            columns.push_back(col);
    ClipboardRows rows;
    int lastRow = -1;
    for (const CellPlace& cell : cells) {
        if (cell.row != lastRow)
            rows.emplace_back(columns.size());
        lastRow = cell.row;
        const auto at = std::find(columns.begin(), columns.end(), cell.col) - columns.begin();
        rows.back()[static_cast<size_t>(at)] = ShownText(grid, cell.row, cell.col);
    }
    return rows;
}

void CopyCells() {
    const ClipboardRows rows = TextsToCopy(CurrentGrid());
    const wxClipboardLocker lock;
    if (!!lock && !rows.empty())
        wxTheClipboard->SetData(new wxTextDataObject(JoinClipboardText(rows, wxTextFile::GetEOL())));
}

/// Enters texts into cells and counts what became of them.
class Paste {
public:
    explicit Paste(wxGrid* grid) : m_grid(grid) {}

    /// An empty text leaves its cell as it is: most cells can't be emptied by typing, and rows with an empty
    /// cell aren't saved. Memory numbers wait for EnterNumbers.
    void Enter(const CellPlace& cell, const wxString& text) {
        if (text.empty())
            return;
        if (cell.col == MNUM)
            m_numbers.push_back({cell.row, text});
        else
            EnterNow(cell, text);
    }

    /// Enters the memory numbers together: rows that were sorted in a spreadsheet exchange theirs.
    void EnterNumbers() {
        std::vector<std::pair<int, int>> wanted;
        for (const auto& [row, text] : m_numbers)
            if (const auto number = WholeNumber(text, 0, CurrentParameters().Rows);
                number && !m_grid->IsReadOnly(row, MNUM))
                wanted.emplace_back(row, *number);
        const std::vector<bool> fits = NumbersThatFit(PresentNumbers(), wanted);
        std::set<int> fittingRows;
        for (size_t i = 0; i < wanted.size(); ++i)
            if (fits[i])
                fittingRows.insert(wanted[i].first);
        for (const int row : fittingRows)
            m_grid->SetCellValue(row, MNUM, "");
        // Numbers that fit come first, or another row could take one of them.
        for (const bool fitting : {true, false})
            for (const auto& [row, text] : m_numbers)
                if (fittingRows.contains(row) == fitting)
                    EnterNow({row, MNUM}, text);
    }

    /// Enters texts to the right of a cell and below it, into shown columns.
    void EnterFrom(const CellPlace& first, const ClipboardRows& texts) {
        int row = first.row;
        for (const std::vector<wxString>& line : texts) {
            int col = first.col;
            for (const wxString& text : line) {
                while (col < ColumnTotal && !m_grid->IsColShown(col))
                    ++col;
                if (row <= CurrentParameters().Rows && col < ColumnTotal)
                    Enter({row, col}, text);
                else if (!text.empty())
                    ++outcome.withoutRoom;
                ++col;
            }
            ++row;
        }
    }

    /// Paints the refused cells. Comes last: filling a blank row takes paint off.
    void PaintRefused() const {
        for (const auto& [row, col] : outcome.refused)
            PaintCell(m_grid, row, col, FailColour);
    }

    PasteOutcome outcome;

private:
    void EnterNow(const CellPlace& cell, const wxString& text) {
        switch (EnterText(m_grid, cell.row, cell.col, text)) {
        case EnteredText::Taken:
            ++outcome.taken;
            break;
        case EnteredText::Refused:
            outcome.refused.emplace(cell.row, cell.col);
            break;
        case EnteredText::Locked:
            ++outcome.locked;
            break;
        }
    }

    std::map<int, int> PresentNumbers() const {
        std::map<int, int> numbers;
        for (int row = 1; row <= CurrentParameters().Rows; ++row)
            if (const wxString text = m_grid->GetCellValue(row, MNUM); !text.empty())
                numbers[row] = ReadDecimal(text);
        return numbers;
    }

    wxGrid* m_grid;
    std::vector<std::pair<int, wxString>> m_numbers; ///< texts for MNUM by row
};

/// Returns the selected cells that one pasted value goes into. Of columns that are selected whole these are
/// the cells of memories: no blank row is made a memory that way. Empty unless several cells are selected.
/// Intentional: whole rows are selected to be sent, not to be overwritten.
std::vector<CellPlace> CellsForOneValue(const wxGrid* grid) {
    if (OnlyRowsAreSelected(grid))
        return {};
    std::vector<CellPlace> cells = SelectedCells(grid);
    if (cells.size() < 2)
        return {};
    const std::vector<wxGridBlockCoords> blocks = SelectedBlocks(grid);
    if (std::any_of(blocks.begin(), blocks.end(), SpansColumns))
        std::erase_if(cells, [](const CellPlace& c) { return c.row == 0 || !RowHasData(c.row); });
    return cells;
}

/// Returns the cell that a block of texts begins at: the first one of the selected block that the cursor is
/// in, otherwise the cursor's.
CellPlace FirstCellForBlock(const wxGrid* grid) {
    CellPlace first{grid->GetGridCursorRow(), grid->GetGridCursorCol()};
    for (const wxGridBlockCoords& block : SelectedBlocks(grid))
        if (block.Contains(wxGridCellCoords(first.row, first.col)))
            return {block.GetTopRow(), block.GetLeftCol()};
    return first;
}

void SelectAgain(wxGrid* grid, const std::vector<wxGridBlockCoords>& blocks) {
    grid->ClearSelection();
    for (const wxGridBlockCoords& block : blocks)
        grid->SelectBlock(block.GetTopRow(), block.GetLeftCol(), block.GetBottomRow(), block.GetRightCol(),
                          true);
}

/// Selects the cells that a block of texts was pasted into, so that the user sees where they went.
void SelectPasted(wxGrid* grid, const CellPlace& first, const ClipboardRows& texts) {
    size_t width = 0;
    for (const std::vector<wxString>& line : texts)
        width = std::max(width, line.size());
    int right = first.col;
    for (int col = first.col; col < ColumnTotal && width > 0; ++col)
        if (grid->IsColShown(col)) {
            right = col;
            --width;
        }
    const int bottom = std::min(first.row + static_cast<int>(texts.size()) - 1, CurrentParameters().Rows);
    grid->SelectBlock(first.row, first.col, bottom, right);
}

void PasteCells() {
    wxGrid* grid = CurrentGrid();
    const ClipboardRows texts = SplitClipboardText(TextOfClipboard());
    Paste paste(grid);
    if (!texts.empty() && grid->GetGridCursorRow() >= 0) {
        const wxGridUpdateLocker quiet(grid);
        const std::vector<wxGridBlockCoords> blocks = SelectedBlocks(grid);
        const bool oneValue = texts.size() == 1 && texts[0].size() == 1;
        const std::vector<CellPlace> cells = oneValue ? CellsForOneValue(grid) : std::vector<CellPlace>();
        if (!cells.empty()) {
            for (const CellPlace& cell : cells)
                paste.Enter(cell, texts[0][0]);
            paste.EnterNumbers();
            SelectAgain(grid, blocks);
        } else {
            const CellPlace first = oneValue ? CellPlace{grid->GetGridCursorRow(), grid->GetGridCursorCol()}
                                             : FirstCellForBlock(grid);
            paste.EnterFrom(first, texts);
            paste.EnterNumbers();
            if (!oneValue)
                SelectPasted(grid, first, texts);
        }
        paste.PaintRefused();
        // The colour of selected cells would hide the paint.
        if (!paste.outcome.refused.empty())
            grid->ClearSelection();
    }
    TellOutcome(paste.outcome.Text(), paste.outcome.Story());
}

/// True for a cell that a user can empty: those of lists, numbers and scan lists always hold a value.
bool CanBeEmpty(const wxGrid* grid, const CellPlace& cell) {
    const wxGridCellEditorPtr editor(grid->GetCellEditor(cell.row, cell.col));
    return !grid->IsReadOnly(cell.row, cell.col) && dynamic_cast<TextCellEditor*>(editor.get());
}

void EmptyCell(wxGrid* grid, const CellPlace& cell) {
    grid->SetCellValue(cell.row, cell.col, "");
    TakePaintOff(grid, cell.row, cell.col);
    if (CurrentPageIsP25() && IsPrimary(grid, cell.row) && (cell.col == RFRQ || cell.col == TFRQ))
        HandleP25Shadows(nullptr, ReadDecimal(grid->GetCellValue(cell.row, MNUM)), "", grid);
}

void EmptyCells(std::vector<CellPlace> cells) {
    wxGrid* grid = CurrentGrid();
    std::erase_if(cells, [grid](const CellPlace& c) { return grid->GetCellValue(c.row, c.col).empty(); });
    const auto kept = std::erase_if(cells, [grid](const CellPlace& c) { return !CanBeEmpty(grid, c); });
    if (!cells.empty() && !UserConfirms(IdEmptyCells))
        return;
    const wxGridUpdateLocker quiet(grid);
    for (const CellPlace& cell : cells)
        EmptyCell(grid, cell);
    wxString verdict =
        wxString::Format(cells.size() == 1 ? "%zu cell emptied" : "%zu cells emptied", cells.size());
    if (kept > 0)
        verdict += wxString::Format(kept == 1 ? ", %zu keeps its value" : ", %zu keep their values", kept);
    TellOutcome(verdict);
}

} // namespace

void ZelkFrame::OnGridKeyDown(wxKeyEvent& event) {
    const int key = event.GetKeyCode(), modifiers = event.GetModifiers();
    const bool insert = key == WXK_INSERT || key == WXK_NUMPAD_INSERT;
    if (modifiers == wxMOD_CONTROL && (key == 'C' || insert)) {
        CopyCells();
    } else if ((modifiers == wxMOD_CONTROL && key == 'V') || (modifiers == wxMOD_SHIFT && insert)) {
        ForgetOutcome();
        PasteCells();
    } else if (modifiers == wxMOD_NONE && key == WXK_DELETE && OnlyRowsAreSelected(CurrentGrid())) {
        wxCommandEvent command(wxEVT_MENU, IdClearRow);
        OnCommand(command);
    } else if (std::vector<CellPlace> cells; modifiers == wxMOD_NONE && key == WXK_DELETE &&
                                             (cells = SelectedCells(CurrentGrid())).size() > 1) {
        ForgetOutcome();
        EmptyCells(std::move(cells));
    } else {
        event.Skip();
    }
}
