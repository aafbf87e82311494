#include "files/SaveOutcome.h"

#include "commands/StatusOutcome.h"
#include "tests/files/ChannelFileTest.h"

#include <wx/statusbr.h>

#include <numeric>

TEST(SaveOutcomeText, NamesRowsAndTheDefaultRow) {
    const struct {
        std::vector<int> leftOut;
        const char *verdict, *story;
    } cases[] = {
        {{}, "Saved a.zelk", "Saved a.zelk"},
        {{0}, "Saved a.zelk", "Saved a.zelk; the default row is incomplete and was not saved"},
        {{5}, "1 row NOT SAVED: a.zelk", "Saved a.zelk; 1 row is incomplete and was not saved: 5"},
        {{5, 17, 40},
         "3 rows NOT SAVED: a.zelk",
         "Saved a.zelk; 3 rows are incomplete and were not saved: 5, 17, 40"},
        {{0, 5},
         "1 row NOT SAVED: a.zelk",
         "Saved a.zelk; 1 row is incomplete and was not saved: 5; the default row is incomplete and was not "
         "saved"},
    };
    for (const auto& [leftOut, verdict, story] : cases) {
        const Outcome outcome = SavedOutcome("a.zelk", leftOut);
        EXPECT_EQ(outcome.verdict.utf8_string(), verdict);
        EXPECT_EQ(outcome.story.utf8_string(), story);
    }
}

TEST(SaveOutcomeText, OfAFailureSaysShortlyWhyAndTellsTheSystemsWordsBehindThePath) {
    const struct {
        std::errc error;
        const char *verdict, *story;
    } cases[] = {
        {std::errc::permission_denied, "NOT SAVED: no permission", "NOT SAVED: /d/a.zelk: Permission denied"},
        {std::errc::no_space_on_device, "NOT SAVED: disk full",
         "NOT SAVED: /d/a.zelk: No space left on device"},
        {std::errc::read_only_file_system, "NOT SAVED: read-only disk",
         "NOT SAVED: /d/a.zelk: Read-only file system"},
        {std::errc::too_many_files_open, "NOT SAVED: Too many open files",
         "NOT SAVED: /d/a.zelk: Too many open files"},
    };
    for (const auto& [error, verdict, story] : cases) {
        const Outcome outcome = NotSavedOutcome("/d/a.zelk", std::make_error_code(error), false);
        EXPECT_EQ(outcome.verdict.utf8_string(), verdict);
        EXPECT_EQ(outcome.story.utf8_string(), story);
    }
}

TEST(SaveOutcomeText, OfAFileThatIsDamagedSaysSoFirst) {
    const Outcome outcome =
        NotSavedOutcome("/d/a.zelk", std::make_error_code(std::errc::no_space_on_device), true);
    EXPECT_EQ(outcome.verdict.utf8_string(), "NOT SAVED: file damaged");
    EXPECT_EQ(outcome.story.utf8_string(),
              "NOT SAVED: /d/a.zelk: No space left on device\nThe file is damaged. Save under another name.");
}

TEST(SaveOutcomeText, KeepsBeginningAndExtensionOfALongName) {
    EXPECT_EQ(ShortFileName("twenty-two chars.zelk").utf8_string(), "twenty-two chars.zelk");
    EXPECT_EQ(ShortFileName("A list of all channels of the harbour, winter.zelk").utf8_string(),
              "A list of \xE2\x80\xA6winter.zelk");
}

using SaveOutcome = ChannelFileTest;

TEST_F(SaveOutcome, FitsItsFieldInAWindowOfDefaultSize) {
    std::vector<int> all(502);
    std::iota(all.begin(), all.end(), 1);
    const wxString name = "HARBOUR WATCH CHANNELS 2026 WINTER.zelk";
    for (const Outcome& outcome :
         {SavedOutcome(name, {}), SavedOutcome(name, all), SavedOutcome("quay.zelk", {1}),
          NotSavedOutcome("a", std::make_error_code(std::errc::is_a_directory), false),
          NotSavedOutcome("a", std::make_error_code(std::errc::too_many_files_open_in_system), false)}) {
        TellOutcome(outcome.verdict, outcome.story);
        EXPECT_EQ(MainFrame->m_statusBar->GetStatusText(0), outcome.verdict);
    }
}
