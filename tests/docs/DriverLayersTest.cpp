// Order of the sources of each driver, as stated in their shared header.
#include "robot/Files.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <regex>
#include <set>
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

struct Driver {
    const char* header; ///< shared by its sources
    const char* top;    ///< the source that may call every other one; the header declares nothing of it
    size_t layers;
};

constexpr Driver Drivers[] = {{"AnalogDialogue.h", "AnalogDriver.cpp", 3},
                              {"TRecordDialogue.h", "TRecordDriver.cpp", 6}};

const fs::path Room = fs::path(ZELK_SOURCE_DIR) / "transfer";

/// The parts of a header after lines such as "// ---- Name.cpp ----", lowest first.
std::vector<Layer> LayersOf(const std::string& header) {
    std::vector<Layer> layers;
    const std::regex mark("^// ---- (\\w+\\.cpp)"), function("^[^\\s/#][^(]*?(\\w+)\\(");
    std::istringstream lines(header);
    std::smatch match;
    for (std::string line; std::getline(lines, line);) {
        if (std::regex_search(line, match, mark))
            layers.push_back({match[1], {}});
        else if (!layers.empty() && std::regex_search(line, match, function))
            layers.back().functions.push_back(match[1]);
    }
    return layers;
}

/// A source without comments and texts.
std::string CodeOf(const std::string& source) {
    return std::regex_replace(source, std::regex(R"re("(?:\\.|[^"\\\n])*"|//[^\n]*)re"), "");
}

/// Whether code calls the function, or takes its address to have it called.
bool Uses(const std::string& code, const std::string& function) {
    return std::regex_search(code, std::regex("\\b" + function + "\\b"));
}

/// Lines "source calls function" for each use of a function of a higher layer.
std::vector<std::string> CallsUpwards(const std::vector<Layer>& layers,
                                      const std::vector<std::string>& codes) {
    std::vector<std::string> calls;
    for (size_t low = 0; low < layers.size(); ++low)
        for (size_t high = low + 1; high < layers.size(); ++high)
            for (const std::string& function : layers[high].functions)
                if (Uses(codes[low], function))
                    calls.push_back(layers[low].source + " calls " + function);
    return calls;
}

} // namespace

TEST(DriverLayers, CallOnlyWhatIsDeclaredAboveThem) {
    for (const Driver& driver : Drivers) {
        const std::vector<Layer> layers = LayersOf(testbench::ReadFile(Room / driver.header));
        EXPECT_EQ(layers.size(), driver.layers) << driver.header;
        std::vector<std::string> codes;
        for (const Layer& layer : layers) {
            codes.push_back(CodeOf(testbench::ReadFile(Room / layer.source)));
            EXPECT_FALSE(layer.functions.empty()) << layer.source;
            for (const std::string& own : layer.functions)
                EXPECT_TRUE(Uses(codes.back(), own)) << layer.source << " doesn't define " << own;
        }
        EXPECT_EQ(CallsUpwards(layers, codes), std::vector<std::string>{});
    }
}

TEST(DriverLayers, AreAllSourcesThatIncludeTheSharedHeader) {
    for (const Driver& driver : Drivers) {
        std::set<std::string> placed{driver.top};
        for (const Layer& layer : LayersOf(testbench::ReadFile(Room / driver.header)))
            placed.insert(layer.source);
        std::set<std::string> including;
        for (const auto& file : fs::directory_iterator(Room))
            if (testbench::ReadFile(file.path()).find(std::string("/") + driver.header + '"') !=
                std::string::npos)
                including.insert(file.path().filename().string());
        EXPECT_EQ(including, placed) << driver.header;
    }
}

TEST(DriverLayers, AreReadFromAHeader) {
    const std::vector<Layer> layers = LayersOf("bool IsFree();\n"
                                               "\n"
                                               "// ---- Low.cpp: the bytes ----\n"
                                               "\n"
                                               "/// Calls no Other().\n"
                                               "void Send(int byte,\n"
                                               "          int count);\n"
                                               "[[nodiscard]] std::optional<int> Receive();\n"
                                               "\n"
                                               "// ---- High.cpp ----\n"
                                               "std::vector<std::string>& Lines();\n");
    ASSERT_EQ(layers.size(), 2u);
    EXPECT_EQ(layers[0].source, "Low.cpp");
    EXPECT_EQ(layers[0].functions, (std::vector<std::string>{"Send", "Receive"}));
    EXPECT_EQ(layers[1].source, "High.cpp");
    EXPECT_EQ(layers[1].functions, std::vector<std::string>{"Lines"});
}

TEST(DriverLayers, AreBrokenByACallOrAnAddressButNotByAComment) {
    const std::vector<Layer> layers = {{"Low.cpp", {"Send"}}, {"High.cpp", {"Say"}}};
    const auto callsOf = [&](const std::string& low) {
        return CallsUpwards(layers, {CodeOf(low), CodeOf("void Say() { Send(); }\n")});
    };
    const std::vector<std::string> none, one{"Low.cpp calls Say"};
    EXPECT_EQ(callsOf("void Send() { Say(); }\n"), one);
    EXPECT_EQ(callsOf("void Send() { Say (); }\n"), one);
    EXPECT_EQ(callsOf("constexpr auto* After = &Say;\n"), one);
    EXPECT_EQ(callsOf("void Send() { Log(\"// \"); Say(); }\n"), one);
    EXPECT_EQ(callsOf("void Send() { SayMore(); } // as Say()\n"), none);
    EXPECT_EQ(callsOf("void Send() { Log(\"Say(\\\"\"); }\n"), none);
}
