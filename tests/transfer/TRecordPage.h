// A test with a page, its rows, and the records of these rows field by field.
#pragma once

#include "catalogue/PageModel.h"
#include "tests/support/ZelkWindowTest.h"
#include "transfer/TransferContext.h"

#include <algorithm>
#include <iostream>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace trecordtest {

using Cells = std::vector<std::pair<int, wxString>>;

/// A page of the tests: the first page of a radio, or one of those below.
struct Page {
    int radio, bandIndex;
    int band = RadioCatalogue::NoBand; ///< if it differs from that of the band slot
    int type = -1;                     ///< if it differs from the radio's own

    constexpr Page(RadioCatalogue::RadioIndex index) : radio(index), bandIndex(0) {}
    constexpr Page(RadioCatalogue::RadioIndex index, int slot) : radio(index), bandIndex(slot) {}
    constexpr Page OnBand(int id) const {
        Page page = *this;
        page.band = id;
        return page;
    }
    constexpr Page OfType(int other) const {
        Page page = *this;
        page.type = other;
        return page;
    }
    bool operator==(const Page&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const Page& page) {
    return out << RadioCatalogue::RadioName[page.radio] << " slot " << page.bandIndex << " band " << page.band
               << " type " << page.type;
}

inline constexpr Page K6(Kdrv4xxx, ModuleSlot);
inline constexpr Page K7 = K6.OnBand(RadioCatalogue::K7Module);
inline constexpr Page Krv620AM(Krv620, 1);
inline constexpr Page Fxam = Page(Krv47).OfType(RadioCatalogue::FXAM);

// The fields of a record in order, with their values in the record of the usual memory. A case names only the
// fields that it changes. The record's layout defines the content of a field. The two digits of a byte stay
// together.
struct V1Line {
    std::string tag = "T143";
    std::string address = "0005";
    std::string flags = "00";
    std::string primary = "05";
    std::string number = "05";
    std::string zone = "20";
    std::string description = "48494C4C20342020";
    std::string separator = "20";
    std::string mode = "6E";
    std::string rxFrequency = "3135342E31323530";
    std::string rxTag = "52";
    std::string rxSquelch = "74";
    std::string rxGroup = "0A1B";
    std::string rxTone = "0D";
    std::string rxCode = "01";
    std::string rxNac = "0293";
    std::string txFrequency = "3135392E30303030";
    std::string txTag = "54";
    std::string txSquelch = "63";
    std::string txGroup = "FFFE";
    std::string txTone = "01";
    std::string txCode = "01";
    std::string txNac = "0F7E";
    std::string unitId = "0012D687";
    std::string shadows = "00000000000000";
    std::string squelch = "0A";
    std::string reserved1 = "0000";
    std::string flagsHigh = "00";
    std::string reserved2 = "000000";

    std::string Text() const {
        return tag + address + flags + primary + number + zone + description + separator + mode +
               rxFrequency + rxTag + rxSquelch + rxGroup + rxTone + rxCode + rxNac + txFrequency + txTag +
               txSquelch + txGroup + txTone + txCode + txNac + unitId + shadows + squelch + reserved1 +
               flagsHigh + reserved2;
    }
};
struct V2Line {
    std::string tag = "T143";
    std::string address = "0005";
    std::string flags = "0000";
    std::string primary = "0005";
    std::string number = "0005";
    std::string zone = "0020";
    std::string description = "48494C4C20342020";
    std::string separator = "20";
    std::string mode = "6E";
    std::string rxFrequency = "092FC2C8";
    std::string rxTag = "52";
    std::string rxSquelch = "74";
    std::string rxTone = "0D";
    std::string rxCode = "02";
    std::string rxSquelchNac = "3293";
    std::string rxGroup = "0A1B";
    std::string txFrequency = "097A25C0";
    std::string txTag = "54";
    std::string txSquelch = "63";
    std::string txTone = "01";
    std::string txCode = "01";
    std::string txNac = "0F7E";
    std::string txGroup = "FFFE";
    std::string unitId = "0012D687";
    std::string shadows = "0000000000000000000000000000";
    std::string reserved1 = "0000";
    std::string reserved2 = "0000";

    std::string Text() const {
        return tag + address + flags + primary + number + zone + description + separator + mode +
               rxFrequency + rxTag + rxSquelch + rxTone + rxCode + rxSquelchNac + rxGroup + txFrequency +
               txTag + txSquelch + txTone + txCode + txNac + txGroup + unitId + shadows + reserved1 +
               reserved2;
    }
};

/// A row that differs from Sample in these cells, its default row's other cells, and its record.
template <class Line>
struct EncodeCase {
    const char* name;
    Page page;
    int row;
    Cells cells, defaultCells;
    Line line;
};

enum RowKind { PlainRow, PrimaryRow, ShadowRow };

/// A record and the row made from it: the cells that differ from the usual memory's, the painted cells and
/// the locks.
template <class Line>
struct DecodeCase {
    const char* name;
    Page page;
    Line line;
    int row;
    Cells cells;
    std::vector<int> painted;
    RowKind kind;
};

/// Row 5 as a user would fill it.
inline const Cells Sample = {
    {MFLG, "00"},    {MNUM, "005"},    {PRIM, "005"},  {SHAD, "N"},        {BAND, "FM 136-174"}, {SCAN, "N"},
    {ZONE, "3"},     {DESC, "HILL 4"}, {MODE, "n"},    {RFRQ, "154.1250"}, {RSQL, "t"},          {RNSV, "3"},
    {RTON, "100.0"}, {RCOD, "025"},    {RTGP, "0A1B"}, {RNAC, "293"},      {TFRQ, "159.0000"},   {TSQL, "c"},
    {TTON, "67.0"},  {TCOD, "023"},    {TTGP, "FFFE"}, {TNAC, "F7E"},      {TIDC, "1234567"},    {SHD0, "0"},
    {SHD1, "0"},     {SHD2, "0"},      {SHD3, "0"},    {SHD4, "0"},        {SHD5, "0"},          {SHD6, "0"},
    {RONL, ""},      {TFLG, "A1"},
};

/// Empty texts in all cells that are sent.
inline const Cells EmptyCells = {
    {MFLG, ""}, {MNUM, ""}, {PRIM, ""}, {ZONE, ""}, {DESC, ""}, {MODE, ""}, {RFRQ, ""},
    {RSQL, ""}, {RNSV, ""}, {RTON, ""}, {RCOD, ""}, {RTGP, ""}, {RNAC, ""}, {TFRQ, ""},
    {TSQL, ""}, {TTON, ""}, {TCOD, ""}, {TTGP, ""}, {TNAC, ""}, {TIDC, ""},
};

class TRecordPage : public ZelkWindowTest {
protected:
    /// Opens the page in its initial state.
    void Open(Page page) {
        Retarget(page.radio, page.bandIndex);
        if (page.band != RadioCatalogue::NoBand)
            CurrentParameters().Band = page.band;
        if (page.type >= 0)
            CurrentParameters().Type = page.type;
        m_page = page;
    }

    /// As Open, but skips the work if the page is open and its default row untouched.
    void OpenFor(Page page, int row) {
        if (m_page != page || row == 0 || m_defaultsTouched)
            Open(page);
        m_defaultsTouched = row == 0;
        ZoneSlots.fill(0);
    }

    void Fill(int row, const Cells& cells, const Cells& changes) {
        for (const auto& [column, text] : cells)
            SetCell(row, column, text);
        for (const auto& [column, text] : changes)
            SetCell(row, column, text);
    }

    void FillDefaults(const Cells& changes) {
        Fill(0, changes, {});
        m_defaultsTouched |= !changes.empty();
    }

    static void Unlock(int row) {
        for (int column = 0; column < ColumnTotal; ++column)
            CurrentGrid()->SetReadOnly(row, column, false);
    }

    /// Clears a row to its state on a new page.
    static void Blank(int row) {
        for (int column = 0; column < ColumnTotal; ++column) {
            SetCell(row, column, "");
            CurrentGrid()->SetCellBackgroundColour(row, column,
                                                   CurrentGrid()->GetDefaultCellBackgroundColour());
        }
        Unlock(row);
    }

    /// All cells of a row, one tag and text a line, with a mark for a painted or read-only cell.
    static std::string RowText(int row) {
        std::string text;
        for (int column = 0; column < ColumnTotal; ++column) {
            text += std::string(ColumnTag[column]) + " \"" + Cell(row, column).utf8_string() + "\"";
            if (CurrentGrid()->GetCellBackgroundColour(row, column) == wxColour(235, 125, 50))
                text += " painted";
            if (CurrentGrid()->IsReadOnly(row, column))
                text += " locked";
            text += "\n";
        }
        return text;
    }

    /// RowText of a row with these cells.
    static std::string ExpectedText(const Cells& cells, const Cells& changes, const std::vector<int>& painted,
                                    RowKind kind) {
        std::vector<wxString> texts(ColumnTotal);
        for (const Cells* some : {&cells, &changes})
            for (const auto& [column, cell] : *some)
                texts[static_cast<size_t>(column)] = cell;
        const auto has = [](const std::vector<int>& columns, int column) {
            return std::find(columns.begin(), columns.end(), column) != columns.end();
        };
        std::vector<int> locked;
        if (kind != PlainRow)
            locked = {MNUM, SHAD, SCAN};
        if (kind == ShadowRow)
            locked.insert(locked.end(), {ZONE, RFRQ, TFRQ});
        std::string text;
        for (int column = 0; column < ColumnTotal; ++column)
            text += std::string(ColumnTag[column]) + " \"" +
                    texts[static_cast<size_t>(column)].utf8_string() + "\"" +
                    (has(painted, column) ? " painted" : "") + (has(locked, column) ? " locked" : "") + "\n";
        return text;
    }

    /// The texts of all cells of the page.
    static wxArrayString AllCells() {
        wxArrayString all;
        for (int row = 0; row < CurrentGrid()->GetNumberRows(); ++row)
            for (const wxString& text : GetRowValues(CurrentPage, row))
                all.push_back(text);
        return all;
    }

    using Encoder = void (*)(wxGrid*, int, wxString&);
    using Decoder = int (*)(wxGrid*, const wxString&);

    template <class Line, size_t count>
    void CheckLinesToRadio(const EncodeCase<Line> (&cases)[count], Encoder encode) {
        for (const auto& c : cases) {
            OpenFor(c.page, c.row);
            Fill(c.row, Sample, c.cells);
            FillDefaults(c.defaultCells);
            wxString out = "former";
            encode(CurrentGrid(), c.row, out);
            EXPECT_EQ(out.utf8_string(), c.line.Text()) << c.name;
            EXPECT_EQ(out.length(), 136u) << c.name;
        }
        std::cout << "[   lines  ] " << count << " whole lines to the radio\n";
    }

    /// @param usual cells of the row in the first case
    template <class Line, size_t count>
    void CheckLinesFromRadio(const DecodeCase<Line> (&cases)[count], const Cells& usual, Decoder decode) {
        for (const auto& c : cases) {
            OpenFor(c.page, c.row);
            if (c.row != 0)
                Blank(c.row);
            Unlock(c.row);
            EXPECT_EQ(c.line.Text().length(), 136u) << c.name;
            EXPECT_EQ(decode(CurrentGrid(), c.line.Text()), 1) << c.name;
            EXPECT_EQ(RowText(c.row), ExpectedText(usual, c.cells, c.painted, c.kind)) << c.name;
        }
        std::cout << "[   lines  ] " << count << " whole lines from the radio\n";
    }

    TRecordContext m_context;

private:
    std::optional<Page> m_page;
    bool m_defaultsTouched = false;
};

} // namespace trecordtest
