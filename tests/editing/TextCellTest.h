// Editors of text cells on a page, used with real keys.
#pragma once

#include "tests/support/Keys.h"
#include "tests/support/ZelkWindowTest.h"

#include <wx/clipbrd.h>
#include <wx/dataobj.h>
#include <wx/textctrl.h>

#include <memory>
#include <string>
#include <vector>

class TextCellTest : public ZelkWindowTest {
protected:
    void SetUp() override {
        ZelkWindowTest::SetUp();
        testbench::ShowAndFocus(*MainFrame);
        Retarget(Krv214, 0);
        Watch();
    }

    /// Records the new value of every edit that the grid announces.
    void Watch() {
        CurrentGrid()->Bind(wxEVT_GRID_CELL_CHANGING, [this](wxGridEvent& event) {
            m_newValues.push_back(event.GetString().utf8_string());
            event.Skip();
        });
    }

    /// The grid takes ownership of the editor.
    static void Install(int row, int col, wxGridCellEditor* editor) {
        CurrentGrid()->SetCellEditor(row, col, editor);
        CurrentGrid()->SetReadOnly(row, col, false);
    }

    /// Puts the cursor on a cell, with no edit open.
    static void GoTo(int row, int col) {
        CurrentGrid()->GoToCell(row, col);
        CurrentGrid()->SetFocus();
        testbench::PumpUntilIdle();
    }

    /// Opens an edit on a cell, and empties its control.
    static void OpenEmpty(int row, int col) {
        GoTo(row, col);
        testbench::PressKey("F2");
        testbench::PressKey("Ctrl+A");
        testbench::PressKey("BackSpace");
    }

    static bool IsOpen() { return CurrentGrid()->IsCellEditControlShown(); }

    static wxGridCellEditorPtr EditorOf(int row, int col) {
        return wxGridCellEditorPtr(CurrentGrid()->GetCellEditor(row, col));
    }

    static wxTextCtrl* Control() {
        const wxGrid* grid = CurrentGrid();
        return wxDynamicCast(EditorOf(grid->GetGridCursorRow(), grid->GetGridCursorCol())->GetWindow(),
                             wxTextCtrl);
    }

    /// The text of the open edit.
    static std::string Typed() { return IsOpen() ? Control()->GetValue().utf8_string() : "(no edit)"; }

    /// Presses Ctrl+V with this text on the clipboard.
    static void Paste(const std::string& text) {
        {
            const wxClipboardLocker lock;
            ASSERT_TRUE(!!lock);
            ASSERT_TRUE(wxTheClipboard->SetData(new wxTextDataObject(text)));
        }
        testbench::PressKey("Ctrl+V");
    }

    static std::string Text(int row, int col) { return Cell(row, col).utf8_string(); }

    /// Makes a row that isn't blank, so that typing fills nothing else.
    static void UseRow(int row, const char* rfrq = "140.0000", const char* tfrq = "141.0000") {
        SetCell(row, TFLG, "A0");
        SetCell(row, RFRQ, rfrq);
        SetCell(row, TFRQ, tfrq);
    }

    std::vector<std::string> m_newValues;
};

/// Creates a validator of a text cell by its class name, without a control.
template <class Validator>
std::unique_ptr<Validator> MakeByName(const char* name) {
    return std::unique_ptr<Validator>(dynamic_cast<Validator*>(wxCreateDynamicObject(name)));
}
