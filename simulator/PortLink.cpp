#include "simulator/PortLink.h"

#include <fcntl.h>
#include <pwd.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <stdexcept>

namespace Simulator {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void Fail(const std::string& what) {
    throw std::runtime_error(what);
}

/// True if `path` still names the file that `descriptor` has open.
bool IsSameFile(const std::string& path, int descriptor) {
    struct stat named {};
    struct stat opened {};
    return stat(path.c_str(), &named) == 0 && fstat(descriptor, &opened) == 0 &&
           named.st_ino == opened.st_ino && named.st_dev == opened.st_dev;
}

} // namespace

PortLink::PortLink(const std::string& folder, const std::string& name, const std::string& device)
    : m_path((fs::path(folder) / name).string()),
      m_lockPath((fs::path(folder) / ("." + name + ".lock")).string()), m_device(device) {
    std::error_code error;
    fs::create_directories(folder, error);
    if (error)
        Fail("folder " + folder + " can't be made: " + error.message());
    Lock();
    try {
        MakeLink();
    } catch (...) {
        unlink(m_lockPath.c_str());
        close(m_lock);
        throw;
    }
}

PortLink::~PortLink() {
    if (PointsToDevice())
        unlink(m_path.c_str());
    unlink(m_lockPath.c_str());
    close(m_lock);
}

void PortLink::Lock() {
    for (;;) {
        m_lock = open(m_lockPath.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
        if (m_lock < 0)
            Fail(m_lockPath + ": " + std::strerror(errno));
        if (flock(m_lock, LOCK_EX | LOCK_NB) != 0) {
            const int error = errno;
            close(m_lock);
            if (error == EWOULDBLOCK)
                Fail(m_path + " is played by another zelk-radio: end that one, or give this one a --name");
            Fail(m_lockPath + ": " + std::strerror(error));
        }
        // The previous holder may have removed the file between our open and our lock.
        if (IsSameFile(m_lockPath, m_lock))
            return;
        close(m_lock);
    }
}

void PortLink::MakeLink() {
    std::error_code error;
    const fs::file_status there = fs::symlink_status(m_path, error);
    if (fs::exists(there)) {
        const std::string target = fs::is_symlink(there) ? fs::read_symlink(m_path, error).string() : "";
        // No other process holds the lock, so a link to a pseudo-terminal or to nothing is a leftover.
        if (!target.starts_with("/dev/pts/") && (target.empty() || fs::exists(m_path, error)))
            Fail(m_path + " is no simulated port: it is left alone, choose another --name");
    }
    const std::string fresh = m_lockPath + ".link";
    unlink(fresh.c_str());
    if (symlink(m_device.c_str(), fresh.c_str()) != 0 || rename(fresh.c_str(), m_path.c_str()) != 0) {
        const std::string why = std::strerror(errno);
        unlink(fresh.c_str());
        Fail(m_path + ": " + why);
    }
}

bool PortLink::PointsToDevice() const {
    std::error_code error;
    return fs::read_symlink(m_path, error).string() == m_device && !error;
}

std::string DefaultPortsFolder() {
    std::string home;
    if (const char* named = std::getenv("HOME"))
        home = named;
    else if (const passwd* user = getpwuid(getuid()))
        home = user->pw_dir;
    return home + "/.zelk/ports";
}

} // namespace Simulator
