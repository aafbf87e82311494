// Adding, deleting and changing pages.
#include "commands/CommandIds.h"
#include "frame/SelectionDialogs.h"
#include "tests/frame/FrameTools.h"
#include "tests/support/Keys.h"
#include "tests/support/RunWithRobot.h"
#include "tests/support/ZelkWindowTest.h"

#include <wx/notebook.h>
#include <wx/panel.h>
#include <wx/statusbr.h>

using namespace testbench;

namespace {

class Pages : public ZelkWindowTest {
protected:
    void SetUp() override {
        ZelkWindowTest::SetUp();
        ShowAndFocus(*MainFrame);
    }

    static wxString Title() { return MainFrame->GetTitle(); }

    static std::vector<std::string> Tabs() {
        std::vector<std::string> texts;
        for (size_t page = 0; page < MainFrame->m_notebook->GetPageCount(); ++page)
            texts.push_back(MainFrame->m_notebook->GetPageText(page).utf8_string());
        return texts;
    }

    static std::vector<std::string> StatusFields() {
        std::vector<std::string> texts;
        for (int field = 1; field <= 3; ++field)
            texts.push_back(MainFrame->m_statusBar->GetStatusText(field).utf8_string());
        return texts;
    }

    static void SelectPage(size_t page) {
        MainFrame->m_notebook->SetSelection(page);
        PumpUntilIdle();
    }

    using Texts = std::vector<std::string>;
};

} // namespace

TEST_F(Pages, AreAddedForTheChosenRadio) {
    AddPage(Kdrv716);
    EXPECT_EQ(PageCount, 2);
    EXPECT_EQ(CurrentPage, 1);
    EXPECT_EQ(MainFrame->m_notebook->GetSelection(), 1);
    EXPECT_EQ(Title(), "Orv Zelk: Page 2 of 2.");
    EXPECT_EQ(Tabs(), (Texts{"KRV-47", "KDRV-716"}));
    EXPECT_EQ(StatusFields(), (Texts{"KDRV-716", "FM 136-174", "232 Rows"}));
    EXPECT_EQ(CurrentGrid()->GetNumberRows(), 233);
    EXPECT_EQ(FilledRows(), (std::vector<int>{1, 231, 232}));
    EXPECT_EQ(GD1, 231);
    EXPECT_EQ(GD2, 232);
}

TEST_F(Pages, AreAddedForTheChosenBand) {
    AddPage(Kdrv4xxx, ModuleSlot);
    EXPECT_EQ(StatusFields(), (Texts{"KDRV-4xxx", "K6 3-BAND", "500 Rows"}));
    EXPECT_EQ(PageStrings[1].TypeName, "MDLX");
    AddPage(Kdrv4xxx, 1);
    EXPECT_EQ(StatusFields(), (Texts{"KDRV-4xxx", "AM 118-138", "200 Rows"}));
    EXPECT_EQ(PageStrings[2].TypeName, "ANAM");
}

TEST_F(Pages, AreSixAtMost) {
    for (int radio : {Krv21, Orv12, Kdrv716, Kdar2000, Krv305})
        AddPage(radio);
    ASSERT_EQ(PageCount, 6);
    EXPECT_EQ(Title(), "Orv Zelk: Page 6 of 6.");
    DialogScript dialogs;
    dialogs.ExpectMessage("MAX Page Reached", "Cannot add further pages to notebook").Style(PlainBox);
    RunCommand(IdPageAdd);
    EXPECT_EQ(dialogs.Shown().size(), 1u) << "the message alone, no dialog after it";
    EXPECT_EQ(PageCount, 6);
    EXPECT_EQ(Tabs(), (Texts{"KRV-47", "KRV-21", "ORV-12", "KDRV-716", "KDAR-2000", "KRV-305"}));
}

TEST_F(Pages, NeedNoWiderWindowWhenTheyAreSix) {
    const wxSize room(400, 400);
    ShowAndFocus(*MainFrame);
    const auto tabs = [] { return MainFrame->m_notebook->GetSize(); };
    const wxSize usual = MainFrame->GetSize(), usualTabs = tabs();
    MainFrame->SetSize(room);
    PumpUntilIdle();
    const wxSize smallest = MainFrame->GetSize(), smallestTabs = tabs();
    MainFrame->SetSize(usual);
    while (PageCount < PageLimit)
        AddPage(Kdrv716B);
    PumpUntilIdle();
    EXPECT_EQ(MainFrame->GetSize(), usual);
    EXPECT_EQ(tabs(), usualTabs);
    MainFrame->SetSize(room);
    PumpUntilIdle();
    EXPECT_EQ(MainFrame->GetSize(), smallest);
    EXPECT_EQ(tabs(), smallestTabs);
}

TEST_F(Pages, AreNotAddedAfterCancel) {
    DialogScript dialogs;
    dialogs.Expect(DialogKind::Other, "<-- Select Target Radio -->").Answer(wxID_CANCEL);
    RunCommand(IdPageAdd);
    EXPECT_EQ(PageCount, 1);
    EXPECT_EQ(PageParameters[1].Rows, 0);

    ExpectRadio(dialogs, Krv610);
    dialogs.Expect(DialogKind::Other, "<-- Select Frequency Band -->").Answer(wxID_CANCEL);
    RunCommand(IdPageAdd);
    EXPECT_EQ(PageCount, 1);
    EXPECT_EQ(PageParameters[1].Rows, 0);
    EXPECT_EQ(MainFrame->m_notebook->GetPageCount(), 1u);
    EXPECT_EQ(Title(), "Orv Zelk: Page 1 of 1.");
}

TEST_F(Pages, AreNotAddedAfterAnInvalidChoice) {
    DialogScript dialogs;
    dialogs.Expect(DialogKind::Other, "<-- Select Target Radio -->").Answer(wxID_OK);
    dialogs.ExpectMessage("Error", "Invalid Radio selection");
    RunCommand(IdPageAdd);
    EXPECT_EQ(PageCount, 1);
}

TEST_F(Pages, AddedClearTheFlagsOfThePageBefore) {
    CurrentParameters().Flags = 0x1A;
    AddPage(Krv21);
    EXPECT_EQ(PageParameters[0].Flags, 0);
}

TEST_F(Pages, AddedWhileACellIsEditedKeepTheTypedText) {
    CurrentGrid()->GoToCell(3, DESC);
    CurrentGrid()->SetFocus();
    TypeText("HALF");
    AddPage(Krv21);
    EXPECT_EQ(PageGrid[0]->GetCellValue(3, DESC), "HALF");
    EXPECT_EQ(PageGrid[0]->GetCellValue(3, MNUM), "003");
    EXPECT_EQ(PageGrid[1]->GetCellValue(3, MNUM), "");
}

TEST_F(Pages, OnlyOneCannotBeDeleted) {
    DialogScript dialogs;
    dialogs.ExpectMessage("Delete Page Error", "There must always be at least one Page").Style(PlainBox);
    RunCommand(IdPageDelete);
    EXPECT_EQ(dialogs.Shown().size(), 1u) << "nothing is asked";
    EXPECT_EQ(PageCount, 1);
}

TEST_F(Pages, AreKeptWhenTheQuestionIsCancelled) {
    AddPage(Krv21);
    DialogScript dialogs;
    dialogs.ExpectMessage("Delete Page?", "This will delete ALL data on this page! Continue?", wxID_CANCEL)
        .Style(wxOK | wxCANCEL);
    RunCommand(IdPageDelete);
    EXPECT_EQ(PageCount, 2);
    EXPECT_EQ(Tabs(), (Texts{"KRV-47", "KRV-21"}));
}

TEST_F(Pages, BehindADeletedOneMoveDown) {
    AddPage(Kdrv716B);
    AddPage(Kdar2000);
    PageStrings[2].FileName = "third";
    PageStrings[2].FileDir = "/there/";
    PageParameters[2].Flags = 0x12;
    wxGrid* const first = PageGrid[0];
    wxGrid* const third = PageGrid[2];
    wxPanel* const thirdPanel = MainFrame->m_pagePanels[2];
    SelectPage(1);
    DeletePage();

    EXPECT_EQ(Tabs(), (Texts{"KRV-47", "KDAR-2000"}));
    EXPECT_EQ(PageGrid[0], first);
    EXPECT_EQ(PageGrid[1], third);
    EXPECT_EQ(PageGrid[2], nullptr);
    EXPECT_EQ(MainFrame->m_pagePanels[1], thirdPanel);
    EXPECT_EQ(MainFrame->m_pagePanels[2], nullptr);
    EXPECT_EQ(PageParameters[1].Radio, 8);
    EXPECT_EQ(PageParameters[1].BandIndex, 0);
    EXPECT_EQ(PageParameters[1].Band, 3);
    EXPECT_EQ(PageParameters[1].Rows, 100);
    EXPECT_EQ(PageParameters[1].Cols, 6);
    EXPECT_EQ(PageParameters[1].Type, 5);
    EXPECT_EQ(PageParameters[1].Flags, 0x12);
    EXPECT_EQ(PageStrings[1].FileName, "third");
    EXPECT_EQ(PageStrings[1].FileDir, "/there/");
    EXPECT_EQ(PageStrings[1].RadioName, "KDAR-2000");
    EXPECT_EQ(PageStrings[1].BandName, "AM 118-138");
    EXPECT_EQ(PageStrings[1].TypeName, "KDAR");
    const PageParameterRecord& freed = PageParameters[2];
    for (int value :
         {freed.Radio, freed.BandIndex, freed.Band, freed.Rows, freed.Cols, freed.Type, freed.Flags})
        EXPECT_EQ(value, 0);
    const PageStringRecord& texts = PageStrings[2];
    for (const wxString& text :
         {texts.FileName, texts.FileDir, texts.RadioName, texts.BandName, texts.TypeName})
        EXPECT_EQ(text, "");
}

TEST_F(Pages, TitleKeepsTheFormerCountAfterADeleteUntilThePageChanges) {
    AddPage(Krv21);
    AddPage(Orv12);
    SelectPage(1);
    DeletePage();
    EXPECT_EQ(PageCount, 2);
    EXPECT_EQ(Title(), wxString::Format("Orv Zelk: Page %d of 3.", CurrentPage + 1));
    SelectPage(CurrentPage == 0 ? 1 : 0);
    EXPECT_EQ(Title(), wxString::Format("Orv Zelk: Page %d of 2.", CurrentPage + 1));
}

TEST_F(Pages, CurrentOneAfterADeleteIsTheOneThatIsShown) {
    // Deletes each of three pages in turn.
    for (size_t deleted = 0; deleted < 3; ++deleted) {
        SCOPED_TRACE("page " + std::to_string(deleted));
        while (PageCount < 3)
            AddPage(PageCount == 1 ? Orv12 : Kdrv716);
        SelectPage(deleted);
        DeletePage();
        ASSERT_EQ(CurrentPage, MainFrame->m_notebook->GetSelection());
        const PageParameterRecord& page = CurrentParameters();
        EXPECT_EQ(CurrentGrid()->GetParent(), MainFrame->m_notebook->GetCurrentPage());
        EXPECT_EQ(StatusFields()[0], PageStrings[CurrentPage].RadioName.utf8_string());
        EXPECT_EQ(StatusFields()[2], std::to_string(page.Rows) + " Rows");
        EXPECT_EQ(GD1, page.Rows % 10 == 2 ? page.Rows - 1 : -1);
        EXPECT_EQ(GD2, page.Rows % 10 == 2 ? page.Rows : -1);
    }
}

TEST_F(Pages, DeletedAtTheEndClearTheirOwnSlotOnly) {
    AddPage(Orv12);
    AddPage(Kdrv716);
    SelectPage(2);
    wxGrid* const second = PageGrid[1];
    DeletePage();
    EXPECT_EQ(Tabs(), (Texts{"KRV-47", "ORV-12"}));
    EXPECT_EQ(PageGrid[1], second);
    EXPECT_EQ(PageGrid[2], nullptr);
    EXPECT_EQ(PageParameters[1].Rows, 6);
    EXPECT_EQ(PageParameters[2].Rows, 0);
    EXPECT_EQ(PageStrings[2].RadioName, "");
    EXPECT_EQ(CurrentPage, 1);
}

TEST_F(Pages, MoveTheirZoneCountersAndOneMore) {
    AddPage(Krv21);
    AddPage(Orv12);
    const int total = static_cast<int>(ZoneSlots.size());
    for (int i = 0; i < total; ++i)
        ZoneSlots[i] = 1000 + i;
    SelectPage(0);
    DeletePage();
    for (int i = 0; i < total; ++i) {
        int expected = 1000 + i;
        if (i < 64)
            expected += 32;
        else if (i <= 96) // the freed page's 32 and the first of the next page
            expected = 0;
        EXPECT_EQ(ZoneSlots[i], expected) << "entry " << i;
    }
}

TEST_F(Pages, SixthDeletedClearsTheCountersUpToTheTablesEnd) {
    for (int radio : {Krv21, Orv12, Orv12, Kdar2000, Krv305})
        AddPage(radio);
    ZoneSlots.fill(7);
    DeletePage();
    const int total = static_cast<int>(ZoneSlots.size());
    for (int i = 0; i < total; ++i)
        EXPECT_EQ(ZoneSlots[i], i < 160 ? 7 : 0) << "entry " << i;
}

TEST_F(Pages, LeaveTheOperatingModesInTheirPlace) {
    AddPage(Krv21);
    AddPage(Orv12);
    OpModes = {0x40, 0x20, 0x10, 0x70, 0x60, 0x50};
    SelectPage(0);
    DeletePage();
    EXPECT_EQ(OpModes, (std::array<uint32_t, 6>{0x40, 0x20, 0x10, 0x70, 0x60, 0x50}));
}

TEST_F(Pages, DeletedWhileACellIsEditedGoWithoutHarm) {
    AddPage(Krv21);
    CurrentGrid()->GoToCell(3, DESC);
    CurrentGrid()->SetFocus();
    TypeText("HALF");
    ASSERT_TRUE(CurrentGrid()->IsCellEditControlShown());
    DeletePage();
    EXPECT_EQ(Tabs(), Texts{"KRV-47"});
    EXPECT_EQ(FilledRows(), std::vector<int>{}) << "the text belonged to the deleted page";
}

TEST_F(Pages, AreAddedBehindTheRemainingOnesAfterADelete) {
    AddPage(Krv21);
    AddPage(Orv12);
    SelectPage(0);
    DeletePage();
    AddPage(Kdrv716);
    EXPECT_EQ(Tabs(), (Texts{"KRV-21", "ORV-12", "KDRV-716"}));
    EXPECT_EQ(CurrentPage, 2);
    EXPECT_EQ(Title(), "Orv Zelk: Page 3 of 3.");
    EXPECT_EQ(FilledRows(), (std::vector<int>{1, 231, 232}));
}

TEST_F(Pages, ChangedBringStatusAndGuardRowsUpToDate) {
    AddPage(Kdar2000);
    ASSERT_EQ(GD1, -1);
    MainFrame->m_notebook->SetFocus();
    PressKey("Ctrl+Page_Up");
    EXPECT_EQ(CurrentPage, 0);
    EXPECT_EQ(StatusFields(), (Texts{"KRV-47", "FM 66-88", "122 Rows"}));
    EXPECT_EQ(Title(), "Orv Zelk: Page 1 of 2.");
    EXPECT_EQ(GD1, 121);
    EXPECT_EQ(GD2, 122);
    PressKey("Ctrl+Page_Down");
    EXPECT_EQ(CurrentPage, 1);
    EXPECT_EQ(StatusFields(), (Texts{"KDAR-2000", "AM 118-138", "100 Rows"}));
    EXPECT_EQ(Title(), "Orv Zelk: Page 2 of 2.");
    EXPECT_EQ(GD1, -1);
    EXPECT_EQ(GD2, -1);
}

TEST_F(Pages, ChangedKeepTheZoneListOfThePageThatWasGivenDefaultsLast) {
    AddPage(Kdrv716B);
    ASSERT_EQ(RadioCatalogue::ZoneList.size(), 32u);
    AddPage(Kdrv716);
    ASSERT_EQ(RadioCatalogue::ZoneList.size(), 16u);
    SelectPage(1);
    EXPECT_EQ(RadioCatalogue::ZoneList.size(), 16u);
}

TEST_F(Pages, ChangedByAClickOnTheTabWhileACellIsEditedKeepTheTextOnItsPage) {
    AddPage(Krv21);
    SelectPage(0);
    CurrentGrid()->GoToCell(3, DESC);
    CurrentGrid()->SetFocus();
    TypeText("HALF");
    ASSERT_TRUE(CurrentGrid()->IsCellEditControlShown());
    // Tabs are in a row above the pages; the second page's tab is somewhere in it.
    const wxPoint corner = PageGrid[0]->GetScreenPosition();
    for (int x = 20; x < 300 && CurrentPage == 0; x += 20)
        ClickAt(wxPoint(corner.x + x, corner.y - 20));
    ASSERT_EQ(CurrentPage, 1);
    EXPECT_EQ(PageGrid[0]->GetCellValue(3, DESC), "HALF");
    EXPECT_EQ(PageGrid[0]->GetCellValue(3, MNUM), "003");
    EXPECT_FALSE(RowHasData(3));
}

TEST_F(Pages, ChangedWithKeysWhileACellIsEditedKeepTheTextOnItsPage) {
    AddPage(Krv21);
    SelectPage(0);
    CurrentGrid()->GoToCell(3, DESC);
    CurrentGrid()->SetFocus();
    TypeText("HALF");
    SelectPage(1);
    EXPECT_EQ(PageGrid[0]->GetCellValue(3, DESC), "HALF");
    EXPECT_EQ(PageGrid[0]->GetCellValue(3, MNUM), "003");
    EXPECT_FALSE(RowHasData(3));
}
