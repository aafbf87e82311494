// A disk on which one call fails, for tests of writing.
#pragma once

#include <filesystem>

/// While an object lives, one system call of this thread that changes files of a folder fails: opening a file
/// for writing, writing, flushing, closing, truncating, changing permissions, renaming. Each write takes only
/// a few bytes, as on a disk that is filling up. So a file needs many writes, and a failing write leaves the
/// beginning of the file written.
///
/// In the test program these calls replace the C library's. Only one object may exist at a time.
class FailingCalls {
public:
    /// @param which number of the call that fails, counted from 1
    /// @param error errno that it sets
    FailingCalls(const std::filesystem::path& folder, int which, int error);
    ~FailingCalls();
    FailingCalls(const FailingCalls&) = delete;
    FailingCalls& operator=(const FailingCalls&) = delete;

    /// True once the failing call has been made.
    bool HasFailed() const;
};
