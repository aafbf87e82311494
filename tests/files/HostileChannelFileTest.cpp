// Files that no program wrote: each returns a code or is skipped, in a short time.
#include "tests/files/ChannelFileTest.h"
#include "tests/files/HangLimit.h"

#include <random>

namespace {

class HostileChannelFile : public ChannelFileTest {
protected:
    /// Expects a usable page: its target is in the catalogue, and row 0 holds a default row.
    static void ExpectUsablePage() {
        const PageParameterRecord& page = CurrentParameters();
        ASSERT_GE(page.Radio, 0);
        ASSERT_LT(page.Radio, 18);
        ASSERT_GE(page.BandIndex, 0);
        ASSERT_LT(page.BandIndex, 6);
        EXPECT_EQ(page.Rows, RadioCatalogue::RadioRows[page.Radio][page.BandIndex]);
        EXPECT_EQ(page.Band, RadioCatalogue::RadioBands[page.Radio][page.BandIndex]);
        EXPECT_EQ(CurrentGrid()->GetNumberRows(), page.Rows + 1);
        EXPECT_TRUE(RowHasData(0));
        EXPECT_TRUE(CurrentGrid()->IsReadOnly(0, MNUM));
    }

    /// A file of the type with three complete rows, as the program writes it.
    std::string WrittenFile(const char* type) {
        RetargetTo(type);
        FillRowsFromDefault({1, 2});
        return Save();
    }
};

std::string Repeat(const std::string& text, int count) {
    std::string all;
    for (int i = 0; i < count; ++i)
        all += text;
    return all;
}

} // namespace

TEST_F(HostileChannelFile, ThatIsCutOffAnywhereIsNotLoaded) {
    const std::string whole = WrittenFile("NP25");
    const size_t end = whole.rfind('>');
    RetargetTo("ANFM");
    SetCell(5, DESC, "KEPT");
    for (size_t length = 0; length <= end; length += length < 400 ? 1 : 97)
        EXPECT_EQ(Open(whole.substr(0, length)), NotLoaded) << length;
    EXPECT_EQ(Text(5, DESC), "KEPT") << "a file that is no document leaves the page unchanged";
    EXPECT_EQ(Open(whole.substr(0, end + 1)), 0);
}

TEST_F(HostileChannelFile, WithBytesChangedLeavesAUsablePage) {
    std::mt19937 random(1);
    for (const char* type : {"NP25", "MDLX", "O12"}) {
        const std::string whole = WrittenFile(type);
        for (int run = 0; run < 60; ++run) {
            std::string bytes = whole;
            for (int change = 0; change < 3; ++change)
                bytes[random() % bytes.size()] = static_cast<char>(' ' + random() % 95);
            SCOPED_TRACE(type + std::to_string(run));
            const int code = Open(bytes);
            EXPECT_TRUE(code == NotLoaded || code == 0 || (code >= 101 && code <= 109)) << code;
            ExpectUsablePage();
        }
    }
}

TEST_F(HostileChannelFile, WithElementsDroppedLeavesAUsablePage) {
    const std::string whole = WrittenFile("RP25");
    std::vector<std::string> lines;
    for (size_t at = 0; at < whole.size();) {
        const size_t end = whole.find('\n', at);
        lines.push_back(whole.substr(at, end - at));
        at = end + 1;
    }
    for (size_t left = 1; left + 1 < lines.size(); ++left) {
        std::string bytes;
        for (size_t i = 0; i < lines.size(); ++i)
            if (i != left)
                bytes += lines[i] + "\n";
        const int code = Open(bytes);
        EXPECT_TRUE(code == NotLoaded || code == 0 || (code >= 102 && code <= 109)) << lines[left];
        ExpectUsablePage();
    }
}

TEST_F(HostileChannelFile, WithCommentsAndInstructionsBetweenElementsIsRead) {
    const std::string c = "<!-- note --><?do this?>\n stray text <![CDATA[<MN>]]>";
    std::string children;
    for (const char* element : {"<MN>005</MN>", "<SC type=\"ANFM\">7</SC>", "<DS>A</DS>", "<TC>023</TC>"})
        children += c + element;
    const std::string header = "<Version>1</Version><Date/>" + c + "<Time/>" + c + "<FType>ANFM</FType>" + c +
                               "<FRadio>KRV-214</FRadio>" + c + "<FBand>FM 138-174</FBand>" + c;
    ASSERT_EQ(Open("<?xml version=\"1.0\"?><!-- top -->" +
                   Document(c + header + Memory(5, children + c) + c).substr(39) + "<!-- end -->"),
              0);
    EXPECT_EQ(Text(5, MNUM), "005");
    EXPECT_EQ(Text(5, SCAN), "7");
    EXPECT_EQ(Text(5, DESC), "A");
    EXPECT_EQ(Text(5, TCOD), "023");
}

TEST_F(HostileChannelFile, WithElementsInsideTextsGivesTheirFirstText) {
    ASSERT_EQ(
        Open(FileOf("ANFM", Memory(5, "<DS>A<b>B</b>C</DS><MN><b>7</b></MN><RF><![CDATA[150.0000]]></RF>"
                                      "<TF><!-- x -->151.0000</TF>"))),
        0);
    EXPECT_EQ(Text(5, DESC), "A");
    EXPECT_EQ(Text(5, MNUM), "");
    EXPECT_EQ(Text(5, RFRQ), "150.0000");
    EXPECT_EQ(Text(5, TFRQ), "151.0000");
}

TEST_F(HostileChannelFile, WithUnknownChildrenOnlyEndsAtOnce) {
    ASSERT_EQ(Open(FileOf("ANFM", Memory(5, Repeat("<MF>1</MF><XX/>", 10000)))), 0);
    EXPECT_EQ(Text(5, MNUM), "");
    EXPECT_EQ(Text(5, MFLG), "");
}

TEST_F(HostileChannelFile, WithTenMegabytesOfRowsIsReadWithinTwoSeconds) {
    for (const char* type : {"ANFM", "NP25"}) {
        const int last = TargetOf(type).rows;
        std::string memories;
        for (int row = 0; memories.size() < 10'000'000; row = (row + 1) % (last + 1))
            memories += Memory(row, "<MF>0</MF><MN>012</MN><SH>P-1</SH><SC type=\"ANFM\">3</SC><ZN>1</ZN>"
                                    "<DS>VHF   138</DS><MD>W</MD><RF>150.0000</RF><RT>OFF</RT><RC>OFF</RC>"
                                    "<TF>150.0000</TF><TT>OFF</TT><TC>OFF</TC>") +
                        "\n";
        const std::string file = FileOf(type, memories);
        const double start = ProcessorSeconds();
        EXPECT_EQ(Open(file), 0);
        EXPECT_LT(ProcessorSeconds() - start, HangLimit) << type;
        EXPECT_EQ(Text(last, MNUM), "012");
    }
}

TEST_F(HostileChannelFile, NestedDeepIsNotLoaded) {
    for (const int depth : {1000, 100000, 1000000}) {
        EXPECT_EQ(Open(Repeat("<a>", depth) + Repeat("</a>", depth)), NotLoaded) << depth;
        EXPECT_EQ(Open(Repeat("<a>", depth)), NotLoaded) << depth;
        EXPECT_EQ(Open(FileOf("ANFM", Memory(1, Repeat("<DS>", depth) + Repeat("</DS>", depth)))), NotLoaded)
            << depth;
    }
}

TEST_F(HostileChannelFile, WithAnEntityBombIsNotLoaded) {
    std::string bomb = "<!DOCTYPE ZelkMem [<!ENTITY a \"aaaaaaaaaa\">";
    for (char c = 'b'; c <= 'j'; ++c) {
        bomb += std::string("<!ENTITY ") + c + " \"";
        for (int i = 0; i < 10; ++i)
            bomb += std::string("&") + static_cast<char>(c - 1) + ";";
        bomb += "\">";
    }
    const double start = ProcessorSeconds();
    EXPECT_EQ(Open(bomb + "]><ZelkMem>" + HeaderOf("ANFM") + Memory(1, "<DS>&j;</DS>") + "</ZelkMem>"),
              NotLoaded);
    EXPECT_LT(ProcessorSeconds() - start, HangLimit);
}

TEST_F(HostileChannelFile, WithHugeAttributesAndTextsIsNotLoaded) {
    const std::string huge = Repeat("1", 10'000'000);
    const double start = ProcessorSeconds();
    EXPECT_EQ(Open(FileOf("ANFM", "<MEMORY row=\"" + huge + "\"/>")), NotLoaded);
    EXPECT_EQ(Open(FileOf("ANFM", Memory(1, "<DS>" + huge + "</DS>"))), NotLoaded);
    EXPECT_EQ(Open(FileOf("ANFM", "<!--" + huge + "-->")), NotLoaded);
    EXPECT_EQ(Open(FileOf("ANFM", Memory(1, "<DS>x" + Repeat("\n", 1'000'000) + "</DS>"))), NotLoaded);
    EXPECT_LT(ProcessorSeconds() - start, HangLimit);
}

TEST_F(HostileChannelFile, WithLongTextsInCellsIsShownInLittleTime) {
    std::string memories;
    for (int row = 1; row <= 100; ++row)
        memories += Memory(row, "<MN>1</MN><DS>" + std::string(60000, 'W') + "</DS><RF>x" +
                                    Repeat("\ny", 60) + "</RF>");
    const double start = ProcessorSeconds();
    ASSERT_EQ(Open(FileOf("ANFM", memories)), 0);
    EXPECT_EQ(Text(1, DESC), std::string(256, 'W'));
    CurrentGrid()->ForceRefresh();
    MainFrame->Update();
    wxYield();
    EXPECT_LT(ProcessorSeconds() - start, HangLimit);
}

TEST_F(HostileChannelFile, ThatIsNotUtf8IsNotLoaded) {
    EXPECT_EQ(Open(FileOf("ANFM", Memory(1, "<DS>\xFF\xFE</DS>"))), NotLoaded);
    EXPECT_EQ(Open(FileOf("ANFM", Memory(1, "<DS>\xC0\x80</DS>"))), NotLoaded);
    EXPECT_EQ(Open(FileOf("ANFM", Memory(1, "<DS>\xED\xA0\x80</DS>"))), NotLoaded);
    EXPECT_EQ(Open(FileOf("ANFM", Memory(1, std::string("<DS>\0</DS>", 10)))), NotLoaded);
}
