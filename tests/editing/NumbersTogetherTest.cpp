// Memory numbers that are entered together.
#include "editing/NumbersTogether.h"

#include <gtest/gtest.h>

TEST(NumbersTogether, StandUnlessAnotherRowKeepsOrGetsTheSame) {
    const struct {
        const char* name;
        std::vector<std::pair<int, int>> wanted;
        std::vector<bool> fits;
    } cases[] = {
        {"a free number", {{1, 9}}, {true}},
        {"its own", {{1, 1}}, {true}},
        {"that of another row", {{1, 2}}, {false}},
        {"two rows change places", {{1, 2}, {2, 1}}, {true, true}},
        {"three rows in a circle", {{1, 2}, {2, 3}, {3, 1}}, {true, true, true}},
        {"one number twice", {{1, 9}, {2, 9}}, {true, false}},
        {"a row that is refused keeps a number that another one wanted", {{1, 2}, {2, 3}}, {false, false}},
        {"a row moves up behind one that leaves", {{3, 9}, {2, 3}}, {true, true}},
        {"a blank row", {{8, 2}, {2, 8}}, {true, true}},
        {"none", {}, {}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(NumbersThatFit({{1, 1}, {2, 2}, {3, 3}}, c.wanted), c.fits) << c.name;
}
