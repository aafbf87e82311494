// The page set-up as a user works with it.
#include "tests/files/PrintDialogs.h"
#include "tests/files/PrintTest.h"
#include "tests/support/Keys.h"

#include <wx/combobox.h>
#include <wx/print.h>

using namespace printtest;

namespace {

class PageSetup : public PrintTest {
protected:
    void SetUp() override {
        PrintTest::SetUp();
        CurrentGrid()->SetFocus();
        testbench::ShowAndFocus(*MainFrame);
    }
};

} // namespace

TEST_F(PageSetup, TakesOrientationPaperAndMargins) {
    SetUpPage(wxID_OK, [](Robot& robot, wxGenericPageSetupDialog* dialog) {
        ClickLandscape(robot, dialog);
        TypeMargin(robot, dialog->m_marginLeftText, "20");
        TypeMargin(robot, dialog->m_marginTopText, "21");
        TypeMargin(robot, dialog->m_marginRightText, "22");
        TypeMargin(robot, dialog->m_marginBottomText, "23");
        robot.Click(robot.Ask([=] { return SpotIn(*dialog->m_paperTypeChoice, wxPoint(20, 10)); }));
        robot.Press("Up", 2);
        EXPECT_TRUE(robot.WaitFor([=] { return dialog->m_paperTypeChoice->GetSelection() == 0; }));
    });
    EXPECT_EQ(PrintData->GetOrientation(), wxLANDSCAPE);
    EXPECT_EQ(PrintData->GetPaperId(), wxPAPER_LETTER);
    EXPECT_EQ(PageSetupData->GetPrintData().GetOrientation(), wxLANDSCAPE);
    EXPECT_EQ(PageSetupData->GetPaperSize(), wxSize(215, 279));
    EXPECT_EQ(PageSetupData->GetMarginTopLeft(), wxPoint(20, 21));
    EXPECT_EQ(PageSetupData->GetMarginBottomRight(), wxPoint(22, 23));
    ZelkPrintout printout(MainFrame, CurrentGrid(), "");
    printout.CalculateRowsPerPage();
    EXPECT_EQ(printout.RowsPerPage(), 18) << "237 x 165 mm: 431 pixels";
}

TEST_F(PageSetup, BeginsWithA4Chosen) {
    SetUpPage(wxID_OK, [](Robot& robot, wxGenericPageSetupDialog* dialog) {
        EXPECT_EQ(robot.Ask([=] { return dialog->m_paperTypeChoice->GetStringSelection().utf8_string(); }),
                  "A4 sheet, 210 x 297 mm");
    });
    EXPECT_EQ(PageSetupData->GetPaperSize(), wxSize(210, 297));
}

TEST_F(PageSetup, ShowsWhatWasSet) {
    PageSetupData->GetPrintData().SetOrientation(wxLANDSCAPE);
    PageSetupData->SetMarginTopLeft(wxPoint(1, 2));
    PageSetupData->SetMarginBottomRight(wxPoint(3, 4));
    SetUpPage(wxID_CANCEL, [](Robot& robot, wxGenericPageSetupDialog* dialog) {
        const std::vector<std::string> shown = robot.Ask([=] {
            std::vector<std::string> texts{std::to_string(dialog->m_orientationRadioBox->GetSelection())};
            for (wxTextCtrl* field : {dialog->m_marginLeftText, dialog->m_marginTopText,
                                      dialog->m_marginRightText, dialog->m_marginBottomText})
                texts.push_back(field->GetValue().utf8_string());
            return texts;
        });
        EXPECT_EQ(shown, (std::vector<std::string>{"1", "1", "2", "3", "4"}));
    });
}

TEST_F(PageSetup, IsCopiedIntoThePrintDataAlsoWhenItIsCancelled) {
    PageSetupData->GetPrintData().SetOrientation(wxLANDSCAPE);
    ASSERT_EQ(PrintData->GetOrientation(), wxPORTRAIT);
    SetUpPage(wxID_CANCEL, [](Robot& robot, wxGenericPageSetupDialog* dialog) {
        TypeMargin(robot, dialog->m_marginLeftText, "40");
    });
    EXPECT_EQ(PrintData->GetOrientation(), wxLANDSCAPE);
    EXPECT_EQ(PageSetupData->GetPrintData().GetOrientation(), wxLANDSCAPE);
    EXPECT_EQ(PageSetupData->GetMarginTopLeft(), wxPoint(15, 15)) << "what was typed is gone";
    PrintData->SetOrientation(wxPORTRAIT);
    SetUpPage(wxID_OK);
    EXPECT_EQ(PrintData->GetOrientation(), wxLANDSCAPE);
}
