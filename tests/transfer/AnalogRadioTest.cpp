// Complete transfers between the window and simulated analog radios.
#include "tests/transfer/RadioUnderTest.h"
#include "tests/transfer/TransferTest.h"

#include <functional>
#include <optional>

using namespace testbench;
using namespace transfertest;

namespace {

constexpr const char* TimeoutBox = "Timeout Error\nVerify Radio is in PC Download mode\n"
                                   "and correct COM port is selected";

/// A memory line without its end, as it is sent and stored.
std::string MemoryLine(const std::string& number, const std::string& frequency,
                       const std::string& tail = "TX CTCSS: 01RX 63TX DPL: 023RX 754TX 1_3__W") {
    return number + " HILL      " + frequency + "RX " + frequency + tail;
}

/// Expected end of a command: the driver's box, if any, and the status box.
struct Ending {
    const char* status;
    const char* driverBox = nullptr;
};

class AnalogRadio : public TransferTest {
protected:
    static void Send(RadioUnderTest& radio, const Ending& ending) {
        PortName = radio.PortName();
        DialogScript script;
        if (ending.driverBox)
            ExpectDriverBox(script, ending.driverBox);
        ExpectBox(script, "Write to Radio Status", ending.status);
        Upload();
        ExpectOver();
    }

    static void Read(RadioUnderTest& radio, const Ending& ending, const char* keyBox = nullptr) {
        PortName = radio.PortName();
        DialogScript script;
        ExpectQuestion(script);
        if (keyBox)
            ExpectBox(script, "Read channel data from radio", keyBox);
        if (ending.driverBox)
            ExpectDriverBox(script, ending.driverBox);
        ExpectBox(script, "Read from Radio Status", ending.status);
        Download();
        ExpectOver();
    }

    /// Sends the rows to the model and reads them back into the emptied page.
    static void SendAndReadBack(const std::string& model, const std::vector<int>& rows,
                                const std::string& frequency, const char* keyBox = nullptr,
                                const std::vector<std::string>& options = {}) {
        CurrentGrid()->ClearSelection();
        std::map<std::string, std::string> expected;
        for (const int row : rows) {
            FillRow(row, frequency);
            CurrentGrid()->SelectRow(row, true);
            const std::string number = Text(wxString::Format("%03d", row));
            const std::string padded = frequency.size() < 8 ? "0" + frequency : frequency;
            expected[number] = MemoryLine(number, padded);
        }
        RadioUnderTest radio(model, options);
        Send(radio, {"Complete"});
        EXPECT_TRUE(PortIsFree(radio.PortName()));
        Read(radio, {"Complete"}, keyBox);
        EXPECT_TRUE(PortIsFree(radio.PortName()));
        EXPECT_EQ(FilledRows().size(), rows.size());
        for (const int row : rows) {
            EXPECT_EQ(CellText(row, RFRQ), frequency) << row;
            EXPECT_EQ(CellText(row, DESC), "HILL     ") << row;
            EXPECT_EQ(CellText(row, RTON), "67.0") << row;
            EXPECT_EQ(CellText(row, TFLG), "C0") << row;
        }
        EXPECT_EQ(radio.Complaints(), "");
        EXPECT_EQ(radio.Memories(), expected);
    }
};

} // namespace

TEST_F(AnalogRadio, WithoutOpeningNumberGetsAndGivesItsChannels) {
    Retarget(Krv650, 1);
    SendAndReadBack("KRV-650:FM 138-174", {1, 2, 200}, "138.0250",
                    "Close this dialog, then press ENTER on radio to start");
}

TEST_F(AnalogRadio, OfOpeningNumberOneGetsAndGivesItsChannels) {
    UseRealTime();
    Retarget(Krv214B, 0);
    SendAndReadBack("KRV-214B", {1, 120, 121, 122}, "150.0000");
}

TEST_F(AnalogRadio, OfOpeningNumberTwoGetsAndGivesItsChannels) {
    Retarget(Krv47, 0);
    SendAndReadBack("KRV-47", {1, 121, 122}, "66.0250");
}

TEST_F(AnalogRadio, OfOpeningNumberThreeGetsAndGivesItsChannels) {
    Retarget(Krv305, 0);
    SendAndReadBack("KRV-305", {1, 121, 122}, "512.0000");
}

TEST_F(AnalogRadio, OfOpeningNumberFourGetsAndGivesItsChannels) {
    Retarget(Krv214, 0);
    SendAndReadBack("KRV-214", {1, 101, 102}, "174.0000");
}

TEST_F(AnalogRadio, ThatSetsBitSevenOnEveryByteGetsAndGivesItsChannels) {
    Retarget(Krv650, 1);
    SendAndReadBack("KRV-650:FM 138-174", {1, 2, 200}, "138.0250",
                    "Close this dialog, then press ENTER on radio to start", {"--parity=bytes"});
}

TEST_F(AnalogRadio, ThatSetsBitSevenOnEveryByteGivesAllItsRows) {
    Retarget(Krv47, 0);
    RadioUnderTest radio("KRV-47", {"--parity=bytes", "--all", "--guard-names"},
                         MemoryLine("007", "066.0250") + "\n" + MemoryLine("122", "071.0000") + "\n");
    Read(radio, {"Complete"});
    EXPECT_EQ(FilledRows().size(), 122u);
    EXPECT_EQ(CellText(6, RFRQ), "66.0000");
    EXPECT_EQ(CellText(7, RFRQ), "66.0250");
    EXPECT_EQ(CellText(7, DESC), "HILL     ");
    EXPECT_EQ(CellText(7, TTON), "250.3");
    EXPECT_EQ(CellText(7, MODE), "w");
    EXPECT_EQ(CellText(122, MNUM), "122");
    EXPECT_EQ(CellText(122, RFRQ), "71.0000");
}

TEST_F(AnalogRadio, WithItsGuardsByNameLandsInTheLastRows) {
    RadioUnderTest radio("KRV-47", {"--guard-names"},
                         MemoryLine("001", "066.0000") + "\n" + MemoryLine("121", "070.0000") + "\n" +
                             MemoryLine("122", "071.0000") + "\n");
    Read(radio, {"Complete"});
    EXPECT_EQ(FilledRows().size(), 3u);
    EXPECT_EQ(CellText(121, MNUM), "121");
    EXPECT_EQ(CellText(121, RFRQ), "70.0000");
    EXPECT_EQ(CellText(122, MNUM), "122");
    EXPECT_EQ(CellText(122, RFRQ), "71.0000");
}

TEST_F(AnalogRadio, OfTheShortLineFormCannotTellItsReceiveTones) {
    RadioUnderTest radio("KRV-47", {"--short", "--parity"}, MemoryLine("001", "066.0000") + "\n");
    Read(radio, {"Complete"});
    EXPECT_EQ(CellText(1, RTON), "n/a");
    EXPECT_EQ(CellText(1, RCOD), "n/a");
    EXPECT_EQ(CellText(1, TTON), "250.3");
    EXPECT_EQ(CellText(1, TCOD), "754");
    EXPECT_EQ(CellText(1, SCAN), "5");
    EXPECT_EQ(CellText(1, DESC), "HILL     ");
}

TEST_F(AnalogRadio, OfTheAirbandIsRead) {
    Retarget(Kdar2000, 0);
    const std::string tail = "TX CTCSS: 64RX 64TX DPL: 000RX 000TX LOCK N";
    RadioUnderTest radio("KDAR-2000", {},
                         MemoryLine("001", "118.1250", tail) + "\n" + MemoryLine("100", "137.9750", tail) +
                             "\n");
    Read(radio, {"Complete"});
    EXPECT_EQ(FilledRows().size(), 2u);
    EXPECT_EQ(CellText(1, RFRQ), "118.1250");
    EXPECT_EQ(CellText(100, RFRQ), "137.9750");
}

TEST_F(AnalogRadio, OfSixChannelsIsRead) {
    Retarget(Orv12, 0);
    const std::string tail = "TX CTCSS: 64RX 64TX DPL: 000RX 000TX LOCK N";
    RadioUnderTest radio("ORV-12", {},
                         MemoryLine("001", "118.1250", tail) + "\n" + MemoryLine("006", "121.5000", tail) +
                             "\n");
    Read(radio, {"Complete"});
    EXPECT_EQ(FilledRows().size(), 2u);
    EXPECT_EQ(CellText(6, RFRQ), "121.5000");
}

TEST_F(AnalogRadio, OfThreeBandsGetsAndGivesItsChannels) {
    Retarget(Kdrv4xxx, ModuleSlot);
    // On the module, airband has no tones and no codes, the upper AM band has no codes.
    struct ModuleChannel {
        const char *frequency, *band, *tone, *code;
    };
    const ModuleChannel channels[] = {{"31.0000", "FM 30-50", "250.3", "OFF"},
                                      {"121.5000", "AM 108-138", "n/a", "n/a"},
                                      {"243.0000", "AM 225-400", "250.3", "n/a"}};
    RadioUnderTest radio("KDRV-4xxx:K6 3-BAND");
    int row = 1;
    for (const auto& [frequency, band, tone, code] : channels) {
        FillRow(row, frequency);
        SetCell(row, BAND, band);
        SetCell(row, RCOD, "OFF");
        SetCell(row, TCOD, "OFF");
        CurrentGrid()->SelectRow(row++, true);
    }
    Send(radio, {"Complete"});
    Read(radio, {"Complete"});
    row = 1;
    for (const auto& [frequency, band, tone, code] : channels) {
        EXPECT_EQ(CellText(row, RFRQ), frequency);
        EXPECT_EQ(CellText(row, BAND), band) << frequency;
        EXPECT_EQ(CellText(row, TTON), tone) << frequency;
        EXPECT_EQ(CellText(row, RCOD), code) << frequency;
        ++row;
    }
    EXPECT_EQ(radio.Complaints(), "");
    EXPECT_EQ(radio.Memories().size(), 3u);
}

TEST_F(AnalogRadio, ThatStopsWithoutEndLineBehindItsLastRowIsComplete) {
    RadioUnderTest radio("KRV-47", {"--no-end"},
                         MemoryLine("001", "066.0000") + "\n" + MemoryLine("122", "066.0000") + "\n");
    Read(radio, {"Complete"});
    EXPECT_EQ(FilledRows().size(), 2u);
}

namespace {

/// A fault of the radio, what it leaves of a transfer of three rows, and how that transfer ends.
struct FaultCase {
    const char* name;
    std::vector<std::string> options;
    Ending ending;
    std::vector<std::string> memories; ///< of a write: the radio's memories afterwards
    std::vector<int> rows;             ///< of a read: the page's rows afterwards
    bool portRemains = true;
};

const Ending Complete = {"Complete"};
const Ending Timeout = {"Timeout", TimeoutBox};

class AnalogRadioFault : public AnalogRadio {
protected:
    void SetUp() override {
        AnalogRadio::SetUp();
        Retarget(Kdrv4xxx, 2); // VHF, no opening number, no key
    }

    static void SendThreeRows(const FaultCase& fault) {
        for (const int row : {1, 2, 3})
            FillRow(row, "138.0000");
        Select({1, 2, 3});
        const std::string before = PageText();
        RadioUnderTest radio("KDRV-4xxx:FM 138-174", fault.options, MemoryLine("003", "174.0000") + "\n");
        Send(radio, fault.ending);
        EXPECT_EQ(PageText(), before) << fault.name;
        EXPECT_EQ(CurrentGrid()->GetSelectedRows().size(), 3u);
        EXPECT_EQ(PortIsFree(radio.PortName()), fault.portRemains);
        std::map<std::string, std::string> expected = {{"003", MemoryLine("003", "174.0000")}};
        for (const std::string& number : fault.memories)
            expected[number] = MemoryLine(number, "138.0000");
        EXPECT_EQ(radio.Memories(), expected) << fault.name;
    }

    static void ReadThreeRows(const FaultCase& fault) {
        FillRow(150, "150.0000");
        std::string memories;
        for (const char* number : {"001", "002", "003"})
            memories += MemoryLine(number, "138.0000") + "\n";
        RadioUnderTest radio("KDRV-4xxx:FM 138-174", fault.options, memories);
        Read(radio, fault.ending);
        EXPECT_EQ(FilledRows().size(), fault.rows.size()) << fault.name;
        for (const int row : fault.rows)
            EXPECT_EQ(CellText(row, RFRQ), "138.0000") << fault.name << ", row " << row;
        EXPECT_EQ(PortIsFree(radio.PortName()), fault.portRemains);
        EXPECT_EQ(radio.Memories().size(), 3u) << fault.name;
    }
};

} // namespace

TEST_F(AnalogRadioFault, SilenceInAWriteTimesOut) {
    // The row at which the radio fell silent never reached it.
    SendThreeRows({"silence", {"--fault", "silence@2"}, Timeout, {"001"}, {}});
}

TEST_F(AnalogRadioFault, AMissingAcknowledgementEndsTheWriteAtItsRow) {
    SendThreeRows({"no acknowledgement", {"--fault", "no-ack@2"}, Timeout, {"001", "002"}, {}});
}

TEST_F(AnalogRadioFault, AnAcknowledgementThatComesTooLateEndsTheWriteAtItsRow) {
    SendThreeRows({"late acknowledgement", {"--fault", "late-ack@1"}, Timeout, {"001"}, {}});
}

TEST_F(AnalogRadioFault, AnAcknowledgementThatComesLateIsTaken) {
    SendThreeRows({"slow radio",
                   {"--fault", "late-ack@1", "--fault", "late-ack@3", "--late", "1500"},
                   Complete,
                   {"001", "002", "003"},
                   {}});
}

TEST_F(AnalogRadioFault, NoiseBeforeAnAcknowledgementIsDropped) {
    SendThreeRows(
        {"noise", {"--fault", "noise@1", "--fault", "noise@2"}, Complete, {"001", "002", "003"}, {}});
}

TEST_F(AnalogRadioFault, APulledPlugInAWriteTimesOut) {
    SendThreeRows({"unplug", {"--fault", "unplug@2"}, Timeout, {"001", "002"}, {}, false});
}

TEST_F(AnalogRadioFault, SilenceInAReadTimesOutAndKeepsWhatCame) {
    ReadThreeRows({"silence", {"--fault", "silence@3"}, Timeout, {}, {1, 2}});
}

TEST_F(AnalogRadioFault, SilenceFromTheStartLeavesAnEmptyPage) {
    ReadThreeRows({"silence", {"--fault", "silence@1"}, Timeout, {}, {}});
}

TEST_F(AnalogRadioFault, NoiseBeforeALineCostsThatLineOnly) {
    ReadThreeRows({"noise", {"--fault", "noise@2"}, Complete, {}, {1, 3}});
}

TEST_F(AnalogRadioFault, NoiseBeforeTheFirstLineCostsNothing) {
    ReadThreeRows({"noise", {"--fault", "noise@1"}, Complete, {}, {1, 2, 3}});
}

TEST_F(AnalogRadioFault, TornLinesArePutTogether) {
    ReadThreeRows({"torn", {"--fault", "torn@1", "--fault", "torn@2"}, Complete, {}, {1, 2, 3}});
}

TEST_F(AnalogRadioFault, ALineThatBreaksOffBringsNoToneOrCodeThatTheRadioDidNotSend) {
    SetCell(0, RTON, "71.9");
    ReadThreeRows({"cut", {"--fault", "cut@2"}, Complete, {}, {1, 2, 3}});
    for (const int column : {RTON, TTON, RCOD, TCOD}) {
        EXPECT_EQ(CellText(2, column), CellText(0, column)) << ColumnTag[column];
        EXPECT_TRUE(CurrentGrid()->GetCellBackgroundColour(2, column) == FailColour) << ColumnTag[column];
        EXPECT_FALSE(CurrentGrid()->GetCellBackgroundColour(3, column) == FailColour) << ColumnTag[column];
    }
    EXPECT_EQ(CellText(3, RTON), "67.0");
    EXPECT_EQ(CellText(2, SCAN), "0");
}

TEST_F(AnalogRadioFault, APulledPlugInAReadTimesOutAndKeepsWhatCame) {
    FillRow(150, "150.0000");
    std::string memories;
    for (const char* number : {"001", "002", "003"})
        memories += MemoryLine(number, "138.0000") + "\n";
    // At the speed of a real line, so that the first row is sent before the third is due.
    RadioUnderTest radio("KDRV-4xxx:FM 138-174", {"--pace", "--fault", "unplug@3"}, memories);
    Read(radio, Timeout);
    EXPECT_EQ(CellText(1, RFRQ), "138.0000");
    EXPECT_FALSE(RowHasData(3));
    EXPECT_FALSE(RowHasData(150));
    EXPECT_FALSE(PortIsFree(radio.PortName())) << "there is no such port any more";
}

TEST_F(AnalogRadioFault, CancelInAWriteLeavesTheRadioWithTheRowsBefore) {
    for (const int row : {1, 2, 3})
        FillRow(row, "138.0000");
    Select({1, 2, 3});
    RadioUnderTest radio("KDRV-4xxx:FM 138-174", {"--fault", "no-ack@2"});
    // The radio has stored the second row, and the program waits for the acknowledgement.
    radio.WhenLogged("! no-ack@2", PressCancel);
    Send(radio, {"Cancelled by User"});
    EXPECT_TRUE(PortIsFree(radio.PortName()));
    const auto memories = radio.Memories();
    EXPECT_EQ(memories.count("001"), 1u);
    EXPECT_EQ(memories.count("003"), 0u);
}

TEST_F(AnalogRadioFault, ARadioServesTheNextTransferAfterAFailedOne) {
    for (const int row : {1, 2})
        FillRow(row, "138.0000");
    Select({1, 2});
    RadioUnderTest radio("KDRV-4xxx:FM 138-174", {"--fault", "silence@2/1"});
    Send(radio, Timeout);
    Send(radio, Complete);
    EXPECT_EQ(radio.Memories().size(), 2u);
}
