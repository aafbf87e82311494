// Commands given while a cell is being edited: they use the typed text.
#include "commands/CommandIds.h"
#include "robot/Files.h"
#include "robot/TempFolder.h"
#include "tests/editing/GridHabits.h"

#include <wx/notebook.h>
#include <wx/print.h>

#include <functional>

using namespace testbench;

namespace {

class OpenEditor : public GridHabits {
protected:
    /// Text typed into an editor that stays open, and the cell's text once it is taken.
    struct Edit {
        const char* name;
        int col;
        const char* typed;
        const char* taken;
    };

    static const std::vector<Edit>& Edits() {
        static const std::vector<Edit> edits = {
            {"frequency", RFRQ, "77.5", "77.5000"},
            {"description", DESC, "quay", "QUAY"},
            {"memory number", MNUM, "99", "099"},
            {"tone", RTON, nullptr, "67.0"},
        };
        return edits;
    }

    static void Type(int row, const Edit& edit) {
        ShowAndFocus(*MainFrame);
        if (edit.typed) {
            GoTo(row, edit.col);
            TypeText(edit.typed);
        } else {
            OpenChoice(row, edit.col);
            PressKey("Down");
        }
        ASSERT_TRUE(IsOpen()) << edit.name;
        ASSERT_NE(edit.taken, Text(row, edit.col)) << edit.name;
    }

    /// Runs the command while each kind of editor is open in row 5, and checks the cell after it. The
    /// command must leave the row in its place.
    static void ExpectTaken(const std::function<void(DialogScript&)>& command) {
        for (const Edit& edit : Edits()) {
            SCOPED_TRACE(edit.name);
            Fill({5});
            Type(5, edit);
            {
                DialogScript dialogs;
                command(dialogs);
                EXPECT_EQ(dialogs.Missing(), 0u);
            }
            EXPECT_FALSE(IsOpen());
            EXPECT_EQ(Text(5, edit.col), edit.taken);
        }
    }

    /// Expects a box or question and answers it with Cancel; the cell has its text before that.
    static void ExpectBox(DialogScript& dialogs, const TextRule& caption) {
        dialogs.ExpectMessage(caption, AnyText(), wxID_CANCEL);
    }

    static void ChooseRowCommand(int command) {
        ContextRow = 5;
        MainFrame->m_contextMenu->SendEvent(command);
        PumpUntilIdle();
    }
};

} // namespace

TEST_F(OpenEditor, IsTakenBySaveIntoTheFile) {
    TempFolder folder;
    PageStrings[0].FileDir = folder.Path().string() + "/";
    PageStrings[0].FileName = "quay";
    ExpectTaken([](DialogScript&) { RunCommand(IdSave); });
    Fill({5});
    for (const Edit& edit : Edits()) {
        SCOPED_TRACE(edit.name);
        Fill({5});
        Type(5, edit);
        RunCommand(IdSave);
        const std::string bytes = ReadFile(folder / "quay.zelk");
        EXPECT_NE(bytes.find(std::string(">") + edit.taken + "<"), std::string::npos) << bytes;
    }
}

TEST_F(OpenEditor, IsTakenBySaveAsIntoTheFile) {
    TempFolder folder;
    for (const Edit& edit : Edits()) {
        SCOPED_TRACE(edit.name);
        Fill({5});
        Type(5, edit);
        const std::string file = std::string("as") + std::to_string(edit.col) + ".zelk";
        {
            DialogScript dialogs;
            dialogs.Expect(DialogKind::File, AnyText()).Path((folder / file).string());
            RunCommand(IdSaveAs);
        }
        const std::string bytes = ReadFile(folder / file);
        EXPECT_NE(bytes.find(std::string(">") + edit.taken + "<"), std::string::npos) << bytes;
        EXPECT_FALSE(IsOpen());
    }
}

TEST_F(OpenEditor, IsTakenByATransferThatIsRefused) {
    ExpectTaken([](DialogScript& dialogs) {
        ExpectBox(dialogs, "Error!");
        RunCommand(IdUpload);
    });
    ExpectTaken([](DialogScript& dialogs) {
        ExpectBox(dialogs, "Read Channel Data from Radio?");
        RunCommand(IdDownload);
    });
}

TEST_F(OpenEditor, IsTakenBeforeAQuestionOfThePage) {
    ExpectTaken([](DialogScript& dialogs) {
        ExpectBox(dialogs, "Open File?");
        RunCommand(IdOpen);
    });
    ExpectTaken([](DialogScript& dialogs) {
        ExpectBox(dialogs, "Change Target?");
        RunCommand(IdSetTarget);
    });
    ExpectTaken([](DialogScript& dialogs) {
        ExpectBox(dialogs, "Delete Page Error");
        RunCommand(IdPageDelete);
    });
    AddPage(Krv214);
    MainFrame->m_notebook->SetSelection(0);
    ExpectTaken([](DialogScript& dialogs) {
        ExpectBox(dialogs, "Delete Page?");
        RunCommand(IdPageDelete);
    });
}

TEST_F(OpenEditor, IsTakenBeforeAFileOrAPrinterIsChosen) {
    ExpectTaken([](DialogScript& dialogs) {
        dialogs.Expect(DialogKind::File, "Import file").Answer(wxID_CANCEL);
        RunCommand(IdImport);
    });
    ExpectTaken([](DialogScript& dialogs) {
        ExpectBox(dialogs, "Export CSV - Error!");
        RunCommand(IdExport);
    });
    ExpectTaken([](DialogScript& dialogs) {
        dialogs.Expect(DialogKind::Print, AnyText()).Answer(wxID_CANCEL).Set([](wxDialog*) {
            EXPECT_FALSE(IsOpen()) << "before the dialog comes";
        });
        RunCommand(IdPrint);
    });
}

TEST_F(OpenEditor, IsTakenBeforeThePageIsPreviewed) {
    ExpectTaken([](DialogScript&) {
        RunCommand(IdPrintPreview);
        for (wxWindow* window : wxTopLevelWindows)
            if (dynamic_cast<wxPreviewFrame*>(window))
                window->Close();
        PumpUntilIdle();
    });
}

TEST_F(OpenEditor, IsTakenByACheckOfThePage) {
    ExpectTaken([](DialogScript& dialogs) {
        dialogs.ExpectMessage("Validate Page", AnyText());
        RunCommand(IdValidatePage);
    });
    ExpectTaken([](DialogScript&) { RunCommand(IdClearHighlight); });
}

TEST_F(OpenEditor, IsTakenOnItsPageWhenAnotherPageIsShown) {
    AddPage(Krv214);
    for (const Edit& edit : Edits()) {
        SCOPED_TRACE(edit.name);
        MainFrame->m_notebook->SetSelection(0);
        PumpUntilIdle();
        Fill({5});
        Type(5, edit);
        // Tabs are in a line above the pages; the second one is somewhere in it.
        const wxPoint corner = PageGrid[0]->GetScreenPosition();
        for (int x = 20; x < 300 && CurrentPage == 0; x += 20)
            ClickAt(wxPoint(corner.x + x, corner.y - 20));
        ASSERT_EQ(CurrentPage, 1);
        EXPECT_FALSE(PageGrid[0]->IsCellEditControlShown());
        EXPECT_EQ(PageGrid[0]->GetCellValue(5, edit.col).utf8_string(), edit.taken);
        EXPECT_EQ(Text(5, edit.col), "") << "the other page";
    }
}

TEST_F(OpenEditor, IsClosedWhenItsPageIsDeleted) {
    for (const Edit& edit : Edits()) {
        SCOPED_TRACE(edit.name);
        AddPage(Krv47);
        ASSERT_EQ(CurrentPage, 1);
        Fill({5});
        Type(5, edit);
        const PageState first = [] {
            CurrentPage = 0;
            PageState state = StateOfPage();
            CurrentPage = 1;
            return state;
        }();
        DeletePage();
        ASSERT_EQ(CurrentPage, 0);
        EXPECT_EQ(ChangesSince(first), "");
    }
}

TEST_F(OpenEditor, IsTakenByEveryRowAndColumnCommand) {
    const std::pair<int, const char*> questions[] = {
        {IdDefaultRow, "Change Selection to defaults?"},
        {IdPasteRow, "Paste copied data into Selection?"},
        {IdClearRow, "Clear rows in Selection?"},
        {IdInsertRow, "Insert row above Selected row?"},
        {IdDeleteRow, "Delete Selection?"},
        {IdDefaultCol, "Change Selection to default?"},
        {IdDefaultMarked, "Change Marked Rows in Column to default value?"},
        {IdRenumberToRowNum, "Re-number Rows?"},
        {IdRenumberSequencial, "Re-number Rows?"},
        {IdDefaultFile, "Default File?"},
    };
    for (const auto& [command, caption] : questions) {
        SCOPED_TRACE(caption);
        ExpectTaken([command = command, caption = caption](DialogScript& dialogs) {
            ExpectBox(dialogs, caption);
            ChooseRowCommand(command);
        });
    }
    for (int command : {IdCopyRow, IdMarkRow}) {
        SCOPED_TRACE(command);
        ExpectTaken([command](DialogScript&) { ChooseRowCommand(command); });
    }
    for (const Edit& edit : Edits()) {
        Fill({5});
        Type(5, edit);
        ChooseRowCommand(IdCopyRow);
        EXPECT_EQ(RowCopyBuffer[static_cast<size_t>(edit.col)].utf8_string(), edit.taken) << edit.name;
    }
}

TEST_F(OpenEditor, IsTakenBeforeAShadowIsMade) {
    Retarget(Kdrv716B, 0);
    Fill({5});
    Type(5, {"description", DESC, "Quay", "Quay"});
    DialogScript dialogs;
    dialogs.Expect(DialogKind::Other, "For Primary: 005 create Shadow: 1").Do([](wxDialog* dialog) {
        EXPECT_FALSE(IsOpen());
        TypeText("8");
        ClickButton(dialog, wxID_OK);
    });
    ChooseRowCommand(IdCreateShadow);
    EXPECT_EQ(Text(5, DESC), "Quay");
    EXPECT_EQ(Text(8, DESC), "Quay") << "the shadow has what was typed";
}

TEST_F(OpenEditor, MovesWithItsTextWhenItsRowMoves) {
    Fill({5, 6});
    Type(5, {"description", DESC, "quay", "QUAY"});
    DialogScript dialogs;
    ContextRow = 5;
    dialogs.ExpectMessage("Insert row above Selected row?", AnyText(), wxID_OK);
    ChooseRowCommand(IdInsertRow);
    EXPECT_EQ(Text(6, DESC), "QUAY");
    EXPECT_EQ(Text(5, DESC), "");
    EXPECT_FALSE(IsOpen());
}

TEST_F(OpenEditor, IsTakenByAClickElsewhereOnThePage) {
    for (const Edit& edit : Edits()) {
        SCOPED_TRACE(edit.name);
        for (const auto& spot : {std::function<wxPoint()>([] { return CellSpot(*Grid(), 9, DESC); }),
                                 std::function<wxPoint()>([] { return RowLabelSpot(*Grid(), 9); }),
                                 std::function<wxPoint()>([] { return ColumnLabelSpot(*Grid(), DESC); })}) {
            Fill({5});
            Type(5, edit);
            ClickAt(spot());
            EXPECT_FALSE(IsOpen());
            EXPECT_EQ(Text(5, edit.col), edit.taken);
            Grid()->ClearSelection();
            PumpFor(300); // the next click must not make a double click
        }
    }
}
