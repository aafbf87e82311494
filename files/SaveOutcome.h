// Status bar report of a save.
#pragma once

#include <wx/string.h>

#include <system_error>
#include <vector>

/// Texts for TellOutcome.
struct Outcome {
    wxString verdict; ///< short enough for the first field of a window of default size
    wxString story;
};

/// Returns the outcome of a successful save. file has an extension and no folder. leftOut are the rows with
/// data that the file lacks, ascending; row 0 counts as the default row, not as a memory.
Outcome SavedOutcome(const wxString& file, const std::vector<int>& leftOut);

/// Returns the outcome of a failed save. damaged: the file at path holds neither its former bytes nor the
/// new ones.
Outcome NotSavedOutcome(const wxString& path, const std::error_code& error, bool damaged);

/// Shortens a long file name by leaving out its middle; the start and the extension stay.
wxString ShortFileName(const wxString& name);
