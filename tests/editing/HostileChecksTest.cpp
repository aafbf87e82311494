// Results of the checks for texts that no one intends, on a page of each radio type.
#include "tests/editing/ColumnCheckTest.h"

namespace {

enum Text { Long, NonAscii, Control, Minus, FortyDigits, MinusFortyDigits, WideDigits, Format, TextTotal };

const wxString& TextOf(int text) {
    static const wxString texts[TextTotal] = {wxString('A', 5000),
                                              wxString::FromUTF8("\xC3\x84\xE2\x82\xAC"), // Ä€
                                              "\x01\t",
                                              "-1",
                                              "1234567890123456789012345678901234567890",
                                              "-1234567890123456789012345678901234567890",
                                              wxString::FromUTF8("\xEF\xBC\x91\xEF\xBC\x92"), // wide 12
                                              "%s%n"};
    return texts[text];
}

const char* const Names[TextTotal] = {"long",         "non-ASCII",          "control",     "minus",
                                      "forty digits", "minus forty digits", "wide digits", "format"};

// Placeholders for the result.
const char* const Same = "=";     // the text itself
const char* const Default = "d";  // the default row's, unpainted
const char* const Repaired = "!"; // the default row's, painted
const char* const None = "";

/// The result for each text in columns of pages.
struct Line {
    std::vector<int> columns;
    Pages pages;
    const char* expected[TextTotal];
};

#define EVERY(x)                                                                                             \
    { x, x, x, x, x, x, x, x }

const std::vector<Line>& Lines() {
    static const Pages notP25OrKdar{Anfm, Mdlx, O12Page, Anam, Fxam};
    static const std::vector<Line> lines = {
        {{MNUM}, AllPages, {"000", "000", "000", "-01", None, None, "000", "000"}},
        {{PRIM}, AllPages, EVERY(None)},
        {{SHAD}, P25Pages, EVERY("N")},
        {{SHAD}, AnalogPages, EVERY(None)},
        {{BAND}, {Mdlx}, EVERY(Repaired)},
        {{BAND}, {Anfm, Rp25, Np25, O12Page, KdarPage, Anam, Fxam}, EVERY(None)},
        {{SCAN}, {Rp25, Np25, KdarPage}, EVERY("N")},
        // Two characters without a number read as 0; four are marks of the legacy files.
        {{SCAN}, notP25OrKdar, {Repaired, Same, Same, Repaired, Repaired, Repaired, Same, "15"}},
        {{ZONE}, P25Pages, EVERY("1")},
        {{ZONE}, AnalogPages, EVERY(None)},
        {{DESC}, {Anfm}, {"AAAAAAAAA", "  ", "  ", "-1", "123456789", "-12345678", "  ", " S N"}},
        {{DESC}, {Mdlx}, {"AAAAAAAAA", "  ", "  ", "-1", "123456789", "-12345678", "  ", " s n"}},
        {{DESC}, P25Pages, {"AAAAAAAA", "  ", "  ", "-1", "12345678", "-1234567", "  ", "%s%n"}},
        {{DESC},
         {O12Page, KdarPage, Anam, Fxam},
         {Same, "  ", "  ", "-1", "1234567890123456789012345678901234567890",
          "-1234567890123456789012345678901234567890", "  ", " s n"}},
        {{MODE, RFRQ, TFRQ}, AllPages, EVERY(Repaired)},
        {{RSQL, TSQL, RTON, TTON, RCOD, TCOD}, P25Pages, EVERY(Repaired)},
        {{RSQL, TSQL}, AnalogPages, EVERY(None)},
        // A text without a number reads as 0, which is valid.
        {{RNSV}, {Np25}, {Same, Same, Same, Repaired, Repaired, Repaired, Same, Same}},
        {{RNSV}, {Anfm, Rp25, Mdlx, O12Page, KdarPage, Anam, Fxam}, EVERY(None)},
        {{RTON, TTON, RCOD, TCOD}, {Anfm, Mdlx}, EVERY(Repaired)},
        {{RTON, TTON}, {O12Page, KdarPage, Anam, Fxam}, EVERY(None)},
        {{RCOD, TCOD}, {O12Page, KdarPage, Anam}, EVERY("n/a")},
        {{RCOD, TCOD}, {Fxam}, EVERY(Same)},
        // Two of the texts begin with hexadecimal digits.
        {{RTGP, TTGP, RNAC, TNAC},
         P25Pages,
         {Same, Default, Default, Default, Same, Default, Default, Default}},
        {{RTGP, TTGP, RNAC, TNAC}, AnalogPages, EVERY(None)},
        {{TIDC}, P25Pages, {Same, Same, Same, Default, Default, Default, Same, Same}},
        {{TIDC}, AnalogPages, EVERY(None)},
        {{RONL}, {KdarPage}, EVERY("before")},
        {{RONL}, {Anfm, Rp25, Np25, Mdlx, O12Page, Anam, Fxam}, EVERY(None)},
    };
    return lines;
}

#undef EVERY

class HostileTexts : public ColumnCheckTest {
protected:
    static void ExpectCell(int column, int text, const std::string& expected) {
        PrepareRow(column);
        Check(column, TextOf(text), "");
        const bool repaired = expected == Repaired;
        const wxString wanted = expected == Same                  ? TextOf(text)
                                : repaired || expected == Default ? wxString("dflt")
                                                                  : wxString(expected);
        EXPECT_EQ(Cell(row, column).Left(50), wanted.Left(50)) << Names[text] << ", " << ColumnTag[column];
        EXPECT_EQ(Cell(row, column).length(), wanted.length()) << Names[text] << ", " << ColumnTag[column];
        EXPECT_EQ(IsPainted(column), repaired) << Names[text] << ", " << ColumnTag[column];
    }
};

} // namespace

TEST_F(HostileTexts, BecomeWhatTheCheckOfTheirColumnAllows) {
    for (Page page : AllPages) {
        Become(page);
        SCOPED_TRACE(RadioCatalogue::RadioTypeName[page]);
        std::vector<int> seen(32);
        for (const Line& line : Lines())
            if (std::find(line.pages.begin(), line.pages.end(), page) != line.pages.end())
                for (int column : line.columns) {
                    ++seen[static_cast<size_t>(column)];
                    for (int text = 0; text < TextTotal; ++text)
                        ExpectCell(column, text, line.expected[text]);
                }
        for (int column = MNUM; column <= RONL; ++column)
            EXPECT_EQ(seen[static_cast<size_t>(column)], column < SHD0 || column > SHD6 ? 1 : 0)
                << "lines for " << ColumnTag[column];
    }
}

TEST_F(HostileTexts, ThatAreRepairedBecomeADefaultOfAnyKind) {
    Become(Np25);
    for (int defaults = 0; defaults < TextTotal; ++defaults) {
        PrepareRow(RFRQ);
        SetCell(0, RFRQ, TextOf(defaults));
        Check(RFRQ, "junk", "");
        EXPECT_EQ(Cell(row, RFRQ), TextOf(defaults)) << Names[defaults];
        EXPECT_TRUE(IsPainted(RFRQ)) << Names[defaults];
    }
}

TEST_F(HostileTexts, InASquelchCellTurnToneAndCodeOffAndDoNoMore) {
    for (Page page : {Anfm, Mdlx}) {
        Become(page);
        for (int column : {RTON, TTON, RCOD, TCOD})
            for (int squelch = 0; squelch < TextTotal; ++squelch) {
                PrepareRow(column);
                Check(column, column == RTON || column == TTON ? "67.0" : "023", TextOf(squelch));
                EXPECT_EQ(Cell(row, column), "OFF") << Names[squelch] << ", " << ColumnTag[column];
                EXPECT_FALSE(IsPainted(column)) << Names[squelch] << ", " << ColumnTag[column];
            }
    }
}
