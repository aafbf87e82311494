// Complete transfers between the window and simulated digital radios.
#include "tests/transfer/DigitalRadioTest.h"

#include "robot/Hands.h"
#include "tests/transfer/CancelSpot.h"

#include <wx/statusbr.h>

#include <chrono>
#include <string>
#include <thread>
#include <vector>

using namespace testbench;
using namespace transfertest;

namespace {

class DigitalRadio : public DigitalRadioTest {};

} // namespace

// ---- Writing and reading ----

TEST_F(DigitalRadio, OfProtocol0GetsAndGivesItsChannels) {
    UsePage(Kdrv716);
    OpModes[0] = AllModes;
    SendAndReadBack("KDRV-716", {}, '1');
}

TEST_F(DigitalRadio, WithALongListGetsAndGivesItsChannelsOverProtocol0) {
    SendAndReadBack("KDRV-716B", {"--protocol", "0"}, '1');
}

TEST_F(DigitalRadio, WithALongListGetsAndGivesItsChannelsOverProtocol1) {
    SendAndReadBack("KDRV-716B", {"--protocol", "1"}, '1');
}

TEST_F(DigitalRadio, WithALongListGetsAndGivesItsChannelsOverProtocol2) {
    SendAndReadBack("KDRV-716B", {"--protocol", "2"}, '2');
}

TEST_F(DigitalRadio, OfOldFirmwareGetsAndGivesItsChannelsOverProtocol2) {
    SendAndReadBack("KDRV-716B", {"--protocol", "2", "--firmware", "010203"}, '1');
}

TEST_F(DigitalRadio, OfASmallModelSpeaksProtocol1WithoutASpeedChange) {
    UsePage(Kdrv716);
    OpModes[0] = AllModes;
    SendAndReadBack("KDRV-716", {"--protocol", "1"}, '1');
}

TEST_F(DigitalRadio, OfTheModuleGetsAndGivesItsChannels) {
    Retarget(Kdrv4xxx, ModuleSlot);
    CurrentParameters().Band = RadioCatalogue::K7Module;
    for (int row = 1; row <= 500; ++row)
        ClearRowData(row, false);
    const std::pair<int, const char*> channels[] = {{1, "31.00000"}, {2, "121.50000"}, {500, "900.00000"}};
    for (const auto& [row, frequency] : channels) {
        FillRow(row, frequency);
        SetCell(row, PRIM, Cell(row, MNUM));
    }
    Select({1, 2, 500});
    RadioUnderTest radio("KDRV-4xxx:K7");
    const DialogScript noBox;
    m_context.ReplyTimeout = 3000;
    EXPECT_EQ(TransferData(m_context, CurrentGrid(), WriteChannelsMode, radio.PortName(), "Test"),
              TransferComplete);
    ExpectAllOver(radio);
    for (const int row : {1, 2, 500})
        ClearRowData(row, false);
    TRecordContext reading;
    EXPECT_EQ(TransferData(reading, CurrentGrid(), ReadChannelsMode, radio.PortName(), "Test"),
              TransferComplete);
    ExpectAllOver(radio);
    EXPECT_EQ(FilledRows().size(), 3u);
    for (const auto& [row, frequency] : channels) {
        // Nine characters come back, so there are six decimals below 100 MHz.
        EXPECT_EQ(CellText(row, RFRQ), row == 1 ? "31.000000" : frequency);
        EXPECT_EQ(CellText(row, MNUM), std::to_string(row));
        EXPECT_EQ(CellText(row, DESC), "HILL");
        EXPECT_EQ(CellText(row, MODE), "W");
        EXPECT_EQ(CellText(row, ZONE), "") << "the module has no zones";
        EXPECT_EQ(CellText(row, TFLG), "C0");
    }
    ExpectContent(radio);
    EXPECT_EQ(Addresses(radio), (std::vector<int>{1, 2, 500}));
}

TEST_F(DigitalRadio, GetsTheDefaultRowWhenItIsSelected) {
    SetCell(0, DESC, "START");
    Select({0});
    RadioUnderTest radio("KDRV-716B");
    Send(radio, Complete);
    SetCell(0, DESC, "");
    Read(radio, Complete);
    EXPECT_EQ(CellText(0, DESC), "START");
    EXPECT_EQ(FilledRows().size(), 0u);
    ExpectContent(radio);
    EXPECT_EQ(Addresses(radio), (std::vector<int>{0}));
}

TEST_F(DigitalRadio, GetsTheSelectedRowsOnly) {
    for (int row = 1; row <= 5; ++row)
        FillP25Row(row);
    Select({2, 4});
    RadioUnderTest radio("KDRV-716B");
    Send(radio, Complete);
    ExpectContent(radio);
    EXPECT_EQ(Addresses(radio), (std::vector<int>{2, 4}));
    EXPECT_EQ(CountInLog(radio, "< T143"), 2u);
    EXPECT_EQ(CountInLog(radio, EndRecordLine), 1u);
}

TEST_F(DigitalRadio, ThatIsEmptyLeavesAnEmptyPage) {
    FillP25Row(7);
    RadioUnderTest radio("KDRV-716B");
    Read(radio, Complete);
    EXPECT_EQ(FilledRows().size(), 0u);
    ExpectContent(radio);
}

// ---- Stamps, purges, erasures ----

TEST_F(DigitalRadio, ThatWasReadLastKeepsWhatIsNotSent) {
    RadioUnderTest radio("KDRV-716B");
    Share(radio);
    EXPECT_NE(RadioStamp, RadiosStamp);
    const size_t before = CountInLog(radio, "< T143");
    FillP25Row(4);
    Select({4});
    Send(radio, Complete);
    EXPECT_EQ(CountInLog(radio, PurgeMessage), 0u);
    EXPECT_EQ(CountInLog(radio, "< T143"), before + 1);
    ExpectContent(radio);
    EXPECT_EQ(Addresses(radio), (std::vector<int>{1, 2, 3, 4}));
}

TEST_F(DigitalRadio, OfAnotherStampIsPurgedAndGetsAllThatThePageHas) {
    RadioUnderTest first("KDRV-716B");
    Share(first);
    RadioUnderTest other("KDRV-716B", {"--stamp", "19990101000000"}, first.Records().at(3) + "\n");
    FillP25Row(4);
    FillP25Row(5); // neither selected nor ever sent
    Select({4});
    SendAsked(other, Complete);
    EXPECT_EQ(CountInLog(other, PurgeMessage), 1u);
    ExpectContent(other);
    EXPECT_EQ(Addresses(other), (std::vector<int>{1, 2, 3, 4}));
    EXPECT_EQ(CountInLog(other, "< T143"), 4u);
}

TEST_F(DigitalRadio, IsPurgedForAShadowAndGetsItsFamilyBack) {
    RadioUnderTest radio("KDRV-716B");
    Share(radio);
    SetCell(2, MFLG, "10");
    SetCell(2, SHD0, "020");
    FillP25Row(20, "A0", "01", "002");
    Select({20});
    Send(radio, Complete);
    EXPECT_EQ(CountInLog(radio, PurgeMessage), 1u);
    Read(radio, Complete);
    EXPECT_EQ(FilledRows().size(), 4u);
    EXPECT_EQ(CellText(2, SHAD), "P-1");
    EXPECT_EQ(CellText(2, SHD0), "20");
    EXPECT_EQ(CellText(20, SHAD), "S-002");
    ExpectContent(radio);
}

TEST_F(DigitalRadio, ErasesASelectedRow) {
    for (const char* firmware : {"010203", "020103"}) {
        SCOPED_TRACE(firmware);
        RadioUnderTest radio("KDRV-716B", {"--firmware", firmware});
        Share(radio);
        SetCell(2, TFLG, "C2");
        Select({2});
        Send(radio, Complete);
        EXPECT_EQ(CountInLog(radio, "< T204000210E9"), 1u);
        ExpectContent(radio);
        EXPECT_EQ(Addresses(radio), (std::vector<int>{1, 3}));
        RadioStamp = RadiosStamp;
    }
}

TEST_F(DigitalRadio, DoesNotEraseARowThatIsNotSelected) {
    RadioUnderTest radio("KDRV-716B");
    Share(radio);
    SetCell(2, TFLG, "C2");
    FillP25Row(4);
    Select({4});
    Send(radio, Complete);
    EXPECT_EQ(CountInLog(radio, "< T204000210"), 0u);
    ExpectContent(radio);
    EXPECT_EQ(Addresses(radio), (std::vector<int>{1, 2, 3, 4}));
}

TEST_F(DigitalRadio, HearsNothingAfterAPurgeOfARowToBeErasedThatIsNotSelected) {
    RadioUnderTest radio("KDRV-716B");
    Share(radio);
    SetCell(2, TFLG, "C2");
    FillP25Row(9);
    SetCell(9, MFLG, "10");
    SetCell(9, SHD0, "020");
    FillP25Row(20, "A0", "01", "009");
    Select({20});
    Send(radio, Complete);
    EXPECT_EQ(CountInLog(radio, PurgeMessage), 1u);
    EXPECT_EQ(CountInLog(radio, "< T204000210"), 0u);
    ExpectContent(radio);
    EXPECT_EQ(Addresses(radio), (std::vector<int>{1, 3, 9, 20}));
}

// ---- Questions and refusals ----

TEST_F(DigitalRadio, WithoutTheModesGetsTheMemoriesAfterYes) {
    OpModes[0] = NarrowMode | DigitalMode; // the value before any transfer
    FillP25Row(1);
    SetCell(1, MODE, "w");
    Select({1});
    RadioUnderTest radio("KDRV-716B", {"--modes", "20"});
    Send(radio, Complete, "    Analog Wideband\n");
    EXPECT_EQ(OpModes[0], 0x20u);
    FillP25Row(2);
    SetCell(2, MODE, "D");
    Select({1, 2});
    Send(radio, Complete, "    Analog Wideband\n    P25 Conventional\n");
    ExpectContent(radio);
    EXPECT_EQ(Addresses(radio), (std::vector<int>{1, 2}));
}

TEST_F(DigitalRadio, WithoutTheModesGetsNothingAfterNo) {
    OpModes[0] = 0;
    const char* const modes[] = {"w", "n", "D"};
    for (const int row : {1, 2, 3}) {
        FillP25Row(row);
        SetCell(row, MODE, modes[row - 1]);
    }
    Select({1, 2, 3});
    RadioUnderTest radio("KDRV-716B", {"--modes", "00"});
    Send(radio, Complete, "    Analog Wideband\n    Analog Narrowband\n    P25 Conventional\n", wxID_NO);
    EXPECT_EQ(CountInLog(radio, EndRecordLine), 1u);
    EXPECT_EQ(CountInLog(radio, "< T143"), 0u);
    ExpectContent(radio);
    EXPECT_TRUE(Addresses(radio).empty());
}

TEST_F(DigitalRadio, OfOldFirmwareIsSparedWhatItCannotHold) {
    FillP25Row(1);
    FillP25Row(2);
    SetCell(2, ZONE, "16");
    Select({1, 2});
    const std::vector<std::string> radios[] = {
        {"--protocol", "0"}, {"--protocol", "1"}, {"--protocol", "2", "--firmware", "010203"}};
    for (const auto& options : radios) {
        SCOPED_TRACE(options[1]);
        RadioUnderTest radio("KDRV-716B", options);
        Send(radio, {"Invalid Transmit Data", UpdateText});
        EXPECT_EQ(CountInLog(radio, "< T143"), 0u);
        EXPECT_EQ(CountInLog(radio, PurgeMessage), 0u);
        EXPECT_EQ(CountInLog(radio, EndRecordLine), 0u);
        ExpectContent(radio);
        EXPECT_TRUE(Addresses(radio).empty());
    }
    RadioUnderTest radio("KDRV-716B");
    Send(radio, Complete);
    EXPECT_EQ(Addresses(radio), (std::vector<int>{1, 2}));
}

TEST_F(DigitalRadio, OfOldFirmwareLeavesOutRowsThatAreToldAsNotSent) {
    for (const int row : {1, 230, 231, 232, 233, 400, 502})
        FillP25Row(row, "A0", "00", wxString::Format("%03d", row));
    CurrentGrid()->SelectAll();
    RadioUnderTest radio("KDRV-716B", {"--firmware", "010203"});
    Send(radio, Complete);
    EXPECT_EQ(Text(MainFrame->m_statusBar->GetStatusText(0)), "3 of 7 selected rows sent");
    EXPECT_EQ(Text(MainFrame->m_statusBar->GetToolTipText()),
              "4 selected rows were not sent: 231 to 233, 400");
}

// ---- Cancel and silence ----

TEST_F(DigitalRadio, KeepsTheRowsBeforeAClickOnCancel) {
    UseRealTime();
    for (const int row : {1, 2, 3})
        FillP25Row(row);
    Select({1, 2, 3});
    RadioUnderTest radio("KDRV-716B", {"--fault", "no-ack@2"});
    const CancelSpot cancel;
    std::thread user([&] {
        for (int tries = 0; tries < 500 && CountInLog(radio, "< T143") < 2; ++tries)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        Hands().Click(cancel.Await());
    });
    Send(radio, {"Cancelled by User"});
    user.join();
    EXPECT_EQ(CountInLog(radio, EndRecordLine), 1u);
    ExpectContent(radio);
    EXPECT_EQ(Addresses(radio), (std::vector<int>{1, 2}));
}

TEST_F(DigitalRadio, LeavesTheRowsBeforeAClickOnCancelOnThePage) {
    UseRealTime();
    RadioUnderTest radio("KDRV-716B", {"--fault", "silence@3/3"});
    Share(radio); // the radio's first two transfers
    const CancelSpot cancel;
    std::thread user([&] {
        for (int tries = 0; tries < 500 && CountInLog(radio, "! silence") == 0; ++tries)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        Hands().Click(cancel.Await());
    });
    Read(radio, {"Cancelled by User"});
    user.join();
    EXPECT_EQ(FilledRows().size(), 2u);
    EXPECT_TRUE(RowHasData(1) && RowHasData(2));
    ExpectContent(radio);
}

TEST_F(DigitalRadio, ThatIsSilentIsGivenUpAfterHalfAMinute) {
    for (const int row : {1, 2, 300})
        FillP25Row(row);
    RadioUnderTest radio("KDRV-716B", {"--fault", "deaf@1"});
    const TransferClock::Moment start = Now();
    Read(radio, {"Timeout", TimeoutText});
    const auto took = Now() - start;
    EXPECT_GE(took, std::chrono::seconds(30));
    EXPECT_LT(took, std::chrono::seconds(31));
    EXPECT_EQ(FilledRows().size(), 0u);
    ExpectContent(radio);
}

TEST_F(DigitalRadio, ServesTheNextTransferAfterAFailedOne) {
    for (const int row : {1, 2})
        FillP25Row(row);
    Select({1, 2});
    RadioUnderTest radio("KDRV-716B", {"--fault", "nak-always@2/1"});
    Send(radio, {"Communication Error", "Radio rejected channel 2"});
    Send(radio, Complete);
    ExpectContent(radio);
    EXPECT_EQ(Addresses(radio), (std::vector<int>{1, 2}));
}
