// Exclusive use of an open port.
#include "transfer/PortLock.h"

#include "tests/support/PseudoTerminal.h"
#include "tests/transfer/SerialWaiting.h"
#include "transfer/AsyncSerial.h"

#include <boost/system/system_error.hpp>
#include <gtest/gtest.h>

#include <sys/file.h>
#include <sys/wait.h>

#include <filesystem>

namespace {

bool CanOpen(AsyncSerial& port, const std::string& name) {
    try {
        port.open(name, 9600);
    } catch (const boost::system::system_error&) {
        return false;
    }
    return true;
}

// A second process that opens and closes the port on request. Create it before this process has a thread.
class OtherProcess {
public:
    explicit OtherProcess(const std::string& portName) {
        EXPECT_EQ(pipe(m_order), 0);
        EXPECT_EQ(pipe(m_answer), 0);
        m_id = fork();
        if (m_id == 0)
            Run(portName);
    }

    ~OtherProcess() {
        ::close(m_order[1]);
        int status = 0;
        waitpid(m_id, &status, 0);
        for (const int descriptor : {m_order[0], m_answer[0], m_answer[1]})
            ::close(descriptor);
    }

    /// Result of the request: 'y' for opened, 'n' for refused, 'c' for closed.
    char Order(char order) {
        char answer = '?';
        EXPECT_EQ(::write(m_order[1], &order, 1), 1);
        EXPECT_EQ(::read(m_answer[0], &answer, 1), 1);
        return answer;
    }

private:
    [[noreturn]] void Run(const std::string& portName) {
        ::close(m_order[1]);
        {
            CallbackAsyncSerial port;
            char order = 0;
            while (::read(m_order[0], &order, 1) == 1) {
                char answer = 'c';
                if (order == 'o')
                    answer = CanOpen(port, portName) ? 'y' : 'n';
                else
                    port.close();
                if (::write(m_answer[1], &answer, 1) != 1)
                    break;
            }
        }
        _exit(0);
    }

    int m_order[2];
    int m_answer[2];
    pid_t m_id;
};

TEST(PortLock, KeepsASecondObjectOutUntilTheFirstCloses) {
    PseudoTerminal device;
    CallbackAsyncSerial first;
    CallbackAsyncSerial second;
    ASSERT_TRUE(CanOpen(first, device.SlaveName()));
    EXPECT_FALSE(CanOpen(second, device.SlaveName()));
    EXPECT_FALSE(second.isOpen());
    first.writeString("undisturbed\r");
    EXPECT_EQ(device.ReadUntil('\r'), "undisturbed\r");
    first.close();
    EXPECT_TRUE(CanOpen(second, device.SlaveName()));
    EXPECT_FALSE(CanOpen(first, device.SlaveName()));
}

TEST(PortLock, HoldsUnderAnotherNameOfTheDevice) {
    PseudoTerminal device;
    const auto link = std::filesystem::temp_directory_path() / ("port-link-" + std::to_string(getpid()));
    std::filesystem::create_symlink(device.SlaveName(), link);
    CallbackAsyncSerial first;
    CallbackAsyncSerial second;
    EXPECT_TRUE(CanOpen(first, device.SlaveName()));
    EXPECT_FALSE(CanOpen(second, link.string()));
    std::filesystem::remove(link);
}

TEST(PortLock, KeepsAnotherProcessOutUntilThePortIsClosed) {
    PseudoTerminal device;
    OtherProcess other(device.SlaveName());
    CallbackAsyncSerial port;
    ASSERT_TRUE(CanOpen(port, device.SlaveName()));
    EXPECT_EQ(other.Order('o'), 'n');
    port.close();
    EXPECT_EQ(other.Order('o'), 'y');
    EXPECT_FALSE(CanOpen(port, device.SlaveName()));
    EXPECT_FALSE(port.isOpen());
    EXPECT_EQ(other.Order('c'), 'c');
    EXPECT_TRUE(CanOpen(port, device.SlaveName()));
}

TEST(PortLock, MarksTheDeviceForOpenersThatAskForNoLockAndLiftsTheMarkAtTheClose) {
    PseudoTerminal device;
    device.HoldSlave(); // if the close doesn't lift the mark, this keeps it alive
    const int watcher = ::open(device.SlaveName().c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK);
    ASSERT_GE(watcher, 0);
    const auto marked = [watcher] {
        int mark = -1;
        ioctl(watcher, TIOCGEXCL, &mark);
        return mark;
    };
    CallbackAsyncSerial port;
    ASSERT_TRUE(CanOpen(port, device.SlaveName()));
    EXPECT_EQ(marked(), 1);
    CallbackAsyncSerial refused;
    EXPECT_FALSE(CanOpen(refused, device.SlaveName()));
    EXPECT_EQ(marked(), 1) << "the refused opener has removed the mark of the port's holder";
    port.close();
    EXPECT_EQ(marked(), 0);
    ::close(watcher);
}

TEST(PortLock, IsNotInheritedByProgramsStartedMeanwhile) {
    PseudoTerminal device;
    CallbackAsyncSerial port;
    ASSERT_TRUE(CanOpen(port, device.SlaveName()));
    int found = 0;
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
        std::error_code error;
        if (std::filesystem::read_symlink(entry, error) != device.SlaveName())
            continue;
        ++found;
        EXPECT_TRUE(fcntl(std::stoi(entry.path().filename()), F_GETFD) & FD_CLOEXEC);
    }
    EXPECT_EQ(found, 1);
}

TEST(PortLock, TellsWhetherTheDeviceWasFree) {
    PseudoTerminal device;
    const int first = ::open(device.SlaveName().c_str(), O_RDWR | O_NOCTTY);
    const int second = ::open(device.SlaveName().c_str(), O_RDWR | O_NOCTTY);
    EXPECT_EQ(LockPort(first), 0);
    EXPECT_EQ(LockPort(second), EWOULDBLOCK);
    UnlockPort(first);
    EXPECT_EQ(LockPort(second), 0);
    UnlockPort(second);
    ::close(first);
    ::close(second);
}

} // namespace
