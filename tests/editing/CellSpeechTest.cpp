// The words for a cell, without a window.
#include "editing/CellSpeech.h"

#include <gtest/gtest.h>

namespace {

struct Case {
    const char* name;
    SeenCell cell;
    const char* words;
};

const SeenCell Frequency{.row = 3, .heading = "RxFreq", .text = "154.4525"};

SeenCell With(SeenCell cell, void (*change)(SeenCell&)) {
    change(cell);
    return cell;
}

const Case Cases[] = {
    {"plain", Frequency, "Row 3, RxFreq, 154.4525"},
    {"repaired", With(Frequency, [](SeenCell& cell) { cell.isRepaired = true; }),
     "Row 3, RxFreq, 154.4525, repaired"},
    {"marked", With(Frequency, [](SeenCell& cell) { cell.isMarked = true; }),
     "Row 3, RxFreq, 154.4525, marked"},
    {"read only", With(Frequency, [](SeenCell& cell) { cell.isReadOnly = true; }),
     "Row 3, RxFreq, 154.4525, read only"},
    {"empty", With(Frequency, [](SeenCell& cell) { cell.text.clear(); }), "Row 3, RxFreq, empty"},
    {"default row", With(Frequency, [](SeenCell& cell) { cell.row = 0; }), "Default row, RxFreq, 154.4525"},
    {"column without heading", With(Frequency, [](SeenCell& cell) { cell.heading.clear(); }),
     "Row 3, 154.4525"},
    {"selected alone",
     With(Frequency,
          [](SeenCell& cell) {
              cell.isSelected = true;
              cell.firstSelected = cell.lastSelected = 3;
          }),
     "Row 3, RxFreq, 154.4525, selected"},
    {"selected with others",
     With(Frequency,
          [](SeenCell& cell) {
              cell.isSelected = true;
              cell.firstSelected = 2;
              cell.lastSelected = 7;
          }),
     "Row 3, RxFreq, 154.4525, rows 2 to 7 selected"},
    {"everything",
     With(Frequency,
          [](SeenCell& cell) {
              cell.isRepaired = cell.isReadOnly = cell.isSelected = true;
              cell.firstSelected = cell.lastSelected = 3;
          }),
     "Row 3, RxFreq, 154.4525, repaired, read only, selected"},
};

} // namespace

TEST(CellSpeech, SaysPlaceTextAndState) {
    for (const Case& one : Cases)
        EXPECT_EQ(SpokenCell(one.cell).utf8_string(), one.words) << one.name;
}

TEST(CellSpeech, NamesAnEditorByItsPlace) {
    EXPECT_EQ(SpokenPlace(Frequency).utf8_string(), "Row 3, RxFreq");
    EXPECT_EQ(SpokenPlace({.heading = "Desc"}).utf8_string(), "Default row, Desc");
}

TEST(CellSpeech, SaysScanListsByTheirNumbers) {
    EXPECT_EQ(SpokenScanLists(-1), "");
    EXPECT_EQ(SpokenScanLists(0), "no list");
    EXPECT_EQ(SpokenScanLists(0b00010), "list 2");
    EXPECT_EQ(SpokenScanLists(0b10101), "lists 1, 3, 5");
    EXPECT_EQ(SpokenScanLists(0b11111), "lists 1, 2, 3, 4, 5");
}
