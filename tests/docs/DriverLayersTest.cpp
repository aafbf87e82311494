// Order of the sources of each driver, as stated in their shared header.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace {

/// A source of a driver, and the functions declared for it in the shared header.
struct Layer {
    std::string source;
    std::vector<std::string> functions;
};

std::string TextOf(const fs::path& file) {
    std::ostringstream text;
    text << std::ifstream(file).rdbuf();
    return text.str();
}

const fs::path Room = fs::path(ZELK_SOURCE_DIR) / "transfer";

/// The parts of a header after lines such as "// ---- Name.cpp ----", lowest first.
std::vector<Layer> LayersOf(const std::string& header) {
    std::vector<Layer> layers;
    const std::regex mark("^// ---- (\\w+\\.cpp)"), function("^\\w[\\w:]* (\\w+)\\(");
    std::istringstream lines(TextOf(Room / header));
    std::smatch match;
    for (std::string line; std::getline(lines, line);) {
        if (std::regex_search(line, match, mark))
            layers.push_back({match[1], {}});
        else if (!layers.empty() && std::regex_search(line, match, function))
            layers.back().functions.push_back(match[1]);
    }
    return layers;
}

bool Calls(const std::string& source, const std::string& function) {
    return std::regex_search(source, std::regex("\\b" + function + "\\("));
}

} // namespace

TEST(DriverLayers, CallOnlyWhatIsDeclaredAboveThem) {
    for (const auto& [header, sources] :
         {std::pair("AnalogDialogue.h", 3u), std::pair("TRecordDialogue.h", 6u)}) {
        const std::vector<Layer> layers = LayersOf(header);
        EXPECT_EQ(layers.size(), sources) << header;
        for (size_t low = 0; low < layers.size(); ++low) {
            const std::string text = TextOf(Room / layers[low].source);
            EXPECT_FALSE(layers[low].functions.empty()) << layers[low].source;
            for (const std::string& own : layers[low].functions)
                EXPECT_TRUE(Calls(text, own)) << layers[low].source << " doesn't define " << own;
            for (size_t high = low + 1; high < layers.size(); ++high)
                for (const std::string& function : layers[high].functions)
                    EXPECT_FALSE(Calls(text, function)) << layers[low].source << " calls " << function;
        }
    }
}
