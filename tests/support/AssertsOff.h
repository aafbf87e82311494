// Toolkit assertions as test failures, or not.
#pragma once

#include <wx/debug.h>

namespace testbench {

/// Makes every toolkit assertion a failure of the running test.
void RecordAssertions();

/// Turns toolkit assertions off while it lives, for a behaviour that is required and trips one.
class AssertsOff {
public:
    AssertsOff() : m_before(wxSetAssertHandler(nullptr)) {}
    ~AssertsOff() { wxSetAssertHandler(m_before); }
    AssertsOff(const AssertsOff&) = delete;
    AssertsOff& operator=(const AssertsOff&) = delete;

private:
    wxAssertHandler_t m_before;
};

} // namespace testbench
