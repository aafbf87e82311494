// Row and column commands in tests: pages, selections, questions.
#pragma once

#include "tests/frame/FrameTools.h"
#include "tests/support/Keys.h"
#include "tests/support/Modals.h"
#include "tests/support/RunWithRobot.h"
#include "tests/support/ZelkWindowTest.h"

#include <wx/menu.h>

#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

class CommandTest : public ZelkWindowTest {
protected:
    // Context menu commands by number.
    enum Command {
        DefaultRow = 6024,
        CreateShadow,
        CopyRow,
        PasteRow,
        ClearRow,
        InsertRow,
        DeleteRow,
        MarkRow,
        DefaultCol,
        DefaultMarked,
        ToRowNum,
        InSequence,
        DefaultFile,
        SaveDefault,
        LoadDefault
    };

    using Texts = std::vector<std::string>;

    static constexpr const char* NoUndoAll = "This will overwrite all data in selection, there is no 'undo'!";

    struct Question {
        int command;
        const char* caption;
        const char* message;
    };

    /// Every command that asks, with its question.
    static const std::vector<Question>& Questions() {
        static const std::vector<Question> questions = {
            {DefaultRow, "Change Selection to defaults?", NoUndoAll},
            {PasteRow, "Paste copied data into Selection?", NoUndoAll},
            {ClearRow, "Clear rows in Selection?",
             "This will clear all data in selection, there is no 'undo'!"},
            {InsertRow, "Insert row above Selected row?",
             "If last row is used, it will be lost, there is no 'undo'!"},
            {DeleteRow, "Delete Selection?", "This will delete all data in selection, there is no 'undo'!"},
            {DefaultCol, "Change Selection to default?",
             "This will overwrite all valid data in selection, there is no 'undo'!"},
            {DefaultMarked, "Change Marked Rows in Column to default value?", NoUndoAll},
            {ToRowNum, "Re-number Rows?",
             "This will overwrite all numbers in selection, there is no 'undo'!"},
            {InSequence, "Re-number Rows?",
             "This will overwrite all numbers in selection, there is no 'undo'!"},
            {DefaultFile, "Default File?", "This will overwrite all data in file, there is no 'undo'!"},
        };
        return questions;
    }

    static void ExpectQuestion(testbench::DialogScript& dialogs, int command, int answer = wxID_OK) {
        for (const Question& question : Questions())
            if (question.command == command)
                dialogs.ExpectMessage(question.caption, question.message, answer).Style(wxOK | wxCANCEL);
    }

    /// Sends the command as the context menu does, and answers its question, if any.
    static void Run(int command, int answer = wxID_OK) {
        testbench::DialogScript dialogs;
        ExpectQuestion(dialogs, command, answer);
        MainFrame->m_contextMenu->SendEvent(command);
    }

    /// Runs a row command on one row, as a right click on its label does.
    static void RunOnRow(int command, int row) {
        CurrentGrid()->ClearSelection();
        CurrentGrid()->SelectRow(row, true);
        ContextRow = row;
        Run(command);
    }

    static void RunOnColumn(int command, int col) {
        CurrentGrid()->SelectCol(col);
        Run(command);
    }

    static void SelectRows(std::initializer_list<int> rows) {
        CurrentGrid()->ClearSelection();
        for (int row : rows)
            CurrentGrid()->SelectRow(row, true);
    }

    static const Texts& Blank() {
        static const Texts blank(32);
        return blank;
    }

    /// A column's texts in the memory rows given.
    static Texts Column(int col, std::initializer_list<int> rows) {
        Texts texts;
        for (int row : rows)
            texts.push_back(Cell(row, col).utf8_string());
        return texts;
    }

    static bool IsReadOnly(int row, int col) { return CurrentGrid()->IsReadOnly(row, col); }
    /// The read-only columns of a row.
    static std::vector<int> Locked(int row) {
        std::vector<int> columns;
        for (int col = 0; col < 32; ++col)
            if (IsReadOnly(row, col))
                columns.push_back(col);
        return columns;
    }
    static wxColour Paint(int row, int col) { return CurrentGrid()->GetCellBackgroundColour(row, col); }
    static wxColour Plain() { return CurrentGrid()->GetDefaultCellBackgroundColour(); }
    static wxColour Orange() { return wxColour(235, 125, 50); }
    static wxColour Teal() { return wxColour(105, 160, 170); }

    /// Fills rows as a user does by typing into blank ones, and names them "row<n>".
    static void Fill(std::initializer_list<int> rows) {
        FillRowsFromDefault(rows);
        for (int row : rows)
            SetCell(row, DESC, wxString::Format("row%d", row));
    }

    static int SlotsTaken(int zone) { return ZoneSlots[zone]; }

    /// Links a filled P25 row as primary with shadows in the rows given, in the form in which the
    /// radio keeps them.
    static void Link(int primary, std::initializer_list<int> shadows) {
        int slot = 0;
        for (int shadow : shadows) {
            FillRowsFromDefault({shadow});
            SetCell(shadow, MFLG, wxString::Format("%02X", slot + 1));
            SetCell(shadow, PRIM, wxString::Format("%03d", primary));
            SetCell(shadow, SHAD, wxString::Format("S-%03d", primary));
            SetCell(shadow, DESC, wxString::Format("row%d", shadow));
            for (int col : {MNUM, SHAD, SCAN, ZONE, RFRQ, TFRQ})
                CurrentGrid()->SetReadOnly(shadow, col, true);
            SetCell(primary, SHD0 + slot, wxString::Format("%03d", shadow));
            ++slot;
            SetCell(primary, SHAD, wxString::Format("P-%d", slot));
        }
        SetCell(primary, MFLG, "10");
        for (int col : {MNUM, SHAD, SCAN})
            CurrentGrid()->SetReadOnly(primary, col, true);
    }

    /// Right-clicks at the spot and chooses the command in the menu that opens. A script must
    /// expect the dialogs that follow.
    static void ClickCommand(const std::function<wxPoint()>& spot, int command) {
        // Two clicks at the same spot would be a double click, which opens no menu.
        static int aside = 5;
        aside = -aside;
        const auto isOpen = [] { return MainFrame->m_contextMenu->GetInvokingWindow() != nullptr; };
        testbench::RunWithRobot([&](testbench::Robot& robot) {
            robot.Click(robot.Ask(spot) + wxPoint(aside, 0), 3);
            robot.Settle();
            ASSERT_TRUE(robot.WaitFor(isOpen)) << "no menu";
            const int position = robot.Ask([command] {
                size_t at = 0;
                return MainFrame->m_contextMenu->FindChildItem(command, &at) ? static_cast<int>(at) : -1;
            });
            if (position < 0)
                robot.Press("Escape");
            ASSERT_GE(position, 0) << "the menu lacks " << command;
            for (int i = 0; i <= position; ++i)
                robot.Press("Down");
            robot.Press("Return");
            robot.Settle();
            EXPECT_TRUE(robot.WaitFor([&] { return !isOpen(); }));
        });
    }

    static void ClickRowCommand(int row, int command) {
        ClickCommand([row] { return testbench::RowLabelSpot(*CurrentGrid(), row); }, command);
    }

    static void ClickColumnCommand(int col, int command) {
        ClickCommand([col] { return testbench::ColumnLabelSpot(*CurrentGrid(), col); }, command);
    }
};
