// Comparison of the tables of rooms on the developer's page with the tree and its #include lines.
#include "tests/docs/Markdown.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

using namespace docstest;
namespace fs = std::filesystem;

namespace {

const fs::path Tree = ZELK_SOURCE_DIR;
/// Used in place of a list: the room may include any other.
const std::string Everything = "everything";

/// Splits "`a, b`" into {"a", "b"}. Empty for a cell without backticks.
std::set<std::string> ListIn(const std::string& cell) {
    std::set<std::string> items;
    for (const std::string& quoted : QuotedTexts(cell)) {
        std::istringstream in(quoted);
        for (std::string item; in >> item;)
            items.insert(item.substr(0, item.find(',')));
    }
    return items;
}

struct Include {
    std::string file;   ///< path of the including file
    std::string header; ///< path of the included file
};

std::vector<Include> IncludesOf(const fs::path& file) {
    std::vector<Include> includes;
    const std::string open = "#include \"";
    std::ifstream in(file);
    for (std::string line; std::getline(in, line);)
        if (line.starts_with(open))
            includes.push_back(
                {fs::relative(file, Tree).string(), line.substr(open.size(), line.rfind('"') - open.size())});
    return includes;
}

/// The unit of a file: a header and its sources. Where operating systems differ, each has its own source.
std::string UnitOf(const std::string& path) {
    std::string unit = path.substr(0, path.rfind('.'));
    for (const char* system : {"_linux", "_gtk", "_windows"})
        if (unit.ends_with(system))
            unit.erase(unit.rfind('_'));
    return unit;
}

using Units = std::set<std::string>;

/// The units that each unit includes.
using Arrows = std::map<std::string, Units>;

Arrows ArrowsOf(const std::vector<Include>& includes) {
    Arrows arrows;
    for (const Include& include : includes)
        if (UnitOf(include.file) != UnitOf(include.header))
            arrows[UnitOf(include.file)].insert(UnitOf(include.header));
    return arrows;
}

/// The units that a unit reaches. It contains the unit itself only if that is in a circle.
Units ReachOf(const std::string& unit, const Arrows& arrows) {
    Units reached;
    std::vector<std::string> waiting{unit};
    while (!waiting.empty()) {
        const auto from = arrows.find(waiting.back());
        waiting.pop_back();
        if (from == arrows.end())
            continue;
        for (const std::string& next : from->second)
            if (reached.insert(next).second)
                waiting.push_back(next);
    }
    return reached;
}

/// The largest sets of units in which each unit includes each other one, directly or through others.
std::set<Units> CirclesAmong(const std::vector<Include>& includes) {
    const Arrows arrows = ArrowsOf(includes);
    std::map<std::string, Units> reach;
    for (const auto& [unit, direct] : arrows)
        reach[unit] = ReachOf(unit, arrows);
    std::set<Units> circles;
    for (const auto& [unit, reached] : reach) {
        Units circle;
        for (const std::string& other : reached)
            if (reach.count(other) && reach.at(other).count(unit))
                circle.insert(other);
        if (!circle.empty())
            circles.insert(circle);
    }
    return circles;
}

std::string TextOf(const Units& circle) {
    std::string text;
    for (const std::string& unit : circle)
        text += (text.empty() ? "" : ", ") + unit;
    return text;
}

class Rooms : public testing::Test {
protected:
    Rooms() {
        const std::string page = PageAt(Tree, "docs/DEVELOPING.md").text;
        for (const auto& row : TableBelow(page, "Rooms"))
            if (row.size() == 3)
                for (const std::string& folder : ListIn(row[0]))
                    m_rooms[folder.substr(0, folder.rfind('/'))] =
                        row[2] == Everything ? std::set{Everything} : ListIn(row[2]);
        for (const auto& row : TableBelow(page, "Exceptions"))
            if (row.size() == 3)
                m_exceptions.push_back({ListIn(row[0]), ListIn(row[1])});
    }

    struct Exception {
        std::set<std::string> who;     ///< rooms or files
        std::set<std::string> headers; ///< headers that these may include
    };

    /// The room of a path: the longest one of the table that is a prefix of the path. Empty if there
    /// is none.
    std::string RoomOf(const std::string& path) const {
        std::string room;
        for (const auto& [name, allowed] : m_rooms)
            if (path.starts_with(name + '/') && name.size() > room.size())
                room = name;
        return room;
    }

    std::vector<Include> AllIncludes() const {
        std::vector<Include> includes;
        for (const auto& [name, allowed] : m_rooms)
            for (const auto& entry : fs::recursive_directory_iterator(Tree / name)) {
                const fs::path& file = entry.path();
                const bool source = file.extension() == ".cpp" || file.extension() == ".h";
                if (!source || RoomOf(fs::relative(file, Tree).string()) != name)
                    continue;
                const std::vector<Include> more = IncludesOf(file);
                includes.insert(includes.end(), more.begin(), more.end());
            }
        return includes;
    }

    bool RoomAllows(const Include& include) const {
        const std::string from = RoomOf(include.file), to = RoomOf(include.header);
        const std::set<std::string>& allowed = m_rooms.at(from);
        return from == to || allowed.count(to) || allowed.count(Everything);
    }

    bool Covers(const Exception& exception, const Include& include) const {
        return exception.headers.count(include.header) &&
               (exception.who.count(include.file) || exception.who.count(RoomOf(include.file)));
    }

    std::map<std::string, std::set<std::string>> m_rooms; ///< the rooms that each room may include
    std::vector<Exception> m_exceptions;
};

} // namespace

TEST_F(Rooms, AreAllFoldersOfTheTree) {
    EXPECT_GT(m_rooms.size(), 15u);
    for (const auto& [name, allowed] : m_rooms) {
        EXPECT_TRUE(fs::is_directory(Tree / name)) << name;
        for (const std::string& other : allowed)
            EXPECT_TRUE(other == Everything || m_rooms.count(other)) << name << " may include " << other;
    }
    for (const auto& entry : fs::directory_iterator(Tree)) {
        const std::string name = entry.path().filename().string();
        const bool room = entry.is_directory() && !name.starts_with(".") && !name.starts_with("build");
        EXPECT_TRUE(!room || m_rooms.count(name)) << name << " has no row";
    }
}

TEST_F(Rooms, IncludeOnlyWhatTheTableAllows) {
    const std::vector<Include> includes = AllIncludes();
    EXPECT_GT(includes.size(), 800u);
    for (const Include& include : includes) {
        const bool excepted = std::any_of(m_exceptions.begin(), m_exceptions.end(),
                                          [&](const Exception& e) { return Covers(e, include); });
        EXPECT_TRUE(RoomAllows(include) || excepted) << include.file << " includes " << include.header;
    }
}

TEST_F(Rooms, HaveNoExceptionThatNoFileNeeds) {
    const std::vector<Include> includes = AllIncludes();
    EXPECT_FALSE(m_exceptions.empty());
    for (const Exception& exception : m_exceptions)
        for (const std::string& who : exception.who)
            for (const std::string& header : exception.headers) {
                const Exception one{{who}, {header}};
                EXPECT_TRUE(std::any_of(
                    includes.begin(), includes.end(),
                    [&](const Include& include) { return Covers(one, include) && !RoomAllows(include); }))
                    << who << " doesn't include " << header;
            }
}

TEST_F(Rooms, HoldNoCircleOfUnits) {
    for (const Units& circle : CirclesAmong(AllIncludes()))
        ADD_FAILURE() << "include each other: " << TextOf(circle);
}

TEST(Circles, JoinAHeaderAndItsSources) {
    const std::vector<Include> arrows = {{"a/One.cpp", "a/One.h"}, {"a/One.cpp", "b/Two.h"}};
    EXPECT_EQ(CirclesAmong(arrows), std::set<Units>{});
    std::vector<Include> back = arrows;
    back.push_back({"b/Two_linux.cpp", "a/One.h"});
    EXPECT_EQ(CirclesAmong(back), (std::set<Units>{{"a/One", "b/Two"}}));
}

TEST(Circles, AreFoundOverOtherUnits) {
    EXPECT_EQ(CirclesAmong({{"a/One.cpp", "a/Two.h"},
                            {"a/Two.h", "a/Three.h"},
                            {"a/Three.cpp", "a/One.h"},
                            {"a/Four.cpp", "a/One.h"},
                            {"b/Five.h", "b/Six.h"},
                            {"b/Six.cpp", "b/Five.h"}}),
              (std::set<Units>{{"a/One", "a/Three", "a/Two"}, {"b/Five", "b/Six"}}));
}
