#include "transfer/DebugLog.h"

#include "robot/Files.h"
#include "robot/TempFolder.h"
#include "transfer/TransferContext.h"

#include <gtest/gtest.h>
#include <wx/textbuf.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace fs = std::filesystem;

namespace {

/// A test in an empty working directory.
class DebugLog : public ::testing::Test {
protected:
    DebugLog() : m_former(fs::current_path()) { fs::current_path(m_folder.Path()); }
    ~DebugLog() override {
        m_context.DebugLogFile.Close();
        fs::current_path(m_former);
    }

    /// Starts a file without heading for the records that follow.
    void Begin(uint32_t protocol) {
        m_context.Protocol = protocol;
        ASSERT_TRUE(m_context.DebugLogFile.Open("log", "w"));
    }

    /// Passes on a record. The four digits of the address are at position 5, the data start at position 9.
    void Take(const std::string& address, const std::string& data) {
        m_context.RxLine = "T1430" + address + data;
        m_context.Phase = 1;
        decodeDebugLog(m_context);
        EXPECT_EQ(m_context.Phase, 0u);
    }

    /// Ends the records and returns the file's text, whose lines end as those of the system's texts do.
    std::string Written(const std::string& file = "log") {
        m_context.DebugLogFile.Close();
        wxString text = wxString::FromUTF8(testbench::ReadFile(file));
        text.Replace(wxTextBuffer::GetEOL(), "\n");
        return text.utf8_string();
    }

    TRecordContext m_context;

private:
    fs::path m_former;
    testbench::TempFolder m_folder;
};

using DebugTrace = DebugLog;
using DebugSamples = DebugLog;

// The last byte of a record of the trace, which isn't read.
const std::string Last = "AA";

} // namespace

TEST_F(DebugLog, BeginsWithSerialDateAndHeading) {
    OpenDebugLog(m_context, "K123", "2026-11-21 10:20:30");
    EXPECT_TRUE(m_context.DebugLogFile.IsOpened());
    EXPECT_EQ(Written("KDRV-716_K123_Dbg.log"),
              "SN,K123\n"
              "Date,2026-11-21 "
              "10:20:30Timestamp,Flags,Main_RxTx_State,Guard_RxTx_State,MB_Temp,MCU_Temp,MainRF_Temp,"
              "GuardRF_Temp\n");
}

TEST_F(DebugLog, ReplacesAFileOfItsName) {
    std::ofstream("KDRV-716_K1_Dbg.log") << std::string(1000, '#');
    OpenDebugLog(m_context, "K1", "now");
    EXPECT_EQ(Written("KDRV-716_K1_Dbg.log").substr(0, 14), "SN,K1\nDate,now");
    EXPECT_EQ(Written("KDRV-716_K1_Dbg.log").find('#'), std::string::npos);
}

TEST_F(DebugLog, ThatCannotBeOpenedStaysClosedAndRecordsGoOn) {
    fs::create_directory("KDRV-716_K1_Dbg.log");
    for (const uint32_t protocol : {0u, 2u}) {
        m_context.Protocol = protocol;
        OpenDebugLog(m_context, "K1", "now");
        EXPECT_FALSE(m_context.DebugLogFile.IsOpened());
        Take("0020", "01020304050607080910");
        EndDebugLog(m_context);
    }
    EXPECT_TRUE(fs::is_empty("KDRV-716_K1_Dbg.log"));
}

TEST_F(DebugLog, AddressSaysWhereTheDataBeginAndHowFarTheLogIs) {
    struct {
        const char* address;
        uint32_t dataStart;
        int step;
    } const cases[] = {
        {"0000", 9, 0}, {"2000", 9, 0},   {"4000", 9, 0}, {"E000", 9, 0},   {"0020", 5, 1}, {"1FE0", 5, 255},
        {"2020", 5, 1}, {"1000", 5, 128}, {"001F", 5, 0}, {"FFFF", 5, 255}, {"2001", 5, 0}, {"00", 9, 0},
    };
    Begin(0);
    for (const auto& c : cases) {
        Take(c.address, "");
        EXPECT_EQ(m_context.LogDataStart, c.dataStart) << c.address;
        EXPECT_EQ(m_context.Work3, c.step) << c.address;
    }
}

TEST_F(DebugTrace, EchoStandsRightUnderWhatWasSent) {
    Begin(0);
    Take("0020", "41C142C20585" + Last); // A, its echo, B, its echo, 05, its echo
    EXPECT_EQ(Written(), "Rx:0020: AB<05>\n"
                         "Tx:0020: AB<05>\n");
}

TEST_F(DebugTrace, ControlCharacterSentStandsOnTheTransmitLine) {
    Begin(0);
    Take("0020", "05" + Last);
    EXPECT_EQ(Written(), "Rx:0020: \n"
                         "Tx:0020: <05>\n");
}

TEST_F(DebugTrace, AnswerBeginsBehindWhatWasSent) {
    Begin(0);
    Take("0020", "4142C3C444" + Last); // sent "AB", received "CD", sent "D"
    // "D" differs from the last character only by its direction, which doesn't matter for a transmit byte.
    EXPECT_EQ(Written(), "Rx:0020:   CD\n"
                         "Tx:0020: AB  D\n");
}

TEST_F(DebugTrace, SameCharacterReceivedTwiceIsNotPadded) {
    Begin(0);
    Take("0020", "414242C2C2" + Last); // sent "ABB", received "BB"
    EXPECT_EQ(Written(), "Rx:0020: BB\n"
                         "Tx:0020: ABB\n");
}

TEST_F(DebugTrace, EveryCharacterHasItsText) {
    struct {
        const char* byte;
        const char* text;
    } const cases[] = {
        {"01", "<01>"}, {"03", "<03>"}, {"0D", "<0D>"}, {"1F", "<1F>"},
        {"20", " "},    {"7E", "~"},    {"7F", "<7F>"}, {"00", ""},
    };
    for (const auto& c : cases) {
        Begin(1);
        Take("0020", c.byte + Last);
        EXPECT_EQ(Written(), std::string("Rx:0020: \nTx:0020: ") + c.text + "\n") << c.byte;
    }
}

TEST_F(DebugTrace, ZeroIsNotShownButEndsAnEcho) {
    Begin(0);
    Take("0020", "4100C180" + Last);
    EXPECT_EQ(Written(), "Rx:0020:  A\n"
                         "Tx:0020: A\n");
}

TEST_F(DebugTrace, MessageStandsOnALineOfItsOwn) {
    Begin(0);
    Take("0020", "4102486903"
                 "42" +
                     Last); // A, begin, Hi, end, B
    EXPECT_EQ(Written(), "Rx:0020: \n"
                         "Tx:0020: A\n"
                         "Msg: Hi\n"
                         "Rx:0020: \n"
                         "Tx:0020: B\n");
}

TEST_F(DebugTrace, MessageLosesItsHighBits) {
    Begin(0);
    Take("0020", "02C8E983" + Last);
    EXPECT_EQ(Written(), "Rx:0020: \n"
                         "Tx:0020: \n"
                         "Msg: Hi\n"
                         "Rx:0020: \n"
                         "Tx:0020: \n");
}

TEST_F(DebugTrace, ReceivedBeginOfAMessageRepeatsTheByteBeforeIt) {
    Begin(0);
    Take("0020", "41824803" + Last); // "A" is repeated where the transmit line ended
    EXPECT_EQ(Written(), "Rx:0020: \n"
                         "Tx:0020: A\n"
                         "Msg:      AH\n"
                         "Rx:0020: \n"
                         "Tx:0020: \n");
}

TEST_F(DebugTrace, ReceivedBeginOfAMessageRepeatsAByteThatIsNotShown) {
    Begin(0);
    Take("0020", "00824803" + Last); // "Tx:0020: " has 9 characters
    EXPECT_EQ(Written(), "Rx:0020: \n"
                         "Tx:0020: \n"
                         "Msg:     <00>H\n"
                         "Rx:0020: \n"
                         "Tx:0020: \n");
}

TEST_F(DebugTrace, ReceivedBeginOfAMessageFirstInItsRecordHasNothingToRepeat) {
    Begin(0);
    Take("0020", "824803" + Last);
    EXPECT_EQ(Written(), "Rx:0020: \n"
                         "Tx:0020: \n"
                         "Msg:     H\n"
                         "Rx:0020: \n"
                         "Tx:0020: \n");
}

TEST_F(DebugTrace, MessageGoesOnInTheNextRecordWithoutAPrefix) {
    Begin(0);
    Take("0020", "0248" + Last);
    EXPECT_EQ(m_context.Work2, 1);
    Take("0040", "690343" + Last);
    EXPECT_EQ(m_context.Work2, 0);
    EXPECT_EQ(Written(), "Rx:0020: \n"
                         "Tx:0020: \n"
                         "Msg: Hi\n"
                         "Rx:0040: \n"
                         "Tx:0040: C\n");
}

TEST_F(DebugTrace, BlockBeginsWithItsErrorCode) {
    Begin(0);
    Take("2000", "1234"
                 "ABCD"
                 "41" +
                     Last);
    EXPECT_EQ(Written(), "\n"
                         "Error Code = $1234  Insert Ptr = $ABCD\n"
                         "Rx:2000: \n"
                         "Tx:2000: A\n");
}

TEST_F(DebugTrace, BlockEndsAMessageThatWasInProgress) {
    Begin(0);
    Take("1FE0", "0248" + Last);
    Take("2000", "0000"
                 "0000"
                 "49" +
                     Last);
    EXPECT_EQ(Written(), "Rx:1FE0: \n"
                         "Tx:1FE0: \n"
                         "\n"
                         "Error Code = $0000  Insert Ptr = $0000\n"
                         "Rx:2000: \n"
                         "Tx:2000: I\n");
}

TEST_F(DebugTrace, RecordThatIsTooShortHasNoBytes) {
    Begin(0);
    m_context.RxLine = "T1";
    decodeDebugLog(m_context);
    EXPECT_EQ(Written(), "\n"
                         "Error Code = $  Insert Ptr = $\n"
                         "Rx:: \n"
                         "Tx:: \n");
}

TEST_F(DebugTrace, EndOfTheLogWritesTheMessageInProgress) {
    struct {
        uint32_t protocol;
        const char* data;
        const char* end;
    } const cases[] = {
        {0, "0248", "Msg: H\n"},
        {1, "0248", "Msg: H\n"},
        {0, "024803", ""},
        {3, "0248", ""},
    };
    for (const auto& c : cases) {
        Begin(c.protocol);
        m_context.Work2 = 0;
        Take("0020", c.data + Last);
        std::ofstream("log").close(); // the text up to here isn't checked
        m_context.DebugLogFile.Close();
        ASSERT_TRUE(m_context.DebugLogFile.Open("log", "w"));
        EndDebugLog(m_context);
        EXPECT_EQ(Written(), c.end) << c.protocol << " " << c.data;
    }
}

TEST_F(DebugSamples, EndOfTheLogWritesNothing) {
    Begin(2);
    m_context.Work2 = 1;
    m_context.DebugRxText = "Msg: H";
    EndDebugLog(m_context);
    EXPECT_EQ(Written(), "");
}

TEST_F(DebugSamples, EntryIsALineOfNumbers) {
    struct {
        const char* name;
        const char* entry; // flags, hour, state and minute, state and second, temperatures
        const char* line;
    } const cases[] = {
        {"lowest",
         "00"
         "00"
         "00"
         "00"
         "00000000",
         "0:0:0,0,0,0,0,0,0,0\n"},
        {"usual",
         "00"
         "0C"
         "5E"
         "AD"
         "19FF807F",
         "12:30:45,0,1,2,25,-1,-128,127\n"},
        {"highest",
         "F7"
         "FF"
         "FF"
         "FE"
         "FFFFFFFF",
         "255:63:62,247,3,3,-1,-1,-1,-1\n"},
        {"words",
         "08"
         "17"
         "3B"
         "3B"
         "0102FFFF",
         "23:59:59,8,0,0,258,65535\n"},
        {"words and other flags",
         "FF"
         "01"
         "80"
         "C1"
         "00008001",
         "1:0:1,255,2,3,0,32769\n"},
        {"first second of the last state",
         "00"
         "00"
         "00"
         "C0"
         "01020304",
         "0:0:0,0,0,3,1,2,3,4\n"},
        {"unused",
         "00"
         "0C"
         "5E"
         "FF"
         "19FF807F",
         ""},
        {"unused with words",
         "08"
         "00"
         "00"
         "FF"
         "00000000",
         ""},
    };
    for (const auto& c : cases) {
        Begin(2);
        Take("0020", c.entry);
        EXPECT_EQ(Written(), c.line) << c.name;
    }
}

TEST_F(DebugSamples, RecordHasEightEntries) {
    Begin(2);
    std::string data;
    for (const char* entry : {
             "00"
             "00"
             "00"
             "00"
             "01010101",
             "00"
             "01"
             "01"
             "FF"
             "02020202",
             "08"
             "02"
             "02"
             "02"
             "00030003",
             "00"
             "03"
             "03"
             "03"
             "04040404",
             "00"
             "04"
             "04"
             "FF"
             "05050505",
             "00"
             "05"
             "05"
             "05"
             "06060606",
             "00"
             "06"
             "06"
             "06"
             "07070707",
             "00"
             "07"
             "07"
             "07"
             "08080808",
             "00"
             "08"
             "08"
             "08"
             "09090909", // a ninth isn't read
         })
        data += entry;
    Take("2000", data);
    EXPECT_EQ(Written(), "0:0:0,0,0,0,1,1,1,1\n"
                         "2:2:2,8,0,0,3,3\n"
                         "3:3:3,0,0,0,4,4,4,4\n"
                         "5:5:5,0,0,0,6,6,6,6\n"
                         "6:6:6,0,0,0,7,7,7,7\n"
                         "7:7:7,0,0,0,8,8,8,8\n");
}

TEST_F(DebugSamples, EntryThatTheRecordDoesNotHoldIsUnused) {
    Begin(2);
    Take("0020", "0001020304050607"
                 "00010203"
                 "00");
    Take("0020", "000102");
    m_context.RxLine = "T1";
    decodeDebugLog(m_context);
    // The second entry is present, but three of its temperatures aren't.
    EXPECT_EQ(Written(), "1:2:3,0,0,0,4,5,6,7\n"
                         "1:2:3,0,0,0,0,0,0,0\n");
}
