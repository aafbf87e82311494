#include "files/CsvImport.h"

#include "catalogue/RowFilling.h"
#include "catalogue/TextNumbers.h"
#include "catalogue/ZoneSlots.h"
#include "editing/MemoryNumbers.h"
#include "editing/ZelkEdit.h"
#include "files/CsvFields.h"
#include "files/CsvReader.h"
#include "files/ImportOutcome.h"

#include <wx/ffile.h>
#include <wx/grid.h>
#include <wx/msgdlg.h>

#include <string>
#include <vector>

using namespace RadioCatalogue;

namespace {

std::string BytesOf(wxFFile& file) {
    std::string bytes;
    char block[65536];
    while (const size_t count = file.Read(block, sizeof block))
        bytes.append(block, count);
    return bytes;
}

void TellHeaderMissing() {
    wxMessageBox("Unable to import the selected file\n\nPlease check that the file is correctly formatted\n"
                 "and contains a column header line.",
                 "Import CSV", wxOK | wxCENTRE | wxICON_ERROR);
}

/// Returns text if its position in a list is valid (not negative), else an empty text.
const wxString& Normal(const wxString& text, int position) {
    static const wxString nothing;
    return position >= 0 ? text : nothing;
}

/// Returns the tone if it is in the list that the page's kind uses, else an empty text.
/// Intentional: each kind uses the other's list. A tone missing there ("OFF" on analog pages) becomes
/// empty and takes the default row's value.
const wxString& NormalTone(const wxString& text) {
    return Normal(text, CurrentPageIsP25() ? GetToneIndex(text) : GetCtcssIndex(text));
}

const wxString& NormalCode(const wxString& text) {
    return Normal(text, GetCodeIndex(text));
}

/// Writes memory rows of the current page: copies the default row to each, then changes single cells.
class RowWriter {
public:
    RowWriter()
        : m_defaults(GetRowValues(CurrentPage, 0)), m_numbers(CurrentParameters().Rows),
          m_taken(static_cast<size_t>(CurrentParameters().Rows) + 1) {
        m_grid->ClearSelection();
    }

    /// Fills a row with the default row's texts and the row's own number; a P25 row also gets a zone. The
    /// default row itself is not changed.
    void FillRow(int row) {
        m_row = row;
        if (row == 0)
            return;
        GiveZoneBack();
        CopyValuesToRow(CurrentPage, m_defaults, row);
        m_taken[static_cast<size_t>(row)] = true;
    }

    void Write(int column, const wxString& text) { m_grid->SetCellValue(m_row, column, text); }

    /// Empties RSQL or TSQL, whatever text the line has for it (given).
    void EmptySquelch(int column, const wxString& given) {
        Write(column, wxString());
        if (CurrentPageIsP25())
            NoteIfReplaced(m_grid, m_row, column, given);
    }

    /// Call after the last text of the row.
    void FinishRow(const wxString& flags) {
        Write(TFLG, flags);
        if (m_row == 0)
            m_defaults = GetRowValues(CurrentPage, 0);
    }

    /// Writes a field of the general dialect to its cell.
    void TakeField(int column, const wxString& text) {
        switch (column) {
        case MNUM:
            TakeNumber();
            break;
        case BAND:
            // CheckBand does not write a valid band. An invalid one must never reach the default row, even
            // briefly: that row's band repairs the others.
            if (CheckBand(m_grid, m_row, text) == CheckGood)
                Write(BAND, text);
            break;
        case SCAN:
            CheckScan(m_grid, m_row, text);
            break;
        case ZONE:
            TakeZone(text);
            break;
        case DESC:
            CheckDesc(m_grid, m_row, text);
            NoteIfReplaced(m_grid, m_row, DESC, text);
            break;
        case MODE:
            CheckMode(m_grid, m_row, text);
            break;
        case RFRQ:
        case TFRQ:
            CheckFreq(m_grid, m_row, column, text);
            break;
        case RSQL:
        case TSQL:
            CheckSquelch(m_grid, m_row, column, text);
            break;
        case RTON:
            CheckTone(m_grid, m_row, column, NormalTone(text), TextOf(RSQL));
            break;
        case TTON:
            CheckTone(m_grid, m_row, column, NormalTone(text), TextOf(TSQL));
            break;
        case RCOD:
            CheckCode(m_grid, m_row, column, NormalCode(text), TextOf(RSQL));
            break;
        case TCOD:
            CheckCode(m_grid, m_row, column, NormalCode(text), TextOf(TSQL));
            break;
        case RTGP:
        case TTGP:
            CheckTalkGroup(m_grid, m_row, column, text);
            break;
        case RNAC:
        case TNAC:
            CheckNac(m_grid, m_row, column, text);
            break;
        default: // RNSV and TIDC: unchanged
            Write(column, text);
        }
    }

private:
    wxString TextOf(int column) const { return m_grid->GetCellValue(m_row, column); }

    /// Writes the row's number, whatever number the line has.
    void TakeNumber() {
        if (m_row == 0)
            CheckMNum(m_grid, m_row, NumberText(m_row));
        else
            CheckMNum(m_grid, m_row, NumberText(m_row), m_numbers);
    }

    void TakeZone(const wxString& text) {
        GiveZoneBack();
        if (CurrentPageIsP25() && m_row != 0)
            Write(TFLG, FlagText(TransferFlags(m_grid, m_row) & ~ZoneTakenFlag));
        const auto before = ZoneSlots;
        CheckZone(m_grid, m_row, text);
        m_taken[static_cast<size_t>(m_row)] = before != ZoneSlots;
        if (CurrentPageIsP25())
            NoteIfReplaced(m_grid, m_row, ZONE, text);
    }

    /// Releases the slot that the row holds, so that a repeated row still holds only one.
    void GiveZoneBack() {
        if (!CurrentPageIsP25() || m_row == 0 || !HoldsSlot())
            return;
        ReleaseP25ZonePosition(FindZone(TextOf(ZONE)));
        m_taken[static_cast<size_t>(m_row)] = false;
    }

    bool HoldsSlot() const {
        return m_taken[static_cast<size_t>(m_row)] || (TransferFlags(m_grid, m_row) & ZoneTakenFlag);
    }

    wxGrid* m_grid = CurrentGrid();
    wxArrayString m_defaults;
    MemoryNumberIndex m_numbers;
    /// Rows that got a zone slot from this list; TFLG no longer shows it.
    std::vector<bool> m_taken;
    int m_row = 0;
};

/// Inserts the missing point after the three MHz digits of a frequency in kHz.
wxString WithPoint(wxString text) {
    constexpr size_t Place = 3;
    if (text.length() >= Place && !text.Contains("."))
        text.insert(Place, ".");
    return text;
}

void TakeKdarLine(RowWriter& writer, const CsvTexts& fields) {
    // Intentional: the list's number never reaches the row, but a missing number clears the row's.
    if (fields[KdarMemory].empty())
        writer.Write(MNUM, wxString());
    if (!fields[KdarName].empty())
        writer.Write(DESC, fields[KdarName]);
    const wxString receive = WithPoint(fields[KdarReceive]);
    if (!receive.empty())
        writer.Write(RFRQ, receive);
    // Intentional: without a transmit frequency, the receive frequency is used.
    const wxString transmit = fields[KdarTransmit].empty() ? receive : WithPoint(fields[KdarTransmit]);
    if (!transmit.empty())
        writer.Write(TFRQ, transmit);
    if (!fields[KdarScan].empty())
        writer.TakeField(SCAN, fields[KdarScan]);
    if (!fields[KdarRxOnly].empty())
        writer.Write(RONL, fields[KdarRxOnly] == "Yes" ? "Y" : "N");
}

/// Returns a line's text for a column, empty if the list has no such field.
wxString FieldFor(int column, const CsvTexts& fields) {
    for (size_t position = 0; position < CsvFieldTotal; ++position)
        if (CsvFieldTable[position].read == column)
            return fields[position];
    return {};
}

void TakeLine(RowWriter& writer, const CsvReader& reader, const CsvTexts& fields) {
    for (int position = 0; position < CsvFieldTotal; ++position) {
        const int column = CsvFieldTable[position].read;
        if (reader.CsvFieldColumn[static_cast<size_t>(position)] < 0) {
            // Intentional: a list without RCOD empties RSQL, one without TTGP empties TSQL.
            if (position == RSQL || position == TSQL)
                writer.EmptySquelch(position, FieldFor(position, fields));
        } else if (!fields[static_cast<size_t>(position)].empty()) {
            writer.TakeField(column, fields[static_cast<size_t>(position)]);
        }
    }
}

/// Passes each line of the list to takeLine, with its number from 1. Returns the count of lines that the
/// page took.
/// Intentional: a list longer than the page loses its last lines, whatever rows they name.
template <class Take>
int TakeLines(CsvReader& reader, Take takeLine) {
    const wxGridUpdateLocker quiet(CurrentGrid());
    const int rows = CurrentGrid()->GetNumberRows();
    RowWriter writer;
    CsvTexts fields;
    int count = 0;
    for (int line = 1; reader.GetData_CSV(fields, rows); ++line) {
        if (line >= rows) {
            SkippedLines::Note(reader.LineNumber());
            continue;
        }
        takeLine(writer, line, fields);
        ++count;
    }
    return count;
}

} // namespace

int Import_CSV(wxFFile& file) {
    const std::string bytes = BytesOf(file);
    CsvReader reader(bytes, CsvReader::Dialect::General);
    if (!reader.GetHeader_CSV()) {
        TellHeaderMissing();
        return 0;
    }
    const wxString flags = TflgMade;
    LinesOfRows lines(CurrentGrid()->GetNumberRows());
    return TakeLines(reader, [&](RowWriter& writer, int, const CsvTexts& fields) {
        // Lines for the default row accumulate.
        if (reader.Row() != 0)
            lines.Take(reader.Row(), reader.LineNumber());
        writer.FillRow(reader.Row());
        TakeLine(writer, reader, fields);
        writer.FinishRow(flags);
    });
}

int Import_KDAR(wxFFile& file) {
    const std::string bytes = BytesOf(file);
    CsvReader reader(bytes, CsvReader::Dialect::Kdar);
    reader.GetHeader_CSV();
    const wxString flags = FlagText(ReadHex(TflgMade) | (reader.Field(1) == "Purge" ? EraseFlag : 0));
    if (!reader.GetHeader_CSV()) {
        TellHeaderMissing();
        return 0;
    }
    return TakeLines(reader, [&flags](RowWriter& writer, int line, const CsvTexts& fields) {
        // Intentional: the lines fill the page from its first memory on, whatever numbers they have.
        writer.FillRow(line);
        TakeKdarLine(writer, fields);
        writer.FinishRow(flags);
    });
}
