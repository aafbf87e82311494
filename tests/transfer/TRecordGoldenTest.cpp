// Complete conversations with digital radios, compared with the transcripts line by line.
#include "tests/transfer/TRecordDriverTest.h"

#include <wx/regex.h>

using namespace testbench;
using namespace transfertest;

namespace {

constexpr const char* OldFirmwareText = "Selected operation requires updated software in Radio";

class TRecordGolden : public TRecordDriverTest {};

/// The three generations of the protocol, by number.
class TRecordGeneration : public TRecordGolden, public testing::WithParamInterface<int> {
protected:
    static std::string Name(const std::string& mode) {
        return "protocol" + std::to_string(GetParam()) + "_" + mode;
    }
    static bool IsLatest() { return GetParam() == 2; }
};

INSTANTIATE_TEST_SUITE_P(Protocol, TRecordGeneration, testing::Values(0, 1, 2));

/// A date and time as in files.
constexpr const char* Date = R"(\d{4}-\d\d-\d\d \d\d:\d\d:\d\d)";

void ExpectMatch(const std::string& text, const std::string& expression) {
    EXPECT_TRUE(wxRegEx("^(?:" + expression + ")$", wxRE_ADVANCED).Matches(text))
        << text << "isn't " << expression;
}

} // namespace

TEST_P(TRecordGeneration, IsWrittenTo) {
    for (const int row : {1, 2, 3})
        FillP25Row(row);
    Select({1, 3});
    EXPECT_EQ(TransferBy(Name("write"), WriteChannelsMode), TransferComplete);
    EXPECT_EQ(m_context.Index, 503);
    EXPECT_EQ(CellText(1, TFLG), "E1") << "the radio holds it";
    EXPECT_EQ(CellText(2, TFLG), "A0");
    EXPECT_EQ(CellText(3, TFLG), "E1");
    EXPECT_EQ(m_context.RowsSent, (std::set<int>{1, 3}));
    EXPECT_EQ(m_context.RecordVersion, IsLatest() ? 2u : 1u);
    EXPECT_EQ(Text(RadioStamp), KnownStamp) << "a write keeps the stamp that the radio reported";
}

TEST_P(TRecordGeneration, IsReadFrom) {
    EXPECT_EQ(TransferBy(Name("read"), ReadChannelsMode), TransferComplete);
    EXPECT_EQ(FilledRows().size(), 2u);
    for (const int row : {1, 4}) {
        EXPECT_EQ(CellText(row, MNUM), IsLatest() ? std::to_string(row) : "00" + std::to_string(row));
        EXPECT_EQ(CellText(row, DESC), "HILL");
        EXPECT_EQ(CellText(row, TFLG), "C8") << "in the radio, and with a zone";
    }
    EXPECT_NE(Text(RadioStamp), KnownStamp);
    EXPECT_EQ(RadioStamp.length(), 14u);
    EXPECT_EQ(Text(RadioVersion), GetParam() == 0 ? "010203" : (GetParam() == 1 ? "010300" : "020100"));
    EXPECT_EQ(OpModes[0], 0x70u);
}

TEST_P(TRecordGeneration, GivesItsConfigurationOnlyIfItIsTheLatest) {
    m_context.ConfigLines.push_back("a former line");
    DialogScript script;
    if (!IsLatest())
        ExpectDriverBox(script, OldFirmwareText);
    EXPECT_EQ(TransferBy(Name("config_read"), ReadConfigMode),
              IsLatest() ? TransferComplete : TransferInvalidTransmitData);
    if (!IsLatest())
        return;
    EXPECT_EQ(m_context.ConfigCount, 3u);
    ASSERT_EQ(m_context.ConfigLines.size(), 2u) << "the line with the bad sum is left out";
    EXPECT_EQ(Text(m_context.ConfigLines[0]), "CR00:x:01:02:03:F9");
    EXPECT_EQ(Text(m_context.ConfigLines[1]), "CR01:x:FF:::");
}

TEST_P(TRecordGeneration, TakesAConfigurationOnlyIfItIsTheLatest) {
    m_context.ConfigLines.push_back("CR00:x:01:02:03:F9");
    m_context.ConfigLines.push_back("CR01:x:FF:::");
    DialogScript script;
    if (!IsLatest())
        ExpectDriverBox(script, OldFirmwareText);
    EXPECT_EQ(TransferBy(Name("config_write"), WriteConfigMode),
              IsLatest() ? TransferComplete : TransferInvalidTransmitData);
}

TEST_P(TRecordGeneration, TellsItsHardwareOnlyIfItIsTheLatest) {
    std::filesystem::create_directory("Logs");
    WriteFile("Logs/K7A42.txt", "a former text that is longer than the one that takes its place");
    EXPECT_EQ(TransferBy(Name("hardware"), ReadInformationMode), TransferComplete);
    if (!IsLatest()) {
        EXPECT_EQ(Text(m_context.RadioSerial), "UNKNOWN");
        EXPECT_TRUE(m_context.InfoLines.empty());
        return;
    }
    EXPECT_EQ(Text(m_context.RadioSerial), "K7A42");
    EXPECT_EQ(Text(RadioSerial), "K7A42");
    ASSERT_EQ(m_context.InfoLines.size(), 3u);
    ExpectMatch(Text(m_context.InfoLines[0]), std::string("Date: ") + Date);
    EXPECT_EQ(Text(m_context.InfoLines[1]), "Board 3");
    EXPECT_EQ(Text(m_context.InfoLines[2]), "RF 1.7");
    ExpectMatch(ReadText("Logs/K7A42.txt"), std::string("Date: ") + Date + "\nBoard 3\nRF 1\\.7\n");
    EXPECT_FALSE(std::filesystem::exists("KDRV-716_K7A42_Dbg.log"));
}

TEST_P(TRecordGeneration, GivesItsDebugLog) {
    const std::string file = IsLatest() ? "KDRV-716_K7A42_Dbg.log" : "KDRV-716_UNKNOWN_Dbg.log";
    WriteFile(file, "a former log");
    EXPECT_EQ(TransferBy(Name("debug_log"), ReadDebugLogMode), TransferComplete);
    const std::string heading =
        std::string("SN,") + (IsLatest() ? "K7A42" : "UNKNOWN") + "\nDate," + Date +
        "Timestamp,Flags,Main_RxTx_State,Guard_RxTx_State,MB_Temp,MCU_Temp,MainRF_Temp,GuardRF_Temp\n";
    ExpectMatch(ReadText(file), heading + (IsLatest() ? "12:30:15,1,1,2,25,-1,30,-128\n"
                                                        "12:31:16,8,0,0,258,772\n"
                                                      : "Rx:0200: Hi\nTx:0200:   ok\n"));
}

TEST_F(TRecordGolden, RadioIsPurgedForAShadowAndGetsBackWhatItHeld) {
    FillP25Row(1, "A0", "10");
    SetCell(1, SHD0, "2");
    SetCell(1, SHD1, "3");
    FillP25Row(2, "A0", "01", "001");
    FillP25Row(3, "A0", "02", "001");
    FillP25Row(5, "C0", "10");
    FillP25Row(6, "C0", "01", "005");
    FillP25Row(7, "A0");
    FillP25Row(8, "A1");
    Select({2});
    EXPECT_EQ(TransferBy("write_shadow", WriteChannelsMode), TransferComplete);
}

TEST_F(TRecordGolden, AnotherRadioIsPurged) {
    FillP25Row(1);
    FillP25Row(4, "C0");
    FillP25Row(6);
    Select({1});
    DialogScript script;
    ExpectPurgeQuestion(script);
    EXPECT_EQ(TransferBy("write_other_radio", WriteChannelsMode), TransferComplete);
    EXPECT_EQ(Text(RadioStamp), "20240131235958") << "now this radio is known";
}

TEST_F(TRecordGolden, AnotherRadioIsLeftAloneWhenThePurgeIsRefusedByDeparture) {
    FillP25Row(1);
    FillP25Row(4, "C0");
    Select({1});
    DialogScript script;
    ExpectPurgeQuestion(script, wxID_CANCEL);
    EXPECT_EQ(TransferBy("write_other_radio_refused", WriteChannelsMode), TransferCancelled);
    EXPECT_EQ(Text(RadioStamp), KnownStamp);
    EXPECT_TRUE(m_context.RowsSent.empty());
}

TEST_F(TRecordGolden, RowsOfTheRadioAreErased) {
    FillP25Row(3, "C2");
    FillP25Row(4, "82");
    FillP25Row(5);
    Select({3, 4, 5});
    EXPECT_EQ(TransferBy("write_erase", WriteChannelsMode), TransferComplete);
}

TEST_F(TRecordGolden, NothingIsErasedInAnotherRadio) {
    FillP25Row(3, "C2");
    FillP25Row(5);
    Select({3, 5});
    EXPECT_EQ(TransferBy("write_erase_other_radio", WriteChannelsMode), TransferComplete);
}

TEST_F(TRecordGolden, OldLayoutHasNoRowsBetween230And501) {
    for (const int row : {229, 230, 231, 232, 400, 500, 501, 502})
        FillP25Row(row);
    Select({229, 230, 231, 232, 400, 500, 501, 502});
    EXPECT_EQ(TransferBy("write_old_layout_rows", WriteChannelsMode), TransferComplete);
}

TEST_F(TRecordGolden, PageOfTheFirstGenerationHasTwoHundredAndThirtyTwoRows) {
    UsePage(Kdrv716);
    ASSERT_EQ(CurrentParameters().Rows, 232);
    for (const int row : {1, 230, 232})
        FillP25Row(row);
    Select({1, 230, 232});
    EXPECT_EQ(TransferBy("write_first_generation_page", WriteChannelsMode), TransferComplete);
}

TEST_F(TRecordGolden, WriteSurvivesTrouble) {
    FillP25Row(1);
    FillP25Row(3);
    Select({1, 3});
    EXPECT_EQ(TransferBy("write_trouble", WriteChannelsMode), TransferComplete);
}

TEST_F(TRecordGolden, ReadSurvivesTrouble) {
    EXPECT_EQ(TransferBy("read_trouble", ReadChannelsMode), TransferComplete);
    EXPECT_EQ(FilledRows().size(), 3u);
}

TEST_F(TRecordGolden, UserSaysYesToDisabledModes) {
    FillP25Row(1);
    SetCell(1, MODE, "w");
    Select({1});
    DialogScript script;
    script
        .ExpectMessage(
            "Radio Operating Modes",
            "The following operating modes are used in the memory data but not enabled in the radio:\n"
            "    Analog Wideband\n"
            "\nThe radio will not transmit in disabled modes (affected memories become receive only).\n"
            "\nDo you wish to continue the transfer?",
            wxID_YES)
        .Style(wxYES_NO | wxICON_WARNING | wxCENTRE);
    EXPECT_EQ(TransferBy("write_mode_question", WriteChannelsMode), TransferComplete);
}

TEST_F(TRecordGolden, UserSaysNoToDisabledModesWhichCountsAsComplete) {
    FillP25Row(1);
    SetCell(1, MODE, "w");
    Select({1});
    DialogScript script;
    script.ExpectMessage("Radio Operating Modes", AnyText(), wxID_NO);
    EXPECT_EQ(TransferBy("write_mode_question_no", WriteChannelsMode), TransferComplete);
}

TEST_F(TRecordGolden, RefusedRowIsNamed) {
    FillP25Row(1);
    FillP25Row(3);
    Select({1, 3});
    DialogScript script;
    ExpectDriverBox(script, "Radio rejected channel 3");
    EXPECT_EQ(TransferBy("write_refused", WriteChannelsMode), TransferCommunicationError);
}

TEST_F(TRecordGolden, RefusedLastRowIsNotComplete) {
    FillP25Row(502);
    Select({502});
    DialogScript script;
    ExpectDriverBox(script, "Radio rejected channel 502");
    EXPECT_EQ(TransferBy("write_last_row_refused", WriteChannelsMode), TransferCommunicationError);
}

TEST_F(TRecordGolden, RadioThatEndsAWriteHasRefusedTheRow) {
    FillP25Row(1);
    Select({1});
    DialogScript script;
    ExpectDriverBox(script, "Radio rejected channel 1");
    EXPECT_EQ(TransferBy("write_ended_by_radio", WriteChannelsMode), TransferCommunicationError);
}

TEST_F(TRecordGolden, CancelEndsWithTheEndRecordAndNoBox) {
    FillP25Row(1);
    Select({1});
    const DialogScript noBox;
    EXPECT_EQ(TransferBy("write_cancelled", WriteChannelsMode), TransferCancelled);
}

TEST_F(TRecordGolden, SecondGarbledAnswerEndsAWrite) {
    FillP25Row(1);
    Select({1});
    DialogScript script;
    ExpectDriverBox(script, "Checksum Error on channel 1");
    EXPECT_EQ(TransferBy("write_garbled_twice", WriteChannelsMode), TransferChecksumError);
}

TEST_F(TRecordGolden, SecondGarbledRecordEndsARead) {
    DialogScript script;
    ExpectDriverBox(script, "Checksum Error on channel 0");
    EXPECT_EQ(TransferBy("read_garbled_twice", ReadChannelsMode), TransferChecksumError);
    EXPECT_EQ(FilledRows().size(), 0u);
}

TEST_F(TRecordGolden, OldFirmwareIsFoundOutBeforeAnyMemoryIsTouched) {
    FillP25Row(1);
    SetCell(1, ZONE, "16");
    Select({1});
    DialogScript script;
    ExpectDriverBox(script, OldFirmwareText);
    EXPECT_EQ(TransferBy("write_old_firmware", WriteChannelsMode), TransferInvalidTransmitData);
}

TEST_F(TRecordGolden, SilentRadioTimesOutWithoutAnEndRecord) {
    FillP25Row(1);
    Select({1});
    m_context.ReplyTimeout = 400;
    DialogScript script;
    ExpectDriverBox(script, TimeoutText);
    EXPECT_EQ(TransferBy("write_silent_radio", WriteChannelsMode), TransferTimeout);
}
