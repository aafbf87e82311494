#include "files/ChannelFileWriter.h"

#include "tests/files/ChannelFileTest.h"

#include <wx/datetime.h>
#include <wx/stdpaths.h>

namespace fs = std::filesystem;

namespace {

class ChannelFileWriter : public ChannelFileTest {
protected:
    static void MakeAnalogRow(int row, const char* number) {
        SetCells(row, {{MNUM, number},
                       {SCAN, "3"},
                       {DESC, "VHF   138"},
                       {MODE, "W"},
                       {RFRQ, "150.0000"},
                       {RTON, "OFF"},
                       {RCOD, "OFF"},
                       {TFRQ, "150.0000"},
                       {TTON, "OFF"},
                       {TCOD, "OFF"}});
    }

    /// Start tag and text of each child of the last memory, as "SC type=\"ANFM\"=3".
    static std::vector<std::string> LastMemory(const std::string& bytes) {
        std::vector<std::string> children;
        const size_t memory = bytes.rfind("<MEMORY");
        const size_t end = bytes.find("</MEMORY>", memory);
        for (size_t at = bytes.find("    <", memory); at < end; at = bytes.find("    <", at + 1)) {
            std::string child = bytes.substr(at + 5, bytes.find("</", at) - at - 5);
            children.push_back(child.replace(child.find('>'), 1, "="));
        }
        return children;
    }

    /// Row attributes in file order.
    static std::vector<std::string> SavedRows(const std::string& bytes) {
        const std::string mark = "<MEMORY row=\"";
        std::vector<std::string> rows;
        for (size_t at = bytes.find(mark); at != std::string::npos; at = bytes.find(mark, at + 1))
            rows.push_back(
                bytes.substr(at + mark.size(), bytes.find('"', at + mark.size()) - at - mark.size()));
        return rows;
    }
};

/// The file of the analog radio up to its memories.
const std::string AnalogHeader = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                 "<ZelkMem>\n"
                                 "  <Version>1.0.0</Version>\n"
                                 "  <Date>D</Date>\n"
                                 "  <Time>T</Time>\n"
                                 "  <FType>ANFM</FType>\n"
                                 "  <FRadio>KRV-214</FRadio>\n"
                                 "  <FBand>FM 138-174</FBand>\n";

const std::string AnalogFile = AnalogHeader + "  <MEMORY row=\"12\">\n"
                                              "    <MN>012</MN>\n"
                                              "    <SC type=\"ANFM\">3</SC>\n"
                                              "    <DS>VHF   138</DS>\n"
                                              "    <MD>W</MD>\n"
                                              "    <RF>150.0000</RF>\n"
                                              "    <RT>OFF</RT>\n"
                                              "    <RC>OFF</RC>\n"
                                              "    <TF>150.0000</TF>\n"
                                              "    <TT>OFF</TT>\n"
                                              "    <TC>OFF</TC>\n"
                                              "  </MEMORY>\n"
                                              "</ZelkMem>\n";

} // namespace

TEST_F(ChannelFileWriter, GivesTheFileOfOneAnalogRowByteForByte) {
    RetargetTo("ANFM");
    EmptyRow(0);
    MakeAnalogRow(12, "012");
    EXPECT_EQ(Masked(Save()), AnalogFile);
}

TEST_F(ChannelFileWriter, GivesTheBytesThatTheToolkitItselfSaves) {
    for (const TypedTarget& target : Targets) {
        SCOPED_TRACE(target.type);
        RetargetTo(target.type);
        FillRowsFromDefault({1, 2, 3});
        const std::string saved = Save();
        wxXmlDocument document;
        EXPECT_EQ(BuildChannelFile(CurrentPage, document), std::vector<int>{});
        const fs::path other = m_folder / "toolkit.zelk";
        ASSERT_TRUE(document.Save(other.string(), 2));
        EXPECT_EQ(Masked(saved), Masked(testbench::ReadFile(other)));
        EXPECT_NE(Masked(saved).find("<Date>D</Date>\n  <Time>T</Time>"), std::string::npos);
    }
}

TEST_F(ChannelFileWriter, DatesTheFileWithTheLocalTime) {
    RetargetTo("ANFM");
    const wxDateTime before = wxDateTime::Now();
    const std::string bytes = Save();
    const wxDateTime after = wxDateTime::Now();
    const auto text = [&](const wxDateTime& time) {
        return "<Date>" + time.Format("%d-%b-%Y").utf8_string() + "</Date>\n  <Time>" +
               time.Format("%X").utf8_string() + "</Time>";
    };
    EXPECT_TRUE(bytes.find(text(before)) != std::string::npos || bytes.find(text(after)) != std::string::npos)
        << bytes.substr(0, 200);
}

TEST_F(ChannelFileWriter, NamesTypeRadioAndBand) {
    for (const TypedTarget& target : Targets) {
        RetargetTo(target.type);
        // Intentional: two types are saved with an empty text.
        const bool nameless = std::string(target.type) == "O12" || std::string(target.type) == "FXAM";
        const std::string expected = std::string("  <FType>") + (nameless ? "" : target.type) +
                                     "</FType>\n  <FRadio>" + target.radio + "</FRadio>\n  <FBand>" +
                                     target.band + "</FBand>\n";
        EXPECT_NE(Save().find(expected), std::string::npos) << target.type;
    }
}

TEST_F(ChannelFileWriter, WritesTheCellsOfEachType) {
    const std::string p25Start =
        "MF=v00 MN=005 PR=v02 SH=v03 SC type=\"RP25\"=v05 ZN=v06 DS=v07 MD=v08 RF=v09 RS=v10 ";
    const std::string p25End = "RT=v12 RC=v13 RG=v14 RN=v15 TF=v16 TS=v17 TT=v18 TC=v19 TG=v20 TN=v21 TI=v22 "
                               "S0=v23 S1=v24 S2=v25 S3=v26 S4=v27 S5=v28 S6=v29";
    const std::string analog = "SC type=\"ANFM\"=v05 DS=v07 MD=v08 RF=v09 RT=v12 RC=v13 TF=v16 TT=v18 TC=v19";
    const std::pair<const char*, std::string> cases[] = {
        {"ANFM", "MN=005 " + analog},
        {"RP25", p25Start + p25End},
        {"NP25", p25Start + "RV=v11 " + p25End},
        {"MDLX", "MN=005 BD=v04 " + analog},
        {"O12", "MN=005 RF=v09"},
        {"KDAR", "MN=005 SC type=\"RP25\"=v05 DS=v07 RF=v09 TF=v16 RY=v30"},
        {"ANAM", "MN=005 SC type=\"ANFM\"=v05 DS=v07 RF=v09 TF=v16"},
        {"FXAM", "MN=005 SC type=\"\"=v05 DS=v07 RF=v09 RT=v12 TF=v16 TT=v18"},
    };
    for (const auto& [type, expected] : cases) {
        RetargetTo(type);
        for (int row = CurrentParameters().Rows; row > 5; --row)
            EmptyRow(row);
        for (int col = 0; col < ColumnTotal; ++col)
            SetCell(5, col, wxString::Format("v%02d", col));
        SetCell(5, MNUM, "5");
        std::string children;
        for (const std::string& child : LastMemory(Save()))
            children += (children.empty() ? "" : " ") + child;
        EXPECT_EQ(children, expected) << type;
    }
}

TEST_F(ChannelFileWriter, WritesEmptyHiddenCellsOfP25RowsAsEmptyElements) {
    RetargetTo("RP25");
    for (int col : {MFLG, PRIM, SHD0, SHD6})
        SetCell(1, col, "");
    const std::string bytes = Save();
    const std::string row = bytes.substr(bytes.find("<MEMORY row=\"1\">"));
    for (const char* element : {"<MF></MF>", "<PR></PR>", "<S0></S0>", "<S6></S6>"})
        EXPECT_LT(row.find(element), row.find("</MEMORY>")) << element;
}

TEST_F(ChannelFileWriter, WritesRowsAscendingWithTheDefaultRowFirst) {
    RetargetTo("ANFM");
    for (int row : {102, 7, 1})
        MakeAnalogRow(row, "1");
    EXPECT_EQ(SavedRows(Save()), (std::vector<std::string>{"0", "1", "7", "102"}));
}

TEST_F(ChannelFileWriter, TellsTheGridRowWhateverTheMemoryNumber) {
    RetargetTo("ANFM");
    EmptyRow(0);
    MakeAnalogRow(12, "77");
    const std::string bytes = Save();
    EXPECT_NE(bytes.find("<MEMORY row=\"12\">\n    <MN>077</MN>"), std::string::npos) << bytes;
}

TEST_F(ChannelFileWriter, LeavesOutIncompleteRows) {
    RetargetTo("ANFM");
    EmptyRow(0);
    MakeAnalogRow(5, "005");
    MakeAnalogRow(6, "006");
    SetCell(5, TFRQ, "");
    const std::string bytes = Save();
    EXPECT_EQ(bytes.find("row=\"5\""), std::string::npos);
    EXPECT_NE(bytes.find("row=\"6\""), std::string::npos);
}

TEST_F(ChannelFileWriter, KeepsAShadowWithoutZone) {
    RetargetTo("RP25");
    FillRowsFromDefault({8});
    SetCell(8, MFLG, "01");
    SetCell(8, ZONE, "");
    EXPECT_NE(Save().find("<MEMORY row=\"8\">"), std::string::npos);
    SetCell(8, MFLG, "10");
    EXPECT_EQ(Save().find("<MEMORY row=\"8\">"), std::string::npos) << "a primary has a zone";
}

TEST_F(ChannelFileWriter, OfAPageOfIncompleteRowsGivesAHeaderAlone) {
    RetargetTo("ANFM");
    EmptyRow(0);
    SetCell(3, DESC, "ONLY");
    EXPECT_EQ(Masked(Save()), AnalogHeader + "</ZelkMem>\n");
}

TEST_F(ChannelFileWriter, EscapesMarkupInCells) {
    RetargetTo("ANFM");
    EmptyRow(0);
    MakeAnalogRow(4, "004");
    SetCell(4, DESC, "A<&>\"B");
    EXPECT_NE(Save().find("<DS>A&lt;&amp;&gt;\"B</DS>"), std::string::npos);
    EXPECT_EQ(Open(Save()), 0);
    EXPECT_EQ(Text(4, DESC), "A<&>\"B");
}

TEST_F(ChannelFileWriter, LeavesOutCharactersThatNoXmlFileCanHold) {
    RetargetTo("ANFM");
    MakeAnalogRow(4, "004");
    SetCell(4, DESC, wxString("A") + wxUniChar(1) + "B" + wxUniChar(0xFFFE) + wxUniChar(0x2612));
    const std::string bytes = Save();
    EXPECT_NE(bytes.find("<DS>AB\xE2\x98\x92</DS>"), std::string::npos);
    EXPECT_EQ(Open(bytes), 0) << "the file must stay readable";
}

TEST(ChannelFileText, ConvertsTonesAndCodesOfOldRadios) {
    struct Case {
        int column;
        const char* cell;
        const char* written;
    };
    constexpr Case cases[] = {
        {RTON, "00", "OFF"},  {RTON, "64", "OFF"},  {TTON, "00", "OFF"},  {TTON, "64", "OFF"},
        {RCOD, "000", "OFF"}, {TCOD, "000", "OFF"}, {RTON, "000", "000"}, {TTON, "0", "0"},
        {RCOD, "00", "00"},   {TCOD, "64", "64"},   {RCOD, "023", "023"}, {RTON, "67.0", "67.0"},
        {DESC, "00", "00"},   {SCAN, "64", "64"},   {RTGP, "000", "000"}, {RTON, "", ""},
        {TFRQ, "bad", "bad"}, {MFLG, "0", "0"},
    };
    int number = 0;
    for (const Case& c : cases)
        EXPECT_EQ(ChannelFileText(c.column, c.cell, number), c.written)
            << ColumnTag[c.column] << " \"" << c.cell << "\"";
    EXPECT_EQ(number, 0);
}

TEST(ChannelFileText, WritesMemoryNumbersWithThreeDigitsAndKeepsTheLastForWhatIsNone) {
    struct Case {
        const char* cell;
        const char* written;
    };
    // In writing order.
    constexpr Case cases[] = {
        {"none", "000"}, {"7", "007"},     {"x", "007"},  {"", "007"},    {"12abc", "012"},
        {" 9", "009"},   {"1234", "1234"}, {"-5", "-05"}, {"GD1", "-05"}, {"0", "000"},
    };
    int number = 0;
    for (const Case& c : cases)
        EXPECT_EQ(ChannelFileText(MNUM, c.cell, number), c.written) << "\"" << c.cell << "\"";
}

TEST_F(ChannelFileWriter, TakesTheNumberOfTheRowBelowForOneThatIsNone) {
    RetargetTo("ANFM");
    EmptyRow(0);
    MakeAnalogRow(3, "a");
    MakeAnalogRow(5, "55");
    MakeAnalogRow(9, "b");
    const std::string bytes = Save();
    // Rows are written from the last to the first.
    EXPECT_NE(bytes.find("<MEMORY row=\"9\">\n    <MN>000</MN>"), std::string::npos);
    EXPECT_NE(bytes.find("<MEMORY row=\"5\">\n    <MN>055</MN>"), std::string::npos);
    EXPECT_NE(bytes.find("<MEMORY row=\"3\">\n    <MN>055</MN>"), std::string::npos);
}

TEST_F(ChannelFileWriter, StartsEachFileAtNumberZero) {
    RetargetTo("ANFM");
    EmptyRow(0);
    MakeAnalogRow(3, "44");
    Save();
    SetCell(3, MNUM, "x");
    EXPECT_NE(Save().find("<MN>000</MN>"), std::string::npos);
}

TEST_F(ChannelFileWriter, NamesTheRowsWithDataThatItLeavesOut) {
    RetargetTo("ANFM");
    const auto leftOut = [] {
        wxXmlDocument document;
        return BuildChannelFile(CurrentPage, document);
    };
    EXPECT_EQ(leftOut(), std::vector<int>{});
    SetCell(0, DESC, "");
    EXPECT_EQ(leftOut(), std::vector<int>{0});
    SetCell(1, DESC, "A");
    EXPECT_EQ(leftOut(), (std::vector<int>{0, 1}));
    SetCell(102, TFLG, "A0");
    EXPECT_EQ(leftOut(), (std::vector<int>{0, 1, 102}));
    MakeAnalogRow(1, "1");
    EXPECT_EQ(leftOut(), (std::vector<int>{0, 102}));
    EmptyRow(0);
    EXPECT_EQ(leftOut(), std::vector<int>{102}) << "a blank row has nothing to lose";
}
