#include "tests/editing/CrashReport.h"

#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstring>

namespace {

/// Kept ready: a signal handler may not build texts.
char lastWords[8192];

struct sigaction& Before(int signal) {
    static struct sigaction segv, abrt;
    return signal == SIGSEGV ? segv : abrt;
}

} // namespace

CrashReport::CrashReport() {
    struct sigaction action {};
    action.sa_handler = [](int signal) {
        [[maybe_unused]] const auto written = write(STDERR_FILENO, lastWords, strlen(lastWords));
        sigaction(signal, &Before(signal), nullptr); // the fault occurs again
        if (signal == SIGABRT)
            raise(signal);
    };
    for (int signal : {SIGSEGV, SIGABRT})
        sigaction(signal, &action, &Before(signal));
}

CrashReport::~CrashReport() {
    for (int signal : {SIGSEGV, SIGABRT})
        sigaction(signal, &Before(signal), nullptr);
}

void CrashReport::Note(const std::string& words) {
    snprintf(lastWords, sizeof lastWords, "%.8000s\n", words.c_str());
}
