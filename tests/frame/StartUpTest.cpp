// The window at start-up.
#include "robot/Pump.h"
#include "tests/frame/FrameTools.h"
#include "tests/support/Keys.h"
#include "tests/support/RunWithRobot.h"
#include "tests/support/ZelkWindowTest.h"
#include "transfer/wxAsyncSerial.h"

#include <wx/log.h>
#include <wx/notebook.h>
#include <wx/panel.h>
#include <wx/sizer.h>
#include <wx/statusbr.h>
#include <wx/toolbar.h>

using namespace testbench;

using StartUp = ZelkWindowTest;

TEST(PortName, IsNoneBeforeAPortIsChosen) {
    EXPECT_EQ(PortName, "none");
}

TEST_F(StartUp, TitleCountsOnePage) {
    EXPECT_EQ(MainFrame->GetTitle(), "Orv Zelk: Page 1 of 1.");
}

TEST_F(StartUp, StatusBarShowsTheFirstPagesTarget) {
    const wxString expected[] = {"Select function", "KRV-47", "FM 66-88", "122 Rows", ""};
    wxStatusBar* bar = MainFrame->m_statusBar;
    ASSERT_EQ(bar->GetFieldsCount(), 5);
    EXPECT_EQ(MainFrame->GetStatusBar(), bar);
    EXPECT_TRUE(bar->HasFlag(wxSTB_SIZEGRIP));
    for (int field = 0; field < 5; ++field)
        EXPECT_EQ(bar->GetStatusText(field), expected[field]) << "field " << field;
}

TEST_F(StartUp, FirstPageIsForTheKrv47) {
    ASSERT_EQ(PageCount, 1);
    EXPECT_EQ(CurrentPage, 0);
    ASSERT_EQ(MainFrame->m_notebook->GetPageCount(), 1u);
    EXPECT_EQ(MainFrame->m_notebook->GetPageText(0), "KRV-47");
    const PageParameterRecord& page = PageParameters[0];
    EXPECT_EQ(page.Radio, 1);
    EXPECT_EQ(page.BandIndex, 0);
    EXPECT_EQ(page.Band, 1);
    EXPECT_EQ(page.Rows, 122);
    EXPECT_EQ(page.Cols, 10);
    EXPECT_EQ(page.Type, 0);
    EXPECT_EQ(page.Flags, 0);
    EXPECT_EQ(PageStrings[0].RadioName, "KRV-47");
    EXPECT_EQ(PageStrings[0].BandName, "FM 66-88");
    EXPECT_EQ(PageStrings[0].TypeName, "ANFM");
    EXPECT_EQ(GD1, 121);
    EXPECT_EQ(GD2, 122);
    EXPECT_EQ(ContextRow, 0);
}

TEST_F(StartUp, OnlyTheDefaultRowIsFilled) {
    ASSERT_EQ(CurrentGrid()->GetNumberRows(), 123);
    ASSERT_EQ(CurrentGrid()->GetNumberCols(), 32);
    const std::vector<std::string> expected = {
        "", "0",   "",    "", "FM 66-88", "0",       "", "LOW    66", "W",   "66.0000", "",
        "", "OFF", "OFF", "", "",         "88.0000", "", "OFF",       "OFF", "",        "",
        "", "",    "",    "", "",         "",        "", "",          "",    "A0"};
    EXPECT_EQ(RowTexts(0), expected);
    EXPECT_EQ(FilledRows(), std::vector<int>{});
}

TEST_F(StartUp, ShownColumnsAreThoseOfAnAnalogFmRadio) {
    const std::vector<std::string> expected = {"Chan", "Scan", "Desc",   "Mode", "RxFreq",
                                               "RxTn", "RxCd", "TxFreq", "TxTn", "TxCd"};
    std::vector<std::string> shown;
    for (int col = 0; col < 32; ++col)
        if (CurrentGrid()->IsColShown(col))
            shown.push_back(CurrentGrid()->GetColLabelValue(col).utf8_string());
    EXPECT_EQ(shown, expected);
    EXPECT_EQ(CurrentGrid()->GetRowLabelValue(0), "000");
    EXPECT_EQ(CurrentGrid()->GetRowLabelValue(122), "122");
}

TEST_F(StartUp, WindowIs927By680) {
    EXPECT_EQ(MainFrame->GetSize(), wxSize(927, 680));
    EXPECT_TRUE(MainFrame->HasFlag(wxTAB_TRAVERSAL));
    EXPECT_EQ(MainFrame->GetWindowStyleFlag() & wxDEFAULT_FRAME_STYLE, wxDEFAULT_FRAME_STYLE);
}

TEST_F(StartUp, FirstPageHasTheKeyboard) {
    const auto isOnThePage = [] {
        const wxWindow* focus = wxWindow::FindFocus();
        return focus && (focus == CurrentGrid() || focus->GetParent() == CurrentGrid());
    };
    EXPECT_TRUE(testbench::PumpUntil(isOnThePage));
}

TEST_F(StartUp, WindowHasTheStyleOfScrollBars) {
    EXPECT_TRUE(MainFrame->HasFlag(wxHSCROLL));
    EXPECT_TRUE(MainFrame->HasFlag(wxVSCROLL));
}

TEST_F(StartUp, ToolBarStandsLeftOfTheNotebook) {
    auto* sizer = dynamic_cast<wxBoxSizer*>(MainFrame->GetSizer());
    ASSERT_NE(sizer, nullptr);
    EXPECT_EQ(sizer->GetOrientation(), wxHORIZONTAL);
    ASSERT_EQ(sizer->GetItemCount(), 2u);
    wxSizerItem* first = sizer->GetItem(size_t{0});
    wxSizerItem* second = sizer->GetItem(size_t{1});
    EXPECT_EQ(first->GetWindow(), MainFrame->m_toolBar);
    EXPECT_EQ(first->GetProportion(), 0);
    EXPECT_EQ(first->GetFlag(), wxEXPAND);
    EXPECT_EQ(first->GetBorder(), 5);
    EXPECT_EQ(second->GetWindow(), MainFrame->m_notebook);
    EXPECT_EQ(second->GetProportion(), 1);
    EXPECT_EQ(second->GetFlag(), wxEXPAND | wxALL);
    EXPECT_EQ(second->GetBorder(), 5);

    EXPECT_EQ(MainFrame->GetToolBar(), nullptr) << "the tool bar is a plain child";
    EXPECT_TRUE(MainFrame->m_toolBar->HasFlag(wxTB_RIGHT));
    const wxRect tools = MainFrame->m_toolBar->GetRect();
    const wxRect notebook = MainFrame->m_notebook->GetRect();
    EXPECT_LE(tools.GetRight(), notebook.GetLeft());
    EXPECT_GT(tools.height, 400) << "the tools are in a column";
    EXPECT_LT(tools.width, 100) << "the tools are in a column";
}

TEST_F(StartUp, LoggingIsOff) {
    EXPECT_FALSE(wxLog::IsEnabled());
}

TEST_F(StartUp, FillsTheChoiceListsAndForgetsTheCopiedRow) {
    MainFrame->Destroy();
    PumpUntilIdle();
    using namespace RadioCatalogue;
    for (wxArrayString* list : {&ToneList, &CtcssList, &CodeList, &ZoneList})
        list->clear();
    RowCopyBuffer.push_back("left over");
    MainFrame = new ZelkFrame(nullptr);
    EXPECT_EQ(ToneList.size(), 65u);
    EXPECT_EQ(CtcssList.size(), 42u);
    EXPECT_EQ(CodeList.size(), 84u);
    EXPECT_EQ(ZoneList.size(), 32u);
    EXPECT_TRUE(RowCopyBuffer.empty());
}

TEST_F(StartUp, TheWindowsOwnPortIsMadeButNotHeldOpen) {
    ASSERT_NE(MainFrame->m_serialPort, nullptr);
    EXPECT_FALSE(MainFrame->m_serialPort->isOpen());
}

TEST_F(StartUp, KeepsThePanelOfThePageBuiltLast) {
    EXPECT_EQ(MainFrame->m_lastPanel, MainFrame->m_notebook->GetPage(0));
    EXPECT_EQ(MainFrame->m_pagePanels[0], MainFrame->m_notebook->GetPage(0));
    EXPECT_EQ(CurrentGrid()->GetParent(), MainFrame->m_notebook->GetPage(0));
    EXPECT_EQ(MainFrame->m_pagePanels[1], nullptr);
}

namespace {

/// Closes a window with an unsaved row.
class Closing : public ZelkWindowTest {
protected:
    void SetUp() override {
        ZelkWindowTest::SetUp();
        ShowAndFocus(*MainFrame);
        TypeIntoCell(*CurrentGrid(), 1, DESC, "UNSAVED");
        m_window = MainFrame;
    }

    void TearDown() override {
        EXPECT_TRUE(IsGone(m_window)) << "the window is still open";
        MainFrame = new ZelkFrame(nullptr);
        ZelkWindowTest::TearDown();
    }

    wxWindowRef m_window;
};

} // namespace

TEST_F(Closing, OfTheWindowWithUnsavedRowsAsksNothing) {
    const DialogScript noDialog;
    // The window manager of a busy machine passes over the keys now and then. A person presses them again.
    for (int tries = 0; tries < 3 && m_window; ++tries) {
        PressKey("Alt+F4");
        IsGone(m_window);
    }
    EXPECT_TRUE(noDialog.Shown().empty());
}

TEST_F(Closing, ByQuitWithUnsavedRowsAsksNothing) {
    const DialogScript noDialog;
    RunCommand(6022);
    EXPECT_TRUE(noDialog.Shown().empty());
}

TEST_F(Closing, WhileACellIsEditedAsksNothing) {
    const DialogScript noDialog;
    CurrentGrid()->GoToCell(2, DESC);
    TypeText("HALF");
    ASSERT_TRUE(CurrentGrid()->IsCellEditControlShown());
    MainFrame->Close();
    EXPECT_TRUE(noDialog.Shown().empty());
}
