// A user without special rights, for tests of operations that the system forbids.
#pragma once

#include <gtest/gtest.h>

#include <sys/types.h>
#include <unistd.h>

/// Drops special rights during its life, so that tests run by root see a user's permissions.
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
