// Digital driver tests in which the test plays the radio.
#pragma once

#include "robot/TempFolder.h"
#include "tests/transfer/Transcript.h"
#include "tests/transfer/TransferTest.h"
#include "transfer/RadioIdentity.h"
#include "transfer/TRecordDriver.h"
#include "transfer/TransferContext.h"
#include "transfer/TransferMode.h"
#include "transfer/TransferStatus.h"

#include <wx/gauge.h>
#include <wx/stattext.h>

#include <filesystem>
#include <memory>

namespace transfertest {

using TRecordProtocol::DoTransferData;
using TRecordProtocol::TransferData;

constexpr const char* TimeoutText = "Timeout Error\nVerify Radio is in PC Download mode (3-8)\n"
                                    "and correct COM port is selected";
/// Stamp of the radios in the transcripts.
constexpr const char* KnownStamp = "20240131235959";

/// Provides a context with its port and its progress window while the object lives.
class Attachment {
public:
    Attachment(TRecordContext& context, const std::string& portName)
        : m_context(context), m_progress(new ProgressFrame(nullptr)),
          m_port(CurrentTransferSystem().Open(nullptr, portName, 9600)) {
        m_progress->MainGauge()->SetRange(CurrentGrid()->GetNumberRows());
        m_progress->MainGauge()->SetValue(0);
        context.Progress = m_progress.get();
        context.Port = m_port.get();
    }
    ~Attachment() {
        m_context.Progress = nullptr;
        m_context.Port = nullptr;
    }
    Attachment(const Attachment&) = delete;
    Attachment& operator=(const Attachment&) = delete;

    /// The text above the gauges.
    std::string Label() const {
        for (wxWindow* child : m_progress->GetChildren())
            if (auto* label = dynamic_cast<wxStaticText*>(child))
                return Text(label->GetLabel());
        return {};
    }
    wxGauge* Gauge() const { return m_progress->MainGauge(); }

private:
    TRecordContext& m_context;
    std::unique_ptr<ProgressFrame> m_progress;
    std::unique_ptr<TransferLine> m_port;
};

/// A page of a digital radio without memories, in its own working directory.
class TRecordDriverTest : public TransferTest {
protected:
    void SetUp() override {
        TransferTest::SetUp();
        m_formerDirectory = std::filesystem::current_path();
        std::filesystem::current_path(m_folder.Path());
        UsePage(Kdrv716B);
        m_context.ReplyTimeout = 3000;
        RadioStamp = KnownStamp;
        HeldByRadio = {};
        RadioVersion = "";
        RadioSerial = "";
    }

    void TearDown() override {
        std::filesystem::current_path(m_formerDirectory);
        TransferTest::TearDown();
    }

    static void UsePage(int radio) {
        Retarget(radio, 0);
        for (int row = 1; row < CurrentGrid()->GetNumberRows(); ++row)
            for (int column = 0; column < ColumnTotal; ++column)
                if (!Cell(row, column).empty())
                    SetCell(row, column, "");
        OpModes[0] = NarrowMode | DigitalMode;
    }

    /// Fills a row with a memory as in the records of the transcripts.
    static void FillP25Row(int row, const wxString& transferFlags = "A0", const wxString& flags = "00",
                           const wxString& primary = "000") {
        const bool shadow = (flags[1].GetValue() & 7) != 0;
        const std::pair<int, wxString> cells[] = {
            {MFLG, flags},         {MNUM, wxString::Format("%03d", row)},
            {PRIM, primary},       {SHAD, "N"},
            {SCAN, "N"},           {ZONE, shadow ? "" : "3"},
            {DESC, "HILL"},        {MODE, "n"},
            {RFRQ, "154.1250"},    {RSQL, "t"},
            {RNSV, "5"},           {RTON, "67.0"},
            {RCOD, "023"},         {RTGP, "0001"},
            {RNAC, "293"},         {TFRQ, "154.1250"},
            {TSQL, "t"},           {TTON, "250.3"},
            {TCOD, "754"},         {TTGP, "00FF"},
            {TNAC, "F7E"},         {TIDC, "1234567"},
            {TFLG, transferFlags},
        };
        for (const auto& [column, text] : cells)
            SetCell(row, column, text);
        for (int column = SHD0; column <= SHD6; ++column)
            SetCell(row, column, "0");
    }

    static void AskForWorkingLog() { testbench::WriteFile("Zelk.log", "former text\n"); }

    /// Runs one transfer by a transcript's file, and compares the log too.
    int TransferBy(const std::string& name, int mode) {
        SCOPED_TRACE(name);
        AskForWorkingLog();
        const int status = Transfer(Transcript::FromFile(name), mode);
        EXPECT_EQ(LogWithoutStamps(testbench::ReadText("Zelk.log")), Transcript::FromFile(name).Log());
        return status;
    }

    /// Runs one transfer by a transcript and checks what every transfer must leave.
    int Transfer(const Transcript& transcript, int mode) {
        TranscriptPeer peer(transcript, PressCancel);
        const int status = TransferData(m_context, CurrentGrid(), mode, peer.PortName(), "Test");
        EXPECT_EQ(peer.Finish(), "");
        EXPECT_EQ(m_context.Port, nullptr);
        EXPECT_EQ(m_context.Progress, nullptr);
        EXPECT_FALSE(m_context.LogFile.IsOpened());
        EXPECT_FALSE(m_context.DebugLogFile.IsOpened());
        EXPECT_FALSE(m_context.HardwareFile.IsOpened());
        EXPECT_TRUE(PortIsFree(peer.PortName())) << "the port was not given back";
        ExpectOver();
        return status;
    }

    /// Runs the dialogue alone, without boxes, log and end record.
    int Converse(const Transcript& transcript, int mode) {
        TranscriptPeer peer(transcript, PressCancel);
        const int status = ConverseOn(peer.PortName(), mode);
        EXPECT_EQ(peer.Finish(), "");
        return status;
    }
    int ConverseOn(const std::string& portName, int mode) {
        const Attachment attachment(m_context, portName);
        return DoTransferData(m_context, CurrentGrid(), mode);
    }

    static constexpr const char* UnknownRadio = "This radio's memories were not read by this program.\n";
    static constexpr const char* RadioHoldsMore = "This radio holds memories that this page doesn't.\n";

    /// Expects the question before a purge of a radio that holds, by reason, what the page doesn't.
    static testbench::ExpectedDialog& ExpectPurgeQuestion(testbench::DialogScript& script,
                                                          int answer = wxID_OK,
                                                          const std::string& reason = UnknownRadio) {
        return script
            .ExpectMessage("Purge radio?",
                           reason + "All of them will be erased before the selected rows are sent!", answer)
            .Style(wxOK | wxCANCEL);
    }

    TRecordContext m_context;

private:
    testbench::TempFolder m_folder{"zelk-transfer"};
    std::filesystem::path m_formerDirectory;
};

/// Suite of the digital driver in cases that the transcripts don't cover.
class TRecordDriver : public TRecordDriverTest {};

} // namespace transfertest
