#include "tests/support/AssertsOff.h"

#include <gtest/gtest.h>
#include <wx/string.h>

namespace testbench {

namespace {

void Record(const wxString& file, int line, const wxString& function, const wxString& condition,
            const wxString& message) {
    ADD_FAILURE_AT(file.utf8_str(), line) << "toolkit assertion \"" << condition.utf8_string() << "\" in "
                                          << function.utf8_string() << ": " << message.utf8_string();
}

} // namespace

void RecordAssertions() {
    wxSetAssertHandler(Record);
}

} // namespace testbench
