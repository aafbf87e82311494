#include "tests/files/FailingCalls.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <set>
#include <string>
#include <string_view>
#include <thread>

namespace {

constexpr size_t MostBytesOfAWrite = 512;

struct Plan {
    std::string folder; ///< ends with a separator
    int which, error;
    int calls = 0;
    std::set<int> files = {}; ///< descriptors that are open for writing in the folder
    std::thread::id thread = std::this_thread::get_id();
};

Plan* plan = nullptr;

/// The plan if it is the calling thread's, otherwise null.
Plan* OwnPlan() {
    return plan && plan->thread == std::this_thread::get_id() ? plan : nullptr;
}

bool IsInFolder(const char* path) {
    return OwnPlan() && std::string_view(path).starts_with(plan->folder);
}

bool IsOwnFile(int file) {
    return OwnPlan() && plan->files.count(file);
}

/// Counts a call that the plan covers. Returns true if it is the failing one.
bool Fails() {
    if (++plan->calls != plan->which)
        return false;
    errno = plan->error;
    return true;
}

} // namespace

FailingCalls::FailingCalls(const std::filesystem::path& folder, int which, int error) {
    plan = new Plan{(folder / "").string(), which, error};
}

FailingCalls::~FailingCalls() {
    delete plan;
    plan = nullptr;
}

bool FailingCalls::HasFailed() const {
    return plan->calls >= plan->which;
}

// All libraries of the program call these functions, so they call the system directly.
extern "C" {

int open64(const char* path, int flags, ...) {
    mode_t mode = 0;
    if (flags & (O_CREAT | O_TMPFILE)) {
        va_list more;
        va_start(more, flags);
        mode = va_arg(more, mode_t);
        va_end(more);
    }
    const bool counts = IsInFolder(path) && (flags & O_ACCMODE) != O_RDONLY;
    if (counts && Fails())
        return -1;
    const int file = static_cast<int>(syscall(SYS_openat, AT_FDCWD, path, flags, mode));
    if (counts && file >= 0)
        plan->files.insert(file);
    return file;
}

ssize_t write(int file, const void* bytes, size_t size) {
    if (IsOwnFile(file)) {
        if (Fails())
            return -1;
        size = std::min(size, MostBytesOfAWrite);
    }
    return syscall(SYS_write, file, bytes, size);
}

int fsync(int file) {
    if (IsOwnFile(file) && Fails())
        return -1;
    return static_cast<int>(syscall(SYS_fsync, file));
}

int close(int file) {
    const bool counts = IsOwnFile(file);
    const int result = static_cast<int>(syscall(SYS_close, file));
    if (!counts)
        return result;
    plan->files.erase(file);
    return Fails() ? -1 : result;
}

int truncate(const char* path, off_t size) noexcept {
    if (IsInFolder(path) && Fails())
        return -1;
    return static_cast<int>(syscall(SYS_truncate, path, size));
}

int fchmodat(int folder, const char* path, mode_t mode, int) noexcept {
    if (IsInFolder(path) && Fails())
        return -1;
    return static_cast<int>(syscall(SYS_fchmodat, folder, path, mode));
}

int rename(const char* from, const char* to) noexcept {
    if (IsInFolder(to) && Fails())
        return -1;
    return static_cast<int>(syscall(SYS_rename, from, to));
}

} // extern "C"
