#include "tests/files/ChannelFileTest.h"

#include "editing/ZoneCell.h"
#include "tests/support/Keys.h"

#include <wx/notebook.h>

namespace {

class ChannelFileReader : public ChannelFileTest {};

struct Names {
    const char* name;
    const char* formerName;
    const char* readTypes; ///< separated by blanks; "*" for every type
};

/// By column.
constexpr Names CellNames[] = {
    {"MF", "MFLG", "RP25 NP25"}, {"MN", "MNUM", "*"},         {"PR", "PRIM", "RP25 NP25"},
    {"SH", "SHAD", "RP25 NP25"}, {"BD", "BAND", "MDLX"},      {"SC", "SCAN", "*"},
    {"ZN", "ZONE", "RP25 NP25"}, {"DS", "DESC", "*"},         {"MD", "MODE", "*"},
    {"RF", "RFRQ", "*"},         {"RS", "RSQL", "RP25 NP25"}, {"RV", "RNSV", "NP25"},
    {"RT", "RTON", "*"},         {"RC", "RCOD", "*"},         {"RG", "RTGP", "RP25 NP25"},
    {"RN", "RNAC", "RP25 NP25"}, {"TF", "TFRQ", "*"},         {"TS", "TSQL", "RP25 NP25"},
    {"TT", "TTON", "*"},         {"TC", "TCOD", "*"},         {"TG", "TTGP", "RP25 NP25"},
    {"TN", "TNAC", "RP25 NP25"}, {"TI", "TIDC", "RP25 NP25"}, {"S0", "SHD0", "RP25 NP25"},
    {"S1", "SHD1", "RP25 NP25"}, {"S2", "SHD2", "RP25 NP25"}, {"S3", "SHD3", "RP25 NP25"},
    {"S4", "SHD4", "RP25 NP25"}, {"S5", "SHD5", "RP25 NP25"}, {"S6", "SHD6", "RP25 NP25"},
    {"RY", "RONL", "KDAR"},
};

bool IsRead(const Names& cell, const std::string& type) {
    return std::string(cell.readTypes) == "*" || std::string(cell.readTypes).find(type) != std::string::npos;
}

/// All 31 elements with the texts "v00" to "v30".
std::string AllCells(const char* Names::*name, bool reversed = false) {
    std::string text;
    for (int col = 0; col < 31; ++col) {
        const std::string tag = CellNames[col].*name;
        const std::string element =
            "<" + tag + ">" + wxString::Format("v%02d", col).utf8_string() + "</" + tag + ">";
        text = reversed ? element + text : text + element;
    }
    return text;
}

/// A P25 memory with the cells that matter here.
std::string P25Memory(int row, const std::string& flags, const std::string& shad, const std::string& zone,
                      const std::string& scan = "Y") {
    return Memory(row, "<MF>" + flags + "</MF><MN>" + std::to_string(row) + "</MN><PR>1</PR><SH>" + shad +
                           "</SH><SC type=\"RP25\">" + scan + "</SC><ZN>" + zone + "</ZN><DS>MEM</DS>");
}

} // namespace

TEST_F(ChannelFileReader, ReadsTheCellsOfEachTypeUnderBothNames) {
    for (const TypedTarget& target : Targets)
        for (const auto name : {&Names::name, &Names::formerName}) {
            const std::string type = target.type;
            ASSERT_EQ(0, Open(FileOf(type, Memory(5, AllCells(name))))) << type;
            for (int col = 0; col < 31; ++col) {
                std::string expected =
                    IsRead(CellNames[col], type) ? wxString::Format("v%02d", col).utf8_string() : "";
                if (col == ZONE && !expected.empty())
                    expected = "1"; // a zone that no list has
                EXPECT_EQ(expected, Text(5, col)) << type << " " << CellNames[col].*name;
            }
            EXPECT_EQ("A0", Text(5, TFLG)) << type;
        }
}

TEST_F(ChannelFileReader, TakesChildrenInAnyOrder) {
    for (const TypedTarget& target : Targets) {
        const std::string type = target.type;
        ASSERT_EQ(0, Open(FileOf(type, Memory(5, AllCells(&Names::name, true))))) << type;
        for (int col = 0; col < 31; ++col)
            if (col != ZONE) {
                EXPECT_EQ(IsRead(CellNames[col], type) ? wxString::Format("v%02d", col).utf8_string() : "",
                          Text(5, col))
                    << type << " " << CellNames[col].name;
            }
    }
}

TEST_F(ChannelFileReader, StepsOverChildrenThatItDoesNotTake) {
    ASSERT_EQ(0,
              Open(FileOf("ANFM", Memory(5, "<XX>1</XX><MF>10</MF><MN>005</MN><mn>7</mn><DS>A</DS><RY>Y</RY>"
                                            "<DS2/><TC>023</TC>"))));
    EXPECT_EQ("005", Text(5, MNUM));
    EXPECT_EQ("A", Text(5, DESC));
    EXPECT_EQ("023", Text(5, TCOD));
    EXPECT_EQ("", Text(5, MFLG));
    EXPECT_EQ("", Text(5, RONL));
    EXPECT_EQ(0, CurrentParameters().Flags & PageHasShadows);
}

TEST_F(ChannelFileReader, ReadsRowsThatEndBeforeTheirType) {
    const std::pair<const char*, const char*> cases[] = {
        {"O12", "<MN>003</MN><RF>120.000</RF>"},
        {"ANAM", "<MN>003</MN><SC type=\"ANFM\">1</SC><DS>A</DS><RF>120.000</RF><TF>121.000</TF>"},
        {"FXAM", "<MN>003</MN><SC "
                 "type=\"\">1</SC><DS>A</DS><RF>120.000</RF><RT>OFF</RT><TF>121.000</TF><TT>OFF</TT>"},
        {"NP25", "<MF>0</MF>"},
    };
    for (const auto& [type, children] : cases) {
        ASSERT_EQ(0, Open(FileOf(type, Memory(3, children)))) << type;
        EXPECT_EQ(std::string(type) == "NP25" ? "0" : "", Text(3, MFLG)) << type;
        EXPECT_EQ(std::string(type) == "NP25" ? "" : "120.000", Text(3, RFRQ)) << type;
        EXPECT_EQ("A0", Text(3, TFLG)) << type;
    }
}

TEST_F(ChannelFileReader, AcceptsTheLongNamesOfTheHeader) {
    ASSERT_EQ(0, Open(Document("<Version>0.9</Version><Date>d</Date><Time>t</Time><FileType>ANFM</FileType>"
                               "<FileRadio>KRV-214</FileRadio><FileBand>FM 138-174</FileBand>"
                               "<Memory row=\"2\"><MNUM>002</MNUM></Memory>")));
    EXPECT_EQ("002", Text(2, MNUM));
    EXPECT_EQ(3, CurrentParameters().Radio);
}

TEST_F(ChannelFileReader, RefusesNoVersion) {
    for (const char* version : {"", "9.9.9", "none"})
        EXPECT_EQ(0, Open(Document("<Version>" + std::string(version) +
                                   "</Version><Date/><Time/><FType>ANFM</FType><FRadio>KRV-47</FRadio>"
                                   "<FBand>FM 66-88</FBand>")))
            << version;
}

TEST_F(ChannelFileReader, TakesTheTargetOfTheFile) {
    const int types[] = {0, 1, 2, 3, 4, 5, 6, 7};
    const int columns[] = {10, 19, 20, 11, 2, 6, 5, 7};
    const int bands[] = {5, 4, 4, 8, 3, 3, 6, 6};
    for (size_t i = 0; i < std::size(Targets); ++i) {
        const TypedTarget& target = Targets[i];
        SCOPED_TRACE(target.type);
        ASSERT_EQ(0, Open(FileOf(target.type, "")));
        const PageParameterRecord& page = CurrentParameters();
        EXPECT_EQ(target.radioIndex, page.Radio);
        EXPECT_EQ(target.bandSlot, page.BandIndex);
        EXPECT_EQ(bands[i], page.Band);
        EXPECT_EQ(target.rows, page.Rows);
        EXPECT_EQ(types[i], page.Type);
        EXPECT_EQ(columns[i], page.Cols);
        EXPECT_EQ(target.radio, PageStrings[0].RadioName);
        EXPECT_EQ(target.band, PageStrings[0].BandName);
        EXPECT_EQ(target.type, PageStrings[0].TypeName);
        EXPECT_EQ(target.rows + 1, CurrentGrid()->GetNumberRows());
        EXPECT_EQ(NumberText(target.rows), CurrentGrid()->GetRowLabelValue(target.rows));
        EXPECT_EQ(RadioCatalogue::ColumnHeading[types[i]][RFRQ], CurrentGrid()->GetColLabelValue(RFRQ));
        EXPECT_EQ(target.radio, Status(1));
        EXPECT_EQ(target.band, Status(2));
        EXPECT_EQ(std::to_string(target.rows) + " Rows", Status(3));
        EXPECT_EQ(target.radio, MainFrame->m_notebook->GetPageText(0));
        const bool guards = target.rows % 10 == 2;
        EXPECT_EQ(guards ? target.rows - 1 : -1, GD1);
        EXPECT_EQ(guards ? target.rows : -1, GD2);
    }
}

TEST_F(ChannelFileReader, OfAFileWithoutTypeTakesTheTypeOfItsRadioAndBand) {
    struct Case {
        const char* radio;
        const char* band;
        int type;
    };
    constexpr Case cases[] = {
        {"ORV-12", "AM 118-138", 4},    {"KRV-620", "AM 225-400", 6},   {"KRV-620", "FM 138-174", 0},
        {"KDAR-2000", "AM 118-138", 5}, {"KDRV-716", "FM 136-174", 1},  {"KDRV-716B", "FM 136-174", 2},
        {"KDRV-4xxx", "K6 3-BAND", 3},  {"KDRV-4xxx", "AM 118-138", 6}, {"KDRV-8400", "AM 118-138", 6},
    };
    for (const Case& c : cases) {
        ASSERT_EQ(0, Open(Document(Header("", c.radio, c.band)))) << c.radio;
        EXPECT_EQ(c.type, CurrentParameters().Type) << c.radio << " " << c.band;
        EXPECT_EQ(RadioCatalogue::RadioTypeName[c.type], PageStrings[0].TypeName);
    }
}

TEST_F(ChannelFileReader, ChangesTheColumnsWhenOnlyTheTypeDiffers) {
    RetargetTo("ANAM");
    ASSERT_EQ(0, CurrentGrid()->GetColSize(RTON));
    ASSERT_EQ(0, Open(FileOf("FXAM", "")));
    EXPECT_EQ(50, CurrentGrid()->GetColSize(RTON));
    EXPECT_EQ("RxTn", CurrentGrid()->GetColLabelValue(RTON));
    ASSERT_EQ(0, Open(FileOf("ANAM", "")));
    EXPECT_EQ(0, CurrentGrid()->GetColSize(RTON));
}

TEST_F(ChannelFileReader, LoadsAHeaderWithoutMemoriesAsAnEmptyPage) {
    for (const TypedTarget& target : Targets) {
        ASSERT_EQ(0, Open(FileOf(target.type, ""))) << target.type;
        EXPECT_EQ(std::vector<int>{0}, FilledRows(0)) << target.type;
    }
}

TEST_F(ChannelFileReader, GivesAFileWithoutRowZeroTheDefaultRowOfItsTarget) {
    const std::pair<const char*, const char*> descriptions[] = {
        {"ANFM", "VHF   138"}, {"RP25", "VHF  136"}, {"NP25", "VHF  136"},  {"MDLX", "MODL   K6"},
        {"O12", "VHFAM 118"},  {"KDAR", "VHFAM118"}, {"ANAM", "UHFAM 225"}, {"FXAM", "UHFAM 225"},
    };
    for (const auto& [type, description] : descriptions) {
        ASSERT_EQ(0, Open(FileOf(type, Memory(2, "<MN>002</MN>")))) << type;
        EXPECT_EQ(description, Text(0, DESC)) << type;
        EXPECT_EQ("A0", Text(0, TFLG)) << type;
    }
}

TEST_F(ChannelFileReader, ReplacesTheDefaultRowByThatOfTheFile) {
    ASSERT_EQ(0, Open(FileOf("ANFM", Memory(0, "<MN>000</MN><DS>MINE</DS><RF>144.0000</RF>"))));
    EXPECT_EQ("MINE", Text(0, DESC));
    EXPECT_EQ("144.0000", Text(0, RFRQ));
    EXPECT_EQ("174.0000", Text(0, TFRQ)) << "cells that the file lacks keep the default";
    EXPECT_EQ("A0", Text(0, TFLG));
    EXPECT_TRUE(CurrentGrid()->IsReadOnly(0, MNUM));
}

TEST_F(ChannelFileReader, TakesTheRowFromItsAttributeWhateverTheNumber) {
    ASSERT_EQ(0, Open(FileOf("ANFM", Memory(40, "<MN>007</MN>"))));
    EXPECT_EQ("007", Text(40, MNUM));
    EXPECT_EQ((std::vector<int>{0, 40}), FilledRows(0));
}

TEST_F(ChannelFileReader, ReadsAMemoryWithoutRowIntoRowZero) {
    ASSERT_EQ(0, Open(FileOf("ANFM", "<MEMORY><DS>ZERO</DS></MEMORY>")));
    EXPECT_EQ("ZERO", Text(0, DESC));
}

TEST_F(ChannelFileReader, PassesOverRowsOutsideTheGrid) {
    for (const char* row :
         {"103", "-1", "99999999999999999999", "-99999999999999999999", "x", "", "0x5x", " "}) {
        const bool isZero = std::string(row) == "0x5x"; // reads as 0
        ASSERT_EQ(0, Open(FileOf("ANFM", "<MEMORY row=\"" + std::string(row) + "\"><DS>GONE</DS></MEMORY>" +
                                             Memory(102, "<DS>LAST</DS>"))))
            << row;
        EXPECT_EQ((std::vector<int>{0, 102}), FilledRows(0)) << "\"" << row << "\"";
        EXPECT_EQ(isZero ? "GONE" : "VHF   138", Text(0, DESC)) << "\"" << row << "\"";
    }
}

TEST_F(ChannelFileReader, WritesTheLaterOfTwoEqualRowsOverTheEarlierCellByCell) {
    ASSERT_EQ(0, Open(FileOf("ANFM", Memory(9, "<MN>009</MN><DS>FIRST</DS><RF>150.0000</RF>") +
                                         Memory(9, "<MN>010</MN><DS>SECOND</DS>"))));
    EXPECT_EQ("010", Text(9, MNUM));
    EXPECT_EQ("SECOND", Text(9, DESC));
    EXPECT_EQ("150.0000", Text(9, RFRQ));
}

TEST_F(ChannelFileReader, CountsOneZoneSlotForARowThatComesTwice) {
    ASSERT_EQ(0, Open(FileOf("NP25", P25Memory(9, "0", "N", "3") + P25Memory(9, "0", "N", "5"))));
    EXPECT_EQ("5", Text(9, ZONE));
    EXPECT_EQ(1, TakenSlots());
    EXPECT_EQ(1, ZoneSlotsOf(0)[4]);
}

TEST_F(ChannelFileReader, TakesTheLaterOfTwoZonesInARow) {
    ASSERT_EQ(0, Open(FileOf("NP25", Memory(9, "<MN>009</MN><ZN>3</ZN><ZN>5</ZN>"))));
    EXPECT_EQ("5", Text(9, ZONE));
    EXPECT_EQ(1, TakenSlots());
}

TEST_F(ChannelFileReader, EndsEachRowWithFlagsThatDoNotShowItsZoneSlot) {
    ASSERT_EQ(0, Open(FileOf("NP25", P25Memory(9, "0", "N", "3"))));
    EXPECT_EQ("A0", Text(9, TFLG));
    EXPECT_EQ("3", Text(9, ZONE));
    EXPECT_EQ(1, ZoneSlotsOf(0)[2]);
    EXPECT_EQ(1, TakenSlots());
}

TEST_F(ChannelFileReader, GivesTheSeventeenthRowOfAZoneTheNextFreeOne) {
    std::string memories;
    for (int row = 1; row <= 17; ++row)
        memories += P25Memory(row, "0", "N", "1");
    ASSERT_EQ(0, Open(FileOf("RP25", memories)));
    EXPECT_EQ("1", Text(16, ZONE));
    EXPECT_EQ("2", Text(17, ZONE));
    EXPECT_EQ(16, ZoneSlotsOf(0)[0]);
    EXPECT_EQ(1, ZoneSlotsOf(0)[1]);
}

TEST_F(ChannelFileReader, BringsPrimariesAndShadowsBackOutOfTheScanAndLocked) {
    ASSERT_EQ(0, Open(FileOf("NP25", P25Memory(5, "10", "P-1", "2") + P25Memory(6, "01", "S-005", "2") +
                                         P25Memory(7, "0", "N", "2"))));
    wxGrid* grid = CurrentGrid();
    EXPECT_EQ("N", Text(5, SCAN));
    EXPECT_EQ("N", Text(6, SCAN));
    EXPECT_EQ("Y", Text(7, SCAN));
    EXPECT_TRUE(grid->IsReadOnly(5, SCAN));
    EXPECT_TRUE(grid->IsReadOnly(6, SCAN));
    EXPECT_FALSE(grid->IsReadOnly(7, SCAN));
    EXPECT_FALSE(grid->IsReadOnly(5, ZONE));
    EXPECT_TRUE(grid->IsReadOnly(6, ZONE)) << "a shadow has the zone of its primary";
    EXPECT_FALSE(grid->IsReadOnly(7, ZONE));
    EXPECT_EQ("", Text(6, ZONE));
    EXPECT_EQ(2, TakenSlots()) << "a shadow takes no slot";
}

TEST_F(ChannelFileReader, LocksScanOfRowsInZoneX) {
    ASSERT_EQ(0, Open(FileOf("NP25", P25Memory(5, "0", "N", "X") + P25Memory(6, "0", "N", "W"))));
    EXPECT_TRUE(CurrentGrid()->IsReadOnly(5, SCAN));
    EXPECT_FALSE(CurrentGrid()->IsReadOnly(6, SCAN));
    ASSERT_EQ(0, Open(FileOf("NP25", P25Memory(5, "0", "N", "W") + P25Memory(6, "0", "N", "X"))));
    EXPECT_FALSE(CurrentGrid()->IsReadOnly(5, SCAN));
    EXPECT_TRUE(CurrentGrid()->IsReadOnly(6, SCAN));
}

// A departure: tuned or numbered alone, a shadow would leave its primary.
TEST_F(ChannelFileReader, KeepsShadowsAndPrimariesLockedAsBeforeTheyWereSaved_Departure) {
    for (const char* type : {"RP25", "NP25"}) {
        SCOPED_TRACE(type);
        ASSERT_EQ(0, Open(FileOf(type, P25Memory(5, "10", "P-1", "2") + P25Memory(6, "01", "S-005", "2") +
                                           P25Memory(7, "0", "N", "2"))));
        const auto lockedIn = [](int row) {
            std::vector<int> columns;
            for (int col = 0; col < ColumnTotal; ++col)
                if (CurrentGrid()->IsReadOnly(row, col))
                    columns.push_back(col);
            return columns;
        };
        EXPECT_EQ((std::vector<int>{MNUM, SHAD, SCAN}), lockedIn(5));
        EXPECT_EQ((std::vector<int>{MNUM, SHAD, SCAN, ZONE, RFRQ, TFRQ}), lockedIn(6));
        EXPECT_EQ((std::vector<int>{SHAD}), lockedIn(7));
    }
}

TEST_F(ChannelFileReader, LetsNoKeyRetuneOrRenumberAShadowAlone) {
    testbench::ShowAndFocus(*MainFrame);
    ASSERT_EQ(0, Open(FileOf("NP25", P25Memory(5, "10", "P-1", "2") + P25Memory(6, "01", "S-005", "2"))));
    testbench::TypeIntoCell(*CurrentGrid(), 6, RFRQ, "150.0");
    testbench::TypeIntoCell(*CurrentGrid(), 6, TFRQ, "151.0");
    testbench::TypeIntoCell(*CurrentGrid(), 6, MNUM, "99");
    testbench::TypeIntoCell(*CurrentGrid(), 5, MNUM, "98");
    EXPECT_EQ((std::vector<std::string>{"6", "", "", "5"}),
              (std::vector<std::string>{Text(6, MNUM), Text(6, RFRQ), Text(6, TFRQ), Text(5, MNUM)}));
    testbench::TypeIntoCell(*CurrentGrid(), 6, DESC, "own");
    EXPECT_EQ("own", Text(6, DESC));
}

TEST_F(ChannelFileReader, LocksARowThatComesTwiceByWhatItIsInTheEnd) {
    ASSERT_EQ(0, Open(FileOf("NP25", P25Memory(6, "01", "S-005", "2") + P25Memory(6, "0", "N", "2") +
                                         P25Memory(7, "01", "S-005", "2") + Memory(7, "<DS>LAST</DS>"))));
    EXPECT_FALSE(CurrentGrid()->IsReadOnly(6, RFRQ));
    EXPECT_FALSE(CurrentGrid()->IsReadOnly(6, ZONE));
    EXPECT_TRUE(CurrentGrid()->IsReadOnly(7, RFRQ));
    EXPECT_TRUE(CurrentGrid()->IsReadOnly(7, ZONE));
}

TEST_F(ChannelFileReader, LeavesScanCellsOfOtherTypesAsTheyAre) {
    ASSERT_EQ(0, Open(FileOf("KDAR", Memory(5, "<SH>P-1</SH><SC type=\"RP25\">Y</SC>"))));
    EXPECT_EQ("Y", Text(5, SCAN));
    ASSERT_EQ(0, Open(FileOf("ANFM", Memory(5, "<SH>S-001</SH><SC type=\"ANFM\">31</SC>"))));
    EXPECT_EQ("31", Text(5, SCAN));
    EXPECT_FALSE(CurrentGrid()->IsReadOnly(5, SCAN));
}

TEST_F(ChannelFileReader, MarksAPageThatHoldsPrimariesOrShadows) {
    struct Case {
        const char* flags;
        bool shadows;
    };
    constexpr Case cases[] = {{"", false},  {"0", false}, {"08", false}, {"60", false}, {"10", true},
                              {"01", true}, {"07", true}, {"67", true},  {"1F", true},  {"G", false}};
    for (const Case& c : cases) {
        ASSERT_EQ(0, Open(FileOf("RP25", P25Memory(9, c.flags, "N", "1")))) << c.flags;
        EXPECT_EQ(c.shadows, (CurrentParameters().Flags & 0x08) != 0) << "\"" << c.flags << "\"";
    }
}

TEST_F(ChannelFileReader, LeavesRowsOfAP25PageThatTheFileLacksEmpty) {
    for (const char* type : {"RP25", "NP25"})
        for (const bool fromP25 : {false, true}) {
            fromP25 ? RetargetTo(type) : RetargetTo("ANFM");
            ASSERT_EQ(0, Open(FileOf(type, P25Memory(9, "0", "N", "4"))));
            EXPECT_EQ((std::vector<int>{0, 9}), FilledRows(0)) << type << " from P25: " << fromP25;
            EXPECT_EQ(1, TakenSlots()) << type << " from P25: " << fromP25;
        }
}

TEST_F(ChannelFileReader, GivesP25PagesTheZonesOfTheirGeneration) {
    ASSERT_EQ(0, Open(FileOf("NP25", P25Memory(9, "0", "N", "K"))));
    EXPECT_EQ("K", Text(9, ZONE));
    ASSERT_EQ(0, Open(FileOf("RP25", P25Memory(9, "0", "N", "K"))));
    EXPECT_EQ("1", Text(9, ZONE)) << "the first generation has no zone K";
    EXPECT_EQ(16u, RadioCatalogue::ZoneList.size());
}

TEST_F(ChannelFileReader, GivesGuardRowsTheirZoneAndLocks) {
    ASSERT_EQ(0, Open(FileOf("RP25", P25Memory(231, "0", "N", "1") + P25Memory(232, "0", "N", "1"))));
    EXPECT_EQ("16", Text(231, ZONE));
    EXPECT_EQ("16", Text(232, ZONE));
    for (int row : {231, 232})
        for (int col : {MNUM, SCAN, ZONE})
            EXPECT_TRUE(CurrentGrid()->IsReadOnly(row, col)) << row << " " << ColumnTag[col];
    ASSERT_EQ(0, Open(FileOf("ANFM", "")));
    for (int row : {101, 102})
        for (int col : {MNUM, SCAN, RTON, RCOD})
            EXPECT_TRUE(CurrentGrid()->IsReadOnly(row, col)) << row << " " << ColumnTag[col];
}

TEST_F(ChannelFileReader, ClearsTheLocksOfFormerRows) {
    ASSERT_EQ(0, Open(FileOf("NP25", P25Memory(5, "10", "P-1", "2") + P25Memory(6, "01", "S-005", "2"))));
    ASSERT_EQ(0, Open(FileOf("NP25", P25Memory(5, "0", "N", "2") + P25Memory(6, "0", "N", "2"))));
    for (int row : {5, 6})
        for (int col : {SCAN, ZONE})
            EXPECT_FALSE(CurrentGrid()->IsReadOnly(row, col)) << row << " " << ColumnTag[col];
    ASSERT_EQ(0, Open(FileOf("ANAM", "")));
    for (int row : {5, 101, 102, 200})
        for (int col : {MNUM, SCAN, ZONE, MODE, RTON, RCOD, RFRQ, TFRQ})
            EXPECT_FALSE(CurrentGrid()->IsReadOnly(row, col)) << row << " " << ColumnTag[col];
}

TEST_F(ChannelFileReader, GivesThePageTheEditorsOfTheFilesTarget) {
    const auto isP25ZoneCell = [](int row) {
        const wxGridCellEditorPtr editor(CurrentGrid()->GetCellEditor(row, ZONE));
        return dynamic_cast<P25ZoneEditor*>(editor.get()) != nullptr;
    };
    RetargetTo("ANFM");
    ASSERT_FALSE(isP25ZoneCell(1));
    ASSERT_EQ(0, Open(FileOf("NP25", "")));
    for (int row : {0, 1, 103, 502})
        EXPECT_TRUE(isP25ZoneCell(row)) << row;
}

TEST_F(ChannelFileReader, EmptiesAndUnlocksEveryCellOfThePage) {
    RetargetTo("ANFM");
    wxGrid* grid = CurrentGrid();
    for (int row : {1, 50, 102})
        for (int col = 0; col < ColumnTotal; ++col) {
            SetCell(row, col, "old");
            grid->SetReadOnly(row, col);
        }
    const wxXmlDocument empty;
    ASSERT_EQ(101, OpenZelkFile(empty, 0));
    for (int row : {1, 50, 102})
        for (int col = 0; col < ColumnTotal; ++col) {
            const bool guardLock = row == 102 && (col == MNUM || col == SCAN || col == RTON || col == RCOD);
            EXPECT_EQ("", Text(row, col)) << row << " " << ColumnTag[col];
            EXPECT_EQ(guardLock, grid->IsReadOnly(row, col)) << row << " " << ColumnTag[col];
        }
}

TEST_F(ChannelFileReader, DropsATextOfBlanksButKeepsThoseInsideAText) {
    ASSERT_EQ(0,
              Open(FileOf("ANFM", Memory(5, "<MN>005</MN><DS>   </DS>") + Memory(6, "<DS>  A  B  </DS>"))));
    EXPECT_EQ("", Text(5, DESC));
    EXPECT_EQ("  A  B  ", Text(6, DESC));
}

TEST_F(ChannelFileReader, ChecksNoValue) {
    ASSERT_EQ(0,
              Open(FileOf("ANFM", Memory(5, "<MN>999</MN><MD>Q</MD><RF>bad</RF><RT>1.0</RT><RC>999</RC>"))));
    EXPECT_EQ("999", Text(5, MNUM));
    EXPECT_EQ("Q", Text(5, MODE));
    EXPECT_EQ("bad", Text(5, RFRQ));
    EXPECT_EQ("1.0", Text(5, RTON));
    EXPECT_EQ("999", Text(5, RCOD));
}

TEST_F(ChannelFileReader, DoesNotConvertBack) {
    ASSERT_EQ(0, Open(FileOf("ANFM", Memory(5, "<MN>7</MN><RT>64</RT><RC>000</RC>"))));
    EXPECT_EQ("7", Text(5, MNUM));
    EXPECT_EQ("64", Text(5, RTON));
    EXPECT_EQ("000", Text(5, RCOD));
}

namespace {

struct CodeCase {
    const char* name;
    std::string document;
    int code;
};

std::string WithoutHeaderField(int left) {
    const std::string fields[] = {"<Version>1.0.0</Version>", "<Date>d</Date>",
                                  "<Time>t</Time>",           "<FType>ANFM</FType>",
                                  "<FRadio>KRV-214</FRadio>", "<FBand>FM 138-174</FBand>"};
    std::string text;
    for (int i = 0; i < 6; ++i)
        if (i != left)
            text += fields[i];
    return Document(text + Memory(1, "<DS>A</DS>"));
}

std::vector<CodeCase> HeaderCodes() {
    const std::string start = "<Version>1</Version><Date>d</Date><Time>t</Time>";
    return {
        {"another root", "<Zelk>" + HeaderOf("ANFM") + "</Zelk>", 102},
        {"root in small letters", "<zelkmem>" + HeaderOf("ANFM") + "</zelkmem>", 102},
        {"empty root", "<ZelkMem/>", 103},
        {"no version", WithoutHeaderField(0), 103},
        {"no date", WithoutHeaderField(1), 104},
        {"no time", WithoutHeaderField(2), 105},
        {"no type", WithoutHeaderField(3), 106},
        {"no radio", WithoutHeaderField(4), 107},
        {"no band", WithoutHeaderField(5), 108},
        {"version alone", Document("<Version>1</Version>"), 104},
        {"version in small letters", Document("<version>1</version>"), 103},
        {"date and time swapped", Document("<Version>1</Version><Time>t</Time><Date>d</Date>"), 104},
        {"radio before type", Document(start + "<FRadio>KRV-214</FRadio><FType>ANFM</FType>"), 106},
        {"type in small letters", Document(start + "<ftype>ANFM</ftype>"), 106},
        {"unknown type", Document(Header("XXXX", "KRV-214", "FM 138-174")), 106},
        {"type of another case", Document(Header("anfm", "KRV-214", "FM 138-174")), 106},
        {"unknown radio", Document(Header("ANFM", "KRV-999", "FM 138-174")), 107},
        {"empty radio", Document(Header("ANFM", "", "FM 138-174")), 107},
        {"label of a radio", Document(Header("RP25", "KDRV-716[A|B]", "FM 136-174")), 107},
        {"unknown band", Document(Header("ANFM", "KRV-214", "FM 1-2")), 108},
        {"empty band", Document(Header("ANFM", "KRV-214", "")), 108},
        {"band that the radio lacks", Document(Header("ANFM", "KRV-214", "FM 30-50")), 108},
        {"band that a full radio lacks", Document(Header("MDLX", "KDRV-4xxx", "FM 66-88")), 108},
        {"digital type of an analog radio", Document(Header("RP25", "KRV-214", "FM 138-174")), 106},
        {"analog type of a digital radio", Document(Header("ANFM", "KDRV-716", "FM 136-174")), 106},
    };
}

} // namespace

TEST_F(ChannelFileReader, AnswersWhatTheHeaderLacksAndStoresNothingOfIt) {
    for (const char* former : {"ANAM", "RP25"})
        for (const CodeCase& c : HeaderCodes()) {
            SCOPED_TRACE(std::string(c.name) + " on a page of type " + former);
            RetargetTo(former);
            SetCell(7, DESC, "OLD");
            const PageParameterRecord before = CurrentParameters();
            EXPECT_EQ(c.code, Open(c.document));
            const PageParameterRecord& after = CurrentParameters();
            EXPECT_EQ(before.Radio, after.Radio);
            EXPECT_EQ(before.Band, after.Band);
            EXPECT_EQ(before.BandIndex, after.BandIndex);
            EXPECT_EQ(before.Type, after.Type);
            EXPECT_EQ(before.Rows, after.Rows);
            EXPECT_EQ(before.Cols, after.Cols);
            EXPECT_EQ(TargetOf(former).radio, PageStrings[0].RadioName);
            EXPECT_EQ(TargetOf(former).band, PageStrings[0].BandName);
            EXPECT_EQ(former, PageStrings[0].TypeName);
            EXPECT_EQ(std::vector<int>{0}, FilledRows(0)) << "the former content is gone";
            EXPECT_EQ(std::string(former) == "RP25" ? "VHF  136" : "UHFAM 225", Text(0, DESC));
            EXPECT_TRUE(CurrentGrid()->IsReadOnly(0, MNUM));
            EXPECT_EQ(0, TakenSlots());
        }
}

TEST_F(ChannelFileReader, AnswersThatADocumentHasNoRoot) {
    const wxXmlDocument empty;
    EXPECT_EQ(101, OpenZelkFile(empty, 0));
    EXPECT_EQ("LOW    66", Text(0, DESC));
}

TEST_F(ChannelFileReader, StopsAtAnElementThatIsNoMemoryAndKeepsTheRowsBeforeIt) {
    ASSERT_EQ(109, Open(FileOf("NP25", P25Memory(0, "0", "N", "1") + P25Memory(5, "10", "P-1", "2") +
                                           "<Other/>" + P25Memory(6, "0", "N", "2"))));
    EXPECT_EQ((std::vector<int>{0, 5}), FilledRows(0));
    EXPECT_EQ("MEM", Text(0, DESC)) << "the file's own default row";
    EXPECT_TRUE(CurrentGrid()->IsReadOnly(5, SCAN));
    EXPECT_EQ("KDRV-716B", Status(1));
    ASSERT_EQ(109, Open(FileOf("ANFM", "<Other/>")));
    EXPECT_EQ("VHF   138", Text(0, DESC));
}

TEST_F(ChannelFileReader, TakesEveryElementThatIsNamedLikeAMemory) {
    const std::pair<const char*, int> cases[] = {{"MEMORY", 0},   {"Memory", 0},   {"MyMemory2", 0},
                                                 {"XMEMORYX", 0}, {"memory", 109}, {"MEMORy", 109},
                                                 {"MEM", 109}};
    for (const auto& [name, code] : cases) {
        const std::string element = std::string("<") + name + " row=\"3\"><DS>A</DS></" + name + ">";
        EXPECT_EQ(code, Open(FileOf("ANFM", element))) << name;
        EXPECT_EQ(code == 0 ? "A" : "", Text(3, DESC)) << name;
    }
}

TEST_F(ChannelFileReader, EndsWithTheCellsUnpainted) {
    CurrentGrid()->SetCellBackgroundColour(5, RFRQ, FailColour);
    ASSERT_EQ(0, Open(FileOf("ANFM", Memory(5, "<RF>150.0000</RF>"))));
    EXPECT_NE(FailColour, CurrentGrid()->GetCellBackgroundColour(5, RFRQ));
}
