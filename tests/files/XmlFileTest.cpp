#include "files/XmlFile.h"

#include "robot/Files.h"
#include "robot/TempFolder.h"
#include "tests/files/HangLimit.h"
#include "tests/support/ProcessorTime.h"

#include <gtest/gtest.h>
#include <wx/string.h>
#include <wx/xml/xml.h>

namespace {

std::string Repeat(const std::string& text, int count) {
    std::string all;
    for (int i = 0; i < count; ++i)
        all += text;
    return all;
}

std::string Nested(int depth) {
    return Repeat("<a>", depth) + Repeat("</a>", depth);
}

/// The text in UTF-16, as in a file.
std::string Utf16(const std::string& ascii, bool littleEndian, bool mark) {
    std::string bytes = !mark ? "" : littleEndian ? "\xFF\xFE" : "\xFE\xFF";
    for (char c : ascii) {
        bytes += littleEndian ? c : '\0';
        bytes += littleEndian ? '\0' : c;
    }
    return bytes;
}

bool Loads(const std::string& bytes) {
    const testbench::TempFolder folder("zelk-xml");
    testbench::WriteFile(folder / "a.xml", bytes);
    wxXmlDocument document;
    return LoadXmlFile((folder / "a.xml").string(), document);
}

} // namespace

TEST(XmlFile, LoadsAWellFormedDocument) {
    for (const std::string document :
         {"<a/>", "<?xml version=\"1.0\"?>\n<a b='c>d'><b/>text<!-- > < --><![CDATA[<x>]]></a>\n<!-- end -->",
          "\xEF\xBB\xBF<a>\xC3\xA4</a>", "<!DOCTYPE a><a/>", "<!DOCTYPE a SYSTEM \"[x>\"><a/>"})
        EXPECT_TRUE(Loads(document)) << document;
}

TEST(XmlFile, RefusesWhatIsNoDocument) {
    for (const std::string bytes :
         {"",          " ",         "text",     "<",          "<a",    "<a>",         "<a></b>",
          "<a/><b/>",  "<a b></a>", "<a b=c/>", "<!-- a -->", "<?x?>", "<a>\xFF</a>", "<a>\xC3</a>",
          "<a>&b;</a", "<a",        "<a \"",    "<![CDATA[",  "<!--",  "<?"})
        EXPECT_FALSE(Loads(bytes)) << bytes;
    EXPECT_FALSE(Loads(std::string("<a>\0</a>", 8)));
    EXPECT_FALSE(Loads(std::string(1, '\0')));
}

TEST(XmlFile, RefusesFoldersAndWhatIsNotThere) {
    const testbench::TempFolder folder("zelk-xml");
    wxXmlDocument document;
    EXPECT_FALSE(LoadXmlFile(folder.Path().string(), document));
    EXPECT_FALSE(LoadXmlFile((folder / "none").string(), document));
}

TEST(XmlFile, RefusesAFileOfMoreThanSixteenMegabytes) {
    const std::string limit = "<a>" + std::string(16 * 1024 * 1024 - 7, ' ') + "</a>";
    EXPECT_FALSE(IsHarmlessMarkup(limit)) << "one text of that length";
    std::string rows = "<a>";
    while (rows.size() + 14 < 16 * 1024 * 1024)
        rows += "<b>text</b>\n";
    rows += "</a>";
    EXPECT_TRUE(Loads(rows));
    EXPECT_FALSE(Loads(rows + std::string(64, '\n')));
}

TEST(HarmlessMarkup, NestsNoDeeperThanSixtyFour) {
    EXPECT_TRUE(IsHarmlessMarkup(Nested(64)));
    EXPECT_FALSE(IsHarmlessMarkup(Nested(65)));
    EXPECT_FALSE(IsHarmlessMarkup(Nested(1000000)));
    EXPECT_FALSE(IsHarmlessMarkup(Repeat("<a>", 1000000))) << "never closed";
    EXPECT_TRUE(IsHarmlessMarkup("<a>" + Repeat("<b/>", 1000) + Repeat("<b></b>", 1000) + "</a>"));
    EXPECT_TRUE(IsHarmlessMarkup("<a><!--" + Repeat("<b>", 100) + "--><?p " + Repeat("<b>", 100) +
                                 "?><![CDATA[" + Repeat("<b>", 100) + "]]></a>"))
        << "no elements";
    EXPECT_FALSE(IsHarmlessMarkup(Repeat("<a b='/>'>", 65))) << "a closing mark inside a text";
    EXPECT_FALSE(IsHarmlessMarkup(Repeat("<a b=\"'/\">", 65)));
}

TEST(HarmlessMarkup, NestsNoDeeperInUtf16Either) {
    for (const bool littleEndian : {true, false})
        for (const bool mark : {true, false}) {
            EXPECT_TRUE(IsHarmlessMarkup(Utf16(Nested(64), littleEndian, mark)));
            EXPECT_FALSE(IsHarmlessMarkup(Utf16(Nested(65), littleEndian, mark)));
        }
    // The low bytes of these characters form the start of a comment.
    std::string hidden = Utf16("<a>", true, true) + "<!!!-!-!";
    for (int i = 0; i < 65; ++i)
        hidden += Utf16("<a>", true, false);
    EXPECT_FALSE(IsHarmlessMarkup(hidden));
    EXPECT_TRUE(Loads(Utf16("<a>text</a>", true, true)));
}

TEST(HarmlessMarkup, HasNoMoreThanSixtyFourAttributesInATag) {
    EXPECT_TRUE(IsHarmlessMarkup("<a" + Repeat(" b='1'", 64) + "/>"));
    EXPECT_FALSE(IsHarmlessMarkup("<a" + Repeat(" b='1'", 65) + "/>"));
}

TEST(HarmlessMarkup, HasNoPieceOfMoreThanSixtyFourKilobytes) {
    const std::string fits(60000, 'x'), tooLong(70000, 'x');
    const std::pair<const char*, const char*> frames[] = {{"<a>", "</a>"},
                                                          {"<a b='", "'/>"},
                                                          {"<!--", "--><a/>"},
                                                          {"<?p ", "?><a/>"},
                                                          {"<a><![CDATA[", "]]></a>"},
                                                          {"<", "/>"},
                                                          {"<a>", ""},
                                                          {"<a b='", ""},
                                                          {"<!--", ""}};
    for (const auto& [start, end] : frames) {
        EXPECT_TRUE(IsHarmlessMarkup(start + fits + end)) << start;
        EXPECT_FALSE(IsHarmlessMarkup(start + tooLong + end)) << start;
    }
}

TEST(HarmlessMarkup, HasNoTextInManyPieces) {
    for (const char* piece : {"\n", "\r", "&amp;", "&#65;"})
        for (const auto& [start, end] : {std::pair("<a>x", "</a>"), std::pair("<a><![CDATA[x", "]]></a>")}) {
            EXPECT_TRUE(IsHarmlessMarkup(start + Repeat(piece, 64) + end)) << piece;
            EXPECT_FALSE(IsHarmlessMarkup(start + Repeat(piece, 65) + end)) << piece;
        }
    EXPECT_TRUE(IsHarmlessMarkup("<a>" + Repeat("\n", 1000) + "<b/></a>")) << "white space alone is no text";
}

TEST(HarmlessMarkup, DeclaresNoEntities) {
    EXPECT_TRUE(IsHarmlessMarkup("<!DOCTYPE a><a/>"));
    EXPECT_FALSE(IsHarmlessMarkup("<!DOCTYPE a []><a/>"));
    EXPECT_FALSE(IsHarmlessMarkup("<!DOCTYPE a [<!ENTITY b \"cccc\">]><a>&b;&b;</a>"));
    EXPECT_TRUE(IsHarmlessMarkup("<a>[]</a>"));
}

TEST(HarmlessMarkup, LoadsInLittleTimeUpToItsLimits) {
    const std::string text = std::string(60000, 'x') + Repeat("\n", 64);
    const std::pair<const char*, std::string> cases[] = {
        {"texts", Repeat("<b>" + text + "</b>", 160)},
        {"attributes", Repeat("<b c='" + std::string(60000, 'x') + "'/>", 160)},
        {"comments", Repeat("<!--" + std::string(60000, 'x') + "-->", 160)},
        {"pieces", Repeat("<b>x" + Repeat("&amp;", 64) + "</b>", 30000)},
        {"small elements", Repeat("<b/>", 2500000)},
        {"many attributes", Repeat(
                                "<b" +
                                    [] {
                                        std::string all;
                                        for (int i = 0; i < 64; ++i)
                                            all += " a" + std::to_string(i) + "=''";
                                        return all;
                                    }() +
                                    "/>",
                                20000)},
    };
    for (const auto& [name, content] : cases) {
        const double start = ProcessorSeconds();
        EXPECT_TRUE(Loads("<a>" + content + "</a>")) << name;
        const double seconds = ProcessorSeconds() - start;
        EXPECT_LT(seconds, HangLimit) << name << ", " << content.size() << " bytes";
    }
}
