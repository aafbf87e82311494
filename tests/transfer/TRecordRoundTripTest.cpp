// A complete page sent and read back through a radio that keeps each record unchanged.
#include "catalogue/RadioCatalogue.h"
#include "catalogue/TextNumbers.h"
#include "transfer/TRecordFields.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

using namespace RadioCatalogue;

namespace {

/// Rows of a page of the second generation, including the default row.
constexpr int GridRows = 1 + NP25Memories + GuardRowTotal;

wxString Nth(const wxArrayString& list, int n) {
    return list[static_cast<size_t>(n) % list.size()];
}

/// "OFF" for every 43rd n, else a tone.
wxString ToneOf(int n) {
    return n % 43 == 0 ? wxString("OFF") : CtcssList[static_cast<size_t>(n % 43 - 1)];
}

class TRecordRoundTrip : public ::testing::Test {
protected:
    TRecordRoundTrip() { FillChoiceLists(); }

    /// Different values in every column, with the lists of tones, codes and zones from end to end.
    static NumberedArray<wxString, ColumnTotal> CellsOf(int row) {
        NumberedArray<wxString, ColumnTotal> cells;
        cells[MFLG] = FlagText(row & 0x37F);
        cells[MNUM] = NumberText(row);
        cells[PRIM] = NumberText(row);
        cells[SCAN] = row & ScanFlag ? "Y" : "N";
        cells[ZONE] = Nth(ZoneNames(NP25), row);
        cells[DESC] = wxString::Format("MEM  %03d", row);
        cells[MODE] = Nth(ListOf(P25Modes), row);
        cells[RFRQ] = wxString::Format("%03d.%04d", 136 + row % 38, row * 19);
        cells[RSQL] = Nth(ListOf(RxAnalogSquelch), row);
        cells[RNSV] = wxString::Format("%d", row % 16);
        cells[RTON] = ToneOf(row);
        cells[RCOD] = Nth(CodeList, row);
        cells[RTGP] = wxString::Format("%04X", row * 130);
        cells[RNAC] = wxString::Format("%03X", row * 8);
        cells[TFRQ] = wxString::Format("%03d.%04d", 173 - row % 38, row * 17);
        cells[TSQL] = Nth(ListOf(TxAnalogSquelch), row);
        cells[TTON] = ToneOf(row + 1);
        cells[TCOD] = Nth(CodeList, row + 5);
        cells[TTGP] = wxString::Format("%04X", 65535 - row * 130);
        cells[TNAC] = wxString::Format("%03X", 4095 - row * 8);
        cells[TIDC] = wxString::Format("%07d", row * 1991);
        for (int column = SHD0; column <= SHD6; ++column)
            cells[column] = "0";
        if (row % 10 == 0)
            cells[SHD0] = "7";
        return cells;
    }

    /// The row and the cells of a row that was sent and read back. "nothing" marks a text that the lists
    /// don't contain.
    static std::pair<int, std::map<int, std::string>> ThereAndBack(std::span<const TRecordField> layout,
                                                                   int row) {
        TRecordSource source;
        source.cells = source.defaults = CellsOf(row);
        source.row = row;
        source.gridRows = GridRows;
        source.type = NP25;
        const TRecordValues values = ReadTRecord(layout, MakeTRecord(layout, source), Kdrv716B, NP25);
        std::map<int, std::string> cells;
        cells[MFLG] = FlagText(values.flags).utf8_string();
        for (const TRecordCell& cell : values.cells)
            cells[cell.column] = cell.text ? cell.text->utf8_string() : "nothing";
        return {values.row, cells};
    }

    /// The code after this one in the list, "nothing" after the last.
    static std::string OneFurther(const wxString& code) {
        const size_t place = static_cast<size_t>(CodeList.Index(code)) + 1;
        return place < CodeList.size() ? CodeList[place].utf8_string() : "nothing";
    }

    static std::string Number(int number) { return std::to_string(number); }

    /// Compares a row that was read back with the sent one, expects only these changes, and counts them by
    /// column.
    void Check(std::span<const TRecordField> layout, int row, const std::map<int, std::string>& changes) {
        const auto before = CellsOf(row);
        const auto [rowBack, after] = ThereAndBack(layout, row);
        EXPECT_EQ(rowBack, row);
        EXPECT_EQ(after.size(), 27u) << row; // all columns except SHAD, BAND, SCAN, RONL and TFLG
        for (const auto& [column, text] : after) {
            const std::string was = before[column].utf8_string();
            const auto change = changes.find(column);
            EXPECT_EQ(text, change != changes.end() ? change->second : was)
                << "row " << row << " " << ColumnTag[column];
            if (text != was)
                ++m_changed[ColumnTag[column]];
        }
    }

    using Counts = std::map<std::string, int>;
    Counts m_changed;
};

} // namespace

TEST_F(TRecordRoundTrip, OfV2ChangesTheseCellsOnly) {
    for (int row = 0; row < GridRows; ++row) {
        const auto before = CellsOf(row);
        std::map<int, std::string> changes = {
            {MNUM, Number(row)}, // no leading zeros
            {PRIM, Number(row)},
            {RFRQ, before[RFRQ].utf8_string() + "0"}, // a fifth decimal
            {TFRQ, before[TFRQ].utf8_string() + "0"},
            {RCOD, OneFurther(before[RCOD])},
            {TCOD, OneFurther(before[TCOD])},
            {SHD0, "0"}, // shadows aren't sent
        };
        if (before[RTON] == "OFF")
            changes[RTON] = "nothing";
        if (before[TTON] == "OFF")
            changes[TTON] = "nothing";
        Check(TRecordV2, row, changes);
    }
    EXPECT_EQ(m_changed, (Counts{{"MNUM", 100},
                                 {"PRIM", 100},
                                 {"RFRQ", 503},
                                 {"TFRQ", 503},
                                 {"RCOD", 503},
                                 {"TCOD", 503},
                                 {"RTON", 12},
                                 {"TTON", 11},
                                 {"SHD0", 51}}));
}

TEST_F(TRecordRoundTrip, OfV1ChangesTheseCellsOnly) {
    int carried = 0;
    for (int row = 0; row < GridRows; ++row) {
        if (!FitsRecordV1(NP25, row))
            continue;
        ++carried;
        const auto before = CellsOf(row);
        std::map<int, std::string> changes = {
            {RNSV, wxString::Format("%2d", row % 16).utf8_string()}, // a blank before a single digit
            {TCOD, OneFurther(before[TCOD])},
            {TIDC, Number(row * 1991)}, // no leading zeros
            {SHD0, "0"},
            {ZONE, Number(row % 16 + 1)}, // only 16 zones fit
        };
        if (row > 500)
            changes[ZONE] = "16";
        if (before[RCOD] == "OFF")
            changes[RCOD] = "nothing";
        if (before[RTON] == "OFF")
            changes[RTON] = "nothing";
        if (before[TTON] == "OFF")
            changes[TTON] = "nothing";
        Check(TRecordV1, row, changes);
    }
    EXPECT_EQ(carried, 233);
    EXPECT_EQ(m_changed, (Counts{{"RNSV", 149},
                                 {"TCOD", 233},
                                 {"TIDC", 233},
                                 {"SHD0", 24},
                                 {"ZONE", 114},
                                 {"RCOD", 3},
                                 {"RTON", 6},
                                 {"TTON", 5}}));
}
