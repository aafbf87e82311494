// The example channel files, held against the list of channels they are made from.
// No code of the program takes part: limits and forms are typed here.
#include <gtest/gtest.h>

#include <wx/init.h>
#include <wx/mstream.h>
#include <wx/xml/xml.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

struct ExampleFile {
    const char* name;
    const char* type;
    const char* radio;
    const char* band;
    int rows;
    int channels; ///< memories without the default row and the guards
};

/// Makes a failing case print the name of its file.
void PrintTo(const ExampleFile& file, std::ostream* stream) {
    *stream << file.name;
}

constexpr std::array<ExampleFile, 29> Files{{
    {"krv-21-low", "ANFM", "KRV-21", "FM 30-50", 122, 4},
    {"krv-47-mid", "ANFM", "KRV-47", "FM 66-88", 122, 2},
    {"orv-12-airband", "", "ORV-12", "AM 118-138", 6, 6},
    {"krv-214-vhf", "ANFM", "KRV-214", "FM 138-174", 102, 30},
    {"krv-214b-vhf", "ANFM", "KRV-214B", "FM 138-174", 122, 30},
    {"krv-305-uhf", "ANFM", "KRV-305", "FM 403-512", 122, 8},
    {"kdar-2000-airband", "KDAR", "KDAR-2000", "AM 118-138", 100, 6},
    {"krv-610-vhf", "ANFM", "KRV-610", "FM 138-174", 202, 30},
    {"krv-610-uhf", "ANFM", "KRV-610", "FM 403-512", 200, 8},
    {"krv-620-vhf", "ANFM", "KRV-620", "FM 138-174", 200, 30},
    {"krv-620-milair", "ANAM", "KRV-620", "AM 225-400", 200, 3},
    {"krv-630-low", "ANFM", "KRV-630", "FM 30-50", 200, 4},
    {"krv-630-vhf", "ANFM", "KRV-630", "FM 138-174", 202, 30},
    {"krv-630qnt-low", "ANFM", "KRV-630_QNT", "FM 30-50", 202, 4},
    {"krv-630qnt-vhf", "ANFM", "KRV-630_QNT", "FM 138-174", 200, 30},
    {"krv-650-low", "ANFM", "KRV-650", "FM 30-50", 200, 4},
    {"krv-650-vhf", "ANFM", "KRV-650", "FM 138-174", 200, 30},
    {"krv-650-uhf", "ANFM", "KRV-650", "FM 403-512", 200, 8},
    {"krv-656-mid", "ANFM", "KRV-656", "FM 66-88", 200, 2},
    {"krv-656-vhf", "ANFM", "KRV-656", "FM 138-174", 200, 30},
    {"krv-656-uhf", "ANFM", "KRV-656", "FM 403-512", 200, 8},
    {"krv-666-mid", "ANFM", "KRV-666", "FM 66-88", 200, 2},
    {"krv-666-vhf", "ANFM", "KRV-666", "FM 138-174", 202, 30},
    {"kdrv-8400-low", "ANFM", "KDRV-8400", "FM 30-50", 200, 4},
    {"kdrv-8400-airband", "ANAM", "KDRV-8400", "AM 118-138", 200, 6},
    {"kdrv-8400-vhf", "ANFM", "KDRV-8400", "FM 138-174", 200, 30},
    {"kdrv-8400-milair", "ANAM", "KDRV-8400", "AM 225-400", 200, 3},
    {"kdrv-8400-uhf", "ANFM", "KDRV-8400", "FM 403-512", 200, 8},
    {"kdrv-4xxx-k6", "MDLX", "KDRV-4xxx", "K6 3-BAND", 500, 13},
}};

/// Elements of a memory in the order of the file, by the type in the header.
const std::map<std::string, std::string> Elements{
    {"ANFM", "MN SC DS MD RF RT RC TF TT TC"},
    {"ANAM", "MN SC DS RF TF"},
    {"KDAR", "MN SC DS RF TF RY"},
    {"MDLX", "MN BD SC DS MD RF RT RC TF TT TC"},
    {"", "MN RF"},
};

/// Family named at the scan cell, by the type in the header.
const std::map<std::string, std::string> ScanFamilies{
    {"ANFM", "ANFM"}, {"ANAM", "ANFM"}, {"KDAR", "RP25"}, {"MDLX", "ANFM"}};

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
    {"AM 225-400", {225, 400, true, 4}},
};

/// One line of the list of channels.
struct Source {
    std::string service, name, receive, transmit, receiveTone, transmitTone, mode, note;
};

struct Memory {
    int row = 0;
    std::vector<std::pair<std::string, std::string>> cells;
    std::string scanFamily;

    std::string Get(const std::string& element) const {
        for (const auto& [name, text] : cells) {
            if (name == element) {
                return text;
            }
        }
        return {};
    }
};

std::string ReadFile(const fs::path& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

fs::path GetPath(const ExampleFile& file) {
    return fs::path(ZELK_EXAMPLES_DIR) / (std::string(file.name) + ".zelk");
}

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
    std::ifstream stream(fs::path(ZELK_EXAMPLES_DIR) / "public-channels.csv");
    std::string line;
    std::getline(stream, line);
    while (std::getline(stream, line)) {
        std::vector<std::string> f = Split(line, ',');
        f.resize(8);
        sources.push_back({f[0], f[1], f[2], f[3], f[4], f[5], f[6], f[7]});
    }
    return sources;
}

std::string ToneOrOff(const std::string& tone) {
    return tone.empty() ? "OFF" : tone;
}

bool HasGuards(const ExampleFile& file) {
    return file.rows % 10 == 2;
}

bool IsGuard(const ExampleFile& file, const Memory& memory) {
    return HasGuards(file) && memory.row >= file.rows - 1;
}

class ExampleFiles : public testing::TestWithParam<ExampleFile> {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_document.Load(GetPath(GetParam()).string(), "UTF-8", wxXMLDOC_NONE));
        for (const wxXmlNode* node = m_document.GetRoot()->GetChildren(); node != nullptr;
             node = node->GetNext()) {
            if (node->GetName() == "MEMORY") {
                m_memories.push_back(ReadMemory(*node));
            } else {
                m_header.emplace_back(node->GetName().utf8_string(), node->GetNodeContent().utf8_string());
            }
        }
    }

    static Memory ReadMemory(const wxXmlNode& node) {
        Memory memory;
        long row = -1;
        EXPECT_TRUE(node.GetAttribute("row").ToLong(&row));
        memory.row = static_cast<int>(row);
        for (const wxXmlNode* cell = node.GetChildren(); cell != nullptr; cell = cell->GetNext()) {
            memory.cells.emplace_back(cell->GetName().utf8_string(), cell->GetNodeContent().utf8_string());
            if (cell->GetName() == "SC") {
                memory.scanFamily = cell->GetAttribute("type").utf8_string();
            }
        }
        return memory;
    }

    /// The band of a memory: on the module its own, else the file's.
    static std::string GetBand(const Memory& memory) {
        const std::string own = memory.Get("BD");
        return own.empty() ? GetParam().band : own;
    }

    std::vector<Memory> GetChannels() const {
        std::vector<Memory> channels;
        std::copy_if(m_memories.begin(), m_memories.end(), std::back_inserter(channels),
                     [](const Memory& memory) { return memory.row != 0; });
        return channels;
    }

    wxInitializer m_initializer;
    wxXmlDocument m_document;
    std::vector<std::pair<std::string, std::string>> m_header;
    std::vector<Memory> m_memories;
};

INSTANTIATE_TEST_SUITE_P(, ExampleFiles, testing::ValuesIn(Files), [](const auto& testInfo) {
    std::string name = testInfo.param.name;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
});

/// Gives elements that lost an empty text while loading that text back.
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

/// True when source and memory agree on all that the memory says of the channel.
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
    for (const auto& entry : fs::directory_iterator(ZELK_EXAMPLES_DIR)) {
        if (entry.path().extension() == ".zelk") {
            found.insert(entry.path().filename().string());
        }
    }
    EXPECT_EQ(expected, found);
}

TEST_P(ExampleFiles, AreByteForByteWhatTheToolkitSaves) {
    RestoreEmptyTexts(*m_document.GetRoot());
    wxMemoryOutputStream saved;
    ASSERT_TRUE(m_document.Save(saved, 2));
    std::string bytes(saved.GetSize(), '\0');
    saved.CopyTo(bytes.data(), bytes.size());
    EXPECT_EQ(bytes, ReadFile(GetPath(GetParam())));
}

TEST_P(ExampleFiles, NameTheirTarget) {
    EXPECT_EQ("ZelkMem", m_document.GetRoot()->GetName());
    ASSERT_EQ(6u, m_header.size());
    EXPECT_EQ(std::make_pair(std::string("Version"), std::string("1.0.0")), m_header[0]);
    EXPECT_EQ("Date", m_header[1].first);
    EXPECT_EQ("Time", m_header[2].first);
    EXPECT_EQ(std::make_pair(std::string("FType"), std::string(GetParam().type)), m_header[3]);
    EXPECT_EQ(std::make_pair(std::string("FRadio"), std::string(GetParam().radio)), m_header[4]);
    EXPECT_EQ(std::make_pair(std::string("FBand"), std::string(GetParam().band)), m_header[5]);
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
            EXPECT_FALSE(text.empty()) << name;
        }
        EXPECT_EQ(Elements.at(GetParam().type), elements);
        if (*GetParam().type != '\0') {
            EXPECT_EQ(ScanFamilies.at(GetParam().type), memory.scanFamily);
        }
    }
}

TEST_P(ExampleFiles, BeginWithTheDefaultRowOfTheirBand) {
    ASSERT_FALSE(m_memories.empty());
    EXPECT_EQ(0, m_memories[0].row);
    std::string cells;
    for (const auto& [name, text] : m_memories[0].cells) {
        cells += (cells.empty() ? "" : "|") + text;
    }
    EXPECT_EQ(DefaultRows.at(std::string(GetParam().type) + " " + GetParam().band), cells);
}

TEST_P(ExampleFiles, NumberEachMemoryOnce) {
    std::set<std::string> numbers;
    for (const Memory& memory : m_memories) {
        EXPECT_TRUE(numbers.insert(memory.Get("MN")).second) << "row " << memory.row;
        EXPECT_EQ(wxString::Format("%03d", memory.row).utf8_string(), memory.Get("MN"));
    }
}

TEST_P(ExampleFiles, TakeEveryChannelFromTheList) {
    const std::vector<Source> sources = ReadSources();
    ASSERT_EQ(64u, sources.size());
    for (const Memory& memory : GetChannels()) {
        const auto source = std::find_if(sources.begin(), sources.end(), [&](const Source& candidate) {
            return IsMadeFrom(candidate, memory, IsGuard(GetParam(), memory));
        });
        ASSERT_NE(sources.end(), source) << "row " << memory.row << " " << memory.Get("DS");
        EXPECT_FALSE(source->transmit.empty()) << memory.Get("DS") << " is for receiving only";
        EXPECT_EQ(BandRules.at(GetBand(memory)).isAm, source->mode == "AM") << memory.Get("DS");
    }
}

TEST_P(ExampleFiles, HoldAllChannelsOfTheirBandAndBothGuards) {
    const std::vector<Memory> channels = GetChannels();
    const auto guards = std::count_if(channels.begin(), channels.end(),
                                      [](const Memory& memory) { return IsGuard(GetParam(), memory); });
    EXPECT_EQ(HasGuards(GetParam()) ? 2 : 0, guards);
    EXPECT_EQ(GetParam().channels, static_cast<int>(channels.size() - guards));
}

TEST_P(ExampleFiles, KeepFrequenciesInTheFormAndTheLimitsOfTheirBand) {
    for (const Memory& memory : GetChannels()) {
        const BandRule& rule = BandRules.at(GetBand(memory));
        for (const char* element : {"RF", "TF"}) {
            const std::string text = memory.Get(element);
            if (text.empty() && std::string(element) == "TF") {
                continue; // the six-channel radio has one frequency a channel
            }
            SCOPED_TRACE("row " + std::to_string(memory.row) + ", " + element + " " + text);
            const size_t point = text.find('.');
            ASSERT_NE(std::string::npos, point);
            EXPECT_EQ(rule.decimals, text.size() - point - 1);
            EXPECT_EQ(std::string::npos, text.find_first_not_of("0123456789."));
            // The last two digits of a channel at a multiple of 2.5 kHz, and of 25 kHz in the airband.
            const std::set<std::string> ends{"00", "25", "50", "75"};
            EXPECT_TRUE(ends.contains(text.substr(text.size() - 2)));
            EXPECT_GE(std::stod(text), rule.low);
            EXPECT_LT(std::stod(text), rule.high);
        }
    }
}

TEST_P(ExampleFiles, KeepScanListsAndDescriptionsInTheirLimits) {
    const bool isKdar = std::string(GetParam().type) == "KDAR";
    const bool hasScan = *GetParam().type != '\0';
    for (const Memory& memory : GetChannels()) {
        SCOPED_TRACE("row " + std::to_string(memory.row));
        const std::string description = memory.Get("DS");
        EXPECT_LE(description.size(), isKdar ? 8u : 9u);
        EXPECT_EQ(std::string::npos,
                  description.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-./:+ ?_"));
        if (isKdar) {
            EXPECT_TRUE(memory.Get("SC") == "Y" || memory.Get("SC") == "N");
            EXPECT_EQ("N", memory.Get("RY"));
        } else if (hasScan) {
            const int scan = std::stoi(memory.Get("SC"));
            EXPECT_GE(scan, IsGuard(GetParam(), memory) ? 0 : 1);
            EXPECT_LE(scan, IsGuard(GetParam(), memory) ? 0 : 31);
            EXPECT_EQ(std::to_string(scan), memory.Get("SC"));
        }
    }
}
