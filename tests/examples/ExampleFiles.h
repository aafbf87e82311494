// The example files as their tests see them: a list of them, and their contents.
#pragma once

#include "tests/support/Places.h"

#include <gtest/gtest.h>
#include <wx/init.h>
#include <wx/xml/xml.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <iterator>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace exampletest {

struct ExampleFile {
    const char* name;
    const char* type;
    const char* radio;
    const char* band;
    int rows;
    int channels; ///< memories without the default row and the guards
};

/// Prints the name of the file for a failing case.
inline void PrintTo(const ExampleFile& file, std::ostream* stream) {
    *stream << file.name;
}

inline constexpr std::array<ExampleFile, 36> Files{{
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
    {"kdrv-4xxx-low", "ANFM", "KDRV-4xxx", "FM 30-50", 200, 4},
    {"kdrv-4xxx-airband", "ANAM", "KDRV-4xxx", "AM 118-138", 200, 6},
    {"kdrv-4xxx-vhf", "ANFM", "KDRV-4xxx", "FM 138-174", 200, 30},
    {"kdrv-4xxx-milair", "ANAM", "KDRV-4xxx", "AM 225-400", 200, 3},
    {"kdrv-4xxx-uhf", "ANFM", "KDRV-4xxx", "FM 403-512", 200, 8},
    {"kdrv-4xxx-k6", "MDLX", "KDRV-4xxx", "K6 3-BAND", 500, 13},
    {"kdrv-716-p25", "RP25", "KDRV-716", "FM 136-174", 232, 38},
    {"kdrv-716b-p25", "NP25", "KDRV-716B", "FM 136-174", 502, 38},
}};

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

inline std::filesystem::path GetPath(const ExampleFile& file) {
    return std::filesystem::path(testbench::ExamplesFolder()) / (std::string(file.name) + ".zelk");
}

inline bool IsP25(const ExampleFile& file) {
    return std::string(file.type).ends_with("P25");
}

inline bool HasGuards(const ExampleFile& file) {
    return file.rows % 10 == 2;
}

inline bool IsGuard(const ExampleFile& file, const Memory& memory) {
    return HasGuards(file) && memory.row >= file.rows - 1;
}

inline unsigned GetFlags(const Memory& memory) {
    return static_cast<unsigned>(std::stoul(memory.Get("MF"), nullptr, 16));
}

/// A further memory on the frequencies of a P25 one. Its flags contain its place in the primary's list.
inline bool IsShadow(const Memory& memory) {
    return memory.Get("SH").starts_with("S-");
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

inline std::string NameOfFile(const testing::TestParamInfo<ExampleFile>& info) {
    std::string name = info.param.name;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

} // namespace exampletest
