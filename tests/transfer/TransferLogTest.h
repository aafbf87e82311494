// Tests of a transfer's log.
#pragma once

#include "robot/TempFolder.h"
#include "transfer/TransferLog.h"

#include <gtest/gtest.h>
#include <wx/ffile.h>
#include <wx/log.h>

#include <filesystem>

namespace transfertest {

/// Fails the test on any message to the user.
class NothingIsTold : public wxLog {
public:
    NothingIsTold() : m_former(wxLog::SetActiveTarget(this)) {}
    ~NothingIsTold() override { wxLog::SetActiveTarget(m_former); }

protected:
    void DoLogRecord(wxLogLevel, const wxString& text, const wxLogRecordInfo&) override {
        ADD_FAILURE() << "showed the user: " << text;
    }

private:
    wxLog* m_former;
};

inline void WriteWholeLog(const wxString& directory) {
    wxFFile file;
    OpenTransferLog(file, directory);
    WriteTransferLog(file, ">ID");
    CloseTransferLog(file);
}

class TransferLogTest : public ::testing::Test {
protected:
    std::filesystem::path LogPath() const { return m_folder / "Zelk.log"; }
    wxString Folder() const { return m_folder.Path().string(); }

    testbench::TempFolder m_folder;
    NothingIsTold m_nothingIsTold;
};

} // namespace transfertest
