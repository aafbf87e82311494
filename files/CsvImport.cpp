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

/// text if a list has it at this position, else nothing.
const wxString& Normal(const wxString& text, int position) {
    static const wxString nothing;
    return position >= 0 ? text : nothing;
}

/// The tone as the list of the page's kind has it. Meant: each kind looks into the other's list, and
/// what that lacks ("OFF" on analog pages) comes out empty and falls to the default row's.
const wxString& NormalTone(const wxString& text) {
    return Normal(text, CurrentPageIsP25() ? GetToneIndex(text) : GetCtcssIndex(text));
}

const wxString& NormalCode(const wxString& text) {
    return Normal(text, GetCodeIndex(text));
}

/// Writes memory rows of the current page, each from the default row and then cell by cell.
class RowWriter {
public:
    RowWriter()
        : m_defaults(GetRowValues(CurrentPage, 0)), m_numbers(CurrentParameters().Rows),
          m_taken(static_cast<size_t>(CurrentParameters().Rows) + 1) {
        m_grid->ClearSelection();
    }

    /// Gives a row the default row's texts and its number, and a P25 row a zone. The default row
    /// itself stays as it is.
    void FillRow(int row) {
        m_row = row;
        if (row == 0)
            return;
        GiveZoneBack();
        CopyValuesToRow(CurrentPage, m_defaults, row);
        m_taken[static_cast<size_t>(row)] = true;
    }

    void Write(int column, const wxString& text) { m_grid->SetCellValue(m_row, column, text); }

    /// Empties RSQL or TSQL, whatever the line gave it.
    void EmptySquelch(int column, const wxString& given) {
        Write(column, wxString());
        if (CurrentPageIsP25())
            NoteIfReplaced(m_grid, m_row, column, given);
    }

    /// The row has all its texts.
    void FinishRow(const wxString& flags) {
        Write(TFLG, flags);
        if (m_row == 0)
            m_defaults = GetRowValues(CurrentPage, 0);
    }

    /// Puts a field of the general dialect into its cell.
    void TakeField(int column, const wxString& text) {
        switch (column) {
        case MNUM:
            TakeNumber();
            break;
        case BAND:
            // The check writes no band that can stand. One that can't must not even pass through the default
            // row, whose band the others are repaired with.
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
        default: // RNSV and TIDC: as they stand
            Write(column, text);
        }
    }

private:
    wxString TextOf(int column) const { return m_grid->GetCellValue(m_row, column); }

    /// The number is that of the row, whatever the line calls it.
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

    /// Gives back the slot that the row holds, so that a row that comes again holds one all the same.
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
    /// Rows that this list gave a zone slot; TFLG doesn't tell any more.
    std::vector<bool> m_taken;
    int m_row = 0;
};

/// The point that a frequency in kHz lacks, behind its three digits of MHz.
wxString WithPoint(wxString text) {
    constexpr size_t Place = 3;
    if (text.length() >= Place && !text.Contains("."))
        text.insert(Place, ".");
    return text;
}

void TakeKdarLine(RowWriter& writer, const CsvTexts& fields) {
    // Meant: the list's number never reaches the row, but a missing one takes the row's away.
    if (fields[KdarMemory].empty())
        writer.Write(MNUM, wxString());
    if (!fields[KdarName].empty())
        writer.Write(DESC, fields[KdarName]);
    const wxString receive = WithPoint(fields[KdarReceive]);
    if (!receive.empty())
        writer.Write(RFRQ, receive);
    // Meant: without a transmit frequency the receive frequency is it.
    const wxString transmit = fields[KdarTransmit].empty() ? receive : WithPoint(fields[KdarTransmit]);
    if (!transmit.empty())
        writer.Write(TFRQ, transmit);
    if (!fields[KdarScan].empty())
        writer.TakeField(SCAN, fields[KdarScan]);
    if (!fields[KdarRxOnly].empty())
        writer.Write(RONL, fields[KdarRxOnly] == "Yes" ? "Y" : "N");
}

/// What a line gives a column; empty when the list has no such field.
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
            // Meant: a list without RCOD empties RSQL, one without TTGP empties TSQL.
            if (position == RSQL || position == TSQL)
                writer.EmptySquelch(position, FieldFor(position, fields));
        } else if (!fields[static_cast<size_t>(position)].empty()) {
            writer.TakeField(column, fields[static_cast<size_t>(position)]);
        }
    }
}

/// Hands each line of the list to takeLine, with its number from 1. Meant: a list longer than the page loses
/// its end, whatever rows its lines name. The count of lines that the page took.
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
        // Lines for the default row add to each other.
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
        // Meant: the lines fill the page from its first memory, whatever numbers they have.
        writer.FillRow(line);
        TakeKdarLine(writer, fields);
        writer.FinishRow(flags);
    });
}
