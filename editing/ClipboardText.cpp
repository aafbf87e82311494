#include "editing/ClipboardText.h"

#include <wx/clipbrd.h>
#include <wx/dataobj.h>

#include <optional>

namespace {

bool EndsCell(const wxString& text, size_t at) {
    return at == text.length() || text[at] == '\t' || text[at] == '\n' || text[at] == '\r';
}

/// Reads a cell in quotes that begins at `at`, and moves `at` behind it. Returns nothing, and leaves `at`, if
/// the quotes don't enclose the whole cell.
std::optional<wxString> ReadQuotedCell(const wxString& text, size_t& at) {
    if (at == text.length() || text[at] != '"')
        return std::nullopt;
    wxString cell;
    for (size_t next = at + 1; next < text.length(); ++next) {
        if (text[next] == '"') {
            ++next;
            if (EndsCell(text, next)) {
                at = next;
                return cell;
            }
            if (text[next] != '"')
                return std::nullopt;
        }
        cell += text[next];
    }
    return std::nullopt;
}

wxString ReadCell(const wxString& text, size_t& at) {
    if (const std::optional<wxString> quoted = ReadQuotedCell(text, at))
        return *quoted;
    const size_t start = at;
    while (!EndsCell(text, at))
        ++at;
    return text.Mid(start, at - start);
}

wxString Quoted(const wxString& text) {
    const bool plain = text.find_first_of("\t\r\n") == wxString::npos && !text.StartsWith("\"");
    if (plain)
        return text;
    wxString doubled = text;
    doubled.Replace("\"", "\"\"");
    return '"' + doubled + '"';
}

} // namespace

wxString TextOfClipboard() {
    wxTextDataObject data;
    const wxClipboardLocker lock;
    if (!lock || !wxTheClipboard->GetData(data))
        return "";
    return data.GetText();
}

ClipboardRows SplitClipboardText(const wxString& text) {
    ClipboardRows rows;
    size_t at = 0;
    while (at < text.length()) {
        std::vector<wxString> row{ReadCell(text, at)};
        while (at < text.length() && text[at] == '\t')
            row.push_back(ReadCell(text, ++at));
        rows.push_back(std::move(row));
        at += text.Mid(at, 2) == "\r\n" ? size_t{2} : size_t{1};
    }
    return rows;
}

wxString JoinClipboardText(const ClipboardRows& rows, const wxString& lineEnd) {
    wxString text;
    for (const std::vector<wxString>& row : rows) {
        for (size_t col = 0; col < row.size(); ++col)
            text += (col == 0 ? wxString() : wxString('\t')) + Quoted(row[col]);
        text += lineEnd;
    }
    return text;
}
