// Selected rows that a write didn't send, as the status bar reports them.
#include "transfer/UnsentRows.h"

#include "commands/CommandIds.h"
#include "tests/transfer/RadioPeer.h"
#include "tests/transfer/TransferTest.h"

#include <wx/statusbr.h>

#include <functional>

using namespace testbench;
using namespace transfertest;

namespace {

/// The module K6. Its page has 500 rows, of which a radio accepts 200.
class UnsentRows : public TransferTest {
protected:
    void SetUp() override {
        TransferTest::SetUp();
        Retarget(Kdrv4xxx, ModuleSlot);
        ASSERT_EQ(CurrentParameters().Rows, 500);
    }

    static std::string FirstField() { return Text(MainFrame->m_statusBar->GetStatusText(0)); }
    static std::string ToolTip() { return Text(MainFrame->m_statusBar->GetToolTipText()); }

    /// Sends the selected rows by the window's command.
    static void Send(const std::string& port, const char* status, const char* driverBox = nullptr) {
        PortName = port;
        DialogScript script;
        if (driverBox)
            ExpectDriverBox(script, driverBox);
        ExpectBox(script, "Write to Radio Status", status);
        wxCommandEvent event(wxEVT_MENU, IdUpload);
        MainFrame->OnCommand(event);
    }

    /// A radio that acknowledges a number of lines and handles the next one differently.
    static std::function<void(RadioPeer&)> Radio(int lines, const std::function<void(RadioPeer&)>& then) {
        return [lines, then](RadioPeer& peer) {
            peer.HearLine();
            for (int line = 0; line < lines; ++line) {
                peer.HearLine();
                peer.Say("\x05");
            }
            peer.HearLine();
            then(peer);
        };
    }
    static void Nothing(RadioPeer&) {}
};

} // namespace

TEST_F(UnsentRows, AreListedInRanges) {
    EXPECT_EQ(Text(RowRanges({})), "");
    EXPECT_EQ(Text(RowRanges({7})), "7");
    EXPECT_EQ(Text(RowRanges({7, 8})), "7, 8");
    EXPECT_EQ(Text(RowRanges({7, 8, 9})), "7 to 9");
    EXPECT_EQ(Text(RowRanges({1, 3, 4, 5, 6, 9, 10, 12, 13, 14})), "1, 3 to 6, 9, 10, 12 to 14");
}

TEST_F(UnsentRows, BehindThoseThatTheRadioHoldsAreTold) {
    for (const int row : {199, 200, 201, 202, 203, 500})
        FillRow(row, "138.0000");
    CurrentGrid()->SelectAll();
    RadioPeer peer(Radio(2, Nothing));
    Send(peer.PortName(), "Complete");
    EXPECT_EQ(FirstField(), "2 of 6 selected rows sent");
    EXPECT_EQ(ToolTip(), "4 selected rows were not sent: 201 to 203, 500");
}

TEST_F(UnsentRows, WithoutAGoodNumberAreTold) {
    for (const int row : {1, 2, 3})
        FillRow(row, "138.0000");
    SetCell(2, MNUM, "999");
    Select({1, 2, 3, 4});
    RadioPeer peer(Radio(2, Nothing));
    Send(peer.PortName(), "Complete");
    EXPECT_EQ(FirstField(), "2 of 3 selected rows sent");
    EXPECT_EQ(ToolTip(), "1 selected row was not sent: 2");
}

TEST_F(UnsentRows, OfATransferThatFailedAreTold) {
    for (const int row : {1, 2, 3, 4})
        FillRow(row, "138.0000");
    Select({1, 2, 3});
    RadioPeer peer(Radio(1, Nothing));
    Send(peer.PortName(), "Timeout",
         "Timeout Error\nVerify Radio is in PC Download mode\nand correct COM port is selected");
    EXPECT_EQ(FirstField(), "1 of 3 selected rows sent");
    EXPECT_EQ(ToolTip(), "2 selected rows were not sent: 2, 3");
}

TEST_F(UnsentRows, OfACancelledTransferAreTold) {
    for (const int row : {1, 2, 3})
        FillRow(row, "138.0000");
    Select({1, 2, 3});
    RadioPeer peer(Radio(1, [](RadioPeer&) { PressCancel(); }));
    Send(peer.PortName(), "Cancelled by User");
    EXPECT_EQ(FirstField(), "1 of 3 selected rows sent");
}

TEST_F(UnsentRows, AreAllOfThemWhereThePortCannotBeOpened) {
    for (const int row : {1, 2})
        FillRow(row, "138.0000");
    Select({1, 2});
    Send(NoSuchPort, "Port Error", "Invalid COM Port (or Port in use)");
    EXPECT_EQ(FirstField(), "0 of 2 selected rows sent");
    EXPECT_EQ(ToolTip(), "2 selected rows were not sent: 1, 2");
}

TEST_F(UnsentRows, AreNotToldWhereAllWereSent) {
    FillRow(1, "138.0000");
    FillRow(2, "138.0000");
    Select({1, 3}); // row 3 is blank, row 2 isn't selected
    RadioPeer peer(Radio(1, Nothing));
    Send(peer.PortName(), "Complete");
    EXPECT_EQ(FirstField(), "Select function");
    EXPECT_EQ(ToolTip(), "");
}
