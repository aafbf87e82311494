// What tests of printing have in common.
#pragma once

#include "editing/RowLooks.h"
#include "files/ZelkPrinting.h"
#include "tests/files/ChannelFileTest.h"

#include <wx/log.h>

#include <string>
#include <vector>

/// All that a grid's look consists of.
struct GridLook {
    wxColour line, labelBackground, labelText, cellBackground, cellText;
    wxFont label, cell;

    bool operator==(const GridLook&) const = default;
};

inline GridLook LookOf(const wxGrid& grid) {
    return {grid.GetGridLineColour(),        grid.GetLabelBackgroundColour(),
            grid.GetLabelTextColour(),       grid.GetDefaultCellBackgroundColour(),
            grid.GetDefaultCellTextColour(), grid.GetLabelFont(),
            grid.GetDefaultCellFont()};
}

/// What is told in the log while it lives, whatever its level.
class LogKeeper : public wxLog {
public:
    LogKeeper()
        : m_former(wxLog::SetActiveTarget(this)), m_enabled(wxLog::EnableLogging(true)),
          m_level(wxLog::GetLogLevel()) {
        wxLog::SetLogLevel(wxLOG_Info);
    }
    ~LogKeeper() override {
        wxLog::SetLogLevel(m_level);
        wxLog::EnableLogging(m_enabled);
        wxLog::SetActiveTarget(m_former);
    }

    std::vector<std::string> messages; ///< of wxLogMessage
    std::vector<std::string> errors;   ///< and of what is worse

protected:
    void DoLogRecord(wxLogLevel level, const wxString& text, const wxLogRecordInfo&) override {
        (level <= wxLOG_Warning ? errors : messages).push_back(text.utf8_string());
    }

private:
    wxLog* m_former;
    bool m_enabled;
    wxLogLevel m_level;
};

class PrintTest : public ChannelFileTest {
protected:
    /// Every memory of the page, made from its default row.
    static void FillPage() {
        CurrentGrid()->SelectAll();
        CopyValuesToSelection(CurrentPage, GetRowValues(CurrentPage, 0), true, true);
    }

    static void SetLandscape() { PrintData->SetOrientation(wxLANDSCAPE); }
};
