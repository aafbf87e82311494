// A disk on which one call goes wrong, for tests of writing.
#pragma once

#include <filesystem>

/// While it lives, one call of this thread to the system that changes files of a folder fails: opening a file
/// for writing, writing, flushing, closing, cutting off, changing permissions, renaming. A write takes a few
/// bytes at a time, as it does on a disk that gets full, so that a file needs many and one that fails leaves
/// the beginning of the file written.
///
/// The program of tests has these calls in place of the C library's. At most one object at a time.
class FailingCalls {
public:
    /// @param which the call that fails, counted from 1
    /// @param error the errno that it sets
    FailingCalls(std::filesystem::path folder, int which, int error);
    ~FailingCalls();
    FailingCalls(const FailingCalls&) = delete;
    FailingCalls& operator=(const FailingCalls&) = delete;

    /// True once that call has come.
    bool HasFailed() const;
};
