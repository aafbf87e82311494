// The installed program, in a folder that takes the place of the file system's root.
#include "resources/ToolImages.h"
#include "robot/ClickPicture.h"
#include "robot/Files.h"
#include "robot/Hands.h"
#include "robot/Process.h"
#include "robot/Pump.h"
#include "robot/TempFolder.h"

#include <gtest/gtest.h>
#include <wx/filefn.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <regex>
#include <set>
#include <string>

using namespace testbench;
namespace fs = std::filesystem;

namespace {

using Paths = std::set<std::string>;
using Environment = std::vector<std::pair<std::string, std::string>>;

class Installed : public testing::Test {
protected:
    static void SetUpTestSuite() {
        wxInitAllImageHandlers();
        s_root = std::make_unique<TempFolder>();
        Process install({CMAKE_PROGRAM, "--install", BUILD_FOLDER, "--prefix", "/usr"},
                        {.environment = {{"DESTDIR", s_root->Path()}}});
        ASSERT_EQ(install.WaitForExit(30000).value_or(-1), 0) << install.Output();
    }
    static void TearDownTestSuite() { s_root.reset(); }

    static fs::path Usr() { return *s_root / "usr"; }

    /// Everything below the root except folders, relative to it.
    static Paths Files() {
        Paths files;
        for (const auto& entry : fs::recursive_directory_iterator(s_root->Path()))
            if (entry.is_symlink() || !entry.is_directory())
                files.insert(fs::relative(entry.path().parent_path(), s_root->Path()) /
                             entry.path().filename());
        return files;
    }

    static bool HasProgram(const std::string& name) {
        wxPathList folders;
        folders.AddEnvList("PATH");
        return !folders.FindAbsoluteValidPath(name).empty();
    }

    /// Runs a program, which must succeed, and gives its output.
    static std::string Run(const std::vector<std::string>& command, const Environment& environment = {}) {
        Process program(command, {.environment = environment});
        EXPECT_EQ(program.WaitForExit(20000).value_or(-1), 0) << command[0] << ": " << program.Output();
        return program.Output();
    }

    static std::unique_ptr<TempFolder> s_root;
};

std::unique_ptr<TempFolder> Installed::s_root;

/// Building the program needs none of these, testing it does.
#define NEEDS(program) ASSERT_TRUE(HasProgram(program)) << (program) << " is missing: tools/packages test"

} // namespace

TEST_F(Installed, FilesAreThese) {
    Paths expected = {
        "usr/bin/zelk",
        "usr/bin/zelk-radio",
        "usr/lib/zelk/zelk",
        "usr/share/applications/zelk.desktop",
        "usr/share/doc/zelk/changelog.gz",
        "usr/share/doc/zelk/copyright",
        "usr/share/doc/zelk/zelk-radio.md",
        "usr/share/icons/hicolor/128x128/apps/zelk.png",
        "usr/share/icons/hicolor/16x16/apps/zelk.png",
        "usr/share/icons/hicolor/22x22/apps/zelk.png",
        "usr/share/icons/hicolor/24x24/apps/zelk.png",
        "usr/share/icons/hicolor/256x256/apps/zelk.png",
        "usr/share/icons/hicolor/32x32/apps/zelk.png",
        "usr/share/icons/hicolor/48x48/apps/zelk.png",
        "usr/share/icons/hicolor/64x64/apps/zelk.png",
        "usr/share/icons/hicolor/scalable/apps/zelk.svg",
        "usr/share/man/man1/zelk-radio.1.gz",
        "usr/share/man/man1/zelk.1.gz",
        "usr/share/metainfo/local.zelk.zelk.metainfo.xml",
        "usr/share/mime/packages/zelk.xml",
    };
    for (const auto& example : fs::directory_iterator(EXAMPLES_FOLDER))
        expected.insert("usr/share/doc/zelk/examples/" + example.path().filename().string());
    EXPECT_GT(expected.size(), 50u) << "where are the examples?";
    if (fs::exists(BUILT_GUIDE))
        expected.insert("usr/lib/zelk/ZelkUserGuide.pdf");
    EXPECT_EQ(Files(), expected);
}

TEST_F(Installed, ProgramIsStartedByALinkThatMovesWithItsFolder) {
    EXPECT_EQ(fs::read_symlink(Usr() / "bin/zelk"), "../lib/zelk/zelk");
    EXPECT_TRUE(fs::equivalent(Usr() / "bin/zelk", Usr() / "lib/zelk/zelk"));
}

TEST_F(Installed, OnlyProgramsCanBeRunAndEverybodyCanReadAll) {
    const Paths programs = {"usr/bin/zelk-radio", "usr/lib/zelk/zelk",
                            "usr/share/doc/zelk/examples/make-examples"};
    for (const std::string& file : Files()) {
        if (fs::is_symlink(*s_root / file))
            continue;
        const auto mode = static_cast<unsigned>(fs::status(*s_root / file).permissions());
        EXPECT_EQ(mode, programs.count(file) ? 0755u : 0644u) << file;
    }
}

TEST_F(Installed, ExamplesAreWhatTheirScriptBesideThemWrites) {
    NEEDS("python3");
    EXPECT_EQ(Run({Usr() / "share/doc/zelk/examples/make-examples", "--check"}), "");
}

TEST_F(Installed, DesktopEntryIsValid) {
    NEEDS("desktop-file-validate");
    EXPECT_EQ(Run({"desktop-file-validate", Usr() / "share/applications/zelk.desktop"}), "");
}

TEST_F(Installed, DesktopEntryNamesWhatIsInstalled) {
    const std::string entry = ReadFile(Usr() / "share/applications/zelk.desktop");
    EXPECT_NE(entry.find("\nExec=zelk %f\n"), std::string::npos);
    EXPECT_NE(entry.find("\nIcon=zelk\n"), std::string::npos);
    EXPECT_NE(entry.find("\nMimeType=application/x-zelk+xml;\n"), std::string::npos);
}

TEST_F(Installed, MetadataAreValid) {
    NEEDS("appstreamcli");
    Run({"appstreamcli", "validate", "--no-net", Usr() / "share/metainfo/local.zelk.zelk.metainfo.xml"});
}

TEST_F(Installed, ChannelFilesHaveATypeOfTheirOwnByNameAndByContents) {
    NEEDS("update-mime-database");
    NEEDS("gio");
    const std::string data = Usr() / "share";
    Run({"update-mime-database", data + "/mime"});
    // Desktops that look for the root element find it here.
    EXPECT_NE(ReadFile(data + "/mime/XMLnamespaces").find(" ZelkMem application/x-zelk+xml\n"),
              std::string::npos);
    fs::copy_file(fs::path(EXAMPLES_FOLDER) / "krv-214-vhf.zelk", *s_root / "no-extension");
    WriteFile(*s_root / "other.xml", "<?xml version=\"1.0\"?>\n<Other/>\n");
    WriteFile(*s_root / "empty.zelk", "");
    for (const auto& [file, type] :
         {std::pair{fs::path(EXAMPLES_FOLDER) / "krv-214-vhf.zelk", "application/x-zelk+xml"},
          {fs::path(EXAMPLES_FOLDER) / "kdrv-716b-p25.zelk", "application/x-zelk+xml"},
          {*s_root / "no-extension", "application/x-zelk+xml"},
          {*s_root / "other.xml", "application/xml"}}) {
        const std::string output = Run({"gio", "info", "-a", "standard::content-type", file},
                                       {{"XDG_DATA_DIRS", data + ":/usr/share"}});
        EXPECT_NE(output.find(std::string("standard::content-type: ") + type + "\n"), std::string::npos)
            << file << ": " << output;
    }
    for (const char* file : {"no-extension", "other.xml", "empty.zelk"})
        fs::remove(*s_root / file);
    fs::remove_all(data + "/mime");
}

TEST_F(Installed, ManualPagesShowWithoutAWarning) {
    NEEDS("man");
    for (const std::string page : {"zelk", "zelk-radio"}) {
        const std::string output =
            Run({"man", "--warnings", "-l", Usr() / "share/man/man1" / (page + ".1.gz")},
                {{"MANWIDTH", "100"}, {"LC_ALL", "C.UTF-8"}});
        EXPECT_EQ(output.find("warning"), std::string::npos) << output;
        EXPECT_NE(output.find("SEE ALSO"), std::string::npos) << page << ": " << output;
    }
}

TEST_F(Installed, ManualOfTheSimulatedRadioKnowsEveryOptionAndFault) {
    const std::string help = Run({Usr() / "bin/zelk-radio", "--help"});
    const std::string page = std::regex_replace(
        Run({"gzip", "-dc", Usr() / "share/man/man1/zelk-radio.1.gz"}), std::regex("\\\\-"), "-");
    const auto names = [](const std::string& text, const char* expression) {
        const std::regex pattern(expression);
        Paths found;
        for (std::sregex_iterator at(text.begin(), text.end(), pattern), end; at != end; ++at)
            found.insert((*at)[1]);
        return found;
    };
    const Paths options = names(help, "\n  (--[a-z-]+)");
    EXPECT_GT(options.size(), 20u) << help;
    EXPECT_EQ(names(page, "\n\\.TP\n\\.[A-Z]+ \"?(--[a-z-]+)"), options);
    const std::string listed = help.substr(help.find("Faults:"));
    const Paths faults = names(listed.substr(0, listed.find('.')), "[ :]([a-z-]+)");
    EXPECT_GT(faults.size(), 10u) << listed;
    const size_t table = page.find("Kind!");
    EXPECT_EQ(names(page.substr(table, page.find(".TE", table) - table), "\n([a-z-]+)!"), faults);
}

TEST_F(Installed, ProgramShowsItsWindowAndFindsTheGuideBesideIt) {
    const TempFolder desk;
    const fs::path opened = desk / "opened";
    WriteFile(desk / "xdg-open", "#!/bin/sh\nprintf '%s' \"$*\" >'" + opened.string() + ".part'\nmv '" +
                                     opened.string() + ".part' '" + opened.string() + "'\n");
    fs::permissions(desk / "xdg-open", fs::perms::owner_all);
    const fs::path guide = Usr() / "lib/zelk/ZelkUserGuide.pdf";
    const bool standIn = !fs::exists(guide);
    if (standIn)
        WriteFile(guide, "%PDF-1.4\n");

    Process zelk({"env", "zelk"},
                 {.folder = desk.Path(),
                  .environment = {{"PATH", desk.Path().string() + ":" + (Usr() / "bin").string() + ":" +
                                               std::getenv("PATH")}}});
    Hands hands;
    ASSERT_TRUE(PumpUntil([&] { return hands.FocusedTitle() == "Orv Zelk: Page 1 of 1."; }, 15000))
        << zelk.Output();
    EXPECT_EQ(fs::read_symlink("/proc/" + std::to_string(zelk.Pid()) + "/exe"), Usr() / "lib/zelk/zelk");
    ASSERT_TRUE(ClickPicture(hands, GetToolImage(ToolImage::Help)));
    ASSERT_TRUE(PumpUntil([&] { return fs::exists(opened); }, 10000))
        << "the window with the keyboard is " << hands.FocusedTitle();
    EXPECT_EQ(ReadFile(opened), guide.string());
    if (standIn)
        fs::remove(guide);
}
