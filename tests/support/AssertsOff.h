// Toolkit assertions, reported as test failures or turned off.
#pragma once

#include <wx/debug.h>

namespace testbench {

/// Turns every toolkit assertion into a failure of the running test.
void RecordAssertions();

/// Turns toolkit assertions off during its lifetime, for required behaviour that triggers one.
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
