#include "tools/P25Channels.h"

#include "catalogue/ChoiceLists.h"
#include "catalogue/MemoryRow.h"
#include "tools/Texts.h"

#include <wx/grid.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <span>
#include <sstream>
#include <stdexcept>

namespace Tour {

namespace {

/// Names of the file's elements for the columns.
constexpr struct {
    const char* element;
    Column column;
} Elements[] = {
    {"MF", MFLG}, {"MN", MNUM}, {"PR", PRIM}, {"SH", SHAD}, {"SC", SCAN}, {"ZN", ZONE},
    {"DS", DESC}, {"MD", MODE}, {"RF", RFRQ}, {"RS", RSQL}, {"RV", RNSV}, {"RT", RTON},
    {"RC", RCOD}, {"RG", RTGP}, {"RN", RNAC}, {"TF", TFRQ}, {"TS", TSQL}, {"TT", TTON},
    {"TC", TCOD}, {"TG", TTGP}, {"TN", TNAC}, {"TI", TIDC}, {"S0", SHD0}, {"S1", SHD1},
    {"S2", SHD2}, {"S3", SHD3}, {"S4", SHD4}, {"S5", SHD5}, {"S6", SHD6},
};

unsigned Hex(const std::string& text) {
    return static_cast<unsigned>(std::strtoul(text.c_str(), nullptr, 16));
}

/// A frequency without leading and trailing zeros; keeps its point and one decimal.
std::string Shortest(std::string frequency) {
    frequency.erase(0, frequency.find_first_not_of('0'));
    if (const size_t point = frequency.find('.'); point != std::string::npos)
        frequency.erase(std::max(frequency.find_last_not_of('0') + 1, point + 2));
    return frequency;
}

/// The entry at a position from 0; past the end, a text that no list contains.
std::string EntryOf(std::span<const char* const> list, unsigned position) {
    return position < list.size() ? list[position] : "?" + std::to_string(position);
}

/// The fields of a record in the new layout, by their positions in the line.
class Record {
public:
    explicit Record(const std::string& line) : m_line(line) {}

    unsigned Bits(size_t position, size_t digits) const { return Hex(m_line.substr(position, digits)); }
    std::string Digits(size_t position, size_t digits) const { return m_line.substr(position, digits); }
    std::string Letter(size_t position) const { return {static_cast<char>(Bits(position, 2))}; }
    std::string Text(size_t position, size_t characters) const {
        std::string text;
        for (size_t i = 0; i < characters; ++i)
            text += Letter(position + 2 * i);
        return text;
    }
    std::string Frequency(size_t position) const {
        const unsigned hertz = Bits(position, 8);
        char text[24];
        std::snprintf(text, sizeof text, "%u.%06u", hertz / 1'000'000, hertz % 1'000'000);
        return text;
    }
    /// Radios count tones from 1.
    std::string Tone(size_t position) const {
        return EntryOf(RadioCatalogue::CtcssTexts, Bits(position, 2) - 1);
    }
    /// Radios count codes from 1; 0 is none.
    std::string Code(size_t position) const { return EntryOf(RadioCatalogue::CodeTexts, Bits(position, 2)); }

private:
    std::string m_line;
};

constexpr size_t RecordLength = 138; // including the checksum

} // namespace

Channel P25OfElements(const std::map<std::string, std::string>& elements) {
    const auto text = [&](const char* name) {
        const auto found = elements.find(name);
        return found == elements.end() ? std::string() : found->second;
    };
    P25Facts facts{.receiveSquelch = text("RS"),
                   .transmitSquelch = text("TS"),
                   .receiveGroup = text("RG"),
                   .transmitGroup = text("TG"),
                   .receiveNac = text("RN"),
                   .transmitNac = text("TN"),
                   .squelchValue = Number(text("RV")),
                   .unitId = Number(text("TI")),
                   .zone = text("ZN"),
                   .primary = Number(text("PR")),
                   .shadowPlace = static_cast<int>(Hex(text("MF"))) & ShadowIndexMask,
                   .link = text("SH"),
                   .shadows = {}};
    for (size_t i = 0; i < facts.shadows.size(); ++i)
        facts.shadows[i] = Number(text(("S" + std::to_string(i)).c_str()));
    return {.description = Trimmed(text("DS")),
            .receive = Shortest(text("RF")),
            .transmit = Shortest(text("TF")),
            .receiveTone = text("RT"),
            .transmitTone = text("TT"),
            .receiveCode = text("RC"),
            .transmitCode = text("TC"),
            .scan = text("SC") == "Y",
            .mode = (text("MD") + " ")[0],
            .p25 = facts};
}

std::map<std::string, std::string> P25ElementsOfRow(wxGrid& grid, int row) {
    std::map<std::string, std::string> elements;
    for (const auto& [element, column] : Elements)
        elements[element] = grid.GetCellValue(row, column).utf8_string();
    return elements;
}

bool IsP25Record(const std::string& line) {
    return line.starts_with("1 T1") || line.starts_with("2 T1");
}

void AddP25Record(const std::string& line, ChannelList& channels) {
    if (line[0] != '2' || line.size() != 2 + RecordLength)
        throw std::runtime_error("a memory in a layout that the tour does not know: " + line);
    const Record record(line.substr(2));
    const int number = static_cast<int>(record.Bits(4, 4));
    if (number == 0)
        return;
    const int flags = static_cast<int>(record.Bits(8, 4));
    const int place = flags & ShadowIndexMask;
    char link[8] = "N";
    if (place != 0)
        std::snprintf(link, sizeof link, "S-%03u", record.Bits(12, 4) % 1000);
    channels[number] = {
        .description = Trimmed(record.Text(24, 8)),
        .receive = Shortest(record.Frequency(44)),
        .transmit = Shortest(record.Frequency(68)),
        .receiveTone = record.Tone(56),
        .transmitTone = record.Tone(80),
        .receiveCode = record.Code(58),
        .transmitCode = record.Code(82),
        .scan = (flags & ScanFlag) != 0,
        .mode = record.Letter(42)[0],
        .p25 = P25Facts{.receiveSquelch = record.Letter(54),
                        .transmitSquelch = record.Letter(78),
                        .receiveGroup = record.Digits(64, 4),
                        .transmitGroup = record.Digits(88, 4),
                        .receiveNac = record.Digits(61, 3),
                        .transmitNac = record.Digits(85, 3),
                        .squelchValue = static_cast<int>(record.Bits(60, 1)),
                        .unitId = static_cast<int>(record.Bits(92, 8)),
                        .zone = place ? "" : EntryOf(RadioCatalogue::ZoneNames32, record.Bits(20, 3)),
                        .primary = static_cast<int>(record.Bits(12, 4)),
                        .shadowPlace = place,
                        .link = link,
                        .shadows = {}}};
}

void LinkP25Shadows(ChannelList& channels) {
    for (const auto& [number, channel] : channels) {
        if (!channel.p25 || channel.p25->shadowPlace == 0)
            continue;
        const auto primary = channels.find(channel.p25->primary);
        if (primary == channels.end() || !primary->second.p25)
            continue;
        P25Facts& facts = *primary->second.p25;
        facts.shadows[static_cast<size_t>(channel.p25->shadowPlace - 1)] = number;
        facts.link = "P-" + std::to_string(std::count_if(facts.shadows.begin(), facts.shadows.end(),
                                                         [](int shadow) { return shadow != 0; }));
    }
}

ChannelList AsReadBack(ChannelList channels, const std::string& defaultCode) {
    using RadioCatalogue::CodeTexts;
    const auto next = [](const std::string& code) -> std::string {
        const auto found = std::find(std::begin(CodeTexts), std::end(CodeTexts), code);
        const bool hasNext = found != std::end(CodeTexts) && std::next(found) != std::end(CodeTexts);
        return hasNext ? *std::next(found) : std::string();
    };
    for (auto& [number, channel] : channels)
        for (std::string* code : {&channel.receiveCode, &channel.transmitCode}) {
            const std::string moved = next(*code);
            *code = moved.empty() ? next(defaultCode) : moved;
        }
    return channels;
}

std::string Describe(const P25Facts& facts) {
    std::ostringstream text;
    text << "squelch " << facts.receiveSquelch << '/' << facts.transmitSquelch << " value "
         << facts.squelchValue << " talk groups " << facts.receiveGroup << '/' << facts.transmitGroup
         << " NACs " << facts.receiveNac << '/' << facts.transmitNac << " id " << facts.unitId << " zone \""
         << facts.zone << "\" link " << facts.link << " place " << facts.shadowPlace << " primary "
         << facts.primary << " shadows";
    for (const int shadow : facts.shadows)
        text << ' ' << shadow;
    return text.str();
}

} // namespace Tour
