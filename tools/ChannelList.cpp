#include "tools/ChannelList.h"

#include "catalogue/ChoiceLists.h"
#include "catalogue/MemoryRow.h"
#include "tools/P25Channels.h"
#include "tools/Texts.h"

#include <wx/grid.h>
#include <wx/xml/xml.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

namespace Tour {

namespace {

std::string Plain(const std::string& toneOrCode) {
    return toneOrCode == "n/a" || toneOrCode == "000" || toneOrCode.empty() ? "OFF" : toneOrCode;
}

std::string WithoutLeadingZeros(const std::string& frequency) {
    return frequency.substr(std::min(frequency.find_first_not_of('0'), frequency.size()));
}

Channel FromTexts(const std::string& description, const std::string& receive, const std::string& transmit,
                  const std::string& receiveTone, const std::string& transmitTone,
                  const std::string& receiveCode, const std::string& transmitCode, int scan,
                  const std::string& mode) {
    return {Trimmed(description),
            WithoutLeadingZeros(receive),
            WithoutLeadingZeros(transmit),
            Plain(receiveTone),
            Plain(transmitTone),
            Plain(receiveCode),
            Plain(transmitCode),
            scan,
            mode == "W" || mode == "w" ? 'W' : 'N',
            {}};
}

/// Converts the radio's tone number to text; the last number means none.
std::string ToneOfNumber(const std::string& digits) {
    const size_t i = static_cast<size_t>(Number(digits));
    return i < std::size(RadioCatalogue::ToneTexts) ? RadioCatalogue::ToneTexts[i] : "?" + digits;
}

/// Converts the marks of scan lists 1 to 5 to bits.
int ScanOfMarks(const std::string& marks) {
    int mask = 0;
    for (int list = 0; list < 5; ++list)
        if (marks[static_cast<size_t>(list)] == '1' + list)
            mask |= 1 << list;
    return mask;
}

} // namespace

ChannelList ChannelsOfFile(const std::string& path) {
    wxXmlDocument document;
    if (!document.Load(wxString::FromUTF8(path)))
        throw std::runtime_error("can't read " + path);
    ChannelList channels;
    bool isP25 = false;
    for (wxXmlNode* row = document.GetRoot()->GetChildren(); row; row = row->GetNext()) {
        if (row->GetName() == "FType")
            isP25 = row->GetNodeContent().EndsWith("P25");
        if (row->GetName() != "MEMORY" || row->GetAttribute("row") == "0")
            continue;
        std::map<std::string, std::string> cells;
        for (wxXmlNode* cell = row->GetChildren(); cell; cell = cell->GetNext())
            cells[cell->GetName().utf8_string()] = cell->GetNodeContent().utf8_string();
        channels[Number(cells["MN"])] =
            isP25 ? P25OfElements(cells)
                  : FromTexts(cells["DS"], cells["RF"], cells["TF"], cells["RT"], cells["TT"], cells["RC"],
                              cells["TC"], Number(cells["SC"]), cells["MD"]);
    }
    return channels;
}

ChannelList ChannelsOfRadio(const std::string& path) {
    std::ifstream file(path);
    ChannelList channels;
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line[0] == '#')
            continue;
        if (IsP25Record(line)) {
            AddP25Record(line, channels);
            continue;
        }
        line.resize(76, ' ');
        channels[Number(line.substr(0, 3))] =
            FromTexts(line.substr(4, 9), line.substr(14, 8), line.substr(25, 8),
                      ToneOfNumber(line.substr(43, 2)), ToneOfNumber(line.substr(48, 2)), line.substr(58, 3),
                      line.substr(64, 3), ScanOfMarks(line.substr(70, 5)), line.substr(75, 1));
    }
    LinkP25Shadows(channels);
    return channels;
}

ChannelList ChannelsOfGrid(wxGrid& grid) {
    ChannelList channels;
    for (int row = 1; row < grid.GetNumberRows(); ++row) {
        const auto cell = [&](int col) { return grid.GetCellValue(row, col).utf8_string(); };
        if (cell(MNUM).empty())
            continue;
        // Only pages of P25 radios have text in this column.
        if (!cell(SHAD).empty())
            channels[Number(cell(MNUM))] = P25OfElements(P25ElementsOfRow(grid, row));
        else
            channels[Number(cell(MNUM))] =
                FromTexts(cell(DESC), cell(RFRQ), cell(TFRQ), cell(RTON), cell(TTON), cell(RCOD), cell(TCOD),
                          Number(cell(SCAN)), cell(MODE));
    }
    return channels;
}

namespace {

std::string Describe(const ChannelList& channels, int number) {
    const auto found = channels.find(number);
    if (found == channels.end())
        return "nothing";
    const Channel& c = found->second;
    std::ostringstream text;
    text << '"' << c.description << "\" " << c.receive << '/' << c.transmit << " tones " << c.receiveTone
         << '/' << c.transmitTone << " codes " << c.receiveCode << '/' << c.transmitCode << " scan " << c.scan
         << ' ' << c.mode;
    if (c.p25)
        text << ' ' << Describe(*c.p25);
    return text.str();
}

} // namespace

std::vector<std::string> Differences(const ChannelList& wanted, const ChannelList& found) {
    std::vector<int> numbers;
    for (const ChannelList* list : {&wanted, &found})
        for (const auto& [number, channel] : *list)
            numbers.push_back(number);
    std::sort(numbers.begin(), numbers.end());
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());

    std::vector<std::string> lines;
    for (int number : numbers) {
        const auto a = wanted.find(number);
        const auto b = found.find(number);
        if (a == wanted.end() || b == found.end() || a->second != b->second)
            lines.push_back("channel " + std::to_string(number) + ": wanted " + Describe(wanted, number) +
                            ", found " + Describe(found, number));
    }
    return lines;
}

} // namespace Tour
