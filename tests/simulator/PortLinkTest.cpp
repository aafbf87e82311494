#include "simulator/PortLink.h"

#include "tests/simulator/PortClient.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>

namespace {

using namespace testbench;
namespace fs = std::filesystem;
using Simulator::PortLink;

std::string ProblemOf(const std::string& folder, const std::string& name) {
    try {
        PortLink link(folder, name, "/dev/pts/77");
    } catch (const std::runtime_error& failure) {
        return failure.what();
    }
    return {};
}

TEST(PortLink, IsMadeWithItsFolderAndGoesWithTheObject) {
    const TempFolder folder;
    const std::string ports = folder / "deep/ports";
    {
        PortLink link(ports, "KRV-214", "/dev/pts/77");
        EXPECT_EQ(link.Path(), ports + "/KRV-214");
        EXPECT_EQ(fs::read_symlink(link.Path()), "/dev/pts/77");
    }
    EXPECT_TRUE(fs::is_empty(ports)) << "link and lock file are gone";
}

TEST(PortLink, ReplacesWhatNobodyPlays) {
    for (const char* target : {"/dev/pts/99999", "/dev/pts/ptmx", "/nowhere"}) {
        const TempFolder folder;
        fs::create_symlink(target, folder / "radio");
        PortLink link(folder.Path(), "radio", "/dev/pts/77");
        EXPECT_EQ(fs::read_symlink(folder / "radio"), "/dev/pts/77") << target;
    }
}

TEST(PortLink, ReplacesAnotherEvenIfTheLockFileWasLeft) {
    const TempFolder folder;
    std::ofstream(folder / ".radio.lock") << "";
    fs::create_symlink("/dev/pts/99999", folder / "radio");
    EXPECT_EQ(ProblemOf(folder.Path(), "radio"), "");
}

TEST(PortLink, InUseIsRefused) {
    const TempFolder folder;
    auto first = std::make_unique<PortLink>(folder.Path(), "radio", "/dev/pts/78");
    EXPECT_NE(ProblemOf(folder.Path(), "radio").find("played by another"), std::string::npos);
    EXPECT_EQ(fs::read_symlink(folder / "radio"), "/dev/pts/78");
    EXPECT_EQ(ProblemOf(folder.Path(), "other"), "") << "another name is free";
    first.reset();
    EXPECT_EQ(ProblemOf(folder.Path(), "radio"), "");
}

TEST(PortLink, LeavesThingsAloneThatAreNoSimulatedPort) {
    const TempFolder folder;
    std::ofstream(folder / "file") << "mine";
    fs::create_symlink("/dev/null", folder / "device");
    fs::create_directory(folder / "folder");
    for (const char* name : {"file", "device", "folder"})
        EXPECT_NE(ProblemOf(folder.Path(), name).find("left alone"), std::string::npos) << name;
    EXPECT_EQ(ReadFile(folder / "file"), "mine");
    EXPECT_EQ(fs::read_symlink(folder / "device"), "/dev/null");
}

TEST(PortLink, ThatPointsElsewhereByNowIsNotRemoved) {
    const TempFolder folder;
    {
        PortLink link(folder.Path(), "radio", "/dev/pts/77");
        fs::remove(link.Path());
        fs::create_symlink("/dev/pts/78", link.Path());
    }
    EXPECT_EQ(fs::read_symlink(folder / "radio"), "/dev/pts/78");
}

TEST(PortsFolder, LiesInTheHomeDirectory) {
    const char* const old = std::getenv("HOME");
    const std::string kept = old ? old : "";
    setenv("HOME", "/some/where", 1);
    EXPECT_EQ(Simulator::DefaultPortsFolder(), "/some/where/.zelk/ports");
    unsetenv("HOME");
    EXPECT_TRUE(Simulator::DefaultPortsFolder().ends_with("/.zelk/ports"));
    EXPECT_GT(Simulator::DefaultPortsFolder().size(), std::string("/.zelk/ports").size());
    if (old)
        setenv("HOME", kept.c_str(), 1);
}

} // namespace
