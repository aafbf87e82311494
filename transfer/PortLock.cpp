// Exclusive use of an open serial device.
#include "transfer/PortLock.h"

#ifndef _WIN32
#include <fcntl.h>
#include <sys/file.h>
#include <sys/ioctl.h>

#include <cerrno>

int LockPort(int descriptor) {
    // The lock works against every program that asks for it, even the superuser's; the terminal's exclusive
    // mark keeps out programs that don't ask.
    if (flock(descriptor, LOCK_EX | LOCK_NB) != 0 || ioctl(descriptor, TIOCEXCL) != 0)
        return errno;
    fcntl(descriptor, F_SETFD, FD_CLOEXEC);
    return 0;
}

void UnlockPort(int descriptor) {
    ioctl(descriptor, TIOCNXCL);
    flock(descriptor, LOCK_UN);
}
#endif
