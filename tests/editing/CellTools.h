// Cells of the page, edited as a user does, and their state in the grid.
#pragma once

#include "commands/OpenEditor.h"
#include "tests/support/Keys.h"
#include "tests/support/Modals.h"
#include "tests/support/ZelkWindowTest.h"

#include <wx/combobox.h>
#include <wx/generic/grideditors.h>

#include <string>
#include <typeinfo>
#include <vector>

using Texts = std::vector<std::string>;

class CellTest : public ZelkWindowTest {
protected:
    void SetUp() override {
        ZelkWindowTest::SetUp();
        testbench::ShowAndFocus(*MainFrame);
    }

    void TearDown() override {
        CommitOpenEditor();
        ZelkWindowTest::TearDown();
    }

    static wxGrid* Grid() { return CurrentGrid(); }

    /// Turns the current page into one of the wide module, with a band in each row.
    static void RetargetModule() { Retarget(Kdrv4xxx, ModuleSlot); }

    /// Adds a page without leftovers from another radio and makes it the current one. type is given
    /// where it isn't the radio's own.
    static void AddFreshPage(int radio, int slot, int type = -1) {
        SetPageParameters(MainFrame, 1, radio, slot);
        if (type >= 0)
            PageParameters[1].Type = type;
        CreateNewPage(MainFrame, 1);
        testbench::PumpUntilIdle();
    }

    /// Gives memories the texts of the default row, as if a user had typed into them.
    static void Fill(std::initializer_list<int> rows) { FillRowsFromDefault(rows); }

    static bool IsLocked(int row, int col) { return Grid()->IsReadOnly(row, col); }

    /// Tags of the row's read-only cells.
    static Texts LocksOf(int row) {
        Texts tags;
        for (int col = 0; col < ColumnTotal; ++col)
            if (IsLocked(row, col))
                tags.push_back(ColumnTag[col]);
        return tags;
    }

    /// The cell's editor; the grid keeps ownership.
    static wxGridCellEditor* EditorAt(int row, int col) {
        wxGridCellEditor* editor = Grid()->GetCellEditor(row, col);
        editor->DecRef();
        return editor;
    }

    /// The cell's renderer; the grid keeps ownership.
    static wxGridCellRenderer* RendererAt(int row, int col) {
        wxGridCellRenderer* renderer = Grid()->GetCellRenderer(row, col);
        renderer->DecRef();
        return renderer;
    }

    static std::string EditorClass(int row, int col) { return ClassOf(*EditorAt(row, col)); }
    static std::string RendererClass(int row, int col) { return ClassOf(*RendererAt(row, col)); }

    /// Opens the editor of a choice cell by key and waits until it has the focus.
    static wxComboBox* OpenChoice(int row, int col) {
        GoTo(row, col);
        testbench::PressKey("F2");
        EXPECT_TRUE(Grid()->IsCellEditControlShown()) << row << ", " << col;
        return dynamic_cast<wxComboBox*>(EditorAt(row, col)->GetControl());
    }

    /// The texts that the cell offers; the edit is cancelled.
    static Texts OfferedIn(int row, int col) {
        Texts offered;
        if (wxComboBox* combo = OpenChoice(row, col))
            for (const wxString& text : combo->GetStrings())
                offered.push_back(text.utf8_string());
        testbench::PressKey("Escape");
        return offered;
    }

    /// Chooses a text by keys, as a user does.
    static void Choose(int row, int col, const std::string& text) {
        wxComboBox* combo = OpenChoice(row, col);
        ASSERT_NE(combo, nullptr) << row << ", " << col;
        const int wanted = combo->FindString(text, true);
        ASSERT_NE(wanted, wxNOT_FOUND) << text << " isn't offered";
        for (int at = combo->GetSelection(); at != wanted; at += at < wanted ? 1 : -1)
            testbench::PressKey(at < wanted ? "Down" : "Up");
        ASSERT_EQ(combo->GetValue().utf8_string(), text) << row << ", " << col;
        testbench::PressKey("Return");
        EXPECT_FALSE(Grid()->IsCellEditControlShown()) << row << ", " << col;
    }

    static void GoTo(int row, int col) {
        Grid()->GoToCell(row, col);
        Grid()->SetFocus();
        testbench::PumpUntilIdle();
    }

    static std::string Text(int row, int col) { return Cell(row, col).utf8_string(); }

    static Texts TextsOf(int row, std::initializer_list<int> cols) {
        Texts texts;
        for (int col : cols)
            texts.push_back(Text(row, col));
        return texts;
    }

    template <class Thing>
    static std::string ClassOf(const Thing& thing) {
        // This compiler writes the length before the name.
        const std::string name = typeid(thing).name();
        return name.substr(name.find_first_not_of("0123456789"));
    }
};
