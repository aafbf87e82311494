// Lines of the reports that need no window.
#include "diagnostics/ReportLines.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Lines = std::vector<std::string>;

Lines Utf8(const wxArrayString& texts) {
    Lines lines;
    for (const wxString& text : texts)
        lines.push_back(text.utf8_string());
    return lines;
}

/// Cells "c0" to "c31", and hexadecimal numbers in both flag cells.
wxArrayString NamedCells() {
    wxArrayString cells;
    for (int col = 0; col < 32; ++col)
        cells.push_back(wxString::Format("c%d", col));
    cells[0] = "6B";
    cells[31] = "A9";
    return cells;
}

/// A line of a row's report, with the digits of the radio types whose pages have it.
struct TableLine {
    const char* text;
    const char* types;
};

constexpr TableLine RowTable[] = {
    {"  MFLG: 6B; 0x6B", "01234567"},
    {"  MNUM: c1", "01234567"},
    {"  PRIM: c2", "12"},
    {"  SHAD: c3", "12"},
    {"  BAND: c4", "3"},
    {"  SCAN: c5", "01234567"},
    {"  ZONE: c6", "12"},
    {"  DESC: c7", "01234567"},
    {"  MODE: c8", "01234567"},
    {"  RFRQ: c9", "01234567"},
    {"  RSQL: c10", "12"},
    {"  RNSV: c11;", "2"},
    {"  RTON: c12", "01234567"},
    {"  RCOD: c13", "01234567"},
    {"  RTGP: c14", "12"},
    {"  RNAC: c15", "12"},
    {"  TFRQ: c16", "01234567"},
    {"  TSQL: c17", "12"},
    {"  TTON: c18", "01234567"},
    {"  TCOD: c19", "01234567"},
    {"  TTGP: c20", "12"},
    {"  TNAC: c21", "12"},
    {"  TIDC: c22", "12"},
    {"  SHD0: c23", "12"},
    {"  SHD1: c24", "12"},
    {"  SHD2: c25", "12"},
    {"  SHD3: c26", "12"},
    {"  SHD4: c27", "12"},
    {"  SHD5: c28", "12"},
    {"  SHD6: c29", "12"},
    {"  Tflg: A9; 0xA9", "01234567"},
};

/// The line of a row's report that starts with the tag.
std::string LineOf(const std::string& tag, const wxArrayString& cells, int type) {
    for (const std::string& line : Utf8(RowLines(type, 1, cells)))
        if (line.rfind("  " + tag + ":", 0) == 0)
            return line;
    return "none";
}

} // namespace

TEST(RowReport, HasTheLinesOfItsRadioTypeInThisOrder) {
    constexpr const char* Types[] = {"ANFM", "RP25", "NP25", "MDLX", "O12", "KDAR", "ANAM", "FXAM"};
    for (int type = 0; type < 8; ++type) {
        SCOPED_TRACE(Types[type]);
        Lines expected = {">-- Data for Row 017:"};
        for (const TableLine& line : RowTable)
            if (std::string(line.types).find(static_cast<char>('0' + type)) != std::string::npos)
                expected.push_back(line.text);
        EXPECT_EQ(Utf8(RowLines(type, 17, NamedCells())), expected);
    }
}

TEST(RowReport, HasNoLineForTheReceiveOnlyCellOnKDARPages) {
    wxArrayString cells = NamedCells();
    cells[30] = "Y";
    for (const std::string& line : Utf8(RowLines(5, 1, cells))) {
        EXPECT_EQ(line.find("RONL"), std::string::npos) << line;
        EXPECT_NE(line.back(), 'Y') << line;
    }
}

TEST(RowReport, CountsRowsInThreeDigits) {
    EXPECT_EQ(RowLines(0, 0, NamedCells())[0], ">-- Data for Row 000:");
    EXPECT_EQ(RowLines(0, 502, NamedCells())[0], ">-- Data for Row 502:");
}

TEST(RowReport, ReadsTheNumbersOfBothFlagCellsAsHexadecimal) {
    struct Case {
        const char* cell;
        const char* shown;
    };
    for (const auto& [cell, shown] : {Case{"", "; 0x00"},
                                      {"00", "00; 0x00"},
                                      {"7", "7; 0x07"},
                                      {"1f", "1f; 0x1F"},
                                      {"A0", "A0; 0xA0"},
                                      {"3E7", "3E7; 0x3E7"},
                                      {"C0x", "C0x; 0xC0"},
                                      {"none", "none; 0x00"}}) {
        wxArrayString cells = NamedCells();
        cells[0] = cells[31] = cell;
        EXPECT_EQ(LineOf("MFLG", cells, 2), std::string("  MFLG: ") + shown) << cell;
        EXPECT_EQ(LineOf("Tflg", cells, 2), std::string("  Tflg: ") + shown) << cell;
    }
}

TEST(RowReport, ShowsCellsAsTheyStand) {
    wxArrayString cells = NamedCells();
    cells[7] = "100%s %d";
    EXPECT_EQ(LineOf("DESC", cells, 0), "  DESC: 100%s %d");
    cells[7] = wxString::FromUTF8("Zürich");
    EXPECT_EQ(LineOf("DESC", cells, 0), "  DESC: Zürich");
}

TEST(PageReport, ShowsThePageAndItsTarget) {
    PageParameterRecord parameters;
    parameters.Radio = RadioCatalogue::Kdrv4xxx;
    parameters.BandIndex = 5;
    parameters.Band = RadioCatalogue::K6Module;
    parameters.Rows = 500;
    parameters.Cols = 11;
    parameters.Type = RadioCatalogue::MDLX;
    PageStringRecord strings;
    strings.RadioName = "R";
    strings.BandName = "B";
    strings.TypeName = "T";
    EXPECT_EQ(Utf8(PageParameterLines(4, 6, parameters, strings)),
              (Lines{">-- Debug - Report Page Parameters -------------<", " . Page: 5 of 6",
                     " . Radio - Num: 17; Name: R", " . Type - Num: 3; Name: T",
                     " . Band - Num: 8; Name: B; Index: 5", " . Grid - Rows: 500, Cols: 11\n"}));
}

TEST(OpModeReport, ShowsEachModeBySeparateBits) {
    struct Case {
        uint32_t modes;
        const char *w, *n, *d;
    };
    for (const Case& c : {Case{0x00, " No", " No", " no"}, Case{0x40, "Yes", " No", " no"},
                          Case{0x20, " No", "Yes", " no"}, Case{0x10, " No", " No", "Yes"},
                          Case{0x70, "Yes", "Yes", "Yes"}, Case{0xFFFFFF8F, " No", " No", " no"}}) {
        const Lines expected = {">-- Debug - Report P25 Page OpMode Parameters ---------<",
                                std::string("  Op Mode: w - ") + c.w, std::string("  Op Mode: n - ") + c.n,
                                std::string("  Op Mode: D - ") + c.d};
        EXPECT_EQ(Utf8(OpModeLines(c.modes)), expected) << c.modes;
    }
}

TEST(ZoneReport, HasALineForEachCounterFromZero) {
    const int32_t counters[] = {16, 0, 3};
    EXPECT_EQ(Utf8(ZoneLines(counters)),
              (Lines{">-- Debug - Report P25 Page Zone Parameters -----------<", "  Zone: 0; Slot: 16",
                     "  Zone: 1; Slot: 0", "  Zone: 2; Slot: 3"}));
}
