// The possible steps of random work on a page.
#include "catalogue/TextNumbers.h"
#include "commands/OpenEditor.h"
#include "editing/Shadows.h"
#include "editing/ZelkEdit.h"
#include "tests/editing/RandomEdits.h"
#include "tests/support/AssertsOff.h"

#include <wx/combobox.h>
#include <wx/dialog.h>
#include <wx/notebook.h>
#include <wx/spinctrl.h>
#include <wx/textctrl.h>

#include <optional>

namespace {

/// Texts that a foreign file or a mistake could put into a cell.
const std::vector<wxString>& HostileTexts() {
    static const std::vector<wxString> texts = {
        "",
        " ",
        "0",
        "-1",
        "-999999",
        "7",
        "007",
        "42 ",
        " 42",
        "12abc",
        "abc",
        "99999",
        "99999999999999999999",
        "-99999999999999999999",
        "2147483648",
        "0x10",
        "1e5",
        "NaN",
        "FF",
        "FFFFFFFFFFFFFFFF",
        "17",
        "10",
        "07",
        "A8",
        "3FF",
        ".",
        "...",
        "155.",
        ".155",
        "155.0000",
        "155.00.00",
        "174.0001",
        "999.99999",
        "n/a",
        "OFF",
        "D",
        "w",
        "Y",
        "Yes",
        "X",
        "16",
        "None",
        "N",
        "P-9",
        "S-999",
        "P-",
        "%s%n%d",
        "\t",
        "line\nbreak",
        "<row a=\"1\">&amp;",
        "ZZZZ",
        "zz",
        "0001",
        "2e",
        wxString::FromUTF8("\xC3\xA4\xE2\x82\xAC\xF0\x9F\x93\xBB"),
        wxString("12\0 34", 6),
        wxString('9', 300),
        wxString('A', 5000),
    };
    return texts;
}

std::string Quoted(const wxString& text) {
    return "\"" + text.Left(20).utf8_string() + (text.length() > 20 ? "..." : "") + "\"";
}

/// Visible columns that a user can edit where the cell isn't locked.
constexpr struct {
    int col;
    const char* name;
} EditedColumns[] = {
    {MNUM, "MNUM"}, {SHAD, "SHAD"}, {SCAN, "SCAN"}, {ZONE, "ZONE"}, {ZONE, "ZONE"}, {DESC, "DESC"},
    {MODE, "MODE"}, {RFRQ, "RFRQ"}, {RFRQ, "RFRQ"}, {RSQL, "RSQL"}, {RNSV, "RNSV"}, {RTON, "RTON"},
    {RCOD, "RCOD"}, {RTGP, "RTGP"}, {RNAC, "RNAC"}, {TFRQ, "TFRQ"}, {TSQL, "TSQL"}, {TTON, "TTON"},
    {TCOD, "TCOD"}, {TTGP, "TTGP"}, {TNAC, "TNAC"}, {TIDC, "TIDC"}, {MNUM, "MNUM"}, {MODE, "MODE"},
};

int LastMovingRow() {
    return CurrentParameters().Rows - 2;
}

/// True if the cell holds a text that is no number, which a row from elsewhere can cause. The number
/// editors assert then; the program runs with such assertions off.
bool UpsetsNumberEditor(int row, int col) {
    const wxString text = CurrentGrid()->GetCellValue(row, col);
    long number = 0;
    return (col == MNUM || col == RNSV || col == TIDC) && !text.empty() && !text.ToLong(&number);
}

} // namespace

const std::vector<RandomEdits::Kind>& RandomEdits::Kinds() {
    static const std::vector<Kind> kinds = {
        {"OnDefaultRow", 7, &RandomEdits::DefaultRows, true},
        {"OnCopyRow", 5, &RandomEdits::CopyOneRow, false},
        {"OnPasteRow", 6, &RandomEdits::PasteOneRow, false},
        {"OnClearRow", 4, &RandomEdits::ClearRows, true},
        {"OnInsertRow", 5, &RandomEdits::InsertOneRow, true},
        {"OnDeleteRow", 5, &RandomEdits::DeleteRows, true},
        {"OnMarkRow", 3, &RandomEdits::MarkRows, true},
        {"OnDefaultCol", 4, &RandomEdits::DefaultOneCol, true},
        {"OnDefaultMarked", 4, &RandomEdits::DefaultMarkedRows, true},
        {"OnRenumberToRowNum", 2, &RandomEdits::RenumberByRow, true},
        {"OnRenumberSequencial", 2, &RandomEdits::RenumberInSequence, true},
        {"OnDefaultFile", 1, &RandomEdits::DefaultAllRows, true},
        {"OnSaveDefault", 1, &RandomEdits::SaveDefaults, true},
        {"OnLoadDefault", 1, &RandomEdits::LoadDefaults, true},
        {"OnSelectAll", 1, &RandomEdits::SelectEverything, true},
        {"OnDeSelectAll", 1, &RandomEdits::SelectNothing, true},
        {"OnClearHighlight", 2, &RandomEdits::ClearHighlights, true},
        {"OnCreateShadow", 16, &RandomEdits::CreateOneShadow, false},
        {"OnValidatePage", 2, &RandomEdits::ValidateByMenu, false},
        {"CheckPage", 2, &RandomEdits::CheckByCall, false},
        {"edit", 24, &RandomEdits::EditOneCell, false},
        {"typed keys", 2, &RandomEdits::TypeIntoOneCell, false},
        {"hostile text", 12, &RandomEdits::WriteHostileText, false},
        {"page change", 3, &RandomEdits::ChangePage, true},
    };
    return kinds;
}

void RandomEdits::PickSelection() {
    wxGrid* grid = CurrentGrid();
    const int rows = CurrentParameters().Rows;
    grid->ClearSelection();
    switch (m_dice.Below(10)) {
    case 0:
        Note("nothing selected");
        return;
    case 1: {
        const int col = m_dice.Below(ColumnTotal);
        grid->SelectCol(col);
        Note("column " + std::to_string(col));
        return;
    }
    case 2:
        if (m_dice.Chance(15)) {
            grid->SelectAll();
            Note("all");
            return;
        }
        [[fallthrough]];
    case 3:
    case 4: {
        const int first = PickRow();
        const int last = std::min(rows, first + m_dice.Below(m_dice.Chance(30) ? 120 : 20));
        grid->SelectBlock(first, 0, last, ColumnTotal - 1);
        Note("rows " + std::to_string(first) + " to " + std::to_string(last));
        return;
    }
    case 5: {
        const int first = PickRow();
        grid->SelectBlock(first, 0, std::min(rows, first + 3), m_dice.Below(ColumnTotal));
        Note("cells of row " + std::to_string(first) + " on");
        return;
    }
    default:
        for (int count = m_dice.Between(1, 6); count > 0; --count) {
            const int row = PickRow();
            grid->SelectRow(row, true);
            Note("row " + std::to_string(row));
        }
    }
}

void RandomEdits::NameRow(int row) {
    m_namesRows = true;
    m_namedRows.insert(row);
}

void RandomEdits::NameSelectedRows() {
    m_namesRows = true;
    for (int row = 1; row <= CurrentParameters().Rows; ++row)
        if (CurrentGrid()->IsInSelection(row, 0))
            m_namedRows.insert(row);
}

int RandomEdits::PickRow() {
    const int rows = CurrentParameters().Rows;
    if (m_dice.Chance(60))
        if (const std::vector<int> used = FilledRows(); !used.empty())
            return m_dice.Pick(used);
    return m_dice.Chance(5) ? m_dice.Between(rows - 1, rows) : m_dice.Between(0, rows);
}

/// A complete memory that can get a shadow, likely a primary; any row if there is none.
int RandomEdits::PickGoodRow() {
    std::vector<int> complete, primaries;
    for (int row : FilledRows()) {
        if (!RowIsComplete(row) || IsShadow(CurrentGrid(), row))
            continue;
        complete.push_back(row);
        if (IsPrimary(CurrentGrid(), row))
            primaries.push_back(row);
    }
    if (!primaries.empty() && m_dice.Chance(70))
        return m_dice.Chance(60) ? primaries.front() : m_dice.Pick(primaries); // some lists get full
    return complete.empty() ? PickRow() : m_dice.Pick(complete);
}

void RandomEdits::PickContextRow() {
    // A menu opened on a longer page leaves a row number that this page may not have.
    ContextRow = m_dice.Chance(8) ? m_dice.Between(-1, 600) : PickRow();
    Note("at row " + std::to_string(ContextRow));
}

void RandomEdits::Ask(int command) {
    m_cancelled = m_dice.Chance(10) && !CurrentGrid()->IsCellEditControlEnabled();
    if (m_cancelled)
        Note("cancelled");
    Run(command, m_cancelled ? wxID_CANCEL : wxID_OK);
}

void RandomEdits::DefaultRows() {
    PickSelection();
    PickContextRow();
    NameSelectedRows();
    NameRow(ContextRow);
    Ask(DefaultRow);
}

void RandomEdits::CopyOneRow() {
    PickContextRow();
    const bool memory = ContextRow >= 1 && ContextRow <= CurrentParameters().Rows;
    testbench::DialogScript dialogs;
    if (!memory || !RowHasData(ContextRow)) {
        dialogs.ExpectMessage("Error - Empty Row!", "Cannot copy empty row.").Style(testbench::PlainBox);
        m_copiedPage = -1;
    } else {
        m_copiedPage = CurrentPage;
    }
    MainFrame->m_contextMenu->SendEvent(CopyRow);
}

void RandomEdits::PasteOneRow() {
    PickSelection();
    PickContextRow();
    NameRow(ContextRow);
    m_cancelled = m_dice.Chance(10);
    const bool memory = ContextRow >= 1 && ContextRow <= CurrentParameters().Rows;
    testbench::DialogScript dialogs;
    if (memory) {
        ExpectQuestion(dialogs, PasteRow, m_cancelled ? wxID_CANCEL : wxID_OK);
        if (!m_cancelled && RowCopyBuffer.empty())
            dialogs.ExpectMessage("Error - Empty paste buffer!", "Cannot paste empty row.")
                .Style(testbench::PlainBox);
        else if (!m_cancelled && OtherRowWith(ContextRow, NumberText(ContextRow)))
            // Otherwise the row gets its own number where the copied one is not allowed.
            ExpectNumberBox(dialogs, OtherRowWith(ContextRow, RowCopyBuffer[MNUM]));
    }
    if (memory && !m_cancelled && m_copiedPage >= 0 && m_copiedPage != CurrentPage)
        ++m_done[CurrentPage]["OnPasteRow: from the other page"];
    MainFrame->m_contextMenu->SendEvent(PasteRow);
}

void RandomEdits::ClearRows() {
    PickSelection();
    NameSelectedRows();
    Ask(ClearRow);
}

void RandomEdits::InsertOneRow() {
    PickSelection();
    PickContextRow();
    if (ContextRow >= 1 && ContextRow <= LastMovingRow()) {
        Ask(InsertRow);
        return;
    }
    testbench::DialogScript none;
    MainFrame->m_contextMenu->SendEvent(InsertRow);
}

void RandomEdits::DeleteRows() {
    PickSelection();
    Ask(DeleteRow);
}

void RandomEdits::MarkRows() {
    PickSelection();
    Run(MarkRow);
}

/// Selects a column as a click on its label does, but sometimes something else.
void RandomEdits::RunOnPickedColumn(int command) {
    m_clearsSlots = true;
    if (m_dice.Chance(20)) {
        PickSelection();
    } else {
        const int col = m_dice.Chance(25) ? static_cast<int>(ZONE)
                                          : m_dice.Between(m_dice.Chance(20) ? MNUM : DESC, TIDC);
        CurrentGrid()->SelectCol(col);
        Note("column " + std::to_string(col));
    }
    Ask(command);
}

void RandomEdits::DefaultOneCol() {
    RunOnPickedColumn(DefaultCol);
}

void RandomEdits::DefaultMarkedRows() {
    RunOnPickedColumn(DefaultMarked);
}

void RandomEdits::RenumberByRow() {
    PickSelection();
    Ask(ToRowNum);
}

void RandomEdits::RenumberInSequence() {
    PickSelection();
    Ask(InSequence);
}

void RandomEdits::DefaultAllRows() {
    PickSelection();
    if (m_dice.Chance(30))
        CurrentGrid()->SelectAll();
    PickContextRow();
    m_clearsSlots = true;
    Ask(DefaultFile);
}

void RandomEdits::RunUnimplemented(int command, const char* caption) {
    testbench::DialogScript dialogs;
    dialogs.ExpectMessage(caption, " ! Currently UnImplemented !").Style(testbench::PlainBox);
    m_cancelled = !CurrentGrid()->IsCellEditControlEnabled();
    MainFrame->m_contextMenu->SendEvent(command);
}

void RandomEdits::SaveDefaults() {
    RunUnimplemented(SaveDefault, "Save Radio Default Data?");
}

void RandomEdits::LoadDefaults() {
    RunUnimplemented(LoadDefault, "Load Radio Default Data");
}

void RandomEdits::SelectEverything() {
    wxCommandEvent event;
    MainFrame->OnSelectAll(event);
}

void RandomEdits::SelectNothing() {
    wxCommandEvent event;
    MainFrame->OnDeSelectAll(event);
}

void RandomEdits::ClearHighlights() {
    wxCommandEvent event;
    MainFrame->OnClearHighlight(event);
}

/// The user's entry for a shadow: mostly a number of the page, used or not, and sometimes an
/// invalid one.
std::string RandomEdits::ShadowText() {
    static const char* const bad[] = {"0", "-3", "abc", "12a", "1.5", " ", "503", "9999", "99999999999"};
    if (m_dice.Chance(12))
        return m_dice.Pick(bad);
    const int rows = CurrentParameters().Rows;
    int number = m_dice.Between(1, rows);
    if (m_dice.Chance(60))
        for (int tries = 0; tries < rows && RowHasData(number); ++tries)
            number = number % rows + 1;
    return wxString::Format(m_dice.Chance(50) ? "%d" : "%03d", number).utf8_string();
}

void RandomEdits::CreateOneShadow() {
    const char* const caption = "Create Shadow - Error";
    const int rows = CurrentParameters().Rows;
    const wxString outside =
        wxString::Format("Cannot Create Shadow!\nMemory number must be from 1 to %d.", rows);
    if (m_dice.Chance(20)) {
        PickContextRow();
    } else {
        ContextRow = PickGoodRow();
        Note("at row " + std::to_string(ContextRow));
    }
    testbench::DialogScript dialogs;
    const auto refuse = [&](const wxString& message) {
        dialogs.ExpectMessage(caption, message.utf8_string()).Style(testbench::PlainBox);
        m_cancelled = true;
        ++m_done[CurrentPage]["OnCreateShadow: refused"];
    };
    const auto expect = [&] {
        if (ContextRow < 0 || ContextRow > rows || !RowIsComplete(ContextRow))
            return refuse("Cannot Create Shadow!\nMemory record is empty or incomplete.");
        const int primary = ReadDecimal(CurrentGrid()->GetCellValue(ContextRow, MNUM));
        if (primary < 1 || primary > rows)
            return refuse(outside);
        const int slot = FirstFreeShadowSlot(GetRowValues(CurrentPage, primary));
        if (slot == ShadowLimit)
            return refuse("Cannot Create Shadow!\nShadow List is full for selected primary.");
        const std::string text = ShadowText();
        const bool gives = m_dice.Chance(90);
        Note("entering " + text + (gives ? "" : ", cancelled"));
        dialogs
            .Expect(testbench::DialogKind::Other,
                    wxString::Format("For Primary: %03d create Shadow: %d", primary, slot + 1).utf8_string())
            .Set([text](wxDialog* dialog) {
                for (wxWindow* child : dialog->GetChildren())
                    if (auto* control = dynamic_cast<wxTextCtrl*>(child))
                        control->SetValue(text);
                dialog->TransferDataFromWindow();
            })
            .Answer(gives ? wxID_OK : wxID_CANCEL);
        if (!gives) {
            m_cancelled = true;
            return;
        }
        long number = 0;
        const bool digits = text.find_first_not_of("0123456789") == std::string::npos;
        if (!digits || !wxString(text).ToLong(&number) || number < 1 || number > rows)
            return refuse(outside);
        if (RowHasData(static_cast<int>(number)))
            return refuse("Selected memory is already in use.");
        for (int row = 0; row <= rows; ++row)
            if (long held = 0; CurrentGrid()->GetCellValue(row, MNUM).ToLong(&held) && held == number)
                return refuse("Selected memory is already in use.");
        ++m_done[CurrentPage]["OnCreateShadow: made"];
        NameRow(primary);
        NameRow(static_cast<int>(number));
    };
    expect();
    MainFrame->m_contextMenu->SendEvent(CreateShadow);
}

void RandomEdits::ValidateByMenu() {
    {
        testbench::DialogScript dialogs;
        dialogs.ExpectMessage("Validate Page", "Validate row data").Style(testbench::PlainBox);
        ExpectBoxesOfPageCheck(dialogs);
        wxCommandEvent event;
        MainFrame->OnValidatePage(event);
    }
    ExpectCheckedPage();
}

void RandomEdits::CheckByCall() {
    {
        testbench::DialogScript dialogs;
        ExpectBoxesOfPageCheck(dialogs);
        CheckPage();
    }
    ExpectCheckedPage();
    ExpectSecondCheckKeepsZones();
}

void RandomEdits::PutIntoEditor(wxGridCellEditor* editor, int row, int col) {
    wxWindow* control = editor->GetControl();
    if (auto* spin = dynamic_cast<wxSpinCtrl*>(control)) {
        const int top = std::min(spin->GetMax(), m_dice.Chance(50) ? spin->GetMax() : 20);
        spin->SetValue(m_dice.Between(spin->GetMin(), top));
        Note(std::to_string(spin->GetValue()));
    } else if (auto* combo = dynamic_cast<wxComboBox*>(control)) {
        if (combo->GetCount() > 0)
            combo->SetSelection(m_dice.Below(static_cast<int>(combo->GetCount())));
        Note(Quoted(combo->GetValue()));
    } else if (auto* text = dynamic_cast<wxTextCtrl*>(control)) {
        static const char* const frequencies[] = {"155",      "155.0", "150.1234", "136.0000", "174.0000",
                                                  "174.0001", "999",   ".",        "13",       "155.00625"};
        static const char* const others[] = {"A", "abc", "1F", "FFFF", "0", "REPEATER", "x y z", "12345678"};
        text->SetValue(col == RFRQ || col == TFRQ ? m_dice.Pick(frequencies) : m_dice.Pick(others));
        Note(Quoted(text->GetValue()));
    } else {
        ADD_FAILURE() << "no editor control at " << row << ", " << col;
    }
}

void RandomEdits::EditCell(int row, int col) {
    wxGrid* grid = CurrentGrid();
    grid->GoToCell(row, col);
    if (grid->IsReadOnly(row, col)) {
        EXPECT_FALSE(grid->CanEnableCellControl()) << row << ", " << col;
        Note("locked");
        ++m_done[CurrentPage]["edit: cell locked"];
        return;
    }
    std::optional<testbench::AssertsOff> quiet;
    if (UpsetsNumberEditor(row, col))
        quiet.emplace();
    grid->EnableCellEditControl();
    ASSERT_TRUE(grid->IsCellEditControlShown()) << row << ", " << col;
    const wxGridCellEditorPtr editor(grid->GetCellEditor(row, col));
    PutIntoEditor(editor.get(), row, col);
    testbench::DialogScript dialogs;
    if (m_dice.Chance(10)) {
        Note("given up");
        editor->Reset();
    } else if (col == MNUM) {
        const auto* spin = dynamic_cast<wxSpinCtrl*>(editor->GetControl());
        const int number = spin ? spin->GetValue() : 0;
        const int rows = CurrentParameters().Rows;
        const wxString typed = wxString::Format("%d", number);
        if (number < 0 || number > rows)
            dialogs.ExpectMessage("Error", "Memory number must be from 0 to " + std::to_string(rows) + ".");
        else if (ReadDecimal(typed) != ReadDecimal(grid->GetCellValue(row, col)))
            ExpectNumberBox(dialogs, OtherRowWith(row, typed));
    } else if (m_dice.Chance(15) && !grid->GetCellValue(row, TFLG).empty()) {
        Note("left open");
        return;
    }
    grid->DisableCellEditControl();
}

void RandomEdits::EditOneCell() {
    const auto& edited = m_dice.Pick(EditedColumns);
    const int col =
        edited.col == RNSV && CurrentParameters().Type != RadioCatalogue::NP25 ? RTON : edited.col;
    const char* const name = col == edited.col ? edited.name : "RTON";
    const int row = PickRow();
    Note(std::string(name) + " of row " + std::to_string(row) + ":");
    ++m_done[CurrentPage][std::string("edit ") + name];
    NameRow(row);
    EditCell(row, col);
}

void RandomEdits::TypeIntoOneCell() {
    static const struct {
        int col;
        const char* keys;
    } typed[] = {{RFRQ, "151.5"}, {TFRQ, "160"}, {DESC, "Base 7"}, {RTGP, "ab"},
                 {RNAC, "29q3"},  {DESC, "a~b"}, {RFRQ, "5x"},     {RTON, "1"}};
    const auto& keys = m_dice.Pick(typed);
    const int row = PickRow();
    Note(std::string(keys.keys) + " in row " + std::to_string(row) + ", " + std::to_string(keys.col));
    NameRow(row);
    testbench::DialogScript none;
    testbench::TypeIntoCell(*CurrentGrid(), row, keys.col, keys.keys);
    CommitOpenEditor();
}

void RandomEdits::WriteHostileText() {
    const int row = PickRow();
    NameRow(row);
    const bool whole = m_dice.Chance(5);
    const int count = whole ? ColumnTotal : m_dice.Between(1, 3);
    for (int i = 0; i < count; ++i) {
        const int col = whole ? i : m_dice.Below(ColumnTotal);
        const wxString& text = m_dice.Pick(HostileTexts());
        SetCell(row, col, text);
        Note(std::to_string(row) + ", " + std::to_string(col) + ": " + Quoted(text));
    }
    if (row == 0)
        return;
    testbench::DialogScript dialogs;
    ExpectNumberBox(dialogs, OtherRowWith(row, CurrentGrid()->GetCellValue(row, MNUM)));
    CheckRow(CurrentGrid(), row);
}

void RandomEdits::ChangePage() {
    const int page = m_dice.Chance(75) ? 0 : 1;
    Note("to page " + std::to_string(page + 1));
    MainFrame->m_notebook->SetSelection(static_cast<size_t>(page));
    EXPECT_EQ(CurrentPage, page);
}
