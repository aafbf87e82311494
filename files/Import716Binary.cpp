#include "catalogue/AsciiText.h"
#include "catalogue/PageModel.h"
#include "catalogue/TextNumbers.h"
#include "files/Import716.h"
#include "files/ImportOutcome.h"
#include "files/ImportText.h"
#include "files/LastOfRow.h"

#include <wx/ffile.h>
#include <wx/grid.h>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <memory>
#include <string>
#include <utility>

using namespace RadioCatalogue;

namespace {

enum class Wire {
    Dropped,
    Flags,       ///< a word, as "%02X"
    Number,      ///< a word, as "%03d"
    Zone,        ///< a word: count of memories before the zone, 16 per zone
    Letter,      ///< a word: character code
    Mode,        ///< a word: position in the list of modes
    Tone,        ///< a word: position in the list of tones
    Code,        ///< a word: position in the list of codes
    Text,        ///< padded with blanks
    Description, ///< padded with blanks on the right
    UnitId,      ///< words of two decimal digits
};

struct WireField {
    size_t offset; ///< in a record whose texts hold no newline
    size_t size;
    Wire kind;
    Field716 into;
};

constexpr WireField WireFields[] = {
    {0, 2, Wire::Dropped, nullptr}, // flags of the former software
    {2, 2, Wire::Flags, &Record716::Mflg},
    {4, 2, Wire::Number, &Record716::Prim},
    {6, 2, Wire::Number, &Record716::Mnum},
    {8, 2, Wire::Zone, &Record716::Zone},
    {10, 8, Wire::Description, &Record716::Desc},
    {18, 2, Wire::Letter, &Record716::Encr},
    {20, 2, Wire::Mode, &Record716::Mode},
    {22, 2, Wire::Letter, &Record716::Rsql},
    {24, 6, Wire::Text, &Record716::Rtgp},
    {30, 2, Wire::Tone, &Record716::Rton},
    {32, 2, Wire::Code, &Record716::Rcod},
    {34, 6, Wire::Text, &Record716::Rnac},
    {40, 10, Wire::Text, &Record716::Rfrq},
    {50, 2, Wire::Letter, &Record716::Tsql},
    {52, 6, Wire::Text, &Record716::Ttgp},
    {58, 2, Wire::Tone, &Record716::Tton},
    {60, 2, Wire::Code, &Record716::Tcod},
    {62, 6, Wire::Text, &Record716::Tnac},
    {68, 10, Wire::Text, &Record716::Tfrq},
    {78, 8, Wire::UnitId, &Record716::Tidc},
    {86, 2, Wire::Dropped, nullptr},
    {88, 2, Wire::Number, &Record716::Shd0},
    {90, 2, Wire::Number, &Record716::Shd1},
    {92, 2, Wire::Number, &Record716::Shd2},
    {94, 2, Wire::Number, &Record716::Shd3},
    {96, 2, Wire::Number, &Record716::Shd4},
    {98, 2, Wire::Number, &Record716::Shd5},
    {100, 2, Wire::Number, &Record716::Shd6},
    {102, 2, Wire::Dropped, nullptr},
    {104, 2, Wire::Number, &Record716::Rfrn},
};

constexpr bool FieldsFollowEachOther() {
    size_t offset = 0;
    for (const WireField& field : WireFields) {
        if (field.offset != offset)
            return false;
        offset += field.size;
    }
    return offset == RecordSize716;
}
static_assert(FieldsFollowEachOther());

constexpr size_t WordSize = 2;

/// Reads words and texts from the front of bytes.
class ByteReader {
public:
    explicit ByteReader(std::string_view bytes) : m_bytes(bytes), m_size(bytes.size()) {}

    int Word() {
        const int low = Byte();
        return low | Byte() << 8;
    }

    /// Reads a text of size bytes, or up to and including a newline.
    /// Intentional: what follows a newline then moves forward, because texts are read a line at a time.
    std::string_view Text(size_t size) {
        const std::string_view field = m_bytes.substr(0, size);
        const size_t newline = field.find('\n');
        m_bytes.remove_prefix(newline == field.npos ? field.size() : newline + 1);
        return field.substr(0, newline);
    }

    size_t Taken() const { return m_size - m_bytes.size(); }

private:
    int Byte() {
        if (m_bytes.empty())
            return 0xFF;
        const auto byte = static_cast<unsigned char>(m_bytes.front());
        m_bytes.remove_prefix(1);
        return byte;
    }

    std::string_view m_bytes;
    size_t m_size;
};

wxString ModeOfPosition(int position) {
    return position < static_cast<int>(std::size(P25Modes)) ? TextOfAscii(P25Modes[position]) : wxString();
}

wxString Letter(int code) {
    return code == 0 ? wxString() : wxString(wxUniChar(code));
}

wxString UnitIdOf(ByteReader& bytes, size_t size) {
    int64_t value = 0;
    for (size_t words = size / WordSize; words > 0; --words) {
        const int word = bytes.Word();
        value = value * 100 + word / 16 * 10 + word % 16;
    }
    constexpr size_t digits = 7;
    const wxString text = NumberText(value > 99999999 ? 0 : static_cast<int>(value));
    return text.length() < digits ? wxString(digits - text.length(), '0') + text : text;
}

wxString ReadField(ByteReader& bytes, const WireField& field, int type) {
    switch (field.kind) {
    case Wire::Text:
        return TrimmedTextFromBytes(bytes.Text(field.size));
    case Wire::Description:
        return TextFromBytes(bytes.Text(field.size)).Trim(true);
    case Wire::UnitId:
        return UnitIdOf(bytes, field.size);
    default:
        break;
    }
    const int word = bytes.Word();
    switch (field.kind) {
    case Wire::Flags:
        return FlagText(word);
    case Wire::Number:
        return NumberText(word);
    case Wire::Zone:
        return TextOfAscii(std::to_string(word / 16 + 1));
    case Wire::Letter:
        return Letter(word);
    case Wire::Mode:
        return ModeOfPosition(word);
    case Wire::Tone:
        return GetToneText(word);
    case Wire::Code:
        return RadioCatalogue::GetCodeText(word, type);
    default:
        return {};
    }
}

/// Reads the records of an open file in sequence.
class Records {
public:
    Records(wxFFile& file, int type) : m_file(file), m_type(type) {}

    bool Next(Record716& record) {
        if (m_bytes.size() - m_at < RecordSize716)
            ReadOn();
        const size_t taken = Read716Record(std::string_view(m_bytes).substr(m_at), m_type, record);
        m_at += taken;
        return taken > 0;
    }

private:
    void ReadOn() {
        constexpr size_t block = 0x10000;
        m_bytes.erase(0, m_at);
        m_at = 0;
        const size_t left = m_bytes.size();
        m_bytes.resize(left + block);
        m_bytes.resize(left + m_file.Read(m_bytes.data() + left, block));
    }

    wxFFile& m_file;
    int m_type;
    std::string m_bytes;
    size_t m_at = 0;
};

} // namespace

size_t Read716Record(std::string_view bytes, int type, Record716& record) {
    if (bytes.size() < WordSize)
        return 0;
    ByteReader reader(bytes.substr(0, RecordSize716));
    for (const WireField& field : WireFields) {
        wxString text = ReadField(reader, field, type);
        if (field.into)
            (record.*field.into).swap(text);
    }
    record.Scan = TextOfAscii(ReadHex(record.Mflg) & ScanFlag ? "Y" : "N");
    record.Tflg = TextOfAscii(TflgMade);
    return reader.Taken();
}

int Import716_Binary(wxFFile& file) {
    wxGrid* grid = CurrentGrid();
    Records records(file, CurrentParameters().Type);
    LastOfRow<std::shared_ptr<const Record716>> kept(grid->GetNumberRows());
    LinesOfRows places(grid->GetNumberRows());
    int count = 0;
    int place = 0;
    for (auto record = std::make_shared<Record716>(); records.Next(*record);) {
        const int row = RowOf716(*record);
        ++place;
        if (row < 0) {
            SkippedLines::Note(place);
            continue;
        }
        places.Take(row, place);
        kept.Keep(row, std::exchange(record, std::make_shared<Record716>()));
        ++count;
    }
    wxGridUpdateLocker quiet(grid);
    RowWriter716 writer;
    kept.ForEach(
        [&writer](int row, const std::shared_ptr<const Record716>& record) { writer.Write(row, *record); });
    return count;
}
