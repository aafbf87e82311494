// The program's log in tests.
#pragma once

#include <wx/log.h>
#include <wx/string.h>

#include <string>
#include <vector>

namespace testbench {

/// Turns logging on during its lifetime and keeps every record instead of showing it.
class LogKeeper : public wxLog {
public:
    LogKeeper() : m_former(SetActiveTarget(this)), m_enabled(EnableLogging(true)), m_level(GetLogLevel()) {
        SetLogLevel(wxLOG_Info);
    }
    ~LogKeeper() override {
        SetLogLevel(m_level);
        EnableLogging(m_enabled);
        SetActiveTarget(m_former);
    }

    /// The texts of the records so far, in UTF-8: messages in `lines`, warnings and worse in `errors`.
    std::vector<std::string> lines, errors;

protected:
    void DoLogRecord(wxLogLevel level, const wxString& text, const wxLogRecordInfo&) override {
        (level <= wxLOG_Warning ? errors : lines).push_back(text.utf8_string());
    }

private:
    wxLog* const m_former;
    const bool m_enabled;
    const wxLogLevel m_level;
};

} // namespace testbench
