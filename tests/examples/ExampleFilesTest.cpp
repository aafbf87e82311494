// The example channel files, compared with the list of channels that they are made from. Independent of the
// program's code: limits and forms are stated here.
#include "tests/examples/ExampleFiles.h"

#include "robot/Files.h"
#include "tests/support/Places.h"

#include <gtest/gtest.h>
#include <wx/mstream.h>
#include <wx/xml/xml.h>

#include <algorithm>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

using namespace exampletest;
using testbench::ReadFile;
using testbench::ReadLines;

namespace {

namespace fs = std::filesystem;

/// Elements of a memory in the order of the file, by the type in the header.
const std::map<std::string, std::string> Elements{
    {"ANFM", "MN SC DS MD RF RT RC TF TT TC"},
    {"ANAM", "MN SC DS RF TF"},
    {"KDAR", "MN SC DS RF TF RY"},
    {"MDLX", "MN BD SC DS MD RF RT RC TF TT TC"},
    {"", "MN RF"},
    {"RP25", "MF MN PR SH SC ZN DS MD RF RS RT RC RG RN TF TS TT TC TG TN TI S0 S1 S2 S3 S4 S5 S6"},
    {"NP25", "MF MN PR SH SC ZN DS MD RF RS RV RT RC RG RN TF TS TT TC TG TN TI S0 S1 S2 S3 S4 S5 S6"},
};

/// Family named at the scan cell, by the type in the header.
const std::map<std::string, std::string> ScanFamilies{{"ANFM", "ANFM"}, {"ANAM", "ANFM"}, {"KDAR", "RP25"},
                                                      {"MDLX", "ANFM"}, {"RP25", "RP25"}, {"NP25", "RP25"}};

/// Cells of the default row in file order, by type and band in the header.
const std::map<std::string, std::string> DefaultRows{
    {"ANFM FM 30-50", "000|0|LOW    30|W|30.0000|OFF|OFF|50.0000|OFF|OFF"},
    {"ANFM FM 66-88", "000|0|LOW    66|W|66.0000|OFF|OFF|88.0000|OFF|OFF"},
    {"ANFM FM 138-174", "000|0|VHF   138|N|138.0000|OFF|OFF|174.0000|OFF|OFF"},
    {"ANFM FM 403-512", "000|0|UHF   403|W|403.0000|OFF|OFF|512.0000|OFF|OFF"},
    {"ANAM AM 118-138", "000|0|VHFAM 118|118.000|138.000"},
    {"ANAM AM 225-400", "000|0|UHFAM 225|225.0000|400.0000"},
    {"KDAR AM 118-138", "000|N|VHFAM118|118.000|138.000|N"},
    {"MDLX K6 3-BAND", "000|FM 30-50|0|MODL   K6|N|31.0000|OFF|OFF|31.0000|OFF|OFF"},
    {" AM 118-138", "000|118.000"},
    {"RP25 FM 136-174", "0|000|0|N|N|1|VHF  136|n|136.0000|x|67.0|023|0001|293|"
                        "174.0000|x|67.0|023|0001|293|00000001|0|0|0|0|0|0|0"},
    {"NP25 FM 136-174", "0|000|0|N|N|1|VHF  136|n|136.0000|x|10|67.0|023|0001|293|"
                        "174.0000|x|67.0|023|0001|293|00000001|0|0|0|0|0|0|0"},
};

struct BandRule {
    double low, high; ///< MHz
    bool isAm;
    size_t decimals;
};

const std::map<std::string, BandRule> BandRules{
    {"FM 30-50", {30, 50, false, 4}},     {"FM 66-88", {66, 88, false, 4}},
    {"FM 138-174", {138, 174, false, 4}}, {"FM 403-512", {403, 512, false, 4}},
    {"AM 118-138", {118, 138, true, 3}},  {"AM 108-138", {118, 138, true, 3}},
    {"AM 225-400", {225, 400, true, 4}},  {"FM 136-174", {136, 174, false, 4}},
};

/// One line of the list of channels.
struct Source {
    std::string service, name, receive, transmit, receiveTone, transmitTone, mode, note;
};

std::vector<std::string> Split(const std::string& text, char separator) {
    std::vector<std::string> parts;
    std::istringstream stream(text);
    for (std::string part; std::getline(stream, part, separator);) {
        parts.push_back(part);
    }
    return parts;
}

std::vector<Source> ReadSources() {
    std::vector<Source> sources;
    const std::vector<std::string> lines =
        ReadLines(fs::path(testbench::ExamplesFolder()) / "public-channels.csv");
    // The first line contains the headings.
    for (size_t k = 1; k < lines.size(); ++k) {
        std::vector<std::string> f = Split(lines[k], ',');
        f.resize(8);
        sources.push_back({f[0], f[1], f[2], f[3], f[4], f[5], f[6], f[7]});
    }
    return sources;
}

std::string ToneOrOff(const std::string& tone) {
    return tone.empty() ? "OFF" : tone;
}

INSTANTIATE_TEST_SUITE_P(, ExampleFiles, testing::ValuesIn(Files), NameOfFile);

/// As IsMadeFrom, for a P25 memory that isn't a shadow. It has a tone and an id even if they aren't used.
bool IsP25MadeFrom(const Source& source, const Memory& memory) {
    const bool isDigital = source.mode == "P25";
    const auto squelch = [&](const std::string& tone) { return isDigital ? "g" : tone.empty() ? "x" : "t"; };
    const auto tone = [](const std::string& text) { return text.empty() ? "67.0" : text; };
    const std::string id = isDigital ? "NAC " + memory.Get("RN") + " talk group " + memory.Get("RG") : "";
    return memory.Get("RF") == source.receive && memory.Get("TF") == source.transmit &&
           memory.Get("DS") == source.name &&
           memory.Get("MD") == (isDigital                  ? "D"
                                : source.mode == "FM wide" ? "w"
                                                           : "n") &&
           memory.Get("RS") == squelch(source.receiveTone) &&
           memory.Get("TS") == squelch(source.transmitTone) && memory.Get("RT") == tone(source.receiveTone) &&
           memory.Get("TT") == tone(source.transmitTone) && memory.Get("TN") == memory.Get("RN") &&
           memory.Get("TG") == memory.Get("RG") && (!isDigital || source.note == id);
}

/// Restores empty texts in elements, which loading removes.
void RestoreEmptyTexts(wxXmlNode& element) {
    if (element.GetChildren() == nullptr) {
        element.AddChild(new wxXmlNode(wxXML_TEXT_NODE, "", "")); // the element owns it
    }
    for (wxXmlNode* child = element.GetChildren(); child != nullptr; child = child->GetNext()) {
        if (child->GetType() == wxXML_ELEMENT_NODE) {
            RestoreEmptyTexts(*child);
        }
    }
}

/// True if source and memory agree on everything that the memory states about the channel.
bool IsMadeFrom(const Source& source, const Memory& memory, bool isGuard) {
    const auto agrees = [&memory](const char* element, const std::string& expected) {
        const std::string text = memory.Get(element);
        return text.empty() || text == expected;
    };
    const bool isModuleAm = memory.Get("BD").starts_with("AM");
    const bool isModuleVhfAm = memory.Get("BD") == "AM 108-138";
    const std::string mode = source.mode == "FM wide" ? "W" : "N";
    return memory.Get("RF") == source.receive && agrees("DS", source.name) && agrees("TF", source.transmit) &&
           agrees("MD", memory.Get("BD") == "AM 225-400" ? "n/a" : mode) &&
           agrees("RT", isGuard || isModuleVhfAm ? "n/a" : ToneOrOff(source.receiveTone)) &&
           agrees("TT", isModuleVhfAm ? "n/a" : ToneOrOff(source.transmitTone)) &&
           agrees("RC", isGuard || isModuleAm ? "n/a" : "OFF") && agrees("TC", isModuleAm ? "n/a" : "OFF");
}

} // namespace

TEST(ExampleFolder, HoldsTheListedFilesAndNoOthers) {
    std::set<std::string> expected;
    for (const ExampleFile& file : Files) {
        expected.insert(GetPath(file).filename().string());
    }
    std::set<std::string> found;
    for (const auto& entry : fs::directory_iterator(testbench::ExamplesFolder())) {
        if (entry.path().extension() == ".zelk") {
            found.insert(entry.path().filename().string());
        }
    }
    EXPECT_EQ(found, expected);
}

TEST_P(ExampleFiles, AreByteForByteWhatTheToolkitSaves) {
    RestoreEmptyTexts(*m_document.GetRoot());
    wxMemoryOutputStream saved;
    ASSERT_TRUE(m_document.Save(saved, 2));
    std::string bytes(saved.GetSize(), '\0');
    saved.CopyTo(bytes.data(), bytes.size());
    EXPECT_EQ(ReadFile(GetPath(GetParam())), bytes);
}

TEST_P(ExampleFiles, NameTheirTarget) {
    EXPECT_EQ(m_document.GetRoot()->GetName(), "ZelkMem");
    ASSERT_EQ(m_header.size(), 6u);
    EXPECT_EQ(m_header[0], std::make_pair(std::string("Version"), std::string("1.0.0")));
    EXPECT_EQ(m_header[1].first, "Date");
    EXPECT_EQ(m_header[2].first, "Time");
    EXPECT_EQ(m_header[3], std::make_pair(std::string("FType"), std::string(GetParam().type)));
    EXPECT_EQ(m_header[4], std::make_pair(std::string("FRadio"), std::string(GetParam().radio)));
    EXPECT_EQ(m_header[5], std::make_pair(std::string("FBand"), std::string(GetParam().band)));
}

TEST_P(ExampleFiles, HoldCompleteRowsInOrderWithinTheGrid) {
    int previous = -1;
    for (const Memory& memory : m_memories) {
        SCOPED_TRACE("row " + std::to_string(memory.row));
        EXPECT_GT(memory.row, previous);
        EXPECT_LE(memory.row, GetParam().rows);
        previous = memory.row;
        std::string elements;
        for (const auto& [name, text] : memory.cells) {
            elements += (elements.empty() ? "" : " ") + name;
            // A shadow has the zone of its primary.
            const bool mayBeEmpty = name == "ZN" && memory.Get("SH").starts_with("S-");
            EXPECT_EQ(text.empty(), mayBeEmpty) << name;
        }
        EXPECT_EQ(elements, Elements.at(GetParam().type));
        if (*GetParam().type != '\0') {
            EXPECT_EQ(memory.scanFamily, ScanFamilies.at(GetParam().type));
        }
    }
}

TEST_P(ExampleFiles, BeginWithTheDefaultRowOfTheirBand) {
    ASSERT_FALSE(m_memories.empty());
    EXPECT_EQ(m_memories[0].row, 0);
    std::string cells;
    for (const auto& [name, text] : m_memories[0].cells) {
        cells += (cells.empty() ? "" : "|") + text;
    }
    EXPECT_EQ(cells, DefaultRows.at(std::string(GetParam().type) + " " + GetParam().band));
}

TEST_P(ExampleFiles, NumberEachMemoryOnce) {
    std::set<std::string> numbers;
    for (const Memory& memory : m_memories) {
        EXPECT_TRUE(numbers.insert(memory.Get("MN")).second) << "row " << memory.row;
        EXPECT_EQ(memory.Get("MN"), wxString::Format("%03d", memory.row).utf8_string());
    }
}

TEST_P(ExampleFiles, TakeEveryChannelFromTheList) {
    const std::vector<Source> sources = ReadSources();
    ASSERT_EQ(sources.size(), 64u);
    for (const Memory& memory : GetChannels()) {
        if (IsShadow(memory)) {
            continue; // made up for the example; other tests compare them with their primaries
        }
        const auto source = std::find_if(sources.begin(), sources.end(), [&](const Source& candidate) {
            return IsP25(GetParam()) ? IsP25MadeFrom(candidate, memory)
                                     : IsMadeFrom(candidate, memory, IsGuard(GetParam(), memory));
        });
        ASSERT_NE(sources.end(), source) << "row " << memory.row << " " << memory.Get("DS");
        EXPECT_FALSE(source->transmit.empty()) << memory.Get("DS") << " is for receiving only";
        EXPECT_EQ(source->mode == "AM", BandRules.at(GetBand(memory)).isAm) << memory.Get("DS");
    }
}

TEST_P(ExampleFiles, HoldAllChannelsOfTheirBandAndBothGuards) {
    const std::vector<Memory> channels = GetChannels();
    const auto guards = std::count_if(channels.begin(), channels.end(),
                                      [](const Memory& memory) { return IsGuard(GetParam(), memory); });
    EXPECT_EQ(guards, HasGuards(GetParam()) ? 2 : 0);
    EXPECT_EQ(static_cast<int>(channels.size()) - guards, GetParam().channels);
}

TEST_P(ExampleFiles, KeepFrequenciesInTheFormAndTheLimitsOfTheirBand) {
    for (const Memory& memory : GetChannels()) {
        const BandRule& rule = BandRules.at(GetBand(memory));
        for (const char* element : {"RF", "TF"}) {
            const std::string text = memory.Get(element);
            if (text.empty() && std::string(element) == "TF") {
                continue; // the six-channel radio has one frequency per channel
            }
            SCOPED_TRACE("row " + std::to_string(memory.row) + ", " + element + " " + text);
            const size_t point = text.find('.');
            ASSERT_NE(point, std::string::npos);
            EXPECT_EQ(text.size() - point - 1, rule.decimals);
            EXPECT_EQ(text.find_first_not_of("0123456789."), std::string::npos);
            // Last two digits of a channel at a multiple of 2.5 kHz, or of 25 kHz in the airband.
            const std::set<std::string> ends{"00", "25", "50", "75"};
            EXPECT_TRUE(ends.contains(text.substr(text.size() - 2)));
            EXPECT_GE(std::stod(text), rule.low);
            EXPECT_LT(std::stod(text), rule.high);
        }
    }
}

TEST_P(ExampleFiles, KeepScanListsAndDescriptionsInTheirLimits) {
    const bool isKdar = std::string(GetParam().type) == "KDAR";
    const bool isP25 = IsP25(GetParam());
    const bool hasScan = *GetParam().type != '\0';
    for (const Memory& memory : GetChannels()) {
        SCOPED_TRACE("row " + std::to_string(memory.row));
        const std::string description = memory.Get("DS");
        EXPECT_LE(description.size(), isKdar || isP25 ? 8u : 9u);
        EXPECT_EQ(description.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-./:+ ?_"),
                  std::string::npos);
        if (isP25) {
            // The radio receives the flags. Linked memories and guards are never scanned.
            EXPECT_TRUE(memory.Get("SC") == "Y" || memory.Get("SC") == "N");
            const bool isScanned = memory.Get("SC") == "Y";
            EXPECT_EQ((GetFlags(memory) & 0x08) != 0, isScanned);
            EXPECT_FALSE(isScanned && (memory.Get("SH") != "N" || IsGuard(GetParam(), memory)));
        } else if (isKdar) {
            EXPECT_TRUE(memory.Get("SC") == "Y" || memory.Get("SC") == "N");
            EXPECT_EQ(memory.Get("RY"), "N");
        } else if (hasScan) {
            const int scan = std::stoi(memory.Get("SC"));
            EXPECT_GE(scan, IsGuard(GetParam(), memory) ? 0 : 1);
            EXPECT_LE(scan, IsGuard(GetParam(), memory) ? 0 : 31);
            EXPECT_EQ(memory.Get("SC"), std::to_string(scan));
        }
    }
}
