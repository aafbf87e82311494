// Which cells a text finds, and in which order.
#include "editing/FindText.h"

#include <gtest/gtest.h>

#include <set>

TEST(FoundText, IsPartOfTheCellInAnyCaseOrTheSameNumber) {
    const struct {
        const char *shown, *wanted;
        bool found;
    } cases[] = {
        {"OLD FERRY", "ferry", true},
        {"ferry", "FERRY", true},
        {"FERRY", "ferry 1", false},
        {"154.45250", "154.4525", true},
        {"154.4525", "154.45250", true},
        {"154.4525", "154,4525", true},
        {"154.45250", "154.45", true},
        {"154.4625", "154.4525", false},
        {"67.0", "67", true},
        {"67.0", "067.00", true},
        {"023", "23", true},
        {"OFF", "0", false},
        {"FERRY", " ferry ", true},
        {"FERRY", "", false},
        {"FERRY", "  ", false},
        {"", "x", false},
        {"", "0", false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(IsFoundBy(c.shown, c.wanted), c.found) << c.shown << " by " << c.wanted;
}

TEST(FoundCells, ComeInTurnAndRoundTheEnds) {
    const struct {
        const char* name;
        int from;
        bool forward;
        std::set<int> matches;
        int position; ///< -1: none
        bool wrapped;
    } cases[] = {
        {"next", 2, true, {1, 4, 6}, 4, false},
        {"not its own first", 4, true, {1, 4, 6}, 6, false},
        {"round the end", 6, true, {1, 4, 6}, 1, true},
        {"previous", 4, false, {1, 4, 6}, 1, false},
        {"round the start", 1, false, {1, 4, 6}, 6, true},
        {"its own last, forward", 4, true, {4}, 4, true},
        {"its own last, backward", 4, false, {4}, 4, true},
        {"none", 4, true, {}, -1, false},
        {"before all", -1, true, {0, 9}, 0, false},
        {"behind all", 10, false, {0, 9}, 9, false},
        {"the last from the first", 0, false, {9}, 9, true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const std::set<int>& matches = c.matches;
        const auto found = NextMatch(10, c.from, c.forward, [&](int at) { return matches.count(at) > 0; });
        EXPECT_EQ(found ? found->position : -1, c.position);
        EXPECT_EQ(found && found->wrapped, c.wrapped);
    }
    EXPECT_FALSE(NextMatch(0, 0, true, [](int) { return true; }).has_value());
}
