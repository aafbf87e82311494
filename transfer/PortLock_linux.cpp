#include "transfer/PortLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/ioctl.h>

#include <cerrno>

int LockPort(PortHandle handle) {
    // The lock works against every program that asks for it, even the superuser's; the terminal's exclusive
    // mark keeps out programs that don't ask.
    if (flock(handle, LOCK_EX | LOCK_NB) != 0 || ioctl(handle, TIOCEXCL) != 0)
        return errno;
    fcntl(handle, F_SETFD, FD_CLOEXEC);
    return 0;
}

void UnlockPort(PortHandle handle) {
    ioctl(handle, TIOCNXCL);
    flock(handle, LOCK_UN);
}
