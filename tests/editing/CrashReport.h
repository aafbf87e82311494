// What a test that crashes was doing.
#pragma once

#include <string>

/// Writes the last words to the error output if the program crashes during its lifetime. One at a time.
class CrashReport {
public:
    CrashReport();
    ~CrashReport();
    CrashReport(const CrashReport&) = delete;
    CrashReport& operator=(const CrashReport&) = delete;

    /// Sets the last words; the first 8000 characters are kept.
    static void Note(const std::string& words);
};
