#include "files/SaveOutcome.h"

#include "catalogue/TextNumbers.h"

namespace {

/// Characters of a name that fit after the longest verdict, and how many of them come from its start.
constexpr size_t LongestName = 22;
constexpr size_t NameBeginning = 10;

struct Reason {
    std::errc error;
    const char* text;
};

/// Texts that are shorter than the system's, or say more about a save.
constexpr Reason Reasons[] = {
    {std::errc::permission_denied, "no permission"},
    {std::errc::operation_not_permitted, "no permission"},
    {std::errc::read_only_file_system, "read-only disk"},
    {std::errc::no_such_file_or_directory, "folder not found"},
    {std::errc::not_a_directory, "folder not found"},
    {std::errc::is_a_directory, "a folder has this name"},
    {std::errc::filename_too_long, "name too long"},
    {std::errc::no_space_on_device, "disk full"},
    {std::errc::io_error, "disk error"},
};

wxString SystemReason(const std::error_code& error) {
    const std::string message = error.message();
    const wxString text = wxString::FromUTF8(message);
    // Windows has messages in the user's code page.
    return text.empty() ? wxString(message) : text;
}

wxString ShortReason(const std::error_code& error) {
    for (const Reason& reason : Reasons)
        if (error == reason.error)
            return reason.text;
    return SystemReason(error);
}

wxString LeftOutStory(const std::vector<int>& rows) {
    const wxString text = rows.size() == 1 ? wxString("1 row is incomplete and was not saved")
                                           : wxString::Format("%d rows are incomplete and were not saved",
                                                              static_cast<int>(rows.size()));
    return text + ": " + NumberList(rows);
}

wxString LeftOutVerdict(size_t rows) {
    return rows == 1 ? wxString("1 row NOT SAVED: ")
                     : wxString::Format("%d rows NOT SAVED: ", static_cast<int>(rows));
}

} // namespace

wxString ShortFileName(const wxString& name) {
    if (name.length() <= LongestName)
        return name;
    const size_t end = LongestName - NameBeginning - 1;
    return name.Left(NameBeginning) + wxUniChar(0x2026) + name.Right(end);
}

Outcome SavedOutcome(const wxString& file, const std::vector<int>& leftOut) {
    const bool withoutDefaults = !leftOut.empty() && leftOut.front() == 0;
    const std::vector<int> memories(leftOut.begin() + withoutDefaults, leftOut.end());
    const wxString saved = "Saved ";
    Outcome outcome{(memories.empty() ? saved : LeftOutVerdict(memories.size())) + ShortFileName(file),
                    saved + file};
    if (!memories.empty())
        outcome.story += "; " + LeftOutStory(memories);
    const wxString defaults = "the default row is incomplete and was not saved";
    if (withoutDefaults)
        outcome.story += "; " + defaults;
    return outcome;
}

Outcome NotSavedOutcome(const wxString& path, const std::error_code& error, bool damaged) {
    const wxString start = "NOT SAVED: ";
    const wxString story = start + path + ": " + SystemReason(error);
    if (!damaged)
        return {start + ShortReason(error), story};
    const wxString advice = "The file is damaged. Save under another name.";
    return {start + "file damaged", story + "\n" + advice};
}
