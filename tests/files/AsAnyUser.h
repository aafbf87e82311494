// A user without special rights, for tests of what the system forbids.
#pragma once

#include <gtest/gtest.h>

#include <sys/types.h>
#include <unistd.h>

/// Has no more rights than any user while it lives, also when the tests run as root.
class AsAnyUser {
public:
    AsAnyUser() {
        if (m_root)
            m_changed = setresuid(AnyUser, AnyUser, 0) == 0;
    }
    ~AsAnyUser() {
        if (m_changed) {
            EXPECT_EQ(setresuid(0, 0, 0), 0);
        }
    }
    AsAnyUser(const AsAnyUser&) = delete;
    AsAnyUser& operator=(const AsAnyUser&) = delete;

private:
    static constexpr uid_t AnyUser = 65534;
    bool m_root = getuid() == 0;
    bool m_changed = false;
};
