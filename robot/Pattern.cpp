#include "robot/Pattern.h"

#include <wx/regex.h>

#include <stdexcept>

namespace testbench {

bool Finds(const std::string& expression, const std::string& text) {
    const wxRegEx pattern(wxString::FromUTF8(expression), wxRE_ADVANCED);
    if (!pattern.IsValid()) {
        throw std::runtime_error("no regular expression: " + expression);
    }
    return pattern.Matches(wxString::FromUTF8(text));
}

bool MatchesWhole(const std::string& expression, const std::string& text) {
    return Finds("^(?:" + expression + ")$", text);
}

} // namespace testbench
