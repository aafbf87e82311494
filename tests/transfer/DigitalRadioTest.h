// A window that transfers with simulated digital radios.
#pragma once

#include "tests/transfer/RadioUnderTest.h"
#include "tests/transfer/TRecordDriverTest.h"

#include <map>
#include <string>
#include <vector>

namespace transfertest {

/// Initial stamp of a simulated radio.
constexpr const char* RadiosStamp = "20200101000000";
constexpr const char* UpdateText = "Selected operation requires updated software in Radio";
constexpr const char* PurgeMessage = "< T204000011EA";
constexpr const char* EndRecordLine = "< T9030000FC";

inline std::string QuestionText(const std::string& modes) {
    return "The following operating modes are used in the memory data but not enabled in the radio:\n" +
           modes +
           "\nThe radio will not transmit in disabled modes (affected memories become receive only).\n"
           "\nDo you wish to continue the transfer?";
}

/// Expected end of a command: the driver's box, if any, and the status box.
struct Ending {
    const char* status;
    const char* driverBox = nullptr;
};
inline const Ending Complete = {"Complete"};

class DigitalRadioTest : public TRecordDriverTest {
protected:
    void SetUp() override {
        TRecordDriverTest::SetUp();
        // As if this radio had been read last.
        RadioStamp = RadiosStamp;
        HeldByRadio = {};
        OpModes[0] = AllModes;
    }

    /// @param modes expected in the question about operating modes; `answer` is the reply to it
    static void Send(RadioUnderTest& radio, const Ending& ending, const std::string& modes = "",
                     int answer = wxID_YES) {
        PortName = radio.PortName();
        testbench::DialogScript script;
        if (!modes.empty())
            script.ExpectMessage("Radio Operating Modes", QuestionText(modes), answer)
                .Style(wxYES_NO | wxICON_WARNING | wxCENTRE);
        if (ending.driverBox)
            ExpectDriverBox(script, ending.driverBox);
        ExpectBox(script, "Write to Radio Status", ending.status);
        Upload();
        ExpectAllOver(radio);
    }

    /// Runs a write that first asks whether the radio may be purged.
    static void SendAsked(RadioUnderTest& radio, const Ending& ending, int answer = wxID_OK,
                          const std::string& reason = UnknownRadio) {
        PortName = radio.PortName();
        testbench::DialogScript script;
        ExpectPurgeQuestion(script, answer, reason);
        if (ending.driverBox)
            ExpectDriverBox(script, ending.driverBox);
        ExpectBox(script, "Write to Radio Status", ending.status);
        Upload();
        ExpectAllOver(radio);
    }

    static void Read(RadioUnderTest& radio, const Ending& ending) {
        PortName = radio.PortName();
        testbench::DialogScript script;
        ExpectQuestion(script);
        if (ending.driverBox)
            ExpectDriverBox(script, ending.driverBox);
        ExpectBox(script, "Read from Radio Status", ending.status);
        Download();
        ExpectAllOver(radio);
    }

    static void ExpectAllOver(RadioUnderTest& radio) {
        ExpectOver();
        radio.AwaitClosedPort();
        EXPECT_TRUE(PortIsFree(radio.PortName())) << "the port was not given back";
    }

    /// Switches the radio off and expects that it complained of nothing.
    static void ExpectContent(RadioUnderTest& radio) {
        EXPECT_EQ(radio.SwitchOff(), 0);
        EXPECT_EQ(radio.Complaints(), "");
        EXPECT_EQ(radio.Log().find(" ? "), std::string::npos) << radio.Log();
    }

    static std::vector<int> Addresses(RadioUnderTest& radio) {
        std::vector<int> addresses;
        for (const auto& [address, record] : radio.Records())
            addresses.push_back(address);
        return addresses;
    }

    static size_t CountInLog(const RadioUnderTest& radio, const std::string& text) {
        const std::string log = radio.Log();
        size_t count = 0;
        for (size_t at = log.find(text); at != std::string::npos; at = log.find(text, at + 1))
            ++count;
        return count;
    }

    /// Fills rows of all modes and zones, a primary with two shadows, and the page's last row.
    static std::vector<int> FillMixedRows() {
        const int last = CurrentParameters().Rows;
        const char* const modes[] = {"w", "n", "D"};
        for (const int row : {1, 2, 3, 17, 18, 230, last - 1, last}) {
            FillP25Row(row, "A0", "00", wxString::Format("%03d", row));
            SetCell(row, MODE, modes[row % 3]);
            if (Cell(row, MODE) == "D") {
                SetCell(row, RSQL, "m");
                SetCell(row, TSQL, "g");
            }
            SetCell(row, ZONE, row == 18 ? "15" : row == 17 ? "2" : "1");
            SetCell(row, DESC, wxString::Format("MEM %d", row));
        }
        const bool longPage = last > 232;
        for (const int guard : {last - 1, last})
            SetCell(guard, ZONE, longPage ? "X" : "16");
        SetCell(17, MFLG, "10");
        SetCell(17, SHAD, "P-2");
        SetCell(17, SHD0, "040");
        SetCell(17, SHD1, "041");
        for (const int slot : {1, 2}) {
            FillP25Row(39 + slot, "A0", wxString::Format("%02X", slot), "017");
            SetCell(39 + slot, SHAD, "S-017");
            SetCell(39 + slot, DESC, wxString::Format("MEM %d", 39 + slot));
        }
        return {1, 2, 3, 17, 18, 40, 41, 230, last - 1, last};
    }

    /// Sends rows of all kinds and reads them back by the window's commands.
    static void SendAndReadBack(const std::string& model, const std::vector<std::string>& options,
                                char layout) {
        const std::vector<int> rows = FillMixedRows();
        CurrentGrid()->ClearSelection();
        std::map<int, std::vector<std::string>> before;
        for (const int row : rows) {
            CurrentGrid()->SelectRow(row, true);
            before[row] = KeptTexts(row);
        }
        RadioUnderTest radio(model, options);
        Send(radio, Complete);
        Read(radio, Complete);
        EXPECT_EQ(FilledRows().size(), rows.size());
        for (const int row : rows) {
            EXPECT_EQ(KeptTexts(row), before[row]) << row;
            EXPECT_EQ(CellText(row, TFLG), "C8") << row;
        }
        EXPECT_EQ(CellText(17, SHAD), "P-2");
        EXPECT_EQ(CellText(17, SHD0), "40");
        EXPECT_EQ(CellText(17, SHD1), "41");
        EXPECT_EQ(CellText(41, SHAD), "S-017");
        ExpectContent(radio);
        const auto records = radio.Records();
        EXPECT_EQ(records.size(), rows.size());
        for (const auto& [address, record] : records)
            EXPECT_EQ(record[0], layout) << address;
    }

    /// Texts of the cells that both layouts leave unchanged.
    static std::vector<std::string> KeptTexts(int row) {
        std::vector<std::string> texts;
        for (const int column :
             {MFLG, SCAN, ZONE, DESC, MODE, RSQL, RTON, RTGP, RNAC, TSQL, TTON, TTGP, TNAC, TIDC})
            texts.push_back(CellText(row, column));
        texts.push_back(CellText(row, RFRQ).substr(0, 8));
        texts.push_back(CellText(row, TFRQ).substr(0, 8));
        return texts;
    }

    /// Puts memories 1, 2 and 3 into the radio and reads them back into the page.
    static void Share(RadioUnderTest& radio) {
        for (const int row : {1, 2, 3})
            FillP25Row(row);
        Select({1, 2, 3});
        Send(radio, Complete);
        Read(radio, Complete);
        ASSERT_EQ(FilledRows().size(), 3u);
        CurrentGrid()->ClearSelection();
    }
};

} // namespace transfertest
