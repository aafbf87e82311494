// What the system's print dialog is told before it opens.
#include "commands/CommandIds.h"
#include "tests/files/PrintTest.h"
#include "tests/frame/FrameTools.h"

#include <wx/printdlg.h>

#include <functional>

using namespace testbench;

namespace {

class PrintDialog : public PrintTest {
protected:
    /// Chooses Print, runs the work on the dialog's data and cancels.
    static void Print(const std::function<void(wxPrintDialogData&)>& work) {
        DialogScript script;
        script.Expect(DialogKind::Print, AnyText()).Answer(wxID_CANCEL).Set([&](wxDialog* dialog) {
            auto* print = dynamic_cast<wxPrintDialogBase*>(dialog);
            ASSERT_NE(print, nullptr);
            work(print->GetPrintDialogData());
        });
        RunCommand(IdPrint);
    }

    static void ExpectPages(int last) {
        Print([last](const wxPrintDialogData& data) {
            EXPECT_EQ(data.GetMinPage(), 1);
            EXPECT_EQ(data.GetMaxPage(), last);
        });
    }
};

} // namespace

TEST_F(PrintDialog, OffersAllSheetsOfThePage) {
    ExpectPages(4);
    RetargetTo("O12");
    ExpectPages(1);
    SetLandscape();
    RetargetTo("NP25");
    ExpectPages(17);
}

TEST_F(PrintDialog, OffersTheOrientationOfThePageSetup) {
    const auto expect = [](wxPrintOrientation orientation) {
        Print([orientation](wxPrintDialogData& data) {
            EXPECT_EQ(data.GetPrintData().GetOrientation(), orientation);
        });
    };
    expect(wxPORTRAIT);
    SetLandscape();
    expect(wxLANDSCAPE);
}
