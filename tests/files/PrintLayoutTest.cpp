// How much of a grid fits on a sheet of paper.
#include "files/PrintLayout.h"

#include <gtest/gtest.h>

#include <climits>
#include <ostream>

namespace {

constexpr bool Upright = false, OnItsSide = true;

std::vector<int> Rows(int count, int height = 23) {
    return std::vector<int>(static_cast<size_t>(count), height);
}

/// Four equal margins, as on a new page.
PageMargins Margins(int millimetres) {
    return {{millimetres, millimetres}, {millimetres, millimetres}};
}

struct SheetCase {
    const char* name;
    int paperWidth, paperHeight; ///< millimetres
    PageMargins margins;         ///< millimetres
    bool landscape;
    int totalWidth; ///< pixels
    int rows;       ///< of 23 pixels each
    int rowsPerPage;
};

void PrintTo(const SheetCase& sheet, std::ostream* out) {
    *out << sheet.name;
}

// With the initial margins, 180 by 261 mm of an upright A4 sheet are usable, and 267 by 174 mm of one on its
// side.
const SheetCase SheetCases[] = {
    {"1305 pixels hold 56.7 rows", 210, 297, Margins(15), Upright, 900, 500, 56},
    {"1334 pixels hold 58 rows", 210, 297, Margins(15), Upright, 920, 500, 58},
    {"1332.55 pixels hold 57.9 rows", 210, 297, Margins(15), Upright, 919, 500, 57},
    {"586 pixels hold 25.5 rows", 210, 297, Margins(15), OnItsSide, 900, 500, 25},
    {"690.8 pixels hold 30 rows", 210, 297, Margins(15), OnItsSide, 1060, 500, 30},
    {"letter", 215, 279, Margins(15), Upright, 900, 500, 51},                        // 185 x 243: 1182
    {"letter on its side", 215, 279, Margins(15), OnItsSide, 900, 500, 28},          // 249 x 179: 646
    {"no margins", 210, 297, Margins(0), Upright, 900, 500, 54},                     // 210 x 291: 1247
    {"four margins", 210, 297, {{10, 20}, {30, 40}}, Upright, 900, 500, 53},         // 170 x 231: 1222
    {"four margins, side", 210, 297, {{10, 20}, {30, 40}}, OnItsSide, 900, 500, 21}, // 257 x 144: 504
    {"all rows and room for more", 210, 297, Margins(15), Upright, 900, 10, 10},
    {"paper unknown", 0, 0, Margins(15), Upright, 920, 500, 58},
    {"paper unknown, side", 0, 0, Margins(15), OnItsSide, 900, 500, 25},
    {"paper of no height", 210, 0, Margins(15), Upright, 900, 500, 56},
    {"paper of no width", -1, 297, Margins(15), Upright, 900, 500, 56},
    {"1 mm of width left", 31, 297, Margins(15), Upright, 900, 20000, 10213}, // 1 x 261: 234900
    {"no width left", 30, 297, Margins(15), Upright, 900, 500, 1},
    {"less than no width left", 10, 297, Margins(15), Upright, 900, 500, 1},
    {"1 mm of height left", 210, 37, Margins(15), Upright, 900, 500, 1}, // 5 pixels
    {"no height left", 210, 36, Margins(15), Upright, 900, 500, 1},
    {"less than no height left", 210, 20, Margins(15), Upright, 900, 500, 1},
    {"no columns", 210, 297, Margins(15), Upright, 0, 500, 1},
    {"no rows", 210, 297, Margins(15), Upright, 900, 0, 1},
    {"margins beyond measure", 210, 297, Margins(INT_MAX), Upright, 900, 500, 1},
    {"margins below nothing", 210, 297, Margins(-INT_MAX), Upright, 900, 500, 39}, // as wide as high
};

class RowsPerPage : public testing::TestWithParam<SheetCase> {};

} // namespace

TEST_P(RowsPerPage, IsWhatFitsTheSheet) {
    const SheetCase& sheet = GetParam();
    EXPECT_EQ(CountRowsPerPage({sheet.paperWidth, sheet.paperHeight}, sheet.margins, sheet.landscape,
                               sheet.totalWidth, Rows(sheet.rows)),
              sheet.rowsPerPage);
}

INSTANTIATE_TEST_SUITE_P(Sheets, RowsPerPage, testing::ValuesIn(SheetCases));

namespace {

struct TypeCase {
    const char* type;
    int totalWidth;     ///< of all its columns
    int rows;           ///< of its page, including the default row
    int upright, pages; ///< rows per page and pages
    int onItsSide, asidePages;
};

// All columns have their initial width.
constexpr TypeCase TypeCases[] = {
    {"ANFM", 620, 123, 39, 4, 17, 8},   {"RP25", 1060, 233, 66, 4, 30, 8}, {"NP25", 1110, 503, 69, 8, 31, 17},
    {"MDLX", 710, 501, 44, 12, 20, 26}, {"O12", 625, 7, 7, 1, 7, 1},       {"KDAR", 390, 101, 24, 5, 11, 10},
    {"ANAM", 370, 201, 23, 9, 10, 21},  {"FXAM", 470, 201, 29, 7, 13, 16},
};

} // namespace

TEST(RowsPerPageOfType, IsThatOfItsColumnsOnA4) {
    for (const TypeCase& page : TypeCases) {
        SCOPED_TRACE(page.type);
        EXPECT_EQ(CountRowsPerPage({210, 297}, Margins(15), Upright, page.totalWidth, Rows(page.rows)),
                  page.upright);
        EXPECT_EQ(CountRowsPerPage({210, 297}, Margins(15), OnItsSide, page.totalWidth, Rows(page.rows)),
                  page.onItsSide);
        EXPECT_EQ(CountPages(page.rows, page.upright), page.pages);
        EXPECT_EQ(CountPages(page.rows, page.onItsSide), page.asidePages);
    }
}

TEST(RowsPerPageOfRows, CountsHighRowsAsTheyCome) {
    const auto count = [](const std::vector<int>& heights) {
        // 1450 pixels of height.
        return CountRowsPerPage({210, 297}, Margins(15), Upright, 1000, heights);
    };
    EXPECT_EQ(count({1450, 1}), 1);
    EXPECT_EQ(count({1451, 1}), 1) << "a row higher than the page has one of its own";
    EXPECT_EQ(count({725, 725, 1}), 2);
    EXPECT_EQ(count({725, 726, 1}), 1);
    EXPECT_EQ(count({1400, 0, 50, 1}), 3) << "a hidden row counts and takes no room";
    EXPECT_EQ(count({1400, 20, 23, 23, 23}), 3) << "rows after one that doesn't fit are not measured";
    EXPECT_EQ(count({INT_MAX, INT_MAX, INT_MAX}), 1);
}

TEST(RowsPerPageOfRows, AreOneWhereNothingIsLeftOfThePaper) {
    const std::vector<int> hidden = {0, 0, 0, 23};
    EXPECT_EQ(CountRowsPerPage({210, 36}, Margins(15), Upright, 900, hidden), 1);
    EXPECT_EQ(CountRowsPerPage({30, 297}, Margins(15), Upright, 900, hidden), 1);
    EXPECT_EQ(CountRowsPerPage({210, 37}, Margins(15), Upright, 900, hidden), 3) << "1 mm: 5 pixels";
}

TEST(Pages, AreOneMoreForRowsThatAreLeft) {
    const struct {
        int rows, rowsPerPage, pages;
    } cases[] = {{1, 1, 1},   {7, 39, 1},   {39, 39, 1},   {40, 39, 2},   {78, 39, 2},
                 {79, 39, 3}, {503, 69, 8}, {503, 1, 503}, {503, 503, 1}, {0, 1, 0}};
    for (const auto& each : cases)
        EXPECT_EQ(CountPages(each.rows, each.rowsPerPage), each.pages)
            << each.rows << " rows, " << each.rowsPerPage << " a page";
}

TEST(MarginsInDevicePixels, AreCutToWholeOnes) {
    const PageMargins margins{{10, 20}, {30, 40}};
    const struct {
        const char* name;
        int extraTop;
        wxSize pixelsPerInch;
        double scale;
        int left, top, right, bottom;
    } cases[] = {
        {"ten pixels a millimetre", 0, {254, 254}, 1, 100, 200, 300, 400},
        {"the heading's strip", 6, {254, 254}, 1, 100, 260, 300, 400},
        {"a printer", 6, {300, 300}, 1, 118, 307, 354, 472}, // 11.811 a millimetre
        {"another printer", 0, {600, 1200}, 1, 236, 944, 708, 1889},
        {"a preview", 6, {96, 96}, 0.5, 18, 49, 56, 75}, // 1.890 a millimetre
        {"a preview in size", 0, {96, 96}, 1.7, 64, 128, 192, 257},
        {"no pixels", 6, {0, 0}, 1, 0, 0, 0, 0},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        const PageMargins found = InDevicePixels(margins, each.extraTop, each.pixelsPerInch, each.scale);
        EXPECT_EQ(found.topLeft, wxPoint(each.left, each.top));
        EXPECT_EQ(found.bottomRight, wxPoint(each.right, each.bottom));
    }
}

TEST(MarginsInDevicePixels, StayWithinWhatCanBeReckonedWith) {
    const PageMargins wide = InDevicePixels(Margins(INT_MAX), HeadingSpace, {1200, 1200}, 1);
    EXPECT_EQ(wide.topLeft.x, 100000000);
    EXPECT_EQ(wide.bottomRight.y, 100000000);
    EXPECT_EQ(InDevicePixels(Margins(-INT_MAX), 0, {1200, 1200}, 1).topLeft.x, -100000000);
}
