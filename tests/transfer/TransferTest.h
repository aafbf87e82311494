// A window test that transfers: pages with rows to send, and checks after a transfer.
#pragma once

#include "robot/Files.h"
#include "tests/support/Modals.h"
#include "tests/support/ZelkWindowTest.h"
#include "tests/transfer/RadioPeer.h"
#include "tests/transfer/VirtualSystem.h"
#include "transfer/ProgressFrame.h"
#include "transfer/wxAsyncSerial.h"

#include <wx/memconf.h>
#include <wx/stdpaths.h>

#include <filesystem>
#include <initializer_list>
#include <optional>
#include <string>
#include <utility>

namespace transfertest {

/// No radio of the catalogue, but one that is asked for its information block.
constexpr int AskingRadio = RadioCatalogue::RadioTotal;

constexpr const char* NoSuchPort = "/dev/no-such-port";

inline std::string Text(const wxString& text) {
    return text.utf8_string();
}

/// The progress window that is open, or null.
inline ProgressFrame* OpenProgress() {
    for (wxWindow* window : wxTopLevelWindows)
        if (auto* progress = dynamic_cast<ProgressFrame*>(window))
            return progress;
    return nullptr;
}

/// Does what the Cancel button does, if a transfer runs. Only in virtual time: then a radio's script may do
/// it.
inline void PressCancel() {
    if (ProgressFrame* progress = OpenProgress())
        progress->Cancelled = true;
}

/// A ZelkWindowTest without a log, a port, or a former place of the progress window. Its transfers run in
/// virtual time.
class TransferTest : public ZelkWindowTest {
protected:
    TransferTest() : m_formerConfig(wxConfigBase::Set(new wxMemoryConfig)) { m_system.emplace(); }
    ~TransferTest() override { delete wxConfigBase::Set(m_formerConfig); }

    void SetUp() override {
        ZelkWindowTest::SetUp();
        std::filesystem::remove(LogPath());
        wxAsyncSerial::GetData();
    }

    void TearDown() override {
        std::filesystem::remove(LogPath());
        ZelkWindowTest::TearDown();
    }

    /// Lets the transfers of this test use the computer's time and ports. Call before anything has a port.
    void UseRealTime() { m_system.reset(); }

    /// Time of the transfers.
    static TransferClock::Moment Now() { return CurrentTransferSystem().Clock().Now(); }

    static std::filesystem::path LogPath() {
        return std::filesystem::path(Text(wxStandardPaths::Get().GetUserDataDir())) / "Zelk.log";
    }

    /// Requests a log as a user does.
    static void AskForLog() {
        std::filesystem::create_directories(LogPath().parent_path());
        testbench::WriteFile(LogPath(), "former text\n");
    }

    static std::string LogText() { return testbench::ReadText(LogPath()); }

    /// Fills a row with a memory as a user does; the frequencies in MHz.
    static void FillRow(int row, const wxString& frequency, const wxString& description = "HILL") {
        const std::pair<int, wxString> cells[] = {
            {MNUM, wxString::Format("%03d", row)},
            {SCAN, "5"},
            {DESC, description},
            {MODE, "W"},
            {RFRQ, frequency},
            {RTON, "67.0"},
            {RCOD, "023"},
            {TFRQ, frequency},
            {TTON, "250.3"},
            {TCOD, "754"},
            {TFLG, TflgMade},
        };
        for (const auto& [column, text] : cells)
            SetCell(row, column, text);
    }

    static void Select(std::initializer_list<int> rows) {
        CurrentGrid()->ClearSelection();
        for (const int row : rows)
            CurrentGrid()->SelectRow(row, true);
    }

    static std::string CellText(int row, int column) { return Text(Cell(row, column)); }

    /// All cells of the memory rows as one text.
    static std::string PageText() {
        std::string all;
        for (int row = 1; row < CurrentGrid()->GetNumberRows(); ++row)
            for (const wxString& text : GetRowValues(CurrentPage, row))
                all += Text(text) + "|";
        return all;
    }

    /// Checks what every transfer must leave: a usable window, and nothing of the transfer.
    static void ExpectOver() {
        EXPECT_EQ(OpenProgress(), nullptr) << "the progress window is still there";
        EXPECT_TRUE(MainFrame->IsEnabled()) << "the main window is still disabled";
    }

    static void Upload() {
        wxCommandEvent event;
        MainFrame->OnUpload(event);
    }

    static void Download() {
        wxCommandEvent event;
        MainFrame->OnDownload(event);
    }

    /// Expects the question that precedes a read.
    static testbench::ExpectedDialog& ExpectQuestion(testbench::DialogScript& script, int answer = wxID_OK) {
        return script
            .ExpectMessage("Read Channel Data from Radio?",
                           "This will overwrite any data on this page! Continue?", answer)
            .Style(wxOK | wxCANCEL);
    }

    /// Expects a box with one button. The toolkit adds the icon where none was requested.
    static testbench::ExpectedDialog& ExpectBox(testbench::DialogScript& script, const char* caption,
                                                const char* message) {
        return script.ExpectMessage(caption, message).Style(wxOK | wxCENTRE | wxICON_INFORMATION);
    }

    /// Expects the box with which a driver reports a failure.
    static testbench::ExpectedDialog& ExpectDriverBox(testbench::DialogScript& script, const char* message) {
        return script.ExpectMessage("Error", message).Style(wxOK | wxICON_ERROR);
    }

private:
    wxConfigBase* m_formerConfig;
    std::optional<VirtualSystem> m_system;
};

} // namespace transfertest
