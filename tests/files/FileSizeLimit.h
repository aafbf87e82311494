// A full disk, for tests of writing.
#pragma once

#include <sys/resource.h>

#include <csignal>

/// Keeps this program's files from growing beyond a size during its life.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes) : m_signal(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_signal);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit m_before{};
    void (*m_signal)(int);
};
