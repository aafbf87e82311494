#include "tests/editing/CrashReport.h"

#include <windows.h>

#include <csignal>
#include <cstdio>
#include <cstring>

namespace {

/// Kept ready: a handler of faults may not build texts.
char lastWords[8192];

LPTOP_LEVEL_EXCEPTION_FILTER formerFilter = nullptr;
void (*formerAbort)(int) = nullptr;

void Report() {
    DWORD written = 0;
    WriteFile(GetStdHandle(STD_ERROR_HANDLE), lastWords, static_cast<DWORD>(strlen(lastWords)), &written,
              nullptr);
}

LONG WINAPI OnFault(EXCEPTION_POINTERS* fault) {
    Report();
    return formerFilter != nullptr ? formerFilter(fault) : EXCEPTION_CONTINUE_SEARCH;
}

} // namespace

CrashReport::CrashReport() {
    formerFilter = SetUnhandledExceptionFilter(OnFault);
    // The program ends when the handler returns.
    formerAbort = std::signal(SIGABRT, [](int) { Report(); });
}

CrashReport::~CrashReport() {
    SetUnhandledExceptionFilter(formerFilter);
    std::signal(SIGABRT, formerAbort);
}

void CrashReport::Note(const std::string& words) {
    snprintf(lastWords, sizeof lastWords, "%.8000s\n", words.c_str());
}
