// The program as a desktop starts it, with or without a file name.
#include "resources/ToolImages.h"
#include "robot/ClickPicture.h"
#include "robot/Files.h"
#include "robot/Hands.h"
#include "robot/Pump.h"
#include "robot/TempFolder.h"
#include "tests/frame/StartedProgram.h"
#include "tests/support/Places.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>

using namespace testbench;
namespace fs = std::filesystem;

namespace {

const std::string MainWindowTitle = "Orv Zelk: Page 1 of 1.";

/// A busy machine takes many seconds to start a program.
constexpr int StartLimitMs = 60000;

class CommandLine : public testing::Test {
protected:
    static void SetUpTestSuite() { wxInitAllImageHandlers(); }

    bool WaitForFocus(const std::string& title) {
        return PumpUntil([&] { return m_hands.FocusedTitle() == title; }, StartLimitMs);
    }

    void Save() { ASSERT_TRUE(ClickPicture(m_hands, GetToolImage(ToolImage::Save))); }

    /// The file's text from the radio type on. The text before it contains the time of the save.
    static std::string Contents(const fs::path& file) {
        const std::string text = ReadFile(file);
        return text.substr(std::min(text.find("<FType>"), text.size()));
    }

    static StartedProgram Start(const std::vector<std::string>& arguments, const fs::path& folder = {}) {
        return {ZELK_PROGRAM, arguments, folder};
    }

    /// Copies the example into the test's folder and dates it 1999.
    fs::path CopyExample(const std::string& name) {
        std::string text = ReadFile(fs::path(ExamplesFolder()) / name);
        const size_t date = text.find("<Date>") + 6;
        text.replace(date, text.find("</Date>") - date, "01-Jan-1999");
        WriteFile(m_folder / name, text);
        return m_folder / name;
    }

    /// Saves the page and expects an unchanged file.
    void ExpectPageIsOf(const fs::path& file) {
        const std::string before = Contents(file);
        Save();
        // While the program replaces the file, Windows lets nobody else read it.
        const auto isSaved = [&] {
            const std::string text = ReadFileIfAny(file);
            return !text.empty() && text.find("1999") == std::string::npos;
        };
        ASSERT_TRUE(PumpUntil(isSaved, StartLimitMs)) << "the page was not saved into " << file;
        EXPECT_EQ(Contents(file), before);
    }

    Hands m_hands;
    const TempFolder m_folder;
};

} // namespace

TEST_F(CommandLine, NamesAFileThatOpensOnTheFirstPage) {
    const fs::path file = CopyExample("krv-214-vhf.zelk");
    const StartedProgram zelk = Start({m_folder.File("krv-214-vhf.zelk")});
    ASSERT_TRUE(WaitForFocus(MainWindowTitle));
    ExpectPageIsOf(file);
}

TEST_F(CommandLine, NamesAFileOfADigitalRadioInTheWorkingFolder) {
    const fs::path file = CopyExample("kdrv-716b-p25.zelk");
    const StartedProgram zelk = Start({"kdrv-716b-p25.zelk"}, m_folder.Path());
    ASSERT_TRUE(WaitForFocus(MainWindowTitle));
    ExpectPageIsOf(file);
}

TEST_F(CommandLine, NamesAFileThatIsNoneAndIsToldSo) {
    WriteFile(m_folder / "list.zelk", "no channels");
    StartedProgram zelk = Start({m_folder.File("list.zelk")});
    ASSERT_TRUE(WaitForFocus("Error"));
    m_hands.Press("Escape");
    EXPECT_TRUE(WaitForFocus(MainWindowTitle));
    EXPECT_TRUE(zelk.IsRunning());
}

TEST_F(CommandLine, WithoutAFileOpensNone) {
    const fs::path file = CopyExample("krv-214-vhf.zelk");
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{}, {"--help"}}) {
        const StartedProgram zelk = Start(arguments, m_folder.Path());
        ASSERT_TRUE(WaitForFocus(MainWindowTitle)) << arguments.size();
        Save();
        // The new page has a default row and no file of its own, so the save asks for one.
        EXPECT_TRUE(WaitForFocus("Save .zelk file...")) << arguments.size();
    }
}
