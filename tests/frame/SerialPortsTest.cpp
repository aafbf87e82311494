// The list of serial ports: which ones, their names and their order.
#include "frame/SerialPorts.h"

#include "robot/TempFolder.h"
#include "tests/support/PseudoTerminal.h"
#include "transfer/wxAsyncSerial.h"

#include <gtest/gtest.h>
#include <wx/init.h>
#include <wx/stdpaths.h>

#include <grp.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>

namespace {

namespace fs = std::filesystem;
using serialports::Folders;
using serialports::ListPorts;
using Names = std::vector<std::string>;

constexpr uid_t NobodyId = 65534;

// A device folder with links to pseudo-terminals, and a folder for the user's links.
class SerialPortsTest : public ::testing::Test {
protected:
    SerialPortsTest() {
        fs::permissions(m_folder.Path(), fs::perms::all);
        fs::create_directory(Links());
        fs::create_directory(Devices());
    }

    fs::path Devices() const { return m_folder / "dev"; }
    fs::path Links() const { return m_folder / "ports"; }
    Folders TestFolders() const { return {Devices(), Links()}; }

    static std::string Link(const PseudoTerminal& device, const fs::path& name) {
        fs::create_directories(name.parent_path());
        fs::create_symlink(device.SlaveName(), name);
        return name;
    }
    std::string Device(const PseudoTerminal& device, const std::string& name) {
        return Link(device, Devices() / name);
    }

    testbench::TempFolder m_folder;
};

// Drops the superuser's rights during its life, since the superuser may open everything.
class WithoutRights {
public:
    explicit WithoutRights(const PseudoTerminal& device) : m_name(device.SlaveName()) {
        EXPECT_EQ(chmod(m_name.c_str(), 0), 0);
        BecomeIfSuperuser(NobodyId);
    }
    ~WithoutRights() {
        BecomeIfSuperuser(0);
        chmod(m_name.c_str(), 0620);
    }

private:
    static void BecomeIfSuperuser(uid_t user) {
        if (getuid() == 0) {
            EXPECT_EQ(seteuid(user), 0);
        }
    }

    std::string m_name;
};

std::string GroupOf(const PseudoTerminal& device) {
    struct stat facts {};
    EXPECT_EQ(stat(device.SlaveName().c_str(), &facts), 0);
    const group* owner = getgrgid(facts.st_gid);
    return owner ? owner->gr_name : "?";
}

TEST(SerialPortPatterns, AreTheSixKnownOnes) {
    const Names expected = {"/dev/ttyS*",   "/dev/tts/*",     "/dev/ttyUSB*",
                            "/dev/ttyACM*", "/dev/ttyXRUSB*", "/dev/usb/tts/*"};
    EXPECT_EQ(Names(std::begin(serialports::DevicePatterns), std::end(serialports::DevicePatterns)),
              expected);
}

TEST_F(SerialPortsTest, EachPatternFindsItsDevices) {
    for (const char* name : {"ttyS0", "tts/0", "ttyUSB0", "ttyACM3", "ttyXRUSB1", "usb/tts/2"}) {
        PseudoTerminal device;
        const std::string path = Device(device, name);
        EXPECT_EQ(ListPorts(TestFolders()), Names{path}) << name;
        fs::remove(path);
    }
}

TEST_F(SerialPortsTest, OtherNamesAreNoPorts) {
    PseudoTerminal device;
    for (const char* name :
         {"tty0", "console", "ttyprintk", "usb/ttyUSB0", "pts/0", "xttyUSB0", "serial/by-path/a"})
        Device(device, name);
    EXPECT_EQ(ListPorts(TestFolders()), Names{});
}

TEST_F(SerialPortsTest, WithoutAnyPortOrAnyFolderTheListIsEmpty) {
    EXPECT_EQ(ListPorts(TestFolders()), Names{});
    EXPECT_EQ(ListPorts({(m_folder / "absent").string(), (m_folder / "absent too").string()}), Names{});
    EXPECT_EQ(ListPorts({(m_folder / "absent").string(), ""}), Names{});
}

TEST_F(SerialPortsTest, StandInTheNaturalOrderOfTheirNumbers) {
    PseudoTerminal two, ten, nine, modem;
    const Names expected = {Device(modem, "ttyACM1"), Device(two, "ttyUSB2"), Device(nine, "ttyUSB9"),
                            Device(ten, "ttyUSB10")};
    EXPECT_EQ(ListPorts(TestFolders()), expected);
}

TEST_F(SerialPortsTest, AStableNameStandsForItsDevice) {
    PseudoTerminal first, second;
    Device(first, "ttyUSB0");
    const std::string raw = Device(second, "ttyUSB1");
    const std::string byId = Device(first, "serial/by-id/usb-Maker_Cable_A1-if00-port0");
    EXPECT_EQ(ListPorts(TestFolders()), (Names{byId, raw}));
}

TEST_F(SerialPortsTest, ALinkInTheUsersFolderIsAPortAndAStableName) {
    PseudoTerminal cable, simulated;
    Device(cable, "ttyUSB0");
    const std::string own = Link(cable, Links() / "my-cable");
    const std::string radio = Link(simulated, Links() / "NP25");
    EXPECT_EQ(ListPorts(TestFolders()), (Names{radio, own}));
}

TEST_F(SerialPortsTest, ADeviceUnderSeveralNamesIsOfferedOnce) {
    PseudoTerminal device;
    Device(device, "ttyUSB0");
    Device(device, "tts/0");
    const std::string byId = Device(device, "serial/by-id/a");
    Device(device, "serial/by-id/b");
    Link(device, Links() / "z");
    EXPECT_EQ(ListPorts(TestFolders()), Names{byId});
}

TEST_F(SerialPortsTest, ALinkThatLeadsNowhereIsPassedOver) {
    fs::create_symlink(m_folder / "gone", Links() / "stale");
    fs::create_symlink(m_folder / "gone", Devices() / "ttyUSB0");
    PseudoTerminal device;
    const std::string good = Link(device, Links() / "good");
    EXPECT_EQ(ListPorts(TestFolders()), Names{good});
}

TEST_F(SerialPortsTest, WhatIsNoTerminalIsNoPort) {
    std::ofstream(Links() / "file") << "text";
    fs::create_directory(Links() / "folder");
    ASSERT_EQ(mkfifo((Links() / "pipe").c_str(), 0600), 0);
    fs::create_symlink("/dev/null", Devices() / "ttyUSB0");
    EXPECT_EQ(ListPorts(TestFolders()), Names{});
}

TEST_F(SerialPortsTest, APortInUseIsNotOfferedUntilItIsFree) {
    PseudoTerminal device, other;
    const std::string name = Device(device, "ttyUSB0");
    const std::string free = Device(other, "ttyUSB1");
    wxAsyncSerial holder(nullptr, device.SlaveName(), 9600);
    ASSERT_TRUE(holder.isOpen());
    EXPECT_EQ(ListPorts(TestFolders()), Names{free});
    holder.close();
    EXPECT_EQ(ListPorts(TestFolders()), (Names{name, free}));
}

TEST_F(SerialPortsTest, ListingDisturbsNeitherTheHolderNorTheLine) {
    PseudoTerminal device;
    Device(device, "ttyUSB0");
    wxAsyncSerial holder(nullptr, device.SlaveName(), 115200);
    const termios before = device.Settings();
    ListPorts(TestFolders());
    const termios after = device.Settings();
    EXPECT_EQ(device.Speed(), static_cast<speed_t>(B115200));
    EXPECT_EQ(after.c_cflag, before.c_cflag);
    EXPECT_EQ(after.c_lflag, before.c_lflag);
    EXPECT_EQ(after.c_iflag, before.c_iflag);
    holder.write("ID\r");
    EXPECT_EQ(device.ReadUntil('\r'), "ID\r");
    wxAsyncSerial second(nullptr, device.SlaveName(), 9600);
    EXPECT_FALSE(second.isOpen()) << "the holder has lost its lock";
}

TEST_F(SerialPortsTest, ListingLeavesNoLockAndNoDescriptor) {
    PseudoTerminal device;
    const Names expected = {Device(device, "ttyUSB0")};
    const auto openFiles = [] {
        return std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator());
    };
    const auto before = openFiles();
    EXPECT_EQ(ListPorts(TestFolders()), expected);
    EXPECT_EQ(ListPorts(TestFolders()), expected);
    EXPECT_EQ(openFiles(), before);
    wxAsyncSerial port(nullptr, expected.front(), 9600);
    EXPECT_TRUE(port.isOpen());
}

TEST_F(SerialPortsTest, APortWithoutTheRightToOpenItIsNotOffered) {
    PseudoTerminal device;
    const std::string name = Device(device, "ttyUSB0");
    {
        const WithoutRights user(device);
        EXPECT_EQ(ListPorts(TestFolders()), Names{});
    }
    EXPECT_EQ(ListPorts(TestFolders()), Names{name});
}

TEST_F(SerialPortsTest, TheGroupIsThatOfADeviceOrElseDialout) {
    EXPECT_EQ(serialports::PortGroup(TestFolders()), "dialout");
    PseudoTerminal device;
    Device(device, "ttyUSB0");
    EXPECT_EQ(serialports::PortGroup(TestFolders()), GroupOf(device));
}

TEST_F(SerialPortsTest, TheGroupOfABarredDeviceGoesFirst) {
    if (getuid() != 0)
        GTEST_SKIP() << "gives a device to another group, which takes the superuser";
    const group* games = getgrnam("games");
    ASSERT_NE(games, nullptr);
    const gid_t gamesId = games->gr_gid;
    PseudoTerminal open, barred;
    Device(open, "ttyS0");
    Device(barred, "ttyUSB0");
    ASSERT_EQ(chmod(open.SlaveName().c_str(), 0666), 0);
    ASSERT_EQ(chown(barred.SlaveName().c_str(), 0, gamesId), 0);
    const std::string ofOpen = GroupOf(open);
    ASSERT_NE(ofOpen, "games");
    const WithoutRights user(barred);
    EXPECT_EQ(serialports::PortGroup(TestFolders()), "games");
}

TEST(SerialPortHint, NamesTheGroup) {
    const wxInitializer toolkit;
    const std::string group = serialports::PortGroup({"/dev", ""});
    EXPECT_EQ(SerialPortGroupHint(),
              "A port that you may not open is not listed. Serial ports belong to the group \"" + group +
                  "\": ask for membership and log in again.");
}

TEST_F(SerialPortsTest, TheProgramLooksInTheFolderPortsOfTheUsersData) {
    const wxInitializer toolkit;
    const char* const home = std::getenv("HOME");
    const std::string before = home ? home : "";
    setenv("HOME", m_folder.Path().c_str(), 1);
    const fs::path folder = wxStandardPaths::Get().GetUserDataDir().ToStdString() + "/ports";
    EXPECT_EQ(folder.string().rfind(m_folder.Path().string(), 0), 0u) << folder;
    PseudoTerminal device;
    const std::string name = Link(device, folder / "simulated");
    EXPECT_NE(ListSerialPorts().Index(name), wxNOT_FOUND);
    setenv("HOME", before.c_str(), 1);
}

TEST(SerialPortHardware, IsAskedOfBoardPortsOnly) {
    struct Case {
        const char* node;
        std::optional<int> chip;
        bool expected;
    };
    const Case cases[] = {
        {"ttyS0", 0, false},
        {"ttyS0", 4, true},
        {"ttyS31", 1, true},
        {"ttyS4", std::nullopt, false},
        {"ttyUSB0", 0, true},
        {"ttyUSB0", std::nullopt, true},
        {"ttyACM0", std::nullopt, true},
        {"ttySAC1", 0, true},
        {"3", std::nullopt, true},
    };
    for (const Case& entry : cases)
        EXPECT_EQ(serialports::HasHardware(entry.node, entry.chip), entry.expected)
            << entry.node << " chip " << entry.chip.value_or(-1);
}

TEST(SerialPortOrder, CountsDigitsAsNumbers) {
    struct Case {
        const char* less;
        const char* greater;
    };
    const Case cases[] = {
        {"ttyUSB2", "ttyUSB10"},
        {"ttyUSB9", "ttyUSB10"},
        {"ttyACM9", "ttyS0"},
        {"tty", "tty0"},
        {"a1b2", "a1b10"},
        {"a2b1", "a10b1"},
        {"ttyS01", "ttyS1"},
        {"ttyS1", "ttyS02"},
        {"1", "a"},
        {"", "a"},
        {"port99999999999999999998", "port99999999999999999999"},
        {"ttyS0", "ttyS1"},
    };
    for (const Case& entry : cases) {
        EXPECT_TRUE(serialports::NaturalLess(entry.less, entry.greater))
            << entry.less << " before " << entry.greater;
        EXPECT_FALSE(serialports::NaturalLess(entry.greater, entry.less))
            << entry.greater << " not before " << entry.less;
        EXPECT_FALSE(serialports::NaturalLess(entry.less, entry.less)) << entry.less;
    }
}

TEST(SerialPortNames, PreferTheStableOneOfADevice) {
    const Names names = serialports::OneNamePerDevice({
        {"/dev/ttyUSB0", 1, false},
        {"/dev/serial/by-id/b", 1, true},
        {"/dev/ttyUSB10", 2, false},
        {"/dev/ttyUSB9", 3, false},
        {"/dev/tts/9", 3, false},
    });
    EXPECT_EQ(names, (Names{"/dev/serial/by-id/b", "/dev/tts/9", "/dev/ttyUSB10"}));
    EXPECT_EQ(serialports::OneNamePerDevice({}), Names{});
}

} // namespace
